// The game in a web page: the functions the page calls. The page starts the game, forwards
// each click and double click, and after each one reads the game back as JSON and redraws;
// it asks apart for the key table, the key help, the diary, the week graph and the save
// slots, each when it shows them. A click can wait inside a box; the page calls the click
// functions asynchronously and lets no other call in until the click has returned.

#include <emscripten.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "app/driver/invocation.h"
#include "app/web/kept_files.h"
#include "app/web/slot_files.h"
#include "app/web/state_json.h"
#include "app/web/web_port.h"
#include "core/game.h"
#include "core/scripted_port.h"
#include "flow/career.h"
#include "flow/clicks.h"
#include "flow/office.h"
#include "rules/files/hall_of_fame.h"
#include "view/week_graph.h"

namespace tourvane {
namespace {

bool lasting = false;  // the saves folder is the browser's storage
WebPort port;
KeptFiles files(page_folder(), [] { return lasting ? keep_saves() : std::string(); });
Game game(port);
ScreenOrder screens;   // the screens the page has open, and which comes to the front
DiarySenders senders;  // the diary's senders, for its filter
DiaryFilter diary_filter;
bool started = false;
bool busy = false;                   // a click is running, maybe waiting in a box
std::string reply;                   // the JSON last handed to the page
std::string notice;                  // what the player should know about the start
std::vector<std::uint8_t> download;  // the file last handed to the page

/// What a click returns when it was not let in.
constexpr int kRefused = -1;

template <class Click>
int run_click(Click&& click_it) {
    if (!started || busy || game.ended) return kRefused;
    busy = true;
    const int result = static_cast<int>(click_it());
    busy = false;
    return result;
}

// The hall of fame as last read, and the career of it whose diary and graph are shown.
std::vector<FameEntry> hall;
ScriptedPort quiet;  // the career shown is only read, never played
Game shown(quiet);
int shown_career = -1;
DiarySenders hall_senders;
DiaryFilter hall_filter;
bool in_hall = false;  // the finished career has gone into the hall

/// Puts career `k` of the hall in `shown`, for its diary and week graph.
void show_career(int k) {
    if (k == shown_career) return;
    shown_career = k;
    const bool there = k >= 0 && k < static_cast<int>(hall.size());
    shown.diary = there ? hall[static_cast<std::size_t>(k)].diary : std::vector<DiaryEntry>{};
    shown.history = there ? hall[static_cast<std::size_t>(k)].history : std::vector<WeekSample>{};
    shown.segments = there ? hall[static_cast<std::size_t>(k)].segments : std::vector<WeekSample>{};
    shown.rec.gamedate = there ? hall[static_cast<std::size_t>(k)].summary.last_day : 0;
    ++shown.history_loads;  // another career: the senders start afresh
}

const char* hand_over(std::string json) {
    reply = std::move(json);
    return reply.c_str();
}

}  // namespace
}  // namespace tourvane

using namespace tourvane;

extern "C" {

/// Starts the game: mounts the saves, reads the title screen's slots and sets up the world.
/// `seed` is the address's seed= value, or empty for a seed from the clock. Returns 0 when the
/// game started with its saves, 1 when it started but its saves last only as long as the page,
/// 2 when the seed is no whole number and the game did not start; `tourvane_notice` says why.
EMSCRIPTEN_KEEPALIVE int tourvane_start(const char* seed) {
    if (started) return 0;
    notice.clear();
    std::optional<std::uint64_t> draws;
    if (seed && *seed) {
        draws = driver::parse_seed(seed);
        if (!draws) {
            notice = "The address's seed= needs a whole number from 0 to 18446744073709551615.";
            return 2;
        }
    }
    const std::string storage = open_saves();
    const bool in_folder = ::chdir(kSavesFolder) == 0;
    lasting = storage.empty() && in_folder;
    if (!storage.empty())
        notice = "Saves cannot be kept in this browser's storage (" + storage +
                 "): they last until the page is closed.";
    else if (!in_folder)
        notice = "The saves folder cannot be opened: saves last until the page is closed.";
    game.files = &files;
    load_main(game, draws);
    started = true;
    return notice.empty() ? 0 : 1;
}

/// What the page should tell the player about the start, or an empty text.
EMSCRIPTEN_KEEPALIVE const char* tourvane_notice() {
    return notice.c_str();
}

/// A click on FORM.CONTROL, with the array index or list row (-1 for none), as the desktop
/// forwards it. Returns the click's result (flow/clicks.h ClickResult), or -1 when the game
/// has not started, has ended, or another click is still running.
EMSCRIPTEN_KEEPALIVE int tourvane_click(const char* form, const char* control, int index) {
    return run_click([&] { return click(game, form, control, index); });
}

/// A double click on a list box at a row (-1 on the empty part of the list).
EMSCRIPTEN_KEEPALIVE int tourvane_dblclick(const char* form, const char* control, int row) {
    return run_click([&] { return dblclick(game, form, control, row); });
}

/// The game as the page draws it (app/web/state_json.h state_json), with the screens to open,
/// close and bring to the front since the last call. Each JSON text handed over is good until
/// the next call of any of these functions.
EMSCRIPTEN_KEEPALIVE const char* tourvane_state() {
    const ScreenChanges changes = screens.sync(game);
    return hand_over(state_json(game, changes, screens.open()));
}

/// The fixed words of the boxes and of the windows beside the office.
EMSCRIPTEN_KEEPALIVE const char* tourvane_words() {
    return hand_over(words_json());
}

/// The key table.
EMSCRIPTEN_KEEPALIVE const char* tourvane_keys() {
    return hand_over(keys_json());
}

/// The key help, how to play and what Tourvane is.
EMSCRIPTEN_KEEPALIVE const char* tourvane_help() {
    return hand_over(help_json(game));
}

/// The diary of one sender (empty for everyone's) holding `words` (empty for all).
EMSCRIPTEN_KEEPALIVE const char* tourvane_diary(const char* sender, const char* words) {
    diary_filter.sender = sender ? sender : "";
    diary_filter.search(words ? words : "");
    return hand_over(diary_json(game, senders, diary_filter));
}

/// The week graph with `room` dates across and the point `picked` (-1 for the latest).
EMSCRIPTEN_KEEPALIVE const char* tourvane_graph(int room, int picked) {
    return hand_over(graph_json(game, room, picked));
}

/// The week graph's point `picked` alone (-1 for the latest), with its read-out and label.
EMSCRIPTEN_KEEPALIVE const char* tourvane_graph_pick(int picked) {
    return hand_over(graph_pick_json(game, picked));
}

/// The point a graph key (its action's name) picks from `current` among `count` points.
EMSCRIPTEN_KEEPALIVE int tourvane_graph_move(const char* action, int current, int count) {
    const std::optional<KeyAction> a = action_named(action ? action : "");
    return a ? graph_move(*a, current, count) : current;
}

/// Where the picked point's label of `width` by `height` goes in the plot, clear of the
/// point's marks at `x`, `y1` and `x`, `y2`: {"left":..,"top":..}.
EMSCRIPTEN_KEEPALIVE const char* tourvane_place_label(int plot_left, int plot_top, int plot_width,
                                                      int plot_height, double x, double y1,
                                                      double y2, double width, double height,
                                                      double gap) {
    const Place at =
        place_label({plot_left, plot_top, plot_width, plot_height}, x, y1, y2, width, height, gap);
    Json j;
    j.object().member("left", at.left).member("top", at.top).end();
    return hand_over(j.take());
}

/// The title screen's offer to carry on with the automatic save's career, and the hall's key.
EMSCRIPTEN_KEEPALIVE const char* tourvane_title() {
    return hand_over(title_json(files));
}

/// Carries on with the career the automatic save kept, as LOAD GAME does with a slot's (it
/// says so in a box, so the page calls it asynchronously). 1 when it was carried on with, 0
/// when not (a box said why), -1 when not let in.
EMSCRIPTEN_KEEPALIVE int tourvane_carry_on() {
    return run_click([] { return carry_on(game) ? 1 : 0; });
}

/// The memo that ends the game is up: the career goes into the hall of fame (once), and its
/// summary comes back; null while the game goes on. It writes to the browser's storage, so the
/// page calls it asynchronously.
EMSCRIPTEN_KEEPALIVE const char* tourvane_summary() {
    if (!started || !game.game_over) return hand_over("null");
    if (!in_hall) {
        add_to_hall(game);
        in_hall = true;
    }
    return hand_over(summary_json(career_summary(game)));
}

/// The page is going away or the program has ended: a running career is kept in the automatic
/// save, a finished one in the hall (flow/career.h keep_running_career). Asynchronous, as it
/// writes to the browser's storage; refused while a click waits in a box.
EMSCRIPTEN_KEEPALIVE int tourvane_keep() {
    if (!started || busy) return -1;
    busy = true;
    const bool kept = keep_running_career(game);
    busy = false;
    return kept ? 1 : 0;
}

/// The hall of fame, read as it stands, best first.
EMSCRIPTEN_KEEPALIVE const char* tourvane_hall() {
    hall = read_hall(files);
    shown_career = -1;
    return hand_over(hall_json(hall));
}

/// The diary and the week graph of career `k` of the hall last read, as tourvane_diary and
/// tourvane_graph give the running career's.
EMSCRIPTEN_KEEPALIVE const char* tourvane_hall_diary(int k, const char* sender, const char* words) {
    show_career(k);
    hall_filter.sender = sender ? sender : "";
    hall_filter.search(words ? words : "");
    return hand_over(diary_json(shown, hall_senders, hall_filter));
}

EMSCRIPTEN_KEEPALIVE const char* tourvane_hall_graph(int k, int room, int picked) {
    show_career(k);
    return hand_over(graph_json(shown, room, picked));
}

EMSCRIPTEN_KEEPALIVE const char* tourvane_hall_graph_pick(int k, int picked) {
    show_career(k);
    return hand_over(graph_pick_json(shown, picked));
}

/// The four slots as the saves panel offers them.
EMSCRIPTEN_KEEPALIVE const char* tourvane_slots() {
    return hand_over(slots_json(files));
}

/// The bytes of file `part` of the slot's offer (0 the save, 1 its history), for the page to
/// copy from memory at the address returned; 0 for none. `tourvane_file_size` says how many.
EMSCRIPTEN_KEEPALIVE const std::uint8_t* tourvane_file(int slot, int part) {
    download = offered_file(files, slot, part).value_or(std::vector<std::uint8_t>{});
    return download.empty() ? nullptr : download.data();
}

EMSCRIPTEN_KEEPALIVE int tourvane_file_size() {
    return static_cast<int>(download.size());
}

/// Takes the files the player picked (`count` of them) into a slot (app/web/slot_files.h
/// upload_to_slot): the first two each with its name, its whole size and its bytes (at the
/// address given, `read` of them; none for a file over the limit the page did not read).
/// {"taken":..,"message":..}; refused while a click runs. It waits for the browser's storage,
/// so the page calls it asynchronously, as a click.
EMSCRIPTEN_KEEPALIVE const char* tourvane_upload(int slot, int count, const char* name_a,
                                                 double size_a, const std::uint8_t* bytes_a,
                                                 int read_a, const char* name_b, double size_b,
                                                 const std::uint8_t* bytes_b, int read_b) {
    UploadResult result{false, "The game is busy: try again once the box is answered."};
    if (started && !busy) {
        std::vector<PickedFile> picked;
        const auto pick = [&](const char* name, double size, const std::uint8_t* bytes, int read) {
            if (!name || !*name || !(size >= 0)) return;
            picked.push_back({name,
                              static_cast<std::size_t>(size),
                              {bytes, bytes ? static_cast<std::size_t>(read) : 0}});
        };
        pick(name_a, size_a, bytes_a, read_a);
        pick(name_b, size_b, bytes_b, read_b);
        // Files past the two the page hands over are only counted, for the refusal.
        while (static_cast<int>(picked.size()) < count) picked.push_back({});
        busy = true;  // the storage is written meanwhile: no click gets in
        result = upload_to_slot(game, slot, picked);
        busy = false;
    }
    Json j;
    j.object().member("taken", result.taken).member("message", result.message).end();
    return hand_over(j.take());
}

}  // extern "C"

// The game in a web page: the functions the page calls. The page starts the game, forwards
// each click and double click, and after each one reads the whole form model back as JSON
// and redraws. A click can wait inside a box; the page calls the click functions
// asynchronously and lets no other call in until the click has returned.

#include <emscripten.h>
#include <unistd.h>

#include <string>

#include "app/driver/invocation.h"
#include "app/web/state_json.h"
#include "app/web/web_port.h"
#include "core/game.h"
#include "flow/clicks.h"
#include "flow/office.h"

namespace tourvane {
namespace {

WebPort port;
WebFiles files;
Game game(port);
bool started = false;
bool busy = false;   // a click is running, maybe waiting in a box
std::string reply;   // the state last handed to the page
std::string notice;  // what the player should know about the start

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

/// The whole form model as JSON (app/web/state_json.h); valid until the next call.
EMSCRIPTEN_KEEPALIVE const char* tourvane_state() {
    reply = state_json(game);
    return reply.c_str();
}

}  // extern "C"

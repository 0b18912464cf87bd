// tourvane-soak: game after game of random clicks on whatever a person could click, with random
// answers to every box, checking after every click what must hold in every game however it is
// played: the member slots, the songs, the chart, the screens and the number widths.

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <iostream>
#include <limits>
#include <random>
#include <string>
#include <string_view>

#include <unistd.h>

#include "core/fields.h"
#include "core/scripted_port.h"
#include "flow/clicks.h"
#include "flow/office.h"
#include "rules/files/record_file.h"
#include "rules/files/save_file.h"

namespace tourvane {
namespace {

using Faults = std::vector<std::string>;

/// Records the condition's own text, after `where`, when it does not hold.
#define HOLDS(cond, where) \
    if (!(cond)) faults.push_back(std::string(where) + ": " #cond)

bool within(long long v, long long lo, long long hi) {
    return v >= lo && v <= hi;
}
bool is_boolean(Boolean b) {
    return b == kTrue || b == kFalse;
}
std::string at(const char* what, long long i) {
    return what + std::to_string(i);
}

/// The checks on a game as it stands. Happiness may stand one point below 0 for each very bad
/// gig so far, as each can make one member extremely unhappy.
void check_state(Game& g, std::int64_t very_bad_gigs, Faults& faults) {
    const Module1& r = g.rec;
    HOLDS(r.membername[0].empty(), "membername(0)");
    int first_vacant = 0;
    std::vector<std::string> filled;
    for (int s = 1; s <= kMemberSlots; ++s) {
        const std::string slot = at("member slot ", s);
        HOLDS(!r.membername[s].empty(), slot);
        if (is_vacant(r, s)) {
            if (first_vacant == 0) first_vacant = s;
            // Lessons may still be bought for an emptied slot, so only talent may be above 0.
            HOLDS(r.membertalent[s] >= 0, slot);
            HOLDS(r.membercharisma[s] == 0 && r.memberattitude[s] == 0 && r.memberlooks[s] == 0 &&
                      r.membercreativity[s] == 0,
                  slot);
            HOLDS(r.membersex[s].empty() || r.membersex[s] == "0", slot);
        } else {
            filled.push_back(r.membername[s]);
            HOLDS(r.listslot[filled.size()] == s, slot);
            HOLDS(r.membersex[s] == "Male" || r.membersex[s] == "Female", slot);
            HOLDS(within(r.memberage[s], 17, 22), slot);
            HOLDS(r.membertalent[s] >= 1, slot);
            HOLDS(within(r.membercharisma[s], 1, 10), slot);
            HOLDS(within(r.memberattitude[s], 1, 10), slot);
            HOLDS(within(r.memberlooks[s], 1, 10), slot);
            HOLDS(within(r.membercreativity[s], 1, 3), slot);
        }
        HOLDS(within(r.memberhappy[s], -very_bad_gigs, 10), slot);
        HOLDS(within(r.memberill[s], 0, 10), slot);
        HOLDS(r.memberfriction[s] >= 0, slot);
        HOLDS(within(r.practice[s], 0, 3), slot);
    }
    HOLDS(within(r.vacancy, 1, kMemberSlots), "band");
    HOLDS(first_vacant == 0 || r.vacancy == first_vacant, "band");
    HOLDS(g.forms.main.members.rows == filled, "band list");
    HOLDS(within(g.main.selectedmember, 0, kMemberSlots), "band list");

    HOLDS(within(r.songcount, 0, kSongSlots), "songs");
    HOLDS(r.nextsong == r.songcount, "songs");
    HOLDS(r.songweeks == 10 || within(r.songweeks, 1, 7), "songs");
    HOLDS(r.tiredness >= 0, "songs");
    std::vector<std::string> titles;
    for (int k = 1; k <= kSongSlots; ++k) {
        const std::string song = at("song slot ", k);
        const bool written = k <= r.songcount;
        if (written) titles.push_back(r.songname[k]);
        HOLDS(r.songname[k].empty() != written, song);
        HOLDS(!written || r.songquality[k] >= 8, song);
        HOLDS(is_boolean(r.released[k]), song);
        HOLDS(written || r.released[k] == kFalse, song);
    }
    HOLDS(g.forms.main.songlist.rows == titles, "track list");
    HOLDS(within(g.main.selectedsong, 0, kSongSlots), "track list");
    HOLDS(within(r.bestsong, 0, kSongSlots), "songs");

    for (int row = kFirstRivalRow; row <= kChartRows; ++row) {
        const std::string chart = at("chart row ", row);
        HOLDS(!r.chartband[row].empty() && !r.charttitle[row].empty(), chart);
        HOLDS(r.chartdemand[row] >= 0 && r.chartfame[row] >= 0 && r.chartlife[row] > 0, chart);
    }
    for (int row = 0; row <= kChartRows; ++row)
        HOLDS(within(r.chartplace[row], 0, kChartRows), at("chart place ", row));
    for (int i = 0; i < static_cast<int>(r.rivalname.size()); ++i)
        HOLDS(r.rivalname[i].empty() == (i > kChartRows - kFirstRivalRow), at("rival pool ", i));

    HOLDS(r.popularity >= -1, "week");
    HOLDS(within(r.promotion, 0, 4) && within(r.interviewkind, 0, 2), "week");
    HOLDS(is_boolean(r.signed_) && is_boolean(g.main.demosent), "week");
    HOLDS(g.main.applicantsseen >= 0, "week");
    for (int v = 0; v <= kVenues; ++v)
        HOLDS(is_boolean(r.venueopen[v]) && (v > 0 || r.venueopen[v] == kFalse), at("venue ", v));
    for (int i = 0; i < static_cast<int>(r.setlist.size()); ++i)
        HOLDS(i >= 1 && i <= 3 ? within(r.setlist[i], 0, kSongSlots) : r.setlist[i] == 0,
              at("set list ", i));
    HOLDS(within(g.gig.tracksadded, 0, 3) && within(g.gig.gigvenue, 0, kVenues), "gig");
    const double days = r.gamedate - kStartDate;
    HOLDS(days >= 0 && days == static_cast<double>(static_cast<long long>(days) / 7 * 7),
          "calendar");

    if (g.ended) return;
    Forms& fs = g.forms;
    HOLDS(fs.messageForm.visible == !g.memos.empty(), "memo screen");
    if (g.game_over) {
        HOLDS(!g.memos.empty() && g.memos.back().ends_game, "game over");
        fs.each_form([&](FormState& form) {
            HOLDS(&form == &fs.messageForm || !form.enabled,
                  std::string("game over, ") + form.name);
        });
    } else {
        HOLDS(fs.main.enabled == g.memos.empty(), "office");
    }
    for (const Control* c : {&fs.main.members, &fs.main.songlist, &fs.gig.Combo1})
        HOLDS(within(c->selected, -1, static_cast<long long>(c->rows.size()) - 1), c->name);
}

/// The checks against the game before the click: saturating arithmetic stops at the end of a
/// number's width, so a field leaping from near one end to near the other has wrapped.
class Watch {
  public:
    void start(Game& g) {
        g_ = &g;
        numbers_.clear();
        for (const Field& field : fields(g))
            if (field.type == FieldType::Integer || field.type == FieldType::Long ||
                field.type == FieldType::Boolean)
                numbers_.push_back(field);
        before_ = values();
    }

    void after_click(bool gig_played, bool loaded, Faults& faults) {
        const Module1& r = g_->rec;
        if (gig_played && g_->gig.gigscore < 20) ++very_bad_gigs;
        Before now = values();
        if (!loaded) {
            HOLDS(r.gamedate >= before_.date, "calendar");
            for (int s = 1; s <= kMemberSlots; ++s)
                HOLDS(gig_played || before_.happy[s] < 0 || r.memberhappy[s] >= 0,
                      at("happiness of slot ", s));
            const std::int64_t half = std::numeric_limits<Long>::max() / 2;
            for (std::size_t k = 0; k < now.numbers.size(); ++k) {
                const std::int64_t was = before_.numbers[k], is = now.numbers[k];
                HOLDS(!((was > half && is < -half) || (was < -half && is > half)),
                      at("number ", static_cast<long long>(k)) + " from " + std::to_string(was));
            }
        }
        check_state(*g_, very_bad_gigs, faults);
        before_ = std::move(now);
    }

    std::int64_t very_bad_gigs = 0;  ///< carried over games: a save may be loaded into the next

  private:
    struct Before {
        std::vector<std::int64_t> numbers;  ///< every Integer, Long and Boolean, flattened
        Arr<Integer, kMemberSlots> happy{};
        Date date = 0;
    };

    Before values() const {
        Before b{{}, g_->rec.memberhappy, g_->rec.gamedate};
        for (const Field& f : numbers_) {
            // Integers are scaled to the width of a Long, so one bound finds a wrap in either.
            for (int i = f.is_array() ? 0 : -1; i <= f.upper; ++i)
                b.numbers.push_back(f.type == FieldType::Long ? f.at<Long>(i)
                                                              : f.at<Integer>(i) * 65536LL);
        }
        return b;
    }

    Game* g_ = nullptr;
    std::vector<Field> numbers_;
    Before before_;
};

#undef HOLDS
/// Answers every box at random: OK boxes with OK, Yes/No boxes with either, and the name
/// prompts with a name that may well be refused.
class RandomAnswers final : public ScriptedPort {
  public:
    explicit RandomAnswers(std::mt19937_64& pick) : pick_(pick) {}

    Answer msgbox(std::string_view text, Buttons buttons, bool critical) override {
        queue_answer(buttons == Buttons::Ok ? Answer::Ok
                                            : (pick_() % 2 ? Answer::Yes : Answer::No));
        return ScriptedPort::msgbox(text, buttons, critical);
    }

    std::string inputbox(std::string_view prompt, std::string_view title) override {
        // Cancel, a letter a save can't hold, one letter too long, Western letters that
        // round-trip, and plain names.
        static const char* odd[] = {"", "\xce\xa9mega", nullptr, "Caf\xc3\xa9 \xe2\x82\xac"};
        const auto k = pick_() % 20;
        queue_input(k >= 4   ? "Band " + std::to_string(pick_() % 1000)
                    : odd[k] ? odd[k]
                             : std::string(127, 'x'));
        return ScriptedPort::inputbox(prompt, title);
    }

  private:
    std::mt19937_64& pick_;
};

struct Choice {
    const char* form;
    const char* control;
    int index;  ///< array index or list row, -1 for none
    bool dbl;
    double weight;
};

/// How often a person reaches for a control. Next Week is the common click; the clicks that
/// end the program are rare so that games last. A thrifty player seldom spends money on
/// lessons, holidays and promotion.
double weight_of(std::string_view form, std::string_view control, bool thrifty) {
    const double spend = thrifty ? 0.1 : 1;
    if (control == "command6") return 10;
    if (control == "Label4" || control == "exitbtn") return 0.02;
    if (control == "promote") return 0.25 * spend;
    if (control == "label13" || control == "holiday") return spend;
    if (control == "command5" || (form == "Form1" && control == "load")) return 0.4;
    if (form == "savefrm" && control == "back") return 0.5;
    if (form == "gig" && (control == "Command2" || control == "command3")) return 0.2;
    return 1;
}

/// Every click a person could make now.
std::vector<Choice> usable_controls(Game& g, bool thrifty) {
    std::vector<Choice> out;
    g.forms.each_form([&](auto& form) {
        if (!form.usable()) return;
        form.each([&](Control& c) {
            if (!c.enabled || !c.visible || c.kind == ControlKind::Label) return;
            const double w = weight_of(form.name, c.name, thrifty);
            if (c.kind != ControlKind::ListBox && c.kind != ControlKind::ComboBox)
                return out.push_back({form.name, c.name, c.index, false, w});
            const bool list = c.kind == ControlKind::ListBox;
            if (list) out.push_back({form.name, c.name, -1, true, w / 4});
            const auto rows = static_cast<int>(c.rows.size());
            for (int row = 0; row < rows; ++row) {
                out.push_back({form.name, c.name, row, false, w / rows});
                if (list) out.push_back({form.name, c.name, row, true, w / rows});
            }
        });
    });
    return out;
}

const Choice& choose(const std::vector<Choice>& choices, std::mt19937_64& pick) {
    double total = 0;
    for (const Choice& c : choices) total += c.weight;
    double left = std::uniform_real_distribution<double>(0, total)(pick);
    for (const Choice& c : choices) {
        if (left < c.weight) return c;
        left -= c.weight;
    }
    return choices.back();
}

struct Report {
    std::int64_t weeks = 0, clicks = 0, games = 0, gigs = 0, singles = 0, saves = 0, loads = 0;
    std::vector<std::string> faults;
};

/// Games played one after another until the weeks run out or 20 faults are found.
class Player {
  public:
    Player(std::uint64_t seed, std::int64_t weeks) : pick_(seed), weeks_(weeks) {}

    Report play() {
        while (!done()) {
            const std::int64_t clicks_before = report_.clicks;
            play_game();
            if (report_.clicks == clicks_before) break;  // a game that takes no click
        }
        return std::move(report_);
    }

  private:
    bool done() const { return report_.weeks >= weeks_ || report_.faults.size() >= 20; }

    void play_game() {
        RandomAnswers port(pick_);
        Game g(port);
        const bool thrifty = pick_() % 2 == 0;
        if (pick_() % 2 == 0) write_seasoned_save();
        load_main(g, pick_());
        ++report_.games;
        watch_.start(g);
        Faults faults;
        check_state(g, watch_.very_bad_gigs, faults);
        record(faults);
        std::int64_t idle_clicks = 0;
        while (!g.ended && !done()) {
            const std::vector<Choice> choices = usable_controls(g, thrifty);
            if (choices.empty()) return record({"no control takes clicks, yet the game goes on"});
            const std::int64_t weeks_before = report_.weeks;
            step(g, choose(choices, pick_));
            idle_clicks = report_.weeks == weeks_before ? idle_clicks + 1 : 0;
            if (idle_clicks > 100'000) return record({"the calendar stood still 100000 clicks"});
        }
    }

    void step(Game& g, const Choice& c) {
        const std::string_view form = c.form, control = c.control;
        const Date date_before = g.rec.gamedate;
        int slot = 0;
        while (slot < kSaveSlots - 1 && !g.forms.savefrm.saveslot[slot].value) ++slot;
        const int singles_before = released_count(g.rec);

        const ClickResult result =
            c.dbl ? dblclick(g, form, control, c.index) : click(g, form, control, c.index);
        ++report_.clicks;
        trail_.push_back(std::string(c.dbl ? "dblclick " : "click ") + c.form + "." + c.control +
                         (c.index >= 0 ? " " + std::to_string(c.index) : ""));
        if (trail_.size() > 12) trail_.pop_front();

        Faults faults;
        if (result != ClickResult::Done)
            faults.push_back("a control a person could click refused the click");
        if (form == "main" && control == "command6" && g.rec.gamedate > date_before)
            report_.weeks += static_cast<std::int64_t>((g.rec.gamedate - date_before) / 7);
        const bool gig_played =
            form == "gig" && control == "command4" && g.forms.thenewspaper.visible;
        report_.gigs += gig_played;
        report_.singles += released_count(g.rec) - singles_before;
        const bool saved = form == "savefrm" && !g.forms.savefrm.loaded && control == "save";
        const bool loaded = form == "savefrm" && !g.forms.savefrm.loaded && control == "load";
        if (saved || loaded) {
            // A save holds the very game saved and loads back to it; a load holds its file.
            ++(saved ? report_.saves : report_.loads);
            const auto bytes = read_file(slot_file(slot), kSaveBytes + 1);
            if (!bytes || *bytes != save_bytes(g.rec))
                faults.push_back("the game differs from save slot " + std::to_string(slot));
            const bool loadable = g.rec.gamedate >= kFirstDay && g.rec.gamedate <= kLastDay;
            if (saved && bytes && loadable) {
                const auto back = parse_save(*bytes, g.rec);
                if (!back || save_bytes(*back) != *bytes)
                    faults.push_back("save slot " + std::to_string(slot) + " does not load back");
            }
        }
        watch_.after_click(gig_played, loaded, faults);
        record(faults);
    }

    static int released_count(const Module1& r) {
        int n = 0;
        for (int k = 1; k <= kSongSlots; ++k) n += is_true(r.released[k]);
        return n;
    }

    /// Puts a seasoned band in the last save slot, for LOAD GAME to reach the weeks of a signed
    /// band with singles out: four trained members, a dozen good songs and money in the bank.
    void write_seasoned_save() {
        ScriptedPort quiet;
        Game old(quiet);
        load_main(old, pick_());
        Module1& r = old.rec;
        r.bandname = "The Old Hands";
        r.playername = "Pat";
        const char* names[] = {"", "Ann Vox", "Bob Axe", "Cy Low", "Di Kit"};
        for (int s = 1; s <= kMemberSlots; ++s) {
            r.membername[s] = names[s];
            r.membersex[s] = s % 2 ? "Female" : "Male";
            r.memberage[s] = 20, r.memberhappy[s] = 8, r.membertalent[s] = 9;
            r.membercharisma[s] = r.memberattitude[s] = r.memberlooks[s] = 7;
            r.membercreativity[s] = 3;
            r.listslot[s] = static_cast<Integer>(s);
        }
        r.songcount = r.nextsong = 12;
        for (int k = 1; k <= r.songcount; ++k) {
            r.songname[k] = r.titlefirst[k] + r.titlesecond[21 - k];
            r.songquality[k] = static_cast<Integer>(30 + k);
            r.released[k] = to_boolean(k <= 4);
        }
        r.signed_ = kTrue, r.popularity = 1500, r.cash = 40'000;
        r.gamedate = kStartDate + 7 * 150;
        std::string reason;
        write_save(r, slot_file(kSaveSlots - 1), reason);
    }

    void record(const Faults& faults) {
        for (const std::string& f : faults) {
            if (report_.faults.size() >= 20) return;
            std::string line = "game " + std::to_string(report_.games) + ", click " +
                               std::to_string(report_.clicks) + ": " + f + "\n    last clicks:";
            for (const std::string& t : trail_) line += " [" + t + "]";
            report_.faults.push_back(line);
        }
    }

    std::mt19937_64 pick_;
    std::int64_t weeks_;
    Report report_;
    Watch watch_;
    std::deque<std::string> trail_;
};

}  // namespace
}  // namespace tourvane

int main(int argc, char** argv) {
    std::uint64_t seed = 1;
    std::uint64_t weeks = 100'000;
    for (int i = 1; i < argc; i += 2) {
        const std::string_view a = argv[i];
        char* end = nullptr;
        const unsigned long long n = i + 1 < argc ? std::strtoull(argv[i + 1], &end, 10) : 0;
        if (end == nullptr || end == argv[i + 1] || *end != '\0' ||
            (a != "--seed" && a != "--weeks")) {
            std::cerr << "Usage: tourvane-soak [--seed N] [--weeks N]\n"
                         "Plays N weeks (default 100000) of random clicks, game after game, in "
                         "a fresh temporary folder; the same seed plays the same clicks.\n";
            return 2;
        }
        (a == "--seed" ? seed : weeks) = n;
    }
    // Saves land in the working directory: a fresh folder of its own, removed afterwards, in
    // memory where the system has a memory file system, as each save waits for its disk.
    const std::filesystem::path shm = "/dev/shm";
    std::string folder = ((std::filesystem::is_directory(shm) && ::access("/dev/shm", W_OK) == 0
                               ? shm
                               : std::filesystem::temp_directory_path()) /
                          "tourvane-soak-XXXXXX")
                             .string();
    if (::mkdtemp(folder.data()) == nullptr) return 2;
    std::filesystem::current_path(folder);
    const tourvane::Report r = tourvane::Player(seed, static_cast<std::int64_t>(weeks)).play();
    std::filesystem::current_path("/");
    std::filesystem::remove_all(folder);

    std::cout << "soak: seed " << seed << ", " << r.weeks << " weeks in " << r.games << " games, "
              << r.clicks << " clicks, " << r.gigs << " gigs, " << r.singles << " singles, "
              << r.saves << " saves, " << r.loads << " loads\n";
    for (const std::string& f : r.faults) std::cout << "FAULT " << f << "\n";
    const bool passed = r.faults.empty() && r.weeks >= static_cast<std::int64_t>(weeks);
    std::cout << (passed ? "soak passed: every invariant held after every click\n"
                         : "soak failed\n");
    return passed ? 0 : 1;
}

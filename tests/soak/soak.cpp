// tourvane-soak: game after game of random clicks on whatever a person could click, with random
// answers to every box, checking after every click what must hold in every game however it is
// played: the member slots, the songs, the chart, the screens and the number widths. The first
// fault ends the soak, with the clicks that led to it.

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <iostream>
#include <limits>
#include <random>
#include <ranges>
#include <stdexcept>
#include <string>

#include <unistd.h>

#include "core/fields.h"
#include "core/scripted_port.h"
#include "flow/clicks.h"
#include "flow/office.h"
#include "rules/files/record_file.h"
#include "rules/files/save_file.h"

namespace tourvane {
namespace {

/// Throws the condition's own text and line when it does not hold.
#define HOLDS(cond) \
    if (!(cond)) throw std::runtime_error("line " + std::to_string(__LINE__) + ": " #cond)

bool within(long long v, long long lo, long long hi) {
    return v >= lo && v <= hi;
}
bool is_boolean(Boolean b) {
    return b == kTrue || b == kFalse;
}

/// The checks on a game as it stands. Happiness may stand one point below 0 for each very bad
/// gig so far, as each can make one member extremely unhappy.
void check_state(Game& g, std::int64_t very_bad_gigs) {
    const Module1& r = g.rec;
    HOLDS(r.membername[0].empty());
    int first_vacant = 0;
    std::vector<std::string> filled;
    for (int s = 1; s <= kMemberSlots; ++s) {
        const std::string& sex = r.membersex[s];
        const bool vacant = is_vacant(r, s);
        HOLDS(!r.membername[s].empty());
        if (!vacant) filled.push_back(r.membername[s]);
        if (vacant && first_vacant == 0) first_vacant = s;
        // An emptied slot keeps only its talent, which lessons bought for it may still raise.
        HOLDS(r.membertalent[s] >= (vacant ? 0 : 1));
        for (auto [trait, top] : {std::pair{&r.membercharisma, 10},
                                  {&r.memberattitude, 10},
                                  {&r.memberlooks, 10},
                                  {&r.membercreativity, 3}})
            HOLDS(vacant ? (*trait)[s] == 0 : within((*trait)[s], 1, top));
        HOLDS(vacant ? sex.empty() || sex == "0" : sex == "Male" || sex == "Female");
        HOLDS(vacant || (r.listslot[filled.size()] == s && within(r.memberage[s], 17, 22)));
        HOLDS(within(r.memberhappy[s], -very_bad_gigs, 10) && within(r.memberill[s], 0, 10));
        HOLDS(r.memberfriction[s] >= 0 && within(r.practice[s], 0, 3));
    }
    HOLDS(within(r.vacancy, 1, kMemberSlots) && (!first_vacant || r.vacancy == first_vacant));
    HOLDS(g.forms.main.members.rows == filled && within(g.main.selectedmember, 0, kMemberSlots));

    HOLDS(within(r.songcount, 0, kSongSlots) && r.nextsong == r.songcount);
    HOLDS(r.songweeks == 10 || within(r.songweeks, 1, 7));
    HOLDS(r.tiredness >= 0 && within(r.bestsong, 0, kSongSlots));
    std::vector<std::string> titles;
    for (int k = 1; k <= kSongSlots; ++k) {
        const bool written = k <= r.songcount;
        if (written) titles.push_back(r.songname[k]);
        HOLDS(r.songname[k].empty() != written && (!written || r.songquality[k] >= 8));
        HOLDS(is_boolean(r.released[k]) && (written || r.released[k] == kFalse));
    }
    HOLDS(g.forms.main.songlist.rows == titles && within(g.main.selectedsong, 0, kSongSlots));

    for (int row = kFirstRivalRow; row <= kChartRows; ++row) {
        HOLDS(!r.chartband[row].empty() && !r.charttitle[row].empty());
        HOLDS(r.chartdemand[row] >= 0 && r.chartfame[row] >= 0 && r.chartlife[row] > 0);
    }
    for (int row = 0; row <= kChartRows; ++row) HOLDS(within(r.chartplace[row], 0, kChartRows));
    for (int i = 0; i < static_cast<int>(r.rivalname.size()); ++i)
        HOLDS(r.rivalname[i].empty() == (i > kChartRows - kFirstRivalRow));

    HOLDS(r.popularity >= -1 && g.main.applicantsseen >= 0);
    HOLDS(within(r.promotion, 0, 4) && within(r.interviewkind, 0, 2));
    HOLDS(is_boolean(r.signed_) && is_boolean(g.main.demosent));
    for (int v = 0; v <= kVenues; ++v)
        HOLDS(is_boolean(r.venueopen[v]) && (v > 0 || r.venueopen[v] == kFalse));
    for (int i = 0; i < static_cast<int>(r.setlist.size()); ++i)
        HOLDS(i >= 1 && i <= 3 ? within(r.setlist[i], 0, kSongSlots) : r.setlist[i] == 0);
    HOLDS(within(g.gig.tracksadded, 0, 3) && within(g.gig.gigvenue, 0, kVenues));
    const double days = r.gamedate - kStartDate;
    HOLDS(days >= 0 && days == static_cast<double>(static_cast<long long>(days) / 7 * 7));

    if (g.ended) return;
    Forms& fs = g.forms;
    HOLDS(fs.messageForm.visible == !g.memos.empty());
    HOLDS(g.game_over || fs.main.enabled == g.memos.empty());
    HOLDS(!g.game_over || (!g.memos.empty() && g.memos.back().ends_game));
    fs.each_form(
        [&](FormState& form) { HOLDS(!g.game_over || &form == &fs.messageForm || !form.enabled); });
    for (const Control* c : {&fs.main.members, &fs.main.songlist, &fs.gig.Combo1})
        HOLDS(within(c->selected, -1, static_cast<long long>(c->rows.size()) - 1));
}

/// Every Integer, Long and Boolean of the game, flattened; Integers are scaled to the width of
/// a Long, so one bound finds a wrap in either.
std::vector<std::int64_t> numbers(Game& g) {
    std::vector<std::int64_t> out;
    for (const Field& f : fields(g))
        for (int i = f.is_array() ? 0 : -1; i <= f.upper; ++i) {
            if (f.type == FieldType::Long) out.push_back(f.at<Long>(i));
            if (f.type == FieldType::Integer || f.type == FieldType::Boolean)
                out.push_back(f.at<Integer>(i) * 65536LL);
        }
    return out;
}

/// Answers every box at random: OK boxes with OK, Yes/No boxes with either, and the name
/// prompts with a name that may well be refused.
struct RandomAnswers final : ScriptedPort {
    explicit RandomAnswers(std::mt19937_64& draw) : pick(draw) {}
    std::mt19937_64& pick;

    Answer msgbox(std::string_view text, Buttons buttons, bool critical) override {
        queue_answer(buttons == Buttons::Ok ? Answer::Ok : (pick() % 2 ? Answer::Yes : Answer::No));
        return ScriptedPort::msgbox(text, buttons, critical);
    }

    std::string inputbox(std::string_view prompt, std::string_view title) override {
        // Cancel, a letter a save can't hold, one letter too long, Western letters that
        // round-trip, and plain names.
        static const char* odd[] = {"", "\xce\xa9mega", nullptr, "Caf\xc3\xa9 \xe2\x82\xac"};
        const auto k = pick() % 20;
        queue_input(k >= 4   ? "Band " + std::to_string(pick() % 1000)
                    : odd[k] ? odd[k]
                             : std::string(127, 'x'));
        return ScriptedPort::inputbox(prompt, title);
    }
};

struct Choice {
    const char* form;
    std::string_view control;
    int index;  ///< array index or list row, -1 for none (below the rows of a list)
    bool dbl;
    double weight;
};

/// Every click a person could make now, and how often a person reaches for it. Next Week is
/// the common click; the clicks that end the program are rare so that games last; a thrifty
/// player seldom spends money on lessons, holidays and promotion; a list's rows share its share.
std::vector<Choice> usable_controls(Game& g, bool thrifty) {
    const double spend = thrifty ? 0.1 : 1;
    const auto weight_of = [&](std::string_view form, std::string_view control) {
        if (control == "command6") return 10.0;
        if (control == "Label4" || control == "exitbtn") return 0.02;
        if (control == "promote") return 0.25 * spend;
        if (control == "label13" || control == "holiday") return spend;
        if (control == "command5" || (form == "Form1" && control == "load")) return 0.4;
        if (form == "savefrm" && control == "back") return 0.5;
        if (form == "gig" && (control == "Command2" || control == "command3")) return 0.2;
        return 1.0;
    };
    std::vector<Choice> out;
    g.forms.each_form([&](FormState& form) {
        form.each([&](Control& c) {
            if (!form.usable() || !c.enabled || !c.visible || c.kind == ControlKind::Label) return;
            const double w = weight_of(form.name, c.name);
            const bool list = c.kind == ControlKind::ListBox;
            if (!list && c.kind != ControlKind::ComboBox)
                return out.push_back({form.name, c.name, c.index, false, w});
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

/// Games played one after another until the weeks run out.
struct Soak {
    std::mt19937_64 pick;
    std::int64_t weeks = 0, clicks = 0, games = 0, gigs = 0, singles = 0, saves = 0, loads = 0;
    std::int64_t very_bad_gigs = 0;  ///< carried over games: a save may be loaded into the next
    std::deque<std::string> trail;   ///< the last clicks, told with a fault

    void play(std::int64_t until) {
        // Ends early should a game take no click.
        for (std::int64_t clicks_before = -1; weeks < until && clicks > clicks_before;) {
            clicks_before = clicks;
            RandomAnswers port(pick);
            Game g(port);
            const bool thrifty = pick() % 2 == 0;
            if (pick() % 2 == 0) write_seasoned_save();
            load_main(g, pick());
            ++games;
            check_state(g, very_bad_gigs);
            for (std::int64_t idle_clicks = 0; !g.ended && weeks < until;) {
                const std::vector<Choice> choices = usable_controls(g, thrifty);
                const auto weights = choices | std::views::transform(&Choice::weight);
                HOLDS(!choices.empty());  // some control takes clicks while the game goes on
                const std::int64_t weeks_before = weeks;
                step(g, choices[std::discrete_distribution<std::size_t>(weights.begin(),
                                                                        weights.end())(pick)]);
                idle_clicks = weeks == weeks_before ? idle_clicks + 1 : 0;
                HOLDS(idle_clicks <= 100'000);  // the calendar moves now and then
            }
        }
    }

    void step(Game& g, const Choice& c) {
        const std::string_view form = c.form, control = c.control;
        const Module1& r = g.rec;
        const Date date_before = r.gamedate;
        const auto happy_before = r.memberhappy;
        const auto released_before = r.released;
        const std::vector<std::int64_t> numbers_before = numbers(g);
        int slot = 0;
        while (slot < kSaveSlots - 1 && !g.forms.savefrm.saveslot[slot].value) ++slot;

        const ClickResult result =
            c.dbl ? dblclick(g, form, control, c.index) : click(g, form, control, c.index);
        ++clicks;
        trail.push_back(std::string(c.dbl ? "dblclick " : "click ") + c.form + "." +
                        std::string(control) + (c.index >= 0 ? " " + std::to_string(c.index) : ""));
        if (trail.size() > 12) trail.pop_front();

        HOLDS(result == ClickResult::Done);  // a control a person could click takes the click
        if (form == "main" && control == "command6" && r.gamedate > date_before)
            weeks += static_cast<std::int64_t>((r.gamedate - date_before) / 7);
        const bool gig_played =
            form == "gig" && control == "command4" && g.forms.thenewspaper.visible;
        gigs += gig_played;
        very_bad_gigs += gig_played && g.gig.gigscore < 20;
        for (int k = 1; k <= kSongSlots; ++k)
            singles += is_true(r.released[k]) - is_true(released_before[k]);
        const bool saved = form == "savefrm" && !g.forms.savefrm.loaded && control == "save";
        const bool loaded = form == "savefrm" && !g.forms.savefrm.loaded && control == "load";
        if (saved || loaded) {
            // A save holds the very game saved and loads back to it; a load holds its file.
            ++(saved ? saves : loads);
            const auto bytes = read_file(slot_file(slot), kSaveBytes + 1);
            HOLDS(bytes && *bytes == save_bytes(r));
            if (saved && r.gamedate >= kFirstDay && r.gamedate <= kLastDay) {
                const auto back = parse_save(*bytes, r);
                HOLDS(back && save_bytes(*back) == *bytes);
            }
        }
        if (!loaded) {
            // Saturating arithmetic stops at the end of a number's width, so a field leaping
            // from near one end to near the other has wrapped.
            HOLDS(r.gamedate >= date_before);
            for (int s = 1; s <= kMemberSlots; ++s)
                HOLDS(gig_played || happy_before[s] < 0 || r.memberhappy[s] >= 0);
            const std::int64_t half = std::numeric_limits<Long>::max() / 2;
            const std::vector<std::int64_t> now = numbers(g);
            for (std::size_t k = 0; k < now.size(); ++k) {
                const std::int64_t was = numbers_before[k], is = now[k];
                HOLDS(!((was > half && is < -half) || (was < -half && is > half)));
            }
        }
        check_state(g, very_bad_gigs);
    }

    /// Puts a seasoned band in the last save slot, for LOAD GAME to reach the weeks of a signed
    /// band with singles out: four trained members, a dozen good songs and money in the bank.
    void write_seasoned_save() {
        ScriptedPort quiet;
        Game old(quiet);
        load_main(old, pick());
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
};

}  // namespace
}  // namespace tourvane

int main(int argc, char** argv) {
    std::uint64_t seed = 1, weeks = 100'000;
    for (int i = 1; i < argc; i += 2) {
        const std::string_view a = argv[i];
        char* end = nullptr;
        const auto n = i + 1 < argc ? std::strtoull(argv[i + 1], &end, 10) : 0;
        if (!end || end == argv[i + 1] || *end || (a != "--seed" && a != "--weeks")) {
            std::cerr << "Usage: tourvane-soak [--seed N] [--weeks N]\nPlays N weeks (default "
                         "100000) of random clicks, game after game; the same seed plays the "
                         "same clicks.\n";
            return 2;
        }
        (a == "--seed" ? seed : weeks) = n;
    }
    // Saves land in the working directory: a fresh folder of its own, removed afterwards, in
    // memory where the system has a memory file system, as each save waits for its disk.
    std::string folder = ::access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp";
    if (!::mkdtemp((folder += "/tourvane-soak-XXXXXX").data())) return 2;
    std::filesystem::current_path(folder);
    tourvane::Soak s;
    s.pick.seed(seed);
    std::string fault;
    try {
        s.play(static_cast<std::int64_t>(weeks));
    } catch (const std::runtime_error& e) {
        fault = "FAULT in game " + std::to_string(s.games) + ", click " + std::to_string(s.clicks) +
                ": " + e.what() + "\n    last clicks:";
        for (const std::string& t : s.trail) fault += " [" + t + "]";
    }
    std::filesystem::current_path("/");
    std::filesystem::remove_all(folder);

    std::cout << "soak: seed " << seed << ", " << s.weeks << " weeks in " << s.games << " games, "
              << s.clicks << " clicks, " << s.gigs << " gigs, " << s.singles << " singles, "
              << s.saves << " saves, " << s.loads << " loads\n";
    const bool passed = fault.empty() && s.weeks >= static_cast<std::int64_t>(weeks);
    std::cout << (passed ? "soak passed: every invariant held after every click\n"
                         : fault + "\nsoak failed\n");
    return passed ? 0 : 1;
}

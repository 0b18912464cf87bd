#include "tests/soak/soak.h"

#include <deque>
#include <memory>
#include <random>
#include <sstream>
#include <string_view>

#include "core/scripted_port.h"
#include "flow/clicks.h"
#include "flow/office.h"
#include "rules/files/record_file.h"
#include "rules/files/save_file.h"
#include "tests/soak/invariants.h"

namespace tourvane::soak {

namespace {

/// Answers every box at random through the scripted port's own queues: OK boxes with OK,
/// Yes/No boxes with either, and the name prompts with a name that may well be refused.
class RandomAnswers final : public ScriptedPort {
  public:
    explicit RandomAnswers(std::mt19937_64& pick) : pick_(pick) {}

    Answer msgbox(std::string_view text, Buttons buttons, bool critical) override {
        queue_answer(buttons == Buttons::Ok ? Answer::Ok
                                            : (pick_() % 2 ? Answer::Yes : Answer::No));
        return ScriptedPort::msgbox(text, buttons, critical);
    }

    std::string inputbox(std::string_view prompt, std::string_view title) override {
        queue_input(random_name());
        return ScriptedPort::inputbox(prompt, title);
    }

  private:
    std::string random_name() {
        switch (pick_() % 20) {
            case 0:
                return "";  // Cancel
            case 1:
                return "\xce\xa9mega";  // a letter a save file can't hold
            case 2:
                return std::string(127, 'x');  // one letter too long for a save file
            case 3:
                return "Caf\xc3\xa9 \xe2\x82\xac";  // Western letters that round-trip
            default:
                return "Band " + std::to_string(pick_() % 1000);
        }
    }

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
/// end the program are rare so that games last, and leaving the gig screen is rarer than the
/// steps of booking a gig. A thrifty player seldom spends money on lessons, holidays and
/// promotion.
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

template <class FormT>
void offer(FormT& form, bool thrifty, std::vector<Choice>& out) {
    if (!form.usable()) return;
    form.each([&](Control& c) {
        if (!c.enabled || !c.visible) return;
        const double w = weight_of(form.name, c.name, thrifty);
        switch (c.kind) {
            case ControlKind::Label:
                return;
            case ControlKind::ListBox:
            case ControlKind::ComboBox: {
                const bool list = c.kind == ControlKind::ListBox;
                if (list) out.push_back({form.name, c.name, -1, true, w / 4});
                const auto rows = static_cast<int>(c.rows.size());
                for (int row = 0; row < rows; ++row) {
                    out.push_back({form.name, c.name, row, false, w / rows});
                    if (list) out.push_back({form.name, c.name, row, true, w / rows});
                }
                return;
            }
            default:
                out.push_back({form.name, c.name, c.index, false, w});
        }
    });
}

/// Every click a person could make now.
std::vector<Choice> usable_controls(Game& g, bool thrifty) {
    std::vector<Choice> out;
    g.forms.each_form([&](auto& form) { offer(form, thrifty, out); });
    return out;
}

const Choice& choose(const std::vector<Choice>& choices, std::mt19937_64& pick) {
    double total = 0;
    for (const Choice& c : choices) total += c.weight;
    double at = std::uniform_real_distribution<double>(0, total)(pick);
    for (const Choice& c : choices) {
        if (at < c.weight) return c;
        at -= c.weight;
    }
    return choices.back();
}

std::string describe(const Choice& c) {
    std::string s = std::string(c.dbl ? "dblclick " : "click ") + c.form + "." + c.control;
    if (c.index >= 0) s += " " + std::to_string(c.index);
    return s;
}

int chosen_slot(const SaveForm& f) {
    for (int i = 0; i < kSaveSlots; ++i)
        if (f.saveslot[i].value) return i;
    return -1;
}

int released_count(const Module1& r) {
    int n = 0;
    for (int k = 1; k <= kSongSlots; ++k) n += is_true(r.released[k]);
    return n;
}

bool calendar_holds(Date d) {
    return d >= kFirstDay && d <= kLastDay;
}

/// One game played to its end, or until the weeks or the patience run out.
class Player {
  public:
    Player(const SoakOptions& options, SoakReport& report, std::mt19937_64& pick, Watch& watch)
        : options_(options), report_(report), pick_(pick), watch_(watch), port_(pick) {}

    void play() {
        thrifty_ = pick_() % 2 == 0;
        if (pick_() % 2 == 0) write_seasoned_save();
        load_main(g_, pick_());
        ++report_.games;
        watch_.start(g_);
        std::vector<std::string> faults;
        check_state(g_, watch_.very_bad_gigs(), faults);
        record(faults);
        std::int64_t idle_clicks = 0;
        while (!g_.ended && !done()) {
            const std::vector<Choice> choices = usable_controls(g_, thrifty_);
            if (choices.empty()) {
                record({"no control takes clicks, yet the program has not ended"});
                return;
            }
            const std::int64_t weeks_before = report_.weeks;
            step(choose(choices, pick_));
            idle_clicks = report_.weeks == weeks_before ? idle_clicks + 1 : 0;
            if (idle_clicks > 100'000) {
                record({"the calendar has stood still for 100000 clicks"});
                return;
            }
        }
    }

  private:
    bool done() const {
        return report_.weeks >= options_.weeks || report_.faults.size() >= options_.max_faults;
    }

    void step(const Choice& c) {
        const std::string_view form = c.form, control = c.control;
        const Date date_before = g_.rec.gamedate;
        const int slot = chosen_slot(g_.forms.savefrm);
        const int singles_before = released_count(g_.rec);

        const ClickResult result =
            c.dbl ? dblclick(g_, form, control, c.index) : click(g_, form, control, c.index);
        ++report_.clicks;
        trail_.push_back(describe(c));
        if (trail_.size() > 12) trail_.pop_front();

        std::vector<std::string> faults;
        if (result != ClickResult::Done)
            faults.push_back("a control a person could click refused the click");

        ClickFacts facts;
        if (form == "main" && control == "command6" && g_.rec.gamedate > date_before)
            report_.weeks += static_cast<std::int64_t>((g_.rec.gamedate - date_before) / 7);
        if (form == "gig" && control == "command4" && g_.forms.thenewspaper.visible) {
            facts.gig_played = true;
            ++report_.gigs;
        }
        if (form == "savefrm" && !g_.forms.savefrm.loaded) {
            if (control == "save") check_saved(slot, faults);
            if (control == "load") {
                facts.loaded = true;
                check_loaded(slot, faults);
            }
        }
        report_.singles += released_count(g_.rec) - singles_before;

        for (std::string& f : watch_.after_click(facts)) faults.push_back(std::move(f));
        record(faults);
    }

    /// A save reads back as the very game saved.
    void check_saved(int slot, std::vector<std::string>& faults) {
        ++report_.saves;
        const auto bytes = read_file(slot_file(slot), kSaveBytes + 1);
        if (!bytes || *bytes != save_bytes(g_.rec)) {
            faults.push_back("the save in slot " + std::to_string(slot) +
                             " does not hold the game just saved");
            return;
        }
        const auto back = parse_save(*bytes, g_.rec);
        if (!calendar_holds(g_.rec.gamedate)) return;  // past 9999 a save can't be loaded
        if (!back || save_bytes(*back) != *bytes)
            faults.push_back("the save in slot " + std::to_string(slot) + " does not load back");
    }

    /// A loaded game saves again to the very bytes it was loaded from.
    void check_loaded(int slot, std::vector<std::string>& faults) {
        ++report_.loads;
        const auto bytes = read_file(slot_file(slot), kSaveBytes + 1);
        if (!bytes || *bytes != save_bytes(g_.rec))
            faults.push_back("the game loaded from slot " + std::to_string(slot) +
                             " differs from its file");
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
            r.memberage[s] = 20;
            r.memberhappy[s] = 8;
            r.membertalent[s] = 9;
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
        r.signed_ = kTrue;
        r.popularity = 1500;
        r.cash = 40'000;
        r.gamedate = kStartDate + 7 * 150;
        std::string reason;
        write_save(r, slot_file(kSaveSlots - 1), reason);
    }

    void record(const std::vector<std::string>& faults) {
        for (const std::string& f : faults) {
            if (report_.faults.size() >= options_.max_faults) return;
            std::ostringstream line;
            line << "game " << report_.games << ", click " << report_.clicks << ", week "
                 << report_.weeks << ": " << f << "\n    last clicks:";
            for (const std::string& t : trail_) line << " [" << t << "]";
            report_.faults.push_back(line.str());
        }
    }

    const SoakOptions& options_;
    SoakReport& report_;
    std::mt19937_64& pick_;
    Watch& watch_;
    RandomAnswers port_;
    Game g_{port_};
    bool thrifty_ = false;
    std::deque<std::string> trail_;
};

}  // namespace

SoakReport run_soak(const SoakOptions& options) {
    SoakReport report;
    std::mt19937_64 pick(options.seed);
    Watch watch;
    while (report.weeks < options.weeks && report.faults.size() < options.max_faults) {
        const std::int64_t clicks_before = report.clicks;
        auto player = std::make_unique<Player>(options, report, pick, watch);
        player->play();
        if (report.clicks == clicks_before) break;  // a game that takes no click can't go on
    }
    report.very_bad_gigs = watch.very_bad_gigs();
    return report;
}

}  // namespace tourvane::soak

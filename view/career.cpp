#include "view/career.h"

#include "core/ui.h"
#include "view/keys.h"

namespace tourvane {

namespace {

std::string on(Date day) {
    return " on " + format_date(day);
}

std::string count(long long n, const char* one, const char* many) {
    return std::to_string(n) + " " + (n == 1 ? one : many);
}

}  // namespace

std::vector<SummaryLine> summary_lines(const CareerSummary& s) {
    const CareerTally& t = s.tally;
    std::vector<SummaryLine> lines{
        {"Band", s.band},
        {"Boss", s.boss},
        {"First day", format_date(s.first_day)},
        {"Last day", format_date(s.last_day)},
        {"Weeks lasted", std::to_string(s.weeks)},
        {"Peak cash", format_cash(s.peak_cash) + on(s.peak_cash_date)},
        {"Peak popularity", std::to_string(s.peak_popularity) + on(s.peak_popularity_date)},
        {"Best chart place", t.best_place == 0 ? "never in the chart"
                                               : std::to_string(t.best_place) + " with " +
                                                     t.best_song + on(t.best_place_date)},
        {"Singles released", std::to_string(s.singles)},
        {"Gigs played", std::to_string(t.gigs)},
    };
    if (t.gigs > 0)
        lines.push_back({"Best gig", t.best_gig.venue + on(t.best_gig.date) + ": " +
                                         count(t.best_gig.attendance, "person", "people") + ", " +
                                         format_pounds(t.best_gig.profit) + " profit"});
    lines.push_back({"Demos sent", std::to_string(t.demos)});
    lines.push_back({"Members hired", std::to_string(t.hired)});
    lines.push_back({"Members lost", std::to_string(t.lost)});
    lines.push_back(
        {"The end", s.bankrupt ? "out of cash: the wages could not be paid" : "still playing"});
    return lines;
}

std::string hall_line(const CareerSummary& s) {
    std::string line = s.band + " (" + s.boss + "), " + count(s.weeks, "week", "weeks");
    if (s.tally.best_place > 0) line += ", best chart place " + std::to_string(s.tally.best_place);
    return line;
}

std::string hall_hint() {
    return "Press " + key_label(key_for("Form1", KeyAction::OpenHall)) +
           " for the hall of fame of careers that have ended.";
}

std::string carry_on_offer(const AutosavedCareer& saved) {
    using enum AutosavedCareer::State;
    if (saved.state == None) return {};
    if (saved.state == Damaged) return saved.text;
    return "Your last career was kept when Tourvane closed: " + saved.text + ". Press " +
           key_label(key_for("Form1", KeyAction::CarryOn)) + " to carry on with it.";
}

}  // namespace tourvane

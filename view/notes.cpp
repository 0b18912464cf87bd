#include "view/notes.h"

#include <algorithm>
#include <string_view>

#include "core/ui.h"
#include "rules/band/training.h"
#include "rules/music/label.h"
#include "rules/week/events.h"
#include "rules/week/turn.h"

namespace tourvane {

namespace {

/// Weeks of history the popularity's change is told over.
constexpr std::size_t kRecentWeeks = 4;

constexpr const char* kLevelNames[5] = {"None", "None", "Small", "Medium", "High"};

/// The promotion level in force, 0 to 4; one the record can't hold counts as none.
int promotion_level(const Module1& r) {
    return in_bounds(kPromotionPrice, r.promotion) ? r.promotion : 0;
}

std::string pounds(long long amount) {
    return format_pounds(amount);
}

std::string weeks(long long n) {
    return std::to_string(n) + (n == 1 ? " week" : " weeks");
}

/// A promotion the cash in hand can't pay, and what then happens to Next Week.
std::string short_promotion(const Module1& r) {
    const int level = r.promotion;
    if (level == 2 && r.cash < 0)
        return " With the cash below £0, Small promotion can't be paid: Next Week passes no time "
               "until you choose another level.";
    if (level == 3 && r.cash < kPromotionPrice[3])
        return " With less than £250, Medium promotion can't be paid: Next Week passes no time "
               "until you choose another level.";
    if (level == 4 && r.cash < kPromotionPrice[4])
        return " With less than £400, High promotion can't be paid and is skipped this week.";
    return {};
}

std::string venue_note(const Game& g, const Control& c) {
    const Module1& r = g.rec;
    const int venue = c.index + 1;
    if (venue < 1 || venue > kVenues) return {};
    return c.caption + " asks for a popularity of " + std::to_string(r.venuefame[venue]) +
           "; the band's is " + std::to_string(r.popularity) + ".";
}

std::string song_row(const Module1& r, int slot) {
    const std::string& title = r.songname[slot];
    return std::to_string(r.songquality[slot]) + " · " + title;
}

}  // namespace

Outgoings outgoings(const Game& g) {
    const Module1& r = g.rec;
    Outgoings out;
    for (int slot = 1; slot <= kMemberSlots; ++slot)
        if (!is_vacant(r, slot)) ++out.members;
    out.wages_low = out.members;
    out.wages_high = static_cast<long long>(out.members) * kTopWage;
    out.promotion = kPromotionPrice[promotion_level(r)];
    out.low = out.wages_low + out.promotion;
    out.high = out.wages_high + out.promotion;
    if (out.high > 0) out.weeks = r.cash < 0 ? 0 : r.cash / out.high;
    return out;
}

std::string cash_note(const Game& g) {
    const Module1& r = g.rec;
    const Outgoings out = outgoings(g);
    if (out.high == 0)
        return "Nothing goes out this week: nobody is hired and no promotion is bought.";
    std::string text = "This week's outgoings: ";
    if (out.members > 0)
        text += "wages of £1 to £" + std::to_string(kTopWage) +
                (out.members == 1 ? std::string(" for the one member")
                                  : " for each of the " + std::to_string(out.members) + " members");
    if (out.members > 0 && out.promotion > 0) text += " and ";
    if (out.promotion > 0)
        text += pounds(out.promotion) + " for " + kLevelNames[promotion_level(r)] + " promotion";
    text += out.low == out.high ? ": " + pounds(out.high) + " in all."
                                : ": " + pounds(out.low) + " to " + pounds(out.high) + " in all.";
    if (out.weeks == 0)
        text += " At that rate the cash doesn't last the week.";
    else
        text += " At that rate the cash lasts at least " + weeks(out.weeks) + ".";
    return text + short_promotion(r);
}

std::string popularity_note(const Game& g) {
    const Module1& r = g.rec;
    std::string text = "Popularity " + std::to_string(r.popularity);
    const std::vector<WeekSample>& h = g.history;
    if (h.empty()) {
        text += ": no week played yet.";
    } else {
        const std::size_t back = std::min(kRecentWeeks, h.size());
        const long long change = r.popularity - h[h.size() - back].popularity;
        text += change == 0  ? ", unchanged"
                : change > 0 ? ", up " + std::to_string(change)
                             : ", down " + std::to_string(-change);
        text += back == 1 ? " since the last week played." : " over the last " + weeks(back) + ".";
    }
    return text + " Venues ask for " + std::to_string(r.venuefame[1]) + " to " +
           std::to_string(r.venuefame[kVenues]) + ", invitations come above " +
           std::to_string(kInvitationPopularity) + ", and the record label signs a band of " +
           std::to_string(kSignPopularity) + " or more.";
}

std::string control_note(const Game& g, const FormState& form, const Control& c) {
    const std::string_view f = form.name, name = c.name;
    if (f == "main") {
        if (name == "txtcash") return cash_note(g);
        if (name == "txtname") return popularity_note(g);
        if (name == "label13")
            return pounds(kLessonPrice) + " a lesson for the member picked in the band list.";
        if (name == "holiday")
            return "Two weeks off for " + pounds(kHolidayPrice) +
                   ": every member's happiness rises by " + std::to_string(kHolidayCheer) + ".";
        if (name == "songlist")
            return "The number before each title is the song's quality. The record label wants "
                   "more than " +
                   std::to_string(kSignQuality) + ".";
    }
    if (f == "gig" && name == "location") return venue_note(g, c);
    return {};
}

std::vector<std::string> shown_rows(const Game& g, const FormState& form, const Control& c) {
    const bool songs = (std::string_view(form.name) == "main" && c.name == "songlist") ||
                       (std::string_view(form.name) == "gig" && c.name == "Combo1");
    if (!songs) return c.rows;
    std::vector<std::string> rows;
    rows.reserve(c.rows.size());
    for (std::size_t i = 0; i < c.rows.size(); ++i) {
        const int slot = static_cast<int>(i) + 1;
        rows.push_back(slot <= kSongSlots && g.rec.songname[slot] == c.rows[i]
                           ? song_row(g.rec, slot)
                           : c.rows[i]);
    }
    return rows;
}

std::string diary_note(const DiaryEntry& e) {
    if (!is_demo_verdict(e.text)) return {};
    return "The label rejects a song of quality below " + std::to_string(kRejectQuality) +
           " and signs a band only for a song above " + std::to_string(kSignQuality) +
           " with a popularity of " + std::to_string(kSignPopularity) + " or more.";
}

}  // namespace tourvane

#include "view/reasons.h"

#include <string_view>

#include "core/diary.h"
#include "rules/week/events.h"

namespace tourvane {

namespace {

/// The turn opens gigs, the chart and applicants only in its last phases, which a demo the
/// label rejects cuts off.
constexpr std::string_view kWholeWeek =
    " once Next Week plays a week to its end (a rejected demo ends a week early).";

bool gig_played_since_load(const Game& g) {
    for (std::size_t i = g.diary_at_load; i < g.diary.size(); ++i)
        if (g.diary[i].from == kReportSender) return true;
    return false;
}

std::string interview_reason(const Game& g) {
    const Module1& r = g.rec;
    if (r.interviewkind != 0) {
        if (week_played_since_load(g)) return "The band has given this week's interview.";
        return "The invitation in the loaded game came before it was saved and can't be taken up "
               "now. Next Week may bring another.";
    }
    const bool full = band_is_full(r);
    const bool known = r.popularity > kInvitationPopularity;
    const std::string popular = "more popular than " + std::to_string(kInvitationPopularity);
    if (!full && !known)
        return "No invitation this week: invitations come only to a full band " + popular + ".";
    if (!full) return "No invitation this week: invitations come only to a full band.";
    if (!known) return "No invitation this week: the band must be " + popular + " to be invited.";
    return "No invitation this week.";
}

std::string office_reason(const Game& g, std::string_view name) {
    const Module1& r = g.rec;
    if (name == "command4") {
        const char* what = gig_played_since_load(g)
                               ? "The band has played its gig. Gigs open again"
                               : "A gig played before this game was loaded closed gigs. They "
                                 "open again";
        return what + std::string(kWholeWeek);
    }
    if (name == "secret") return "The chart comes out" + std::string(kWholeWeek);
    if (name == "interview") return interview_reason(g);
    if (name == "hire" || name == "dismiss") {
        if (band_is_full(r)) return "The band is full: there is no place for an applicant.";
        return "No applicants are left this week. More come" + std::string(kWholeWeek);
    }
    if (name == "Command2") return "Pick a member in the band list first.";
    return {};
}

std::string gig_reason(const Game& g, const Control& c) {
    const std::string_view name = c.name;
    if (name == "location") {
        const int venue = c.index + 1;
        const std::string& venue_name =
            venue >= 1 && venue <= kVenues ? g.rec.venuename[venue] : std::string();
        return (venue_name.empty() ? std::string("This venue") : venue_name) +
               " is closed this week.";
    }
    if (name == "command1") return "Choose a venue first.";
    if (name == "Combo1" || name == "command3" || name == "command4") {
        if (g.forms.gig.command1.enabled)
            return "APPLY to the venue first: the tracks open once it takes the band.";
        return "Choose a venue and APPLY first.";
    }
    return {};
}

}  // namespace

bool week_played_since_load(const Game& g) {
    const int stretch = g.segments.empty() ? 0 : static_cast<int>(g.segments.size()) - 1;
    return !g.history.empty() && g.history.back().segment == stretch;
}

std::string disabled_reason(const Game& g, const FormState& form, const Control& c) {
    if (c.enabled) return {};
    const std::string_view f = form.name;
    if (f == "main") return office_reason(g, c.name);
    if (f == "gig") return gig_reason(g, c);
    return {};
}

}  // namespace tourvane

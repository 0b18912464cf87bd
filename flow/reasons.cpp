#include "flow/reasons.h"

#include <string_view>

namespace tourvane {

namespace {

/// Invitations to interviews come only to a band more popular than this.
constexpr int kInvitedAbove = 200;

std::string office_reason(const Game& g, std::string_view name) {
    const Module1& r = g.rec;
    if (name == "command4")
        return "The band has played its gig this week. Next Week opens gigs again.";
    if (name == "secret") return "The chart comes out once a week has been played with Next Week.";
    if (name == "interview") {
        if (r.interviewkind != 0) return "The band has given this week's interview.";
        if (r.popularity <= kInvitedAbove)
            return "No invitation this week: the band must be better known to be invited.";
        return "No invitation this week.";
    }
    if (name == "hire" || name == "dismiss") {
        if (band_is_full(r)) return "The band is full: there is no place for an applicant.";
        return "No applicants are left this week. More come after Next Week.";
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

std::string disabled_reason(const Game& g, const FormState& form, const Control& c) {
    if (c.enabled) return {};
    const std::string_view f = form.name;
    if (f == "main") return office_reason(g, c.name);
    if (f == "gig") return gig_reason(g, c);
    return {};
}

}  // namespace tourvane

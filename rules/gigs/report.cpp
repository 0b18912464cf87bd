#include "rules/gigs/report.h"

#include <array>
#include <string>

#include "core/diary.h"
#include "core/forms.h"
#include "core/ui.h"
#include "rules/band/applicants.h"
#include "rules/gigs/booking.h"

namespace tourvane {

namespace {

/// Below this score one member takes the gig badly.
constexpr int kVeryBadGig = 20;

/// Draws 1 to n with even odds.
int draw(Game& g, int n) {
    return static_cast<int>(Int(g.rnd() * n)) + 1;
}

/// The review's opening sentence for a score, in one of two wordings. "Lets hope" and "a
/// exceptional" are the game's own words, kept as they stand.
std::string first_sentence(const std::string& band, int score, int wording) {
    const bool first = wording == 1;
    if (score < 50)
        return first ? band +
                           " played a terrible set last night. Lets hope they improve vastly in "
                           "the near future, or there may be no future for them!"
                     : "The band " + band +
                           " were the target of an angry crowd last night as their poor "
                           "performance left many people asking why they even turned up!";
    if (score < 150)
        return first ? band +
                           " played a poor gig last night although there were flashes of promise "
                           "from certain individuals."
                     : "The band " + band +
                           " performed a less than average gig last night, prompting discussion "
                           "about their future.";
    if (score < 200)
        return first ? band +
                           " played a pretty good gig last night, although many agreed they are "
                           "far off the finished article."
                     : "New band " + band +
                           " performed an average gig last night, nothing special but the fans "
                           "were happy.";
    return first ? band + " played an excellent gig last night, the crowd loved every minute."
                 : "New band " + band + " performed a exceptional gig last night.";
}

/// The closing phrases, as the game has them: "recieved" is its own spelling, and the second
/// phrase has no full stop.
constexpr std::array<const char*, 5> kClosingPhrases{
    " which went down a storm!",           " which appeared to strike a rapport with the crowd",
    " which really fired up the crowd.",   " which recieved a good response from the crowd.",
    " which had the whole crowd dancing!",
};

}  // namespace

std::string report_for_diary(const Module1& r, const std::string& review) {
    const std::string crowd = r.attendance == 0   ? "nobody"
                              : r.attendance == 1 ? "1 person"
                                                  : std::to_string(r.attendance) + " people";
    const std::string money = r.gigprofit > 0   ? "made " + format_pounds(r.gigprofit)
                              : r.gigprofit < 0 ? "lost " + format_pounds(-r.gigprofit)
                                                : "broke even";
    return review + " The gig drew " + crowd + " and " + money + ".";
}

void newspaper(Game& g) {
    Module1& r = g.rec;
    if (g.gig.gigscore < kVeryBadGig) {
        const int m = draw(g, kMemberSlots);
        add(r.memberhappy[m], -1);
        MsgBox(g, r.membername[m] + " was extremely unhappy with the bands performance!");
    }
    r.newstext = first_sentence(r.bandname, g.gig.gigscore, draw(g, 2));
    unload(g.forms.gig);
    load_thenewspaper(g);
    note_in_diary(g, kReportSender, report_for_diary(r, g.forms.thenewspaper.txtnews.caption));
    g.forms.main.command4.enabled = false;
    g.forms.thenewspaper.visible = true;
}

void load_thenewspaper(Game& g) {
    const Module1& r = g.rec;
    NewspaperForm& f = g.forms.thenewspaper;
    f.loaded = true;
    f.txtnews.caption =
        r.newstext + " The best song of the gig was " + r.songname[song_slot_or_none(r.bestsong)];
    f.txtattend.caption = std::to_string(r.attendance);
    f.txtprofit.caption = format_pounds(r.gigprofit);
    f.txtnews.caption += kClosingPhrases[draw(g, static_cast<int>(kClosingPhrases.size())) - 1];
}

void thenewspaper_Label2(Game& g) {
    unload(g.forms.thenewspaper);
    update(g);
    g.forms.main.visible = true;
}

}  // namespace tourvane

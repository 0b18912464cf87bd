// Why a control is grey, worked out from the game.

#include <functional>

#include "flow/reasons.h"
#include "test_game.h"

namespace tourvane {
namespace {

using testing::TestGame;

TEST(Reasons, EachDisabledControlSaysWhyFromTheGame) {
    // One game, prepared step by step; each row's step runs before its control is asked.
    TestGame t;
    t.new_game();
    const std::string none = "No applicants are left this week. More come after Next Week.";
    const std::string apply = "APPLY to the venue first: the tracks open once it takes the band.";
    const std::string unknown =
        "No invitation this week: the band must be better known to be invited.";
    const std::string full = "The band is full: there is no place for an applicant.";
    auto gig = [&] {
        t.ok_memos(), t.songs({10, 20, 30}), t.r.venueopen = {0, -1, 0, -1, -1, -1};
        click(t.g, "main", "command4");
    };
    const struct {
        std::function<void()> step;
        std::string control, reason;  // "form.control" or "form.control index"
    } rows[] = {
        {{}, "main.secret", "The chart comes out once a week has been played with Next Week."},
        {[&] { t.r.popularity = 200; }, "main.interview", unknown},
        {{}, "main.Command2", "Pick a member in the band list first."},
        {[&] { t.r.popularity = 201; }, "main.interview", "No invitation this week."},
        {[&] { t.r.interviewkind = 2; }, "main.interview",
         "The band has given this week's interview."},
        {[&] { t.g.main.applicantsseen = 3, click(t.g, "main", "dismiss"); }, "main.hire", none},
        {{}, "main.dismiss", none},
        {[&] { t.full_band(), update(t.g); }, "main.hire", full},
        {gig, "gig.location 1", "The Queens Head is closed this week."},
        {{}, "gig.location 0", ""},
        {{}, "gig.command1", "Choose a venue first."},
        {{}, "gig.Combo1", "Choose a venue and APPLY first."},
        {[&] { click(t.g, "gig", "location", 0); }, "gig.command4", apply},
        {{}, "gig.command3", apply},
    };
    for (const auto& row : rows) {
        if (row.step) row.step();
        const auto dot = row.control.find('.'), blank = row.control.find(' ');
        const std::string form = row.control.substr(0, dot);
        const Control* c = find_control(t.g, form, row.control.substr(dot + 1, blank - dot - 1),
                                        blank == std::string::npos ? -1 : row.control.back() - '0');
        ASSERT_TRUE(c) << row.control;
        EXPECT_EQ(disabled_reason(t.g, *find_form(t.g, form), *c), row.reason) << row.control;
    }
}

}  // namespace
}  // namespace tourvane

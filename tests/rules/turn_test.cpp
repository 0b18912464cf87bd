// The office's labels and Next Week: the turn's order, early ends, promotion prices and wages.
#include "rules/week/turn.h"
#include "test_game.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::str;
using testing::TestGame;

TEST(Office, TheLabelsOfUpdate) {
    TestGame t;
    t.new_game(" ", "Jo");  // one blank is a name
    t.r.cash = -147, t.r.gamedate = 37135 + 122;
    update(t.g);
    const OfficeForm& f = t.g.forms.main;
    EXPECT_EQ(str(f.txtname.caption, f.txtdate.caption, f.txtcash.caption),
              "Jo's Office 01/01/2002 £ -147");
}

// An empty band pays no wages; its popularity of 0 is floored by the events before the decay.
// A full band's wages of 1 each: equal to the cash they leave nothing, one more ends the game,
// and nothing comes after the end's memo.
TEST(Turn, PromotionPricesWagesAndTheEarlyEndsOfShortMoney) {
    const std::string none = "We can't afford any promotion this week.";
    const std::string tight =
        "Sorry, Boss. Cash is a bit tight this week so we can't afford any promotion.";
    const std::string broke =
        "Bad new, Boss. We're out of cash, and that means we're out of a job!";
    const struct {
        int level, cash;
        bool band;
        std::string after, memo;  // cash, popularity, date, game over, Music Chart
    } cases[] = {
        {1, -1, 0, "-1 0 37135 0 0", ""},       {1, 0, 0, "-100 3 37142 1 0", broke},
        {2, 249, 0, "249 0 37135 0 0", none},   {2, 250, 0, "0 3 37142 0 1", ""},
        {3, 399, 0, "399 -1 37142 0 1", tight}, {3, 400, 0, "0 4 37142 0 1", ""},
        {0, 4, 1, "0 -1 37142 0 1", ""},        {0, 3, 1, "3 0 37142 1 0", broke},
    };
    for (const auto& c : cases) {
        TestGame t;
        t.new_game().r.cash = c.cash;
        if (c.band) t.full_band(), t.week_start(), t.week_end(false);
        click(t.g, "main", "promote", c.level);
        command6(t.g);
        EXPECT_EQ(t.memos(), c.memo.empty() ? Lines{} : Lines{memo("Dave", c.memo)}) << c.cash;
        if (t.r.gamedate == 37135.0) t.ok_memos(), command6(t.g);  // again: still no time
        EXPECT_EQ(str(t.r.cash, t.r.popularity, t.r.gamedate, t.g.game_over,
                      t.g.forms.main.secret.enabled),
                  c.after)
            << c.cash;
        if (!c.band || c.memo.empty()) continue;
        message(t.g, "late", "Dave");
        EXPECT_EQ(
            str(t.g.memos.size(), click(t.g, "main", "command6") == ClickResult::NotUsableNow),
            "1 1");
        click(t.g, "messageForm", "command1");
        EXPECT_TRUE(t.g.ended);
    }
}

TEST(Turn, DateVenuesResetsAndTheSongClock) {
    TestGame t;
    t.new_game();
    for (int v : {1, 2, 1, 2, 1}) t.pick(v, 2);  // venues 1, 3 and 5 open
    t.r.interviewkind = 2, t.g.forms.main.interview.enabled = true, t.g.main.applicantsseen = 6;
    t.r.tiredness = t.r.memberill[2] = 1;  // counted down in every slot, vacant or not
    command6(t.g);
    const Module1& r = t.r;
    EXPECT_EQ(str(r.venueopen[1], r.venueopen[2], r.venueopen[3], r.venueopen[4], r.venueopen[5],
                  r.interviewkind, t.g.forms.main.interview.enabled, t.g.main.applicantsseen,
                  r.tiredness, r.memberill[2], r.songweeks, t.g.forms.main.txtdate.caption),
              "-1 0 -1 0 -1 0 0 0 0 0 10 08/09/2001");  // the song clock stands at 10
    t.r.songweeks = 5;
    command6(t.g);
    EXPECT_EQ(t.r.songweeks, 4);
}

TEST(Turn, PracticeQuestionsAndTheUnhappyMember) {
    TestGame t;
    t.new_game().full_band();
    t.r.memberhappy[3] = 1;
    t.yes();
    t.picks({{2, 4}, {1, 2}});  // the guitarist gains one point
    command6(t.g);
    EXPECT_EQ(str(t.r.practice[2], t.r.tiredness), "1 1");  // 2 from practice, 1 off at once
    EXPECT_EQ(t.memos().front(), memo("Steven", "Cy Low is unhappy."));
    t.ok_memos();
    t.yes();
    t.no();  // tired: not this week
    command6(t.g);
    EXPECT_EQ(t.take()[1], testing::yesno("The band is tired, make them practise anyway?", false));
    EXPECT_EQ(str(t.r.practice[2] + t.r.tiredness, t.r.membername[3]), "1 Cy Low");
}

}  // namespace
}  // namespace tourvane

// The office and Next Week: the start-up, the office's labels, and the turn's order, early
// ends, promotion prices and wages.
#include "rules/week/turn.h"
#include "test_game.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::str;
using testing::TestGame;

const std::string kBroke = "Bad new, Boss. We're out of cash, and that means we're out of a job!";

TEST(Office, StartUpAndTheLabelsOfUpdate) {
    TestGame t;
    EXPECT_EQ(str(t.r.cash, t.r.songweeks, t.r.membername[4], t.r.malename[1] + t.r.surname[1]),
              "3000 10 None Aaron Johnson");
    t.new_game(" ", "Jo");  // one blank is a name
    t.r.cash = -147, t.r.gamedate = 37135 + 122;
    update(t.g);
    const OfficeForm& f = t.g.forms.main;
    EXPECT_EQ(str(f.txtname.caption, f.txtdate.caption, f.txtcash.caption),
              "Jo's Office 01/01/2002 £ -147");
}

// An empty band pays no wages; its popularity of 0 is floored by the events before the decay.
TEST(Turn, PromotionPricesAndTheEarlyEndsOfShortMoney) {
    const std::string none = "We can't afford any promotion this week.";
    const std::string tight =
        "Sorry, Boss. Cash is a bit tight this week so we can't afford any promotion.";
    const struct {
        int level, cash;
        std::string after, memo;  // cash, popularity, date, game over, Music Chart
    } cases[] = {
        {1, -1, "-1 0 37135 0 0", ""},       {1, 50, "-50 3 37142 1 0", kBroke},
        {2, 249, "249 0 37135 0 0", none},   {2, 250, "0 3 37142 0 1", ""},
        {3, 399, "399 -1 37142 0 1", tight}, {3, 400, "0 4 37142 0 1", ""},
        {0, 0, "0 -1 37142 0 1", ""},
    };
    for (const auto& c : cases) {
        TestGame t;
        t.new_game().r.cash = c.cash;
        click(t.g, "main", "promote", c.level);
        command6(t.g);
        EXPECT_EQ(t.memos(), c.memo.empty() ? Lines{} : Lines{memo("Dave", c.memo)}) << c.cash;
        t.ok_memos();
        if (t.r.gamedate == 37135.0) command6(t.g);  // an early end again: still no time
        EXPECT_EQ(str(t.r.cash, t.r.popularity, t.r.gamedate, t.g.game_over,
                      t.g.forms.main.secret.enabled),
                  c.after);
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
    EXPECT_EQ(str(r.venueopen[1], r.venueopen[2], r.venueopen[3], r.venueopen[4], r.venueopen[5]),
              "-1 0 -1 0 -1");
    EXPECT_EQ(str(r.interviewkind, t.g.forms.main.interview.enabled, t.g.main.applicantsseen,
                  r.tiredness, r.memberill[2], r.songweeks, t.g.forms.main.txtdate.caption),
              "0 0 0 0 0 10 08/09/2001");  // the song clock stands at 10
    t.r.songweeks = 5;
    command6(t.g);
    EXPECT_EQ(t.r.songweeks, 4);
}

TEST(Turn, WagesEqualToCashLeaveNothingOneMoreEndsTheGameAndItsMemoIsTheLast) {
    for (int cash : {10, 9}) {
        TestGame t;
        t.new_game().full_band();
        t.r.cash = static_cast<Long>(cash);
        t.no();
        t.picks({{3, 3}, {3, 3}, {3, 3}, {1, 3}});
        command6(t.g);
        message(t.g, "late", "Dave");
        EXPECT_EQ(str(t.r.cash, t.r.gamedate, t.g.game_over, t.g.memos.size()),
                  cash == 10 ? "0 37142 0 1" : "9 37142 1 1");  // the date moves first
        EXPECT_EQ(click(t.g, "main", "command6"), ClickResult::NotUsableNow);
        click(t.g, "messageForm", "command1");
        EXPECT_EQ(t.g.ended, cash == 9);
    }
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
    EXPECT_EQ(t.r.practice[2] + t.r.tiredness, 1);
    EXPECT_EQ(t.r.membername[3], "Cy Low");  // an unhappy member never leaves
}

}  // namespace
}  // namespace tourvane

// The office and Next Week: start-up, NEW GAME, memos, the turn's early ends, promotion, wages.
#include "week/turn.h"
#include "test_game.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::TestGame;

const std::string kBroke = "Bad new, Boss. We're out of cash, and that means we're out of a job!";

TEST(Office, StartUpNewGameAndItsRefusals) {
    TestGame t;
    EXPECT_EQ(t.r.cash, 3000);
    EXPECT_EQ(t.r.songweeks, 10);
    EXPECT_EQ(t.r.membername[4], "None");
    EXPECT_EQ(t.r.malename[1] + t.r.surname[1], "Aaron Johnson");
    EXPECT_FALSE(t.g.forms.main.visible);
    t.port.queue_input("");
    click(t.g, "Form1", "New");
    EXPECT_EQ(t.take().back(), "msgbox ok critical \"Invalid Band Name.\" -> ok");
    t.port.queue_input("The Wasps");
    click(t.g, "Form1", "New");  // no player's name
    EXPECT_EQ(t.take().back(), "msgbox ok critical \"Invalid Player Name.\" -> ok");
    EXPECT_TRUE(t.g.forms.Form1.visible);
    t.new_game(" ", "Jo");  // one blank is a name
    EXPECT_FALSE(t.g.forms.Form1.visible);
    const OfficeForm& f = t.g.forms.main;
    EXPECT_EQ(f.txtname.caption + f.txtdate.caption + f.txtcash.caption,
              "Jo's Office01/09/2001£ 3000");
    t.r.cash = -147;
    t.r.gamedate = 37135 + 122;
    update(t.g);
    EXPECT_EQ(f.txtdate.caption + f.txtcash.caption, "01/01/2002£ -147");
}

TEST(Office, QuitAsksFirstAndExitOnTheTitleDoesNot) {
    TestGame t;
    click(t.g, "Form1", "Label4");
    EXPECT_TRUE(t.g.ended && t.take().empty());
    TestGame u;
    u.new_game().no();
    click(u.g, "main", "exitbtn");
    EXPECT_FALSE(u.g.ended);
    u.yes();
    click(u.g, "main", "exitbtn");
    EXPECT_TRUE(u.g.ended);
}

TEST(Memos, FollowOneAnotherAndHoldTheOfficeUntilTheLastOk) {
    TestGame t;
    t.new_game();
    message(t.g, "first", "Dave");
    message(t.g, "second", "Mona");
    const MemoForm& m = t.g.forms.messageForm;
    EXPECT_EQ(m.thetxt.caption + m.txtTo.caption, "firstSam");
    EXPECT_EQ(click(t.g, "main", "command6"), ClickResult::Ignored);
    click(t.g, "messageForm", "command1");
    EXPECT_EQ(m.thetxt.caption + m.txtFrom.caption, "secondMona");
    EXPECT_FALSE(t.g.forms.main.enabled);
    click(t.g, "messageForm", "command1");
    EXPECT_FALSE(m.loaded);
    EXPECT_TRUE(t.g.forms.main.enabled);
}

// An empty band pays no wages; its popularity of 0 is floored by the events before the decay.
TEST(Turn, PromotionPricesAndTheEarlyEndsOfShortMoney) {
    const std::string none = "We can't afford any promotion this week.";
    const std::string tight =
        "Sorry, Boss. Cash is a bit tight this week so we can't afford any promotion.";
    const struct {
        int level, cash, cash_after, popularity;
        bool week;
        std::string memo;
    } cases[] = {
        {1, -1, -1, 0, false, ""}, {1, 50, -50, 3, true, kBroke},  {2, 249, 249, 0, false, none},
        {2, 250, 0, 3, true, ""},  {3, 399, 399, -1, true, tight}, {3, 400, 0, 4, true, ""},
        {0, 0, 0, -1, true, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.level << " at " << c.cash);
        TestGame t;
        t.new_game().r.cash = c.cash;
        click(t.g, "main", "promote", c.level);
        command6(t.g);
        EXPECT_EQ(t.memos(), c.memo.empty() ? Lines{} : Lines{memo("Dave", c.memo)});
        EXPECT_EQ(t.r.cash, c.cash_after);
        EXPECT_EQ(t.r.popularity, c.popularity);
        EXPECT_EQ(t.r.gamedate, c.week ? 37142.0 : 37135.0);
        EXPECT_EQ(t.g.game_over, c.memo == kBroke);
        EXPECT_EQ(t.g.forms.main.secret.enabled, c.week && !t.g.game_over);
        t.ok_memos();
        if (!c.week) command6(t.g);  // however often
        EXPECT_EQ(t.r.gamedate, c.week ? 37142.0 : 37135.0);
    }
}

TEST(Turn, DateVenuesResetsAndTheSongClock) {
    TestGame t;
    t.new_game();
    for (int v : {1, 2, 1, 2, 1}) t.pick(v, 2);  // venues 1, 3 and 5 open
    t.r.interviewkind = 2;
    t.g.forms.main.interview.enabled = true;
    t.g.main.applicantsseen = 6;
    t.r.tiredness = 1;
    t.r.memberill[2] = 1;  // counted down in every slot, vacant or not
    command6(t.g);
    EXPECT_EQ(t.g.forms.main.txtdate.caption, "08/09/2001");
    for (int v = 1; v <= 5; ++v) EXPECT_EQ(t.r.venueopen[v], v % 2 ? -1 : 0) << v;
    EXPECT_EQ(t.r.interviewkind + t.r.tiredness + t.r.memberill[2] + t.g.main.applicantsseen, 0);
    EXPECT_FALSE(t.g.forms.main.interview.enabled);
    EXPECT_EQ(t.r.songweeks, 10);  // no song in progress
    t.r.songweeks = 5;
    command6(t.g);
    EXPECT_EQ(t.r.songweeks, 4);
}

TEST(Turn, WagesEqualToCashLeaveNothingAndOneMoreEndsTheGame) {
    for (int cash : {10, 9}) {
        TestGame t;
        t.new_game().full_band();
        t.r.cash = static_cast<Long>(cash);
        t.no();
        t.picks({{3, 3}, {3, 3}, {3, 3}, {1, 3}});
        command6(t.g);
        EXPECT_EQ(t.r.cash, cash == 10 ? 0 : 9);
        EXPECT_EQ(t.r.gamedate, 37142.0);  // the date moves before the wages
        EXPECT_EQ(t.g.game_over, cash == 9);
    }
}

TEST(Turn, NothingFollowsTheMemoThatEndsTheGame) {
    TestGame t;
    t.new_game().full_band();
    t.r.cash = 0;
    t.no();
    command6(t.g);
    message(t.g, "late", "Dave");
    EXPECT_EQ(t.memos(), Lines{memo("Dave", kBroke)});
    EXPECT_EQ(click(t.g, "main", "command6"), ClickResult::Ignored);
    click(t.g, "messageForm", "command1");
    EXPECT_TRUE(t.g.ended);
}

TEST(Turn, PracticeQuestionsAndTheUnhappyMember) {
    TestGame t;
    t.new_game().full_band();
    t.r.memberhappy[3] = 1;
    t.yes();
    t.picks({{2, 4}, {1, 2}});  // the guitarist gains one point
    command6(t.g);
    EXPECT_EQ(t.r.practice[2], 1);
    EXPECT_EQ(t.r.tiredness, 1);  // 2 from practice, 1 off in the same turn
    EXPECT_EQ(t.memos().front(), memo("Steven", "Cy Low is unhappy."));
    t.ok_memos();
    t.yes();
    t.no();  // tired: not this week
    command6(t.g);
    const Lines lines = t.take();
    EXPECT_EQ(lines[1], testing::yesno("The band is tired, make them practise anyway?", false));
    EXPECT_EQ(t.r.practice[2], 1);
    EXPECT_EQ(t.r.membername[3], "Cy Low");  // an unhappy member never leaves
}

}  // namespace
}  // namespace tourvane

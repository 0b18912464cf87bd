// Next Week: the order of the turn, its early ends, promotion, wages and the end of the game.
#include "week/turn.h"
#include "test_game.h"

namespace tourvane {
namespace {

using testing::memo;
using testing::TestGame;

TEST(NewGame, StartsWithTheWorldSetUp) {
    TestGame t;
    EXPECT_EQ(t.r.cash, 3000);
    EXPECT_EQ(t.r.popularity, 0);
    EXPECT_EQ(t.r.songweeks, 10);
    EXPECT_EQ(t.r.gamedate, 37135.0);
    EXPECT_EQ(t.r.membername[0], "");
    for (int s = 1; s <= 4; ++s) EXPECT_EQ(t.r.membername[s], "None");
    for (int v = 1; v <= 5; ++v) EXPECT_EQ(t.r.venueopen[v], 0);
    EXPECT_EQ(t.r.malename[1] + t.r.surname[1], "Aaron Johnson");
    EXPECT_TRUE(t.g.forms.Form1.visible);
    EXPECT_FALSE(t.g.forms.main.visible);
}

TEST(NewGame, RefusesEmptyNamesAndAsksForBothAgain) {
    TestGame t;
    t.port.queue_input("");
    click(t.g, "Form1", "New");
    EXPECT_EQ(t.take().back(), "msgbox ok critical \"Invalid Band Name.\" -> ok");
    t.port.queue_input("The Wasps");
    t.port.queue_input("");
    click(t.g, "Form1", "New");
    EXPECT_EQ(t.take().back(), "msgbox ok critical \"Invalid Player Name.\" -> ok");
    EXPECT_TRUE(t.g.forms.Form1.visible);
    EXPECT_EQ(t.r.bandname, "The Wasps");
    t.new_game(" ", "Jo");  // one blank is a name
    EXPECT_EQ(t.r.bandname, " ");
    EXPECT_TRUE(t.g.forms.main.visible);
    EXPECT_FALSE(t.g.forms.Form1.visible);
    EXPECT_EQ(t.g.forms.main.txtname.caption, "Jo's Office");
    EXPECT_EQ(t.g.forms.main.txtdate.caption, "01/09/2001");
    EXPECT_EQ(t.g.forms.main.txtcash.caption, "£ 3000");
}

TEST(Office, QuitAsksFirst) {
    TestGame t;
    t.new_game();
    t.no();
    click(t.g, "main", "exitbtn");
    EXPECT_FALSE(t.g.ended);
    t.yes();
    click(t.g, "main", "exitbtn");
    EXPECT_TRUE(t.g.ended);
}

TEST(Office, ExitOnTheTitleScreenEndsAtOnce) {
    TestGame t;
    click(t.g, "Form1", "Label4");
    EXPECT_TRUE(t.g.ended);
    EXPECT_TRUE(t.take().empty());
}

TEST(Office, UpdateShowsDebtWithAMinusSign) {
    TestGame t;
    t.new_game();
    t.r.cash = -147;
    t.r.gamedate = 37135 + 122;  // 1 January 2002
    update(t.g);
    EXPECT_EQ(t.g.forms.main.txtcash.caption, "£ -147");
    EXPECT_EQ(t.g.forms.main.txtdate.caption, "01/01/2002");
}

TEST(Memos, FollowOneAnotherAndHoldTheOfficeUntilTheLastOk) {
    TestGame t;
    t.new_game();
    message(t.g, "first", "Dave");
    message(t.g, "second", "Mona");
    EXPECT_FALSE(t.g.forms.main.enabled);
    EXPECT_EQ(t.g.forms.messageForm.thetxt.caption, "first");
    EXPECT_EQ(t.g.forms.messageForm.txtTo.caption, "Sam");
    EXPECT_EQ(click(t.g, "main", "command6"), ClickResult::Ignored);
    click(t.g, "messageForm", "command1");
    EXPECT_EQ(t.g.forms.messageForm.thetxt.caption, "second");
    EXPECT_EQ(t.g.forms.messageForm.txtFrom.caption, "Mona");
    EXPECT_FALSE(t.g.forms.main.enabled);
    click(t.g, "messageForm", "command1");
    EXPECT_FALSE(t.g.forms.messageForm.loaded);
    EXPECT_TRUE(t.g.forms.main.enabled);
    EXPECT_EQ(t.r.messagetext, "second");
}

// An empty band: the turn's draws are the five venues, the applicant and the chart.
class EmptyBandTurn : public ::testing::Test {
  protected:
    TestGame t;
    void SetUp() override { t.new_game(); }
};

TEST_F(EmptyBandTurn, MovesTheDateAndOpensTheChart) {
    for (int v = 1; v <= 5; ++v) t.pick(v % 2 ? 1 : 2, 2);  // venues 1, 3, 5 open
    command6(t.g);
    EXPECT_EQ(t.r.gamedate, 37142.0);
    EXPECT_EQ(t.r.venueopen[1], -1);
    EXPECT_EQ(t.r.venueopen[2], 0);
    EXPECT_EQ(t.r.venueopen[5], -1);
    EXPECT_EQ(t.r.cash, 3000);
    EXPECT_EQ(t.r.popularity, -1);  // the decay comes behind the floor of the events
    EXPECT_TRUE(t.g.forms.main.secret.enabled);
    EXPECT_EQ(t.g.forms.main.txtdate.caption, "08/09/2001");
}

TEST_F(EmptyBandTurn, SmallPromotionWithDebtStopsTheWeekSilently) {
    t.r.cash = -1;
    promote(t.g, 1);
    for (int i = 0; i < 3; ++i) command6(t.g);
    EXPECT_EQ(t.r.gamedate, 37135.0);
    EXPECT_EQ(t.r.cash, -1);
    EXPECT_TRUE(t.take().empty());
    EXPECT_FALSE(t.g.forms.main.secret.enabled);
}

TEST_F(EmptyBandTurn, SmallPromotionMayTakeCashBelowZeroAndEndTheGame) {
    t.r.cash = 50;
    promote(t.g, 1);
    command6(t.g);
    EXPECT_EQ(t.r.cash, -50);
    EXPECT_EQ(t.r.popularity, 3);
    EXPECT_TRUE(t.g.game_over);
    EXPECT_EQ(t.take().back(),
              memo("Dave", "Bad new, Boss. We're out of cash, and that means we're out of a job!"));
    EXPECT_FALSE(t.g.forms.main.secret.enabled);  // nothing runs after the memo
    t.ok_memos();
    EXPECT_TRUE(t.g.ended);
}

TEST_F(EmptyBandTurn, MediumPromotionNeeds250) {
    t.r.cash = 249;
    promote(t.g, 2);
    command6(t.g);
    EXPECT_EQ(t.take(),
              (std::vector<std::string>{memo("Dave", "We can't afford any promotion this week.")}));
    EXPECT_EQ(t.r.gamedate, 37135.0);
    EXPECT_EQ(t.r.cash, 249);
    t.ok_memos();

    t.r.cash = 250;
    command6(t.g);
    EXPECT_EQ(t.r.cash, 0);
    EXPECT_EQ(t.r.gamedate, 37142.0);
    EXPECT_FALSE(t.g.game_over);  // no members: wages of 0 leave the band at 0
}

TEST_F(EmptyBandTurn, HighPromotionShortOfMoneyStillPassesTheWeek) {
    t.r.cash = 399;
    promote(t.g, 3);
    command6(t.g);
    EXPECT_EQ(t.memos().front(),
              memo("Dave",
                   "Sorry, Boss. Cash is a bit tight this week so we can't afford any promotion."));
    EXPECT_EQ(t.r.cash, 399);
    EXPECT_EQ(t.r.popularity, -1);
    EXPECT_EQ(t.r.gamedate, 37142.0);
}

TEST_F(EmptyBandTurn, SongClockRunsDownOnlyBelowTen) {
    t.r.songweeks = 10;
    command6(t.g);
    EXPECT_EQ(t.r.songweeks, 10);
    t.r.songweeks = 5;
    command6(t.g);
    EXPECT_EQ(t.r.songweeks, 4);
}

TEST_F(EmptyBandTurn, WeeklyResetsClearTheInvitationAndApplicantCount) {
    t.r.interviewkind = 2;
    t.g.forms.main.interview.enabled = true;
    t.g.main.applicantsseen = 6;
    t.r.tiredness = 1;
    t.r.memberill[2] = 1;
    command6(t.g);
    EXPECT_EQ(t.r.interviewkind, 0);
    EXPECT_FALSE(t.g.forms.main.interview.enabled);
    EXPECT_EQ(t.r.tiredness, 0);
    EXPECT_EQ(t.r.memberill[2], 0);  // counted down in every slot, vacant or not
}

class FullBandTurn : public ::testing::Test {
  protected:
    TestGame t;
    void SetUp() override {
        t.new_game();
        t.full_band();
    }
    /// Answers the practice question No and pins the four wages draws.
    void wages(int a, int b, int c, int d) {
        t.no();
        for (int w : {a, b, c, d}) t.pick(w, 3);
    }
};

TEST_F(FullBandTurn, WagesEqualToCashLeaveNothing) {
    t.r.cash = 10;
    wages(3, 3, 3, 1);
    command6(t.g);
    EXPECT_FALSE(t.g.game_over);
    EXPECT_EQ(t.r.cash, 0);
}

TEST_F(FullBandTurn, WagesAboveCashEndTheGame) {
    t.r.cash = 9;
    wages(3, 3, 3, 1);
    command6(t.g);
    EXPECT_TRUE(t.g.game_over);
    EXPECT_EQ(t.r.cash, 9);
    EXPECT_EQ(t.r.gamedate, 37142.0);  // the date moved before the wages
}

TEST_F(FullBandTurn, NothingCanFollowTheMemoThatEndsTheGame) {
    t.r.cash = 0;
    wages(1, 1, 1, 1);
    command6(t.g);
    message(t.g, "late", "Dave");
    EXPECT_EQ(t.g.memos.size(), 1u);
    EXPECT_EQ(click(t.g, "main", "command6"), ClickResult::Ignored);
    click(t.g, "messageForm", "command1");
    EXPECT_TRUE(t.g.ended);
}

TEST_F(FullBandTurn, PracticeQuestionsAndTheTiredWarning) {
    t.r.tiredness = 0;
    t.yes();
    t.pick(2, 4);  // the guitarist
    t.pick(1, 2);  // one point
    command6(t.g);
    EXPECT_EQ(t.r.practice[2], 1);
    EXPECT_EQ(t.r.tiredness, 1);  // 2 from practice, 1 off in the same turn
    t.ok_memos();
    t.take();

    t.yes();
    t.no();  // tired: not this week
    command6(t.g);
    auto lines = t.take();
    EXPECT_EQ(lines[0], "msgbox yesno \"Do you want the band to practise?\" -> yes");
    EXPECT_EQ(lines[1], "msgbox yesno \"The band is tired, make them practise anyway?\" -> no");
    EXPECT_EQ(t.r.practice[2], 1);
}

TEST_F(FullBandTurn, UnhappyMemberComplainsAndNeverLeaves) {
    t.r.memberhappy[3] = 1;
    t.no();
    command6(t.g);
    EXPECT_EQ(t.memos().front(), memo("Steven", "Cy Low is unhappy."));
    EXPECT_EQ(t.r.membername[3], "Cy Low");
}

TEST_F(FullBandTurn, WalkOutCanCarryALaterMemberWithIt) {
    // Slot 1 has friction 0, so the others lose 4 happiness: slot 3 falls from 3 to 0 and is
    // tested in the same phase.
    t.r.memberhappy[1] = 0;
    t.r.memberfriction[1] = 0;
    t.r.memberhappy[3] = 3;
    t.r.popularity = 10;
    t.no();
    t.pick(1, 5);  // slot 1 walks out
    // the applicant drawn by update after the removal: nine draws
    for (int i = 0; i < 9; ++i) t.draws({0.0});
    t.pick(1, 5);  // slot 3 walks out too
    for (int i = 0; i < 9; ++i) t.draws({0.0});
    command6(t.g);
    EXPECT_EQ(t.r.membername[1], "None");
    EXPECT_EQ(t.r.membername[3], "None");
    EXPECT_EQ(t.g.main.selectedmember, 3);
    auto memos = t.memos();
    ASSERT_GE(memos.size(), 2u);
    EXPECT_EQ(memos[0], memo("Mona",
                             "Ann Vox has decided to leave the band! The rest of the band is in a "
                             "state of shock."));
    EXPECT_EQ(memos[1], memo("Mona",
                             "Cy Low has decided to leave the band! The rest of the band is in a "
                             "state of shock."));
}

TEST_F(FullBandTurn, SongFinishedThisTurnLeavesTheBandTiredOneToThree) {
    t.r.songweeks = 1;
    t.no();
    for (int i = 0; i < 8; ++i) t.draws({0.0});  // qualities
    t.pick(3, 3);                                // tiredness 4
    command6(t.g);
    EXPECT_EQ(t.r.songweeks, 10);
    EXPECT_EQ(t.r.songcount, 1);
    EXPECT_EQ(t.r.tiredness, 3);
    EXPECT_EQ(t.memos().front(), memo("Dave", "The band has finished writing a new song!"));
}

}  // namespace
}  // namespace tourvane

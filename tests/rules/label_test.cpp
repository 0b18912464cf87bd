// The record label: sending a demo, the verdict, and keeping or losing the contract.
#include "music/label.h"

#include "music_week.h"
#include "week/turn.h"

namespace tourvane {
namespace {

using testing::draw;
using testing::memo;
using testing::TestGame;
using Lines = std::vector<std::string>;

const std::string kSigned =
    memo("Dave", "Superstar Records loved the demo tape and have signed the band!");
const std::string kRejected = memo("Mona", "The record label rejected our demo tape.");
const std::string kTerminated =
    memo("Dave",
         "Bad news, Boss. Due to the bands low popularity, Superstar records have terminated our "
         "contract!");

class Label : public ::testing::Test {
  protected:
    TestGame t;
    void SetUp() override {
        t.new_game();
        t.full_band();
        testing::calm_chart(t);
        testing::add_songs(t, {10, 45});
    }
    Lines send() {
        EXPECT_EQ(click(t.g, "main", "command3"), ClickResult::Done);
        t.ok_memos();
        return t.take();
    }
};

TEST_F(Label, SendingADemo) {
    EXPECT_EQ(send(),
              Lines{memo("Mona", "Select a song from the list to send to the record company.")});
    EXPECT_EQ(t.g.main.demosent, 0);

    click(t.g, "main", "songlist", 0);
    t.r.signed_ = -1;  // a band under contract sends demos too
    EXPECT_EQ(send(), Lines{memo("Dave", "We have sent a demo to the record company")});
    EXPECT_EQ(t.g.main.demosent, -1);

    t.g.main.selectedsong = 0;
    EXPECT_EQ(send(), Lines{memo("Dave", "We have already sent a Demo Tape, Boss.")});
    EXPECT_EQ(t.g.main.demosent, -1);
    EXPECT_EQ(t.r.cash, 3000);
}

TEST_F(Label, VerdictTable) {
    const std::string ok =
        memo("Mona", "The record label thought the song was ok but not what they are looking for.");
    const std::string liked =
        memo("Mona", "The record label liked your song but felt it didn't meet their needs.");
    const std::string lot = memo("Mona",
                                 "The record label liked the song a lot, they would like to hear "
                                 "some more of your tracks.");
    const std::string develop = memo("Mona",
                                     "The record label loved the track, but think the band as a "
                                     "whole still needs to develop.");
    const struct {
        int quality, popularity;
        std::string line;  // empty: no memo
    } rows[] = {{8, 5000, kRejected}, {19, 0, kRejected},  {20, 5000, ""},       {21, 0, ok},
                {24, 0, ok},          {25, 0, ""},         {26, 0, liked},       {29, 0, liked},
                {30, 0, ""},          {31, 0, lot},        {39, 5000, lot},      {40, 5000, ""},
                {41, 999, develop},   {41, 1000, kSigned}, {300, 32000, kSigned}};
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::Message() << row.quality << " at " << row.popularity);
        t.r.songquality[2] = static_cast<Integer>(row.quality);
        t.r.popularity = static_cast<Integer>(row.popularity);
        t.r.signed_ = 0;
        t.g.main.demosent = -1;
        t.g.main.selectedsong = 2;
        EXPECT_EQ(demo_verdict(t.g), row.line != kRejected);
        EXPECT_EQ(t.memos(), row.line.empty() ? Lines{} : Lines{row.line});
        EXPECT_EQ(t.g.main.demosent, 0);
        EXPECT_EQ(t.r.signed_, row.line == kSigned ? -1 : 0);
        t.ok_memos();
    }
    EXPECT_TRUE(demo_verdict(t.g));  // no demo out: nothing
    EXPECT_TRUE(t.take().empty());
}

// The song judged is the one picked when the week comes; the popularity is the turn's own,
// after its promotion and before its decay.
TEST_F(Label, VerdictJudgesTheSongPickedAtTheTurn) {
    click(t.g, "main", "songlist", 0);
    send();
    click(t.g, "main", "songlist", 1);
    t.r.popularity = 997;
    click(t.g, "main", "promote", 1);  // Small: +3
    testing::week_start(t);
    testing::week_end(t, true);
    command6(t.g);
    EXPECT_EQ(t.g.rnd.queued_left(), 0u);
    EXPECT_EQ(t.memos(), Lines{kSigned});
    EXPECT_EQ(t.r.signed_, -1);
    EXPECT_EQ(t.g.main.demosent, 0);
    EXPECT_EQ(t.r.popularity, 999);
}

TEST_F(Label, ContractHoldsAt900AndEndsAt899BeforeThePromotion) {
    t.r.signed_ = -1;
    t.r.popularity = 900;
    contract_review(t.g);
    EXPECT_EQ(t.r.signed_, -1);
    EXPECT_TRUE(t.take().empty());

    // At 899 the contract goes before the Small promotion is paid, so the single gains no hype
    // even though the promotion lifts the band past 900.
    t.r.popularity = 899;
    t.r.released[1] = -1;
    t.r.singledemand[1] = 500;
    click(t.g, "main", "promote", 1);
    testing::week_start(t);
    draw(t, 1, 2);  // hype step: +0
    testing::week_end(t, true);
    command6(t.g);
    EXPECT_EQ(t.g.rnd.queued_left(), 0u);
    EXPECT_EQ(t.take().at(0), kTerminated);
    EXPECT_EQ(t.r.signed_, 0);
    EXPECT_EQ(t.r.singlehype[1], 0);
    EXPECT_EQ(t.r.singledemand[1], 500);
    EXPECT_EQ(t.r.popularity, 901);
    EXPECT_EQ(t.r.released[1], -1);
}

TEST_F(Label, RejectedDemoEndsTheWeekAfterTheWages) {
    // A signed band with a single on sale, having played a gig this week.
    t.r.signed_ = -1;
    t.r.popularity = 1200;
    t.r.released[2] = -1;
    t.r.singlesales[2] = 33;
    t.g.forms.main.command4.enabled = false;
    click(t.g, "main", "songlist", 0);
    send();
    testing::week_start(t);
    command6(t.g);

    EXPECT_EQ(t.g.rnd.queued_left(), 0u);
    EXPECT_EQ(t.take(),
              (Lines{"msgbox yesno \"Do you want the band to practise?\" -> no", kRejected}));
    EXPECT_EQ(t.r.gamedate, 37142.0);
    EXPECT_EQ(t.r.cash, 2996);
    EXPECT_EQ(t.g.main.demosent, 0);
    EXPECT_EQ(t.r.popularity, 1200);
    EXPECT_EQ(t.r.singlesales[2], 33);
    EXPECT_EQ(t.r.chartsales[21], 21);
    EXPECT_EQ(t.g.forms.main.txtdate.caption, "01/09/2001");
    EXPECT_EQ(t.g.forms.main.txtcash.caption, "£ 3000");
    EXPECT_FALSE(t.g.forms.main.command4.enabled);
    EXPECT_FALSE(t.g.forms.main.secret.enabled);
    for (int v = 1; v <= 5; ++v) EXPECT_EQ(t.r.venueopen[v], -1);

    // The next week is a normal one, and the demo can go out again at once.
    t.ok_memos();
    EXPECT_EQ(send(), Lines{memo("Dave", "We have sent a demo to the record company")});
}

}  // namespace
}  // namespace tourvane

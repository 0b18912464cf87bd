// The record label: sending a demo, the verdict, and keeping or losing the contract.
#include "music/label.h"

#include "test_game.h"
#include "week/turn.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::str;

const std::string kSigned =
    memo("Dave", "Superstar Records loved the demo tape and have signed the band!");
const std::string kRejected = memo("Mona", "The record label rejected our demo tape.");
const std::string kSent = memo("Dave", "We have sent a demo to the record company");

class Label : public testing::Office {
  protected:
    void SetUp() override {
        calm_chart();
        songs({10, 45});
    }
    Lines send() {
        click(g, "main", "command3");
        ok_memos();
        return take();
    }
};

TEST_F(Label, SendingADemo) {
    EXPECT_EQ(send(),
              Lines{memo("Mona", "Select a song from the list to send to the record company.")});
    click(g, "main", "songlist", 0);
    r.signed_ = -1;  // a band under contract sends demos too
    EXPECT_EQ(send(), Lines{kSent});
    g.main.selectedsong = 0;
    EXPECT_EQ(send(), Lines{memo("Dave", "We have already sent a Demo Tape, Boss.")});
    EXPECT_EQ(g.main.demosent, -1);
}

TEST_F(Label, VerdictTable) {
    const std::string label = "The record label ";
    const std::string ok = label + "thought the song was ok but not what they are looking for.";
    const std::string liked = label + "liked your song but felt it didn't meet their needs.";
    const std::string lot =
        label + "liked the song a lot, they would like to hear some more of your tracks.";
    const std::string develop =
        label + "loved the track, but think the band as a whole still needs to develop.";
    const struct {
        int quality, popularity;
        std::string line;  // empty: no memo
    } rows[] = {{8, 5000, kRejected},
                {19, 0, kRejected},
                {20, 5000, ""},
                {21, 0, memo("Mona", ok)},
                {24, 0, memo("Mona", ok)},
                {25, 0, ""},
                {26, 0, memo("Mona", liked)},
                {29, 0, memo("Mona", liked)},
                {30, 0, ""},
                {31, 0, memo("Mona", lot)},
                {39, 5000, memo("Mona", lot)},
                {40, 5000, ""},
                {41, 999, memo("Mona", develop)},
                {41, 1000, kSigned},
                {300, 32000, kSigned}};
    for (const auto& row : rows) {
        r.songquality[2] = static_cast<Integer>(row.quality);
        r.popularity = static_cast<Integer>(row.popularity);
        r.signed_ = 0;
        g.main.demosent = -1;
        g.main.selectedsong = 2;
        const bool goes_on = demo_verdict(g);
        EXPECT_EQ(memos(), row.line.empty() ? Lines{} : Lines{row.line}) << row.quality;
        EXPECT_EQ(str(goes_on, g.main.demosent, r.signed_),
                  str(row.line != kRejected, 0, row.line == kSigned ? -1 : 0))
            << row.quality;
        ok_memos();
    }
    EXPECT_TRUE(demo_verdict(g));  // no demo out: nothing
    EXPECT_TRUE(take().empty());
}

// The song judged is the one picked when the week comes; the popularity is the turn's own,
// after its promotion and before its decay.
TEST_F(Label, VerdictJudgesTheSongPickedAtTheTurn) {
    click(g, "main", "songlist", 0);
    send();
    click(g, "main", "songlist", 1);
    r.popularity = 997;
    click(g, "main", "promote", 1);  // Small: +3
    week_start();
    week_end(true);
    command6(g);
    EXPECT_EQ(memos(), Lines{kSigned});
    EXPECT_EQ(str(g.rnd.queued_left(), r.popularity), "0 999");
}

TEST_F(Label, ContractHoldsAt900AndEndsAt899BeforeThePromotion) {
    r.signed_ = -1;
    r.popularity = 900;
    contract_review(g);
    EXPECT_EQ(r.signed_, -1);
    // At 899 the contract goes before the Small promotion is paid, so the single gains no hype
    // even though the promotion lifts the band past 900.
    r.popularity = 899;
    r.released[1] = -1;
    r.singledemand[1] = 500;
    click(g, "main", "promote", 1);
    week_start();
    pick(2, 2);  // hype step: +0
    week_end(true);
    command6(g);
    EXPECT_EQ(take().at(0), memo("Dave",
                                 "Bad news, Boss. Due to the bands low popularity, "
                                 "Superstar records have terminated our contract!"));
    EXPECT_EQ(str(g.rnd.queued_left(), r.signed_, r.singlehype[1], r.singledemand[1], r.popularity),
              "0 0 0 500 901");
}

TEST_F(Label, RejectedDemoEndsTheWeekAfterTheWages) {
    // A signed band with a single on sale, having played a gig this week.
    r.signed_ = -1;
    r.popularity = 1200;
    r.released[2] = -1;
    r.singlesales[2] = 33;
    g.forms.main.command4.enabled = false;
    click(g, "main", "songlist", 0);
    send();
    week_start();
    command6(g);
    EXPECT_EQ(take(),
              (Lines{testing::yesno("Do you want the band to practise?", false), kRejected}));
    const OfficeForm& f = g.forms.main;
    EXPECT_EQ(str(g.rnd.queued_left(), r.gamedate, r.cash, r.popularity, r.singlesales[2],
                  f.txtdate.caption, f.txtcash.caption, f.command4.enabled, f.secret.enabled),
              "0 37142 2996 1200 33 01/09/2001 £ 3000 0 0");  // no update
    for (int v = 1; v <= 5; ++v) EXPECT_EQ(r.venueopen[v], -1);
    ok_memos();  // the demo can go out again at once
    EXPECT_EQ(send(), Lines{kSent});
}

}  // namespace
}  // namespace tourvane

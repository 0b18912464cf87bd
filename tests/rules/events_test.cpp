// The week's random events: misbehaviour, illness, press items and invitations.
#include "rules/week/events.h"
#include "test_game.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::str;

class Events : public testing::Office {
  protected:
    /// Illness draws that strike nobody, each small enough to be a misbehaviour if taken for one.
    void nobody_ill(int n = 4) {
        for (int i = 0; i < n; ++i) pick(2, 1000);
    }
    /// Runs the events from `popularity` with the draws queued (and a quiet press unless
    /// `press`); expects exactly those taken, and gives the memos.
    Lines run(int popularity, bool press = false) {
        r.popularity = static_cast<Integer>(popularity);
        if (!press) pick(4, 100);
        exactly([&] { events(g); });
        Lines out = memos();
        ok_memos();
        return out;
    }
};

TEST_F(Events, OnlyTheFirstMemberOfAttitudeOneToThreeIsTestedAtOddsByAttitude) {
    r.memberattitude = {0, 0, 4, 4, 4};
    nobody_ill();
    EXPECT_TRUE(run(50).empty());
    for (int a = 1; a <= 3; ++a) {
        for (bool hit : {true, false}) {
            r.memberfriction[1] = 0, r.memberattitude[1] = static_cast<Integer>(a);
            r.memberattitude[2] = static_cast<Integer>(hit ? a : 4);
            draws({(hit ? 0.999 : 1.001) / (a + 5)});
            if (hit) pick(2, 5);
            nobody_ill();  // would be a misbehaviour of slot 2 if it were tested
            EXPECT_EQ(str(run(50).size(), r.memberfriction[1], r.memberfriction[2]),
                      hit ? "1 1 0" : "0 0 0")
                << a;
        }
    }
}

TEST_F(Events, TheFiveKindsOfMisbehaviourAndTheFloorAtTheEnd) {
    const std::string drink = " was arrested for drink driving this week.";
    const std::string fight = " got into a fight with a member of the press last night.";
    const std::string rumours = " has been spreading viscious rumours about the band.";
    const struct {
        int k, pop_draw, popularity, friction;
        std::string text;
    } cases[] = {
        {1, 1, 51, 0, drink},
        {1, 10, 42, 0, drink},
        {2, 0, 50, 1, " has been heard critiscising another member of the band!"},
        {3, 1, 51, 1, fight},
        {3, 5, 47, 1, fight},
        {4, 0, 50, 1, " refused to turn up for a band practise the other night."},
        {5, 1, 51, 1, rumours},
        {5, 10, 42, 1, rumours},
    };
    r.memberattitude[2] = 2;
    for (const auto& c : cases) {
        r.memberfriction[2] = 0;
        picks({{1, 7}, {c.k, 5}});
        if (c.pop_draw) pick(c.pop_draw, c.k == 3 ? 5 : 10);
        nobody_ill();
        EXPECT_EQ(run(50), Lines{memo("Mona", "Bob Axe" + c.text)}) << c.k;
        EXPECT_EQ(str(r.popularity, r.memberfriction[2]), str(c.popularity, c.friction)) << c.k;
    }
    for (bool good_piece : {false, true}) {
        picks({{1, 7}, {5, 5}, {10, 10}});  // rumours: 3 - 9 + 1 = -5
        nobody_ill();
        if (good_piece) picks({{1, 100}, {5, 5}});  // +5 from -5, not from 0
        EXPECT_EQ(run(3, good_piece).size(), good_piece ? 2u : 1u);
        EXPECT_EQ(r.popularity, 0);
    }
}

TEST_F(Events, OneIllnessAWeekReplacingWhatWasLeft) {
    r.memberill[2] = 7;
    picks({{2, 1000}, {1, 1000}, {1, 10}});  // slots 3 and 4 are not tested
    EXPECT_EQ(run(50),
              Lines{memo("Mona", "Bob Axe has fallen ill and will be out for about 1 weeks.")});
    nobody_ill(3);
    picks({{1, 1000}, {10, 10}});
    EXPECT_EQ(run(50),
              Lines{memo("Mona", "Di Kit has fallen ill and will be out for about 10 weeks.")});
    EXPECT_EQ(str(r.memberill[2], r.memberill[4]), "1 10");
}

TEST_F(Events, PressItemsAndInvitationsNeedAFullBand) {
    const std::string good = "A newspaper columnist wrote a very good piece about the band!";
    const std::string bad = "A recent newspaper article questioned the talent of the band!";
    const std::string charity =
        "A few members of the band were invited to do a charity event this week.";
    const struct {
        int k, draw, n, popularity;
        std::string text;
    } cases[] = {{1, 1, 5, 51, good}, {1, 5, 5, 55, good},    {2, 1, 5, 51, bad},
                 {2, 5, 5, 47, bad},  {3, 1, 3, 51, charity}, {3, 3, 3, 53, charity},
                 {100, 0, 0, 50, ""}};
    for (const auto& c : cases) {
        nobody_ill();
        pick(c.k, 100);
        if (c.draw) pick(c.draw, c.n);
        EXPECT_EQ(run(50, true), c.text.empty() ? Lines{} : Lines{memo("Dave", c.text)}) << c.k;
        EXPECT_EQ(r.popularity, c.popularity) << c.k;
    }
    r.membername[1] = "None";
    nobody_ill(3);  // the empty slot draws nothing, and no press item comes
    EXPECT_TRUE(run(500, true).empty());
}

TEST_F(Events, InvitationsNeedMoreThanTwoHundred) {
    nobody_ill();
    EXPECT_TRUE(run(200).empty());  // no invitation draw at 200
    for (int k : {3, 10, 2}) {
        nobody_ill();
        picks({{4, 100}, {k, 10}});
        EXPECT_EQ(str(run(500, true).size(), r.interviewkind, g.forms.main.interview.enabled),
                  k == 2 ? "1 2 1" : "0 0 0");
    }
    // A charity event lifts 200 to 201, and the invitation draw follows in the same week.
    nobody_ill();
    picks({{3, 100}, {1, 3}, {1, 10}});
    r.popularity = 200;
    exactly([&] { events(g); });
    EXPECT_EQ(memos().back(),
              memo("Dave", "Great news, Boss. The Band has been invited for a Radio interview!"));
    EXPECT_EQ(str(r.popularity, r.interviewkind), "201 1");
    EXPECT_EQ(click(g, "main", "interview"), ClickResult::NotUsableNow);  // a memo is open
}

}  // namespace
}  // namespace tourvane

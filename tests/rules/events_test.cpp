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

// Misbehaviour (kind 1 to 5 by Bob, from Mona) and press items (kind 1 to 3, from Dave), each
// with the top draw of its popularity step; the floor of 0 comes after both.
TEST_F(Events, MisbehaviourPressItemsAndTheFloorAtTheEnd) {
    const struct {
        int bob, press, top, popularity, friction;
        std::string text;
    } cases[] = {
        {1, 0, 10, 42, 0, " was arrested for drink driving this week."},
        {2, 0, 0, 50, 1, " has been heard critiscising another member of the band!"},
        {3, 0, 5, 47, 1, " got into a fight with a member of the press last night."},
        {4, 0, 0, 50, 1, " refused to turn up for a band practise the other night."},
        {5, 0, 10, 42, 1, " has been spreading viscious rumours about the band."},
        {0, 1, 5, 55, 0, "A newspaper columnist wrote a very good piece about the band!"},
        {0, 2, 5, 47, 0, "A recent newspaper article questioned the talent of the band!"},
        {0, 3, 3, 53, 0, "A few members of the band were invited to do a charity event this week."},
        {0, 100, 0, 50, 0, ""},
    };
    r.memberattitude[2] = 2;
    for (const auto& c : cases) {
        r.memberfriction[2] = 0;
        if (c.bob) picks({{1, 7}, {c.bob, 5}});
        if (c.bob && c.top) pick(c.top, c.top);
        if (!c.bob) draws({0.5});
        nobody_ill();
        if (c.press) pick(c.press, 100);
        if (c.press && c.top) pick(c.top, c.top);
        const Lines want{memo(c.bob ? "Mona" : "Dave", c.bob ? "Bob Axe" + c.text : c.text)};
        EXPECT_EQ(run(50, c.press), c.text.empty() ? Lines{} : want) << c.bob << c.press;
        EXPECT_EQ(str(r.popularity, r.memberfriction[2]), str(c.popularity, c.friction))
            << c.bob << c.press;
    }
    for (bool good_piece : {false, true}) {
        picks({{1, 7}, {5, 5}, {10, 10}});  // rumours: 3 - 9 + 1 = -5
        nobody_ill();
        if (good_piece) picks({{1, 100}, {5, 5}});  // +5 from -5, not from 0
        EXPECT_EQ(run(3, good_piece).size(), good_piece ? 2u : 1u);
        EXPECT_EQ(r.popularity, 0);
    }
    r.membername[1] = "None", r.memberattitude[2] = 5;
    nobody_ill(3);  // the empty slot draws nothing, and no press item comes
    EXPECT_TRUE(run(500, true).empty());
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

TEST_F(Events, InvitationsNeedMoreThanTwoHundred) {
    nobody_ill();
    EXPECT_TRUE(run(200).empty());  // no invitation draw at 200
    for (int k : {3, 2}) {
        nobody_ill();
        picks({{4, 100}, {k, 10}});
        EXPECT_EQ(run(500, true).size(), k == 2 ? 1u : 0u);
        EXPECT_EQ(str(r.interviewkind, g.forms.main.interview.enabled), k == 2 ? "2 1" : "0 0");
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

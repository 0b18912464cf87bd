// The week's random events: misbehaviour, illness, press items and invitations.
#include "week/events.h"
#include "band_draws.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::picks;
using testing::TestGame;

class Events : public ::testing::Test {
  protected:
    TestGame t;
    void SetUp() override {
        t.new_game();
        t.full_band();
        t.r.popularity = 50;
    }
    /// Illness draws that strike nobody, for `n` members. Each is small enough to count as a
    /// misbehaviour if it were taken for one.
    void nobody_ill(int n = 4) {
        for (int i = 0; i < n; ++i) t.pick(2, 1000);
    }
    void no_press() { t.pick(4, 100); }
    /// Runs the events with the draws queued; expects exactly those taken, and gives the memos.
    Lines run() {
        testing::spare(t);
        events(t.g);
        EXPECT_TRUE(testing::only_spare_left(t));
        t.g.rnd.clear_queue();
        Lines out = t.memos();
        t.ok_memos();
        return out;
    }
};

TEST_F(Events, AttitudeFourOrMoreNeverMisbehaves) {
    const int attitude[] = {0, 4, 10, 4, 7};
    for (int s = 1; s <= 4; ++s) t.r.memberattitude[s] = static_cast<Integer>(attitude[s]);
    nobody_ill();
    no_press();
    EXPECT_TRUE(run().empty());
    EXPECT_EQ(t.r.popularity, 50);
    for (int s = 1; s <= 4; ++s) EXPECT_EQ(t.r.memberfriction[s], 0);
}

TEST_F(Events, OddsOfMisbehaviourFollowAttitude) {
    for (int a = 1; a <= 3; ++a) {
        for (bool hit : {true, false}) {
            t.r.memberfriction[1] = 0;
            t.r.memberattitude[1] = static_cast<Integer>(a);
            t.draws({(hit ? 0.999 : 1.001) / (a + 5)});
            if (hit) t.pick(2, 5);
            nobody_ill();
            no_press();
            const Lines memos = run();
            EXPECT_EQ(memos.size(), hit ? 1u : 0u) << a;
            EXPECT_EQ(t.r.memberfriction[1], hit ? 1 : 0) << a;
        }
    }
}

TEST_F(Events, TheFiveKindsOfMisbehaviour) {
    struct Case {
        int k, pop_draw, popularity, friction;
        const char* text;
    } cases[] = {
        {1, 1, 51, 0, " was arrested for drink driving this week."},
        {1, 10, 42, 0, " was arrested for drink driving this week."},
        {2, 0, 50, 1, " has been heard critiscising another member of the band!"},
        {3, 1, 51, 1, " got into a fight with a member of the press last night."},
        {3, 5, 47, 1, " got into a fight with a member of the press last night."},
        {4, 0, 50, 1, " refused to turn up for a band practise the other night."},
        {5, 1, 51, 1, " has been spreading viscious rumours about the band."},
        {5, 10, 42, 1, " has been spreading viscious rumours about the band."},
    };
    t.r.memberattitude[2] = 2;
    for (const Case& c : cases) {
        t.r.popularity = 50;
        t.r.memberfriction[2] = 0;
        picks(t, {{1, 7}, {c.k, 5}});
        if (c.pop_draw) t.pick(c.pop_draw, c.k == 3 ? 5 : 10);
        nobody_ill();
        no_press();
        EXPECT_EQ(run(), (Lines{memo("Mona", std::string("Bob Axe") + c.text)})) << c.k;
        EXPECT_EQ(t.r.popularity, c.popularity) << c.k;
        EXPECT_EQ(t.r.memberfriction[2], c.friction) << c.k;
        EXPECT_EQ(t.r.memberfriction[1], 0);
    }
}

TEST_F(Events, OnlyTheFirstMisbehaverIsTested) {
    t.r.memberattitude[1] = 1;
    t.r.memberattitude[2] = 1;
    picks(t, {{1, 6}, {4, 5}});
    nobody_ill();  // would be a misbehaviour of slot 2 if it were tested
    no_press();
    EXPECT_EQ(run().size(), 1u);
    EXPECT_EQ(t.r.memberfriction[1], 1);
    EXPECT_EQ(t.r.memberfriction[2], 0);
}

TEST_F(Events, PopularityIsFlooredOnlyAtTheEnd) {
    t.r.memberattitude[1] = 1;
    for (bool good_piece : {false, true}) {
        t.r.popularity = 3;
        picks(t, {{1, 6}, {5, 5}, {10, 10}});  // rumours: 3 - 9 + 1 = -5
        nobody_ill();
        if (good_piece)
            picks(t, {{1, 100}, {5, 5}});  // +5 from -5, not from 0
        else
            no_press();
        EXPECT_EQ(run().size(), good_piece ? 2u : 1u);
        EXPECT_EQ(t.r.popularity, 0);
    }
}

TEST_F(Events, OneIllnessAWeekReplacingWhatWasLeft) {
    t.r.memberill[2] = 7;
    picks(t, {{2, 1000}, {1, 1000}, {1, 10}});
    no_press();  // slots 3 and 4 are not tested
    EXPECT_EQ(run(),
              (Lines{memo("Mona", "Bob Axe has fallen ill and will be out for about 1 weeks.")}));
    EXPECT_EQ(t.r.memberill[2], 1);

    nobody_ill(3);
    picks(t, {{1, 1000}, {10, 10}});
    no_press();
    EXPECT_EQ(run(),
              (Lines{memo("Mona", "Di Kit has fallen ill and will be out for about 10 weeks.")}));
    EXPECT_EQ(t.r.memberill[4], 10);
    EXPECT_EQ(t.r.memberill[2], 1);
}

TEST_F(Events, OnlyAFullBandMeetsThePressOrAnInvitation) {
    t.r.membername[1] = "None";
    t.r.memberattitude[1] = 0;
    t.r.popularity = 500;
    nobody_ill(3);  // the empty slot draws nothing
    EXPECT_TRUE(run().empty());
    EXPECT_EQ(t.r.popularity, 500);

    TestGame empty;
    empty.new_game();
    empty.r.popularity = -1;
    testing::spare(empty);
    events(empty.g);
    EXPECT_TRUE(testing::only_spare_left(empty));
    EXPECT_EQ(empty.r.popularity, 0);
}

TEST_F(Events, PressItems) {
    struct Case {
        int k, draw, n, popularity;
        const char* text;
    } cases[] = {
        {1, 1, 5, 51, "A newspaper columnist wrote a very good piece about the band!"},
        {1, 5, 5, 55, "A newspaper columnist wrote a very good piece about the band!"},
        {2, 1, 5, 51, "A recent newspaper article questioned the talent of the band!"},
        {2, 5, 5, 47, "A recent newspaper article questioned the talent of the band!"},
        {3, 1, 3, 51, "A few members of the band were invited to do a charity event this week."},
        {3, 3, 3, 53, "A few members of the band were invited to do a charity event this week."},
        {100, 0, 0, 50, nullptr},
    };
    for (const Case& c : cases) {
        t.r.popularity = 50;
        nobody_ill();
        t.pick(c.k, 100);
        if (c.draw) t.pick(c.draw, c.n);
        EXPECT_EQ(run(), c.text ? Lines{memo("Dave", c.text)} : Lines{}) << c.k;
        EXPECT_EQ(t.r.popularity, c.popularity) << c.k;
    }
}

TEST_F(Events, InvitationsNeedMoreThanTwoHundred) {
    OfficeForm& f = t.g.forms.main;
    t.r.popularity = 200;
    nobody_ill();
    no_press();
    EXPECT_TRUE(run().empty());  // no invitation draw at 200
    EXPECT_EQ(t.r.interviewkind, 0);

    t.r.popularity = 500;
    for (int k : {3, 10, 2}) {
        nobody_ill();
        picks(t, {{4, 100}, {k, 10}});
        const Lines memos = run();
        EXPECT_EQ(t.r.interviewkind, k == 2 ? 2 : 0);
        EXPECT_EQ(f.interview.enabled, k == 2);
        if (k == 2)
            EXPECT_EQ(
                memos,
                Lines{memo("Dave", "The group has been invited onto a cable T.V music show!")});
        else
            EXPECT_TRUE(memos.empty());
    }

    // A charity event lifts 200 to 201, and the invitation draw follows in the same week.
    t.r.interviewkind = 0;
    f.interview.enabled = false;
    t.r.popularity = 200;
    nobody_ill();
    picks(t, {{3, 100}, {1, 3}, {1, 10}});
    testing::spare(t);
    events(t.g);
    EXPECT_TRUE(testing::only_spare_left(t));
    EXPECT_EQ(t.memos().back(),
              memo("Dave", "Great news, Boss. The Band has been invited for a Radio interview!"));
    EXPECT_EQ(t.r.popularity, 201);
    EXPECT_EQ(t.r.interviewkind, 1);
    EXPECT_EQ(click(t.g, "main", "interview"), ClickResult::Ignored);  // a memo is open
    t.ok_memos();
    EXPECT_EQ(click(t.g, "main", "interview"), ClickResult::Done);
    EXPECT_FALSE(f.interview.enabled);
}

}  // namespace
}  // namespace tourvane

// The week: the office's labels and Next Week (the turn's order, early ends, promotion prices
// and wages), and the week's random events (misbehaviour, illness, press items and invitations).

#include "rules/week/events.h"
#include "rules/week/turn.h"
#include "test_game.h"

namespace tourvane::testing {
namespace {

struct Turn : ::testing::Test, TestGame {
    Turn() { new_game(" ", "Jo"); }  // one blank is a name
};

// An empty band pays no wages; its popularity of 0 is floored by the events before the decay.
// A full band's wages of 1 each: equal to the cash they leave nothing, one more ends the game,
// and nothing comes after the end's memo.
TEST_F(Turn, PromotionPricesWagesAndTheEarlyEndsOfShortMoney) {
    const std::string none = "We can't afford any promotion this week.";
    const std::string tight =
        "Sorry, Boss. Cash is a bit tight this week so we can't afford any promotion.";
    const std::string broke =
        "Bad new, Boss. We're out of cash, and that means we're out of a job!";
    const struct {
        int level, cash, band;
        std::array<int, 5> after;  // cash, popularity, date, game over, Music Chart
        std::string memo;
    } cases[] = {
        {1, -1, 0, {-1, 0, 37135, 0, 0}, ""},       {1, 0, 0, {-100, 3, 37142, 1, 0}, broke},
        {2, 249, 0, {249, 0, 37135, 0, 0}, none},   {2, 250, 0, {0, 3, 37142, 0, 1}, ""},
        {3, 399, 0, {399, -1, 37142, 0, 1}, tight}, {3, 400, 0, {0, 4, 37142, 0, 1}, ""},
        {0, 4, 1, {0, -1, 37142, 0, 1}, ""},        {0, 3, 1, {3, 0, 37142, 1, 0}, broke},
    };
    for (const auto& c : cases) {
        TestGame t;
        t.new_game().r.cash = c.cash;
        if (c.band) t.full_band(), t.week_start(), t.week_end(false);
        click(t.g, "main", "promote", c.level);
        command6(t.g);
        EXPECT_EQ(t.memos(), c.memo.empty() ? Lines{} : Lines{memo("Dave", c.memo)}) << c.cash;
        if (t.r.gamedate == 37135.0) t.ok_memos(), command6(t.g);  // again: still no time
        EXPECT_TRUE(t.has({is("cash", c.after[0]), is("popularity", c.after[1]),
                           is("gamedate", c.after[2]), is("game_over", t.g.game_over, c.after[3]),
                           enabled(t.g.forms.main.secret, c.after[4])}))
            << c.cash;
        // Only a week that passes time is sampled, the last one too, whose memo bears its day.
        EXPECT_EQ(t.g.history.size(), t.r.gamedate > 37135.0 ? 1u : 0u) << c.cash;
        const double day = c.memo == broke ? 37142 : 37135;
        EXPECT_EQ(c.memo.empty() ? day : t.g.diary.back().date, day) << c.cash;
        if (!c.band || c.memo.empty()) continue;
        message(t.g, "late", "Dave");
        EXPECT_EQ(click(t.g, "main", "command6"), ClickResult::NotUsableNow);
        EXPECT_EQ(t.g.memos.size(), 1u);
        click(t.g, "messageForm", "command1");
        EXPECT_TRUE(t.g.ended);
    }
}

TEST_F(Turn, LabelsDateVenuesResetsAndTheSongClock) {
    OfficeForm& f = g.forms.main;
    r.cash = -147, r.gamedate = 37135 + 122;
    update(g);
    EXPECT_TRUE(
        has({is(f.txtname, "Jo's Office"), is(f.txtdate, "01/01/2002"), is(f.txtcash, "£ -147")}));
    r.cash = 3000, r.gamedate = 37135;
    for (int v : {1, 2, 1, 2, 1}) pick(v, 2);  // venues 1, 3 and 5 open
    r.interviewkind = 2, f.interview.enabled = true, g.main.applicantsseen = 6;
    r.tiredness = r.memberill[2] = 1;  // counted down in every slot, vacant or not
    command6(g);
    // The song clock stands at 10.
    EXPECT_TRUE(has({is("venueopen(1..5)", "-1 0 -1 0 -1"), is("interviewkind", 0),
                     enabled(f.interview, false), is("applicantsseen", 0), is("tiredness", 0),
                     is("memberill(2)", 0), is("songweeks", 10), is(f.txtdate, "08/09/2001")}));
    r.songweeks = 5;
    command6(g);
    EXPECT_EQ(r.songweeks, 4);
}

struct Events : Office {
    /// Illness draws that strike nobody, each small enough to be a misbehaviour if taken for one.
    void nobody_ill(int n = 4) {
        for (int i = 0; i < n; ++i) pick(2, 1000);
    }
    /// Runs the events from `popularity` with the draws queued (and a quiet press unless
    /// `press`); expects exactly those taken, and gives the memos.
    Lines run(int popularity, bool press = false) {
        r.popularity = popularity;
        if (!press) pick(4, 100);
        exactly([&] { events(g); });
        Lines out = memos();
        ok_memos();
        return out;
    }
};

TEST_F(Events, OnlyTheFirstMemberOfAttitudeOneToThreeIsTestedThenMisbehaviourAndPressItems) {
    r.memberattitude = {0, 0, 4, 4, 4};
    nobody_ill();
    EXPECT_TRUE(run(50).empty());
    for (int a = 1; a <= 3; ++a)
        for (bool hit : {true, false}) {
            r.memberfriction[1] = 0, r.memberattitude[1] = a, r.memberattitude[2] = hit ? a : 4;
            draws({(hit ? 0.999 : 1.001) / (a + 5)});
            if (hit) pick(2, 5);
            nobody_ill();  // would be a misbehaviour of slot 2 if it were tested
            EXPECT_TRUE(has({is("memos", run(50).size(), hit ? 1 : 0),
                             is("memberfriction(1)", hit ? 1 : 0), is("memberfriction(2)", 0)}))
                << a;
        }

    // Misbehaviour (kind 1 to 5 by Bob, from Mona) and press items (kind 1 to 3, from Dave), each
    // with the top draw of its popularity step; the floor of 0 comes after both.
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
    r.memberattitude = {0, 5, 2, 5, 5};
    for (const auto& c : cases) {
        r.memberfriction[2] = 0;
        c.bob ? picks({{1, 7}, {c.bob, 5}}) : draws({0.5});
        if (c.bob && c.top) pick(c.top, c.top);
        nobody_ill();
        if (c.press) draws({(c.press - 0.01) / 100});  // the top of its share
        if (c.press && c.top) pick(c.top, c.top);
        const Lines want{memo(c.bob ? "Mona" : "Dave", c.bob ? "Bob Axe" + c.text : c.text)};
        EXPECT_EQ(run(50, c.press), c.text.empty() ? Lines{} : want) << c.bob << c.press;
        EXPECT_TRUE(has({is("popularity", c.popularity), is("memberfriction(2)", c.friction)}))
            << c.text;
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

TEST_F(Events, OneIllnessAWeekReplacingWhatWasLeftAndInvitationsNeedMoreThanTwoHundred) {
    r.memberill[2] = 7;
    picks({{2, 1000}, {1, 1000}, {1, 10}});  // slots 3 and 4 are not tested
    EXPECT_EQ(run(50),
              Lines{memo("Mona", "Bob Axe has fallen ill and will be out for about 1 weeks.")});
    nobody_ill(3);
    picks({{1, 1000}, {10, 10}});
    EXPECT_EQ(run(50),
              Lines{memo("Mona", "Di Kit has fallen ill and will be out for about 10 weeks.")});
    EXPECT_TRUE(has({is("memberill(2)", 1), is("memberill(4)", 10)}));
    r.memberill = {};
    nobody_ill();
    EXPECT_TRUE(run(200).empty());  // no invitation draw at 200
    for (int k : {3, 2}) {
        nobody_ill();
        picks({{4, 100}, {k, 10}});
        EXPECT_EQ(run(500, true).size(), k == 2 ? 1u : 0u);
        EXPECT_TRUE(
            has({is("interviewkind", k == 2 ? 2 : 0), enabled(g.forms.main.interview, k == 2)}));
    }
    // A charity event lifts 200 to 201, and the invitation draw follows in the same week.
    nobody_ill();
    picks({{3, 100}, {1, 3}, {1, 10}});
    r.popularity = 200;
    exactly([&] { events(g); });
    EXPECT_EQ(memos().back(),
              memo("Dave", "Great news, Boss. The Band has been invited for a Radio interview!"));
    EXPECT_TRUE(has({is("popularity", 201), is("interviewkind", 1)}));
    EXPECT_EQ(click(g, "main", "interview"), ClickResult::NotUsableNow);  // a memo is open
}

}  // namespace
}  // namespace tourvane::testing

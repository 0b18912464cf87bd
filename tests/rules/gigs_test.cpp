// Gigs: booking from the office, the gig screen, the score, the crowd, the money and the
// newspaper report, all driven through the clicks a player makes.

#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

#include "rules/test_game.h"

namespace tourvane {
namespace {

using testing::okbox;

class GigsTest : public ::testing::Test, protected testing::TestGame {
  protected:
    void SetUp() override {
        new_game();
        arrange_band();
        lines.clear();
    }

    /// A full, fit band whose members add nothing to a score, three songs, every venue open.
    void arrange_band() {
        full_band({.talent = 4, .looks = 4, .happy = 4});
        const char* songs[] = {"", "Alpha", "Beta", "Gamma", "Delta", "Echo"};
        for (int s = 1; s <= 5; ++s) {
            r.songname[s] = songs[s];
            r.songquality[s] = 20;
        }
        r.songcount = 3;
        r.nextsong = 3;
        for (int v = 1; v <= 5; ++v) r.venueopen[v] = kTrue;
        r.popularity = 100;
        r.cash = 3000;
    }

    void set_qualities(std::initializer_list<int> q) {
        int s = 1;
        for (int v : q) r.songquality[s++] = static_cast<Integer>(v);
    }

    void open_and_book(int location) {
        ASSERT_EQ(click(g, "main", "command4"), ClickResult::Done);
        ASSERT_EQ(click(g, "gig", "location", location), ClickResult::Done);
        ASSERT_EQ(click(g, "gig", "command1"), ClickResult::Done);
    }

    void add_tracks(std::initializer_list<int> rows) {
        for (int row : rows) ASSERT_EQ(click(g, "gig", "Combo1", row), ClickResult::Done);
    }

    /// Books venue `location`, plays songs 1 to 3 and leaves the report open.
    void play_first_three(int location = 0) {
        open_and_book(location);
        add_tracks({0, 1, 2});
        lines.clear();  // only what the gig itself shows
        ASSERT_EQ(click(g, "gig", "command4"), ClickResult::Done);
    }

    /// Back to the office, and the hot-spot enabled again as next week's turn would.
    void next_gig() {
        ASSERT_EQ(click(g, "thenewspaper", "Label2"), ClickResult::Done);
        g.forms.main.command4.enabled = true;
    }

    std::vector<std::string> boxes() const {
        std::vector<std::string> out;
        for (const std::string& l : lines)
            if (l.rfind("msgbox", 0) == 0) out.push_back(l);
        return out;
    }
};

// --- opening the gig screen -------------------------------------------------------------

TEST_F(GigsTest, FitFullBandWithThreeSongsOpensGigInPlaceOfOffice) {
    r.venueopen[2] = kFalse;
    r.venueopen[5] = kFalse;
    ASSERT_EQ(click(g, "main", "command4"), ClickResult::Done);
    EXPECT_TRUE(g.memos.empty());
    EXPECT_TRUE(g.forms.gig.loaded && g.forms.gig.visible);
    EXPECT_FALSE(g.forms.main.visible);
    EXPECT_EQ(g.forms.gig.Combo1.rows, (std::vector<std::string>{"Alpha", "Beta", "Gamma"}));
    const bool open[] = {true, false, true, true, false};
    for (int k = 0; k < 5; ++k) EXPECT_EQ(g.forms.gig.location[k].enabled, open[k]) << k;

    // Until a venue is chosen only the venues and BACK respond; the office takes no clicks.
    EXPECT_EQ(click(g, "gig", "location", 1), ClickResult::Ignored);
    EXPECT_EQ(click(g, "gig", "command1"), ClickResult::Ignored);
    EXPECT_EQ(click(g, "gig", "Combo1", 0), ClickResult::Ignored);
    EXPECT_EQ(click(g, "gig", "command4"), ClickResult::Ignored);
    EXPECT_EQ(click(g, "main", "command6"), ClickResult::Ignored);
}

TEST_F(GigsTest, NoVenueOpenLeavesOnlyBack) {
    for (int v = 1; v <= 5; ++v) r.venueopen[v] = kFalse;
    ASSERT_EQ(click(g, "main", "command4"), ClickResult::Done);
    for (int k = 0; k < 5; ++k)
        EXPECT_EQ(click(g, "gig", "location", k), ClickResult::Ignored) << k;
    EXPECT_EQ(click(g, "gig", "Command2"), ClickResult::Done);
    EXPECT_TRUE(g.forms.main.visible);
}

TEST_F(GigsTest, SlotsAreWalkedInOrderEachWithBothTests) {
    // An ill member in slot 2 is reported ahead of the vacancy in slot 3, " weeks." even for 1.
    r.memberill[2] = 1;
    r.membername[3] = "None";
    ASSERT_EQ(click(g, "main", "command4"), ClickResult::Done);
    ASSERT_EQ(g.memos.size(), 1u);
    EXPECT_EQ(g.memos.front().from, "Mona");
    EXPECT_EQ(g.memos.front().text,
              "Bob Axe is ill and cannot perform, He is expected to be fit in 1 weeks.");
    EXPECT_FALSE(g.forms.gig.loaded);
    EXPECT_FALSE(g.forms.main.enabled);  // the memo holds the office

    // Anyone not "Male" is "She", also the "0" a removed member leaves behind.
    ASSERT_EQ(click(g, "messageForm", "command1"), ClickResult::Done);
    r.memberill[2] = 0;
    r.membername[3] = "Cy Low";
    r.memberill[4] = 7;
    r.membersex[4] = "0";
    ASSERT_EQ(click(g, "main", "command4"), ClickResult::Done);
    ASSERT_EQ(g.memos.size(), 1u);
    EXPECT_EQ(g.memos.front().text,
              "Di Kit is ill and cannot perform, She is expected to be fit in 7 weeks.");
}

TEST_F(GigsTest, VacantFirstSlotIsReportedAheadOfLaterIllness) {
    r.membername[1] = "None";
    r.memberill[2] = 3;
    ASSERT_EQ(click(g, "main", "command4"), ClickResult::Done);
    ASSERT_EQ(g.memos.size(), 1u);
    EXPECT_EQ(g.memos.front().from, "Mona");
    EXPECT_EQ(g.memos.front().text, "We need a full band to play a gig.");
}

TEST_F(GigsTest, TwoSongsAreTooFewAndComeAfterTheBandTests) {
    r.songcount = 2;
    ASSERT_EQ(click(g, "main", "command4"), ClickResult::Done);
    ASSERT_EQ(g.memos.size(), 1u);
    EXPECT_EQ(g.memos.front().from, "Dave");
    EXPECT_EQ(g.memos.front().text,
              "The band needs to have at least three songs before we can apply for a gig.");
    EXPECT_FALSE(g.forms.gig.loaded);
}

// --- venue and application --------------------------------------------------------------

TEST_F(GigsTest, VenueShowsCapacityTicketAndHireCost) {
    ASSERT_EQ(click(g, "main", "command4"), ClickResult::Done);
    const char* capacity[] = {"40", "240", "800", "1040", "1240"};
    const char* ticket[] = {"£2", "£3", "£4", "£6", "£7"};
    const char* hire[] = {"£0", "£240", "£1067", "£2080", "£2893"};
    const int cost[] = {0, 240, 1067, 2080, 2893};
    for (int k = 0; k < 5; ++k) {
        ASSERT_EQ(click(g, "gig", "location", k), ClickResult::Done);
        EXPECT_EQ(g.forms.gig.txtcapacity.caption, capacity[k]) << k;
        EXPECT_EQ(g.forms.gig.txtticket.caption, ticket[k]) << k;
        EXPECT_EQ(g.forms.gig.txthire.caption, hire[k]) << k;
        EXPECT_EQ(r.hirecost, cost[k]) << k;
        EXPECT_EQ(g.gig.gigvenue, k + 1);
        EXPECT_TRUE(g.forms.gig.command1.enabled);
    }

    // The first venue is free for being the first, whatever its figures.
    r.venuefame[1] = 300;
    r.ticketprice[1] = 9;
    ASSERT_EQ(click(g, "gig", "location", 0), ClickResult::Done);
    EXPECT_EQ(g.forms.gig.txtcapacity.caption, "1200");
    EXPECT_EQ(r.hirecost, 0);
}

TEST_F(GigsTest, ApplicationComparesPopularityWithVenueFame) {
    r.popularity = 199;  // Town Hall asks for 200
    ASSERT_EQ(click(g, "main", "command4"), ClickResult::Done);
    ASSERT_EQ(click(g, "gig", "location", 2), ClickResult::Done);
    ASSERT_EQ(click(g, "gig", "command1"), ClickResult::Done);
    EXPECT_EQ(boxes(), std::vector<std::string>{okbox(
                           "Sorry, but your band is not well known enough to play at our venue.")});
    EXPECT_FALSE(g.forms.gig.Combo1.enabled);
    EXPECT_FALSE(g.forms.gig.command3.enabled);
    EXPECT_FALSE(g.forms.gig.command4.enabled);

    lines.clear();
    r.popularity = 200;
    ASSERT_EQ(click(g, "gig", "command1"), ClickResult::Done);
    EXPECT_EQ(boxes(),
              std::vector<std::string>{okbox("We would be delighted for you to come and play!")});
    EXPECT_TRUE(g.forms.gig.Combo1.enabled);
    EXPECT_TRUE(g.forms.gig.command3.enabled);
    EXPECT_TRUE(g.forms.gig.command4.enabled);

    // Acceptance lasts the visit: a dearer venue needs no new application, and a refused one
    // takes nothing back.
    ASSERT_EQ(click(g, "gig", "location", 4), ClickResult::Done);
    EXPECT_EQ(g.gig.gigvenue, 5);
    EXPECT_EQ(r.hirecost, 2893);
    ASSERT_EQ(click(g, "gig", "command1"), ClickResult::Done);
    EXPECT_TRUE(g.forms.gig.Combo1.enabled);
}

// --- set list ---------------------------------------------------------------------------

TEST_F(GigsTest, TrackPicksRefuseRepeatsAndAFourthTrack) {
    r.songcount = 4;
    open_and_book(0);
    lines.clear();
    add_tracks({1, 1});
    EXPECT_EQ(boxes(), std::vector<std::string>{okbox("This track is already on the list!")});
    EXPECT_EQ(g.gig.tracksadded, 1);
    EXPECT_EQ(g.forms.gig.tracks[0].caption, "1. Beta");
    EXPECT_EQ(g.forms.gig.tracks[1].caption, "");

    lines.clear();
    add_tracks({3, 0, 2});
    EXPECT_EQ(boxes(), std::vector<std::string>{okbox("No more tracks can be added")});
    EXPECT_EQ(g.gig.tracksadded, 3);
    EXPECT_EQ(r.setlist[1], 2);
    EXPECT_EQ(r.setlist[2], 4);
    EXPECT_EQ(r.setlist[3], 1);
    EXPECT_EQ(g.forms.gig.tracks[2].caption, "3. Alpha");

    ASSERT_EQ(click(g, "gig", "command3"), ClickResult::Done);
    EXPECT_EQ(g.gig.tracksadded, 0);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(g.forms.gig.tracks[i].caption, "");
    for (int i = 1; i <= 3; ++i) EXPECT_EQ(r.setlist[i], 0);
    add_tracks({1});
    EXPECT_EQ(g.forms.gig.tracks[0].caption, "1. Beta");
}

TEST_F(GigsTest, BackKeepsTheSetListBehindEmptyLabels) {
    open_and_book(1);
    add_tracks({2, 0});
    ASSERT_EQ(click(g, "gig", "Command2"), ClickResult::Done);
    EXPECT_FALSE(g.forms.gig.loaded);
    EXPECT_TRUE(g.forms.main.visible);
    EXPECT_EQ(g.gig.tracksadded, 2);
    EXPECT_EQ(g.gig.gigvenue, 2);
    EXPECT_EQ(r.hirecost, 240);

    ASSERT_EQ(click(g, "main", "command4"), ClickResult::Done);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(g.forms.gig.tracks[i].caption, "");
    EXPECT_FALSE(g.forms.gig.command1.enabled);
    EXPECT_FALSE(g.forms.gig.Combo1.enabled);
    EXPECT_EQ(g.forms.gig.txthire.caption, "0");
    ASSERT_EQ(click(g, "gig", "location", 0), ClickResult::Done);
    ASSERT_EQ(click(g, "gig", "command1"), ClickResult::Done);
    lines.clear();
    add_tracks({0, 1});  // song 1 is still on the hidden list
    EXPECT_EQ(boxes(), std::vector<std::string>{okbox("This track is already on the list!")});
    EXPECT_EQ(g.forms.gig.tracks[0].caption, "");
    EXPECT_EQ(g.forms.gig.tracks[2].caption, "3. Beta");
    EXPECT_EQ(g.gig.tracksadded, 3);
}

TEST_F(GigsTest, ShortListIsRefusedAndChangesNothing) {
    open_and_book(0);
    add_tracks({0, 1});
    lines.clear();
    ASSERT_EQ(click(g, "gig", "command4"), ClickResult::Done);
    EXPECT_EQ(boxes(), std::vector<std::string>{okbox("You must have a full list of songs!")});
    EXPECT_TRUE(g.forms.gig.visible);
    EXPECT_EQ(g.gig.tracksadded, 2);
    EXPECT_EQ(g.forms.gig.tracks[1].caption, "2. Beta");
    EXPECT_EQ(r.popularity, 100);
    EXPECT_EQ(r.cash, 3000);
    EXPECT_FALSE(g.forms.thenewspaper.loaded);
    EXPECT_EQ(g.rnd.queued_left(), 0u);
}

// --- the gig itself ---------------------------------------------------------------------

TEST_F(GigsTest, WorkedExampleFromBookingToOffice) {
    set_qualities({30, 25, 20});
    const int talent[] = {0, 5, 5, 3, 6}, looks[] = {0, 4, 7, 2, 5};
    const int happy[] = {0, 10, 5, 3, 7}, friction[] = {0, 0, 1, 0, 2};
    for (int i = 1; i <= 4; ++i) {
        r.membertalent[i] = static_cast<Integer>(talent[i]);
        r.memberlooks[i] = static_cast<Integer>(looks[i]);
        r.memberhappy[i] = static_cast<Integer>(happy[i]);
        r.memberfriction[i] = static_cast<Integer>(friction[i]);
    }
    pick(1, 2);  // the opening sentence
    pick(3, 5);  // the closing phrase
    play_first_three(1);

    EXPECT_EQ(g.gig.gigscore, 98);
    EXPECT_EQ(r.popularity, 124);
    EXPECT_EQ(r.attendance, 31);
    EXPECT_EQ(r.gigprofit, -147);
    EXPECT_EQ(r.cash, 3000 - 147);
    EXPECT_EQ(r.bestsong, 1);
    EXPECT_EQ(g.gig.tracksadded, 0);
    for (int i = 1; i <= 3; ++i) EXPECT_EQ(r.setlist[i], 0);
    for (int i = 1; i <= 4; ++i) EXPECT_EQ(r.memberhappy[i], happy[i]);
    EXPECT_EQ(g.rnd.queued_left(), 0u);
    EXPECT_TRUE(boxes().empty());

    const NewspaperForm& news = g.forms.thenewspaper;
    EXPECT_FALSE(g.forms.gig.loaded);
    EXPECT_TRUE(news.loaded && news.visible);
    EXPECT_FALSE(g.forms.main.visible);
    EXPECT_FALSE(g.forms.main.command4.enabled);
    EXPECT_EQ(news.txtnews.caption,
              "The Wasps played a poor gig last night although there were flashes of promise "
              "from certain individuals. The best song of the gig was Alpha which really fired "
              "up the crowd.");
    EXPECT_EQ(news.txtattend.caption, "31");
    EXPECT_EQ(news.txtprofit.caption, "£-147");

    ASSERT_EQ(click(g, "thenewspaper", "Label2"), ClickResult::Done);
    EXPECT_FALSE(g.forms.thenewspaper.loaded);
    EXPECT_TRUE(g.forms.main.visible);
    EXPECT_EQ(g.forms.main.txtcash.caption, "£ 2853");
    EXPECT_EQ(click(g, "main", "command4"), ClickResult::Ignored);  // one gig a week
}

TEST_F(GigsTest, MemberValuesCountByTheirThresholds) {
    set_qualities({20, 20, 20});
    struct Case {
        int talent, looks, happy, score;
    };
    // One member differs from the neutral 4/4/4 band each time.
    const Case cases[] = {
        {4, 4, 3, 59}, {4, 4, 4, 60}, {4, 4, 6, 60}, {4, 4, 7, 67}, {6, 4, 4, 66},  {4, 6, 4, 60},
        {5, 4, 4, 60}, {3, 4, 4, 59}, {4, 7, 4, 67}, {0, 4, 4, 56}, {4, 4, -1, 55},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << c.talent << "/" << c.looks << "/" << c.happy);
        r.membertalent[3] = static_cast<Integer>(c.talent);
        r.memberlooks[3] = static_cast<Integer>(c.looks);
        r.memberhappy[3] = static_cast<Integer>(c.happy);
        r.popularity = 100;
        pick(1, 2);
        pick(1, 5);
        play_first_three();
        EXPECT_EQ(g.gig.gigscore, c.score);
        EXPECT_EQ(r.popularity, 100 + c.score / 4);
        next_gig();
    }
}

TEST_F(GigsTest, FrictionFloorsTheScoreAtZeroOnlyAtTheEnd) {
    set_qualities({10, 10, 10});
    r.memberfriction[2] = 40;  // 30 - 40 = -10 on the way ...
    r.memberhappy[4] = 10;     // ... and back to 0 with the last member's happiness
    pick(1, 4);
    pick(1, 2);
    pick(1, 5);
    play_first_three();
    EXPECT_EQ(g.gig.gigscore, 0);
    EXPECT_EQ(r.popularity, 100);
    EXPECT_EQ(r.memberhappy[1], 3);  // a score of 0 is a very bad gig
}

TEST_F(GigsTest, RepeatedSongPaysOnlyWhenItIsGreat) {
    // The screen keeps a song off the list twice; a list made some other way still plays.
    for (int great : {0, 1}) {
        SCOPED_TRACE(great);
        const int q = great ? 80 : 79;
        set_qualities({q, 20, 20});
        open_and_book(0);
        add_tracks({0, 1, 2});
        r.setlist[2] = 1;  // song 1 twice, then song 3
        pick(1, 2);
        pick(1, 5);
        ASSERT_EQ(click(g, "gig", "command4"), ClickResult::Done);
        EXPECT_EQ(g.gig.gigscore, great ? 80 + 80 + 20 : 20);
        EXPECT_EQ(r.bestsong, 1);
        next_gig();
    }
}

TEST_F(GigsTest, BestSongIsTheEarliestOfTheBestPlayed) {
    r.songcount = 5;
    set_qualities({50, 10, 30, 40, 40});
    open_and_book(0);
    add_tracks({2, 4, 3});  // songs 3, 5, 4: the two best are equal
    pick(1, 2);
    pick(1, 5);
    ASSERT_EQ(click(g, "gig", "command4"), ClickResult::Done);
    EXPECT_EQ(r.bestsong, 5);
    EXPECT_NE(g.forms.thenewspaper.txtnews.caption.find("was Echo which went down a storm!"),
              std::string::npos);
}

TEST_F(GigsTest, CrowdFollowsTheRaisedPopularityUpToCapacity) {
    set_qualities({20, 20, 20});  // score 60, popularity +15
    struct Case {
        int popularity, attendance;
    };
    // At the Rose and Crown (capacity 40, £2, free): 145 + 15 gives exactly 40 fans, 149 + 15
    // gives 41 though 149 alone would give 37.
    for (const Case c : {Case{145, 40}, Case{149, 40}, Case{141, 39}}) {
        SCOPED_TRACE(c.popularity);
        r.popularity = static_cast<Integer>(c.popularity);
        r.cash = 10;
        pick(1, 2);
        pick(1, 5);
        play_first_three(0);
        EXPECT_EQ(r.attendance, c.attendance);
        EXPECT_EQ(r.gigprofit, 2 * c.attendance);
        EXPECT_EQ(r.cash, 10 + 2 * c.attendance);
        EXPECT_EQ(g.forms.thenewspaper.txtprofit.caption, "£" + std::to_string(2 * c.attendance));
        next_gig();
    }
}

TEST_F(GigsTest, HireIsChargedEvenWhenTheCashRunsOut) {
    r.popularity = 320;  // score 60 lifts it to 335: 83 fans at the Plaza
    r.cash = 100;
    pick(1, 2);
    pick(1, 5);
    play_first_three(4);
    EXPECT_EQ(r.attendance, 83);
    EXPECT_EQ(r.gigprofit, 7 * 83 - 2893);
    EXPECT_EQ(r.cash, 100 + 7 * 83 - 2893);
}

// --- the report -------------------------------------------------------------------------

struct Review {
    int score, wording;
    const char* opening;
};

void PrintTo(const Review& r, std::ostream* os) {
    *os << "score " << r.score << " wording " << r.wording;
}

class GigReportTest : public GigsTest, public ::testing::WithParamInterface<Review> {};

TEST_P(GigReportTest, OpeningFollowsScoreAndDraw) {
    const Review& p = GetParam();
    // Three songs make the whole score; the members add nothing.
    const int a = p.score / 3, b = p.score / 3, c = p.score - 2 * (p.score / 3);
    set_qualities({a, b, c});
    const bool very_bad = p.score < 20;
    if (very_bad) pick(3, 4);
    pick(p.wording, 2);
    pick(4, 5);
    play_first_three();
    ASSERT_EQ(g.gig.gigscore, p.score);
    EXPECT_EQ(g.rnd.queued_left(), 0u);
    EXPECT_EQ(r.newstext, std::string(p.opening));
    EXPECT_EQ(g.forms.thenewspaper.txtnews.caption,
              std::string(p.opening) + " The best song of the gig was " + r.songname[r.bestsong] +
                  " which recieved a good response from the crowd.");
    if (very_bad) {
        EXPECT_EQ(boxes(), std::vector<std::string>{
                               okbox("Cy Low was extremely unhappy with the bands performance!")});
        EXPECT_EQ(r.memberhappy[3], 3);
    } else {
        EXPECT_TRUE(boxes().empty());
        EXPECT_EQ(r.memberhappy[3], 4);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Boundaries, GigReportTest,
    ::testing::Values(
        Review{19, 1,
               "The Wasps played a terrible set last night. Lets hope they improve vastly in the "
               "near future, or there may be no future for them!"},
        Review{20, 2,
               "The band The Wasps were the target of an angry crowd last night as their poor "
               "performance left many people asking why they even turned up!"},
        Review{49, 1,
               "The Wasps played a terrible set last night. Lets hope they improve vastly in the "
               "near future, or there may be no future for them!"},
        Review{50, 1,
               "The Wasps played a poor gig last night although there were flashes of promise "
               "from certain individuals."},
        Review{149, 2,
               "The band The Wasps performed a less than average gig last night, prompting "
               "discussion about their future."},
        Review{150, 1,
               "The Wasps played a pretty good gig last night, although many agreed they are far "
               "off the finished article."},
        Review{199, 2,
               "New band The Wasps performed an average gig last night, nothing special but the "
               "fans were happy."},
        Review{200, 1,
               "The Wasps played an excellent gig last night, the crowd loved every minute."},
        Review{230, 2, "New band The Wasps performed a exceptional gig last night."}));

TEST_F(GigsTest, VeryBadGigHurtsTheDrawnMemberWithNoFloor) {
    set_qualities({1, 1, 1});
    r.memberhappy[4] = 0;
    pick(4, 4);
    pick(2, 2);
    pick(2, 5);
    play_first_three();
    EXPECT_EQ(r.memberhappy[4], -1);
    for (int i = 1; i <= 3; ++i) EXPECT_EQ(r.memberhappy[i], 4);
    EXPECT_EQ(boxes(), std::vector<std::string>{
                           okbox("Di Kit was extremely unhappy with the bands performance!")});
    // Phrase 2 has no full stop.
    const std::string& news = g.forms.thenewspaper.txtnews.caption;
    const std::string tail = "Alpha which appeared to strike a rapport with the crowd";
    ASSERT_GE(news.size(), tail.size());
    EXPECT_EQ(news.substr(news.size() - tail.size()), tail);
}

}  // namespace
}  // namespace tourvane

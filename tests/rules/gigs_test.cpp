// Gigs: booking from the office, the gig screen, the score, the crowd, the money and the
// newspaper report, all driven through the clicks a player makes.

#include "rules/gigs/booking.h"
#include "rules/gigs/report.h"
#include "rules/test_game.h"

namespace tourvane::testing {
namespace {

/// A full, fit band whose members add nothing to a score, three songs, every venue open.
struct GigsTest : Office {
    void SetUp() override {
        full_band({.talent = 4, .looks = 4, .happy = 4});
        const char* songs[] = {"", "Alpha", "Beta", "Gamma", "Delta", "Echo"};
        for (int s = 1; s <= 5; ++s) r.songname[s] = songs[s], r.songquality[s] = 20;
        r.songcount = r.nextsong = 3, r.popularity = 100;
        r.venueopen = {0, -1, -1, -1, -1, -1};
    }
    void set_qualities(const std::vector<int>& q) {
        for (std::size_t s = 0; s < q.size(); ++s) r.songquality[s + 1] = q[s];
    }
    void open_and_book(int location) {
        ASSERT_EQ(click(g, "main", "command4"), ClickResult::Done);
        ASSERT_EQ(click(g, "gig", "location", location), ClickResult::Done);
        ASSERT_EQ(click(g, "gig", "command1"), ClickResult::Done);
    }
    void add_tracks(std::initializer_list<int> rows) {
        for (int row : rows) ASSERT_EQ(click(g, "gig", "Combo1", row), ClickResult::Done);
    }
    /// Books venue `location`, plays songs 1 to 3 with the opening and closing picks given,
    /// and leaves the report open with only the gig's own lines kept.
    void play(int location = 0, int opening = 1, int closing = 1) {
        open_and_book(location);
        add_tracks({0, 1, 2});
        lines.clear();
        picks({{opening, 2}, {closing, 5}});
        exactly([&] { ASSERT_EQ(click(g, "gig", "command4"), ClickResult::Done); });
    }
    /// Back to the office, and the hot-spot enabled again as next week's turn would.
    void next_gig() {
        ASSERT_EQ(click(g, "thenewspaper", "Label2"), ClickResult::Done);
        g.forms.main.command4.enabled = true;
    }
    Lines boxes() const {
        Lines out = lines;
        std::erase_if(out, [](const Shown& s) { return s.kind != Shown::Kind::Box; });
        return out;
    }
};

TEST_F(GigsTest, SlotsAreWalkedInOrderThenTheSongsAreCounted) {
    const std::string ill = " is ill and cannot perform, ";
    const struct {
        int ill2, vacant, ill4;
        const char* sex4;
        std::string text;
    } cases[] = {
        // An illness in slot 2 comes ahead of the vacancy in slot 3, " weeks." even for 1.
        {1, 3, 0, "Male", "Bob Axe" + ill + "He is expected to be fit in 1 weeks."},
        {3, 1, 0, "Male", "We need a full band to play a gig."},
        // Anyone not "Male" is "She", also the "0" a removed member leaves behind.
        {0, 0, 7, "0", "Di Kit" + ill + "She is expected to be fit in 7 weeks."},
        {0, 0, 0, "Male",
         "The band needs to have at least three songs before we can apply for a gig."},
    };
    for (const auto& c : cases) {
        SetUp();
        r.memberill = {0, 0, Integer(c.ill2), 0, Integer(c.ill4)};
        if (c.vacant) r.membername[c.vacant] = "None";
        r.membersex[4] = c.sex4, r.songcount = c.text[0] == 'T' ? 2 : 3;
        click(g, "main", "command4");
        EXPECT_FALSE(g.forms.gig.loaded);
        said({memo(c.text[0] == 'T' ? "Dave" : "Mona", c.text)});
    }
}

TEST_F(GigsTest, OpenVenuesTheirFiguresAndTheApplication) {
    r.venueopen[2] = r.venueopen[5] = 0;
    click(g, "main", "command4");
    const GigForm& f = g.forms.gig;
    EXPECT_EQ(f.Combo1.rows, (Rows{"Alpha", "Beta", "Gamma"}));
    // Until a venue is chosen only the open venues and BACK respond; the office is hidden.
    EXPECT_TRUE(
        has({enabled(f.location[0], true), enabled(f.location[1], false),
             enabled(f.location[2], true), enabled(f.location[3], true),
             enabled(f.location[4], false), enabled(f.command1, false), enabled(f.Combo1, false),
             enabled(f.command4, false), is("main.visible", g.forms.main.visible, false)}));
    r.venueopen[2] = r.venueopen[5] = -1;
    load_gig(g);
    const struct {
        const char *capacity, *ticket, *hire;
        int venue, hirecost;
    } shown[] = {{"40", "£2", "£0", 1, 0},
                 {"240", "£3", "£240", 2, 240},
                 {"800", "£4", "£1067", 3, 1067},
                 {"1040", "£6", "£2080", 4, 2080},
                 {"1240", "£7", "£2893", 5, 2893}};
    for (int k = 0; k < 5; ++k) {
        click(g, "gig", "location", k);
        const auto& c = shown[k];
        EXPECT_TRUE(
            has({is(f.txtcapacity, c.capacity), is(f.txtticket, c.ticket), is(f.txthire, c.hire),
                 is("gigvenue", c.venue), is("hirecost", c.hirecost)}));
    }
    r.popularity = 199;  // Town Hall asks for 200
    click(g, "gig", "location", 2);
    click(g, "gig", "command1");
    EXPECT_FALSE(f.Combo1.enabled || f.command3.enabled || f.command4.enabled);
    r.popularity = 200;
    click(g, "gig", "command1");
    EXPECT_EQ(boxes(), (Lines{okbox("Sorry, but your band is not well known enough to play at "
                                    "our venue."),
                              okbox("We would be delighted for you to come and play!")}));
    EXPECT_TRUE(f.Combo1.enabled && f.command3.enabled && f.command4.enabled);
    click(g, "gig", "location", 4);  // acceptance lasts the visit
    EXPECT_TRUE(f.Combo1.enabled);
    r.venuefame[1] = 300;  // the first venue is free for being the first
    click(g, "gig", "location", 0);
    EXPECT_TRUE(has({is(f.txtcapacity, 1200), is(f.txthire, "£0")}));
}

TEST_F(GigsTest, TrackPicksClearingAndAShortListIsRefused) {
    const GigForm& f = g.forms.gig;
    r.songcount = 4;
    open_and_book(1);
    lines.clear();
    add_tracks({1, 1, 3, 0, 2});
    EXPECT_EQ(boxes(), (Lines{okbox("This track is already on the list!"),
                              okbox("No more tracks can be added")}));
    EXPECT_TRUE(has({is("setlist(1..3)", "2 4 1"), is(f.tracks[2], "3. Alpha")}));
    click(g, "gig", "command3");  // CLEAR LIST
    EXPECT_TRUE(
        has({is("tracksadded", 0), is("setlist(1)", 0), is("setlist(3)", 0), is(f.tracks[2], "")}));
    add_tracks({2, 0});
    lines.clear();
    click(g, "gig", "command4");
    EXPECT_EQ(boxes(), Lines{okbox("You must have a full list of songs!")});
    EXPECT_TRUE(has({is("gig.visible", f.visible, true), is("popularity", 100), is("cash", 3000)}));
}

TEST_F(GigsTest, WorkedExampleFromBookingToOffice) {
    set_qualities({30, 25, 20});
    r.membertalent = {0, 5, 5, 3, 6}, r.memberlooks = {0, 4, 7, 2, 5};
    r.memberhappy = {0, 10, 5, 3, 7}, r.memberfriction = {0, 0, 1, 0, 2};
    play(1, 1, 3);
    const NewspaperForm& news = g.forms.thenewspaper;
    EXPECT_TRUE(
        has({is("gigscore", 98), is("popularity", 124), is("attendance", 31), is("gigprofit", -147),
             is("cash", 2853), is("bestsong", 1), is("tracksadded", 0),
             is("setlist(1..3)", "0 0 0"), is("memberhappy(1..4)", "10 5 3 7"),
             is("boxes", boxes().size(), 0), is("thenewspaper.visible", news.visible, true),
             is("gig.loaded", g.forms.gig.loaded, false),
             is("main.visible", g.forms.main.visible, false), is(news.txtattend, 31),
             is(news.txtprofit, "£-147")}));
    EXPECT_EQ(news.txtnews.caption.substr(104),
              "The best song of the gig was Alpha which really fired up the crowd.");
    EXPECT_EQ(g.diary.back().from + "|" + g.diary.back().text,
              "Gig Report|" + news.txtnews.caption + " The gig drew 31 people and lost £147.");
    click(g, "thenewspaper", "Label2");
    EXPECT_TRUE(
        has({is("main.visible", g.forms.main.visible, true),
             is("thenewspaper.loaded", news.loaded, false), is(g.forms.main.txtcash, "£ 2853")}));
    EXPECT_EQ(click(g, "main", "command4"), ClickResult::NotUsableNow);  // one gig a week
}

TEST_F(GigsTest, MemberValuesCountByTheirThresholdsTheCrowdFollowsPopularityAndTheSetList) {
    // One member differs from the neutral 4/4/4 band each time: {talent, looks, happy, score}.
    const Integer cases[][4] = {{4, 4, 3, 59}, {4, 4, 4, 60}, {4, 4, 6, 60}, {4, 4, 7, 67},
                                {6, 4, 4, 66}, {4, 6, 4, 60}, {5, 4, 4, 60}, {3, 4, 4, 59},
                                {4, 7, 4, 67}, {0, 4, 4, 56}, {4, 4, -1, 55}};
    for (const auto& [talent, looks, happy, score] : cases) {
        r.membertalent[3] = talent, r.memberlooks[3] = looks, r.memberhappy[3] = happy;
        r.popularity = 100;
        play();
        EXPECT_TRUE(has({is("gigscore", score), is("popularity", 100 + score / 4)}))
            << talent << "/" << looks << "/" << happy;
        next_gig();
    }
    r.memberhappy[3] = 4;  // back to the neutral band
    // Score 60 adds 15. At the Rose and Crown (capacity 40, £2, free): 145 + 15 gives exactly
    // 40 fans, 149 + 15 gives 41 though 149 alone would give 37.
    for (auto [popularity, fans] : {std::pair{145, 40}, {149, 40}, {141, 39}}) {
        r.popularity = popularity, r.cash = 10;
        play();
        EXPECT_TRUE(has({is("attendance", fans), is("cash", 10 + 2 * fans),
                         is(g.forms.thenewspaper.txtprofit, "£" + std::to_string(2 * fans))}));
        next_gig();
    }

    // A repeat pays only when the song is great; the screen keeps a song off the list twice,
    // but a list made some other way still plays. The best song is the earliest of the best,
    // the last on the list too.
    const struct {
        std::vector<int> quality, rows;
        int repeat, score, best;
    } lists[] = {{{79, 20, 20}, {0, 1, 2}, 1, 20, 1},
                 {{80, 20, 20}, {0, 1, 2}, 1, 180, 1},
                 {{50, 10, 30, 40, 40}, {2, 4, 3}, 0, 110, 5},
                 {{10, 20, 30}, {0, 1, 2}, 0, 60, 3}};
    for (const auto& c : lists) {
        r.songcount = c.quality.size();
        set_qualities(c.quality);
        open_and_book(0);
        for (int row : c.rows) click(g, "gig", "Combo1", row);
        if (c.repeat) r.setlist[2] = c.repeat;
        picks({{1, 2}, {1, 5}});
        click(g, "gig", "command4");
        EXPECT_TRUE(has({is("gigscore", c.score), is("bestsong", c.best)}));
        next_gig();
    }
}

TEST_F(GigsTest, ReportOpensByScoreAndDrawAndAVeryBadGigHurtsOneMember) {
    const std::string w = "The Wasps played a", nw = "New band The Wasps performed a";
    const std::string terrible = w +
                                 " terrible set last night. Lets hope they improve vastly in "
                                 "the near future, or there may be no future for them!";
    const struct {
        int score, wording;
        std::string opening;
    } cases[] = {
        {19, 1, terrible},
        {20, 2,
         "The band The Wasps were the target of an angry crowd last night as their poor "
         "performance left many people asking why they even turned up!"},
        {49, 1, terrible},
        {50, 1,
         w + " poor gig last night although there were flashes of promise from certain "
             "individuals."},
        {149, 2,
         "The band The Wasps performed a less than average gig last night, prompting "
         "discussion about their future."},
        {150, 1,
         w + " pretty good gig last night, although many agreed they are far off the "
             "finished article."},
        {199, 2, nw + "n average gig last night, nothing special but the fans were happy."},
        {200, 1, w + "n excellent gig last night, the crowd loved every minute."},
        {230, 2, nw + " exceptional gig last night."},
    };
    for (const auto& c : cases) {
        set_qualities({c.score / 3, c.score / 3, c.score - 2 * (c.score / 3)});
        r.memberhappy[3] = 4;
        if (c.score < 20) pick(3, 4);
        play(0, c.wording, 4);
        EXPECT_EQ(g.forms.thenewspaper.txtnews.caption,
                  c.opening + " The best song of the gig was " + r.songname[r.bestsong] +
                      " which recieved a good response from the crowd.");
        EXPECT_TRUE(has({is("gigscore", c.score), is("memberhappy(3)", c.score < 20 ? 3 : 4),
                         is("boxes", boxes().size(), c.score < 20 ? 1 : 0)}));
        next_gig();
    }
    // The drawn member takes it badly with no floor; the score is floored only at the end.
    set_qualities({10, 10, 10});
    r.popularity = 100, r.memberfriction[2] = 40;  // 30 - 40 = -10 on the way ...
    r.memberhappy[4] = 10;  // ... and back to 0 with the last member's happiness
    pick(4, 4);
    play(0, 2, 2);
    EXPECT_TRUE(
        has({is("gigscore", 0), is("popularity", 100), is("memberhappy(1..4)", "4 4 4 9")}));
    r.memberhappy[4] = 0;
    next_gig();
    pick(4, 4);
    play(0, 2, 2);
    EXPECT_TRUE(has({is("gigscore", 0), is("memberhappy(4)", -1)}));  // -14 before the floor
    EXPECT_EQ(boxes(), Lines{okbox("Di Kit was extremely unhappy with the bands performance!")});
    const std::string& news = g.forms.thenewspaper.txtnews.caption;  // phrase 2 has no full stop
    EXPECT_EQ(news.substr(news.size() - 22), "rapport with the crowd");
}

TEST(GigReport, TheDiaryTellsTheCrowdAndTheMoneyInASentence) {
    Module1 r;
    const struct {
        Integer heads, profit;
        const char* says;
    } cases[] = {{0, 0, "The gig drew nobody and broke even."},
                 {1, 12, "The gig drew 1 person and made £12."},
                 {31, -147, "The gig drew 31 people and lost £147."}};
    for (const auto& c : cases) {
        r.attendance = c.heads, r.gigprofit = c.profit;
        EXPECT_EQ(report_for_diary(r, "Good."), std::string("Good. ") + c.says);
    }
}

}  // namespace
}  // namespace tourvane::testing

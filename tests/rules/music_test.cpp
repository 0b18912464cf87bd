// Music: writing songs and the song clock, the record label's verdict and contract, and
// singles with their sales, royalties, hype and promotion.
#include "rules/music/label.h"
#include "rules/music/singles.h"
#include "rules/music/songs.h"
#include "rules/week/turn.h"
#include "test_game.h"

namespace tourvane::testing {
namespace {

const Shown kStarted = memo("Dave", "Good news, Boss. The band has started writing a new song!");
const Shown kFinished = memo("Dave", "The band has finished writing a new song!");

using Songs = Office;

TEST_F(Songs, RefusalsComeInOrderAndChangeNothingThenTheSongStarts) {
    const Lines limit{okbox("You have reached the limit of 20 songs!")};
    r.membername[1] = "None";  // the first slot counts too
    r.songweeks = 5, r.songcount = 20;
    draws({0.5});  // must stay undrawn
    EXPECT_EQ(office("command1"), limit);
    r.songcount = 19;
    EXPECT_EQ(office("command1"), Lines{memo("Dave", "The band is currently working on a song.")});
    r.songweeks = 10;
    EXPECT_EQ(office("command1"),
              Lines{memo("Dave", "You need a full band to write a song, Boss")});
    full_band();
    r.songcount = 20;
    EXPECT_EQ(office("command1"), limit);
    EXPECT_TRUE(has({is("songweeks", 10), is("draws left", g.rnd.queued_left(), 1)}));
    // A rested band starts at once; a tired band is asked, and Yes costs happiness.
    g.rnd.clear_queue(), r.songcount = 3;
    for (int k : {1, 4}) {
        r.songweeks = 10;
        pick(k, 4);
        EXPECT_EQ(office("command1"), Lines{kStarted});
        EXPECT_EQ(r.songweeks, k + 3);  // four to seven weeks
    }
    const std::string ask =
        "The band wants a rest before starting on a new song. Make them record anyway?";
    r.tiredness = 1, r.songweeks = 10;
    set_happy(1, 10, 5, 0);
    pick(2, 4);
    no();
    EXPECT_EQ(office("command1"), Lines{yesno(ask, false)});
    EXPECT_TRUE(has({is("memberhappy(1..4)", "1 10 5 0"), is("songweeks", 10)}));
    yes();
    EXPECT_EQ(office("command1"), (Lines{yesno(ask, true), kStarted}));
    EXPECT_TRUE(has({is("memberhappy(1..4)", "0 9 4 0"), is("songweeks", 5), is("tiredness", 1),
                     is("cash", 3000)}));
}

TEST_F(Songs, MakesongDrawsQualityInSlotOrderThenTirednessThenTitleAndTheTurnCallsIt) {
    // Slot 2 was left mid-song: its talent and creativity of 0 count 1 each.
    put(1, "Ann Vox", {.talent = 5, .creativity = 3});
    r.membername[2] = "None", r.membertalent[2] = r.membercreativity[2] = 0;
    put(3, "Cy Low", {.talent = 4, .creativity = 2});
    put(4, "Di Kit", {.talent = 2, .creativity = 1});
    songs({20, 20, 20});
    r.tiredness = 9;
    picks({{5, 5}, {1, 3}});            // slot 1: talent 5, creativity 1
    draws({0.7, 0.7});                  // slot 2: 1 and 1
    picks({{2, 4}, {2, 2}, {2, 2}});    // slot 3: 2 and 2, slot 4: talent 2
    draws({0.1});                       // slot 4: creativity 1
    picks({{1, 3}, {1, 20}, {6, 20}});  // tiredness 2, replacing 9; "Wild" " Love"
    exactly([&] { makesong(g); });
    EXPECT_TRUE(has({is("songquality(4)", 15), is("songname(4)", "Wild Love"), is("tiredness", 2),
                     is("nextsong", 4), is("songcount", 4)}));
    EXPECT_EQ(g.forms.main.songlist.rows, (Rows{"Song 1", "Song 2", "Song 3", "Wild Love"}));
    said({kFinished});
    full_band({.talent = 1, .creativity = 1});  // a band of 1s always writes quality 8
    for (int i = 0; i < 8; ++i) draws({0.999});
    picks({{3, 3}, {20, 20}, {20, 20}});
    makesong(g);
    EXPECT_TRUE(
        has({is("songname(5)", "Shocked Feelings"), is("songquality(5)", 8), is("tiredness", 4)}));
    said({kFinished});
    // The turn that finishes a song leaves a tiredness of 1 to 3.
    calm_chart();
    for (int tired : {0, 2}) {
        r.songweeks = 1, r.tiredness = 6;
        for (int i = 0; i < 8; ++i) draws({0.5});
        pick(tired + 1, 3);
        draws({0.5, 0.5});
        week_start();
        week_end(false);
        command6(g);
        EXPECT_TRUE(has({is("draws left", g.rnd.queued_left(), 0), is("tiredness", tired + 1),
                         is("songweeks", 10)}));
        EXPECT_EQ(memos().front(), kFinished);
        ok_memos();
    }
}

const Shown kSigned =
    memo("Dave", "Superstar Records loved the demo tape and have signed the band!");
const Shown kRejected = memo("Mona", "The record label rejected our demo tape.");
const Shown kSent = memo("Dave", "We have sent a demo to the record company");

struct Label : Office {
    void SetUp() override { calm_chart(), songs({10, 45}); }
};

TEST_F(Label, SendingADemoTheVerdictTableAndTheContractHoldingAt900AndEndingAt899) {
    EXPECT_EQ(office("command3"),
              Lines{memo("Mona", "Select a song from the list to send to the record company.")});
    click(g, "main", "songlist", 0);
    r.signed_ = -1;  // a band under contract sends demos too
    EXPECT_EQ(office("command3"), Lines{kSent});
    g.main.selectedsong = 0;
    EXPECT_EQ(office("command3"), Lines{memo("Dave", "We have already sent a Demo Tape, Boss.")});
    EXPECT_EQ(g.main.demosent, -1);
    const std::string label = "The record label ";
    const Shown words[] = {
        {},
        kRejected,
        memo("Mona", label + "thought the song was ok but not what they are looking for."),
        memo("Mona", label + "liked your song but felt it didn't meet their needs."),
        memo("Mona", label + "liked the song a lot, they would like to hear some more of your "
                             "tracks."),
        memo("Mona", label + "loved the track, but think the band as a whole still needs to "
                             "develop."),
        kSigned};
    const int rows[][3] = {{8, 5000, 1},   {19, 0, 1},    {20, 5000, 0},
                           {21, 0, 2},     {24, 0, 2},    {25, 0, 0},
                           {26, 0, 3},     {29, 0, 3},    {30, 0, 0},
                           {31, 0, 4},     {39, 5000, 4}, {40, 5000, 0},
                           {40, 999, 0},   {41, 999, 5},  {41, 1000, 6},
                           {300, 32000, 6}};  // quality, popularity, what is said
    for (const auto& [quality, popularity, k] : rows) {
        r.songquality[2] = quality, r.popularity = popularity, r.signed_ = 0;
        g.main.demosent = -1, g.main.selectedsong = 2;
        EXPECT_TRUE(has({is("demo_verdict", demo_verdict(g), k != 1), is("demosent", 0),
                         is("signed", k == 6 ? -1 : 0)}))
            << quality;
        said(k ? Lines{words[k]} : Lines{});
    }
    EXPECT_TRUE(demo_verdict(g));  // no demo out: nothing
    EXPECT_TRUE(take().empty());

    r.signed_ = -1, r.popularity = 900;
    contract_review(g);
    EXPECT_EQ(r.signed_, -1);
    // At 899 the contract goes before the Small promotion is paid, so the single gains no hype
    // even though the promotion lifts the band past 900.
    r.popularity = 899, r.released[1] = -1, r.singledemand[1] = 500;
    click(g, "main", "promote", 1);
    week_start();
    pick(2, 2);  // hype step: +0
    week_end(true);
    command6(g);
    EXPECT_EQ(take().at(0), memo("Dave",
                                 "Bad news, Boss. Due to the bands low popularity, "
                                 "Superstar records have terminated our contract!"));
    EXPECT_TRUE(has({is("draws left", g.rnd.queued_left(), 0), is("signed", 0),
                     is("singlehype(1)", 0), is("singledemand(1)", 500), is("popularity", 901)}));
}

struct Singles : Office {
    void SetUp() override {
        calm_chart(), songs({30, 12, 50, 20});
        r.signed_ = -1, r.popularity = 1000;
    }
    /// A double click on a row of the track list (-1: the empty part), memos acknowledged.
    Lines dbl(int row) {
        dblclick(g, "main", "songlist", row);
        ok_memos();
        return take();
    }
    /// A full week with the given picks {k, n} for the singles, then the lines it raised.
    Lines week(std::initializer_list<std::pair<int, int>> singles) {
        week_start();
        picks(singles);
        week_end(true);
        exactly([&] { command6(g); });
        ok_memos();
        return take();
    }
    /// What single k should show: its chart row's band and title, then its hype, demand and
    /// sales, and the row's sales and last sales.
    static std::vector<Want> single(int k, const char* band, const char* title,
                                    std::array<int, 5> values) {
        std::vector<Want> out{is(field("chartband", k), band), is(field("charttitle", k), title)};
        const char* names[] = {"singlehype", "singledemand", "singlesales", "chartsales",
                               "chartlastsales"};
        for (int i = 0; i < 5; ++i) out.push_back(is(field(names[i], k), values[i]));
        return out;
    }
    Shown offer(bool yes) { return yesno("Do you want to release this song as a single?", yes); }
};

TEST_F(Singles, ReleaseTakes1500AndSetsDemandThenAFirstWeekUnderHighPromotion) {
    r.cash = 1499;
    yes();
    EXPECT_EQ(dbl(0),
              (Lines{offer(true), memo("Dave", "We don't have enough funds to release a single")}));
    r.cash = 1500;
    no();
    EXPECT_EQ(dbl(0), Lines{offer(false)});
    yes();
    EXPECT_EQ(dbl(0), Lines{offer(true)});
    // Demand 30 * 4 + 1000; the chart row shows the single from its first week on.
    EXPECT_TRUE(has(single(1, "", "", {0, 1120, 0, 0, 0})));
    EXPECT_TRUE(has({is("released(1)", -1), is(g.forms.main.txtcash, "£ 0")}));
    r.cash = 1500;  // then a week of High promotion
    click(g, "main", "promote", 3);
    EXPECT_EQ(week({{20, 20}, {100, 100}, {1, 2}}).at(1), okbox("£39"));  // 78 + 20 copies
    EXPECT_TRUE(has(single(1, "The Wasps", "Song 1", {8, 1020, 98, 98, 0})));
    EXPECT_TRUE(has({is("cash", 1500 - 400 - 4 + 39), is("popularity", 1004)}));
}

TEST_F(Singles, RoyaltiesAreTwoFifthsOfTheSalesWithABoxForEverySingle) {
    for (int k = 1; k <= 4; ++k) r.released[k] = -1, r.chartsales[k] = 7 * k;
    r.singlehype[3] = 100, r.singledemand[3] = 5;
    // 1 copy, 3 copies, 5 + 20 copies, 4 copies; each then loses demand.
    picks({{1, 20}, {1, 100}, {3, 20}, {50, 100}, {20, 20}, {3, 100}, {4, 20}, {1, 100}});
    exactly([&] { singles_phase(g); });
    EXPECT_EQ(take(), (Lines{okbox("£0"), okbox("£1"), okbox("£10"), okbox("£1")}));
    EXPECT_EQ(r.cash, 3012);
    EXPECT_TRUE(has(single(1, "The Wasps", "Song 1", {0, 0, 1, 1, 7})));
    EXPECT_TRUE(has(single(2, "The Wasps", "Song 2", {0, 0, 3, 3, 14})));
    EXPECT_TRUE(has(single(3, "The Wasps", "Song 3", {100, 2, 25, 25, 21})));
    EXPECT_TRUE(has(single(4, "The Wasps", "Song 4", {0, 0, 4, 4, 28})));
}

TEST_F(Singles, PromotionAddsHypeToReleasedSinglesAndTheTurnCapsItAt100) {
    r.released[1] = -1;
    for (int k = 1; k <= 3; ++k) {
        r.singlehype[1] = 0;
        click(g, "main", "promote", k);
        week({{1, 20}, {1, 100}, {2, 2}});  // hype step +0
        EXPECT_TRUE(has({is("singlehype(1)", k * 2 + 1), is("singlehype(2)", 0)}));
    }
    r.singlehype[1] = 98, r.singledemand[1] = 200;
    click(g, "main", "promote", 2);     // Medium: 103, then capped
    week({{1, 20}, {1, 100}, {1, 2}});  // 200 + 1 copies, then hype +1
    EXPECT_TRUE(has(single(1, "The Wasps", "Song 1", {101, 199, 201, 201, 1})));
}

TEST_F(Singles, ShelvedSingleOnlyMovesItsHype) {
    r.signed_ = 0, r.popularity = 500, r.released[1] = r.released[3] = -1;
    r.singlehype[1] = r.singlehype[2] = 10, r.singledemand[1] = 300;
    r.singlesales[1] = r.chartsales[1] = 40, r.chartlastsales[1] = 12, r.chartband[1] = "The Wasps";
    click(g, "main", "promote", 3);                // High adds nothing without the contract
    for (const Shown& s : week({{1, 2}, {2, 2}}))  // the practice question only
        EXPECT_TRUE(s.kind != Shown::Kind::Box || s.buttons == Buttons::YesNo) << s.text;
    EXPECT_TRUE(has(single(1, "The Wasps", "", {11, 300, 40, 40, 12})));
    EXPECT_EQ(r.singlehype[2] * 100 + r.singlehype[3], 1000);  // only released songs move
    EXPECT_EQ(r.cash, 3000 - 400 - 4);
}

}  // namespace
}  // namespace tourvane::testing

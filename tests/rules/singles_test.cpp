// Singles: the release, the sales report, weekly sales and royalties, hype and promotion.
#include "music/singles.h"

#include <utility>

#include "music_week.h"
#include "week/turn.h"

namespace tourvane {
namespace {

using testing::draw;
using testing::memo;
using testing::okbox;
using testing::TestGame;
using Lines = std::vector<std::string>;

const std::string kOffer = "msgbox yesno \"Do you want to release this song as a single?\" -> ";

class Singles : public ::testing::Test {
  protected:
    TestGame t;
    void SetUp() override {
        t.new_game();
        t.full_band();
        testing::calm_chart(t);
        testing::add_songs(t, {30, 12, 50, 20});
        t.r.signed_ = -1;
        t.r.popularity = 1000;
    }
    /// A double click on a row of the track list (-1: the empty part), memos acknowledged.
    Lines dbl(int row) {
        EXPECT_EQ(dblclick(t.g, "main", "songlist", row), ClickResult::Done);
        t.ok_memos();
        return t.take();
    }
    /// A full week with the given draws {x, n} for the singles, then the lines it raised.
    Lines week(std::initializer_list<std::pair<int, int>> singles) {
        testing::week_start(t);
        for (auto [x, n] : singles) draw(t, x, n);
        testing::week_end(t, true);
        command6(t.g);
        EXPECT_EQ(t.g.rnd.queued_left(), 0u);
        t.ok_memos();
        return t.take();
    }
    /// Single k and its chart row in one line.
    std::string single(int k) {
        const Module1& r = t.r;
        return "hype " + std::to_string(r.singlehype[k]) + " demand " +
               std::to_string(r.singledemand[k]) + " sales " + std::to_string(r.singlesales[k]) +
               ", row " + r.chartband[k] + " / " + r.charttitle[k] + " " +
               std::to_string(r.chartsales[k]) + " last " + std::to_string(r.chartlastsales[k]);
    }
};

TEST_F(Singles, ReleaseTakes1500AndSetsDemand) {
    t.r.cash = 1499;
    t.yes();
    EXPECT_EQ(dbl(0), (Lines{kOffer + "yes",
                             memo("Dave", "We don't have enough funds to release a single")}));
    EXPECT_EQ(t.r.cash, 1499);
    EXPECT_EQ(t.r.released[1], 0);
    EXPECT_EQ(t.r.singledemand[1], 0);

    t.r.cash = 1500;
    t.no();
    EXPECT_EQ(dbl(0), Lines{kOffer + "no"});
    EXPECT_EQ(t.r.cash, 1500);
    EXPECT_EQ(t.r.released[1], 0);

    t.yes();
    EXPECT_EQ(dbl(0), Lines{kOffer + "yes"});
    EXPECT_EQ(t.r.cash, 0);
    EXPECT_EQ(t.r.released[1], -1);
    // Demand 30 * 4 + 1000; the chart row shows the single from its first week on.
    EXPECT_EQ(single(1), "hype 0 demand 1120 sales 0, row  /  0 last 0");
    EXPECT_EQ(t.g.forms.main.txtcash.caption, "£ 0");
    EXPECT_EQ(t.g.main.selectedsong, 1);
}

TEST_F(Singles, SalesReportAndWhatNeedsTheContract) {
    t.r.released[2] = -1;
    t.r.singlesales[2] = 37;
    EXPECT_EQ(dbl(1), Lines{memo("Mona", "There were 37 sales of this song last week.")});

    t.r.signed_ = 0;  // without a contract nothing at all, released or not
    EXPECT_TRUE(dbl(1).empty());
    EXPECT_TRUE(dbl(0).empty());

    // A double click on the empty part of the list picks no song and does nothing.
    t.r.signed_ = -1;
    t.yes();
    EXPECT_TRUE(dbl(-1).empty());
    EXPECT_EQ(t.r.cash, 3000);
    EXPECT_EQ(t.r.released[0], 0);
    EXPECT_EQ(t.r.released[1], 0);
    EXPECT_EQ(t.port.answers_left(), 1u);
}

TEST_F(Singles, RoyaltiesAreTwoFifthsOfTheSalesWithABoxForEverySingle) {
    const int hype[] = {0, 0, 0, 100, 0}, demand[] = {0, 0, 0, 5, 0};
    for (int k = 1; k <= 4; ++k) {
        t.r.released[k] = -1;
        t.r.singlehype[k] = static_cast<Integer>(hype[k]);
        t.r.singledemand[k] = static_cast<Integer>(demand[k]);
        t.r.chartsales[k] = 7 * k;
    }
    draw(t, 0, 20);   // 1 copy
    draw(t, 0, 100);  // demand 0 stays 0
    draw(t, 2, 20);   // 3 copies
    draw(t, 49, 100);
    draw(t, 19, 20);  // 5 + 20 copies
    draw(t, 2, 100);  // demand 5 - 3
    draw(t, 3, 20);   // 4 copies: 1.6 pays 1
    draw(t, 0, 100);
    singles_phase(t.g);
    EXPECT_EQ(t.g.rnd.queued_left(), 0u);
    EXPECT_EQ(t.take(), (Lines{okbox("£0"), okbox("£1"), okbox("£10"), okbox("£1")}));
    EXPECT_EQ(t.r.cash, 3012);
    EXPECT_EQ(single(1), "hype 0 demand 0 sales 1, row The Wasps / Song 1 1 last 7");
    EXPECT_EQ(single(2), "hype 0 demand 0 sales 3, row The Wasps / Song 2 3 last 14");
    EXPECT_EQ(single(3), "hype 100 demand 2 sales 25, row The Wasps / Song 3 25 last 21");
    EXPECT_EQ(single(4), "hype 0 demand 0 sales 4, row The Wasps / Song 4 4 last 28");
}

TEST_F(Singles, HypeStepMovesEveryReleasedSingleByNoneOrOne) {
    t.r.signed_ = 0;
    t.r.released[1] = t.r.released[3] = -1;
    t.r.singlehype[1] = t.r.singlehype[2] = t.r.singlehype[3] = 40;
    draw(t, 0, 2);
    draw(t, 1, 2);
    hype_step(t.g);
    EXPECT_EQ(t.g.rnd.queued_left(), 0u);
    EXPECT_EQ(t.r.singlehype[1], 41);
    EXPECT_EQ(t.r.singlehype[2], 40);
    EXPECT_EQ(t.r.singlehype[3], 40);
}

// A quality 30 single released at 1000 popularity, then a week of High promotion.
TEST_F(Singles, FirstWeekOfASingleUnderHighPromotion) {
    t.yes();
    dbl(0);
    click(t.g, "main", "promote", 3);
    EXPECT_EQ(week({{19, 20}, {99, 100}, {0, 2}}).at(1), okbox("£39"));  // 78 + 20 copies
    EXPECT_EQ(single(1), "hype 8 demand 1020 sales 98, row The Wasps / Song 1 98 last 0");
    EXPECT_EQ(t.r.cash, 3000 - 1500 - 400 - 4 + 39);
    EXPECT_EQ(t.r.popularity, 1004);
}

TEST_F(Singles, PromotionLevelsAddHypeToReleasedSinglesOnly) {
    t.r.released[1] = -1;
    for (int k = 1; k <= 3; ++k) {
        t.r.singlehype[1] = 0;
        click(t.g, "main", "promote", k);
        week({{0, 20}, {0, 100}, {1, 2}});  // hype step +0
        EXPECT_EQ(t.r.singlehype[1], k == 1 ? 3 : k == 2 ? 5 : 7);
        EXPECT_EQ(t.r.singlehype[2], 0);
    }
}

TEST_F(Singles, HypeIsCappedAt100BeforeTheSales) {
    t.r.released[1] = -1;
    t.r.singlehype[1] = 98;
    t.r.singledemand[1] = 200;
    click(t.g, "main", "promote", 2);   // Medium: 103, then capped
    week({{0, 20}, {0, 100}, {0, 2}});  // 200 + 1 copies, then hype +1
    EXPECT_EQ(single(1), "hype 101 demand 199 sales 201, row The Wasps / Song 1 201 last 0");
}

TEST_F(Singles, ShelvedSingleOnlyMovesItsHype) {
    t.r.signed_ = 0;
    t.r.popularity = 500;
    t.r.released[1] = -1;
    t.r.singlehype[1] = 10;
    t.r.singledemand[1] = 300;
    t.r.singlesales[1] = t.r.chartsales[1] = 40;
    t.r.chartlastsales[1] = 12;
    t.r.chartband[1] = "The Wasps";
    click(t.g, "main", "promote", 3);  // High adds nothing without the contract
    for (const std::string& line : week({{0, 2}}))
        EXPECT_EQ(line.find("msgbox ok"), std::string::npos);
    EXPECT_EQ(single(1), "hype 11 demand 300 sales 40, row The Wasps /  40 last 12");
    EXPECT_EQ(t.r.cash, 3000 - 400 - 4);
}

}  // namespace
}  // namespace tourvane

// Singles: the release, the sales report, weekly sales and royalties, hype and promotion.
#include "music/singles.h"

#include "test_game.h"
#include "week/turn.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::okbox;
using testing::str;

const std::string kOffer = "msgbox yesno \"Do you want to release this song as a single?\" -> ";

class Singles : public testing::Office {
  protected:
    void SetUp() override {
        calm_chart();
        songs({30, 12, 50, 20});
        r.signed_ = -1;
        r.popularity = 1000;
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
        command6(g);
        EXPECT_EQ(g.rnd.queued_left(), 0u);
        ok_memos();
        return take();
    }
    /// Single k and its chart row in one line.
    std::string single(int k) {
        return "hype " + std::to_string(r.singlehype[k]) + " demand " +
               std::to_string(r.singledemand[k]) + " sales " + std::to_string(r.singlesales[k]) +
               ", row " + r.chartband[k] + " / " + r.charttitle[k] + " " +
               std::to_string(r.chartsales[k]) + " last " + std::to_string(r.chartlastsales[k]);
    }
};

TEST_F(Singles, ReleaseTakes1500AndSetsDemand) {
    r.cash = 1499;
    yes();
    EXPECT_EQ(dbl(0), (Lines{kOffer + "yes",
                             memo("Dave", "We don't have enough funds to release a single")}));
    r.cash = 1500;
    no();
    EXPECT_EQ(dbl(0), Lines{kOffer + "no"});
    yes();
    EXPECT_EQ(dbl(0), Lines{kOffer + "yes"});
    // Demand 30 * 4 + 1000; the chart row shows the single from its first week on.
    EXPECT_EQ(single(1), "hype 0 demand 1120 sales 0, row  /  0 last 0");
    EXPECT_EQ(str(r.released[1], g.forms.main.txtcash.caption), "-1 £ 0");
}

TEST_F(Singles, SalesReportAndWhatNeedsTheContract) {
    r.released[2] = -1;
    r.singlesales[2] = 37;
    EXPECT_EQ(dbl(1), Lines{memo("Mona", "There were 37 sales of this song last week.")});
    r.signed_ = 0;  // without a contract nothing at all, released or not
    EXPECT_TRUE(dbl(1).empty());
    EXPECT_TRUE(dbl(0).empty());
    r.signed_ = -1;  // the empty part of the list picks no song and does nothing
    yes();
    EXPECT_TRUE(dbl(-1).empty());
    EXPECT_EQ(str(r.released[0], r.released[1], port.answers_left()), "0 0 1");
}

TEST_F(Singles, RoyaltiesAreTwoFifthsOfTheSalesWithABoxForEverySingle) {
    const int hype[] = {0, 0, 0, 100, 0}, demand[] = {0, 0, 0, 5, 0};
    for (int k = 1; k <= 4; ++k) {
        r.released[k] = -1;
        r.singlehype[k] = static_cast<Integer>(hype[k]);
        r.singledemand[k] = static_cast<Integer>(demand[k]);
        r.chartsales[k] = 7 * k;
    }
    // 1 copy, 3 copies, 5 + 20 copies, 4 copies; each then loses demand.
    picks({{1, 20}, {1, 100}, {3, 20}, {50, 100}, {20, 20}, {3, 100}, {4, 20}, {1, 100}});
    singles_phase(g);
    EXPECT_EQ(g.rnd.queued_left(), 0u);
    EXPECT_EQ(take(), (Lines{okbox("£0"), okbox("£1"), okbox("£10"), okbox("£1")}));
    EXPECT_EQ(r.cash, 3012);
    EXPECT_EQ(single(1), "hype 0 demand 0 sales 1, row The Wasps / Song 1 1 last 7");
    EXPECT_EQ(single(2), "hype 0 demand 0 sales 3, row The Wasps / Song 2 3 last 14");
    EXPECT_EQ(single(3), "hype 100 demand 2 sales 25, row The Wasps / Song 3 25 last 21");
    EXPECT_EQ(single(4), "hype 0 demand 0 sales 4, row The Wasps / Song 4 4 last 28");
}

// A quality 30 single released at 1000 popularity, then a week of High promotion.
TEST_F(Singles, FirstWeekOfASingleUnderHighPromotion) {
    yes();
    dbl(0);
    click(g, "main", "promote", 3);
    EXPECT_EQ(week({{20, 20}, {100, 100}, {1, 2}}).at(1), okbox("£39"));  // 78 + 20 copies
    EXPECT_EQ(single(1), "hype 8 demand 1020 sales 98, row The Wasps / Song 1 98 last 0");
    EXPECT_EQ(str(r.cash, r.popularity), str(3000 - 1500 - 400 - 4 + 39, 1004));
}

TEST_F(Singles, PromotionAddsHypeToReleasedSinglesAndTheTurnCapsItAt100) {
    r.released[1] = -1;
    for (int k = 1; k <= 3; ++k) {
        r.singlehype[1] = 0;
        click(g, "main", "promote", k);
        week({{1, 20}, {1, 100}, {2, 2}});  // hype step +0
        EXPECT_EQ(str(r.singlehype[1], r.singlehype[2]), str(k * 2 + 1, 0));
    }
    r.singlehype[1] = 98;
    r.singledemand[1] = 200;
    click(g, "main", "promote", 2);     // Medium: 103, then capped
    week({{1, 20}, {1, 100}, {1, 2}});  // 200 + 1 copies, then hype +1
    EXPECT_EQ(single(1), "hype 101 demand 199 sales 201, row The Wasps / Song 1 201 last 1");
}

TEST_F(Singles, ShelvedSingleOnlyMovesItsHype) {
    r.signed_ = 0;
    r.popularity = 500;
    r.released[1] = r.released[3] = -1;
    r.singlehype[1] = r.singlehype[2] = 10;
    r.singledemand[1] = 300;
    r.singlesales[1] = r.chartsales[1] = 40;
    r.chartlastsales[1] = 12;
    r.chartband[1] = "The Wasps";
    click(g, "main", "promote", 3);  // High adds nothing without the contract
    for (const std::string& line : week({{1, 2}, {2, 2}}))
        EXPECT_EQ(line.find("msgbox ok"), std::string::npos);
    EXPECT_EQ(single(1), "hype 11 demand 300 sales 40, row The Wasps /  40 last 12");
    EXPECT_EQ(r.singlehype[2] * 100 + r.singlehype[3], 1000);  // only released songs move
    EXPECT_EQ(r.cash, 3000 - 400 - 4);
}

}  // namespace
}  // namespace tourvane

// The music chart: the rival rows' weekly step, and the chart screen's ranking and list.
#include "music/chart.h"

#include <tuple>
#include <utility>

#include "music/singles.h"
#include "music_week.h"

namespace tourvane {
namespace {

using testing::draw;
using testing::okbox;
using testing::TestGame;
using testing::tick;

class ChartStep : public ::testing::Test {
  protected:
    TestGame t;
    void SetUp() override {
        t.new_game();
        testing::calm_chart(t);
    }
    void row(int i, int demand, int fame, int life, Long sales = 0) {
        t.r.chartdemand[i] = static_cast<Integer>(demand);
        t.r.chartfame[i] = static_cast<Integer>(fame);
        t.r.chartlife[i] = static_cast<Integer>(life);
        t.r.chartsales[i] = sales;
    }
    /// Queues draws giving Int(Rnd()*n) = x for each pair {x, n}.
    void pin(std::initializer_list<std::pair<int, int>> xs) {
        for (auto [x, n] : xs) draw(t, x, n);
    }
    /// A row in one line.
    std::string at(int i) {
        const Module1& r = t.r;
        return r.chartband[i] + " / " + r.charttitle[i] + ": demand " +
               std::to_string(r.chartdemand[i]) + " fame " + std::to_string(r.chartfame[i]) +
               " quality " + std::to_string(r.chartquality[i]) + " life " +
               std::to_string(r.chartlife[i]) + " sales " + std::to_string(r.chartsales[i]) +
               " last " + std::to_string(r.chartlastsales[i]);
    }
};

TEST_F(ChartStep, EachRowDrawsDemandFameAndLifeInTurn) {
    row(21, 40, 7, 300, 55);  // both rises; the second branch's draw of 0 is a rise of 1
    row(22, 3, 2, 300, 9);    // both falls, floored at 0
    row(23, 28, 5, 100);      // 29/100 of 100 in double precision is just below 29
    row(24, -5, 5, 300);      // a demand at or below 0 is lifted to 1 first
    tick(t);
    pin({{0, 2}, {3, 5}, {1, 2}, {0, 10}, {49, 100}});
    pin({{1, 2}, {4, 5}, {1, 2}, {9, 10}, {0, 100}});
    tick(t);
    pin({{1, 2}, {0, 5}, {0, 2}, {0, 3}, {0, 100}});
    tick(t, 46);
    chart_step(t.g);
    EXPECT_EQ(t.g.rnd.queued_left(), 0u);
    EXPECT_EQ(at(21), "Rival 21 / Hit 21: demand 44 fame 8 quality 50 life 250 sales 132 last 55");
    EXPECT_EQ(at(22), "Rival 22 / Hit 22: demand 0 fame 0 quality 50 life 299 sales 0 last 9");
    EXPECT_EQ(at(23), "Rival 23 / Hit 23: demand 29 fame 6 quality 50 life 99 sales 28 last 0");
    EXPECT_EQ(at(24), "Rival 24 / Hit 24: demand 2 fame 6 quality 50 life 299 sales 6 last 0");

    // Next week the row at demand 0 is lifted to 1 before it moves.
    tick(t, 2);
    pin({{1, 2}, {0, 5}, {0, 2}, {0, 3}, {0, 100}});
    tick(t, 48);
    chart_step(t.g);
    EXPECT_EQ(t.g.rnd.queued_left(), 0u);
    EXPECT_EQ(at(22), "Rival 22 / Hit 22: demand 2 fame 1 quality 50 life 298 sales 5 last 0");
}

TEST_F(ChartStep, SpentRowsTakeANewRecordFromThePool) {
    t.r.rivalfame[0] = 13;
    row(20, 100, 10, 30, 4);
    row(70, 100, 10, 1, 4);
    // Row 20 sells this week, runs out, and takes pool entry 0 with the lowest draws.
    pin({{0, 2}, {0, 5}, {0, 2}, {0, 3}, {29, 100}});
    pin({{0, 51}, {0, 100}, {0, 20}, {5, 20}, {44, 45}});
    tick(t, 49);
    // Row 70: the highest draws; the pick still lands on entry 50, never on the empty 51.
    pin({{0, 2}, {0, 5}, {0, 2}, {0, 3}, {99, 100}});
    t.draws({0.99999999});
    pin({{99, 100}, {19, 20}, {19, 20}, {0, 45}});
    chart_step(t.g);
    EXPECT_EQ(t.g.rnd.queued_left(), 0u);
    EXPECT_EQ(at(20), "Pool 0 / Wild Love: demand 50 fame 13 quality 74 life 309 sales 0 last 0");
    EXPECT_EQ(at(70),
              "Pool 50 / Shocked Feelings: demand 149 fame 50 quality 30 life 170 sales 0 last 0");
    EXPECT_EQ(t.r.rivalname[51], "");
}

TEST_F(ChartStep, PlayerRowsStandStillAndRowTwentyIsARivalRow) {
    t.r.chartband[5] = "The Wasps";
    t.r.chartsales[5] = 77;
    t.r.chartlastsales[5] = 60;
    const std::string row5 = at(5);

    // Song 20 on sale writes row 20, which the same week's step then moves as a rival row.
    testing::add_songs(t, std::vector<int>(20, 10));
    t.r.signed_ = -1;
    t.r.released[20] = -1;
    row(20, 100, 10, 300, 20);
    draw(t, 4, 20);  // 5 copies
    draw(t, 0, 100);
    singles_phase(t.g);
    EXPECT_EQ(t.take(), std::vector<std::string>{okbox("£2")});
    EXPECT_EQ(at(20),
              "The Wasps / Song 20: demand 100 fame 10 quality 50 life 300 sales 5 last 20");

    tick(t, 51);
    chart_step(t.g);
    EXPECT_EQ(t.g.rnd.queued_left(), 0u);
    EXPECT_EQ(at(20),
              "The Wasps / Song 20: demand 101 fame 11 quality 50 life 299 sales 303 last 5");
    EXPECT_EQ(at(5), row5);
}

// The chart screen. Row i sells i copies unless a test says otherwise.
class ChartScreen : public ::testing::Test {
  protected:
    TestGame t;
    void SetUp() override {
        t.new_game();
        EXPECT_EQ(click(t.g, "main", "secret"), ClickResult::Ignored);  // no full week yet
        for (int i = 1; i <= 70; ++i) {
            t.r.chartband[i] = "Band " + std::to_string(i);
            t.r.charttitle[i] = "Title " + std::to_string(i);
            t.r.chartsales[i] = i;
        }
        t.g.forms.main.secret.enabled = true;
    }
    void open() { ASSERT_EQ(click(t.g, "main", "secret"), ClickResult::Done); }
    const Control& line(int place) { return t.g.forms.Chart.track[place]; }
    /// The captions of places 1 to n.
    std::vector<std::string> top(int n) {
        std::vector<std::string> out;
        for (int p = 1; p <= n; ++p) out.push_back(line(p).caption);
        return out;
    }
    std::string shows(int row) {
        return "Band " + std::to_string(row) + " with Title " + std::to_string(row);
    }
    /// Opens the chart with these rows' sales, and checks their sales and places afterwards.
    void rank(std::initializer_list<std::pair<int, Long>> sales,
              std::initializer_list<std::tuple<int, Long, int>> row_sales_place) {
        for (auto [row, s] : sales) t.r.chartsales[row] = s;
        open();
        for (auto [row, s, place] : row_sales_place) {
            SCOPED_TRACE(row);
            EXPECT_EQ(t.r.chartsales[row], s);
            EXPECT_EQ(t.r.chartplace[row], place);
        }
    }
};

TEST_F(ChartScreen, AllSalesDifferent) {
    open();
    EXPECT_TRUE(t.g.forms.Chart.visible);
    EXPECT_TRUE(t.g.forms.main.usable());  // the office stays usable beside it
    for (int i = 1; i <= 70; ++i) {
        EXPECT_EQ(t.r.chartplace[i], 71 - i);
        EXPECT_EQ(t.r.chartsales[i], i);
    }
    for (int p = 1; p <= 10; ++p) {
        EXPECT_EQ(line(p).caption, shows(71 - p));
        EXPECT_EQ(line(p).color, colour::kBrightWhite);
    }
    EXPECT_EQ(t.g.forms.Chart.track[0].caption, "1");
    EXPECT_EQ(t.g.forms.Chart.track[19].caption, "10");
}

TEST_F(ChartScreen, ThreeTiedRowsKeepIndexOrder) {
    rank({{30, 500}, {40, 500}, {50, 500}}, {{30, 501, 1}, {40, 501, 2}, {50, 500, 3}});
    EXPECT_EQ(top(3), (std::vector<std::string>{shows(30), shows(40), shows(50)}));
}

TEST_F(ChartScreen, ALiftedRowCanPassTheRowThatOutsoldIt) {
    rank({{30, 1000}, {40, 1000}, {50, 1001}}, {{30, 1002, 1}, {40, 1000, 3}, {50, 1001, 2}});
    EXPECT_EQ(top(3), (std::vector<std::string>{shows(30), shows(50), shows(40)}));
}

TEST_F(ChartScreen, TwoRowsCanShareAPlaceAndLeaveOneEmpty) {
    rank({{30, 1000}, {40, 1001}, {50, 1000}, {60, 1001}},
         {{30, 1002, 2}, {40, 1002, 2}, {50, 1000, 4}, {60, 1001, 3}});
    // The later row writes the shared place last; the place nobody got keeps its "...".
    EXPECT_EQ(top(5),
              (std::vector<std::string>{"...", shows(40), shows(60), shows(50), shows(70)}));
    EXPECT_EQ(line(1).color, colour::kLightCyan);
}

TEST_F(ChartScreen, PlayersBandNameInYellowAndEmptyRows) {
    t.r.chartband[70] = "The Wasps";  // a rival row with the player's name
    t.r.chartband[69] = "the wasps";
    t.r.chartband[68] = t.r.charttitle[68] = "";
    open();
    EXPECT_EQ(top(3), (std::vector<std::string>{"The Wasps with Title 70",
                                                "the wasps with Title 69", " with "}));
    EXPECT_EQ(line(1).color, colour::kYellow);
    EXPECT_EQ(line(2).color, colour::kBrightWhite);
    EXPECT_EQ(line(3).color, colour::kBrightWhite);
}

TEST_F(ChartScreen, OpenScreenIsASnapshotUntilOk) {
    open();
    t.r.chartsales[1] = t.r.chartsales[2] = 5000;
    open();  // brought forward only
    EXPECT_EQ(t.g.forms.Chart.forward_requests, 1u);
    EXPECT_EQ(line(1).caption, shows(70));
    EXPECT_EQ(t.r.chartplace[1], 70);
    EXPECT_EQ(t.r.chartsales[1], 5000);

    EXPECT_EQ(click(t.g, "Chart", "command1"), ClickResult::Done);
    EXPECT_FALSE(t.g.forms.Chart.loaded);
    EXPECT_EQ(click(t.g, "Chart", "command1"), ClickResult::Ignored);
    rank({}, {{1, 5001, 1}, {2, 5000, 2}, {70, 70, 3}});
    EXPECT_EQ(top(3), (std::vector<std::string>{shows(1), shows(2), shows(70)}));
}

}  // namespace
}  // namespace tourvane

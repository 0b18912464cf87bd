// The music chart: the rival rows' weekly step, and the chart screen's ranking and list.
#include "music/chart.h"

#include <algorithm>

#include "music/singles.h"
#include "test_game.h"

namespace tourvane {
namespace {

using testing::Lines;

class ChartStep : public ::testing::Test, protected testing::TestGame {
  protected:
    void SetUp() override {
        new_game();
        calm_chart();
    }
    void row(int i, int demand, int fame, int life, Long sales = 0) {
        r.chartdemand[i] = static_cast<Integer>(demand);
        r.chartfame[i] = static_cast<Integer>(fame);
        r.chartlife[i] = static_cast<Integer>(life);
        r.chartsales[i] = sales;
    }
    /// A row in one line.
    std::string at(int i) {
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
    tick();
    picks({{1, 2}, {4, 5}, {2, 2}, {1, 10}, {50, 100}});
    picks({{2, 2}, {5, 5}, {2, 2}, {10, 10}, {1, 100}});
    tick();
    picks({{2, 2}, {1, 5}, {1, 2}, {1, 3}, {1, 100}});
    tick(46);
    chart_step(g);
    EXPECT_EQ(g.rnd.queued_left(), 0u);
    EXPECT_EQ(at(21), "Rival 21 / Hit 21: demand 44 fame 8 quality 50 life 250 sales 132 last 55");
    EXPECT_EQ(at(22), "Rival 22 / Hit 22: demand 0 fame 0 quality 50 life 299 sales 0 last 9");
    EXPECT_EQ(at(23), "Rival 23 / Hit 23: demand 29 fame 6 quality 50 life 99 sales 28 last 0");
    EXPECT_EQ(at(24), "Rival 24 / Hit 24: demand 2 fame 6 quality 50 life 299 sales 6 last 0");
    // Next week the row at demand 0 is lifted to 1 before it moves.
    tick(2);
    picks({{2, 2}, {1, 5}, {1, 2}, {1, 3}, {1, 100}});
    tick(48);
    chart_step(g);
    EXPECT_EQ(at(22), "Rival 22 / Hit 22: demand 2 fame 1 quality 50 life 298 sales 5 last 0");
}

TEST_F(ChartStep, SpentRowsTakeANewRecordFromThePool) {
    r.rivalfame[0] = 13;
    row(20, 100, 10, 30, 4);
    row(70, 100, 10, 1, 4);
    // Row 20 sells this week, runs out, and takes pool entry 0 with the lowest draws.
    picks({{1, 2}, {1, 5}, {1, 2}, {1, 3}, {30, 100}});
    picks({{1, 51}, {1, 100}, {1, 20}, {6, 20}, {45, 45}});
    tick(49);
    // Row 70: the highest draws; the pick still lands on entry 50, never on the empty 51.
    picks({{1, 2}, {1, 5}, {1, 2}, {1, 3}, {100, 100}});
    draws({0.99999999});
    picks({{100, 100}, {20, 20}, {20, 20}, {1, 45}});
    chart_step(g);
    EXPECT_EQ(g.rnd.queued_left(), 0u);
    EXPECT_EQ(at(20), "Pool 0 / Wild Love: demand 50 fame 13 quality 74 life 309 sales 0 last 0");
    EXPECT_EQ(at(70),
              "Pool 50 / Shocked Feelings: demand 149 fame 50 quality 30 life 170 sales 0 last 0");
}

TEST_F(ChartStep, PlayerRowsStandStillAndRowTwentyIsARivalRow) {
    r.chartband[5] = "The Wasps";
    r.chartsales[5] = 77;
    r.chartlastsales[5] = 60;
    const std::string row5 = at(5);
    // Song 20 on sale writes row 20, which the same week's step then moves as a rival row.
    songs(std::vector<int>(20, 10));
    r.signed_ = -1;
    r.released[20] = -1;
    row(20, 100, 10, 300, 20);
    picks({{5, 20}, {1, 100}});  // 5 copies
    singles_phase(g);
    EXPECT_EQ(at(20),
              "The Wasps / Song 20: demand 100 fame 10 quality 50 life 300 sales 5 last 20");
    tick(51);
    chart_step(g);
    EXPECT_EQ(g.rnd.queued_left(), 0u);
    EXPECT_EQ(at(20),
              "The Wasps / Song 20: demand 101 fame 11 quality 50 life 299 sales 303 last 5");
    EXPECT_EQ(at(5), row5);
}

// The chart screen. Row i is "Band i" with "Title i" and sells i copies unless a test says
// otherwise.
class ChartScreen : public ::testing::Test, protected testing::TestGame {
  protected:
    void SetUp() override {
        new_game();
        EXPECT_EQ(click(g, "main", "secret"), ClickResult::Ignored);  // no full week yet
        reset();
    }
    void reset() {
        for (int i = 1; i <= 70; ++i) {
            r.chartband[i] = "Band " + std::to_string(i);
            r.charttitle[i] = "Title " + std::to_string(i);
            r.chartsales[i] = i;
        }
        g.forms.main.secret.enabled = true;
    }
    void open() { ASSERT_EQ(click(g, "main", "secret"), ClickResult::Done); }
    const Control& line(int place) { return g.forms.Chart.track[place]; }
    /// The captions of places 1 to n, a row's line shown by its number.
    std::string top(int n) {
        std::string out;
        for (int p = 1; p <= n; ++p) {
            const std::string& c = line(p).caption;
            out += (p > 1 ? " " : "") +
                   (c.rfind("Band ", 0) == 0 ? c.substr(5, c.find(' ', 5) - 5) : c);
        }
        return out;
    }
};

TEST_F(ChartScreen, AllSalesDifferent) {
    open();
    EXPECT_TRUE(g.forms.Chart.visible);
    EXPECT_TRUE(g.forms.main.usable());  // the office stays usable beside it
    for (int i = 1; i <= 70; ++i)
        EXPECT_EQ(r.chartplace[i] * 100 + r.chartsales[i], (71 - i) * 100 + i);
    EXPECT_EQ(line(1).caption, "Band 70 with Title 70");
    EXPECT_EQ(top(10), "70 69 68 67 66 65 64 63 62 61");
    for (int p = 1; p <= 10; ++p) EXPECT_EQ(line(p).color, colour::kBrightWhite);
    EXPECT_EQ(g.forms.Chart.track[0].caption + g.forms.Chart.track[19].caption, "110");
}

// Each case: the sales given, then row:sales:place after the ranking, then the top lines.
TEST_F(ChartScreen, TiesGoToTheEarlierRowWhoseSalesRise) {
    const struct {
        std::vector<std::pair<int, Long>> sales;
        std::vector<std::array<int, 3>> ranked;
        std::string top;
    } cases[] = {
        {{{30, 500}, {40, 500}, {50, 500}}, {{30, 501, 1}, {40, 501, 2}, {50, 500, 3}}, "30 40 50"},
        {{{30, 1000}, {40, 1000}, {50, 1001}},
         {{30, 1002, 1}, {40, 1000, 3}, {50, 1001, 2}},
         "30 50 40"},
        // The later row writes the shared place last; the place nobody got keeps its "...".
        {{{30, 1000}, {40, 1001}, {50, 1000}, {60, 1001}},
         {{30, 1002, 2}, {40, 1002, 2}, {50, 1000, 4}, {60, 1001, 3}},
         "... 40 60 50 70"},
    };
    for (const auto& c : cases) {
        reset();
        for (auto [row, s] : c.sales) r.chartsales[row] = s;
        open();
        for (auto [row, s, place] : c.ranked) {
            EXPECT_EQ(r.chartsales[row], s) << row;
            EXPECT_EQ(r.chartplace[row], place) << row;
        }
        EXPECT_EQ(top(static_cast<int>(std::count(c.top.begin(), c.top.end(), ' ')) + 1), c.top);
        Chart_command1(g);
    }
}

TEST_F(ChartScreen, PlayersBandNameInYellowAndEmptyRows) {
    r.chartband[70] = "The Wasps";  // a rival row with the player's name
    r.chartband[69] = "the wasps";
    r.chartband[68] = r.charttitle[68] = "";
    open();
    EXPECT_EQ(line(1).caption + "|" + line(2).caption + "|" + line(3).caption,
              "The Wasps with Title 70|the wasps with Title 69| with ");
    EXPECT_EQ(line(1).color, colour::kYellow);
    EXPECT_EQ(line(2).color, colour::kBrightWhite);
}

TEST_F(ChartScreen, OpenScreenIsASnapshotUntilOk) {
    open();
    r.chartsales[1] = r.chartsales[2] = 5000;
    open();  // brought forward only
    EXPECT_EQ(g.forms.Chart.forward_requests, 1u);
    EXPECT_EQ(top(1), "70");
    EXPECT_EQ(r.chartplace[1] * 10000 + r.chartsales[1], 705000);
    EXPECT_EQ(click(g, "Chart", "command1"), ClickResult::Done);
    EXPECT_FALSE(g.forms.Chart.loaded);
    EXPECT_EQ(click(g, "Chart", "command1"), ClickResult::Ignored);
    open();
    EXPECT_EQ(top(3), "1 2 70");
    EXPECT_EQ(r.chartsales[1], 5001);
}

}  // namespace
}  // namespace tourvane

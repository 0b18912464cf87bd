// The music chart: the rival rows' weekly step, the chart screen's ranking and list, and the
// rival bands file with where it is found and what it sets up.
#include <limits>
#include <random>

#include "rules/files/record_file.h"
#include "rules/music/bands.h"
#include "rules/music/chart.h"
#include "rules/music/singles.h"
#include "test_game.h"

namespace tourvane::testing {
namespace {

struct ChartStep : Office {
    void SetUp() override { calm_chart(); }
    void row(int i, int demand, int fame, int life, Long sales = 0) {
        r.chartdemand[i] = demand, r.chartfame[i] = fame, r.chartlife[i] = life,
        r.chartsales[i] = sales;
    }
    /// What row i should hold: band, title, then demand, fame, quality, life, sales and last
    /// sales.
    static std::vector<Want> row_is(int i, const char* band, const char* title,
                                    std::array<int, 6> values) {
        std::vector<Want> out{is(field("chartband", i), band), is(field("charttitle", i), title)};
        const char* names[] = {"chartdemand", "chartfame",  "chartquality",
                               "chartlife",   "chartsales", "chartlastsales"};
        for (int k = 0; k < 6; ++k) out.push_back(is(field(names[k], i), values[k]));
        return out;
    }
};

TEST_F(ChartStep, EachRowDrawsDemandFameAndLifeInTurn) {
    row(21, 40, 7, 300, 55);  // demand rises, fame falls by its draw less one
    row(22, 3, 2, 300, 9);    // both falls, floored at 0
    row(23, 28, 5, 100);      // 29/100 of 100 in double precision is just below 29
    row(24, -5, 5, 300);      // a demand at or below 0 is lifted to 1 first
    tick();
    draws({0.45});  // a coin just below one half falls up
    picks({{4, 5}, {2, 2}, {8, 10}, {50, 100}});
    picks({{2, 2}, {5, 5}, {2, 2}, {10, 10}, {1, 100}});
    tick();
    picks({{2, 2}, {1, 5}}), draws({0.45}), picks({{3, 3}, {1, 100}});
    tick(46);
    exactly([&] { chart_step(g); });
    EXPECT_TRUE(has(row_is(21, "Rival 21", "Hit 21", {44, 1, 50, 250, 132, 55})));
    EXPECT_TRUE(has(row_is(22, "Rival 22", "Hit 22", {0, 0, 50, 299, 0, 9})));
    EXPECT_TRUE(has(row_is(23, "Rival 23", "Hit 23", {29, 6, 50, 99, 28, 0})));
    EXPECT_TRUE(has(row_is(24, "Rival 24", "Hit 24", {2, 8, 50, 299, 6, 0})));
    // Next week the row at demand 0 is lifted to 1 before it moves.
    tick(2);
    picks({{2, 2}, {1, 5}, {1, 2}, {1, 3}, {1, 100}});
    tick(48);
    chart_step(g);
    EXPECT_TRUE(has(row_is(22, "Rival 22", "Hit 22", {2, 1, 50, 298, 5, 0})));
}

TEST_F(ChartStep, SpentRowsTakeANewRecordFromThePool) {
    r.rivalfame[0] = 13;
    row(20, 100, 10, 30, 4), row(70, 100, 10, 1, 4);
    // Row 20 sells this week, runs out, and takes pool entry 0 with the lowest draws.
    picks({{1, 2}, {1, 5}, {1, 2}, {1, 3}, {30, 100}});
    picks({{1, 51}, {1, 100}, {1, 20}, {6, 20}, {45, 45}});
    r.chartlife[21] = 2;  // left with a life of 1: still running
    tick(49);
    // Row 70: the highest draws; the pick still lands on entry 50, never on the empty 51.
    picks({{1, 2}, {1, 5}, {1, 2}, {1, 3}, {100, 100}});
    draws({0.99999999});
    picks({{100, 100}, {20, 20}, {20, 20}, {1, 45}});
    exactly([&] { chart_step(g); });
    EXPECT_TRUE(has(row_is(20, "Pool 0", "Wild Love", {50, 13, 74, 309, 0, 0})));
    EXPECT_TRUE(has(row_is(70, "Pool 50", "Shocked Feelings", {149, 50, 30, 170, 0, 0})));
    EXPECT_TRUE(has({is("chartband(21)", "Rival 21"), is("chartlife(21)", 1)}));
}

TEST_F(ChartStep, PlayerRowsStandStillAndRowTwentyIsARivalRow) {
    r.chartband[5] = "The Wasps", r.chartsales[5] = 77, r.chartlastsales[5] = 60;
    // Song 20 on sale writes row 20, which the same week's step then moves as a rival row.
    songs(std::vector<int>(20, 10));
    r.signed_ = -1, r.released[20] = -1;
    row(20, 100, 10, 300, 20);
    picks({{5, 20}, {1, 100}});  // 5 copies
    singles_phase(g);
    EXPECT_TRUE(has(row_is(20, "The Wasps", "Song 20", {100, 10, 50, 300, 5, 20})));
    tick(51);
    exactly([&] { chart_step(g); });
    EXPECT_TRUE(has(row_is(20, "The Wasps", "Song 20", {101, 11, 50, 299, 303, 5})));
    EXPECT_TRUE(has(row_is(5, "The Wasps", "", {0, 0, 0, 0, 77, 60})));
}

// The chart screen. Row i is "Band i" with "Title i" and sells i copies unless a test says
// otherwise.
struct ChartScreen : Office {
    void SetUp() override {
        EXPECT_EQ(click(g, "main", "secret"), ClickResult::NotUsableNow);  // no full week yet
        for (int i = 1; i <= 70; ++i)
            r.chartband[i] = str("Band", i), r.charttitle[i] = str("Title", i), r.chartsales[i] = i;
        g.forms.main.secret.enabled = true;
    }
    void open() { ASSERT_EQ(click(g, "main", "secret"), ClickResult::Done); }
    const Control& line(int place) { return g.forms.Chart.track[place]; }
    /// The lines of places 1 to n, a row's line shown by its number.
    std::string top(int n) {
        std::string out;
        for (int p = 1; p <= n; ++p) {
            const std::string& c = line(p).caption;
            out += (p > 1 ? " " : "") + (c.rfind("Band ", 0) ? c : c.substr(5, c.find(' ', 5) - 5));
        }
        return out;
    }
};

TEST_F(ChartScreen, AllSalesDifferentASnapshotUntilOkAndTiesToTheEarlierRowWhoseSalesRise) {
    open();
    EXPECT_TRUE(g.forms.Chart.visible && g.forms.main.usable());  // beside the office
    for (int i = 1; i <= 70; ++i)
        EXPECT_TRUE(has({is(field("chartplace", i), 71 - i), is(field("chartsales", i), i)}));
    EXPECT_EQ(line(1).caption, "Band 70 with Title 70");
    EXPECT_EQ(top(10), "70 69 68 67 66 65 64 63 62 61");
    for (int p = 1; p <= 10; ++p) EXPECT_EQ(line(p).color, colour::kBrightWhite);
    EXPECT_EQ(g.forms.Chart.track[0].caption + g.forms.Chart.track[19].caption, "110");
    r.chartsales[1] = r.chartsales[2] = 5000;
    open();  // brought forward only
    EXPECT_TRUE(has({is("Chart.forward_requests", g.forms.Chart.forward_requests, 1),
                     is("the top line", top(1), "70"), is("chartplace(1)", 70)}));
    EXPECT_EQ(click(g, "Chart", "command1"), ClickResult::Done);
    EXPECT_EQ(click(g, "Chart", "command1"), ClickResult::NotUsableNow);
    open();
    EXPECT_TRUE(has({is("the top 3 lines", top(3), "1 2 70"), is("chartsales(1)", 5001)}));
    Chart_command1(g);

    // Each case: the sales given, then row sales place after the ranking, then the top lines.
    // The later row writes a shared place last; a place nobody got keeps its "...".
    const struct {
        std::vector<std::pair<int, Long>> sales;
        std::string ranked, top;
    } cases[] = {
        {{{30, 500}, {40, 500}, {50, 500}}, "501 1 501 2 500 3", "30 40 50"},
        {{{30, 1000}, {40, 1000}, {50, 1001}}, "1002 1 1000 3 1001 2", "30 50 40"},
        {{{30, 1000}, {40, 1001}, {50, 1000}, {60, 1001}},
         "1002 2 1002 2 1000 4 1001 3",
         "... 40 60 50 70"},
    };
    for (const auto& c : cases) {
        for (int i = 1; i <= 70; ++i) r.chartsales[i] = i;
        for (auto [row, s] : c.sales) r.chartsales[row] = s;
        open();
        std::istringstream ranked(c.ranked);
        std::vector<Want> want;
        for (auto [row, s] : c.sales) {
            std::string sales, place;
            ranked >> sales >> place;
            want.insert(want.end(),
                        {is(field("chartsales", row), sales), is(field("chartplace", row), place)});
        }
        EXPECT_TRUE(has(want));
        EXPECT_EQ(top(static_cast<int>(c.sales.size()) + (c.top[0] == '.' ? 1 : 0)), c.top);
        Chart_command1(g);
    }
}

/// A bands file whose entry i is "Band i", fame i, "Song i", quality 30 + i, demand 100 + i.
Bytes numbered_bands() {
    RecordWriter w;
    for (int i = 0; i < kBandEntries; ++i) {
        w.put_string(str("Band", i)), w.put_integer(Integer(i)), w.put_string(str("Song", i));
        w.put_integer(Integer(30 + i)), w.put_integer(Integer(100 + i));
    }
    return w.take();
}

// Start-up reads bands.dat from the working directory; a missing, short or damaged file falls
// back to the built-in copy, and a whole file further along the search path comes first.
TEST(LoadBands, FillsRowsPoolAndLifeAndFallsBackToTheBuiltInCopy) {
    TempDir dir;
    std::string why;
    ASSERT_TRUE(replace_file("bands.dat", numbered_bands(), why));
    TestGame t;  // start-up runs loadbands
    for (int row = 20, i = 0; row <= 70; ++row, ++i)
        EXPECT_TRUE(
            t.has({is(field("chartband", row), str("Band", i)),
                   is(field("charttitle", row), str("Song", i)), is(field("chartfame", row), i),
                   is(field("chartquality", row), 30 + i), is(field("chartdemand", row), 100 + i),
                   is(field("chartlife", row), (30 + i) * 4 + i)}));
    EXPECT_TRUE(t.has(
        {is("rivalname(0)", "Band 0"), is("rivalname(50)", "Band 50"), is("rivalfame(50)", 50)}));
    for (int i = 51; i <= 60; ++i)
        EXPECT_TRUE(t.has({is(field("rivalname", i), ""), is(field("rivalfame", i), 0)}));
    for (int row = 0; row < 20; ++row)
        EXPECT_TRUE(t.has({is(field("chartband", row), ""), is(field("chartlife", row), 0)}));

    Game& g = t.g;
    ScriptedPort port;
    Game builtin(port);
    loadbands_from(builtin, {});
    std::filesystem::remove("bands.dat");
    const std::vector<std::filesystem::path> here{"bands.dat"};
    Bytes short_file = numbered_bands(), damaged = numbered_bands();
    short_file.pop_back();
    damaged[128 * 5 * 30] = 127;  // the band of entry 30 claims 127 bytes
    for (const Bytes& file : {Bytes{}, short_file, damaged}) {  // missing, short, damaged
        ASSERT_TRUE(file.empty() || replace_file("bands.dat", file, why)) << why;
        EXPECT_FALSE(loadbands_from(g, here));
        EXPECT_TRUE(g.rec.chartband == builtin.rec.chartband);
        EXPECT_TRUE(g.rec.chartdemand == builtin.rec.chartdemand);
        // Only read, never written; and nothing is created.
        EXPECT_EQ(read_file("bands.dat", 1 << 20),
                  file.empty() ? std::nullopt : std::optional(file));
    }
    std::filesystem::create_directory("share");
    ASSERT_TRUE(replace_file("share/bands.dat", numbered_bands(), why));
    EXPECT_EQ(loadbands_from(g, {"bands.dat", "missing/bands.dat", "share/bands.dat"}),
              std::filesystem::path("share/bands.dat"));
    EXPECT_EQ(g.rec.chartband[70], "Band 50");
}

// Ranking fewer rows, or rows that tie with no other, gives what the full pass of every pair
// gives, sales and places alike.
TEST(RankRows, MatchesThePassOverEveryPair) {
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        Arr<Long, kChartRows> sales{};
        const int spread = round % 3 == 0 ? 1000 : 12;  // few ties, or many
        for (int i = 1; i <= kChartRows; ++i) sales[i] = static_cast<Long>(random() % spread);
        if (round == 1) sales[3] = sales[9] = std::numeric_limits<Long>::max();
        Arr<Long, kChartRows> want = sales;
        Arr<Integer, kChartRows> want_place{};
        want_place.fill(kChartRows);
        for (int i = 1; i <= kChartRows; ++i)
            for (int j = 1; j <= kChartRows; ++j) {
                if (j == i) continue;
                if (want[i] == want[j]) add(want[i], 1);
                if (want[i] > want[j]) add(want_place[i], -1);
            }
        const int last = round % 2 ? kChartRows : static_cast<int>(random() % 19) + 1;
        Arr<Integer, kChartRows> place{};
        place.fill(kChartRows);
        rank_rows(sales, place, last);
        for (int i = 1; i <= last; ++i)
            ASSERT_EQ(str(sales[i], place[i]), str(want[i], want_place[i])) << round << " " << i;
    }
}

}  // namespace
}  // namespace tourvane::testing

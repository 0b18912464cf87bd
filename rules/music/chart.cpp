#include "rules/music/chart.h"

#include <algorithm>
#include <array>
#include <limits>

#include "core/career.h"
#include "core/forms.h"

namespace tourvane {

namespace {
constexpr int kPoolEntries = 51;  // rival pool entries 0 to 50 hold named bands
constexpr int kTopTen = 10;

/// A new record by a band from the rival pool replaces a spent row.
void replace_row(Game& g, int i) {
    Module1& r = g.rec;
    const auto pick = Int(g.rnd() * kPoolEntries);
    r.chartband[i] = r.rivalname[pick];
    r.chartfame[i] = r.rivalfame[pick];
    store(r.chartdemand[i], Int(g.rnd() * 100) + 50);
    const auto a = Int(g.rnd() * 20) + 1;
    const auto b = Int(g.rnd() * 20) + 1;
    r.charttitle[i] = r.titlefirst[a];
    r.charttitle[i] += r.titlesecond[b];
    store(r.chartquality[i], Int(g.rnd() * 45) + 30);
    store(r.chartlife[i], std::int64_t{r.chartquality[i]} * 4 + r.chartfame[i]);
    r.chartsales[i] = 0;
    r.chartlastsales[i] = 0;
}
}  // namespace

void chart_step(Game& g) {
    Module1& r = g.rec;
    for (int i = kFirstRivalRow; i <= kChartRows; ++i) {
        if (r.chartdemand[i] <= 0) r.chartdemand[i] = 1;
        r.chartlastsales[i] = r.chartsales[i];

        // Demand and fame go up or down as a coin falls, each by a draw of its own. Both ways
        // are worked out and the coin only picks one, so its fall costs the processor no
        // wrong guess.
        const bool demand_up = Int(g.rnd() * 2) + 1 == 1;
        const auto demand_step = Int(g.rnd() * 5);
        // The game's rule, kept as designed: a fall takes the step off and adds 1 back.
        store(r.chartdemand[i],
              demand_up ? r.chartdemand[i] + demand_step + 1 : r.chartdemand[i] - demand_step + 1);
        if (r.chartdemand[i] < 0) r.chartdemand[i] = 0;

        const bool fame_up = Int(g.rnd() * 2) + 1 == 1;
        const auto fame_step = Int(g.rnd() * (fame_up ? 3 : 10));
        // The same rule for fame: a fall takes the step off and adds 1 back, as designed.
        store(r.chartfame[i],
              fame_up ? r.chartfame[i] + fame_step + 1 : r.chartfame[i] - fame_step + 1);
        if (r.chartfame[i] < 0) r.chartfame[i] = 0;

        store(g.main.rivalsales, percent_of(r.chartdemand[i], r.chartlife[i]));
        r.chartsales[i] = g.main.rivalsales;

        store(r.chartlife[i], r.chartlife[i] - (Int(g.rnd() * 100) + 1));
        if (r.chartlife[i] <= 0) replace_row(g, i);
    }
}

void rank_rows(Arr<Long, kChartRows>& sales, Arr<Integer, kChartRows>& place, int last) {
    // Rows 1 to 70 and two more of the highest sales there can be, which no row outsells: the
    // count of rows below a row then runs in whole steps of the processor's vectors.
    std::array<Long, kChartRows + 2> padded;
    padded.fill(std::numeric_limits<Long>::max());
    std::copy(sales.begin() + 1, sales.end(), padded.begin());
    for (int i = 1; i <= last; ++i) {
        // A row that ties with no other is placed by the rows it outsells, and its sales stay.
        // (A row of the highest sales ties with the two extra ones and goes the long way.)
        const Long own = sales[i];
        int below = 0, equal = 0;
        for (const Long s : padded) below += s < own, equal += s == own;
        if (equal == 1) {
            place[i] = static_cast<Integer>(kChartRows - below);
            continue;
        }
        place[i] = kChartRows;
        for (int j = 1; j <= kChartRows; ++j) {
            if (j == i) continue;
            // A tie goes to the row of the outer loop: its sales rise by 1 and it then
            // outsells the other row.
            if (sales[i] == sales[j]) add(sales[i], 1);
            if (sales[i] > sales[j]) add(place[i], -1);
        }
        padded[i - 1] = sales[i];
    }
}

void rank_chart(Game& g) {
    rank_rows(g.rec.chartsales, g.rec.chartplace);
}

namespace {
/// A single of the band's that is on the chart: out, written by the singles phase, and sold.
/// (Row 20 is a rival row as much as the last song's, and counts as a rival's.)
bool band_single_charts(const Module1& r, int row) {
    return is_true(r.released[row]) && !r.charttitle[row].empty() && r.chartsales[row] > 0;
}
}  // namespace

void tally_chart_place(Game& g) {
    const Module1& r = g.rec;
    int last = 0;
    for (int row = 1; row < kFirstRivalRow; ++row)
        if (band_single_charts(r, row)) last = row;
    if (last == 0) return;
    Arr<Long, kChartRows> sales = r.chartsales;  // the ranking's +1s stay in the copy
    Arr<Integer, kChartRows> place{};
    rank_rows(sales, place, last);
    for (int row = 1; row <= last; ++row)
        if (band_single_charts(r, row)) note_chart_place(g, place[row], r.charttitle[row]);
}

void load_Chart(Game& g) {
    const Module1& r = g.rec;
    ChartForm& chart = g.forms.Chart;
    chart.loaded = true;
    rank_chart(g);
    for (int place = 1; place <= kTopTen; ++place) {
        for (int j = 1; j <= kChartRows; ++j) {
            if (r.chartplace[j] != place) continue;
            Control& line = chart.track[place];
            line.color = r.chartband[j] == r.bandname ? colour::kYellow : colour::kBrightWhite;
            line.caption = r.chartband[j] + " with " + r.charttitle[j];
        }
    }
}

void secret(Game& g) {
    ChartForm& chart = g.forms.Chart;
    if (chart.loaded)
        ++chart.forward_requests;  // already open: only brought forward, not ranked again
    else
        load_Chart(g);
    chart.visible = true;
}

void Chart_command1(Game& g) {
    unload(g.forms.Chart);
}

}  // namespace tourvane

#pragma once
// The music chart: the rival records' weekly step and the chart screen.

#include "core/game.h"

namespace tourvane {

/// The weekly step of the rival rows 20 to 70: demand, fame, sales and life, with spent
/// records replaced by new records of bands from the rival pool.
void chart_step(Game& g);

/// The chart's ranking over bare columns of sales and places: rows 1 to `last` get their
/// place among all 70 rows, and a tie lifts the earlier row's sales by 1. A row's place and
/// sales depend only on the rows ranked before it, so ranking fewer rows gives those rows
/// what ranking them all would; the places of rows after `last` are left as they are.
void rank_rows(Arr<Long, kChartRows>& sales, Arr<Integer, kChartRows>& place,
               int last = kChartRows);

/// Ranks all 70 rows into `chartplace`; a tie lifts the earlier row's sales by 1.
void rank_chart(Game& g);

/// At the end of a week: keeps in the career's tally the best place the chart screen would
/// give one of the band's singles that has sold, ranking a copy of the chart.
void tally_chart_place(Game& g);

/// Music Chart: opens the chart beside the office, or brings it forward if it is open.
void secret(Game& g);

/// The chart screen's load: ranks the chart and fills the top ten lines.
void load_Chart(Game& g);

/// OK on the chart screen: closes it.
void Chart_command1(Game& g);

}  // namespace tourvane

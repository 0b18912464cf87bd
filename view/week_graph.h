#pragma once
// The week graph as any front end draws it: cash and popularity at the end of every week
// played, each stretch of play (the new game, then each load) a piece of line from the date it
// began; the two scales, the dated ticks, the money's short form and the words that read out
// the point picked.

#include <array>
#include <string>
#include <vector>

#include "core/game.h"
#include "view/keys.h"
#include "view/screens.h"

namespace tourvane {

/// One point of the graph: the end of a week, where a stretch of play began, or a week the
/// band spent on holiday (its date only: no week was played, so it has no figures).
struct GraphPoint {
    WeekSample sample;
    bool start = false;
    bool holiday = false;
};

/// The points in the order they were played: each stretch from its start through its weeks,
/// with the two weeks of each holiday where they fell. A stretch in which no week was played
/// is left out, unless it is the latest.
std::vector<GraphPoint> graph_points(const Game& g);

/// One scale: its lowest and highest value and the step between its grid lines.
struct GraphScale {
    double low = 0, high = 1, step = 1;
};

/// Both scales include 0 and share the grid lines: the cash scale picks the number of
/// intervals, and the popularity scale the step that fits its values into as many.
struct GraphScales {
    GraphScale cash, fans;
    int intervals = 4;
};
GraphScales graph_scales(const std::vector<GraphPoint>& points);

/// The smallest of 1, 2 and 5 times a power of ten that is at least `raw` (and at least 1).
double nice_step(double raw);

/// Points between two dated ticks of the time axis, so that at most `room` dates fit: a week,
/// a month or so, a quarter, half a year, years.
int date_step(int points, int room);

/// Money on a scale, short: "£ 950", "£ 125k", "£ 1.25M".
std::string graph_money(double pounds);

/// The picked point in words: its date, cash and popularity ("Week 3 of 9, ending
/// 22/09/2001: cash £ 2990, popularity 4"); "No week played yet." for none.
std::string graph_readout(const std::vector<GraphPoint>& points, int current);

/// The three lines of the label beside the picked point: when, the cash, the popularity.
std::array<std::string, 3> point_label(const std::vector<GraphPoint>& points, int current);

/// The words over a point where a load began a stretch: "loaded 08/09/2001".
std::string stretch_label(const GraphPoint& p);

/// The week graph window's words, the graph's name, its key and its hint.
inline constexpr WindowWords kGraphWords{
    "Week Graph", "Cash and popularity at the end of every week played in this run.",
    "Close the week graph"};
inline constexpr std::string_view kGraphName = "Week graph";
inline constexpr std::string_view kPickedWeek = "Picked week";
inline constexpr std::string_view kCashLine = "Cash (left scale)";
inline constexpr std::string_view kFansLine = "Popularity (right scale)";
inline constexpr std::string_view kHolidayMark = "holiday";
inline constexpr std::string_view kGraphHint =
    "Point at the graph, or use Left, Right, Home and End.";

/// What the graph shows before any week has been played.
inline constexpr const char* kEmptyGraph =
    "No week played yet.\nEach Next Week adds its cash and popularity here.";

/// The point a graph key picks from `current` among `count` points (clamped to them).
int graph_move(KeyAction action, int current, int count);

/// Where the picked point's label goes so that it hides neither of the point's two marks
/// (at `x`, `y1` and `x`, `y2`): right of the point if there is room, else left, at the top
/// of the plot if the marks are clear of it, else at the bottom. Returns its top left corner.
struct Place {
    double left = 0, top = 0;
};
Place place_label(const Rect& plot, double x, double y1, double y2, double width, double height,
                  double gap);

}  // namespace tourvane

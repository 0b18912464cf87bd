#include "view/week_graph.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "core/ui.h"

namespace tourvane {

namespace {

/// Steps of the time axis in weeks: a week, a month or so, a quarter, half a year, years.
constexpr int kWeekSteps[] = {1, 2, 4, 8, 13, 26, 52, 104, 156, 260, 520, 1040, 2600, 5200};

/// Weeks a quarter's jump moves the pick.
constexpr int kQuarter = 13;

constexpr double kWeek = 7, kHoliday = 14;

/// Most holiday weeks told between two points: a longer gap is no run of holidays.
constexpr int kMostHolidayWeeks = 104;

/// Adds the weeks of the holidays taken between the last point and `day`, which a holiday's
/// fortnight at a time brings nearer: one point for each week, at the date it ended.
void holidays_until(std::vector<GraphPoint>& points, double day) {
    const GraphPoint last = points.back();
    const double gap = day - last.sample.date;
    if (!(gap >= kHoliday) || std::fmod(gap, kHoliday) != 0 || gap / kWeek > kMostHolidayWeeks)
        return;
    for (double d = last.sample.date + kWeek; d <= day; d += kWeek) {
        GraphPoint away{last.sample, false, true};
        away.sample.date = d;
        points.push_back(away);
    }
}

std::string shortened(double value, int digits, const char* unit) {
    char text[32];
    std::snprintf(text, sizeof text, "£ %.*g%s", digits, value, unit);
    return text;
}

}  // namespace

std::vector<GraphPoint> graph_points(const Game& g) {
    std::vector<GraphPoint> points;
    const std::vector<WeekSample>& weeks = g.history;
    const int stretches =
        std::max(static_cast<int>(g.segments.size()), weeks.empty() ? 0 : weeks.back().segment + 1);
    points.reserve(weeks.size() + g.segments.size());
    std::size_t next = 0;
    for (int k = 0; k < stretches; ++k) {
        std::size_t end = next;
        while (end < weeks.size() && weeks[end].segment == k) ++end;
        if (end == next && k + 1 < stretches) continue;
        if (k < static_cast<int>(g.segments.size())) points.push_back({g.segments[k], true});
        for (; next < end; ++next) {
            if (!points.empty()) holidays_until(points, weeks[next].date - kWeek);
            points.push_back({weeks[next], false});
        }
    }
    // Holidays since the latest week, or since the latest stretch began.
    if (!points.empty()) holidays_until(points, g.rec.gamedate);
    return points;
}

double nice_step(double raw) {
    if (!(raw > 1)) return 1;
    const double power = std::pow(10.0, std::floor(std::log10(raw)));
    for (double m : {1.0, 2.0, 5.0, 10.0})
        if (m * power >= raw * (1 - 1e-12)) return m * power;
    return 10 * power;
}

GraphScales graph_scales(const std::vector<GraphPoint>& points) {
    GraphScales s;
    double cash_low = 0, cash_high = 0, fans_low = 0, fans_high = 0;
    for (const GraphPoint& p : points) {
        cash_low = std::min(cash_low, double(p.sample.cash));
        cash_high = std::max(cash_high, double(p.sample.cash));
        fans_low = std::min(fans_low, double(p.sample.popularity));
        fans_high = std::max(fans_high, double(p.sample.popularity));
    }
    s.cash.step = nice_step((cash_high - cash_low) / 4);
    s.cash.low = std::floor(cash_low / s.cash.step) * s.cash.step;
    s.intervals = std::max(1, static_cast<int>(std::ceil((cash_high - s.cash.low) / s.cash.step)));
    s.fans.step = nice_step((fans_high - fans_low) / s.intervals);
    while (true) {
        s.fans.low = std::floor(fans_low / s.fans.step) * s.fans.step;
        if (s.fans.low + s.fans.step * s.intervals >= fans_high) break;
        s.fans.step = nice_step(s.fans.step * 1.01);
    }
    s.cash.high = s.cash.low + s.cash.step * s.intervals;
    s.fans.high = s.fans.low + s.fans.step * s.intervals;
    return s;
}

int date_step(int points, int room) {
    room = std::max(1, room);
    int step = kWeekSteps[0];
    for (int s : kWeekSteps) {
        step = s;
        if ((points - 1) / s + 1 <= room) break;
    }
    return step;
}

std::string graph_money(double pounds) {
    const double a = std::fabs(pounds);
    if (a >= 1e6) return shortened(pounds / 1e6, 3, "M");
    if (a >= 1e5) return shortened(pounds / 1e3, 4, "k");
    return format_cash(std::llround(pounds));
}

std::string graph_readout(const std::vector<GraphPoint>& points, int current) {
    if (current < 0 || current >= static_cast<int>(points.size())) return "No week played yet.";
    const GraphPoint& p = points[current];
    const std::string day = format_date(p.sample.date);
    if (p.holiday)
        return "Holiday, week ending " + day + ": the band was away and no week was played";
    std::string what;
    if (p.start) {
        what = (current == 0 ? "Start, " : "Game loaded, ") + day;
    } else {
        int week = 0, weeks = 0;
        for (int i = 0; i < static_cast<int>(points.size()); ++i) {
            if (points[i].start || points[i].holiday) continue;
            ++weeks;
            if (i <= current) ++week;
        }
        what = "Week " + std::to_string(week) + " of " + std::to_string(weeks) + ", ending " + day;
    }
    return what + ": cash " + format_cash(p.sample.cash) + ", popularity " +
           std::to_string(p.sample.popularity);
}

std::array<std::string, 3> point_label(const std::vector<GraphPoint>& points, int current) {
    const GraphPoint& p = points.at(static_cast<std::size_t>(current));
    if (p.holiday)
        return {"Holiday, week ending " + format_date(p.sample.date), "The band was away", ""};
    const char* when = p.start ? (current == 0 ? "Start " : "Loaded ") : "Week ending ";
    return {when + format_date(p.sample.date), "Cash " + format_cash(p.sample.cash),
            "Popularity " + std::to_string(p.sample.popularity)};
}

std::string stretch_label(const GraphPoint& p) {
    return "loaded " + format_date(p.sample.date);
}

Place place_label(const Rect& plot, double x, double y1, double y2, double width, double height,
                  double gap) {
    Place at{x + gap, plot.top + gap};
    if (at.left + width > plot.left + plot.width - gap / 2) at.left = x - gap - width;
    const auto clear = [&](double top) {
        return (y1 < top - 6 || y1 > top + height + 6) && (y2 < top - 6 || y2 > top + height + 6);
    };
    if (!clear(at.top)) {
        const double bottom = plot.top + plot.height - gap - height;
        if (clear(bottom)) at.top = bottom;
    }
    return at;
}

int graph_move(KeyAction action, int current, int count) {
    if (count <= 0) return -1;
    int to = current;
    switch (action) {
        case KeyAction::WeekBack:
            to = current - 1;
            break;
        case KeyAction::WeekOn:
            to = current + 1;
            break;
        case KeyAction::QuarterBack:
            to = current - kQuarter;
            break;
        case KeyAction::QuarterOn:
            to = current + kQuarter;
            break;
        case KeyAction::FirstWeek:
            to = 0;
            break;
        case KeyAction::LatestWeek:
            to = count - 1;
            break;
        default:
            break;
    }
    return std::clamp(to, 0, count - 1);
}

}  // namespace tourvane

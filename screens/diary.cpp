#include "screens/diary.h"

#include "week/turn.h"

namespace tourvane {

namespace {

WeekSample sample_of(const Module1& r, int segment) {
    return WeekSample{r.gamedate, r.cash, r.popularity, segment};
}

}  // namespace

void note_in_diary(Game& g, std::string_view from, std::string_view text) {
    g.diary.push_back(DiaryEntry{g.rec.gamedate, std::string(from), std::string(text)});
}

void begin_segment(Game& g) {
    g.segments.push_back(sample_of(g.rec, static_cast<int>(g.segments.size())));
}

void next_week_click(Game& g) {
    // The week starts from here if no stretch of play has begun yet (a new game).
    const WeekSample before = sample_of(g.rec, 0);
    command6(g);
    if (g.rec.gamedate == before.date) return;
    if (g.segments.empty()) g.segments.push_back(before);
    g.history.push_back(sample_of(g.rec, static_cast<int>(g.segments.size()) - 1));
}

}  // namespace tourvane

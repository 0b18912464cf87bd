#include "core/diary.h"

namespace tourvane {

WeekSample week_sample(const Game& g, int segment) {
    return WeekSample{g.rec.gamedate, g.rec.cash, g.rec.popularity, segment};
}

void note_in_diary(Game& g, std::string_view from, std::string_view text) {
    g.diary.push_back(DiaryEntry{g.rec.gamedate, std::string(from), std::string(text)});
}

void begin_segment(Game& g) {
    g.segments.push_back(week_sample(g, static_cast<int>(g.segments.size())));
}

}  // namespace tourvane

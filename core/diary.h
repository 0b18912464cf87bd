#pragma once
// What a career has shown the player, kept for looking back: the diary of every memo, box and
// gig report, and the cash and popularity at the end of every week played. None of it is a
// rule: the game plays the same with or without it. It is kept beside each save and comes back
// with the load of that save.

#include <string_view>

#include "core/game.h"

namespace tourvane {

/// Who a box is from in the diary: boxes carry the program's name.
inline constexpr std::string_view kBoxSender = "Tourvane";

/// Who the gig report is from in the diary.
inline constexpr std::string_view kReportSender = "Gig Report";

/// The cash and popularity now, in the given stretch of play.
WeekSample week_sample(const Game& g, int segment);

/// Writes a memo or a box into the diary, dated with today's game date.
void note_in_diary(Game& g, std::string_view from, std::string_view text);

/// A game has just been loaded: the week graph starts a new stretch at the loaded date, cash
/// and popularity.
void begin_segment(Game& g);

}  // namespace tourvane

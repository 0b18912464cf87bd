#pragma once
// What this run has shown the player, kept for looking back: the diary of every memo and box,
// and the cash and popularity at the end of every week played. None of it is a rule: the
// game plays the same with or without it, and none of it is saved.

#include <string_view>

#include "state/game.h"

namespace tourvane {

/// Who a box is from in the diary: boxes carry the program's name.
inline constexpr std::string_view kBoxSender = "Tourvane";

/// Writes a memo or a box into the diary, dated with today's game date.
void note_in_diary(Game& g, std::string_view from, std::string_view text);

/// A game has just been loaded: the week graph starts a new stretch at the loaded date, cash
/// and popularity.
void begin_segment(Game& g);

/// The Next Week click: plays the turn and, when the turn moved the calendar (the promotion's
/// early ends pass no time), notes the week's closing cash and popularity. The week that ends
/// the game is noted too: it was played, and the graph ends there.
void next_week_click(Game& g);

}  // namespace tourvane

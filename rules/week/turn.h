#pragma once
// Next Week: the turn, with every weekly rule in its fixed order.

#include <array>

#include "core/game.h"

namespace tourvane {

/// What a week of promotion costs at each level: 1 None, 2 Small, 3 Medium, 4 High (0, no
/// level chosen yet, acts as None).
inline constexpr std::array<int, 5> kPromotionPrice{0, 0, 100, 250, 400};

/// Each member's wage is drawn afresh every week: 1 to this many pounds.
inline constexpr int kTopWage = 3;

/// The Next Week click: contract review, practice, promotion, illness, morale, the song clock,
/// the date, wages (or the end of the game), venues, the label's answer, singles, events,
/// popularity decay and the chart, in that order, with its three early ends. A week that moved
/// the calendar adds its closing cash and popularity to the week history.
void command6(Game& g);

}  // namespace tourvane

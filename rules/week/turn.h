#pragma once
// Next Week: the turn, with every weekly rule in its fixed order.

#include "core/game.h"

namespace tourvane {

/// The Next Week click: contract review, practice, promotion, illness, morale, the song clock,
/// the date, wages (or the end of the game), venues, the label's answer, singles, events,
/// popularity decay and the chart, in that order, with its three early ends. A week that moved
/// the calendar adds its closing cash and popularity to the week history.
void command6(Game& g);

}  // namespace tourvane

#pragma once
// The week's random events: misbehaviour, illness, press items and invitations.

#include "core/game.h"

namespace tourvane {

/// The random events of one week, with their memos; leaves popularity at 0 or above.
void events(Game& g);

}  // namespace tourvane

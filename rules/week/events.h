#pragma once
// The week's random events: misbehaviour, illness, press items and invitations.

#include "core/game.h"

namespace tourvane {

/// Invitations to an interview come only to a full band more popular than this.
inline constexpr int kInvitationPopularity = 200;

/// The random events of one week, with their memos; leaves popularity at 0 or above.
void events(Game& g);

}  // namespace tourvane

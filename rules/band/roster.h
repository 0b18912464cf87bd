#pragma once
// The band list on the office screen, the member panel, sacking, and members leaving.

#include "core/game.h"

namespace tourvane {

/// Rebuilds the band list and the row-to-slot map from the member slots.
void listupdate(Game& g);

/// A click on a row of the band list: fills the member panel and arms SACK THIS MEMBER.
void members_click(Game& g);

/// A double click on the band list: Dave's memo on how the picked member is getting on.
void members_dblclick(Game& g);

/// SACK THIS MEMBER: asks, and removes the picked member on Yes.
void Command2(Game& g);

/// Takes the member in slot `selectedmember` out of the band, at a cost in popularity and in
/// the happiness of those who stay (or a lift, if the band disliked the leaver).
void delete_member(Game& g);

}  // namespace tourvane

#pragma once
// Why a control is grey: a short sentence for each control the rules disable, worked out from
// what the game already keeps and true in every state the game can reach, a load included.
// The screens show it as the control's tool tip and accessible description while the control
// stays disabled.

#include <string>

#include "core/game.h"

namespace tourvane {

/// Why `c` on `form` takes no clicks now; empty when it is enabled or has no reason to tell.
std::string disabled_reason(const Game& g, const FormState& form, const Control& c);

/// True when Next Week has played a week since the latest load (or since the start): what the
/// week's events set was set in this stretch of play, not read from a save.
bool week_played_since_load(const Game& g);

}  // namespace tourvane

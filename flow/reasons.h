#pragma once
// Why a control is grey: a short sentence for each control the rules disable, worked out from
// what the game already keeps. The screens show it as the control's tool tip and accessible
// description while the control stays disabled.

#include <string>

#include "core/game.h"

namespace tourvane {

/// Why `c` on `form` takes no clicks now; empty when it is enabled or has no reason to tell.
std::string disabled_reason(const Game& g, const FormState& form, const Control& c);

}  // namespace tourvane

#pragma once
// Radio interviews and cable TV shows, taken up from the office.

#include "core/game.h"

namespace tourvane {

/// Interview: the band appears, is reviewed in a memo, and gains a quarter of its score.
void interview(Game& g);

}  // namespace tourvane

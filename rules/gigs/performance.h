#pragma once
// Playing the booked gig: the score, the rise in popularity, the crowd and the money.

#include "core/game.h"

namespace tourvane {

/// PLAY GIG: scores the set list and the band, raises popularity, fills the venue, takes the
/// ticket money less the hire, empties the set list and writes the newspaper report.
void gig_command4(Game& g);

}  // namespace tourvane

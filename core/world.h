#pragma once
// The world a new game starts in, as data: names, instruments, title words and venues.

#include "core/game.h"

namespace tourvane {

/// The song clock at rest and the words of song titles.
void loadsongwords(Game& g);

/// The five venues.
void loadvenues(Game& g);

/// The instruments of the four places in the band and the names applicants are drawn from.
void loadnames(Game& g);

}  // namespace tourvane

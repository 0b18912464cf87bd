#pragma once
// The world a new game starts in: names, instruments, title words, venues, money and date.

#include "state/game.h"

namespace tourvane {

/// The whole set-up, run once at start-up.
void newgamesetup(Game& g);

/// The song clock at rest and the words of song titles.
void loadsongwords(Game& g);

/// The five venues.
void loadvenues(Game& g);

}  // namespace tourvane

#pragma once
// Band practice, music lessons and holidays.

#include "core/game.h"

namespace tourvane {

/// One band practice: a random member gains practice points; the band gets more tired.
void practise(Game& g);

/// Music Lessons: a paid lesson for the picked member.
void label13(Game& g);

/// Band Holiday: two paid weeks off that cheer the whole band up.
void holiday(Game& g);

}  // namespace tourvane

#pragma once
// Band practice, music lessons and holidays.

#include "core/game.h"

namespace tourvane {

inline constexpr int kLessonPrice = 75;
inline constexpr int kHolidayPrice = 300;
/// A holiday's happiness for every member, up to the most a member can have.
inline constexpr int kHolidayCheer = 4;
inline constexpr int kHappiest = 10;

/// One band practice: a random member gains practice points; the band gets more tired.
void practise(Game& g);

/// Music Lessons: a paid lesson for the picked member.
void label13(Game& g);

/// Band Holiday: two paid weeks off that cheer the whole band up.
void holiday(Game& g);

}  // namespace tourvane

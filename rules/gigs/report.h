#pragma once
// The newspaper's review of the gig just played.

#include <string>

#include "core/game.h"

namespace tourvane {

/// The report as the diary keeps it: the review, then the crowd and the money in a sentence.
std::string report_for_diary(const Module1& r, const std::string& review);

/// After a gig: a very bad one upsets one member, the review's opening is written, the gig
/// screen closes, the report opens and no second gig can be booked this week.
void newspaper(Game& g);

/// Opening the report: the review with its best song and closing words, the crowd and the
/// profit.
void load_thenewspaper(Game& g);

/// OK on the report: back to the office.
void thenewspaper_Label2(Game& g);

}  // namespace tourvane

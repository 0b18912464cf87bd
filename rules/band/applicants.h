#pragma once
// Applicants: one at a time, for the lowest empty slot, hired or dismissed from the office.

#include "core/game.h"

namespace tourvane {

/// The word the applicant panel uses for a level of talent, from "terrible " to "excellent ".
const char* talent_word(int talent);

/// Draws a new applicant for slot `vacancy` and describes them; nothing once six have been
/// hired or dismissed this week.
void newapplicant(Game& g);

/// Brings the office up to date: heading, date, cash and the applicant on offer.
void update(Game& g);

/// HIRE: the applicant joins the band in slot `vacancy`.
void hire(Game& g);

/// DISMISS: the applicant goes away; the fourth dismissal of a week closes the panel.
void dismiss(Game& g);

}  // namespace tourvane

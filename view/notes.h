#pragma once
// What a manager would want to know, told where the player looks, from what the game already
// keeps: the week's outgoings and how long the cash lasts, the band's popularity and how it
// moves, what a venue asks, what lessons and holidays cost, each song's quality and what the
// record label looks for.

#include <string>
#include <vector>

#include "core/game.h"

namespace tourvane {

/// The week's outgoings as the game stands: wages and the promotion level in force.
struct Outgoings {
    int members = 0;
    long long wages_low = 0, wages_high = 0;  ///< every member's wage is drawn afresh each week
    long long promotion = 0;                  ///< the price of the promotion level in force
    long long low = 0, high = 0;              ///< all together
    /// Whole weeks the cash pays for at the highest of these rates; -1 when nothing goes out.
    long long weeks = -1;
};
Outgoings outgoings(const Game& g);

/// The money in words: the outgoings, how long the cash lasts, and a promotion the cash can't
/// pay. Shown on the office's cash.
std::string cash_note(const Game& g);

/// The band's popularity, its change over the last weeks played, and what it opens. Shown on
/// the office's heading.
std::string popularity_note(const Game& g);

/// What a hover over the control adds to its tool tip: the notes above, a venue's ask, a
/// lesson's or a holiday's price, what a song's number means. Empty for most controls.
std::string control_note(const Game& g, const FormState& form, const Control& c);

/// The rows a list shows: the song lists carry each song's quality before its title.
std::vector<std::string> shown_rows(const Game& g, const FormState& form, const Control& c);

/// An explanation the diary gives under an entry: under each of the label's answers to a
/// demo, what the label looks for. Empty for other entries.
std::string diary_note(const DiaryEntry& e);

}  // namespace tourvane

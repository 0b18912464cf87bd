#pragma once
// A career seen whole: the tally kept as it is played (members hired and lost, demos sent,
// gigs played, the best chart place) and the summary of a career, for the hall of fame and the
// memo that ends the game. None of it is a rule: the game plays the same with or without it.

#include <string>
#include <string_view>

#include "core/game.h"

namespace tourvane {

/// A member has been hired.
void note_hire(Game& g);

/// A member has walked out or been sacked.
void note_loss(Game& g);

/// A demo has gone to the record label.
void note_demo(Game& g);

/// A gig has just been played at venue slot `venue` (0 for none): counted, and kept as the
/// best gig when it scored above every one before.
void note_gig(Game& g, int venue);

/// At the end of a week the band's best single stood at `place` (1 to 70) on the chart with
/// `song`: kept as the career's best place when it beats every week before.
void note_chart_place(Game& g, int place, std::string_view song);

/// A career told in its figures.
struct CareerSummary {
    std::string band;
    std::string boss;
    Date first_day = 0;  ///< where the first stretch of play began (today if none has)
    Date last_day = 0;   ///< today in the game
    Long weeks = 0;      ///< whole weeks from the first day to the last, holidays included
    Long peak_cash = 0;
    Date peak_cash_date = 0;
    Integer peak_popularity = 0;
    Date peak_popularity_date = 0;
    Long singles = 0;  ///< songs released as singles
    bool bankrupt = false;
    CareerTally tally;
    bool operator==(const CareerSummary&) const = default;
};

/// The summary of the career of `g`: its record, weeks and tally as they stand. Peaks are the
/// highest cash and popularity at the end of any week played, at the start of any stretch of
/// play, or now; the earliest date of equals.
CareerSummary career_summary(const Game& g);

/// Whether career `a` ranks above `b` in the hall of fame: it lasted more weeks; or as long,
/// with a better best chart place (a place beats never charting); or those equal, with more
/// peak cash.
bool better_career(const CareerSummary& a, const CareerSummary& b);

}  // namespace tourvane

#pragma once
// A career as the player reads it: its summary, line by line, when the memo that ends the game
// comes up and in the hall of fame; the hall's list; and the title screen's offer to carry on
// with the career the automatic save kept.

#include <string>
#include <vector>

#include "core/career.h"
#include "flow/career.h"
#include "view/screens.h"

namespace tourvane {

struct SummaryLine {
    std::string label;
    std::string value;
};

/// The career's figures, a line each: band and boss, first and last day, weeks lasted, peak
/// cash and popularity, best chart place and its song, singles, gigs and the best of them,
/// demos, members hired and lost, and how it ended.
std::vector<SummaryLine> summary_lines(const CareerSummary& s);

/// A career in one line of the hall's list: "The Wasps (Sam), 48 weeks, best chart place 3".
std::string hall_line(const CareerSummary& s);

/// The title screen's line about the automatic save: the career it holds and the key that
/// carries on with it, or why it can't be; empty when there is none.
std::string carry_on_offer(const AutosavedCareer& saved);

/// The title screen's line about the hall of fame and its key.
std::string hall_hint();

/// The words of the career's summary window and of the hall of fame window.
inline constexpr WindowWords kSummaryWords{"Career", "The story of the band, in its figures.",
                                           "Close the summary"};
inline constexpr WindowWords kHallWords{
    "Hall of Fame", "Every career that has ended, the longest first.", "Close the hall of fame"};
inline constexpr std::string_view kHallList = "Careers";
inline constexpr std::string_view kHallDiary = "Open the diary of this career";
inline constexpr std::string_view kHallGraph = "Open the week graph of this career";

/// The title screen's button that carries on with the automatic save's career.
inline constexpr std::string_view kCarryOn = "Carry on";
inline constexpr std::string_view kEmptyHall =
    "No career has ended yet: when one does, it is kept here.";

}  // namespace tourvane

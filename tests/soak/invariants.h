#pragma once
// What must hold in every game after every click, however the player clicks: the member
// slots, the songs, the chart, the screens, and the number widths.

#include <cstdint>
#include <string>
#include <vector>

#include "core/fields.h"
#include "core/game.h"

namespace tourvane::soak {

/// What the player knows about the click just made; some checks depend on it.
struct ClickFacts {
    bool gig_played = false;  ///< PLAY GIG ran and the review came out
    bool loaded = false;      ///< a saved game replaced the running one
};

/// Watches one game from click to click. Numbers are compared with their value before the
/// click, so a field that jumps from one end of its width to the other is caught as a wrap.
class Watch {
  public:
    /// Starts watching `g`, a game fresh from start-up. The count of very bad gigs carries
    /// over from earlier games: a save of one game may be loaded into the next.
    void start(Game& g);

    /// Every broken invariant of the game as it stands after a click, one line each.
    std::vector<std::string> after_click(const ClickFacts& facts);

    /// Gigs so far whose score made a member extremely unhappy. Each can take one member's
    /// happiness one point further below 0.
    std::int64_t very_bad_gigs() const { return very_bad_gigs_; }

  private:
    void snapshot();

    Game* g_ = nullptr;
    std::vector<Field> numbers_;        ///< every Integer, Long and Boolean field
    std::vector<std::int64_t> before_;  ///< their elements, flattened, before the click
    Arr<Integer, kMemberSlots> happy_before_{};
    Date date_before_ = 0;
    std::int64_t very_bad_gigs_ = 0;
};

/// The checks that need no history: a game as it stands. Appends one line per broken
/// invariant to `faults`. `very_bad_gigs` bounds how far below 0 happiness may stand.
void check_state(Game& g, std::int64_t very_bad_gigs, std::vector<std::string>& faults);

}  // namespace tourvane::soak

#pragma once
// The soak player: game after game of random clicks on whatever a person could click, with
// random answers to every box, checking every invariant after every click.

#include <cstdint>
#include <string>
#include <vector>

namespace tourvane::soak {

struct SoakOptions {
    std::uint64_t seed = 1;       ///< seeds the player's choices and each game's draws
    std::int64_t weeks = 1000;    ///< weeks to play, counted over all games
    std::size_t max_faults = 20;  ///< stop after this many broken invariants
};

struct SoakReport {
    std::int64_t weeks = 0;    ///< Next Week clicks that moved the calendar
    std::int64_t clicks = 0;   ///< clicks and double clicks made
    std::int64_t games = 0;    ///< games started (a new one follows each end)
    std::int64_t saves = 0;    ///< games saved and read back
    std::int64_t loads = 0;    ///< games loaded
    std::int64_t gigs = 0;     ///< gigs played
    std::int64_t singles = 0;  ///< singles released
    std::int64_t very_bad_gigs = 0;
    std::vector<std::string> faults;  ///< each broken invariant, with where it broke
};

/// Plays `options.weeks` weeks in the working directory, where the save files land.
SoakReport run_soak(const SoakOptions& options);

}  // namespace tourvane::soak

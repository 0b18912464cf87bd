#pragma once
// Start-up, the title screen and the office's own clicks.

#include <cstdint>
#include <optional>

#include "core/game.h"

namespace tourvane {

/// The world a new game starts in: song words, venues, rival bands, £3000, the first date,
/// four empty places and the names applicants are drawn from.
void newgamesetup(Game& g);

/// Start-up: hides the office, opens the title screen, seeds the draws (from `seed`, or from
/// the clock), sets up the world and refreshes the office.
void load_main(Game& g, std::optional<std::uint64_t> seed = std::nullopt);

/// The title screen's load: reads the band name of each save slot.
void load_Form1(Game& g);

/// NEW GAME: asks for the band's and the boss's names and opens the office.
void Form1_New(Game& g);

/// EXIT on the title screen: ends the program with no question.
void Form1_Label4(Game& g);

/// The X of the office: asks whether to quit, and ends the program on Yes.
void exitbtn(Game& g);

/// A promotion option: sets the level charged from the next week on.
void promote(Game& g, int index);

}  // namespace tourvane

#pragma once
// The save and load screen `savefrm`: four slots, Save and Load from the office, Load alone
// from the title screen.

#include <filesystem>

#include "core/game.h"

namespace tourvane {

/// Save Game on the office: opens the screen with both Save and Load.
void command5(Game& g);

/// LOAD GAME on the title screen: opens the screen with Load alone, moved to the middle.
void Form1_load(Game& g);

/// Puts the unloaded screen's controls as its next load will start them: slot names as
/// captions, the top slot chosen.
void reset_savefrm(Game& g);

/// The screen's load: slots that hold a save show its band name; the top slot is chosen.
void load_savefrm(Game& g);

/// Each slot's option tells what its file holds now (its tool tip): the band, date and cash,
/// or that it is empty or damaged.
void tell_slots(Game& g);

/// Closes the screen for good and brings the office up.
void unload_savefrm(Game& g);

/// Save: stores the game in the chosen slot, refreshes the office and says "Game Saved". A
/// save that fails says why and leaves the old save in the slot as it was.
void savefrm_save(Game& g);

/// Load: resumes the game in the chosen slot, closing the title screen, and says "Game
/// Loaded". A slot with no valid save is refused and the running game stays as it was.
void savefrm_load(Game& g);

/// Takes the game saved at `save`, with the history beside it at `history`, in place of the
/// running one and opens the office on it, closing the title screen: "Game Loaded". False,
/// with the running game as it was and nothing shown, when the file holds no valid save.
bool resume_career(Game& g, const std::filesystem::path& save,
                   const std::filesystem::path& history);

/// BACK: hides the screen; it keeps its chosen slot and layout for the next opening.
void savefrm_back(Game& g);

}  // namespace tourvane

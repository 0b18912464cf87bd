#pragma once
// A career kept safe between runs: the automatic save beside the four slots, written as the
// program ends and offered on the title screen of the next start, and the end of a career
// that the hall of fame keeps.

#include <filesystem>
#include <string>

#include "core/game.h"

namespace tourvane {

/// The automatic save, "tvauto.tvs", and its history beside it, "tvauto.tvh": the same bytes a
/// slot's save and history would hold.
std::filesystem::path autosave_file();
std::filesystem::path autosave_history_file();

/// The program is ending, by whatever path: a career being played is kept in the automatic
/// save; a career that has ended goes into the hall of fame and its automatic save is removed.
/// With no career begun (EXIT on the title screen) an automatic save is left alone. True when
/// the automatic save was written.
bool keep_running_career(const Game& g);

/// What the title screen can offer to carry on with.
struct AutosavedCareer {
    enum class State { None, Ready, Damaged };
    State state = State::None;
    /// Ready: the band, game date and cash ("The Wasps, 08/09/2001, £ 3000"). Damaged: why it
    /// can't be carried on with.
    std::string text;
};

/// The automatic save among `files`, read as a load reads it. Changes nothing.
AutosavedCareer autosaved_career(FilePort& files);

/// The text of the box that refuses a damaged automatic save.
inline constexpr const char* kDamagedAutosave =
    "The automatic save (tvauto.tvs) is damaged and cannot be loaded. It has been left as it "
    "is.";

/// Carry on: resumes the career of the automatic save as LOAD GAME resumes a slot's, with its
/// diary and weeks, and says "Game Loaded". The automatic save stays until the program next
/// ends. With none, or a damaged one, a critical box says so, the title screen stays and the
/// file is left alone. True when the career was resumed.
bool carry_on(Game& g);

}  // namespace tourvane

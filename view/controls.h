#pragma once
// How each control is named to a screen reader and what a hover over it tells, for every
// front end alike. Where a front end has cut a caption short to fit ("…"), it says so with
// `cut`, and the hover then tells the whole caption.

#include <string>

#include "core/game.h"

namespace tourvane {

/// "name" for a single control, "name(i)" for a member of a control array.
std::string control_key(const Control& c);

/// The name a screen reader gives the control: its own where it has one ("Cash", "Track
/// list"), else its caption, a hot-spot's tool tip, or a list's control name.
std::string accessible_name(const FormState& form, const Control& c);

/// True for a label that shows a value under a name of its own ("Cash": "£ 3000"); its value
/// is its accessible description and changes with it.
bool shows_value(const FormState& form, const Control& c);

/// Why the control is grey, for a control that takes clicks; empty when it is not grey or
/// has no reason to tell.
std::string grey_reason(const Game& g, const FormState& form, const Control& c);

/// What a hover over the control tells, a line each: the whole caption if it is shown cut,
/// else its tool tip while it is not grey; then `note` (control_note of view/notes.h), then why
/// it is grey (`reason`, from grey_reason). Empty for nothing to tell.
std::string hover_text(const Control& c, bool cut, const std::string& note,
                       const std::string& reason);

/// What a screen reader says after the name: a value label's value and its note, else what a
/// hover tells (a hot-spot's tool tip is its name already).
std::string accessible_description(const FormState& form, const Control& c, bool cut,
                                   const std::string& note, const std::string& reason);

}  // namespace tourvane

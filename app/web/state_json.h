#pragma once
// The game as the web page sees it: every screen and control of the form model, and whether
// the program has ended, written as one JSON text for the page to draw from.

#include <string>
#include <string_view>

#include "core/game.h"

namespace tourvane {

/// Appends `text` as a JSON string, quotes included. UTF-8 passes through as it stands; the
/// quote, the backslash and the control characters are escaped.
void append_json_string(std::string& out, std::string_view text);

/// The name the page knows a kind of control by: "Label", "ClickLabel", "HotSpot", ...
const char* kind_name(ControlKind kind);

/// Everything the page draws: `ended`, `game_over`, the number of memos waiting (`memos`),
/// and every form with every control in declaration order.
std::string state_json(Game& g);

}  // namespace tourvane

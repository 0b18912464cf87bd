#pragma once
// The game's key table (view/keys.h) bound to Qt shortcuts: a window takes the keys of the
// table that work where it stands.

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "view/keys.h"

class QKeyEvent;
class QWidget;

namespace tourvane {

/// Gives `window` a shortcut for each key of the table that works in `where` (a form name or
/// a place:: name, with the keys that work everywhere only when `where` is place::kEverywhere)
/// and does one of `actions`; a press calls `act` with its row of the table.
void bind_keys(QWidget& window, std::string_view where, std::initializer_list<KeyAction> actions,
               std::function<void(const KeyBinding&)> act);

/// A key press as the table writes keys: "Left", "PgUp", "Ctrl+Q".
std::string key_name(const QKeyEvent& event);

}  // namespace tourvane

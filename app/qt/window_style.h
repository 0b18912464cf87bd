#pragma once
// The look shared by the windows that stand beside the game's screens (the diary, the week
// graph and the key help): the office's dark colours, in a window the player may resize.

#include <string_view>

class QWidget;

namespace tourvane {

/// The scroll bars of the game's dark windows and lists.
extern const char* const kScrollBarStyle;

/// Every tool tip of the game, on every window: dark ink on the memos' paper. It goes last in a
/// window's style sheet, so that no rule for labels or for everything reaches a tip.
extern const char* const kToolTipStyle;

/// Dresses a top-level window in the office's colours and gives it the keys that close it
/// where it stands (`where`, a place:: name of view/keys.h).
void dress_side_window(QWidget& window, std::string_view where);

}  // namespace tourvane

#pragma once
// The look shared by the windows that stand beside the game's screens (the diary, the week
// graph and the key help): the office's dark colours, in a window the player may resize.

class QWidget;

namespace tourvane {

/// The scroll bars of the game's dark windows and lists.
extern const char* const kScrollBarStyle;

/// Dresses a top-level window in the office's colours and lets Escape close it.
void dress_side_window(QWidget& window);

}  // namespace tourvane

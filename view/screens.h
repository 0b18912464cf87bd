#pragma once
// The seven screens as windows or panels: their titles, which control the frame's close button
// and the first focus go to, where the quit key leads, and which screens stand open and which
// comes to the front after each click.

#include <string>
#include <string_view>
#include <vector>

#include "core/game.h"

namespace tourvane {

struct ScreenFace {
    std::string_view title;          ///< the window's title and accessible name
    std::string_view close_control;  ///< what the frame's close button clicks
    std::string_view focus_control;  ///< takes the keys when the screen opens ("name(i)" form)
};

/// How the screen of that form name presents itself; an empty face for an unknown name.
ScreenFace screen_face(std::string_view form);

/// The caption of the button that closes a window beside the office.
inline constexpr std::string_view kCloseButton = "Close";

/// The title every box of the game carries but the two prompts of NEW GAME.
inline constexpr std::string_view kBoxTitle = "Tourvane";

/// The words of a window beside the office: the diary, the week graph, the key help.
struct WindowWords {
    std::string_view title;  ///< its title, heading and accessible name
    std::string_view about;  ///< the line under the heading
    std::string_view close;  ///< what its Close button is called to a screen reader
};

/// What a screen reader hears when a memo comes up: "Message from Dave", then its text.
struct Announcement {
    std::string name;
    std::string text;
};
Announcement memo_announcement(const Game& g);

/// A control of a screen, by the names a click uses.
struct ControlRef {
    std::string_view form;
    std::string_view control;
};

/// What the quit key clicks: EXIT while the title screen is up, else the office's quit button,
/// which asks first (and, like any click there, is refused while a memo holds the office).
ControlRef quit_control(const Game& g);

/// True when the screen's window should stand open: loaded, shown, and the program running.
bool wanted_open(const Game& g, const FormState& form);

/// What a front end must do to its windows after a click, to match the game.
struct ScreenChanges {
    std::vector<const FormState*> opened;  ///< to show, in this order, each with its focus
    std::vector<const FormState*> closed;  ///< to hide
    const FormState* front = nullptr;      ///< to bring in front and give the keys, if any
};

/// The screens a front end has open, in the order they opened. `sync` compares them with the
/// game and says what changes: screens opened and closed, and which comes to the front: a memo
/// always (it holds the office up), else the screen just opened, else one the game asked
/// forward, else, when the screen in front has closed, the latest still open.
class ScreenOrder {
  public:
    ScreenChanges sync(Game& g);

    /// The open screens, oldest first.
    const std::vector<const FormState*>& open() const { return open_; }

  private:
    std::vector<const FormState*> open_;
    const FormState* front_ = nullptr;  ///< the screen last brought to the front
    std::vector<unsigned> forward_seen_ = std::vector<unsigned>(7, 0);
};

}  // namespace tourvane

#pragma once
// Every key the game answers to, in one table: the front ends bind their keys from it and the
// key help lists it, so no key can be bound without being listed. Keys are written as the
// portable names both front ends read: "N", "F1", "Ctrl+Q", "Esc", "Left", "PgUp".

#include <span>
#include <string>
#include <string_view>

#include "core/game.h"

namespace tourvane {

/// Where a key works: a screen by its form name, or one of the windows beside the office.
namespace place {
inline constexpr std::string_view kDiary = "diary";
inline constexpr std::string_view kGraph = "graph";
inline constexpr std::string_view kHelp = "help";
inline constexpr std::string_view kSummary = "summary";
inline constexpr std::string_view kHall = "hall";
inline constexpr std::string_view kEverywhere = "";
}  // namespace place

enum class KeyAction {
    Click,         ///< clicks `control` of the screen, as the mouse would
    OpenDiary,     ///< opens the diary beside the office
    OpenGraph,     ///< opens the week graph beside the office
    OpenHelp,      ///< opens the key help beside the office
    OpenHall,      ///< opens the hall of fame beside the title screen
    CarryOn,       ///< carries on with the career the automatic save kept
    Close,         ///< closes the window beside the office
    Quit,          ///< quits as the window's own quit does (see quit_control)
    ChooseSender,  ///< the diary's sender filter takes the keys
    Search,        ///< the diary's search field takes the keys
    WeekBack,      ///< the week graph picks the week before
    WeekOn,        ///< the week after
    QuarterBack,   ///< thirteen weeks back
    QuarterOn,     ///< thirteen weeks on
    FirstWeek,     ///< the first point of the graph
    LatestWeek,    ///< the latest
    Widget,        ///< the page's or window's own handling: listed, never bound by the game
};

struct KeyBinding {
    std::string_view where;  ///< a form name or a place:: name
    std::string_view key;    ///< portable names; several keys of one row are ", "-separated
    KeyAction action;
    std::string_view control;  ///< the control `Click` clicks
    std::string_view help;     ///< what the key help says; for a click, empty means the
                               ///< control's accessible name
};

/// The whole table, in the order the key help lists it.
std::span<const KeyBinding> key_bindings();

/// The binding of `key` where it is pressed, or nullptr. A key bound everywhere answers in
/// every place that does not bind it itself.
const KeyBinding* find_key(std::string_view where, std::string_view key);

/// The key that clicks the control `control` of `form`, or empty.
std::string_view key_of(std::string_view form, std::string_view control);

/// The (first) key that does `action` where it is pressed, or empty.
std::string_view key_for(std::string_view where, KeyAction action);

/// The keys of one row one by one: "Alt+S, Ctrl+F" gives "Alt+S" then "Ctrl+F".
template <class F>
void each_key(std::string_view keys, F&& f) {
    while (!keys.empty()) {
        const std::size_t comma = keys.find(", ");
        f(keys.substr(0, comma));
        keys = comma == std::string_view::npos ? std::string_view() : keys.substr(comma + 2);
    }
}

/// A key as the key help shows it: "Page Up" for "PgUp", "Escape" for "Esc".
std::string key_label(std::string_view key);

/// A button drawn in the office's left column, under its hot-spot.
struct OfficeButton {
    Rect rect;
    std::string caption;
    char key = 0;  ///< the letter that presses it, underlined in the caption
    bool enabled = true;
};

/// The office's drawn buttons, top to bottom, as the office stands: hidden hot-spots are left
/// out.
std::vector<OfficeButton> office_buttons(const OfficeForm& office);

}  // namespace tourvane

#include "view/keys.h"

#include <array>

namespace tourvane {

namespace {

using enum KeyAction;

constexpr std::array kBindings{
    // The office's hot-spots, top to bottom, then its windows.
    KeyBinding{"main", "N", Click, "command6", {}},
    KeyBinding{"main", "M", Click, "label13", {}},
    KeyBinding{"main", "P", Click, "command4", {}},
    KeyBinding{"main", "C", Click, "secret", {}},
    KeyBinding{"main", "S", Click, "command3", {}},
    KeyBinding{"main", "R", Click, "command1", {}},
    KeyBinding{"main", "I", Click, "interview", {}},
    KeyBinding{"main", "H", Click, "holiday", {}},
    KeyBinding{"main", "V", Click, "command5", {}},
    KeyBinding{"main", "D", OpenDiary, {}, "Open the diary of memos and messages"},
    KeyBinding{"main", "G", OpenGraph, {}, "Open the week graph of cash and popularity"},
    KeyBinding{"main", "F1", OpenHelp, {}, "Show how to play, every key and what Tourvane is"},
    KeyBinding{"Form1", "N", Click, "New", "Start a new game"},
    KeyBinding{"Form1", "L", Click, "load", "Load a saved game"},
    KeyBinding{
        "Form1", "C", CarryOn, {}, "Carry on with the career kept when Tourvane last closed"},
    KeyBinding{"Form1", "H", OpenHall, {}, "Open the hall of fame of careers that have ended"},
    KeyBinding{"messageForm", "Esc", Click, "command1", "OK: the memo is read"},
    KeyBinding{"gig", "Esc", Click, "Command2", "Back to the office"},
    KeyBinding{"thenewspaper", "Esc", Click, "Label2", "OK: back to the office"},
    KeyBinding{"savefrm", "Esc", Click, "back", "Back"},
    KeyBinding{"Chart", "Esc", Click, "command1", "OK: close the chart"},
    KeyBinding{place::kDiary, "Alt+F", ChooseSender, {}, "Choose whose messages to show"},
    KeyBinding{place::kDiary, "Alt+S, Ctrl+F", Search, {}, "Search the messages"},
    KeyBinding{place::kDiary, "Up, Down", Widget, {}, "Move through the messages"},
    KeyBinding{place::kDiary, "Esc", Close, {}, "Close the diary"},
    KeyBinding{place::kGraph, "Left", WeekBack, {}, "The week before"},
    KeyBinding{place::kGraph, "Right", WeekOn, {}, "The week after"},
    KeyBinding{place::kGraph, "PgUp", QuarterBack, {}, "Thirteen weeks back"},
    KeyBinding{place::kGraph, "PgDown", QuarterOn, {}, "Thirteen weeks on"},
    KeyBinding{place::kGraph, "Home", FirstWeek, {}, "The first week"},
    KeyBinding{place::kGraph, "End", LatestWeek, {}, "The latest week"},
    KeyBinding{place::kGraph, "Esc", Close, {}, "Close the graph"},
    KeyBinding{place::kHelp, "Esc", Close, {}, "Close this list"},
    KeyBinding{place::kSummary, "Esc", Close, {}, "Close the career's summary"},
    KeyBinding{place::kHall, "Esc", Close, {}, "Close the hall of fame"},
    KeyBinding{place::kEverywhere,
               "Ctrl+Q",
               Quit,
               {},
               "Quit: at once from the title screen, after a question from anywhere else"},
    KeyBinding{place::kEverywhere,
               "Tab, Shift+Tab",
               Widget,
               {},
               "Move between the buttons, lists and options"},
    KeyBinding{
        place::kEverywhere, "Space, Return", Widget, {}, "Press the button that has the focus"},
    KeyBinding{place::kEverywhere,
               "Up, Down, Home, End",
               Widget,
               {},
               "Move through a list; in the track and band lists this picks the row"},
};

bool holds_key(std::string_view keys, std::string_view key) {
    bool found = false;
    each_key(keys, [&](std::string_view k) { found = found || k == key; });
    return found;
}

}  // namespace

std::span<const KeyBinding> key_bindings() {
    return kBindings;
}

const KeyBinding* find_key(std::string_view where, std::string_view key) {
    const KeyBinding* everywhere = nullptr;
    for (const KeyBinding& b : kBindings) {
        if (b.action == Widget || !holds_key(b.key, key)) continue;
        if (b.where == where) return &b;
        if (b.where == place::kEverywhere && !everywhere) everywhere = &b;
    }
    return everywhere;
}

std::string_view key_of(std::string_view form, std::string_view control) {
    for (const KeyBinding& b : kBindings)
        if (b.action == Click && b.where == form && b.control == control) return b.key;
    return {};
}

std::string_view key_for(std::string_view where, KeyAction action) {
    for (const KeyBinding& b : kBindings) {
        if (b.action != action || b.where != where) continue;
        std::string_view first;
        each_key(b.key, [&](std::string_view k) {
            if (first.empty()) first = k;
        });
        return first;
    }
    return {};
}

std::string key_label(std::string_view key) {
    if (key == "PgUp") return "Page Up";
    if (key == "PgDown") return "Page Down";
    if (key == "Esc") return "Escape";
    return std::string(key);
}

std::vector<OfficeButton> office_buttons(const OfficeForm& office) {
    std::vector<OfficeButton> buttons;
    for (const Control* c : office.hotspots()) {
        if (!c->visible) continue;
        const std::string_view key = key_of("main", c->name);
        buttons.push_back({c->pos, c->tooltip, key.empty() ? '\0' : key.front(), c->enabled});
    }
    return buttons;
}

}  // namespace tourvane

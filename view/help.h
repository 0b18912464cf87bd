#pragma once
// The key help (F1): every key of the key table, a section for each place it works in, and
// what Tourvane is: its version and licence.

#include <string>
#include <vector>

#include "core/game.h"
#include "view/screens.h"

namespace tourvane {

struct HelpRow {
    std::string keys;  ///< as shown: "Page Up", "Alt+S, Ctrl+F"
    std::string what;
};

struct HelpSection {
    std::string title;
    std::vector<HelpRow> rows;
};

/// The key table as the key help lists it, in sections by place: the office, the title
/// screen, the other screens, the diary, the week graph, this list, every window.
std::vector<HelpSection> key_help(Game& g);

/// The key help window's words: its list, the list's columns and the About part.
inline constexpr WindowWords kHelpWords{"Help", "", "Close the help"};
inline constexpr std::string_view kKeysPart = "Keys";
inline constexpr std::string_view kHelpList = "Keys and what they do";
inline constexpr std::string_view kHelpColumns[] = {"Key", "What it does"};
inline constexpr std::string_view kAboutHeading = "About";
inline constexpr std::string_view kAboutName = "About Tourvane";

struct HelpParagraph {
    std::string heading;
    std::string text;
};

/// How to play, a short page of it: a heading and a paragraph for each part of the game.
std::vector<HelpParagraph> how_to_play(const Game& g);
inline constexpr std::string_view kHowToPlay = "How to play";

/// What Tourvane is: its name and version, what it does, its licence.
std::string about_text();

}  // namespace tourvane

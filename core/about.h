#pragma once
// What the game says about itself: its version and licence, for --version and the About part
// of the key help. Plain C++, shared by the game and the scripted driver; the build gives
// TOURVANE_VERSION.

#include <string>
#include <string_view>

namespace tourvane {

inline constexpr std::string_view kVersion = TOURVANE_VERSION;
inline constexpr std::string_view kLicence = "GPL-3.0-or-later";
inline constexpr std::string_view kWhatItIs =
    "A rock band management game: one band, one week a click.";

/// What --version prints for `program`: the version, the copyright and the licence.
inline std::string version_text(std::string_view program) {
    std::string out(program);
    out += ' ';
    out += kVersion;
    out +=
        "\nCopyright (C) 2026 The Tourvane developers\n"
        "License GPL-3.0-or-later: GNU GPL version 3 or later "
        "<https://www.gnu.org/licenses/gpl-3.0.html>.\n"
        "This is free software: you are free to change and redistribute it.\n"
        "There is NO WARRANTY, to the extent permitted by law.\n";
    return out;
}

}  // namespace tourvane

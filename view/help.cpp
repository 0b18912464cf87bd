#include "view/help.h"

#include <algorithm>

#include "core/about.h"
#include "view/controls.h"
#include "view/keys.h"

namespace tourvane {

namespace {

std::string section_title(std::string_view where) {
    if (where == "main") return "In the office";
    if (where == "Form1") return "On the title screen";
    if (where == "messageForm") return "On a memo";
    if (where == "gig") return "Booking a gig";
    if (where == "thenewspaper") return "In the gig report";
    if (where == "savefrm") return "Saving and loading";
    if (where == "Chart") return "In the music chart";
    if (where == place::kDiary) return "In the diary";
    if (where == place::kGraph) return "In the week graph";
    if (where == place::kHelp) return "In this list";
    return "In every window";
}

/// What a row says: its own words, or for a click the name of the control it clicks.
std::string row_text(Game& g, const KeyBinding& b) {
    if (!b.help.empty()) return std::string(b.help);
    std::string name(b.control);
    with_form(g.forms, b.where, [&](auto& form) {
        if (const Control* c = find_control(form, b.control, -1)) name = accessible_name(form, *c);
    });
    return name;
}

}  // namespace

std::vector<HelpSection> key_help(Game& g) {
    std::vector<HelpSection> sections;
    for (const KeyBinding& b : key_bindings()) {
        const std::string title = section_title(b.where);
        auto section = std::find_if(sections.begin(), sections.end(),
                                    [&](const HelpSection& s) { return s.title == title; });
        if (section == sections.end()) section = sections.insert(section, {title, {}});
        std::string keys;
        each_key(b.key, [&](std::string_view k) {
            if (!keys.empty()) keys += ", ";
            keys += key_label(k);
        });
        section->rows.push_back({keys, row_text(g, b)});
    }
    return sections;
}

std::string about_text() {
    std::string text = "Tourvane ";
    text += kVersion;
    text += '\n';
    text += kWhatItIs;
    text += "\nLicence: ";
    text += kLicence;
    text += " (GNU General Public License, version 3 or later)";
    return text;
}

}  // namespace tourvane

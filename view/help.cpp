#include "view/help.h"

#include <algorithm>

#include "core/about.h"
#include "core/ui.h"
#include "rules/music/label.h"
#include "rules/music/singles.h"
#include "rules/week/turn.h"
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
    if (where == place::kSummary) return "In a career's summary";
    if (where == place::kHall) return "In the hall of fame";
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

std::vector<HelpParagraph> how_to_play(const Game& g) {
    const Module1& r = g.rec;
    const auto n = [](long long v) { return std::to_string(v); };
    const std::string venues = "from " + n(r.venuefame[1]) + " at " + r.venuename[1] + " to " +
                               n(r.venuefame[kVenues]) + " at " + r.venuename[kVenues];
    return {
        {"The band",
         "Hire a singer, a guitarist, a bassist and a drummer from the applicants who come to the "
         "office: HIRE takes the one on show, DISMISS brings the next. Only a few come each week. "
         "Click a member in the band list to read their talent and temper; happy members play "
         "better, and one with no happiness left may walk out."},
        {"Songs",
         "Record Song starts a song, which takes 4 to 7 weeks and a full band. A song's quality, "
         "the number before its title in the track list, comes from the members' talent and "
         "creativity."},
        {"Gigs",
         "Play Gig needs a full, fit band and three songs. Each venue asks for a popularity, " +
             venues +
             ": point at a venue to see its ask, APPLY, choose three tracks and PLAY GIG. One gig "
             "a week; the papers review it, and a good gig makes the band better known."},
        {"The record label",
         "Send Demo CD sends the song picked in the track list, and the label answers the next "
         "week. It rejects a song of quality below " +
             n(kRejectQuality) + " and signs a band only for a song above " + n(kSignQuality) +
             " with a popularity of " + n(kSignPopularity) +
             " or more. A signed band keeps its "
             "contract while its popularity stays at " +
             n(kKeepPopularity) + " or more."},
        {"Singles and the chart",
         "Once signed, double-click a song in the track list to release it as a single for " +
             format_pounds(kReleasePrice) +
             ". Singles sell every week and bring in royalties; the Music Chart shows them "
             "against the rival bands' records. Promotion raises popularity and a single's hype."},
        {"Money and the end",
         "Every week each member is paid a wage of £1 to £" + n(kTopWage) +
             ", and the promotion chosen is charged. Point at the cash to see the week's outgoings "
             "and how long the money lasts. When the wages can't be paid, the career is over."},
    };
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

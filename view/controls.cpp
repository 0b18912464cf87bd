#include "view/controls.h"

#include <string_view>

#include "rules/files/save_file.h"
#include "view/reasons.h"

namespace tourvane {

std::string control_key(const Control& c) {
    std::string key(c.name);
    if (c.index >= 0) key += "(" + std::to_string(c.index) + ")";
    return key;
}

namespace {

/// The names of the controls that a caption would name badly or not at all.
std::string own_name(std::string_view form, const Control& c) {
    const std::string key = control_key(c);
    struct Named {
        std::string_view form, key, name;
    };
    static constexpr Named kNames[] = {
        {"Form1", "Label2", "Tourvane"},
        {"main", "txtname", "Office"},
        {"main", "exitbtn", "Quit"},
        {"main", "songlist", "Track list"},
        {"main", "members", "Band members"},
        {"main", "txtapplicant", "Applicant"},
        {"main", "txtage", "Age"},
        {"main", "txtsex", "Gender"},
        {"main", "txtinstrument", "Instrument"},
        {"main", "txttalent", "Talent"},
        {"main", "txtcharisma", "Charisma"},
        {"main", "txtattitude", "Attitude"},
        {"main", "txtlooks", "Appearance"},
        {"main", "txtcash", "Cash"},
        {"main", "txtdate", "Date"},
        {"messageForm", "txtTo", "To"},
        {"messageForm", "txtFrom", "From"},
        {"messageForm", "thetxt", "Message"},
        {"gig", "txtcapacity", "Capacity"},
        {"gig", "txtticket", "Ticket price"},
        {"gig", "txthire", "Hire cost"},
        {"gig", "Combo1", "Songs"},
        {"gig", "tracks(0)", "Track 1"},
        {"gig", "tracks(1)", "Track 2"},
        {"gig", "tracks(2)", "Track 3"},
        {"thenewspaper", "txtnews", "Review"},
        {"thenewspaper", "txtattend", "Attendance"},
        {"thenewspaper", "txtprofit", "Profit"},
    };
    for (const Named& n : kNames)
        if (n.form == form && n.key == key) return std::string(n.name);
    // The save slots all start as "GAME SLOT 1": each is named by its number and what it holds.
    if (form == "savefrm" && c.name == "saveslot") {
        const std::string slot = "Slot " + std::to_string(c.index + 1);
        if (c.tooltip.empty()) return slot;
        if (c.tooltip == kEmptySlot) return slot + ", empty";
        if (c.tooltip == kDamagedSlot) return slot + ", damaged";
        return slot + ", " + c.tooltip;
    }
    // The chart's ten places; its other `track` elements are the places' numbers.
    if (form == "Chart" && c.name == "track" && c.index >= 1 && c.index <= 10)
        return "Place " + std::to_string(c.index);
    return {};
}

/// The caption with each run of blanks made one, as it is read out.
std::string simplified(std::string_view text) {
    std::string out;
    for (char ch : text) {
        const bool blank = ch == ' ' || ch == '\t' || ch == '\n';
        if (blank && (out.empty() || out.back() == ' ')) continue;
        out += blank ? ' ' : ch;
    }
    if (!out.empty() && out.back() == ' ') out.pop_back();
    return out;
}

}  // namespace

std::string accessible_name(const FormState& form, const Control& c) {
    std::string name = own_name(form.name, c);
    if (!name.empty()) return name;
    switch (c.kind) {
        case ControlKind::HotSpot:
            return c.tooltip;
        case ControlKind::Option:
            return simplified(c.caption);
        case ControlKind::ListBox:
        case ControlKind::ComboBox:
            return std::string(c.name);
        default:
            return c.caption;
    }
}

bool shows_value(const FormState& form, const Control& c) {
    return c.kind == ControlKind::Label && !own_name(form.name, c).empty();
}

std::string grey_reason(const Game& g, const FormState& form, const Control& c) {
    return c.kind == ControlKind::Label ? std::string() : disabled_reason(g, form, c);
}

std::string hover_text(const Control& c, bool cut, const std::string& note,
                       const std::string& reason) {
    std::string text = cut ? c.caption : reason.empty() ? c.tooltip : std::string();
    for (const std::string* line : {&note, &reason}) {
        if (line->empty()) continue;
        if (!text.empty()) text += '\n';
        text += *line;
    }
    return text;
}

std::string accessible_description(const FormState& form, const Control& c, bool cut,
                                   const std::string& note, const std::string& reason) {
    if (c.kind == ControlKind::Label) {
        const std::string shown = shows_value(form, c) || cut ? c.caption : std::string();
        if (note.empty()) return shown;
        return shown.empty() ? note : shown + ". " + note;
    }
    if (c.kind == ControlKind::HotSpot && reason.empty() && note.empty()) return {};
    if (c.kind == ControlKind::HotSpot && reason.empty()) return note;
    return hover_text(c, cut, note, reason);
}

}  // namespace tourvane

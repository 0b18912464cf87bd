#include "core/forms.h"

namespace tourvane {

Control FormState::make(const char* name, ControlKind kind, Rect pos, std::string caption,
                        bool enabled, int index) {
    Control c;
    c.name = name;
    c.index = index;
    c.kind = kind;
    c.pos = pos;
    c.caption = std::move(caption);
    c.enabled = enabled;
    return c;
}

Control FormState::label(const char* name, Rect pos, std::string caption) {
    return make(name, ControlKind::Label, pos, std::move(caption));
}

Control FormState::click_label(const char* name, Rect pos, std::string caption, Routine rule,
                               bool enabled) {
    Control c = make(name, ControlKind::ClickLabel, pos, std::move(caption), enabled);
    c.on_click = rule;
    return c;
}

Control FormState::hot_spot(const char* name, Rect pos, std::string tooltip, Routine rule,
                            bool enabled) {
    Control c = make(name, ControlKind::HotSpot, pos, {}, enabled);
    c.tooltip = std::move(tooltip);
    c.on_click = rule;
    return c;
}

Control FormState::option(const char* name, int index, Rect pos, std::string caption,
                          Routine rule) {
    Control c = make(name, ControlKind::Option, pos, std::move(caption), true, index);
    c.on_click = rule;
    return c;
}

Control FormState::button(const char* name, Rect pos, std::string caption, Routine rule) {
    Control c = make(name, ControlKind::Button, pos, std::move(caption));
    c.on_click = rule;
    return c;
}

Control FormState::list_box(const char* name, ControlKind kind, Rect pos, Routine rule,
                            Routine on_dblclick, bool enabled) {
    Control c = make(name, kind, pos, {}, enabled);
    c.on_click = rule;
    c.on_dblclick = on_dblclick;
    return c;
}

Control FormState::coloured(Control c, std::uint32_t color) {
    c.color = color;
    return c;
}

Control OfficeForm::promote_option(int index) {
    static const char* const kCaptions[4] = {"None", "Small        £100", "Medium   £250",
                                             "High         £400"};
    static const Rect kPlaces[4] = {
        {157, 109, 92, 25}, {247, 109, 94, 25}, {156, 133, 91, 25}, {247, 133, 94, 25}};
    return option("promote", index, kPlaces[index], kCaptions[index], Routine::promote);
}

Control GigForm::venue_option(int index) {
    static const char* const kVenueCaptions[5] = {"The Rose and Crown", "The Queens Head",
                                                  "Town Hall", "Nitro Nightclub",
                                                  "The Plaza Music Hall"};
    return option("location", index, {32, 52 + 30 * index, 233, 25}, kVenueCaptions[index],
                  Routine::gig_location);
}

Control GigForm::track_line(int index) {
    return make("tracks", ControlKind::Label, {304, 128 + 28 * index, 249, 21}, {}, true, index);
}

Control SaveForm::slot_option(int index) {
    return option("saveslot", index, {32, 40 + 34 * index, 185, 29}, "GAME SLOT 1",
                  Routine::saveslot);
}

Control ChartForm::chart_line(int index) {
    Control c;
    if (index >= 1 && index <= 10) {
        const int place = index;
        Rect pos = place == 1 ? Rect{33, 45, 232, 17} : Rect{32, 77 + 32 * (place - 2), 233, 17};
        c = coloured(make("track", ControlKind::Label, pos, "...", true, index),
                     colour::kLightCyan);
    } else {
        const int place = index == 0 ? 1 : index - 9;
        const int top = place == 1 ? 44 : 75 + 32 * (place - 2);
        c = coloured(
            make("track", ControlKind::Label, {0, top, 33, 17}, std::to_string(place), true, index),
            place == 1 ? colour::kYellow : colour::kLightGrey);
    }
    c.rule_colour = true;
    return c;
}

}  // namespace tourvane

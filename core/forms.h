#pragma once
// The seven screens and their controls as plain data: what each control shows and whether it
// takes clicks. Rules change screens only through this model; the Qt view draws it and the
// script driver prints it.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tourvane {

enum class ControlKind {
    Label,       ///< shows a caption
    ClickLabel,  ///< a caption that takes clicks
    HotSpot,     ///< an invisible clickable rectangle over a drawn button, with a tool tip
    Option,      ///< an option button in a group
    Button,      ///< a push button
    ListBox,     ///< a list of rows, one selectable
    ComboBox,    ///< a drop-down list of rows
};

struct Rect {
    int left = 0, top = 0, width = 0, height = 0;
};

/// The routine a click (or a list's double click) on a control runs, named in the control's
/// declaration. The dispatcher (flow/clicks.cpp) runs each by a switch the compiler checks for
/// every name, so a control can be neither left unwired nor wired to a misspelt routine.
enum class Routine {
    None,  ///< a plain label: clicks do nothing
    // The title screen.
    Form1_New,
    Form1_load,
    Form1_Label4,
    // The office.
    command6,
    label13,
    command4,
    secret,
    command3,
    command1,
    interview,
    holiday,
    command5,
    exitbtn,
    promote,
    songlist_click,
    songlist_dblclick,
    hire,
    dismiss,
    members_click,
    members_dblclick,
    Command2,
    // The memo.
    memo_ok,
    // The gig booking screen.
    gig_location,
    gig_command1,
    gig_Combo1,
    gig_command3,
    gig_command4,
    gig_Command2,
    // The gig report.
    thenewspaper_Label2,
    // The save and load screen.
    saveslot,  ///< choosing a slot only marks it, for Save or Load to use
    savefrm_save,
    savefrm_load,
    savefrm_back,
    // The chart.
    Chart_command1,
};

/// Colours as 0xRRGGBB.
namespace colour {
inline constexpr std::uint32_t kYellow = 0xFFFF00;
inline constexpr std::uint32_t kBrightWhite = 0xFFFFFF;
inline constexpr std::uint32_t kLightGrey = 0xC0C0C0;
inline constexpr std::uint32_t kLightCyan = 0x80FFFF;
}  // namespace colour

struct FormState;

struct Control {
    Control() = default;
    /// A control of `form`, started as `start`; the form lists it among its controls.
    Control(FormState& form, Control start);

    std::string_view name;  ///< a literal: the name the rules and scripts use
    int index = -1;         ///< index within a control array, -1 for a single control
    ControlKind kind = ControlKind::Label;
    Rect pos;
    std::string caption;
    std::string tooltip;
    bool enabled = true;
    bool visible = true;
    bool value = false;  ///< option buttons: chosen
    std::vector<std::string> rows;
    int selected = -1;
    std::uint32_t color = 0;
    bool rule_colour = false;  ///< the rules set this label's text colour
    Routine on_click = Routine::None;
    Routine on_dblclick = Routine::None;  ///< list boxes only
};

/// A control array: element i is made by `start(i)`, and the form lists each element.
template <std::size_t N>
struct ControlArray : std::array<Control, N> {
    template <class Start>
    ControlArray(FormState& form, Start start);
};

/// What every screen has: its name, size, whether it is shown and taking clicks, and its
/// controls. A form declares each control once, as a `Control` or `ControlArray` member made
/// with `*this`; that declaration is what lists it, in declaration order.
struct FormState {
    FormState(const char* form_name, int form_width, int form_height)
        : name(form_name), width(form_width), height(form_height) {}

    const char* name;
    int width;
    int height;
    bool loaded = false;
    bool visible = false;
    bool enabled = true;
    /// Counts the requests to bring the form's open window in front of the others.
    unsigned forward_requests = 0;

    /// Shown and taking clicks.
    bool usable() const { return loaded && visible && enabled; }

    /// Calls f(Control&) for each control of the form, in declaration order.
    template <class F>
    void each(F&& f) {
        for (std::ptrdiff_t at : controls)
            f(*reinterpret_cast<Control*>(reinterpret_cast<char*>(this) + at));
    }

    /// Adds one of the form's own controls to its list.
    void list(Control& c) {
        controls.push_back(reinterpret_cast<char*>(&c) - reinterpret_cast<char*>(this));
    }

    /// Where each control lies within the form, in declaration order.
    std::vector<std::ptrdiff_t> controls;

  protected:
    static Control make(const char* name, ControlKind kind, Rect pos, std::string caption = {},
                        bool enabled = true, int index = -1);
    static Control label(const char* name, Rect pos, std::string caption = {});
    static Control click_label(const char* name, Rect pos, std::string caption, Routine rule,
                               bool enabled = true);
    static Control hot_spot(const char* name, Rect pos, std::string tooltip, Routine rule,
                            bool enabled = true);
    static Control option(const char* name, int index, Rect pos, std::string caption, Routine rule);
    static Control button(const char* name, Rect pos, std::string caption, Routine rule);
    static Control list_box(const char* name, ControlKind kind, Rect pos, Routine rule,
                            Routine on_dblclick = Routine::None, bool enabled = true);
    static Control coloured(Control c, std::uint32_t color);
};

/// A list box or a combo box: a control of rows, clicked at a row.
inline bool is_list(const Control& c) {
    return c.kind == ControlKind::ListBox || c.kind == ControlKind::ComboBox;
}

inline Control::Control(FormState& form, Control start) : Control(std::move(start)) {
    form.list(*this);
}

template <std::size_t N>
template <class Start>
ControlArray<N>::ControlArray(FormState& form, Start start) {
    for (std::size_t i = 0; i < N; ++i) {
        (*this)[i] = start(static_cast<int>(i));
        form.list((*this)[i]);
    }
}

/// The title screen.
struct TitleForm : FormState {
    TitleForm() : FormState{"Form1", 636, 500} {}
    Control Label2{*this, label("Label2", {0, 10, 641, 41}, "TOURVANE")};
    Control New{*this, click_label("New", {248, 224, 145, 25}, "NEW GAME", Routine::Form1_New)};
    Control load{*this, click_label("load", {248, 272, 145, 25}, "LOAD GAME", Routine::Form1_load)};
    Control Label4{*this,
                   click_label("Label4", {248, 320, 145, 25}, "EXIT", Routine::Form1_Label4)};
};

/// The office screen.
struct OfficeForm : FormState {
    OfficeForm() : FormState{"main", 591, 486} {}
    // Hot-spots over the drawn buttons of the office picture, top to bottom.
    Control command6{*this,
                     hot_spot("command6", {30, 105, 99, 26}, "Next Week", Routine::command6)};
    Control label13{*this,
                    hot_spot("label13", {30, 138, 100, 25}, "Music Lessons", Routine::label13)};
    Control command4{*this,
                     hot_spot("command4", {30, 170, 100, 26}, "Play Gig", Routine::command4)};
    Control secret{*this,
                   hot_spot("secret", {30, 204, 99, 25}, "Music Chart", Routine::secret, false)};
    Control command3{*this,
                     hot_spot("command3", {30, 236, 99, 26}, "Send Demo CD", Routine::command3)};
    Control command1{*this,
                     hot_spot("command1", {29, 269, 101, 26}, "Record Song", Routine::command1)};
    Control interview{
        *this, hot_spot("interview", {31, 302, 99, 25}, "Interview", Routine::interview, false)};
    Control holiday{*this,
                    hot_spot("holiday", {30, 335, 99, 25}, "Band Holiday", Routine::holiday)};
    Control command5{*this,
                     hot_spot("command5", {31, 369, 99, 24}, "Save Game", Routine::command5)};

    Control txtname{*this, label("txtname", {56, 8, 521, 49})};
    Control Label3{*this, label("Label3", {16, 8, 33, 41}, "X")};
    Control exitbtn{*this, click_label("exitbtn", {16, 8, 33, 49}, "", Routine::exitbtn)};
    Control Label14{*this, label("Label14", {190, 84, 121, 16}, "PROMOTION")};
    ControlArray<4> promote{*this, promote_option};
    Control Label15{*this, label("Label15", {155, 176, 185, 17}, "TRACK LIST")};
    Control songlist{*this, list_box("songlist", ControlKind::ListBox, {152, 199, 189, 62},
                                     Routine::songlist_click, Routine::songlist_dblclick)};
    Control Label4{*this, label("Label4", {190, 315, 131, 25}, "APPLICANTS")};
    Control txtapplicant{*this, label("txtapplicant", {194, 336, 129, 97})};
    Control hire{*this, click_label("hire", {197, 443, 65, 17}, "HIRE", Routine::hire)};
    Control dismiss{*this, click_label("dismiss", {266, 443, 65, 17}, "DISMISS", Routine::dismiss)};
    Control Label16{*this, label("Label16", {410, 86, 129, 25}, "BAND MEMBERS")};
    Control members{*this, list_box("members", ControlKind::ListBox, {353, 117, 227, 77},
                                    Routine::members_click, Routine::members_dblclick)};
    Control Label6{*this, label("Label6", {360, 208, 97, 25}, "Age:")};
    Control txtage{*this, label("txtage", {464, 208, 97, 25}, "...")};
    Control Label5{*this, label("Label5", {360, 232, 97, 25}, "Gender:")};
    Control txtsex{*this, label("txtsex", {464, 232, 97, 25}, "...")};
    Control Label7{*this, label("Label7", {352, 256, 105, 25}, "Instrument:")};
    Control txtinstrument{*this, label("txtinstrument", {464, 256, 97, 25}, "...")};
    Control Label9{*this, label("Label9", {352, 280, 105, 25}, "Talent:")};
    Control txttalent{*this, label("txttalent", {464, 280, 97, 25}, "...")};
    Control Label8{*this, label("Label8", {353, 303, 105, 25}, "Charisma:")};
    Control txtcharisma{*this, label("txtcharisma", {464, 304, 97, 25}, "...")};
    Control Label10{*this, label("Label10", {368, 328, 89, 25}, "Attitude:")};
    Control txtattitude{*this, label("txtattitude", {464, 328, 97, 25}, "...")};
    Control Label11{*this, label("Label11", {352, 352, 105, 25}, "Appearance:")};
    Control txtlooks{*this, label("txtlooks", {464, 352, 97, 25}, "...")};
    Control Command2{*this, click_label("Command2", {392, 384, 161, 17}, "SACK THIS MEMBER",
                                        Routine::Command2, false)};
    Control Label19{*this, label("Label19", {376, 416, 81, 25}, "CASH:")};
    Control txtcash{*this, label("txtcash", {448, 418, 129, 25})};
    Control Label20{*this, label("Label20", {376, 441, 81, 25}, "DATE:")};
    Control txtdate{*this, label("txtdate", {448, 442, 129, 25})};

    /// The nine hot-spots in the order they stand in the picture's left column.
    std::array<const Control*, 9> hotspots() const {
        return {&command6, &label13,   &command4, &secret,  &command3,
                &command1, &interview, &holiday,  &command5};
    }

  private:
    static Control promote_option(int index);
};

/// The memo screen.
struct MemoForm : FormState {
    MemoForm() : FormState{"messageForm", 194, 209} {}
    Control Label1{*this, label("Label1", {8, 8, 177, 17}, "MESSAGE")};
    Control Label2{*this, label("Label2", {8, 32, 41, 17}, "TO:")};
    Control txtTo{*this, label("txtTo", {56, 32, 137, 17})};
    Control Label3{*this, label("Label3", {8, 48, 41, 17}, "FROM:")};
    Control txtFrom{*this, label("txtFrom", {56, 48, 137, 17})};
    Control thetxt{*this, label("thetxt", {16, 80, 161, 97})};
    Control command1{*this, click_label("command1", {64, 184, 65, 17}, "OK", Routine::memo_ok)};
};

/// The gig booking screen.
struct GigForm : FormState {
    GigForm() : FormState{"gig", 577, 362} {}
    Control Label16{*this, label("Label16", {24, 16, 249, 25}, "CHOOSE LOCATION")};
    ControlArray<5> location{*this, venue_option};
    Control Label4{*this, label("Label4", {32, 212, 113, 21}, "Capacity:")};
    Control txtcapacity{*this, label("txtcapacity", {152, 212, 113, 21}, "0")};
    Control Label3{*this, label("Label3", {32, 238, 113, 21}, "Ticket Price:")};
    Control txtticket{*this, label("txtticket", {152, 238, 113, 21}, "0")};
    Control Label5{*this, label("Label5", {32, 264, 113, 21}, "Hire Cost:")};
    Control txthire{*this, label("txthire", {152, 264, 113, 21}, "0")};
    Control command1{
        *this, click_label("command1", {88, 300, 113, 21}, "APPLY", Routine::gig_command1, false)};
    Control Label2{*this, label("Label2", {304, 16, 249, 25}, "CHOOSE TRACKS")};
    Control Label1{
        *this, label("Label1", {304, 46, 249, 33}, "Choose the six tracks you are going to play.")};
    Control Combo1{*this, list_box("Combo1", ControlKind::ComboBox, {304, 88, 249, 24},
                                   Routine::gig_Combo1, Routine::None, false)};
    ControlArray<3> tracks{*this, track_line};
    Control command3{*this, click_label("command3", {304, 222, 113, 21}, "CLEAR LIST",
                                        Routine::gig_command3, false)};
    Control command4{*this, click_label("command4", {440, 222, 113, 21}, "PLAY GIG",
                                        Routine::gig_command4, false)};
    Control Command2{*this,
                     click_label("Command2", {232, 326, 113, 21}, "BACK", Routine::gig_Command2)};

  private:
    static Control venue_option(int index);
    static Control track_line(int index);
};

/// The gig report.
struct NewspaperForm : FormState {
    NewspaperForm() : FormState{"thenewspaper", 329, 316} {}
    Control Label3{*this, label("Label3", {8, 8, 313, 33}, "GIG REPORT")};
    Control txtnews{*this, label("txtnews", {16, 52, 297, 172})};
    Control Label1{*this, label("Label1", {16, 232, 97, 21}, "Attendance:")};
    Control txtattend{*this, label("txtattend", {120, 232, 193, 21}, "0")};
    Control Label5{*this, label("Label5", {16, 256, 97, 21}, "Profit:")};
    Control txtprofit{*this, label("txtprofit", {120, 256, 193, 21}, "0")};
    Control Label2{*this,
                   click_label("Label2", {132, 286, 65, 21}, "OK", Routine::thenewspaper_Label2)};
};

/// The save and load screen.
struct SaveForm : FormState {
    SaveForm() : FormState{"savefrm", 245, 247} {}
    Control Label2{*this, label("Label2", {8, 8, 229, 25}, "FILE OPTIONS")};
    ControlArray<4> saveslot{*this, slot_option};
    Control save{*this, button("save", {32, 184, 73, 25}, "Save", Routine::savefrm_save)};
    Control load{*this, button("load", {144, 184, 73, 25}, "Load", Routine::savefrm_load)};
    Control back{*this, click_label("back", {88, 216, 73, 17}, "BACK", Routine::savefrm_back)};

  private:
    static Control slot_option(int index);
};

/// The music chart.
struct ChartForm : FormState {
    ChartForm() : FormState{"Chart", 274, 389} {}
    ControlArray<20> track{*this, chart_line};
    Control Label1{*this,
                   coloured(label("Label1", {8, 8, 267, 31}, "MUSIC CHART"), colour::kBrightWhite)};
    Control Label2{*this, coloured(label("Label2", {16, 16, 267, 31}, "MUSIC CHART"), 0x000000)};
    Control command1{*this,
                     click_label("command1", {56, 364, 161, 17}, "OK", Routine::Chart_command1)};

  private:
    /// Elements 1 to 10 are the ten places' lines; 0 and 11 to 19 their numbers.
    static Control chart_line(int index);
};

struct Forms {
    TitleForm Form1;
    OfficeForm main;
    MemoForm messageForm;
    GigForm gig;
    NewspaperForm thenewspaper;
    SaveForm savefrm;
    ChartForm Chart;

    /// Calls f(FormState&, form) for each of the seven forms, in a fixed order.
    template <class F>
    void each_form(F&& f) {
        f(Form1);
        f(main);
        f(messageForm);
        f(gig);
        f(thenewspaper);
        f(savefrm);
        f(Chart);
    }
};

/// Calls f(form) with the typed form of that name; false if there is none.
template <class F>
bool with_form(Forms& forms, std::string_view name, F&& f) {
    bool found = false;
    forms.each_form([&](auto& form) {
        if (!found && name == form.name) {
            found = true;
            f(form);
        }
    });
    return found;
}

/// Finds a control by its name and index (-1 for a single control); nullptr if none.
template <class FormT>
Control* find_control(FormT& form, std::string_view name, int index) {
    Control* found = nullptr;
    form.each([&](Control& c) {
        if (!found && name == c.name && c.index == index) found = &c;
    });
    return found;
}

/// The control a click or a script names, and whether the name is that of a control array.
struct NamedControl {
    Control* control = nullptr;
    bool array = false;
};

/// For a control array called `name`, its element `index`; for a single control, that
/// control, whatever `index` is (a list's row, or a mistake for the caller to report).
/// One pass over the form.
template <class FormT>
NamedControl named_control(FormT& form, std::string_view name, int index) {
    NamedControl named;
    Control* single = nullptr;
    Control* element = nullptr;
    form.each([&](Control& c) {
        if (c.name != name) return;
        if (c.index < 0) {
            if (!single) single = &c;
        } else {
            named.array = true;
            if (!element && c.index == index) element = &c;
        }
    });
    named.control = named.array ? element : single;
    return named;
}

/// Unloads a form: its controls go back to how its next load starts them.
template <class FormT>
void unload(FormT& form) {
    // Copied from one kept form rather than made anew, so the form keeps the room its strings
    // and lists already have.
    static const FormT fresh;
    form = fresh;
}

}  // namespace tourvane

#pragma once
// The seven screens and their controls as plain data: what each control shows and whether it
// takes clicks. Rules change screens only through this model; the Qt view draws it and the
// script driver prints it.

#include <array>
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

/// Colours as 0xRRGGBB.
namespace colour {
inline constexpr std::uint32_t kYellow = 0xFFFF00;
inline constexpr std::uint32_t kBrightWhite = 0xFFFFFF;
inline constexpr std::uint32_t kLightGrey = 0xC0C0C0;
inline constexpr std::uint32_t kLightCyan = 0x80FFFF;
inline constexpr std::uint32_t kNavy = 0x000080;
}  // namespace colour

struct Control {
    const char* name = "";
    int index = -1;  ///< index within a control array, -1 for a single control
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
};

struct FormState {
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
};

/// The title screen.
struct TitleForm : FormState {
    TitleForm();
    Control Label2, New, load, Label4;
    template <class F>
    void each(F&& f) {
        for (Control* c : {&Label2, &New, &load, &Label4}) f(*c);
    }
};

/// The office screen.
struct OfficeForm : FormState {
    OfficeForm();
    // Hot-spots over the drawn buttons of the office picture, top to bottom.
    Control command6, label13, command4, secret, command3, command1, interview, holiday, command5;
    Control txtname, Label3, exitbtn, Label14;
    std::array<Control, 4> promote;
    Control Label15, songlist, Label4, txtapplicant, hire, dismiss, Label16, members;
    Control Label6, txtage, Label5, txtsex, Label7, txtinstrument, Label9, txttalent, Label8,
        txtcharisma, Label10, txtattitude, Label11, txtlooks;
    Control Command2, Label19, txtcash, Label20, txtdate;

    /// The nine hot-spots in the order they stand in the picture's left column.
    std::array<Control*, 9> hotspots() {
        return {&command6, &label13,   &command4, &secret,  &command3,
                &command1, &interview, &holiday,  &command5};
    }
    template <class F>
    void each(F&& f) {
        for (Control* c : hotspots()) f(*c);
        for (Control* c : {&txtname, &Label3, &exitbtn, &Label14}) f(*c);
        for (Control& c : promote) f(c);
        for (Control* c :
             {&Label15, &songlist,      &Label4,  &txtapplicant, &hire,     &dismiss,
              &Label16, &members,       &Label6,  &txtage,       &Label5,   &txtsex,
              &Label7,  &txtinstrument, &Label9,  &txttalent,    &Label8,   &txtcharisma,
              &Label10, &txtattitude,   &Label11, &txtlooks,     &Command2, &Label19,
              &txtcash, &Label20,       &txtdate})
            f(*c);
    }
};

/// The memo screen.
struct MemoForm : FormState {
    MemoForm();
    Control Label1, Label2, txtTo, Label3, txtFrom, thetxt, command1;
    template <class F>
    void each(F&& f) {
        for (Control* c : {&Label1, &Label2, &txtTo, &Label3, &txtFrom, &thetxt, &command1}) f(*c);
    }
};

/// The gig booking screen.
struct GigForm : FormState {
    GigForm();
    Control Label16;
    std::array<Control, 5> location;
    Control Label4, txtcapacity, Label3, txtticket, Label5, txthire, command1, Label2, Label1,
        Combo1;
    std::array<Control, 3> tracks;
    Control command3, command4, Command2;
    template <class F>
    void each(F&& f) {
        f(Label16);
        for (Control& c : location) f(c);
        for (Control* c : {&Label4, &txtcapacity, &Label3, &txtticket, &Label5, &txthire, &command1,
                           &Label2, &Label1, &Combo1})
            f(*c);
        for (Control& c : tracks) f(c);
        for (Control* c : {&command3, &command4, &Command2}) f(*c);
    }
};

/// The gig report.
struct NewspaperForm : FormState {
    NewspaperForm();
    Control Label3, txtnews, Label1, txtattend, Label5, txtprofit, Label2;
    template <class F>
    void each(F&& f) {
        for (Control* c : {&Label3, &txtnews, &Label1, &txtattend, &Label5, &txtprofit, &Label2})
            f(*c);
    }
};

/// The save and load screen.
struct SaveForm : FormState {
    SaveForm();
    Control Label2;
    std::array<Control, 4> saveslot;
    Control save, load, back;
    template <class F>
    void each(F&& f) {
        f(Label2);
        for (Control& c : saveslot) f(c);
        for (Control* c : {&save, &load, &back}) f(*c);
    }
};

/// The music chart.
struct ChartForm : FormState {
    ChartForm();
    std::array<Control, 20> track;
    Control Label1, Label2, command1;
    template <class F>
    void each(F&& f) {
        for (Control& c : track) f(c);
        for (Control* c : {&Label1, &Label2, &command1}) f(*c);
    }
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

/// True when the control's name is that of a control array on this form.
template <class FormT>
bool is_control_array(FormT& form, std::string_view name) {
    bool arr = false;
    form.each([&](Control& c) {
        if (name == c.name && c.index >= 0) arr = true;
    });
    return arr;
}

/// Unloads a form: its controls go back to how its next load starts them.
template <class FormT>
void unload(FormT& form) {
    form = FormT{};
}

}  // namespace tourvane

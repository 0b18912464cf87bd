#include "flow/clicks.h"

#include <array>

#include "core/diary.h"
#include "core/ui.h"
#include "flow/office.h"
#include "flow/save_screen.h"
#include "rules/band/applicants.h"
#include "rules/band/interviews.h"
#include "rules/band/roster.h"
#include "rules/band/training.h"
#include "rules/gigs/booking.h"
#include "rules/gigs/performance.h"
#include "rules/gigs/report.h"
#include "rules/music/chart.h"
#include "rules/music/label.h"
#include "rules/music/singles.h"
#include "rules/music/songs.h"
#include "rules/week/turn.h"

namespace tourvane {

namespace {

/// What a control does when clicked, and when double-clicked (list boxes only).
struct Rule {
    std::string_view form;
    std::string_view control;
    void (*on_click)(Game&, int index);
    void (*on_dblclick)(Game&);
};

template <void (*F)(Game&)>
void plain(Game& g, int) {
    F(g);
}

constexpr std::array kRules{
    Rule{"Form1", "New", plain<Form1_New>, nullptr},
    Rule{"Form1", "Label4", plain<Form1_Label4>, nullptr},
    Rule{"Form1", "load", plain<Form1_load>, nullptr},
    Rule{"main", "command6", plain<command6>, nullptr},
    Rule{"main", "label13", plain<label13>, nullptr},
    Rule{"main", "command4", plain<command4>, nullptr},
    Rule{"main", "secret", plain<secret>, nullptr},
    Rule{"main", "command3", plain<command3>, nullptr},
    Rule{"main", "command1", plain<command1>, nullptr},
    Rule{"main", "interview", plain<interview>, nullptr},
    Rule{"main", "holiday", plain<holiday>, nullptr},
    Rule{"main", "command5", plain<command5>, nullptr},
    Rule{"main", "exitbtn", plain<exitbtn>, nullptr},
    Rule{"main", "promote", promote, nullptr},
    Rule{"main", "songlist", plain<songlist_click>, songlist_dblclick},
    Rule{"main", "hire", plain<hire>, nullptr},
    Rule{"main", "dismiss", plain<dismiss>, nullptr},
    Rule{"main", "members", plain<members_click>, members_dblclick},
    Rule{"main", "Command2", plain<Command2>, nullptr},
    Rule{"messageForm", "command1", plain<memo_ok>, nullptr},
    Rule{"gig", "location", gig_location, nullptr},
    Rule{"gig", "command1", plain<gig_command1>, nullptr},
    Rule{"gig", "Combo1", plain<gig_Combo1>, nullptr},
    Rule{"gig", "command3", plain<gig_command3>, nullptr},
    Rule{"gig", "Command2", plain<gig_Command2>, nullptr},
    Rule{"gig", "command4", plain<gig_command4>, nullptr},
    Rule{"thenewspaper", "Label2", plain<thenewspaper_Label2>, nullptr},
    Rule{"Chart", "command1", plain<Chart_command1>, nullptr},
    Rule{"savefrm", "save", plain<savefrm_save>, nullptr},
    Rule{"savefrm", "load", plain<savefrm_load>, nullptr},
    Rule{"savefrm", "back", plain<savefrm_back>, nullptr},
};

const Rule* find_rule(std::string_view form, std::string_view control) {
    for (const Rule& rule : kRules)
        if (rule.form == form && rule.control == control) return &rule;
    return nullptr;
}

struct Target {
    ClickResult problem = ClickResult::Done;
    FormState* form = nullptr;
    Control* control = nullptr;
};

/// Resolves FORM.CONTROL with an array index or a list row.
Target resolve(Game& g, std::string_view form_name, std::string_view name, int index) {
    Target t;
    bool known_form = with_form(g.forms, form_name, [&](auto& form) {
        t.form = &form;
        const NamedControl named = named_control(form, name, index);
        t.control = named.control;
        if (named.array) {
            if (!t.control)
                t.problem = index < 0 ? ClickResult::NeedsIndex : ClickResult::IndexOutOfBounds;
            return;
        }
        if (!t.control) {
            t.problem = ClickResult::UnknownControl;
        } else if (is_list(*t.control)) {
            if (index >= static_cast<int>(t.control->rows.size()))
                t.problem = ClickResult::RowOutOfBounds;
        } else if (index != -1) {
            t.problem = ClickResult::TakesNoIndex;
        }
    });
    if (!known_form) t.problem = ClickResult::UnknownForm;
    return t;
}

bool takes_clicks(const Target& t) {
    return t.form->usable() && t.control->enabled && t.control->visible;
}

}  // namespace

FormState* find_form(Game& g, std::string_view form) {
    FormState* found = nullptr;
    with_form(g.forms, form, [&](auto& f) { found = &f; });
    return found;
}

Control* find_control(Game& g, std::string_view form, std::string_view control, int index) {
    Control* found = nullptr;
    with_form(g.forms, form, [&](auto& f) { found = find_control(f, control, index); });
    return found;
}

NamedControl named_control(Game& g, std::string_view form, std::string_view control, int index) {
    NamedControl named;
    with_form(g.forms, form, [&](auto& f) { named = named_control(f, control, index); });
    return named;
}

ClickResult click(Game& g, std::string_view form, std::string_view control, int index) {
    Target t = resolve(g, form, control, index);
    if (t.problem != ClickResult::Done) return t.problem;
    if (is_list(*t.control) && index < 0) return ClickResult::NeedsRow;
    if (!takes_clicks(t)) return ClickResult::NotUsableNow;

    if (is_list(*t.control)) t.control->selected = index;
    if (t.control->kind == ControlKind::Option) {
        // An option button marks itself and clears the others of its group.
        with_form(g.forms, form, [&](auto& f) {
            f.each([&](Control& c) {
                if (control == c.name) c.value = c.index == index;
            });
        });
    }
    if (const Rule* rule = find_rule(form, control); rule && rule->on_click)
        rule->on_click(g, index);
    return ClickResult::Done;
}

ClickResult dblclick(Game& g, std::string_view form, std::string_view control, int row) {
    Target t = resolve(g, form, control, row);
    if (t.problem != ClickResult::Done) return t.problem;
    const Rule* rule = find_rule(form, control);
    if (!rule || !rule->on_dblclick) return ClickResult::NotAList;
    if (!takes_clicks(t)) return ClickResult::NotUsableNow;
    if (row >= 0) {
        ClickResult first = click(g, form, control, row);
        if (first != ClickResult::Done) return first;
    } else {
        t.control->selected = -1;
    }
    rule->on_dblclick(g);
    return ClickResult::Done;
}

}  // namespace tourvane

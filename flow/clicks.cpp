#include "flow/clicks.h"

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

/// Runs the routine a control names; `index` is the option's index or the list's row.
void run(Game& g, Routine routine, int index) {
    switch (routine) {
        case Routine::None:
        case Routine::saveslot:  // the dispatcher has marked the slot: that is all
            return;
        case Routine::Form1_New:
            return Form1_New(g);
        case Routine::Form1_load:
            return Form1_load(g);
        case Routine::Form1_Label4:
            return Form1_Label4(g);
        case Routine::command6:
            return command6(g);
        case Routine::label13:
            return label13(g);
        case Routine::command4:
            return command4(g);
        case Routine::secret:
            return secret(g);
        case Routine::command3:
            return command3(g);
        case Routine::command1:
            return command1(g);
        case Routine::interview:
            return interview(g);
        case Routine::holiday:
            return holiday(g);
        case Routine::command5:
            return command5(g);
        case Routine::exitbtn:
            return exitbtn(g);
        case Routine::promote:
            return promote(g, index);
        case Routine::songlist_click:
            return songlist_click(g);
        case Routine::songlist_dblclick:
            return songlist_dblclick(g);
        case Routine::hire:
            return hire(g);
        case Routine::dismiss:
            return dismiss(g);
        case Routine::members_click:
            return members_click(g);
        case Routine::members_dblclick:
            return members_dblclick(g);
        case Routine::Command2:
            return Command2(g);
        case Routine::memo_ok:
            return memo_ok(g);
        case Routine::gig_location:
            return gig_location(g, index);
        case Routine::gig_command1:
            return gig_command1(g);
        case Routine::gig_Combo1:
            return gig_Combo1(g);
        case Routine::gig_command3:
            return gig_command3(g);
        case Routine::gig_command4:
            return gig_command4(g);
        case Routine::gig_Command2:
            return gig_Command2(g);
        case Routine::thenewspaper_Label2:
            return thenewspaper_Label2(g);
        case Routine::savefrm_save:
            return savefrm_save(g);
        case Routine::savefrm_load:
            return savefrm_load(g);
        case Routine::savefrm_back:
            return savefrm_back(g);
        case Routine::Chart_command1:
            return Chart_command1(g);
    }
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
    run(g, t.control->on_click, index);
    return ClickResult::Done;
}

ClickResult dblclick(Game& g, std::string_view form, std::string_view control, int row) {
    Target t = resolve(g, form, control, row);
    if (t.problem != ClickResult::Done) return t.problem;
    const Routine on_dblclick = t.control->on_dblclick;
    if (on_dblclick == Routine::None) return ClickResult::NotAList;
    if (!takes_clicks(t)) return ClickResult::NotUsableNow;
    if (row >= 0) {
        ClickResult first = click(g, form, control, row);
        if (first != ClickResult::Done) return first;
    } else {
        t.control->selected = -1;
    }
    run(g, on_dblclick, row);
    return ClickResult::Done;
}

}  // namespace tourvane

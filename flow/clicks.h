#pragma once
// The one way in for a player's click: the window and the script driver both call `click`,
// which refuses clicks a person could not make (hidden or disabled form or control) and
// otherwise runs the control's rule.

#include <string_view>

#include "core/game.h"

namespace tourvane {

enum class ClickResult {
    Done,              ///< the control's rule ran (or it has none: a plain label)
    NotUsableNow,      ///< the form or the control is hidden or disabled
    UnknownForm,       ///< no form of that name
    UnknownControl,    ///< no control of that name on the form
    NotAList,          ///< a double click on a control that is not a list box
    TakesNoIndex,      ///< an index given to a single control that is not a list
    NeedsIndex,        ///< a control array clicked without an index
    NeedsRow,          ///< a list clicked without a row
    IndexOutOfBounds,  ///< no element of the control array has that index
    RowOutOfBounds,    ///< the list has no such row
};

/// A click on FORM.CONTROL. `index` is the index within a control array, or the row of a list
/// box or drop-down list (the row is selected first); -1 for none.
ClickResult click(Game& g, std::string_view form, std::string_view control, int index = -1);

/// A double click on a list box. With a row, the row is selected and its click runs first;
/// with -1 the double click lands on the empty part of the list and no row is selected.
ClickResult dblclick(Game& g, std::string_view form, std::string_view control, int row = -1);

/// The state of a form by name, or nullptr.
FormState* find_form(Game& g, std::string_view form);

/// A control by form name, control name and index (-1 for a single control), or nullptr.
Control* find_control(Game& g, std::string_view form, std::string_view control, int index);

/// The control named on that form, as `named_control` finds it within a form.
NamedControl named_control(Game& g, std::string_view form, std::string_view control, int index);

}  // namespace tourvane

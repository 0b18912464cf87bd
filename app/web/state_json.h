#pragma once
// The game as the web page sees it, each part written as one JSON text for the page to draw
// from: every screen and control of the form model with what the presentation layer says of
// it (names, hover texts, grey reasons, keys, the rows as shown), which screens the page must
// open, close and bring to the front; and apart, so that the page asks only for what it shows,
// the key table, the key help, the diary, the week graph and the words of the windows beside
// the office.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/web/json.h"
#include "core/game.h"
#include "rules/files/hall_of_fame.h"
#include "view/diary.h"
#include "view/keys.h"
#include "view/screens.h"
#include "view/week_graph.h"

namespace tourvane {

/// The name the page knows a kind of control by: "Label", "ClickLabel", "HotSpot", ...
const char* kind_name(ControlKind kind);

/// The name of a key table action: "Click", "OpenDiary", "WeekBack", ...
const char* action_name(KeyAction action);
/// The action of that name, if there is one.
std::optional<KeyAction> action_named(std::string_view name);

/// A key of the key table as a web page names it, in aria-keyshortcuts and KeyboardEvent.key:
/// "Control+Q" for "Ctrl+Q", "Escape" for "Esc", "PageUp", "ArrowLeft", "Enter".
std::string page_key(std::string_view key);

/// Everything the page draws, after a click: `ended`, `game_over`, the memos waiting
/// (`memos`), whether the office is free to open the windows beside it (`office_usable`),
/// what the quit key clicks (`quit`), the screens open in the order they opened with the
/// changes `changes` says (`screens`), the memo's announcement (`memo`, or null), and every
/// form, each on show with every control in declaration order and what the presentation layer
/// says of it under `view` (a form not on show has no controls to draw).
std::string state_json(Game& g, const ScreenChanges& changes,
                       const std::vector<const FormState*>& open);

/// The fixed words of the boxes and of the windows beside the office, and the upload limit.
std::string words_json();

/// The key table, in the key help's order, each row's keys as the table and as the page
/// names them.
std::string keys_json();

/// The key help: its sections, how to play and what Tourvane is.
std::string help_json(Game& g);

/// The diary newest first as `filter` narrows it, its senders (`senders` takes in the new
/// ones) and its count line. A sender no longer in the list shows everyone's again.
std::string diary_json(const Game& g, DiarySenders& senders, DiaryFilter& filter);

/// The week graph: its points, scales and grid labels, the step between dated ticks when
/// `room` dates fit, the labels of the stretches begun by a load, and the point `picked`
/// (-1 for the latest) with its read-out and label.
std::string graph_json(const Game& g, int room, int picked);

/// The point `picked` of the week graph (-1 for the latest) alone: its index, read-out and
/// label, for a pick that leaves the points as they were.
std::string graph_pick_json(const Game& g, int picked);

/// The title screen's lines: the offer to carry on with the automatic save's career (`offer`,
/// empty for none; `ready` when it can be carried on with) and the hall of fame's key (`hint`).
std::string title_json(FilePort& files);

/// A career's summary: its line in the hall (`line`) and its figures (`lines`: label, value).
std::string summary_json(const CareerSummary& s);

/// The hall of fame, best first: each career's summary as summary_json writes it.
std::string hall_json(const std::vector<FameEntry>& hall);

/// The four slots as the saves panel offers them (app/web/slot_files.h).
std::string slots_json(FilePort& files);

}  // namespace tourvane

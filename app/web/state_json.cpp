#include "app/web/state_json.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app/web/slot_files.h"
#include "core/diary.h"
#include "core/ui.h"
#include "view/career.h"
#include "view/controls.h"
#include "view/help.h"
#include "view/notes.h"

namespace tourvane {

namespace {

constexpr std::pair<KeyAction, const char*> kActions[] = {
    {KeyAction::Click, "Click"},
    {KeyAction::OpenDiary, "OpenDiary"},
    {KeyAction::OpenGraph, "OpenGraph"},
    {KeyAction::OpenHelp, "OpenHelp"},
    {KeyAction::OpenHall, "OpenHall"},
    {KeyAction::CarryOn, "CarryOn"},
    {KeyAction::Close, "Close"},
    {KeyAction::Quit, "Quit"},
    {KeyAction::ChooseSender, "ChooseSender"},
    {KeyAction::Search, "Search"},
    {KeyAction::WeekBack, "WeekBack"},
    {KeyAction::WeekOn, "WeekOn"},
    {KeyAction::QuarterBack, "QuarterBack"},
    {KeyAction::QuarterOn, "QuarterOn"},
    {KeyAction::FirstWeek, "FirstWeek"},
    {KeyAction::LatestWeek, "LatestWeek"},
    {KeyAction::Widget, "Widget"},
};

/// The page's names of the keys whose table names differ.
constexpr std::pair<std::string_view, std::string_view> kPageKeys[] = {
    {"Ctrl", "Control"},    {"Esc", "Escape"},     {"PgUp", "PageUp"},
    {"PgDown", "PageDown"}, {"Left", "ArrowLeft"}, {"Right", "ArrowRight"},
    {"Up", "ArrowUp"},      {"Down", "ArrowDown"}, {"Return", "Enter"},
};

/// The keys of one row of the table as the page names them, ' '-separated as
/// aria-keyshortcuts lists them.
std::string page_keys(std::string_view keys) {
    std::string out;
    each_key(keys, [&](std::string_view key) {
        if (!out.empty()) out += ' ';
        out += page_key(key);
    });
    return out;
}

void write_words(Json& j, std::string_view name, const WindowWords& w) {
    j.key(name).object();
    j.member("title", w.title).member("about", w.about).member("close", w.close);
}

void write_control(Json& j, Game& g, const FormState& form, const Control& c) {
    j.object();
    j.member("name", c.name).member("index", c.index).member("id", control_key(c));
    j.member("kind", kind_name(c.kind));
    j.key("rect").object();
    j.member("left", c.pos.left).member("top", c.pos.top);
    j.member("width", c.pos.width).member("height", c.pos.height);
    j.end();
    j.member("caption", c.caption).member("tooltip", c.tooltip);
    j.member("enabled", c.enabled).member("visible", c.visible).member("value", c.value);
    j.list("rows", c.rows);
    j.member("selected", c.selected).member("color", c.color);
    j.member("rule_colour", c.rule_colour);

    // What the presentation layer says of it; the page shows cut captions whole in the hover.
    const std::string reason = grey_reason(g, form, c);
    const std::string note = control_note(g, form, c);
    const std::string_view key = key_of(form.name, c.name);
    j.key("view").object();
    j.member("name", accessible_name(form, c));
    j.member("description", accessible_description(form, c, false, note, reason));
    j.member("hover", hover_text(c, false, note, reason));
    j.member("reason", reason);
    j.member("key", key).member("shortcut", page_keys(key));
    j.member("shows_value", shows_value(form, c));
    if (is_list(c)) j.list("rows", shown_rows(g, form, c));
    j.end();
    j.end();
}

void write_names(Json& j, std::string_view name, const std::vector<const FormState*>& forms) {
    j.key(name).array();
    for (const FormState* f : forms) j.value(f->name);
    j.end();
}

/// The point picked among `n`: `picked`, or the latest for -1 or one beyond them; -1 for none.
int picked_point(int n, int picked) {
    return n == 0 ? -1 : picked < 0 || picked >= n ? n - 1 : picked;
}

void write_pick(Json& j, const std::vector<GraphPoint>& points, int current) {
    j.member("picked", current).member("readout", graph_readout(points, current));
    if (current >= 0)
        j.list("label", point_label(points, current));
    else
        j.key("label").array().end();
}

}  // namespace

const char* kind_name(ControlKind kind) {
    switch (kind) {
        case ControlKind::Label:
            return "Label";
        case ControlKind::ClickLabel:
            return "ClickLabel";
        case ControlKind::HotSpot:
            return "HotSpot";
        case ControlKind::Option:
            return "Option";
        case ControlKind::Button:
            return "Button";
        case ControlKind::ListBox:
            return "ListBox";
        case ControlKind::ComboBox:
            return "ComboBox";
    }
    return "Label";
}

const char* action_name(KeyAction action) {
    for (const auto& [a, name] : kActions)
        if (a == action) return name;
    return "Widget";
}

std::optional<KeyAction> action_named(std::string_view name) {
    for (const auto& [a, n] : kActions)
        if (name == n) return a;
    return std::nullopt;
}

std::string page_key(std::string_view key) {
    std::string out;
    while (!key.empty()) {
        const std::size_t plus = key.find('+', 1);  // a key of its own may be '+'
        std::string_view part = key.substr(0, plus);
        key = plus == std::string_view::npos ? std::string_view() : key.substr(plus + 1);
        for (const auto& [table, page] : kPageKeys)
            if (part == table) part = page;
        if (!out.empty()) out += '+';
        out += part;
    }
    return out;
}

std::string state_json(Game& g, const ScreenChanges& changes,
                       const std::vector<const FormState*>& open) {
    Json j;
    j.reserve(64 * 1024);
    j.object();
    j.member("ended", g.ended).member("game_over", g.game_over);
    j.member("memos", g.memos.size());
    j.member("office_usable", g.forms.main.usable() && !g.ended);
    const ControlRef quit = quit_control(g);
    j.key("quit").object().member("form", quit.form).member("control", quit.control).end();

    j.key("screens").object();
    write_names(j, "open", open);
    write_names(j, "opened", changes.opened);
    write_names(j, "closed", changes.closed);
    j.member("front", changes.front ? changes.front->name : "");
    j.end();

    j.key("memo");
    if (wanted_open(g, g.forms.messageForm)) {
        const Announcement said = memo_announcement(g);
        j.object().member("name", said.name).member("text", said.text).end();
    } else {
        j.null();
    }

    j.key("forms").array();
    g.forms.each_form([&](auto& f) {
        const ScreenFace face = screen_face(f.name);
        j.object();
        j.member("name", f.name).member("title", face.title);
        j.member("close", face.close_control).member("focus", face.focus_control);
        j.member("width", f.width).member("height", f.height);
        j.member("loaded", f.loaded).member("visible", f.visible).member("enabled", f.enabled);
        j.member("usable", f.usable()).member("forward_requests", f.forward_requests);
        // Only a screen on show is drawn: the others' controls would be written for nothing.
        j.key("controls").array();
        if (wanted_open(g, f)) f.each([&](const Control& c) { write_control(j, g, f, c); });
        j.end();
        j.end();
    });
    j.end();
    j.end();
    return j.take();
}

std::string words_json() {
    Json j;
    j.object();
    j.member("box_title", kBoxTitle).member("close_button", kCloseButton);

    write_words(j, "diary", kDiaryWords);
    j.list("columns", kDiaryColumns);
    j.member("entries", kDiaryEntries).member("count", kDiaryCount);
    j.member("sender_label", kSenderLabel).member("sender_name", kSenderName);
    j.member("sender_help", kSenderHelp).member("everyone", kEveryone);
    j.member("search_label", kSearchLabel).member("search_name", kSearchName);
    j.member("search_help", kSearchHelp).member("search_hint", kSearchHint);
    j.end();

    write_words(j, "graph", kGraphWords);
    j.member("name", kGraphName).member("picked", kPickedWeek);
    j.member("cash_line", kCashLine).member("fans_line", kFansLine);
    j.member("holiday", kHolidayMark).member("hint", kGraphHint).member("empty", kEmptyGraph);
    j.end();

    write_words(j, "help", kHelpWords);
    j.member("keys_part", kKeysPart).member("list", kHelpList);
    j.list("columns", kHelpColumns);
    j.member("about_heading", kAboutHeading).member("about_name", kAboutName);
    j.member("how_to_play", kHowToPlay);
    j.end();

    write_words(j, "summary", kSummaryWords);
    j.end();
    write_words(j, "hall", kHallWords);
    j.member("list", kHallList).member("empty", kEmptyHall);
    j.member("diary", kHallDiary).member("graph", kHallGraph);
    j.member("diary_button", kDiaryWords.title).member("graph_button", kGraphWords.title);
    j.end();
    j.member("carry_on", kCarryOn);

    write_words(j, "saves", kSavesWords);
    j.member("hint", kSavesHint).member("download", kDownloadCaption);
    j.member("upload", kUploadCaption).member("upload_help", kUploadHelp);
    j.member("upload_limit", kUploadLimit);
    j.end();
    j.end();
    return j.take();
}

std::string keys_json() {
    Json j;
    j.array();
    for (const KeyBinding& b : key_bindings()) {
        j.object();
        j.member("where", b.where).member("action", action_name(b.action));
        j.member("control", b.control).member("help", b.help);
        j.key("keys").array();
        each_key(b.key, [&](std::string_view k) { j.value(k); });
        j.end();
        j.key("page").array();
        each_key(b.key, [&](std::string_view k) { j.value(page_key(k)); });
        j.end();
        j.end();
    }
    j.end();
    return j.take();
}

std::string help_json(Game& g) {
    Json j;
    j.object();
    j.key("sections").array();
    for (const HelpSection& s : key_help(g)) {
        j.object().member("title", s.title).key("rows").array();
        for (const HelpRow& row : s.rows)
            j.object().member("keys", row.keys).member("what", row.what).end();
        j.end().end();
    }
    j.end();
    j.key("how").array();
    for (const HelpParagraph& p : how_to_play(g))
        j.object().member("heading", p.heading).member("text", p.text).end();
    j.end();
    j.member("about", about_text());
    j.end();
    return j.take();
}

std::string diary_json(const Game& g, DiarySenders& senders, DiaryFilter& filter) {
    senders.take(g);
    const std::vector<std::string>& names = senders.names();
    if (std::find(names.begin(), names.end(), filter.sender) == names.end()) filter.sender.clear();
    Json j;
    j.reserve(256 + g.diary.size() * 160);
    j.object();
    j.list("senders", names);
    j.member("sender", filter.sender);
    std::size_t shown = 0;
    j.key("entries").array();
    for (std::size_t row = 0; row < g.diary.size(); ++row) {
        const DiaryEntry& e = newest_first(g.diary, row);
        if (!filter.shows(e)) continue;
        ++shown;
        j.object();
        j.member("date", format_date(e.date)).member("from", e.from).member("text", e.text);
        j.member("note", diary_note(e)).member("box", e.from == kBoxSender);
        j.end();
    }
    j.end();
    j.member("shown", shown).member("all", g.diary.size());
    j.member("count", diary_count_line(shown, g.diary.size()));
    j.end();
    return j.take();
}

std::string graph_json(const Game& g, int room, int picked) {
    const std::vector<GraphPoint> points = graph_points(g);
    const int n = static_cast<int>(points.size());
    const int current = picked_point(n, picked);
    const GraphScales s = graph_scales(points);
    Json j;
    j.reserve(512 + points.size() * 90);
    j.object();
    j.key("points").array();
    for (const GraphPoint& p : points) {
        j.object();
        j.member("date", format_date(p.sample.date)).member("cash", p.sample.cash);
        j.member("popularity", p.sample.popularity);
        j.member("start", p.start).member("holiday", p.holiday);
        j.end();
    }
    j.end();
    j.key("scales").object();
    for (const auto& [name, scale] : {std::pair{"cash", s.cash}, std::pair{"fans", s.fans}}) {
        j.key(name).object();
        j.member("low", scale.low).member("high", scale.high).member("step", scale.step);
        j.end();
    }
    j.member("intervals", s.intervals);
    j.end();
    j.key("grid").array();
    for (int k = 0; k <= s.intervals; ++k) {
        j.object().member("cash", graph_money(s.cash.low + s.cash.step * k));
        j.member("fans", std::to_string(static_cast<long long>(s.fans.low + s.fans.step * k)));
        j.end();
    }
    j.end();
    j.member("date_step", date_step(n, room));
    j.key("stretches").array();
    for (int i = 1; i < n; ++i)
        if (points[i].start)
            j.object().member("index", i).member("label", stretch_label(points[i])).end();
    j.end();
    write_pick(j, points, current);
    j.end();
    return j.take();
}

std::string graph_pick_json(const Game& g, int picked) {
    const std::vector<GraphPoint> points = graph_points(g);
    Json j;
    j.object();
    write_pick(j, points, picked_point(static_cast<int>(points.size()), picked));
    j.end();
    return j.take();
}

std::string title_json(FilePort& files) {
    const AutosavedCareer saved = autosaved_career(files);
    Json j;
    j.object()
        .member("offer", carry_on_offer(saved))
        .member("ready", saved.state == AutosavedCareer::State::Ready)
        .member("hint", hall_hint())
        .end();
    return j.take();
}

namespace {

void write_summary(Json& j, const CareerSummary& s) {
    j.member("line", hall_line(s)).key("lines").array();
    for (const SummaryLine& l : summary_lines(s))
        j.object().member("label", l.label).member("value", l.value).end();
    j.end();
}

}  // namespace

std::string summary_json(const CareerSummary& s) {
    Json j;
    j.object();
    write_summary(j, s);
    j.end();
    return j.take();
}

std::string hall_json(const std::vector<FameEntry>& hall) {
    Json j;
    j.array();
    for (const FameEntry& e : hall) {
        j.object();
        write_summary(j, e.summary);
        j.end();
    }
    j.end();
    return j.take();
}

std::string slots_json(FilePort& files) {
    Json j;
    j.array();
    for (int slot = 0; slot < kSaveSlots; ++slot) {
        const SlotOffer offer = slot_offer(files, slot);
        j.object();
        j.member("slot", slot).member("heading", offer.heading).member("holds", offer.holds);
        j.member("download", offer.download).member("upload", offer.upload);
        j.member("grey", offer.grey);
        j.key("files").array();
        for (const auto& file : offer.files) j.value(file.string());
        j.end();
        j.end();
    }
    j.end();
    return j.take();
}

}  // namespace tourvane

#include "app/driver/session.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <istream>
#include <ostream>

#include "app/driver/values.h"
#include "core/ui.h"
#include "flow/clicks.h"
#include "flow/office.h"
#include "rules/band/applicants.h"
#include "rules/band/roster.h"
#include "rules/band/training.h"
#include "rules/music/songs.h"
#include "rules/week/events.h"

namespace tourvane::driver {

namespace {

struct Routine {
    std::string_view name;
    void (*run)(Game&);
};

/// The routines a script may run directly with `call`.
constexpr std::array kRoutines{
    Routine{"update", update},
    Routine{"newapplicant", newapplicant},
    Routine{"listupdate", listupdate},
    Routine{"updatesonglist", updatesonglist},
    Routine{"delete_member", delete_member},
    Routine{"practise", practise},
    Routine{"makesong", makesong},
    Routine{"events", events},
};

std::string target_name(const Command& c) {
    return shown_word(c.form + "." + c.control);
}

/// Says that the index or row (`what`) of the command lies outside its control.
std::string out_of_bounds(const char* what, const Command& c) {
    return what + (" " + shown_word(c.index_text)) + " out of bounds for " + target_name(c);
}

std::string hex_colour(std::uint32_t rgb) {
    char buf[16];
    std::snprintf(buf, sizeof buf, "%06X", static_cast<unsigned>(rgb & 0xFFFFFF));
    return buf;
}

const char* flag(bool b) {
    return b ? "1" : "0";
}

/// Appends the start of a field's line, "NAME = ", or "NAME(INDEX) = " for an element of an
/// array, to `out`.
void append_field_head(std::string& out, const Field& f, int index) {
    out += f.name;
    if (index >= 0) {
        char digits[16];
        out += '(';
        out.append(digits, std::to_chars(digits, digits + sizeof digits, index).ptr);
        out += ')';
    }
    out += " = ";
}

}  // namespace

Session::Session(std::ostream& out, std::optional<std::uint64_t> seed, FilePort& files)
    : out_(out), seed_(seed), port_([this](const Shown& shown) { print(transcript_line(shown)); }) {
    game_ = std::make_unique<Game>(port_);
    game_->files = &files;
    blank_ = std::make_unique<const Game>(*game_);
    fields_ = fields(*game_);
}

void Session::begin_again() {
    *game_ = *blank_;
    port_.clear();
    started_ = false;
    automemo_ = true;
    errors_ = 0;
}

void Session::print(const std::string& line) {
    out_ << line << '\n';
    out_.flush();
}

void Session::error(const std::string& why) {
    ++errors_;
    print("error " + json_quote(why));
}

void Session::start() {
    started_ = true;
    load_main(*game_, seed_);
}

bool Session::run_line(std::string_view line) {
    return run(parse_line(line));
}

bool Session::run(const ParsedLine& parsed) {
    if (game_->ended) return false;
    if (parsed.kind == ParsedLine::Kind::Blank) return true;
    if (!started_ && !runs_before_startup(parsed.verb)) start();
    if (parsed.kind == ParsedLine::Kind::Error)
        error(parsed.error);
    else
        execute(parsed.command);
    if (automemo_) acknowledge_memos();
    if (game_->ended) {
        print("end");
        return false;
    }
    out_.flush();
    return true;
}

void Session::finish() {
    if (!started_ && !game_->ended) start();
    out_.flush();
}

void Session::acknowledge_memos() {
    Game& g = *game_;
    while (!g.ended && !g.memos.empty()) {
        if (click(g, "messageForm", "command1") != ClickResult::Done) break;
    }
}

void Session::execute(const Command& c) {
    Game& g = *game_;
    switch (c.verb) {
        case Verb::Rnd:
            for (double v : c.draws) g.rnd.queue(v);
            break;
        case Verb::RndLeft:
            print("rndleft = " + std::to_string(g.rnd.queued_left()));
            break;
        case Verb::Answer:
            for (Answer a : c.answers) port_.queue_answer(a);
            break;
        case Verb::Input:
            port_.queue_input(c.text);
            break;
        case Verb::AutoMemo:
            automemo_ = c.on;
            break;
        case Verb::Click:
            do_click(c, false);
            break;
        case Verb::DblClick:
            do_click(c, true);
            break;
        case Verb::Call:
            do_call(c);
            break;
        case Verb::Get:
            do_get(c);
            break;
        case Verb::Set:
            do_set(c);
            break;
        case Verb::Dump:
            do_dump();
            break;
        case Verb::Control:
            do_control(c);
            break;
        case Verb::Form:
            do_form(c);
            break;
        case Verb::Diary:
            for (const DiaryEntry& e : g.diary)
                print("diary " + format_date(e.date) + " " + json_quote(e.from) + " " +
                      json_quote(e.text));
            break;
        case Verb::History:
            for (const WeekSample& s : g.history)
                print("week " + format_date(s.date) + " " + std::to_string(s.cash) + " " +
                      std::to_string(s.popularity));
            break;
    }
}

void Session::do_click(const Command& c, bool dbl) {
    Game& g = *game_;
    switch (dbl ? dblclick(g, c.form, c.control, c.index) : click(g, c.form, c.control, c.index)) {
        case ClickResult::Done:
            break;
        case ClickResult::NotUsableNow:
            print("ignored " + c.form + "." + c.control);
            break;
        case ClickResult::UnknownForm:
            error("unknown form " + shown_word(c.form));
            break;
        case ClickResult::UnknownControl:
            error("unknown control " + target_name(c));
            break;
        case ClickResult::NotAList:
            error(target_name(c) + " takes no double click");
            break;
        case ClickResult::TakesNoIndex:
            error(target_name(c) + " takes no index");
            break;
        case ClickResult::NeedsIndex:
            error(target_name(c) + " needs an index");
            break;
        case ClickResult::NeedsRow:
            error(target_name(c) + " needs a row");
            break;
        case ClickResult::IndexOutOfBounds:
            error(out_of_bounds("index", c));
            break;
        case ClickResult::RowOutOfBounds:
            error(out_of_bounds("row", c));
            break;
    }
}

void Session::do_call(const Command& c) {
    for (const Routine& r : kRoutines) {
        if (r.name == c.name) {
            r.run(*game_);
            return;
        }
    }
    error("unknown routine " + shown_word(c.name));
}

namespace {

/// Why `index` doesn't fit the field, or empty when it does.
std::string check_index(const Field& f, const Command& c) {
    const std::string bounds = "0.." + std::to_string(f.upper);
    if (f.is_array() && c.index < 0) return std::string(f.name) + " needs an index " + bounds;
    if (!f.is_array() && c.index >= 0) return std::string(f.name) + " takes no index";
    if (c.index > f.upper)
        return "index " + shown_word(c.index_text) + " out of bounds " + bounds + " for " + f.name;
    return {};
}

}  // namespace

void Session::do_get(const Command& c) {
    const Field* f = find_field(fields_, c.name);
    if (!f) return error("unknown field " + shown_word(c.name));
    if (auto why = check_index(*f, c); !why.empty()) return error(why);
    std::string line;
    append_field_head(line, *f, c.index);
    append_field(line, *f, c.index);
    print(line);
}

void Session::do_set(const Command& c) {
    const Field* f = find_field(fields_, c.name);
    if (!f) return error("unknown field " + shown_word(c.name));
    if (auto why = check_index(*f, c); !why.empty()) return error(why);
    if (auto why = check_field_value(f->type, c.value); !why.empty())
        return error(std::string(f->name) + ": " + why);
    store_field(*f, c.index, c.value);
}

void Session::do_dump() {
    if (dump_lines_.empty()) {  // the first dump of the session lists its lines
        for (const Field& f : fields_) {
            const auto add = [&](int index) {
                dump_lines_.push_back({&f, index, {}});
                append_field_head(dump_lines_.back().head, f, index);
            };
            if (!f.is_array()) add(-1);
            for (int i = 0; i <= f.upper; ++i) add(i);
        }
    }
    // Some 1,200 lines, in the room the last dump had, written at once.
    dump_.clear();
    for (const DumpLine& line : dump_lines_) {
        dump_ += line.head;
        append_field(dump_, *line.field, line.index);
        dump_ += '\n';
    }
    out_.write(dump_.data(), static_cast<std::streamsize>(dump_.size()));
    out_.flush();
}

void Session::do_control(const Command& c) {
    Game& g = *game_;
    if (!find_form(g, c.form)) return error("unknown form " + shown_word(c.form));
    const auto [ctl, array] = named_control(g, c.form, c.control, c.index);
    if (!array && !ctl) return error("unknown control " + target_name(c));
    if (!array && c.index >= 0) return error(target_name(c) + " takes no index");
    if (array && c.index < 0) return error(target_name(c) + " needs an index");
    if (!ctl) return error(out_of_bounds("index", c));

    std::string line = "control " + c.form + "." + c.control;
    if (array) line += "(" + std::to_string(c.index) + ")";
    line += std::string(" enabled=") + flag(ctl->enabled) + " visible=" + flag(ctl->visible);
    const ControlKind k = ctl->kind;
    if (k == ControlKind::Label || k == ControlKind::ClickLabel || k == ControlKind::Option ||
        k == ControlKind::Button)
        line += " caption=" + json_quote(ctl->caption);
    if (k == ControlKind::HotSpot) line += " tooltip=" + json_quote(ctl->tooltip);
    if (k == ControlKind::Option) line += std::string(" value=") + flag(ctl->value);
    if (is_list(*ctl)) {
        line += " rows=[";
        for (std::size_t i = 0; i < ctl->rows.size(); ++i) {
            if (i) line += ",";
            line += json_quote(ctl->rows[i]);
        }
        line += "] selected=" + std::to_string(ctl->selected);
    }
    if (ctl->rule_colour) line += " color=" + hex_colour(ctl->color);
    print(line);
}

void Session::do_form(const Command& c) {
    const FormState* f = find_form(*game_, c.form);
    if (!f) return error("unknown form " + shown_word(c.form));
    print("form " + c.form + " loaded=" + flag(f->loaded) + " visible=" + flag(f->visible) +
          " enabled=" + flag(f->enabled));
}

int run_script(std::istream& in, std::ostream& out, std::optional<std::uint64_t> seed) {
    Session session(out, seed);
    std::string line;
    while (std::getline(in, line)) {
        if (!session.run_line(line)) break;
    }
    session.finish();
    return session.had_error() ? 1 : 0;
}

}  // namespace tourvane::driver

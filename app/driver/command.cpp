#include "app/driver/command.h"

#include <array>
#include <limits>

#include "app/driver/values.h"

namespace tourvane::driver {

namespace {

bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\v' || c == '\f';
}

struct VerbInfo {
    std::string_view word;
    Verb verb;
    std::string_view usage;
};

constexpr std::array kVerbs{
    VerbInfo{"rnd", Verb::Rnd, "rnd V1 V2 ..."},
    VerbInfo{"rndleft", Verb::RndLeft, "rndleft"},
    VerbInfo{"answer", Verb::Answer, "answer A1 A2 ..."},
    VerbInfo{"input", Verb::Input, "input TEXT"},
    VerbInfo{"automemo", Verb::AutoMemo, "automemo on|off"},
    VerbInfo{"click", Verb::Click, "click FORM.CONTROL [INDEX]"},
    VerbInfo{"dblclick", Verb::DblClick, "dblclick FORM.CONTROL [ROW]"},
    VerbInfo{"call", Verb::Call, "call ROUTINE"},
    VerbInfo{"get", Verb::Get, "get NAME [INDEX]"},
    VerbInfo{"set", Verb::Set, "set NAME [INDEX] VALUE"},
    VerbInfo{"dump", Verb::Dump, "dump"},
    VerbInfo{"control", Verb::Control, "control FORM.CONTROL [INDEX]"},
    VerbInfo{"form", Verb::Form, "form FORM"},
    VerbInfo{"diary", Verb::Diary, "diary"},
    VerbInfo{"history", Verb::History, "history"},
};

const VerbInfo* find_verb(std::string_view word) {
    for (const VerbInfo& v : kVerbs)
        if (v.word == word) return &v;
    return nullptr;
}

/// Builds the error result of a line.
ParsedLine fail(ParsedLine line, std::string why) {
    line.kind = ParsedLine::Kind::Error;
    line.error = std::move(why);
    return line;
}

/// A plain word where a name, a number or a keyword belongs; empty when it is fine.
std::string need_bare(const Word& w) {
    if (w.quoted) return "expected a word, not the string " + shown_word(w.text);
    return {};
}

/// Reads an index or row: a whole number from 0. Past the range of int it is kept as the
/// largest int, which no bound admits.
std::string read_index(const Word& w, Command& c) {
    if (auto why = need_bare(w); !why.empty()) return why;
    auto v = parse_whole(w.text);
    c.index_text = w.text;
    if (!v) {
        // Digits beyond 64 bits are still a number, just far out of bounds.
        bool digits = !w.text.empty();
        for (std::size_t i = w.text[0] == '-' ? 1 : 0; i < w.text.size(); ++i)
            digits = digits && w.text[i] >= '0' && w.text[i] <= '9';
        if (!digits || w.text == "-") return "malformed index " + shown_word(w.text);
        v = w.text[0] == '-' ? -1 : std::numeric_limits<std::int64_t>::max();
    }
    if (*v < 0) return "index " + shown_word(w.text) + " out of bounds";
    c.index = *v > std::numeric_limits<int>::max() ? std::numeric_limits<int>::max()
                                                   : static_cast<int>(*v);
    return {};
}

/// Reads FORM.CONTROL.
std::string read_target(const Word& w, Command& c) {
    if (auto why = need_bare(w); !why.empty()) return why;
    const auto dot = w.text.find('.');
    if (dot == std::string::npos || dot == 0 || dot + 1 == w.text.size() ||
        w.text.find('.', dot + 1) != std::string::npos)
        return "expected FORM.CONTROL, not " + shown_word(w.text);
    c.form = w.text.substr(0, dot);
    c.control = w.text.substr(dot + 1);
    return {};
}

}  // namespace

bool split_words(std::string_view line, std::vector<Word>& words, std::string& why) {
    words.clear();
    std::size_t i = 0;
    while (true) {
        while (i < line.size() && is_blank(line[i])) ++i;
        if (i >= line.size()) return true;
        const std::size_t start = i;
        if (line[i] == '"') {
            std::size_t end = 0;
            if (!parse_json_string(line, i, end) || (end < line.size() && !is_blank(line[end]))) {
                why = "malformed string literal";
                return false;
            }
            i = end;
            words.push_back({line.substr(start, i - start), true});
        } else {
            while (i < line.size() && !is_blank(line[i])) ++i;
            words.push_back({line.substr(start, i - start), false});
        }
    }
}

bool runs_before_startup(std::string_view verb) {
    return verb == "rnd" || verb == "answer" || verb == "input" || verb == "automemo";
}

ParsedLine parse_line(std::string_view line) {
    ParsedLine out;
    std::size_t first = 0;
    while (first < line.size() && is_blank(line[first])) ++first;
    if (first == line.size() || line[first] == '#') return out;

    // The verb is the first run of non-blanks, read before the words so that it is known even
    // when a later string literal is malformed.
    std::size_t verb_end = first;
    while (verb_end < line.size() && !is_blank(line[verb_end])) ++verb_end;
    out.verb = std::string(line.substr(first, verb_end - first));
    const VerbInfo* info = find_verb(out.verb);
    if (!info) return fail(std::move(out), "unknown command " + shown_word(out.verb));

    std::vector<Word> words;
    std::string why;
    if (!split_words(line.substr(verb_end), words, why)) return fail(std::move(out), why);

    Command& c = out.command;
    c.verb = info->verb;
    const auto usage = [&] { return "usage: " + std::string(info->usage); };
    const std::size_t n = words.size();

    switch (info->verb) {
        case Verb::Rnd:
            if (n == 0) return fail(std::move(out), usage());
            for (const Word& w : words) {
                if (auto e = need_bare(w); !e.empty()) return fail(std::move(out), e);
                auto v = parse_decimal(w.text);
                if (!v) return fail(std::move(out), "malformed number " + shown_word(w.text));
                if (!(*v >= 0.0 && *v < 1.0))
                    return fail(std::move(out),
                                "draw " + shown_word(w.text) + " not in 0 <= V < 1");
                c.draws.push_back(*v == 0.0 ? 0.0 : *v);  // -0 is queued as 0
            }
            break;
        case Verb::Answer:
            if (n == 0) return fail(std::move(out), usage());
            for (const Word& w : words) {
                if (!w.quoted && w.text == "ok") {
                    c.answers.push_back(Answer::Ok);
                } else if (!w.quoted && w.text == "yes") {
                    c.answers.push_back(Answer::Yes);
                } else if (!w.quoted && w.text == "no") {
                    c.answers.push_back(Answer::No);
                } else {
                    return fail(std::move(out),
                                "answer must be ok, yes or no, not " + shown_word(w.text));
                }
            }
            break;
        case Verb::Input:
            if (n != 1) return fail(std::move(out), usage());
            if (!words[0].quoted) return fail(std::move(out), "expected a JSON string literal");
            c.text = *parse_json_string(words[0].text);
            break;
        case Verb::AutoMemo:
            if (n != 1 || words[0].quoted || (words[0].text != "on" && words[0].text != "off"))
                return fail(std::move(out), usage());
            c.on = words[0].text == "on";
            break;
        case Verb::Click:
        case Verb::DblClick:
        case Verb::Control:
            if (n < 1 || n > 2) return fail(std::move(out), usage());
            if (auto e = read_target(words[0], c); !e.empty()) return fail(std::move(out), e);
            if (n == 2)
                if (auto e = read_index(words[1], c); !e.empty()) return fail(std::move(out), e);
            break;
        case Verb::Call:
        case Verb::Form:
            if (n != 1) return fail(std::move(out), usage());
            if (auto e = need_bare(words[0]); !e.empty()) return fail(std::move(out), e);
            (info->verb == Verb::Call ? c.name : c.form) = words[0].text;
            break;
        case Verb::Get:
            if (n < 1 || n > 2) return fail(std::move(out), usage());
            if (auto e = need_bare(words[0]); !e.empty()) return fail(std::move(out), e);
            c.name = words[0].text;
            if (n == 2)
                if (auto e = read_index(words[1], c); !e.empty()) return fail(std::move(out), e);
            break;
        case Verb::Set:
            if (n < 2 || n > 3) return fail(std::move(out), usage());
            if (auto e = need_bare(words[0]); !e.empty()) return fail(std::move(out), e);
            c.name = words[0].text;
            if (n == 3)
                if (auto e = read_index(words[1], c); !e.empty()) return fail(std::move(out), e);
            c.value = words[n - 1].text;
            break;
        case Verb::RndLeft:
        case Verb::Dump:
        case Verb::Diary:
        case Verb::History:
            if (n != 0) return fail(std::move(out), usage());
            break;
    }
    out.kind = ParsedLine::Kind::Command;
    return out;
}

}  // namespace tourvane::driver

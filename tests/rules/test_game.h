#pragma once
// A game for rule tests: boxes answered from queues, what they showed collected, every draw
// pinned by the whole number it gives.

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/fields.h"
#include "core/game.h"
#include "core/scripted_port.h"
#include "core/ui.h"
#include "flow/clicks.h"
#include "flow/office.h"
#include "rules/band/applicants.h"
#include "rules/music/songs.h"

namespace tourvane {
/// How a failing test shows what the port showed.
inline void PrintTo(const Shown& s, std::ostream* out) {
    *out << "{kind " << static_cast<int>(s.kind) << ", \"" << s.title << "\", \"" << s.text
         << "\", answer " << static_cast<int>(s.answer) << ", \"" << s.typed << "\"}";
}
}  // namespace tourvane

namespace tourvane::testing {

using Lines = std::vector<Shown>;
using Rows = std::vector<std::string>;
using Bytes = std::vector<std::uint8_t>;

/// A fresh, empty working directory for one test: the game reads and writes its files in the
/// working directory, so each test gets its own and the old one comes back afterwards.
struct TempDir {
    std::filesystem::path old = std::filesystem::current_path();
    std::string path = (std::filesystem::temp_directory_path() / "tourvane-XXXXXX").string();
    TempDir() { std::filesystem::current_path(::mkdtemp(path.data())); }
    ~TempDir() {
        std::filesystem::current_path(old);
        std::error_code ec;
        std::filesystem::remove_all(path, ec);
    }
};

/// A file of the test data folder, `testdata/` at the top of the repository.
inline std::filesystem::path testdata(const std::filesystem::path& name) {
    return std::filesystem::path(TOURVANE_TESTDATA) / name;
}

/// The values written one after another with a blank between, to make names and titles.
template <class... T>
std::string str(const T&... v) {
    std::ostringstream out;
    ((out << v << ' '), ...);
    const std::string s = out.str();
    return s.substr(0, s.size() - 1);
}

/// A value as a failure shows it: numbers in digits, true and false as 1 and 0.
template <class T>
std::string shown_value(const T& v) {
    if constexpr (std::is_convertible_v<const T&, std::string_view>) {
        return std::string(std::string_view(v));
    } else if constexpr (std::is_integral_v<T>) {
        return std::to_string(static_cast<long long>(v));
    } else {
        char buf[32];
        return std::string(buf, std::to_chars(buf, buf + sizeof buf, v).ptr);
    }
}

/// The name of element `index` of a field: "chartplace(5)".
inline std::string field(std::string_view name, int index) {
    return std::string(name) + "(" + std::to_string(index) + ")";
}

/// A value a test expects, under the name a failure gives it, made with `is` or `enabled`.
struct Want {
    std::string name;
    std::string value;
    std::optional<std::string> actual;  ///< the value found, unless the game's field is read
};

/// A field of the game, by its own name: is("popularity", 68), is("memberhappy(2)", 4), or
/// one value a slot between blanks: is("memberhappy(1..4)", "10 4 7 10").
template <class W>
Want is(std::string name, const W& want) {
    return {std::move(name), shown_value(want), std::nullopt};
}
/// Anything else, with the value it has: is("boxes", boxes().size(), 0).
template <class G, class W>
Want is(std::string name, const G& got, const W& want) {
    return {std::move(name), shown_value(want), shown_value(got)};
}
/// A control's caption: is(f.txtcash, "£ 0"); "location(2)" for an element of an array.
template <class W>
Want is(const Control& c, const W& want) {
    return is(c.index < 0 ? std::string(c.name) : field(c.name, c.index), c.caption, want);
}
/// Whether a control takes clicks: enabled(f.hire, false).
inline Want enabled(const Control& c, bool want) {
    return is(is(c, "").name + ".enabled", c.enabled, want);
}

/// Whether `g` holds every value of `wants`; the failure names each that differs, with the
/// value expected and the value found.
inline ::testing::AssertionResult has(Game& g, const std::vector<Want>& wants) {
    const std::vector<Field> all = fields(g);
    std::string wrong;
    const auto compare = [&](const std::string& name, const std::string& want,
                             const std::string& got) {
        if (got != want) wrong += "\n  " + name + ": expected " + want + ", actual " + got;
    };
    for (const Want& w : wants) {
        if (w.actual) {
            compare(w.name, w.value, *w.actual);
            continue;
        }
        // "name", "name(i)" or "name(i..j)", with one value a slot between blanks
        const std::size_t open = w.name.find('(');
        const Field* f = find_field(all, w.name.substr(0, open));
        int first = -1, last = -1;
        if (open != std::string::npos && std::sscanf(&w.name[open], "(%d..%d", &first, &last) == 1)
            last = first;
        std::istringstream in(w.value);
        std::vector<std::string> values{std::istream_iterator<std::string>(in), {}};
        if (last == first) values = {w.value};
        const std::string slots = last > first ? str(first) + ".." + str(last) : str(first);
        if (!f || w.name != (first < 0 ? f->name : f->name + ("(" + slots + ")")) ||
            f->is_array() != (first >= 0) || last > f->upper ||
            values.size() != static_cast<std::size_t>(last - first + 1)) {
            wrong += "\n  " + w.name + " = " + w.value + ": no such field or slots";
            continue;
        }
        for (int i = first; i <= last; ++i)
            compare(i < 0 ? w.name : field(f->name, i), values[i - first],
                    f->type == FieldType::String ? f->at<std::string>(i)
                    : f->type == FieldType::Long ? shown_value(f->at<Long>(i))
                    : f->type == FieldType::Date ? shown_value(f->at<Date>(i))
                                                 : shown_value(f->at<Integer>(i)));
    }
    if (wrong.empty()) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << wrong;
}

/// The same for a record alone, such as a save just read.
inline ::testing::AssertionResult has(const Module1& rec, const std::vector<Want>& wants) {
    ScriptedPort port;
    Game g(port);
    g.rec = rec;
    return has(g, wants);
}

struct Member {
    int talent = 3, charisma = 5, attitude = 5, looks = 5, creativity = 2, happy = 10;
    const char* sex = "Male";
};

/// One applicant as the nine draws of `newapplicant` make them.
struct Applicant {
    int age = 17, sex = 1, forename = 1, surname = 1;
    int talent = 1, charisma = 1, attitude = 1, looks = 1, creativity = 1;
};

struct TestGame {
    Lines lines;
    ScriptedPort port{[this](const Shown& shown) { lines.push_back(shown); }};
    Game g{port};
    Module1& r = g.rec;

    /// Start-up with a fixed seed; the title screen is up.
    TestGame() { load_main(g, 1); }

    /// NEW GAME with both names given: the office is up.
    TestGame& new_game(std::string band = "The Wasps", std::string player = "Sam") {
        port.queue_input(std::move(band));
        port.queue_input(std::move(player));
        click(g, "Form1", "New");
        lines.clear();
        return *this;
    }

    /// Puts a member into a slot directly.
    void put(int s, const std::string& name, Member m = {}) {
        r.membername[s] = name, r.membersex[s] = m.sex, r.memberage[s] = 20;
        r.membertalent[s] = m.talent, r.membercharisma[s] = m.charisma;
        r.memberattitude[s] = m.attitude, r.memberlooks[s] = m.looks;
        r.membercreativity[s] = m.creativity, r.memberhappy[s] = m.happy;
    }

    /// Fills all four slots with steady members (attitude 5 never misbehaves).
    void full_band(Member m = {}) {
        const char* names[] = {"", "Ann Vox", "Bob Axe", "Cy Low", "Di Kit"};
        for (int slot = 1; slot <= 4; ++slot) put(slot, names[slot], m);
    }

    /// Whether the game holds every value of `wants` (see Want).
    ::testing::AssertionResult has(const std::vector<Want>& wants) {
        return testing::has(g, wants);
    }
    /// What member slot s should hold: name, sex, then age, talent, charisma, attitude, looks,
    /// creativity, happiness and friction.
    static std::vector<Want> member(int s, const char* name, const char* sex,
                                    std::array<int, 8> values) {
        std::vector<Want> out{is(field("membername", s), name), is(field("membersex", s), sex)};
        const char* names[] = {"memberage",      "membertalent",  "membercharisma",
                               "memberattitude", "memberlooks",   "membercreativity",
                               "memberhappy",    "memberfriction"};
        for (int k = 0; k < 8; ++k) out.push_back(is(field(names[k], s), values[k]));
        return out;
    }
    /// Setting `memberhappy` of slots 1 to 4.
    void set_happy(int a, int b, int c, int d) {
        r.memberhappy = {0, Integer(a), Integer(b), Integer(c), Integer(d)};
    }

    /// Songs 1, 2, ... of the given qualities, on the track list.
    void songs(const std::vector<int>& qualities) {
        int k = 0;
        for (int q : qualities) ++k, r.songname[k] = str("Song", k), r.songquality[k] = q;
        r.songcount = r.nextsong = k;
        updatesonglist(g);
    }

    /// Queues a draw that makes Int(Rnd()*n)+1 give k.
    void pick(int k, int n) { g.rnd.queue((k - 0.5) / n); }
    void picks(std::initializer_list<std::pair<int, int>> kn) {
        for (auto [k, n] : kn) pick(k, n);
    }
    void draws(std::initializer_list<double> values) {
        for (double v : values) g.rnd.queue(v);
    }
    void applicant(const Applicant& a = {}) {
        picks({{a.age - 16, 6}, {a.sex, 2}, {a.forename, 30}, {a.surname, 30}, {a.talent, 5}});
        picks({{a.charisma, 10}, {a.attitude, 10}, {a.looks, 10}, {a.creativity, 3}});
    }

    /// Rival rows 20 to 70 with long lives and sales of their row number; pool entry k is
    /// "Pool k" with fame k.
    void calm_chart() {
        for (int row = 20; row <= 70; ++row) {
            r.chartband[row] = str("Rival", row), r.charttitle[row] = str("Hit", row);
            r.chartfame[row] = 10, r.chartquality[row] = 50, r.chartdemand[row] = 100;
            r.chartlife[row] = 30000, r.chartsales[row] = row, r.chartlastsales[row] = 0;
        }
        for (int k = 0; k <= 50; ++k) r.rivalname[k] = str("Pool", k), r.rivalfame[k] = k;
    }
    /// Rival rows' steps that keep them running: demand +1, fame +1, life -1.
    void tick(int rows = 1) {
        for (int i = 0; i < rows; ++i) picks({{1, 2}, {1, 5}, {1, 2}, {1, 3}, {1, 100}});
    }
    /// A full band's week up to the label's answer: no practice, wages of 1 each, venues open.
    void week_start() {
        no();
        picks({{1, 3}, {1, 3}, {1, 3}, {1, 3}, {1, 2}, {1, 2}, {1, 2}, {1, 2}, {1, 2}});
    }
    /// The rest of a full band's week after the singles: nobody ill, no press item, no
    /// invitation (drawn above 200 popularity), and a calm chart step.
    void week_end(bool above_200) {
        for (int i = 0; i < (above_200 ? 6 : 5); ++i) draws({0.5});
        tick(51);
    }

    /// Runs `f` and expects it to take exactly the draws queued before, no more.
    template <class F>
    void exactly(F&& f) {
        g.rnd.queue(0.123456);
        f();
        EXPECT_EQ(g.rnd.queued_left(), 1u) << "draws left over or missing";
        g.rnd.clear_queue();
    }

    void yes() { port.queue_answer(Answer::Yes); }
    void no() { port.queue_answer(Answer::No); }

    /// Acknowledges every open memo.
    void ok_memos() {
        while (!g.memos.empty() && !g.ended) memo_ok(g);
    }
    /// A click on the office with its memos acknowledged; the lines it raised.
    Lines office(const char* control) {
        click(g, "main", control);
        ok_memos();
        return take();
    }
    /// Expects exactly these memos shown so far, then acknowledges them.
    void said(const Lines& want) {
        EXPECT_EQ(memos(), want);
        ok_memos();
    }

    /// What the port showed so far, and forgets it.
    Lines take() { return std::exchange(lines, {}); }

    /// The memos shown so far, and forgets all that was shown.
    Lines memos() {
        Lines out = take();
        std::erase_if(out, [](const Shown& s) { return s.kind != Shown::Kind::Memo; });
        return out;
    }
};

/// Fixtures with the office up, with nobody hired and with a full, steady band.
struct NewGame : ::testing::Test, TestGame {
    NewGame() { new_game(); }
};
struct Office : NewGame {
    Office() { full_band(); }
};

/// A memo, and the boxes as the port reports them.
inline Shown memo(std::string_view from, std::string_view text) {
    return {.kind = Shown::Kind::Memo, .text = std::string(text), .title = std::string(from)};
}
inline Shown okbox(std::string_view text, bool critical = false) {
    return {.kind = Shown::Kind::Box, .text = std::string(text), .critical = critical};
}
inline Shown yesno(std::string_view text, bool yes) {
    return {.kind = Shown::Kind::Box,
            .text = std::string(text),
            .buttons = Buttons::YesNo,
            .answer = yes ? Answer::Yes : Answer::No};
}

}  // namespace tourvane::testing

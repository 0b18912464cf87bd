#pragma once
// A game for rule tests: boxes answered from queues, transcript lines collected, draws
// pinned where a test needs them.

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "screens/clicks.h"
#include "screens/office.h"
#include "screens/scripted_port.h"
#include "screens/ui.h"
#include "state/game.h"

namespace tourvane::testing {

struct Member {
    int talent = 3, charisma = 5, attitude = 5, looks = 5, creativity = 2, happy = 10;
    const char* sex = "Male";
};

class TestGame {
  public:
    std::vector<std::string> lines;
    ScriptedPort port{[this](const std::string& line) { lines.push_back(line); }};
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
    void put(int slot, const std::string& name, Member m = {}) {
        r.membername[slot] = name;
        r.membertalent[slot] = static_cast<Integer>(m.talent);
        r.membercharisma[slot] = static_cast<Integer>(m.charisma);
        r.memberattitude[slot] = static_cast<Integer>(m.attitude);
        r.memberlooks[slot] = static_cast<Integer>(m.looks);
        r.membercreativity[slot] = static_cast<Integer>(m.creativity);
        r.memberhappy[slot] = static_cast<Integer>(m.happy);
        r.membersex[slot] = m.sex;
        r.memberage[slot] = 20;
    }

    /// Fills all four slots with steady members (attitude 5 never misbehaves).
    void full_band(Member m = {}) {
        const char* names[] = {"", "Ann Vox", "Bob Axe", "Cy Low", "Di Kit"};
        for (int slot = 1; slot <= 4; ++slot) put(slot, names[slot], m);
    }

    /// Queues a draw that makes Int(Rnd()*n)+1 give k.
    void pick(int k, int n) { g.rnd.queue((k - 0.5) / n); }
    void draws(std::initializer_list<double> values) {
        for (double v : values) g.rnd.queue(v);
    }

    void yes() { port.queue_answer(Answer::Yes); }
    void no() { port.queue_answer(Answer::No); }

    /// Acknowledges every open memo.
    void ok_memos() {
        while (!g.memos.empty() && !g.ended) memo_ok(g);
    }

    /// The transcript lines collected so far, and forgets them.
    std::vector<std::string> take() {
        std::vector<std::string> out;
        out.swap(lines);
        return out;
    }

    /// The memo lines collected so far ("FROM: TEXT"), and forgets all lines.
    std::vector<std::string> memos() {
        std::vector<std::string> out;
        for (const std::string& l : take())
            if (l.rfind("memo ", 0) == 0) out.push_back(l);
        return out;
    }
};

/// The transcript line of a memo.
inline std::string memo(std::string_view from, std::string_view text) {
    return "memo " + json_quote(from) + " " + json_quote(text);
}

/// The transcript line of an OK box.
inline std::string okbox(std::string_view text) {
    return "msgbox ok " + json_quote(text) + " -> ok";
}

}  // namespace tourvane::testing

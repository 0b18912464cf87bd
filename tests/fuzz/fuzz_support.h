#pragma once
// What the fuzz targets share: the game's files kept in memory (MemoryFiles), so that no input
// waits for the disk; the title screen of a run started beside a saved game; and a check that
// stops the run with a message when a property fails.

#include <cstdio>
#include <cstdlib>

#include "core/scripted_port.h"
#include "flow/clicks.h"
#include "flow/office.h"
#include "rules/files/save_file.h"

/// Stops the run when a property of the game does not hold for this input.
#define FUZZ_CHECK(cond)                                                                  \
    do {                                                                                  \
        if (!(cond)) {                                                                    \
            std::fprintf(stderr, "%s:%d: check failed: %s\n", __FILE__, __LINE__, #cond); \
            std::abort();                                                                 \
        }                                                                                 \
    } while (0)

namespace tourvane::fuzz {

/// The files of the started game below.
inline MemoryFiles& started_files() {
    static MemoryFiles files;
    return files;
}

/// The title screen of a run started with its files in memory, beside a save of a new game
/// (with no history file) in slot 0; the same for every input. Boxes get OK, questions No.
inline const Game& started_game() {
    static ScriptedPort port;
    static const Game started = [] {
        Game g(port);
        g.files = &started_files();
        load_main(g, 1);
        port.queue_input("The Wasps");
        port.queue_input("Sam");
        click(g, "Form1", "New");
        started_files().files[slot_file(0)] = save_bytes(g.rec);
        Game fresh(port);
        fresh.files = &started_files();
        load_main(fresh, 1);
        return fresh;
    }();
    return started;
}

/// A copy of `from` in the one game kept from input to input, whose strings and lists are
/// used again: far fewer allocations than a new copy. Good until the next call.
inline Game& copy_of(const Game& from) {
    static Game kept = from;
    return kept = from;
}

/// The started game with the load screen open.
inline const Game& load_screen() {
    static const Game open = [] {
        Game g = started_game();
        FUZZ_CHECK(click(g, "Form1", "load") == ClickResult::Done);
        return g;
    }();
    return open;
}

}  // namespace tourvane::fuzz

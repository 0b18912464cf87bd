#pragma once
// One running game: the record, the screens' fields and controls, the memo queue, the
// random source and the port through which the rules ask the player.

#include <deque>
#include <string>

#include "screens/forms.h"
#include "screens/ui_port.h"
#include "state/record.h"
#include "state/rnd.h"

namespace tourvane {

struct Memo {
    std::string from;
    std::string text;
    bool ends_game = false;
};

struct Game {
    explicit Game(UiPort& port) : ui(&port) {}

    Module1 rec;
    MainFields main;
    GigFields gig;
    Forms forms;
    Rnd rnd;
    UiPort* ui;

    /// Memos raised and not yet acknowledged; the front one is on the memo screen.
    std::deque<Memo> memos;

    /// The wages could not be paid: the memo saying so is the last one the player sees.
    bool game_over = false;

    /// The program has ended (EXIT, quit, or OK on the memo that ends the game).
    bool ended = false;
};

}  // namespace tourvane

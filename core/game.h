#pragma once
// One running game: the record, the screens' fields and controls, the memo queue, the
// random source, the port through which the rules ask the player and the one through which
// they read and write files.

#include <deque>
#include <string>
#include <vector>

#include "core/file_port.h"
#include "core/forms.h"
#include "core/record.h"
#include "core/rnd.h"
#include "core/ui_port.h"

namespace tourvane {

struct Memo {
    std::string from;
    std::string text;
    bool ends_game = false;
};

/// One thing the office told the player: a memo, or a box from "Tourvane".
struct DiaryEntry {
    Date date = 0;  ///< the game date when it was shown
    std::string from;
    std::string text;
};

/// Cash and popularity at one moment of the run.
struct WeekSample {
    Date date = 0;
    Long cash = 0;
    Integer popularity = 0;
    int segment = 0;  ///< the stretch of play: 0 from start-up, one more after each load
};

struct Game {
    explicit Game(UiPort& port) : ui(&port) {}

    Module1 rec;
    MainFields main;
    GigFields gig;
    Forms forms;
    Rnd rnd;
    UiPort* ui;
    FilePort* files = &disk_files();

    /// Memos raised and not yet acknowledged; the front one is on the memo screen.
    std::deque<Memo> memos;

    /// The wages could not be paid: the memo saying so is the last one the player sees.
    bool game_over = false;

    /// The program has ended (EXIT, quit, or OK on the memo that ends the game).
    bool ended = false;

    /// Every memo, box and gig report of this career in the order shown: this run's, after
    /// those of the runs before it that a load brought back.
    std::vector<DiaryEntry> diary;

    /// The end of every week played through Next Week in this career, oldest first.
    std::vector<WeekSample> history;

    /// Where each stretch of play begins: the start-up, then each load. Segment k of
    /// `history` starts at segments[k].
    std::vector<WeekSample> segments;

    /// How many loads have put another career's history in place of the one before.
    unsigned history_loads = 0;

    /// Where the current stretch of play begins in `diary`: 0, or the loaded career's diary
    /// length at the latest load.
    std::size_t diary_at_load = 0;
};

}  // namespace tourvane

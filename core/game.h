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
    bool operator==(const DiaryEntry&) const = default;
};

/// Cash and popularity at one moment of the run.
struct WeekSample {
    Date date = 0;
    Long cash = 0;
    Integer popularity = 0;
    int segment = 0;  ///< the stretch of play: 0 from start-up, one more after each load
    bool operator==(const WeekSample&) const = default;
};

/// A gig as a career remembers it.
struct GigNote {
    Date date = 0;
    std::string venue;
    Integer attendance = 0;
    Integer profit = 0;
    Integer score = 0;
    bool operator==(const GigNote&) const = default;
};

/// What a career has done that neither its record nor its weeks keep, counted as it happens.
struct CareerTally {
    Long hired = 0;
    Long lost = 0;  ///< walk-outs and sackings
    Long demos = 0;
    Long gigs = 0;
    GigNote best_gig;        ///< the highest score, the earliest of equals; none while gigs is 0
    Integer best_place = 0;  ///< the best chart place of a single, 1 to 70; 0 for never
    std::string best_song;   ///< that single's title
    Date best_place_date = 0;
    bool operator==(const CareerTally&) const = default;
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

    /// The career's hires, losses, demos, gigs and best chart place; a load brings back the
    /// loaded career's.
    CareerTally tally;

    /// NEW GAME or a load has opened the office: a career is being played.
    bool career_begun = false;
};

}  // namespace tourvane

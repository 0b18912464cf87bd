#pragma once
// The script runner: one game played from script lines, printing the transcript.

#include <cstdint>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/driver/command.h"
#include "core/fields.h"
#include "core/game.h"
#include "core/scripted_port.h"

namespace tourvane::driver {

class Session {
  public:
    /// A game that prints its transcript to `out`. `seed` seeds the fallback draws; without it
    /// they are seeded from the clock, as the game does. The game's files are kept in `files`.
    Session(std::ostream& out, std::optional<std::uint64_t> seed, FilePort& files = disk_files());
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Runs one line of a script. Returns false once the program has ended (after printing
    /// `end`): no further line is read.
    bool run_line(std::string_view line);

    /// Runs a line already read by `parse_line`, as `run_line` does.
    bool run(const ParsedLine& parsed);

    /// Goes back to the state of a new session, with the same seed and files, for the next
    /// script. Cheaper than a new session: the game's strings and lists are used again.
    void begin_again();

    /// Finishes the script: runs the start-up if no command has needed it yet.
    void finish();

    /// True when any `error` line has been printed, by a command or by a box that met a
    /// queued answer that didn't fit it.
    bool had_error() const { return errors_ > 0 || port_.mismatches() > 0; }

    bool ended() const { return game_->ended; }
    bool started() const { return started_; }
    Game& game() { return *game_; }

  private:
    void print(const std::string& line);
    void error(const std::string& why);
    void start();
    void execute(const Command& c);
    void do_click(const Command& c, bool dbl);
    void do_get(const Command& c);
    void do_set(const Command& c);
    void do_control(const Command& c);
    void do_form(const Command& c);
    void do_call(const Command& c);
    void do_dump();
    void acknowledge_memos();

    std::ostream& out_;
    std::optional<std::uint64_t> seed_;
    ScriptedPort port_;
    std::unique_ptr<Game> game_;
    std::unique_ptr<const Game> blank_;  ///< the game as a new session has it
    bool started_ = false;
    bool automemo_ = true;
    int errors_ = 0;
    std::vector<Field> fields_;

    /// A line of `dump`: a plain field (index -1) or an element, and the line's fixed start,
    /// "NAME = " or "NAME(INDEX) = ".
    struct DumpLine {
        const Field* field;
        int index;
        std::string head;
    };
    std::vector<DumpLine> dump_lines_;  ///< in the order printed; listed by the first dump
    std::string dump_;                  ///< the text of the last dump, whose room the next uses
};

/// Plays a whole script from `in`, printing to `out`. Returns the exit status: 0, or 1 when
/// any error line was printed.
int run_script(std::istream& in, std::ostream& out, std::optional<std::uint64_t> seed);

}  // namespace tourvane::driver

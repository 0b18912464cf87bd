#pragma once
// The game's command line: --help, --version, --seed N and --measure-startup.

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

namespace tourvane {

struct CommandLine {
    /// Where the game's random draws start; without it they start from the clock.
    std::optional<std::uint64_t> seed;
    /// Print how long the title screen took to be drawn after the process started, and quit.
    bool measure_startup = false;
    /// Print `output` and stop with `status` instead of playing (--help, --version, a mistake).
    bool stop = false;
    int status = 0;
    QString output;  ///< for standard output when `status` is 0, else for standard error
};

/// Reads the program's arguments, the program's own name first. Qt's own options (-platform,
/// -style ...) are let through for QApplication, so this needs no QApplication and no display.
CommandLine parse_command_line(const QStringList& arguments);

/// Prints what a stopping command line has to say; returns the exit status.
int print_and_stop(const CommandLine& line);

/// What --version prints: the version line, the copyright and the licence.
QString version_text();

}  // namespace tourvane

// The game: the title screen, the office and the other screens in windows.

#include <QApplication>
#include <QIcon>
#include <QStyleFactory>
#include <memory>

#include "app/command_line.h"
#include "app/qt/game_windows.h"
#include "app/qt/pictures.h"
#include "app/qt/qt_port.h"
#include "app/startup_probe.h"
#include "core/game.h"
#include "flow/office.h"

int main(int argc, char** argv) {
    // --help, --version and a bad seed are answered before any window is needed; the rest is
    // read again once Qt has taken its own options (-platform, -style ...) out of the list.
    QStringList raw;
    for (int i = 0; i < argc; ++i) raw << QString::fromLocal8Bit(argv[i]);
    if (const auto early = tourvane::parse_command_line(raw); early.stop && !early.maybe_qt)
        return tourvane::print_and_stop(early);
    QApplication app(argc, argv);
    const tourvane::CommandLine options = tourvane::parse_command_line(QApplication::arguments());
    if (options.stop) return tourvane::print_and_stop(options);
    QApplication::setApplicationName("Tourvane");
    QApplication::setApplicationDisplayName("Tourvane");
    QApplication::setDesktopFileName("io.github.tourvane.Tourvane");
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setWindowIcon(QIcon(tourvane::program_icon()));
    // The windows come and go as the game says; only the game's own end quits.
    QApplication::setQuitOnLastWindowClosed(false);

    tourvane::QtPort port;
    tourvane::Game game(port);
    tourvane::load_main(game, options.seed);
    tourvane::GameWindows windows(game);
    QObject::connect(&windows, &tourvane::GameWindows::ended, &app, &QApplication::quit,
                     Qt::QueuedConnection);
    std::unique_ptr<tourvane::StartupProbe> probe;
    if (options.measure_startup)
        probe = std::make_unique<tourvane::StartupProbe>(windows.view("Form1"));
    windows.refresh();
    return QApplication::exec();
}

// The game: the title screen, the office and the other screens in windows.

#include <QApplication>
#include <QIcon>
#include <QStyleFactory>
#include <future>
#include <memory>

#include "app/command_line.h"
#include "app/qt/game_windows.h"
#include "app/qt/pictures.h"
#include "app/qt/qt_port.h"
#include "app/startup_probe.h"
#include "core/game.h"
#include "flow/office.h"

int main(int argc, char** argv) {
    // --help, --version and every mistake are answered before a display is needed.
    QStringList raw;
    for (int i = 0; i < argc; ++i) raw << QString::fromLocal8Bit(argv[i]);
    const tourvane::CommandLine options = tourvane::parse_command_line(raw);
    if (options.stop) return tourvane::print_and_stop(options);
    QApplication app(argc, argv);
    QApplication::setApplicationName("Tourvane");
    QApplication::setApplicationDisplayName("Tourvane");
    QApplication::setDesktopFileName("io.github.tourvane.Tourvane");
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    // The windows come and go as the game says; only the game's own end quits.
    QApplication::setQuitOnLastWindowClosed(false);

    tourvane::QtPort port;
    tourvane::Game game(port);
    tourvane::load_main(game, options.seed);
    // The icon is drawn on a thread of its own while the title screen is built; the windows
    // take it from the program before the first of them is shown.
    auto icon = std::async(std::launch::async, tourvane::program_icon_images);
    tourvane::GameWindows windows(game, QIcon());
    QApplication::setWindowIcon(tourvane::program_icons(icon.get()));
    QObject::connect(&windows, &tourvane::GameWindows::ended, &app, &QApplication::quit,
                     Qt::QueuedConnection);
    std::unique_ptr<tourvane::StartupProbe> probe;
    if (options.measure_startup)
        probe = std::make_unique<tourvane::StartupProbe>(windows.view("Form1"));
    windows.refresh();
    return QApplication::exec();
}

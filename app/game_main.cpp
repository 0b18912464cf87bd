// The game: the title screen, the office and the other screens in windows.

#include <QApplication>
#include <QIcon>
#include <QSocketNotifier>
#include <QStyleFactory>
#include <csignal>
#include <future>
#include <memory>

#include <sys/socket.h>
#include <unistd.h>

#include "app/command_line.h"
#include "app/qt/game_windows.h"
#include "app/qt/pictures.h"
#include "app/qt/qt_port.h"
#include "app/startup_probe.h"
#include "core/game.h"
#include "flow/office.h"

namespace {

/// The two ends of the line by which a signal asks the event loop to stop.
int signal_line[2] = {-1, -1};

void on_signal(int) {
    const char stop = 1;
    [[maybe_unused]] const auto written = ::write(signal_line[0], &stop, 1);
}

/// A terminating signal (the session ending, kill, Ctrl+C in a terminal) ends the program as
/// its own quit does, so that the running career is kept on the way out.
void quit_on_signals(QApplication& app) {
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, signal_line) != 0) return;
    auto* notifier = new QSocketNotifier(signal_line[1], QSocketNotifier::Read, &app);
    QObject::connect(notifier, &QSocketNotifier::activated, &app, &QApplication::quit);
    for (int sig : {SIGTERM, SIGINT, SIGHUP}) std::signal(sig, on_signal);
}

}  // namespace

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
    quit_on_signals(app);
    const int status = QApplication::exec();
    windows.program_ending();
    return status;
}

// The game: the title screen, the office and the other screens in windows.

#include <QApplication>
#include <QIcon>
#include <QStyleFactory>

#include "screens/office.h"
#include "screens/qt/game_windows.h"
#include "screens/qt/pictures.h"
#include "screens/qt/qt_port.h"
#include "state/game.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setApplicationName("Tourvane");
    QApplication::setApplicationDisplayName("Tourvane");
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setWindowIcon(QIcon(tourvane::program_icon()));
    // The windows come and go as the game says; only the game's own end quits.
    QApplication::setQuitOnLastWindowClosed(false);

    tourvane::QtPort port;
    tourvane::Game game(port);
    tourvane::load_main(game);
    tourvane::GameWindows windows(game);
    QObject::connect(&windows, &tourvane::GameWindows::ended, &app, &QApplication::quit,
                     Qt::QueuedConnection);
    windows.refresh();
    return QApplication::exec();
}

// The least a Qt program does to put a window on screen: one plain QWidget, timed from the
// start of the process to its first paint exactly as `tourvane --measure-startup` times the
// title screen. bench/startup.py runs the two in turn and compares them.
//
//   tourvane-bare-window [--label]
//
// With --label the window shows one line of text, so that it reads the system's fonts as any
// window with text must: the part of the game's start-up that is not its own.

#include <QApplication>
#include <QLabel>
#include <QWidget>
#include <cstring>

#include "app/startup_probe.h"

int main(int argc, char** argv) {
    const bool label = argc > 1 && std::strcmp(argv[1], "--label") == 0;
    QApplication app(argc, argv);
    QWidget window;
    window.resize(636, 500);  // the size of the title screen
    window.setWindowTitle("Tourvane");
    if (label) (new QLabel("TOURVANE", &window))->move(20, 20);
    const tourvane::StartupProbe probe(&window,
                                       label ? "a bare window with a label" : "a bare window");
    window.show();
    return QApplication::exec();
}

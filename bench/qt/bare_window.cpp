// The least a Qt program does to put a window on screen: one plain QWidget, timed from the
// start of the process to its first paint exactly as `tourvane --measure-startup` times the
// title screen. bench/startup.py runs the two in turn and compares them.

#include <QApplication>
#include <QWidget>

#include "app/startup_probe.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QWidget window;
    window.resize(636, 500);  // the size of the title screen
    window.setWindowTitle("Tourvane");
    const tourvane::StartupProbe probe(&window, "a bare window");
    window.show();
    return QApplication::exec();
}

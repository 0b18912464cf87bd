#pragma once
// --measure-startup: how long the game takes from the start of its process until the title
// screen is first drawn. The figure is printed and the game quits.

#include <unistd.h>
#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <sstream>
#include <string>

namespace tourvane {

/// Milliseconds since the kernel started this process, or -1 where that can't be read.
inline double ms_since_process_start() {
    std::ifstream stat("/proc/self/stat");
    std::string text((std::istreambuf_iterator<char>(stat)), {});
    const std::size_t after_name = text.rfind(')');  // the name may hold blanks
    if (after_name == std::string::npos) return -1;
    std::istringstream fields(text.substr(after_name + 2));
    std::string field;
    // Field 22 of the line is the start time in clock ticks after boot; fields start at 3 here.
    for (int i = 3; i < 22 && fields >> field; ++i) {
    }
    unsigned long long start_ticks = 0;
    if (!(fields >> start_ticks)) return -1;
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    const double now_ms =
        static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
    return now_ms -
           static_cast<double>(start_ticks) * 1e3 / static_cast<double>(sysconf(_SC_CLK_TCK));
}

/// Watches a window (the title screen); at its first paint prints the time and quits the
/// program.
class StartupProbe : public QObject {
  public:
    explicit StartupProbe(QWidget* window, const char* what = "the title screen") : what_(what) {
        window->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !done_) {
            done_ = true;
            std::printf("startup: %s was drawn %.0f ms after the process started\n", what_,
                        ms_since_process_start());
            std::fflush(stdout);
            QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    const char* what_;
    bool done_ = false;
};

}  // namespace tourvane

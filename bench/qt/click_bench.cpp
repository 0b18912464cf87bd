// How quickly the game's windows answer a click: Next Week and opening the chart, each timed
// from the mouse click on the office to the moment every window the click changed has been
// painted. The game runs in its real windows, as the program `tourvane` shows them; the boxes
// a week raises are answered at once. Prints the median and the 95th percentile against one
// frame at 120 Hz.
//
//   QT_QPA_PLATFORM=offscreen tourvane-qt-bench [--clicks N]

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QMessageBox>
#include <QStyleFactory>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "app/qt/game_windows.h"
#include "app/qt/pictures.h"
#include "app/qt/qt_port.h"
#include "core/game.h"
#include "flow/office.h"
#include "rules/band/applicants.h"
#include "rules/band/roster.h"
#include "rules/music/songs.h"

namespace tourvane {
namespace {

/// About one frame at 120 Hz: the most a click may take to answer.
constexpr double kFrameMs = 8.0;

/// A click's time: on the wall clock, as the player waits, and the processor time the program
/// spent, which other work on the machine does not stretch.
struct Timing {
    double wall = 0, cpu = 0;
};

double cpu_ms() {
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

/// Counts the paints of every window's widgets, by window.
class PaintCounter : public QObject {
  public:
    std::map<const QWidget*, long> paints;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && watched->isWidgetType())
            ++paints[static_cast<QWidget*>(watched)->window()];
        return false;
    }
};

/// A band of four with three songs, in the game's windows: its weeks bring memos now and
/// then, but no box (a box is an answer of its own, to be clicked away).
class Session {
  public:
    Session() {
        port_.set_presenter([](QDialog& box) { answer(box); });
        load_main(g_, 7);
        windows_ = std::make_unique<GameWindows>(g_);
        windows_->refresh();
        qApp->installEventFilter(&counter_);
        settle();
        click("Form1", "New");
        for (int k = 0; k < 4; ++k) click("main", "hire");
        Module1& r = g_.rec;
        for (int k = 1; k <= 3; ++k) {
            r.songname[k] = "Song " + std::to_string(k);
            r.songquality[k] = 40;
        }
        r.songcount = r.nextsong = 3;
        r.promotion = 4;
        refill();
        updatesonglist(g_);
        listupdate(g_);
        windows_->refresh();
        settle();
    }

    /// Keeps the band in business between weeks, as a player's gigs would.
    void refill() {
        Module1& r = g_.rec;
        r.cash = 1'000'000;
        r.popularity = 2000;
        for (int s = 1; s <= 4; ++s) r.memberhappy[s] = 7;
    }

    /// Next Week, timed to the last paint it caused; then the week's memos are read.
    Timing next_week() {
        refill();
        const Timing ms = timed_click("main", "command6");
        for (int k = 0; k < 100 && view("messageForm")->isVisible(); ++k)
            click("messageForm", "command1");
        if (!g_.forms.main.usable()) fail("the office does not take clicks after a week");
        return ms;
    }

    /// The chart opened from the office, timed to its first paint; then closed again.
    Timing open_chart() {
        const Timing ms = timed_click("main", "secret");
        if (!view("Chart")->isVisible()) fail("the chart did not open");
        click("Chart", "command1");
        return ms;
    }

    bool ended() const { return g_.ended; }

  private:
    [[noreturn]] static void fail(const char* what) {
        std::fprintf(stderr, "tourvane-qt-bench: %s\n", what);
        std::exit(1);
    }

    /// Answers a box as soon as it is built: OK, No to a question, the band's and the
    /// player's names to the prompts.
    static void answer(QDialog& box) {
        if (auto* input = qobject_cast<QInputDialog*>(&box)) {
            input->setTextValue(input->labelText().contains("Band") ? "The Wasps" : "Sam");
            input->accept();
        } else if (auto* message = qobject_cast<QMessageBox*>(&box)) {
            QAbstractButton* b = message->button(QMessageBox::Ok);
            if (!b) b = message->button(QMessageBox::No);
            if (b) b->click();
        }
    }

    FormView* view(const char* form) const { return windows_->view(form); }

    void click(const char* form, const char* key) {
        QWidget* w = view(form)->widget(key);
        if (!w || !w->isVisible() || !w->isEnabled()) {
            std::fprintf(stderr, "tourvane-qt-bench: %s.%s can't be clicked\n", form, key);
            std::exit(1);
        }
        QTest::mouseClick(w, Qt::LeftButton, {}, w->rect().center());
        settle();
    }

    /// Delivers everything pending, paints included.
    static void settle() {
        for (int k = 0; k < 3; ++k) QCoreApplication::processEvents();
    }

    /// A click, timed until every window it opened has been painted and every paint it asked
    /// for has been done.
    Timing timed_click(const char* form, const char* key) {
        QWidget* w = view(form)->widget(key);
        if (!w || !w->isVisible() || !w->isEnabled()) fail("the timed control can't be clicked");
        std::vector<const QWidget*> hidden;
        for (const char* name : {"main", "messageForm", "Chart", "gig", "thenewspaper", "savefrm"})
            if (!view(name)->isVisible()) hidden.push_back(view(name));
        const std::map<const QWidget*, long> before = counter_.paints;
        const double cpu_start = cpu_ms();
        const auto start = std::chrono::steady_clock::now();
        QTest::mouseClick(w, Qt::LeftButton, {}, w->rect().center());
        // The paints the click asked for are posted: deliver them. A window it opened is
        // painted when the platform says the window is exposed, which may take a while more.
        QCoreApplication::processEvents();
        QElapsedTimer waited;
        waited.start();
        const auto opened_unpainted = [&] {
            for (const QWidget* v : hidden) {
                const auto was = before.find(v);
                if (v->isVisible() && counter_.paints[v] == (was == before.end() ? 0 : was->second))
                    return true;
            }
            return false;
        };
        while (opened_unpainted()) {
            if (waited.elapsed() > 2000) fail("a window opened by the click was never painted");
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1);
        }
        const auto end = std::chrono::steady_clock::now();
        const double cpu_end = cpu_ms();
        settle();
        return {std::chrono::duration<double, std::milli>(end - start).count(),
                cpu_end - cpu_start};
    }

    QtPort port_;
    Game g_{port_};
    std::unique_ptr<GameWindows> windows_;
    PaintCounter counter_;
};

struct Figures {
    double median = 0, p95 = 0;
};

Figures figures(std::vector<double> ms) {
    std::sort(ms.begin(), ms.end());
    const auto at = [&](double q) {
        const double pos = q * static_cast<double>(ms.size() - 1);
        const auto lo = static_cast<std::size_t>(pos);
        const std::size_t hi = std::min(lo + 1, ms.size() - 1);
        return ms[lo] + (ms[hi] - ms[lo]) * (pos - static_cast<double>(lo));
    };
    return {at(0.5), at(0.95)};
}

void report(const char* what, const std::vector<Timing>& times) {
    std::vector<double> wall, cpu;
    for (const Timing& t : times) wall.push_back(t.wall), cpu.push_back(t.cpu);
    const Figures w = figures(wall), c = figures(cpu);
    std::printf("%-10s wall: median %6.2f ms  p95 %6.2f ms  p95/%.0f ms = %.2f\n", what, w.median,
                w.p95, kFrameMs, w.p95 / kFrameMs);
    std::printf("%-10s  cpu: median %6.2f ms  p95 %6.2f ms  p95/%.0f ms = %.2f\n", "", c.median,
                c.p95, kFrameMs, c.p95 / kFrameMs);
}

}  // namespace
}  // namespace tourvane

int main(int argc, char** argv) {
    int clicks = 200;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--clicks") == 0 && i + 1 < argc) {
            clicks = std::max(1, std::atoi(argv[++i]));
        } else {
            std::fprintf(stderr, "usage: tourvane-qt-bench [--clicks N]\n");
            return 2;
        }
    }
    QApplication app(argc, argv);
    QApplication::setApplicationName("Tourvane");
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setWindowIcon(tourvane::program_icons());
    QApplication::setQuitOnLastWindowClosed(false);

    tourvane::Session session;
    std::vector<tourvane::Timing> weeks, charts;
    const int warm_up = 20;
    for (int i = 0; i < warm_up + clicks && !session.ended(); ++i) {
        const tourvane::Timing week = session.next_week();
        const tourvane::Timing chart = session.open_chart();
        if (i < warm_up) continue;
        weeks.push_back(week);
        charts.push_back(chart);
    }
    if (weeks.empty()) {
        std::fprintf(stderr, "tourvane-qt-bench: the game ended before the clicks were timed\n");
        return 1;
    }
    std::printf(
        "platform %s, %zu clicks each after %d to warm up; limit %.0f ms at the 95th "
        "percentile\n",
        qPrintable(QGuiApplication::platformName()), weeks.size(), warm_up, tourvane::kFrameMs);
    tourvane::report("Next Week", weeks);
    tourvane::report("open chart", charts);
    return 0;
}

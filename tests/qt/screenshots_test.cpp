// Pictures of the seven screens in a game under way, written to the build's screenshots
// folder so that a person can look at them; each must be a real picture, not a blank window.

#include <QDir>
#include <QSet>
#include <QtTest>

#include "qt_harness.h"
#include "screens/diary.h"
#include "screens/ui.h"

using tourvane::testing::Harness;

namespace {

/// Saves the screen's picture and checks that it holds more than a few flat colours.
void shoot(QWidget* view, const char* file) {
    QDir().mkpath(TOURVANE_SCREENSHOT_DIR);
    const QImage image = view->grab().toImage();
    QCOMPARE(image.size(), view->size());
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3) colours.insert(image.pixel(x, y));
    QVERIFY2(colours.size() > 40, file);
    QVERIFY(image.save(QString(TOURVANE_SCREENSHOT_DIR) + "/" + file));
}

}  // namespace

class ScreenshotsTest : public QObject {
    Q_OBJECT

  private slots:
    void title() {
        Harness h;
        shoot(h.view("Form1"), "Form1.png");
    }

    void office() {
        Harness h;
        h.game_under_way();
        tourvane::FormView* main = h.view("main");
        QVERIFY(main->isVisible());
        main->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(main));
        h.widget("main", "command6")->setFocus(Qt::TabFocusReason);
        shoot(main, "main.png");
    }

    void memo() {
        Harness h;
        h.game_under_way();
        tourvane::message(h.g, "The band are playing well together. Keep them rehearsing!", "Dave");
        h.windows->refresh();
        QVERIFY(h.view("messageForm")->isVisible());
        shoot(h.view("messageForm"), "messageForm.png");
    }

    void gig() {
        // The booking screen part-way through a set list, reached by the player's clicks.
        Harness h;
        h.game_under_way();
        h.open_gig();
        h.click("gig", "location(1)");
        h.click("gig", "command1");
        h.pick_track(1);  // the first two songs, as the arrow passes them
        QVERIFY(h.view("gig")->isVisible());
        shoot(h.view("gig"), "gig.png");
    }

    void newspaper() {
        Harness h;
        h.game_under_way();
        h.open_gig();
        h.click("gig", "location(1)");
        h.click("gig", "command1");
        h.pick_track(2);
        h.click("gig", "command4");
        QVERIFY(h.view("thenewspaper")->isVisible());
        shoot(h.view("thenewspaper"), "thenewspaper.png");
    }

    void files() {
        Harness h;
        h.game_under_way();
        h.click("main", "command5");
        QVERIFY(h.view("savefrm")->isVisible());
        shoot(h.view("savefrm"), "savefrm.png");
    }

    void chart() {
        Harness h;
        h.game_under_way();
        tourvane::Module1& r = h.g.rec;
        const char* bands[] = {"Hollow Crown", "The Lanterns", "Mirror Factory",
                               "Saint Jude",   "Copper Moth",  "The Fallow",
                               "Kite Lines",   "Brass Owls",   "Lowtide"};
        const char* titles[] = {"Glass Houses", "Ferris Wheel",  "Every Other Monday",
                                "Undertow",     "Radio Silence", "Small Hours",
                                "Paper Planes", "Cold Shoulder", "Driftwood"};
        for (int k = 0; k < 9; ++k) {
            const int row = tourvane::kFirstRivalRow + k;
            r.chartband[row] = bands[k];
            r.charttitle[row] = titles[k];
            r.chartsales[row] = 9000 - 700 * k;
        }
        r.chartband[1] = "The Wasps";
        r.charttitle[1] = "Paper Sting";
        r.chartsales[1] = 6000;
        h.g.forms.main.secret.enabled = true;
        h.windows->refresh();
        h.click("main", "secret");
        QVERIFY(h.view("Chart")->isVisible());
        shoot(h.view("Chart"), "Chart.png");
    }

    void sideWindows() {
        // The diary and the week graph after twenty weeks of play and a load, opened by key;
        // then the graph of a single week and of a thousand.
        Harness h(7);
        h.game_under_way();
        h.buttons = {QMessageBox::Ok};
        h.click("main", "command5");
        h.click("savefrm", "save");
        for (int week = 0; week < 20; ++week) {
            if (week == 12) {
                h.click("main", "command5");
                h.click("savefrm", "load");
            }
            h.click("main", "command6");
            while (h.view("messageForm")->isVisible()) h.click("messageForm", "command1");
        }
        tourvane::message(h.g,
                          "Kim Vale has decided to leave the band! The rest of the band is in a "
                          "state of shock.",
                          "Mona");
        h.windows->refresh();
        h.click("messageForm", "command1");
        tourvane::SideWindows& side = h.windows->side();
        auto office_key = [&](Qt::Key key, QWidget& opens) {
            h.view("main")->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(h.view("main")));
            QTest::keyClick(h.view("main"), key);
            QVERIFY(opens.isVisible());
        };
        office_key(Qt::Key_D, side.diary());
        side.diary().resize(560, 420);  // narrow enough for the long memo to take two lines
        shoot(&side.diary(), "diary.png");
        office_key(Qt::Key_G, side.graph());
        tourvane::WeekGraphView* graph = side.graph().view();
        const QPoint at = graph->cash_at(8).toPoint();
        QMouseEvent move(QEvent::MouseMove, at, graph->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(graph, &move);
        shoot(&side.graph(), "weekgraph.png");
        office_key(Qt::Key_F1, side.keys());
        shoot(&side.keys(), "keyhelp.png");

        tourvane::Game& g = h.g;
        g.history.assign(1, {tourvane::kStartDate + 7, 2990, 2, 0});
        g.segments.assign(1, {tourvane::kStartDate, 3000, 0, 0});
        side.graph().refresh();
        shoot(&side.graph(), "weekgraph_1.png");
        g.history.clear();
        for (int week = 1; week <= 1000; ++week)
            g.history.push_back({tourvane::kStartDate + 7 * week,
                                 static_cast<tourvane::Long>(3000 + 40 * week - (week % 9) * 300),
                                 static_cast<tourvane::Integer>(week / 2 + week % 13), 0});
        side.graph().refresh();
        shoot(&side.graph(), "weekgraph_1000.png");
    }
};

QTEST_MAIN(ScreenshotsTest)
#include "screenshots_test.moc"

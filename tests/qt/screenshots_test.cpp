// Pictures of the seven screens in a game under way, written to the build's screenshots
// folder so that a person can look at them; each must be a real picture, not a blank window.

#include <QDir>
#include <QSet>
#include <QtTest>

#include "core/diary.h"
#include "core/ui.h"
#include "qt_harness.h"

using tourvane::testing::Harness;

namespace {

/// Saves the screen's picture and checks that it holds more than a few flat colours.
void shoot(QWidget* view, const char* file) {
    QVERIFY2(view->isVisible(), file);
    QDir().mkpath(TOURVANE_SCREENSHOT_DIR);
    const QImage image = view->grab().toImage();
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3) colours.insert(image.pixel(x, y));
    QVERIFY2(colours.size() > 40, file);
    QVERIFY(image.save(QString(TOURVANE_SCREENSHOT_DIR) + "/" + file));
}

/// Books the second venue and picks songs up to `row` of the list, as a player would.
void book(Harness& h, int row) {
    h.open_gig();
    h.click("gig", "location(1)");
    h.click("gig", "command1");
    h.pick_track(row);
}

}  // namespace

class ScreenshotsTest : public QObject {
    Q_OBJECT

  private slots:
    void titleOfficeAndMemo() {
        Harness h;
        shoot(h.view("Form1"), "Form1.png");
        h.game_under_way();
        h.view("main")->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(h.view("main")));
        h.widget("main", "command6")->setFocus(Qt::TabFocusReason);
        shoot(h.view("main"), "main.png");
        tourvane::message(h.g, "The band are playing well together. Keep them rehearsing!", "Dave");
        h.windows->refresh();
        shoot(h.view("messageForm"), "messageForm.png");
    }

    void gigNewspaperAndFiles() {
        Harness h;
        h.game_under_way();
        book(h, 1);  // part-way through a set list
        shoot(h.view("gig"), "gig.png");
        QVERIFY(!h.view("main")->isVisible() && !h.widget("gig", "location(3)")->isEnabled());
        h.pick_track(2);
        QCOMPARE(h.text("gig", "tracks(2)"), QString("3. Velvet Static"));
        h.click("gig", "command4");
        shoot(h.view("thenewspaper"), "thenewspaper.png");
        h.click("thenewspaper", "Label2");
        QVERIFY(!h.widget("main", "command4")->isEnabled());  // one gig a week
        h.click("main", "command5");
        shoot(h.view("savefrm"), "savefrm.png");
    }

    void chart() {
        Harness h;
        h.game_under_way();
        const char* bands[] = {"Hollow Crown", "The Lanterns", "Mirror Factory",
                               "Saint Jude",   "Copper Moth",  "The Fallow",
                               "Kite Lines",   "Brass Owls",   "Lowtide"};
        const char* titles[] = {"Glass Houses", "Ferris Wheel",  "Every Other Monday",
                                "Undertow",     "Radio Silence", "Small Hours",
                                "Paper Planes", "Cold Shoulder", "Driftwood"};
        tourvane::Module1& r = h.g.rec;
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
        shoot(h.view("Chart"), "Chart.png");  // beside the office, which still takes clicks
        QVERIFY(!h.view("Chart")->frameGeometry().intersects(h.view("main")->frameGeometry()));
        QCOMPARE(h.widget("Chart", "track(6)")->palette().color(QPalette::WindowText),
                 QColor(255, 255, 0));
        h.click("main", "promote(3)");
        QCOMPARE(h.g.rec.promotion, 4);
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

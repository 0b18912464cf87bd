// The diary, the week graph and the key help: opened from the office by key, closed by
// Escape, named for a screen reader, following the game while open and changing nothing in
// it; and the game's command line.

#include <QComboBox>
#include <QLineEdit>
#include <QTreeWidget>
#include <QtTest>

#include "app/command_line.h"
#include "app/driver/values.h"
#include "core/ui.h"
#include "qt_harness.h"

using tourvane::testing::Harness;

namespace {

/// A key pressed in the office, as a player would, with the office in front.
void office_key(Harness& h, Qt::Key key) {
    h.view("main")->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(h.view("main")));
    QTest::keyClick(h.view("main"), key);
}

void next_week(Harness& h) {
    h.click("main", "command6");
    while (h.view("messageForm")->isVisible()) h.click("messageForm", "command1");
}

QString cell(QAbstractItemModel* m, int row, int column) {
    return m->index(row, column).data().toString();
}

}  // namespace

class SideWindowsTest : public QObject {
    Q_OBJECT

  private slots:
    void keysOpenEachWindowNamedAndEscapeClosesIt() {
        Harness h;
        h.new_game();
        tourvane::SideWindows& side = h.windows->side();
        for (auto [key, window] : {std::pair<Qt::Key, QWidget*>{Qt::Key_D, &side.diary()},
                                   {Qt::Key_G, &side.graph()},
                                   {Qt::Key_F1, &side.keys()}}) {
            office_key(h, key);
            QVERIFY(QTest::qWaitForWindowActive(window));
            for (QWidget* w : window->findChildren<QWidget*>())
                if (w->focusPolicy() != Qt::NoFocus && w->isVisibleTo(window))
                    QVERIFY2(!w->accessibleName().isEmpty(), w->metaObject()->className());
            QTest::keyClick(window, Qt::Key_Escape);
            QVERIFY(!window->isVisible());
        }
        QCOMPARE(side.keys().keys()->topLevelItem(0)->child(0)->text(1), QString("Next Week"));
        QVERIFY(side.keys().about()->text().contains("Licence: GPL-3.0-or-later"));
        office_key(h, Qt::Key_F1);  // Ctrl+Q there asks as the office's quit does
        QVERIFY(QTest::qWaitForWindowActive(&side.keys()));
        const std::size_t boxes = h.boxes.size();
        h.buttons = {QMessageBox::No};
        QTest::keyClick(&side.keys(), Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(h.buttons.empty() && h.boxes.size() == boxes + 1);
        side.keys().close();
        // While a memo holds the office up, its keys open nothing.
        tourvane::message(h.g, "Hold on.", "Dave");
        h.windows->refresh();
        QTest::keyClick(h.view("main"), Qt::Key_D);
        QVERIFY(!side.diary().isVisible());
    }

    void theDiaryFiltersSearchesAndFollowsTheGame() {
        Harness h;
        h.new_game();
        tourvane::message(h.g, "Rehearsal at nine.", "Dave");
        tourvane::message(h.g, "The van is fixed.", "Mona");
        h.windows->refresh();
        for (int k = 0; k < 2; ++k) h.click("messageForm", "command1");
        office_key(h, Qt::Key_D);
        tourvane::DiaryWindow& diary = h.windows->side().diary();
        QAbstractItemModel* rows = diary.entries()->model();
        QCOMPARE(rows->rowCount(), 2);
        QCOMPARE(cell(rows, 0, 0) + " " + cell(rows, 0, 2),
                 QString("01/09/2001 The van is fixed."));

        diary.sender_filter()->setCurrentIndex(diary.sender_filter()->findText("Dave"));
        QCOMPARE(rows->rowCount(), 1);
        QCOMPARE(cell(rows, 0, 2), QString("Rehearsal at nine."));
        QCOMPARE(diary.count()->accessibleDescription(), QString("1 of 2 messages"));
        diary.sender_filter()->setCurrentIndex(0);
        QTest::keyClicks(diary.search(), "VAN");
        QCOMPARE(rows->rowCount(), 1);
        QCOMPARE(cell(rows, 0, 1), QString("Mona"));
        diary.search()->clear();

        // Open while the week goes by, it takes the week's news in at the top.
        h.g.rec.promotion = 3;
        h.g.rec.cash = 10;
        next_week(h);
        QCOMPARE(rows->rowCount(), 3);
        QCOMPARE(cell(rows, 0, 2), QString("We can't afford any promotion this week."));
    }

    void theGraphReadsThePointUnderThePointerOrTheKeys() {
        Harness h;
        h.new_game();
        for (int k = 0; k < 3; ++k) next_week(h);
        office_key(h, Qt::Key_G);
        tourvane::WeekGraphView* graph = h.windows->side().graph().view();
        QCOMPARE(graph->points().size(), std::size_t(4));  // the start, then three weeks
        const tourvane::WeekSample& last = h.g.history.back();
        const QString latest = QString("Week 3 of 3, ending 22/09/2001: cash %1, popularity %2")
                                   .arg(QString::fromStdString(tourvane::format_cash(last.cash)))
                                   .arg(last.popularity);
        QCOMPARE(h.windows->side().graph().readout()->accessibleDescription(), latest);

        QTest::keyClick(graph, Qt::Key_Home);
        QVERIFY(graph->readout().startsWith("Start, 01/09/2001: cash £ 3000"));
        QTest::keyClick(graph, Qt::Key_Right);
        QVERIFY(graph->readout().startsWith("Week 1 of 3, ending 08/09/2001"));
        const QPoint at = graph->cash_at(2).toPoint();
        QMouseEvent move(QEvent::MouseMove, at, graph->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(graph, &move);
        QCOMPARE(graph->current(), 2);
        QCOMPARE(graph->accessibleDescription(), graph->readout());

        // On the latest week it follows the next one played.
        QTest::keyClick(graph, Qt::Key_End);
        next_week(h);
        QCOMPARE(graph->current(), 4);
    }

    void oneSeedOneGameWhetherOrNotThePlayerLooksBack() {
        auto play = [](bool look) {
            Harness h(42);
            h.new_game();
            for (int k = 0; k < 4; ++k) h.click("main", "hire");
            h.click("main", "promote(1)");
            for (int week = 0; week < 6; ++week) {
                h.buttons = {QMessageBox::Yes, QMessageBox::No};
                next_week(h);
                for (Qt::Key key : {Qt::Key_D, Qt::Key_G, Qt::Key_F1})
                    if (look) office_key(h, key);
                h.windows->side().close_all();
            }
            QStringList all;  // every field as the driver's dump has it, then the diary
            for (const tourvane::Field& f : tourvane::fields(h.g))
                for (int i = f.is_array() ? 0 : -1; i <= f.upper; ++i)
                    all << QString::fromStdString(tourvane::driver::format_field(f, i));
            for (const tourvane::DiaryEntry& e : h.g.diary)
                all << QString::fromStdString(tourvane::format_date(e.date) + e.from + e.text);
            return all;
        };
        const QStringList once = play(false);
        QCOMPARE(play(false), once);
        QCOMPARE(play(true), once);
    }

    void theCommandLine() {
        using tourvane::parse_command_line;
        QCOMPARE(parse_command_line({"tourvane", "--seed", "42"}).seed.value_or(0), 42u);
        QVERIFY(!parse_command_line({"tourvane"}).seed && !parse_command_line({"tourvane"}).stop);
        QVERIFY(parse_command_line({"tourvane", "--measure-startup"}).measure_startup);
        QVERIFY(!parse_command_line({"tourvane", "--seed", "1"}).measure_startup);
        QVERIFY(
            parse_command_line({"tourvane", "--version"}).output.startsWith("tourvane 1.0.0\n"));
        QVERIFY(!parse_command_line({"tourvane", "-platform", "offscreen", "-reverse"}).stop);
        QVERIFY(parse_command_line({"tourvane", "--help"}).output.contains("--seed <N>"));
        for (const char* bad : {"-1", "1x", "18446744073709551616", ""}) {
            const auto line = parse_command_line({"tourvane", "--seed", bad});
            QVERIFY2(line.stop && line.status == 2 && !line.output.isEmpty(), bad);
        }
    }
};

QTEST_MAIN(SideWindowsTest)
#include "side_windows_test.moc"

// Pictures of the seven screens in a game under way, with names as long as the game takes,
// written to the build's screenshots folder (name@SCALEx.png) so that a person can look at
// them; each must be a real picture, not a blank window, and show every text whole or cut
// with "…" and whole in its tool tip.

#include <QDir>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QSet>
#include <QStyleOptionButton>
#include <QtTest>

#include "core/diary.h"
#include "core/ui.h"
#include "qt_harness.h"
#include "rules/band/roster.h"

using tourvane::testing::Harness;

namespace {

/// A name of the longest length the game takes, 126 characters, starting with `start`.
std::string long_name(const std::string& start) {
    std::string name = start;
    while (name.size() < 126) name += " and the Extraordinarily Long Tail";
    return name.substr(0, 126);
}

QString qlong(const std::string& start) {
    return QString::fromStdString(long_name(start));
}

/// A text shown in `room` pixels fits it, and one cut short ends with "…" and is whole in
/// the tool tip (a cut save slot keeps its number in front).
void whole_or_cut(const QString& shown, const QString& tip, bool fits, const QString& where) {
    QVERIFY2(fits, qPrintable(where + ": " + shown));
    if (!shown.endsWith(QChar(0x2026))) return;
    const QString kept = shown.chopped(1).trimmed();
    const QString unnumbered = QString(kept).remove(QRegularExpression("^[1-4]\\. "));
    QVERIFY2(tip.size() > kept.size() && (tip.startsWith(kept) || tip.startsWith(unnumbered)),
             qPrintable(where + ": " + shown));
}

void no_text_cut(QWidget* view, const QString& file) {
    for (QWidget* w : view->findChildren<QWidget*>()) {
        if (!w->isVisible()) continue;
        const QFontMetrics font = w->fontMetrics();
        if (auto* label = qobject_cast<QLabel*>(w)) {
            const QRect room = label->contentsRect();
            const QString text = label->buddy() ? label->text().remove('&') : label->text();
            const bool fits =
                label->wordWrap()
                    ? font.boundingRect(room, Qt::TextWordWrap, text).height() <= room.height()
                    : font.horizontalAdvance(text) <= room.width();
            whole_or_cut(text, label->toolTip(), fits, file);
        } else if (auto* button = qobject_cast<QAbstractButton*>(w)) {
            QStyleOptionButton opt;
            opt.initFrom(button);
            const auto element = qobject_cast<QRadioButton*>(button)
                                     ? QStyle::SE_RadioButtonContents
                                     : QStyle::SE_PushButtonContents;
            const QString text = button->text().replace("&&", "&");
            const int room = button->style()->subElementRect(element, &opt, button).width();
            whole_or_cut(text, button->toolTip(), font.horizontalAdvance(text) <= room, file);
        } else if (auto* list = qobject_cast<QListWidget*>(w); list && list->count() > 0) {
            // Whole rows only, and every row whole or cut.
            const int row = list->visualItemRect(list->item(0)).height();
            QCOMPARE(list->viewport()->height() % row, 0);
            for (int i = 0; i < list->count(); ++i) {
                const QString text = list->item(i)->text();
                const bool fits = font.horizontalAdvance(text) <= list->viewport()->width();
                whole_or_cut(text, list->item(i)->toolTip(), fits, file);
            }
        }
    }
}

/// Saves the screen's picture and checks that it holds more than a few flat colours and
/// that no text on it is cut off.
void shoot(QWidget* view, const char* name) {
    QVERIFY2(view->isVisible(), name);
    QVERIFY2(view->screen()->availableGeometry().contains(view->frameGeometry()), name);
    QDir().mkpath(TOURVANE_SCREENSHOT_DIR);
    const QImage image = view->grab().toImage();
    QCOMPARE(image.size(), view->size() * view->devicePixelRatio());
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3) colours.insert(image.pixel(x, y));
    QVERIFY2(colours.size() > 40, name);
    const QString file = QString("%1@%2x.png").arg(name).arg(view->devicePixelRatio());
    QVERIFY(image.save(QString(TOURVANE_SCREENSHOT_DIR) + "/" + file));
    no_text_cut(view, file);
}

/// A game under way with every name at its longest: band, player, songs, members and the
/// applicant on show.
void long_game(Harness& h) {
    h.game_under_way(
        qlong("The Wasps"), qlong("Sam"),
        {long_name("Paper Sting"), long_name("Neon Rain"), long_name("Velvet Static")});
    for (int slot = 1; slot <= tourvane::kMemberSlots; ++slot)
        h.g.rec.membername[slot] = long_name("Member " + std::to_string(slot));
    tourvane::listupdate(h.g);
    h.g.forms.main.txtapplicant.caption =
        long_name("Kim") + " wants to join the band, she is a good singer and looks great.";
    h.windows->refresh();
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
        shoot(h.view("Form1"), "Form1");
        long_game(h);
        h.view("main")->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(h.view("main")));
        h.widget("main", "command6")->setFocus(Qt::TabFocusReason);
        shoot(h.view("main"), "main");
        tourvane::message(h.g, "The band are playing well together. Keep them rehearsing!",
                          long_name("Dave"));
        h.windows->refresh();
        shoot(h.view("messageForm"), "messageForm");
    }

    void gigNewspaperAndFiles() {
        Harness h;
        long_game(h);
        book(h, 1);  // part-way through a set list
        shoot(h.view("gig"), "gig");
        QVERIFY(!h.view("main")->isVisible() && !h.widget("gig", "location(3)")->isEnabled());
        h.pick_track(2);
        QCOMPARE(h.widget("gig", "tracks(2)")->toolTip(),
                 QString::fromStdString("3. " + long_name("Velvet Static")));
        // APPLY stands inside the drawn venue panel: its frame has the panel's ground around it.
        const QRect apply = h.widget("gig", "command1")->geometry();
        const QImage gig = h.view("gig")->grab().toImage();
        const qreal scale = h.view("gig")->devicePixelRatio();
        const QColor below = gig.pixelColor((apply.bottomLeft() + QPoint(0, 2)) * scale);
        const QColor above = gig.pixelColor((apply.topLeft() - QPoint(0, 3)) * scale);
        QVERIFY(std::abs(below.red() - above.red()) + std::abs(below.green() - above.green()) < 12);
        h.click("gig", "command4");
        shoot(h.view("thenewspaper"), "thenewspaper");
        h.click("thenewspaper", "Label2");
        QVERIFY(!h.widget("main", "command4")->isEnabled());  // one gig a week
        // Three saves of one band: the slots still differ where their names are cut.
        h.buttons = {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
        for (const char* slot : {"saveslot(0)", "saveslot(1)", "saveslot(2)"}) {
            h.click("main", "command5");
            h.click("savefrm", slot);
            h.click("savefrm", "save");
        }
        Harness later;  // reads the slots' names as the game starts
        later.game_under_way();
        later.click("main", "command5");
        shoot(later.view("savefrm"), "savefrm");
        QSet<QString> captions;
        for (const char* slot : {"saveslot(0)", "saveslot(1)", "saveslot(2)"})
            captions.insert(later.text("savefrm", slot));
        QCOMPARE(captions.size(), 3);
    }

    void chart() {
        Harness h;
        long_game(h);
        const char* bands[] = {"Hollow Crown", "The Lanterns", "Mirror Factory",
                               "Saint Jude",   "Copper Moth",  "The Fallow",
                               "Kite Lines",   "Brass Owls",   "Lowtide"};
        tourvane::Module1& r = h.g.rec;
        for (int k = 0; k < 9; ++k) {
            const int row = tourvane::kFirstRivalRow + k;
            r.chartband[row] = long_name(bands[k]);
            r.charttitle[row] = long_name("Glass Houses");
            r.chartsales[row] = 9000 - 700 * k;
        }
        r.chartband[1] = r.bandname;
        r.charttitle[1] = r.songname[1];
        r.chartsales[1] = 6000;
        h.g.forms.main.secret.enabled = true;
        h.windows->refresh();
        h.click("main", "secret");
        shoot(h.view("Chart"), "Chart");  // beside the office, which still takes clicks
        const QRect chart = h.view("Chart")->frameGeometry(),
                    office = h.view("main")->frameGeometry();
        const bool room = chart.width() + office.width() < h.view("main")->screen()->size().width();
        QVERIFY(!room || !chart.intersects(office));
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
        shoot(&side.diary(), "diary");
        office_key(Qt::Key_G, side.graph());
        tourvane::WeekGraphView* graph = side.graph().view();
        const QPoint at = graph->cash_at(8).toPoint();
        QMouseEvent move(QEvent::MouseMove, at, graph->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                         Qt::NoModifier);
        QApplication::sendEvent(graph, &move);
        shoot(&side.graph(), "weekgraph");
        office_key(Qt::Key_F1, side.keys());
        shoot(&side.keys(), "keyhelp");

        tourvane::Game& g = h.g;
        g.history.assign(1, {tourvane::kStartDate + 7, 2990, 2, 0});
        g.segments.assign(1, {tourvane::kStartDate, 3000, 0, 0});
        side.graph().refresh();
        shoot(&side.graph(), "weekgraph_1");
        g.history.clear();
        for (int week = 1; week <= 1000; ++week)
            g.history.push_back({tourvane::kStartDate + 7 * week,
                                 static_cast<tourvane::Long>(3000 + 40 * week - (week % 9) * 300),
                                 static_cast<tourvane::Integer>(week / 2 + week % 13), 0});
        side.graph().refresh();
        shoot(&side.graph(), "weekgraph_1000");
    }
};

QTEST_MAIN(ScreenshotsTest)
#include "screenshots_test.moc"

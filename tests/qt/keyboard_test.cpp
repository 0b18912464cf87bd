// The game by keys alone, as a screen reader hears it: NEW GAME, a hire, a song, a week and a
// save with key presses only; every box and memo announced as it comes; grey controls and
// save slots telling what they hold.

#include <QAccessible>
#include <QApplication>
#include <QtTest>
#include <filesystem>

#include "../rules/temp_dir.h"
#include "flow/reasons.h"
#include "qt_harness.h"

using tourvane::testing::Harness;

namespace {

std::vector<std::pair<QObject*, QAccessible::Event>> heard;

void hear(QAccessibleEvent* event) {
    heard.emplace_back(event->object(), event->type());
}

bool was_heard(QObject* object, QAccessible::Event kind) {
    return std::find(heard.begin(), heard.end(), std::make_pair(object, kind)) != heard.end();
}

/// A key pressed where the keyboard focus is.
void press(Qt::Key key) {
    QWidget* at = QApplication::focusWidget();
    QTest::keyClick(at ? at : QApplication::activeWindow(), key);
}

}  // namespace

class KeyboardTest : public QObject {
    Q_OBJECT

  private slots:
    void aGameByKeysAloneWithEveryBoxAndMemoAnnounced() {
        tourvane::testing::TempDir dir;
        QAccessible::installUpdateHandler(hear);
        QAccessible::setActive(true);
        Harness h;
        QStringList names{"The Wasps", "Sam"}, described;
        h.port.set_presenter([&](QDialog& box) {
            box.show();
            QVERIFY(QTest::qWaitForWindowActive(&box));
            if (qobject_cast<QInputDialog*>(&box))
                QTest::keyClicks(QApplication::focusWidget(), names.takeFirst());
            press(Qt::Key_Return);
            QVERIFY(!box.isVisible());
            QVERIFY(was_heard(&box, qobject_cast<QInputDialog*>(&box) ? QAccessible::DialogStart
                                                                      : QAccessible::Alert));
            described << box.accessibleName() + ": " + box.accessibleDescription();
        });
        tourvane::FormView* memo = h.view("messageForm");
        auto memos_ok = [&] {
            for (int i = 0; i < 20 && memo->isVisible(); ++i) {
                QVERIFY(was_heard(memo, QAccessible::Alert));
                QCOMPARE(memo->accessibleDescription(), h.text("messageForm", "thetxt"));
                press(Qt::Key_Return);
            }
            QVERIFY(!memo->isVisible());
        };
        auto tab_to = [&](const char* form, const char* key) {
            QWidget* w = h.widget(form, key);
            QVERIFY(QTest::qWaitForWindowActive(h.view(form)));
            for (int i = 0; i < 40 && QApplication::focusWidget() != w; ++i) press(Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), w);
        };

        QVERIFY(QTest::qWaitForWindowActive(h.view("Form1")));
        press(Qt::Key_N);
        QCOMPARE(described, QStringList({"NEW BAND: Please enter the name of the Band:",
                                         "PLAYER NAME: Please enter your name:"}));
        QVERIFY(h.view("main")->isVisible());
        QWidget* chart = h.widget("main", "secret");
        const auto& office = h.g.forms.main;
        const QString why = QString::fromStdString(disabled_reason(h.g, office, office.secret));
        QVERIFY(!why.isEmpty());
        QCOMPARE(chart->toolTip() + chart->accessibleDescription(), why + why);

        tab_to("main", "hire");
        for (int k = 0; k < 4; ++k) press(Qt::Key_Space), memos_ok();
        QCOMPARE(h.g.forms.main.members.rows.size(), std::size_t(4));
        const auto idle = h.g.rec.songweeks;
        press(Qt::Key_R);
        memos_ok();
        QVERIFY(h.g.rec.songweeks != idle);  // a song is under way
        press(Qt::Key_N);
        memos_ok();
        QCOMPARE(h.g.history.size(), std::size_t(1));
        QCOMPARE(chart->toolTip() + "|" + chart->accessibleDescription(), QString("Music Chart|"));

        press(Qt::Key_V);
        QVERIFY(h.view("savefrm")->isVisible());
        QCOMPARE(h.widget("savefrm", "saveslot(0)")->toolTip(),
                 QString("Empty slot: no game saved here yet."));
        tab_to("savefrm", "save");
        press(Qt::Key_Space);
        QCOMPARE(described.last(), QString("Tourvane: Game Saved"));
        QVERIFY(std::filesystem::exists("tvsave0.tvs") && std::filesystem::exists("tvsave0.tvh"));
        QCOMPARE(h.unanswered, 0);
        QAccessible::installUpdateHandler(nullptr);
    }
};

QTEST_MAIN(KeyboardTest)
#include "keyboard_test.moc"

// The game by keys alone, as a screen reader hears it: NEW GAME, a hire, a song, a week and a
// save with key presses only; every box and memo announced as it comes; grey controls and
// save slots telling what they hold.

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
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

/// True when `w` has been announced as `kind`, named and described so: through the update
/// handler where the platform carries accessibility (headless platforms have none, and then
/// only what a screen reader would read is checked).
bool announced(QWidget* w, QAccessible::Event kind, const QString& name, const QString& text) {
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w);
    const bool heard_it =
        !QAccessible::isActive() ||
        std::find(heard.begin(), heard.end(), std::make_pair<QObject*>(w, kind)) != heard.end();
    return heard_it && face && face->text(QAccessible::Name) == name &&
           face->text(QAccessible::Description) == text;
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
            const bool prompt = qobject_cast<QInputDialog*>(&box);
            QWidget* keys = prompt ? static_cast<QWidget*>(box.findChild<QLineEdit*>()) : &box;
            if (prompt) QTest::keyClicks(keys, names.takeFirst());
            QTest::keyClick(keys, Qt::Key_Return);
            QVERIFY(!box.isVisible());
            const QString text = prompt ? qobject_cast<QInputDialog*>(&box)->labelText()
                                        : qobject_cast<QMessageBox*>(&box)->text();
            QVERIFY(announced(&box, prompt ? QAccessible::DialogStart : QAccessible::Alert,
                              box.windowTitle(), text));
            described << box.windowTitle() + ": " + text;
        });
        tourvane::FormView* memo = h.view("messageForm");
        auto memos_ok = [&] {
            for (int i = 0; i < 20 && memo->isVisible(); ++i) {
                QVERIFY(announced(memo, QAccessible::Alert,
                                  "Message from " + h.text("messageForm", "txtFrom"),
                                  h.text("messageForm", "thetxt")));
                QVERIFY(QTest::qWaitForWindowActive(memo));
                press(Qt::Key_Return);
            }
            QVERIFY(!memo->isVisible());
        };
        auto key_in = [&](const char* form, Qt::Key key) {
            QVERIFY(QTest::qWaitForWindowActive(h.view(form)));
            press(key);
        };
        auto tab_to = [&](const char* form, const char* key) {
            QWidget* w = h.widget(form, key);
            QVERIFY(QTest::qWaitForWindowActive(h.view(form)));
            for (int i = 0; i < 40 && QApplication::focusWidget() != w; ++i) press(Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), w);
        };

        key_in("Form1", Qt::Key_N);
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
        key_in("main", Qt::Key_R);
        memos_ok();
        QVERIFY(h.g.rec.songweeks != idle);  // a song is under way
        key_in("main", Qt::Key_N);
        memos_ok();
        QCOMPARE(h.g.history.size(), std::size_t(1));
        QCOMPARE(chart->toolTip() + "|" + chart->accessibleDescription(), QString("Music Chart|"));

        key_in("main", Qt::Key_V);
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

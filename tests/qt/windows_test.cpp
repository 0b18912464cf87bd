// The game played through its real windows: start-up, NEW GAME and its refusals, the memo
// queue over a disabled office, the drawn buttons, the keyboard and quitting.

#include <QRadioButton>
#include <QSignalSpy>
#include <QtTest>

#include "qt_harness.h"
#include "screens/qt/form_skins.h"
#include "screens/ui.h"

using tourvane::testing::Harness;

namespace {

/// True when a pixel is lit green, as the lamp of a button that can be pressed.
bool lamp_lit(const QColor& c) {
    return c.green() > 150 && c.green() > c.red() + 40;
}

/// The pixel at the lamp of a drawn office button.
QColor lamp_of(const QImage& office, const tourvane::Control& spot) {
    return office.pixelColor(spot.pos.left + 9, spot.pos.top + spot.pos.height / 2);
}

}  // namespace

class WindowsTest : public QObject {
    Q_OBJECT

  private slots:
    void startUpShowsTheTitleAlone() {
        Harness h;
        QVERIFY(h.view("Form1")->isVisible());
        for (const char* form : {"main", "messageForm", "gig", "thenewspaper", "savefrm", "Chart"})
            QVERIFY2(!h.view(form)->isVisible(), form);
        QCOMPARE(h.view("Form1")->windowTitle(), QString("Tourvane"));
        QCOMPARE(h.view("main")->windowTitle(), QString("Tourvane"));
        QCOMPARE(h.view("main")->windowIcon().availableSizes().value(0), QSize(42, 42));
    }

    void everyScreenKeepsTheModelsSizesAndPlaces() {
        Harness h;
        int checked = 0;
        h.g.forms.each_form([&](tourvane::FormState& form) {
            tourvane::FormView* v = h.view(form.name);
            QVERIFY(v);
            QCOMPARE(v->size(), QSize(form.width, form.height));
            QCOMPARE(v->minimumSize(), v->maximumSize());
        });
        auto check = [&](auto& form) {
            form.each([&](tourvane::Control& c) {
                QWidget* w = h.view(form.name)->widget(tourvane::control_key(c));
                QVERIFY(w);
                QCOMPARE(w->geometry(), QRect(c.pos.left, c.pos.top, c.pos.width, c.pos.height));
                QVERIFY2(!w->accessibleName().isEmpty() || c.caption.empty(),
                         tourvane::control_key(c).c_str());
                ++checked;
            });
        };
        tourvane::Forms& f = h.g.forms;
        check(f.Form1), check(f.main), check(f.messageForm), check(f.gig);
        check(f.thenewspaper), check(f.savefrm), check(f.Chart);
        QVERIFY(checked > 100);
    }

    void newGameThroughTheTitleScreen() {
        Harness h;
        h.texts = {QString("The Wasps"), QString("Sam")};
        h.click("Form1", "New");
        QCOMPARE(h.boxes.size(), std::size_t(2));
        QVERIFY(h.boxes[0].input && h.boxes[1].input);
        QCOMPARE(h.boxes[0].title, QString("NEW BAND"));
        QCOMPARE(h.boxes[0].text, QString("Please enter the name of the Band:"));
        QCOMPARE(h.boxes[1].title, QString("PLAYER NAME"));
        QCOMPARE(h.boxes[1].text, QString("Please enter your name:"));

        QVERIFY(h.view("main")->isVisible());
        QVERIFY(!h.view("Form1")->isVisible());
        QCOMPARE(h.text("main", "txtname"), QString("Sam's Office"));
        QCOMPARE(h.text("main", "txtcash"), QString("£ 3000"));
        // The value stays audible behind a readable name.
        QCOMPARE(h.widget("main", "txtcash")->accessibleName(), QString("Cash"));
        QCOMPARE(h.widget("main", "txtcash")->accessibleDescription(), QString("£ 3000"));
        QCOMPARE(h.text("main", "txtapplicant"),
                 QString::fromStdString(h.g.forms.main.txtapplicant.caption));
        QVERIFY(h.widget("main", "hire")->isEnabled());
        QCOMPARE(h.unanswered, 0);
    }

    void refusedNamesKeepTheTitleScreen() {
        Harness h;
        h.texts = {QString()};
        h.click("Form1", "New");
        QCOMPARE(h.boxes.size(), std::size_t(2));
        QCOMPARE(h.boxes[1].title, QString("Tourvane"));
        QCOMPARE(h.boxes[1].text, QString("Invalid Band Name."));
        QCOMPARE(h.boxes[1].icon, QMessageBox::Critical);
        QCOMPARE(h.boxes[1].buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        QVERIFY(h.view("Form1")->isVisible());
        QVERIFY(!h.view("main")->isVisible());

        // A band name of one blank passes; Cancel on the player's name counts as empty.
        h.boxes.clear();
        h.texts = {QString(" "), std::nullopt};
        h.click("Form1", "New");
        QCOMPARE(h.boxes.size(), std::size_t(3));
        QCOMPARE(h.boxes[2].text, QString("Invalid Player Name."));
        QCOMPARE(h.boxes[2].icon, QMessageBox::Critical);
        QCOMPARE(h.g.rec.bandname, std::string(" "));
        QVERIFY(h.view("Form1")->isVisible());
        QVERIFY(!h.view("main")->isVisible());

        // The next NEW GAME asks for both names again.
        h.new_game("Second Try", "Jo");
        QCOMPARE(h.g.rec.bandname, std::string("Second Try"));
        QVERIFY(h.view("main")->isVisible());
    }

    void memosQueueAndHoldTheOffice() {
        Harness h;
        h.new_game();
        h.click("main", "hire");
        auto* members = h.as<QListWidget>("main", "members");
        QCOMPARE(members->count(), 1);
        const QString hired = members->item(0)->text();
        h.click_row("main", "members", 0);
        QCOMPARE(members->currentRow(), 0);
        QVERIFY(h.widget("main", "Command2")->isEnabled());
        QCOMPARE(h.text("main", "txtage"), QString::number(h.g.rec.memberage[1]));

        // A double click on the member brings Dave's memo; a second memo queues behind it.
        h.dblclick_row("main", "members", 0);
        tourvane::message(h.g, "Second memo", "Mona");
        h.windows->refresh();
        tourvane::FormView* memo = h.view("messageForm");
        QVERIFY(memo->isVisible());
        QVERIFY(h.view("main")->isVisible());
        QVERIFY(h.text("messageForm", "thetxt").startsWith(hired));
        QCOMPARE(h.text("messageForm", "txtFrom"), QString("Dave"));
        QCOMPARE(h.text("messageForm", "txtTo"), QString("Sam"));

        // The office takes no clicks, by mouse or by key, while the memos stand.
        const QString date = h.text("main", "txtdate");
        h.click("main", "command6");
        QTest::keyClick(h.view("main"), Qt::Key_N);
        h.click("main", "promote(1)");
        QCOMPARE(h.text("main", "txtdate"), date);
        QVERIFY(!h.as<QRadioButton>("main", "promote(1)")->isChecked());
        QCOMPARE(h.g.rec.promotion, 0);
        QVERIFY(memo->isVisible());

        h.click("messageForm", "command1");
        QVERIFY(memo->isVisible());
        QCOMPARE(h.text("messageForm", "thetxt"), QString("Second memo"));
        QCOMPARE(h.text("messageForm", "txtFrom"), QString("Mona"));
        h.click("messageForm", "command1");
        QVERIFY(!memo->isVisible());

        // Free again: the option marks itself and the week moves.
        h.click("main", "promote(1)");
        QVERIFY(h.as<QRadioButton>("main", "promote(1)")->isChecked());
        QCOMPARE(h.g.rec.promotion, 2);
        h.click("main", "command6");
        QVERIFY(h.text("main", "txtdate") != date);
        QCOMPARE(h.text("main", "txtdate"),
                 QString::fromStdString(tourvane::format_date(tourvane::kStartDate + 7)));
    }

    void listRowsAndTheEmptyPart() {
        Harness h;
        h.new_game();
        h.click("main", "hire");
        h.click("main", "hire");
        auto* members = h.as<QListWidget>("main", "members");
        QCOMPARE(members->count(), 2);
        h.click_row("main", "members", 1);
        QCOMPARE(h.g.forms.main.members.selected, 1);
        QCOMPARE(members->selectedItems().value(0), members->item(1));
        // The arrow keys move the pick through the game as a click would.
        members->setFocus();
        QTest::keyClick(members, Qt::Key_Up);
        QCOMPARE(h.g.forms.main.members.selected, 0);
        QCOMPARE(members->currentRow(), 0);
        // A double click below the rows picks nobody.
        h.dblclick_row("main", "members", -1);
        QCOMPARE(h.g.forms.main.members.selected, -1);
        QVERIFY(members->selectedItems().isEmpty());
    }

    void closingOrEscapeAcknowledgesTheMemo() {
        Harness h;
        h.new_game();
        tourvane::message(h.g, "One", "Dave");
        tourvane::message(h.g, "Two", "Mona");
        h.windows->refresh();
        tourvane::FormView* memo = h.view("messageForm");
        memo->close();
        QVERIFY(memo->isVisible());
        QCOMPARE(h.text("messageForm", "thetxt"), QString("Two"));
        memo->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(memo));
        QTest::keyClick(memo, Qt::Key_Escape);
        QVERIFY(!memo->isVisible());
        QVERIFY(h.g.forms.main.usable());
    }

    void aDisabledHotSpotGreysItsButton() {
        Harness h;
        h.new_game();
        const tourvane::OfficeForm& office = h.g.forms.main;
        QVERIFY(h.widget("main", "command6")->isEnabled());
        QVERIFY(!h.widget("main", "secret")->isEnabled());
        QImage shot = h.view("main")->grab().toImage();
        QVERIFY(lamp_lit(lamp_of(shot, office.command6)));
        QVERIFY(!lamp_lit(lamp_of(shot, office.secret)));
        QVERIFY(!lamp_lit(lamp_of(shot, office.interview)));

        h.g.forms.main.secret.enabled = true;
        h.windows->refresh();
        shot = h.view("main")->grab().toImage();
        QVERIFY(lamp_lit(lamp_of(shot, office.secret)));
        QVERIFY(h.widget("main", "secret")->isEnabled());
    }

    void theKeyboardReachesEveryHotSpot() {
        Harness h;
        h.new_game();
        tourvane::FormView* main = h.view("main");
        main->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(main));

        // The hot-spots come first in the tab order, top to bottom, named by their tool tips.
        QWidget* w = h.widget("main", "command6");
        for (const auto& [key, sequence] : tourvane::office_keys()) {
            QWidget* spot = h.widget("main", key.c_str());
            QCOMPARE(spot->accessibleName(), spot->toolTip());
            QVERIFY(spot->focusPolicy() & Qt::TabFocus);
            QCOMPARE(w, spot);
            w = w->nextInFocusChain();
        }
        // D, G and F1 open the side windows: no hot-spot takes them.
        for (const auto& [key, sequence] : tourvane::office_keys())
            for (QKeySequence taken :
                 {QKeySequence(Qt::Key_D), QKeySequence(Qt::Key_G), QKeySequence(Qt::Key_F1)})
                QVERIFY(sequence != taken);

        const QString date = h.text("main", "txtdate");
        QTest::keyClick(main, Qt::Key_N);
        QCOMPARE(h.text("main", "txtdate"),
                 QString::fromStdString(tourvane::format_date(tourvane::kStartDate + 7)));
        QVERIFY(h.text("main", "txtdate") != date);

        // A key on a disabled hot-spot does nothing.
        h.g.forms.main.command6.enabled = false;
        h.windows->refresh();
        QTest::keyClick(main, Qt::Key_N);
        QCOMPARE(h.text("main", "txtdate"),
                 QString::fromStdString(tourvane::format_date(tourvane::kStartDate + 7)));
    }

    void aGigFromBookingToReport() {
        Harness h;
        h.game_under_way();
        h.open_gig();
        QVERIFY(h.view("gig")->isVisible());
        QVERIFY(!h.view("main")->isVisible());
        QVERIFY(!h.widget("gig", "location(3)")->isEnabled());  // the nightclub is shut
        QVERIFY(QTest::qWaitForWindowActive(h.view("gig")));    // it took the keys on opening
        QTest::keyClick(h.view("gig"), Qt::Key_Escape);         // BACK
        QVERIFY(!h.view("gig")->isVisible());
        QVERIFY(h.view("main")->isVisible());

        h.open_gig();
        h.click("gig", "location(1)");
        QVERIFY(h.as<QRadioButton>("gig", "location(1)")->isChecked());
        QCOMPARE(h.text("gig", "txtcapacity"), QString("240"));
        h.buttons = {QMessageBox::Ok};
        h.click("gig", "command1");
        QCOMPARE(h.boxes.back().text, QString("We would be delighted for you to come and play!"));
        h.pick_track(2);
        QCOMPARE(h.text("gig", "tracks(2)"), QString("3. Velvet Static"));
        h.click("gig", "command4");
        QVERIFY(!h.view("gig")->isVisible());
        QVERIFY(!h.view("main")->isVisible());
        QVERIFY(h.view("thenewspaper")->isVisible());
        QVERIFY(h.text("thenewspaper", "txtnews").contains("The Wasps"));

        h.click("thenewspaper", "Label2");
        QVERIFY(!h.view("thenewspaper")->isVisible());
        QVERIFY(h.view("main")->isVisible());
        // One gig a week: the button is greyed until the next week.
        QVERIFY(!h.widget("main", "command4")->isEnabled());
        QVERIFY(!lamp_lit(lamp_of(h.view("main")->grab().toImage(), h.g.forms.main.command4)));
    }

    void quitAsksAndYesEnds() {
        Harness h;
        h.new_game();
        QSignalSpy ended(h.windows.get(), &tourvane::GameWindows::ended);
        h.buttons = {QMessageBox::No};
        h.click("main", "exitbtn");
        QCOMPARE(h.boxes.size(), std::size_t(1));
        QCOMPARE(h.boxes[0].text, QString("Are you sure you want to quit?"));
        QCOMPARE(h.boxes[0].title, QString("Tourvane"));
        QCOMPARE(h.boxes[0].icon, QMessageBox::NoIcon);
        QCOMPARE(h.boxes[0].buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(ended.count(), 0);
        QVERIFY(h.view("main")->isVisible());

        // The frame's close button asks the same question.
        h.buttons = {QMessageBox::No};
        h.view("main")->close();
        QCOMPARE(h.boxes.size(), std::size_t(2));
        QVERIFY(h.view("main")->isVisible());

        h.buttons = {QMessageBox::Yes};
        h.click("main", "exitbtn");
        QCOMPARE(ended.count(), 1);
        QVERIFY(h.g.ended);
        for (const char* form : {"Form1", "main", "messageForm", "Chart"})
            QVERIFY2(!h.view(form)->isVisible(), form);
        QCOMPARE(h.unanswered, 0);
    }

    void exitOnTheTitleEndsWithoutAsking() {
        Harness h;
        QSignalSpy ended(h.windows.get(), &tourvane::GameWindows::ended);
        h.click("Form1", "Label4");
        QCOMPARE(ended.count(), 1);
        QVERIFY(h.boxes.empty());
        QVERIFY(!h.view("Form1")->isVisible());
    }

    void theLastMemoEndsTheGame() {
        Harness h;
        h.new_game();
        QSignalSpy ended(h.windows.get(), &tourvane::GameWindows::ended);
        tourvane::final_message(h.g, "We are broke.", "Accounting");
        h.windows->refresh();
        QVERIFY(h.view("messageForm")->isVisible());
        h.click("main", "command6");
        QCOMPARE(ended.count(), 0);
        h.click("messageForm", "command1");
        QCOMPARE(ended.count(), 1);
        QVERIFY(!h.view("main")->isVisible());
    }

    void theChartOpensBesideTheOffice() {
        Harness h;
        h.new_game();
        h.g.rec.chartband[1] = "The Wasps";
        h.g.rec.charttitle[1] = "Paper Sting";
        h.g.rec.chartsales[1] = 900;
        h.g.forms.main.secret.enabled = true;
        h.windows->refresh();
        h.click("main", "secret");
        tourvane::FormView* chart = h.view("Chart");
        QVERIFY(chart->isVisible());
        QVERIFY(h.view("main")->isVisible());
        const QRect office = h.view("main")->frameGeometry();
        if (chart->screen()->availableGeometry().width() >= office.width() + chart->width() + 40)
            QVERIFY(!chart->frameGeometry().intersects(office));
        QCOMPARE(h.text("Chart", "track(1)"), QString("The Wasps with Paper Sting"));
        // The player's own line is yellow, from the model's colour.
        QCOMPARE(h.widget("Chart", "track(1)")->palette().color(QPalette::WindowText),
                 QColor(255, 255, 0));
        QCOMPARE(h.widget("Chart", "track(1)")->accessibleDescription(),
                 QString("The Wasps with Paper Sting"));
        // Not modal: the office still takes clicks.
        h.click("main", "promote(3)");
        QCOMPARE(h.g.rec.promotion, 4);
        h.click("Chart", "command1");
        QVERIFY(!chart->isVisible());
    }
};

QTEST_MAIN(WindowsTest)
#include "windows_test.moc"

// The game played through its real windows: start-up, NEW GAME and its refusals, the memo
// queue over a disabled office, the drawn buttons, the keyboard, a gig, the chart and quitting.

#include <QDir>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QtTest>

#include "app/qt/form_skins.h"
#include "core/ui.h"
#include "qt_harness.h"

using tourvane::testing::Harness;

namespace {

/// True when the lamp of a drawn office button is lit green, as on a button that can be
/// pressed.
bool lamp_lit(Harness& h, const tourvane::Control& spot) {
    const QColor c = h.view("main")->grab().toImage().pixelColor(
        spot.pos.left + 9, spot.pos.top + spot.pos.height / 2);
    return c.green() > 150 && c.green() > c.red() + 40;
}

double luminance(QRgb c) {
    const auto lin = [](int v) {
        const double s = v / 255.0;
        return s <= 0.03928 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * lin(qRed(c)) + 0.7152 * lin(qGreen(c)) + 0.0722 * lin(qBlue(c));
}

/// The contrast of a widget's text against its ground, read from the pixels of the box drawn
/// on screen: the ground is the commonest colour, the ink the one furthest from it among
/// the colours that cover a fair share of the rest (so that a few stray pixels do not count).
double contrast(QDialog& box, QWidget* w) {
    const QRect r = QRect(w->mapTo(&box, QPoint()), w->size()).adjusted(3, 3, -3, -3);
    const QImage image = box.grab(r).toImage();
    QHash<QRgb, int> count;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) ++count[image.pixel(x, y)];
    QRgb ground = 0;
    for (auto it = count.cbegin(); it != count.cend(); ++it)
        if (it.value() > count.value(ground)) ground = it.key();
    const int rest = static_cast<int>(image.width() * image.height()) - count.value(ground);
    const double g = luminance(ground);
    double best = 1;
    for (auto it = count.cbegin(); it != count.cend(); ++it) {
        const double ink = luminance(it.key());
        if (it.value() * 50 >= rest)
            best = std::max(best, (std::max(g, ink) + 0.05) / (std::min(g, ink) + 0.05));
    }
    return best;
}

QString week_later() {
    return QString::fromStdString(tourvane::format_date(tourvane::kStartDate + 7));
}

}  // namespace

class WindowsTest : public QObject {
    Q_OBJECT

  private slots:
    void startUpShowsTheTitleAloneAndEveryScreenKeepsItsSize() {
        Harness h;
        QVERIFY(h.view("Form1")->isVisible());
        for (const char* form : {"main", "messageForm", "gig", "thenewspaper", "savefrm", "Chart"})
            QVERIFY2(!h.view(form)->isVisible(), form);
        QCOMPARE(h.view("main")->windowTitle(), QString("Tourvane"));
        const auto sizes = h.view("main")->windowIcon().availableSizes();
        QVERIFY(sizes.contains(QSize(16, 16)) && sizes.contains(QSize(256, 256)));
        h.g.forms.each_form([&](tourvane::FormState& form) {
            QCOMPARE(h.view(form.name)->size(), QSize(form.width, form.height));
            QCOMPARE(h.view(form.name)->minimumSize(), h.view(form.name)->maximumSize());
        });
        tourvane::SideWindows& side = h.windows->side();
        for (QWidget* w :
             std::initializer_list<QWidget*>{&side.diary(), &side.graph(), &side.keys()})
            QVERIFY(w->minimumSize() != w->maximumSize());
    }

    void everyKindOfBoxIsReadableOverEveryScreen() {
        Harness h;
        h.new_game();
        tourvane::SideWindows& side = h.windows->side();
        std::vector<QWidget*> screens{&side.diary(), &side.graph(), &side.keys()};
        h.g.forms.each_form(
            [&](tourvane::FormState& form) { screens.push_back(h.view(form.name)); });
        QWidget* under = nullptr;
        int seen = 0;
        h.port.set_presenter([&](QDialog& box) {
            ++seen;
            QCOMPARE(box.parentWidget(), under);  // the screen lends the box what it can
            if (auto* input = qobject_cast<QInputDialog*>(&box)) input->setTextValue("The Wasps");
            box.show();
            QVERIFY(QTest::qWaitForWindowExposed(&box));
            QDir().mkpath(TOURVANE_SCREENSHOT_DIR);
            box.grab().save(QString("%1/box_%2_%3@%4x.png")
                                .arg(TOURVANE_SCREENSHOT_DIR, under->objectName())
                                .arg(seen)
                                .arg(box.devicePixelRatio()));
            const auto parts = box.findChildren<QWidget*>();
            int read = 0;
            for (QWidget* w : parts) {
                auto* label = qobject_cast<QLabel*>(w);
                auto* button = qobject_cast<QAbstractButton*>(w);
                auto* line = qobject_cast<QLineEdit*>(w);
                const QString text = label    ? label->text()
                                     : button ? button->text()
                                     : line   ? line->text()
                                              : "";
                if (text.isEmpty() || !w->isVisible()) continue;
                ++read;
                QVERIFY2(contrast(box, w) >= 4.5, qPrintable(under->windowTitle() + ": " + text));
            }
            QVERIFY(read >= 2);
            if (auto* message = qobject_cast<QMessageBox*>(&box))
                QCOMPARE(message->icon() == QMessageBox::Critical, !message->iconPixmap().isNull());
            box.reject();
        });
        using B = tourvane::Buttons;
        const std::function<void()> kinds[] = {
            [&] { h.port.msgbox("Please select a band member", B::Ok, false); },
            [&] { h.port.msgbox("Invalid Band Name.", B::Ok, true); },
            [&] { h.port.msgbox("Are you sure you want to quit?", B::YesNo, false); },
            [&] { h.port.inputbox("Please enter the name of the Band:", "NEW BAND"); }};
        for (QWidget* screen : screens) {
            screen->show();
            under = screen;
            for (const auto& raise_box : kinds) {
                screen->activateWindow();
                QVERIFY(QTest::qWaitForWindowActive(screen));
                raise_box();
            }
            screen->hide();
        }
        QCOMPARE(seen, 4 * static_cast<int>(screens.size()));
    }

    void newGameThroughTheTitleScreenAndItsRefusals() {
        Harness h;
        h.texts = {QString()};
        h.click("Form1", "New");
        QCOMPARE(h.boxes.size(), std::size_t(2));
        QCOMPARE(h.boxes[0].title + "|" + h.boxes[0].text,
                 QString("NEW BAND|Please enter the name of the Band:"));
        QCOMPARE(h.boxes[1].title + "|" + h.boxes[1].text, QString("Tourvane|Invalid Band Name."));
        QCOMPARE(h.boxes[1].icon, QMessageBox::Critical);
        QCOMPARE(h.boxes[1].buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
        // A band name of one blank passes; Cancel on the player's name counts as empty.
        h.texts = {QString(" "), std::nullopt};
        h.click("Form1", "New");
        QCOMPARE(h.boxes[3].title, QString("PLAYER NAME"));
        QCOMPARE(h.boxes[4].text, QString("Invalid Player Name."));
        QVERIFY(h.view("Form1")->isVisible() && !h.view("main")->isVisible());
        h.new_game("The Wasps", "Sam");  // both names are asked for again
        QVERIFY(h.view("main")->isVisible() && !h.view("Form1")->isVisible());
        QCOMPARE(h.text("main", "txtname") + "|" + h.text("main", "txtcash"),
                 QString("Sam's Office|£ 3000"));
        QCOMPARE(h.widget("main", "txtcash")->accessibleName(), QString("Cash"));
        QCOMPARE(h.widget("main", "txtcash")->accessibleDescription(), QString("£ 3000"));
    }

    void memosQueueAndHoldTheOffice() {
        Harness h;
        h.new_game();
        h.click("main", "hire");
        auto* members = h.as<QListWidget>("main", "members");
        // A double click on the member brings Dave's memo; a second memo queues behind it.
        h.dblclick_row("main", "members", 0);
        tourvane::message(h.g, "Second memo", "Mona");
        h.windows->refresh();
        tourvane::FormView* memo = h.view("messageForm");
        QVERIFY(memo->isVisible() && h.view("main")->isVisible());
        QVERIFY(h.text("messageForm", "thetxt").startsWith(members->item(0)->text()));
        QCOMPARE(h.text("messageForm", "txtFrom") + h.text("messageForm", "txtTo"),
                 QString("DaveSam"));
        // The office takes no clicks, by mouse or by key, while the memos stand.
        const QString date = h.text("main", "txtdate");
        h.click("main", "command6");
        QTest::keyClick(h.view("main"), Qt::Key_N);
        h.click("main", "promote(1)");
        QCOMPARE(h.text("main", "txtdate"), date);
        QVERIFY(!h.as<QRadioButton>("main", "promote(1)")->isChecked());
        h.click("messageForm", "command1");
        QCOMPARE(h.text("messageForm", "thetxt") + h.text("messageForm", "txtFrom"),
                 QString("Second memoMona"));
        h.click("messageForm", "command1");
        QVERIFY(!memo->isVisible());
        h.click("main", "promote(1)");  // free again: the option marks itself, the week moves
        QVERIFY(h.as<QRadioButton>("main", "promote(1)")->isChecked());
        h.click("main", "command6");
        QCOMPARE(h.text("main", "txtdate"), week_later());
        h.dblclick_row("main", "members", -1);  // below the rows: nobody picked
        QVERIFY(members->selectedItems().isEmpty());
    }

    void disabledHotSpotsAreGreyAndDeafToTheirKeys() {
        Harness h;
        h.new_game();
        const tourvane::OfficeForm& office = h.g.forms.main;
        QVERIFY(lamp_lit(h, office.command6) && !lamp_lit(h, office.secret));
        QVERIFY(!h.widget("main", "secret")->isEnabled() && !lamp_lit(h, office.interview));
        tourvane::FormView* main = h.view("main");
        main->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(main));
        // The hot-spots come first in the tab order, top to bottom, named by their tool tips.
        QWidget* w = h.widget("main", "command6");
        for (const auto& [key, sequence] : tourvane::office_keys()) {
            QWidget* spot = h.widget("main", key.c_str());
            QCOMPARE(spot->accessibleName(), QString::fromStdString(main->control(key)->tooltip));
            QCOMPARE(w, spot);
            w = w->nextInFocusChain();
        }
        // D, G and F1 open the side windows: no hot-spot takes them.
        for (const auto& [key, sequence] : tourvane::office_keys())
            for (QKeySequence taken :
                 {QKeySequence(Qt::Key_D), QKeySequence(Qt::Key_G), QKeySequence(Qt::Key_F1)})
                QVERIFY(sequence != taken);
        QTest::keyClick(main, Qt::Key_N);
        QCOMPARE(h.text("main", "txtdate"), week_later());
        QVERIFY(lamp_lit(h, office.secret));
        h.g.forms.main.command6.enabled = false;
        h.windows->refresh();
        QTest::keyClick(main, Qt::Key_N);
        QCOMPARE(h.text("main", "txtdate"), week_later());
    }

    void quitAsksAndYesEndsTheTitlesExitDoesNotAsk() {
        Harness h;
        h.new_game();
        QSignalSpy ended(h.windows.get(), &tourvane::GameWindows::ended);
        h.buttons = {QMessageBox::No, QMessageBox::No, QMessageBox::No, QMessageBox::Yes};
        h.click("main", "exitbtn");
        QCOMPARE(h.boxes[0].title + "|" + h.boxes[0].text,
                 QString("Tourvane|Are you sure you want to quit?"));
        QCOMPARE(h.boxes[0].icon, QMessageBox::NoIcon);
        QCOMPARE(h.boxes[0].buttons, QMessageBox::Yes | QMessageBox::No);
        h.view("main")->close();  // the frame's close button asks the same question
        QVERIFY(QTest::qWaitForWindowActive(h.view("main")));
        QTest::keyClick(h.view("main"), Qt::Key_Q, Qt::ControlModifier);  // and so does Ctrl+Q
        QCOMPARE(h.boxes.size(), std::size_t(3));
        QCOMPARE(h.boxes[2].text, h.boxes[0].text);
        QVERIFY(h.view("main")->isVisible() && ended.count() == 0);
        h.click("main", "exitbtn");
        QCOMPARE(ended.count(), 1);
        for (const char* form : {"Form1", "main", "messageForm"})
            QVERIFY2(!h.view(form)->isVisible(), form);
        Harness t;
        QSignalSpy title_ended(t.windows.get(), &tourvane::GameWindows::ended);
        QVERIFY(QTest::qWaitForWindowActive(t.view("Form1")));
        QTest::keyClick(t.view("Form1"), Qt::Key_Q, Qt::ControlModifier);  // EXIT, at once
        QVERIFY(title_ended.count() == 1 && t.boxes.empty() && !t.view("Form1")->isVisible());
    }

    void theLastMemoEndsTheGame() {
        Harness h;
        h.new_game();
        QSignalSpy ended(h.windows.get(), &tourvane::GameWindows::ended);
        tourvane::final_message(h.g, "We are broke.", "Accounting");
        h.windows->refresh();
        h.click("main", "command6");
        QCOMPARE(ended.count(), 0);
        h.click("messageForm", "command1");
        QCOMPARE(ended.count(), 1);
        QVERIFY(!h.view("main")->isVisible());
    }
};

QTEST_MAIN(WindowsTest)
#include "windows_test.moc"

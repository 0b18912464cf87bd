// The game played through its real windows, the boxes answered by the test. `pictures` and
// `sideWindows` shoot every window with names at their longest into the build's screenshots
// folder (name@SCALEx.png, for a person to look at); every text must be whole or cut with "…"
// and whole in its tool tip, and every control that takes the keys named. Both also run at
// desktop scales 1.5 and 2.

#include <QtTest>
#include <QtWidgets>

#include "app/qt/game_windows.h"
#include "app/qt/qt_port.h"
#include "core/ui.h"
#include "flow/office.h"
#include "rules/band/roster.h"
#include "rules/music/songs.h"
#include "view/reasons.h"

namespace {

using namespace tourvane;

/// A name of the longest length the game takes, 126 characters, starting with `start`.
std::string long_name(const std::string& start) {
    std::string name = start;
    while (name.size() < 126) name += " and the Extraordinarily Long Tail";
    return name.substr(0, 126);
}

/// A game in its windows; each box the game puts up is built by its own Qt port and handed
/// here, where it is noted and answered instead of waiting for a person.
struct Harness {
    QtPort port;
    Game g{port};
    std::unique_ptr<GameWindows> windows;
    QList<QMessageBox::StandardButton> buttons;  ///< answers for message boxes, else OK
    QStringList texts;                           ///< answers for prompts, else Cancel

    explicit Harness(std::uint64_t seed = 1) {
        port.set_presenter([this](QDialog& box) {
            auto* input = qobject_cast<QInputDialog*>(&box);
            auto* message = qobject_cast<QMessageBox*>(&box);
            if (input && !texts.empty()) input->setTextValue(texts.takeFirst()), input->accept();
            const auto reply = buttons.empty() || input ? QMessageBox::Ok : buttons.takeFirst();
            if (QAbstractButton* b = message ? message->button(reply) : nullptr) b->click();
        });
        load_main(g, seed);
        windows = std::make_unique<GameWindows>(g);
        windows->refresh();
    }
    FormView* view(const char* form) const { return windows->view(form); }
    QWidget* widget(const char* form, const char* key) const { return view(form)->widget(key); }
    QString text(const char* form, const char* key) const {
        return widget(form, key)->property("text").toString();
    }
    /// A mouse click, or a double one, on a control's widget or on a row of a list (-1: below).
    void click(const char* form, const char* key, int row = -1, bool twice = false) {
        QWidget* w = widget(form, key);
        QPoint at = w->rect().center();
        if (auto* list = qobject_cast<QListWidget*>(w)) {
            w = list->viewport();
            at = row < 0 ? QPoint(4, w->height() - 3)
                         : list->visualItemRect(list->item(row)).center();
        }
        twice ? QTest::mouseDClick(w, Qt::LeftButton, {}, at)
              : QTest::mouseClick(w, Qt::LeftButton, {}, at);
    }
    /// A key pressed in a window, as a player would, with that window in front.
    void key(QWidget* window, Qt::Key key, Qt::KeyboardModifiers mods = {}) {
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::keyClick(window, key, mods);
    }
    /// NEW GAME through the title screen; then a full band, three songs and promotion bought.
    void new_game(const QString& band = "The Wasps", const QString& player = "Sam") {
        texts = {band, player};
        click("Form1", "New");
    }
    void game_under_way(bool longest = false) {
        const auto name = [&](const std::string& s) { return longest ? long_name(s) : s; };
        new_game(QString::fromStdString(name("The Wasps")), QString::fromStdString(name("Sam")));
        for (int k = 0; k < 4; ++k) click("main", "hire");
        const char* songs[] = {"Paper Sting", "Neon Rain", "Velvet Static"};
        for (int i = 1; i <= 3; ++i)
            g.rec.songname[i] = name(songs[i - 1]), g.rec.songquality[i] = 40 * i;
        g.rec.songcount = 3;
        updatesonglist(g);
        windows->refresh();
        click("main", "members", 1);
        click("main", "promote(1)");
    }
};

/// The contrast of a widget's text against its ground, read from the pixels of the box drawn
/// on screen: the ground is the commonest colour, the ink the one furthest from it among the
/// colours that cover a fair share of the rest (so that a few stray pixels do not count).
double contrast(QWidget& box, QWidget* w) {
    const QImage image =
        box.grab(QRect(w->mapTo(&box, QPoint()), w->size()).adjusted(3, 3, -3, -3)).toImage();
    QHash<QRgb, int> count;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) ++count[image.pixel(x, y)];
    QRgb ground = 0;
    for (auto [c, n] : count.asKeyValueRange()) ground = n > count.value(ground) ? c : ground;
    const qsizetype rest = image.width() * image.height() - count.value(ground);
    const auto luminance = [](QColor c) {  // of sRGB, as the contrast of web pages is measured
        double sum = 0;
        for (auto [s, k] : {std::pair{c.redF(), 0.2126}, {c.greenF(), 0.7152}, {c.blueF(), 0.0722}})
            sum += k * (s <= 0.03928 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4));
        return sum;
    };
    double best = 1;
    for (auto [ink, n] : count.asKeyValueRange()) {
        const auto [lo, hi] = std::minmax({luminance(ground), luminance(ink)});
        if (n * 50 >= rest) best = std::max(best, (hi + 0.05) / (lo + 0.05));
    }
    return best;
}

/// A text shown fits its room, or ends with "…" and is whole in the tool tip (a cut save slot
/// keeps its number in front).
void whole_or_cut(const QString& shown, const QString& tip, bool fits, const QString& where) {
    QVERIFY2(fits, qPrintable(where + ": " + shown));
    const QString kept = shown.chopped(1).trimmed();
    const QString unnumbered = QString(kept).remove(QRegularExpression("^[1-4]\\. "));
    QVERIFY2(!shown.endsWith(QChar(0x2026)) ||
                 (tip.size() > kept.size() && (tip.startsWith(kept) || tip.startsWith(unnumbered))),
             qPrintable(where + ": " + shown));
}

/// Saves a window's picture, which must hold more than a few flat colours, and checks every
/// text on it and the names of its controls.
void shoot(QWidget* view, const QString& name) {
    QVERIFY(view->isVisible() &&
            view->screen()->availableGeometry().contains(view->frameGeometry()));
    const QImage image = view->grab().toImage();
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); y += 3)
        for (int x = 0; x < image.width(); x += 3) colours.insert(image.pixel(x, y));
    QVERIFY2(colours.size() > 40, qPrintable(name));
    const QString file = QString("%1@%2x.png").arg(name).arg(view->devicePixelRatio());
    QVERIFY(image.save(QString(TOURVANE_SCREENSHOT_DIR) + "/" + file));
    for (QWidget* w : view->findChildren<QWidget*>()) {
        if (!w->isVisible()) continue;
        QVERIFY(w->focusPolicy() == Qt::NoFocus || !w->accessibleName().isEmpty());
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
            QCOMPARE(list->viewport()->height() % list->visualItemRect(list->item(0)).height(), 0);
            for (const QListWidgetItem* row : list->findItems("*", Qt::MatchWildcard))
                whole_or_cut(row->text(), row->toolTip(),
                             font.horizontalAdvance(row->text()) <= list->viewport()->width(),
                             file);
        }
    }
}

}  // namespace

class WindowsTest : public QObject {
    Q_OBJECT
    QTemporaryDir saves_;  // the game's save files, apart from any other run's

  private slots:
    void initTestCase() {
        QVERIFY(QDir::setCurrent(saves_.path()) && QDir().mkpath(TOURVANE_SCREENSHOT_DIR));
    }

    void pictures() {
        Harness h;
        shoot(h.view("Form1"), "Form1");
        h.game_under_way(true);
        Module1& r = h.g.rec;
        for (int slot = 1; slot <= kMemberSlots; ++slot)
            r.membername[slot] = long_name("Member " + std::to_string(slot));
        listupdate(h.g);
        h.g.forms.main.txtapplicant.caption =
            long_name("Kim") + " wants to join the band, she is a good singer and looks great.";
        h.windows->refresh();
        shoot(h.view("main"), "main");
        message(h.g, "The band are playing well together. Keep them rehearsing!",
                long_name("Dave"));
        h.windows->refresh();
        shoot(h.view("messageForm"), "messageForm");
        h.click("messageForm", "command1");

        for (int v = 1; v <= kVenues; ++v) r.venueopen[v] = v == 4 ? 0 : -1;
        r.popularity = 120;
        h.click("main", "command4");
        h.click("gig", "location(1)");
        h.click("gig", "command1");
        auto* songs = qobject_cast<QComboBox*>(h.widget("gig", "Combo1"));
        songs->setFocus();
        for (int row : {1, 2}) {  // each song passed on the way down is picked
            for (int i = 0; i < 5 && songs->currentIndex() < row; ++i)
                QTest::keyClick(songs, Qt::Key_Down);
            if (row == 1) shoot(h.view("gig"), "gig");  // part-way through a set list
        }
        h.click("gig", "command4");
        shoot(h.view("thenewspaper"), "thenewspaper");
        h.click("thenewspaper", "Label2");

        for (int row = kFirstRivalRow; row < kFirstRivalRow + 9; ++row)
            r.chartband[row] = r.charttitle[row] = long_name("Glass Houses");
        h.g.forms.main.secret.enabled = true;
        h.windows->refresh();
        h.click("main", "secret");
        shoot(h.view("Chart"), "Chart");

        // Three saves of one band: the slots still differ where their names are cut.
        const char* slot_keys[] = {"saveslot(0)", "saveslot(1)", "saveslot(2)"};
        for (const char* slot : slot_keys)
            h.click("main", "command5"), h.click("savefrm", slot), h.click("savefrm", "save");
        Harness later;  // reads the slots' names as the game starts
        later.new_game();
        later.click("main", "command5");
        shoot(later.view("savefrm"), "savefrm");
        QSet<QString> captions;
        for (const char* slot : slot_keys) captions << later.text("savefrm", slot);
        QCOMPARE(captions.size(), 3);
    }

    void sideWindows() {
        // Opened from the office by key, closed by Escape; the diary and the week graph follow
        // the game while open. Then the graph of a single week and of a thousand.
        Harness h(7);
        h.game_under_way();
        SideWindows& side = h.windows->side();
        for (auto [key, window] : {std::pair<Qt::Key, QWidget*>{Qt::Key_F1, &side.keys()},
                                   {Qt::Key_G, &side.graph()},
                                   {Qt::Key_D, &side.diary()}}) {
            h.key(h.view("main"), key);
            QVERIFY(QTest::qWaitForWindowActive(window));
            if (key == Qt::Key_F1) shoot(window, "keyhelp");
            QTest::keyClick(window, Qt::Key_Escape);
            QVERIFY(!window->isVisible());
        }
        h.click("main", "command5");
        h.click("savefrm", "save");
        QAbstractItemModel* rows = side.diary().entries()->model();
        WeekGraphView* graph = side.graph().view();
        for (int week = 0; week < 20; ++week) {
            if (week == 12) h.click("main", "command5"), h.click("savefrm", "load");
            if (week == 12) h.key(h.view("main"), Qt::Key_D), h.key(h.view("main"), Qt::Key_G);
            h.click("main", "command6");
            while (h.view("messageForm")->isVisible()) h.click("messageForm", "command1");
        }
        QCOMPARE(rows->rowCount(), static_cast<int>(h.g.diary.size()));
        QCOMPARE(graph->current(), static_cast<int>(graph->points().size()) - 1);
        side.close_all();
        const char* shock =
            "Kim Vale has decided to leave the band! The rest of the band is in a state of shock.";
        message(h.g, shock, "Mona");
        h.windows->refresh();
        QTest::keyClick(h.view("main"), Qt::Key_D);  // held up by a memo, the office opens nothing
        QVERIFY(!side.diary().isVisible());
        h.click("messageForm", "command1");

        h.key(h.view("main"), Qt::Key_D);
        side.diary().resize(560, 420);  // narrow enough for the long memo to take two lines
        shoot(&side.diary(), "diary");
        const auto cell = [&](int column) { return rows->index(0, column).data().toString(); };
        QCOMPARE(cell(2).toStdString(), h.g.diary.back().text);
        DiaryWindow& diary = side.diary();
        const QString first = QString::fromStdString(h.g.diary.front().from);
        diary.sender_filter()->setCurrentIndex(diary.sender_filter()->findText(first));
        QVERIFY(rows->rowCount() > 0 && rows->rowCount() < int(h.g.diary.size()) &&
                cell(1) == first);
        QCOMPARE(diary.count()->accessibleDescription(),
                 QString("%1 of %2 messages").arg(rows->rowCount()).arg(h.g.diary.size()));
        diary.sender_filter()->setCurrentIndex(0);
        QTest::keyClicks(diary.search(), "STATE OF SHOCK");
        QVERIFY(rows->rowCount() == 1 && cell(1) == "Mona");

        h.key(h.view("main"), Qt::Key_G);
        QTest::keyClick(graph, Qt::Key_Home);
        QVERIFY(graph->readout().startsWith("Start, 01/09/2001: cash £ "));
        QTest::keyClick(graph, Qt::Key_Right);
        QVERIFY(graph->readout().contains(QRegularExpression("^Week 1 of .*08/09/2001: cash")));
        const QPoint at = graph->cash_at(8).toPoint();
        QMouseEvent move(QEvent::MouseMove, at, graph->mapToGlobal(at), Qt::NoButton, {}, {});
        QApplication::sendEvent(graph, &move);
        QVERIFY(graph->current() == 8 && graph->accessibleDescription() == graph->readout());
        shoot(&side.graph(), "weekgraph");
        h.g.segments.assign(1, {kStartDate, 3000, 0, 0});
        for (int weeks : {1, 1000}) {
            h.g.history.clear();
            for (int w = 1; w <= weeks; ++w)
                h.g.history.push_back({kStartDate + 7 * w, 3000 + 40 * w - (w % 9) * 300,
                                       Integer(w / 2 + w % 13), 0});
            side.graph().refresh();
            shoot(&side.graph(), "weekgraph_" + QString::number(weeks));
        }
    }

    void toolTips() {
        // A tip on every window reads as well as a box: the same look everywhere, over the dark
        // screens and the paper ones alike.
        QApplication::setEffectEnabled(Qt::UI_FadeTooltip, false);
        QApplication::setEffectEnabled(Qt::UI_AnimateTooltip, false);
        Harness h;
        h.game_under_way();
        SideWindows& side = h.windows->side();
        std::vector<QWidget*> windows{&side.diary(), &side.graph(), &side.keys()};
        h.g.forms.each_form([&](FormState& form) { windows.push_back(h.view(form.name)); });
        for (QWidget* window : windows) {
            window->show();
            QVERIFY(QTest::qWaitForWindowExposed(window));
            QWidget* under = window->findChildren<QWidget*>().value(0, window);
            const QString text = "Pick a member in the band list first.\nNext Week: £ 3000";
            QToolTip::showText(under->mapToGlobal(QPoint(4, 4)), text, under);
            QWidget* tip = nullptr;
            for (QWidget* w : QApplication::topLevelWidgets())
                if (w->inherits("QTipLabel") && w->isVisible()) tip = w;
            QVERIFY2(tip, qPrintable(window->objectName()));
            const QString file = QString("%1/tip_%2@%3x.png")
                                     .arg(TOURVANE_SCREENSHOT_DIR, window->objectName())
                                     .arg(tip->devicePixelRatio());
            QVERIFY(tip->grab().save(file));
            QVERIFY2(contrast(*tip, tip) >= 4.5, qPrintable(window->objectName()));
            QToolTip::hideText();
            if (window != h.view("main")) window->hide();
        }
    }

    void quitAsksFromEveryWindowButTheTitleAndEveryBoxIsReadableOverEveryFixedScreen() {
        Harness t;
        QSignalSpy title_ended(t.windows.get(), &GameWindows::ended);
        t.buttons = {QMessageBox::No};
        t.key(t.view("Form1"), Qt::Key_Q, Qt::ControlModifier);  // EXIT, at once
        QVERIFY(title_ended.count() == 1 && t.buttons.size() == 1 && !t.view("Form1")->isVisible());
        Harness h;
        h.new_game();
        QSignalSpy ended(h.windows.get(), &GameWindows::ended);
        h.buttons.fill(QMessageBox::No, 4) << QMessageBox::Yes;
        h.click("main", "exitbtn");
        h.view("main")->close();  // the frame's close button
        h.key(h.view("main"), Qt::Key_Q, Qt::ControlModifier);
        h.key(h.view("main"), Qt::Key_F1);
        h.key(&h.windows->side().keys(), Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(h.buttons.size() == 1 && h.view("main")->isVisible() && ended.count() == 0);
        h.click("main", "exitbtn");
        QVERIFY(ended.count() == 1 && !h.view("main")->isVisible());

        SideWindows& side = h.windows->side();
        std::vector<QWidget*> screens{&side.diary(), &side.graph(), &side.keys()};
        h.g.forms.each_form([&](FormState& form) {
            screens.push_back(h.view(form.name));
            QCOMPARE(h.view(form.name)->size(), QSize(form.width, form.height));
            QCOMPARE(h.view(form.name)->minimumSize(), h.view(form.name)->maximumSize());
        });
        QWidget* under = nullptr;
        int seen = 0;
        h.port.set_presenter([&](QDialog& box) {
            QCOMPARE(box.parentWidget(), under);  // the screen lends the box what it can
            if (auto* input = qobject_cast<QInputDialog*>(&box)) input->setTextValue("The Wasps");
            box.show();
            QVERIFY(QTest::qWaitForWindowExposed(&box));
            box.grab().save(QString("%1/box_%2_%3@%4x.png")
                                .arg(TOURVANE_SCREENSHOT_DIR, under->objectName())
                                .arg(++seen)
                                .arg(box.devicePixelRatio()));
            int read = 0;
            for (QWidget* w : box.findChildren<QWidget*>()) {
                const QString text = w->property("text").toString();  // labels, buttons, the line
                if (text.isEmpty() || !w->isVisible()) continue;
                ++read;
                QVERIFY2(contrast(box, w) >= 4.5, qPrintable(under->windowTitle() + ": " + text));
            }
            QVERIFY(read >= 2);
            if (auto* message = qobject_cast<QMessageBox*>(&box))
                QCOMPARE(message->icon() == QMessageBox::Critical, !message->iconPixmap().isNull());
            box.reject();
        });
        for (QWidget* screen : screens) {
            screen->show();
            under = screen;
            for (int kind = 0; kind < 3; ++kind) {
                screen->activateWindow();
                QVERIFY(QTest::qWaitForWindowActive(screen));
                if (kind == 2) h.port.inputbox("Please enter the name of the Band:", "NEW BAND");
                if (kind < 2)
                    h.port.msgbox(kind ? "Are you sure you want to quit?" : "Invalid Band Name.",
                                  kind ? Buttons::YesNo : Buttons::Ok, !kind);
            }
            screen->hide();
        }
        QCOMPARE(seen, 3 * static_cast<int>(screens.size()));
    }

    void aCareerKeptOnQuitCarriedOnAndOneThatEndsGoesToTheHall() {
        for (const char* file : {"tvauto.tvs", "tvauto.tvh", "tvfame.tvf"}) QFile::remove(file);
        {
            Harness h(3);
            QVERIFY(!h.windows->carry_on_offer());  // nothing kept yet: the title as it was
            h.game_under_way();
            h.g.rec.cash = 4321;
            h.buttons = {QMessageBox::Yes};
            h.key(h.view("main"), Qt::Key_Q, Qt::ControlModifier);  // quit, with Yes
            QVERIFY(h.g.ended && QFile::exists("tvauto.tvs") && QFile::exists("tvauto.tvh"));
        }
        Harness next;
        QWidget* offer = next.windows->carry_on_offer();
        QVERIFY(offer && offer->isVisible());
        QVERIFY(offer->findChild<QLabel*>()->text().contains("The Wasps, 01/09/2001, £ 4321"));
        shoot(next.view("Form1"), "Form1_offer");
        next.key(next.view("Form1"), Qt::Key_C);
        QVERIFY(next.view("main")->isVisible() && !offer->isVisible());
        QCOMPARE(next.g.rec.cash, 4321);
        QCOMPARE(next.g.rec.membername[4], std::string(next.g.rec.membername[4]));
        QVERIFY(!next.g.diary.empty());  // the career's diary came back with it

        // Bankrupt: the summary stands beside the last memo, the hall keeps the career, and the
        // automatic save goes with the career it held.
        next.g.rec.cash = 0;
        next.click("main", "command6");
        QVERIFY(next.g.game_over);
        SummaryWindow* summary = next.windows->summary();
        QVERIFY(summary && summary->isVisible() && next.view("messageForm")->isVisible());
        shoot(summary, "summary");
        QTreeWidget* lines = summary->view()->lines();
        QCOMPARE(lines->topLevelItem(0)->text(1), QString("The Wasps"));
        while (!next.g.ended) next.click("messageForm", "command1");
        QVERIFY(!summary->isVisible() && !QFile::exists("tvauto.tvs"));

        Harness later;
        QVERIFY(!later.windows->carry_on_offer());
        later.key(later.view("Form1"), Qt::Key_H);
        HallWindow& hall = later.windows->hall();
        QVERIFY(QTest::qWaitForWindowExposed(&hall));
        QCOMPARE(hall.careers()->topLevelItemCount(), 1);
        QVERIFY(hall.careers()->topLevelItem(0)->text(0).startsWith("The Wasps (Sam), "));
        QVERIFY(hall.summary()->lines()->topLevelItemCount() > 10);
        shoot(&hall, "hall");
        for (QPushButton* b : hall.findChildren<QPushButton*>())
            if (b->accessibleName() == "Open the diary of this career") b->click();
        QVERIFY(QTest::qWaitForWindowExposed(&hall.diary()));
        QVERIFY(hall.diary().entries()->model()->rowCount() > 0);

        // A damaged automatic save is told of, refused with a box, and left as it is.
        QFile damaged("tvauto.tvs");
        QVERIFY(damaged.open(QIODevice::WriteOnly) && damaged.write("\x05\x00Wasps!!") > 0);
        damaged.close();
        Harness refused;
        QStringList boxes;
        refused.port.set_presenter([&](QDialog& box) {
            if (auto* m = qobject_cast<QMessageBox*>(&box)) boxes << m->text();
            box.reject();
        });
        QVERIFY(
            refused.windows->carry_on_offer()->findChild<QLabel*>()->text().contains("damaged"));
        QVERIFY(!refused.windows->carry_on_offer()->findChild<QPushButton*>());
        refused.key(refused.view("Form1"), Qt::Key_C);
        QCOMPARE(boxes.size(), 1);
        QVERIFY(boxes[0].contains("damaged") && refused.view("Form1")->isVisible());
        QFile kept("tvauto.tvs");
        QVERIFY(kept.open(QIODevice::ReadOnly) && kept.readAll() == QByteArray("\x05\x00Wasps!!"));
        QFile::remove("tvauto.tvs");
    }

    void aGameByKeysAloneWithEveryBoxAndMemoAnnounced() {
        static QList<std::pair<QObject*, QAccessible::Event>> heard;
        QAccessible::installUpdateHandler([](QAccessibleEvent* e) {
            heard.append({e->object(), e->type()});
        });
        QAccessible::setActive(true);
        // What a screen reader reads of `w`, "name: text", once `w` has announced itself as
        // `kind` where the platform carries accessibility (xvfb and offscreen carry none).
        const auto read_out = [](QWidget* w, QAccessible::Event kind) {
            QAccessibleInterface* face = QAccessible::queryAccessibleInterface(w);
            const bool unheard = QAccessible::isActive() && !heard.contains({w, kind});
            return (unheard ? "(unheard) " : "") + face->text(QAccessible::Name) + ": " +
                   face->text(QAccessible::Description);
        };
        const auto press = [](Qt::Key key) {
            QWidget* at = QApplication::focusWidget();
            QTest::keyClick(at ? at : QApplication::activeWindow(), key);
        };
        QFile::remove("tvsave0.tvs");  // no game saved in the first slot yet
        Harness h;
        QStringList names{"The Wasps", "Sam"}, described;
        h.port.set_presenter([&](QDialog& box) {
            box.show();
            QVERIFY(QTest::qWaitForWindowActive(&box));
            auto* prompt = qobject_cast<QInputDialog*>(&box);
            QWidget* keys = prompt ? static_cast<QWidget*>(box.findChild<QLineEdit*>()) : &box;
            if (prompt) QTest::keyClicks(keys, names.takeFirst());
            QTest::keyClick(keys, Qt::Key_Return);
            described << box.windowTitle() + ": " +
                             (prompt ? prompt->labelText()
                                     : qobject_cast<QMessageBox*>(&box)->text());
            QVERIFY(!box.isVisible());
            QCOMPARE(read_out(&box, prompt ? QAccessible::DialogStart : QAccessible::Alert),
                     described.last());
        });
        // Each memo is read out and holds the office, deaf to clicks and keys, till Return.
        FormView* memo = h.view("messageForm");
        int memos = 0;
        const auto read_memos = [&] {
            for (; memo->isVisible() && memos < 40; ++memos) {
                QCOMPARE(read_out(memo, QAccessible::Alert),
                         "Message from " + h.text("messageForm", "txtFrom") + ": " +
                             h.text("messageForm", "thetxt"));
                const auto weeks = h.g.history.size();
                h.click("main", "promote(2)");
                h.click("main", "command6");
                QTest::keyClick(h.view("main"), Qt::Key_N);
                QVERIFY(h.g.history.size() == weeks &&
                        !h.widget("main", "promote(2)")->property("checked").toBool());
                QVERIFY(QTest::qWaitForWindowActive(memo));
                press(Qt::Key_Return);
            }
        };
        const auto key_in = [&](const char* form, Qt::Key key) {
            QVERIFY(QTest::qWaitForWindowActive(h.view(form)));
            press(key);
            read_memos();
        };
        const auto tab_to = [&](const char* form, const char* key) {
            for (int i = 0; i < 40 && QApplication::focusWidget() != h.widget(form, key); ++i)
                key_in(form, Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), h.widget(form, key));
        };

        key_in("Form1", Qt::Key_N);
        QCOMPARE(described, QStringList({"NEW BAND: Please enter the name of the Band:",
                                         "PLAYER NAME: Please enter your name:"}));
        OfficeForm& office = h.g.forms.main;
        QWidget* chart = h.widget("main", "secret");  // grey, and saying why
        const QString why = QString::fromStdString(disabled_reason(h.g, office, office.secret));
        QVERIFY(!why.isEmpty() && chart->toolTip() == why && chart->accessibleDescription() == why);
        tab_to("main", "hire");
        for (int k = 0; k < 4; ++k) key_in("main", Qt::Key_Space);
        h.click("main", "members", 0, true);  // a word on the member, by double click
        read_memos();
        QVERIFY(memos > 0 && office.members.rows.size() == 4);
        const auto idle = h.g.rec.songweeks;
        key_in("main", Qt::Key_R);
        QVERIFY(h.g.rec.songweeks != idle);  // a song is under way
        key_in("main", Qt::Key_N);
        QCOMPARE(h.g.history.size(), std::size_t(1));
        QCOMPARE(chart->toolTip() + "|" + chart->accessibleDescription(), QString("Music Chart|"));
        key_in("main", Qt::Key_V);
        QCOMPARE(h.widget("savefrm", "saveslot(0)")->toolTip(),
                 QString("Empty slot: no game saved here yet."));
        tab_to("savefrm", "save");
        key_in("savefrm", Qt::Key_Space);
        QCOMPARE(described.last(), QString("Tourvane: Game Saved"));
    }
};

QTEST_MAIN(WindowsTest)
#include "windows_test.moc"

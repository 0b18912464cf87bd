#pragma once
// A running game in its real windows, with the boxes answered by the test: each box is built
// by the game's own Qt port and handed here instead of waiting for a person.

#include <QAbstractButton>
#include <QComboBox>
#include <QInputDialog>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QTest>
#include <deque>
#include <memory>
#include <optional>
#include <vector>

#include "app/qt/game_windows.h"
#include "app/qt/qt_port.h"
#include "core/game.h"
#include "flow/office.h"
#include "rules/music/songs.h"

namespace tourvane::testing {

/// One box the game put up, as the player saw it.
struct SeenBox {
    bool input = false;  ///< an InputBox (else a MsgBox)
    QString title;
    QString text;  ///< the message, or the prompt
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButtons buttons;
};

class Harness {
  public:
    QtPort port;
    Game g{port};
    std::unique_ptr<GameWindows> windows;
    std::vector<SeenBox> boxes;
    std::deque<QMessageBox::StandardButton> buttons;  ///< answers for message boxes
    std::deque<std::optional<QString>> texts;         ///< answers for prompts; nullopt is Cancel
    int unanswered = 0;                               ///< boxes that met an empty queue

    explicit Harness(std::uint64_t seed = 1) {
        port.set_presenter([this](QDialog& box) { answer(box); });
        load_main(g, seed);
        windows = std::make_unique<GameWindows>(g);
        windows->refresh();
    }

    FormView* view(const char* form) const { return windows->view(form); }

    QWidget* widget(const char* form, const char* key) const {
        FormView* v = view(form);
        return v ? v->widget(key) : nullptr;
    }

    template <class W>
    W* as(const char* form, const char* key) const {
        return qobject_cast<W*>(widget(form, key));
    }

    /// A mouse click in the middle of a control's widget.
    void click(const char* form, const char* key) {
        QWidget* w = widget(form, key);
        QVERIFY2(w, key);
        QTest::mouseClick(w, Qt::LeftButton, {}, w->rect().center());
    }

    /// A mouse click on a row of a list box.
    void click_row(const char* form, const char* key, int row) {
        auto* list = as<QListWidget>(form, key);
        QVERIFY(list && row < list->count());
        const QPoint at = list->visualItemRect(list->item(row)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
    }

    /// A double click on a row of a list box, or below the rows with -1.
    void dblclick_row(const char* form, const char* key, int row) {
        auto* list = as<QListWidget>(form, key);
        QVERIFY(list);
        const QPoint at = row >= 0 ? list->visualItemRect(list->item(row)).center()
                                   : QPoint(4, list->viewport()->height() - 3);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
    }

    /// NEW GAME through the title screen with both names given.
    void new_game(const QString& band = "The Wasps", const QString& player = "Sam") {
        texts.push_back(band);
        texts.push_back(player);
        click("Form1", "New");
        boxes.clear();
    }

    /// A game some weeks in: a full band, three songs, a member picked and promotion bought.
    void game_under_way(const QString& band = "The Wasps", const QString& player = "Sam",
                        std::vector<std::string> songs = {"Paper Sting", "Neon Rain",
                                                          "Velvet Static"}) {
        new_game(band, player);
        for (int k = 0; k < 4; ++k) click("main", "hire");
        for (int i = 1; i <= 3; ++i)
            g.rec.songname[i] = songs[i - 1], g.rec.songquality[i] = 40 * i;
        g.rec.songcount = 3;
        updatesonglist(g);
        windows->refresh();
        click_row("main", "members", 1);
        click("main", "promote(1)");
    }

    /// Opens the booking screen from the office, with every venue but the nightclub open.
    void open_gig() {
        for (int v = 1; v <= kVenues; ++v) g.rec.venueopen[v] = v == 4 ? 0 : -1;
        g.rec.popularity = 120;
        click("main", "command4");
    }

    /// Moves through the drop-down list with the arrow keys to `row`; each song passed is a
    /// click.
    void pick_track(int row) {
        auto* songs = as<QComboBox>("gig", "Combo1");
        QVERIFY(songs && songs->isEnabled());
        songs->setFocus();
        for (int step = 0; step < 20 && songs->currentIndex() != row; ++step)
            QTest::keyClick(songs, songs->currentIndex() < row ? Qt::Key_Down : Qt::Key_Up);
        QCOMPARE(songs->currentIndex(), row);
    }

    QString text(const char* form, const char* key) const {
        if (auto* label = as<QLabel>(form, key)) return label->text();
        if (auto* button = as<QAbstractButton>(form, key)) return button->text();
        return {};
    }

  private:
    void answer(QDialog& box) {
        if (auto* input = qobject_cast<QInputDialog*>(&box)) {
            boxes.push_back({true, input->windowTitle(), input->labelText(), {}, {}});
            if (texts.empty()) ++unanswered;
            const std::optional<QString> reply = texts.empty() ? std::nullopt : texts.front();
            if (!texts.empty()) texts.pop_front();
            if (reply) input->setTextValue(*reply);
            reply ? input->accept() : input->reject();
        } else if (auto* message = qobject_cast<QMessageBox*>(&box)) {
            boxes.push_back({false, message->windowTitle(), message->text(), message->icon(),
                             message->standardButtons()});
            if (buttons.empty()) ++unanswered;
            const auto reply = buttons.empty() ? QMessageBox::Ok : buttons.front();
            if (!buttons.empty()) buttons.pop_front();
            if (QAbstractButton* b = message->button(reply)) b->click();
        }
    }
};

}  // namespace tourvane::testing

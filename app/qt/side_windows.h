#pragma once
// The windows beside the game's screens: the diary (D), the week graph (G) and the key help
// (F1), opened from the office. They read the game and change nothing in it.

#include <QObject>
#include <memory>

#include "app/qt/diary_window.h"
#include "app/qt/key_help.h"
#include "app/qt/week_graph.h"
#include "core/game.h"

namespace tourvane {

class FormView;

class SideWindows : public QObject {
    Q_OBJECT
  public:
    /// Builds the windows and gives the office its keys for them.
    SideWindows(Game& g, FormView& office);
    ~SideWindows() override;

    /// Brings the open windows up to date with the game (after every click).
    void refresh();

    /// Closes them all: the program is ending.
    void close_all();

    /// Opens a window beside the office, or brings it in front if it is open. The office must
    /// be taking clicks: while a memo stands, it takes no keys either.
    void open(QWidget& window);

    DiaryWindow& diary() { return *diary_; }
    WeekGraphWindow& graph() { return *graph_; }
    KeyHelpWindow& keys() { return *keys_; }

  protected:
    /// Hands the keys back to the office when a side window closes.
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Game& g_;
    FormView& office_;
    std::unique_ptr<DiaryWindow> diary_;
    std::unique_ptr<WeekGraphWindow> graph_;
    std::unique_ptr<KeyHelpWindow> keys_;
};

}  // namespace tourvane

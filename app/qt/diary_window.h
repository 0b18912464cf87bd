#pragma once
// The diary window: everything the office told the player in this run, newest first, with a
// filter by sender and a search field. It reads the game's diary and takes in new entries
// while it is open.

#include <QWidget>

#include "core/game.h"
#include "view/diary.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QTreeView;

namespace tourvane {

class DiaryModel;
class DiaryProxy;

class DiaryWindow : public QWidget {
    Q_OBJECT
  public:
    explicit DiaryWindow(const Game& g);
    ~DiaryWindow() override;

    /// Takes in the entries written since the last call (only while the window is open).
    void refresh();

    QComboBox* sender_filter() const { return senders_; }
    QLineEdit* search() const { return search_; }
    QTreeView* entries() const { return entries_; }
    QLabel* count() const { return count_; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void take_senders();
    void show_count();

    const Game& g_;
    DiaryModel* model_;
    DiaryProxy* filter_;
    QComboBox* senders_;
    QLineEdit* search_;
    QTreeView* entries_;
    QLabel* count_;
    DiarySenders senders_seen_;
    unsigned loads_seen_ = 0;  ///< the game's history loads when the diary was last shown
};

}  // namespace tourvane

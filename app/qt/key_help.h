#pragma once
// The key help: a short list of every key of the office, the diary and the week graph, and
// what Tourvane is: its version and licence.

#include <QWidget>

#include "core/game.h"

class QLabel;
class QTreeWidget;

namespace tourvane {

class KeyHelpWindow : public QWidget {
    Q_OBJECT
  public:
    /// Reads the office's buttons from the form model of `g`.
    explicit KeyHelpWindow(Game& g);

    QTreeWidget* keys() const { return keys_; }
    QLabel* about() const { return about_; }

  private:
    QTreeWidget* keys_;
    QLabel* about_;
};

/// The keys that open the side windows from the office.
QKeySequence diary_key();
QKeySequence graph_key();
QKeySequence help_key();
/// Quits from any of the game's windows, as that window's own quit does.
QKeySequence quit_key();

}  // namespace tourvane

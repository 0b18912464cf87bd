#pragma once
// The key help: a short list of every key of the office, the diary and the week graph.

#include <QWidget>

#include "core/game.h"

class QTreeWidget;

namespace tourvane {

class KeyHelpWindow : public QWidget {
    Q_OBJECT
  public:
    /// Reads the office's buttons from the form model of `g`.
    explicit KeyHelpWindow(Game& g);

    QTreeWidget* keys() const { return keys_; }

  private:
    QTreeWidget* keys_;
};

/// The keys that open the side windows from the office.
QKeySequence diary_key();
QKeySequence graph_key();
QKeySequence help_key();

}  // namespace tourvane

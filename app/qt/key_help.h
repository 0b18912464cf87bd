#pragma once
// The key help: every key of the game's key table, by where it works, and what Tourvane is:
// its version and licence.

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

}  // namespace tourvane

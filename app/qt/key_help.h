#pragma once
// The help (F1): how to play, every key of the game's key table by where it works, and what
// Tourvane is: its version and licence.

#include <QWidget>

#include "core/game.h"

class QLabel;
class QTabWidget;
class QTextBrowser;
class QTreeWidget;

namespace tourvane {

class KeyHelpWindow : public QWidget {
    Q_OBJECT
  public:
    /// Reads the office's buttons from the form model of `g`.
    explicit KeyHelpWindow(Game& g);

    QTreeWidget* keys() const { return keys_; }
    QTextBrowser* how_to_play() const { return how_; }
    QTabWidget* parts() const { return parts_; }
    QLabel* about() const { return about_; }

  private:
    QTabWidget* parts_;
    QTextBrowser* how_;
    QTreeWidget* keys_;
    QLabel* about_;
};

}  // namespace tourvane

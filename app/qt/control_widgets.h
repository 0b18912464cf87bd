#pragma once
// The few widget kinds the screens need beyond Qt's own: the invisible hot-spot over a drawn
// button, the clickable caption, and a list box whose clicks go to the game instead of
// changing the selection by themselves.

#include <QAbstractButton>
#include <QListWidget>
#include <QPushButton>

namespace tourvane {

/// An invisible clickable rectangle over a button of a screen's picture. It shows only a
/// light hover wash and a focus ring; the picture draws the button itself.
class HotSpot : public QAbstractButton {
    Q_OBJECT
  public:
    explicit HotSpot(QWidget* parent = nullptr);
    QSize sizeHint() const override { return size(); }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

/// A caption that takes clicks, by mouse, Space or Return.
class ClickLabel : public QPushButton {
    Q_OBJECT
  public:
    explicit ClickLabel(QWidget* parent = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// A list box that reports clicks on rows and leaves the selection to the game: a press on a
/// row, the arrow keys and Home/End report `rowClicked`; a double click (on a row, or -1 on
/// the empty part) and Return report `rowDoubleClicked`.
class ListBox : public QListWidget {
    Q_OBJECT
  public:
    explicit ListBox(QWidget* parent = nullptr);

    /// Makes the box as tall as the whole rows that fit its given height, so that no row is
    /// shown cut; call once its style sheet is in force.
    void fit_whole_rows();
    int row_height() const { return row_height_; }
    /// The width a row's text has when the box holds `rows` rows.
    int row_room(int rows) const;

  signals:
    void rowClicked(int row);
    void rowDoubleClicked(int row);

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    int row_height_ = 0;
    int whole_rows_ = 1;
};

}  // namespace tourvane

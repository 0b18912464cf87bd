#pragma once
// The week graph: cash and popularity at the end of every week played in this run, two lines
// on one time axis, drawn with QPainter. Each stretch of play (the new game, then each load)
// is its own piece of line, starting at the date it began. The point under the pointer, or
// picked with the arrow keys, is read out in words.

#include <QWidget>
#include <vector>

#include "core/game.h"
#include "view/week_graph.h"

class QLabel;

namespace tourvane {

/// The graph itself: a plot that takes the pointer and the arrow keys.
class WeekGraphView : public QWidget {
    Q_OBJECT
  public:
    explicit WeekGraphView(QWidget* parent = nullptr);

    /// Shows these points. The pick stays on its point, or follows the latest if it was there.
    void set_points(std::vector<GraphPoint> points);
    const std::vector<GraphPoint>& points() const { return points_; }

    /// The picked point (under the pointer, or moved to by key), -1 when there is none.
    int current() const { return current_; }
    void set_current(int index);

    /// The picked point in words: its date, cash and popularity.
    QString readout() const;

    /// Where the point of that index is drawn.
    QPointF cash_at(int index) const;

    QSize sizeHint() const override { return {720, 380}; }
    QSize minimumSizeHint() const override { return {360, 220}; }

  signals:
    void currentChanged(int index);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    using Scale = GraphScale;
    QRectF plot() const;
    double x_of(int index) const;
    double y_of(double value, const Scale& s) const;
    int index_at(double x) const;
    void rescale();

    std::vector<GraphPoint> points_;
    int current_ = -1;
    Scale cash_, fans_;
    int intervals_ = 4;
};

/// The window around the graph: a heading, the plot, the readout and a Close button.
class WeekGraphWindow : public QWidget {
    Q_OBJECT
  public:
    explicit WeekGraphWindow(const Game& g);

    /// Takes in the weeks played since the last call (only while the window is open).
    void refresh();

    WeekGraphView* view() const { return view_; }
    QLabel* readout() const { return readout_; }

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void show_readout();

    const Game& g_;
    WeekGraphView* view_;
    QLabel* readout_;
    std::size_t weeks_ = 0, segments_ = 0;  ///< what the view shows
    unsigned loads_ = 0;                    ///< of the career it shows
    bool filled_ = false;
};

}  // namespace tourvane

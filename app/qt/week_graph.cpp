#include "app/qt/week_graph.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "app/qt/window_style.h"
#include "core/ui.h"

namespace tourvane {

namespace {

const QColor kBackground("#141018"), kPlotPaper("#0d0b10"), kFrame("#4d4438"), kGrid("#2a2430");
const QColor kInk("#ece6da"), kDim("#8a8172");
const QColor kCashColour("#7fd67a"), kFansColour("#f0b650");

/// Steps of the time axis in weeks: a week, a month or so, a quarter, half a year, years.
constexpr int kWeekSteps[] = {1, 2, 4, 8, 13, 26, 52, 104, 156, 260, 520, 1040, 2600, 5200};

/// Up to this many points, each is marked with a dot.
constexpr std::size_t kDottedPoints = 60;

/// The smallest of 1, 2 and 5 times a power of ten that is at least `raw` (and at least 1).
double nice_step(double raw) {
    if (!(raw > 1)) return 1;
    const double power = std::pow(10.0, std::floor(std::log10(raw)));
    for (double m : {1.0, 2.0, 5.0, 10.0})
        if (m * power >= raw * (1 - 1e-12)) return m * power;
    return 10 * power;
}

QString money(double pounds) {
    const double a = std::fabs(pounds);
    if (a >= 1e6) return QString("£ %1M").arg(pounds / 1e6, 0, 'g', 3);
    if (a >= 1e5) return QString("£ %1k").arg(pounds / 1e3, 0, 'g', 4);
    return QString("£ %1").arg(static_cast<qlonglong>(std::llround(pounds)));
}

QString day(const WeekSample& s) {
    return QString::fromStdString(format_date(s.date));
}

}  // namespace

std::vector<GraphPoint> graph_points(const Game& g) {
    std::vector<GraphPoint> points;
    const std::vector<WeekSample>& weeks = g.history;
    const int stretches =
        std::max(static_cast<int>(g.segments.size()), weeks.empty() ? 0 : weeks.back().segment + 1);
    points.reserve(weeks.size() + g.segments.size());
    std::size_t next = 0;
    for (int k = 0; k < stretches; ++k) {
        std::size_t end = next;
        while (end < weeks.size() && weeks[end].segment == k) ++end;
        if (end == next && k + 1 < stretches) continue;
        if (k < static_cast<int>(g.segments.size())) points.push_back({g.segments[k], true});
        for (; next < end; ++next) points.push_back({weeks[next], false});
    }
    return points;
}

WeekGraphView::WeekGraphView(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName("Week graph");
    setCursor(Qt::CrossCursor);
}

void WeekGraphView::set_points(std::vector<GraphPoint> points) {
    const bool at_latest = current_ < 0 || current_ + 1 == static_cast<int>(points_.size());
    points_ = std::move(points);
    const int last = static_cast<int>(points_.size()) - 1;
    current_ = at_latest ? last : std::min(current_, last);
    rescale();
    setAccessibleDescription(readout());
    update();
    emit currentChanged(current_);
}

void WeekGraphView::set_current(int index) {
    if (points_.empty()) return;
    index = std::clamp(index, 0, static_cast<int>(points_.size()) - 1);
    if (index == current_) return;
    current_ = index;
    setAccessibleDescription(readout());
    update();
    emit currentChanged(current_);
}

QString WeekGraphView::readout() const {
    if (current_ < 0) return "No week played yet.";
    const GraphPoint& p = points_[current_];
    QString what;
    if (p.start) {
        what = (current_ == 0 ? "Start, " : "Game loaded, ") + day(p.sample);
    } else {
        int week = 0, weeks = 0;
        for (int i = 0; i < static_cast<int>(points_.size()); ++i) {
            if (points_[i].start) continue;
            ++weeks;
            if (i <= current_) ++week;
        }
        what = QString("Week %1 of %2, ending %3").arg(week).arg(weeks).arg(day(p.sample));
    }
    return QString("%1: cash %2, popularity %3")
        .arg(what, QString::fromStdString(format_cash(p.sample.cash)))
        .arg(p.sample.popularity);
}

QRectF WeekGraphView::plot() const {
    return QRectF(rect()).adjusted(72, 26, -58, -48);
}

double WeekGraphView::x_of(int index) const {
    const QRectF r = plot().adjusted(10, 0, -10, 0);
    if (points_.size() < 2) return r.center().x();
    return r.left() + r.width() * index / static_cast<double>(points_.size() - 1);
}

double WeekGraphView::y_of(double value, const Scale& s) const {
    const QRectF r = plot();
    const double span = s.step * intervals_;
    return r.bottom() - r.height() * (value - s.low) / span;
}

QPointF WeekGraphView::cash_at(int index) const {
    if (index < 0 || index >= static_cast<int>(points_.size())) return {};
    return {x_of(index), y_of(points_[index].sample.cash, cash_)};
}

int WeekGraphView::index_at(double x) const {
    if (points_.size() < 2) return points_.empty() ? -1 : 0;
    const QRectF r = plot().adjusted(10, 0, -10, 0);
    const double at = (x - r.left()) / r.width() * static_cast<double>(points_.size() - 1);
    return std::clamp(static_cast<int>(std::lround(at)), 0, static_cast<int>(points_.size()) - 1);
}

void WeekGraphView::rescale() {
    // Both scales include 0 and share the grid lines: the cash scale picks the number of
    // intervals, and the popularity scale the step that fits its values into as many.
    double cash_low = 0, cash_high = 0, fans_low = 0, fans_high = 0;
    for (const GraphPoint& p : points_) {
        cash_low = std::min(cash_low, double(p.sample.cash));
        cash_high = std::max(cash_high, double(p.sample.cash));
        fans_low = std::min(fans_low, double(p.sample.popularity));
        fans_high = std::max(fans_high, double(p.sample.popularity));
    }
    cash_.step = nice_step((cash_high - cash_low) / 4);
    cash_.low = std::floor(cash_low / cash_.step) * cash_.step;
    intervals_ = std::max(1, static_cast<int>(std::ceil((cash_high - cash_.low) / cash_.step)));
    fans_.step = nice_step((fans_high - fans_low) / intervals_);
    while (true) {
        fans_.low = std::floor(fans_low / fans_.step) * fans_.step;
        if (fans_.low + fans_.step * intervals_ >= fans_high) break;
        fans_.step = nice_step(fans_.step * 1.01);
    }
    cash_.high = cash_.low + cash_.step * intervals_;
    fans_.high = fans_.low + fans_.step * intervals_;
}

void WeekGraphView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect(), kBackground);
    const QRectF r = plot();
    p.fillRect(r, kPlotPaper);
    QFont small = font();
    small.setPixelSize(11);
    p.setFont(small);
    const QFontMetricsF fm(small);

    // The key, under the dates.
    auto key = [&](double x, const QColor& colour, const QString& text) {
        const double y = r.bottom() + 34;
        p.setPen(QPen(colour, 2.5));
        p.drawLine(QPointF(x, y), QPointF(x + 22, y));
        p.setPen(kInk);
        p.drawText(QPointF(x + 28, y + 4), text);
        return x + 28 + fm.horizontalAdvance(text) + 24;
    };
    key(key(r.left(), kCashColour, "Cash (left scale)"), kFansColour, "Popularity (right scale)");

    if (points_.empty()) {
        p.setPen(QPen(kFrame, 1));
        p.drawRect(r);
        p.setPen(kDim);
        p.drawText(r, Qt::AlignCenter | Qt::TextWordWrap,
                   "No week played yet.\nEach Next Week adds its cash and popularity here.");
        return;
    }

    // Grid and the two scales.
    for (int k = 0; k <= intervals_; ++k) {
        const double y = r.bottom() - r.height() * k / intervals_;
        p.setPen(QPen(kGrid, 1));
        p.drawLine(QPointF(r.left(), y), QPointF(r.right(), y));
        p.setPen(kCashColour);
        p.drawText(QRectF(0, y - 8, r.left() - 8, 16), Qt::AlignRight | Qt::AlignVCenter,
                   money(cash_.low + cash_.step * k));
        p.setPen(kFansColour);
        p.drawText(QRectF(r.right() + 8, y - 8, width() - r.right() - 8, 16),
                   Qt::AlignLeft | Qt::AlignVCenter,
                   QString::number(static_cast<qlonglong>(fans_.low + fans_.step * k)));
    }
    if (cash_.low < 0) {
        p.setPen(QPen(kDim, 1, Qt::DashLine));
        const double y = y_of(0, cash_);
        p.drawLine(QPointF(r.left(), y), QPointF(r.right(), y));
    }

    // The time axis: dates under ticks spaced so that the labels never crowd.
    const int n = static_cast<int>(points_.size());
    const double label_width = fm.horizontalAdvance("00/00/0000") + 18;
    const int room = std::max(1, static_cast<int>(r.width() / label_width));
    int step = kWeekSteps[0];
    for (int s : kWeekSteps) {
        step = s;
        if ((n - 1) / s + 1 <= room) break;
    }
    for (int i = 0; i < n; i += step) {
        const double x = x_of(i);
        p.setPen(QPen(kFrame, 1));
        p.drawLine(QPointF(x, r.bottom()), QPointF(x, r.bottom() + 5));
        const QString text = day(points_[i].sample);
        const double w = fm.horizontalAdvance(text);
        const double left = std::clamp(x - w / 2, 2.0, width() - w - 2.0);
        p.setPen(kInk);
        p.drawText(QPointF(left, r.bottom() + 19), text);
    }

    // Where a load started a new stretch of play, named over the plot.
    for (int i = 1; i < n; ++i) {
        if (!points_[i].start) continue;
        const double x = x_of(i);
        p.setPen(QPen(kDim, 1, Qt::DashLine));
        p.drawLine(QPointF(x, r.top() - 4), QPointF(x, r.bottom()));
        const QString text = "loaded " + day(points_[i].sample);
        const double w = fm.horizontalAdvance(text);
        p.setPen(kInk);
        p.drawText(QPointF(std::clamp(x - w / 2, 2.0, width() - w - 2.0), r.top() - 9), text);
    }

    // The two lines, one piece per stretch of play.
    auto series = [&](const QColor& colour, auto value, const Scale& s) {
        QPainterPath path;
        for (int i = 0; i < n; ++i) {
            const QPointF at(x_of(i), y_of(value(points_[i].sample), s));
            if (i == 0 || points_[i].start)
                path.moveTo(at);
            else
                path.lineTo(at);
        }
        p.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(Qt::NoBrush);
        p.drawPath(path);
        if (points_.size() > kDottedPoints) return;
        for (int i = 0; i < n; ++i) {
            p.setBrush(points_[i].start ? kPlotPaper : colour);
            p.drawEllipse(QPointF(x_of(i), y_of(value(points_[i].sample), s)), 3, 3);
        }
    };
    series(
        kFansColour, [](const WeekSample& w) { return double(w.popularity); }, fans_);
    series(
        kCashColour, [](const WeekSample& w) { return double(w.cash); }, cash_);

    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(kFrame, 1));
    p.drawRect(r);

    // The picked point: a line down the plot, rings on both lines and its figures.
    if (current_ >= 0) {
        const GraphPoint& pt = points_[current_];
        const double x = x_of(current_);
        p.setPen(QPen(QColor(251, 246, 236, 110), 1));
        p.drawLine(QPointF(x, r.top()), QPointF(x, r.bottom()));
        for (auto [colour, y] : {std::pair{kFansColour, y_of(pt.sample.popularity, fans_)},
                                 std::pair{kCashColour, y_of(pt.sample.cash, cash_)}}) {
            p.setPen(QPen(Qt::white, 1.5));
            p.setBrush(colour);
            p.drawEllipse(QPointF(x, y), 5, 5);
        }
        const QString lines[] = {
            (pt.start ? (current_ == 0 ? "Start " : "Loaded ") : "Week ending ") + day(pt.sample),
            "Cash " + QString::fromStdString(format_cash(pt.sample.cash)),
            QString("Popularity %1").arg(pt.sample.popularity)};
        double w = 0;
        for (const QString& l : lines) w = std::max(w, fm.horizontalAdvance(l));
        QRectF box(0, 0, w + 16, 3 * 15 + 10);
        box.moveTopLeft(QPointF(x + 10, r.top() + 8));
        if (box.right() > r.right() - 4) box.moveRight(x - 10);
        p.setPen(QPen(kFrame, 1));
        p.setBrush(QColor(27, 23, 32, 235));
        p.drawRoundedRect(box, 4, 4);
        const QColor colours[] = {kInk, kCashColour, kFansColour};
        for (int k = 0; k < 3; ++k) {
            p.setPen(colours[k]);
            p.drawText(QPointF(box.left() + 8, box.top() + 18 + 15 * k), lines[k]);
        }
    }
    if (hasFocus()) {
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(QColor("#fff0c8"), 1, Qt::DotLine));
        p.drawRect(r.adjusted(-3, -3, 3, 3));
    }
}

void WeekGraphView::mouseMoveEvent(QMouseEvent* event) {
    if (!points_.empty()) set_current(index_at(event->position().x()));
    QWidget::mouseMoveEvent(event);
}

void WeekGraphView::keyPressEvent(QKeyEvent* event) {
    const int last = static_cast<int>(points_.size()) - 1;
    switch (event->key()) {
        case Qt::Key_Left:
            set_current(current_ - 1);
            break;
        case Qt::Key_Right:
            set_current(current_ + 1);
            break;
        case Qt::Key_PageUp:
            set_current(current_ - 13);
            break;
        case Qt::Key_PageDown:
            set_current(current_ + 13);
            break;
        case Qt::Key_Home:
            set_current(0);
            break;
        case Qt::Key_End:
            set_current(last);
            break;
        default:
            QWidget::keyPressEvent(event);
    }
}

WeekGraphWindow::WeekGraphWindow(const Game& g)
    : g_(g), view_(new WeekGraphView(this)), readout_(new QLabel(this)) {
    setObjectName("weekgraph");
    setWindowTitle("Week Graph");
    setAccessibleName("Week Graph");
    dress_side_window(*this);
    resize(760, 500);
    setMinimumSize(440, 320);

    auto* heading = new QLabel("Week Graph", this);
    heading->setProperty("role", "heading");
    auto* about =
        new QLabel("Cash and popularity at the end of every week played in this run.", this);
    readout_->setProperty("role", "readout");
    readout_->setAccessibleName("Picked week");
    auto* hint = new QLabel("Point at the graph, or use Left, Right, Home and End.", this);
    hint->setProperty("role", "hint");
    auto* close = new QPushButton("Close", this);
    close->setAccessibleName("Close the week graph");
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QWidget::close);

    auto* bottom = new QHBoxLayout;
    bottom->addWidget(hint, 1);
    bottom->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(about);
    layout->addWidget(view_, 1);
    layout->addWidget(readout_);
    layout->addLayout(bottom);
    setTabOrder(view_, close);
    connect(view_, &WeekGraphView::currentChanged, this, [this] { show_readout(); });
    show_readout();
}

void WeekGraphWindow::refresh() {
    if (!isVisible()) return;
    if (filled_ && weeks_ == g_.history.size() && segments_ == g_.segments.size() &&
        loads_ == g_.history_loads)
        return;
    filled_ = true;
    loads_ = g_.history_loads;
    weeks_ = g_.history.size();
    segments_ = g_.segments.size();
    view_->set_points(graph_points(g_));
}

void WeekGraphWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
    view_->setFocus(Qt::ActiveWindowFocusReason);
}

void WeekGraphWindow::show_readout() {
    const QString text = view_->readout();
    readout_->setText(text);
    readout_->setAccessibleDescription(text);
}

}  // namespace tourvane

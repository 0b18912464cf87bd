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

#include "app/qt/shortcuts.h"
#include "app/qt/text.h"
#include "app/qt/window_style.h"
#include "core/ui.h"

namespace tourvane {

namespace {

const QColor kBackground("#141018"), kPlotPaper("#0d0b10"), kFrame("#4d4438"), kGrid("#2a2430");
const QColor kInk("#ece6da"), kDim("#8a8172");
const QColor kCashColour("#7fd67a"), kFansColour("#f0b650");
const QColor kHolidayShade(120, 200, 255, 28);

/// Up to this many points, each is marked with a dot.
constexpr std::size_t kDottedPoints = 60;

QString day(const WeekSample& s) {
    return QString::fromStdString(format_date(s.date));
}

}  // namespace

WeekGraphView::WeekGraphView(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName(qs(kGraphName));
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
    return qs(graph_readout(points_, current_));
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
    const GraphScales scales = graph_scales(points_);
    cash_ = scales.cash;
    fans_ = scales.fans;
    intervals_ = scales.intervals;
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
    key(key(r.left(), kCashColour, qs(kCashLine)), kFansColour, qs(kFansLine));

    if (points_.empty()) {
        p.setPen(QPen(kFrame, 1));
        p.drawRect(r);
        p.setPen(kDim);
        p.drawText(r, Qt::AlignCenter | Qt::TextWordWrap, kEmptyGraph);
        return;
    }

    // Grid and the two scales.
    for (int k = 0; k <= intervals_; ++k) {
        const double y = r.bottom() - r.height() * k / intervals_;
        p.setPen(QPen(kGrid, 1));
        p.drawLine(QPointF(r.left(), y), QPointF(r.right(), y));
        p.setPen(kCashColour);
        p.drawText(QRectF(0, y - 8, r.left() - 8, 16), Qt::AlignRight | Qt::AlignVCenter,
                   qs(graph_money(cash_.low + cash_.step * k)));
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
    const int step = date_step(n, static_cast<int>(r.width() / label_width));
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

    // The weeks the band spent on holiday: a shaded band each, named at its foot.
    const double half = n > 1 ? (x_of(1) - x_of(0)) / 2 : 0;
    for (int i = 0; i < n; ++i) {
        if (!points_[i].holiday || (i > 0 && points_[i - 1].holiday)) continue;
        int last = i;
        while (last + 1 < n && points_[last + 1].holiday) ++last;
        const QRectF band(QPointF(x_of(i) - half, r.top()), QPointF(x_of(last) + half, r.bottom()));
        p.fillRect(band.intersected(r), kHolidayShade);
        p.setPen(kDim);
        p.drawText(band.adjusted(0, 0, 0, -4), Qt::AlignHCenter | Qt::AlignBottom,
                   qs(kHolidayMark));
    }

    // Where a load started a new stretch of play, named over the plot.
    for (int i = 1; i < n; ++i) {
        if (!points_[i].start) continue;
        const double x = x_of(i);
        p.setPen(QPen(kDim, 1, Qt::DashLine));
        p.drawLine(QPointF(x, r.top() - 4), QPointF(x, r.bottom()));
        const QString text = qs(stretch_label(points_[i]));
        const double w = fm.horizontalAdvance(text);
        p.setPen(kInk);
        p.drawText(QPointF(std::clamp(x - w / 2, 2.0, width() - w - 2.0), r.top() - 9), text);
    }

    // The two lines, one piece per stretch of play.
    auto series = [&](const QColor& colour, auto value, const Scale& s) {
        QPainterPath path;
        for (int i = 0; i < n; ++i) {
            if (points_[i].holiday) continue;  // no week played: the line runs across
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
            if (points_[i].holiday) continue;
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
        const double fans_y = y_of(pt.sample.popularity, fans_),
                     cash_y = y_of(pt.sample.cash, cash_);
        for (auto [colour, y] : {std::pair{kFansColour, fans_y}, std::pair{kCashColour, cash_y}}) {
            if (pt.holiday) break;  // a holiday week has no figures to mark
            p.setPen(QPen(Qt::white, 1.5));
            p.setBrush(colour);
            p.drawEllipse(QPointF(x, y), 5, 5);
        }
        const auto label = point_label(points_, current_);
        const QString lines[] = {qs(label[0]), qs(label[1]), qs(label[2])};
        double w = 0;
        for (const QString& l : lines) w = std::max(w, fm.horizontalAdvance(l));
        QRectF box(0, 0, w + 16, 3 * 15 + 10);
        const Rect plot{int(r.left()), int(r.top()), int(r.width()), int(r.height())};
        const Place at = place_label(plot, x, fans_y, cash_y, box.width(), box.height(), 10);
        box.moveTopLeft(QPointF(at.left, at.top));
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
    const KeyBinding* b = find_key(place::kGraph, key_name(*event));
    if (!b || b->action == KeyAction::Close || b->action == KeyAction::Quit) {
        QWidget::keyPressEvent(event);
        return;
    }
    set_current(graph_move(b->action, current_, static_cast<int>(points_.size())));
}

WeekGraphWindow::WeekGraphWindow(const Game& g)
    : g_(g), view_(new WeekGraphView(this)), readout_(new QLabel(this)) {
    setObjectName("weekgraph");
    setWindowTitle(qs(kGraphWords.title));
    setAccessibleName(qs(kGraphWords.title));
    dress_side_window(*this, place::kGraph);
    resize(720, 460);  // with its frame, within a 1920x1080 desktop at scale 2
    setMinimumSize(440, 320);

    auto* heading = new QLabel(qs(kGraphWords.title), this);
    heading->setProperty("role", "heading");
    auto* about = new QLabel(qs(kGraphWords.about), this);
    readout_->setProperty("role", "readout");
    readout_->setAccessibleName(qs(kPickedWeek));
    auto* hint = new QLabel(qs(kGraphHint), this);
    hint->setProperty("role", "hint");
    auto* close = new QPushButton(qs(kCloseButton), this);
    close->setAccessibleName(qs(kGraphWords.close));
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

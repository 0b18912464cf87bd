#include "app/qt/control_widgets.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <algorithm>

namespace tourvane {

namespace {

/// The room a row's text loses to the padding of the row in the screens' style.
constexpr int kRowPadding = 6;

}  // namespace

HotSpot::HotSpot(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setCursor(Qt::PointingHandCursor);
}

void HotSpot::paintEvent(QPaintEvent*) {
    if (!isEnabled()) return;
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF r = QRectF(rect()).adjusted(1, 1, -1, -1);
    QPainterPath shape;
    shape.addRoundedRect(r, 4, 4);
    if (isDown())
        p.fillPath(shape, QColor(0, 0, 0, 70));
    else if (underMouse())
        p.fillPath(shape, QColor(255, 214, 140, 45));
    if (hasFocus()) {
        p.setPen(QPen(QColor(255, 236, 190), 1.5, Qt::DotLine));
        p.drawPath(shape);
    }
}

void HotSpot::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

ClickLabel::ClickLabel(QWidget* parent) : QPushButton(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setFlat(true);
    setAutoDefault(false);
    setCursor(Qt::PointingHandCursor);
}

void ClickLabel::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QPushButton::keyPressEvent(event);
}

ListBox::ListBox(QWidget* parent) : QListWidget(parent) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setDragEnabled(false);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // rows too long are cut with "…"
}

void ListBox::fit_whole_rows() {
    ensurePolished();
    row_height_ = fontMetrics().height() + 2;
    const int frame = 2 * frameWidth();
    whole_rows_ = std::max(1, (height() - frame) / row_height_);
    setFixedHeight(whole_rows_ * row_height_ + frame);
    setUniformItemSizes(true);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
}

int ListBox::row_room(int rows) const {
    const int bar = rows > whole_rows_ ? verticalScrollBar()->sizeHint().width() : 0;
    return width() - 2 * frameWidth() - bar - kRowPadding;
}

void ListBox::mousePressEvent(QMouseEvent* event) {
    setFocus(Qt::MouseFocusReason);
    if (event->button() != Qt::LeftButton) return;
    const int row = indexAt(event->position().toPoint()).row();
    if (row >= 0) emit rowClicked(row);
}

void ListBox::mouseReleaseEvent(QMouseEvent*) {}

void ListBox::mouseMoveEvent(QMouseEvent*) {}

void ListBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    emit rowDoubleClicked(indexAt(event->position().toPoint()).row());
}

void ListBox::keyPressEvent(QKeyEvent* event) {
    const int rows = count();
    const int here = currentRow();
    int to = -1;
    switch (event->key()) {
        case Qt::Key_Up:
            to = here < 0 ? 0 : here - 1;
            break;
        case Qt::Key_Down:
            to = here < 0 ? 0 : here + 1;
            break;
        case Qt::Key_Home:
            to = 0;
            break;
        case Qt::Key_End:
            to = rows - 1;
            break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (here >= 0) emit rowDoubleClicked(here);
            return;
        default:
            event->ignore();
            return;  // no type-ahead: the game owns the selection
    }
    if (rows > 0 && to >= 0 && to < rows && to != here) emit rowClicked(to);
}

}  // namespace tourvane

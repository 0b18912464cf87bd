#include "app/qt/career_windows.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/qt/diary_window.h"
#include "app/qt/text.h"
#include "app/qt/week_graph.h"
#include "app/qt/window_style.h"
#include "view/career.h"
#include "view/diary.h"
#include "view/keys.h"
#include "view/week_graph.h"

namespace tourvane {

namespace {

/// A heading, the line under it and a Close button round `body`.
void frame_window(QWidget& window, const WindowWords& words, QWidget* body) {
    window.setWindowTitle(qs(words.title));
    window.setAccessibleName(qs(words.title));
    auto* heading = new QLabel(qs(words.title), &window);
    heading->setProperty("role", "heading");
    auto* about = new QLabel(qs(words.about), &window);
    about->setWordWrap(true);
    auto* close = new QPushButton(qs(kCloseButton), &window);
    close->setAccessibleName(qs(words.close));
    close->setAutoDefault(false);
    QObject::connect(close, &QPushButton::clicked, &window, &QWidget::close);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(close);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(heading);
    layout->addWidget(about);
    layout->addWidget(body, 1);
    layout->addLayout(bottom);
}

}  // namespace

SummaryView::SummaryView(QWidget* parent) : QWidget(parent), lines_(new QTreeWidget(this)) {
    lines_->setColumnCount(2);
    lines_->setHeaderHidden(true);
    lines_->setRootIsDecorated(false);
    lines_->setSelectionBehavior(QAbstractItemView::SelectRows);
    lines_->setAllColumnsShowFocus(true);
    lines_->setWordWrap(true);
    lines_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    lines_->header()->setStretchLastSection(true);
    lines_->setAccessibleName(qs(kSummaryWords.title));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(lines_);
}

void SummaryView::show_summary(const CareerSummary& s) {
    lines_->clear();
    for (const SummaryLine& line : summary_lines(s)) {
        auto* item = new QTreeWidgetItem(lines_, {qs(line.label), qs(line.value)});
        item->setData(0, Qt::AccessibleTextRole, qs(line.label + ": " + line.value));
        item->setToolTip(1, qs(line.value));
        QFont bold = item->font(0);
        bold.setBold(true);
        item->setFont(0, bold);
        item->setForeground(0, QColor("#f0b650"));
    }
}

SummaryWindow::SummaryWindow() : view_(new SummaryView(this)) {
    setObjectName("summary");
    dress_side_window(*this, place::kSummary);
    frame_window(*this, kSummaryWords, view_);
    resize(460, 440);
    setMinimumSize(320, 280);
}

HallWindow::HallWindow(FilePort& files)
    : files_(files),
      careers_(new QTreeWidget(this)),
      summary_(new SummaryView(this)),
      shown_(quiet_),
      diary_(std::make_unique<DiaryWindow>(shown_)),
      graph_(std::make_unique<WeekGraphWindow>(shown_)) {
    setObjectName("hall");
    dress_side_window(*this, place::kHall);
    careers_->setAccessibleName(qs(kHallList));
    careers_->setHeaderHidden(true);
    careers_->setRootIsDecorated(false);
    careers_->setTextElideMode(Qt::ElideRight);  // the whole name is a hover away
    auto* body = new QWidget(this);
    auto* open_diary = new QPushButton(qs(kDiaryWords.title), body);
    auto* open_graph = new QPushButton(qs(kGraphWords.title), body);
    for (QPushButton* b : {open_diary, open_graph}) b->setAutoDefault(false);
    open_diary->setAccessibleName(qs(kHallDiary));
    open_graph->setAccessibleName(qs(kHallGraph));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(open_diary);
    buttons->addWidget(open_graph);
    buttons->addStretch(1);
    auto* column = new QVBoxLayout(body);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(careers_, 2);
    column->addWidget(summary_, 3);
    column->addLayout(buttons);
    frame_window(*this, kHallWords, body);
    resize(560, 460);
    setMinimumSize(360, 320);
    connect(careers_, &QTreeWidget::currentItemChanged, this,
            [this] { pick(careers_->indexOfTopLevelItem(careers_->currentItem())); });
    connect(open_diary, &QPushButton::clicked, this, [this] {
        if (careers_->currentItem()) diary_->show(), diary_->raise(), diary_->activateWindow();
    });
    connect(open_graph, &QPushButton::clicked, this, [this] {
        if (careers_->currentItem()) graph_->show(), graph_->raise(), graph_->activateWindow();
    });
}

HallWindow::~HallWindow() = default;

void HallWindow::showEvent(QShowEvent* event) {
    hall_ = read_hall(files_);
    const QSignalBlocker quiet(careers_);
    careers_->clear();
    for (const FameEntry& e : hall_) {
        const QString line = qs(hall_line(e.summary));
        auto* item = new QTreeWidgetItem(careers_, {line});
        item->setToolTip(0, line);
    }
    if (hall_.empty()) new QTreeWidgetItem(careers_, {qs(kEmptyHall)});
    careers_->setEnabled(!hall_.empty());
    careers_->setCurrentItem(hall_.empty() ? nullptr : careers_->topLevelItem(0));
    pick(hall_.empty() ? -1 : 0);
    QWidget::showEvent(event);
}

void HallWindow::pick(int row) {
    if (row < 0 || row >= static_cast<int>(hall_.size())) {
        summary_->lines()->clear();
        return;
    }
    const FameEntry& e = hall_[static_cast<std::size_t>(row)];
    summary_->show_summary(e.summary);
    shown_.diary = e.diary;
    shown_.history = e.history;
    shown_.segments = e.segments;
    shown_.rec.gamedate = e.summary.last_day;
    ++shown_.history_loads;  // another career: the windows show it from scratch
    diary_->refresh();
    graph_->refresh();
}

}  // namespace tourvane

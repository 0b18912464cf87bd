#include "app/qt/diary_window.h"

#include <QAbstractTableModel>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

#include "app/qt/shortcuts.h"
#include "app/qt/text.h"
#include "app/qt/window_style.h"
#include "core/diary.h"
#include "core/ui.h"
#include "view/notes.h"

namespace tourvane {

namespace {

enum Column { kDate, kFrom, kText, kColumns };

/// Measures a message at the width of its column, so that a long one takes the lines it needs.
class WrappingDelegate : public QStyledItemDelegate {
  public:
    explicit WrappingDelegate(QTreeView* view) : QStyledItemDelegate(view), view_(view) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem at_width = option;
        // The style wraps only within a valid rectangle: any height will do.
        at_width.rect = QRect(0, 0, view_->header()->sectionSize(index.column()), 1);
        at_width.features |= QStyleOptionViewItem::WrapText;
        return QStyledItemDelegate::sizeHint(at_width, index);
    }

  private:
    QTreeView* view_;
};

}  // namespace

/// The diary as a table, newest entry in the top row. It shows the entries it has been told
/// of, so that new ones arrive as inserted rows.
class DiaryModel : public QAbstractTableModel {
  public:
    DiaryModel(const std::vector<DiaryEntry>& diary, QObject* parent)
        : QAbstractTableModel(parent), diary_(diary) {}

    /// Inserts the entries written since the last call at the top; after a load has put
    /// another career's diary in place (`fresh`), shows it from scratch.
    void sync(bool fresh) {
        if (fresh || diary_.size() < shown_) {
            beginResetModel();
            shown_ = diary_.size();
            endResetModel();
        } else if (diary_.size() > shown_) {
            beginInsertRows({}, 0, static_cast<int>(diary_.size() - shown_) - 1);
            shown_ = diary_.size();
            endInsertRows();
        }
    }

    const DiaryEntry& entry(int row) const { return diary_[shown_ - 1 - row]; }

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(shown_);
    }
    int columnCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : kColumns;
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid()) return {};
        const DiaryEntry& e = entry(index.row());
        if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
            switch (index.column()) {
                case kDate:
                    return qs(format_date(e.date));
                case kFrom:
                    return qs(e.from);
                default: {
                    const std::string note = diary_note(e);
                    return qs(note.empty() ? e.text : e.text + "\n" + note);
                }
            }
        }
        if (role == Qt::ForegroundRole && index.column() == kFrom)
            return QColor(e.from == kBoxSender ? "#9fc4e8" : "#f0b650");
        return {};
    }

    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
        return QString::fromLatin1(kDiaryColumns[section]);
    }

  private:
    const std::vector<DiaryEntry>& diary_;
    std::size_t shown_ = 0;
};

/// Keeps the rows the diary's filter shows.
class DiaryProxy : public QSortFilterProxyModel {
  public:
    DiaryProxy(const DiaryModel& model, QObject* parent)
        : QSortFilterProxyModel(parent), model_(model) {}

    void set_sender(const QString& sender) {
        filter_.sender = sender.toStdString();
        invalidateFilter();
    }
    void set_search(const QString& words) {
        filter_.search(words.toStdString());
        invalidateFilter();
    }

  protected:
    bool filterAcceptsRow(int row, const QModelIndex&) const override {
        return filter_.shows(model_.entry(row));
    }

  private:
    const DiaryModel& model_;
    DiaryFilter filter_;
};

DiaryWindow::DiaryWindow(const Game& g)
    : g_(g),
      model_(new DiaryModel(g.diary, this)),
      filter_(new DiaryProxy(*model_, this)),
      senders_(new QComboBox(this)),
      search_(new QLineEdit(this)),
      entries_(new QTreeView(this)),
      count_(new QLabel(this)) {
    setObjectName("diary");
    setWindowTitle(qs(kDiaryWords.title));
    setAccessibleName(qs(kDiaryWords.title));
    dress_side_window(*this, place::kDiary);
    resize(660, 460);
    setMinimumSize(420, 260);

    auto* heading = new QLabel(qs(kDiaryWords.title), this);
    heading->setProperty("role", "heading");
    auto* about = new QLabel(qs(kDiaryWords.about), this);

    auto* from_label = new QLabel(qs(kSenderLabel), this);
    from_label->setBuddy(senders_);
    senders_->setAccessibleName(qs(kSenderName));
    senders_->setAccessibleDescription(qs(kSenderHelp));
    senders_->addItem(qs(kEveryone), QString());
    senders_->setMinimumContentsLength(12);
    auto* search_label = new QLabel(qs(kSearchLabel), this);
    search_label->setBuddy(search_);
    search_->setAccessibleName(qs(kSearchName));
    search_->setAccessibleDescription(qs(kSearchHelp));
    search_->setPlaceholderText(qs(kSearchHint));
    search_->setClearButtonEnabled(true);

    filter_->setSourceModel(model_);
    entries_->setModel(filter_);
    entries_->setAccessibleName(qs(kDiaryEntries));
    entries_->setRootIsDecorated(false);
    entries_->setItemsExpandable(false);
    entries_->setAlternatingRowColors(true);
    entries_->setUniformRowHeights(false);
    entries_->setWordWrap(true);
    entries_->setTextElideMode(Qt::ElideNone);
    entries_->setItemDelegateForColumn(kText, new WrappingDelegate(entries_));
    entries_->setSelectionBehavior(QAbstractItemView::SelectRows);
    entries_->setAllColumnsShowFocus(true);
    entries_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    entries_->header()->setSectionResizeMode(kDate, QHeaderView::ResizeToContents);
    entries_->header()->setSectionResizeMode(kFrom, QHeaderView::ResizeToContents);
    entries_->header()->setSectionResizeMode(kText, QHeaderView::Stretch);
    entries_->header()->setSectionsMovable(false);
    entries_->header()->setStretchLastSection(true);
    // A long message wraps over more lines when the window narrows.
    connect(entries_->header(), &QHeaderView::sectionResized, this,
            [this] { entries_->doItemsLayout(); });

    count_->setProperty("role", "readout");
    count_->setAccessibleName(qs(kDiaryCount));
    auto* close = new QPushButton(qs(kCloseButton), this);
    close->setAccessibleName(qs(kDiaryWords.close));
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QWidget::close);

    auto* filters = new QHBoxLayout;
    filters->addWidget(from_label);
    filters->addWidget(senders_);
    filters->addSpacing(12);
    filters->addWidget(search_label);
    filters->addWidget(search_, 1);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(count_, 1);
    bottom->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(about);
    layout->addLayout(filters);
    layout->addWidget(entries_, 1);
    layout->addLayout(bottom);
    setTabOrder(senders_, search_);
    setTabOrder(search_, entries_);
    setTabOrder(entries_, close);

    connect(senders_, &QComboBox::currentIndexChanged, this, [this] {
        filter_->set_sender(senders_->currentData().toString());
        show_count();
    });
    connect(search_, &QLineEdit::textChanged, this, [this](const QString& words) {
        filter_->set_search(words);
        show_count();
    });
    connect(filter_, &QAbstractItemModel::rowsInserted, this, [this] { show_count(); });
    bind_keys(*this, place::kDiary, {KeyAction::ChooseSender, KeyAction::Search},
              [this](const KeyBinding& b) {
                  if (b.action == KeyAction::ChooseSender) {
                      senders_->setFocus(Qt::ShortcutFocusReason);
                      return;
                  }
                  search_->setFocus(Qt::ShortcutFocusReason);
                  search_->selectAll();
              });
    show_count();
}

DiaryWindow::~DiaryWindow() {
    // The widgets below go after this part of the window: none of them may call back into it.
    for (QObject* sender :
         {static_cast<QObject*>(entries_->header()), static_cast<QObject*>(filter_),
          static_cast<QObject*>(senders_), static_cast<QObject*>(search_)})
        sender->disconnect(this);
}

void DiaryWindow::refresh() {
    if (!isVisible()) return;
    const bool fresh = loads_seen_ != g_.history_loads;
    take_senders();
    model_->sync(fresh);
    loads_seen_ = g_.history_loads;
}

void DiaryWindow::showEvent(QShowEvent* event) {
    const bool fresh = loads_seen_ != g_.history_loads;
    take_senders();
    model_->sync(fresh);
    loads_seen_ = g_.history_loads;
    show_count();
    QWidget::showEvent(event);
}

void DiaryWindow::take_senders() {
    if (!senders_seen_.take(g_)) return;
    // The filter keeps its choice where the sender is still in the list.
    const QString chosen = senders_->currentData().toString();
    const QSignalBlocker quiet(senders_);
    while (senders_->count() > 1) senders_->removeItem(1);
    for (const std::string& name : senders_seen_.names()) senders_->addItem(qs(name), qs(name));
    const int at = senders_->findData(chosen);
    senders_->setCurrentIndex(at < 0 ? 0 : at);
    if (at < 0 && !chosen.isEmpty()) filter_->set_sender(QString());
}

void DiaryWindow::show_count() {
    const QString text = qs(diary_count_line(static_cast<std::size_t>(filter_->rowCount()),
                                             static_cast<std::size_t>(model_->rowCount({}))));
    count_->setText(text);
    count_->setAccessibleDescription(text);
}

}  // namespace tourvane

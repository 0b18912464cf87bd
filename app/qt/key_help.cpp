#include "app/qt/key_help.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/qt/text.h"
#include "app/qt/window_style.h"
#include "view/help.h"
#include "view/keys.h"

namespace tourvane {

KeyHelpWindow::KeyHelpWindow(Game& g)
    : parts_(new QTabWidget(this)),
      how_(new QTextBrowser(this)),
      keys_(new QTreeWidget(this)),
      about_(new QLabel(this)) {
    setObjectName("keyhelp");
    setWindowTitle(qs(kHelpWords.title));
    setAccessibleName(qs(kHelpWords.title));
    dress_side_window(*this, place::kHelp);
    resize(520, 460);  // with its frame, within a 1920x1080 desktop at scale 2
    setMinimumSize(320, 300);

    QString page;
    for (const HelpParagraph& p : tourvane::how_to_play(g))
        page += "<h3>" + qs(p.heading).toHtmlEscaped() + "</h3><p>" + qs(p.text).toHtmlEscaped() +
                "</p>";
    how_->document()->setDefaultStyleSheet("h3 { color: #f0b650; }");
    how_->setHtml(page);
    how_->setAccessibleName(qs(kHowToPlay));
    how_->setOpenLinks(false);

    keys_->setAccessibleName(qs(kHelpList));
    keys_->setColumnCount(2);
    keys_->setHeaderLabels({qs(kHelpColumns[0]), qs(kHelpColumns[1])});
    keys_->setRootIsDecorated(false);
    keys_->setIndentation(14);
    keys_->setItemsExpandable(false);
    keys_->setSelectionBehavior(QAbstractItemView::SelectRows);
    keys_->setAllColumnsShowFocus(true);
    keys_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    keys_->header()->setStretchLastSection(true);

    for (const HelpSection& section : key_help(g)) {
        auto* group = new QTreeWidgetItem(keys_, {QString::fromStdString(section.title)});
        group->setFirstColumnSpanned(true);
        group->setFlags(Qt::ItemIsEnabled);
        QFont bold = group->font(0);
        bold.setBold(true);
        group->setFont(0, bold);
        group->setForeground(0, QColor("#f0b650"));
        for (const HelpRow& row : section.rows) {
            const QString key = QString::fromStdString(row.keys);
            const QString what = QString::fromStdString(row.what);
            auto* item = new QTreeWidgetItem(group, {key, what});
            item->setData(0, Qt::AccessibleTextRole, key + ": " + what);
        }
    }
    keys_->expandAll();

    about_->setObjectName("about");
    about_->setTextFormat(Qt::PlainText);
    about_->setWordWrap(true);
    about_->setText(QString::fromStdString(about_text()));
    about_->setAccessibleName(qs(kAboutName));
    auto* about_heading = new QLabel(qs(kAboutHeading), this);
    about_heading->setProperty("role", "heading");

    auto* close = new QPushButton(qs(kCloseButton), this);
    close->setAccessibleName(qs(kHelpWords.close));
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(close);
    parts_->addTab(how_, qs(kHowToPlay));
    parts_->addTab(keys_, qs(kKeysPart));
    parts_->setAccessibleName(qs(kHelpWords.title));
    parts_->tabBar()->setAccessibleName(qs(kHelpWords.title));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(parts_, 1);
    layout->addWidget(about_heading);
    layout->addWidget(about_);
    layout->addLayout(bottom);
}

}  // namespace tourvane

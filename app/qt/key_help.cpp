#include "app/qt/key_help.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/qt/form_skins.h"
#include "app/qt/window_style.h"
#include "core/about.h"
#include "flow/clicks.h"

namespace tourvane {

QKeySequence diary_key() {
    return QKeySequence(Qt::Key_D);
}
QKeySequence graph_key() {
    return QKeySequence(Qt::Key_G);
}
QKeySequence help_key() {
    return QKeySequence(Qt::Key_F1);
}
QKeySequence quit_key() {
    return QKeySequence(Qt::CTRL | Qt::Key_Q);
}

namespace {

QString shown(const QKeySequence& k) {
    return k.toString(QKeySequence::NativeText);
}

}  // namespace

KeyHelpWindow::KeyHelpWindow(Game& g) : keys_(new QTreeWidget(this)), about_(new QLabel(this)) {
    setObjectName("keyhelp");
    setWindowTitle("Keys");
    setAccessibleName("Keys");
    dress_side_window(*this);
    resize(500, 590);
    setMinimumSize(320, 300);

    auto* heading = new QLabel("Keys", this);
    heading->setProperty("role", "heading");
    keys_->setAccessibleName("Keys and what they do");
    keys_->setColumnCount(2);
    keys_->setHeaderLabels({"Key", "What it does"});
    keys_->setRootIsDecorated(false);
    keys_->setIndentation(14);
    keys_->setItemsExpandable(false);
    keys_->setSelectionBehavior(QAbstractItemView::SelectRows);
    keys_->setAllColumnsShowFocus(true);
    keys_->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    keys_->header()->setStretchLastSection(true);

    QTreeWidgetItem* group = nullptr;
    auto section = [&](const QString& title) {
        group = new QTreeWidgetItem(keys_, {title});
        group->setFirstColumnSpanned(true);
        group->setFlags(Qt::ItemIsEnabled);
        QFont bold = group->font(0);
        bold.setBold(true);
        group->setFont(0, bold);
        group->setForeground(0, QColor("#f0b650"));
    };
    auto row = [&](const QString& key, const QString& what) {
        auto* item = new QTreeWidgetItem(group, {key, what});
        item->setData(0, Qt::AccessibleTextRole, key + ": " + what);
    };

    section("In the office");
    for (const auto& [name, sequence] : office_keys()) {
        const Control* spot = find_control(g, "main", name, -1);
        row(shown(sequence), spot ? QString::fromStdString(spot->tooltip) : QString(name.c_str()));
    }
    row(shown(diary_key()), "Open the diary of memos and messages");
    row(shown(graph_key()), "Open the week graph of cash and popularity");
    row(shown(help_key()), "Show these keys and what Tourvane is");
    row(shown(quit_key()), "Quit, as the Quit button does: the office asks first");
    row("Tab, Shift+Tab", "Move between the buttons, lists and options");
    row("Space, Return", "Press the button that has the focus");

    section("In the diary");
    row("Alt+F", "Choose whose messages to show");
    row("Alt+S, " + shown(QKeySequence(QKeySequence::Find)), "Search the messages");
    row("Up, Down", "Move through the messages");
    row("Esc", "Close the diary");

    section("In the week graph");
    row("Left, Right", "The week before or after");
    row("Page Up, Page Down", "Thirteen weeks back or on");
    row("Home, End", "The first or the latest week");
    row("Esc", "Close the graph");

    section("In this list");
    row("Esc", "Close it");
    section("In every window");
    row(shown(quit_key()), "Quit: at once from the title, after a question from elsewhere");
    keys_->expandAll();

    about_->setObjectName("about");
    about_->setTextFormat(Qt::PlainText);
    about_->setWordWrap(true);
    about_->setText(QString("Tourvane %1\n%2\nLicence: %3 (GNU General Public License, "
                            "version 3 or later)")
                        .arg(QString::fromUtf8(kVersion.data(), kVersion.size()),
                             QString::fromUtf8(kWhatItIs.data(), kWhatItIs.size()),
                             QString::fromUtf8(kLicence.data(), kLicence.size())));
    about_->setAccessibleName("About Tourvane");
    auto* about_heading = new QLabel("About", this);
    about_heading->setProperty("role", "heading");

    auto* close = new QPushButton("Close", this);
    close->setAccessibleName("Close the key list");
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addWidget(keys_, 1);
    layout->addWidget(about_heading);
    layout->addWidget(about_);
    layout->addLayout(bottom);
}

}  // namespace tourvane

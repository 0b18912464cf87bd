#include "app/qt/window_style.h"

#include <QPalette>
#include <QWidget>

#include "app/qt/shortcuts.h"

namespace tourvane {

const char* const kScrollBarStyle = R"(
QScrollBar:vertical { background: #1b1720; width: 10px; margin: 0px; border: none; }
QScrollBar:horizontal { background: #1b1720; height: 10px; margin: 0px; border: none; }
QScrollBar::handle { background: #8a6a32; border-radius: 4px; margin: 1px; }
QScrollBar::handle:vertical { min-height: 16px; }
QScrollBar::handle:horizontal { min-width: 16px; }
QScrollBar::handle:hover { background: #c9973f; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0px; height: 0px; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

const char* const kToolTipStyle = R"(
QToolTip {
    color: #2b2620; background: #f6f0dc; border: 1px solid #8a2a22; border-radius: 3px;
    padding: 3px 5px; font-family: "Liberation Sans", Arial; font-size: 12px;
    font-weight: normal; font-style: normal;
}
)";

void dress_side_window(QWidget& window, std::string_view where) {
    QPalette p = window.palette();
    const QColor ink("#ece6da"), paper("#1b1720"), field("#0d0b10"), gold("#c9973f");
    p.setColor(QPalette::Window, paper);
    p.setColor(QPalette::WindowText, ink);
    p.setColor(QPalette::Base, field);
    p.setColor(QPalette::AlternateBase, QColor("#16131b"));
    p.setColor(QPalette::Text, ink);
    p.setColor(QPalette::Button, QColor("#2f2934"));
    p.setColor(QPalette::ButtonText, ink);
    p.setColor(QPalette::Highlight, gold);
    p.setColor(QPalette::HighlightedText, QColor("#141018"));
    p.setColor(QPalette::ToolTipBase, field);
    p.setColor(QPalette::ToolTipText, ink);
    p.setColor(QPalette::PlaceholderText, QColor("#8a8172"));
    p.setColor(QPalette::Disabled, QPalette::Text, QColor("#6d665c"));
    p.setColor(QPalette::Disabled, QPalette::WindowText, QColor("#6d665c"));
    p.setColor(QPalette::Disabled, QPalette::ButtonText, QColor("#6d665c"));
    window.setPalette(p);
    window.setAutoFillBackground(true);
    window.setStyleSheet(QString(R"(
* { font-family: "Liberation Sans", Arial; font-size: 12px; }
QLabel { color: #ece6da; background: transparent; }
QLabel[role="heading"] { color: #f0b650; font-size: 16px; font-weight: bold; }
QLabel[role="readout"] { color: #fbf6ec; font-weight: bold; }
QLabel[role="hint"] { color: #8a8172; }
QPushButton {
    background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #5a4f5e, stop:1 #2f2934);
    border: 1px solid #c9973f; border-radius: 4px; color: #f6e7c8; font-weight: bold;
    padding: 4px 18px;
}
QPushButton:hover { background: #6a5c6e; }
QPushButton:pressed { background: #2a2430; }
QPushButton:focus { border-color: #fff0c8; }
QComboBox, QLineEdit {
    background: #0d0b10; color: #ece6da; border: 1px solid #4d4438; border-radius: 2px;
    padding: 2px 6px; min-height: 18px;
}
QComboBox:focus, QLineEdit:focus { border-color: #c9973f; }
QComboBox QAbstractItemView {
    background: #0d0b10; color: #ece6da; selection-background-color: #c9973f;
    selection-color: #141018;
}
QTreeView {
    background: #0d0b10; alternate-background-color: #16131b; color: #ece6da;
    border: 1px solid #4d4438; border-radius: 2px;
}
QTreeView:focus { border-color: #c9973f; }
QTreeView::item { padding: 2px 4px; }
QTreeView::item:selected { background: #c9973f; color: #141018; }
QHeaderView::section {
    background: #2f2934; color: #f0b650; font-weight: bold; border: none;
    border-right: 1px solid #1b1720; padding: 3px 6px;
}
QTextBrowser {
    background: #0d0b10; color: #ece6da; border: 1px solid #4d4438; border-radius: 2px;
}
QTextBrowser:focus { border-color: #c9973f; }
QTabWidget::pane { border: none; }
QTabBar::tab {
    background: #2f2934; color: #d8cfbf; border: 1px solid #4d4438; border-bottom: none;
    padding: 4px 14px; margin-right: 2px; border-top-left-radius: 4px;
    border-top-right-radius: 4px;
}
QTabBar::tab:selected { background: #0d0b10; color: #f0b650; font-weight: bold; }
QTabBar::tab:focus { border-color: #c9973f; }
)") + kScrollBarStyle + kToolTipStyle);
    bind_keys(window, where, {KeyAction::Close}, [&window](const KeyBinding&) { window.close(); });
}

}  // namespace tourvane

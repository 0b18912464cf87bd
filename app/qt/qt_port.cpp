#include "app/qt/qt_port.h"

#include <QApplication>
#include <QEvent>
#include <QFontMetrics>
#include <QInputDialog>
#include <QMessageBox>
#include <QPalette>
#include <QPushButton>
#include <algorithm>

#include "app/qt/text.h"
#include "view/screens.h"

namespace tourvane {

namespace {

/// The boxes' own look, a sheet of memo paper with red ink buttons: set on the box itself so
/// that no screen underneath lends it its colours.
const char* const kBoxStyle = R"(
* {
    font-family: "Liberation Sans", Arial; font-size: 12px; font-weight: normal;
    font-style: normal; color: #2b2620;
}
QDialog { background: #f6f0dc; }
QLabel { background: transparent; border: none; padding: 0px; }
QPushButton {
    background: #8a2a22; color: #fff6e8; font-weight: bold; border: 1px solid #5e1c16;
    border-radius: 3px; padding: 4px 16px; min-width: 52px;
}
QPushButton:hover { background: #a3352b; }
QPushButton:pressed { background: #6e211b; }
QPushButton:focus { border: 2px solid #2b2620; }
QLineEdit {
    background: #fffaf0; color: #2b2620; border: 1px solid #8a2a22; border-radius: 2px;
    padding: 3px 5px; selection-background-color: #8a2a22; selection-color: #fff6e8;
}
)";

/// The least width of a prompt, and what a window frame's buttons take of its title bar.
constexpr int kPromptWidth = 360;
constexpr int kFrameButtons = 160;

void dress_box(QDialog& box) {
    QPalette p = QApplication::palette();
    const QColor paper("#f6f0dc"), ink("#2b2620"), red("#8a2a22"), cream("#fff6e8");
    p.setColor(QPalette::Window, paper);
    p.setColor(QPalette::WindowText, ink);
    p.setColor(QPalette::Base, QColor("#fffaf0"));
    p.setColor(QPalette::Text, ink);
    p.setColor(QPalette::Button, red);
    p.setColor(QPalette::ButtonText, cream);
    p.setColor(QPalette::Highlight, red);
    p.setColor(QPalette::HighlightedText, cream);
    box.setPalette(p);
    box.setAutoFillBackground(true);
    box.setStyleSheet(kBoxStyle);
}

/// Announces a prompt once it is on the screen. (A message box announces itself as an alert.)
class AnnounceOnShow : public QObject {
  public:
    AnnounceOnShow(QDialog& box, QString text) : box_(box), text_(std::move(text)) {}
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &box_ && event->type() == QEvent::Show)
            announce(box_, box_.windowTitle(), text_, QAccessible::DialogStart);
        return false;
    }

  private:
    QDialog& box_;
    QString text_;
};

}  // namespace

void announce(QWidget& w, const QString& name, const QString& description,
              QAccessible::Event kind) {
    w.setAccessibleName(name);
    w.setAccessibleDescription(description);
    QAccessibleEvent event(&w, kind);
    QAccessible::updateAccessibility(&event);
}

void QtPort::present(QDialog& box, const QString& text) {
    box.ensurePolished();
    for (auto* button : box.findChildren<QPushButton*>()) button->setIcon(QIcon());  // plain ink
    box.setAccessibleName(box.windowTitle());
    box.setAccessibleDescription(text);
    AnnounceOnShow on_show(box, text);
    if (!qobject_cast<QMessageBox*>(&box)) box.installEventFilter(&on_show);
    if (presenter_)
        presenter_(box);
    else
        box.exec();
}

Answer QtPort::msgbox(std::string_view text, Buttons buttons, bool critical) {
    QMessageBox box(QApplication::activeWindow());
    box.setWindowTitle(qs(kBoxTitle));
    dress_box(box);
    box.setText(qs(text));
    box.setTextFormat(Qt::PlainText);
    box.setIcon(critical ? QMessageBox::Critical : QMessageBox::NoIcon);
    if (buttons == Buttons::YesNo) {
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::No);
    } else {
        box.setStandardButtons(QMessageBox::Ok);
    }
    present(box, qs(text));
    if (buttons == Buttons::Ok) return Answer::Ok;
    return box.clickedButton() == box.button(QMessageBox::Yes) ? Answer::Yes : Answer::No;
}

std::string QtPort::inputbox(std::string_view prompt, std::string_view title) {
    QInputDialog box(QApplication::activeWindow());
    box.setInputMode(QInputDialog::TextInput);
    dress_box(box);
    box.setWindowTitle(qs(title));
    box.setLabelText(qs(prompt));
    box.setTextValue(QString());
    box.setOkButtonText("OK");  // builds the buttons now, so that they too are dressed
    box.setCancelButtonText("Cancel");
    // Wide enough for the frame to show the whole title beside its buttons.
    const QFont title_font = QApplication::font("QMdiSubWindowTitleBar");
    box.setMinimumWidth(std::max(
        kPromptWidth,
        QFontMetrics(title_font).horizontalAdvance(box.windowTitle()) * 2 + kFrameButtons));
    present(box, qs(prompt));
    if (box.result() != QDialog::Accepted) return {};
    return box.textValue().toStdString();
}

}  // namespace tourvane

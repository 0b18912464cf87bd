#include "app/qt/qt_port.h"

#include <QApplication>
#include <QEvent>
#include <QInputDialog>
#include <QMessageBox>

namespace tourvane {

namespace {

QString qs(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
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
    box.setWindowTitle("Tourvane");
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
    box.setWindowTitle(qs(title));
    box.setLabelText(qs(prompt));
    box.setTextValue(QString());
    present(box, qs(prompt));
    if (box.result() != QDialog::Accepted) return {};
    return box.textValue().toStdString();
}

}  // namespace tourvane

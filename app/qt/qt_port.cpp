#include "app/qt/qt_port.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

namespace tourvane {

namespace {

QString qs(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

void QtPort::present(QDialog& box) {
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
    present(box);
    if (buttons == Buttons::Ok) return Answer::Ok;
    return box.clickedButton() == box.button(QMessageBox::Yes) ? Answer::Yes : Answer::No;
}

std::string QtPort::inputbox(std::string_view prompt, std::string_view title) {
    QInputDialog box(QApplication::activeWindow());
    box.setInputMode(QInputDialog::TextInput);
    box.setWindowTitle(qs(title));
    box.setLabelText(qs(prompt));
    box.setTextValue(QString());
    present(box);
    if (box.result() != QDialog::Accepted) return {};
    return box.textValue().toStdString();
}

}  // namespace tourvane

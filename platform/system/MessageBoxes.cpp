// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/MessageBoxes.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMessageBox>

namespace {

/// Shows the normal pointer while it lives, also over an hourglass: for a message in the middle of
/// long work.
class NormalPointer {
  public:
    NormalPointer() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~NormalPointer() { QGuiApplication::restoreOverrideCursor(); }
    NormalPointer(const NormalPointer&) = delete;
    NormalPointer& operator=(const NormalPointer&) = delete;
};

QMessageBox::Icon IconOf(Sign sign) {
    switch (sign) {
        case Sign::Exclamation:
            return QMessageBox::Warning;
        case Sign::Question:
            return QMessageBox::Question;
        case Sign::Information:
            break;
    }
    return QMessageBox::Information;
}

/// The buttons, and what closing the box stands for.
void SetButtons(QMessageBox& box, Buttons buttons) {
    switch (buttons) {
        case Buttons::Ok:
            box.setStandardButtons(QMessageBox::Ok);
            box.setEscapeButton(QMessageBox::Ok);
            break;
        case Buttons::OkCancel:
            box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
            box.setDefaultButton(QMessageBox::Ok);
            box.setEscapeButton(QMessageBox::Cancel);
            break;
        case Buttons::YesNo:
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
            box.setDefaultButton(QMessageBox::Yes);
            box.setEscapeButton(QMessageBox::No);
            break;
    }
}

Answer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return Answer::Ok;
    }
}

}  // namespace

Answer DesktopMessageBoxes::Show(QWidget* parent, const Message& message) {
    const NormalPointer pointer;
    QMessageBox box(parent);
    box.setWindowTitle(message.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(message.text);
    box.setIcon(IconOf(message.sign));
    SetButtons(box, message.buttons);
    return AnswerOf(box.exec());
}

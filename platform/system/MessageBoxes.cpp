// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/MessageBoxes.h"

#include <QCursor>
#include <QGridLayout>
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

/// The two buttons, what closing the box stands for, and what Enter presses.
void SetButtons(QMessageBox& box, QMessageBox::StandardButton agree,
                QMessageBox::StandardButton refuse, bool discards) {
    box.setStandardButtons(agree | refuse);
    box.setDefaultButton(discards ? refuse : agree);
    box.setEscapeButton(refuse);
}

void SetButtons(QMessageBox& box, const Message& message) {
    switch (message.buttons) {
        case Buttons::Ok:
            SetButtons(box, QMessageBox::Ok, QMessageBox::Ok, false);
            break;
        case Buttons::OkCancel:
            SetButtons(box, QMessageBox::Ok, QMessageBox::Cancel, message.discards);
            break;
        case Buttons::YesNo:
            SetButtons(box, QMessageBox::Yes, QMessageBox::No, message.discards);
            break;
    }
}

/// Makes the box at least as wide as its title and what else stands in a title bar; a desktop
/// would cut the title of a short message.
void WidenToTitle(QMessageBox& box) {
    constexpr int buttonsOfTitleBar = 120;
    QFont bold = box.font();
    bold.setBold(true);
    const int width = QFontMetrics(bold).horizontalAdvance(box.windowTitle()) + buttonsOfTitleBar;
    auto* layout = qobject_cast<QGridLayout*>(box.layout());
    layout->addItem(new QSpacerItem(width, 0), layout->rowCount(), 0, 1, layout->columnCount());
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
    SetButtons(box, message);
    WidenToTitle(box);
    return AnswerOf(box.exec());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/FindBox.h"

#include <QKeyEvent>

#include "platform/widgets/Lists.h"

FindBox::FindBox(ListBox& list, QWidget* parent) : QLineEdit(parent), list_(list) {
    setClearButtonEnabled(true);
    connect(this, &QLineEdit::textChanged, this, &FindBox::HideOthers);
}

void FindBox::HideOthers(const QString& wanted) {
    const QString text = wanted.trimmed();
    for (int row = 0; row < list_.count(); ++row) {
        list_.setRowHidden(row, !list_.item(row)->text().contains(text, Qt::CaseInsensitive));
    }
}

void FindBox::EnterList() {
    int row = 0;
    while (row < list_.count() && list_.isRowHidden(row)) ++row;
    if (row == list_.count()) return;
    list_.setFocus();
    list_.SetIndex(row);
}

// Enter is answered here, as it would be the form's main command otherwise.
void FindBox::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            EnterList();
            return;
        case Qt::Key_Escape:
            if (text().isEmpty()) break;
            clear();
            return;
        default:
            break;
    }
    QLineEdit::keyPressEvent(event);
}

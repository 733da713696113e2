// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/PersonBoxes.h"

#include <QCoreApplication>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

#include "platform/forms/FormLayout.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Widgets.h"

PersonBoxes::PersonBoxes() {
    int column = 0;
    for (QLineEdit*& box : boxes_) {
        box = Named(new QLineEdit, Member(QStringLiteral("Text1"), column++));
    }
}

void AddTitled(QGridLayout& layout, int row, int column, QLabel* title, QLineEdit* box) {
    layout.addWidget(title, row, column);
    layout.addWidget(Titled(title, box), row, column + 1);
}

void PersonBoxes::AddName(QGridLayout& layout, int row, int column, QLabel* title) const {
    AddTitled(layout, row, column, title, Name());
}

void PersonBoxes::AddAddress(QGridLayout& layout, int row, int column, QLabel* title) const {
    AddTitled(layout, row, column, title, Box(member_column::Address));
    for (int line = 1; line < member_column::Phone - member_column::Address; ++line) {
        QLineEdit* box = Box(member_column::Address + line);
        box->setAccessibleName(
            QCoreApplication::translate("PersonBoxes", "Address, line %1").arg(line + 1));
        layout.addWidget(box, row + line, column + 1);
    }
}

void PersonBoxes::AddContacts(QGridLayout& layout, int row, int column, QLabel* phone,
                              QLabel* email) const {
    AddTitled(layout, row, column, phone, Box(member_column::Phone));
    AddTitled(layout, row + 1, column, email, Box(member_column::Email));
}

PersonBoxes::Texts PersonBoxes::Typed() const {
    Texts texts;
    for (std::size_t i = 0; i < texts.size(); ++i) texts.at(i) = FromQString(boxes_.at(i)->text());
    return texts;
}

void PersonBoxes::Show(const Texts& texts) const {
    for (std::size_t i = 0; i < texts.size(); ++i) boxes_.at(i)->setText(ToQString(texts.at(i)));
}

void PersonBoxes::Clear() const { Show({}); }

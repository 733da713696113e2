// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/RingLists.h"

#include <QGridLayout>

#include "platform/forms/FormLayout.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/Widgets.h"

namespace {

ComboList* MakeList(const QString& name, int first, int last) {
    auto* list = Named(new ComboList, name);
    for (int number = first; number <= last; ++number) list->addItem(QString::number(number));
    list->setMaxVisibleItems(list->count());
    list->SetIndex(0);
    return list;
}

}  // namespace

RingLists::RingLists(QLabel* numbersTitle, QLabel* intervalTitle, QWidget* parent)
    : QWidget(parent),
      rows_(new QGridLayout(this)),
      numbers_(
          MakeList(QStringLiteral("Combo1"), wheels::fewestRingNumbers, wheels::mostRingNumbers)),
      interval_(MakeList(QStringLiteral("Combo2"), 1, wheels::widestInterval)) {
    rows_->setContentsMargins(0, 0, 0, 0);
    rows_->setColumnStretch(1, 1);
    AddRow(numbersTitle, Titled(numbersTitle, numbers_));
    AddRow(intervalTitle, Titled(intervalTitle, interval_));
    connect(numbers_, &ComboList::clicked, this, &RingLists::numbersChosen);
    connect(interval_, &ComboList::clicked, this, &RingLists::intervalChosen);
}

wheels::Ring RingLists::Choice() const {
    return {.numbers = numbers_->currentText().toInt(),
            .interval = interval_->currentText().toInt()};
}

void RingLists::AddRow(QLabel* title, QWidget* widget) {
    const int row = rows_->rowCount();
    rows_->addWidget(title, row, 0);
    rows_->addWidget(widget, row, 1);
}

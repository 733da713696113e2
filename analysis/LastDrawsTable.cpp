// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/LastDrawsTable.h"

#include <QLabel>

#include "platform/system/TextConversion.h"
#include "platform/widgets/Widgets.h"

namespace {

QLabel* MakeCell(const char* name) {
    QLabel* label = MakeLabel(QString::fromLatin1(name), {});
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

}  // namespace

LastDrawsTable::LastDrawsTable(QLabel* heading, const std::array<LastDrawNames, 4>& names) {
    setHorizontalSpacing(16);
    setVerticalSpacing(4);
    addWidget(heading, 0, 0, 1, 2);
    for (std::size_t i = 0; i < names.size(); ++i) {
        rows_[i] = {.numbers = MakeCell(names[i].numbers), .ratio = MakeCell(names[i].ratio)};
        QFont bold = rows_[i].ratio->font();
        bold.setBold(true);
        rows_[i].ratio->setFont(bold);
        addWidget(rows_[i].numbers, static_cast<int>(i) + 1, 0);
        addWidget(rows_[i].ratio, static_cast<int>(i) + 1, 1);
    }
    setColumnStretch(1, 1);
}

void LastDrawsTable::Show(const LastDraws& draws) {
    for (std::size_t i = 0; i < draws.size(); ++i) {
        rows_[i].numbers->setText(ToQString(draws[i].numbers));
        rows_[i].ratio->setText(ToQString(draws[i].ratio));
    }
}

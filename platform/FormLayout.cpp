// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/FormLayout.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

QVBoxLayout* MakeFormLayout(QWidget* form) {
    auto* layout = new QVBoxLayout(form);
    layout->setContentsMargins(16, 12, 16, 16);
    layout->setSpacing(8);
    return layout;
}

QHBoxLayout* BuildActionRow(std::initializer_list<QWidget*> commands,
                            std::initializer_list<QWidget*> atRight) {
    auto* row = new QHBoxLayout;
    for (QWidget* command : commands) row->addWidget(command);
    row->addStretch(1);
    for (QWidget* command : atRight) row->addWidget(command);
    return row;
}

void KeepPlaceWhenHidden(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/FormLayout.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/forms/SaidLine.h"
#include "platform/widgets/Grid.h"

QVBoxLayout* MakeFormLayout(QWidget* form) {
    auto* layout = new QVBoxLayout(form);
    layout->setContentsMargins(16, 12, 16, 16);
    layout->setSpacing(8);
    return layout;
}

void LayOutForm(QWidget* form, QLabel* title, QLabel* explanation, QLayout* body,
                QLayout* actions) {
    QVBoxLayout* layout = MakeFormLayout(form);
    layout->addWidget(title);
    layout->addWidget(explanation);
    layout->addSpacing(8);
    layout->addLayout(body, 1);
    layout->addSpacing(8);
    layout->addLayout(actions);
}

QHBoxLayout* BuildActionRow(std::initializer_list<QWidget*> commands,
                            std::initializer_list<QWidget*> atRight) {
    auto* row = new QHBoxLayout;
    for (QWidget* command : commands) row->addWidget(command);
    row->addWidget(new SaidLine, 1);
    for (QWidget* command : atRight) row->addWidget(command);
    return row;
}

QHBoxLayout* BuildAtColumns(const Grid& grid, int firstColumn,
                            const std::vector<QWidget*>& inputs) {
    constexpr int air = 4;  // between the inputs, which would look like one otherwise
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    int left = grid.frameWidth() + air / 2;
    for (int column = 0; column < firstColumn; ++column) left += grid.columnWidth(column);
    row->addSpacing(left);
    int column = firstColumn;
    for (QWidget* input : inputs) {
        input->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        KeepPlaceWhenHidden(input);
        input->setFixedWidth(grid.columnWidth(column++) - air);
        row->addWidget(input);
        row->addSpacing(air);
    }
    return row;
}

void KeepPlaceWhenHidden(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

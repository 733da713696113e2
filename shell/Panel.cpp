// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Panel.h"

#include <QGridLayout>
#include <QLabel>

#include "platform/widgets/Widgets.h"
#include "shell/Sheet.h"

Panel::Panel(const QString& headingName, const QString& heading, QWidget* parent)
    : QWidget(parent), heading_(MakeLabel(headingName, heading, this)), sheet_(new QGridLayout) {
    setMouseTracking(true);  // moves over the sheet are moves over the form
    QFont font = heading_->font();
    font.setBold(true);
    heading_->setFont(font);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 6, 10, 8);
    layout->setSpacing(4);
    layout->addWidget(heading_);
    layout->addLayout(sheet_, 1);
    sheet_->setHorizontalSpacing(6);
    sheet_->setVerticalSpacing(4);
}

void Panel::SetShown(bool shown) {
    const auto controls = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QWidget* control : controls) control->setVisible(shown);
    setVisible(shown);
}

void Panel::paintEvent(QPaintEvent*) { PaintSheet(*this, 6); }

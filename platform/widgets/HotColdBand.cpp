// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/HotColdBand.h"

#include <QHBoxLayout>
#include <QLabel>

#include "platform/widgets/NumberColours.h"
#include "platform/widgets/Widgets.h"

namespace {

constexpr int air = 7;

QLabel* MakeBandLabel(const QString& name, double size) {
    QLabel* label = MakeLabel(name, QString());
    QFont font = label->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * size);
    label->setFont(font);
    label->setContentsMargins(air + 5, air, air + 5, air);
    return label;
}

}  // namespace

HotColdBand::HotColdBand(const QString& headingName, const QString& numbersName, QWidget* parent)
    : QWidget(parent),
      heading_(MakeBandLabel(headingName, 1)),
      numbers_(MakeBandLabel(numbersName, 1.25)) {
    heading_->setAutoFillBackground(true);
    numbers_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    setAutoFillBackground(true);
    QPalette white;
    white.setColor(QPalette::Window, Qt::white);
    setPalette(white);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(heading_);
    row->addWidget(numbers_, 1);
    SetCold(false);
}

void HotColdBand::SetCold(bool cold) {
    const QColor colour = ColoursOfMode(cold).words;
    QPalette heading;
    heading.setColor(QPalette::Window, colour);
    heading.setColor(QPalette::WindowText, Qt::white);
    heading_->setPalette(heading);
    QPalette numbers;
    numbers.setColor(QPalette::WindowText, colour);
    numbers_->setPalette(numbers);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/HotColdBand.h"

#include <QHBoxLayout>
#include <QLabel>

#include "platform/widgets/ChartShades.h"
#include "platform/widgets/NumberColours.h"
#include "platform/widgets/Widgets.h"
#include "platform/widgets/WindowShade.h"

namespace {

constexpr int air = 7;

// What a dark window shows in place of the colours told.
constexpr QPalette::ColorRole darkGround = QPalette::Dark;
constexpr QPalette::ColorRole lightWords = QPalette::BrightText;

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
      numbers_(MakeBandLabel(numbersName, 1.25)),
      shade_(new WindowShade(*this, [this] { TakeShade(); })) {
    heading_->setAutoFillBackground(true);
    // Its white words on the mode's colour are read in every window.
    heading_->setBackgroundRole(QPalette::Window);
    heading_->setForegroundRole(QPalette::WindowText);
    numbers_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    setAutoFillBackground(true);
    QPalette grounds;
    grounds.setColor(QPalette::Window, Qt::white);
    grounds.setColor(darkGround, ShadesOf(true).background);
    setPalette(grounds);
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
    numbers.setColor(lightWords, OnDark(colour));
    numbers_->setPalette(numbers);
}

void HotColdBand::TakeShade() {
    const bool dark = shade_->IsDark();
    setBackgroundRole(dark ? darkGround : QPalette::Window);
    numbers_->setForegroundRole(dark ? lightWords : QPalette::WindowText);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/TotalBox.h"

#include "platform/widgets/WindowShade.h"

TotalBox::TotalBox(QWidget* parent)
    : QLineEdit(parent), shade_(new WindowShade(*this, [this] { TakeColour(); })) {
    setReadOnly(true);
    setAlignment(Qt::AlignRight);
}

void TotalBox::Show(const QString& amount, const QColor& colour) {
    setText(amount);
    colour_ = colour;
    TakeColour();
}

void TotalBox::TakeColour() {
    QPalette palette;
    palette.setColor(QPalette::Text, shade_->IsDark() ? OnDark(colour_) : colour_);
    setPalette(palette);
}

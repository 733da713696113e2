// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/NumberBox.h"

#include "core/text.h"
#include "platform/system/TextConversion.h"

NumberBox::NumberBox(QWidget* parent) : FilteredBox(parent) {
    SetTaken(QStringLiteral("0123456789"));
    setInputMethodHints(Qt::ImhDigitsOnly);
}

int NumberBox::Value() const { return LeadingWhole(FromQString(text())); }

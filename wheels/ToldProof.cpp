// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/ToldProof.h"

#include <QLabel>

#include "platform/system/TextConversion.h"

void TellProof(QLabel& promise, const std::string& found) {
    const QString text = ToQString(found);
    promise.setToolTip(text);
    promise.setAccessibleDescription(text);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/AddressTip.h"

#include "platform/widgets/Readable.h"

QString AddressTip(const QString& words, const QString& address) {
    const QString shown = address.trimmed();
    if (shown.isEmpty() || shown == QLatin1String("http://")) return words;
    const QString tip = words.isEmpty() ? shown : words % QLatin1Char('\n') % shown;
    return PlainTip(tip);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/AddressTip.h"

#include <QTextDocument>

QString AddressTip(const QString& words, const QString& address) {
    const QString shown = address.trimmed();
    if (shown.isEmpty() || shown == QLatin1String("http://")) return words;
    const QString tip = words.isEmpty() ? shown : words % QLatin1Char('\n') % shown;
    // A tool-tip decides by itself whether a text is markup.
    if (!Qt::mightBeRichText(tip)) return tip;
    return QStringLiteral("<p style=\"white-space: pre\">") % tip.toHtmlEscaped() %
           QStringLiteral("</p>");
}

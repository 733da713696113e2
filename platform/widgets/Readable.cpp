// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Readable.h"

#include <QTextDocument>

QString Readable(const QString& line) {
    constexpr qsizetype longest = 500;
    return line.size() <= longest ? line : line.left(longest) + QChar(0x2026);
}

QString PlainTip(const QString& text) {
    if (!Qt::mightBeRichText(text)) return text;
    return QStringLiteral("<p style=\"white-space: pre\">") % text.toHtmlEscaped() %
           QStringLiteral("</p>");
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Readable.h"

QString Readable(const QString& line) {
    constexpr qsizetype longest = 500;
    return line.size() <= longest ? line : line.left(longest) + QChar(0x2026);
}

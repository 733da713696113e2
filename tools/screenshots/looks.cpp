// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/screenshots/looks.h"

#include <QStringList>

QPalette ContrastPalette() {
    QPalette palette(Qt::white, Qt::black, Qt::white, Qt::black, Qt::gray, Qt::white, Qt::white,
                     Qt::black, Qt::black);
    palette.setColor(QPalette::AlternateBase, Qt::black);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    palette.setColor(QPalette::Link, Qt::cyan);
    return palette;
}

void TakeScreen(const QString& size, QTemporaryFile& file) {
    const QByteArray asked = qgetenv("QT_QPA_PLATFORM");
    if (!asked.isEmpty() && asked != "offscreen") return;
    const QStringList sides = size.split(QLatin1Char('x'));
    file.open();
    file.write(QStringLiteral(R"({"screens": [{"name": "screen", "x": 0, "y": 0, "width": %1,
        "height": %2, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})")
                   .arg(sides.first(), sides.last())
                   .toLatin1());
    file.flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.fileName().toLocal8Bit());
}

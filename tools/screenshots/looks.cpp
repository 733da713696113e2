// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/screenshots/looks.h"

#include <QStringList>

QPalette DarkPalette() {
    const QColor window(0x31, 0x36, 0x3b);
    const QColor base(0x23, 0x26, 0x29);
    const QColor text(0xef, 0xf0, 0xf1);
    QPalette palette(text, window, window.lighter(130), window.darker(150), window.darker(120),
                     text, Qt::white, base, window);
    palette.setColor(QPalette::AlternateBase, window);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
    palette.setColor(QPalette::HighlightedText, base);
    palette.setColor(QPalette::Link, QColor(0x5d, 0xbe, 0xf9));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(0x7f, 0x86, 0x8c));
    }
    return palette;
}

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

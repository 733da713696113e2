// SPDX-License-Identifier: GPL-3.0-or-later
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

/// draw_icons PICTURE FOLDER SIZE...: draws an SVG picture in each size, to FOLDER/SIZE.png.
int main(int argumentCount, char** arguments) {
    if (argumentCount < 4) {
        std::fputs("usage: draw_icons PICTURE FOLDER SIZE...\n", stderr);
        return 2;
    }
    QSvgRenderer picture(QString::fromLocal8Bit(arguments[1]));
    if (!picture.isValid()) {
        std::fprintf(stderr, "draw_icons: %s is no SVG picture\n", arguments[1]);
        return 1;
    }
    for (int i = 3; i < argumentCount; ++i) {
        const int size = QByteArray(arguments[i]).toInt();
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        picture.render(&painter);
        painter.end();
        const QString path = QString::fromLocal8Bit(arguments[2]) + QLatin1Char('/') +
                             QString::number(size) + QStringLiteral(".png");
        if (!image.save(path)) {
            std::fprintf(stderr, "draw_icons: %s could not be written\n", qPrintable(path));
            return 1;
        }
    }
    return 0;
}

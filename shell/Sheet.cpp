// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Sheet.h"

#include <QPainter>
#include <QWidget>

void PaintSheet(QWidget& widget, int radius) {
    QPainter painter(&widget);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor background = widget.palette().color(QPalette::Window);
    background.setAlpha(238);
    QColor edge = widget.palette().color(QPalette::WindowText);
    edge.setAlpha(45);
    painter.setPen(edge);
    painter.setBrush(background);
    painter.drawRoundedRect(QRectF(widget.rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

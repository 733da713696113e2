// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Sheet.h"

#include <QPainter>
#include <QWidget>

#include "platform/widgets/Contrast.h"

void PaintSheet(QWidget& widget, int radius) {
    QPainter painter(&widget);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor background = widget.palette().color(QPalette::Window);
    QColor edge = widget.palette().color(QPalette::WindowText);
    if (!IsExtreme(widget.palette())) {
        background.setAlpha(238);
        edge.setAlpha(60);
    }
    painter.setPen(edge);
    painter.setBrush(background);
    painter.drawRoundedRect(QRectF(widget.rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

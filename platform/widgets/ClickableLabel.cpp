// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/ClickableLabel.h"

#include <QMouseEvent>

void ClickableLabel::mouseReleaseEvent(QMouseEvent* event) {
    QLabel::mouseReleaseEvent(event);
    const bool inside = rect().contains(event->position().toPoint());
    if (event->button() == Qt::LeftButton && inside) Q_EMIT clicked();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

/// Drags the files onto the control and drops them where they are taken: there, or on what it lies
/// in.
inline void Drop(QWidget& target, const QList<QUrl>& files) {
    QMimeData dragged;
    dragged.setUrls(files);
    for (QWidget* widget = &target; widget != nullptr; widget = widget->parentWidget()) {
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
        enter.ignore();
        if (widget->acceptDrops()) QApplication::sendEvent(widget, &enter);
        if (enter.isAccepted()) {
            QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &dragged, Qt::LeftButton, {});
            QApplication::sendEvent(widget, &drop);
            QApplication::processEvents();
            return;
        }
        if (widget->isWindow()) return;
    }
}

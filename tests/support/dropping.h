// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

/// Drags the files onto the window and drops them, where it takes them.
inline void Drop(QWidget& window, const QList<QUrl>& files) {
    QMimeData dragged;
    dragged.setUrls(files);
    QDragEnterEvent enter({100, 100}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted()) return;
    QDropEvent drop(QPointF(100, 100), Qt::CopyAction, &dragged, Qt::LeftButton, {});
    QApplication::sendEvent(&window, &drop);
    QApplication::processEvents();
}

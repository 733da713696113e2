// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/DroppedFile.h"

#include <QMimeData>
#include <QUrl>

QString DroppedFile(const QMimeData& dragged) {
    const QList<QUrl> urls = dragged.urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

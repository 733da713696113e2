// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OpenPage.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>

QUrl PageAddress(const QString& page, const QString& folderPath) {
    const QString text = page.trimmed();
    if (text.isEmpty()) return {};
    const bool bare = !text.contains(QLatin1Char('/')) && !text.contains(QLatin1Char(':'));
    const QFileInfo file(QDir(folderPath), text);
    if (bare && file.isFile()) return QUrl::fromLocalFile(file.absoluteFilePath());
    return QUrl::fromUserInput(text);
}

void OpenPage(const QString& page, const QString& folderPath) {
    const QUrl address = PageAddress(page, folderPath);
    if (address.isValid()) QDesktopServices::openUrl(address);
}

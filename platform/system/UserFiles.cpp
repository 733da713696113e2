// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/UserFiles.h"

#include <QFile>
#include <QFileInfo>

#include "platform/system/file_io.h"

UserFile ReadUserFile(const QString& path, qint64 limit) {
    const QFileInfo file(path);
    if (file.isFile() && file.size() > limit) {
        return {.bytes = {}, .tooLarge = true, .reason = {}};
    }
    try {
        return {.bytes = ReadWholeFile(QFile::encodeName(path).toStdString()), .reason = {}};
    } catch (const FileError& error) {
        return {.bytes = {}, .reason = QString::fromStdString(error.reason)};
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OwnSettings.h"

#include <QFile>
#include <QFileInfo>

#include "platform/system/file_io.h"

std::unique_ptr<QSettings> OpenOwnSettings(const QString& path, QSettings::Format format) {
    constexpr qint64 largest = qint64{1024} * 1024;
    try {
        const Entry entry = EntryAt(QFile::encodeName(path).toStdString());
        if (entry == Entry::Folder || entry == Entry::Other) return nullptr;
        if (entry == Entry::File && QFileInfo(path).size() > largest) return nullptr;
    } catch (const FileError&) {
        return nullptr;
    }
    return std::make_unique<QSettings>(path, format);
}

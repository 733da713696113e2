// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/RescuedFiles.h"

#include <unistd.h>

#include <QDir>
#include <QRegularExpression>
#include <QSettings>
#include <QStandardPaths>

std::vector<QString> RescuePlaces() {
    using Paths = QStandardPaths;
    return {Paths::writableLocation(Paths::AppDataLocation) % QStringLiteral("/Rescued/"),
            Paths::writableLocation(Paths::TempLocation) % QStringLiteral("/quillon-rescued ")};
}

QStringList RescuedFiles(const std::vector<QString>& places) {
    static const QRegularExpression stamp(
        QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d{6}(-\\d{3})? "));
    QStringList files;
    for (const QString& place : places) {
        const qsizetype start = place.lastIndexOf(QLatin1Char('/')) + 1;
        const auto found = QDir(place.left(start)).entryInfoList(QDir::Files | QDir::NoSymLinks);
        for (const QFileInfo& file : found) {
            const QString path = file.filePath();
            // Anybody may put files into the temporary folder.
            if (file.ownerId() != ::getuid() || !path.startsWith(place)) continue;
            if (stamp.match(path.mid(place.size())).hasMatch()) files += path;
        }
    }
    return files;
}

QStringList FirstTold(const QStringList& files, const QString& record) {
    const QString key = QStringLiteral("told");
    QSettings settings(record, QSettings::IniFormat);
    const QStringList told = settings.value(key).toStringList();
    QStringList untold;
    for (const QString& file : files) {
        if (!told.contains(file)) untold += file;
    }
    if (!untold.isEmpty()) settings.setValue(key, files);
    return untold;
}

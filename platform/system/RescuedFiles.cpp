// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/RescuedFiles.h"

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <map>

#include "platform/system/OwnSettings.h"

namespace {

constexpr QLatin1String originsKey("origins");
constexpr QLatin1String fileKey("file");
constexpr QLatin1String folderKey("folder");

// The folders that rescued files came from, by the files' paths.
std::map<QString, QString> OriginsIn(QSettings& record) {
    std::map<QString, QString> origins;
    const int count = record.beginReadArray(originsKey);
    for (int index = 0; index < count; ++index) {
        record.setArrayIndex(index);
        origins[record.value(fileKey).toString()] = record.value(folderKey).toString();
    }
    record.endArray();
    return origins;
}

}  // namespace

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

void NoteOrigin(const QString& file, const QString& folder, const QString& record) {
    const auto settings = OpenOwnSettings(record);
    if (!settings) return;
    std::map<QString, QString> origins = OriginsIn(*settings);
    origins[file] = folder;
    settings->beginWriteArray(originsKey);
    int index = 0;
    for (const auto& [rescued, from] : origins) {
        if (!QFile::exists(rescued)) continue;
        settings->setArrayIndex(index++);
        settings->setValue(fileKey, rescued);
        settings->setValue(folderKey, from);
    }
    settings->endArray();
}

QStringList FromFolder(const QStringList& files, const QString& folder, const QString& record) {
    const auto settings = OpenOwnSettings(record);
    if (!settings) return files;
    const std::map<QString, QString> origins = OriginsIn(*settings);
    const QString own = QFileInfo(folder).canonicalFilePath();
    QStringList result;
    for (const QString& file : files) {
        const auto found = origins.find(file);
        const QString origin =
            found == origins.end() ? QString() : QFileInfo(found->second).canonicalFilePath();
        if (origin.isEmpty() || origin == own) result += file;
    }
    return result;
}

QStringList FirstTold(const QStringList& files, const QString& record) {
    const QString key = QStringLiteral("told");
    const auto settings = OpenOwnSettings(record);
    if (!settings) return files;
    QStringList told = settings->value(key).toStringList();
    QStringList untold;
    for (const QString& file : files) {
        if (!told.contains(file)) untold += file;
    }
    if (untold.isEmpty()) return untold;
    told.removeIf([](const QString& file) { return !QFile::exists(file); });
    settings->setValue(key, told + untold);
    return untold;
}

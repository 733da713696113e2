// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/OpenPage.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>

#include "core/program_folder.h"

namespace {

constexpr const char* ownFiles[] = {"help*.html", "dbase*.txt"};

QString WithoutBlanksAround(const QString& text) {
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text[first] == QLatin1Char(' ')) ++first;
    while (first < last && text[last - 1] == QLatin1Char(' ')) --last;
    return text.mid(first, last - first);
}

bool IsBlankOrControl(QChar character) { return character.isSpace() || !character.isPrint(); }

bool IsOwnFile(const QString& name) {
    const std::string bytes = name.toStdString();
    return bytes.find('/') == std::string::npos &&
           std::ranges::any_of(ownFiles,
                               [&](const char* pattern) { return NameMatches(bytes, pattern); });
}

/// A file of the folder, with the place in it that stands behind a "#".
QUrl FileAddress(const QString& page, const QString& folder) {
    const QString name = page.section(QLatin1Char('#'), 0, 0);
    const QFileInfo file(QDir(folder), name);
    if (!IsOwnFile(name) || !file.isFile()) return {};
    QUrl address = QUrl::fromLocalFile(file.absoluteFilePath());
    if (name.size() < page.size()) address.setFragment(page.mid(name.size() + 1));
    return address;
}

}  // namespace

QUrl WebAddress(const QString& text) {
    QString address = WithoutBlanksAround(text);
    if (std::ranges::any_of(address, IsBlankOrControl)) return {};
    if (address.startsWith(QStringLiteral("www."), Qt::CaseInsensitive)) {
        address.prepend(QStringLiteral("http://"));
    }
    const QUrl url(address);
    const bool web =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return web && url.isValid() && !url.host().isEmpty() ? url : QUrl();
}

QString LetterTo(const QString& mailAddress) { return QStringLiteral("mailto:") % mailAddress; }

QUrl PageAddress(const QString& page, const OwnPages& own) {
    if (const QUrl file = FileAddress(page, own.folder); file.isValid()) return file;
    for (const QString& letter : own.letters) {
        if (page == LetterTo(letter)) return QUrl(page);
    }
    return WebAddress(page);
}

QUrl Signpost(const QUrl& address, const QString& signposts) {
    if (!address.isLocalFile() || !address.hasFragment() || signposts.isEmpty()) return address;
    const QString target = QString::fromLatin1(address.toEncoded()).toHtmlEscaped();
    const QString page = QStringLiteral(
                             "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n"
                             "<meta charset=\"utf-8\">\n"
                             "<meta http-equiv=\"refresh\" content=\"0; url=%1\">\n"
                             "<title>Lottery Quillon World: help</title>\n</head>\n"
                             "<body><p><a href=\"%1\">Help</a></p></body>\n</html>\n")
                             .arg(target);
    QDir().mkpath(signposts);
    QSaveFile file(QDir(signposts).filePath(address.fileName()));
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(page.toUtf8()) > 0 && file.commit();
    return written ? QUrl::fromLocalFile(file.fileName()) : address;
}

void OpenPage(const QString& page, const OwnPages& own) {
    const QUrl address = PageAddress(page, own);
    if (address.isValid()) QDesktopServices::openUrl(Signpost(address, own.signposts));
}

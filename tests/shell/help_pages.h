// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <map>
#include <vector>

#include "shell/form_catalogue.h"

inline constexpr std::array<const char*, 3> helpPages = {"help.html", "helpplay.html",
                                                         "helpprint.html"};

/// The page that tells of the form behind an entry: one for all that makes entries, one for lottery
/// slips, and one for everything else.
inline QString HelpPageOf(const CatalogueEntry& entry) {
    const QString form = QString::fromLatin1(entry.form);
    if (QLatin1String(entry.menuEntry).startsWith(QLatin1String("Play"))) {
        return QStringLiteral("helpplay.html");
    }
    const bool slips = form == QLatin1String("PrintSetup") || form == QLatin1String("PrintTickets");
    return slips ? QStringLiteral("helpprint.html") : QStringLiteral("help.html");
}

/// The place in it where the form is told.
inline QString HelpPlaceOf(const CatalogueEntry& entry) {
    return HelpPageOf(entry) % QLatin1Char('#') % QString::fromLatin1(entry.form);
}

/// Where a supplied file lies.
QString SuppliedPath(const QString& file);

/// A word of the program that a page names, and the places that it stands in, the innermost last.
struct NamedWord {
    QString text;
    QStringList within;
};

/// What stands in a help page.
struct HelpPage {
    QString error;
    QStringList anchors;
    QStringList links;     // of anchors, style sheets and the like
    QStringList pictures;  // of both looks
    QStringList faults;    // in pictures
    std::vector<NamedWord> words;
    QStringList menuPaths;
    QString text;
};

/// The pages by their names, read once and strictly, as XML.
const std::map<QString, HelpPage>& HelpPagesRead();

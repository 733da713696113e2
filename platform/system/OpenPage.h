// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

/// What is opened beside web pages.
struct OwnPages {
    QString folder;            ///< The program's folder: its help pages and draw databases.
    QStringList letters = {};  ///< Mail addresses that letters may go to.
    QString signposts = {};    ///< Where pages may be written that lead to a place in ours.
};

/// The web address in the text, which begins with "http://", "https://" or "www."; blanks around it
/// do not count. Empty where it is none, or holds a blank or a control character.
QUrl WebAddress(const QString& text);

/// The page that is a letter to the mail address.
QString LetterTo(const QString& mailAddress);

/// The address behind a page: a web address; "help.html", "help.html#keys" or "dbase1.txt", where
/// the folder has that file; "mailto:" and one of the mail addresses.
///
/// Empty for anything else: addresses come from files and boxes that anybody may have filled, and
/// none of them is to open a file, start a program or attach something to a letter.
QUrl PageAddress(const QString& page, const OwnPages& own);

/// The file that the desktop is to open for the address.
///
/// Desktops open a file without the place in it that stands behind a "#". For such an address a
/// page of the same name is written into the folder `signposts`, which the browser follows to that
/// place at once. All other addresses, and those for which nothing can be written, stand.
QUrl Signpost(const QUrl& address, const QString& signposts);

/// Opens the page on the desktop without waiting. What has no address opens nothing, and what
/// nothing opens is not noticed.
void OpenPage(const QString& page, const OwnPages& own);

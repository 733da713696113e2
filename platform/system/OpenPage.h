// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

/// The address behind the text: a web or mail address as it stands, a bare name as the file of that
/// name in `folderPath` where there is one, else as a web address without its "http://". Empty
/// where the text is no address at all.
QUrl PageAddress(const QString& page, const QString& folderPath);

/// Opens the page on the desktop without waiting. What nothing opens is not noticed.
void OpenPage(const QString& page, const QString& folderPath);

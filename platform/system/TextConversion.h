// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <string>
#include <string_view>

/// The text as the widgets hold it. The five bytes that Windows-1252 leaves open become the control
/// characters of the same number, so that every byte comes back as it was.
QString ToQString(std::string_view text);

/// The text as the core and the files hold it, in Windows-1252; unknown characters become "?", the
/// line ends of the widgets stay what they are.
std::string FromQString(const QString& text);

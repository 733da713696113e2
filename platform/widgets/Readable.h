// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// As much of the text as anybody reads in one line, 500 characters, with an ellipsis for what is
/// left out. Qt lays a line of some megabytes out in half a minute; what is stored stays whole.
QString Readable(const QString& line);

/// A tip that shows the text as it stands. A tool-tip takes what looks like markup for markup, and
/// names of lotteries and players come from files.
QString PlainTip(const QString& text);

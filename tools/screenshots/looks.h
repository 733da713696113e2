// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>
#include <QTemporaryFile>

/// White and yellow on black, as desktops for weak eyes have it.
QPalette ContrastPalette();

/// Has the program run on a screen of that size, such as "1366x768", told in `file`, where no other
/// platform is asked for: that of the offscreen platform is smaller than most.
void TakeScreen(const QString& size, QTemporaryFile& file);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <vector>

class QLineEdit;

/// The numbers in a text that blanks, commas, semicolons, tabs, dashes or line ends part: "7,
/// 14-21" are three. Of what stands between two of these only the digits count, as in a number box.
QStringList NumbersIn(const QString& text);

/// Lets several numbers that are pasted or dropped into one of the boxes be dealt to it and to the
/// boxes behind it that are shown and enabled; numbers without a box are left out. The last box
/// dealt to takes the focus. One number goes into its box as it would without this.
void DealPastedNumbers(const std::vector<QLineEdit*>& boxes);

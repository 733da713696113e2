// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

/// How well two colours can be told apart: from 1, not at all, to 21, black on white. Small text
/// wants 4.5, a line or a symbol 3.
double Contrast(const QColor& one, const QColor& other);

/// The colour, or as much darker or lighter a one as stands out from `other` by that contrast.
QColor StandingOut(QColor colour, const QColor& other, double contrast);

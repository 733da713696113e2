// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QPalette>

/// How well two colours can be told apart: from 1, not at all, to 21, black on white. Small text
/// wants 4.5, a line or a symbol 3.
double Contrast(const QColor& one, const QColor& other);

/// Whether words stand out from their window as only on a desktop that is set so for eyes that need
/// it.
bool IsExtreme(const QPalette& palette);

/// The colour, or as much darker or lighter a one as stands out from `other` by that contrast.
QColor StandingOut(QColor colour, const QColor& other, double contrast);

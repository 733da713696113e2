// SPDX-License-Identifier: GPL-3.0-or-later
// How numbers look that matched a draw.
#pragma once

#include <QColor>
#include <QString>

#include "platform/widgets/Grid.h"

class QLabel;

/// The colour behind a checked number: white, yellow for a main number of the draw, light red for
/// the bonus or extra ball.
QColor MatchColour(Match match);

/// A number that matched as the grid shows it, for a colour key. It says in words what it looks
/// like, to screen readers and as its tool-tip.
QLabel* MakeMatchSample(const QString& name, Match match);

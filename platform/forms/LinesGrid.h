// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/state.h"

class Grid;

/// Headings of the grid of lines: "Line", "Num1" to "Num7", "Pball", the last in dark red.
void SetLinesHeadings(Grid& grid);

/// Empties the grid and sets its headings, as for a new lottery.
void ClearLinesGrid(Grid& grid);

/// Empties the rows from `row` on, as far as lines stand there.
void WipeLines(Grid& grid, int row);

/// Leaves in use the lines that the grid shows and the columns of the lottery, and those that hold
/// a number nevertheless; the rest is painted as part of the window.
void ShowUse(const State& state, Grid& grid);

/// Shows `state.Lines`: one row a line, empty cells for 0, the extra ball in dark red; wipes what a
/// longer result left and scrolls to the top. The grid needs a row more than there are lines.
void ShowLines(const State& state, Grid& grid);

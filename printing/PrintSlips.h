// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "platform/system/Services.h"
#include "printing/slip_marks.h"

class QWidget;

/// Marks the lines of a grid on lottery slips: columns 1 to 7 are their numbers, column 8 the extra
/// ball. Asks for printer and template first; `count` lines are proposed. Without a template for
/// the current lottery there is only a message.
///
/// The lines are those of the grid, down to the first whose column 1 is empty; `State::Lines` plays
/// no part. A number above 60 and a template cut short are each a `Failure`, and nothing is
/// printed.
void PrintSlips(Program& program, QWidget* form, const Grid& grid, int count);

/// The lines from row 1 of the grid on, as many as `limit` says, to the first that has an empty
/// column 1. The first line is taken without a look at it.
std::vector<SlipLine> LinesInGrid(const Grid& grid, double limit);

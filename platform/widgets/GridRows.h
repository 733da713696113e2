// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Grid;

/// Copies each row below `row` over the one above it, columns 0 to `lastColumn`, until the row
/// whose column 0 is empty has been copied. Columns behind `lastColumn` stay where they are.
void DeleteGridRow(Grid& grid, int row, int lastColumn);

/// Exchanges the texts of two rows in columns 0 to `lastColumn`.
void SwapGridRows(Grid& grid, int first, int second, int lastColumn);

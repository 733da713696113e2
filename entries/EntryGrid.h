// SPDX-License-Identifier: GPL-3.0-or-later
// What the grids of entries share: twelve columns, as in the file.
#pragma once

#include <vector>

#include "core/saved_entries.h"

class Grid;

/// Headings of a grid of entries: those of the grid of lines, with "Date" in place of "Line", and
/// "Lottery", "Name", "File" behind them.
void SetEntryHeadings(Grid& grid);

/// The entry that a row shows.
SavedEntry EntryInGrid(const Grid& grid, int row);

/// How many rows from row 1 on have a date.
int EntryCount(const Grid& grid);

/// The entries from row 1 down to the first row without a date.
std::vector<SavedEntry> EntriesInGrid(const Grid& grid);

// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/EntryGrid.h"

#include <QCoreApplication>

#include "platform/forms/LinesGrid.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Grid.h"

void SetEntryHeadings(Grid& grid) {
    const auto heading = [](const char* text) {
        return QCoreApplication::translate("EntryGrid", text);
    };
    SetLinesHeadings(grid);
    grid.SetCell(0, entry_column::date, heading("Date"));
    grid.SetCell(0, entry_column::lottery, heading("Lottery"));
    grid.SetCell(0, entry_column::player, heading("Name"));
    grid.SetCell(0, entry_column::database, heading("File"));
}

SavedEntry EntryInGrid(const Grid& grid, int row) {
    SavedEntry entry;
    int column = 0;
    for (std::string& field : entry) field = FromQString(grid.Cell(row, column++));
    return entry;
}

int EntryCount(const Grid& grid) {
    int count = 0;
    while (count + 1 < grid.RowCount() && !grid.Cell(count + 1, entry_column::date).isEmpty()) {
        ++count;
    }
    return count;
}

std::vector<SavedEntry> EntriesInGrid(const Grid& grid) {
    std::vector<SavedEntry> entries;
    const int count = EntryCount(grid);
    for (int row = 1; row <= count; ++row) entries.push_back(EntryInGrid(grid, row));
    return entries;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/GridRows.h"

#include "platform/widgets/Grid.h"

void DeleteGridRow(Grid& grid, int row, int lastColumn) {
    QString copied;
    do {
        copied = grid.Cell(row + 1, 0);
        for (int column = lastColumn; column >= 0; --column) {
            grid.SetCell(row, column, grid.Cell(row + 1, column));
        }
        ++row;
    } while (!copied.isEmpty());
}

void SwapGridRows(Grid& grid, int first, int second, int lastColumn) {
    for (int column = 0; column <= lastColumn; ++column) {
        const QString text = grid.Cell(first, column);
        grid.SetCell(first, column, grid.Cell(second, column));
        grid.SetCell(second, column, text);
    }
}

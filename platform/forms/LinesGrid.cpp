// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/LinesGrid.h"

#include <QCoreApplication>

#include "platform/widgets/Grid.h"
#include "platform/widgets/NumberColours.h"

namespace {

constexpr int extraBallColumn = 8;

bool HoldsNumbers(const Grid& grid, int column, int lines) {
    for (int row = 1; row <= lines; ++row) {
        if (!grid.Cell(row, column).isEmpty()) return true;
    }
    return false;
}

QString NumberOrNothing(int number) { return number > 0 ? QString::number(number) : QString(); }

}  // namespace

void SetLinesHeadings(Grid& grid) {
    grid.SetCell(0, 0, QCoreApplication::translate("LinesGrid", "Line"));
    for (int column = 1; column < extraBallColumn; ++column) {
        grid.SetCell(0, column,
                     QCoreApplication::translate("LinesGrid", "Num") + QString::number(column));
    }
    grid.SetCell(0, extraBallColumn, QCoreApplication::translate("LinesGrid", "Pball"));
    grid.SetCellColour(0, extraBallColumn, ExtraBallColour());
}

void ClearLinesGrid(Grid& grid) {
    grid.ClearCells();
    SetLinesHeadings(grid);
}

void WipeLines(Grid& grid, int row) {
    for (; !grid.Cell(row, 0).isEmpty(); ++row) {
        for (int column = extraBallColumn; column >= 0; --column) {
            grid.SetCell(row, column, QString());
        }
    }
}

void ShowUse(const State& state, Grid& grid) {
    int lines = 0;
    while (!grid.Cell(lines + 1, 0).isEmpty()) ++lines;
    std::vector<int> unused;
    for (int column = 1; column <= extraBallColumn; ++column) {
        const bool inLottery =
            column == extraBallColumn ? state.MaxPball > 0 : column <= state.Picks;
        if (!inLottery && !HoldsNumbers(grid, column, lines)) unused.push_back(column);
    }
    grid.SetRowsInUse(lines);
    grid.SetColumnsOutOfUse(unused);
}

void ShowLines(const State& state, Grid& grid) {
    int row = 1;
    for (; state.Lines(row, 1) >= 1; ++row) {
        grid.SetCell(row, 0, QString::number(row));
        for (int column = 1; column <= extraBallColumn; ++column) {
            grid.SetCell(row, column, NumberOrNothing(state.Lines(row, column)));
        }
        grid.SetCellColour(row, extraBallColumn, ExtraBallColour());
    }
    WipeLines(grid, row);
    ShowUse(state, grid);
    grid.ScrollToTop();
}

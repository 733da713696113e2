// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/lines.h"

#include "core/row_sort.h"

void ClearLines(State& state) { state.Lines.Fill(0); }

void SortLines(State& state, int count) { SortRows(state.Lines, count); }

int LineCount(const State& state) {
    int row = 1;
    while (state.Lines(row, 1) != 0) ++row;
    return row - 1;
}

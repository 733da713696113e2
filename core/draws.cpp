// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/draws.h"

#include "core/row_sort.h"

void SortDraws(State& state, int count) { SortRows(state.Draws, count); }

void plain::SortDraws(State& state, int count) {
    int row = 1;
    do {
        SortRowStepByStep(state.Draws, row, count);
        ++row;
    } while (View(state).Draws(row, 1) != 0);
}

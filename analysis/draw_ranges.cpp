// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/draw_ranges.h"

namespace {

int RangeOf(const State& state, int row) {
    return state.Draws(row, state.Picks) - state.Draws(row, 1);
}

}  // namespace

draw_ranges::Figures draw_ranges::AnalyseRange(const State& state) {
    CheckField(state);
    Figures figures;
    int row = 0;
    for (int& range : figures.recent) {
        range = RangeOf(state, ++row);
        CountOne(figures.RangeCount, state, row, range, "a range");
    }
    int total = 0;
    row = 1;
    while (state.Draws(row, 1) > 0) {
        total += RangeOf(state, row);
        ++row;
    }
    // Kept on purpose: the row reached is one more than there are draws.
    figures.average = total / row;
    return figures;
}

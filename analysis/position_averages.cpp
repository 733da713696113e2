// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/position_averages.h"

#include <algorithm>

namespace {

constexpr int mostRows = 100;

}  // namespace

position_averages::Figures position_averages::Analyse(const State& state, int position) {
    CheckField(state);
    Figures figures;
    int sum = 0;
    int next = 1;
    do {
        const int number = state.Draws(next, position);
        sum += number;
        CountOne(figures.PositionCount, state, next, number, "numbers");
        ++next;
    } while (state.Draws(next, 1) != 0);
    figures.average = sum / (next - 1);
    // Kept on purpose: a short history shows the row behind its last draw too.
    const int rows = std::min(next, mostRows);
    for (int row = 1; row <= rows; ++row) figures.recent.push_back(state.Draws(row, position));
    return figures;
}

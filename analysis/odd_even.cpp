// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/odd_even.h"

namespace {

constexpr int mostPicks = 7;

bool IsOdd(int number) { return number % 2 != 0; }

odd_even::OddEven CountIn(const State& state, int row) {
    odd_even::OddEven count;
    for (int column = 1; column <= state.Picks; ++column) {
        ++(IsOdd(state.Draws(row, column)) ? count.odd : count.even);
    }
    return count;
}

}  // namespace

odd_even::Figures odd_even::Analyse(const State& state) {
    CheckPicks(state, mostPicks);
    Figures figures;
    int row = 1;
    do {
        const OddEven count = CountIn(state, row);
        if (row <= recentDraws) figures.recent.at(static_cast<std::size_t>(row - 1)) = count;
        figures.total.odd += count.odd;
        figures.total.even += count.even;
        ++figures.EvenCount(count.even);
        ++row;
    } while (state.Draws(row, 1) != 0);
    figures.last = TellLastDraws(state, IsOdd);
    return figures;
}

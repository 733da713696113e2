// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/draw_sums.h"

#include <algorithm>

#include "core/failure.h"
#include "core/text.h"

namespace {

constexpr int mostPicks = 7;
constexpr int firstDrawLine = 4;
constexpr int aboveEverySum = 1000;

int SumOf(const State& state, int row) {
    int sum = 0;
    for (int column = 1; column <= state.Picks; ++column) sum += state.Draws(row, column);
    return sum;
}

void SumRecentDraws(const State& state, draw_sums::Figures& figures) {
    figures.smallest = aboveEverySum;
    int count = 0;
    int total = 0;
    int row = 0;
    for (int& sum : figures.sums) {
        sum = SumOf(state, ++row);
        if (sum <= 0) continue;
        ++count;
        total += sum;
        figures.smallest = std::min(figures.smallest, sum);
        figures.largest = std::max(figures.largest, sum);
    }
    if (count == 0) {
        throw FailureInFile(state.DbaseFile, firstDrawLine,
                            "expected a draw to take the average of, but the newest " +
                                PlainDigits(recentDraws) + " have no numbers");
    }
    figures.average = total / count;
}

int LowNumbers(const State& state, int row) {
    int count = 0;
    for (int column = 1; column <= state.Picks; ++column) {
        if (2 * state.Draws(row, column) < state.MaxNum) ++count;
    }
    return count;
}

}  // namespace

draw_sums::Figures draw_sums::Analyse(const State& state) {
    CheckPicks(state, mostPicks);
    Figures figures;
    SumRecentDraws(state, figures);
    int row = 1;
    do {
        ++figures.RatioCount(LowNumbers(state, row));
        ++row;
    } while (state.Draws(row, 1) != 0);
    // Kept on purpose: the whole half of an odd field here, its exact half above.
    figures.last = TellLastDraws(state, [&state](int number) { return number < state.MaxNum / 2; });
    return figures;
}

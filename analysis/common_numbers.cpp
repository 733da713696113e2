// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/common_numbers.h"

void common_numbers::AnalyseDraws(const State& state, bool cold, NumberCounts& counts) {
    CountNumbers(state, counts);
    if (!cold) return;
    ReverseCounts(counts.MainCount, state.MaxNum);
    int limit = 0;
    if (state.MaxPball > 0) limit = state.MaxPball;
    if (state.HasBonus > 0) limit = state.MaxNum;
    ReverseCounts(counts.ExtraCount, limit);
}

int common_numbers::ExtraRows(const State& state) {
    if (state.MaxPball > 0) return state.MaxPball;
    return state.HasBonus > 0 ? state.MaxNum : 0;
}

TenNumbers common_numbers::TakeTen(const State& state, Counts& mainCount) {
    TenNumbers numbers{};
    for (int& number : numbers) number = TakeHottest(mainCount, state.MaxNum);
    return numbers;
}

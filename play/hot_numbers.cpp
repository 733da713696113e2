// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/hot_numbers.h"

#include <utility>

#include "core/lines.h"

namespace {

using hot_numbers::Mode;

constexpr int lineCount = 10;
constexpr int setSize = 10;
constexpr int extraColumn = 8;

void RankIntoPool(State& state, Counts& counts, int highest, Mode mode) {
    if (mode == Mode::Cold) ReverseCounts(counts, highest);
    GetHotNumbers(counts, highest, state.Pool);
}

TenNumbers FirstOfPool(const State& state) {
    TenNumbers numbers{};
    for (int place = 1; place <= setSize; ++place) {
        numbers.at(static_cast<std::size_t>(place) - 1) = state.Pool(place);
    }
    return numbers;
}

}  // namespace

std::string hot_numbers::RankMainNumbers(State& state, NumberCounts& counts, Mode mode) {
    CountNumbers(state, counts);
    RankIntoPool(state, counts.MainCount, state.MaxNum, mode);
    return TenNumbersText(FirstOfPool(state));
}

void hot_numbers::AddExtraBalls(State& state, NumberCounts& counts, Mode mode) {
    if (state.MaxPball == 0) return;
    RankIntoPool(state, counts.ExtraCount, state.MaxPball, mode);
    for (int line = 1; line <= lineCount; ++line) {
        state.Lines(line, extraColumn) = state.Pool(line);
    }
}

std::string hot_numbers::PlayLotto(State& state, Random& random, Mode mode) {
    NumberCounts counts;
    const std::string text = RankMainNumbers(state, counts, mode);
    AddToGrid(state, random);
    AddExtraBalls(state, counts, mode);
    return text;
}

void hot_numbers::AddToGrid(State& state, Random& random) {
    for (int line = 1; line <= lineCount; ++line) {
        for (int place = 1; place <= setSize; ++place) {
            std::swap(state.Pool(place), state.Pool(random.OneTo(setSize)));
        }
        for (int pick = 1; pick <= state.Picks; ++pick) {
            state.Lines(line, pick) = state.Pool(pick);
        }
    }
    state.Lines(lineCount + 1, 1) = 0;
    SortLines(state, state.Picks);
}

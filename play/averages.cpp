// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/averages.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

constexpr std::size_t columns = 8;
constexpr int extraColumn = 8;

std::int16_t CloseToAverage(const State& state, Random& random, int column) {
    const int drawn = random.OneTo(3) - 2 + state.Pool(column);
    return static_cast<std::int16_t>(std::min(std::max(drawn, 1), state.MaxNum));
}

bool HasEqualNeighbours(const State& state, int line) {
    for (int column = 1; column < state.Picks; ++column) {
        if (state.Lines(line, column) == state.Lines(line, column + 1)) return true;
    }
    return false;
}

}  // namespace

void averages::Analyse(State& state) {
    const auto& draws = View(state).Draws;
    std::array<std::int32_t, columns> sums{};
    int row = 1;
    do {
        const std::int16_t* numbers = draws.Row(row) + 1;
        for (std::size_t place = 0; place < columns; ++place) sums[place] += numbers[place];
        ++row;
    } while (draws(row, 1) != 0);
    const int drawCount = row - 1;
    for (std::size_t place = 0; place < columns; ++place) {
        state.Pool(static_cast<int>(place) + 1) =
            static_cast<std::int16_t>(sums[place] / drawCount);
    }
}

void averages::PlayLotto(State& state, Random& random, int lineCount) {
    for (int line = 1; line <= lineCount; ++line) {
        for (int column = 1; column <= state.Picks; ++column) {
            state.Lines(line, column) = CloseToAverage(state, random, column);
        }
        if (state.MaxPball > 0) {
            state.Lines(line, extraColumn) =
                static_cast<std::int16_t>(random.OneTo(state.MaxPball));
        }
    }
    state.Lines(lineCount + 1, 1) = 0;
}

std::int16_t averages::CheckDuplicate(const State& state, int lineCount) {
    for (int line = 1; line <= lineCount; ++line) {
        if (HasEqualNeighbours(state, line)) return 0;
    }
    return -1;
}

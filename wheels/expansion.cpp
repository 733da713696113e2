// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/expansion.h"

#include <algorithm>
#include <cstdint>

#include "core/lines.h"

namespace wheels {
namespace {

bool StandsBefore(const State& state, int row, int column, std::int16_t number) {
    for (int before = 1; before < column; ++before) {
        if (state.Lines(row, before) == number) return true;
    }
    return false;
}

bool FieldHasOther(const State& state, int row, int column) {
    if (state.MaxNum >= column) return true;  // more numbers than columns to differ from
    for (int number = 1; number <= std::max(state.MaxNum, 1); ++number) {
        if (!StandsBefore(state, row, column, static_cast<std::int16_t>(number))) return true;
    }
    return false;
}

bool PoolHasOther(const State& state, int row, int column, int count) {
    for (int i = 0; i < count; ++i) {
        if (!StandsBefore(state, row, column, state.Pool(i))) return true;
    }
    return false;
}

}  // namespace

int ZeroBasedPosition(char letter) { return static_cast<unsigned char>(letter) - 65; }

int OneBasedPosition(char letter) { return static_cast<unsigned char>(letter) - 64; }

void CopyFromPool(State& state, int row, int column, int from, int count) {
    for (int k = 0; k < count; ++k) state.Lines(row, column + k) = state.Pool(from + k);
}

bool DrawOtherNumber(State& state, Random& random, int row, int column) {
    if (!FieldHasOther(state, row, column)) return false;
    std::int16_t number = 0;
    do {
        number = static_cast<std::int16_t>(random.OneTo(state.MaxNum));
    } while (StandsBefore(state, row, column, number));
    state.Lines(row, column) = number;
    return true;
}

bool DrawOtherFromPool(State& state, Random& random, int row, int column, int count) {
    if (!PoolHasOther(state, row, column, count)) return false;
    std::int16_t number = 0;
    do {
        number = state.Pool(static_cast<int>(random.Next() * count));
    } while (StandsBefore(state, row, column, number));
    state.Lines(row, column) = number;
    return true;
}

void DrawExtraBall(State& state, Random& random, int row) {
    if (state.MaxPball <= 0) return;
    state.Lines(row, 8) = static_cast<std::int16_t>(random.OneTo(state.MaxPball));
}

bool FitToPicks(State& state, Random& random, int row) {
    if (state.Picks == 5) state.Lines(row, 6) = 0;
    if (state.Picks == 7 && !DrawOtherNumber(state, random, row, 7)) {
        ClearLines(state);
        return false;
    }
    DrawExtraBall(state, random, row);
    return true;
}

Outcome ExpandSixLetters(State& state, Random& random, std::string_view pattern, int first) {
    int row = 1;
    for (; !pattern.empty(); pattern.remove_prefix(6), ++row) {
        for (int column = 1; column <= 6; ++column) {
            const int position = ZeroBasedPosition(pattern[static_cast<std::size_t>(column - 1)]);
            CopyFromPool(state, row, column, position + first, 1);
        }
        if (!FitToPicks(state, random, row)) return Outcome::NoOtherNumber;
    }
    state.Lines(row, 1) = 0;
    return Outcome::Done;
}

}  // namespace wheels

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "core/settings.h"

using Row = std::vector<int>;

/// What the tests of the filters answer.
inline constexpr std::int16_t passed = -1;
inline constexpr std::int16_t notPassed = 0;

/// Gives all four filters that strength.
inline void SetStrengths(State& state, const std::string& strength) {
    for (int slot = setting::OddEvenStrength; slot <= setting::LongRunStrength; ++slot) {
        state.Settings(slot) = strength;
    }
}

/// A run state whose lottery has `picks` numbers of `maxNum`, every filter at strength 1.
inline std::unique_ptr<State> Lottery(int picks, int maxNum) {
    auto state = std::make_unique<State>();
    state->Picks = picks;
    state->MaxNum = maxNum;
    SetStrengths(*state, "1");
    return state;
}

/// Writes the numbers from column 1 of each row on, and the end mark behind the last row.
template <typename Table>
void FillRows(Table& table, const std::vector<Row>& rows) {
    int row = 0;
    for (const Row& numbers : rows) {
        ++row;
        int column = 0;
        for (const int number : numbers) table(row, ++column) = static_cast<std::int16_t>(number);
    }
    table(row + 1, 1) = 0;
}

/// Columns 1 to `columns` of the rows before the end mark.
inline std::vector<Row> LinesOf(const State& state, int columns) {
    std::vector<Row> rows;
    for (int row = 1; state.Lines(row, 1) != 0; ++row) {
        const std::int16_t* numbers = state.Lines.Row(row) + 1;
        rows.emplace_back(numbers, numbers + columns);
    }
    return rows;
}

/// Every cell of the lines table, row by row.
inline Row AllLines(const State& state) {
    const std::int16_t* cells = state.Lines.Row(0);
    return {cells, cells + 181 * 15};
}

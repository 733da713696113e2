// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/lines.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

// The exchanges are those of a bubble sort from the end, without branches: a generator sorts
// millions of random lines, in which every branch would be a guess. By what the left number is
// too large, or by nothing, it shrinks and the right one grows.
template <std::size_t Count>
void SortRow(std::int16_t* numbers) {
    std::array<int, Count> sorted;
    std::copy_n(numbers, Count, sorted.begin());
    for (std::size_t first = 0; first + 1 < Count; ++first) {
        for (std::size_t place = Count - 1; place > first; --place) {
            const int excess = sorted[place - 1] - sorted[place];
            const int moved = excess & -static_cast<int>(excess > 0);
            sorted[place - 1] -= moved;
            sorted[place] += moved;
        }
    }
    for (std::size_t place = 0; place < Count; ++place) {
        numbers[place] = static_cast<std::int16_t>(sorted[place]);
    }
}

void SortRowChecked(State& state, int row, int count) {
    for (int first = 1; first < count; ++first) {
        for (int column = count - 1; column >= first; --column) {
            std::int16_t& right = state.Lines(row, column + 1);
            std::int16_t& left = state.Lines(row, column);
            if (right < left) std::swap(left, right);
        }
    }
}

void SortRow(State& state, int row, int count) {
    std::int16_t* numbers = state.Lines.Row(row) + 1;
    switch (count) {
        case 4:
            return SortRow<4>(numbers);
        case 5:
            return SortRow<5>(numbers);
        case 6:
            return SortRow<6>(numbers);
        case 7:
            return SortRow<7>(numbers);
        default:
            return SortRowChecked(state, row, count);
    }
}

}  // namespace

void ClearLines(State& state) { state.Lines.Fill(0); }

void SortLines(State& state, int count) {
    int row = 1;
    do {
        SortRow(state, row, count);
        ++row;
    } while (View(state).Lines(row, 1) != 0);
}

int LineCount(const State& state) {
    int row = 1;
    while (state.Lines(row, 1) != 0) ++row;
    return row - 1;
}

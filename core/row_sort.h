// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

/// Puts the first `Count` numbers in ascending order.
///
/// The exchanges are those of a bubble sort from the end, without branches: millions of random
/// lines are sorted, in which every branch would be a guess. By what the left number is too large,
/// or by nothing, it shrinks and the right one grows.
template <std::size_t Count>
void SortNumbers(std::int16_t* numbers) {
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

/// Puts columns 1 to `count` of one row of a table in ascending order, for any `count`; a column
/// outside the table is a `Failure`.
template <typename Table>
void SortRowStepByStep(Table& table, int row, int count) {
    for (int first = 1; first < count; ++first) {
        for (int column = count - 1; column >= first; --column) {
            std::int16_t& right = table(row, column + 1);
            std::int16_t& left = table(row, column);
            if (right < left) std::swap(left, right);
        }
    }
}

/// The same; fast for the counts that lotteries have.
template <typename Table>
void SortRow(Table& table, int row, int count) {
    std::int16_t* numbers = table.Row(row) + 1;
    switch (count) {
        case 4:
            return SortNumbers<4>(numbers);
        case 5:
            return SortNumbers<5>(numbers);
        case 6:
            return SortNumbers<6>(numbers);
        case 7:
            return SortNumbers<7>(numbers);
        default:
            return SortRowStepByStep(table, row, count);
    }
}

/// Puts columns 1 to `count` of each row in ascending order, up to the first row behind row 1 that
/// has a 0 in column 1 before it is sorted. A table without such a row is a `Failure`.
template <typename Table>
void SortRows(Table& table, int count) {
    int row = 1;
    do {
        SortRow(table, row, count);
        ++row;
    } while (std::as_const(table)(row, 1) != 0);
}

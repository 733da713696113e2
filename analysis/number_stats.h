// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/state.h"

/// When and how often each number of a lottery was drawn.
namespace number_stats {

/// The figures of one number.
struct NumberFigures {
    int lastDrawn = 0;   ///< How many draws ago, 1 in the newest; 0 never.
    int timesDrawn = 0;  ///< In the whole history.
    bool operator==(const NumberFigures&) const = default;
};

/// The figures of the numbers from 1 to `MaxNum`, and of how many draws they tell.
struct Statistics {
    int total = 0;
    std::vector<NumberFigures> numbers;  ///< That of number 1 first.
};

/// Goes through the main numbers of all draws. TableRow 1 is taken whatever it holds, so an empty
/// history tells of one draw of zeros.
///
/// `state.Pool` is left with the row in which each number was last seen, or -1. A highest number or
/// a drawn number above 70 is a `Failure`, and so is a history without an empty row behind it.
Statistics Analyse(State& state);

/// A row as it is shown: the number, "13 draws ago", "107 / 2068 draws", "19.33 draws".
using TableRow = std::array<std::string, 4>;

/// The columns by which rows are sorted.
inline constexpr int lastDrawnColumn = 1;
inline constexpr int timesDrawnColumn = 2;

/// One row a number, from 1 on. Averages have two places, halves rounded up.
std::vector<TableRow> TableOf(const Statistics& statistics);

enum class Order { HighestFirst, LowestFirst };

/// Sorts rows by the number that a column's text begins with, 0 where it begins with none. Rows of
/// equal numbers keep their order.
void SortRows(std::vector<TableRow>& rows, int column, Order order);

/// The numbers of the first ten rows as they follow a heading: " 7, 23, ...". Where there are
/// fewer rows, an empty text stands for each that is missing.
std::string FirstTen(const std::vector<TableRow>& rows);

}  // namespace number_stats

// SPDX-License-Identifier: GPL-3.0-or-later
// What the charts and tables of the latest draws have in common.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "core/state.h"

/// So many of the latest draws stand in the charts of sums, odd and even numbers, and ranges.
inline constexpr int recentDraws = 50;

/// One of the last draws in words.
struct LastDraw {
    std::string numbers;  ///< " 30, 7, 44, 11, 49, 5", in the order of the database.
    std::string ratio;    ///< "2:4", the numbers that were counted before those that were not.
};

/// The four newest draws, the newest first. A row behind the history is told like a draw.
using LastDraws = std::array<LastDraw, 4>;

/// Rows 1 to 4 of the history with their ratio of numbers for which `counted` holds.
LastDraws TellLastDraws(const State& state, const std::function<bool(int number)>& counted);

/// How many of the `most` newest rows are draws: those before the first row with 0 in column 1.
int DrawsAmong(const State& state, int most);

/// A `Failure` where a line of the lottery has more numbers than the `most` that there is room for.
void CheckPicks(const State& state, int most);

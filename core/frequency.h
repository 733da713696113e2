// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/state.h"

/// How often each number came up in the draw history, and which came up most and least often: for
/// the hot and cold picks, charts and wheels alike.

/// One figure for each number; entry n belongs to number n. 70 is the highest number counted.
using Counts = List<std::int16_t, 71>;

/// Times that each number was drawn.
struct NumberCounts {
    Counts MainCount{"counts of main numbers"};
    Counts ExtraCount{"counts of extra balls"};  ///< Bonus balls, where the lottery draws those.
};

/// Ten numbers in the order of a ranking.
using TenNumbers = std::array<int, 10>;

/// Counts every draw up to the first whose column 1 is below 1: columns 1 to `Picks` into
/// `MainCount`, column 8 into `ExtraCount`. What the counts held before is gone.
///
/// A number outside 0 to 70 is a `Failure` that says in which line of the database it stands, and
/// so is a history without an empty row behind it.
void CountNumbers(const State& state, NumberCounts& counts);

/// Counts the number that stands at a place of the draw history. One outside 0 to 70 is a `Failure`
/// that says in which line of the database it stands.
void CountNumberAt(Counts& counts, const State& state, int row, int column);

/// Turns a count into a measure of coldness: each of 1 to `highest` becomes the highest count less
/// its own, so that the least drawn number holds the most and a hottest one 0.
void ReverseCounts(Counts& counts, int highest);

/// The number from 1 to `highest` with the highest count, the lowest of those that tie. Its count
/// is negated, which marks it as taken; a count of 0 stays 0 and so is taken again and again.
int TakeHottest(Counts& counts, int highest);

/// Writes `highest` numbers to `pool`, from entry 1 on, as `TakeHottest` gives them, and 0 to entry
/// 0; entries above `highest` keep what they held.
///
/// Behind the numbers with a count above 0, each place of the pool holds the lowest number that
/// has none.
void GetHotNumbers(Counts& counts, int highest, List<std::int16_t, 121>& pool);

/// The numbers as they are shown: "7, 23, 38, ...".
std::string TenNumbersText(const TenNumbers& numbers);

/// Count and ranking step by step, as they are defined. Results, effects and failures of the fast
/// routines are those of these on every input.
namespace plain {

void CountNumbers(const State& state, NumberCounts& counts);
void GetHotNumbers(Counts& counts, int highest, List<std::int16_t, 121>& pool);

}  // namespace plain

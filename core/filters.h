// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "core/state.h"

/// The entry filters. Tests say whether all of `state.Lines` pass, prunes remove the lines that
/// fail.
///
/// A line means columns 1 to `Picks` of a row; column 8 never counts. The strength t of a filter is
/// the number at the head of its setting (`setting::OddEvenStrength` and the three behind it), read
/// anew at each call. A test whose box is not set passes at once without a look at the lines. Tests
/// answer -1 for passed and 0 for not passed.

/// Passes where every line has at least t odd and at least t even numbers.
std::int16_t OddEvenOK(const State& state, bool boxSet);

/// Passes where every line has at least t low and at least t high numbers; low means less than half
/// of `MaxNum`, so with 49 the low numbers are 1 to 24, and with 48 they are 1 to 23.
std::int16_t HighLowOK(const State& state, bool boxSet);

/// Passes where no line has more than `Picks` - t numbers in common with the main numbers of a
/// draw.
std::int16_t HistoryOK(State& state, bool boxSet);

/// Removes the lines with too many odd or even numbers.
///
/// This prune and the next two examine the first row even where it is the end mark.
void PruneOddEven(State& state);

/// Removes the lines with too many low or high numbers.
void PruneHighLow(State& state);

/// Removes the lines with t or more consecutive steps, each a number followed by its successor.
/// The lines must be sorted.
void PruneLongRun(State& state);

/// Removes the lines that repeat too much of a previous draw. The first draw is compared whatever
/// it holds; the end mark of the lines is never compared or removed.
void PruneHistory(State& state);

/// Removes every line that repeats an earlier one in columns 1 to 7. Column 8 does not count, and
/// the first of equal lines stays.
void PruneDuplicates(State& state);

/// The common step of the prunes: moves columns 1 to 9 of the rows below `row` up by one, the end
/// mark included. The row below is moved without a look at it; a quite full table is a `Failure`.
void RemoveLine(State& state, int row);

/// The filters of previous draws and of duplicates step by step, as they are defined. Results,
/// effects and failures of the fast routines are those of these on every input.
namespace plain {

/// Whether `HistoryOK` passes where its box is set.
bool HistoryPasses(const State& state);
void PruneHistory(State& state);
void PruneDuplicates(State& state);

/// Whether the line in `row` has more than `limit` equal pairs with a draw before the end mark.
bool RepeatsDraw(const State& state, int row, long long limit);

}  // namespace plain

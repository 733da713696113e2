// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "core/random.h"
#include "core/state.h"

namespace averages {

/// Writes the average of each of columns 1 to 8 over all draws to entries 1 to 8 of `Pool`, as a
/// whole number without its fraction.
///
/// The first draw counts whatever it holds, so without draws every average is 0; the next draw with
/// a 0 in column 1 ends the history. The draws have been sorted (`SortDraws`), so that column c
/// stands for the c-th lowest number.
void Analyse(State& state);

/// One attempt: fills `lineCount` lines, unsorted, and the end mark. Each number is the average of
/// its column, 1 less or 1 more, but not below 1 and not above `MaxNum`; the extra ball is random.
void PlayLotto(State& state, Random& random, int lineCount);

/// -1 where none of the first `lineCount` lines has equal numbers in neighbouring columns, else 0.
/// Equal numbers further apart are no matter.
std::int16_t CheckDuplicate(const State& state, int lineCount);

}  // namespace averages

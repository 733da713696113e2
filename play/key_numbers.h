// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>

#include "core/random.h"
#include "core/state.h"

namespace key_numbers {

/// The numbers that every line holds: one, two or three.
using Keys = std::span<const int>;

/// The fewest numbers that a line must have for so many keys: 4 for one or two, 5 for three.
int LeastPicks(int keyCount);

/// One attempt: lines, unsorted, with the keys in the first columns and the other numbers of the
/// lottery dealt around them from one shuffle, and the end mark behind them.
///
/// The deal runs on from the last number to the first until its line is full. Where only keys are
/// left at the last places of the shuffle when a line is full, one line more is dealt, the first
/// line again. Keys may be equal and in any order. Extra balls differ until all of them have been
/// dealt; the twenty next are the first ones again, and behind those comes what the shuffle of the
/// main numbers left. `MaxNum` or `MaxPball` above 100 is a `Failure`.
void PlayLotto(State& state, Random& random, Keys keys);

}  // namespace key_numbers

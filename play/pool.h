// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/random.h"
#include "core/state.h"

/// What the methods that shuffle all numbers of a lottery do with `state.Pool`.

/// Entries 1 to `highest` become these numbers; entries above keep what they held. A `highest`
/// above 120 is a `Failure`.
void FillPool(State& state, int highest);

/// Swaps entries 1, 1 + `step`, 1 + 2 `step`, ... up to `highest` in turn, each with a random one
/// of 1 to `highest`. Asks for one random number a swap. The pool has been filled up to `highest`.
void ShufflePool(State& state, Random& random, int highest, int step = 1);

/// Copies entries `step`, 2 `step`, ... to the `count` entries behind `highest`, one after the
/// other, so that an entry just filled may be copied on. Beyond entry 120 that is a `Failure`.
void ExtendPool(State& state, int highest, int count, int step = 1);

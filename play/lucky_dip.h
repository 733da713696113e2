// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/random.h"
#include "core/state.h"

namespace lucky_dip {

/// Fills `state.Lines` with `lineCount` sorted lines of plain random numbers and the end mark.
///
/// `Pool` starts as 1 to `MaxNum`; each line shuffles the order that the last one left and takes
/// the first `Picks` numbers, so the numbers of a line differ, though two lines may be equal.
/// Column 8 gets an extra ball of its own where the lottery has one. `MaxNum` above 120 is a
/// `Failure`.
void PlayLotto(State& state, Random& random, int lineCount);

}  // namespace lucky_dip

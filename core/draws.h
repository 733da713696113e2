// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/state.h"

/// Puts columns 1 to `count` of each draw in ascending order, so that column c holds the c-th
/// lowest number of a draw; column 8, behind them, stays as it is.
///
/// Row 1 is sorted whatever it holds. Each further row is asked for a 0 in column 1 before it is
/// sorted, so a draw with an empty field among its first `count` is sorted too and afterwards has
/// the 0 in column 1, where it ends the history for whoever walks it. Only the table changes, not
/// the file. 3,000 draws leave no empty row behind them and are a `Failure`.
void SortDraws(State& state, int count);

/// The sort as it is defined, one exchange after the other. Results, effects and failures of the
/// fast routine are those of this one on every input.
namespace plain {

void SortDraws(State& state, int count);

}  // namespace plain

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "analysis/hundred_counts.h"
#include "core/state.h"

namespace position_averages {

/// What stands at one position of the sorted draws.
struct Figures {
    int average = 0;          ///< Over the whole history, without its fraction.
    std::vector<int> recent;  ///< Its numbers in the newest draws; see `Analyse`.
    HundredCounts PositionCount{"numbers at a position"};  ///< How many draws have each number.
};

/// The figures of `position`, from 1, in a history that `SortDraws` has put in order. Row 1 counts
/// as a draw whatever it holds.
///
/// Up to 99 draws `recent` has one row more than there are draws, from then on 100. A highest
/// number above 100, a number at the position outside 0 to 100, and a history without an empty row
/// behind it are each a `Failure`.
Figures Analyse(const State& state, int position);

}  // namespace position_averages

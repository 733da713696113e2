// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "analysis/hundred_counts.h"
#include "analysis/recent_draws.h"
#include "core/state.h"

namespace draw_ranges {

/// Ranges of draws: the highest main number less the lowest.
struct Figures {
    std::array<int, recentDraws> recent{};        ///< Of rows 1 to 50, the newest first.
    HundredCounts RangeCount{"ranges of draws"};  ///< How many of those have each range.
    int average = 0;                              ///< Over the whole history; see `AnalyseRange`.
};

/// The figures of a history that `SortDraws` has put in order. The ranges look at 50 rows whether
/// draws or not; rows behind an end mark are not in order.
///
/// The average is divided by one more than there are draws, so it comes out a shade low. A highest
/// number above 100, a range outside 0 to 100, and a history without an empty row behind it are
/// each a `Failure`.
Figures AnalyseRange(const State& state);

}  // namespace draw_ranges

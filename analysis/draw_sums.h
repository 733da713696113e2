// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "analysis/recent_draws.h"
#include "core/state.h"

namespace draw_sums {

/// Sums of draws and how many low numbers draws have. Only main numbers count.
struct Figures {
    std::array<int, recentDraws> sums{};  ///< Of rows 1 to 50, the newest first.

    // Of those sums that are above 0.
    int smallest = 0;
    int largest = 0;
    int average = 0;  ///< Without its fraction.

    /// How many draws of the whole history have 0 to 7 low numbers, those below half the field.
    List<std::int16_t, 8> RatioCount{"low:high ratios"};

    /// Here half an odd field is rounded down: 24 of 49 is low above and high here.
    LastDraws last;
};

/// The figures of the current lottery. Row 1 counts as a draw whatever it holds; the sums look at
/// 50 rows whether draws or not.
///
/// Where none of the 50 adds up to more than 0 there is no average, which is a `Failure`, and so
/// are more than 7 main numbers and a history without an empty row behind it.
Figures Analyse(const State& state);

}  // namespace draw_sums

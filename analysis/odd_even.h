// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "analysis/recent_draws.h"
#include "core/state.h"

namespace odd_even {

/// How many numbers of something are odd and how many are even.
struct OddEven {
    int odd = 0;
    int even = 0;

    bool operator==(const OddEven&) const = default;
};

/// Odd and even main numbers of draws.
struct Figures {
    std::array<OddEven, recentDraws> recent{};  ///< The newest first; 0 and 0 behind the history.
    OddEven total;                              ///< Of the whole history.

    /// How many draws of the whole history have 0 to 8 even numbers.
    List<std::int16_t, 9> EvenCount{"even numbers of a draw"};

    LastDraws last;  ///< Odd numbers before even ones.
};

/// The figures of the current lottery. Row 1 counts as a draw whatever it holds, so a lottery
/// without draws has one with even numbers only, as 0 is even.
///
/// More than 7 main numbers and a history without an empty row behind it are each a `Failure`.
Figures Analyse(const State& state);

}  // namespace odd_even

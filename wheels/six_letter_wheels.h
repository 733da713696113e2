// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "core/random.h"
#include "core/state.h"
#include "wheels/expansion.h"

/// Match wheels, the form `PThreeMatch`: the numbers fall on the letters in the order of the boxes.
namespace match_wheels {

inline constexpr int boxCount = 20;

/// `wheels::ExpandSixLetters` with "A" for `Pool(0)`; the lines are left unsorted.
inline wheels::Outcome Do_Wheel(State& state, Random& random, std::string_view pattern) {
    return wheels::ExpandSixLetters(state, random, pattern, 0);
}

}  // namespace match_wheels

/// Guaranteed win wheels, the form `PGuaranteed`: the numbers chosen on its board, mixed anew for
/// each try, fall on the letters.
namespace guaranteed_wheels {

/// `wheels::ExpandSixLetters` with "A" for `Pool(1)`; the lines are left unsorted.
inline wheels::Outcome Do_Wheel(State& state, Random& random, std::string_view pattern) {
    return wheels::ExpandSixLetters(state, random, pattern, 1);
}

}  // namespace guaranteed_wheels

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/budget_wheels.h"

#include "core/lines.h"

using wheels::CopyFromPool;
using wheels::Outcome;
using wheels::ZeroBasedPosition;

namespace budget_wheels {

Outcome Do_Wheel7(State& state, Random& random, std::string_view pattern, int count) {
    for (int row = 1; !pattern.empty(); pattern.remove_prefix(2), ++row) {
        CopyFromPool(state, row, 1, 3 * ZeroBasedPosition(pattern[0]), 3);
        CopyFromPool(state, row, 4, 3 * ZeroBasedPosition(pattern[1]), 3);
        // The seventh number is one of those chosen: that is the point of a budget wheel.
        if (!wheels::DrawOtherFromPool(state, random, row, 7, count)) {
            ClearLines(state);
            return Outcome::NoOtherNumber;
        }
        wheels::DrawExtraBall(state, random, row);
    }
    SortLines(state, state.Picks);
    return Outcome::Done;
}

Outcome Do_Wheel6(State& state, Random& random, std::string_view pattern) {
    for (int row = 1; !pattern.empty(); pattern.remove_prefix(2), ++row) {
        CopyFromPool(state, row, 1, 3 * ZeroBasedPosition(pattern[0]), 3);
        CopyFromPool(state, row, 4, 3 * ZeroBasedPosition(pattern[1]), 3);
        wheels::DrawExtraBall(state, random, row);
    }
    SortLines(state, state.Picks);
    return Outcome::Done;
}

Outcome Do_Wheel5(State& state, Random& random, std::string_view pattern) {
    for (int row = 1; !pattern.empty(); pattern.remove_prefix(2), ++row) {
        const bool dropsLast = static_cast<float>(random.Next()) > 0.5F;
        const int second = 3 * ZeroBasedPosition(pattern[1]);
        CopyFromPool(state, row, 1, 3 * ZeroBasedPosition(pattern[0]), 3);
        CopyFromPool(state, row, 4, dropsLast ? second : second + 1, 2);
        wheels::DrawExtraBall(state, random, row);
    }
    SortLines(state, state.Picks);
    return Outcome::Done;
}

}  // namespace budget_wheels

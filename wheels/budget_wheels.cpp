// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/budget_wheels.h"

#include "core/lines.h"
#include "core/text.h"
#include "wheels/patterns.h"

using wheels::CopyFromPool;
using wheels::Outcome;
using wheels::ZeroBasedPosition;

namespace budget_wheels {
namespace {

const wheels::WheelFamily& Family() { return wheels::FamilyOf(wheels::WheelList::Budget); }

const wheels::Wheel& WheelOf(int option) {
    return wheels::WheelAt(wheels::WheelList::Budget, option);
}

}  // namespace

int NumberCount(int option) { return WheelOf(option).numbers; }

std::string OptionCaption(int option) {
    const wheels::Wheel& wheel = WheelOf(option);
    return "Wheel " + wheels::InColumn(wheel.numbers) + " numbers in " + PlainDigits(wheel.lines) +
           " lines";
}

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

bool HasTooFewPicks(const State& state) { return state.Picks < Family().lowestPicks; }

bool Prepare(State& state, const wheels::Boxes& boxes) {
    ClearLines(state);
    return wheels::EachInUseHasNumber(boxes);
}

Outcome Generate(State& state, Random& random, int option, const wheels::Boxes& boxes) {
    if (HasTooFewPicks(state) || state.Picks > Family().highestPicks) return Outcome::Refused;
    wheels::ReadAll(state, boxes);
    const wheels::Wheel& wheel = WheelOf(option);
    if (state.Picks == 7) return Do_Wheel7(state, random, wheel.pattern, wheel.numbers);
    if (state.Picks == 6) return Do_Wheel6(state, random, wheel.pattern);
    return Do_Wheel5(state, random, wheel.pattern);
}

}  // namespace budget_wheels

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/pairs_triplets.h"

#include "core/lines.h"
#include "core/text.h"
#include "wheels/patterns.h"

using wheels::CopyFromPool;
using wheels::Outcome;
using wheels::WheelAt;
using wheels::WheelList;
using wheels::ZeroBasedPosition;

namespace {

// Empties the lines, seeds, and reads the boxes.
bool Begin(State& state, Random& random, wheels::Boxes& boxes) {
    ClearLines(state);
    random.SeedFromClock();
    return wheels::ReadAndEmptyUnused(state, boxes);
}

Outcome GiveUp(State& state) {
    ClearLines(state);
    return Outcome::NoOtherNumber;
}

}  // namespace

namespace pairs {
namespace {

WheelList ListFor(int picks) { return picks < 6 ? WheelList::Pairs : WheelList::PairsOfSix; }

// One pair for each letter; then a number of its own where exactly `picksWithOther` are played.
Outcome Expand(State& state, Random& random, std::string_view pattern, std::size_t letters,
               int picksWithOther) {
    for (int row = 1; !pattern.empty(); pattern.remove_prefix(letters), ++row) {
        int column = 1;
        for (const char letter : pattern.substr(0, letters)) {
            CopyFromPool(state, row, column, 2 * ZeroBasedPosition(letter), 2);
            column += 2;
        }
        if (state.Picks == picksWithOther && !wheels::DrawOtherNumber(state, random, row, column)) {
            return GiveUp(state);
        }
        wheels::DrawExtraBall(state, random, row);
    }
    SortLines(state, state.Picks);
    return Outcome::Done;
}

}  // namespace

int NumberCount(int option) { return 2 * option + 8; }

std::string OptionCaption(int option, int picks) {
    const wheels::Wheel& wheel = WheelAt(ListFor(picks), option);
    return "Wheel " + PlainDigits(wheel.numbers) + " numbers in " + PlainDigits(wheel.lines) +
           " lines";
}

std::string Prompt(int option) {
    return "   Enter" + NumberText(NumberCount(option)) +
           " different pairs of numbers, starting with A:";
}

Outcome Do_Wheel4(State& state, Random& random, std::string_view pattern) {
    return Expand(state, random, pattern, 2, 5);
}

Outcome Do_Wheel6(State& state, Random& random, std::string_view pattern) {
    return Expand(state, random, pattern, 3, 7);
}

Outcome Generate(State& state, Random& random, int option, wheels::Boxes& boxes) {
    if (!Begin(state, random, boxes)) return Outcome::CheckInput;
    const std::string_view pattern = WheelAt(ListFor(state.Picks), option).pattern;
    return state.Picks < 6 ? Do_Wheel4(state, random, pattern) : Do_Wheel6(state, random, pattern);
}

}  // namespace pairs

namespace triplets {

int NumberCount(int option) { return 3 * option + 9; }

std::string OptionCaption(int option) {
    const wheels::Wheel& wheel = WheelAt(WheelList::Triplets, option);
    return "Wheel " + wheels::InColumn(wheel.numbers) + " numbers in " +
           wheels::InColumn(wheel.lines) + " lines";
}

std::string Prompt(int option) {
    return "   Enter" + NumberText(NumberCount(option)) +
           " different numbers in groups of three, starting with group A:";
}

std::optional<std::string> Advice(int picks) {
    switch (picks) {
        case 4:
        case 5:
        case 7:
            return PlainDigits(picks) + "-pick lotteries are not ideal for this method.";
        case 6:
            return "6-pick lotteries are OK with Wheeling Triplets.";
        default:
            return std::nullopt;
    }
}

Outcome Do_Wheel(State& state, Random& random, std::string_view pattern) {
    for (int row = 1; !pattern.empty(); pattern.remove_prefix(2), ++row) {
        const int second = 3 * ZeroBasedPosition(pattern[1]);
        CopyFromPool(state, row, 1, 3 * ZeroBasedPosition(pattern[0]), 3);
        CopyFromPool(state, row, 4, second, 1);
        if (state.Picks > 4) CopyFromPool(state, row, 5, second + 1, 1);
        if (state.Picks > 5) CopyFromPool(state, row, 6, second + 2, 1);
        if (state.Picks > 6 && !wheels::DrawOtherNumber(state, random, row, 7)) {
            return GiveUp(state);
        }
        wheels::DrawExtraBall(state, random, row);
    }
    SortLines(state, state.Picks);
    return Outcome::Done;
}

Outcome Generate(State& state, Random& random, int option, wheels::Boxes& boxes) {
    if (!Begin(state, random, boxes)) return Outcome::CheckInput;
    return Do_Wheel(state, random, WheelAt(WheelList::Triplets, option).pattern);
}

}  // namespace triplets

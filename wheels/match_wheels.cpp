// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/match_wheels.h"

#include "core/lines.h"
#include "core/text.h"

using wheels::WheelAt;
using wheels::WheelList;

namespace match_wheels {
namespace {

std::string Opening(WheelList list, int item) {
    const int drawn = WheelAt(list, item).drawn;
    const std::string opening = "If your numbers contain";
    if (drawn == 6) return opening + NumberText(6);
    const std::string any = list == WheelList::ThreeMatch ? " any" : "";
    return opening + any + NumberText(drawn) + " of the 6";
}

// Kept on purpose: two blanks behind the comma.
std::string Promise(WheelList list) {
    if (list == WheelList::ThreeMatch) {
        return " numbers in the lottery draw result you will match at least 3 in one or more lines."
               " ";
    }
    return " numbers in the lottery draw result,  you will match at least 4 in one or more lines. ";
}

}  // namespace

std::string ItemText(WheelList list, int item) {
    const wheels::Wheel& wheel = WheelAt(list, item);
    return NumberText(wheel.drawn) + " from" + NumberText(wheel.numbers);
}

std::string Sentence(WheelList list, int item, std::string_view pattern) {
    return (item < 0 ? std::string() : Opening(list, item)) + Promise(list) +
           "This wheel requires" + NumberText(static_cast<long long>(pattern.size() / 6)) +
           " lottery entries.";
}

std::string Prompt(int numbers) { return "   Pick" + NumberText(numbers) + " numbers:"; }

bool Suits(const State& state) { return state.Picks >= 5; }

wheels::Outcome Do_Wheel(State& state, Random& random, std::string_view pattern) {
    return wheels::ExpandSixLetters(state, random, pattern, 0);
}

wheels::Outcome Generate(State& state, Random& random, std::string_view pattern,
                         const wheels::Boxes& boxes) {
    if (!wheels::ReadInRange(state, boxes)) return wheels::Outcome::CheckInput;
    ClearLines(state);
    const wheels::Outcome outcome = Do_Wheel(state, random, pattern);
    if (outcome == wheels::Outcome::Done) SortLines(state, state.Picks);
    return outcome;
}

}  // namespace match_wheels

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/guaranteed_wheels.h"

#include <cstddef>
#include <cstdint>

#include "core/text.h"
#include "play/pool.h"

namespace guaranteed_wheels {
namespace {

int LineNumber(std::string_view itemText) {
    return LeadingWhole(itemText.substr(itemText.find('/') + 1));
}

}  // namespace

std::string ItemText(wheels::WheelList list, int item) {
    const wheels::Wheel& wheel = wheels::WheelAt(list, item);
    return PlainDigits(wheel.numbers) + " numbers / " + PlainDigits(wheel.lines) + " lines";
}

std::string PickText(std::string_view itemText) {
    return "Pick" + NumberText(NumberCount(itemText)) + " numbers.";
}

std::string UsesText(std::string_view itemText) {
    return "Uses" + NumberText(LineNumber(itemText)) + " lines.";
}

int NumberCount(std::string_view itemText) { return LeadingWhole(itemText); }

int TakeSelection(State& state, const Selection& selection) {
    int count = 0;
    for (int number = 1; number <= boardNumbers; ++number) {
        if (!selection[static_cast<std::size_t>(number)]) continue;
        state.Pool(++count) = static_cast<std::int16_t>(number);
    }
    return count;
}

Refusal Check(const State& state, int chosen, int numbers) {
    if (chosen != numbers) return Refusal::WrongCount;
    if (numbers > state.MaxNum) return Refusal::TooManyNumbers;
    if (state.Picks < 5) return Refusal::TooFewPicks;
    return Refusal::None;
}

std::string CountMessage(int chosen, int numbers) {
    return NumberText(chosen) + " numbers picked. You need" + NumberText(numbers) +
           " for this wheel.    ";
}

Selection SelectAtRandom(State& state, Random& random, int count) {
    FillPool(state, state.MaxNum);
    ShufflePool(state, random, state.MaxNum);
    Selection selection{};
    for (int place = 1; place <= count; ++place) {
        const int number = state.Pool(place);
        if (number < 1 || number > boardNumbers) continue;
        selection[static_cast<std::size_t>(number)] = true;
    }
    return selection;
}

wheels::Outcome Do_Wheel(State& state, Random& random, std::string_view pattern) {
    return wheels::ExpandSixLetters(state, random, pattern, 1);
}

wheels::Outcome PlayLotto(State& state, Random& random, std::string_view pattern, int numbers) {
    ShufflePool(state, random, numbers);
    return Do_Wheel(state, random, pattern);
}

}  // namespace guaranteed_wheels

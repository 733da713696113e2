// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "core/random.h"
#include "core/state.h"
#include "wheels/expansion.h"
#include "wheels/number_boxes.h"
#include "wheels/patterns.h"

/// Match wheels, the form `PThreeMatch`: the numbers fall on the letters in the order of the boxes.
/// The lists are `ThreeMatch` and `FourMatch`.
namespace match_wheels {

inline constexpr int boxCount = 20;

/// What a list shows for a wheel: " 6 from 20".
std::string ItemText(wheels::WheelList list, int item);

/// What the wheel of an item promises, with its count of lines; without its opening where no item
/// is chosen (-1).
std::string Sentence(wheels::WheelList list, int item, std::string_view pattern);

/// The text of `Label8` over the boxes of a wheel of so many numbers.
std::string Prompt(int numbers);

/// Whether the wheels can be played in the current lottery.
bool Suits(const State& state);

/// Fills `Lines` with "A" standing for `Pool(0)`; the lines are left unsorted.
wheels::Outcome Do_Wheel(State& state, Random& random, std::string_view pattern);

/// Reads the boxes into `Pool` and makes the wheel of the pattern for the current lottery. Where a
/// box in use holds no number of the lottery, `Lines` stays as it is. Neither seeds `random` nor
/// touches `Busy`.
wheels::Outcome Generate(State& state, Random& random, std::string_view pattern,
                         const wheels::Boxes& boxes);

}  // namespace match_wheels

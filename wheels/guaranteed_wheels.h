// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/random.h"
#include "core/state.h"
#include "wheels/expansion.h"
#include "wheels/patterns.h"

/// Guaranteed win wheels, the form `PGuaranteed`: the numbers chosen on its board, mixed anew for
/// each try, fall on the letters. The lists are `ThreeForSix`, `ThreeForThree` and `FiveForSix`.
namespace guaranteed_wheels {

/// The board has the numbers 1 to 60, whatever the lottery has more.
inline constexpr int boardNumbers = 60;

/// Which numbers of the board are chosen, by the number; entry 0 is none.
using Selection = std::array<bool, boardNumbers + 1>;

/// What a list shows for a wheel: "21 numbers / 15 lines". Its two numbers are read from this text.
std::string ItemText(wheels::WheelList list, int item);

/// "Pick 21 numbers." and "Uses 15 lines.", from the text of an item.
std::string PickText(std::string_view itemText);
std::string UsesText(std::string_view itemText);

/// How many numbers the wheel with that text takes.
int NumberCount(std::string_view itemText);

/// Why no lines are made.
enum class Refusal { None, WrongCount, TooManyNumbers, TooFewPicks };

/// Puts the chosen numbers into `Pool(1)` onward, ascending, and tells how many they are.
int TakeSelection(State& state, const Selection& selection);

/// The first reason, in the order of the enumeration, against a wheel of `numbers` numbers where
/// `chosen` are.
Refusal Check(const State& state, int chosen, int numbers);

/// The words of the first refusal: " 20 numbers picked. You need 21 for this wheel.    ".
std::string CountMessage(int chosen, int numbers);

/// Shuffles 1 to `MaxNum` in `Pool(1)` onward and chooses the numbers in its first `count` places.
/// Where the lottery has fewer, those behind them are what `Pool` held before; a number that the
/// board does not have chooses nothing.
Selection SelectAtRandom(State& state, Random& random, int count);

/// Fills `Lines` with "A" standing for `Pool(1)`; the lines are left unsorted.
wheels::Outcome Do_Wheel(State& state, Random& random, std::string_view pattern);

/// One try: mixes `Pool(1)` to `Pool(numbers)` from the order that the last try left, and fills
/// `Lines`.
wheels::Outcome PlayLotto(State& state, Random& random, std::string_view pattern, int numbers);

}  // namespace guaranteed_wheels

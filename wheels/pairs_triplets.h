// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/random.h"
#include "core/state.h"
#include "wheels/expansion.h"
#include "wheels/number_boxes.h"

/// Wheeling pairs, the form `PWheel2`: boxes 2L and 2L + 1 are pair L, and one letter is a pair.
namespace pairs {

inline constexpr int boxCount = 18;
inline constexpr int optionCount = 6;

/// How many numbers the size `Option1(option)` takes.
int NumberCount(int option);

/// The caption of `Option1(option)` for a lottery of so many picks, from "Wheel 8 numbers in 6
/// lines" on.
std::string OptionCaption(int option, int picks);

/// The text of `Label8` once `Option1(option)` was clicked.
std::string Prompt(int option);

/// Fills `Lines` from two letters a line: four columns, and for exactly five picks a random fifth.
/// Sorts the lines. Where a line finds no such number, `Lines` is cleared.
wheels::Outcome Do_Wheel4(State& state, Random& random, std::string_view pattern);

/// Fills `Lines` from three letters a line: six columns, and for exactly seven picks a random
/// seventh. Sorts the lines. Where a line finds no such number, `Lines` is cleared.
wheels::Outcome Do_Wheel6(State& state, Random& random, std::string_view pattern);

/// Clears `Lines`, seeds `random` from the clock, reads the boxes into `Pool`, empties those out of
/// use, and makes the wheel of `Option1(option)` for the current lottery. Unless it is done `Lines`
/// is empty. `Busy` is the caller's.
wheels::Outcome Generate(State& state, Random& random, int option, wheels::Boxes& boxes);

}  // namespace pairs

/// Wheeling triplets, the form `PWheel3`: boxes 3L to 3L + 2 are group L, and one letter is a
/// group.
namespace triplets {

inline constexpr int boxCount = 24;
inline constexpr int optionCount = 6;

/// How many numbers the size `Option1(option)` takes.
int NumberCount(int option);

/// The caption of `Option1(option)`, the same for every lottery, blanks for alignment included.
std::string OptionCaption(int option);

/// The text of `Label8` once `Option1(option)` was clicked.
std::string Prompt(int option);

/// The text of `Label4` for a lottery of so many picks; nothing where the old text stays.
std::optional<std::string> Advice(int picks);

/// Fills `Lines` from two letters a line: the whole group of the first, and of the second as many
/// numbers as the picks leave room for, one at least; above six picks a random seventh. Sorts the
/// lines. Where a line finds no seventh number, `Lines` is cleared.
wheels::Outcome Do_Wheel(State& state, Random& random, std::string_view pattern);

/// As `pairs::Generate`.
wheels::Outcome Generate(State& state, Random& random, int option, wheels::Boxes& boxes);

}  // namespace triplets

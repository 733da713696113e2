// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "core/random.h"
#include "core/state.h"
#include "wheels/expansion.h"
#include "wheels/number_boxes.h"

/// Budget wheels, the form `PBudgetWheel`: boxes 3L to 3L + 2 are group L, one letter is a group,
/// two letters are a line. All three routines sort the lines.
namespace budget_wheels {

inline constexpr int boxCount = 18;
inline constexpr int optionCount = 4;

/// How many numbers the size `Option1(option)` takes.
int NumberCount(int option);

/// The caption of `Option1(option)`, blanks for alignment included.
std::string OptionCaption(int option);

/// Lines of two whole groups and, from the `count` chosen numbers, a seventh that differs from the
/// six. Where a line finds none, `Lines` is cleared.
wheels::Outcome Do_Wheel7(State& state, Random& random, std::string_view pattern, int count);

/// Lines of two whole groups.
wheels::Outcome Do_Wheel6(State& state, Random& random, std::string_view pattern);

/// Lines of one whole group and, at random line by line, the first or the last two numbers of the
/// other.
wheels::Outcome Do_Wheel5(State& state, Random& random, std::string_view pattern);

/// Whether the lottery has fewer picks than these wheels can be cut down to.
bool HasTooFewPicks(const State& state);

/// Clears `Lines`, whatever follows; false where a box in use holds no number.
bool Prepare(State& state, const wheels::Boxes& boxes);

/// Reads the boxes into `Pool` and makes the wheel of `Option1(option)` for the current lottery;
/// `random` goes on from where it stands. A lottery with too few picks or too many for these wheels
/// is refused before anything is read. Unless it is done `Lines` is empty.
wheels::Outcome Generate(State& state, Random& random, int option, const wheels::Boxes& boxes);

}  // namespace budget_wheels

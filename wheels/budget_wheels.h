// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "core/random.h"
#include "core/state.h"
#include "wheels/expansion.h"

/// Budget wheels, the form `PBudgetWheel`: boxes 3L to 3L + 2 are group L, one letter is a group,
/// two letters are a line. All three routines sort the lines.
namespace budget_wheels {

inline constexpr int boxCount = 18;

/// Lines of two whole groups and, from the `count` chosen numbers, a seventh that differs from the
/// six. Where a line finds none, `Lines` is cleared.
wheels::Outcome Do_Wheel7(State& state, Random& random, std::string_view pattern, int count);

/// Lines of two whole groups.
wheels::Outcome Do_Wheel6(State& state, Random& random, std::string_view pattern);

/// Lines of one whole group and, at random line by line, the first or the last two numbers of the
/// other.
wheels::Outcome Do_Wheel5(State& state, Random& random, std::string_view pattern);

}  // namespace budget_wheels

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "core/random.h"
#include "core/state.h"

namespace full_selection {

/// How many lines deal all numbers of the lottery: `MaxNum` / `Picks`, and with `includeAll` one
/// more where a remainder is left. A lottery without a number to pick is a `Failure`.
int LineCount(const State& state, bool includeAll);

/// What the form says of the numbers that fit no line: "  All numbers used" with `includeAll`, else
/// "  1 numbers unused", both in this form whatever the remainder is.
std::string UnusedNote(const State& state, bool includeAll);

/// One attempt: shuffles 1 to `MaxNum` and deals them into lines of `Picks`, unsorted, each with a
/// random extra ball where the lottery has one, and the end mark behind them.
///
/// A last, short line is filled with the second, fourth, ... number of the shuffle, which so are
/// played twice. In a lottery of few numbers the fill may repeat itself within the line. `MaxNum`
/// above 110 is a `Failure`.
void PlayLotto(State& state, Random& random, bool includeAll);

}  // namespace full_selection

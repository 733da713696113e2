// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "core/state.h"

/// One count for each of 0 to 100.
using HundredCounts = List<std::int16_t, 101>;

/// Counts a value of a draw once more. One that is not from 0 to 100 is a `Failure` that says in
/// which line of the database the draw stands; `what` names such values.
void CountOne(HundredCounts& counts, const State& state, int row, int value, std::string_view what);

/// A `Failure` where the lottery's highest number is above 100, so that not all could be counted.
void CheckField(const State& state);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "core/date.h"
#include "core/random.h"
#include "core/state.h"

/// What the methods share that turn a person's facts into lucky numbers and place these in a short
/// wheel. The same seed value gives the same numbers and lines, extra balls included.

/// The lucky numbers of a form, from entry 1 on. The form keeps them from one generation to the
/// next.
struct LuckyNumbers : List<std::int16_t, 81> {
    LuckyNumbers() : List("lucky numbers") {}
};

/// By how many places the lines of a wheel are apart.
enum class WheelType { Type1 = 1, Type2 = 2, Type3 = 3 };

/// The seed value of what counts for a person and of a date, whose day, month and year add to it.
std::int64_t LuckySeed(std::int64_t person, Date date);

/// Starts the repeatable sequence of `seed` and shuffles 1 to 50, whatever the lottery, into
/// `Pool`, for which it asks for 50 random numbers. Returns the first fifteen as they are shown: "
/// 7, 23, 38, ...".
std::string ShuffleLuckyNumbers(State& state, Random& random, std::int64_t seed);

/// Which of the shuffled numbers a method takes as lucky numbers: those not above `MaxNum`, up to
/// so many of them and up to a place of `Pool`.
struct Taking {
    int most = 0;
    int lastPlace = 0;
};

/// Makes the lines of a seed value, sorted, with the type's short wheel, and returns the fifteen
/// lucky numbers as `ShuffleLuckyNumbers` does.
///
/// What `numbers` holds behind those that are taken stays there.
std::string PlayLuckyNumbers(State& state, Random& random, LuckyNumbers& numbers, std::int64_t seed,
                             WheelType type, const Taking& taking);

/// Makes the lines of a short wheel, sorted, with the end mark behind them, and nothing else in the
/// table.
///
/// A line begins at place 1 and the next ones `type` places further each; a line that begins at one
/// of the places 1 to 8 goes round these eight, one that begins at place 9 goes straight on. So
/// there are 9, 5 or 3 lines. Where the lottery has an extra ball, each line up to the first whose
/// first number is 0 gets a random one, before the lines are sorted; so a line of which any number
/// is 0 ends the result.
void ShortWheel(State& state, Random& random, const LuckyNumbers& numbers, WheelType type);

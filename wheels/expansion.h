// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

#include "core/random.h"
#include "core/state.h"

/// The steps that all wheels made from letters share; the wheels themselves, `Do_Wheel` and its
/// like, put them together.
namespace wheels {

/// What came of generating a wheel.
enum class Outcome {
    Done,           ///< The lines stand and are to be shown.
    Shown,          ///< The lines stand, and the form has shown them itself.
    CheckInput,     ///< A box holds no number that can be played.
    NoOtherNumber,  ///< A line needs one more number and none is left that differs.
    Refused,        ///< The form has said why there are no lines; the grid stays as it is.
};

/// The position of a letter, whose codes run on from "A" without a break: 0 for "A", 26 for "[".
int ZeroBasedPosition(char letter);

/// The position of a letter counted from 1: 1 for "A", 48 for "p".
int OneBasedPosition(char letter);

/// Copies `count` numbers from `Pool(from)` onward into a row of `Lines`, from `column` on. A place
/// beyond either table is a `Failure`.
void CopyFromPool(State& state, int row, int column, int from, int count);

/// Draws numbers from 1 to `MaxNum` for `column` of a row until one differs from all columns before
/// it. Where none can differ it draws nothing and returns false.
bool DrawOtherNumber(State& state, Random& random, int row, int column);

/// The same from `Pool(0)` to `Pool(count - 1)`.
bool DrawOtherFromPool(State& state, Random& random, int row, int column, int count);

/// Draws the extra ball of a row into column 8 where the lottery has one.
void DrawExtraBall(State& state, Random& random, int row);

/// Makes what the lottery plays of a row of six numbers: for five picks the sixth column goes back
/// to 0, for seven a random number joins, and an extra ball where there is one. Where no seventh
/// number is left, `Lines` is cleared and the result is false.
bool FitToPicks(State& state, Random& random, int row);

/// Fills `Lines` from a pattern of six letters a line and one number a letter, "A" standing for
/// `Pool(first)`, and fits each line to the lottery. Writes the end mark and does not sort. Where a
/// line finds no seventh number, `Lines` is cleared.
Outcome ExpandSixLetters(State& state, Random& random, std::string_view pattern, int first);

}  // namespace wheels

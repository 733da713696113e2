// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "core/random.h"
#include "core/state.h"

namespace wheels {

/// One box for a chosen number, as a form shows it. `inUse` is what the form draws white; the rest
/// is grey, and in some forms disabled.
struct Box {
    std::string text;
    bool inUse = true;
};

/// The boxes of a form, `Text1(0)` first.
using Boxes = std::vector<Box>;

/// What happens to the texts of boxes that a choice of size puts out of use.
enum class UnusedTexts { Emptied, Kept };

/// Whether a box holds a number from 1 to `maxNum`. For `PWheel2`, `PWheel3` and `PThreeMatch`.
bool IsInField(const Box& box, int maxNum);

/// Whether a box holds a number of 1 or more, however high. For `PDIYWheels`.
bool IsAboveZero(const Box& box, int maxNum);

/// Whether a box holds a number other than 0, negative and too high ones too. For `PBudgetWheel`.
bool HasNumber(const Box& box, int maxNum);

/// Puts the first `count` boxes to use and the others out of it.
void ChooseSize(Boxes& boxes, int count, UnusedTexts unused);

/// Empties every box whose number is below 1 or above `maxNum`; the others keep their text as
/// typed.
void EmptyInvalid(Boxes& boxes, int maxNum);

/// Puts the number of every box into `Pool` from index 0; a text without a leading number is 0.
void ReadAll(State& state, const Boxes& boxes);

/// As `ReadAll`, and empties the boxes out of use, whose old numbers still reach `Pool`. False
/// where a box in use holds a number below 1 or above `MaxNum`. For `PWheel2` and `PWheel3`.
bool ReadAndEmptyUnused(State& state, Boxes& boxes);

/// As `ReadAll`; false where a box in use holds a number below 1 or above `MaxNum`. For
/// `PThreeMatch`.
bool ReadInRange(State& state, const Boxes& boxes);

/// Puts the numbers of the first `count` boxes into `Pool` from index 0 and leaves the rest of it;
/// false where one is below 1. There is no upper limit. For `PDIYWheels`.
bool ReadFirst(State& state, const Boxes& boxes, int count);

/// Whether `HasNumber` says so of each box in use. For `PBudgetWheel`.
bool EachInUseHasNumber(const Boxes& boxes);

/// Shuffles 1 to `MaxNum` in `Pool(1)` onward and gives box i in use the text of `Pool(i + 1)`,
/// beyond `MaxNum` too, where `Pool` holds what it held before. For `PWheel2` and `PWheel3`.
void SelectFromOne(State& state, Random& random, Boxes& boxes);

/// Shuffles 1 to `MaxNum` in `Pool(0)` onward and gives box i in use the text of `Pool(i)`, beyond
/// `MaxNum` too. For `PBudgetWheel`, `PThreeMatch` and `PDIYWheels`.
void SelectFromZero(State& state, Random& random, Boxes& boxes);

/// Mixes the numbers of all boxes, in use or not, up to the last that holds one above 0, and writes
/// every box: its number in plain digits, or an empty text where that is 0 or less. No place swaps
/// with the last one but by the last one's own turn, so the shuffle is slightly uneven, on purpose.
void MixOrder(State& state, Random& random, Boxes& boxes);

/// As `MixOrder`, but writes only the boxes up to that last one, a 0 between numbers as "0". For
/// `PBudgetWheel`.
void MixOrderUpToLast(State& state, Random& random, Boxes& boxes);

}  // namespace wheels

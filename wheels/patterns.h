// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace wheels {

/// One wheel of the catalogue: what one option button or list item stands for.
struct Wheel {
    int numbers;  ///< How many numbers the wheel takes.
    int lines;    ///< How many lines it makes.
    int drawn;    ///< How many drawn numbers the promise needs among those chosen; 0: no promise.
    std::string_view pattern;  ///< The letters of all lines, one line after the other.
};

/// The lists that wheels are chosen from; `WheelAt` counts their items from 0.
enum class WheelList {
    Pairs,          ///< `PWheel2`, `Option1`, for fewer than six picks.
    PairsOfSix,     ///< `PWheel2`, `Option1`, for six picks or more.
    Triplets,       ///< `PWheel3`, `Option1`.
    Budget,         ///< `PBudgetWheel`, `Option1`.
    ThreeMatch,     ///< `PThreeMatch`, `Combo1`.
    FourMatch,      ///< `PThreeMatch`, `Combo2`.
    ThreeForSix,    ///< `PGuaranteed`, `Combo1`.
    ThreeForThree,  ///< `PGuaranteed`, `Combo2`.
    FiveForSix,     ///< `PGuaranteed`, `Combo3`.
};

/// Every list, in the order of the catalogue.
inline constexpr WheelList allWheelLists[] = {
    WheelList::Pairs,       WheelList::PairsOfSix,    WheelList::Triplets,
    WheelList::Budget,      WheelList::ThreeMatch,    WheelList::FourMatch,
    WheelList::ThreeForSix, WheelList::ThreeForThree, WheelList::FiveForSix};

/// What the wheels of one list have in common: where they are chosen and how they are read.
struct WheelFamily {
    std::string_view form;     ///< The form that offers them.
    std::string_view control;  ///< The control array or list whose index is the item.
    int lowestPicks;           ///< The lottery with the fewest picks that they are made for.
    int highestPicks;          ///< The lottery with the most picks that they are made for.
    int lettersInLine;         ///< Letters that make one line.
    int numbersInLetter;       ///< Numbers that one letter stands for.
    int firstPosition;         ///< Position of "A" in `Pool`, before it is multiplied: 0 or 1.
    int matched;               ///< Numbers that the promise matches in some line; 0: no promise.
    std::span<const Wheel> items;
};

/// The family of a list; its items stand in the order of the screen.
const WheelFamily& FamilyOf(WheelList list);

/// The wheel of an item, counted from 0; an item that the list does not have is a `Failure`.
const Wheel& WheelAt(WheelList list, int item);

/// A number as the captions of sizes show it: two blanks take the place of a missing digit, so that
/// the captions stand in columns.
std::string InColumn(int number);

}  // namespace wheels

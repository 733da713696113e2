// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "wheels/patterns.h"

/// The stored patterns, one table for each list. They are data: a letter twice in a line, or out of
/// its order, belongs to the wheel and stays.
namespace wheels::tables {

extern const std::array<Wheel, 6> pairs;
extern const std::array<Wheel, 6> pairsOfSix;
extern const std::array<Wheel, 6> triplets;
extern const std::array<Wheel, 4> budget;
extern const std::array<Wheel, 13> threeMatch;
extern const std::array<Wheel, 14> fourMatch;
extern const std::array<Wheel, 20> threeForSix;
extern const std::array<Wheel, 10> threeForThree;
extern const std::array<Wheel, 2> fiveForSix;

}  // namespace wheels::tables

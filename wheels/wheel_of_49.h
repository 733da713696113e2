// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/program_folder.h"
#include "core/random.h"
#include "core/state.h"
#include "wheels/expansion.h"

/// The wheel of 49, the form `Wheel49`: all numbers from 1 to 49 in 175 lines, whose table is a
/// file. Each try mixes anew which number stands at which place of the table.
namespace wheel49 {

inline constexpr const char* tableFile = "wheel49.dat";
inline constexpr int numberCount = 49;
inline constexpr int lineCount = 175;

/// `Wheel49Data`: the six places of line 1, then those of line 2 and so on.
using Table = std::array<std::int16_t, 6 * lineCount>;

/// Reads the table. Commas and line ends separate its 1050 whole numbers alike, and what stands
/// behind the last is not looked at. A missing or short file, and a field that is no number from
/// -32768 to 32767, are each a `Failure`; which places there are nobody asks before the lines are
/// made.
Table ReadTable(const ProgramFolder& folder);

/// The lines as sets: bit n stands for place n + 1. What is no place from 1 to 49 does not count.
std::vector<std::uint64_t> LineMasks(const Table& table);

/// Whether the wheel is made for the current lottery.
bool Suits(const State& state);

/// One try: mixes `Pool(1)` to `Pool(49)`, which hold 1 to 49 at the first one, fills `Lines`
/// through the table, for five picks without the sixth number and for seven with a random one more,
/// and sorts the lines. A place outside `Pool` is a `Failure`.
wheels::Outcome DoWheel(State& state, Random& random, const Table& table);

}  // namespace wheel49

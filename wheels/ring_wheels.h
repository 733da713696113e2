// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "core/random.h"
#include "core/state.h"
#include "play/hot_numbers.h"
#include "wheels/expansion.h"
#include "wheels/number_boxes.h"

/// The wheels without letters: the numbers stand in a ring, each line is a run of neighbours, and
/// the next line starts an interval further on.
namespace wheels {

struct Ring {
    int numbers = 8;   ///< How many numbers stand in the ring.
    int interval = 1;  ///< By how many places the lines are apart.
};

/// What a form offers for either; the first one is chosen when it opens.
inline constexpr int fewestRingNumbers = 8;
inline constexpr int mostRingNumbers = 20;
inline constexpr int widestInterval = 5;

}  // namespace wheels

/// Hot and cold wheels, the form `PHotWheels`: the ranked draw history in a ring.
namespace hot_wheels {

/// How many lines a ring makes; nothing for an interval or a lottery of no picks, where no lines
/// can be counted.
std::optional<int> CountHotWheelLines(int picks, const wheels::Ring& ring);

/// Reverses places 1 to 6 of `Pool` and fills `Lines` with runs of the ring that begins at
/// `Pool(1)`, up to four places over its end. Writes the end mark and does not sort.
///
/// A line that starts behind the ring's last place, which happens for four picks or fewer, takes
/// its first number from there and goes on at its place in the ring.
void Do_Wheel(State& state, const wheels::Ring& ring);

/// Makes the lines of the current lottery, sorted, and returns the ten first of the ranking as they
/// are shown. Seeds `random` from the clock and draws nothing from it.
///
/// The first ten rows get extra balls by rank, whether there are so many lines or not; with fewer
/// than ten extra balls the rows behind them get main numbers, as the reversed ranking left them.
std::string Generate(State& state, Random& random, const wheels::Ring& ring,
                     hot_numbers::Mode mode);

}  // namespace hot_wheels

/// Own wheels, the form `PDIYWheels`: the numbers of the boxes in a ring, in their order.
namespace own_wheels {

inline constexpr int boxCount = 20;

/// Fills `Lines` with runs of the ring that begins at `Pool(0)`, one from each start within it,
/// and with random extra balls. Writes the end mark and does not sort.
void Do_Wheel(State& state, Random& random, const wheels::Ring& ring);

/// Reads the boxes of the ring into `Pool` and makes the lines, sorted; `random` goes on from where
/// it stands. Where a box holds no number above 0 `Lines` stays.
wheels::Outcome Generate(State& state, Random& random, const wheels::Ring& ring,
                         const wheels::Boxes& boxes);

}  // namespace own_wheels

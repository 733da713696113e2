// SPDX-License-Identifier: GPL-3.0-or-later
// Which columns are the balls of a draw.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "databases/import_columns.h"

/// The columns that are balls, as indexes into the list that was given.
struct BallChoice {
    std::vector<std::size_t> mains;   ///< In the order of the table; empty where none were found.
    std::vector<std::size_t> extras;  ///< The one to keep first.
    bool byHeadings = false;          ///< The headings name the main numbers.
    bool countIsGuess = false;        ///< Nothing decides whether the last is a bonus ball.
    bool extraByHeading = false;
    bool sameDrum = false;     ///< The extra ball comes from the main numbers.
    bool drumIsGuess = false;  ///< Nothing decides that.
    std::string drumReason;    ///< "it equals a main number in 12 rows"
    std::size_t numbersSeen =
        0;  ///< How many numbers a row seems to have where that is not 4 to 7.
};

/// Chooses by the headings where they speak; else by what drums do: numbers of one drum never stand
/// twice in a row, reach the same highest number or stand in ascending order.
BallChoice ChooseBalls(const std::vector<BallColumn>& columns,
                       const std::vector<ColumnHeading>& headings);

// SPDX-License-Identifier: GPL-3.0-or-later
// The results files of the UK lotteries, made into draw databases.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "databases/draw_records.h"

/// A results file has any heading fields that are no dates, then one row a draw, the newest first:
/// its date, the balls, for some lotteries a bonus ball or Thunderball, and columns that do not
/// matter. All bytes are kept as they are.
namespace uk_results {

/// In what the lotteries differ.
struct Lottery {
    std::string_view file;    ///< The draw database.
    std::string_view rules;   ///< Its third line.
    int balls;                ///< How many balls are copied.
    std::string_view filler;  ///< What stands behind the balls.
    bool extraBall;           ///< Whether one more field is copied behind that.
};

/// The lottery of that index, from 0; one that there is not is a `Failure`.
const Lottery& LotteryAt(int index);

/// The first two lines of a draw database.
struct Heading {
    std::string_view name;
    std::string_view address;
};

/// A page with fewer bytes than this is none.
inline constexpr std::size_t shortestPage = 1000;

/// The page as the work file holds it: without a byte-order mark, lines ended by CR LF, and one
/// more line end behind it.
std::string WorkText(std::string_view page);

/// The draw database out of the work file. An empty field in the place of a date ends the draws. A
/// work file without a date, with something else in the place of one, or that ends within a row is
/// a `Failure` that names `source`, the line and what was expected.
std::string DatabaseText(const std::string& workText, const Lottery& lottery,
                         const Heading& heading, const DateRules& dates, std::string_view source);

}  // namespace uk_results

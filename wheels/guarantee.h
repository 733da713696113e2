// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "wheels/patterns.h"

namespace wheels {

/// How far a wheel keeps a promise of the kind "if 6 drawn numbers are in your selection, you match
/// at least 3 of them in some line".
struct Guarantee {
    long long selections = 0;         ///< Possible selections of the drawn numbers.
    long long uncovered = 0;          ///< Those that have the match in no line.
    std::vector<int> firstUncovered;  ///< The first of them, ascending from number 1; or empty.
};

/// The lines of a pattern as sets: bit n stands for the letter n places behind "A". A letter that
/// stands twice in a line counts once; one more than 63 places behind "A", or before it, is a
/// `Failure`.
std::vector<std::uint64_t> LineMasks(std::string_view pattern, int lettersInLine);

/// Looks whether every selection of `drawn` numbers out of 1 to `numbers` shares at least `matched`
/// numbers with some line.
///
/// The selections are enumerated in ascending order; where the first numbers of some already have
/// the match in a line, all that begin so are covered and are passed over together. So the counts
/// are exact whatever the wheel. More than 64 numbers or 192 lines are a `Failure`.
Guarantee VerifyGuarantee(std::span<const std::uint64_t> lines, int numbers, int drawn,
                          int matched);

/// The same for a wheel of the catalogue and the promise of its list. A wheel that makes no promise
/// is a `Failure`.
Guarantee VerifyGuarantee(WheelList list, int item);

}  // namespace wheels

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/date.h"
#include "play/short_wheel.h"

namespace numerology {

/// The seed value of a person, or nothing where the name is empty or of blanks alone.
///
/// It adds up the character codes of the name, in capitals and without its blanks, and day, month
/// and year of birth; so the case and the order of the letters are no matter. The name is in
/// Windows-1252.
std::optional<std::int64_t> SeedValue(std::string_view name, Date birth);

/// Makes the lines of a seed value, sorted, and returns the fifteen lucky numbers as they are
/// shown: " 7, 23, 38, ...".
///
/// `numbers` gets the first twenty of the shuffle that are not above `MaxNum`. Where the lottery
/// has fewer, the search goes on behind the fifty that were shuffled, in what `Pool` holds there,
/// and a 0 is not above `MaxNum`; the end of `Pool` is a `Failure`.
std::string PlayLotto(State& state, Random& random, LuckyNumbers& numbers, std::int64_t seed,
                      WheelType type);

}  // namespace numerology

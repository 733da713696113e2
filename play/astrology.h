// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "core/date.h"
#include "play/short_wheel.h"

namespace astrology {

/// The seed value of a star sign, Aries 0 to Pisces 11, a day of birth, the 1st 0 to the 31st 30,
/// and the date of the draw.
std::int64_t SeedValue(int sign, int birthDay, Date draw);

/// Makes the lines of a seed value, sorted, and returns the fifteen lucky numbers as they are
/// shown: " 7, 23, 38, ...".
///
/// `numbers` gets those of the shuffle that are not above `MaxNum`, the fiftieth never; behind them
/// it keeps what it held, so a lottery of few numbers may get some of a former one's.
std::string PlayLotto(State& state, Random& random, LuckyNumbers& numbers, std::int64_t seed,
                      WheelType type);

}  // namespace astrology

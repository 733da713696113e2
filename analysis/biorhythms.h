// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#include "core/date.h"
#include "core/state.h"

/// The cycles that are said to begin at birth and go on for life. All values are from -10 to 10;
/// days before birth follow the sign of the remainder.
namespace biorhythms {

/// The charts show four weeks, a row a day: the row of today, and the day of the first row
/// counted from today.
inline constexpr int chartRows = 28;
inline constexpr int todaysRow = 8;
inline constexpr int firstDay = 1 - todaysRow;
inline constexpr int lastDay = chartRows - todaysRow;

/// The four series of a chart on one day.
using Values = std::array<double, 4>;

/// The values of a chart, row by row.
using Chart = std::array<Values, chartRows>;

/// Physical, intellectual, emotional, and the average of these. `days` are those from birth to
/// today.
///
/// The angle of the first row is exact; from row to row it moves on by the cycle's step and is
/// rounded to whole degrees, half to even, so that the curves drift a little.
Chart BodyChart(int days);

/// Spiritual, aesthetic, awareness and intuition, in the same way.
Chart MindChart(int days);

/// The bars of the Biochart, `days` after birth: intellectual, emotional, intuition, and luck,
/// which is the average of the other three.
Values Biochart(int days);

/// The user's date of birth in the settings. One that is no date is a `Failure`.
Date BirthDate(const State& state, const Region& region, Date today);

}  // namespace biorhythms

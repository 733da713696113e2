// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/frequency.h"
#include "core/state.h"

namespace common_numbers {

/// The figures of the charts of hot and cold numbers: how often each number was drawn, or in cold
/// mode how far it lies behind the most drawn one, which then has the figure 0.
///
/// Extra balls are reversed up to `MaxPball`, bonus balls up to `MaxNum`; in a lottery that had
/// both the bonus decides.
void AnalyseDraws(const State& state, bool cold, NumberCounts& counts);

/// Rows of the second chart: the extra balls, else the bonus balls; 0 in a lottery without either.
int ExtraRows(const State& state);

/// Takes the ten numbers with the highest figures out of `mainCount`, whose figures it negates (see
/// `TakeHottest`). Once all others are used, one number is taken again and again.
TenNumbers TakeTen(const State& state, Counts& mainCount);

}  // namespace common_numbers

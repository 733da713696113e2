// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/date.h"
#include "core/state.h"

/// The draw date to propose for `state.LotteryName`.
///
/// For the seven known lotteries it is the next draw day, today included; for others, or on a draw
/// day, it is today, or `setting::DrawDate` where that lies later.
Date NextDrawDate(const State& state, const Region& region, Date today);

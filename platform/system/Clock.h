// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "core/date.h"

/// Seconds on a clock that never jumps.
double MonotonicSeconds();

/// The calendar day where the computer stands.
Date Today();

/// The day and the time of that day where the computer stands.
Moment LocalNow();

/// A seed that differs from one call to the next.
std::uint64_t SeedOfTheMoment();

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "core/date.h"
#include "core/money.h"
#include "core/state.h"

/// The last row of payments; the manager's is row 1, that of the member in row r of the members is
/// row r + 1.
inline constexpr int lastPayment = 100;

/// How many rows the payments have. Where the syndicate has more people it is a `Failure`.
int PaymentCount(const State& state);

/// The amount that a person has paid, as its text begins with a number. One that is too large to be
/// counted is a `Failure`.
Money AmountPaid(const State& state, int row);

/// Whether nothing was paid up to now: there is no date, or it lies before today. A text that is no
/// date is a `Failure`.
bool IsOverdue(const State& state, int row, const Region& region, Date today);

/// The date from which on the next payment may be due: that of the row where it is later than
/// today, else today.
Date ProposedDate(const State& state, int row, const Region& region, Date today);

/// The amount as it is kept: without blanks at the ends, and without what stands in front of the
/// number and sorts above "9", such as a currency symbol.
std::string KeptAmount(std::string_view typed);

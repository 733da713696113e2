// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

#include "core/region.h"

using Date = std::chrono::year_month_day;

/// A day and the time of that day, as the clock on the wall shows it.
using Moment = std::chrono::local_seconds;

/// The system's date conversion, or nothing where the text is no date.
///
/// Reads "19 Nov 94", "19-Nov-1994", "November 19, 1994", ISO "1994-11-19" and numeric dates in the
/// region's order with "/", "-" or "." between. Month names are English or the region's, in full
/// or abbreviated, in any case. A year of two digits falls in the hundred years that end twenty
/// years after `today`. A date without a year, or one that no calendar has, is no date.
std::optional<Date> ReadDate(std::string_view text, const Region& region, Date today);

/// As `ReadDate`, but throws a `Failure` that names `where` and the text that is no date.
Date DateFromText(std::string_view text, const Region& region, Date today, std::string_view where);

/// The medium date form "dd-MMM-yyyy" with English month names.
std::string MediumDate(Date date);

/// The form of the draw files, "dd MMM yy", with English month names.
std::string DrawDate(Date date);

/// The form "dd MMM yyyy", with English month names.
std::string FullDate(Date date);

/// Sunday is 1, Saturday is 7.
int WeekdayNumber(Date date);

/// Days from `from` to `to`; negative where `to` lies before.
int DaysBetween(Date from, Date to);

/// The date `days` later.
Date DaysAfter(Date date, int days);

// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/british_dates.h"

bool BritishDates(const Region& region) {
    // The year has four digits, so no day of today decides on its century.
    const std::optional<Date> date = ReadDate("01/06/2005", region, Date());
    if (!date) return false;
    const auto month = static_cast<std::size_t>(static_cast<unsigned>(date->month()) - 1);
    return region.monthNames.at(month) == "June";
}

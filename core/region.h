// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

/// What the user's region says about dates. Month names are in Windows-1252.
struct Region {
    enum class Order { DayMonthYear, MonthDayYear, YearMonthDay };
    Order order = Order::DayMonthYear;
    std::array<std::string, 12> monthNames;       ///< January first, in full.
    std::array<std::string, 12> shortMonthNames;  ///< January first, abbreviated.
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

/// How a region writes an amount of money: the symbol before or behind the number, with the blank
/// between them. The symbol has no point, no comma and no digit; all is in Windows-1252.
struct CurrencyForm {
    std::string before = "\xA3";
    std::string behind = {};
    char decimalPoint = '.';
    char groupSeparator = ',';
};

/// What the user's region says about dates and money. Month names are in Windows-1252.
struct Region {
    enum class Order { DayMonthYear, MonthDayYear, YearMonthDay };
    Order order = Order::DayMonthYear;
    std::array<std::string, 12> monthNames;       ///< January first, in full.
    std::array<std::string, 12> shortMonthNames;  ///< January first, abbreviated.
    CurrencyForm currency = {};
};

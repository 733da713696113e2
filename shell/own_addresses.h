// SPDX-License-Identifier: GPL-3.0-or-later
// Where the makers of the program are. Their main web site is a setting.
#pragma once

#include <array>

inline constexpr const char* programTitle = "Lottery Quillon World";
inline constexpr const char* alternativeSite = "http://www.lotteryquillon-mirror.example";
inline constexpr const char* supportMail = "support@lotteryquillon.example";
inline constexpr const char* generalMail = "info@lotteryquillon.example";
inline constexpr std::array postalAddress = {"Lottery Quillon", "1 Example Street", "Exampletown"};

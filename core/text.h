// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Every number that was typed or stands in a file is read by these three.

/// The number at the head of a text: blanks, a sign, digits with a decimal point. Anything else
/// ends it, and where nothing was read it is 0. "2 Odd/Even filter" is 2, "x" is 0.
double LeadingNumber(std::string_view text);

/// `LeadingNumber` rounded to a whole number, half to even, and held within `int`.
int LeadingWhole(std::string_view text);

/// `LeadingWhole` where it is from -32768 to 32767, as the tables of numbers hold it.
std::optional<std::int16_t> LeadingInt16(std::string_view text);

/// The nearest whole number; a fraction of one half goes to the even neighbour.
long long RoundHalfToEven(double value);

/// A whole number as text beside words, with a leading blank in the place of the sign: " 5", "-5".
std::string NumberText(long long value);

/// Plain digits, with a "-" where negative: "5".
std::string PlainDigits(long long value);

/// The format "##,###,###": digits in groups of three, comma between, in every region; 0 is empty.
std::string GroupedDigits(long long value);

/// A number with a decimal point and exactly `decimals` places in every region: "0.000". Halves
/// round away from zero, as the first fifteen digits of the number show them: 1.005 gives "1.01".
std::string FixedText(double value, int decimals);

/// The text without blanks (32) at both ends.
std::string Trim(std::string_view text);

/// The text in double quotes as a report shows what stands in a file: at most 40 characters,
/// control characters as "?".
std::string Quoted(std::string_view text);

/// Upper case of Windows-1252 letters, accented ones included, whatever the locale.
std::string UpperCase(std::string_view text);

/// Lower case of Windows-1252 letters, accented ones included, whatever the locale.
std::string LowerCase(std::string_view text);

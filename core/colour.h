// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// A colour value: blue in the high byte of 24 bits, then green, then red. With the highest of 32
/// bits set it is the number of a system colour in the low byte (15 is the face of a button).
using Colour = std::uint32_t;

inline constexpr Colour systemColourBit = 0x80000000U;

/// Reads a colour slot: "&H" and hexadecimal digits, at most eight; plain decimal digits are taken
/// as a number too. `where` names the place for the report, such as "quillon.ini, line 5".
/// Throws a `Failure` for a text that is no number.
Colour ColourFromText(std::string_view text, std::string_view where);

/// The text of a colour slot: "&H" and upper-case digits without leading zeros.
std::string ColourText(Colour colour);

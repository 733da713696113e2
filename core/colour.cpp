// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/colour.h"

#include <array>
#include <charconv>

#include "core/failure.h"
#include "core/text.h"

Colour ColourFromText(std::string_view text, std::string_view where) {
    const std::string trimmed = UpperCase(Trim(text));
    const bool hexadecimal = trimmed.starts_with("&H");
    const char* const end = trimmed.data() + trimmed.size();
    const char* const digits = trimmed.data() + (hexadecimal ? 2 : 0);
    Colour colour = 0;
    const auto result = std::from_chars(digits, end, colour, hexadecimal ? 16 : 10);
    const bool tooLong = hexadecimal && end - digits > 8;
    if (result.ec != std::errc() || result.ptr != end || tooLong) {
        throw Failure(std::string(where) + ": expected a colour such as \"&H800000\", but " +
                      Quoted(text) + " stands there.");
    }
    return colour;
}

std::string ColourText(Colour colour) {
    std::array<char, 8> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), colour, 16);
    return "&H" + UpperCase(std::string_view(
                      digits.data(), static_cast<std::size_t>(written.ptr - digits.data())));
}

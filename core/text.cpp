// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

std::string_view DigitsAt(std::string_view text, std::size_t start) {
    std::size_t end = start;
    while (end < text.size() && IsDigit(text[end])) ++end;
    return text.substr(start, end - start);
}

// The value of digits with at most one point among them; 0 where there is no digit.
double UnsignedValue(std::string_view digits) {
    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value,
                                        std::chars_format::fixed);
    const bool tooLarge =
        result.ec == std::errc::result_out_of_range &&
        digits.substr(0, digits.find('.')).find_first_not_of('0') != std::string_view::npos;
    return tooLarge ? std::numeric_limits<double>::max() : value;
}

std::string SignedDigits(long long value, std::string_view positiveSign) {
    const std::string digits = std::to_string(value);
    return value < 0 ? digits : std::string(positiveSign) + digits;
}

// The fifteen digits that a number is sure to hold, so that 100.49999999999999 counts as the half
// that was meant.
double WithFifteenDigits(double value) {
    std::array<char, 40> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                       std::chars_format::scientific, 14);
    std::from_chars(digits.data(), written.ptr, value);
    return value;
}

template <typename Change>
std::string Changed(std::string_view text, Change change) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [change](char character) {
        return static_cast<char>(change(static_cast<unsigned char>(character)));
    });
    return result;
}

bool IsOneOf(unsigned character, std::string_view characters) {
    return characters.find(static_cast<char>(character)) != std::string_view::npos;
}

}  // namespace

double LeadingNumber(std::string_view text) {
    const std::size_t start = std::min(text.find_first_not_of(' '), text.size());
    text.remove_prefix(start);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    std::size_t length = DigitsAt(text, 0).size();
    if (length < text.size() && text[length] == '.')
        length += 1 + DigitsAt(text, length + 1).size();
    const double value = UnsignedValue(text.substr(0, length));
    return negative ? -value : value;
}

int LeadingWhole(std::string_view text) {
    // Nearly all fields of a draw database are plain digits, which need no fraction.
    int plain = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), plain);
    if (read.ec == std::errc() && read.ptr == text.data() + text.size()) return plain;
    const long long whole = RoundHalfToEven(LeadingNumber(text));
    return static_cast<int>(std::clamp<long long>(whole, std::numeric_limits<int>::min(),
                                                  std::numeric_limits<int>::max()));
}

std::optional<std::int16_t> LeadingInt16(std::string_view text) {
    using Limits = std::numeric_limits<std::int16_t>;
    const int number = LeadingWhole(text);
    if (number < Limits::min() || number > Limits::max()) return std::nullopt;
    return static_cast<std::int16_t>(number);
}

long long RoundHalfToEven(double value) {
    constexpr double limit = 9.2e18;
    return static_cast<long long>(std::clamp(std::nearbyint(value), -limit, limit));
}

std::string NumberText(long long value) { return SignedDigits(value, " "); }

std::string PlainDigits(long long value) { return SignedDigits(value, ""); }

std::string GroupedDigits(long long value) {
    if (value == 0) return {};
    std::string digits = std::to_string(value);
    const std::size_t first = value < 0 ? 1 : 0;
    for (std::size_t end = digits.size(); end > first + 3;) {
        end -= 3;
        digits.insert(end, 1, ',');
    }
    return digits;
}

std::string FixedText(double value, int decimals) {
    const double power = std::pow(10.0, decimals);
    double rounded = std::round(WithFifteenDigits(value * power)) / power;
    if (rounded == 0) rounded = 0;  // no sign before a zero
    std::array<char, 400> digits{};
    const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), rounded,
                                       std::chars_format::fixed, decimals);
    return std::string(digits.data(), written.ptr);
}

std::string Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string Quoted(std::string_view text) {
    constexpr std::size_t longest = 40;
    const std::string_view shown = text.substr(0, longest);
    std::string result = Changed(shown, [](unsigned char character) {
        return character < 32 || character == 127 ? static_cast<unsigned char>('?') : character;
    });
    return '"' + result + (shown.size() < text.size() ? "...\"" : "\"");
}

std::string UpperCase(std::string_view text) {
    return Changed(text, [](unsigned character) {
        if (character == 0xFF) return 0x9FU;
        if (IsOneOf(character, "\x9A\x9C\x9E")) return character - 0x10;
        const bool letter =
            (character >= 'a' && character <= 'z') || (character >= 0xE0 && character != 0xF7);
        return letter ? character - 0x20 : character;
    });
}

std::string LowerCase(std::string_view text) {
    return Changed(text, [](unsigned character) {
        if (character == 0x9F) return 0xFFU;
        if (IsOneOf(character, "\x8A\x8C\x8E")) return character + 0x10;
        const bool letter = (character >= 'A' && character <= 'Z') ||
                            (character >= 0xC0 && character <= 0xDE && character != 0xD7);
        return letter ? character + 0x20 : character;
    });
}

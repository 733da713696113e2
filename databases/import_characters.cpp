// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_characters.h"

#include <array>
#include <cstddef>
#include <string_view>

#include "core/text.h"

namespace {

struct Range {
    char32_t first;
    char32_t last;
    std::string_view plain;
};

constexpr auto ranges = std::to_array<Range>({
    {0xA0, 0xA0, " "},        {0xAD, 0xAD, ""},         {0x2000, 0x200A, " "},
    {0x200B, 0x200F, ""},     {0x2010, 0x2015, "-"},    {0x2018, 0x2019, "'"},
    {0x201C, 0x201E, "\""},   {0x2028, 0x2029, "\n"},   {0x202A, 0x202E, ""},
    {0x202F, 0x202F, " "},    {0x205F, 0x205F, " "},    {0x2060, 0x2064, ""},
    {0x4EE4, 0x4EE4, "R"},    {0x5E73, 0x5E73, "H"},    {0x662D, 0x662D, "S"},
    {0x2212, 0x2212, "-"},    {0x3000, 0x3000, " "},    {0x5E74, 0x5E74, "/"},
    {0x6708, 0x6708, "/"},    {0x65E5, 0x65E5, " "},    {0xFEFF, 0xFEFF, ""},
    {0x20AC, 0x20AC, "\x80"}, {0x201A, 0x201A, ","},    {0x2026, 0x2026, "\x85"},
    {0x2022, 0x2022, "\x95"}, {0x2122, 0x2122, "\x99"}, {0x152, 0x152, "\x8C"},
    {0x153, 0x153, "\x9C"},   {0x160, 0x160, "\x8A"},   {0x161, 0x161, "\x9A"},
    {0x178, 0x178, "\x9F"},   {0x17D, 0x17D, "\x8E"},   {0x17E, 0x17E, "\x9E"},
});

// The letters from U+0100 to U+017F without their accents.
constexpr std::string_view latin =
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiJjJjKkkLlLlLlLlLlNnNnNnnNnOoOoOoOo"
    "RrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
static_assert(latin.size() == 0x80);

}  // namespace

void AppendPlain(std::string& text, char32_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
        return;
    }
    for (const Range& range : ranges) {
        if (character < range.first || character > range.last) continue;
        text += range.plain;
        return;
    }
    if (character >= 0xA1 && character <= 0xFF) {
        text += static_cast<char>(character);
    } else if (character >= 0x100 && character <= 0x17F) {
        text += latin[static_cast<std::size_t>(character - 0x100)];
    } else if (character >= 0xFF01 && character <= 0xFF5E) {
        text += static_cast<char>(character - 0xFF01 + '!');
    } else {
        text += '?';
    }
}

bool IsLetterByte(char byte) {
    constexpr std::string_view others = "\x8A\x8C\x8E\x9A\x9C\x9E\x9F";
    const auto code = static_cast<unsigned char>(byte);
    if (code < 0x80) return (code >= 'a' && code <= 'z') || (code >= 'A' && code <= 'Z');
    return (code >= 0xC0 && code != 0xD7 && code != 0xF7) ||
           others.find(byte) != std::string_view::npos;
}

std::string PlainLetters(std::string_view word) {
    constexpr std::string_view accented =
        "\xE0\xE1\xE2\xE3\xE4\xE5\xE7\xE8\xE9\xEA\xEB\xEC\xED\xEE"
        "\xEF\xF1\xF2\xF3\xF4\xF5\xF6\xF8\xF9\xFA\xFB\xFC";
    constexpr std::string_view plain = "aaaaaaceeeeiiiinoooooouuuu";
    static_assert(accented.size() == plain.size());
    std::string lower = LowerCase(word);
    for (char& letter : lower) {
        const std::size_t at = accented.find(letter);
        if (at != std::string_view::npos) letter = plain[at];
    }
    return lower;
}

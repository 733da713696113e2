// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_characters.h"

#include <array>
#include <cstddef>
#include <optional>
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
    {0x386, 0x386, "A"},      {0x388, 0x388, "E"},      {0x389, 0x38A, "I"},
    {0x38C, 0x38C, "O"},      {0x38E, 0x38E, "Y"},      {0x38F, 0x38F, "O"},
    {0x390, 0x390, "i"},      {0x3AC, 0x3AC, "a"},      {0x3AD, 0x3AD, "e"},
    {0x3AE, 0x3AF, "i"},      {0x3B0, 0x3B0, "y"},      {0x3CC, 0x3CC, "o"},
    {0x3CD, 0x3CD, "y"},      {0x3CE, 0x3CE, "o"},      {0x401, 0x401, "Yo"},
    {0x404, 0x404, "Ye"},     {0x406, 0x406, "I"},      {0x407, 0x407, "Yi"},
    {0x451, 0x451, "yo"},     {0x454, 0x454, "ye"},     {0x456, 0x456, "i"},
    {0x457, 0x457, "yi"},     {0x490, 0x490, "G"},      {0x491, 0x491, "g"},
});

// The letters from U+0100 to U+017F without their accents.
constexpr std::string_view latin =
    "AaAaAaCcCcCcCcDdDdEeEeEeEeEeGgGgGgGgHhHhIiIiIiIiIiJjJjKkkLlLlLlLlLlNnNnNnnNnOoOoOoOo"
    "RrRrRrSsSsSsSsTtTtTtUuUuUuUuUuUuWwYyYZzZzZzs";
static_assert(latin.size() == 0x80);

using Letters = std::array<std::string_view, 32>;

// From U+0410 on, and small from U+0430 on.
constexpr Letters cyrillic = {"A",  "B",  "V",  "G",    "D", "E", "Zh", "Z", "I",  "Y", "K",
                              "L",  "M",  "N",  "O",    "P", "R", "S",  "T", "U",  "F", "Kh",
                              "Ts", "Ch", "Sh", "Shch", "",  "Y", "",   "E", "Yu", "Ya"};

// From U+0391 on, and small from U+03B1 on.
constexpr Letters greek = {"A",  "V",  "G", "D", "E", "Z", "I", "Th", "I", "K", "L",
                           "M",  "N",  "X", "O", "P", "R", "S", "S",  "T", "Y", "F",
                           "Ch", "Ps", "O", "I", "Y", "A", "E", "I",  "I", "Y"};

/// Letters of an alphabet, the capitals from `first` and the small ones right behind them.
struct Alphabet {
    char32_t first;
    const Letters& letters;
};

constexpr auto alphabets = std::to_array<Alphabet>({{0x410, cyrillic}, {0x391, greek}});

// The letter in Latin ones; nothing where it belongs to none of the alphabets.
std::optional<std::string> InLatin(char32_t character) {
    for (const auto& [first, letters] : alphabets) {
        if (character < first || character >= first + 2 * letters.size()) continue;
        const auto place = static_cast<std::size_t>(character - first);
        const std::string capitals(letters.at(place % letters.size()));
        return place < letters.size() ? capitals : LowerCase(capitals);
    }
    return std::nullopt;
}

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
        text += InLatin(character).value_or("?");
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

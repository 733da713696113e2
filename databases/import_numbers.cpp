// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_numbers.h"

#include <algorithm>
#include <charconv>

#include "core/text.h"
#include "databases/import_characters.h"

namespace {

bool MeansNothing(std::string_view cell) {
    if (cell.empty()) return true;
    if (cell.size() > 4) return false;
    if (cell.find_first_not_of("-.?/*\xB7\x97 ") == std::string_view::npos) return true;
    const std::string lower = LowerCase(cell);
    return lower == "nan" || lower == "null" || lower == "none" || lower == "n/a" || lower == "na";
}

}  // namespace

int PlainNumber(std::string_view cell) {
    if (cell.empty() || cell.size() > 9) return -1;
    int number = 0;
    const auto read = std::from_chars(cell.data(), cell.data() + cell.size(), number);
    const bool whole = read.ec == std::errc() && read.ptr == cell.data() + cell.size();
    return whole && number >= 0 && cell.front() != '-' ? number : -1;
}

int BallNumber(std::string_view cell) {
    constexpr std::string_view around = "()[]{}*";
    while (cell.size() > 1 && around.find(cell.front()) != std::string_view::npos)
        cell.remove_prefix(1);
    // "3, 17, 22" cut at its blanks keeps the commas.
    if (cell.size() > 1 && (cell.back() == ',' || cell.back() == ';')) cell.remove_suffix(1);
    while (cell.size() > 1 && around.find(cell.back()) != std::string_view::npos)
        cell.remove_suffix(1);
    if (cell.size() >= 3 && cell.ends_with(".0")) cell.remove_suffix(2);
    if (!cell.empty() && cell.size() <= 3 && IsDigitByte(cell.front())) {
        const int number = PlainNumber(cell);
        return number >= 0 && number <= 99 ? number : noNumber;
    }
    return MeansNothing(cell) ? emptyCell : noNumber;
}

BallList ReadGluedBalls(std::string_view cell) {
    const bool digits = std::all_of(cell.begin(), cell.end(), IsDigitByte);
    if (!digits || cell.size() % 2 != 0 || cell.size() < 8 || cell.size() > 16) return {};
    BallList list;
    for (; !cell.empty(); cell.remove_prefix(2)) {
        const int number = PlainNumber(cell.substr(0, 2));
        if (number == 0) return {};
        list.numbers.at(list.count++) = static_cast<std::int8_t>(number);
    }
    return list;
}

BallList ReadBallList(std::string_view cell) {
    constexpr std::string_view between = " -,;/+|.:&()[]{}_*#\t'\"\xBA\xAA";
    constexpr std::size_t longestWord = 14;
    BallList list;
    for (std::size_t at = 0; at < cell.size();) {
        std::size_t end = at;
        if (IsDigitByte(cell[at])) {
            while (end < cell.size() && IsDigitByte(cell[end])) ++end;
            if (end - at > 2 || list.count == BallList::most) return {};
            list.numbers[list.count++] =
                static_cast<std::int8_t>(PlainNumber(cell.substr(at, end - at)));
        } else if (IsLetterByte(cell[at])) {
            while (end < cell.size() && IsLetterByte(cell[end])) ++end;
            const bool joined = at > 0 && IsDigitByte(cell[at - 1]);
            if (end - at > longestWord || joined) return {};
        } else {
            if (between.find(cell[at]) == std::string_view::npos) return {};
            end = at + 1;
        }
        at = end;
    }
    return list;
}

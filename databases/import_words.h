// SPDX-License-Identifier: GPL-3.0-or-later
// The words of `ImportFormats.txt`.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "core/text.h"
#include "databases/import_mapping.h"

namespace import_words {

template <typename Value>
struct Named {
    std::string_view name;
    Value value;
};

inline constexpr auto separators =
    std::to_array<Named<ImportSeparator>>({{"comma", ImportSeparator::Comma},
                                           {"semicolon", ImportSeparator::Semicolon},
                                           {"tab", ImportSeparator::Tab},
                                           {"bar", ImportSeparator::Bar},
                                           {"blanks", ImportSeparator::Blanks},
                                           {"two blanks", ImportSeparator::WideBlanks},
                                           {"web page", ImportSeparator::HtmlCells}});
inline constexpr auto orders =
    std::to_array<Named<Region::Order>>({{"day month year", Region::Order::DayMonthYear},
                                         {"month day year", Region::Order::MonthDayYear},
                                         {"year month day", Region::Order::YearMonthDay}});
inline constexpr auto roles =
    std::to_array<Named<ColumnRole>>({{"-", ColumnRole::Nothing},
                                      {"date", ColumnRole::Dated},
                                      {"number", ColumnRole::Number},
                                      {"numbers", ColumnRole::Numbers},
                                      {"extra", ColumnRole::Extra},
                                      {"other extra", ColumnRole::OtherExtra}});
inline constexpr auto drums =
    std::to_array<Named<bool>>({{"same numbers", true}, {"own numbers", false}});
inline constexpr auto sameDates =
    std::to_array<Named<SameDate>>({{"first", SameDate::KeepFirst}, {"all", SameDate::KeepAll}});

/// A text that stands in one line of the file, without blanks around it.
inline std::string OneLine(std::string_view text) {
    std::string line(text);
    std::replace_if(
        line.begin(), line.end(), [](char byte) { return static_cast<unsigned char>(byte) < 32; },
        ' ');
    return Trim(line);
}

/// The source of a block that holds lines which stood in no block.
inline constexpr std::string_view strayLines = "not read";

/// The word for a value.
template <typename Value, std::size_t size>
std::string_view NameOf(const std::array<Named<Value>, size>& names, Value value) {
    const auto found = std::find_if(names.begin(), names.end(),
                                    [value](const auto& named) { return named.value == value; });
    return found == names.end() ? names.front().name : found->name;
}

}  // namespace import_words

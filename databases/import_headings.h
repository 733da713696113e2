// SPDX-License-Identifier: GPL-3.0-or-later
// What the heading of a column says about it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "databases/import_table.h"

/// What a heading speaks of.
enum class HeadingKind {
    Unknown,
    Dated,
    Day,  ///< Of the week or of the month.
    Month,
    Year,
    DrawNumber,
    Product,
    Main,   ///< One main number.
    Mains,  ///< All of them.
    Extra,
    Other,  ///< Money, winners, machines and whatever else is no ball.
};

/// From which drum a heading's word says that an extra ball comes.
enum class Drum { Unknown, Same, Own };

struct ColumnHeading {
    HeadingKind kind = HeadingKind::Unknown;
    Drum drum = Drum::Unknown;
    int index = 0;       ///< The number in it, "Ball 3"; 0 without one.
    std::string prefix;  ///< Its words without that number.
};

/// Reads one heading: "DrawDate", "Winning Number 3", "Bonus Ball", "WB1", "Zusatzzahl".
ColumnHeading ReadHeading(std::string_view text);

/// Reads the headings of all columns. Those that count from 1 to 4 or more behind the same words
/// are main numbers, whatever the words, unless they speak of something that is no ball.
std::vector<ColumnHeading> ReadHeadings(const std::vector<std::string>& texts);

/// How many of the cells of a row are headings of a table of draws.
int KnownHeadings(const ImportTable& table, std::size_t row);

/// The cells of a heading row for so many columns. In a table that blanks separate, the words of a
/// heading are joined so that there are as many headings as columns; empty where that fails.
std::vector<std::string> HeadingTexts(const ImportTable& table, std::size_t row,
                                      std::size_t columns);

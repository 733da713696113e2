// SPDX-License-Identifier: GPL-3.0-or-later
// How the rows of a table become draws.
#pragma once

#include <string>
#include <vector>

#include "core/region.h"
#include "databases/import_table.h"
#include "databases/import_text.h"

/// What a column is to a draw.
enum class ColumnRole {
    Nothing,     ///< No part of a draw: number of the draw, machine, money, winners.
    Dated,       ///< The date; several columns of this role are read as one text, blanks between.
    Number,      ///< One main number.
    Numbers,     ///< Several numbers in one field: the main numbers, then extra balls if there are
                 ///< more than `ImportMapping::picks`.
    Extra,       ///< The bonus or extra ball that is kept.
    OtherExtra,  ///< One more extra ball, which is not kept.
};

/// What becomes of several rows of one date whose numbers differ.
enum class SameDate {
    KeepFirst,  ///< One is the draw of that date, the others are left out.
    KeepAll,    ///< Each is a true draw.
};

/// How the rows of a table become draws; what the user may change, and what is remembered.
struct ImportMapping {
    ImportSeparator separator = ImportSeparator::Comma;
    bool hasHeading = false;  ///< Whether the heading rows name the columns; for showing only.
    Region::Order dateOrder = Region::Order::DayMonthYear;
    std::vector<ColumnRole> columns;  ///< By column from 0; beyond its end `Nothing`.
    int picks = 6;                    ///< Most main numbers of a draw, 4 to 7.
    int keptExtra = 1;  ///< Which of the extra balls in a `Numbers` field is kept, from 1.
    bool extraFromSameDrum = false;  ///< A bonus ball, drawn from the main numbers.
    SameDate sameDate = SameDate::KeepFirst;
    int drawNumberColumn = -1;  ///< Of several draws of a date the lowest here is the first; or -1.
    int productColumn = -1;     ///< Names the game where the table holds several; or -1.
    std::string product;        ///< The game whose rows are taken.

    friend bool operator==(const ImportMapping&, const ImportMapping&) = default;
};

/// The role of the column, `Nothing` beyond the end.
ColumnRole RoleOf(const ImportMapping& mapping, std::size_t column);

/// The columns of that role, in their order.
std::vector<std::size_t> ColumnsOf(const ImportMapping& mapping, ColumnRole role);

/// Whether the mapping can give draws at all: a date, and numbers for 4 to 7 main numbers. Empty
/// where it can, else a word on what is missing.
std::string MissingInMapping(const ImportMapping& mapping);

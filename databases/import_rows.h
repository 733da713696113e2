// SPDX-License-Identifier: GPL-3.0-or-later
// Which rows of a table are dated, and how.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "databases/import_dates.h"
#include "databases/import_headings.h"

/// A row with a date, before the order of day and month is known.
struct DatedRow {
    std::size_t row = 0;
    WrittenDate written;
};

/// Where the dates of a table stand.
struct DatedRows {
    std::vector<std::size_t> columns;  ///< Empty where the table has no dates.
    std::vector<DatedRow> rows;
};

/// Finds the column of dates, or the columns that make one together: the one with the most dates;
/// of several, the one that its heading calls the date of the draw, else the first.
DatedRows FindDates(const ImportTable& table, const DateReader& reader);

/// The row that names the columns, or `Rows()` where there is none.
std::size_t FindHeading(const ImportTable& table, const DatedRows& dated);

/// Which of the orders of day and month the rows are in.
struct OrderChoice {
    Region::Order order = Region::Order::DayMonthYear;
    bool guess = false;
    std::string reason;  ///< A sentence for the user.
};

/// Decides by all rows together: a day above 12; the days of the week that rows name; the days of
/// the week on which draws fall; dates that follow each other. Else `region` is the guess.
OrderChoice ChooseOrder(const ImportTable& table, const DatedRows& dated, const DateReader& reader,
                        const DateRules& rules);

/// The game of a table that holds several.
struct ProductChoice {
    int column = -1;      ///< -1 where there is one game alone.
    std::string product;  ///< The game with the most rows.
    std::size_t games = 0;
};

/// Finds a column of names by which the table falls into several games: one whose heading says so,
/// or without whose names most dates would stand twice. Times of a day are no games.
ProductChoice FindProduct(const ImportTable& table, const DatedRows& dated,
                          const std::vector<ColumnHeading>& headings);

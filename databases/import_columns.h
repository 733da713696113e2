// SPDX-License-Identifier: GPL-3.0-or-later
// The columns of a table that could hold balls, and what their numbers look like.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "databases/import_dates.h"
#include "databases/import_headings.h"

/// The numbers of one column, or of one place in a column of several numbers, by row.
struct BallColumn {
    std::size_t column = 0;
    int part = 0;                      ///< The place in the cell, from 1; 0 for the whole cell.
    std::vector<std::int8_t> numbers;  ///< Below 0 where the row has none.
    bool behindWord = false;  ///< The column in front holds a word for an extra ball, or "+".
    bool told = false;        ///< That word tells that this is an extra ball.
    bool glued = false;       ///< Of a cell with nothing between its numbers.
    std::size_t filled = 0;
    int lowest = 99;
    int highest = 0;
    int distinct = 0;
    double commonest = 0;  ///< Share of the number that stands most often.
    double repeated = 0;   ///< Share of rows with the same number as the row before.
    double steady = 0;     ///< Share of rows that differ from the row before by at most 1.
};

/// The rows that statistics look at.
struct SampleRow {
    std::size_t row = 0;
    Date date;
};

/// The columns that hold numbers of balls, or several numbers each, and are no counter, no constant
/// and no part of the date. Where these are too few for a draw, digits glued together are taken for
/// several numbers too.
std::vector<BallColumn> FindBallColumns(const ImportTable& table,
                                        const std::vector<SampleRow>& rows,
                                        const std::vector<std::size_t>& dateColumns,
                                        const std::vector<ColumnHeading>& headings);

/// Whether the numbers could come out of a drum: neither persistent as machines and sets are, nor
/// few and high as multipliers, nor nearly always the same as winners.
bool CouldBeDrawn(const BallColumn& column);

/// Share of the rows with both in which both are equal.
double EqualShare(const BallColumn& one, const BallColumn& other);

/// Share of the rows with both in which the first is the lower one.
double AscendingShare(const BallColumn& one, const BallColumn& other);

/// Share of the rows in which mistakes of the source may put a number of a drum twice.
double SlipsAllowed(const BallColumn& column);

/// How likely so many balls from a drum up to `drum` show nothing above `highest`.
double ChanceOfNothingAbove(int highest, int drum, std::size_t balls);

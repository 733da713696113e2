// SPDX-License-Identifier: GPL-3.0-or-later
// Draws out of a table, by a mapping.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "databases/draw_records.h"
#include "databases/import_mapping.h"

/// One draw of a table.
struct ImportedDraw {
    Date date;
    std::array<std::int16_t, 7> numbers{};  ///< In the order of the table; 0 behind the last one.
    std::int16_t extra = 0;                 ///< The bonus or extra ball; 0 where there is none.
    std::size_t row = 0;                    ///< The row of the table it comes from, from 0.
    int line = 0;  ///< The number of that row for the user, `ImportTable::Line`.

    /// How many main numbers it has.
    int Count() const;

    /// Whether the numbers are the same, whatever the order of the main numbers.
    bool SameNumbers(const ImportedDraw& other) const;
};

/// Why a row gives no draw.
enum class LeftOut {
    Heading,
    Rule,    ///< Dashes and the like.
    Text,    ///< A text between the draws.
    NoDate,  ///< Totals and other rows whose date cannot be read.
    TooFewNumbers,
    OutOfRange,  ///< A number that is none from 1 to 99, or that no other draw comes near to.
    NumberTwice,
    SameDraw,    ///< The same draw stands in an earlier row.
    SecondDraw,  ///< Another draw of that date is taken.
    OtherProduct,
    ByUser,
    OlderRules,  ///< Drawn by other rules than those chosen.
    TooOld,      ///< There are more draws than a lottery can have.
};

/// A row that gives no draw.
struct LeftOutRow {
    std::size_t row = 0;  ///< Of the table, from 0.
    int line = 0;         ///< For the user, `ImportTable::Line`.
    LeftOut reason = LeftOut::Heading;
    std::string why;   ///< For the user: "The date \"31/02/2020\" is none."
    std::string text;  ///< The row as `ImportTable::RowText`.
};

/// What a table gives by a mapping.
struct ImportedDraws {
    std::vector<ImportedDraw> draws;  ///< Newest first; of one date as they stand in the table,
                                      ///< turned round where that has its oldest draw first.
    std::vector<LeftOutRow> leftOut;  ///< In the order of the table.
};

/// Reads the draws. The rows in `unticked`, from 0, are left out by the user. Every row of the
/// table becomes a draw or is left out.
ImportedDraws ReadDraws(const ImportTable& table, const ImportMapping& mapping,
                        const DateRules& dates, const std::set<std::size_t>& unticked = {});

/// The most draws that every routine can walk.
inline constexpr std::size_t mostImportedDraws = 2999;

/// Keeps the newest `mostImportedDraws` and puts the others with the rows left out.
void KeepNewest(ImportedDraws& imported);

/// "3, 17, 22, 34, 41, 48 + 9".
std::string DrawInWords(const ImportedDraw& draw);

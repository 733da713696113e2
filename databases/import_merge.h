// SPDX-License-Identifier: GPL-3.0-or-later
// Imported draws as a draw database, new or with what it has.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "databases/import_draws.h"
#include "databases/import_eras.h"

/// A new draw database of these draws, which are newest first. Name and address are written as one
/// line each.
std::string NewImportDatabase(std::string_view name, std::string_view address,
                              const ImportRules& rules, const std::vector<ImportedDraw>& draws,
                              Date today);

/// A draw that is not added, and why.
struct MergeConflict {
    ImportedDraw draw;
    std::string why;  ///< "The lottery has 3, 5, 14, 22, 30, 44 + 10 on 19 Nov 1994."
};

/// What becomes of a database.
struct MergedDatabase {
    std::string bytes;  ///< The whole file; the bytes it had where nothing is added.
    int added = 0;
    int there = 0;                         ///< Draws that it has already.
    std::vector<MergeConflict> conflicts;  ///< Same date, other numbers: left as they stand.
    std::vector<MergeConflict> unfit;      ///< Against the database's own rules: not added.
    int tooMany = 0;  ///< Draws left out because the file would have more than 2,999, oldest first.
};

/// Adds to a database the draws of dates that it lacks, each at the place of its date; records that
/// stand keep every byte and their order. The same import again adds nothing. Draws are compared
/// as sets, and an extra ball only where the lottery has one. Where the database has several draws
/// of a date, all of them imported too, the others of that date are added.
///
/// New records are written as `MakeDrawRecord` does, the numbers ascending where all stored ones
/// are. `database` is the file's content, `file` its name for reports. A database that cannot be
/// read, dates included, is a `Failure`.
MergedDatabase MergeDraws(std::string_view database, std::string_view file,
                          const std::vector<ImportedDraw>& draws, const DateRules& dates);

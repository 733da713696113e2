// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/date.h"
#include "core/program_folder.h"
#include "core/state.h"

/// The copy of a draw database that every edit goes through and leaves behind.
inline constexpr std::string_view workFile = "temp.txt";

/// One line of a draw database below its heading, without the line end.
struct DrawRecord {
    Date date;
    std::string text;
};

/// The record of a draw: its date as "dd MMM yy", then the eight fields as they stand.
DrawRecord MakeDrawRecord(Date date, const std::array<std::string, 8>& fields);

/// What reading the dates of a file needs to know.
struct DateRules {
    Region region;
    Date today;
};

/// The first draw of the current database.
struct NewestDraw {
    std::string date;            ///< As stored.
    std::array<bool, 8> filled;  ///< Whether the number of that column is above 0.
};

/// Reads the first draw of `state.DbaseFile`; none is a `Failure`.
NewestDraw ReadNewestDraw(const State& state, const ProgramFolder& folder);

/// The dates of all draws of `state.DbaseFile` as stored, the newest first.
std::vector<std::string> StoredDates(const State& state, const ProgramFolder& folder);

/// The numbers in a draw's line, as they are read out: "3, 17, 22, 34, 41, 48, Bonus 9". The eighth
/// stands behind `lastTitle` and is left out where that is empty.
std::string NumbersInWords(std::string_view line, const std::string& lastTitle);

/// Puts the draw into `state.DbaseFile` in front of the first one that is not later, behind the
/// last one where all are; no other draw moves. The database as it was stays behind as `temp.txt`.
///
/// A stored date that is met and cannot be read is a `Failure`, the database untouched. A database
/// without draws is emptied and is a `Failure`; its heading stays in `temp.txt`.
void InsertDraw(const State& state, ProgramFolder& folder, const DrawRecord& draw,
                const DateRules& rules);

/// Removes draw number `draw`, from 1, from `state.DbaseFile`. The database as it was stays behind
/// as `temp.txt`.
void DeleteDraw(const State& state, ProgramFolder& folder, int draw);

/// Removes draw number `draw`, from 1, from `state.DbaseFile` and puts `changed` in at the place of
/// its date, as `InsertDraw` does. The database without the old draw stays behind as `temp.txt`;
/// where it was the only one, with the changed draw.
void UpdateDraw(const State& state, ProgramFolder& folder, int draw, const DrawRecord& changed,
                const DateRules& rules);

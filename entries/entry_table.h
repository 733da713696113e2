// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

#include "core/date.h"
#include "core/program_folder.h"
#include "core/saved_entries.h"
#include "core/table.h"

/// Saved entries in rows 1 to 499, columns as the fields of their file. The first row whose column
/// 0 is empty ends the table.
using EntryTable = Table<std::string, 501, 12>;

/// How a row of the table is named in a report, in place of a line of the file: what is shown may
/// not have been saved.
std::string EntryPlace(int row);

/// Reads the first 499 entries of `MyLottery.txt`; further ones are not read, and where there is no
/// such file nothing is. An entry that the end of the file cuts short is a `Failure`. Returns how
/// many lines were left unread.
int LoadMyDraws(EntryTable& table, const ProgramFolder& folder);

/// Sorts by draw date, the latest first; entries of one date keep their order. Where two entries or
/// more are there, a date that cannot be read is a `Failure`.
void SortByDate(EntryTable& table, const Region& region, Date today);

/// Sorts by the name of the player, in upper case; entries of one name keep their order.
void SortByName(EntryTable& table);

/// Sorts by the name of the lottery, in upper case; entries of one lottery keep their order.
void SortByLottery(EntryTable& table);

/// Removes a row: the rows below it move up, as far as the first whose column 0 is empty, which is
/// copied too. The last row of the table is a `Failure`.
void DeleteRow(EntryTable& table, std::int16_t row);

/// Removes every entry dated before yesterday. A date that cannot be read is a `Failure`.
void DeleteOutOfDate(EntryTable& table, const Region& region, Date today);

/// Writes `date` in medium form into column 0 of a row, if a date stands there, and tells whether.
bool ChangeDate(EntryTable& table, int row, Date date, const Region& region, Date today);

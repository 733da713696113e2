// SPDX-License-Identifier: GPL-3.0-or-later
// The records of a syndicate's manager: a date, tickets, what they cost, what they won, a note.
#pragma once

#include <string>
#include <string_view>

#include "core/money.h"
#include "core/program_folder.h"
#include "core/table.h"

namespace diary_column {

enum Column : int { Date = 0, Tickets = 1, Cost = 2, Won = 3, Balance = 4, Notes = 5, Count = 6 };

}  // namespace diary_column

inline constexpr int lastRecord = 999;

/// Texts as they are shown, records from row 1 on.
using DiaryTable = Table<std::string, lastRecord + 1, diary_column::Count>;

/// Whether a column holds amounts of money.
bool HoldsMoney(int column);

/// Reads the diary of that file into the table, which is empty. Every amount is shown afresh, an
/// empty one as nothing. A record cut short, more than 999 of them, and an amount that is too large
/// to be counted are each a `Failure`. Returns how many there are.
int LoadDiary(DiaryTable& diary, const ProgramFolder& folder, std::string_view file,
              const CurrencyForm& form);

/// The file: the records up to the first row whose cells are all empty.
std::string DiaryText(const DiaryTable& diary);

/// The amount that a cell shows; of one in groups of digits, what stands before the first
/// separator.
Money AmountIn(const DiaryTable& diary, int row, int column, const CurrencyForm& form);

/// All balances of rows 1 to 999.
Money Total(const DiaryTable& diary, const CurrencyForm& form);

/// Makes the balance of a row anew, from what its cells show.
void Rebalance(DiaryTable& diary, int row, const CurrencyForm& form);

/// Whether there are no cells but blank ones in a row.
bool IsBlank(const DiaryTable& diary, int row);

/// Moves the rows behind a row up over it, until a blank one has been moved. Where none comes up to
/// row 999 it is a `Failure`. Row 999 itself is not deleted.
void DeleteRecord(DiaryTable& diary, int row);

/// Exchanges a row with the one above or below it. Returns whether it did: not at the end of the
/// table, and not where the lower of the two rows is blank.
bool MoveRecordUp(DiaryTable& diary, int row);
bool MoveRecordDown(DiaryTable& diary, int row);

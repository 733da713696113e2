// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/program_folder.h"
#include "core/state.h"

/// The columns of `State::Members`. Row 0 is the syndicate with its manager, of whom it tells the
/// same as rows 1 to 100 tell of the members; the name of the syndicate stands in row 0 alone.
namespace member_column {

enum Column : int {
    Name = 0,
    Address = 1,  ///< Four lines, a column each.
    Phone = 5,
    Email = 6,
    PayBy = 7,
    AmountPaid = 8,
    PaidUpTo = 9,
    SyndicateName = 10,
};

}  // namespace member_column

/// What is typed of a person: the columns up to the e-mail address.
inline constexpr int memberDetails = member_column::Email + 1;

inline constexpr int lastMember = 100;

/// How many members there are, the manager not counted.
int MemberCount(const State& state);

/// Reads the syndicate whose file `setting::SyndicateFile` names into `state.Members`.
///
/// All cells of rows 0 to 100 are emptied first. Without a name that is all; where the file is gone
/// the slot is emptied too. A file with fewer than 101 rows of eleven fields is a `Failure`.
void LoadSyndicate(State& state, const ProgramFolder& folder);

/// What the file holds once `state.Members` is saved: all 101 rows, each field in double quotes.
std::string SyndicateText(const State& state);

/// Writes it to that file, and keeps the old one where a row of it changes. Without a name nothing
/// is done.
void SaveSyndicate(State& state, ProgramFolder& folder);

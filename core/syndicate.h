// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/program_folder.h"
#include "core/state.h"

/// Reads the syndicate whose file `setting::SyndicateFile` names into `state.Members`.
///
/// All cells of rows 0 to 100 are emptied first. Without a name that is all; where the file is gone
/// the slot is emptied too. A file with fewer than 101 rows of eleven fields is a `Failure`.
void LoadSyndicate(State& state, const ProgramFolder& folder);

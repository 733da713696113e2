// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/notes.h"
#include "core/program_folder.h"

inline constexpr const char* syndicateNotesFile = "SNotes.txt";

/// Reads `SNotes.txt`, which must exist. The text of an item is the rest of its line as it stands,
/// commas and blanks included. Fewer than eight items are a `Failure`.
Notes ReadSyndicateNotes(const ProgramFolder& folder);

/// Writes it.
void SaveSyndicateNotes(ProgramFolder& folder, const Notes& notes);

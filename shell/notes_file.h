// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/notes.h"
#include "core/program_folder.h"

inline constexpr const char* notesFile = "Notes.txt";

/// Reads `Notes.txt`, which must exist. Fewer than eight items are a `Failure`; a comma cuts a
/// caption.
Notes ReadNotes(const ProgramFolder& folder);

/// Writes `Notes.txt`: eight lines " 0 ,caption" or " 1 ,caption", then the note as it stands.
void SaveNotes(ProgramFolder& folder, const Notes& notes);

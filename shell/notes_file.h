// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

#include "core/program_folder.h"

inline constexpr const char* notesFile = "Notes.txt";

struct ChecklistItem {
    bool ticked = false;
    std::string caption;
    bool operator==(const ChecklistItem&) const = default;
};

/// What `Notes.txt` keeps: the checklist and the note, whose lines are joined by CR LF.
struct Notes {
    std::array<ChecklistItem, 8> checklist;
    std::string note;
    bool operator==(const Notes&) const = default;
};

/// Reads `Notes.txt`, which must exist. Fewer than eight items are a `Failure`; a comma cuts a
/// caption.
Notes ReadNotes(const ProgramFolder& folder);

/// Writes `Notes.txt`: eight lines " 0 ,caption" or " 1 ,caption", then the note as it stands.
void SaveNotes(ProgramFolder& folder, const Notes& notes);

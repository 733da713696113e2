// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/notes_file.h"

#include "core/field_reader.h"
#include "core/old_files.h"
#include "core/text.h"

Notes ReadNotes(const ProgramFolder& folder) {
    const std::string content = folder.Read(notesFile);
    FieldReader reader(content, notesFile);
    Notes notes;
    for (ChecklistItem& item : notes.checklist) {
        item.ticked = LeadingWhole(reader.ReadField("the tick of a checklist item (0 or 1)")) != 0;
        item.caption = reader.ReadField("the caption of a checklist item");
    }
    notes.note = WithCrlf(reader.Rest());
    return notes;
}

void SaveNotes(ProgramFolder& folder, const Notes& notes) {
    WriteKeepingOld(folder, notesFile, NotesText(notes));
}

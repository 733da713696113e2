// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/syndicate_notes.h"

#include "core/field_reader.h"
#include "core/old_files.h"
#include "core/text.h"

Notes ReadSyndicateNotes(const ProgramFolder& folder) {
    const std::string content = folder.Read(syndicateNotesFile);
    FieldReader reader(content, syndicateNotesFile);
    Notes notes;
    for (ChecklistItem& item : notes.checklist) {
        item.ticked = LeadingWhole(reader.ReadField("the tick of a checklist item (0 or 1)")) != 0;
        item.caption = reader.ReadLine("the text of a checklist item");
    }
    notes.note = WithCrlf(reader.Rest());
    return notes;
}

void SaveSyndicateNotes(ProgramFolder& folder, const Notes& notes) {
    WriteKeepingOld(folder, syndicateNotesFile, NotesText(notes));
}

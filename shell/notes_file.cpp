// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/notes_file.h"

#include "core/field_reader.h"
#include "core/text.h"

namespace {

// The text with CR LF for every line end.
std::string WithCrlf(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool returned = i > 0 && text[i - 1] == '\r';
        if (text[i] == '\r' || (text[i] == '\n' && !returned)) {
            result += "\r\n";
        } else if (text[i] != '\n') {
            result += text[i];
        }
    }
    return result;
}

}  // namespace

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
    std::string content;
    for (const ChecklistItem& item : notes.checklist) {
        content += (item.ticked ? " 1 ," : " 0 ,") + item.caption + "\r\n";
    }
    folder.Write(notesFile, content + notes.note);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/notes.h"

std::string NotesText(const Notes& notes) {
    std::string content;
    for (const ChecklistItem& item : notes.checklist) {
        content += (item.ticked ? " 1 ," : " 0 ,") + item.caption + "\r\n";
    }
    return content + notes.note;
}

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

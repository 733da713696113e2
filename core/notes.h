// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

struct ChecklistItem {
    bool ticked = false;
    std::string caption;
    bool operator==(const ChecklistItem&) const = default;
};

/// What a file of notes keeps: a checklist, and a note whose lines are joined by CR LF.
struct Notes {
    std::array<ChecklistItem, 8> checklist;
    std::string note;
    bool operator==(const Notes&) const = default;
};

/// The file: eight lines " 0 ,caption" or " 1 ,caption", then the note as it stands.
std::string NotesText(const Notes& notes);

/// The text with CR LF for every line end.
std::string WithCrlf(std::string_view text);

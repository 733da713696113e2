// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/saved_entries.h"

#include <span>
#include <string_view>

#include "core/field_reader.h"
#include "core/old_files.h"

namespace {

constexpr std::array<std::string_view, 12> expectedFields = {
    "the date of an entry",    "number 1 of an entry", "number 2 of an entry",
    "number 3 of an entry",    "number 4 of an entry", "number 5 of an entry",
    "number 6 of an entry",    "number 7 of an entry", "the extra ball of an entry",
    "the lottery of an entry", "the name of a player", "the draw database of an entry"};

}  // namespace

void ReadEntry(FieldReader& reader, std::string* cells, int count) {
    for (const std::string_view field :
         std::span(expectedFields).first(static_cast<std::size_t>(count))) {
        *cells++ = reader.ReadField(field);
    }
}

// Kept on purpose: a comma in a name is written as it stands, and shifts the fields behind it.
std::string SavedEntryRecord(const SavedEntry& entry) {
    std::string record;
    for (const std::string& field : entry) {
        if (&field != &entry.front()) record += ',';
        record += field;
    }
    return record + "\r\n";
}

std::string SavedEntryRecords(const std::vector<SavedEntry>& entries) {
    std::string records;
    for (const SavedEntry& entry : entries) records += SavedEntryRecord(entry);
    return records;
}

void AppendEntries(ProgramFolder& folder, const std::vector<SavedEntry>& entries) {
    folder.Append(savedEntriesFile, SavedEntryRecords(entries));
}

void WriteEntries(ProgramFolder& folder, const std::vector<SavedEntry>& entries) {
    WriteKeepingOld(folder, savedEntriesFile, SavedEntryRecords(entries));
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/saved_entries.h"

std::string SavedEntryRecord(const SavedEntry& entry) {
    std::string record;
    for (const std::string& field : entry) {
        if (&field != &entry.front()) record += ',';
        record += field;
    }
    return record + "\r\n";
}

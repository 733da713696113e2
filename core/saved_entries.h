// SPDX-License-Identifier: GPL-3.0-or-later
// The file of the user's entries: its records, its reader and its writer.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/program_folder.h"

class FieldReader;

inline constexpr const char* savedEntriesFile = "MyLottery.txt";

/// One entry as the file holds it: draw date, seven main numbers, extra ball, lottery, player,
/// database file. Columns 0 to 11.
using SavedEntry = std::array<std::string, 12>;

/// The columns of an entry, in every table and grid that shows entries. The main numbers are
/// columns 1 to 7.
namespace entry_column {
inline constexpr int date = 0;
inline constexpr int extraBall = 8;
inline constexpr int lottery = 9;
inline constexpr int player = 10;
inline constexpr int database = 11;
inline constexpr int last = database;
}  // namespace entry_column

/// Reads the next entry of the file into twelve cells, one after the other, or its first `count`
/// fields only. An entry that the end of the file cuts short is a `Failure`.
void ReadEntry(FieldReader& reader, std::string* cells, int count = entry_column::last + 1);

/// The record of an entry: its fields with a comma between, and a line end. Nothing is quoted.
std::string SavedEntryRecord(const SavedEntry& entry);

/// The records of the entries, one behind the other.
std::string SavedEntryRecords(const std::vector<SavedEntry>& entries);

/// Adds the entries to the end of `MyLottery.txt`. Where there is no such file it comes into being,
/// even for no entries.
void AppendEntries(ProgramFolder& folder, const std::vector<SavedEntry>& entries);

/// Replaces `MyLottery.txt` by the entries.
void WriteEntries(ProgramFolder& folder, const std::vector<SavedEntry>& entries);

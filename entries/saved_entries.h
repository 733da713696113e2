// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

inline constexpr const char* savedEntriesFile = "MyLottery.txt";

/// One entry as the file holds it: draw date, seven main numbers, extra ball, lottery, player,
/// database file. Columns 0 to 11.
using SavedEntry = std::array<std::string, 12>;

/// The record of an entry: its fields with a comma between, and a line end. Nothing is quoted.
std::string SavedEntryRecord(const SavedEntry& entry);

// SPDX-License-Identifier: GPL-3.0-or-later
// The way back: before something in a file of the user's is lost, the file is kept as it is.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/program_folder.h"

inline constexpr const char* undoFolder = "Backup/Undo";

/// So many copies stay in it, the newest.
inline constexpr std::size_t undoCopies = 50;

/// Puts a copy of the file into `Backup/Undo/`, named after the moment and the file, such as
/// "2026-11-22 093015 MyLottery.txt". The last copy of the same file goes where it holds the same.
/// Where there is no such file, nothing is done.
///
/// A copy that cannot be put there goes where what cannot be written is rescued. Where it can go
/// nowhere, the `Failure` says why, and the caller leaves the file as it is.
void KeepOld(ProgramFolder& folder, std::string_view name);

/// Deletes the file, which is kept.
void DeleteKeepingOld(ProgramFolder& folder, std::string_view name);

/// Replaces or creates the file. The old one is kept where something that stood in a line of it is
/// in no line of the new one. What could not be written is rescued.
void WriteKeepingOld(ProgramFolder& folder, std::string_view name, std::string_view bytes);

/// Puts what was to be written to the file, but is not, among the copies of old files.
void KeepUnsaved(ProgramFolder& folder, std::string_view name, std::string_view bytes);

/// Whether there is such a file and it holds something else.
bool HoldsAnother(const ProgramFolder& folder, std::string_view name, std::string_view bytes);

/// The name of a copy that is made at a moment: "2026-11-22 093015 MyLottery.txt". Of several in a
/// second, which are counted from 1, the second one is named "2026-11-22 093015-002 MyLottery.txt".
std::string StampedName(Moment moment, int count, std::string_view name);

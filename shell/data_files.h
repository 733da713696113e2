// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "core/program_folder.h"

/// The data files that are backed up, in the order in which they are listed: texts, settings, slip
/// templates, diaries, member files.
inline constexpr std::array<std::string_view, 5> backupPatterns = {
    "*.txt", "*.ini", "PTemplate.0??", "Diary.0??", "Smembers.0??"};

/// The data files that go to another disk, in the order in which they are copied: texts, settings,
/// member files, templates, diaries.
inline constexpr std::array<std::string_view, 5> floppyPatterns = {"*.txt", "*.ini", "SMembers.0??",
                                                                   "PTemplate.???", "Diary.???"};

/// What becomes of files that are copied over.
enum class Replaced { Lost, Kept };

/// Copies the data files of one folder over those of another, which may be the same; the copies
/// keep their dates. `copied` is told after each file how many there are. A failure leaves what was
/// copied before it.
void CopyDataFiles(const ProgramFolder& from, ProgramFolder& to, Replaced replaced,
                   const std::function<void(int count)>& copied);

/// Keeps a file of the program's folder that is to be copied over, where it holds something else
/// than those bytes.
void KeepIfDifferent(ProgramFolder& folder, std::string_view name, std::string_view bytes);

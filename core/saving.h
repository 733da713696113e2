// SPDX-License-Identifier: GPL-3.0-or-later
// Saves of more than one step.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>

#include "core/program_folder.h"

/// Does all of the saves, each whatever becomes of the others. Where some fail, the `Failure` at
/// the end says what each of them says.
void SaveAll(std::initializer_list<std::function<void()>> saves);

/// Makes a new file of the first name that nothing bears, `name` being asked for the one of each
/// number from `first` on, and gives that name. What somebody else makes meanwhile stays as it is.
/// What could not be written is rescued.
std::string CreateNumbered(ProgramFolder& folder, int first,
                           const std::function<std::string(int number)>& name,
                           std::string_view bytes);

/// The name of a file that is numbered from 000, such as "Diary.007"; numbers beyond 999 have as
/// many digits as they need.
std::string NumberedName(std::string_view start, int number);

/// Under what name lines are rescued that were to go into that file. Under the file's own, who puts
/// a rescued file in the place of the old one would have these lines and nothing else.
std::string NewLinesOf(std::string_view name);

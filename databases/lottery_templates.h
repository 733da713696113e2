// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/program_folder.h"
#include "core/state.h"

inline constexpr std::string_view lotteryTemplatesFile = "LotteryTemplates.txt";

/// Reads the ready-made lottery definitions of `LotteryTemplates.txt` into `state.Templates`, one a
/// row from row 0: name, numbers to pick, highest number, a further field, highest extra ball, web
/// address.
///
/// Rows below the last definition keep what they hold. A missing file, a definition that the end of
/// the file cuts short and a file of more than 201 definitions are each a `Failure`.
void LoadLotteryTemplates(State& state, const ProgramFolder& folder);

/// The names in `state.Templates` from row 0 to the first empty one. A full table, which has no
/// such end, is a `Failure`.
std::vector<std::string> TemplateNames(const State& state);

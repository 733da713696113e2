// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/program_folder.h"

/// Where a web site tells the latest version, as a path on it.
inline constexpr const char* versionPath = "/software/tvx_version.txt";

/// Writes the page to the work file and tells the version that it names: what stands behind "TVX"
/// in its first line, blanks included. None where the page does not begin with these letters.
std::optional<std::string> LatestVersion(ProgramFolder& folder, std::string_view page);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

/// The version of this program as the project states it: major, minor and revision, with points
/// between.
std::string ProgramVersion();

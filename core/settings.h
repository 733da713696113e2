// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/program_folder.h"
#include "core/state.h"

inline constexpr const char* settingsFile = "quillon.ini";

/// Reads `quillon.ini` into `state.Settings`, line n into entry n; a missing file is first made
/// with the defaults. Entries beyond the last line keep what they hold. A line 101 is a `Failure`.
void LoadSettings(State& state, ProgramFolder& folder);

/// Fills `state.Settings` with the defaults and writes them.
void MakeDefaultSettings(State& state, ProgramFolder& folder);

/// Writes entries 1 to 100, one line each.
void SaveSettings(const State& state, ProgramFolder& folder);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include "core/state.h"

/// Bytes of a draw database of 2,999 draws, 6 numbers of 49: a real one where the folder of real
/// histories is present, else a random one that is always the same.
std::string DatabaseBytes();

/// The run state with that database loaded, and every strength set to `strength`.
std::unique_ptr<State> StateWithHistory(int strength);

/// Fills `state.Lines` with `count` random lines of which `HistoryOK` accepts each.
void FillWithPassingLines(State& state, int count);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/random.h"
#include "core/state.h"

/// Sets every cell of `state.Lines` to 0.
void ClearLines(State& state);

/// Puts columns 1 to `count` of each row up to the end mark in ascending order. The first row is
/// sorted without a look at its end mark.
void SortLines(State& state, int count);

/// Number of lines before the end mark; asks for the row behind the last, so a quite full table is
/// a `Failure`.
int LineCount(const State& state);

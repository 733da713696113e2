// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "core/frequency.h"
#include "core/random.h"
#include "core/state.h"

namespace hot_numbers {

/// Whether the numbers drawn most often or those drawn least often are wanted.
enum class Mode { Hot, Cold };

/// Counts the draw history into `counts`, ranks the main numbers into `Pool`, and returns the ten
/// first as they are shown, in rank order.
std::string RankMainNumbers(State& state, NumberCounts& counts, Mode mode);

/// Where the lottery has an extra ball, ranks the extra balls counted into `Pool` and gives lines 1
/// to 10 one each by rank; with fewer than ten extra balls the lines behind them get what `Pool`
/// held there before.
void AddExtraBalls(State& state, NumberCounts& counts, Mode mode);

/// Ranks the main numbers of the draw history, makes ten sorted lines out of the ten first, and
/// returns these ten as they are shown, in rank order.
///
/// Where the lottery has an extra ball, column 8 of line 1 to 10 gets the extra balls by rank; with
/// fewer than ten extra balls the lines behind them get what the main numbers left in `Pool`.
/// Behind the numbers that can be ranked, a ranking repeats one number (see `GetHotNumbers`).
std::string PlayLotto(State& state, Random& random, Mode mode);

/// Fills ten lines with `Picks` numbers each from entries 1 to 10 of `Pool`, which every line
/// shuffles anew, sets the end mark and sorts the lines.
void AddToGrid(State& state, Random& random);

}  // namespace hot_numbers

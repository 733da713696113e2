// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/program_folder.h"
#include "core/state.h"

/// Plays a set of entries back against the whole draw history of a lottery.
namespace what_if {

/// Draws by what a line has of them: entry m counts those with m main numbers, entry m + 10 those
/// with m main numbers and the bonus or extra ball.
using MatchCounts = std::array<int, 121>;

/// Compares every line of `state.Lines` with every draw.
///
/// m is the count of pairs of equal numbers among the first `Picks` of both, so a repeated number
/// counts each time and an empty field equals another one. A bonus ball is hit by any of those
/// numbers of the line, an extra ball by column 8. A history without an empty row behind it is a
/// `Failure`.
MatchCounts CountMatches(State& state);

/// Adds what `CountMatches` gives to `state.Pool`. A sum above 32767 is a `Failure`, and nothing is
/// added.
void CheckIt(State& state);

/// The counts in words: how many draws there are, then a line for each count of matches from
/// `Picks` down, in three lists as far as the lottery has them.
std::string Report(const State& state);

/// What chance alone gives for as many entries and draws, in the words of the report: "By chance:
/// 6 - match 0.002 times, ...". Empty where the odds do not hold, as an entry repeats a number or
/// has one that the lottery does not, and without draws or entries.
std::string ByChance(const State& state);

/// Reads the entries of that lottery from `MyLottery.txt` into `state.Lines` and returns how many
/// there are. `state.Pool(1)` to `Pool(8)` are left with the last entry of the file.
///
/// A number beyond 16 bits, an entry that the end of the file cuts short and a 180th entry are each
/// a `Failure`.
int LoadEntries(State& state, const ProgramFolder& folder, std::string_view lottery);

/// The comparison step by step, as it is defined. Results and failures of the fast routine are
/// those of this one on every input.
namespace plain {

MatchCounts CountMatches(const State& state);

}  // namespace plain

}  // namespace what_if

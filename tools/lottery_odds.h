// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Where the balls beside the main numbers come from.
enum class ExtraBalls {
    Bonus,    ///< One more ball of those that the main numbers left over; nobody chooses it.
    OwnDrum,  ///< A drum of their own, from which an entry chooses as many as are drawn.
};

/// How a lottery is drawn.
struct DrawRules {
    int picks = 0;    ///< Main numbers of an entry, as many as are drawn.
    int highest = 0;  ///< The highest main number.
    ExtraBalls extra = ExtraBalls::Bonus;
    int extraPicks = 1;    ///< Numbers of an entry from the other drum.
    int highestExtra = 0;  ///< How many numbers that drum holds.
};

/// What an entry must match at least to win in a class.
struct PrizeClass {
    int numbers = 0;  ///< Main numbers, this many
    int orFewer = 0;  ///< or up to so many fewer,
    int extras = 0;   ///< and extra balls, at least so many.
};

/// So many of all equally likely draws.
struct Chance {
    std::uint64_t ways = 0;
    std::uint64_t all = 1;
};

/// In how many ways `chosen` things can be taken from `things`.
std::uint64_t Combinations(int things, int chosen);

/// The chance of each class, in their order, and behind them that of any. An entry wins in the
/// first class that it fulfils.
std::vector<Chance> ChancesOf(const DrawRules& rules, const std::vector<PrizeClass>& classes);

/// "1 in 45,057,474", and below a hundred "1 in 96.2", rounded.
std::string OddsText(const Chance& chance);

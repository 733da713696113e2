// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/state.h"
#include "wheels/guarantee.h"

/// What the verifier finds for a wheel, said in words beside the promise that its form makes.
namespace wheels {

/// Some lines and what is asked of them: whether every selection of `drawn` numbers out of 1 to
/// `numbers` has `matched` of them in some line.
struct Promise {
    std::vector<std::uint64_t> lines;  ///< Bit n stands for number n + 1.
    int numbers = 0;
    int drawn = 0;
    int matched = 0;
};

/// What a wheel of the catalogue promises in a lottery of so many picks. Five picks draw five
/// numbers and play the first five letters of each line; of seven the random number in each line
/// does not count.
Promise PromiseOf(WheelList list, int item, int picks);

/// "Checked: all 38,760 selections of 6 from 20 numbers have a 3-match." or how many have one, how
/// many have none, and the first of those, its numbers counted along the wheel.
std::string CheckedText(const Promise& promise);

/// `CheckedText` of a wheel of the catalogue, and for lotteries of other than six picks how the
/// wheel is counted.
std::string CheckedText(WheelList list, int item, int picks);

/// What to add where the lottery does not play six numbers; empty for six.
std::string PicksRemark(int picks);

/// The numbers that were wheeled in the lines of the table, and what was promised for them.
struct Played {
    std::vector<int> numbers;  ///< In any order; a number that stands twice counts once.
    int drawn = 0;
    int matched = 0;
};

/// The numbers in `Pool(first)` onward.
std::vector<int> PoolNumbers(const State& state, int first, int count);

/// What holds for the lines in the table, once filters have taken some of them out: the text of
/// `CheckedText` with "in the 8 lines left", its example the player's own numbers. A random number
/// in a line counts where it is one of those that were wheeled. Empty where the numbers are fewer
/// than are drawn.
std::string LeftText(const State& state, const Played& played);

}  // namespace wheels

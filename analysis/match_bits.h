// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/draw_index.h"

/// Counts what lines of numbers matched on the bits of the draw index, 256 draws at a time.
///
/// What is asked for are counts over all lines, so most bits need not be counted one by one: of
/// every four sets of draws only the carry is.
class MatchBits {
  public:
    /// The draws of the index by how many of a line's numbers they have, 0 to 7.
    using ByMatches = std::array<int, 8>;

    /// Rows of the index, one behind the other.
    using Rows = std::array<const std::uint64_t*, 7>;

    /// A line: the rows of its numbers, and of its bonus or extra balls as far as it has any; which
    /// of these a draw has does not matter.
    struct Line {
        Rows numbers{};
        Rows balls{};
    };

    /// Adds a line of `picks` numbers, 1 to 7. There is room for 1,000 lines.
    void Add(const Line& line, int picks);

    /// By matches above 0, of all draws; those without a match are not counted.
    ByMatches All() const { return Sums(all_); }

    /// By matches, of the draws that have one of the line's balls.
    ByMatches Hits() const { return Sums(hits_); }

  private:
    // Four words side by side, which wide registers take at once.
    using Words [[gnu::vector_size(32)]] = std::uint64_t;

    struct Counter {
        Words ones{};
        Words twos{};
        Words bytes{};  // counts of four, in lanes of 8 bits
        Words fours{};  // the same in lanes of 16 bits
    };
    using Counters = std::array<Counter, 8>;

    struct Kernel;

    static ByMatches Sums(const Counters& counters);

    Counters all_;
    Counters hits_;
};

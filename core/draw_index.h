// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <vector>

struct State;

/// The draw history turned on its side: for each number one row of bits, a bit for each draw.
///
/// A line of distinct numbers from the field adds up its numbers' rows with carry-save logic and
/// learns at once, for 64 draws a word, how many of its numbers each draw has.
class DrawIndex {
  public:
    /// Makes the index fit `state.Draws`, `Picks` and `MaxNum`; does nothing where it already does.
    void Update(const State& state);

    /// Whether the index can answer for this history: it ends with an empty row within the table.
    bool Usable() const { return usable_; }

    /// Whether some draw has at least `matches` of the line's numbers in columns 1 to `Picks`.
    ///
    /// `numbers` are `picks` distinct numbers from 1 to `MaxNum`, which the caller has checked;
    /// the answer is that of comparing every pair, also for draws that hold repeats or zeros.
    /// `matches` is at least 1.
    bool AnyDrawMatches(const std::int16_t* numbers, int picks, int matches) const;

  private:
    static constexpr int words = 47;  // 3,008 draws

    std::uint64_t version_ = 0;
    int picks_ = -1;
    int maxNum_ = -1;
    bool usable_ = false;
    std::vector<std::array<std::uint64_t, words>> rows_;         // by number, from 0
    std::vector<std::array<std::int16_t, 8>> irregularDraws_;  // hold a number twice
};

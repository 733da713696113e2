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

    /// Whether the index can answer for this lottery: its history ends with an empty row within the
    /// table, a line has 1 to 7 numbers, and the field is no larger than 120.
    bool Usable() const { return usable_; }

    /// Number of draws before the end mark.
    int DrawCount() const { return drawCount_; }

    /// Whether the index can answer for a line: its first `Picks` numbers are distinct and from 1
    /// to `MaxNum`.
    bool Covers(const std::int16_t* numbers) const;

    /// A bit for each draw that has the number, from 0 to `MaxNum`, in columns 1 to `Picks`, and
    /// for each whose column 8 is the number, from 0 to `largestField`. There are `words` words,
    /// aligned to 32 bytes; a draw that holds a number of the field twice has no bits.
    const std::uint64_t* Draws(int number) const { return Bits(rows_, number); }
    const std::uint64_t* DrawsWithExtra(int number) const { return Bits(extraRows_, number); }

    /// The rows of the draws that hold a number of the field twice.
    const std::vector<int>& RepeatingRows() const { return repeatingRows_; }

    /// Whether some draw has at least `matches` of the line's numbers in columns 1 to `Picks`.
    ///
    /// The index is usable and covers the line, which the caller has checked. The answer is that of
    /// comparing every pair, also for draws that hold repeats, zeros or numbers outside the field.
    bool AnyDrawMatches(const std::int16_t* numbers, long long matches) const;

    /// How many of `count` lines stand before the first that the index does not cover or of which
    /// some draw has at least `matches` numbers; `count` where there is none. A line's numbers
    /// begin `stride` places behind those of the line before. The index is usable.
    int LinesBeforeMatch(const std::int16_t* numbers, int stride, int count,
                         long long matches) const;

    static constexpr int largestField = 120;
    static constexpr int words = 48;  ///< Of a row of bits: 3,072 draws.

  private:
    struct alignas(32) BitRow {
        std::array<std::uint64_t, words> bits{};
    };
    using Draw = std::array<std::int16_t, 7>;

    static const std::uint64_t* Bits(const std::vector<BitRow>& rows, int number) {
        return rows.at(static_cast<std::size_t>(number)).bits.data();
    }

    void AddDraw(const std::int16_t* numbers, int draw);
    bool AnyRepeatingDrawMatches(const std::int16_t* numbers, long long matches) const;

    std::uint64_t version_ = 0;
    int picks_ = 0;
    int maxNum_ = 0;
    int drawCount_ = 0;
    bool built_ = false;
    bool usable_ = false;
    std::vector<BitRow> rows_;        // by number, from 0
    std::vector<BitRow> extraRows_;   // the same for column 8
    std::vector<int> repeatingRows_;  // of the draws that hold a number of the field twice
    std::vector<Draw> repeatingDraws_;
};

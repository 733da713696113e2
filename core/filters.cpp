// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/filters.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

#include "core/settings.h"
#include "core/text.h"

namespace {

constexpr int lastLine = static_cast<int>(decltype(State::Lines)::RowCount()) - 1;
constexpr int lineWidth = static_cast<int>(decltype(State::Lines)::ColumnCount());

int Strength(const State& state, setting::Slot slot) { return LeadingWhole(state.Settings(slot)); }

// Whether fewer than `strength` of the line's numbers are of one kind or of the other, where
// `count` of them are of the one.
bool OutOfBalance(const State& state, int count, int strength) {
    return std::min(count, state.Picks - count) < strength;
}

bool FailsOddEven(const State& state, int row, int strength) {
    int odd = 0;
    for (int column = 1; column <= state.Picks; ++column) {
        if (state.Lines(row, column) % 2 != 0) ++odd;
    }
    return OutOfBalance(state, odd, strength);
}

bool FailsHighLow(const State& state, int row, int strength) {
    int low = 0;
    for (int column = 1; column <= state.Picks; ++column) {
        if (2 * state.Lines(row, column) < state.MaxNum) ++low;
    }
    return OutOfBalance(state, low, strength);
}

bool FailsLongRun(const State& state, int row, int strength) {
    int longest = 0;
    int steps = 0;
    for (int column = 1; column < state.Picks; ++column) {
        const bool step = state.Lines(row, column) + 1 == state.Lines(row, column + 1);
        steps = step ? steps + 1 : 0;
        longest = std::max(longest, steps);
    }
    return longest >= strength;
}

using LineFails = bool (*)(const State& state, int row, int strength);

template <LineFails Fails>
bool AllLinesPass(const State& state, setting::Slot slot) {
    const int strength = Strength(state, slot);
    bool pass = true;
    int row = 1;
    do {
        pass = !Fails(state, row, strength);
        ++row;
    } while (state.Lines(row, 1) != 0 && pass);
    return pass;
}

template <LineFails Fails>
void Prune(State& state, setting::Slot slot) {
    const int strength = Strength(state, slot);
    int row = 1;
    do {
        if (Fails(state, row, strength)) {
            RemoveLine(state, row);
        } else {
            ++row;
        }
    } while (View(state).Lines(row, 1) != 0);
}

// Lines before the end mark, or nothing to count on where the table has none.
constexpr int noEndMark = -1;

int LinesBeforeEndMark(const State& state) {
    for (int row = 1; row <= lastLine; ++row) {
        if (state.Lines(row, 1) == 0) return row - 1;
    }
    return noEndMark;
}

void CopyLine(State& state, int from, int to) {
    const std::int16_t* source = state.Lines.Row(from) + 1;
    std::copy_n(source, 9, state.Lines.Row(to) + 1);
}

// Removes the lines that are not to be kept in one pass. Each removal by itself would move the end
// mark up and leave a copy of it behind, so the rows that become free all hold the end mark.
template <typename Keep>
void KeepLines(State& state, int lineCount, const Keep& keep) {
    int kept = 0;
    for (int row = 1; row <= lineCount; ++row) {
        if (!keep(row, kept + 1)) continue;
        ++kept;
        if (kept != row) CopyLine(state, row, kept);
    }
    for (int row = kept + 1; row <= lineCount; ++row) CopyLine(state, lineCount + 1, row);
}

bool RepeatsDraw(const State& state, int row, int strength) {
    const std::int16_t* numbers = state.Lines.Row(row) + 1;
    const long long limit = static_cast<long long>(state.Picks) - strength;
    if (!state.drawIndex.Covers(numbers)) return plain::RepeatsDraw(state, row, limit);
    return state.drawIndex.AnyDrawMatches(numbers, limit + 1);
}

// Columns 1 to 7 of a line; the two words overlap in column 4.
struct LineKey {
    explicit LineKey(const std::int16_t* row) {
        std::memcpy(&left, row + 1, sizeof left);
        std::memcpy(&right, row + 4, sizeof right);
    }
    bool operator==(const LineKey& other) const = default;

    std::size_t Slot() const {
        return (left * 0x9E3779B97F4A7C15U ^ right * 0xC2B2AE3D27D4EB4FU) >> 55U;
    }

    std::uint64_t left = 0;
    std::uint64_t right = 0;
};

// The lines met so far, found by their numbers. A slot holds the row of a line, 0 where it is free.
class LineSet {
  public:
    // Whether no line of the same numbers was met before; if so it is remembered as `row`.
    bool Insert(const State& state, const LineKey& key, int row) {
        std::size_t slot = key.Slot();
        while (rows_[slot] != 0) {
            if (key == LineKey(state.Lines.Row(rows_[slot]))) return false;
            slot = (slot + 1) % rows_.size();
        }
        rows_[slot] = static_cast<std::uint8_t>(row);
        return true;
    }

  private:
    std::array<std::uint8_t, 512> rows_{};
    static_assert(lastLine <= std::numeric_limits<std::uint8_t>::max(), "a byte holds any row");
    static_assert(lastLine < 512, "a free slot ends every search");
};

// Whether no line repeats too much of a previous draw.
bool HistoryPasses(State& state) {
    const int lineCount = LinesBeforeEndMark(state);
    state.drawIndex.Update(state);
    if (lineCount == noEndMark || !state.drawIndex.Usable()) return plain::HistoryPasses(state);
    const int strength = Strength(state, setting::HistoryStrength);
    const long long matches = static_cast<long long>(state.Picks) - strength + 1;
    for (int row = 1; row <= lineCount; ++row) {
        row += state.drawIndex.LinesBeforeMatch(View(state).Lines.Row(row) + 1, lineWidth,
                                                lineCount - row + 1, matches);
        if (row <= lineCount && RepeatsDraw(state, row, strength)) return false;
    }
    return true;
}

std::int16_t Answer(bool passed) { return passed ? -1 : 0; }

}  // namespace

std::int16_t OddEvenOK(const State& state, bool boxSet) {
    return Answer(!boxSet || AllLinesPass<FailsOddEven>(state, setting::OddEvenStrength));
}

std::int16_t HighLowOK(const State& state, bool boxSet) {
    return Answer(!boxSet || AllLinesPass<FailsHighLow>(state, setting::HighLowStrength));
}

std::int16_t HistoryOK(State& state, bool boxSet) {
    return Answer(!boxSet || HistoryPasses(state));
}

void PruneOddEven(State& state) { Prune<FailsOddEven>(state, setting::OddEvenStrength); }

void PruneHighLow(State& state) { Prune<FailsHighLow>(state, setting::HighLowStrength); }

void PruneLongRun(State& state) { Prune<FailsLongRun>(state, setting::LongRunStrength); }

void PruneHistory(State& state) {
    const int lineCount = LinesBeforeEndMark(state);
    state.drawIndex.Update(state);
    const DrawIndex& index = state.drawIndex;
    if (lineCount == noEndMark || !index.Usable() || index.DrawCount() == 0) {
        plain::PruneHistory(state);
        return;
    }
    const int strength = Strength(state, setting::HistoryStrength);
    KeepLines(state, lineCount, [&](int row, int) { return !RepeatsDraw(state, row, strength); });
}

void PruneDuplicates(State& state) {
    const int lineCount = LinesBeforeEndMark(state);
    if (lineCount == noEndMark) {
        plain::PruneDuplicates(state);
        return;
    }
    LineSet met;
    KeepLines(state, lineCount, [&](int row, int place) {
        return met.Insert(state, LineKey(View(state).Lines.Row(row)), place);
    });
}

void RemoveLine(State& state, int row) {
    int moved = row;
    do {
        CopyLine(state, moved + 1, moved);
        ++moved;
    } while (View(state).Lines(moved, 1) != 0);
}

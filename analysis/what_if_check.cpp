// SPDX-License-Identifier: GPL-3.0-or-later
// The check: step by step, and on the bits of the draw index.
#include <algorithm>
#include <limits>
#include <numeric>
#include <optional>

#include "analysis/match_bits.h"
#include "analysis/what_if.h"
#include "core/failure.h"
#include "core/text.h"

namespace {

using what_if::MatchCounts;

constexpr int extraColumn = 8;
constexpr int withExtra = 10;  // from the counts without the bonus or extra ball to those with it

bool HitsExtra(const State& state, int line, int draw) {
    const int drawn = state.Draws(draw, extraColumn);
    if (state.MaxPball > 0) return state.Lines(line, extraColumn) == drawn;
    if (state.HasBonus <= 0) return false;
    for (int column = 1; column <= state.Picks; ++column) {
        if (state.Lines(line, column) == drawn) return true;
    }
    return false;
}

// The count to which a draw adds 1 for a line.
int CountOf(const State& state, int line, int draw) {
    int matches = 0;
    for (int drawn = 1; drawn <= state.Picks; ++drawn) {
        for (int column = 1; column <= state.Picks; ++column) {
            if (state.Draws(draw, drawn) == state.Lines(line, column)) ++matches;
        }
    }
    return HitsExtra(state, line, draw) ? matches + withExtra : matches;
}

void CountDraw(const State& state, int line, int draw, MatchCounts& counts) {
    ++counts.at(static_cast<std::size_t>(CountOf(state, line, draw)));
}

void CountStepByStep(const State& state, int line, MatchCounts& counts) {
    for (int draw = 1; draw <= state.drawIndex.DrawCount(); ++draw) {
        CountDraw(state, line, draw, counts);
    }
}

// The rows of the line; nothing where the index does not know its numbers.
std::optional<MatchBits::Line> BitsOf(const State& state, int line) {
    const DrawIndex& index = state.drawIndex;
    const std::int16_t* numbers = state.Lines.Row(line) + 1;
    const int ball = numbers[extraColumn - 1];
    const bool knowsBall = state.MaxPball <= 0 || (ball >= 0 && ball <= DrawIndex::largestField);
    if (!index.Covers(numbers) || !knowsBall) return std::nullopt;
    MatchBits::Line bits;
    const auto drawsWithExtra = [&index](int number) { return index.DrawsWithExtra(number); };
    std::transform(numbers, numbers + state.Picks, bits.numbers.begin(),
                   [&index](int number) { return index.Draws(number); });
    if (state.MaxPball > 0) {
        bits.balls.front() = drawsWithExtra(ball);
    } else if (state.HasBonus > 0) {
        std::transform(numbers, numbers + state.Picks, bits.balls.begin(), drawsWithExtra);
    }
    return bits;
}

// Moves what the bits have counted for so many lines.
void AddCounts(const State& state, const MatchBits& bits, int lines, MatchCounts& counts) {
    const DrawIndex& index = state.drawIndex;
    const auto indexed = index.DrawCount() - static_cast<int>(index.RepeatingRows().size());
    MatchBits::ByMatches all = bits.All();
    const MatchBits::ByMatches hits = bits.Hits();
    all[0] = lines * indexed - std::accumulate(all.begin(), all.end(), 0);
    for (std::size_t matches = 0; matches < all.size(); ++matches) {
        counts[matches] += all[matches] - hits[matches];
        counts[matches + withExtra] += hits[matches];
    }
}

Failure TooManyDraws(int sum) {
    return Failure("The check of entries can count no more than 32767 draws of one kind, but " +
                   PlainDigits(sum) +
                   " is reached; the draws without a match add up from check to check. Check fewer "
                   "entries at once.");
}

}  // namespace

what_if::MatchCounts what_if::CountMatches(State& state) {
    state.drawIndex.Update(state);
    if (!state.drawIndex.Usable()) return plain::CountMatches(state);
    const State& lottery = state;
    MatchCounts counts{};
    MatchBits bits;
    int lines = 0;
    for (int line = 1; lottery.Lines(line, 1) != 0; ++line) {
        const auto lineBits = BitsOf(lottery, line);
        if (!lineBits) {
            CountStepByStep(lottery, line, counts);
            continue;
        }
        ++lines;
        bits.Add(*lineBits, lottery.Picks);
        for (const int draw : lottery.drawIndex.RepeatingRows()) {
            CountDraw(lottery, line, draw, counts);
        }
    }
    AddCounts(lottery, bits, lines, counts);
    return counts;
}

what_if::MatchCounts what_if::plain::CountMatches(const State& state) {
    MatchCounts counts{};
    for (int line = 1; state.Lines(line, 1) != 0; ++line) {
        for (int draw = 1; state.Draws(draw, 1) != 0; ++draw) {
            CountDraw(state, line, draw, counts);
        }
    }
    return counts;
}

void what_if::CheckIt(State& state) {
    constexpr int most = std::numeric_limits<std::int16_t>::max();
    const MatchCounts counts = CountMatches(state);
    int index = 0;
    for (const int count : counts) {
        const int sum = state.Pool(index++) + count;
        if (sum > most) throw TooManyDraws(sum);
    }
    index = 0;
    for (const int count : counts) {
        std::int16_t& sum = state.Pool(index++);
        sum = static_cast<std::int16_t>(sum + count);
    }
}

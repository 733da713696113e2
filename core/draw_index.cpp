// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/draw_index.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "core/state.h"
#include "core/wide_registers.h"

namespace {

constexpr int extraPlace = 7;  // behind the seven main numbers

using Word = std::uint64_t;
using BitRows = std::array<const Word*, 7>;

// Draws that have all the numbers.
template <std::size_t... Pick>
INLINED inline bool AnyHasAll(const BitRows& rows, int words, std::index_sequence<Pick...>) {
    const std::array row{std::assume_aligned<32>(rows[Pick])...};
    Word found = 0;
    for (int word = 0; word < words; ++word) found |= (row[Pick][word] & ...);
    return found != 0;
}

// Draws that have all the numbers or all but one.
template <std::size_t... Pick>
INLINED inline bool AnyMissesOne(const BitRows& rows, int words, std::index_sequence<Pick...>) {
    const std::array row{std::assume_aligned<32>(rows[Pick])...};
    Word found = 0;
    for (int word = 0; word < words; ++word) {
        Word all = row[0][word];
        Word allButOne = ~Word{0};
        for (std::size_t pick = 1; pick < row.size(); ++pick) {
            const Word bits = row[pick][word];
            allButOne = (allButOne & bits) | all;
            all &= bits;
        }
        found |= allButOne;
    }
    return found != 0;
}

// Draws that have at least `matches` of the numbers: a sum of three bits for each draw, compared
// with `matches` from the highest bit down.
template <std::size_t... Pick>
INLINED inline bool AnyHasSome(const BitRows& rows, int words, int matches,
                               std::index_sequence<Pick...>) {
    const std::array row{std::assume_aligned<32>(rows[Pick])...};
    const auto mask = [matches](int bit) { return (matches >> bit & 1) != 0 ? ~Word{0} : Word{0}; };
    const std::array masks{mask(0), mask(1), mask(2)};
    Word found = 0;
    for (int word = 0; word < words; ++word) {
        Word ones = 0;
        Word twos = 0;
        Word fours = 0;
        const auto add = [&](Word bits) {
            const Word carry = ones & bits;
            ones ^= bits;
            fours |= twos & carry;
            twos ^= carry;
        };
        (add(row[Pick][word]), ...);
        Word more = fours & ~masks[2];
        Word equal = ~(fours ^ masks[2]);
        more |= equal & twos & ~masks[1];
        equal &= ~(twos ^ masks[1]);
        more |= equal & ones & ~masks[0];
        equal &= ~(ones ^ masks[0]);
        found |= more | equal;
    }
    return found != 0;
}

template <std::size_t Picks>
INLINED inline bool AnyMatch(const BitRows& rows, int words, int matches) {
    constexpr auto picks = std::make_index_sequence<Picks>{};
    const int missing = static_cast<int>(Picks) - matches;
    if (missing == 0) return AnyHasAll(rows, words, picks);
    if (missing == 1) return AnyMissesOne(rows, words, picks);
    return AnyHasSome(rows, words, matches, picks);
}

// Whether the numbers are distinct and from 1 to `maxNum`. No branch, and no table in memory: the
// loops of a generator ask this for every line of a try.
INLINED inline bool AreDistinctInField(const std::int16_t* numbers, int picks, int maxNum) {
    Word low = 0;
    Word high = 0;
    Word repeated = 0;
    bool inField = true;
    for (int pick = 0; pick < picks; ++pick) {
        inField &= numbers[pick] >= 1 && numbers[pick] <= maxNum;
        const auto number = static_cast<unsigned>(numbers[pick]) % 128;
        const Word bit = Word{1} << (number % 64);
        const Word lowBit = bit & (Word{number / 64} - 1);
        const Word highBit = bit ^ lowBit;
        repeated |= (low & lowBit) | (high & highBit);
        low |= lowBit;
        high |= highBit;
    }
    return inField && repeated == 0;
}

// Whether a number from 1 to `maxNum` stands there twice.
bool HoldsNumberTwice(const std::int16_t* numbers, int picks, int maxNum) {
    std::array<Word, 2> seen{};
    return std::any_of(numbers, numbers + picks, [&](int number) {
        if (number < 1 || number > maxNum) return false;
        Word& word = seen[static_cast<unsigned>(number) / 64];
        const Word bit = Word{1} << (static_cast<unsigned>(number) % 64);
        return (std::exchange(word, word | bit) & bit) != 0;
    });
}

// The rows of bits by number, and what is asked of them.
struct Question {
    const Word* rows = nullptr;
    int rowWords = 0;
    int usedBlocks = 0;  // of four words, so that a register of 256 bits leaves no rest
    int maxNum = 0;
    int matches = 0;
};

template <std::size_t Picks>
INLINED inline int LinesThatPass(const Question& question, const std::int16_t* numbers, int stride,
                                 int count) {
    for (int line = 0; line < count; ++line, numbers += stride) {
        if (!AreDistinctInField(numbers, Picks, question.maxNum)) return line;
        BitRows rows{};
        for (std::size_t pick = 0; pick < Picks; ++pick) {
            rows[pick] = question.rows + std::ptrdiff_t{numbers[pick]} * question.rowWords;
        }
        if (AnyMatch<Picks>(rows, 4 * question.usedBlocks, question.matches)) return line;
    }
    return count;
}

IN_WIDE_REGISTERS_TOO int LinesThatPass(int picks, const Question& question,
                                        const std::int16_t* numbers, int stride, int count) {
    switch (picks) {
        case 1:
            return LinesThatPass<1>(question, numbers, stride, count);
        case 2:
            return LinesThatPass<2>(question, numbers, stride, count);
        case 3:
            return LinesThatPass<3>(question, numbers, stride, count);
        case 4:
            return LinesThatPass<4>(question, numbers, stride, count);
        case 5:
            return LinesThatPass<5>(question, numbers, stride, count);
        case 6:
            return LinesThatPass<6>(question, numbers, stride, count);
        default:
            return LinesThatPass<7>(question, numbers, stride, count);
    }
}

}  // namespace

void DrawIndex::Update(const State& state) {
    if (built_ && version_ == state.Draws.Version() && picks_ == state.Picks &&
        maxNum_ == state.MaxNum) {
        return;
    }
    built_ = true;
    version_ = state.Draws.Version();
    picks_ = state.Picks;
    maxNum_ = state.MaxNum;
    drawCount_ = 0;
    repeatingRows_.clear();
    repeatingDraws_.clear();
    usable_ = picks_ >= 1 && picks_ <= 7 && maxNum_ >= 0 && maxNum_ <= largestField;
    if (!usable_) return;
    rows_.assign(static_cast<std::size_t>(maxNum_) + 1, BitRow{});
    extraRows_.assign(largestField + 1, BitRow{});
    constexpr int lastRow = static_cast<int>(decltype(state.Draws)::RowCount()) - 1;
    while (drawCount_ < lastRow && state.Draws(drawCount_ + 1, 1) != 0) {
        AddDraw(state.Draws.Row(drawCount_ + 1) + 1, drawCount_);
        ++drawCount_;
    }
    usable_ = drawCount_ < lastRow;
}

void DrawIndex::AddDraw(const std::int16_t* numbers, int draw) {
    if (HoldsNumberTwice(numbers, picks_, maxNum_)) {
        repeatingRows_.push_back(draw + 1);
        std::copy_n(numbers, picks_, repeatingDraws_.emplace_back().begin());
        return;
    }
    const auto word = static_cast<std::size_t>(draw) / 64;
    const Word bit = Word{1} << (static_cast<unsigned>(draw) % 64);
    for (int pick = 0; pick < picks_; ++pick) {
        if (numbers[pick] < 1 || numbers[pick] > maxNum_) continue;
        rows_[static_cast<std::size_t>(numbers[pick])].bits[word] |= bit;
    }
    const int extra = numbers[extraPlace];
    if (extra < 0 || extra > largestField) return;
    extraRows_[static_cast<std::size_t>(extra)].bits[word] |= bit;
}

bool DrawIndex::Covers(const std::int16_t* numbers) const {
    return AreDistinctInField(numbers, picks_, maxNum_);
}

int DrawIndex::LinesBeforeMatch(const std::int16_t* numbers, int stride, int count,
                                long long matches) const {
    if (count == 0) return 0;
    if (matches <= 0) return drawCount_ > 0 ? 0 : count;
    if (matches > picks_) {
        int line = 0;
        while (line < count && Covers(numbers + std::ptrdiff_t{line} * stride)) ++line;
        return line;
    }
    const Question question{rows_.front().bits.data(), words, (drawCount_ + 255) / 256, maxNum_,
                            static_cast<int>(matches)};
    const int passing = LinesThatPass(picks_, question, numbers, stride, count);
    if (repeatingDraws_.empty()) return passing;
    for (int line = 0; line < passing; ++line) {
        if (AnyRepeatingDrawMatches(numbers + std::ptrdiff_t{line} * stride, matches)) return line;
    }
    return passing;
}

bool DrawIndex::AnyDrawMatches(const std::int16_t* numbers, long long matches) const {
    return LinesBeforeMatch(numbers, 0, 1, matches) == 0;
}

// A bit counts a number once, however often a draw holds it, so these draws are compared pair by
// pair.
bool DrawIndex::AnyRepeatingDrawMatches(const std::int16_t* numbers, long long matches) const {
    return std::any_of(repeatingDraws_.begin(), repeatingDraws_.end(), [&](const Draw& draw) {
        long long equal = 0;
        for (int pick = 0; pick < picks_; ++pick) {
            equal += std::count(draw.begin(), draw.begin() + picks_, numbers[pick]);
        }
        return equal >= matches;
    });
}

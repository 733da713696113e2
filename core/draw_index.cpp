// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/draw_index.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "core/state.h"

namespace {

constexpr int extraPlace = 7;  // behind the seven main numbers

using Word = std::uint64_t;
using BitRows = std::array<const Word*, 7>;

// Draws that have all the numbers.
template <std::size_t... Pick>
bool AnyHasAll(const BitRows& rows, int words, int, std::index_sequence<Pick...>) {
    const std::array row{std::assume_aligned<16>(rows[Pick])...};
    Word found = 0;
    for (int word = 0; word < words; ++word) found |= (row[Pick][word] & ...);
    return found != 0;
}

// Draws that have all the numbers or all but one.
template <std::size_t... Pick>
bool AnyMissesOne(const BitRows& rows, int words, int, std::index_sequence<Pick...>) {
    const std::array row{std::assume_aligned<16>(rows[Pick])...};
    Word found = 0;
    for (int word = 0; word < words; ++word) {
        Word all = ~Word{0};
        Word allButOne = ~Word{0};
        ((allButOne = (allButOne & row[Pick][word]) | all, all &= row[Pick][word]), ...);
        found |= allButOne;
    }
    return found != 0;
}

// Draws that have at least `matches` of the numbers: a sum of three bits for each draw, compared
// with `matches` from the highest bit down.
template <std::size_t... Pick>
bool AnyHasSome(const BitRows& rows, int words, int matches, std::index_sequence<Pick...>) {
    const std::array row{std::assume_aligned<16>(rows[Pick])...};
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
bool AnyMatch(const BitRows& rows, int words, int matches) {
    constexpr auto picks = std::make_index_sequence<Picks>{};
    const int missing = static_cast<int>(Picks) - matches;
    if (missing == 0) return AnyHasAll(rows, words, matches, picks);
    if (missing == 1) return AnyMissesOne(rows, words, matches, picks);
    return AnyHasSome(rows, words, matches, picks);
}

constexpr std::array anyMatchByPicks{AnyMatch<1>, AnyMatch<2>, AnyMatch<3>, AnyMatch<4>,
                                     AnyMatch<5>, AnyMatch<6>, AnyMatch<7>};

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
    const auto word = static_cast<std::size_t>(draw) / 64;
    const std::uint64_t bit = std::uint64_t{1} << (static_cast<unsigned>(draw) % 64);
    std::uint64_t before = 0;
    for (int pick = 0; pick < picks_; ++pick) {
        if (numbers[pick] < 1 || numbers[pick] > maxNum_) continue;
        std::uint64_t& bits = rows_[static_cast<std::size_t>(numbers[pick])].bits[word];
        before |= bits & bit;
        bits |= bit;
    }
    const int extra = numbers[extraPlace];
    if (extra >= 0 && extra <= largestField) {
        extraRows_[static_cast<std::size_t>(extra)].bits[word] |= bit;
    }
    if (before == 0) return;
    repeatingRows_.push_back(draw + 1);
    Draw& repeating = repeatingDraws_.emplace_back();
    std::copy_n(numbers, picks_, repeating.begin());
}

bool DrawIndex::Covers(const std::int16_t* numbers) const {
    std::array<std::uint64_t, 2> seen{};
    for (int pick = 0; pick < picks_; ++pick) {
        if (numbers[pick] < 1 || numbers[pick] > maxNum_) return false;
        const auto number = static_cast<unsigned>(numbers[pick]);
        const std::uint64_t bit = std::uint64_t{1} << (number % 64);
        if ((seen[number / 64] & bit) != 0) return false;
        seen[number / 64] |= bit;
    }
    return true;
}

bool DrawIndex::AnyDrawMatches(const std::int16_t* numbers, long long matches) const {
    if (matches <= 0) return drawCount_ > 0;
    if (matches > picks_) return false;
    BitRows rows{};
    for (int pick = 0; pick < picks_; ++pick) {
        const auto place = static_cast<std::size_t>(pick);
        rows[place] = rows_[static_cast<std::size_t>(numbers[pick])].bits.data();
    }
    const int usedWords = (drawCount_ + 127) / 128 * 2;
    const auto anyMatch = anyMatchByPicks[static_cast<std::size_t>(picks_) - 1];
    return anyMatch(rows, usedWords, static_cast<int>(matches)) ||
           AnyRepeatingDrawMatches(numbers, matches);
}

// The rows of bits count a number that a draw holds twice once only, so these draws are compared
// pair by pair.
bool DrawIndex::AnyRepeatingDrawMatches(const std::int16_t* numbers, long long matches) const {
    return std::any_of(repeatingDraws_.begin(), repeatingDraws_.end(), [&](const Draw& draw) {
        long long equal = 0;
        for (int pick = 0; pick < picks_; ++pick) {
            equal += std::count(draw.begin(), draw.begin() + picks_, numbers[pick]);
        }
        return equal >= matches;
    });
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/match_bits.h"

#include <bit>
#include <cstring>
#include <utility>

#include "core/wide_registers.h"

struct MatchBits::Kernel {
    static constexpr std::size_t wordsAtOnce = sizeof(Words) / sizeof(std::uint64_t);
    static constexpr std::size_t step = 4 * wordsAtOnce;
    static_assert(DrawIndex::words % step == 0);

    // How many of its numbers each of 256 draws has: a sum of three bits, as the draw index makes
    // it too.
    struct Sum {
        Words ones{};
        Words twos{};
        Words fours{};
    };

    using Sums = std::array<Sum, 4>;
    using Draws = std::array<Words, 4>;

    INLINED static void Load(const std::uint64_t* from, Words& words) {
        std::memcpy(&words, from, sizeof words);
    }

    INLINED static void AddNumber(const std::uint64_t* row, Sum& sum) {
        Words draws;
        Load(row, draws);
        const Words carry = sum.ones & draws;
        sum.ones ^= draws;
        sum.fours |= sum.twos & carry;
        sum.twos ^= carry;
    }

    // The draws with so many matches.
    template <std::size_t Matches>
    INLINED static void Equal(const Sum& sum, Words& draws) {
        draws = (Matches & 1U) != 0 ? sum.ones : ~sum.ones;
        draws &= (Matches & 2U) != 0 ? sum.twos : ~sum.twos;
        draws &= (Matches & 4U) != 0 ? sum.fours : ~sum.fours;
    }

    // Adds two to `sum`; what is carried over stands in `carry`.
    INLINED static void AddTwo(Words& sum, const Words& one, const Words& two, Words& carry) {
        const Words either = one ^ two;
        carry = (one & two) | (sum & either);
        sum ^= either;
    }

    // Counts the bits of each byte, and leaves nothing of use in `bits`.
    INLINED static void AddBitsOfBytes(Words& bits, Words& bytes) {
        bits -= (bits >> 1) & 0x5555555555555555U;
        bits = (bits & 0x3333333333333333U) + ((bits >> 2) & 0x3333333333333333U);
        bytes += (bits + (bits >> 4)) & 0x0F0F0F0F0F0F0F0FU;
    }

    INLINED static void AddFour(const Draws& draws, Counter& counter) {
        Words first;
        Words second;
        Words fours;
        AddTwo(counter.ones, draws[0], draws[1], first);
        AddTwo(counter.ones, draws[2], draws[3], second);
        AddTwo(counter.twos, first, second, fours);
        AddBitsOfBytes(fours, counter.bytes);
    }

    // Bytes hold no more than the bits of 31 words.
    INLINED static void EmptyBytes(Counter& counter) {
        constexpr std::uint64_t everyOther = 0x00FF00FF00FF00FFU;
        counter.fours += (counter.bytes & everyOther) + ((counter.bytes >> 8) & everyOther);
        counter.bytes = Words{};
    }

    template <std::size_t Matches>
    INLINED static void AddAll(const Sums& sums, Counters& counters) {
        Draws draws;
        for (std::size_t part = 0; part < 4; ++part) Equal<Matches>(sums[part], draws[part]);
        AddFour(draws, counters[Matches]);
    }

    template <std::size_t Matches>
    INLINED static void AddHits(const Sums& sums, const Draws& hits, Counters& counters) {
        Draws draws;
        for (std::size_t part = 0; part < 4; ++part) {
            Equal<Matches>(sums[part], draws[part]);
            draws[part] &= hits[part];
        }
        AddFour(draws, counters[Matches]);
    }

    // Four matches with a ball come so seldom that most steps have none of them to add.
    template <std::size_t Matches>
    INLINED static void AddHitsIf(bool fourOrMore, const Sums& sums, const Draws& hits,
                                  Counters& counters) {
        if (Matches < 4 || fourOrMore) AddHits<Matches>(sums, hits, counters);
    }

    INLINED static bool AnyHasFour(const Sums& sums, const Draws& hits) {
        Words found = sums[0].fours & hits[0];
        for (std::size_t part = 1; part < 4; ++part) found |= sums[part].fours & hits[part];
        return (found[0] | found[1] | found[2] | found[3]) != 0;
    }

    // The draws that have one of the balls.
    INLINED static void Join(const Rows& balls, std::size_t word, Draws& hits) {
        hits = {};
        for (const std::uint64_t* row : balls) {
            if (row == nullptr) break;
            for (std::size_t part = 0; part < 4; ++part) {
                Words draws;
                Load(row + word + part * wordsAtOnce, draws);
                hits[part] |= draws;
            }
        }
    }

    template <std::size_t... Pick>
    INLINED static void AddStep(MatchBits& bits, const Line& line, std::size_t word,
                                std::index_sequence<Pick...>) {
        Sums sums{};
        for (std::size_t part = 0; part < 4; ++part) {
            (AddNumber(line.numbers[Pick] + word + part * wordsAtOnce, sums[part]), ...);
        }
        (AddAll<Pick + 1>(sums, bits.all_), ...);
        if (line.balls.front() == nullptr) return;
        Draws hits;
        Join(line.balls, word, hits);
        AddHits<0>(sums, hits, bits.hits_);
        const bool fourOrMore = AnyHasFour(sums, hits);
        (AddHitsIf<Pick + 1>(fourOrMore, sums, hits, bits.hits_), ...);
    }

    template <std::size_t Picks>
    IN_WIDE_REGISTERS_TOO static void AddLine(MatchBits& bits, const Line& line) {
        for (std::size_t word = 0; word < DrawIndex::words; word += step) {
            AddStep(bits, line, word, std::make_index_sequence<Picks>{});
        }
        for (std::size_t matches = 0; matches <= Picks; ++matches) {
            EmptyBytes(bits.all_[matches]);
            EmptyBytes(bits.hits_[matches]);
        }
    }
};

void MatchBits::Add(const Line& line, int picks) {
    constexpr std::array addLine{Kernel::AddLine<1>, Kernel::AddLine<2>, Kernel::AddLine<3>,
                                 Kernel::AddLine<4>, Kernel::AddLine<5>, Kernel::AddLine<6>,
                                 Kernel::AddLine<7>};
    addLine.at(static_cast<std::size_t>(picks) - 1)(*this, line);
}

MatchBits::ByMatches MatchBits::Sums(const Counters& counters) {
    ByMatches sums{};
    int* sum = sums.data();
    for (const Counter& counter : counters) {
        for (std::size_t word = 0; word < Kernel::wordsAtOnce; ++word) {
            *sum += std::popcount(counter.ones[word]) + 2 * std::popcount(counter.twos[word]);
            for (unsigned lane = 0; lane < 64; lane += 16) {
                *sum += 4 * static_cast<int>(counter.fours[word] >> lane & 0xFFFFU);
            }
        }
        ++sum;
    }
    return sums;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/lucky_dip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "core/failure.h"
#include "tests/core/lines_support.h"
#include "tests/play/random_support.h"

namespace {

std::vector<Row> Play(State& state, std::uint64_t seed, int lineCount) {
    Random random = Seeded(seed);
    lucky_dip::PlayLotto(state, random, lineCount);
    return LinesOf(state, 8);
}

// The random fill as it is defined, one swap after the other.
void PlayStepByStep(State& state, Random& random, int lineCount) {
    for (int number = 1; number <= state.MaxNum; ++number) {
        state.Pool(number) = static_cast<std::int16_t>(number);
    }
    for (int row = 1; row <= lineCount; ++row) {
        for (int place = 1; place <= state.MaxNum; ++place) {
            const int other = static_cast<int>(state.MaxNum * random.Next()) + 1;
            std::swap(state.Pool(place), state.Pool(other));
        }
        for (int pick = 1; pick <= state.Picks; ++pick) {
            state.Lines(row, pick) = state.Pool(pick);
        }
        if (state.MaxPball > 0) {
            const int ball = static_cast<int>(state.MaxPball * random.Next()) + 1;
            state.Lines(row, 8) = static_cast<std::int16_t>(ball);
        }
    }
    state.Lines(lineCount + 1, 1) = 0;
    for (int row = 1; row <= lineCount; ++row) {
        std::int16_t* numbers = state.Lines.Row(row) + 1;
        std::sort(numbers, numbers + state.Picks);
    }
}

TEST(LuckyDip, MakesTheLinesOfTheDefinedStepsFromTheSameNumbers) {
    for (int picks = 0; picks <= 7; ++picks) {
        for (const int maxNum : {7, 34, 49, 60, 120}) {
            const auto fast = Lottery(picks, maxNum);
            fast->MaxPball = picks % 2 * 14;
            const auto plain = std::make_unique<State>(*fast);
            Random fastRandom = Seeded(11);
            Random plainRandom = Seeded(11);
            lucky_dip::PlayLotto(*fast, fastRandom, 30);
            PlayStepByStep(*plain, plainRandom, 30);
            EXPECT_EQ(AllLines(*fast), AllLines(*plain)) << picks << " of " << maxNum;
            EXPECT_EQ(fastRandom.Next(), plainRandom.Next());
        }
    }
}

TEST(LuckyDip, NumbersOfALineAreSortedDistinctAndOfTheField) {
    const auto state = Lottery(6, 49);
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        for (const Row& line : Play(*state, seed, 10)) {
            ASSERT_GE(line.front(), 1);
            ASSERT_LE(line[5], 49);
            ASSERT_TRUE(std::is_sorted(line.begin(), line.begin() + 6));
            ASSERT_EQ(std::adjacent_find(line.begin(), line.begin() + 6), line.begin() + 6);
        }
    }
}

TEST(LuckyDip, EveryNumberComesUpAboutAsOftenAsAnyOther) {
    const auto state = Lottery(6, 49);
    std::vector<int> counts(50);
    for (std::uint64_t seed = 1; seed <= 1000; ++seed) {
        for (const Row& line : Play(*state, seed, 30)) {
            for (int pick = 0; pick < 6; ++pick) ++counts[static_cast<std::size_t>(line[pick])];
        }
    }
    const double expected = 1000.0 * 30 * 6 / 49;
    for (int number = 1; number <= 49; ++number) {
        EXPECT_NEAR(counts[static_cast<std::size_t>(number)], expected, expected * 0.1) << number;
    }
}

TEST(LuckyDip, ExtraBallCoversItsOwnRange) {
    const auto state = Lottery(5, 34);
    state->MaxPball = 14;
    std::set<int> balls;
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        for (const Row& line : Play(*state, seed, 10)) balls.insert(line[7]);
    }
    EXPECT_EQ(balls.size(), 14U);
    EXPECT_EQ(*balls.begin(), 1);
    EXPECT_EQ(*balls.rbegin(), 14);
}

TEST(LuckyDip, ExtraBallIsNotSortedAmongTheNumbers) {
    const auto state = Lottery(5, 34);
    state->MaxPball = 1;
    for (const Row& line : Play(*state, 5, 30)) {
        EXPECT_EQ(line[5], 0);
        EXPECT_EQ(line[6], 0);
        EXPECT_EQ(line[7], 1);
    }
}

TEST(LuckyDip, ColumnEightStaysEmptyWithoutAnExtraBall) {
    const auto state = Lottery(6, 49);
    state->HasPball = 1;
    for (const Row& line : Play(*state, 5, 30)) EXPECT_EQ(line[7], 0);
}

TEST(LuckyDip, ShorterResultEndsAboveTheStaleRowsOfALongerOne) {
    const auto state = Lottery(6, 49);
    Play(*state, 1, 30);
    const int stale = state->Lines(7, 1);
    EXPECT_EQ(Play(*state, 2, 5).size(), 5U);
    EXPECT_EQ(state->Lines(6, 1), 0);
    EXPECT_NE(state->Lines(6, 2), 0);
    EXPECT_EQ(state->Lines(7, 1), stale);
}

TEST(LuckyDip, EqualLinesMayOccurInASmallField) {
    const auto state = Lottery(4, 4);
    EXPECT_EQ(Play(*state, 1, 3), (std::vector<Row>(3, Row{1, 2, 3, 4, 0, 0, 0, 0})));
}

TEST(LuckyDip, EachLineShufflesTheOrderTheLastOneLeft) {
    const auto state = Lottery(6, 49);
    Random random = Seeded(3);
    lucky_dip::PlayLotto(*state, random, 1);
    Row pool(state->Pool.Data() + 1, state->Pool.Data() + 50);
    EXPECT_FALSE(std::is_sorted(pool.begin(), pool.end()));
    std::sort(pool.begin(), pool.end());
    for (int number = 1; number <= 49; ++number) {
        EXPECT_EQ(pool[static_cast<std::size_t>(number - 1)], number);
    }
}

TEST(LuckyDip, FieldOf120IsTheLargest) {
    EXPECT_EQ(Play(*Lottery(6, 120), 1, 5).size(), 5U);
    EXPECT_THROW(Play(*Lottery(6, 121), 1, 5), Failure);
}

TEST(LuckyDip, MakesUpTo179Lines) {
    EXPECT_EQ(Play(*Lottery(6, 49), 1, 179).size(), 179U);
    EXPECT_THROW(Play(*Lottery(6, 49), 1, 180), Failure);
}

}  // namespace

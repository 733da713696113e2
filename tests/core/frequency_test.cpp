// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/frequency.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <vector>

#include "core/draw_database.h"
#include "core/memory_folder.h"
#include "core/random.h"
#include "tests/core/failures.h"
#include "tests/support/real_histories.h"

namespace {

using Pool = List<std::int16_t, 121>;

std::unique_ptr<State> LotteryOf(int picks, int maxNum,
                                 const std::vector<std::vector<int>>& draws = {}) {
    auto state = std::make_unique<State>();
    state->DbaseFile = "dbase1.txt";
    state->Picks = picks;
    state->MaxNum = maxNum;
    int row = 1;
    for (const auto& draw : draws) {
        for (std::size_t i = 0; i < draw.size(); ++i) {
            state->Draws(row, static_cast<int>(i) + 1) = static_cast<std::int16_t>(draw[i]);
        }
        ++row;
    }
    return state;
}

Counts CountsOf(std::initializer_list<int> values) {
    Counts counts("counts");
    int number = 1;
    for (const int value : values) counts(number++) = static_cast<std::int16_t>(value);
    return counts;
}

std::vector<int> ListOf(const Counts& counts, int highest) {
    std::vector<int> values;
    for (int number = 1; number <= highest; ++number) values.push_back(counts(number));
    return values;
}

std::vector<int> Ranked(Counts counts, int highest) {
    Pool pool("pool");
    GetHotNumbers(counts, highest, pool);
    std::vector<int> numbers;
    for (int place = 1; place <= highest; ++place) numbers.push_back(pool(place));
    return numbers;
}

void ExpectSame(const Counts& one, const Counts& other, const std::string& where) {
    for (int number = 0; number <= 70; ++number) {
        ASSERT_EQ(one(number), other(number)) << where << ", number " << number;
    }
}

void ExpectSame(const Pool& one, const Pool& other, const std::string& where) {
    for (int place = 0; place <= 120; ++place) {
        ASSERT_EQ(one(place), other(place)) << where << ", place " << place;
    }
}

/// Both ways to rank give the same pool and leave the same counts, hot and cold.
void ExpectSameRanking(const Counts& counts, int highest, const std::string& where) {
    for (const bool cold : {false, true}) {
        Counts fast = counts;
        if (cold) ReverseCounts(fast, highest);
        Counts slow = fast;
        Pool fastPool("fast");
        fastPool.Fill(-7);
        Pool slowPool = fastPool;
        GetHotNumbers(fast, highest, fastPool);
        plain::GetHotNumbers(slow, highest, slowPool);
        ExpectSame(fastPool, slowPool, where);
        ExpectSame(fast, slow, where);
    }
}

void ExpectAsPlain(const State& state, const std::string& where) {
    NumberCounts fast;
    NumberCounts slow;
    CountNumbers(state, fast);
    plain::CountNumbers(state, slow);
    ExpectSame(fast.MainCount, slow.MainCount, where);
    ExpectSame(fast.ExtraCount, slow.ExtraCount, where);
    ExpectSameRanking(fast.MainCount, state.MaxNum, where);
    if (state.MaxPball > 0) ExpectSameRanking(fast.ExtraCount, state.MaxPball, where);
}

TEST(Count, TakesTheColumnsOfALineIntoTheMainNumbers) {
    const auto state = LotteryOf(3, 9, {{1, 2, 3}, {3, 2, 9}});
    NumberCounts counts;
    CountNumbers(*state, counts);
    EXPECT_EQ(ListOf(counts.MainCount, 9), (std::vector<int>{1, 2, 2, 0, 0, 0, 0, 0, 1}));
}

TEST(Count, NeverTakesABonusBallForAMainNumber) {
    const auto state = LotteryOf(2, 9, {{1, 2, 0, 0, 0, 0, 0, 5}, {1, 3, 0, 0, 0, 0, 0, 5}});
    NumberCounts counts;
    CountNumbers(*state, counts);
    EXPECT_EQ(ListOf(counts.MainCount, 5), (std::vector<int>{2, 1, 1, 0, 0}));
    EXPECT_EQ(ListOf(counts.ExtraCount, 5), (std::vector<int>{0, 0, 0, 0, 2}));
}

TEST(Count, LeavesOutWhatStandsBeyondTheColumnsOfALine) {
    const auto state = LotteryOf(4, 49, {{1, 2, 3, 4, 5, 6}});
    NumberCounts counts;
    CountNumbers(*state, counts);
    EXPECT_EQ(ListOf(counts.MainCount, 6), (std::vector<int>{1, 1, 1, 1, 0, 0}));
}

TEST(Count, EndsAtTheFirstRowWhoseColumnOneIsBelowOne) {
    for (const int mark : {0, -3}) {
        const auto state = LotteryOf(2, 9, {{1, 2}, {mark, 7}, {4, 5}});
        NumberCounts counts;
        CountNumbers(*state, counts);
        EXPECT_EQ(ListOf(counts.MainCount, 9), (std::vector<int>{1, 1, 0, 0, 0, 0, 0, 0, 0}));
    }
}

TEST(Count, OfALotteryWithoutDrawsIsZeroThroughout) {
    const auto state = LotteryOf(6, 49);
    NumberCounts counts;
    counts.MainCount.Fill(9);
    counts.ExtraCount.Fill(9);
    CountNumbers(*state, counts);
    EXPECT_EQ(ListOf(counts.MainCount, 70), std::vector<int>(70, 0));
    EXPECT_EQ(ListOf(counts.ExtraCount, 70), std::vector<int>(70, 0));
}

TEST(Count, CountsSeventyAsTheHighestNumber) {
    const auto state = LotteryOf(1, 70, {{70, 0, 0, 0, 0, 0, 0, 70}});
    NumberCounts counts;
    CountNumbers(*state, counts);
    EXPECT_EQ(counts.MainCount(70), 1);
    EXPECT_EQ(counts.ExtraCount(70), 1);
}

TEST(Count, RefusesANumberAboveSeventyAndSaysWhereItStands) {
    for (const int number : {71, 127, 128, 198, 32767}) {
        const auto state = LotteryOf(2, 70, {{1, 2}, {3, number}});
        NumberCounts counts;
        EXPECT_EQ(FailureOf([&] { CountNumbers(*state, counts); }),
                  "dbase1.txt, line 5: expected numbers from 0 to 70, but " +
                      std::to_string(number) + " stands there");
    }
}

TEST(Count, RefusesANumberBelowZero) {
    const auto state = LotteryOf(2, 49, {{1, -1}});
    NumberCounts counts;
    EXPECT_EQ(FailureOf([&] { CountNumbers(*state, counts); }),
              "dbase1.txt, line 4: expected numbers from 0 to 70, but -1 stands there");
}

TEST(Count, RefusesAnExtraBallAboveSeventy) {
    const auto state = LotteryOf(2, 49, {{1, 2, 0, 0, 0, 0, 0, 71}});
    NumberCounts counts;
    EXPECT_EQ(FailureOf([&] { CountNumbers(*state, counts); }),
              "dbase1.txt, line 4: expected numbers from 0 to 70, but 71 stands there");
}

TEST(Count, TakesTwoThousandNineHundredNinetyNineDrawsAndRefusesAFullTable) {
    const auto state = LotteryOf(1, 49);
    for (int row = 1; row <= 2999; ++row) state->Draws(row, 1) = 7;
    NumberCounts counts;
    CountNumbers(*state, counts);
    EXPECT_EQ(counts.MainCount(7), 2999);
    state->Draws(3000, 1) = 7;
    EXPECT_EQ(FailureOf([&] { CountNumbers(*state, counts); }),
              "The table of draws was asked for row 3001, column 1; its last row is 3000, its last "
              "column 8.");
}

TEST(Count, HoldsTheCountOfAFullHistoryOfOneNumber) {
    const auto state = LotteryOf(7, 49);
    for (int row = 1; row <= 2999; ++row) {
        for (int column = 1; column <= 8; ++column) state->Draws(row, column) = 7;
    }
    NumberCounts counts;
    CountNumbers(*state, counts);
    EXPECT_EQ(counts.MainCount(7), 7 * 2999);
    EXPECT_EQ(counts.ExtraCount(7), 2999);
}

TEST(Count, TakesColumnEightTooWhereALineHasEightNumbersAndRefusesNine) {
    const auto state = LotteryOf(8, 49, {{1, 2, 3, 4, 5, 6, 7, 8}});
    NumberCounts counts;
    CountNumbers(*state, counts);
    EXPECT_EQ(ListOf(counts.MainCount, 9), (std::vector<int>{1, 1, 1, 1, 1, 1, 1, 1, 0}));
    state->Picks = 9;
    EXPECT_EQ(FailureOf([&] { CountNumbers(*state, counts); }),
              "The table of draws was asked for row 1, column 9; its last row is 3000, its last "
              "column 8.");
}

TEST(Ranking, PutsTheMostDrawnNumberFirst) {
    EXPECT_EQ(Ranked(CountsOf({3, 9, 5, 1}), 4), (std::vector<int>{2, 3, 1, 4}));
}

TEST(Ranking, PutsTheLowerOfTwoNumbersThatTieFirstInHotAndInCold) {
    Counts counts = CountsOf({4, 7, 7, 4, 9});
    EXPECT_EQ(Ranked(counts, 5), (std::vector<int>{5, 2, 3, 1, 4}));
    ReverseCounts(counts, 5);
    EXPECT_EQ(Ranked(counts, 5), (std::vector<int>{1, 4, 2, 3, 5}));
}

TEST(Ranking, PutsTheTenLowestOfElevenHottestNumbersFirst) {
    Counts counts = CountsOf({1, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 1});
    const std::vector<int> ranked = Ranked(counts, 13);
    EXPECT_EQ(std::vector<int>(ranked.begin(), ranked.begin() + 10),
              (std::vector<int>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

TEST(Ranking, RepeatsTheLowestNumberWithoutACountInItsTail) {
    EXPECT_EQ(Ranked(CountsOf({2, 0, 3, 0, 1, 0}), 6), (std::vector<int>{3, 1, 5, 2, 2, 2}));
}

TEST(Ranking, OfNoDrawsHoldsTheNumberOneInEveryPlace) {
    EXPECT_EQ(Ranked(CountsOf({}), 12), std::vector<int>(12, 1));
}

TEST(Ranking, MarksTheNumbersTakenByNegatingTheirCounts) {
    Counts counts = CountsOf({2, 0, 3});
    Pool pool("pool");
    GetHotNumbers(counts, 3, pool);
    EXPECT_EQ(ListOf(counts, 3), (std::vector<int>{-2, 0, -3}));
}

TEST(Ranking, ClearsThePoolUpToItsLengthAndNoFurther) {
    Counts counts = CountsOf({1, 2});
    Pool pool("pool");
    pool.Fill(44);
    GetHotNumbers(counts, 2, pool);
    EXPECT_EQ(pool(0), 0);
    EXPECT_EQ(pool(1), 2);
    EXPECT_EQ(pool(2), 1);
    EXPECT_EQ(pool(3), 44);
}

TEST(Ranking, OfNoNumbersTouchesNoMoreThanEntryZeroOfThePool) {
    const std::vector<std::pair<int, int>> entryZero = {{0, 0}, {-1, 44}};
    for (const auto& [highest, expected] : entryZero) {
        Counts counts = CountsOf({1, 2});
        Pool pool("pool");
        pool.Fill(44);
        GetHotNumbers(counts, highest, pool);
        EXPECT_EQ(pool(0), expected) << highest;
        EXPECT_EQ(pool(1), 44) << highest;
        EXPECT_EQ(ListOf(counts, 2), (std::vector<int>{1, 2})) << highest;
    }
}

TEST(Ranking, RefusesMoreThanSeventyNumbers) {
    Counts counts = CountsOf({1, 2});
    Pool pool("pool");
    EXPECT_EQ(FailureOf([&] { GetHotNumbers(counts, 71, pool); }),
              "The list of counts was asked for entry 71; its last entry is 70.");
}

TEST(Ranking, TakesTheSameNumberAgainAndAgainOnceAllOfAShortFieldAreTaken) {
    Counts counts = CountsOf({3, 5, 4});
    std::vector<int> taken;
    for (int i = 0; i < 7; ++i) taken.push_back(TakeHottest(counts, 3));
    EXPECT_EQ(taken, (std::vector<int>{2, 3, 1, 1, 1, 1, 1}));
}

TEST(ColdReversal, GivesEachNumberItsDistanceFromTheHottest) {
    Counts counts = CountsOf({4, 9, 0, 9, 6});
    ReverseCounts(counts, 5);
    EXPECT_EQ(ListOf(counts, 5), (std::vector<int>{5, 0, 9, 0, 3}));
}

TEST(ColdReversal, LeavesTheNumbersAboveTheFieldAlone) {
    Counts counts = CountsOf({4, 9, 5, 50});
    ReverseCounts(counts, 3);
    EXPECT_EQ(ListOf(counts, 4), (std::vector<int>{5, 0, 4, 50}));
}

TEST(ColdReversal, MakesTheTailOfARankingRepeatTheLowestOfTheHottest) {
    Counts counts = CountsOf({2, 7, 7, 1, 7});
    ReverseCounts(counts, 5);
    EXPECT_EQ(Ranked(counts, 5), (std::vector<int>{4, 1, 2, 2, 2}));
}

TEST(ColdReversal, OfNoNumbersChangesNothing) {
    Counts counts = CountsOf({2, 7});
    ReverseCounts(counts, 0);
    EXPECT_EQ(ListOf(counts, 2), (std::vector<int>{2, 7}));
}

TEST(TenNumbers, AreJoinedByCommaAndBlank) {
    EXPECT_EQ(TenNumbersText({7, 23, 38, 1, 2, 3, 4, 5, 6, 49}), "7, 23, 38, 1, 2, 3, 4, 5, 6, 49");
}

TEST(FastCountAndRanking, AreThePlainOnesOnRandomHistories) {
    Random random([] { return std::uint64_t{0}; });
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        random.Reset(seed);
        const int maxNum = random.OneTo(70);
        const auto state = LotteryOf(random.OneTo(7), maxNum);
        state->MaxPball = random.OneTo(3) == 1 ? 0 : random.OneTo(70);
        const int draws = seed % 10 == 0 ? 0 : random.OneTo(seed % 3 == 0 ? 2999 : 30);
        // Few different numbers in some histories, so that many tie and many never came up.
        const int field = random.OneTo(maxNum);
        for (int row = 1; row <= draws; ++row) {
            for (int column = 1; column <= state->Picks; ++column) {
                state->Draws(row, column) = static_cast<std::int16_t>(random.OneTo(field));
            }
            state->Draws(row, 8) = static_cast<std::int16_t>(random.OneTo(70));
        }
        ExpectAsPlain(*state, "seed " + std::to_string(seed));
    }
}

TEST(FastCountAndRanking, AreThePlainOnesOnCountsThatTieAndThatAreNegative) {
    Random random([] { return std::uint64_t{0}; });
    for (std::uint64_t seed = 1; seed <= 500; ++seed) {
        random.Reset(seed);
        Counts counts("counts");
        const int highest = random.OneTo(70);
        const int spread = random.OneTo(40);
        const int lowest = seed % 4 == 0 ? -random.OneTo(20) : 0;
        for (int number = 1; number <= 70; ++number) {
            counts(number) = static_cast<std::int16_t>(lowest + random.OneTo(spread) - 1);
        }
        ExpectSameRanking(counts, highest, "seed " + std::to_string(seed));
    }
}

TEST(FastCountAndRanking, AreThePlainOnesOnRealHistories) {
    MemoryFolder folder;
    if (!AddRealHistories(folder)) GTEST_SKIP() << "no folder of real histories";
    const auto state = std::make_unique<State>();
    const auto names = ListDatabases(*state, folder);
    ASSERT_EQ(names.size(), 8U);
    for (std::size_t index = 0; index < names.size(); ++index) {
        LoadDatabase(*state, folder, static_cast<std::int16_t>(index));
        ExpectAsPlain(*state, names[index]);
    }
}

}  // namespace

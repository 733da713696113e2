// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/averages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "core/draws.h"
#include "core/filters.h"
#include "core/generator.h"
#include "tests/core/failures.h"
#include "tests/core/lines_support.h"
#include "tests/play/random_support.h"
#include "tests/support/each_real_history.h"

namespace {

using averages::Analyse;
using averages::CheckDuplicate;
using averages::PlayLotto;

Row Averages(const State& state) { return {state.Pool.Data() + 1, state.Pool.Data() + 9}; }

void SetAverages(State& state, const Row& numbers) {
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        state.Pool(static_cast<int>(i) + 1) = static_cast<std::int16_t>(numbers[i]);
    }
}

std::vector<Row> Play(State& state, std::uint64_t seed, int lineCount) {
    Random random = Seeded(seed);
    PlayLotto(state, random, lineCount);
    return LinesOf(state, state.Picks);
}

// What choosing a lottery does with the draws that it loads.
Row Chosen(State& state) {
    SortDraws(state, state.Picks);
    Analyse(state);
    return Averages(state);
}

TEST(Averages, AreThoseOfEachColumnWithoutTheirFraction) {
    const auto state = Lottery(6, 49);
    FillRows(state->Draws, {{1, 10, 20, 30, 40, 41, 0, 9}, {4, 11, 23, 30, 45, 49, 0, 2}});
    Analyse(*state);
    EXPECT_EQ(Averages(*state), (Row{2, 10, 21, 30, 42, 45, 0, 5}));
}

TEST(Averages, AreTakenOfTheSortedDraws) {
    const auto state = Lottery(6, 49);
    FillRows(state->Draws, {{30, 7, 44, 11, 49, 5, 0, 25}, {1, 2, 3, 4, 5, 6, 0, 26}});
    EXPECT_EQ(Chosen(*state), (Row{3, 4, 7, 17, 24, 27, 0, 25}));
}

TEST(Averages, OfColumnsBehindThePicksAreTakenTooButSortingLeavesThem) {
    const auto state = Lottery(4, 49);
    FillRows(state->Draws, {{40, 30, 20, 10, 9, 5}});
    EXPECT_EQ(Chosen(*state), (Row{10, 20, 30, 40, 9, 5, 0, 0}));
}

TEST(Averages, LeaveThePoolBehindThem) {
    const auto state = Lottery(6, 49);
    state->Pool.Fill(77);
    FillRows(state->Draws, {{1, 2, 3, 4, 5, 6}});
    Analyse(*state);
    EXPECT_EQ(state->Pool(0), 77);
    EXPECT_EQ(state->Pool(9), 77);
}

TEST(Averages, WithoutDrawsAreZero) {
    const auto state = Lottery(6, 49);
    state->Pool.Fill(77);
    EXPECT_EQ(Chosen(*state), Row(8, 0));
}

TEST(Averages, CountTheFirstDrawWhateverItHolds) {
    const auto state = Lottery(4, 49);
    FillRows(state->Draws, {{0, 6, 8, 10}, {10, 20, 30, 40}});
    EXPECT_EQ(Chosen(*state), (Row{5, 13, 19, 25, 0, 0, 0, 0}));
}

TEST(Averages, CountTheFirstDrawAndNoMoreWhereTheSecondIsEmpty) {
    const auto state = Lottery(4, 49);
    FillRows(state->Draws, {{0, 6, 8, 10}, {0}, {10, 20, 30, 40}});
    EXPECT_EQ(Chosen(*state), (Row{0, 6, 8, 10, 0, 0, 0, 0}));
}

TEST(Averages, EndAtADrawWithAnEmptyFieldThoughTheDrawsBehindItAreSorted) {
    const auto state = Lottery(4, 49);
    FillRows(state->Draws, {{4, 3, 2, 1}, {7, 6, 0, 5}, {9, 8, 7, 6}});
    EXPECT_EQ(Chosen(*state), (Row{1, 2, 3, 4, 0, 0, 0, 0}));
    EXPECT_EQ(state->Draws(3, 1), 6);
}

TEST(Averages, LetTheTestOfPreviousDrawsEndAtADrawWithAnEmptyField) {
    const auto state = Lottery(4, 49);
    FillRows(state->Draws, {{4, 3, 2, 1}, {7, 6, 0, 5}, {9, 8, 7, 6}});
    FillRows(state->Lines, {{6, 7, 8, 9}});
    EXPECT_EQ(HistoryOK(*state, true), 0);
    Chosen(*state);
    EXPECT_EQ(HistoryOK(*state, true), -1);
}

TEST(Averages, OfNegativeSumsDropTheFractionTowardsZero) {
    const auto state = Lottery(1, 49);
    FillRows(state->Draws, {{-3}, {-4}});
    Analyse(*state);
    EXPECT_EQ(state->Pool(1), -3);
}

TEST(Averages, OfTheLargestNumbersAreExact) {
    const auto state = Lottery(1, 32767);
    for (int row = 1; row <= 2999; ++row) state->Draws(row, 1) = 32767;
    Analyse(*state);
    EXPECT_EQ(state->Pool(1), 32767);
}

TEST(Averages, OfThreeThousandDrawsEndWithAReport) {
    const auto state = Lottery(1, 49);
    for (int row = 1; row <= 3000; ++row) state->Draws(row, 1) = 1;
    const std::string report =
        "The table of draws was asked for row 3001, column 1; its last row is 3000, its last "
        "column 8.";
    EXPECT_EQ(FailureOf([&] { SortDraws(*state, 1); }), report);
    EXPECT_EQ(FailureOf([&] { Analyse(*state); }), report);
}

TEST(AverageLines, HoldTheAverageOfEachColumnOneLessOrOneMoreEquallyOften) {
    const auto state = Lottery(6, 49);
    const Row center{7, 14, 21, 28, 35, 42};
    SetAverages(*state, center);
    std::map<int, int> times;
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        for (const Row& line : Play(*state, seed, 30)) {
            for (const int number : line) ++times[number];
        }
    }
    EXPECT_EQ(times.size(), 18U);
    for (const int number : center) {
        for (const int off : {-1, 0, 1}) EXPECT_NEAR(times[number + off], 3000, 200) << number;
    }
}

TEST(AverageLines, DoNotFallBelowOne) {
    const auto state = Lottery(3, 49);
    SetAverages(*state, {1, 0, -5});
    std::set<int> first;
    for (std::uint64_t seed = 1; seed <= 30; ++seed) {
        for (const Row& line : Play(*state, seed, 30)) {
            first.insert(line[0]);
            EXPECT_EQ(line[1], 1);
            EXPECT_EQ(line[2], 1);
        }
    }
    EXPECT_EQ(first, (std::set<int>{1, 2}));
}

TEST(AverageLines, DoNotRiseAboveTheHighestNumber) {
    const auto state = Lottery(3, 49);
    SetAverages(*state, {49, 48, 60});
    std::set<int> first;
    std::set<int> second;
    for (std::uint64_t seed = 1; seed <= 30; ++seed) {
        for (const Row& line : Play(*state, seed, 30)) {
            first.insert(line[0]);
            second.insert(line[1]);
            EXPECT_EQ(line[2], 49);
        }
    }
    EXPECT_EQ(first, (std::set<int>{48, 49}));
    EXPECT_EQ(second, (std::set<int>{47, 48, 49}));
}

TEST(AverageLines, ComeForAnyHighestNumber) {
    for (const int maxNum : {1, 2, 121, 1000, 30000}) {
        const auto state = Lottery(6, maxNum);
        SetAverages(*state, Row(6, maxNum / 2));
        for (const Row& line : Play(*state, 1, 30)) {
            for (const int number : line) {
                EXPECT_GE(number, 1);
                EXPECT_LE(number, maxNum);
                EXPECT_LE(std::abs(number - maxNum / 2), 1);
            }
        }
    }
}

TEST(AverageLines, AskForTheNumbersOfALineAndThenItsOwnExtraBall) {
    const auto state = Lottery(5, 34);
    state->MaxPball = 14;
    SetAverages(*state, {5, 11, 17, 23, 29});
    Random random = Seeded(6);
    PlayLotto(*state, random, 30);
    EXPECT_EQ(NumbersTaken(random, 6), 30 * (5 + 1));
    Random same = Seeded(6);
    for (const Row& line : LinesOf(*state, 8)) {
        for (std::size_t pick = 0; pick < 5; ++pick) {
            const int off = static_cast<int>(same.Next() * 3) - 1;
            EXPECT_EQ(line[pick], 5 + 6 * static_cast<int>(pick) + off);
        }
        EXPECT_EQ(line[7], static_cast<int>(14 * same.Next()) + 1);
    }
}

TEST(AverageLines, AskForNoMoreThanTheirNumbersWithoutAnExtraBall) {
    const auto state = Lottery(6, 49);
    state->HasBonus = 1;
    Random random = Seeded(6);
    PlayLotto(*state, random, 7);
    EXPECT_EQ(NumbersTaken(random, 6), 7 * 6);
    for (const Row& line : LinesOf(*state, 8)) EXPECT_EQ(line[7], 0);
}

TEST(AverageLines, OfAnotherAttemptHaveOtherExtraBalls) {
    const auto state = Lottery(5, 34);
    state->MaxPball = 14;
    SetAverages(*state, {5, 11, 17, 23, 29});
    Random random = Seeded(6);
    std::set<int> balls;
    for (int attempt = 0; attempt < 50; ++attempt) {
        PlayLotto(*state, random, 1);
        balls.insert(state->Lines(1, 8));
    }
    EXPECT_GT(balls.size(), 8U);
}

TEST(AverageLines, LeaveTheAveragesForTheNextOnes) {
    const auto state = Lottery(5, 34);
    state->MaxPball = 14;
    const Row set{5, 11, 17, 23, 29, 1, 2, 3};
    SetAverages(*state, set);
    Play(*state, 1, 30);
    EXPECT_EQ(Averages(*state), set);
}

TEST(AverageLines, EndAboveTheStaleRowsOfMoreLines) {
    const auto state = Lottery(6, 49);
    SetAverages(*state, {7, 14, 21, 28, 35, 42});
    EXPECT_EQ(Play(*state, 1, 30).size(), 30U);
    EXPECT_EQ(Play(*state, 1, 5).size(), 5U);
    EXPECT_NE(state->Lines(7, 1), 0);
}

TEST(CheckDuplicate, RefusesEqualNumbersInNeighbouringColumns) {
    const auto state = Lottery(3, 49);
    FillRows(state->Lines, {{10, 11, 12}, {10, 11, 11}});
    EXPECT_EQ(CheckDuplicate(*state, 2), 0);
    FillRows(state->Lines, {{10, 10, 12}, {10, 11, 12}});
    EXPECT_EQ(CheckDuplicate(*state, 2), 0);
}

TEST(CheckDuplicate, AcceptsEqualNumbersFurtherApart) {
    const auto state = Lottery(3, 49);
    FillRows(state->Lines, {{11, 10, 11}});
    EXPECT_EQ(CheckDuplicate(*state, 1), -1);
}

TEST(CheckDuplicate, LooksAtTheLinesAskedForAndTheirPicksOnly) {
    const auto state = Lottery(3, 49);
    FillRows(state->Lines, {{10, 11, 12, 12, 5, 5}, {9, 9, 9}});
    EXPECT_EQ(CheckDuplicate(*state, 1), -1);
    EXPECT_EQ(CheckDuplicate(*state, 2), 0);
}

TEST(CheckDuplicate, AcceptsNoLinesAndLinesOfOneNumber) {
    const auto state = Lottery(1, 49);
    FillRows(state->Lines, {{5}, {5}});
    EXPECT_EQ(CheckDuplicate(*state, 2), -1);
    EXPECT_EQ(CheckDuplicate(*state, 0), -1);
}

class AverageGenerator : public testing::Test {
  protected:
    std::string Generate(int lineCount) {
        const auto check = [this, lineCount] { return CheckDuplicate(*state_, lineCount) != 0; };
        return GenerateLines(*state_, random_, {}, {.sortLines = true, .pruneDuplicates = true},
                             {.playLotto =
                                  [this, lineCount] {
                                      PlayLotto(*state_, random_, lineCount);
                                      now_ += secondsATry_;
                                  },
                              .paintStatus = [](const std::string&) {},
                              .showLines = [] {},
                              .seconds = [this] { return now_; },
                              .furtherCondition = check});
    }

    std::unique_ptr<State> state_ = Lottery(6, 49);
    Random random_{[seed = std::uint64_t{0}]() mutable { return ++seed; }};
    double now_ = 0;
    double secondsATry_ = 0;
};

TEST_F(AverageGenerator, TriesAgainWithNoBoxSet) {
    SetAverages(*state_, {7, 8, 21, 28, 35, 42});
    bool triedAgain = false;
    for (int run = 0; run < 20; ++run) {
        triedAgain = !Generate(5).starts_with("Tries: 1 ") || triedAgain;
        for (const Row& line : LinesOf(*state_, 6)) {
            EXPECT_EQ(std::adjacent_find(line.begin(), line.end()), line.end());
        }
    }
    EXPECT_TRUE(triedAgain);
}

TEST_F(AverageGenerator, KeepsEqualNumbersThatOnlyTheSortMakesNeighbours) {
    SetAverages(*state_, {10, 10, 10, 28, 35, 42});
    bool kept = false;
    for (int run = 0; run < 20; ++run) {
        Generate(1);
        const std::vector<Row> lines = LinesOf(*state_, 6);
        ASSERT_EQ(lines.size(), 1U);
        kept = kept || std::adjacent_find(lines[0].begin(), lines[0].end()) != lines[0].end();
    }
    EXPECT_TRUE(kept);
}

TEST_F(AverageGenerator, WithoutDrawsTriesTenSecondsForALineOfOnes) {
    Chosen(*state_);
    secondsATry_ = 0.5;
    EXPECT_EQ(Generate(5),
              "Tries: 21   Time: 10.50 sec (Some lines do not comply with conditions)");
    EXPECT_EQ(LinesOf(*state_, 6), (std::vector<Row>{Row(6, 1)}));
}

TEST_F(AverageGenerator, MayLeaveFewerLinesThanAskedFor) {
    state_->Picks = 2;
    SetAverages(*state_, {10, 20});
    Generate(30);
    const std::vector<Row> lines = LinesOf(*state_, 2);
    EXPECT_LE(lines.size(), 9U);
    EXPECT_EQ(std::set<Row>(lines.begin(), lines.end()).size(), lines.size());
}

TEST_F(AverageGenerator, StaysCloseToTheAveragesOfEachRealHistory) {
    const auto check = [&](const std::string& name) {
        std::vector<long> sums(8);
        long count = 0;
        for (int row = 1; state_->Draws(row, 1) != 0; ++row, ++count) {
            Row draw(state_->Draws.Row(row) + 1, state_->Draws.Row(row) + 1 + state_->Picks);
            std::sort(draw.begin(), draw.end());
            for (std::size_t pick = 0; pick < draw.size(); ++pick) sums[pick] += draw[pick];
        }
        Chosen(*state_);
        Generate(30);
        for (const Row& line : LinesOf(*state_, state_->Picks)) {
            for (std::size_t pick = 0; pick < line.size(); ++pick) {
                EXPECT_LE(std::abs(line[pick] - sums[pick] / count), 1) << name;
            }
        }
    };
    if (!ForEachRealHistory(*state_, check)) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace

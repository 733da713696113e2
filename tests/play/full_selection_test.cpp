// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/full_selection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "core/filters.h"
#include "core/generator.h"
#include "tests/core/failures.h"
#include "tests/core/lines_support.h"
#include "tests/play/random_support.h"
#include "tests/play/step_by_step.h"
#include "tests/support/each_real_history.h"

namespace {

using full_selection::LineCount;
using full_selection::PlayLotto;
using full_selection::UnusedNote;

std::vector<Row> Play(State& state, std::uint64_t seed, bool includeAll = true) {
    Random random = Seeded(seed);
    PlayLotto(state, random, includeAll);
    return LinesOf(state, state.Picks);
}

Row NumbersOf(const std::vector<Row>& lines) {
    Row numbers;
    for (const Row& line : lines) numbers.insert(numbers.end(), line.begin(), line.end());
    return numbers;
}

Row Pool(const State& state) { return {state.Pool.Data(), state.Pool.Data() + 121}; }

TEST(FullSelection, Of6From49IsNineLinesWithAllNumbersUsed) {
    const auto state = Lottery(6, 49);
    EXPECT_EQ(LineCount(*state, true), 9);
    EXPECT_EQ(Play(*state, 1).size(), 9U);
    EXPECT_EQ(UnusedNote(*state, true), "  All numbers used");
}

TEST(FullSelection, LastShortLineHoldsTheNumberLeftAndTheEvenPlacesOfTheShuffle) {
    const auto state = Lottery(6, 49);
    for (std::uint64_t seed = 1; seed <= 50; ++seed) {
        const std::vector<Row> lines = Play(*state, seed);
        const Row all = NumbersOf(lines);
        const std::set<int> first(all.begin(), all.begin() + 49);
        EXPECT_EQ(first.size(), 49U);
        EXPECT_EQ(lines[8], (Row{all[48], all[1], all[3], all[5], all[7], all[9]}));
    }
}

TEST(FullSelection, WithoutTheRemainderLeavesOneOf49Out) {
    const auto state = Lottery(6, 49);
    EXPECT_EQ(LineCount(*state, false), 8);
    EXPECT_EQ(UnusedNote(*state, false), "  1 numbers unused");
    for (std::uint64_t seed = 1; seed <= 50; ++seed) {
        const Row all = NumbersOf(Play(*state, seed, false));
        EXPECT_EQ(all.size(), 48U);
        EXPECT_EQ(std::set<int>(all.begin(), all.end()).size(), 48U);
    }
}

TEST(FullSelection, LeavesEveryNumberOutAboutAsOftenAsAnyOther) {
    const auto state = Lottery(6, 49);
    std::vector<int> leftOut(50);
    Random random = Seeded(8);
    for (int play = 0; play < 20000; ++play) {
        PlayLotto(*state, random, false);
        ++leftOut[static_cast<std::size_t>(state->Pool(49))];
    }
    for (std::size_t number = 1; number <= 49; ++number) {
        EXPECT_NEAR(leftOut[number], 20000 / 49, 120) << number;
    }
}

TEST(FullSelection, Of5From35IsSevenLinesInBothStates) {
    const auto state = Lottery(5, 35);
    for (const bool includeAll : {true, false}) {
        EXPECT_EQ(LineCount(*state, includeAll), 7);
        Row all = NumbersOf(Play(*state, 3, includeAll));
        std::sort(all.begin(), all.end());
        Row expected(35);
        for (std::size_t i = 0; i < 35; ++i) expected[i] = static_cast<int>(i) + 1;
        EXPECT_EQ(all, expected);
    }
    EXPECT_EQ(UnusedNote(*state, true), "  All numbers used");
    EXPECT_EQ(UnusedNote(*state, false), "  0 numbers unused");
}

TEST(FullSelection, NoteTellsTheRemainderWithTwoBlanksInFront) {
    EXPECT_EQ(UnusedNote(*Lottery(7, 27), false), "  6 numbers unused");
    EXPECT_EQ(UnusedNote(*Lottery(14, 41), false), "  13 numbers unused");
    EXPECT_EQ(UnusedNote(*Lottery(7, 3), false), "  3 numbers unused");
}

TEST(FullSelection, IsTheDealOfTheSwapsOneByOne) {
    for (int picks = 1; picks <= 7; ++picks) {
        for (const int maxNum : {1, 4, 7, 10, 19, 34, 49, 60, 110}) {
            for (const bool includeAll : {true, false}) {
                const auto fast = Lottery(picks, maxNum);
                fast->MaxPball = picks % 2 * 14;
                fast->Pool.Fill(99);
                const auto plain = std::make_unique<State>(*fast);
                Random fastRandom = Seeded(11);
                Random plainRandom = Seeded(11);
                PlayLotto(*fast, fastRandom, includeAll);
                step_by_step::PlayFullSelection(*plain, plainRandom, includeAll);
                EXPECT_EQ(AllLines(*fast), AllLines(*plain)) << picks << " of " << maxNum;
                EXPECT_EQ(Pool(*fast), Pool(*plain)) << picks << " of " << maxNum;
                EXPECT_EQ(fastRandom.Next(), plainRandom.Next());
            }
        }
    }
}

TEST(FullSelection, AsksForOneRandomNumberASwapAndOneAnExtraBall) {
    const auto state = Lottery(5, 34);
    Random random = Seeded(4);
    PlayLotto(*state, random, true);
    EXPECT_EQ(NumbersTaken(random, 4), 34);
    state->MaxPball = 14;
    random.Reset(4);
    PlayLotto(*state, random, true);
    EXPECT_EQ(NumbersTaken(random, 4), 34 + 7);
    random.Reset(4);
    PlayLotto(*state, random, false);
    EXPECT_EQ(NumbersTaken(random, 4), 34 + 6);
}

TEST(FullSelection, ExtraBallsAreRandomAndMayRepeatFromLineToLine) {
    const auto state = Lottery(5, 34);
    state->MaxPball = 14;
    std::set<int> balls;
    bool repeated = false;
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        Play(*state, seed);
        std::set<int> ofThese;
        for (const Row& line : LinesOf(*state, 8)) {
            repeated = !ofThese.insert(line[7]).second || repeated;
        }
        balls.merge(ofThese);
    }
    EXPECT_TRUE(repeated);
    EXPECT_EQ(balls.size(), 14U);
    EXPECT_EQ(*balls.begin(), 1);
    EXPECT_EQ(*balls.rbegin(), 14);
}

TEST(FullSelection, WritesNothingForABonusBall) {
    const auto state = Lottery(6, 49);
    state->HasBonus = 1;
    state->HasPball = 1;
    Play(*state, 1);
    for (const Row& line : LinesOf(*state, 8)) EXPECT_EQ(line[7], 0);
}

TEST(FullSelection, TinyLotteryGetsANumberTwiceWithinItsLastLine) {
    const auto state = Lottery(7, 10);
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        const std::vector<Row> lines = Play(*state, seed);
        ASSERT_EQ(lines.size(), 2U);
        const int eighth = lines[1][0];
        EXPECT_EQ(lines[1], (Row{eighth, lines[1][1], lines[1][2], lines[0][1], lines[0][3],
                                 lines[0][5], eighth}));
    }
}

TEST(FullSelection, OfMorePicksThanNumbersIsNoLineWithoutTheRemainder) {
    const auto state = Lottery(7, 5);
    EXPECT_EQ(LineCount(*state, false), 0);
    FillRows(state->Lines, {{1, 2, 3, 4, 5, 6, 7}});
    EXPECT_TRUE(Play(*state, 1, false).empty());
    EXPECT_EQ(Play(*state, 1, true).size(), 1U);
}

TEST(FullSelection, EndsAboveTheStaleRowsOfALongerOne) {
    const auto state = Lottery(4, 49);
    EXPECT_EQ(Play(*state, 1).size(), 13U);
    const int stale = state->Lines(12, 1);
    state->Picks = 5;
    EXPECT_EQ(Play(*state, 2).size(), 10U);
    EXPECT_EQ(state->Lines(11, 1), 0);
    EXPECT_EQ(state->Lines(12, 1), stale);
}

TEST(FullSelection, TakesAHundredAndTenNumbersAndNoMore) {
    EXPECT_EQ(Play(*Lottery(1, 110), 1).size(), 110U);
    EXPECT_EQ(Play(*Lottery(6, 110), 1).size(), 19U);
    EXPECT_EQ(FailureOf([] { Play(*Lottery(6, 111), 1); }),
              "The list of pool of numbers was asked for entry 121; its last entry is 120.");
}

TEST(FullSelection, OfALotteryThatPicksNothingEndsWithAReport) {
    const auto state = Lottery(0, 49);
    state->DbaseFile = "dbase1.txt";
    const std::string report =
        "dbase1.txt, line 3: expected how many numbers a line has, but 0 stands there";
    EXPECT_EQ(FailureOf([&] { UnusedNote(*state, false); }), report);
    EXPECT_EQ(FailureOf([&] { Play(*state, 1, true); }), report);
    EXPECT_EQ(FailureOf([&] { Play(*state, 1, false); }), report);
}

TEST(FullSelection, DoesNotLookAtTheDraws) {
    const auto state = Lottery(6, 49);
    state->Draws.Fill(1);
    EXPECT_EQ(Play(*state, 1).size(), 9U);
}

TEST(FullSelection, IsTriedUntilAllItsLinesComply) {
    const auto state = Lottery(6, 49);
    Random random([seed = std::uint64_t{0}]() mutable { return ++seed; });
    GeneratorSteps steps{.playLotto = [&] { PlayLotto(*state, random, true); },
                         .paintStatus = [](const std::string&) {},
                         .showLines = [] {},
                         .seconds = [] { return 0.0; }};
    for (int run = 0; run < 20; ++run) {
        GenerateLines(*state, random, {.oddEven = true, .highLow = true}, {.sortLines = true},
                      steps);
        const std::vector<Row> lines = LinesOf(*state, 6);
        EXPECT_EQ(lines.size(), 9U);
        EXPECT_EQ(OddEvenOK(*state, true), -1);
        EXPECT_EQ(HighLowOK(*state, true), -1);
        for (const Row& line : lines) EXPECT_TRUE(std::is_sorted(line.begin(), line.end()));
    }
}

TEST(FullSelection, PlaysEveryNumberOfEachRealLottery) {
    const auto state = std::make_unique<State>();
    const auto check = [&](const std::string& name) {
        const Row all = NumbersOf(Play(*state, 5));
        const std::set<int> numbers(all.begin(), all.end());
        EXPECT_EQ(static_cast<int>(numbers.size()), state->MaxNum) << name;
        EXPECT_EQ(*numbers.begin(), 1) << name;
        EXPECT_EQ(*numbers.rbegin(), state->MaxNum) << name;
    };
    if (!ForEachRealHistory(*state, check)) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace

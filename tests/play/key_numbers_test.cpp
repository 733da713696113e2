// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/key_numbers.h"

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

using key_numbers::PlayLotto;

std::vector<Row> Play(State& state, std::uint64_t seed, const Row& keys) {
    Random random = Seeded(seed);
    PlayLotto(state, random, keys);
    return LinesOf(state, state.Picks);
}

Row ExtraBalls(const State& state) {
    Row balls;
    for (const Row& line : LinesOf(state, 8)) balls.push_back(line[7]);
    return balls;
}

// All that was dealt around the keys, in the order of the deal.
Row Dealt(const std::vector<Row>& lines, std::size_t keyCount) {
    Row dealt;
    for (const Row& line : lines) {
        dealt.insert(dealt.end(), line.begin() + static_cast<std::ptrdiff_t>(keyCount), line.end());
    }
    return dealt;
}

const std::vector<Row> keySets{{23}, {7, 23}, {7, 23, 30}};

TEST(KeyNumbers, Of6From49MakeTenTwelveAndSixteenLines) {
    const std::vector<std::size_t> expected{10, 12, 16};
    for (std::size_t i = 0; i < keySets.size(); ++i) {
        for (std::uint64_t seed = 1; seed <= 200; ++seed) {
            EXPECT_EQ(Play(*Lottery(6, 49), seed, keySets[i]).size(), expected[i]);
        }
    }
}

TEST(KeyNumbers, StandInTheFirstColumnsOfEveryLineAndNowhereElse) {
    const auto state = Lottery(6, 49);
    for (const Row& keys : keySets) {
        for (std::uint64_t seed = 1; seed <= 50; ++seed) {
            for (const Row& line : Play(*state, seed, keys)) {
                EXPECT_TRUE(std::equal(keys.begin(), keys.end(), line.begin()));
                EXPECT_EQ(std::set<int>(line.begin(), line.end()).size(), 6U);
            }
        }
    }
}

TEST(KeyNumbers, HaveAllOtherNumbersDealtAroundThemOnceBeforeTheFirstComeAgain) {
    const auto state = Lottery(6, 49);
    for (const Row& keys : keySets) {
        const std::size_t others = 49 - keys.size();
        for (std::uint64_t seed = 1; seed <= 50; ++seed) {
            const Row dealt = Dealt(Play(*state, seed, keys), keys.size());
            ASSERT_GE(dealt.size(), others);
            std::set<int> once(dealt.begin(), dealt.begin() + static_cast<std::ptrdiff_t>(others));
            EXPECT_EQ(once.size(), others);
            for (std::size_t again = others; again < dealt.size(); ++again) {
                EXPECT_EQ(dealt[again], dealt[again - others]);
            }
        }
    }
}

// 40 others fill ten lines of four exactly.
TEST(KeyNumbers, AtTheLastPlaceOfTheShuffleLeadToTheFirstLineOnceMore) {
    const auto state = Lottery(5, 41);
    int repeated = 0;
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        const std::vector<Row> lines = Play(*state, seed, {23});
        const bool keyLast = state->Pool(41) == 23;
        ASSERT_EQ(lines.size(), keyLast ? 11U : 10U);
        if (!keyLast) continue;
        EXPECT_EQ(lines.back(), lines.front());
        ++repeated;
    }
    EXPECT_GT(repeated, 0);
    EXPECT_LT(repeated, 60);
}

TEST(KeyNumbers, AtTheLastPlacesAddNoLineWhereTheLastOneIsNotFullBefore) {
    const auto state = Lottery(6, 49);
    bool keyLast = false;
    for (std::uint64_t seed = 1; seed <= 300; ++seed) {
        EXPECT_EQ(Play(*state, seed, {23}).size(), 10U);
        keyLast = keyLast || state->Pool(49) == 23;
    }
    EXPECT_TRUE(keyLast);
}

TEST(KeyNumbers, LetTheRepeatedLineStayInTheResult) {
    const auto state = Lottery(5, 41);
    Random random([seed = std::uint64_t{0}]() mutable { return ++seed; });
    std::vector<Row> shown;
    const Row keys{23};
    GeneratorSteps steps{.playLotto = [&] { PlayLotto(*state, random, keys); },
                         .paintStatus = [](const std::string&) {},
                         .showLines = [&] { shown = LinesOf(*state, 5); },
                         .seconds = [] { return 0.0; }};
    while (shown.size() != 11) GenerateLines(*state, random, {}, {.sortLines = true}, steps);
    EXPECT_EQ(shown.back(), shown.front());
    EXPECT_TRUE(std::is_sorted(shown[0].begin(), shown[0].end()));
}

TEST(KeyNumbers, InDescendingOrderAreSkippedLikeAnyOther) {
    const auto state = Lottery(6, 49);
    for (std::uint64_t seed = 1; seed <= 50; ++seed) {
        for (const Row& line : Play(*state, seed, {40, 23, 7})) {
            EXPECT_EQ(Row(line.begin(), line.begin() + 3), (Row{40, 23, 7}));
            EXPECT_EQ(std::set<int>(line.begin(), line.end()).size(), 6U);
        }
    }
}

TEST(KeyNumbers, ThatAreEqualStandTwiceInEveryLine) {
    const auto state = Lottery(6, 49);
    const std::vector<Row> lines = Play(*state, 3, {23, 7, 23});
    EXPECT_EQ(lines.size(), 16U);
    for (const Row& line : lines) {
        EXPECT_EQ(std::count(line.begin(), line.end(), 23), 2);
        EXPECT_EQ(std::set<int>(line.begin(), line.end()).size(), 5U);
    }
}

TEST(KeyNumbers, LeastPicksAreFourAndForThreeKeysFive) {
    EXPECT_EQ(key_numbers::LeastPicks(1), 4);
    EXPECT_EQ(key_numbers::LeastPicks(2), 4);
    EXPECT_EQ(key_numbers::LeastPicks(3), 5);
}

TEST(KeyNumbers, AreDealtAroundAsByTheSwapsOneByOne) {
    for (const Row& keys : {Row{1}, Row{4}, Row{1, 2}, Row{4, 1}, Row{3, 4, 5}, Row{5, 2, 5}}) {
        for (int picks = 4; picks <= 7; ++picks) {
            for (const int maxNum : {6, 7, 10, 19, 34, 49, 60, 100}) {
                const auto fast = Lottery(picks, maxNum);
                fast->MaxPball = picks % 2 * 14;
                fast->Pool.Fill(99);
                const auto plain = std::make_unique<State>(*fast);
                Random fastRandom = Seeded(static_cast<std::uint64_t>(maxNum));
                Random plainRandom = fastRandom;
                for (int attempt = 0; attempt < 5; ++attempt) {
                    PlayLotto(*fast, fastRandom, keys);
                    step_by_step::PlayKeyNumbers(*plain, plainRandom, keys);
                    ASSERT_EQ(AllLines(*fast), AllLines(*plain)) << picks << " of " << maxNum;
                    ASSERT_TRUE(
                        std::equal(fast->Pool.Data(), fast->Pool.Data() + 121, plain->Pool.Data()));
                }
                ASSERT_EQ(fastRandom.Next(), plainRandom.Next());
            }
        }
    }
}

TEST(KeyNumbers, AskForARandomNumberAtEverySecondPlaceAndForEachExtraBall) {
    for (const auto& [maxNum, maxPball, taken] :
         {std::tuple{49, 0, 25}, {50, 0, 25}, {34, 14, 17 + 14}, {1, 0, 1}}) {
        const auto state = Lottery(5, maxNum);
        state->MaxPball = maxPball;
        Random random = Seeded(2);
        PlayLotto(*state, random, Row{60});
        EXPECT_EQ(NumbersTaken(random, 2), taken) << maxNum;
    }
}

TEST(KeyNumbers, HaveExtraBallsThatDifferUntilAllAreDealt) {
    const auto state = Lottery(5, 34);
    state->MaxPball = 5;
    for (std::uint64_t seed = 1; seed <= 50; ++seed) {
        EXPECT_EQ(Play(*state, seed, {7, 8}).size(), 11U);
        const Row balls = ExtraBalls(*state);
        EXPECT_EQ(std::set<int>(balls.begin(), balls.begin() + 5).size(), 5U);
        for (std::size_t line = 5; line < 11; ++line) EXPECT_EQ(balls[line], balls[line - 5]);
    }
}

TEST(KeyNumbers, HaveAllExtraBallsDifferentWhereThereAreMoreThanLines) {
    const auto state = Lottery(5, 34);
    state->MaxPball = 42;
    Play(*state, 1, {7, 8});
    const Row balls = ExtraBalls(*state);
    EXPECT_EQ(std::set<int>(balls.begin(), balls.end()).size(), balls.size());
}

TEST(KeyNumbers, HaveMainNumbersOfThePoolForExtraBallsBeyondTheTwentyRepeated) {
    const auto state = Lottery(5, 60);
    const std::size_t lineCount = Play(*state, 9, {7, 8, 9}).size();
    ASSERT_GE(lineCount, 29U);
    const Row numbers(state->Pool.Data(), state->Pool.Data() + 121);
    state->MaxPball = 3;
    Play(*state, 9, {7, 8, 9});
    const Row balls = ExtraBalls(*state);
    for (std::size_t line = 0; line < 23; ++line) {
        EXPECT_GE(balls[line], 1);
        EXPECT_LE(balls[line], 3);
    }
    bool above = false;
    for (std::size_t line = 24; line <= lineCount; ++line) {
        EXPECT_EQ(balls[line - 1], numbers[line]);
        above = above || balls[line - 1] > 3;
    }
    EXPECT_TRUE(above);
}

TEST(KeyNumbers, WriteNothingForABonusBall) {
    const auto state = Lottery(6, 49);
    state->HasBonus = 1;
    state->HasPball = 1;
    Play(*state, 1, {7});
    EXPECT_EQ(ExtraBalls(*state), Row(10, 0));
}

TEST(KeyNumbers, EndAboveTheStaleRowsOfALongerResult) {
    const auto state = Lottery(6, 49);
    EXPECT_EQ(Play(*state, 1, {1, 2, 3}).size(), 16U);
    EXPECT_EQ(Play(*state, 1, {1}).size(), 10U);
    EXPECT_NE(state->Lines(12, 1), 0);
}

TEST(KeyNumbers, TakeAHundredNumbersAndAHundredExtraBallsAndNoMore) {
    const std::string report =
        "The list of pool of numbers was asked for entry 121; its last entry is 120.";
    const auto state = Lottery(4, 100);
    state->MaxPball = 100;
    EXPECT_GE(Play(*state, 1, {7, 8}).size(), 49U);
    state->MaxPball = 101;
    EXPECT_EQ(FailureOf([&] { Play(*state, 1, {7, 8}); }), report);
    state->MaxPball = 0;
    state->MaxNum = 101;
    EXPECT_EQ(FailureOf([&] { Play(*state, 1, {7, 8}); }), report);
}

TEST(KeyNumbers, OfATinyLotteryWrapWithinTheLine) {
    const auto state = Lottery(5, 4);
    for (const Row& line : Play(*state, 1, {1, 2, 3})) EXPECT_EQ(line, (Row{1, 2, 3, 4, 4}));
    state->MaxNum = 5;
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        for (Row line : Play(*state, seed, {1, 2, 3})) {
            std::sort(line.begin(), line.end());
            EXPECT_EQ(line, (Row{1, 2, 3, 4, 5}));
        }
    }
}

TEST(KeyNumbers, ThatAreAllTheNumbersAreFollowedByWhatThePoolHeldBehindThem) {
    const auto state = Lottery(5, 3);
    state->Pool(24) = 2;
    state->Pool(25) = 33;
    state->Pool(26) = 34;
    EXPECT_EQ(Play(*state, 1, {1, 2, 3}), (std::vector<Row>{{1, 2, 3, 33, 34}}));
    state->Pool.Fill(1);
    EXPECT_EQ(FailureOf([&] {
                  Play(*state, 1, {1, 2, 3});
              }),
              "The list of pool of numbers was asked for entry 121; its last entry is 120.");
}

TEST(KeyNumbers, InALineOfMoreColumnsThanTheTableHasAreAFailure) {
    EXPECT_EQ(Play(*Lottery(14, 49), 1, {7}).size(), 4U);
    EXPECT_THROW(Play(*Lottery(15, 49), 1, {7}), Failure);
    EXPECT_THROW(Play(*Lottery(3, 49), 1, {7, 8, 9}), Failure);
}

TEST(KeyNumbers, AreInEveryLineOfEachRealLottery) {
    const auto state = std::make_unique<State>();
    const auto check = [&](const std::string& name) {
        for (const Row& keys : keySets) {
            const std::vector<Row> lines = Play(*state, 5, keys);
            std::set<int> numbers;
            for (const Row& line : lines) {
                EXPECT_TRUE(std::equal(keys.begin(), keys.end(), line.begin())) << name;
                numbers.insert(line.begin(), line.end());
            }
            EXPECT_EQ(static_cast<int>(numbers.size()), state->MaxNum) << name;
        }
    };
    if (!ForEachRealHistory(*state, check)) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/hot_numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include "core/filters.h"
#include "core/text.h"
#include "tests/core/failures.h"
#include "tests/support/each_real_history.h"

namespace {

using hot_numbers::Mode;
using hot_numbers::PlayLotto;

struct Rules {
    int picks = 6;
    int maxNum = 49;
    int maxPball = 0;
    int hasBonus = 0;
};

class HotNumbers : public testing::Test {
  protected:
    void Lottery(const Rules& rules) {
        state_->DbaseFile = "dbase1.txt";
        state_->Picks = rules.picks;
        state_->MaxNum = rules.maxNum;
        state_->MaxPball = rules.maxPball;
        state_->HasBonus = static_cast<std::int16_t>(rules.hasBonus);
    }

    /// Draws number n as often as `times` says at place n - 1, one a draw, with extra balls alike.
    void DrawOneByOne(const std::vector<int>& times, const std::vector<int>& extras = {}) {
        std::vector<int> numbers = Repeated(times);
        const std::vector<int> balls = Repeated(extras);
        numbers.resize(std::max(numbers.size(), balls.size()), 1);
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            const int row = static_cast<int>(i) + 1;
            state_->Draws(row, 1) = static_cast<std::int16_t>(numbers[i]);
            if (i < balls.size()) state_->Draws(row, 8) = static_cast<std::int16_t>(balls[i]);
        }
    }

    static std::vector<int> Repeated(const std::vector<int>& times) {
        std::vector<int> numbers;
        for (std::size_t i = 0; i < times.size(); ++i) {
            numbers.insert(numbers.end(), static_cast<std::size_t>(times[i]),
                           static_cast<int>(i) + 1);
        }
        return numbers;
    }

    std::string Play(Mode mode = Mode::Hot) { return PlayLotto(*state_, random_, mode); }

    std::vector<int> Line(int row) const {
        std::vector<int> numbers;
        for (int pick = 1; pick <= state_->Picks; ++pick) {
            numbers.push_back(state_->Lines(row, pick));
        }
        return numbers;
    }

    std::vector<int> ExtraBalls() const {
        std::vector<int> balls;
        for (int row = 1; row <= 10; ++row) balls.push_back(state_->Lines(row, 8));
        return balls;
    }

    std::unique_ptr<State> state_ = std::make_unique<State>();
    Random random_{[] { return std::uint64_t{1}; }};
};

TEST_F(HotNumbers, AreTheTenDrawnMostOftenInRankOrder) {
    Lottery({.picks = 1, .maxNum = 12});
    DrawOneByOne({1, 12, 2, 11, 3, 10, 4, 9, 5, 8, 6, 7});
    EXPECT_EQ(Play(), "2, 4, 6, 8, 10, 12, 11, 9, 7, 5");
}

TEST_F(HotNumbers, ColdOnesAreTheTenDrawnLeastOften) {
    Lottery({.picks = 1, .maxNum = 12});
    DrawOneByOne({1, 12, 2, 11, 3, 10, 4, 9, 5, 8, 6, 7});
    EXPECT_EQ(Play(Mode::Cold), "1, 3, 5, 7, 9, 11, 12, 10, 8, 6");
}

TEST_F(HotNumbers, PutTheLowerOfTwoThatTieFirstInHotAndInCold) {
    Lottery({.picks = 1, .maxNum = 10});
    DrawOneByOne({5, 9, 9, 5, 1, 2, 3, 4, 6, 7});
    EXPECT_EQ(Play(), "2, 3, 10, 9, 1, 4, 8, 7, 6, 5");
    EXPECT_EQ(Play(Mode::Cold), "5, 6, 7, 8, 1, 4, 9, 10, 2, 2");
}

TEST_F(HotNumbers, AreTheTenLowestOfElevenThatTieForMostDrawn) {
    Lottery({.picks = 1, .maxNum = 13});
    DrawOneByOne({1, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 3, 1});
    EXPECT_EQ(Play(), "2, 3, 4, 5, 6, 7, 8, 9, 10, 11");
}

TEST_F(HotNumbers, OfALotteryWithoutDrawsAreTheNumberOneTenTimes) {
    Lottery({});
    EXPECT_EQ(Play(), "1, 1, 1, 1, 1, 1, 1, 1, 1, 1");
    for (int row = 1; row <= 10; ++row) EXPECT_EQ(Line(row), std::vector<int>(6, 1));
    PruneDuplicates(*state_);
    EXPECT_EQ(state_->Lines(1, 1), 1);
    EXPECT_EQ(state_->Lines(2, 1), 0);
}

TEST_F(HotNumbers, RepeatTheLowestUndrawnNumberWhereFewerThanTenWereDrawn) {
    Lottery({.picks = 1, .maxNum = 49});
    DrawOneByOne({0, 0, 3, 0, 5});
    EXPECT_EQ(Play(), "5, 3, 1, 1, 1, 1, 1, 1, 1, 1");
}

TEST_F(HotNumbers, RepeatTheLowestHottestNumberAtTheEndOfAColdRanking) {
    Lottery({.picks = 1, .maxNum = 12});
    DrawOneByOne({1, 2, 5, 5, 5, 5, 5, 5, 5, 5, 3, 4});
    EXPECT_EQ(Play(Mode::Cold), "1, 2, 11, 12, 3, 3, 3, 3, 3, 3");
}

TEST_F(HotNumbers, FillTenSortedLinesOfDifferentNumbersFromTheSameTen) {
    Lottery({.picks = 6, .maxNum = 12});
    for (int seed = 1; seed <= 50; ++seed) {
        state_->Draws.Fill(0);
        state_->Picks = 1;
        DrawOneByOne({1, 12, 2, 11, 3, 10, 4, 9, 5, 8, 6, 7});
        state_->Picks = 6;
        random_.Reset(static_cast<std::uint64_t>(seed));
        state_->Lines.Fill(44);
        Play();
        for (int row = 1; row <= 10; ++row) {
            const std::vector<int> line = Line(row);
            EXPECT_TRUE(std::ranges::is_sorted(line));
            EXPECT_EQ(std::set<int>(line.begin(), line.end()).size(), 6U);
            for (const int number : line) EXPECT_TRUE(number != 1 && number != 3) << number;
        }
        EXPECT_EQ(state_->Lines(11, 1), 0);
    }
}

TEST_F(HotNumbers, ShuffleWhatTheLineBeforeHasLeft) {
    Lottery({.picks = 6, .maxNum = 49});
    const std::vector<std::int16_t> ranked = {40, 41, 42, 43, 44, 45, 46, 47, 48, 49};
    for (std::size_t i = 0; i < ranked.size(); ++i) {
        state_->Pool(static_cast<int>(i) + 1) = ranked[i];
    }
    random_.Reset(7);
    hot_numbers::AddToGrid(*state_, random_);

    Random same([] { return std::uint64_t{0}; });
    same.Reset(7);
    std::vector<std::int16_t> pool = ranked;
    for (int row = 1; row <= 10; ++row) {
        for (std::size_t i = 0; i < 10; ++i) {
            std::swap(pool[i], pool[static_cast<std::size_t>(same.OneTo(10)) - 1]);
        }
        std::vector<int> expected(pool.begin(), pool.begin() + 6);
        std::ranges::sort(expected);
        EXPECT_EQ(Line(row), expected) << "line " << row;
    }
}

TEST_F(HotNumbers, TakeEveryNumberOfTheTenEquallyOften) {
    Lottery({.picks = 5, .maxNum = 10});
    std::map<int, int> times;
    for (std::uint64_t seed = 1; seed <= 400; ++seed) {
        for (int i = 1; i <= 10; ++i) state_->Pool(i) = static_cast<std::int16_t>(i);
        random_.Reset(seed);
        hot_numbers::AddToGrid(*state_, random_);
        for (int row = 1; row <= 10; ++row) {
            for (const int number : Line(row)) ++times[number];
        }
    }
    for (const auto& [number, count] : times) EXPECT_NEAR(count, 2000, 150) << number;
}

TEST_F(HotNumbers, GiveTheExtraBallsToTheLinesByRankNotByChance) {
    Lottery({.picks = 1, .maxNum = 49, .maxPball = 12});
    DrawOneByOne({}, {1, 12, 2, 11, 3, 10, 4, 9, 5, 8, 6, 7});
    for (std::uint64_t seed = 1; seed <= 3; ++seed) {
        random_.Reset(seed);
        Play();
        EXPECT_EQ(ExtraBalls(), (std::vector<int>{2, 4, 6, 8, 10, 12, 11, 9, 7, 5}));
        Play(Mode::Cold);
        EXPECT_EQ(ExtraBalls(), (std::vector<int>{1, 3, 5, 7, 9, 11, 12, 10, 8, 6}));
    }
}

TEST_F(HotNumbers, RepeatTheLowestExtraBallThatNeverCameInTheTail) {
    Lottery({.picks = 1, .maxNum = 49, .maxPball = 14});
    DrawOneByOne({}, {1, 0, 0, 3, 2});
    Play();
    EXPECT_EQ(ExtraBalls(), (std::vector<int>{4, 5, 1, 2, 2, 2, 2, 2, 2, 2}));
}

TEST_F(HotNumbers, LeaveLinesBeyondAShortRangeOfExtraBallsWithMainNumbersOfThePool) {
    Lottery({.picks = 1, .maxNum = 49, .maxPball = 3});
    DrawOneByOne({9, 8, 7, 6, 5, 4, 3, 3, 3, 3}, {1, 3, 2});
    random_.Reset(5);
    Play();
    const std::vector<int> balls = ExtraBalls();
    EXPECT_EQ(std::vector<int>(balls.begin(), balls.begin() + 3), (std::vector<int>{2, 3, 1}));
    // What the tenth line's shuffle left in places 4 to 10.
    Random same([] { return std::uint64_t{0}; });
    same.Reset(5);
    std::vector<int> pool = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    for (int step = 0; step < 100; ++step) {
        std::swap(pool[static_cast<std::size_t>(step % 10)],
                  pool[static_cast<std::size_t>(same.OneTo(10)) - 1]);
    }
    EXPECT_EQ(std::vector<int>(balls.begin() + 3, balls.end()),
              std::vector<int>(pool.begin() + 3, pool.end()));
}

TEST_F(HotNumbers, WriteNoColumnEightForABonusBall) {
    Lottery({.picks = 1, .maxNum = 49, .hasBonus = 1});
    DrawOneByOne({1, 2, 3}, {4, 5, 6});
    Play();
    EXPECT_EQ(ExtraBalls(), std::vector<int>(10, 0));
}

TEST_F(HotNumbers, OfFewerThanTenNumbersShowWhatThePoolHeldBehindThem) {
    Lottery({.picks = 1, .maxNum = 8});
    DrawOneByOne({8, 7, 6, 5, 4, 3, 2, 1});
    state_->Pool(9) = 33;
    state_->Pool(10) = 34;
    EXPECT_EQ(Play(), "1, 2, 3, 4, 5, 6, 7, 8, 33, 34");
}

TEST_F(HotNumbers, EndWithAReportOnANumberAboveSeventy) {
    Lottery({.picks = 1});
    state_->Draws(1, 1) = 71;
    EXPECT_EQ(FailureOf([&] { Play(); }),
              "dbase1.txt, line 4: expected numbers from 0 to 70, but 71 stands there");
}

TEST_F(HotNumbers, EndWithAReportOnAFieldAboveSeventy) {
    Lottery({.picks = 1, .maxNum = 71});
    DrawOneByOne({1});
    EXPECT_EQ(FailureOf([&] { Play(); }),
              "The list of counts of main numbers was asked for entry 71; its last entry is 70.");
}

TEST_F(HotNumbers, EndWithAReportOnAHistoryWithoutAnEmptyRowBehindIt) {
    Lottery({.picks = 1});
    for (int row = 1; row <= 3000; ++row) state_->Draws(row, 1) = 1;
    EXPECT_EQ(FailureOf([&] { Play(); }),
              "The table of draws was asked for row 3001, column 1; its last row is 3000, its last "
              "column 8.");
}

TEST_F(HotNumbers, OfRealHistoriesAreTheOnesThatAPlainCountGives) {
    const auto check = [&](const std::string& name) {
        std::map<int, int> times;
        for (int row = 1; state_->Draws(row, 1) != 0; ++row) {
            for (int pick = 1; pick <= state_->Picks; ++pick) ++times[state_->Draws(row, pick)];
        }
        for (const Mode mode : {Mode::Hot, Mode::Cold}) {
            std::vector<int> numbers;
            for (int number = 1; number <= state_->MaxNum; ++number) numbers.push_back(number);
            std::ranges::stable_sort(numbers, [&](int one, int other) {
                return mode == Mode::Hot ? times[one] > times[other] : times[one] < times[other];
            });
            std::string expected = std::to_string(numbers[0]);
            for (std::size_t i = 1; i < 10; ++i) expected += ", " + std::to_string(numbers[i]);
            EXPECT_EQ(Play(mode), expected) << name;
        }
    };
    if (!ForEachRealHistory(*state_, check)) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace

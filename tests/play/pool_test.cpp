// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/pool.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "tests/core/failures.h"
#include "tests/play/random_support.h"

namespace {

std::vector<int> FirstOf(const State& state, int count) {
    return {state.Pool.Data() + 1, state.Pool.Data() + 1 + count};
}

class Pool : public testing::Test {
  protected:
    std::vector<int> First(int count) const { return FirstOf(*state_, count); }

    std::unique_ptr<State> state_ = std::make_unique<State>();
};

TEST_F(Pool, IsFilledWithTheNumbersAndKeepsWhatLiesBehind) {
    state_->Pool.Fill(77);
    FillPool(*state_, 5);
    EXPECT_EQ(First(7), (std::vector<int>{1, 2, 3, 4, 5, 77, 77}));
    EXPECT_EQ(state_->Pool(0), 77);
}

TEST_F(Pool, OfNoNumbersKeepsAll) {
    state_->Pool.Fill(77);
    for (const int highest : {0, -1, -200}) FillPool(*state_, highest);
    EXPECT_EQ(First(120), std::vector<int>(120, 77));
}

TEST_F(Pool, HoldsAHundredAndTwentyNumbers) {
    FillPool(*state_, 120);
    EXPECT_EQ(state_->Pool(120), 120);
    EXPECT_EQ(FailureOf([&] { FillPool(*state_, 121); }),
              "The list of pool of numbers was asked for entry 121; its last entry is 120.");
}

TEST_F(Pool, IsShuffledAsIfOneSwapFollowedTheOther) {
    for (const int highest : {0, 1, 2, 7, 49, 120}) {
        for (const int step : {1, 2, 3}) {
            Random random = Seeded(7);
            FillPool(*state_, highest);
            ShufflePool(*state_, random, highest, step);
            Random same = Seeded(7);
            std::vector<int> pool(121);
            for (std::size_t number = 0; number < 121; ++number) {
                pool[number] = static_cast<int>(number);
            }
            for (int place = 1; place <= highest; place += step) {
                const int other = static_cast<int>(highest * same.Next()) + 1;
                std::swap(pool[static_cast<std::size_t>(place)],
                          pool[static_cast<std::size_t>(other)]);
            }
            EXPECT_TRUE(
                std::equal(pool.begin() + 1, pool.begin() + 1 + highest, state_->Pool.Data() + 1))
                << highest << " by " << step;
            EXPECT_EQ(random.Next(), same.Next());
        }
    }
}

TEST_F(Pool, AsksForOneNumberASwap) {
    for (const auto& [step, swaps] : {std::pair{1, 49}, {2, 25}, {50, 1}}) {
        Random random = Seeded(3);
        FillPool(*state_, 49);
        ShufflePool(*state_, random, 49, step);
        EXPECT_EQ(NumbersTaken(random, 3), swaps) << step;
    }
}

TEST_F(Pool, IsContinuedWithItsOwnEntries) {
    FillPool(*state_, 6);
    ExtendPool(*state_, 6, 3, 2);
    EXPECT_EQ(First(9), (std::vector<int>{1, 2, 3, 4, 5, 6, 2, 4, 6}));
}

TEST_F(Pool, IsContinuedWithEntriesJustFilledWhereItIsShort) {
    FillPool(*state_, 4);
    ExtendPool(*state_, 4, 3, 2);
    EXPECT_EQ(First(7), (std::vector<int>{1, 2, 3, 4, 2, 4, 4}));
    FillPool(*state_, 2);
    ExtendPool(*state_, 2, 5);
    EXPECT_EQ(First(7), (std::vector<int>{1, 2, 1, 2, 1, 2, 1}));
}

TEST_F(Pool, CannotBeContinuedBeyondItsLastEntry) {
    FillPool(*state_, 111);
    EXPECT_EQ(FailureOf([&] { ExtendPool(*state_, 111, 10); }),
              "The list of pool of numbers was asked for entry 121; its last entry is 120.");
}

}  // namespace

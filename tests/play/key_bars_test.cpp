// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/key_bars.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace {

using key_numbers::KeyBars;
using Values = std::vector<int>;

Values ValuesOf(const KeyBars& bars) {
    const auto values = bars.Values();
    return {values.begin(), values.end()};
}

Values MaximaOf(const KeyBars& bars) {
    Values maxima;
    for (int bar = 1; bar <= bars.Count(); ++bar) maxima.push_back(bars.Maximum(bar));
    return maxima;
}

// Bars at values that a user can bring them to. Each bar leaves its place for a free one first, so
// that none meets another on its way.
KeyBars BarsAt(const Values& values) {
    KeyBars bars(static_cast<int>(values.size()));
    for (int round = 0; round < 3; ++round) {
        for (int bar = bars.Count(); bar >= 1; --bar) {
            bars.Change(bar, values[static_cast<std::size_t>(bar) - 1]);
        }
    }
    EXPECT_EQ(ValuesOf(bars), values);
    return bars;
}

Values Changed(const Values& from, int bar, int value) {
    KeyBars bars = BarsAt(from);
    bars.Change(bar, value);
    return ValuesOf(bars);
}

Values Fitted(const Values& from, int maxNum) {
    KeyBars bars = BarsAt(from);
    bars.FitTo(maxNum);
    return ValuesOf(bars);
}

TEST(KeyBars, StartAtOneTwoThreeWithinTheLimitsOfTheirDesign) {
    EXPECT_EQ(ValuesOf(KeyBars(1)), (Values{1}));
    EXPECT_EQ(ValuesOf(KeyBars(2)), (Values{1, 2}));
    EXPECT_EQ(ValuesOf(KeyBars(3)), (Values{1, 2, 3}));
    EXPECT_EQ(MaximaOf(KeyBars(1)), (Values{49}));
    EXPECT_EQ(MaximaOf(KeyBars(2)), (Values{49, 50}));
    EXPECT_EQ(MaximaOf(KeyBars(3)), (Values{48, 49, 50}));
    for (int bar = 1; bar <= 3; ++bar) EXPECT_EQ(KeyBars::Minimum(bar), bar);
}

TEST(KeyBars, StayWithinTheirLimits) {
    EXPECT_EQ(Changed({10}, 1, 0), (Values{1}));
    EXPECT_EQ(Changed({10}, 1, 99), (Values{49}));
    EXPECT_EQ(Changed({10, 20, 30}, 3, 1), (Values{10, 20, 3}));
    EXPECT_EQ(Changed({10, 20, 30}, 1, 99), (Values{48, 20, 30}));
}

TEST(KeyBars, OneBarMeetsNobody) { EXPECT_EQ(Changed({10}, 1, 11), (Values{11})); }

TEST(KeyBars, FirstOfTwoPushesTheSecondUp) {
    EXPECT_EQ(Changed({10, 20}, 1, 20), (Values{20, 21}));
    EXPECT_EQ(Changed({10, 50}, 1, 49), (Values{49, 50}));
}

TEST(KeyBars, SecondOfTwoPushesTheFirstDown) {
    EXPECT_EQ(Changed({10, 20}, 2, 10), (Values{9, 10}));
    EXPECT_EQ(Changed({2, 20}, 2, 2), (Values{1, 2}));
}

TEST(KeyBars, JumpOverEachOtherByLargeChanges) {
    EXPECT_EQ(Changed({10, 20}, 1, 25), (Values{25, 20}));
    EXPECT_EQ(Changed({10, 20, 30}, 3, 5), (Values{10, 20, 5}));
    EXPECT_EQ(BarsAt({40, 23, 7}).Value(1), 40);
}

TEST(KeyBars, FirstOfThreePushesTheSecondAndThatTheThird) {
    EXPECT_EQ(Changed({10, 20, 30}, 1, 20), (Values{20, 21, 30}));
    EXPECT_EQ(Changed({10, 20, 21}, 1, 20), (Values{20, 21, 22}));
    EXPECT_EQ(Changed({10, 49, 50}, 1, 48), (Values{48, 49, 50}));
}

TEST(KeyBars, SecondOfThreePushesTheFirstDownOrTheThirdUp) {
    EXPECT_EQ(Changed({10, 20, 30}, 2, 10), (Values{9, 10, 30}));
    EXPECT_EQ(Changed({10, 20, 30}, 2, 30), (Values{10, 30, 31}));
}

TEST(KeyBars, SecondPushesBothWhereBothStandAtItsNumber) {
    EXPECT_EQ(Changed({15, 20, 15}, 2, 15), (Values{14, 15, 16}));
}

TEST(KeyBars, ThirdPushesTheSecondAndThatTheFirstDown) {
    EXPECT_EQ(Changed({10, 20, 30}, 3, 20), (Values{10, 19, 20}));
    EXPECT_EQ(Changed({19, 20, 30}, 3, 20), (Values{18, 19, 20}));
    EXPECT_EQ(Changed({1, 3, 30}, 3, 3), (Values{1, 2, 3}));
    EXPECT_EQ(Changed({2, 3, 30}, 3, 3), (Values{1, 2, 3}));
}

TEST(KeyBars, FirstAndThirdMayStandAtTheSameNumber) {
    EXPECT_EQ(Changed({10, 20, 30}, 1, 30), (Values{30, 20, 30}));
    EXPECT_EQ(Changed({10, 20, 30}, 3, 10), (Values{10, 20, 10}));
}

TEST(KeyBars, SetToTheValueTheyHaveDoNotChange) {
    EXPECT_EQ(Changed({15, 20, 15}, 1, 15), (Values{15, 20, 15}));
    EXPECT_EQ(Changed({48, 20, 30}, 1, 70), (Values{48, 20, 30}));
}

TEST(KeyBars, GrowTheirLimitsWithALargerLotteryAndKeepTheirValues) {
    KeyBars bars = BarsAt({10, 20, 30});
    bars.FitTo(59);
    EXPECT_EQ(MaximaOf(bars), (Values{57, 58, 59}));
    EXPECT_EQ(ValuesOf(bars), (Values{10, 20, 30}));
    bars.Change(3, 59);
    EXPECT_EQ(bars.Value(3), 59);
    bars.FitTo(49);
    EXPECT_EQ(MaximaOf(bars), (Values{47, 48, 49}));
    EXPECT_EQ(ValuesOf(bars), (Values{10, 20, 49}));
}

TEST(KeyBars, LimitsOfOneAndOfTwoBarsFollowTheLottery) {
    KeyBars one(1);
    one.FitTo(60);
    EXPECT_EQ(MaximaOf(one), (Values{60}));
    KeyBars two(2);
    two.FitTo(34);
    EXPECT_EQ(MaximaOf(two), (Values{33, 34}));
}

TEST(KeyBars, OneAboveASmallerLotteryComesDownToItsHighestNumber) {
    EXPECT_EQ(Fitted({49}, 10), (Values{10}));
    EXPECT_EQ(Fitted({10}, 10), (Values{10}));
    EXPECT_EQ(Fitted({7}, 10), (Values{7}));
}

TEST(KeyBars, TwoAtTheTopEndAtTheTopOfASmallerLottery) {
    EXPECT_EQ(Fitted({49, 50}, 10), (Values{9, 10}));
}

TEST(KeyBars, ThreeAtTheTopEndAtTheTopOfASmallerLottery) {
    EXPECT_EQ(Fitted({48, 49, 50}, 10), (Values{8, 9, 10}));
}

TEST(KeyBars, FirstAboveItsLimitMovesTheSecondAlsoFromBelow) {
    EXPECT_EQ(Fitted({48, 5, 50}, 10), (Values{8, 9, 10}));
    EXPECT_EQ(Fitted({48, 5, 6}, 10), (Values{8, 9, 6}));
    EXPECT_EQ(Fitted({40, 5}, 10), (Values{9, 10}));
}

TEST(KeyBars, BelowTheLimitsOfASmallerLotteryStay) {
    EXPECT_EQ(Fitted({8, 9, 10}, 10), (Values{8, 9, 10}));
    EXPECT_EQ(Fitted({3, 9, 5}, 10), (Values{3, 9, 5}));
}

TEST(KeyBars, ThirdLoweredOntoTheSecondPushesItDownAndThatTheFirst) {
    EXPECT_EQ(Fitted({3, 10, 50}, 10), (Values{3, 9, 10}));
    EXPECT_EQ(Fitted({9, 10, 50}, 10), (Values{8, 9, 10}));
}

TEST(KeyBars, SecondLoweredOntoTheThirdPushesItUp) {
    EXPECT_EQ(Fitted({3, 40, 9}, 10), (Values{3, 9, 10}));
}

TEST(KeyBars, OfATinyLotteryStandAtTheirMinimum) {
    EXPECT_EQ(Fitted({48, 49, 50}, 3), (Values{1, 2, 3}));
    KeyBars bars = BarsAt({48, 49, 50});
    bars.FitTo(1);
    EXPECT_EQ(ValuesOf(bars), (Values{1, 2, 3}));
    EXPECT_EQ(MaximaOf(bars), (Values{1, 2, 3}));
}

// However bars are moved and lotteries chosen, a form that has them shows keys of its lottery, of
// which no neighbours are equal.
TEST(KeyBars, NeverLeaveTheLotteryNorMeetTheirNeighbours) {
    std::mt19937 engine(1);
    const auto number = [&engine](int from, int to) {
        return from + static_cast<int>(engine() % static_cast<unsigned>(to - from + 1));
    };
    for (int count = 1; count <= 3; ++count) {
        KeyBars bars(count);
        for (int step = 0; step < 20000; ++step) {
            const bool chosen = number(1, 4) == 1;
            const int maxNum = chosen ? number(3, 60) : bars.Maximum(count);
            if (chosen) bars.FitTo(maxNum);
            if (!chosen) bars.Change(number(1, count), number(-3, 65));
            const Values values = ValuesOf(bars);
            for (int bar = 1; bar <= count; ++bar) {
                ASSERT_GE(bars.Value(bar), bar);
                ASSERT_LE(bars.Value(bar), maxNum - (count - bar));
                ASSERT_TRUE(bar == 1 || bars.Value(bar) != bars.Value(bar - 1)) << step;
            }
        }
    }
}

}  // namespace

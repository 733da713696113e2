// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/random.h"

#include <gtest/gtest.h>

namespace {

Random ClockAt(std::uint64_t seed) {
    return Random([seed] { return seed; });
}

}  // namespace

TEST(Random, GivesTheNumbersThatTheSeedStandsForOnEveryPlatform) {
    Random random = ClockAt(0);
    random.Reset(5489);  // the engine's own test vector: 14514284786278117030, 4620546740167642908
    EXPECT_EQ(random.Next(), 0x1.92da3239eded5p-1);
    EXPECT_EQ(random.Next(), 0x1.007deb1e2f202p-2);
}

TEST(Random, RepeatsItselfAfterAReset) {
    Random random = ClockAt(0);
    random.Reset(7);
    const double first = random.Next();
    random.Next();
    random.Reset(7);
    EXPECT_EQ(random.Next(), first);
}

TEST(Random, AsksTheClockForASeed) {
    Random byClock = ClockAt(42);
    byClock.SeedFromClock();
    Random bySeed = ClockAt(0);
    bySeed.Reset(42);
    EXPECT_EQ(byClock.Next(), bySeed.Next());
}

TEST(Random, StaysBelowOneAndFromZeroOn) {
    Random random = ClockAt(0);
    random.Reset(1);
    for (int i = 0; i < 100000; ++i) {
        const double number = random.Next();
        ASSERT_GE(number, 0);
        ASSERT_LT(number, 1);
    }
}

TEST(Random, OneToReachesBothEndsAndNothingBeyond) {
    Random random = ClockAt(0);
    random.Reset(1);
    int least = 100;
    int most = 0;
    for (int i = 0; i < 10000; ++i) {
        const int number = random.OneTo(49);
        least = std::min(least, number);
        most = std::max(most, number);
    }
    EXPECT_EQ(least, 1);
    EXPECT_EQ(most, 49);
}

TEST(Random, OneToZeroIsOne) { EXPECT_EQ(ClockAt(0).OneTo(0), 1); }

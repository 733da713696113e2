// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/biochart.h"

#include <gtest/gtest.h>

#include <cmath>

TEST(Biochart, IsFlatOnTheDayOfBirth) {
    EXPECT_EQ(Biochart(0), (std::array<double, 4>{0, 0, 0, 0}));
}

TEST(Biochart, TakesItsOwnValueOfPi) {
    const auto bars = Biochart(1);
    EXPECT_DOUBLE_EQ(bars[0], 10 * std::sin(3.142 * (360.0 / 33) / 180));
    EXPECT_DOUBLE_EQ(bars[1], 10 * std::sin(3.142 * (360.0 / 28) / 180));
    EXPECT_DOUBLE_EQ(bars[2], 10 * std::sin(3.142 * (360.0 / 38) / 180));
}

TEST(Biochart, MovesInPeriodsOfThirtyThreeTwentyEightAndThirtyEightDays) {
    for (const int days : {0, 5, 100, 20000}) {
        EXPECT_DOUBLE_EQ(Biochart(days)[0], Biochart(days + 33)[0]);
        EXPECT_DOUBLE_EQ(Biochart(days)[1], Biochart(days + 28)[1]);
        EXPECT_DOUBLE_EQ(Biochart(days)[2], Biochart(days + 38)[2]);
    }
}

TEST(Biochart, GivesLuckTheAverageOfTheOthers) {
    for (const int days : {1, 5, 100, 20000, -7}) {
        const auto bars = Biochart(days);
        EXPECT_DOUBLE_EQ(bars[3], (bars[0] + bars[1] + bars[2]) / 3);
    }
}

TEST(Biochart, TurnsRoundBeforeTheDayOfBirth) {
    for (const int days : {1, 5, 100}) {
        for (std::size_t bar = 0; bar < 4; ++bar) {
            EXPECT_DOUBLE_EQ(Biochart(-days)[bar], -Biochart(days)[bar]);
        }
    }
}

TEST(Biochart, StaysBetweenMinusTenAndTen) {
    for (int days = -1000; days < 30000; ++days) {
        for (const double bar : Biochart(days)) EXPECT_LE(std::abs(bar), 10);
    }
}

TEST(Biochart, IsHighestAQuarterOfAPeriodAfterBirth) {
    EXPECT_NEAR(Biochart(7)[1], 10, 1e-6);
    EXPECT_NEAR(Biochart(21)[1], -10, 1e-4);
}

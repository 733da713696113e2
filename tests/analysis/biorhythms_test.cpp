// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/biorhythms.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/settings.h"
#include "tests/core/failures.h"
#include "tests/core/regions.h"

using biorhythms::Biochart;

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

namespace {

double ValueAt(double degrees) { return std::sin(3.142 * degrees / 180) * 10; }

/// The values of a cycle over the four weeks, one step after the other.
std::vector<double> Curve(double start, double step) {
    std::vector<double> values;
    double angle = start;
    for (int row = 1; row <= 28; ++row) {
        values.push_back(ValueAt(angle));
        const double sum = angle + step;
        double whole = std::floor(sum);
        const double rest = sum - whole;
        const bool odd = std::fmod(whole, 2) != 0;
        if (rest > 0.5 || (rest == 0.5 && odd)) whole += 1;
        angle = std::fmod(whole, 360);
    }
    return values;
}

double StartOf(int days, int cycle) { return (days - 7) % cycle * (360.0 / cycle); }

}  // namespace

TEST(BodyChart, FollowsTheThreeCyclesAndTheirAverage) {
    for (const int days : {-500, -3, 0, 1, 6, 7, 8, 10000, 16594}) {
        const auto chart = biorhythms::BodyChart(days);
        const auto physical = Curve(StartOf(days, 23), 360.0 / 23);
        const auto intellectual = Curve(StartOf(days, 33), 360.0 / 33);
        const auto emotional = Curve(StartOf(days, 28), 360.0 / 28);
        for (std::size_t row = 0; row < 28; ++row) {
            EXPECT_DOUBLE_EQ(chart[row][0], physical[row]);
            EXPECT_DOUBLE_EQ(chart[row][1], intellectual[row]);
            EXPECT_DOUBLE_EQ(chart[row][2], emotional[row]);
            EXPECT_DOUBLE_EQ(chart[row][3],
                             (physical[row] + intellectual[row] + emotional[row]) / 3);
        }
    }
}

TEST(MindChart, FollowsTheFourCyclesOfWhichAwarenessStartsWithTheStepOfAesthetic) {
    for (const int days : {-500, -3, 0, 1, 6, 7, 8, 10000, 16594}) {
        const auto chart = biorhythms::MindChart(days);
        const auto spiritual = Curve(StartOf(days, 53), 360.0 / 53);
        const auto aesthetic = Curve(StartOf(days, 43), 360.0 / 43);
        const auto awareness = Curve((days - 7) % 48 * (360.0 / 43), 360.0 / 48);
        const auto intuition = Curve(StartOf(days, 38), 360.0 / 38);
        for (std::size_t row = 0; row < 28; ++row) {
            EXPECT_DOUBLE_EQ(chart[row][0], spiritual[row]);
            EXPECT_DOUBLE_EQ(chart[row][1], aesthetic[row]);
            EXPECT_DOUBLE_EQ(chart[row][2], awareness[row]);
            EXPECT_DOUBLE_EQ(chart[row][3], intuition[row]);
        }
    }
}

TEST(BodyChart, StartsWithNegativeAnglesForWhoIsBornToday) {
    const auto chart = biorhythms::BodyChart(0);
    EXPECT_DOUBLE_EQ(chart[0][0], ValueAt(-7 * (360.0 / 23)));
    EXPECT_DOUBLE_EQ(chart[0][2], ValueAt(-7 * (360.0 / 28)));
    EXPECT_LT(chart[0][0], 0);
}

TEST(BodyChart, RoundsEveryAngleButTheFirst) {
    const auto chart = biorhythms::BodyChart(8);  // one day old in the first row
    EXPECT_DOUBLE_EQ(chart[0][0], ValueAt(360.0 / 23));
    EXPECT_DOUBLE_EQ(chart[1][0], ValueAt(31));  // 15.65 + 15.65
    EXPECT_DOUBLE_EQ(chart[2][0], ValueAt(47));  // 31 + 15.65
}

TEST(MindChart, RoundsATieOfAwarenessToTheEvenDegree) {
    const auto chart = biorhythms::MindChart(7);  // born on the day of the first row
    EXPECT_DOUBLE_EQ(chart[0][2], ValueAt(0));
    EXPECT_DOUBLE_EQ(chart[1][2], ValueAt(8));
    EXPECT_DOUBLE_EQ(chart[2][2], ValueAt(16));
    EXPECT_DOUBLE_EQ(chart[3][2], ValueAt(24));
}

TEST(BirthDate, IsReadFromTheSettingsAsTheRegionWritesDates) {
    State state;
    const Date today = std::chrono::year(2005) / 6 / 1;
    state.Settings(setting::BirthDate) = "23 Jul 1985";
    EXPECT_EQ(biorhythms::BirthDate(state, EnglishRegion(), today),
              std::chrono::year(1985) / 7 / 23);
    state.Settings(setting::BirthDate) = "01/02/1970";
    EXPECT_EQ(biorhythms::BirthDate(state, EnglishRegion(), today),
              std::chrono::year(1970) / 2 / 1);
}

TEST(BirthDate, EndsInTheReportWhereItIsNone) {
    State state;
    state.Settings(setting::BirthDate) = "soon";
    const std::string text = FailureOf(
        [&] { biorhythms::BirthDate(state, EnglishRegion(), std::chrono::year(2005) / 6 / 1); });
    EXPECT_NE(text.find("quillon.ini"), std::string::npos) << text;
    EXPECT_NE(text.find("\"soon\""), std::string::npos) << text;
}

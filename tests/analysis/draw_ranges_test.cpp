// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/draw_ranges.h"

#include <algorithm>

#include "core/draws.h"
#include "tests/analysis/draw_table.h"
#include "tests/core/failures.h"
#include "tests/support/each_real_history.h"

namespace {

class DrawRanges : public DrawTable {
  protected:
    draw_ranges::Figures Analyse() const { return draw_ranges::AnalyseRange(Table()); }
};

TEST_F(DrawRanges, AreTheLastNumberLessTheFirst) {
    Draw({1, 5});
    Draw({2, 9});
    Draw({3, 7});
    const auto figures = Analyse();
    EXPECT_EQ(figures.recent[0], 4);
    EXPECT_EQ(figures.recent[1], 7);
    EXPECT_EQ(figures.recent[2], 4);
    EXPECT_EQ(figures.recent[3], 0);
    EXPECT_EQ(figures.RangeCount(4), 2);
    EXPECT_EQ(figures.RangeCount(7), 1);
}

TEST_F(DrawRanges, AreDividedByOneMoreThanThereAreDraws) {
    Draw({1, 8});
    EXPECT_EQ(Analyse().average, 3) << "half of 7";
    Draw({1, 9});
    EXPECT_EQ(Analyse().average, 5) << "a third of 15";
}

TEST_F(DrawRanges, WithoutDrawsAreZero) {
    const auto figures = Analyse();
    EXPECT_EQ(figures.average, 0);
    EXPECT_EQ(figures.recent[0], 0);
    EXPECT_EQ(figures.RangeCount(0), 50);
}

TEST_F(DrawRanges, AreCountedForFiftyDrawsAndAveragedOverAll) {
    Draws(50, {1, 4});
    Draws(50, {1, 9});
    const auto figures = Analyse();
    EXPECT_EQ(figures.RangeCount(3), 50);
    EXPECT_EQ(figures.RangeCount(8), 0);
    EXPECT_EQ(figures.average, (50 * 3 + 50 * 8) / 101);
}

TEST_F(DrawRanges, AreTakenBehindAnEndMarkToo) {
    Draw({1, 4});
    Draw({5, 0});
    Draw({2, 8});
    SortDraws(*state_, 2);
    const auto figures = Analyse();
    EXPECT_EQ(figures.recent[1], 5) << "sorted, and then it is an end mark";
    EXPECT_EQ(figures.recent[2], 6);
    EXPECT_EQ(figures.RangeCount(6), 1);
    EXPECT_EQ(figures.average, 1) << "half of 3";
}

TEST_F(DrawRanges, EndTheRunBelowZeroAndAboveAHundred) {
    Draw({1, 4});
    Draw({0, 0});
    Draw({8, 2});
    SortDraws(*state_, 2);
    EXPECT_EQ(FailureOf([&] { Analyse(); }),
              "dbase1.txt, line 6: expected a range from 0 to 100, but found -6");
    state_->Draws(3, 2) = 108;
    EXPECT_EQ(Analyse().RangeCount(100), 1);
    state_->Draws(3, 2) = 109;
    EXPECT_EQ(FailureOf([&] { Analyse(); }),
              "dbase1.txt, line 6: expected a range from 0 to 100, but found 101");
}

TEST_F(DrawRanges, AreAveragedUpToAFirstNumberBelowOne) {
    Draw({1, 7});
    Draw({-2, 7});
    Draw({1, 9});
    EXPECT_EQ(Analyse().average, 3);
}

TEST_F(DrawRanges, EndTheRunOnAFieldAboveAHundredAndOnAFullTable) {
    Draws(2999, {1, 2});
    EXPECT_EQ(Analyse().average, 0);
    Rules(2, 101);
    EXPECT_THROW(Analyse(), Failure);
    Rules(2, 100);
    Draw({1, 2});
    EXPECT_THROW(Analyse(), Failure);
}

/// Highest less lowest of the unsorted draws, and their average, step by step.
void ExpectPlainFigures(State& state, const std::string& name) {
    std::vector<int> ranges;
    for (int row = 1; View(state).Draws(row, 1) > 0; ++row) {
        const std::int16_t* draw = View(state).Draws.Row(row) + 1;
        const auto [lowest, highest] = std::minmax_element(draw, draw + state.Picks);
        ranges.push_back(*highest - *lowest);
    }
    int total = 0;
    for (const int range : ranges) total += range;
    SortDraws(state, state.Picks);
    const auto figures = draw_ranges::AnalyseRange(state);
    EXPECT_EQ(figures.average, total / (static_cast<int>(ranges.size()) + 1)) << name;
    ranges.resize(50);
    EXPECT_TRUE(std::ranges::equal(figures.recent, ranges)) << name;
    for (int range = 1; range <= state.MaxNum; ++range) {
        EXPECT_EQ(figures.RangeCount(range), std::ranges::count(ranges, range)) << name;
    }
}

TEST_F(DrawRanges, OfRealHistoriesAreThoseOfAPlainCount) {
    const bool there = ForEachRealHistory(
        *state_, [&](const std::string& name) { ExpectPlainFigures(*state_, name); });
    if (!there) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/draw_sums.h"

#include <algorithm>
#include <numeric>

#include "tests/analysis/draw_table.h"
#include "tests/core/failures.h"
#include "tests/support/each_real_history.h"

namespace {

class DrawSums : public DrawTable {
  protected:
    draw_sums::Figures Analyse() const { return draw_sums::Analyse(Table()); }
};

TEST_F(DrawSums, AreTheMainNumbersAddedUp) {
    Draw({3, 5, 0, 0, 0, 0, 0, 9});
    Draw({9, 8, 7});
    const auto figures = Analyse();
    EXPECT_EQ(figures.sums[0], 8);
    EXPECT_EQ(figures.sums[1], 17);
    EXPECT_EQ(figures.sums[2], 0);
    EXPECT_EQ(figures.smallest, 8);
    EXPECT_EQ(figures.largest, 17);
    EXPECT_EQ(figures.average, 12) << "12.5 without its fraction";
}

TEST_F(DrawSums, OfOneDrawAreAllThree) {
    Draw({3, 4});
    const auto figures = Analyse();
    EXPECT_EQ(figures.smallest, 7);
    EXPECT_EQ(figures.largest, 7);
    EXPECT_EQ(figures.average, 7);
}

TEST_F(DrawSums, AreThoseOfTheNewestFiftyDraws) {
    Draws(50, {4, 5});
    Draw({1, 2});
    const auto figures = Analyse();
    EXPECT_EQ(figures.smallest, 9);
    EXPECT_EQ(figures.sums.back(), 9);
    EXPECT_EQ(First(figures.RatioCount, 3), (std::vector<int>{0, 50, 1})) << "of all draws";
}

TEST_F(DrawSums, LookAtRowsBehindAnEndMarkToo) {
    Draw({1, 2});
    Draw({0, 0});
    Draw({8, 9});
    const auto figures = Analyse();
    EXPECT_EQ(figures.sums[2], 17);
    EXPECT_EQ(figures.largest, 17);
    EXPECT_EQ(figures.average, 10);
    EXPECT_EQ(First(figures.RatioCount, 3), (std::vector<int>{0, 0, 1})) << "up to the end mark";
}

TEST_F(DrawSums, OfZeroOrLessStayOutOfTheFigures) {
    Draw({-5, 5});
    Draw({-5, 2});
    Draw({3, 4});
    const auto figures = Analyse();
    EXPECT_EQ(figures.sums[1], -3);
    EXPECT_EQ(figures.smallest, 7);
    EXPECT_EQ(figures.average, 7);
}

TEST_F(DrawSums, AboveAThousandAreNotTheSmallest) {
    Draw({900, 400});
    const auto figures = Analyse();
    EXPECT_EQ(figures.smallest, 1000);
    EXPECT_EQ(figures.largest, 1300);
}

TEST_F(DrawSums, EndTheRunWhereNoneIsAboveZero) {
    EXPECT_EQ(FailureOf([&] { Analyse(); }),
              "dbase1.txt, line 4: expected a draw to take the average of, but the newest 50 have "
              "no numbers");
    Draw({0, 0});
    EXPECT_THROW(Analyse(), Failure);
}

TEST_F(DrawSums, CountAFirstRowThatBeginsWithZeroAndTheRowsBehindIt) {
    Draw({0, 6});
    Draw({1, 2});
    EXPECT_EQ(First(Analyse().RatioCount, 3), (std::vector<int>{0, 1, 1}));
}

TEST_F(DrawSums, DifferInWhatIsLowOfAnOddField) {
    Rules(6, 49);
    Draw({24, 23, 25, 26, 27, 28});
    const auto figures = Analyse();
    EXPECT_EQ(First(figures.RatioCount, 7), (std::vector<int>{0, 0, 1, 0, 0, 0, 0}));
    EXPECT_EQ(figures.last[0].ratio, "1:5");
}

TEST_F(DrawSums, AgreeInWhatIsLowOfAnEvenField) {
    Rules(2, 10);
    Draw({4, 5});
    const auto figures = Analyse();
    EXPECT_EQ(First(figures.RatioCount, 3), (std::vector<int>{0, 1, 0}));
    EXPECT_EQ(figures.last[0].ratio, "1:1");
}

TEST_F(DrawSums, CountZerosBehindTheHistoryAsLowInTheLastDraws) {
    Rules(6, 49);
    Draw({30, 7, 44, 11, 49, 5});
    const auto figures = Analyse();
    EXPECT_EQ(figures.last[0].numbers, " 30, 7, 44, 11, 49, 5");
    EXPECT_EQ(figures.last[1].numbers, " 0, 0, 0, 0, 0, 0");
    EXPECT_EQ(figures.last[1].ratio, "6:0");
}

TEST_F(DrawSums, HaveEightRatiosOfSevenNumbers) {
    Rules(7, 27);
    Draw({1, 2, 3, 4, 5, 6, 7});
    Draw({21, 22, 23, 24, 25, 26, 27});
    EXPECT_EQ(First(Analyse().RatioCount, 8), (std::vector<int>{1, 0, 0, 0, 0, 0, 0, 1}));
    Rules(8, 27);
    EXPECT_EQ(FailureOf([&] { Analyse(); }),
              "dbase1.txt, line 3: expected at most 7 main numbers in a line, but 8 stands there");
}

TEST_F(DrawSums, EndTheRunOnAFullTable) {
    Draws(2999, {1, 2});
    EXPECT_EQ(Analyse().RatioCount(2), 2999);
    Draw({1, 2});
    EXPECT_THROW(Analyse(), Failure);
}

/// The figures one step after the other, over tables of their own.
void ExpectPlainFigures(const State& state, const std::string& name) {
    const auto figures = draw_sums::Analyse(state);
    std::vector<int> sums;
    for (int row = 1; row <= 50; ++row) {
        const std::int16_t* draw = state.Draws.Row(row);
        sums.push_back(std::accumulate(draw + 1, draw + 1 + state.Picks, 0));
    }
    EXPECT_TRUE(std::ranges::equal(figures.sums, sums)) << name;
    std::erase(sums, 0);
    EXPECT_EQ(figures.smallest, *std::ranges::min_element(sums)) << name;
    EXPECT_EQ(figures.largest, *std::ranges::max_element(sums)) << name;
    EXPECT_EQ(figures.average,
              std::accumulate(sums.begin(), sums.end(), 0) / static_cast<int>(sums.size()));
    std::vector<int> ratios(8, 0);
    for (int row = 1; state.Draws(row, 1) != 0; ++row) {
        std::size_t low = 0;
        for (int column = 1; column <= state.Picks; ++column) {
            if (state.Draws(row, column) < state.MaxNum / 2.0) ++low;
        }
        ++ratios[low];
    }
    EXPECT_TRUE(std::equal(ratios.begin(), ratios.end(), figures.RatioCount.Data())) << name;
    for (int row = 1; row <= 4; ++row) {
        int low = 0;
        for (int column = 1; column <= state.Picks; ++column) {
            if (state.Draws(row, column) < state.MaxNum / 2) ++low;
        }
        EXPECT_EQ(figures.last[static_cast<std::size_t>(row - 1)].ratio,
                  std::to_string(low) + ":" + std::to_string(state.Picks - low));
    }
}

TEST_F(DrawSums, OfRealHistoriesAreThoseOfAPlainCount) {
    const bool there = ForEachRealHistory(
        *state_, [&](const std::string& name) { ExpectPlainFigures(Table(), name); });
    if (!there) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace

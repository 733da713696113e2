// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/odd_even.h"

#include "tests/analysis/draw_table.h"
#include "tests/core/failures.h"
#include "tests/support/each_real_history.h"

namespace {

using odd_even::OddEven;

class OddAndEven : public DrawTable {
  protected:
    odd_even::Figures Analyse() const { return odd_even::Analyse(Table()); }
};

TEST_F(OddAndEven, AreCountedDrawByDrawAndInAll) {
    Draw({1, 2});
    Draw({3, 5});
    Draw({4, 6, 7, 0, 0, 0, 0, 7});
    const auto figures = Analyse();
    EXPECT_EQ(figures.recent[0], (OddEven{1, 1}));
    EXPECT_EQ(figures.recent[1], (OddEven{2, 0}));
    EXPECT_EQ(figures.recent[2], (OddEven{0, 2}));
    EXPECT_EQ(figures.recent[3], (OddEven{0, 0}));
    EXPECT_EQ(figures.total, (OddEven{3, 3}));
    EXPECT_EQ(First(figures.EvenCount, 3), (std::vector<int>{1, 1, 1}));
}

TEST_F(OddAndEven, OfMoreThanFiftyDrawsAreChartedForTheNewestFifty) {
    Draws(50, {1, 2});
    Draws(10, {1, 3});
    const auto figures = Analyse();
    EXPECT_EQ(figures.recent.back(), (OddEven{1, 1}));
    EXPECT_EQ(figures.total, (OddEven{70, 50}));
    EXPECT_EQ(First(figures.EvenCount, 3), (std::vector<int>{10, 50, 0}));
}

TEST_F(OddAndEven, EndWithTheHistory) {
    Draw({1, 3});
    Draw({0, 3});
    Draw({1, 3});
    const auto figures = Analyse();
    EXPECT_EQ(figures.recent[1], (OddEven{0, 0}));
    EXPECT_EQ(figures.recent[2], (OddEven{0, 0}));
    EXPECT_EQ(figures.total, (OddEven{2, 0}));
}

TEST_F(OddAndEven, WithoutDrawsAreOneDrawOfEvenNumbers) {
    Rules(6, 49);
    const auto figures = Analyse();
    EXPECT_EQ(figures.recent[0], (OddEven{0, 6}));
    EXPECT_EQ(figures.recent[1], (OddEven{0, 0}));
    EXPECT_EQ(figures.total, (OddEven{0, 6}));
    EXPECT_EQ(First(figures.EvenCount, 9), (std::vector<int>{0, 0, 0, 0, 0, 0, 1, 0, 0}));
    for (const LastDraw& draw : figures.last) {
        EXPECT_EQ(draw.numbers, " 0, 0, 0, 0, 0, 0");
        EXPECT_EQ(draw.ratio, "0:6");
    }
}

TEST_F(OddAndEven, CountAFirstRowThatBeginsWithZeroAndTheRowsBehindIt) {
    Draw({0, 7});
    Draw({1, 3});
    const auto figures = Analyse();
    EXPECT_EQ(figures.recent[0], (OddEven{1, 1}));
    EXPECT_EQ(figures.total, (OddEven{3, 1}));
}

TEST_F(OddAndEven, GoOddFirstInTheLastDraws) {
    Rules(6, 49);
    Draw({30, 7, 44, 11, 49, 5});
    EXPECT_EQ(Analyse().last[0].numbers, " 30, 7, 44, 11, 49, 5");
    EXPECT_EQ(Analyse().last[0].ratio, "4:2");
}

TEST_F(OddAndEven, EndTheRunOnEightNumbersAndOnAFullTable) {
    Draws(2999, {1, 2});
    EXPECT_EQ(Analyse().total, (OddEven{2999, 2999}));
    Rules(8, 49);
    EXPECT_THROW(Analyse(), Failure);
    Rules(2, 9);
    Draw({1, 2});
    EXPECT_THROW(Analyse(), Failure);
}

/// The three counts one after the other, each on a walk of its own.
void ExpectPlainFigures(const State& state, const std::string& name) {
    const auto figures = odd_even::Analyse(state);
    int row = 1;
    while (row <= 50 && state.Draws(row, 1) != 0) {
        int odd = 0;
        for (int column = 1; column <= state.Picks; ++column) odd += state.Draws(row, column) & 1;
        EXPECT_EQ(figures.recent[static_cast<std::size_t>(row - 1)],
                  (OddEven{odd, state.Picks - odd}))
            << name;
        ++row;
    }
    for (; row <= 50; ++row) {
        EXPECT_EQ(figures.recent[static_cast<std::size_t>(row - 1)], (OddEven{0, 0})) << name;
    }
    int odd = 0;
    int even = 0;
    std::vector<int> evens(9, 0);
    for (row = 1; state.Draws(row, 1) != 0; ++row) {
        std::size_t ofDraw = 0;
        for (int column = 1; column <= state.Picks; ++column) {
            if (state.Draws(row, column) / 2 * 2 == state.Draws(row, column)) ++ofDraw;
        }
        even += static_cast<int>(ofDraw);
        odd += state.Picks - static_cast<int>(ofDraw);
        ++evens[ofDraw];
    }
    EXPECT_EQ(figures.total, (OddEven{odd, even})) << name;
    EXPECT_TRUE(std::equal(evens.begin(), evens.end(), figures.EvenCount.Data())) << name;
}

TEST_F(OddAndEven, OfRealHistoriesAreThoseOfAPlainCount) {
    const bool there = ForEachRealHistory(
        *state_, [&](const std::string& name) { ExpectPlainFigures(Table(), name); });
    if (!there) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/position_averages.h"

#include "core/draws.h"
#include "tests/analysis/draw_table.h"
#include "tests/core/failures.h"
#include "tests/support/each_real_history.h"

namespace {

class PositionAverages : public DrawTable {
  protected:
    position_averages::Figures Analyse(int position) const {
        return position_averages::Analyse(Table(), position);
    }
};

TEST_F(PositionAverages, AreThoseOfTheWholeHistoryWithoutTheirFraction) {
    Draw({1, 5});
    Draw({2, 9});
    Draw({5, 6});
    EXPECT_EQ(Analyse(1).average, 2);
    EXPECT_EQ(Analyse(2).average, 6);
}

TEST_F(PositionAverages, CountHowManyDrawsHaveEachNumberThere) {
    Draw({1, 5});
    Draw({2, 9});
    Draw({2, 5});
    EXPECT_EQ(First(Analyse(1).PositionCount, 4), (std::vector<int>{0, 1, 2, 0}));
    EXPECT_EQ(Analyse(2).PositionCount(5), 2);
    EXPECT_EQ(Analyse(2).PositionCount(9), 1);
}

TEST_F(PositionAverages, ShowTheRowBehindAShortHistoryToo) {
    for (int draw = 1; draw <= 3; ++draw) Draw({draw, 9});
    EXPECT_EQ(Analyse(1).recent, (std::vector<int>{1, 2, 3, 0}));
}

TEST_F(PositionAverages, ShowAHundredRowsFromNinetyNineDrawsOn) {
    Draws(10, {3, 4});
    EXPECT_EQ(Analyse(1).recent.size(), 11U);
    Draws(89, {3, 4});
    EXPECT_EQ(Analyse(1).recent.size(), 100U);
    EXPECT_EQ(Analyse(1).recent.back(), 0);
    Draw({3, 4});
    EXPECT_EQ(Analyse(1).recent.size(), 100U);
    EXPECT_EQ(Analyse(1).recent.back(), 3);
    Draws(50, {9, 9});
    EXPECT_EQ(Analyse(1).recent.size(), 100U);
    EXPECT_EQ(Analyse(1).average, (100 * 3 + 50 * 9) / 150);
    EXPECT_EQ(Analyse(1).PositionCount(3), 100);
}

TEST_F(PositionAverages, WithoutDrawsAreOneRowOfZero) {
    const auto figures = Analyse(1);
    EXPECT_EQ(figures.average, 0);
    EXPECT_EQ(figures.recent, (std::vector<int>{0, 0}));
    EXPECT_EQ(First(figures.PositionCount, 3), (std::vector<int>{1, 0, 0}));
}

TEST_F(PositionAverages, EndAtADrawWithAnEmptyFieldAndShowItsNumber) {
    Draw({4, 5});
    Draw({6, 0});
    Draw({7, 8});
    SortDraws(*state_, 2);
    const auto figures = Analyse(2);
    EXPECT_EQ(figures.average, 5);
    EXPECT_EQ(figures.recent, (std::vector<int>{5, 6}));
    EXPECT_EQ(figures.PositionCount(6), 0);
}

TEST_F(PositionAverages, EndTheRunAtANumberThatCannotBeCountedWhereItStands) {
    Draw({4, 101});
    EXPECT_EQ(Analyse(1).average, 4);
    EXPECT_EQ(FailureOf([&] { Analyse(2); }),
              "dbase1.txt, line 4: expected numbers from 0 to 100, but found 101");
    Draw({-1, 100});
    EXPECT_EQ(FailureOf([&] { Analyse(1); }),
              "dbase1.txt, line 5: expected numbers from 0 to 100, but found -1");
}

TEST_F(PositionAverages, CountAHundredAndNoHigherField) {
    Draw({4, 100});
    Rules(2, 100);
    EXPECT_EQ(Analyse(2).PositionCount(100), 1);
    Rules(2, 101);
    EXPECT_EQ(FailureOf([&] { Analyse(2); }),
              "dbase1.txt, line 3: expected a highest number of at most 100, but 101 stands there");
}

TEST_F(PositionAverages, EndTheRunOnAFullTable) {
    Draws(2999, {1, 2});
    EXPECT_EQ(Analyse(1).PositionCount(1), 2999);
    Draw({1, 2});
    EXPECT_THROW(Analyse(1), Failure);
}

/// Average, chart and counts, each on a walk of its own.
void ExpectPlainFigures(const State& state, int position, const std::string& name) {
    const auto figures = position_averages::Analyse(state, position);
    int next = 1;
    int sum = 0;
    do {
        sum += state.Draws(next++, position);
    } while (state.Draws(next, 1) != 0);
    EXPECT_EQ(figures.average, sum / (next - 1)) << name;
    ASSERT_EQ(static_cast<int>(figures.recent.size()), next < 101 ? next : 100) << name;
    for (std::size_t i = 0; i < figures.recent.size(); ++i) {
        EXPECT_EQ(figures.recent[i], state.Draws(static_cast<int>(i) + 1, position)) << name;
    }
    for (int number = 1; number <= state.MaxNum; ++number) {
        int count = 0;
        for (int row = 1; state.Draws(row, 1) != 0; ++row) {
            if (state.Draws(row, position) == number) ++count;
        }
        EXPECT_EQ(figures.PositionCount(number), count) << name << ", " << number;
    }
}

TEST_F(PositionAverages, OfRealHistoriesAreThoseOfAPlainCount) {
    const bool there = ForEachRealHistory(*state_, [&](const std::string& name) {
        SortDraws(*state_, state_->Picks);
        for (int position = 1; position <= state_->Picks; ++position) {
            ExpectPlainFigures(Table(), position, name);
        }
    });
    if (!there) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/draws.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "core/draw_database.h"
#include "core/memory_folder.h"
#include "tests/core/failures.h"
#include "tests/core/lines_support.h"
#include "tests/support/each_real_history.h"

namespace {

Row Draw(const State& state, int row) {
    const std::int16_t* numbers = state.Draws.Row(row) + 1;
    return {numbers, numbers + 8};
}

Row AllDraws(const State& state) {
    const std::int16_t* cells = state.Draws.Row(0);
    return {cells, cells + 3001 * 9};
}

TEST(SortDraws, PutsEachDrawInAscendingOrder) {
    const auto state = Lottery(6, 49);
    FillRows(state->Draws, {{30, 7, 44, 11, 49, 5}, {6, 5, 4, 3, 2, 1}});
    SortDraws(*state, 6);
    EXPECT_EQ(Draw(*state, 1), (Row{5, 7, 11, 30, 44, 49, 0, 0}));
    EXPECT_EQ(Draw(*state, 2), (Row{1, 2, 3, 4, 5, 6, 0, 0}));
}

TEST(SortDraws, LeavesTheBonusBallInColumnEight) {
    const auto state = Lottery(7, 49);
    FillRows(state->Draws, {{9, 8, 7, 6, 5, 4, 3, 2}});
    SortDraws(*state, 7);
    EXPECT_EQ(Draw(*state, 1), (Row{3, 4, 5, 6, 7, 8, 9, 2}));
}

TEST(SortDraws, OfFourOfSixSortsTheFirstFourAmongThemselves) {
    const auto state = Lottery(4, 49);
    FillRows(state->Draws, {{40, 30, 20, 10, 5, 1}});
    SortDraws(*state, 4);
    EXPECT_EQ(Draw(*state, 1), (Row{10, 20, 30, 40, 5, 1, 0, 0}));
}

TEST(SortDraws, SortsTheFirstDrawWhateverItHolds) {
    const auto state = Lottery(6, 49);
    FillRows(state->Draws, {{0, 9, 5, 7, 3, 2}});
    SortDraws(*state, 6);
    EXPECT_EQ(Draw(*state, 1), (Row{0, 2, 3, 5, 7, 9, 0, 0}));
}

TEST(SortDraws, WithoutDrawsChangesNothing) {
    const auto state = Lottery(6, 49);
    SortDraws(*state, 6);
    EXPECT_EQ(AllDraws(*state), Row(3001 * 9, 0));
}

TEST(SortDraws, EndsAtTheFirstDrawWithNothingInColumnOne) {
    const auto state = Lottery(4, 49);
    FillRows(state->Draws, {{4, 3, 2, 1}, {0}, {9, 8, 7, 6}});
    SortDraws(*state, 4);
    EXPECT_EQ(Draw(*state, 3), (Row{9, 8, 7, 6, 0, 0, 0, 0}));
}

// The empty field comes to column 1 by the sort alone, so the draws behind it are sorted as well.
TEST(SortDraws, GoesOnBehindADrawWithAnEmptyFieldThoughNobodyElseDoes) {
    const auto state = Lottery(4, 49);
    FillRows(state->Draws, {{4, 3, 2, 1}, {7, 6, 0, 5}, {9, 8, 7, 6}});
    SortDraws(*state, 4);
    EXPECT_EQ(Draw(*state, 2), (Row{0, 5, 6, 7, 0, 0, 0, 0}));
    EXPECT_EQ(Draw(*state, 3), (Row{6, 7, 8, 9, 0, 0, 0, 0}));
}

TEST(SortDraws, TheNextLoadBringsBackTheOrderOfTheDraw) {
    MemoryFolder folder;
    const std::string bytes = "Four\r\n\r\n4,9,0,0,0\r\n01 Jan 05,4,1,3,2,0,0,0,0\r\n";
    folder.Write("dbase1.txt", bytes);
    const auto state = Lottery(4, 9);
    ListDatabases(*state, folder);
    LoadDatabase(*state, folder, 0);
    SortDraws(*state, 4);
    EXPECT_EQ(Draw(*state, 1), (Row{1, 2, 3, 4, 0, 0, 0, 0}));
    LoadDatabase(*state, folder, 0);
    EXPECT_EQ(Draw(*state, 1), (Row{4, 1, 3, 2, 0, 0, 0, 0}));
    EXPECT_EQ(folder.Read("dbase1.txt"), bytes);
}

TEST(SortDraws, Sorts2999DrawsAndFailsOn3000) {
    const auto state = Lottery(2, 49);
    for (int row = 1; row <= 2999; ++row) {
        state->Draws(row, 1) = 40;
        state->Draws(row, 2) = 7;
    }
    SortDraws(*state, 2);
    EXPECT_EQ(Draw(*state, 2999), (Row{7, 40, 0, 0, 0, 0, 0, 0}));
    state->Draws(3000, 1) = 1;
    EXPECT_EQ(FailureOf([&] { SortDraws(*state, 2); }),
              "The table of draws was asked for row 3001, column 1; its last row is 3000, its last "
              "column 8.");
}

TEST(SortDraws, GivesTheOrderOfTheSortOneByOneForEveryCount) {
    std::mt19937 engine(1);
    for (int count = 0; count <= 8; ++count) {
        const auto fast = Lottery(6, 49);
        for (int row = 1; row <= 200; ++row) {
            for (int column = 1; column <= 8; ++column) {
                fast->Draws(row, column) = static_cast<std::int16_t>(engine() % 60);
            }
            fast->Draws(row, 1) |= 1;
        }
        const auto plain = std::make_unique<State>(*fast);
        SortDraws(*fast, count);
        plain::SortDraws(*plain, count);
        EXPECT_EQ(AllDraws(*fast), AllDraws(*plain)) << count;
    }
}

TEST(SortDraws, NineColumnsAreAFailure) {
    const auto state = Lottery(9, 49);
    EXPECT_EQ(FailureOf([&] { SortDraws(*state, 9); }),
              FailureOf([&] { plain::SortDraws(*state, 9); }));
    EXPECT_NE(FailureOf([&] { SortDraws(*state, 9); }), "no failure");
}

TEST(SortDraws, OrdersEveryDrawOfRealHistories) {
    const auto state = std::make_unique<State>();
    const auto check = [&](const std::string& name) {
        const auto before = std::make_unique<State>(*state);
        SortDraws(*state, state->Picks);
        for (int row = 1; state->Draws(row, 1) != 0; ++row) {
            Row expected = Draw(*before, row);
            std::sort(expected.begin(), expected.begin() + state->Picks);
            ASSERT_EQ(Draw(*state, row), expected) << name << ", draw " << row;
        }
    };
    if (!ForEachRealHistory(*state, check)) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace

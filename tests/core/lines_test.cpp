// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "tests/core/failures.h"
#include "tests/core/lines_support.h"

namespace {

TEST(ClearLines, EmptiesEveryCell) {
    const auto state = Lottery(6, 49);
    state->Lines.Fill(7);
    ClearLines(*state);
    EXPECT_EQ(AllLines(*state), Row(181 * 15, 0));
}

TEST(SortLines, PutsEachLineInAscendingOrder) {
    const auto state = Lottery(6, 49);
    FillRows(state->Lines, {{6, 5, 4, 3, 2, 1}, {49, 1, 48, 2, 47, 3}});
    SortLines(*state, 6);
    EXPECT_EQ(LinesOf(*state, 6), (std::vector<Row>{{1, 2, 3, 4, 5, 6}, {1, 2, 3, 47, 48, 49}}));
}

TEST(SortLines, LeavesTheExtraBallInItsColumn) {
    const auto state = Lottery(5, 34);
    FillRows(state->Lines, {{30, 20, 10, 5, 2, 0, 0, 1}});
    SortLines(*state, 5);
    EXPECT_EQ(LinesOf(*state, 8), (std::vector<Row>{{2, 5, 10, 20, 30, 0, 0, 1}}));
}

TEST(SortLines, CountOneChangesNothing) {
    const auto state = Lottery(6, 49);
    FillRows(state->Lines, {{6, 5, 4, 3, 2, 1}, {3, 2, 1}});
    const Row before = AllLines(*state);
    SortLines(*state, 1);
    EXPECT_EQ(AllLines(*state), before);
}

TEST(SortLines, EmptyTableSortsHarmlessly) {
    const auto state = Lottery(6, 49);
    SortLines(*state, 6);
    EXPECT_EQ(AllLines(*state), Row(181 * 15, 0));
}

TEST(SortLines, SortsTheFirstRowWithoutALookAtItsEndMark) {
    const auto state = Lottery(4, 49);
    FillRows(state->Lines, {{0, 9, 5, 7}});
    state->Lines(2, 1) = 0;
    SortLines(*state, 4);
    EXPECT_EQ(state->Lines(1, 2), 5);
    EXPECT_EQ(state->Lines(1, 4), 9);
}

TEST(SortLines, LeavesStaleRowsBelowTheEndMark) {
    const auto state = Lottery(4, 49);
    FillRows(state->Lines, {{4, 3, 2, 1}, {0}, {9, 8, 7, 6}});
    SortLines(*state, 4);
    EXPECT_EQ(state->Lines(3, 1), 9);
    EXPECT_EQ(state->Lines(3, 4), 6);
}

TEST(SortLines, AnyCountSortsJustThoseColumns) {
    std::mt19937 engine(1);
    for (int count = 0; count <= 14; ++count) {
        const auto state = Lottery(6, 49);
        Row numbers(14);
        for (int& number : numbers) number = static_cast<int>(engine() % 90) - 20;
        if (numbers[0] == 0) numbers[0] = 1;
        FillRows(state->Lines, {numbers});
        SortLines(*state, count);
        std::sort(numbers.begin(), numbers.begin() + count);
        const std::int16_t* sorted = state->Lines.Row(1) + 1;
        EXPECT_EQ(Row(sorted, sorted + 14), numbers) << count;
    }
}

TEST(SortLines, MoreColumnsThanTheTableHasIsAFailure) {
    const auto state = Lottery(15, 49);
    EXPECT_THROW(SortLines(*state, 15), Failure);
}

TEST(SortLines, FullTableFailsAtTheRowBehindItsLast) {
    const auto state = Lottery(6, 49);
    state->Lines.Fill(1);
    EXPECT_EQ(FailureOf([&] { SortLines(*state, 6); }),
              "The table of lines was asked for row 181, column 1; its last row is 180, its "
              "last column 14.");
}

TEST(View, ReadsATableWithoutCountingAsAChange) {
    const auto state = Lottery(6, 49);
    state->Draws(1, 1) = 7;
    const std::uint64_t version = state->Draws.Version();
    EXPECT_EQ(View(*state).Draws(1, 1), 7);
    EXPECT_EQ(state->Draws.Version(), version);
    state->Draws(1, 1) = 8;
    EXPECT_NE(state->Draws.Version(), version);
}

TEST(LineCount, CountsTheRowsBeforeTheEndMark) {
    const auto state = Lottery(6, 49);
    EXPECT_EQ(LineCount(*state), 0);
    FillRows(state->Lines, {{1, 2}, {3, 4}, {0}, {5, 6}});
    EXPECT_EQ(LineCount(*state), 2);
}

TEST(LineCount, HoldsUpTo179Lines) {
    const auto state = Lottery(6, 49);
    for (int row = 1; row <= 179; ++row) state->Lines(row, 1) = 1;
    EXPECT_EQ(LineCount(*state), 179);
    state->Lines(180, 1) = 1;
    EXPECT_THROW(LineCount(*state), Failure);
}

}  // namespace

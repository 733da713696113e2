// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/recent_draws.h"

#include "tests/analysis/draw_table.h"
#include "tests/core/failures.h"

namespace {

using TheRecentDraws = DrawTable;

bool BelowFive(int number) { return number < 5; }

TEST_F(TheRecentDraws, AreToldInTheOrderOfTheDatabaseWithABlankBeforeEachNumber) {
    Rules(6, 49);
    Draw({30, 7, 44, 11, 49, 5, 0, 2});
    const LastDraw draw = TellLastDraws(Table(), [](int number) { return number < 10; }).front();
    EXPECT_EQ(draw.numbers, " 30, 7, 44, 11, 49, 5");
    EXPECT_EQ(draw.ratio, "2:4");
}

TEST_F(TheRecentDraws, AreTheFourNewest) {
    for (int draw = 1; draw <= 5; ++draw) Draw({draw, 9});
    const LastDraws draws = TellLastDraws(Table(), BelowFive);
    EXPECT_EQ(draws[0].numbers, " 1, 9");
    EXPECT_EQ(draws[3].numbers, " 4, 9");
    EXPECT_EQ(draws[3].ratio, "1:1");
}

TEST_F(TheRecentDraws, BehindTheHistoryAreZeros) {
    Draw({7, 8});
    const LastDraws draws = TellLastDraws(Table(), BelowFive);
    EXPECT_EQ(draws[0].ratio, "0:2");
    for (std::size_t behind = 1; behind < 4; ++behind) {
        EXPECT_EQ(draws[behind].numbers, " 0, 0");
        EXPECT_EQ(draws[behind].ratio, "2:0");
    }
}

TEST_F(TheRecentDraws, AreCountedUpToTheEndMark) {
    EXPECT_EQ(DrawsAmong(Table(), 50), 0);
    Draws(3, {1, 2});
    EXPECT_EQ(DrawsAmong(Table(), 50), 3);
    EXPECT_EQ(DrawsAmong(Table(), 2), 2);
    Draw({0, 2});
    Draw({1, 2});
    EXPECT_EQ(DrawsAmong(Table(), 50), 3);
}

TEST_F(TheRecentDraws, HaveNoRoomForMoreNumbersThanTold) {
    Rules(7, 49);
    EXPECT_NO_THROW(CheckPicks(Table(), 7));
    Rules(8, 49);
    EXPECT_EQ(FailureOf([&] { CheckPicks(Table(), 7); }),
              "dbase1.txt, line 3: expected at most 7 main numbers in a line, but 8 stands there");
}

}  // namespace

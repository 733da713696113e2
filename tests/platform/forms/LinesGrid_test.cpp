// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/LinesGrid.h"

#include <gtest/gtest.h>

#include "core/failure.h"
#include "platform/widgets/Grid.h"
#include "tests/support/form_test.h"

namespace {

struct TheGridOfLines : testing::Test {
    TheGridOfLines() { SetLinesHeadings(grid); }

    /// Lines 1 to `count`: six numbers from the line's own on, and an extra ball.
    void MakeLines(int count, int extraBall) {
        for (int row = 1; row <= count; ++row) {
            for (int column = 1; column <= 6; ++column) {
                state.Lines(row, column) = static_cast<std::int16_t>(row + column);
            }
            state.Lines(row, 8) = static_cast<std::int16_t>(extraBall);
        }
        state.Lines(count + 1, 1) = 0;
    }

    QStringList Row(int row) const {
        QStringList cells;
        for (int column = 0; column < 9; ++column) cells += grid.Cell(row, column);
        return cells;
    }

    State state;
    Grid grid{40, 9};
};

QStringList Texts(std::initializer_list<const char*> texts) {
    QStringList list;
    for (const char* text : texts) list += QString::fromLatin1(text);
    return list;
}

const QStringList& Nothing() {
    static const QStringList nothing(9, QString());
    return nothing;
}

TEST_F(TheGridOfLines, HasNineHeadingsTheLastInDarkRed) {
    EXPECT_EQ(Row(0),
              Texts({"Line", "Num1", "Num2", "Num3", "Num4", "Num5", "Num6", "Num7", "Pball"}));
    EXPECT_EQ(grid.CellColour(0, 8).name(), QStringLiteral("#a00000"));
    EXPECT_FALSE(grid.CellColour(0, 7).isValid());
}

TEST_F(TheGridOfLines, ShowsALineWithItsExtraBallInDarkRed) {
    MakeLines(1, 14);
    ShowLines(state, grid);
    EXPECT_EQ(Row(1), Texts({"1", "2", "3", "4", "5", "6", "7", "", "14"}));
    EXPECT_EQ(grid.CellColour(1, 8).name(), QStringLiteral("#a00000"));
}

TEST_F(TheGridOfLines, ShowsTheExtraBallOfEveryLineInDarkRed) {
    MakeLines(30, 14);
    ShowLines(state, grid);
    for (int row = 1; row <= 30; ++row) {
        EXPECT_EQ(grid.CellColour(row, 8).name(), QStringLiteral("#a00000")) << row;
    }
}

TEST_F(TheGridOfLines, ShowsAnEmptyCellForNoNumber) {
    MakeLines(1, 0);
    ShowLines(state, grid);
    EXPECT_EQ(grid.Cell(1, 7), QString());
    EXPECT_EQ(grid.Cell(1, 8), QString());
    EXPECT_EQ(grid.CellColour(1, 8).name(), QStringLiteral("#a00000"));
}

TEST_F(TheGridOfLines, WipesWhatALongerResultLeft) {
    MakeLines(30, 5);
    ShowLines(state, grid);
    MakeLines(5, 5);
    ShowLines(state, grid);
    EXPECT_EQ(grid.Cell(5, 0), QStringLiteral("5"));
    for (int row = 6; row <= 30; ++row) EXPECT_EQ(Row(row), Nothing()) << row;
}

TEST_F(TheGridOfLines, IsBlankForAnEmptyResult) {
    MakeLines(3, 0);
    ShowLines(state, grid);
    state.Lines(1, 1) = 0;
    ShowLines(state, grid);
    for (int row = 1; row <= 3; ++row) EXPECT_EQ(Row(row), Nothing()) << row;
}

TEST_F(TheGridOfLines, StopsWipingAtTheFirstRowWithoutANumber) {
    grid.SetCell(1, 0, QStringLiteral("1"));
    grid.SetCell(3, 0, QStringLiteral("3"));
    ShowLines(state, grid);
    EXPECT_EQ(grid.Cell(1, 0), QString());
    EXPECT_EQ(grid.Cell(3, 0), QStringLiteral("3"));
}

TEST_F(TheGridOfLines, IgnoresLinesBehindTheEndMark) {
    MakeLines(9, 0);
    state.Lines(3, 1) = 0;
    ShowLines(state, grid);
    EXPECT_EQ(grid.Cell(2, 0), QStringLiteral("2"));
    EXPECT_EQ(Row(3), Nothing());
}

TEST_F(TheGridOfLines, TakesANegativeFirstNumberAsTheEnd) {
    MakeLines(2, 0);
    state.Lines(2, 1) = -1;
    ShowLines(state, grid);
    EXPECT_EQ(Row(2), Nothing());
}

TEST_F(TheGridOfLines, ScrollsToItsTop) {
    grid.resize(grid.width(), 150);
    grid.show();
    MakeLines(30, 0);
    grid.ScrollToRow(39);
    ShowLines(state, grid);
    EXPECT_EQ(grid.rowAt(0), 0);
}

TEST_F(TheGridOfLines, NeedsARowMoreThanThereAreLines) {
    MakeLines(38, 0);
    EXPECT_NO_THROW(ShowLines(state, grid));
    MakeLines(39, 0);
    EXPECT_THROW(ShowLines(state, grid), Failure);
}

TEST_F(TheGridOfLines, RefusesAQuiteFullTable) {
    Grid large(200, 9);
    for (int row = 1; row <= 180; ++row) state.Lines(row, 1) = 1;
    EXPECT_THROW(ShowLines(state, large), Failure);
}

TEST_F(TheGridOfLines, IsClearedWithItsHeadingsForANewLottery) {
    MakeLines(2, 9);
    ShowLines(state, grid);
    ClearLinesGrid(grid);
    EXPECT_EQ(Row(1), Nothing());
    EXPECT_EQ(grid.Cell(0, 1), QStringLiteral("Num1"));
    EXPECT_EQ(grid.CellColour(0, 8).name(), QStringLiteral("#a00000"));
}

TEST_F(TheGridOfLines, LeavesTheLotterysColumnsAndTheLinesInUse) {
    state.Picks = 5;
    state.MaxPball = 0;
    state.Lines(1, 1) = 7;
    state.Lines(2, 1) = 8;
    ShowLines(state, grid);
    EXPECT_TRUE(grid.InUse(2, 0));
    EXPECT_TRUE(grid.InUse(2, 5));
    EXPECT_FALSE(grid.InUse(2, 6));
    EXPECT_FALSE(grid.ColumnInUse(8));
    EXPECT_FALSE(grid.InUse(3, 1));
    EXPECT_EQ(grid.Cell(0, 8), QStringLiteral("Pball")) << "the headings stay";
}

TEST_F(TheGridOfLines, LeavesAColumnInUseThatHoldsANumberBeyondTheLotterys) {
    state.Picks = 3;
    state.MaxPball = 0;
    state.Lines(1, 1) = 7;
    state.Lines(1, 4) = 9;
    ShowLines(state, grid);
    EXPECT_TRUE(grid.ColumnInUse(4));
    EXPECT_FALSE(grid.ColumnInUse(5));
}

TEST_F(TheGridOfLines, HasTheExtraBallInUseWhereTheLotteryHasOne) {
    state.Picks = 5;
    state.MaxPball = 14;
    ShowLines(state, grid);
    EXPECT_TRUE(grid.ColumnInUse(8));
    EXPECT_FALSE(grid.InUse(1, 8)) << "there is no line yet";
}

}  // namespace

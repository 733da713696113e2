// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/filters.h"

#include <gtest/gtest.h>

#include "core/failure.h"
#include "tests/core/lines_support.h"

namespace {

std::unique_ptr<State> LotteryWith(int picks, int maxNum, const std::vector<Row>& lines,
                                   const std::string& strength) {
    auto state = Lottery(picks, maxNum);
    FillRows(state->Lines, lines);
    SetStrengths(*state, strength);
    return state;
}

std::unique_ptr<State> FullTableOf(std::int16_t first, std::int16_t second) {
    auto state = Lottery(2, 49);
    state->Lines.Fill(first);
    for (int row = 0; row <= 180; ++row) state->Lines(row, 2) = second;
    return state;
}

std::int16_t OddEven(const Row& line, const std::string& strength) {
    return OddEvenOK(*LotteryWith(static_cast<int>(line.size()), 49, {line}, strength), true);
}

std::int16_t HighLow(int maxNum, const Row& line, const std::string& strength) {
    return HighLowOK(*LotteryWith(static_cast<int>(line.size()), maxNum, {line}, strength), true);
}

std::vector<Row> AfterLongRun(int picks, const std::vector<Row>& lines,
                              const std::string& strength) {
    const auto state = LotteryWith(picks, 49, lines, strength);
    PruneLongRun(*state);
    return LinesOf(*state, picks);
}

TEST(Filters, UnsetBoxPassesEvenWithoutLines) {
    const auto state = Lottery(6, 49);
    EXPECT_EQ(OddEvenOK(*state, false), passed);
    EXPECT_EQ(HighLowOK(*state, false), passed);
    EXPECT_EQ(HistoryOK(*state, false), passed);
}

TEST(Filters, UnsetBoxPassesWithoutALookAtAFullTable) {
    const auto state = Lottery(6, 49);
    state->Lines.Fill(2);
    EXPECT_EQ(OddEvenOK(*state, false), passed);
    EXPECT_EQ(HighLowOK(*state, false), passed);
    EXPECT_EQ(HistoryOK(*state, false), passed);
}

TEST(OddEven, OneOddOfSixPassesAtStrengthOne) {
    EXPECT_EQ(OddEven({1, 2, 4, 6, 8, 10}, "1 Odd/even filter"), passed);
    EXPECT_EQ(OddEven({2, 3, 5, 7, 9, 11}, "1 Odd/even filter"), passed);
}

TEST(OddEven, SixOfAKindFail) {
    EXPECT_EQ(OddEven({2, 4, 6, 8, 10, 12}, "1"), notPassed);
    EXPECT_EQ(OddEven({1, 3, 5, 7, 9, 11}, "1"), notPassed);
}

TEST(OddEven, OneOddOfSixFailsAtStrengthTwo) {
    EXPECT_EQ(OddEven({1, 2, 4, 6, 8, 10}, "2 Odd/even filter"), notPassed);
    EXPECT_EQ(OddEven({1, 3, 4, 6, 8, 10}, "2 Odd/even filter"), passed);
}

TEST(OddEven, NegativeOddNumbersAreOdd) { EXPECT_EQ(OddEven({-3, -1, 2, 4}, "2"), passed); }

TEST(OddEven, EmptySlotAsksForNothing) { EXPECT_EQ(OddEven({2, 4, 6, 8, 10, 12}, ""), passed); }

TEST(OddEven, StrengthTwoOfTwoNumbersIsNeverMet) {
    for (const Row& line : {Row{1, 2}, Row{1, 3}, Row{2, 4}}) EXPECT_EQ(OddEven(line, "2"), 0);
}

TEST(OddEven, ExtraBallDoesNotCount) {
    const auto state = LotteryWith(5, 34, {{2, 4, 6, 8, 10, 0, 0, 1}}, "1");
    EXPECT_EQ(OddEvenOK(*state, true), notPassed);
}

TEST(OddEven, OneFailingLineFailsTheWholeSet) {
    const auto state = LotteryWith(2, 49, {{1, 2}, {3, 4}, {5, 7}}, "1");
    EXPECT_EQ(OddEvenOK(*state, true), notPassed);
}

TEST(OddEven, LinesBelowTheEndMarkDoNotCount) {
    const auto state = LotteryWith(2, 49, {{1, 2}, {0, 0}, {5, 7}}, "1");
    EXPECT_EQ(OddEvenOK(*state, true), passed);
}

TEST(OddEven, EmptyFirstRowIsExaminedAndFails) {
    EXPECT_EQ(OddEvenOK(*LotteryWith(6, 49, {}, "1"), true), notPassed);
}

TEST(OddEven, FullTableIsAFailure) {
    const auto state = FullTableOf(1, 2);
    EXPECT_THROW(OddEvenOK(*state, true), Failure);
}

TEST(OddEven, FullTableIsAFailureAlsoWhereItsLastLineFails) {
    const auto state = FullTableOf(1, 2);
    state->Lines(180, 2) = 3;
    EXPECT_THROW(OddEvenOK(*state, true), Failure);
}

TEST(OddEven, FullTableIsNotWalkedToItsEndWhereALineBeforeTheLastFails) {
    const auto state = FullTableOf(1, 2);
    state->Lines(179, 2) = 3;
    EXPECT_EQ(OddEvenOK(*state, true), notPassed);
}

TEST(OddEven, StrengthBeyondAnyCountIsNeverMet) {
    EXPECT_EQ(OddEven({1, 2, 3, 4}, "99999999999"), notPassed);
    EXPECT_EQ(OddEven({1, 2, 3, 4}, "-99999999999"), passed);
}

TEST(HighLow, OfFortyNine24IsLowAnd25IsNot) {
    EXPECT_EQ(HighLow(49, {24, 30, 40, 41, 42, 43}, "1"), passed);
    EXPECT_EQ(HighLow(49, {25, 30, 40, 41, 42, 43}, "1"), notPassed);
}

TEST(HighLow, OfFortyEight23IsLowAnd24IsNot) {
    EXPECT_EQ(HighLow(48, {23, 30, 40, 41, 42, 43}, "1"), passed);
    EXPECT_EQ(HighLow(48, {24, 30, 40, 41, 42, 43}, "1"), notPassed);
}

TEST(HighLow, AllLowFailsToo) {
    EXPECT_EQ(HighLow(49, {1, 2, 3, 4, 5, 24}, "1"), notPassed);
    EXPECT_EQ(HighLow(49, {1, 2, 3, 4, 5, 25}, "1"), passed);
    EXPECT_EQ(HighLow(49, {1, 2, 3, 4, 5, 25}, "2"), notPassed);
}

TEST(HighLow, FullTableIsAFailure) { EXPECT_THROW(HighLowOK(*FullTableOf(1, 30), true), Failure); }

TEST(HighLow, MoreNumbersInALineThanTheTableHasColumnsIsAFailure) {
    EXPECT_THROW(HighLowOK(*Lottery(15, 49), true), Failure);
}

TEST(LongRun, FourConsecutiveNumbersFailAtStrengthThree) {
    EXPECT_TRUE(AfterLongRun(6, {{1, 2, 3, 4, 10, 20}}, "3 Long run filter").empty());
}

TEST(LongRun, ThreeAndThreeConsecutiveNumbersPassAtStrengthThree) {
    EXPECT_EQ(AfterLongRun(6, {{1, 2, 3, 10, 11, 12}}, "3").size(), 1U);
}

TEST(LongRun, ThreeConsecutiveNumbersFailAtStrengthTwo) {
    EXPECT_EQ(AfterLongRun(6, {{1, 2, 3, 10, 20, 30}, {1, 2, 10, 11, 20, 30}}, "2"),
              (std::vector<Row>{{1, 2, 10, 11, 20, 30}}));
}

TEST(LongRun, ExtraBallDoesNotLengthenARunOfSevenNumbers) {
    EXPECT_EQ(AfterLongRun(7, {{1, 10, 20, 30, 40, 45, 46, 47}}, "2").size(), 1U);
}

TEST(LongRun, StaleNumberBehindTheLineDoesNotLengthenItsRun) {
    EXPECT_EQ(AfterLongRun(5, {{1, 10, 20, 40, 41, 42}}, "2").size(), 1U);
}

TEST(LongRun, EmptySlotRemovesEveryLine) {
    EXPECT_TRUE(AfterLongRun(4, {{1, 10, 20, 30}, {2, 11, 21, 31}}, "").empty());
}

TEST(Prune, RemovesFailingLinesAndMovesTheOthersUp) {
    const auto state =
        LotteryWith(2, 49, {{1, 3}, {1, 30}, {2, 4}, {7, 9}, {3, 40}, {2, 6}, {5, 11}}, "1");
    PruneOddEven(*state);
    EXPECT_EQ(LinesOf(*state, 2), (std::vector<Row>{{1, 30}, {3, 40}}));
}

TEST(Prune, HighLowKeepsTheExtraBallWithItsLine) {
    const auto state =
        LotteryWith(2, 49, {{1, 3, 0, 0, 0, 0, 0, 5}, {1, 30, 0, 0, 0, 0, 0, 6}}, "1");
    PruneHighLow(*state);
    EXPECT_EQ(LinesOf(*state, 8), (std::vector<Row>{{1, 30, 0, 0, 0, 0, 0, 6}}));
}

TEST(Prune, EmptyTableIsHarmless) {
    for (const auto prune :
         {PruneOddEven, PruneHighLow, PruneLongRun, PruneHistory, PruneDuplicates}) {
        const auto state = LotteryWith(6, 49, {}, "1");
        prune(*state);
        EXPECT_EQ(AllLines(*state), Row(181 * 15, 0));
    }
}

TEST(Prune, EmptyFirstRowLetsTheStaleRowBelowMoveUp) {
    const auto state = LotteryWith(2, 49, {{0, 0}, {3, 40}, {0, 0}}, "1");
    PruneOddEven(*state);
    EXPECT_EQ(LinesOf(*state, 2), (std::vector<Row>{{3, 40}}));
}

TEST(RemoveLine, MovesColumns1To9AndNoOthers) {
    const auto state = Lottery(6, 49);
    for (int column = 0; column <= 14; ++column) {
        state->Lines(1, column) = 10;
        state->Lines(2, column) = 20;
    }
    RemoveLine(*state, 1);
    const std::int16_t* row = state->Lines.Row(1);
    EXPECT_EQ(Row(row, row + 15),
              (Row{10, 20, 20, 20, 20, 20, 20, 20, 20, 20, 10, 10, 10, 10, 10}));
    EXPECT_EQ(state->Lines(2, 1), 0);
    EXPECT_EQ(state->Lines(2, 10), 20);
}

TEST(RemoveLine, LeavesStaleRowsBelowTheEndMark) {
    const auto state = Lottery(2, 49);
    FillRows(state->Lines, {{1, 2}, {3, 4}, {0, 0}, {5, 6}});
    RemoveLine(*state, 1);
    EXPECT_EQ(LinesOf(*state, 2), (std::vector<Row>{{3, 4}}));
    EXPECT_EQ(state->Lines(3, 1), 0);
    EXPECT_EQ(state->Lines(4, 2), 6);
}

TEST(RemoveLine, FullTableIsAFailure) {
    const auto state = Lottery(2, 49);
    state->Lines.Fill(1);
    EXPECT_THROW(RemoveLine(*state, 1), Failure);
}

}  // namespace

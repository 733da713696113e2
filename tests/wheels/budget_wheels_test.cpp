// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/budget_wheels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/lines.h"
#include "tests/core/failures.h"
#include "tests/support/each_real_history.h"
#include "tests/wheels/plain_wheels.h"
#include "tests/wheels/wheel_support.h"
#include "wheels/patterns.h"

namespace {

using wheels::Boxes;
using wheels::Outcome;
using Line = std::vector<int>;
using Lines = std::vector<Line>;
using Texts = std::vector<std::string>;

/// Boxes in use that hold these texts, the rest grey.
Boxes Holding(const Texts& texts) { return BoxesOf(budget_wheels::boxCount, texts); }

Boxes Counting(int count) { return BoxesCounting(budget_wheels::boxCount, count); }

/// What the generate button does, for one size.
Outcome Play(State& state, Random& random, int option, const Boxes& boxes) {
    if (!budget_wheels::Prepare(state, boxes)) return Outcome::CheckInput;
    return budget_wheels::Generate(state, random, option, boxes);
}

TEST(BudgetWheels, HaveFourSizesWithTheirCaptions) {
    const Texts captions = {"Wheel   9 numbers in 3 lines", "Wheel 12 numbers in 4 lines",
                            "Wheel 15 numbers in 5 lines", "Wheel 18 numbers in 8 lines"};
    const std::array counts = {9, 12, 15, 18};
    for (std::size_t option = 0; option < captions.size(); ++option) {
        EXPECT_EQ(budget_wheels::OptionCaption(static_cast<int>(option)), captions[option]);
        EXPECT_EQ(budget_wheels::NumberCount(static_cast<int>(option)), counts[option]);
    }
    EXPECT_EQ(budget_wheels::optionCount, 4);
    EXPECT_THROW(budget_wheels::NumberCount(4), Failure);
}

TEST(BudgetWheels, OfNineNumbersMakeThreeLinesForSixPicks) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    EXPECT_EQ(Play(*state, random, 0, Counting(9)), Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 6),
              (Lines{{1, 2, 3, 4, 5, 6}, {4, 5, 6, 7, 8, 9}, {1, 2, 3, 7, 8, 9}}));
    EXPECT_EQ(state->Lines(1, 7), 0);
    EXPECT_EQ(state->Lines(1, 8), 0);
}

TEST(BudgetWheels, OfNineNumbersAddOneOfTheOthersForSevenPicks) {
    const Lines sixes = {{1, 2, 3, 4, 5, 6}, {4, 5, 6, 7, 8, 9}, {1, 2, 3, 7, 8, 9}};
    for (std::uint64_t seed = 0; seed < 50; ++seed) {
        const auto state = LotteryOf({.picks = 7, .maxPball = 9});
        Random random = RandomOf(seed);
        ASSERT_EQ(Play(*state, random, 0, Counting(9)), Outcome::Done);
        const Lines lines = LinesOf(*state, 8);
        ASSERT_EQ(lines.size(), sixes.size());
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const std::set<int> seven(lines[i].begin(), lines[i].begin() + 7);
            EXPECT_EQ(seven.size(), 7U);
            EXPECT_TRUE(std::ranges::includes(seven, sixes[i]));
            EXPECT_TRUE(*seven.begin() >= 1 && *seven.rbegin() <= 9);
            EXPECT_TRUE(lines[i][7] >= 1 && lines[i][7] <= 9);
        }
    }
}

TEST(BudgetWheels, OfTheLargestSizeMakeEightLinesWhoseFirstThreeHoldAllNumbers) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    ASSERT_EQ(Play(*state, random, 3, Counting(18)), Outcome::Done);
    const Lines lines = LinesOf(*state, 6);
    ASSERT_EQ(lines.size(), 8U);
    EXPECT_EQ(Lines(lines.begin(), lines.begin() + 3),
              (Lines{{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}, {13, 14, 15, 16, 17, 18}}));
}

TEST(BudgetWheels, CutTheSecondGroupForFivePicks) {
    const auto state = LotteryOf({.picks = 5});
    Random random = RandomOf(2);
    ASSERT_EQ(Play(*state, random, 0, Counting(9)), Outcome::Done);
    for (const Line& line : LinesOf(*state, 7)) {
        EXPECT_EQ(std::set<int>(line.begin(), line.begin() + 5).size(), 5U);
        EXPECT_EQ(line[5], 0);
        EXPECT_EQ(line[6], 0);
    }
}

TEST(BudgetWheels, CompareInSinglePrecisionWhichNumberTheyDrop) {
    const auto state = LotteryOf({.picks = 5});
    Random random = RandomOf(68716939);
    const double first = random.Next();
    ASSERT_GT(first, 0.5);
    ASSERT_EQ(static_cast<float>(first), 0.5F);
    random.Reset(68716939);
    Play(*state, random, 0, Counting(9));
    EXPECT_EQ(LinesOf(*state, 5)[0], (Line{1, 2, 3, 5, 6})) << "as for one half: not above it";
}

TEST(BudgetWheels, ReadTheBoxesOfTheSizeChosenOnly) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    Boxes boxes = Counting(9);
    boxes[9].text = "44";  // grey
    EXPECT_EQ(Play(*state, random, 0, boxes), Outcome::Done);
    EXPECT_EQ(state->Pool(9), 44) << "all boxes go into the pool";
    EXPECT_EQ(LinesOf(*state, 6).size(), 3U);
}

TEST(BudgetWheels, GoOnWithTheRandomNumbersFromWhereTheyStand) {
    const auto state = LotteryOf({.picks = 7, .maxPball = 9});
    int seedings = 0;
    Random random([&seedings] {
        ++seedings;
        return std::uint64_t{1};
    });
    random.Reset(7);
    Play(*state, random, 0, Counting(9));
    const auto first = LinesOf(*state, 8);
    Play(*state, random, 0, Counting(9));
    EXPECT_NE(LinesOf(*state, 8), first);
    random.Reset(7);
    Play(*state, random, 0, Counting(9));
    EXPECT_EQ(LinesOf(*state, 8), first) << "after a reset it is the same each time";
    EXPECT_EQ(seedings, 0);
}

TEST(BudgetWheels, DrawNothingForSixPicksWithoutAnExtraBall) {
    const auto state = LotteryOf({});
    Random random = RandomOf(5);
    Random same = RandomOf(5);
    Play(*state, random, 3, Counting(18));
    EXPECT_EQ(random.Next(), same.Next());
}

TEST(BudgetWheels, AreRefusedWithoutANumberInABoxInUse) {
    for (const char* text : {"", "0", "00", "abc", "-", "-0", ".", "  "}) {
        const auto state = LotteryOf({});
        Random random = RandomOf(1);
        state->Lines(1, 1) = 7;
        state->Pool(0) = 77;
        Boxes boxes = Counting(9);
        boxes[4].text = text;
        EXPECT_EQ(Play(*state, random, 0, boxes), Outcome::CheckInput) << text;
        EXPECT_EQ(AllCells(*state), std::vector<int>(181 * 15)) << "the lines are gone";
        EXPECT_EQ(state->Pool(0), 77) << "and nothing was read";
    }
}

TEST(BudgetWheels, AreRefusedForABoxBeforeTheLottery) {
    const auto state = LotteryOf({.picks = 4});
    EXPECT_FALSE(budget_wheels::Prepare(*state, Holding({"1", ""})));
    EXPECT_TRUE(budget_wheels::Prepare(*state, Counting(9)));
}

TEST(BudgetWheels, PlayNumbersThatTheLotteryDoesNotHave) {
    const auto state = LotteryOf({.maxNum = 10});
    Random random = RandomOf(1);
    EXPECT_EQ(Play(*state, random, 0, Holding({"1", "2", "3", "4", "5", "999", "12a", " 8", "+9"})),
              Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 6),
              (Lines{{1, 2, 3, 4, 5, 999}, {4, 5, 8, 9, 12, 999}, {1, 2, 3, 8, 9, 12}}));
}

TEST(BudgetWheels, TakeANumberTwiceThatWasTypedTwice) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    EXPECT_EQ(Play(*state, random, 0, Holding({"5", "5", "3", "4", "5", "6", "7", "8", "9"})),
              Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 6)[0], (Line{3, 4, 5, 5, 5, 6}));
}

TEST(BudgetWheels, RoundAFractionToTheEvenNeighbour) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    const Texts texts = {"2.5", "3.5", "1.4", "1.6", ".7", "6", "7", "8", "9"};
    EXPECT_EQ(Play(*state, random, 0, Holding(texts)), Outcome::Done);
    const Line pool = {2, 4, 1, 2, 1, 6};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(state->Pool(i), pool[static_cast<std::size_t>(i)]) << i;
}

TEST(BudgetWheels, LetANegativeNumberSortToTheFront) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    EXPECT_EQ(Play(*state, random, 0, Holding({"1", "2", "3", "4", "5", "6", "7", "-8", "9"})),
              Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 6),
              (Lines{{1, 2, 3, 4, 5, 6}, {-8, 4, 5, 6, 7, 9}, {-8, 1, 2, 3, 7, 9}}));
}

TEST(BudgetWheels, LetAFractionThatRoundsToNoughtEndTheResult) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    EXPECT_EQ(Play(*state, random, 0, Holding({"1", "2", "3", "4", "5", "6", "7", ".4", "9"})),
              Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 6), (Lines{{1, 2, 3, 4, 5, 6}}));
}

TEST(BudgetWheels, SeeThatThereIsNoSeventhNumberBeforeTheyLookForIt) {
    const Texts oneNumber(9, "5");
    Texts sixNumbers;
    for (int i = 0; i < 9; ++i) sixNumbers.push_back(std::to_string(i % 6 + 1));
    for (const Texts& texts : {oneNumber, sixNumbers}) {
        const auto state = LotteryOf({.picks = 7});
        Random random = RandomOf(1);
        EXPECT_EQ(Play(*state, random, 0, Holding(texts)), Outcome::NoOtherNumber);
        EXPECT_EQ(AllCells(*state), std::vector<int>(181 * 15));
    }
}

TEST(BudgetWheels, RefuseNoLineThatCanFindItsSeventhNumber) {
    // Six different numbers: line 1 holds 1 to 4 and finds 5 or 6, and so does each other line.
    const Texts texts = {"1", "1", "2", "3", "3", "4", "5", "5", "6"};
    for (std::uint64_t seed = 0; seed < 50; ++seed) {
        const auto state = LotteryOf({.picks = 7});
        Random random = RandomOf(seed);
        EXPECT_EQ(Play(*state, random, 0, Holding(texts)), Outcome::Done);
        EXPECT_EQ(LineCount(*state), 3);
    }
}

TEST(BudgetWheels, FindASeventhNumberThatStandsInTheLastBoxAlone) {
    // The first line holds 1 to 6 of boxes 0 to 5, and only box 8 differs from them.
    const auto state = LotteryOf({.picks = 7});
    Random random = RandomOf(1);
    ASSERT_EQ(Play(*state, random, 0, Holding({"1", "2", "3", "4", "5", "6", "1", "2", "7"})),
              Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 7)[0], (Line{1, 2, 3, 4, 5, 6, 7}));
}

TEST(BudgetWheels, LookForTheSeventhNumberAmongThoseOfTheSizeOnly) {
    Boxes boxes = Holding(Texts(9, "5"));
    boxes[9].text = "6";  // grey, but in the pool
    const auto state = LotteryOf({.picks = 7});
    Random random = RandomOf(1);
    EXPECT_EQ(Play(*state, random, 0, boxes), Outcome::NoOtherNumber);
}

TEST(BudgetWheels, AreNotForLotteriesOfFewerThanFivePicksOrMoreThanSeven) {
    for (const int picks : {0, 3, 4, 8, 9}) {
        const auto state = LotteryOf({.picks = picks});
        Random random = RandomOf(1);
        state->Pool(0) = 77;
        state->Lines(1, 1) = 7;
        EXPECT_EQ(Play(*state, random, 0, Counting(9)), Outcome::Refused) << picks;
        EXPECT_EQ(state->Lines(1, 1), 0) << "the lines are gone";
        EXPECT_EQ(state->Pool(0), 77) << "nothing was read";
        EXPECT_EQ(budget_wheels::HasTooFewPicks(*state), picks < 5);
    }
}

/// Compares each size for the current lottery with the steps one by one, on a random selection.
void ExpectEachSizeAsToldStepByStep(State& state) {
    for (int option = 0; option < budget_wheels::optionCount; ++option) {
        const wheels::Wheel& wheel = wheels::WheelAt(wheels::WheelList::Budget, option);
        Boxes boxes(budget_wheels::boxCount);
        wheels::ChooseSize(boxes, wheel.numbers, wheels::UnusedTexts::Emptied);
        Random selection = RandomOf(static_cast<std::uint64_t>(option));
        wheels::SelectFromZero(state, selection, boxes);
        PlainWheel expected{state.Picks, state.MaxNum, state.MaxPball};
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            expected.pool[i] = boxes[i].text.empty() ? 0 : std::stoi(boxes[i].text);
        }
        Random random = RandomOf(11);
        Random plainRandom = RandomOf(11);
        EXPECT_EQ(Play(state, random, option, boxes), Outcome::Done);
        expected.Budget(plainRandom, wheel.pattern, state.Picks, wheel.numbers);
        EXPECT_EQ(AllCells(state), expected.Cells()) << wheel.numbers;
        EXPECT_EQ(random.Next(), plainRandom.Next());
    }
}

TEST(BudgetWheels, OfEachSizeAreThoseToldStepByStep) {
    for (const int picks : {5, 6, 7}) {
        for (const int maxPball : {0, 14}) {
            const auto state = LotteryOf({.picks = picks, .maxPball = maxPball});
            ExpectEachSizeAsToldStepByStep(*state);
        }
    }
}

TEST(BudgetWheels, OfRealLotteriesAreThoseToldStepByStep) {
    const auto state = std::make_unique<State>();
    const auto check = [&state](const std::string& name) {
        SCOPED_TRACE(name);
        if (state->Picks >= 5) ExpectEachSizeAsToldStepByStep(*state);
    };
    if (!ForEachRealHistory(*state, check)) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace

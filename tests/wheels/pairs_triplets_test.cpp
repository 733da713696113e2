// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/pairs_triplets.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "core/failure.h"
#include "core/lines.h"
#include "tests/wheels/wheel_support.h"

namespace {

using wheels::Boxes;
using wheels::Outcome;
using Line = std::vector<int>;
using Lines = std::vector<Line>;
using Texts = std::vector<std::string>;

const Lines fourPairs = {{1, 2, 3, 4}, {1, 2, 5, 6}, {1, 2, 7, 8},
                         {3, 4, 5, 6}, {3, 4, 7, 8}, {5, 6, 7, 8}};

TEST(WheelingPairs, HasTheCaptionsOfTheLotterysPicks) {
    const Texts belowSix = {"Wheel 8 numbers in 6 lines",   "Wheel 10 numbers in 10 lines",
                            "Wheel 12 numbers in 15 lines", "Wheel 14 numbers in 21 lines",
                            "Wheel 16 numbers in 28 lines", "Wheel 18 numbers in 36 lines"};
    const Texts fromSix = {"Wheel 8 numbers in 3 lines",   "Wheel 10 numbers in 6 lines",
                           "Wheel 12 numbers in 10 lines", "Wheel 14 numbers in 15 lines",
                           "Wheel 16 numbers in 21 lines", "Wheel 18 numbers in 28 lines"};
    for (int option = 0; option < pairs::optionCount; ++option) {
        const auto index = static_cast<std::size_t>(option);
        for (const int picks : {3, 4, 5}) {
            EXPECT_EQ(pairs::OptionCaption(option, picks), belowSix[index]);
        }
        for (const int picks : {6, 7, 8}) {
            EXPECT_EQ(pairs::OptionCaption(option, picks), fromSix[index]);
        }
    }
}

TEST(WheelingPairs, AsksForTheNumbersOfTheSize) {
    EXPECT_EQ(pairs::Prompt(0), "   Enter 8 different pairs of numbers, starting with A:");
    EXPECT_EQ(pairs::Prompt(5), "   Enter 18 different pairs of numbers, starting with A:");
    for (int option = 0; option < 6; ++option) {
        EXPECT_EQ(pairs::NumberCount(option), 8 + 2 * option);
    }
}

TEST(WheelingPairs, OfFourPairsMakesSixLinesForFourPicks) {
    const auto state = LotteryOf({.picks = 4});
    Random random = RandomOf(1);
    Boxes boxes = BoxesCounting(pairs::boxCount, 8);
    EXPECT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 4), fourPairs);
    EXPECT_EQ(state->Lines(1, 5), 0);
    EXPECT_EQ(state->Lines(1, 8), 0);
}

TEST(WheelingPairs, OfFourPairsAddsARandomFifthNumberForFivePicks) {
    for (std::uint64_t seed = 0; seed < 200; ++seed) {
        const auto state = LotteryOf({.picks = 5, .maxNum = 9});
        Random random = RandomOf(seed);
        Boxes boxes = BoxesCounting(pairs::boxCount, 8);
        ASSERT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::Done);
        const Lines lines = LinesOf(*state, 5);
        ASSERT_EQ(lines.size(), 6U);
        for (std::size_t k = 0; k < 6; ++k) {
            const std::set<int> line(lines[k].begin(), lines[k].end());
            EXPECT_EQ(line.size(), 5U);
            for (const int number : fourPairs[k]) EXPECT_TRUE(line.contains(number));
            EXPECT_LE(*line.rbegin(), 9);
            EXPECT_EQ(lines[k], Line(line.begin(), line.end())) << "sorted";
        }
    }
}

TEST(WheelingPairs, OfFourPairsMakesThreeLinesForSixPicks) {
    const auto state = LotteryOf({.picks = 6});
    Random random = RandomOf(1);
    Boxes boxes = BoxesCounting(pairs::boxCount, 8);
    EXPECT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 7),
              (Lines{{1, 2, 3, 4, 7, 8, 0}, {1, 2, 5, 6, 7, 8, 0}, {3, 4, 5, 6, 7, 8, 0}}));
}

TEST(WheelingPairs, AddsASeventhNumberOutsideTheLineForSevenPicks) {
    for (std::uint64_t seed = 0; seed < 100; ++seed) {
        const auto state = LotteryOf({.picks = 7, .maxNum = 8, .maxPball = 3});
        Random random = RandomOf(seed);
        Boxes boxes = BoxesCounting(pairs::boxCount, 8);
        ASSERT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::Done);
        for (const Line& line : LinesOf(*state, 8)) {
            EXPECT_EQ(std::set<int>(line.begin(), line.begin() + 7).size(), 7U);
            EXPECT_GE(line[7], 1);
            EXPECT_LE(line[7], 3);
        }
    }
}

TEST(WheelingPairs, DrawsTheExtraBallForEveryLineByItself) {
    std::set<int> balls;
    const auto state = LotteryOf({.picks = 5, .maxPball = 14});
    Random random = RandomOf(1);
    Boxes boxes = BoxesCounting(pairs::boxCount, 18);
    ASSERT_EQ(pairs::Generate(*state, random, 5, boxes), Outcome::Done);
    for (const Line& line : LinesOf(*state, 8)) balls.insert(line[7]);
    EXPECT_GT(balls.size(), 5U);
    EXPECT_GE(*balls.begin(), 1);
    EXPECT_LE(*balls.rbegin(), 14);
}

TEST(WheelingPairs, OfThreePicksWritesFourColumnsAndSortsThree) {
    const auto state = LotteryOf({.picks = 3});
    Random random = RandomOf(1);
    Boxes boxes = BoxesOf(pairs::boxCount, {"8", "7", "6", "5", "4", "3", "2", "1"});
    EXPECT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 5)[0], (Line{6, 7, 8, 5, 0}));
}

TEST(WheelingPairs, OfEightPicksPlaysSixNumbersAndShowsNothing) {
    const auto state = LotteryOf({.picks = 8});
    Random random = RandomOf(1);
    Boxes boxes = BoxesCounting(pairs::boxCount, 8);
    EXPECT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::Done);
    EXPECT_EQ(LineCount(*state), 0) << "the empty columns are sorted to the front";
}

TEST(WheelingPairs, PlaysANumberTypedTwiceTwice) {
    const auto state = LotteryOf({.picks = 4});
    Random random = RandomOf(1);
    Boxes boxes = BoxesOf(pairs::boxCount, {"5", "2", "5", "4", "5", "6", "7", "8"});
    EXPECT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 4)[0], (Line{2, 4, 5, 5}));
}

TEST(WheelingPairs, RefusedLeavesNoLinesOfAnEarlierResult) {
    for (const char* text : {"", "0", "50"}) {
        const auto state = LotteryOf({.picks = 4});
        Random random = RandomOf(1);
        Boxes boxes = BoxesCounting(pairs::boxCount, 8);
        ASSERT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::Done);
        boxes[3].text = text;
        EXPECT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::CheckInput);
        EXPECT_EQ(AllCells(*state), std::vector<int>(181 * 15));
    }
}

TEST(WheelingPairs, IsNeverRefusedForAGreyBox) {
    const auto state = LotteryOf({.picks = 4});
    Random random = RandomOf(1);
    Boxes boxes = BoxesCounting(pairs::boxCount, 8);
    boxes[8].text = "777";
    EXPECT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::Done);
    EXPECT_EQ(boxes[8].text, "");
}

TEST(WheelingPairs, OfFourNumbersInAFieldOfFourFindsNoFifthAndEndsAtOnce) {
    const auto state = LotteryOf({.picks = 5, .maxNum = 4});
    Random random = RandomOf(1);
    Boxes boxes = BoxesOf(pairs::boxCount, {"1", "2", "3", "4", "1", "2", "3", "4"});
    EXPECT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::NoOtherNumber);
    EXPECT_EQ(AllCells(*state), std::vector<int>(181 * 15));
}

TEST(WheelingPairs, OfAFieldOfFourWithRepeatsInEveryLineFindsItsFifth) {
    const auto state = LotteryOf({.picks = 5, .maxNum = 4});
    Random random = RandomOf(1);
    Boxes boxes = BoxesOf(pairs::boxCount, {"1", "2", "1", "2", "1", "2", "1", "2"});
    EXPECT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::Done);
    EXPECT_EQ(LineCount(*state), 6);
}

TEST(WheelingPairs, SeedsFromTheClock) {
    const auto state = LotteryOf({.picks = 5});
    Boxes boxes = BoxesCounting(pairs::boxCount, 8);
    Random random([] { return 7U; });
    random.Reset(1);
    ASSERT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::Done);
    const std::vector<int> first = AllCells(*state);
    ASSERT_EQ(pairs::Generate(*state, random, 0, boxes), Outcome::Done);
    EXPECT_EQ(AllCells(*state), first);
}

TEST(WheelingPairs, OfASizeThatDoesNotExistFails) {
    const auto state = LotteryOf({.picks = 4});
    Random random = RandomOf(1);
    Boxes boxes = BoxesCounting(pairs::boxCount, 8);
    EXPECT_THROW(pairs::Generate(*state, random, 6, boxes), Failure);
}

TEST(WheelingTriplets, HasCaptionsAlignedWithBlanks) {
    const Texts captions = {"Wheel   9 numbers in   3 lines", "Wheel 12 numbers in   6 lines",
                            "Wheel 15 numbers in 10 lines",   "Wheel 18 numbers in 15 lines",
                            "Wheel 21 numbers in 21 lines",   "Wheel 24 numbers in 28 lines"};
    for (int option = 0; option < triplets::optionCount; ++option) {
        EXPECT_EQ(triplets::OptionCaption(option), captions[static_cast<std::size_t>(option)]);
    }
}

TEST(WheelingTriplets, AsksForTheNumbersOfTheSize) {
    EXPECT_EQ(triplets::Prompt(0),
              "   Enter 9 different numbers in groups of three, starting with group A:");
    EXPECT_EQ(triplets::Prompt(5),
              "   Enter 24 different numbers in groups of three, starting with group A:");
    for (int option = 0; option < 6; ++option) {
        EXPECT_EQ(triplets::NumberCount(option), 9 + 3 * option);
    }
}

TEST(WheelingTriplets, AdvisesOnThePicksOfTheLottery) {
    EXPECT_EQ(triplets::Advice(4), "4-pick lotteries are not ideal for this method.");
    EXPECT_EQ(triplets::Advice(5), "5-pick lotteries are not ideal for this method.");
    EXPECT_EQ(triplets::Advice(6), "6-pick lotteries are OK with Wheeling Triplets.");
    EXPECT_EQ(triplets::Advice(7), "7-pick lotteries are not ideal for this method.");
    EXPECT_EQ(triplets::Advice(3), std::nullopt);
    EXPECT_EQ(triplets::Advice(8), std::nullopt);
}

/// The lines of nine numbers 1 to 9 for so many picks.
Lines NineNumbers(int picks, int columns) {
    const auto state = LotteryOf({.picks = picks});
    Random random = RandomOf(1);
    Boxes boxes = BoxesCounting(triplets::boxCount, 9);
    EXPECT_EQ(triplets::Generate(*state, random, 0, boxes), Outcome::Done);
    return LinesOf(*state, columns);
}

TEST(WheelingTriplets, PlayTheFirstNumberOfTheSecondGroupForFourPicks) {
    EXPECT_EQ(NineNumbers(4, 5), (Lines{{1, 2, 3, 4, 0}, {1, 2, 3, 7, 0}, {4, 5, 6, 7, 0}}));
}

TEST(WheelingTriplets, PlayTheFirstTwoNumbersOfTheSecondGroupForFivePicks) {
    EXPECT_EQ(NineNumbers(5, 6),
              (Lines{{1, 2, 3, 4, 5, 0}, {1, 2, 3, 7, 8, 0}, {4, 5, 6, 7, 8, 0}}));
}

TEST(WheelingTriplets, PlayBothGroupsForSixPicks) {
    EXPECT_EQ(NineNumbers(6, 7),
              (Lines{{1, 2, 3, 4, 5, 6, 0}, {1, 2, 3, 7, 8, 9, 0}, {4, 5, 6, 7, 8, 9, 0}}));
}

TEST(WheelingTriplets, AddASeventhNumberOutsideTheLineForSevenPicks) {
    for (const Line& line : NineNumbers(7, 7)) {
        EXPECT_EQ(std::set<int>(line.begin(), line.end()).size(), 7U);
    }
}

TEST(WheelingTriplets, OfAllSizesMakeTheirLines) {
    const std::vector<int> lines = {3, 6, 10, 15, 21, 28};
    for (int option = 0; option < 6; ++option) {
        const auto state = LotteryOf({.picks = 6});
        Random random = RandomOf(1);
        Boxes boxes = BoxesCounting(triplets::boxCount, triplets::NumberCount(option));
        ASSERT_EQ(triplets::Generate(*state, random, option, boxes), Outcome::Done);
        EXPECT_EQ(LineCount(*state), lines[static_cast<std::size_t>(option)]);
    }
}

TEST(WheelingTriplets, EmptyTheBoxesThatASmallerSizeLeftFilled) {
    const auto state = LotteryOf({.picks = 6});
    Random random = RandomOf(1);
    Boxes boxes = BoxesCounting(triplets::boxCount, 12);
    wheels::ChooseSize(boxes, 9, wheels::UnusedTexts::Kept);
    EXPECT_EQ(boxes[9].text, "10");
    EXPECT_EQ(triplets::Generate(*state, random, 0, boxes), Outcome::Done);
    EXPECT_EQ(boxes[9].text, "");
    EXPECT_EQ(boxes[8].text, "9");
}

TEST(WheelingTriplets, RefusedLeaveNoLines) {
    const auto state = LotteryOf({.picks = 6});
    Random random = RandomOf(1);
    Boxes boxes = BoxesCounting(triplets::boxCount, 9);
    ASSERT_EQ(triplets::Generate(*state, random, 0, boxes), Outcome::Done);
    boxes[8].text = "50";
    EXPECT_EQ(triplets::Generate(*state, random, 0, boxes), Outcome::CheckInput);
    EXPECT_EQ(LineCount(*state), 0);
}

TEST(WheelingTriplets, OfAFieldOfSixFindNoSeventhAndEndAtOnce) {
    const auto state = LotteryOf({.picks = 7, .maxNum = 6});
    Random random = RandomOf(1);
    Boxes boxes = BoxesOf(triplets::boxCount, {"1", "2", "3", "4", "5", "6", "1", "2", "3"});
    EXPECT_EQ(triplets::Generate(*state, random, 0, boxes), Outcome::NoOtherNumber);
    EXPECT_EQ(AllCells(*state), std::vector<int>(181 * 15));
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/number_boxes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/core/failures.h"
#include "tests/wheels/wheel_support.h"

namespace {

using wheels::Boxes;
using Texts = std::vector<std::string>;

TEST(ChoiceOfSize, PutsTheFirstBoxesToUseAndEmptiesTheRest) {
    Boxes boxes = BoxesCounting(6, 6);
    wheels::ChooseSize(boxes, 4, wheels::UnusedTexts::Emptied);
    EXPECT_EQ(TextsOf(boxes), (Texts{"1", "2", "3", "4", "", ""}));
    for (std::size_t i = 0; i < 6; ++i) EXPECT_EQ(boxes[i].inUse, i < 4);
}

TEST(ChoiceOfSize, LeavesTheTextsOfTripletsUntilTheyAreGenerated) {
    Boxes boxes = BoxesCounting(6, 6);
    wheels::ChooseSize(boxes, 3, wheels::UnusedTexts::Kept);
    EXPECT_EQ(TextsOf(boxes), (Texts{"1", "2", "3", "4", "5", "6"}));
    EXPECT_FALSE(boxes[3].inUse);
    wheels::ChooseSize(boxes, 6, wheels::UnusedTexts::Kept);
    EXPECT_TRUE(boxes[5].inUse);
}

TEST(ChoiceOfSize, OfAllBoxesLeavesNoneGrey) {
    Boxes boxes(20);
    wheels::ChooseSize(boxes, 20, wheels::UnusedTexts::Emptied);
    for (const wheels::Box& box : boxes) EXPECT_TRUE(box.inUse);
    wheels::ChooseSize(boxes, 0, wheels::UnusedTexts::Emptied);
    for (const wheels::Box& box : boxes) EXPECT_FALSE(box.inUse);
}

TEST(AcceptedNumbers, DifferInTheirLimitsBetweenForms) {
    struct Row {
        const char* text;
        bool inField;
        bool aboveZero;
        bool number;
    };
    const std::vector<Row> rows = {
        {"1", true, true, true},    {"10", true, true, true},   {"11", false, true, true},
        {"0", false, false, false}, {"", false, false, false},  {"x1", false, false, false},
        {"7x", true, true, true},   {"-1", false, false, true}, {"0.4", false, false, true}};
    for (const auto& [text, inField, aboveZero, number] : rows) {
        const wheels::Box box{.text = text};
        EXPECT_EQ(wheels::IsInField(box, 10), inField) << text;
        EXPECT_EQ(wheels::IsAboveZero(box, 10), aboveZero) << text;
        EXPECT_EQ(wheels::HasNumber(box, 10), number) << text;
    }
}

TEST(ChangeOfLottery, EmptiesBoxesWhoseNumbersNoLongerExist) {
    Boxes boxes = BoxesOf(8, {"34", "35", "1", "0", "", "049", "-3"});
    wheels::EmptyInvalid(boxes, 34);
    EXPECT_EQ(TextsOf(boxes), (Texts{"34", "", "1", "", "", "", "", ""}));
}

TEST(ChangeOfLottery, LeavesValidTextAsTyped) {
    Boxes boxes = BoxesOf(3, {"05", "9x", "x9"});
    wheels::EmptyInvalid(boxes, 49);
    EXPECT_EQ(TextsOf(boxes), (Texts{"05", "9x", ""}));
}

TEST(ChangeOfLottery, LooksAtBoxesOutOfUseToo) {
    Boxes boxes = BoxesCounting(4, 4);
    wheels::ChooseSize(boxes, 2, wheels::UnusedTexts::Kept);
    wheels::EmptyInvalid(boxes, 3);
    EXPECT_EQ(TextsOf(boxes), (Texts{"1", "2", "3", ""}));
}

TEST(ReadingOfPairsAndTriplets, PutsTheNumbersIntoThePoolFromZero) {
    const auto state = LotteryOf({});
    Boxes boxes = BoxesOf(4, {"7", "08", "49"});
    EXPECT_TRUE(wheels::ReadAndEmptyUnused(*state, boxes));
    EXPECT_EQ(state->Pool(0), 7);
    EXPECT_EQ(state->Pool(1), 8);
    EXPECT_EQ(state->Pool(2), 49);
    EXPECT_EQ(state->Pool(3), 0);
}

TEST(ReadingOfPairsAndTriplets, AcceptsEqualNumbers) {
    const auto state = LotteryOf({});
    Boxes boxes = BoxesOf(2, {"7", "7"});
    EXPECT_TRUE(wheels::ReadAndEmptyUnused(*state, boxes));
}

TEST(ReadingOfPairsAndTriplets, RefusesWhatABoxInUseCannotHold) {
    for (const char* text : {"", "0", "50", "999", "x", "-1"}) {
        const auto state = LotteryOf({});
        Boxes boxes = BoxesOf(2, {"7", text});
        EXPECT_FALSE(wheels::ReadAndEmptyUnused(*state, boxes)) << text;
        EXPECT_EQ(boxes[1].text, text) << "what was refused stays to be corrected";
    }
}

TEST(ReadingOfPairsAndTriplets, EmptiesGreyBoxesAndIsNeverRefusedForThem) {
    const auto state = LotteryOf({});
    Boxes boxes = BoxesOf(4, {"1", "2", "300", "4"});
    wheels::ChooseSize(boxes, 2, wheels::UnusedTexts::Kept);
    EXPECT_TRUE(wheels::ReadAndEmptyUnused(*state, boxes));
    EXPECT_EQ(TextsOf(boxes), (Texts{"1", "2", "", ""}));
    EXPECT_EQ(state->Pool(2), 300) << "their old numbers still reach the pool";
}

TEST(ReadingOfPairsAndTriplets, EmptiesGreyBoxesEvenWhenRefused) {
    const auto state = LotteryOf({});
    Boxes boxes = BoxesOf(3, {"", "2", "3"});
    wheels::ChooseSize(boxes, 2, wheels::UnusedTexts::Kept);
    EXPECT_FALSE(wheels::ReadAndEmptyUnused(*state, boxes));
    EXPECT_EQ(TextsOf(boxes), (Texts{"", "2", ""}));
}

TEST(ReadingOfMatchWheels, RefusesNumbersOutsideTheFieldInBoxesInUseOnly) {
    const auto state = LotteryOf({.maxNum = 10});
    EXPECT_TRUE(wheels::ReadInRange(*state, BoxesOf(4, {"1", "10"})));
    EXPECT_FALSE(wheels::ReadInRange(*state, BoxesOf(4, {"1", "11"})));
    EXPECT_FALSE(wheels::ReadInRange(*state, BoxesOf(4, {"0", "10"})));
    EXPECT_FALSE(wheels::ReadInRange(*state, BoxesOf(4, {"", "10"})));
}

TEST(ReadingOfOwnWheels, HasNoUpperLimitAndLeavesTheRestOfThePool) {
    const auto state = LotteryOf({.maxNum = 10});
    state->Pool(2) = 77;
    EXPECT_TRUE(wheels::ReadFirst(*state, BoxesOf(4, {"1", "99", "3"}), 2));
    EXPECT_EQ(state->Pool(1), 99);
    EXPECT_EQ(state->Pool(2), 77);
    EXPECT_FALSE(wheels::ReadFirst(*state, BoxesOf(4, {"1", "0"}), 2));
    EXPECT_FALSE(wheels::ReadFirst(*state, BoxesOf(4, {"1", ""}), 2));
    EXPECT_FALSE(wheels::ReadFirst(*state, BoxesOf(4, {"-1", "2"}), 2));
}

TEST(ReadingOfBudgetWheels, AsksOnlyForANumberOtherThanZero) {
    EXPECT_TRUE(wheels::EachInUseHasNumber(BoxesOf(4, {"1", "99", "-4", "12a"})));
    EXPECT_FALSE(wheels::EachInUseHasNumber(BoxesOf(4, {"1", "0"})));
    EXPECT_FALSE(wheels::EachInUseHasNumber(BoxesOf(4, {"1", ""})));
    EXPECT_FALSE(wheels::EachInUseHasNumber(BoxesOf(4, {"1", "abc"})));
    EXPECT_TRUE(wheels::EachInUseHasNumber(BoxesOf(4, {"1"}))) << "grey boxes do not count";
}

TEST(ReadingOfBudgetWheels, CountsTwoDigitsAndALetterAsTheTwoDigits) {
    const auto state = LotteryOf({});
    wheels::ReadAll(*state, BoxesOf(2, {"12a", "abc"}));
    EXPECT_EQ(state->Pool(0), 12);
    EXPECT_EQ(state->Pool(1), 0);
}

TEST(Reading, OfANumberBeyondThePoolFails) {
    const auto state = LotteryOf({});
    wheels::ReadAll(*state, BoxesOf(2, {"32767", "-32768"}));
    EXPECT_EQ(state->Pool(0), 32767);
    EXPECT_EQ(state->Pool(1), -32768);
    EXPECT_EQ(FailureOf([&] { wheels::ReadAll(*state, BoxesOf(1, {"32768"})); }),
              "A number box holds \"32768\", which is too large");
}

using Selection = void (*)(State&, Random&, Boxes&);
constexpr Selection selections[] = {wheels::SelectFromOne, wheels::SelectFromZero};

TEST(RandomSelection, FillsBoxesInUseWithDifferentNumbersOfTheField) {
    for (const Selection select : selections) {
        for (std::uint64_t seed = 0; seed < 200; ++seed) {
            const auto state = LotteryOf({.maxNum = 20});
            Random random = RandomOf(seed);
            Boxes boxes(24);
            wheels::ChooseSize(boxes, 18, wheels::UnusedTexts::Emptied);
            select(*state, random, boxes);
            std::set<int> numbers;
            for (std::size_t i = 0; i < 18; ++i) numbers.insert(std::stoi(boxes[i].text));
            EXPECT_EQ(numbers.size(), 18U);
            EXPECT_GE(*numbers.begin(), 1);
            EXPECT_LE(*numbers.rbegin(), 20);
        }
    }
}

TEST(RandomSelection, LeavesBoxesOutOfUseAsTheyAre) {
    for (const Selection select : selections) {
        const auto state = LotteryOf({});
        Random random = RandomOf(3);
        Boxes boxes = BoxesOf(3, {"1", "2", "300"});
        wheels::ChooseSize(boxes, 2, wheels::UnusedTexts::Kept);
        select(*state, random, boxes);
        EXPECT_EQ(boxes[2].text, "300");
    }
}

TEST(RandomSelection, OfPairsWritesBeyondTheFieldWhatThePoolHeldBefore) {
    const auto state = LotteryOf({.maxNum = 4});
    Random random = RandomOf(3);
    state->Pool(5) = 41;
    state->Pool(7) = 43;
    Boxes boxes(7);
    wheels::SelectFromOne(*state, random, boxes);
    EXPECT_EQ(boxes[4].text, "41");
    EXPECT_EQ(boxes[5].text, "0");
    EXPECT_EQ(boxes[6].text, "43");
}

TEST(RandomSelection, OfOtherWheelsWritesBeyondTheFieldWhatThePoolHeldBefore) {
    const auto state = LotteryOf({.maxNum = 4});
    Random random = RandomOf(3);
    state->Pool(4) = 40;
    Boxes boxes(6);
    wheels::SelectFromZero(*state, random, boxes);
    EXPECT_EQ(boxes[4].text, "40");
    EXPECT_EQ(boxes[5].text, "0");
}

TEST(RandomSelection, ShufflesEachPlaceWithOneOfTheWholeField) {
    const auto state = LotteryOf({.maxNum = 30});
    Random random = RandomOf(9);
    Boxes boxes(18);
    wheels::SelectFromOne(*state, random, boxes);
    Random same = RandomOf(9);
    std::vector<int> pool(31);
    for (int i = 1; i <= 30; ++i) pool[static_cast<std::size_t>(i)] = i;
    for (std::size_t i = 1; i <= 30; ++i) {
        std::swap(pool[i], pool[static_cast<std::size_t>(30 * same.Next()) + 1]);
    }
    for (std::size_t i = 0; i < 18; ++i) EXPECT_EQ(boxes[i].text, std::to_string(pool[i + 1]));
}

TEST(RandomSelection, OfTheOtherFormShufflesTheSameWayOnePlaceLower) {
    const auto state = LotteryOf({.maxNum = 30});
    Boxes fromOne(18);
    Boxes fromZero(18);
    Random one = RandomOf(9);
    Random other = RandomOf(9);
    wheels::SelectFromOne(*state, one, fromOne);
    wheels::SelectFromZero(*state, other, fromZero);
    EXPECT_EQ(TextsOf(fromOne), TextsOf(fromZero));
    EXPECT_EQ(state->Pool(0), std::stoi(fromZero[0].text));
}

TEST(RandomSelection, OfAFieldBeyondThePoolFails) {
    const auto state = LotteryOf({.maxNum = 121});
    Random random = RandomOf(9);
    Boxes boxes(18);
    EXPECT_THROW(wheels::SelectFromOne(*state, random, boxes), Failure);
    EXPECT_NO_THROW(wheels::SelectFromZero(*state, random, boxes));
}

TEST(RandomOrder, KeepsTheNumbersAndWritesThemPlain) {
    for (std::uint64_t seed = 0; seed < 100; ++seed) {
        const auto state = LotteryOf({});
        Random random = RandomOf(seed);
        Boxes boxes = BoxesOf(6, {"05", "17", "9x"});
        wheels::MixOrder(*state, random, boxes);
        Texts texts = TextsOf(boxes);
        std::sort(texts.begin(), texts.end());
        EXPECT_EQ(texts, (Texts{"", "", "", "17", "5", "9"}));
    }
}

TEST(RandomOrder, ClosesInEmptyBoxesBetweenNumbersWithTheOthers) {
    std::set<Texts> seen;
    for (std::uint64_t seed = 0; seed < 200; ++seed) {
        const auto state = LotteryOf({});
        Random random = RandomOf(seed);
        Boxes boxes = BoxesOf(4, {"1", "", "3"});
        wheels::MixOrder(*state, random, boxes);
        seen.insert(TextsOf(boxes));
    }
    EXPECT_TRUE(seen.contains(Texts{"", "3", "1", ""}));
    EXPECT_TRUE(seen.contains(Texts{"3", "1", "", ""}));
}

TEST(RandomOrder, TakesNumbersOfGreyBoxesAlong) {
    std::set<std::string> first;
    for (std::uint64_t seed = 0; seed < 100; ++seed) {
        const auto state = LotteryOf({});
        Random random = RandomOf(seed);
        Boxes boxes = BoxesCounting(4, 4);
        wheels::ChooseSize(boxes, 2, wheels::UnusedTexts::Kept);
        wheels::MixOrder(*state, random, boxes);
        first.insert(boxes[0].text);
    }
    EXPECT_EQ(first, (std::set<std::string>{"1", "2", "3", "4"}));
}

TEST(RandomOrder, IsUnevenAsTheLastPlaceIsNeverDrawn) {
    // With two numbers both turns draw place 0: the first changes nothing, the second swaps.
    for (std::uint64_t seed = 0; seed < 50; ++seed) {
        const auto state = LotteryOf({});
        Random random = RandomOf(seed);
        Boxes boxes = BoxesOf(2, {"1", "2"});
        wheels::MixOrder(*state, random, boxes);
        EXPECT_EQ(TextsOf(boxes), (Texts{"2", "1"}));
    }
}

TEST(RandomOrder, MixesPlaceByPlaceBelowTheLast) {
    for (std::uint64_t seed = 0; seed < 100; ++seed) {
        const auto state = LotteryOf({});
        Random random = RandomOf(seed);
        Boxes boxes = BoxesCounting(20, 12);
        wheels::MixOrder(*state, random, boxes);
        Random same = RandomOf(seed);
        Texts expected = TextsOf(BoxesCounting(20, 12));
        for (std::size_t i = 0; i <= 11; ++i) {
            std::swap(expected[i], expected[static_cast<std::size_t>(same.Next() * 11)]);
        }
        EXPECT_EQ(TextsOf(boxes), expected);
    }
}

TEST(RandomOrder, GoesUpToALastNumberOfOne) {
    for (std::uint64_t seed = 0; seed < 50; ++seed) {
        const auto state = LotteryOf({});
        Random random = RandomOf(seed);
        Boxes boxes = BoxesOf(3, {"2", "1", "0"});
        wheels::MixOrder(*state, random, boxes);
        EXPECT_EQ(TextsOf(boxes), (Texts{"1", "2", ""}));
    }
}

TEST(RandomOrder, OfEmptyBoxesLeavesThemEmpty) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    Boxes boxes(3);
    boxes[1].text = "x";
    wheels::MixOrder(*state, random, boxes);
    EXPECT_EQ(TextsOf(boxes), (Texts{"", "", ""}));
}

TEST(RandomOrder, OfBudgetWheelsWritesAZeroBetweenNumbersAndStopsAtTheLast) {
    std::set<Texts> seen;
    for (std::uint64_t seed = 0; seed < 200; ++seed) {
        const auto state = LotteryOf({});
        Random random = RandomOf(seed);
        Boxes boxes = BoxesOf(5, {"1", "", "3", "", "abc"});
        wheels::MixOrderUpToLast(*state, random, boxes);
        EXPECT_EQ(boxes[3].text, "");
        EXPECT_EQ(boxes[4].text, "abc") << "boxes behind the last number are not written";
        seen.insert(TextsOf(boxes));
    }
    EXPECT_TRUE(seen.contains(Texts{"0", "3", "1", "", "abc"}));
}

TEST(RandomOrder, OfBudgetWheelsKeepsANegativeNumberAndOthersEmptyItsBox) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    Boxes boxes = BoxesOf(2, {"-4", "3"});
    wheels::MixOrderUpToLast(*state, random, boxes);
    EXPECT_EQ(TextsOf(boxes), (Texts{"3", "-4"}));
    wheels::MixOrder(*state, random, boxes);
    EXPECT_EQ(TextsOf(boxes), (Texts{"3", ""}));
}

TEST(RandomOrder, OfBudgetWheelsWithoutNumbersWritesAZeroIntoTheFirstBox) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    Boxes boxes(3);
    wheels::MixOrderUpToLast(*state, random, boxes);
    EXPECT_EQ(TextsOf(boxes), (Texts{"0", "", ""}));
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/guaranteed_wheels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/lines.h"
#include "tests/wheels/plain_wheels.h"
#include "tests/wheels/wheel_support.h"

namespace {

using guaranteed_wheels::Check;
using guaranteed_wheels::ItemText;
using guaranteed_wheels::Refusal;
using guaranteed_wheels::SelectAtRandom;
using guaranteed_wheels::Selection;
using wheels::FamilyOf;
using wheels::Outcome;
using wheels::WheelAt;
using wheels::WheelList;

constexpr WheelList lists[] = {WheelList::ThreeForSix, WheelList::ThreeForThree,
                               WheelList::FiveForSix};

std::vector<int> Chosen(const Selection& selection) {
    std::vector<int> numbers;
    for (int number = 0; number <= 60; ++number) {
        if (selection[static_cast<std::size_t>(number)]) numbers.push_back(number);
    }
    return numbers;
}

TEST(GuaranteedWheels, AreListedByTheirNumbersAndLines) {
    EXPECT_EQ(ItemText(WheelList::ThreeForSix, 0), "21 numbers / 15 lines");
    EXPECT_EQ(ItemText(WheelList::ThreeForSix, 8), "34 numbers / 65 lines");
    EXPECT_EQ(ItemText(WheelList::ThreeForSix, 19), "48 numbers / 165 lines");
    EXPECT_EQ(ItemText(WheelList::ThreeForThree, 0), "8 numbers / 4 lines");
    EXPECT_EQ(ItemText(WheelList::ThreeForThree, 9), "18 numbers / 48 lines");
    EXPECT_EQ(ItemText(WheelList::FiveForSix, 0), "12 numbers / 68 lines");
    EXPECT_EQ(ItemText(WheelList::FiveForSix, 1), "13 numbers / 116 lines");
}

TEST(GuaranteedWheels, TellTheNumbersOfTheirListText) {
    EXPECT_EQ(guaranteed_wheels::PickText("21 numbers / 15 lines"), "Pick 21 numbers.");
    EXPECT_EQ(guaranteed_wheels::UsesText("21 numbers / 15 lines"), "Uses 15 lines.");
    EXPECT_EQ(guaranteed_wheels::NumberCount("8 numbers / 4 lines"), 8);
    for (const WheelList list : lists) {
        for (int item = 0; item < static_cast<int>(FamilyOf(list).items.size()); ++item) {
            const std::string text = ItemText(list, item);
            EXPECT_EQ(guaranteed_wheels::NumberCount(text), WheelAt(list, item).numbers);
        }
    }
}

TEST(GuaranteedWheels, TakeTheChosenNumbersInAscendingOrder) {
    const auto state = LotteryOf({});
    state->Pool(0) = 99;
    state->Pool(4) = 99;
    Selection selection{};
    for (const std::size_t number : {60U, 7U, 1U}) selection[number] = true;
    EXPECT_EQ(guaranteed_wheels::TakeSelection(*state, selection), 3);
    EXPECT_EQ((std::vector<int>{state->Pool(0), state->Pool(1), state->Pool(2), state->Pool(3),
                                state->Pool(4)}),
              (std::vector<int>{99, 1, 7, 60, 99}));
    EXPECT_EQ(guaranteed_wheels::TakeSelection(*state, Selection{}), 0);
}

TEST(GuaranteedWheels, AreRefusedForTheCountFirstThenForTheLotterysNumbersThenForItsPicks) {
    const auto small = LotteryOf({.picks = 4, .maxNum = 20});
    EXPECT_EQ(Check(*small, 20, 21), Refusal::WrongCount);
    EXPECT_EQ(Check(*small, 22, 21), Refusal::WrongCount);
    EXPECT_EQ(Check(*small, 21, 21), Refusal::TooManyNumbers);
    EXPECT_EQ(Check(*small, 20, 20), Refusal::TooFewPicks);
    EXPECT_EQ(Check(*LotteryOf({.picks = 5, .maxNum = 20}), 20, 20), Refusal::None);
    EXPECT_EQ(guaranteed_wheels::CountMessage(20, 21),
              " 20 numbers picked. You need 21 for this wheel.    ");
}

TEST(GuaranteedWheels, ChooseDifferentNumbersOfTheLotteryAtRandom) {
    const auto state = LotteryOf({.maxNum = 45});
    std::vector<int> seen(46);
    for (std::uint64_t seed = 0; seed < 300; ++seed) {
        Random random = RandomOf(seed);
        const std::vector<int> numbers = Chosen(SelectAtRandom(*state, random, 21));
        EXPECT_EQ(numbers.size(), 21U);
        for (const int number : numbers) ++seen.at(static_cast<std::size_t>(number));
    }
    EXPECT_EQ(seen[0], 0);
    for (std::size_t number = 1; number <= 45; ++number) EXPECT_GT(seen[number], 80) << number;
}

TEST(GuaranteedWheels, ChooseTheFirstPlacesOfTheShuffle) {
    const auto state = LotteryOf({.maxNum = 34});
    Random random = RandomOf(2);
    const Selection selection = SelectAtRandom(*state, random, 8);
    std::vector<int> first;
    for (int place = 1; place <= 8; ++place) first.push_back(state->Pool(place));
    EXPECT_FALSE(std::ranges::is_sorted(first));
    std::ranges::sort(first);
    EXPECT_EQ(Chosen(selection), first);
}

TEST(GuaranteedWheels, ChooseWhatThePoolHoldsBehindTheNumbersOfTheLottery) {
    const auto state = LotteryOf({.maxNum = 4});
    state->Pool(5) = 0;
    state->Pool(6) = 60;
    state->Pool(7) = 61;
    state->Pool(8) = -3;
    state->Pool(9) = 2;
    Random random = RandomOf(1);
    EXPECT_EQ(Chosen(SelectAtRandom(*state, random, 9)), (std::vector<int>{1, 2, 3, 4, 60}));
}

TEST(GuaranteedWheels, ChooseNothingBeyondTheBoard) {
    const auto state = LotteryOf({.maxNum = 90});
    Random random = RandomOf(1);
    const std::vector<int> numbers = Chosen(SelectAtRandom(*state, random, 48));
    EXPECT_LT(numbers.size(), 48U);
    EXPECT_LE(numbers.back(), 60);
}

TEST(GuaranteedWheels, MixOnFromTryToTryAsToldStepByStep) {
    for (const WheelList list : lists) {
        for (int item = 0; item < static_cast<int>(FamilyOf(list).items.size()); ++item) {
            for (int picks = 5; picks <= 7; ++picks) {
                const auto& wheel = WheelAt(list, item);
                const auto state = LotteryOf({.picks = picks, .maxNum = 49, .maxPball = 5});
                PlainWheel plain{picks, 49, 5};
                for (int i = 1; i <= 49; ++i) {
                    state->Pool(i) = static_cast<std::int16_t>(50 - i);
                    plain.pool[static_cast<std::size_t>(i)] = 50 - i;
                }
                Random random = RandomOf(11);
                Random plainRandom = RandomOf(11);
                std::vector<int> cells;
                for (int attempt = 1; attempt <= 2; ++attempt) {
                    cells.clear();
                    EXPECT_EQ(
                        guaranteed_wheels::PlayLotto(*state, random, wheel.pattern, wheel.numbers),
                        Outcome::Done);
                    plain.Guaranteed(plainRandom, wheel.pattern, wheel.numbers);
                }
                for (const auto& line : plain.lines) {
                    cells.insert(cells.end(), line.begin(), line.end());
                }
                EXPECT_EQ(AllCells(*state), cells) << wheel.pattern;
                EXPECT_EQ(random.Next(), plainRandom.Next());
            }
        }
    }
}

TEST(GuaranteedWheels, PlayTheChosenNumbersOnly) {
    const auto state = LotteryOf({});
    Selection selection{};
    for (std::size_t number = 40; number <= 47; ++number) selection[number] = true;
    ASSERT_EQ(guaranteed_wheels::TakeSelection(*state, selection), 8);
    Random random = RandomOf(1);
    guaranteed_wheels::PlayLotto(*state, random, WheelAt(WheelList::ThreeForThree, 0).pattern, 8);
    for (const auto& line : LinesOf(*state, 6)) {
        EXPECT_GE(std::ranges::min(line), 40);
        EXPECT_LE(std::ranges::max(line), 47);
    }
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/proof.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/wheels/wheel_support.h"
#include "wheels/guaranteed_wheels.h"

namespace {

using wheels::CheckedText;
using wheels::LeftText;
using wheels::WheelList;

TEST(Proof, SaysThatAllSelectionsHaveTheirMatch) {
    EXPECT_EQ(CheckedText(WheelList::ThreeMatch, 0, 6),
              "Checked: all 38,760 selections of 6 from 20 numbers have a 3-match.");
    EXPECT_EQ(CheckedText(WheelList::ThreeMatch, 10, 6),
              "Checked: all 792 selections of 5 from 12 numbers have a 3-match.");
    EXPECT_EQ(CheckedText(WheelList::FourMatch, 0, 6),
              "Checked: all 35 selections of 4 from 7 numbers have a 4-match.");
    EXPECT_EQ(CheckedText(WheelList::ThreeForSix, 19, 6),
              "Checked: all 12,271,512 selections of 6 from 48 numbers have a 3-match.");
}

TEST(Proof, CountsWhatAWheelLeavesOutAndNamesTheFirst) {
    EXPECT_EQ(CheckedText(WheelList::ThreeForSix, 8, 6),
              "Checked: 1,341,880 of 1,344,904 selections of 6 from 34 numbers have a 3-match; "
              "3,024 have none, such as numbers 4, 10, 11, 17, 18 and 29 of the wheel.");
    EXPECT_EQ(CheckedText(WheelList::FiveForSix, 1, 6),
              "Checked: 1,715 of 1,716 selections of 6 from 13 numbers have a 5-match; 1 has "
              "none: numbers 1, 3, 8, 10, 12 and 13 of the wheel.");
}

TEST(Proof, CountsFiveNumbersDrawnAndFiveInEachLineForFivePicks) {
    EXPECT_EQ(CheckedText(WheelList::ThreeMatch, 0, 5),
              "Checked: 7,672 of 15,504 selections of 5 from 20 numbers have a 3-match; 7,832 have "
              "none, such as numbers 1, 2, 7, 8 and 12 of the wheel. This is the wheel as a pick-5 "
              "lottery plays it, without the sixth number of each line.");
    const wheels::Promise four = wheels::PromiseOf(WheelList::FourMatch, 0, 5);
    EXPECT_EQ(four.drawn, 4) << "four of the numbers are enough as before";
    EXPECT_EQ(four.lines.front(), 0b11111U);
}

TEST(Proof, LeavesTheRandomSeventhNumberOut) {
    EXPECT_EQ(CheckedText(WheelList::ThreeMatch, 5, 7),
              "Checked: all 5,005 selections of 6 from 15 numbers have a 3-match. This counts the "
              "six numbers that the wheel gives each line, not the random ones.");
}

TEST(Proof, SpeaksOfSixPicksWhereTheLotteryIsRefused) {
    EXPECT_EQ(CheckedText(WheelList::ThreeForThree, 0, 4),
              "Checked: all 56 selections of 3 from 8 numbers have a 3-match. This is the wheel as "
              "a pick-6 lottery plays it.");
}

TEST(Proof, SaysThatNoSelectionHasAMatch) {
    EXPECT_EQ(CheckedText({.lines = {}, .numbers = 5, .drawn = 2, .matched = 1}),
              "Checked: 0 of 10 selections of 2 from 5 numbers have a 1-match; 10 have none, such "
              "as numbers 1 and 2 of the wheel.");
}

/// A lottery whose table holds these lines.
std::unique_ptr<State> StateOf(int picks, const std::vector<std::vector<int>>& lines) {
    auto state = LotteryOf({.picks = picks});
    int row = 1;
    for (const auto& line : lines) {
        int column = 1;
        for (const int number : line) {
            state->Lines(row, column++) = static_cast<std::int16_t>(number);
        }
        ++row;
    }
    return state;
}

TEST(ProofOfLinesLeft, CountsThemForTheNumbersThatWereWheeled) {
    const wheels::Played played{.numbers = {40, 10, 30, 20, 50}, .drawn = 3, .matched = 2};
    EXPECT_EQ(LeftText(*StateOf(4, {{10, 20, 30, 40}, {20, 30, 40, 50}}), played),
              "Checked: all 10 selections of 3 from 5 numbers have a 2-match in the 2 lines left.");
    EXPECT_EQ(LeftText(*StateOf(4, {{10, 20, 0, 0}}), played),
              "Checked: 3 of 10 selections of 3 from 5 numbers have a 2-match in the 1 line left; "
              "7 have none, such as 10, 30 and 40.");
    EXPECT_EQ(LeftText(*StateOf(4, {}), played),
              "Checked: 0 of 10 selections of 3 from 5 numbers have a 2-match in the 0 lines left; "
              "10 have none, such as 10, 20 and 30.");
}

TEST(ProofOfLinesLeft, AgreesWithTheWheelWhereNoLineIsGone) {
    const auto state = LotteryOf({});
    Random random = RandomOf(3);
    for (int place = 1; place <= 34; ++place) {
        state->Pool(place) = static_cast<std::int16_t>(50 - place);
    }
    guaranteed_wheels::PlayLotto(*state, random, wheels::WheelAt(WheelList::ThreeForSix, 8).pattern,
                                 34);
    const std::string left =
        LeftText(*state, {.numbers = wheels::PoolNumbers(*state, 1, 34), .drawn = 6, .matched = 3});
    const std::string start =
        "Checked: 1,341,880 of 1,344,904 selections of 6 from 34 numbers have a 3-match in the 65 "
        "lines left; 3,024 have none, such as ";
    EXPECT_EQ(left.substr(0, start.size()), start);
}

TEST(ProofOfLinesLeft, CountsARandomNumberOnlyWhereItWasWheeledAndNoExtraBall) {
    const wheels::Played played{.numbers = {1, 2, 3}, .drawn = 3, .matched = 3};
    EXPECT_EQ(LeftText(*StateOf(4, {{1, 2, 40, 3}}), played),
              "Checked: all 1 selections of 3 from 3 numbers have a 3-match in the 1 line left.");
    EXPECT_EQ(LeftText(*StateOf(4, {{1, 2, 40, 41, 0, 0, 0, 3}}), played),
              "Checked: 0 of 1 selections of 3 from 3 numbers have a 3-match in the 1 line left; 1 "
              "has none: 1, 2 and 3.");
}

TEST(ProofOfLinesLeft, CountsANumberThatStandsTwiceOnce) {
    EXPECT_EQ(
        LeftText(*StateOf(4, {{7, 7, 8, 9}}), {.numbers = {7, 7, 8, 9}, .drawn = 2, .matched = 2}),
        "Checked: all 3 selections of 2 from 3 numbers have a 2-match in the 1 line left.");
    EXPECT_EQ(
        LeftText(*StateOf(4, {{7, 7, 7, 8}}), {.numbers = {7, 7, 8}, .drawn = 3, .matched = 2}), "")
        << "fewer numbers than are drawn";
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/proof.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using wheels::CheckedText;
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

}  // namespace

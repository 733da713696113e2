// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/match_wheels.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/lines.h"
#include "tests/wheels/plain_wheels.h"
#include "tests/wheels/wheel_support.h"

namespace {

using match_wheels::Generate;
using match_wheels::ItemText;
using match_wheels::Sentence;
using wheels::FamilyOf;
using wheels::Outcome;
using wheels::WheelAt;
using wheels::WheelList;
using Line = std::vector<int>;

std::string SentenceOf(WheelList list, int item) {
    return Sentence(list, item, WheelAt(list, item).pattern);
}

std::vector<std::string> Items(WheelList list) {
    std::vector<std::string> items;
    for (int item = 0; item < static_cast<int>(FamilyOf(list).items.size()); ++item) {
        items.push_back(ItemText(list, item));
    }
    return items;
}

TEST(MatchWheels, AreListedByTheNumbersDrawnAndChosen) {
    EXPECT_EQ(Items(WheelList::ThreeMatch),
              (std::vector<std::string>{" 6 from 20", " 6 from 19", " 6 from 18", " 6 from 17",
                                        " 6 from 16", " 6 from 15", " 3 from 10", " 4 from 10",
                                        " 4 from 11", " 4 from 12", " 5 from 12", " 5 from 14",
                                        " 5 from 16"}));
    EXPECT_EQ(Items(WheelList::FourMatch),
              (std::vector<std::string>{" 4 from 7", " 4 from 8", " 4 from 9", " 4 from 10",
                                        " 5 from 9", " 5 from 10", " 5 from 11", " 5 from 12",
                                        " 6 from 10", " 6 from 11", " 6 from 12", " 6 from 13",
                                        " 6 from 14", " 6 from 15"}));
}

TEST(MatchWheels, SayWhatTheyPromise) {
    EXPECT_EQ(SentenceOf(WheelList::ThreeMatch, 0),
              "If your numbers contain 6 numbers in the lottery draw result you will match at "
              "least 3 in one or more lines. This wheel requires 10 lottery entries.");
    EXPECT_EQ(SentenceOf(WheelList::ThreeMatch, 6),
              "If your numbers contain any 3 of the 6 numbers in the lottery draw result you will "
              "match at least 3 in one or more lines. This wheel requires 10 lottery entries.");
    EXPECT_EQ(SentenceOf(WheelList::ThreeMatch, 10),
              "If your numbers contain any 5 of the 6 numbers in the lottery draw result you will "
              "match at least 3 in one or more lines. This wheel requires 2 lottery entries.");
    EXPECT_EQ(SentenceOf(WheelList::FourMatch, 0),
              "If your numbers contain 4 of the 6 numbers in the lottery draw result,  you will "
              "match at least 4 in one or more lines. This wheel requires 5 lottery entries.");
    EXPECT_EQ(SentenceOf(WheelList::FourMatch, 8),
              "If your numbers contain 6 numbers in the lottery draw result,  you will match at "
              "least 4 in one or more lines. This wheel requires 3 lottery entries.");
}

TEST(MatchWheels, OpenEachSentenceByTheNumbersDrawn) {
    const std::vector<std::string> three = {"6",
                                            "6",
                                            "6",
                                            "6",
                                            "6",
                                            "6",
                                            "any 3 of the 6",
                                            "any 4 of the 6",
                                            "any 4 of the 6",
                                            "any 4 of the 6",
                                            "any 5 of the 6",
                                            "any 5 of the 6",
                                            "any 5 of the 6"};
    const std::vector<std::string> four = {"4 of the 6", "4 of the 6", "4 of the 6", "4 of the 6",
                                           "5 of the 6", "5 of the 6", "5 of the 6", "5 of the 6",
                                           "6",          "6",          "6",          "6",
                                           "6",          "6"};
    const auto expect = [](WheelList list, const std::vector<std::string>& openings) {
        for (std::size_t item = 0; item < openings.size(); ++item) {
            const std::string start = "If your numbers contain " + openings[item] + " numbers in ";
            EXPECT_EQ(SentenceOf(list, static_cast<int>(item)).substr(0, start.size()), start);
        }
    };
    expect(WheelList::ThreeMatch, three);
    expect(WheelList::FourMatch, four);
}

TEST(MatchWheels, SayLessWhereNoWheelIsChosen) {
    EXPECT_EQ(Sentence(WheelList::FourMatch, -1, "ABCDEFGHIJKL"),
              " numbers in the lottery draw result,  you will match at least 4 in one or more "
              "lines. This wheel requires 2 lottery entries.");
    EXPECT_EQ(match_wheels::Prompt(20), "   Pick 20 numbers:");
    EXPECT_EQ(match_wheels::Prompt(7), "   Pick 7 numbers:");
}

TEST(MatchWheels, SuitLotteriesOfFivePicksAtLeast) {
    EXPECT_FALSE(match_wheels::Suits(*LotteryOf({.picks = 4})));
    EXPECT_TRUE(match_wheels::Suits(*LotteryOf({.picks = 5})));
}

TEST(MatchWheels, MakeTheTwoLinesOfTwelveNumbers) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    const auto pattern = WheelAt(WheelList::ThreeMatch, 10).pattern;
    EXPECT_EQ(Generate(*state, random, pattern, BoxesCounting(20, 12)), Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 7),
              (std::vector<Line>{{1, 2, 3, 4, 5, 6, 0}, {7, 8, 9, 10, 11, 12, 0}}));
}

TEST(MatchWheels, GiveTheNumbersToTheLettersInTheOrderOfTheBoxes) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    const wheels::Boxes boxes =
        BoxesOf(20, {"49", "48", "47", "46", "45", "44", "12", "11", "10", "9", "8", "7"});
    EXPECT_EQ(Generate(*state, random, "ABCDEFGHIJKL", boxes), Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 6),
              (std::vector<Line>{{44, 45, 46, 47, 48, 49}, {7, 8, 9, 10, 11, 12}}));
}

TEST(MatchWheels, LoseTheSixthLetterForFivePicks) {
    const auto state = LotteryOf({.picks = 5, .maxNum = 34});
    Random random = RandomOf(1);
    const auto pattern = WheelAt(WheelList::FourMatch, 8).pattern;
    EXPECT_EQ(Generate(*state, random, pattern, BoxesCounting(20, 10)), Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 6),
              (std::vector<Line>{{1, 3, 5, 6, 7, 0}, {2, 3, 4, 7, 8, 0}, {1, 2, 4, 5, 6, 0}}));
}

TEST(MatchWheels, LeaveTheLinesAloneWhereABoxIsWrong) {
    for (const char* wrong : {"", "0", "50", "999"}) {
        const auto state = LotteryOf({});
        Random random = RandomOf(1);
        state->Lines(1, 1) = 9;
        wheels::Boxes boxes = BoxesCounting(20, 7);
        boxes[6].text = wrong;
        EXPECT_EQ(Generate(*state, random, "ABCDEF", boxes), Outcome::CheckInput) << wrong;
        EXPECT_EQ(state->Lines(1, 1), 9);
        EXPECT_EQ(state->Pool(0), 1) << "the boxes were read all the same";
    }
}

TEST(MatchWheels, PassOverWhatStandsInBoxesOutOfUse) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    wheels::Boxes boxes = BoxesCounting(20, 7);
    boxes[7].text = "99";
    EXPECT_EQ(Generate(*state, random, "ABCDEG", boxes), Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 6), (std::vector<Line>{{1, 2, 3, 4, 5, 7}}));
}

TEST(MatchWheels, PlayANumberTypedTwiceTwice) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    EXPECT_EQ(Generate(*state, random, "ABCDEF", BoxesOf(20, {"9", "9", "3", "9", "1", "2"})),
              Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 6), (std::vector<Line>{{1, 2, 3, 9, 9, 9}}));
}

TEST(MatchWheels, NeitherSeedNorKeepOldLines) {
    const auto state = LotteryOf({.picks = 7, .maxPball = 9});
    state->Lines.Fill(8);
    Random random = RandomOf(3);
    Random same = RandomOf(3);
    EXPECT_EQ(Generate(*state, random, "ABCDEF", BoxesCounting(20, 6)), Outcome::Done);
    PlainWheel plain{7, 49, 9};
    for (int i = 0; i < 6; ++i) plain.pool[static_cast<std::size_t>(i)] = i + 1;
    plain.SixLetters(same, "ABCDEF", 65);
    EXPECT_EQ(random.Next(), same.Next());
    EXPECT_EQ(state->Lines(1, 8), plain.lines[1][8]);
    EXPECT_EQ(state->Lines(2, 1), 0);
    EXPECT_EQ(state->Lines(3, 1), 0) << "all rows were cleared";
}

TEST(MatchWheels, SayThatNoSeventhNumberIsLeft) {
    const auto state = LotteryOf({.picks = 7, .maxNum = 6});
    Random random = RandomOf(1);
    EXPECT_EQ(Generate(*state, random, "ABCDEF", BoxesCounting(20, 6)), Outcome::NoOtherNumber);
    EXPECT_EQ(LineCount(*state), 0);
}

}  // namespace

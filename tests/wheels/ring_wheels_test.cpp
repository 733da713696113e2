// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/ring_wheels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "core/lines.h"
#include "tests/core/failures.h"
#include "tests/support/each_real_history.h"
#include "tests/wheels/plain_rings.h"
#include "tests/wheels/wheel_support.h"

namespace {

using hot_numbers::Mode;
using wheels::Outcome;
using wheels::Ring;
using Line = std::vector<int>;
using Lines = std::vector<Line>;

/// Every choice of both lists.
std::vector<Ring> AllRings() {
    std::vector<Ring> rings;
    for (int numbers = wheels::fewestRingNumbers; numbers <= wheels::mostRingNumbers; ++numbers) {
        for (int interval = 1; interval <= wheels::widestInterval; ++interval) {
            rings.push_back({.numbers = numbers, .interval = interval});
        }
    }
    return rings;
}

std::string NameOf(const Ring& ring) {
    return std::to_string(ring.numbers) + " numbers, interval " + std::to_string(ring.interval);
}

/// Puts 1, 2, 3 ... into `Pool` from index `first` on.
void FillPool(State& state, int first, int count) {
    for (int i = 0; i < count; ++i) state.Pool(first + i) = static_cast<std::int16_t>(i + 1);
}

/// Draws in which number n comes up more often than n + 1, for n below `highest`: one number a
/// draw, so the lottery's picks are 1 while they are counted. The ranking is 1, 2, 3 ...
void DrawLowNumbersMost(State& state, int highest) {
    int row = 0;
    for (int number = 1; number <= highest; ++number) {
        for (int time = number; time <= highest; ++time) {
            state.Draws(++row, 1) = static_cast<std::int16_t>(number);
            state.Draws(row, 8) = static_cast<std::int16_t>(number);
        }
    }
}

/// The history as the plain version takes it.
Lines DrawsOf(const State& state) {
    Lines draws;
    for (int row = 1; state.Draws(row, 1) >= 1; ++row) {
        Line& draw = draws.emplace_back();
        for (int column = 0; column <= 8; ++column) draw.push_back(state.Draws(row, column));
    }
    return draws;
}

TEST(HotWheelLines, AreCountedAsToldForSixPicks) {
    EXPECT_EQ(hot_wheels::CountHotWheelLines(6, {.numbers = 8, .interval = 1}), 7);
    EXPECT_EQ(hot_wheels::CountHotWheelLines(6, {.numbers = 20, .interval = 5}), 4);
    EXPECT_EQ(hot_wheels::CountHotWheelLines(4, {.numbers = 8, .interval = 1}), 9);
    EXPECT_EQ(hot_wheels::CountHotWheelLines(4, {.numbers = 20, .interval = 1}), 21);
    EXPECT_EQ(hot_wheels::CountHotWheelLines(13, {.numbers = 8, .interval = 5}), 1)
        << "one line at least";
}

TEST(HotWheelLines, AreNotCountedForNoIntervalOrNoPicks) {
    EXPECT_EQ(hot_wheels::CountHotWheelLines(6, {.numbers = 8, .interval = 0}), std::nullopt);
    EXPECT_EQ(hot_wheels::CountHotWheelLines(0, {.numbers = 8, .interval = 1}), std::nullopt);
}

TEST(HotWheelLines, AreAsManyAsTheWheelMakes) {
    for (const Ring& ring : AllRings()) {
        for (int picks = 1; picks <= 9; ++picks) {
            const auto state = LotteryOf({.picks = picks});
            FillPool(*state, 1, 30);
            hot_wheels::Do_Wheel(*state, ring);
            EXPECT_EQ(LineCount(*state), hot_wheels::CountHotWheelLines(picks, ring))
                << NameOf(ring) << ", " << picks << " picks";
        }
    }
}

TEST(HotWheel, OfTwentyNumbersAtIntervalFiveMakesFourLinesAndWrapsTheLast) {
    const auto state = LotteryOf({});
    FillPool(*state, 1, 20);
    hot_wheels::Do_Wheel(*state, {.numbers = 20, .interval = 5});
    EXPECT_EQ(LinesOf(*state, 7), (Lines{{6, 5, 4, 3, 2, 1, 0},
                                         {1, 7, 8, 9, 10, 11, 0},
                                         {11, 12, 13, 14, 15, 16, 0},
                                         {16, 17, 18, 19, 20, 6, 0}}));
}

TEST(HotWheel, OfEightNumbersAtIntervalOneMakesSevenLinesOfWhichFourWrap) {
    const auto state = LotteryOf({});
    FillPool(*state, 1, 8);
    hot_wheels::Do_Wheel(*state, {.numbers = 8, .interval = 1});
    EXPECT_EQ(LinesOf(*state, 6), (Lines{{6, 5, 4, 3, 2, 1},
                                         {5, 4, 3, 2, 1, 7},
                                         {4, 3, 2, 1, 7, 8},
                                         {3, 2, 1, 7, 8, 6},
                                         {2, 1, 7, 8, 6, 5},
                                         {1, 7, 8, 6, 5, 4},
                                         {7, 8, 6, 5, 4, 3}}));
}

TEST(HotWheel, BeginsALineBehindTheRingForFourPicks) {
    const auto state = LotteryOf({.picks = 4});
    FillPool(*state, 1, 10);
    hot_wheels::Do_Wheel(*state, {.numbers = 8, .interval = 1});
    const Lines lines = LinesOf(*state, 4);
    ASSERT_EQ(lines.size(), 9U);
    EXPECT_EQ(lines[7], (Line{8, 6, 5, 4}));
    EXPECT_EQ(lines[8], (Line{9, 5, 4, 3})) << "Pool(9), and on with Pool(2)";
}

TEST(HotWheel, EndsAnOlderLongerResult) {
    const auto state = LotteryOf({});
    FillPool(*state, 1, 20);
    state->Lines.Fill(44);
    hot_wheels::Do_Wheel(*state, {.numbers = 20, .interval = 5});
    EXPECT_EQ(LineCount(*state), 4);
}

class HotWheels : public testing::Test {
  protected:
    std::string Generate(State& state, const Ring& ring, Mode mode = Mode::Hot) {
        return hot_wheels::Generate(state, random_, ring, mode);
    }

    /// The ranking 1, 2, 3 ... of a lottery with these extra balls; the wheel is of six picks.
    static void RankInOrder(State& state) { DrawLowNumbersMost(state, 20); }

    Random random_ = RandomOf(1);
};

TEST_F(HotWheels, PlayTheHottestNumbersSorted) {
    const auto state = LotteryOf({});
    RankInOrder(*state);
    EXPECT_EQ(Generate(*state, {.numbers = 20, .interval = 5}), "1, 2, 3, 4, 5, 6, 7, 8, 9, 10");
    EXPECT_EQ(LinesOf(*state, 8), (Lines{{1, 2, 3, 4, 5, 6, 0, 0},
                                         {1, 7, 8, 9, 10, 11, 0, 0},
                                         {11, 12, 13, 14, 15, 16, 0, 0},
                                         {6, 16, 17, 18, 19, 20, 0, 0}}));
}

TEST_F(HotWheels, ColdOnesPlayTheNumbersThatNeverCameAndTheHottestLast) {
    const auto state = LotteryOf({.maxNum = 20});
    DrawLowNumbersMost(*state, 10);
    EXPECT_EQ(Generate(*state, {.numbers = 20, .interval = 5}, Mode::Cold),
              "11, 12, 13, 14, 15, 16, 17, 18, 19, 20");
    EXPECT_EQ(LinesOf(*state, 6)[3], (Line{1, 2, 3, 4, 5, 16}));
}

TEST_F(HotWheels, RepeatTheLowestUndrawnNumberWhereTooFewWereDrawn) {
    const auto state = LotteryOf({});
    DrawLowNumbersMost(*state, 3);
    EXPECT_EQ(Generate(*state, {.numbers = 8, .interval = 1}), "1, 2, 3, 4, 4, 4, 4, 4, 4, 4");
    EXPECT_EQ(LinesOf(*state, 6)[0], (Line{1, 2, 3, 4, 4, 4}));
}

TEST_F(HotWheels, OfAnEmptyHistoryPlayTheNumberOneThroughout) {
    for (const Mode mode : {Mode::Hot, Mode::Cold}) {
        for (int picks = 4; picks <= 7; ++picks) {
            const auto state = LotteryOf({.picks = picks});
            EXPECT_EQ(Generate(*state, {.numbers = 8, .interval = 1}, mode),
                      "1, 1, 1, 1, 1, 1, 1, 1, 1, 1");
            const Lines lines = LinesOf(*state, picks);
            EXPECT_EQ(static_cast<int>(lines.size()), 13 - picks);
            for (const Line& line : lines) {
                EXPECT_EQ(line, Line(static_cast<std::size_t>(picks), 1));
            }
        }
    }
}

TEST_F(HotWheels, GiveTheFirstTenLinesAnExtraBallByRank) {
    const auto state = LotteryOf({.picks = 5, .maxNum = 34, .maxPball = 14});
    RankInOrder(*state);
    state->Picks = 5;
    Generate(*state, {.numbers = 20, .interval = 1});
    const Lines lines = LinesOf(*state, 8);
    ASSERT_EQ(lines.size(), 20U);
    for (int row = 1; row <= 20; ++row) {
        EXPECT_EQ(lines[static_cast<std::size_t>(row) - 1][7], row <= 10 ? row : 0) << row;
    }
}

TEST_F(HotWheels, GiveRowsBehindAShortWheelAnExtraBallToo) {
    const auto state = LotteryOf({.maxPball = 14});
    RankInOrder(*state);
    Generate(*state, {.numbers = 20, .interval = 5}, Mode::Hot);
    EXPECT_EQ(LineCount(*state), 4);
    for (int row = 1; row <= 10; ++row) EXPECT_EQ(state->Lines(row, 8), row);
    EXPECT_EQ(state->Lines(11, 8), 0);
}

TEST_F(HotWheels, OfFewExtraBallsGiveTheRowsBehindThemMainNumbersAsTheyStoodReversed) {
    const auto state = LotteryOf({.maxPball = 4});
    RankInOrder(*state);
    Generate(*state, {.numbers = 8, .interval = 1});
    std::vector<int> balls;
    for (int row = 1; row <= 10; ++row) balls.push_back(state->Lines(row, 8));
    EXPECT_EQ(balls, (std::vector<int>{1, 2, 3, 4, 2, 1, 7, 8, 9, 10}));
}

TEST_F(HotWheels, OfASmallLotteryPlayWhatThePoolHeldBehindItsNumbers) {
    const auto state = LotteryOf({.maxNum = 10});
    DrawLowNumbersMost(*state, 10);
    for (int place = 11; place <= 20; ++place) {
        state->Pool(place) = static_cast<std::int16_t>(place + 50);
    }
    Generate(*state, {.numbers = 20, .interval = 5});
    EXPECT_EQ(LinesOf(*state, 6), (Lines{{1, 2, 3, 4, 5, 6},
                                         {1, 7, 8, 9, 10, 61},
                                         {61, 62, 63, 64, 65, 66},
                                         {6, 66, 67, 68, 69, 70}}));
}

TEST_F(HotWheels, EndWhereAPlaceOfThePoolHeldNothing) {
    const auto state = LotteryOf({.maxNum = 10});
    DrawLowNumbersMost(*state, 10);
    Generate(*state, {.numbers = 20, .interval = 5});
    EXPECT_EQ(LinesOf(*state, 6), (Lines{{1, 2, 3, 4, 5, 6}}))
        << "the second line holds a 0, which sorts to "
           "its front";
}

TEST_F(HotWheels, SeedFromTheClockAndDrawNothing) {
    const auto state = LotteryOf({.maxPball = 9});
    int seedings = 0;
    Random random([&seedings] {
        ++seedings;
        return std::uint64_t{5};
    });
    hot_wheels::Generate(*state, random, {}, Mode::Hot);
    EXPECT_EQ(seedings, 1);
    EXPECT_EQ(random.Next(), RandomOf(5).Next());
}

TEST_F(HotWheels, LeaveNothingOfAnOlderResult) {
    const auto state = LotteryOf({});
    RankInOrder(*state);
    state->Lines.Fill(44);
    Generate(*state, {});
    EXPECT_EQ(LineCount(*state), 7);
    EXPECT_EQ(state->Lines(9, 2), 0);
    EXPECT_EQ(state->Lines(180, 1), 0);
}

TEST_F(HotWheels, EndWithAReportOnANumberAboveSeventy) {
    const auto state = LotteryOf({});
    state->DbaseFile = "dbase1.txt";
    state->Draws(1, 1) = 71;
    EXPECT_EQ(FailureOf([&] { Generate(*state, {}); }),
              "dbase1.txt, line 4: expected numbers from "
              "0 to 70, but 71 stands there");
}

/// Compares every ring in both modes with the steps one
/// by one, for the history in `state`.
void ExpectHotAsToldStepByStep(State& state) {
    const Lines draws = DrawsOf(state);
    for (const Mode mode : {Mode::Hot, Mode::Cold}) {
        for (const Ring& ring : AllRings()) {
            PlainRing plain(state.Picks, state.MaxNum, state.MaxPball);
            for (int place = 0; place <= 120; ++place) {
                plain.pool[static_cast<std::size_t>(place)] = state.Pool(place);
            }
            Random random = RandomOf(1);
            const std::string ten = hot_wheels::Generate(state, random, ring, mode);
            plain.Hot(draws, ring.numbers, ring.interval, mode == Mode::Cold);
            EXPECT_EQ(AllCells(state), plain.Cells()) << NameOf(ring);
            std::string expected = std::to_string(plain.hottest[0]);
            for (std::size_t i = 1; i < 10; ++i) {
                expected += ", " + std::to_string(plain.hottest[i]);
            }
            EXPECT_EQ(ten, expected);
        }
    }
}

/// Random draws, and what earlier work may have left in `Pool`.
void DrawAtRandom(State& state, int drawCount) {
    Random numbers = RandomOf(static_cast<std::uint64_t>(state.Picks + drawCount));
    for (int place = 0; place <= 120; ++place) {
        state.Pool(place) = static_cast<std::int16_t>(numbers.OneTo(60));
    }
    for (int row = 1; row <= drawCount; ++row) {
        for (int column = 1; column <= 8; ++column) {
            const int highest = column == 8 ? 14 : state.MaxNum;
            state.Draws(row, column) = static_cast<std::int16_t>(numbers.OneTo(highest));
        }
    }
}

TEST_F(HotWheels, OfEveryRingAreThoseToldStepByStep) {
    for (int picks = 3; picks <= 8; ++picks) {
        for (const auto& [maxPball, draws] : {std::pair(0, 60), {4, 3}, {14, 0}, {14, 60}}) {
            const auto state = LotteryOf({.picks = picks, .maxNum = 34, .maxPball = maxPball});
            DrawAtRandom(*state, draws);
            SCOPED_TRACE(std::to_string(picks) + " picks, " + std::to_string(maxPball) +
                         " extra balls, " + std::to_string(draws) + " draws");
            ExpectHotAsToldStepByStep(*state);
        }
    }
}

TEST_F(HotWheels, OfRealHistoriesAreThoseToldStepByStep) {
    const auto state = std::make_unique<State>();
    const auto check = [&state](const std::string& name) {
        SCOPED_TRACE(name);
        // None of them draws four numbers: their first four stand for such a lottery.
        for (const int picks : {4, state->Picks}) {
            state->Picks = picks;
            ExpectHotAsToldStepByStep(*state);
            EXPECT_GT(LineCount(*state), 0);
        }
    };
    if (!ForEachRealHistory(*state, check)) GTEST_SKIP() << "no folder of real histories";
}

TEST(OwnWheel, OfEightNumbersAtIntervalFiveMakesTwoLines) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    EXPECT_EQ(
        own_wheels::Generate(*state, random, {.numbers = 8, .interval = 5}, BoxesCounting(20, 8)),
        Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 8), (Lines{{1, 2, 3, 4, 5, 6, 0, 0}, {1, 2, 3, 6, 7, 8, 0, 0}}));
}

TEST(OwnWheel, OfEightNumbersAtIntervalOneMakesEightLines) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    own_wheels::Generate(*state, random, {.numbers = 8, .interval = 1}, BoxesCounting(20, 8));
    EXPECT_EQ(LineCount(*state), 8);
    EXPECT_EQ(LinesOf(*state, 6).back(), (Line{1, 2, 3, 4, 5, 8}));
}

TEST(OwnWheel, OfTwentyNumbersAtIntervalFiveMakesFourLinesOfSevenOfWhichTheLastWraps) {
    const auto state = LotteryOf({.picks = 7});
    Random random = RandomOf(1);
    own_wheels::Generate(*state, random, {.numbers = 20, .interval = 5}, BoxesCounting(20, 20));
    EXPECT_EQ(LinesOf(*state, 7), (Lines{{1, 2, 3, 4, 5, 6, 7},
                                         {6, 7, 8, 9, 10, 11, 12},
                                         {11, 12, 13, 14, 15, 16, 17},
                                         {1, 2, 16, 17, 18, 19, 20}}));
}

TEST(OwnWheel, MakesAsManyLinesAsStartsFitIntoTheRing) {
    for (const Ring& ring : AllRings()) {
        const auto state = LotteryOf({});
        Random random = RandomOf(1);
        own_wheels::Generate(*state, random, ring, BoxesCounting(20, ring.numbers));
        EXPECT_EQ(LineCount(*state), (ring.numbers + ring.interval - 1) / ring.interval)
            << NameOf(ring);
    }
}

TEST(OwnWheel, WalksTheRingTwiceForMorePicksThanNumbers) {
    const auto state = LotteryOf({.picks = 10});
    Random random = RandomOf(1);
    FillPool(*state, 0, 8);
    own_wheels::Do_Wheel(*state, random, {.numbers = 8, .interval = 5});
    EXPECT_EQ(LinesOf(*state, 10),
              (Lines{{1, 2, 3, 4, 5, 6, 7, 8, 1, 2}, {6, 7, 8, 1, 2, 3, 4, 5, 6, 7}}));
}

TEST(OwnWheel, GivesEachLineARandomExtraBall) {
    const auto state = LotteryOf({.picks = 5, .maxNum = 34, .maxPball = 14});
    Random random = RandomOf(3);
    Random same = RandomOf(3);
    own_wheels::Generate(*state, random, {.numbers = 20, .interval = 1}, BoxesCounting(20, 20));
    for (const Line& line : LinesOf(*state, 8)) EXPECT_EQ(line[7], same.OneTo(14));
    EXPECT_EQ(random.Next(), same.Next()) << "and draws nothing else";
}

TEST(OwnWheel, NeverSeeds) {
    const auto state = LotteryOf({.maxPball = 14});
    int seedings = 0;
    Random random([&seedings] {
        ++seedings;
        return std::uint64_t{1};
    });
    own_wheels::Generate(*state, random, {}, BoxesCounting(20, 8));
    EXPECT_EQ(seedings, 0);
}

TEST(OwnWheel, PlaysNumbersThatTheLotteryDoesNotHaveAndNumbersTwice) {
    const auto state = LotteryOf({.maxNum = 10});
    Random random = RandomOf(1);
    const auto boxes = BoxesOf(20, {"999", "2", "2", "4", "05", "6", "7", "8"});
    EXPECT_EQ(own_wheels::Generate(*state, random, {.numbers = 8, .interval = 5}, boxes),
              Outcome::Done);
    EXPECT_EQ(LinesOf(*state, 6)[0], (Line{2, 2, 4, 5, 6, 999}));
}

TEST(OwnWheel, LeavesTheLinesWhereABoxHoldsNothingAboveNought) {
    for (const char* text : {"", "0", "000"}) {
        const auto state = LotteryOf({});
        Random random = RandomOf(1);
        state->Lines.Fill(44);
        auto boxes = BoxesCounting(20, 8);
        boxes[7].text = text;
        EXPECT_EQ(own_wheels::Generate(*state, random, {}, boxes), Outcome::CheckInput) << text;
        EXPECT_EQ(AllCells(*state), std::vector<int>(181 * 15, 44));
    }
}

TEST(OwnWheel, LooksAtTheBoxesOfTheRingOnly) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    state->Pool(8) = 77;
    EXPECT_EQ(own_wheels::Generate(*state, random, {}, BoxesCounting(20, 8)), Outcome::Done);
    EXPECT_EQ(state->Pool(8), 77) << "and leaves the rest of the pool";
    EXPECT_EQ(own_wheels::Generate(*state, random, {.numbers = 9}, BoxesCounting(20, 8)),
              Outcome::CheckInput);
}

TEST(OwnWheel, LeavesNothingOfAnOlderResult) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    state->Lines.Fill(44);
    own_wheels::Generate(*state, random, {}, BoxesCounting(20, 8));
    EXPECT_EQ(LineCount(*state), 8);
    EXPECT_EQ(state->Lines(180, 8), 0);
}

TEST(OwnWheel, EndsAnOlderLongerResult) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    FillPool(*state, 0, 8);
    state->Lines.Fill(44);
    own_wheels::Do_Wheel(*state, random, {.numbers = 8, .interval = 5});
    EXPECT_EQ(LineCount(*state), 2);
}

/// Compares every ring with the steps one by one, on a
/// random selection for the lottery.
void ExpectOwnAsToldStepByStep(State& state) {
    for (const Ring& ring : AllRings()) {
        wheels::Boxes boxes(own_wheels::boxCount);
        wheels::ChooseSize(boxes, ring.numbers, wheels::UnusedTexts::Emptied);
        Random selection = RandomOf(static_cast<std::uint64_t>(ring.numbers));
        wheels::SelectFromZero(state, selection, boxes);
        PlainRing plain(state.Picks, state.MaxNum, state.MaxPball);
        for (int i = 0; i < ring.numbers; ++i) {
            plain.pool[static_cast<std::size_t>(i)] =
                std::stoi(boxes[static_cast<std::size_t>(i)].text);
        }
        Random random = RandomOf(11);
        Random plainRandom = RandomOf(11);
        EXPECT_EQ(own_wheels::Generate(state, random, ring, boxes), Outcome::Done);
        plain.Own(plainRandom, ring.numbers, ring.interval);
        EXPECT_EQ(AllCells(state), plain.Cells()) << NameOf(ring);
        EXPECT_EQ(random.Next(), plainRandom.Next());
    }
}

TEST(OwnWheel, OfEveryRingIsTheOneToldStepByStep) {
    for (int picks = 3; picks <= 9; ++picks) {
        for (const int maxPball : {0, 14}) {
            const auto state = LotteryOf({.picks = picks, .maxPball = maxPball});
            ExpectOwnAsToldStepByStep(*state);
        }
    }
}

TEST(OwnWheel, OfRealLotteriesIsTheOneToldStepByStep) {
    const auto state = std::make_unique<State>();
    const auto check = [&state](const std::string& name) {
        SCOPED_TRACE(name);
        for (const int picks : {4, state->Picks}) {
            state->Picks = picks;
            ExpectOwnAsToldStepByStep(*state);
        }
    };
    if (!ForEachRealHistory(*state, check)) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace

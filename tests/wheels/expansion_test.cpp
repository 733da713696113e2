// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/expansion.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "core/failure.h"
#include "core/lines.h"
#include "tests/wheels/plain_wheels.h"
#include "tests/wheels/wheel_support.h"
#include "wheels/budget_wheels.h"
#include "wheels/guaranteed_wheels.h"
#include "wheels/match_wheels.h"
#include "wheels/pairs_triplets.h"
#include "wheels/patterns.h"

namespace {

using wheels::FamilyOf;
using wheels::Outcome;
using wheels::Wheel;
using wheels::WheelAt;
using wheels::WheelFamily;
using wheels::WheelList;
using Line = std::vector<int>;

/// Puts 1, 2, 3 ... into `Pool` from the index that letter "A" stands for.
void FillPool(State& state, int first, int count) {
    for (int i = 0; i < count; ++i) state.Pool(first + i) = static_cast<std::int16_t>(i + 1);
}

TEST(LetterPosition, RunsFromAWithoutABreak) {
    const std::string letters = "AZ[\\]^_`ap";
    const std::vector<int> zeroBased = {0, 25, 26, 27, 28, 29, 30, 31, 32, 47};
    for (std::size_t i = 0; i < letters.size(); ++i) {
        EXPECT_EQ(wheels::ZeroBasedPosition(letters[i]), zeroBased[i]);
        EXPECT_EQ(wheels::OneBasedPosition(letters[i]), zeroBased[i] + 1);
    }
}

TEST(LetterPosition, GoesOnBehindTheLettersInUse) {
    EXPECT_EQ(wheels::OneBasedPosition('\xB8'), 120);
}

/// Writes the numbers into row 1 from column 1 on.
void FillRow(State& state, const Line& numbers) {
    int column = 1;
    for (const int number : numbers) state.Lines(1, column++) = static_cast<std::int16_t>(number);
}

TEST(OtherNumber, IsFoundWhereOnlyTheLowestOrTheHighestIsLeft) {
    for (const auto& [line, left] : {std::pair(Line{2, 3, 4, 3}, 1), {Line{2, 1, 3, 3}, 4}}) {
        const auto state = LotteryOf({.maxNum = 4});
        Random random = RandomOf(1);
        FillRow(*state, line);
        EXPECT_TRUE(wheels::DrawOtherNumber(*state, random, 1, 5));
        EXPECT_EQ(state->Lines(1, 5), left);
    }
}

TEST(OtherNumber, OfAFieldOfOneOrNoneCanOnlyBeOne) {
    for (const int maxNum : {0, 1}) {
        const auto state = LotteryOf({.maxNum = maxNum});
        Random random = RandomOf(1);
        FillRow(*state, {1, 1});
        EXPECT_FALSE(wheels::DrawOtherNumber(*state, random, 1, 3)) << maxNum;
        EXPECT_EQ(state->Lines(1, 3), 0);
        FillRow(*state, {2, 2});
        EXPECT_TRUE(wheels::DrawOtherNumber(*state, random, 1, 3)) << maxNum;
        EXPECT_EQ(state->Lines(1, 3), 1);
    }
}

TEST(OtherNumber, MayBeTheOneThatStoodInItsColumnBefore) {
    std::set<int> drawn;
    std::set<int> fromPool;
    for (std::uint64_t seed = 0; seed < 50; ++seed) {
        const auto state = LotteryOf({.maxNum = 8});
        Random random = RandomOf(seed);
        FillPool(*state, 0, 8);
        FillRow(*state, {1, 2, 3, 4, 5, 6, 7});
        EXPECT_TRUE(wheels::DrawOtherNumber(*state, random, 1, 7));
        drawn.insert(state->Lines(1, 7));
        FillRow(*state, {1, 2, 3, 4, 5, 6, 7});
        EXPECT_TRUE(wheels::DrawOtherFromPool(*state, random, 1, 7, 8));
        fromPool.insert(state->Lines(1, 7));
    }
    EXPECT_EQ(drawn, (std::set<int>{7, 8}));
    EXPECT_EQ(fromPool, (std::set<int>{7, 8}));
}

TEST(ExtraBall, IsDrawnWhereTheLotteryHasJustOneAndNotWithoutAny) {
    for (const int maxPball : {1, 0, -1}) {
        const auto state = LotteryOf({.maxPball = maxPball});
        Random random = RandomOf(1);
        wheels::DrawExtraBall(*state, random, 1);
        EXPECT_EQ(state->Lines(1, 8), maxPball > 0 ? 1 : 0) << maxPball;
    }
}

TEST(OtherNumber, FromThePoolIsFoundAtItsFirstAndItsLastPlaceAndNotBehind) {
    for (const int place : {0, 8}) {
        const auto state = LotteryOf({});
        Random random = RandomOf(1);
        for (int i = 0; i <= 9; ++i) state->Pool(i) = 5;
        state->Pool(place) = 7;
        FillRow(*state, {5, 5, 5, 5, 5, 5});
        EXPECT_TRUE(wheels::DrawOtherFromPool(*state, random, 1, 7, 9)) << place;
        EXPECT_EQ(state->Lines(1, 7), 7);
    }
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    for (int i = 0; i <= 8; ++i) state->Pool(i) = 5;
    state->Pool(9) = 7;
    FillRow(*state, {5, 5, 5, 5, 5, 5});
    EXPECT_FALSE(wheels::DrawOtherFromPool(*state, random, 1, 7, 9));
    EXPECT_EQ(state->Lines(1, 7), 0);
}

TEST(SixLetterWheel, ReadsTheLastPlaceOfThePoolAndFailsBeyond) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    FillPool(*state, 1, 120);
    guaranteed_wheels::Do_Wheel(*state, random, "ABCDE\xB8");
    EXPECT_EQ(LinesOf(*state, 6), (std::vector<Line>{{1, 2, 3, 4, 5, 120}}));
    EXPECT_THROW(guaranteed_wheels::Do_Wheel(*state, random, "ABCDE\xB9"), Failure);
}

TEST(SixLetterWheel, CountsItsNumbersFromZeroInMatchWheelsAndFromOneInGuaranteedOnes) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    for (int i = 0; i <= 12; ++i) state->Pool(i) = static_cast<std::int16_t>(i + 30);
    match_wheels::Do_Wheel(*state, random, "ABCDEF");
    EXPECT_EQ(LinesOf(*state, 6), (std::vector<Line>{{30, 31, 32, 33, 34, 35}}));
    guaranteed_wheels::Do_Wheel(*state, random, "ABCDEF");
    EXPECT_EQ(LinesOf(*state, 6), (std::vector<Line>{{31, 32, 33, 34, 35, 36}}));
}

TEST(SixLetterWheel, ReadsTheTwentySeventhNumberAtTheLetterBehindZ) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    FillPool(*state, 1, 27);
    guaranteed_wheels::Do_Wheel(*state, random, "ABCDE[");
    EXPECT_EQ(LinesOf(*state, 6), (std::vector<Line>{{1, 2, 3, 4, 5, 27}}));
}

TEST(SixLetterWheel, MakesTwoLinesOfTwelveNumbers) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    FillPool(*state, 0, 12);
    match_wheels::Do_Wheel(*state, random, WheelAt(WheelList::ThreeMatch, 10).pattern);
    EXPECT_EQ(LinesOf(*state, 6), (std::vector<Line>{{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}}));
}

TEST(SixLetterWheel, DropsTheSixthLetterForFivePicks) {
    const auto state = LotteryOf({.picks = 5});
    Random random = RandomOf(1);
    FillPool(*state, 0, 12);
    match_wheels::Do_Wheel(*state, random, "ABCDEFGHIJKL");
    EXPECT_EQ(LinesOf(*state, 7),
              (std::vector<Line>{{1, 2, 3, 4, 5, 0, 0}, {7, 8, 9, 10, 11, 0, 0}}));
}

TEST(SixLetterWheel, DrawsASeventhNumberOutsideTheLineForSevenPicks) {
    const auto state = LotteryOf({.picks = 7, .maxNum = 8});
    for (std::uint64_t seed = 0; seed < 200; ++seed) {
        Random random = RandomOf(seed);
        FillPool(*state, 0, 8);
        ASSERT_EQ(match_wheels::Do_Wheel(*state, random, "ABCDEF"), Outcome::Done);
        EXPECT_GE(state->Lines(1, 7), 7);
    }
}

TEST(SixLetterWheel, KeepsALetterThatStandsTwiceInAGroup) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    FillPool(*state, 1, 40);
    guaranteed_wheels::Do_Wheel(*state, random, WheelAt(WheelList::ThreeForSix, 11).pattern);
    SortLines(*state, 6);
    const Line line = LinesOf(*state, 6)[67];
    EXPECT_EQ(line, (Line{20, 20, 23, 27, 36, 38}));
}

TEST(SixLetterWheel, LosesTheRepeatWithTheSixthLetterForFivePicks) {
    const auto state = LotteryOf({.picks = 5});
    Random random = RandomOf(1);
    FillPool(*state, 1, 40);
    guaranteed_wheels::Do_Wheel(*state, random, WheelAt(WheelList::ThreeForSix, 11).pattern);
    EXPECT_EQ(LinesOf(*state, 6)[67], (Line{20, 23, 27, 36, 38, 0}));
}

TEST(SixLetterWheel, EndsAnOlderLongerResult) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    FillPool(*state, 0, 20);
    match_wheels::Do_Wheel(*state, random, WheelAt(WheelList::ThreeMatch, 0).pattern);
    match_wheels::Do_Wheel(*state, random, "ABCDEF");
    EXPECT_EQ(LineCount(*state), 1);
    EXPECT_NE(state->Lines(3, 1), 0) << "what lies behind the end mark stays";
}

TEST(SixLetterWheel, OfTheMostLinesFitsTheTable) {
    const auto state = LotteryOf({.picks = 7, .maxNum = 59, .maxPball = 14});
    Random random = RandomOf(1);
    FillPool(*state, 1, 48);
    guaranteed_wheels::Do_Wheel(*state, random, WheelAt(WheelList::ThreeForSix, 19).pattern);
    EXPECT_EQ(LineCount(*state), 165);
}

TEST(SixLetterWheel, WithNoSeventhNumberLeftEndsAtOnceAndLeavesNoLines) {
    const auto state = LotteryOf({.picks = 7, .maxNum = 6});
    Random random = RandomOf(1);
    FillPool(*state, 0, 7);
    EXPECT_EQ(match_wheels::Do_Wheel(*state, random, "ABCDEGABCDEF"), Outcome::NoOtherNumber);
    EXPECT_EQ(AllCells(*state), std::vector<int>(181 * 15));
}

TEST(BudgetWheel, MakesThreeLinesOfNineNumbers) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    FillPool(*state, 0, 9);
    budget_wheels::Do_Wheel6(*state, random, WheelAt(WheelList::Budget, 0).pattern);
    EXPECT_EQ(
        LinesOf(*state, 7),
        (std::vector<Line>{{1, 2, 3, 4, 5, 6, 0}, {4, 5, 6, 7, 8, 9, 0}, {1, 2, 3, 7, 8, 9, 0}}));
}

TEST(BudgetWheel, TakesTheSeventhNumberFromTheChosenOnes) {
    for (std::uint64_t seed = 0; seed < 100; ++seed) {
        const auto state = LotteryOf({.picks = 7});
        Random random = RandomOf(seed);
        FillPool(*state, 0, 18);
        ASSERT_EQ(budget_wheels::Do_Wheel7(*state, random, "ABBCAC", 9), Outcome::Done);
        for (const Line& line : LinesOf(*state, 7)) {
            EXPECT_EQ(std::set<int>(line.begin(), line.end()).size(), 7U);
            EXPECT_LE(line.back(), 9);
        }
    }
}

TEST(BudgetWheel, CoversAllEighteenNumbersInItsFirstThreeLines) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    FillPool(*state, 0, 18);
    budget_wheels::Do_Wheel6(*state, random, WheelAt(WheelList::Budget, 3).pattern);
    const auto lines = LinesOf(*state, 6);
    ASSERT_EQ(lines.size(), 8U);
    std::set<int> numbers;
    for (int line = 0; line < 3; ++line) {
        numbers.insert(lines[static_cast<std::size_t>(line)].begin(),
                       lines[static_cast<std::size_t>(line)].end());
    }
    EXPECT_EQ(numbers.size(), 18U);
}

TEST(BudgetWheel, OfFivePicksDropsTheLastOrTheFirstNumberOfItsSecondGroup) {
    const auto state = LotteryOf({.picks = 5});
    std::set<Line> seen;
    for (std::uint64_t seed = 0; seed < 50; ++seed) {
        Random random = RandomOf(seed);
        FillPool(*state, 0, 9);
        budget_wheels::Do_Wheel5(*state, random, "AB");
        seen.insert(LinesOf(*state, 6)[0]);
    }
    EXPECT_EQ(seen, (std::set<Line>{{1, 2, 3, 4, 5, 0}, {1, 2, 3, 5, 6, 0}}));
}

TEST(BudgetWheel, OfFivePicksTakesADrawForOneHalfThatIsSoInSinglePrecision) {
    constexpr std::uint64_t seedOfHalf = 68716939;  // its first draw is 0.50000000836857805
    Random same = RandomOf(seedOfHalf);
    ASSERT_GT(same.Next(), 0.5);
    const auto state = LotteryOf({.picks = 5});
    Random random = RandomOf(seedOfHalf);
    FillPool(*state, 0, 9);
    budget_wheels::Do_Wheel5(*state, random, "AB");
    EXPECT_EQ(LinesOf(*state, 5), (std::vector<Line>{{1, 2, 3, 5, 6}})) << "one half is not above";
}

TEST(BudgetWheel, OfOneNumberNineTimesEndsAtOnceAndLeavesNoLines) {
    const auto state = LotteryOf({.picks = 7});
    Random random = RandomOf(1);
    for (int i = 0; i < 9; ++i) state->Pool(i) = 5;
    EXPECT_EQ(budget_wheels::Do_Wheel7(*state, random, "ABBCAC", 9), Outcome::NoOtherNumber);
    EXPECT_EQ(LineCount(*state), 0);
}

TEST(BudgetWheel, OfSixDifferentNumbersEndsWhereALineHoldsThemAll) {
    const auto state = LotteryOf({.picks = 7});
    Random random = RandomOf(1);
    for (int i = 0; i < 9; ++i) state->Pool(i) = static_cast<std::int16_t>(i % 6 + 1);
    EXPECT_EQ(budget_wheels::Do_Wheel7(*state, random, "ABBCAC", 9), Outcome::NoOtherNumber);
}

// Every pattern, with lotteries of three to eight picks, with and without extra ball: the same
// cells as the plain version makes from the same random numbers, and no number drawn more or less.
class EveryPattern : public testing::Test {
  protected:
    using Fast = std::function<Outcome(State&, Random&, const Wheel&)>;
    using Plain = std::function<void(PlainWheel&, Random&, const Wheel&)>;

    static void Compare(WheelList list, const Fast& fast, const Plain& plain) {
        const WheelFamily& family = FamilyOf(list);
        for (const Wheel& wheel : family.items) {
            for (int picks = 3; picks <= 8; ++picks) {
                for (const int maxPball : {0, 14}) {
                    SCOPED_TRACE(std::string(family.form) + ", " + std::to_string(wheel.numbers) +
                                 " numbers, " + std::to_string(picks) + " picks");
                    CompareOne({.picks = picks, .maxNum = 49, .maxPball = maxPball}, wheel, fast,
                               plain);
                }
            }
        }
    }

  private:
    static void CompareOne(const Lottery& lottery, const Wheel& wheel, const Fast& fast,
                           const Plain& plain) {
        const auto state = LotteryOf(lottery);
        PlainWheel expected{lottery.picks, lottery.maxNum, lottery.maxPball};
        const auto seed = static_cast<std::uint64_t>(wheel.lines * 10 + lottery.picks);
        Random numbers = RandomOf(seed + 1000);
        for (int i = 0; i <= 48; ++i) {
            const int number = numbers.OneTo(lottery.maxNum);
            state->Pool(i) = static_cast<std::int16_t>(number);
            expected.pool[static_cast<std::size_t>(i)] = number;
        }
        Random random = RandomOf(seed);
        Random plainRandom = RandomOf(seed);
        EXPECT_EQ(fast(*state, random, wheel), Outcome::Done);
        plain(expected, plainRandom, wheel);
        EXPECT_EQ(AllCells(*state), expected.Cells());
        EXPECT_EQ(random.Next(), plainRandom.Next());
    }
};

TEST_F(EveryPattern, OfPairsExpandsAsToldStepByStep) {
    Compare(
        WheelList::Pairs,
        [](State& s, Random& r, const Wheel& w) { return pairs::Do_Wheel4(s, r, w.pattern); },
        [](PlainWheel& p, Random& r, const Wheel& w) { p.Pairs(r, w.pattern); });
}

TEST_F(EveryPattern, OfThreePairsExpandsAsToldStepByStep) {
    Compare(
        WheelList::PairsOfSix,
        [](State& s, Random& r, const Wheel& w) { return pairs::Do_Wheel6(s, r, w.pattern); },
        [](PlainWheel& p, Random& r, const Wheel& w) { p.PairsOfSix(r, w.pattern); });
}

TEST_F(EveryPattern, OfTripletsExpandsAsToldStepByStep) {
    Compare(
        WheelList::Triplets,
        [](State& s, Random& r, const Wheel& w) { return triplets::Do_Wheel(s, r, w.pattern); },
        [](PlainWheel& p, Random& r, const Wheel& w) { p.Triplets(r, w.pattern); });
}

TEST_F(EveryPattern, OfBudgetWheelsExpandsToSevenAsToldStepByStep) {
    Compare(
        WheelList::Budget,
        [](State& s, Random& r, const Wheel& w) {
            return budget_wheels::Do_Wheel7(s, r, w.pattern, w.numbers);
        },
        [](PlainWheel& p, Random& r, const Wheel& w) { p.Budget(r, w.pattern, 7, w.numbers); });
}

TEST_F(EveryPattern, OfBudgetWheelsExpandsToSixAsToldStepByStep) {
    Compare(
        WheelList::Budget,
        [](State& s, Random& r, const Wheel& w) {
            return budget_wheels::Do_Wheel6(s, r, w.pattern);
        },
        [](PlainWheel& p, Random& r, const Wheel& w) { p.Budget(r, w.pattern, 6, w.numbers); });
}

TEST_F(EveryPattern, OfBudgetWheelsExpandsToFiveAsToldStepByStep) {
    Compare(
        WheelList::Budget,
        [](State& s, Random& r, const Wheel& w) {
            return budget_wheels::Do_Wheel5(s, r, w.pattern);
        },
        [](PlainWheel& p, Random& r, const Wheel& w) { p.Budget(r, w.pattern, 5, w.numbers); });
}

TEST_F(EveryPattern, OfMatchWheelsExpandsAsToldStepByStep) {
    for (const WheelList list : {WheelList::ThreeMatch, WheelList::FourMatch}) {
        Compare(
            list,
            [](State& s, Random& r, const Wheel& w) {
                return match_wheels::Do_Wheel(s, r, w.pattern);
            },
            [](PlainWheel& p, Random& r, const Wheel& w) { p.SixLetters(r, w.pattern, 65); });
    }
}

TEST_F(EveryPattern, OfGuaranteedWheelsExpandsAsToldStepByStep) {
    for (const WheelList list :
         {WheelList::ThreeForSix, WheelList::ThreeForThree, WheelList::FiveForSix}) {
        Compare(
            list,
            [](State& s, Random& r, const Wheel& w) {
                return guaranteed_wheels::Do_Wheel(s, r, w.pattern);
            },
            [](PlainWheel& p, Random& r, const Wheel& w) { p.SixLetters(r, w.pattern, 64); });
    }
}

}  // namespace

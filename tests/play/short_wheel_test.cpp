// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/short_wheel.h"

#include <gtest/gtest.h>

#include "core/failure.h"
#include "tests/play/random_support.h"
#include "tests/play/wheel_support.h"

namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;

// 101 stands at place 1, so a line tells the places that it took.
LuckyNumbers Places() {
    LuckyNumbers numbers;
    for (int place = 1; place <= 80; ++place) {
        numbers(place) = static_cast<std::int16_t>(100 + place);
    }
    return numbers;
}

// The places that each line took, in ascending order.
std::vector<Row> PlacesOfLines(State& state, WheelType type, const LuckyNumbers& numbers) {
    Random random = Seeded(1);
    ShortWheel(state, random, numbers, type);
    std::vector<Row> lines = LinesOf(state, state.Picks);
    for (Row& line : lines) {
        for (int& number : line) number -= 100;
    }
    return lines;
}

std::vector<Row> PlacesOf(int picks, WheelType type) {
    return PlacesOfLines(*Lottery(picks, 49), type, Places());
}

TEST(ShortWheel, Type1MakesNineLinesOnePlaceApart) {
    EXPECT_EQ(PlacesOf(6, WheelType::Type1), (std::vector<Row>{{1, 2, 3, 4, 5, 6},
                                                               {2, 3, 4, 5, 6, 7},
                                                               {3, 4, 5, 6, 7, 8},
                                                               {1, 4, 5, 6, 7, 8},
                                                               {1, 2, 5, 6, 7, 8},
                                                               {1, 2, 3, 6, 7, 8},
                                                               {1, 2, 3, 4, 7, 8},
                                                               {1, 2, 3, 4, 5, 8},
                                                               {9, 10, 11, 12, 13, 14}}));
}

TEST(ShortWheel, Type2MakesFiveLinesTwoPlacesApart) {
    EXPECT_EQ(PlacesOf(5, WheelType::Type2), (std::vector<Row>{{1, 2, 3, 4, 5},
                                                               {3, 4, 5, 6, 7},
                                                               {1, 5, 6, 7, 8},
                                                               {1, 2, 3, 7, 8},
                                                               {9, 10, 11, 12, 13}}));
}

TEST(ShortWheel, Type3MakesThreeLinesAndNoneFromPlaceNine) {
    EXPECT_EQ(PlacesOf(4, WheelType::Type3),
              (std::vector<Row>{{1, 2, 3, 4}, {4, 5, 6, 7}, {1, 2, 7, 8}}));
}

TEST(ShortWheel, OfSevenPicksWrapsRoundTheEightPlaces) {
    EXPECT_EQ(
        PlacesOf(7, WheelType::Type3),
        (std::vector<Row>{{1, 2, 3, 4, 5, 6, 7}, {1, 2, 4, 5, 6, 7, 8}, {1, 2, 3, 4, 5, 7, 8}}));
}

TEST(ShortWheel, LeavesNothingElseInTheTable) {
    const auto state = Lottery(6, 49);
    state->Lines.Fill(7);
    PlacesOfLines(*state, WheelType::Type3, Places());
    Row expected(181 * 15, 0);
    const std::vector<Row> lines{{101, 102, 103, 104, 105, 106},
                                 {104, 105, 106, 107, 108, 101},
                                 {107, 108, 101, 102, 103, 104}};
    for (std::size_t row = 0; row < 3; ++row) {
        Row line = lines[row];
        std::sort(line.begin(), line.end());
        std::copy(line.begin(), line.end(),
                  expected.begin() + static_cast<std::ptrdiff_t>((row + 1) * 15 + 1));
    }
    EXPECT_EQ(AllLines(*state), expected);
}

TEST(ShortWheel, GivesEachLineARandomExtraBallAndAsksForNothingElse) {
    for (const auto& [type, lines] :
         {std::pair{WheelType::Type1, 9}, {WheelType::Type2, 5}, {WheelType::Type3, 3}}) {
        const auto state = Lottery(5, 34);
        state->MaxPball = 14;
        Random random = Seeded(3);
        ShortWheel(*state, random, Places(), type);
        EXPECT_EQ(NumbersTaken(random, 3), lines);
        Random same = Seeded(3);
        for (const Row& line : LinesOf(*state, 8)) {
            EXPECT_EQ(line[7], static_cast<int>(14 * same.Next()) + 1);
        }
    }
}

TEST(ShortWheel, AsksForNoRandomNumberWithoutAnExtraBall) {
    const auto state = Lottery(6, 49);
    state->HasBonus = 1;
    state->HasPball = 1;
    Random random = Seeded(3);
    ShortWheel(*state, random, Places(), WheelType::Type1);
    EXPECT_EQ(NumbersTaken(random, 3), 0);
    for (const Row& line : LinesOf(*state, 8)) EXPECT_EQ(line[7], 0);
}

TEST(ShortWheel, GivesExtraBallsBeforeASortBringsAZeroToTheFront) {
    const auto state = Lottery(4, 49);
    state->MaxPball = 14;
    LuckyNumbers numbers = Places();
    for (int place = 8; place <= 80; ++place) numbers(place) = 0;
    Random random = Seeded(3);
    ShortWheel(*state, random, numbers, WheelType::Type2);
    EXPECT_EQ(NumbersTaken(random, 3), 4);
    EXPECT_EQ(LinesOf(*state, 4), (std::vector<Row>{{101, 102, 103, 104}, {103, 104, 105, 106}}));
    EXPECT_EQ(state->Lines(3, 1), 0);
    EXPECT_GT(state->Lines(3, 8), 0);
}

TEST(ShortWheel, WithoutNumbersHasNoLines) {
    const auto state = Lottery(6, 49);
    state->MaxPball = 14;
    Random random = Seeded(3);
    ShortWheel(*state, random, LuckyNumbers(), WheelType::Type1);
    EXPECT_EQ(AllLines(*state), Row(181 * 15, 0));
    EXPECT_EQ(NumbersTaken(random, 3), 0);
}

TEST(ShortWheel, OfMoreColumnsThanTheTableHasIsAFailure) {
    Random random = Seeded(3);
    EXPECT_THROW(ShortWheel(*Lottery(15, 49), random, Places(), WheelType::Type1), Failure);
}

TEST(LuckySeed, AddsDayMonthAndYearAndIsOdd) {
    const Date date = year(1970) / month(12) / day(25);
    EXPECT_EQ(LuckySeed(0, date), (25 + 12 + 1970) * 2 + 1);
    EXPECT_EQ(LuckySeed(1000, date), (1000 + 25 + 12 + 1970) * 2 + 1);
}

TEST(LuckyShuffle, ShowsTheFirstFifteenOfFiftyWithABlankBeforeEachAndCommasBetween) {
    const auto state = Lottery(6, 49);
    Random random = Seeded(1);
    for (std::int64_t seed = 1; seed <= 100; ++seed) {
        const Row shown = NumbersShown(ShuffleLuckyNumbers(*state, random, seed));
        EXPECT_EQ(shown, Row(state->Pool.Data() + 1, state->Pool.Data() + 16));
        const std::set<int> all(state->Pool.Data() + 1, state->Pool.Data() + 51);
        EXPECT_EQ(all.size(), 50U);
        EXPECT_EQ(*all.begin(), 1);
        EXPECT_EQ(*all.rbegin(), 50);
    }
}

TEST(LuckyShuffle, BeginsTheSequenceOfItsSeedAndAsksForFiftyNumbers) {
    const auto state = Lottery(6, 49);
    Random random = Seeded(99);
    random.Next();
    ShuffleLuckyNumbers(*state, random, 4015);
    EXPECT_EQ(NumbersTaken(random, 4015), 50);
}

TEST(LuckyShuffle, IsThatOfTheSwapsOneByOne) {
    const auto state = Lottery(6, 10);
    Random random = Seeded(1);
    ShuffleLuckyNumbers(*state, random, 4015);
    Random same = Seeded(4015);
    Row pool(51);
    for (std::size_t i = 1; i <= 50; ++i) pool[i] = static_cast<int>(i);
    for (std::size_t i = 1; i <= 50; ++i) {
        std::swap(pool[i], pool[static_cast<std::size_t>(same.Next() * 50) + 1]);
    }
    EXPECT_EQ(Row(state->Pool.Data(), state->Pool.Data() + 51), pool);
}

TEST(LuckyShuffle, LeavesWhatLiesBehindTheFifty) {
    const auto state = Lottery(6, 49);
    state->Pool.Fill(77);
    Random random = Seeded(1);
    ShuffleLuckyNumbers(*state, random, 1);
    EXPECT_EQ(state->Pool(51), 77);
}

}  // namespace

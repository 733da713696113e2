// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/astrology.h"

#include <gtest/gtest.h>

#include "play/numerology.h"
#include "tests/core/failures.h"
#include "tests/play/random_support.h"
#include "tests/play/wheel_support.h"

namespace {

using astrology::PlayLotto;
using astrology::SeedValue;
using std::chrono::day;
using std::chrono::month;
using std::chrono::year;

const Date draw = year(2005) / month(5) / day(28);
constexpr int datePart = 28 + 5 + 2005;

class Astrology : public LuckyNumbersTest {
  protected:
    Astrology() : LuckyNumbersTest(PlayLotto) {}
};

TEST(AstrologySeed, CountsAriesAndTheFirstDayAsNothing) {
    EXPECT_EQ(SeedValue(0, 0, draw), datePart * 2 + 1);
}

TEST(AstrologySeed, CountsNineteenASignAndThirteenADay) {
    EXPECT_EQ(SeedValue(11, 0, draw), (11 * 19 + datePart) * 2 + 1);
    EXPECT_EQ(SeedValue(0, 30, draw), (30 * 13 + datePart) * 2 + 1);
    EXPECT_EQ(SeedValue(4, 16, draw), (4 * 19 + 16 * 13 + datePart) * 2 + 1);
}

TEST(AstrologySeed, ChangesFromDayToDayOfAMonth) {
    EXPECT_EQ(SeedValue(3, 9, year(2005) / month(5) / day(29)), SeedValue(3, 9, draw) + 2);
}

TEST(AstrologySeed, IsTheSameForDatesOfTheSameSum) {
    EXPECT_EQ(SeedValue(3, 9, year(2005) / month(6) / day(27)), SeedValue(3, 9, draw));
    EXPECT_EQ(SeedValue(3, 9, year(2006) / month(5) / day(27)), SeedValue(3, 9, draw));
}

TEST(AstrologySeed, IsTheSameForSignsAndDaysOfTheSameSum) {
    EXPECT_EQ(SeedValue(0, 19, draw), SeedValue(13, 0, draw));
}

TEST_F(Astrology, RepeatsTheLinesOfASignADayAndADrawExtraBallsIncluded) {
    state_->MaxPball = 14;
    const std::string shown = Play(5, 34, SeedValue(3, 9, draw));
    const Row lines = AllLines(*state_);
    EXPECT_NE(Play(5, 34, SeedValue(3, 9, year(2005) / month(5) / day(29))), shown);
    EXPECT_EQ(Play(5, 34, SeedValue(3, 9, draw)), shown);
    EXPECT_EQ(AllLines(*state_), lines);
}

TEST_F(Astrology, OfASeedHasTheNumbersAndLinesThatNumerologyHas) {
    state_->MaxPball = 14;
    for (std::int64_t seed = 1; seed <= 50; ++seed) {
        const std::string shown = Play(5, 34, seed);
        const Row lines = AllLines(*state_);
        LuckyNumbers others;
        EXPECT_EQ(numerology::PlayLotto(*state_, random_, others, seed, WheelType::Type2), shown);
        EXPECT_EQ(AllLines(*state_), lines);
    }
}

TEST_F(Astrology, AsksForFiftyRandomNumbersAndOneALineForExtraBalls) {
    Play(6, 49);
    EXPECT_EQ(NumbersTaken(random_, 4015), 50);
    state_->MaxPball = 14;
    Play(5, 34);
    EXPECT_EQ(NumbersTaken(random_, 4015), 50 + 5);
}

TEST_F(Astrology, TakesAllThatFitButNeverTheFiftieth) {
    for (std::int64_t seed = 1; seed <= 50; ++seed) {
        numbers_ = LuckyNumbers();
        Play(6, 40, seed);
        Row expected;
        for (int place = 1; place <= 49; ++place) {
            if (state_->Pool(place) <= 40) expected.push_back(state_->Pool(place));
        }
        const int count = static_cast<int>(expected.size());
        EXPECT_EQ(count, state_->Pool(50) <= 40 ? 39 : 40);
        EXPECT_EQ(Row(numbers_.Data() + 1, numbers_.Data() + 1 + count), expected);
        EXPECT_EQ(numbers_(count + 1), 0);
    }
}

TEST_F(Astrology, OfAllNumbersTakesFortyNine) {
    Play(6, 60);
    EXPECT_NE(numbers_(49), 0);
    EXPECT_EQ(numbers_(50), 0);
}

TEST_F(Astrology, OfFewNumbersHasZerosBehindThemInAFreshForm) {
    for (const auto& [type, lines] :
         {std::pair{WheelType::Type1, 8U}, {WheelType::Type2, 4U}, {WheelType::Type3, 3U}}) {
        Play(6, 12, 4015, type);
        EXPECT_EQ(Lines().size(), lines);
    }
}

TEST_F(Astrology, OfFewNumbersShowsBehindThemThoseOfTheLastGenerationWithMore) {
    Play(6, 49);
    const Row before(numbers_.Data(), numbers_.Data() + 51);
    Play(6, 12, 4017, WheelType::Type1);
    const std::vector<Row> lines = Lines();
    EXPECT_EQ(lines.size(), 9U);
    int own = 12;
    if (state_->Pool(50) <= 12) --own;
    for (int place = own + 1; place <= 50; ++place) {
        EXPECT_EQ(numbers_(place), before[static_cast<std::size_t>(place)]);
    }
    Row last(numbers_.Data() + 9, numbers_.Data() + 15);
    std::sort(last.begin(), last.end());
    EXPECT_EQ(lines.back(), last);
    EXPECT_GT(lines.back().back(), 12);
}

TEST_F(Astrology, DoesNotLookBehindTheFiftyOfThePool) {
    state_->Pool.Fill(99);
    EXPECT_EQ(FailureOf([this] { Play(6, 12); }), "no failure");
    EXPECT_EQ(numbers_(13), 0);
}

TEST_F(Astrology, OfNoNumbersShowsNoLine) {
    Play(6, 0);
    EXPECT_TRUE(Lines().empty());
}

}  // namespace

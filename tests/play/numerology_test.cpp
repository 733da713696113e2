// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/numerology.h"

#include <gtest/gtest.h>

#include "tests/core/failures.h"
#include "tests/play/random_support.h"
#include "tests/play/wheel_support.h"
#include "tests/support/each_real_history.h"

namespace {

using numerology::PlayLotto;
using numerology::SeedValue;
using std::chrono::day;
using std::chrono::month;
using std::chrono::year;

const Date birth = year(1970) / month(1) / day(1);
constexpr int datePart = 1 + 1 + 1970;

class Numerology : public LuckyNumbersTest {
  protected:
    Numerology() : LuckyNumbersTest(PlayLotto) {}
};

TEST(NumerologySeed, AddsTheCodesOfTheNameInCapitalsToTheBirthDateTwiceAndOneMore) {
    EXPECT_EQ(SeedValue("Ann", birth), ('A' + 'N' + 'N' + datePart) * 2 + 1);
    EXPECT_EQ(SeedValue("A", Date(year(1999) / month(12) / day(31))),
              ('A' + 31 + 12 + 1999) * 2 + 1);
}

TEST(NumerologySeed, IsTheSameInLowerCaseAndWithOtherBlanks) {
    const auto seed = SeedValue("Ann Lee", birth);
    for (const char* name : {"ann lee", "ANNLEE", "  a n n   l e e  "}) {
        EXPECT_EQ(SeedValue(name, birth), seed) << name;
    }
}

TEST(NumerologySeed, CountsDigitsAndSignsAlike) {
    EXPECT_EQ(SeedValue("R2-D2", birth), ('R' + '2' + '-' + 'D' + '2' + datePart) * 2 + 1);
    EXPECT_EQ(SeedValue("?", birth), (63 + datePart) * 2 + 1);
}

TEST(NumerologySeed, CountsAccentedCapitalsByTheirSingleByte) {
    EXPECT_EQ(SeedValue("\xE9", birth), (0xC9 + datePart) * 2 + 1);
    EXPECT_EQ(SeedValue("\xC9", birth), SeedValue("\xE9", birth));
    EXPECT_EQ(SeedValue("\xFF", birth), (0x9F + datePart) * 2 + 1);
}

TEST(NumerologySeed, TakesOutBlanksAndNoOtherSpace) {
    EXPECT_EQ(SeedValue("A\tB", birth), ('A' + 9 + 'B' + datePart) * 2 + 1);
    EXPECT_EQ(SeedValue("A\xA0", birth), ('A' + 0xA0 + datePart) * 2 + 1);
}

TEST(NumerologySeed, OfNoNameIsNone) {
    for (const char* name : {"", " ", "     "}) EXPECT_EQ(SeedValue(name, birth), std::nullopt);
}

TEST_F(Numerology, RepeatsNumbersAndLinesOfASeedExtraBallsIncluded) {
    state_->MaxPball = 14;
    const std::string shown = Play(5, 34);
    const Row lines = AllLines(*state_);
    Play(7, 47, 11);
    EXPECT_NE(AllLines(*state_), lines);
    random_.Next();
    EXPECT_EQ(Play(5, 34), shown);
    EXPECT_EQ(AllLines(*state_), lines);
}

TEST_F(Numerology, ShowsFifteenNumbersWhateverTheLottery) {
    const std::string shown = Play(6, 49);
    EXPECT_EQ(NumbersShown(shown).size(), 15U);
    for (const int maxNum : {12, 34, 60, 1000}) EXPECT_EQ(Play(5, maxNum), shown);
}

TEST_F(Numerology, TakesTheFirstTwentyThatFitTheLottery) {
    for (std::int64_t seed = 1; seed <= 50; ++seed) {
        Play(5, 34, seed);
        Row expected;
        for (int place = 1; place <= 50; ++place) {
            if (state_->Pool(place) <= 34) expected.push_back(state_->Pool(place));
        }
        expected.resize(20);
        EXPECT_EQ(Taken(20), expected);
        EXPECT_EQ(numbers_(21), 0);
    }
}

TEST_F(Numerology, Of49NumbersLosesOnlyTheFifty) {
    for (std::int64_t seed = 1; seed <= 50; ++seed) {
        Row shown = NumbersShown(Play(6, 49, seed));
        std::erase(shown, 50);
        EXPECT_EQ(Taken(static_cast<int>(shown.size())), shown);
    }
}

TEST_F(Numerology, OfMoreThanFiftyNumbersUsesTheFirstFifty) {
    for (const int maxNum : {50, 60, 121, 30000}) {
        const Row shown = NumbersShown(Play(6, maxNum));
        EXPECT_EQ(Taken(15), shown);
        Row first(shown.begin(), shown.begin() + 6);
        std::sort(first.begin(), first.end());
        EXPECT_EQ(Lines()[0], first);
    }
}

TEST_F(Numerology, HasTheSameExtraBallInALineWhateverTheWheelType) {
    state_->MaxPball = 14;
    std::vector<Row> balls;
    for (const WheelType type : {WheelType::Type1, WheelType::Type2, WheelType::Type3}) {
        Play(5, 34, 4015, type);
        Row& ofType = balls.emplace_back();
        for (const Row& line : LinesOf(*state_, 8)) ofType.push_back(line[7]);
    }
    EXPECT_EQ(balls[0].size(), 9U);
    EXPECT_EQ(balls[1], Row(balls[0].begin(), balls[0].begin() + 5));
    EXPECT_EQ(balls[2], Row(balls[0].begin(), balls[0].begin() + 3));
}

TEST_F(Numerology, AsksForFiftyRandomNumbersAndOneALineForExtraBalls) {
    Play(6, 49);
    EXPECT_EQ(NumbersTaken(random_, 4015), 50);
    state_->MaxPball = 14;
    Play(5, 34, 4015, WheelType::Type1);
    EXPECT_EQ(NumbersTaken(random_, 4015), 50 + 9);
    Play(5, 34, 4015, WheelType::Type3);
    EXPECT_EQ(NumbersTaken(random_, 4015), 50 + 3);
}

TEST_F(Numerology, IsSeededByItsPersonAndNotByTheClock) {
    bool asked = false;
    Random random([&asked] {
        asked = true;
        return std::uint64_t{1};
    });
    PlayLotto(*state_, random, numbers_, 4015, WheelType::Type1);
    EXPECT_FALSE(asked);
}

TEST_F(Numerology, Of12NumbersHasZerosBehindThemSoTheLineFromPlaceNineEndsTheResult) {
    for (const auto& [type, lines] :
         {std::pair{WheelType::Type1, 8U}, {WheelType::Type2, 4U}, {WheelType::Type3, 3U}}) {
        Play(6, 12, 4015, type);
        EXPECT_EQ(Lines().size(), lines);
        EXPECT_EQ(Taken(20), [this] {
            Row padded = Taken(12);
            padded.resize(20);
            return padded;
        }());
    }
}

TEST_F(Numerology, OfFewNumbersTakesWhatThePoolHoldsBehindTheFifty) {
    state_->Pool(51) = 13;
    state_->Pool(52) = 7;
    Play(6, 12, 4015, WheelType::Type1);
    EXPECT_EQ((Row{numbers_(13), numbers_(14), numbers_(15)}), (Row{7, 0, 0}));
}

TEST_F(Numerology, OfFewNumbersWithAPoolOfGreaterOnesEndsWithAReport) {
    state_->Pool.Fill(99);
    EXPECT_EQ(FailureOf([this] { Play(6, 12); }),
              "The list of pool of numbers was asked for entry 121; its last entry is 120.");
    EXPECT_EQ(FailureOf([this] { Play(6, 20); }), "no failure");
}

TEST_F(Numerology, OfFewerNumbersThanALineHasShowsNoLine) {
    Play(6, 4);
    EXPECT_TRUE(Lines().empty());
    EXPECT_NE(state_->Lines(1, 6), 0);
}

TEST_F(Numerology, HasSortedLinesInEachRealLottery) {
    const auto check = [&](const std::string& name) {
        for (const auto& [type, lines] :
             {std::pair{WheelType::Type1, 9U}, {WheelType::Type2, 5U}, {WheelType::Type3, 3U}}) {
            PlayLotto(*state_, random_, numbers_, 4015, type);
            EXPECT_EQ(Lines().size(), lines) << name;
            for (const Row& line : Lines()) {
                EXPECT_GE(line.front(), 1) << name;
                EXPECT_LE(line.back(), state_->MaxNum) << name;
                EXPECT_TRUE(std::is_sorted(line.begin(), line.end()));
                EXPECT_EQ(std::adjacent_find(line.begin(), line.end()), line.end());
            }
        }
    };
    if (!ForEachRealHistory(*state_, check)) GTEST_SKIP() << "no folder of real histories";
}

}  // namespace

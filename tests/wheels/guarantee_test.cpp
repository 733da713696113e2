// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/guarantee.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <string>
#include <vector>

#include "core/random.h"
#include "tests/core/failures.h"

namespace {

using wheels::FamilyOf;
using wheels::Guarantee;
using wheels::LineMasks;
using wheels::VerifyGuarantee;
using wheels::WheelAt;
using wheels::WheelList;

using Masks = std::vector<std::uint64_t>;

Masks MasksOf(WheelList list, int item) {
    return LineMasks(WheelAt(list, item).pattern, FamilyOf(list).lettersInLine);
}

bool HasMatch(const Masks& lines, std::uint64_t selection, int matched) {
    for (const std::uint64_t line : lines) {
        if (std::popcount(line & selection) >= matched) return true;
    }
    return false;
}

/// Looks at every selection by itself, in ascending order.
class PlainCheck {
  public:
    PlainCheck(const Masks& lines, int numbers, int drawn, int matched)
        : lines_(lines), numbers_(numbers), drawn_(drawn), matched_(matched) {
        Choose({});
    }
    Guarantee found;

  private:
    void Choose(std::vector<int> chosen) {
        if (static_cast<int>(chosen.size()) == drawn_) return Look(chosen);
        for (int next = chosen.empty() ? 1 : chosen.back() + 1; next <= numbers_; ++next) {
            chosen.push_back(next);
            Choose(chosen);
            chosen.pop_back();
        }
    }
    void Look(const std::vector<int>& chosen) {
        std::uint64_t selection = 0;
        for (const int number : chosen) selection |= std::uint64_t{1} << (number - 1);
        ++found.selections;
        if (HasMatch(lines_, selection, matched_)) return;
        if (found.uncovered++ == 0) found.firstUncovered = chosen;
    }
    const Masks& lines_;
    int numbers_, drawn_, matched_;
};

void ExpectSame(const Guarantee& fast, const Guarantee& plain) {
    EXPECT_EQ(fast.selections, plain.selections);
    EXPECT_EQ(fast.uncovered, plain.uncovered);
    EXPECT_EQ(fast.firstUncovered, plain.firstUncovered);
}

/// How many of the six drawn numbers the sentences of the two lists ask for, item by item.
const std::vector<int> threeMatchDrawn = {6, 6, 6, 6, 6, 6, 3, 4, 4, 4, 5, 5, 5};
const std::vector<int> fourMatchDrawn = {4, 4, 4, 4, 5, 5, 5, 5, 6, 6, 6, 6, 6, 6};

void ExpectAllSentencesHold(WheelList list, const std::vector<int>& drawn, int matched) {
    ASSERT_EQ(FamilyOf(list).items.size(), drawn.size());
    for (int item = 0; item < static_cast<int>(drawn.size()); ++item) {
        SCOPED_TRACE(item);
        const wheels::Wheel& wheel = WheelAt(list, item);
        const int needed = drawn[static_cast<std::size_t>(item)];
        EXPECT_EQ(wheel.drawn, needed);
        const Guarantee found =
            VerifyGuarantee(MasksOf(list, item), wheel.numbers, needed, matched);
        EXPECT_GT(found.selections, 0);
        EXPECT_EQ(found.uncovered, 0);
        EXPECT_TRUE(found.firstUncovered.empty());
    }
}

TEST(Guarantee, HoldsForEverySentenceOfTheThreeMatchWheels) {
    ExpectAllSentencesHold(WheelList::ThreeMatch, threeMatchDrawn, 3);
}

TEST(Guarantee, HoldsForEverySentenceOfTheFourMatchWheels) {
    ExpectAllSentencesHold(WheelList::FourMatch, fourMatchDrawn, 4);
}

struct Gap {
    int item;
    long long selections;
    long long uncovered;
    std::vector<int> first;
};

/// All wheels of a panel have no gap but those listed.
void ExpectGaps(WheelList list, int drawn, int matched, const std::vector<Gap>& gaps) {
    EXPECT_EQ(FamilyOf(list).matched, matched);
    auto gap = gaps.begin();
    for (int item = 0; item < static_cast<int>(FamilyOf(list).items.size()); ++item) {
        SCOPED_TRACE(item);
        EXPECT_EQ(WheelAt(list, item).drawn, drawn);
        const Guarantee found = VerifyGuarantee(list, item);
        if (gap == gaps.end() || gap->item != item) {
            EXPECT_EQ(found.uncovered, 0);
            continue;
        }
        EXPECT_EQ(found.selections, gap->selections);
        EXPECT_EQ(found.uncovered, gap->uncovered);
        EXPECT_EQ(found.firstUncovered, gap->first);
        std::uint64_t selection = 0;
        for (const int number : found.firstUncovered) selection |= std::uint64_t{1} << (number - 1);
        EXPECT_FALSE(HasMatch(MasksOf(list, item), selection, matched));
        ++gap;
    }
    EXPECT_EQ(gap, gaps.end());
}

TEST(Guarantee, OfThreeMatchesForSixHasGapsInNineWheels) {
    ExpectGaps(WheelList::ThreeForSix, 6, 3,
               {{8, 1344904, 3024, {4, 10, 11, 17, 18, 29}},
                {9, 1947792, 2592, {1, 4, 9, 19, 20, 31}},
                {10, 2760681, 3600, {1, 4, 9, 19, 20, 33}},
                {11, 3838380, 17319, {1, 2, 19, 20, 38, 40}},
                {12, 4496388, 9276, {1, 2, 23, 24, 27, 32}},
                {14, 6096454, 8085, {1, 9, 15, 16, 22, 23}},
                {15, 7059052, 18711, {1, 2, 23, 24, 42, 44}},
                {16, 8145060, 6930, {1, 6, 9, 14, 24, 25}},
                {17, 9366819, 24024, {1, 2, 25, 26, 29, 44}}});
}

TEST(Guarantee, OfThreeMatchesForThreeHasGapsInTwoWheels) {
    ExpectGaps(WheelList::ThreeForThree, 3, 3, {{8, 560, 7, {4, 10, 11}}, {9, 816, 6, {1, 4, 9}}});
}

TEST(Guarantee, OfFiveMatchesForSixMissesOneSelectionOfOneWheel) {
    ExpectGaps(WheelList::FiveForSix, 6, 5, {{1, 1716, 1, {1, 3, 8, 10, 12, 13}}});
}

TEST(Guarantee, OfTheLargestWheelHoldsForAllItsSelections) {
    const Guarantee found = VerifyGuarantee(WheelList::ThreeForSix, 19);
    EXPECT_EQ(found.selections, 12271512);
    EXPECT_EQ(found.uncovered, 0);
}

TEST(Guarantee, AgreesWithThePlainCheckOnTheSmallerWheels) {
    for (const WheelList list : {WheelList::ThreeMatch, WheelList::FourMatch,
                                 WheelList::ThreeForThree, WheelList::FiveForSix}) {
        for (int item = 0; item < static_cast<int>(FamilyOf(list).items.size()); ++item) {
            const wheels::Wheel& wheel = WheelAt(list, item);
            if (wheel.numbers > 16) continue;
            SCOPED_TRACE(wheel.pattern);
            const PlainCheck plain(MasksOf(list, item), wheel.numbers, wheel.drawn,
                                   FamilyOf(list).matched);
            ExpectSame(VerifyGuarantee(list, item), plain.found);
        }
    }
}

TEST(Guarantee, AgreesWithThePlainCheckOnRandomWheelsAndPromises) {
    Random random([] { return 0U; });
    random.Reset(20);
    for (int round = 0; round < 400; ++round) {
        const int numbers = random.OneTo(11);
        Masks lines(static_cast<std::size_t>(random.OneTo(80) - 1));
        for (std::uint64_t& line : lines) {
            for (int letter = 0; letter < 6; ++letter) {
                line |= std::uint64_t{1} << (random.OneTo(numbers) - 1);
            }
        }
        const int drawn = random.OneTo(7);
        const int matched = random.OneTo(7);
        SCOPED_TRACE(round);
        const PlainCheck plain(lines, numbers, drawn, matched);
        ExpectSame(VerifyGuarantee(lines, numbers, drawn, matched), plain.found);
    }
}

TEST(Guarantee, AgreesWithThePlainCheckOnManyLines) {
    Random random([] { return 0U; });
    random.Reset(21);
    for (const std::size_t count : {63U, 64U, 65U, 128U, 129U, 192U}) {
        Masks lines(count);
        for (std::uint64_t& line : lines) {
            for (int letter = 0; letter < 4; ++letter) {
                line |= std::uint64_t{1} << (random.OneTo(20) - 1);
            }
        }
        SCOPED_TRACE(count);
        const PlainCheck plain(lines, 20, 4, 3);
        ExpectSame(VerifyGuarantee(lines, 20, 4, 3), plain.found);
    }
}

TEST(Guarantee, IsLostWithAnyLineOfATightWheel) {
    const Masks all = MasksOf(WheelList::ThreeMatch, 5);
    for (std::size_t line = 0; line < all.size(); ++line) {
        Masks lines = all;
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(line));
        EXPECT_GT(VerifyGuarantee(lines, 15, 6, 3).uncovered, 0) << "without line " << line + 1;
    }
}

TEST(Guarantee, WithoutLinesCoversNothing) {
    const Guarantee found = VerifyGuarantee(Masks{}, 8, 3, 3);
    EXPECT_EQ(found.uncovered, 56);
    EXPECT_EQ(found.firstUncovered, (std::vector<int>{1, 2, 3}));
}

TEST(Guarantee, OfNoMatchAlwaysHolds) { EXPECT_EQ(VerifyGuarantee(Masks{}, 8, 3, 0).uncovered, 0); }

TEST(Guarantee, OverMoreDrawnThanNumbersHasNoSelections) {
    const Guarantee found = VerifyGuarantee(Masks{}, 5, 6, 3);
    EXPECT_EQ(found.selections, 0);
    EXPECT_EQ(found.uncovered, 0);
}

TEST(Guarantee, ReachesTheSixtyFourthNumber) {
    const Guarantee found = VerifyGuarantee(Masks{~std::uint64_t{0} >> 1U}, 64, 1, 1);
    EXPECT_EQ(found.selections, 64);
    EXPECT_EQ(found.firstUncovered, std::vector<int>{64});
}

TEST(LineMasks, CountALetterThatStandsTwiceOnce) {
    EXPECT_EQ(LineMasks("ABCDEFTW[dfT", 6),
              (Masks{0b111111, (1ULL << 19U) | (1ULL << 22U) | (1ULL << 26U) | (1ULL << 35U) |
                                   (1ULL << 37U)}));
}

TEST(LineMasks, RefuseCharactersThatAreNoLetters) {
    EXPECT_THROW(LineMasks("AB@", 3), Failure);
    EXPECT_THROW(LineMasks("AB\xE9", 3), Failure);
}

TEST(Guarantee, OfAWheelTooLargeFails) {
    EXPECT_EQ(FailureOf([&] { VerifyGuarantee(Masks(193), 49, 6, 3); }),
              "A wheel of 49 numbers in 193 lines is too large to verify");
    EXPECT_THROW(VerifyGuarantee(Masks(1), 65, 6, 3), Failure);
}

TEST(Guarantee, OfAWheelThatPromisesNothingFails) {
    EXPECT_THROW(VerifyGuarantee(WheelList::Budget, 0), Failure);
}

}  // namespace

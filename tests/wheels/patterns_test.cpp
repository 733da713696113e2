// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/patterns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "test_folders.h"
#include "tests/core/failures.h"

namespace {

using wheels::FamilyOf;
using wheels::Wheel;
using wheels::WheelAt;
using wheels::WheelFamily;
using wheels::WheelList;

using Fields = std::vector<std::string>;

/// The records of a table in tests/data: one a line, fields between bars, "#" before remarks.
std::vector<Fields> ReadTable(const std::string& file) {
    std::ifstream in(std::string(TEST_DATA "/") + file);
    std::vector<Fields> records;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with('#')) continue;
        std::istringstream text(line);
        Fields& fields = records.emplace_back();
        for (std::string field; std::getline(text, field, '|');) fields.push_back(field);
    }
    return records;
}

std::string PicksText(const WheelFamily& family) {
    if (family.form == "PWheel3") {
        return std::to_string(family.lowestPicks) + " to " + std::to_string(family.highestPicks);
    }
    std::string text = std::to_string(family.lowestPicks);
    for (int picks = family.lowestPicks + 1; picks <= family.highestPicks; ++picks) {
        text += ", " + std::to_string(picks);
    }
    return text;
}

std::string NameOf(const WheelFamily& family, std::size_t item) {
    return std::string(family.form) + " " + std::string(family.control) + " " +
           std::to_string(item) + " (" + PicksText(family) + " picks)";
}

std::string Group(const WheelFamily& family, const Wheel& wheel, int line) {
    const int letters = family.lettersInLine;
    return std::string(wheel.pattern.substr(static_cast<std::size_t>((line - 1) * letters),
                                            static_cast<std::size_t>(letters)));
}

template <typename Check>
void ForEachWheel(Check check) {
    for (const WheelList list : wheels::allWheelLists) {
        const WheelFamily& family = FamilyOf(list);
        for (std::size_t item = 0; item < family.items.size(); ++item) {
            SCOPED_TRACE(NameOf(family, item));
            check(family, family.items[item]);
        }
    }
}

TEST(WheelPatterns, EqualTheirIndependentCopyInOrderAndToTheLetter) {
    std::vector<Fields> ofProgram;
    for (const WheelList list : wheels::allWheelLists) {
        const WheelFamily& family = FamilyOf(list);
        for (std::size_t item = 0; item < family.items.size(); ++item) {
            const Wheel& wheel = family.items[item];
            ofProgram.push_back({std::string(family.form), std::string(family.control),
                                 PicksText(family), std::to_string(item),
                                 std::to_string(wheel.numbers), std::to_string(wheel.lines),
                                 std::string(wheel.pattern)});
        }
    }
    const std::vector<Fields> copy = ReadTable("wheel_patterns.txt");
    ASSERT_EQ(copy.size(), 81U);
    ASSERT_EQ(ofProgram.size(), 81U);
    for (std::size_t row = 0; row < copy.size(); ++row) EXPECT_EQ(ofProgram[row], copy[row]);
}

TEST(WheelPatterns, AreAsLongAsTheirLinesHaveLetters) {
    ForEachWheel([](const WheelFamily& family, const Wheel& wheel) {
        EXPECT_EQ(static_cast<int>(wheel.pattern.size()), wheel.lines * family.lettersInLine);
    });
}

TEST(WheelPatterns, UseEveryLetterUpToTheLastNumberAndNoneBeyond) {
    ForEachWheel([](const WheelFamily& family, const Wheel& wheel) {
        const std::set<char> letters(wheel.pattern.begin(), wheel.pattern.end());
        EXPECT_EQ(*letters.begin(), 'A');
        EXPECT_EQ(*letters.rbegin() - 'A' + 1, wheel.numbers / family.numbersInLetter);
        EXPECT_EQ(static_cast<int>(letters.size()), wheel.numbers / family.numbersInLetter);
        EXPECT_EQ(wheel.numbers % family.numbersInLetter, 0);
    });
}

TEST(WheelPatterns, HoldNoQuoteAndNoBar) {
    ForEachWheel([](const WheelFamily&, const Wheel& wheel) {
        EXPECT_EQ(wheel.pattern.find_first_of("\"|"), std::string_view::npos);
    });
}

TEST(WheelPatterns, FitTheLinesTableWithItsEndMark) {
    ForEachWheel([](const WheelFamily&, const Wheel& wheel) { EXPECT_LE(wheel.lines, 165); });
}

TEST(WheelPatterns, KeepExactlyTheKnownGroupsThatAreOutOfOrderOrDoubled) {
    std::vector<Fields> found;
    ForEachWheel([&found](const WheelFamily& family, const Wheel& wheel) {
        if (family.lettersInLine != 6) return;
        for (int line = 1; line <= wheel.lines; ++line) {
            const std::string group = Group(family, wheel, line);
            const bool doubled = std::set<char>(group.begin(), group.end()).size() < 6;
            if (std::is_sorted(group.begin(), group.end()) && !doubled) continue;
            found.push_back({std::string(family.form), std::string(family.control),
                             std::to_string(&wheel - family.items.data()), std::to_string(line),
                             group, doubled ? "a letter twice" : "out of order"});
        }
    });
    EXPECT_EQ(found, ReadTable("wheel_irregular_groups.txt"));
    EXPECT_EQ(found.size(), 10U);
}

TEST(WheelPatterns, HoldOneBackslashForEachOne) {
    const Wheel& wheel = WheelAt(WheelList::ThreeForSix, 5);
    EXPECT_EQ(std::count(wheel.pattern.begin(), wheel.pattern.end(), '\\'), 7);
    EXPECT_EQ(Group(FamilyOf(WheelList::ThreeForSix), wheel, 24), "QRWX[\\");
}

TEST(WheelPatterns, OfTheLargestWheelUseAllFortyEightLetters) {
    const Wheel& wheel = WheelAt(WheelList::ThreeForSix, 19);
    EXPECT_EQ(wheel.lines, 165);
    EXPECT_EQ(std::set<char>(wheel.pattern.begin(), wheel.pattern.end()).size(), 48U);
    EXPECT_NE(wheel.pattern.find('p'), std::string_view::npos);
}

TEST(WheelPatterns, OfPairsAreTheTripletWheelsOneSizeLater) {
    for (int item = 0; item < 5; ++item) {
        EXPECT_EQ(WheelAt(WheelList::Pairs, item).pattern,
                  WheelAt(WheelList::Triplets, item + 1).pattern);
    }
    EXPECT_EQ(WheelAt(WheelList::Triplets, 0).pattern, "ABACBC");
}

TEST(WheelPatterns, OfThreePairsHoldTheLastPairInEveryLine) {
    for (int item = 0; item < 6; ++item) {
        const Wheel& wheel = WheelAt(WheelList::PairsOfSix, item);
        for (int line = 1; line <= wheel.lines; ++line) {
            EXPECT_EQ(Group(FamilyOf(WheelList::PairsOfSix), wheel, line)[2], 'D' + item);
        }
    }
}

TEST(WheelPatterns, AskedForAnItemBeyondTheListFail) {
    EXPECT_EQ(FailureOf([&] { WheelAt(WheelList::Budget, 4); }),
              "PBudgetWheel, Option1: there is no wheel 4, only 0 to 3");
    EXPECT_THROW(WheelAt(WheelList::Pairs, -1), Failure);
}

}  // namespace

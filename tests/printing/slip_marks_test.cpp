// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/slip_marks.h"

#include <gtest/gtest.h>

#include "core/memory_folder.h"
#include "tests/core/failures.h"
#include "tests/printing/slips.h"

namespace {

constexpr double exact = 1e-9;

// Number n at n, 100 + n; extra ball n at 200 + n, 300 + n; boards 1000 apart; no margin.
SlipLayout PlainLayout(int across, int down) {
    SlipLayout layout{.markWidth = 3,
                      .markHeight = 2,
                      .boardsAcross = across,
                      .boardsDown = down,
                      .boardStepX = 1000,
                      .boardStepY = 1000};
    for (int number = 1; number <= highestOnSlip; ++number) {
        layout.positions(number, numberX) = number;
        layout.positions(number, numberY) = 100 + number;
        layout.positions(number, extraX) = 200 + number;
        layout.positions(number, extraY) = 300 + number;
    }
    return layout;
}

std::vector<SlipLine> LinesOfOne(int count) {
    return std::vector<SlipLine>(static_cast<std::size_t>(count), {1});
}

using Place = std::pair<double, double>;

std::vector<Place> PlacesOn(const Sheet& sheet) {
    std::vector<Place> places;
    for (const FilledRectangle& mark : sheet.rectangles)
        places.emplace_back(mark.across, mark.down);
    return places;
}

std::vector<std::vector<Place>> Places(const Document& document) {
    std::vector<std::vector<Place>> places;
    for (const Sheet& sheet : document.sheets) places.push_back(PlacesOn(sheet));
    return places;
}

TEST(Slips, MarkEachNumberOfALine) {
    const Document slips = SlipsOf(PlainLayout(5, 1), {{3, 14, 60}});
    EXPECT_EQ(Places(slips), (std::vector<std::vector<Place>>{{{3, 103}, {14, 114}, {60, 160}}}));
    EXPECT_EQ(slips.sheets[0].rectangles[0].width, 3);
    EXPECT_EQ(slips.sheets[0].rectangles[0].height, 2);
    EXPECT_TRUE(slips.sheets[0].texts.empty());
}

TEST(Slips, MarkTheExtraBallWithEachOfTheSevenColumns) {
    const Document slips = SlipsOf(PlainLayout(5, 1), {{3, 14, 0, 0, 0, 0, 0, 9}});
    const Place extra{209, 309};
    EXPECT_EQ(
        PlacesOn(slips.sheets.at(0)),
        (std::vector<Place>{{3, 103}, extra, {14, 114}, extra, extra, extra, extra, extra, extra}));
}

TEST(Slips, GoAcrossThenDownThenToTheNextSlip) {
    EXPECT_EQ(Places(SlipsOf(PlainLayout(2, 2), LinesOfOne(5))),
              (std::vector<std::vector<Place>>{{{1, 101}, {1001, 101}, {1, 1101}, {1001, 1101}},
                                               {{1, 101}}}));
}

TEST(Slips, OfFiveBoardsTakeTheSixthLineToANewSlip) {
    EXPECT_EQ(Places(SlipsOf(PlainLayout(5, 1), LinesOfOne(6))).at(1),
              (std::vector<Place>{{1, 101}}));
}

TEST(Slips, ThatAreQuiteFullAreNotFollowedByAnEmptyOne) {
    EXPECT_EQ(SlipsOf(PlainLayout(5, 1), LinesOfOne(5)).sheets.size(), 1U);
    EXPECT_EQ(SlipsOf(PlainLayout(5, 1), LinesOfOne(10)).sheets.size(), 2U);
}

TEST(Slips, OnWhichNothingIsMarkedAreNoSheets) {
    std::vector<SlipLine> lines = LinesOfOne(3);
    lines[1] = {};
    EXPECT_EQ(SlipsOf(PlainLayout(1, 1), lines).sheets.size(), 2U);
    EXPECT_TRUE(SlipsOf(PlainLayout(1, 1), {}).sheets.empty());
    EXPECT_TRUE(SlipsOf(PlainLayout(1, 1), {{-1, 0}}).sheets.empty());
}

TEST(Slips, AnEmptyLineStillTakesItsBoard) {
    EXPECT_EQ(Places(SlipsOf(PlainLayout(3, 1), {{1}, {}, {1}})),
              (std::vector<std::vector<Place>>{{{1, 101}, {2001, 101}}}));
}

TEST(Slips, OfNoBoardsAcrossRunOnToTheRight) {
    for (const int across : {0, -1}) {
        EXPECT_EQ(Places(SlipsOf(PlainLayout(across, 1), LinesOfOne(3))),
                  (std::vector<std::vector<Place>>{{{1, 101}, {1001, 101}, {2001, 101}}}));
    }
}

TEST(Slips, OfNoBoardsDownRunOnDownwards) {
    for (const int down : {0, -1}) {
        EXPECT_EQ(Places(SlipsOf(PlainLayout(2, down), LinesOfOne(5))),
                  (std::vector<std::vector<Place>>{
                      {{1, 101}, {1001, 101}, {1, 1101}, {1001, 1101}, {1, 2101}}}));
    }
}

TEST(Slips, OfNoBoardsEitherWayRunOnToTheRight) {
    EXPECT_EQ(Places(SlipsOf(PlainLayout(0, 0), LinesOfOne(2))),
              (std::vector<std::vector<Place>>{{{1, 101}, {1001, 101}}}));
}

TEST(Slips, ANumberAboveSixtyEndsTheRun) {
    EXPECT_EQ(FailureOf([] {
                  SlipsOf(PlainLayout(5, 1), {{1}, {1, 61}});
              }),
              "Lottery slip: expected a number of at most 60 in line 2, column 2, but 61 stands "
              "there.");
    EXPECT_EQ(FailureOf([] {
                  SlipsOf(PlainLayout(5, 1), {{1, 0, 0, 0, 0, 0, 0, 99}});
              }),
              "Lottery slip: expected a number of at most 60 in line 1, column 8, but 99 stands "
              "there.");
}

TEST(SlipMarks, TakeBoardSeparationsAndMarginsFromTheFile) {
    MemoryFolder folder;
    folder.Write("PTemplate.000", SlipFile("UK Lotto"));
    const SlipLayout layout = ReadSlipLayout(folder, "PTemplate.000");
    const Document slips = SlipsOf(layout, {{7}, {7, 0, 0, 0, 0, 0, 0, 2}});
    const std::vector<FilledRectangle>& marks = slips.sheets.at(0).rectangles;
    ASSERT_EQ(marks.size(), 9U);
    EXPECT_NEAR(marks[0].across, 7.25 - 3.0, exact);
    EXPECT_NEAR(marks[0].down, 7.5 - 5.5, exact);
    EXPECT_NEAR(marks[1].across, 28.1 + 7.25 - 3.0, exact);
    EXPECT_NEAR(marks[2].across, 28.1 + 12 - 3.0, exact);
    EXPECT_NEAR(marks[2].down, 22 - 5.5, exact);
    EXPECT_EQ(marks[0].width, 3);
    EXPECT_EQ(marks[0].height, 2);
    EXPECT_EQ(layout.boardsAcross, 5);
    EXPECT_EQ(layout.boardsDown, 1);
}

TEST(SlipMarks, StandAtZeroWhereThePositionIsEmpty) {
    MemoryFolder folder;
    folder.Write("PTemplate.000", SlipFile("UK Lotto", 59) + ",,,\r\n");
    const Document slips = SlipsOf(ReadSlipLayout(folder, "PTemplate.000"), {{60}});
    EXPECT_NEAR(slips.sheets.at(0).rectangles.at(0).across, -3.0, exact);
    EXPECT_NEAR(slips.sheets.at(0).rectangles.at(0).down, -5.5, exact);
}

TEST(SlipMarks, PassOverWhatOnlyLedToThePositions) {
    MemoryFolder folder;
    std::string bytes = SlipFile("UK Lotto", 60, "sideways,9");
    bytes.replace(bytes.find("38.2,71.5"), 9, "38,2,71,5");
    folder.Write("PTemplate.000", bytes);
    const SlipLayout layout = ReadSlipLayout(folder, "PTemplate.000");
    EXPECT_EQ(layout.boardStepX, 28.1);
    EXPECT_EQ(layout.positions(60, extraY), 260);
}

TEST(SlipMarks, OfATemplateCutShortEndTheRun) {
    MemoryFolder folder;
    folder.Write("PTemplate.000", SlipFile("UK Lotto", 59));
    EXPECT_EQ(FailureOf([&] { ReadSlipLayout(folder, "PTemplate.000"); }),
              "PTemplate.000, line 72: expected Num_X of number 60, but the file ends there.");
    folder.Write("PTemplate.000", "Slip\r\n");
    EXPECT_NE(FailureOf([&] { ReadSlipLayout(folder, "PTemplate.000"); }), "no failure");
}

TEST(SlipMarks, OfATemplateInTheFormAreThoseOfItsFile) {
    MemoryFolder folder;
    SlipTemplate slip = SlipWith({{Measure::MarkWidth, "x"}, {Measure::BoardsDown, "2.5"}});
    GeneratePositions(slip, 49, 14);
    WriteSlipTemplate(folder, "PTemplate.000", slip);
    const SlipLayout typed = LayoutOf(slip);
    const SlipLayout read = ReadSlipLayout(folder, "PTemplate.000");
    EXPECT_EQ(typed.markWidth, 0);
    EXPECT_EQ(typed.boardsDown, 2);
    const auto heads = [](const SlipLayout& layout) {
        return std::vector<double>{layout.markWidth,
                                   layout.markHeight,
                                   static_cast<double>(layout.boardsAcross),
                                   static_cast<double>(layout.boardsDown),
                                   layout.boardStepX,
                                   layout.boardStepY,
                                   layout.marginX,
                                   layout.marginY};
    };
    EXPECT_EQ(heads(typed), heads(read));
    for (int number = 1; number <= highestOnSlip; ++number) {
        for (int column = 0; column < positionColumns; ++column) {
            EXPECT_EQ(typed.positions(number, column), read.positions(number, column)) << number;
        }
    }
}

TEST(TestSlips, MarkEveryNumberOfEveryBoardDownInsideAcross) {
    EXPECT_EQ(Places(TestSlip(PlainLayout(2, 2), 2, 0)),
              (std::vector<std::vector<Place>>{{{1, 101},
                                                {2, 102},
                                                {1, 1101},
                                                {2, 1102},
                                                {1001, 101},
                                                {1002, 102},
                                                {1001, 1101},
                                                {1002, 1102}}}));
}

TEST(TestSlips, MarkTheExtraBallBehindTheMainNumberOfItsRow) {
    EXPECT_EQ(Places(TestSlip(PlainLayout(1, 1), 1, 2)),
              (std::vector<std::vector<Place>>{{{1, 101}, {201, 301}, {202, 302}}}));
}

TEST(TestSlips, SubtractTheMarginFromThePositions) {
    SlipTemplate slip = DefaultSlip();
    GeneratePositions(slip, 49, 0);
    const Document test = TestSlip(LayoutOf(slip), 49, 0);
    ASSERT_EQ(test.sheets.size(), 1U);
    const std::vector<FilledRectangle>& marks = test.sheets[0].rectangles;
    ASSERT_EQ(marks.size(), 5U * 49U);
    EXPECT_NEAR(marks[0].across, 38.2 - 3.0, exact);
    EXPECT_NEAR(marks[0].down, 71.5 - 5.5, exact);
    EXPECT_NEAR(marks[4 * 49 + 12].across, 4 * 28.1 + 42.0 - 3.0, exact);
}

TEST(TestSlips, OfALotteryOfMoreThanSixtyNumbersEndAtSixty) {
    EXPECT_EQ(TestSlip(PlainLayout(1, 1), 90, 90).sheets.at(0).rectangles.size(), 120U);
}

TEST(TestSlips, OfNoBoardsAreNoSheets) {
    EXPECT_TRUE(TestSlip(PlainLayout(0, 1), 49, 0).sheets.empty());
    EXPECT_TRUE(TestSlip(PlainLayout(2000000000, -1), 49, 0).sheets.empty());
    EXPECT_TRUE(TestSlip(PlainLayout(1, 1), 0, 0).sheets.empty());
}

TEST(TestSlips, OfMoreThanTenThousandBoardsEndTheRun) {
    EXPECT_EQ(TestSlip(PlainLayout(100, 100), 1, 0).sheets.at(0).rectangles.size(), 10000U);
    EXPECT_EQ(FailureOf([] { TestSlip(PlainLayout(2000000000, 2000000000), 1, 0); }),
              "Lottery slip: expected at most 10,000 boards, but across and down make "
              "4,000,000,000,000,000,000.");
}

TEST(SlipTemplateFor, IsTheLastOneOfTheLottery) {
    MemoryFolder folder;
    folder.Write("PTemplate.000", SlipFile("UK Lotto"));
    folder.Write("PTemplate.001", SlipFile("  UK Lotto  "));
    folder.Write("PTemplate.002", SlipFile("UK Thunderball"));
    EXPECT_EQ(SlipTemplateFor(folder, "UK Lotto"), "PTemplate.001");
}

TEST(SlipTemplateFor, ComparesTheNameAsItStands) {
    MemoryFolder folder;
    folder.Write("PTemplate.000", SlipFile("UK Lotto"));
    EXPECT_EQ(SlipTemplateFor(folder, "uk lotto"), "");
    EXPECT_EQ(SlipTemplateFor(folder, "UK Lotto "), "");
}

TEST(SlipTemplateFor, NeedsASecondLine) {
    MemoryFolder folder;
    folder.Write("PTemplate.000", "Slip\r\n");
    EXPECT_EQ(FailureOf([&] { SlipTemplateFor(folder, "UK Lotto"); }),
              "PTemplate.000, line 2: expected the name of the lottery, but the file ends there.");
}

}  // namespace

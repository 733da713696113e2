// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/slip_template.h"

#include <gtest/gtest.h>

#include <array>
#include <sstream>

#include "core/memory_folder.h"
#include "tests/core/failures.h"
#include "tests/core/taken_names.h"
#include "tests/printing/slips.h"

namespace {

using Positions = std::array<std::string, positionColumns>;

Positions PositionsOf(const SlipTemplate& slip, int number) {
    Positions positions;
    for (std::size_t column = 0; column < positions.size(); ++column) {
        positions[column] = slip.positions(number, static_cast<int>(column));
    }
    return positions;
}

SlipTemplate Generated(SlipTemplate slip, int maxNum = 49, int maxPball = 0) {
    GeneratePositions(slip, maxNum, maxPball);
    return slip;
}

std::string FailureOfGenerating(const SlipTemplate& slip) {
    return FailureOf([&] { Generated(slip); });
}

std::vector<std::string> Lines(const std::string& bytes) {
    std::vector<std::string> lines;
    std::istringstream stream(bytes);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

TEST(LandscapePositions, RunUpwardsInAColumnAndColumnsToTheRight) {
    const SlipTemplate slip = Generated(DefaultSlip());
    EXPECT_EQ(PositionsOf(slip, 1), (Positions{"38.20", "71.50", "", ""}));
    EXPECT_EQ(PositionsOf(slip, 2), (Positions{"38.20", "65.11", "", ""}));
    EXPECT_EQ(PositionsOf(slip, 12), (Positions{"38.20", "1.21", "", ""}));
    EXPECT_EQ(PositionsOf(slip, 13), (Positions{"42.00", "71.50", "", ""}));
    EXPECT_EQ(PositionsOf(slip, 49), (Positions{"53.40", "71.50", "", ""}));
    EXPECT_EQ(PositionsOf(slip, 50), Positions());
}

TEST(LandscapePositions, OfExtraBallsGoAsFarAsTheLotteryHasSome) {
    const SlipTemplate slip = Generated(DefaultSlip(), 34, 14);
    EXPECT_EQ(PositionsOf(slip, 5), (Positions{"38.20", "45.94", "45.90", "27.30"}));
    EXPECT_EQ(PositionsOf(slip, 14), (Positions{"42.00", "65.11", "53.50", "20.91"}));
    EXPECT_EQ(PositionsOf(slip, 15), (Positions{"42.00", "58.72", "", ""}));
    EXPECT_EQ(PositionsOf(slip, 35), Positions());
}

TEST(LandscapePositions, MayBeOfMoreExtraBallsThanMainNumbers) {
    const SlipTemplate slip = Generated(DefaultSlip(), 3, 4);
    EXPECT_EQ(PositionsOf(slip, 4), (Positions{"", "", "42.10", "8.13"}));
}

TEST(LandscapePositions, EndAtSixtyInALotteryOfMore) {
    const SlipTemplate slip = Generated(DefaultSlip(), 90, 90);
    EXPECT_EQ(PositionsOf(slip, 60), (Positions{"53.40", "1.21", "95.30", "8.13"}));
}

TEST(LandscapePositions, BelowTheEdgeAreWrittenWithASign) {
    const SlipTemplate slip =
        Generated(SlipWith({{Measure::FirstNumberY, "5.14"}, {Measure::NumberStepY, "6.39"}}));
    EXPECT_EQ(slip.positions(2, numberY), "-1.25");
}

TEST(PortraitPositions, RunToTheRightInARowAndRowsDownwards) {
    const SlipTemplate slip = Generated(SlipWith({}, Orientation::Portrait));
    EXPECT_EQ(PositionsOf(slip, 1), (Positions{"38.20", "71.50", "42.10", "27.30"}));
    EXPECT_EQ(PositionsOf(slip, 2), (Positions{"42.00", "71.50", "45.90", "27.30"}));
    EXPECT_EQ(PositionsOf(slip, 13), (Positions{"38.20", "77.89", "42.10", "46.47"}));
}

TEST(PortraitPositions, FillAllSixtyRowsWhateverTheLottery) {
    const SlipTemplate slip = Generated(SlipWith({}, Orientation::Portrait), 27, 0);
    for (int number = 1; number <= highestOnSlip; ++number) {
        for (const std::string& position : PositionsOf(slip, number)) {
            EXPECT_FALSE(position.empty()) << number;
        }
    }
    EXPECT_EQ(PositionsOf(slip, 60), (Positions{"80.00", "97.06", "53.50", "116.76"}));
}

TEST(SlipPositions, RoundHalfWayValuesAsTheDecimalFiguresSay) {
    EXPECT_EQ(Generated(DefaultSlip()).positions(37, numberX), "49.60");
    const SlipTemplate slip =
        Generated(SlipWith({{Measure::FirstNumberX, "1.005"}, {Measure::NumberStepX, "0.01"}}));
    EXPECT_EQ(slip.positions(1, numberX), "1.01");
    EXPECT_EQ(slip.positions(13, numberX), "1.02");
}

TEST(SlipPositions, OfATextThatIsNoNumberCountFromZero) {
    const SlipTemplate slip =
        Generated(SlipWith({{Measure::FirstNumberX, "x"}, {Measure::NumberStepX, ""}}));
    EXPECT_EQ(slip.positions(49, numberX), "0.00");
}

TEST(SlipPositions, TakeAPointForTheDecimalSignInEveryRegion) {
    EXPECT_EQ(Generated(SlipWith({{Measure::FirstNumberX, "38,2"}})).positions(1, numberX),
              "38.00");
}

TEST(SlipPositions, RoundNumbersPerRowHalfToEven) {
    for (const auto& [typed, next] : {std::pair("12.5", 13), {"11.5", 13}, {"12.6", 14}}) {
        const SlipTemplate slip = Generated(SlipWith({{Measure::NumbersPerRow, typed}}));
        EXPECT_EQ(slip.positions(next, numberX), "42.00") << typed;
        EXPECT_EQ(slip.positions(next - 1, numberX), "38.20") << typed;
    }
}

TEST(SlipPositions, CountBackwardsWithNumbersPerRowBelowZero) {
    const SlipTemplate slip = Generated(SlipWith({{Measure::NumbersPerRow, "-12"}}));
    EXPECT_EQ(PositionsOf(slip, 14), (Positions{"34.40", "65.11", "", ""}));
}

TEST(SlipPositions, WithNoNumbersPerRowEndTheRun) {
    EXPECT_EQ(FailureOfGenerating(SlipWith({{Measure::NumbersPerRow, "0"}})),
              "Slip template \"Lotto slip\": expected a number other than 0 as how many main "
              "numbers stand in a row, but \"0\" stands there.");
    EXPECT_NE(FailureOfGenerating(SlipWith({{Measure::NumbersPerRow, "0.5"}})), "no failure");
    EXPECT_NE(FailureOfGenerating(SlipWith({{Measure::NumbersPerRow, "x"}}, Orientation::Portrait)),
              "no failure");
}

TEST(SlipPositions, WithNoExtraBallsPerRowEndTheRunEvenWithoutAnExtraBall) {
    EXPECT_EQ(FailureOfGenerating(SlipWith({{Measure::ExtrasPerRow, ""}})),
              "Slip template \"Lotto slip\": expected a number other than 0 as how many extra "
              "balls stand in a row, but \"\" stands there.");
}

TEST(SlipPositions, ReplaceThoseThatWereThere) {
    SlipTemplate slip = DefaultSlip();
    slip.positions(1, numberX) = "9.99";
    slip.positions(60, extraY) = "9.99";
    EXPECT_EQ(PositionsOf(Generated(slip), 1), (Positions{"38.20", "71.50", "", ""}));
    EXPECT_EQ(PositionsOf(Generated(slip), 60), Positions());
}

TEST(SlipMeasures, ReadWholeWhereNothingBehindTheNumberIsPassedOver) {
    for (const char* text : {"3", "38.2", " -1.25 ", "+4", ".5", "5."}) {
        EXPECT_TRUE(ReadsWhole(text)) << text;
    }
    for (const char* text : {"", " ", "x", "38,2", "1.2.3", "3 mm", "--1", "1-", ".", "-"}) {
        EXPECT_FALSE(ReadsWhole(text)) << text;
    }
}

TEST(SlipTemplateFiles, AreWrittenAsTyped) {
    MemoryFolder folder;
    SlipTemplate slip = SlipWith({{Measure::MarkWidth, " 3 mm"}, {Measure::MarginY, "x"}});
    slip.name = " My slip ";
    WriteSlipTemplate(folder, "PTemplate.007", Generated(slip, 49, 2));
    const std::vector<std::string> lines = Lines(folder.Read("PTemplate.007"));
    ASSERT_EQ(lines.size(), 72U);
    const std::vector<std::string> expected = {" My slip \r",
                                               "UK Lotto\r",
                                               " 1 \r",
                                               " 3 mm,2\r",
                                               "5,1\r",
                                               "12,4\r",
                                               "38.2,71.5\r",
                                               "42.1,27.3\r",
                                               "3.8,6.39\r",
                                               "3.8,6.39\r",
                                               "28.1,0\r",
                                               "3.0,x\r",
                                               "38.20,71.50,42.10,27.30\r",
                                               "38.20,65.11,42.10,20.91\r",
                                               "38.20,58.72,,\r"};
    for (std::size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(lines[i], expected[i]) << i + 1;
    EXPECT_EQ(lines[60], "53.40,71.50,,\r");
    EXPECT_EQ(lines[61], ",,,\r");
    EXPECT_EQ(lines[71], ",,,\r");
}

TEST(SlipTemplateFiles, TellPortraitByAZeroBetweenBlanks) {
    MemoryFolder folder;
    WriteSlipTemplate(folder, "PTemplate.000", SlipWith({}, Orientation::Portrait));
    EXPECT_EQ(Lines(folder.Read("PTemplate.000"))[2], " 0 \r");
}

TEST(SlipTemplateFiles, ReadBackWhatWasWritten) {
    MemoryFolder folder;
    const SlipTemplate slip = Generated(SlipWith({}, Orientation::Portrait));
    WriteSlipTemplate(folder, "PTemplate.000", slip);
    const SlipTemplate read = ReadSlipTemplate(folder, "PTemplate.000");
    EXPECT_EQ(read.name, slip.name);
    EXPECT_EQ(read.lottery, slip.lottery);
    EXPECT_EQ(read.orientation, Orientation::Portrait);
    EXPECT_EQ(read.measures, slip.measures);
    for (int number = 1; number <= highestOnSlip; ++number) {
        EXPECT_EQ(PositionsOf(read, number), PositionsOf(slip, number)) << number;
    }
}

TEST(SlipTemplateFiles, KeepEmptyPositionsEvenInALastLineWithoutALineEnd) {
    MemoryFolder folder;
    std::string bytes = SlipFile("UK Lotto", 59) + ",,,";
    folder.Write("PTemplate.000", bytes);
    EXPECT_EQ(PositionsOf(ReadSlipTemplate(folder, "PTemplate.000"), 60), Positions());
}

TEST(SlipTemplateFiles, CommasInAMeasurementShiftWhatFollows) {
    MemoryFolder folder;
    WriteSlipTemplate(folder, "PTemplate.000",
                      Generated(SlipWith({{Measure::FirstNumberX, "38,2"}})));
    const SlipTemplate read = ReadSlipTemplate(folder, "PTemplate.000");
    EXPECT_EQ(read[Measure::FirstNumberX], "38");
    EXPECT_EQ(read[Measure::FirstNumberY], "2");
    EXPECT_EQ(read[Measure::FirstExtraX], "71.5");
}

TEST(SlipTemplateFiles, ReadAnOrientationThatIsNoNumberAsPortrait) {
    MemoryFolder folder;
    folder.Write("PTemplate.000", SlipFile("UK Lotto", 60, "x"));
    EXPECT_EQ(ReadSlipTemplate(folder, "PTemplate.000").orientation, Orientation::Portrait);
}

TEST(SlipTemplateFiles, OfAnotherOrientationEndTheRun) {
    MemoryFolder folder;
    folder.Write("PTemplate.000", SlipFile("UK Lotto", 60, " 2 "));
    EXPECT_EQ(FailureOf([&] { ReadSlipTemplate(folder, "PTemplate.000"); }),
              "PTemplate.000, line 3: expected the orientation, 0 or 1, but \"2\" stands there.");
}

TEST(SlipTemplateFiles, CutShortAnywhereEndTheRunAndTheReportNamesWhatIsMissing) {
    MemoryFolder folder;
    folder.Write("PTemplate.000", SlipFile("UK Lotto", 59));
    EXPECT_EQ(FailureOf([&] { ReadSlipTemplate(folder, "PTemplate.000"); }),
              "PTemplate.000, line 72: expected Num_X of number 60, but the file ends there.");
    const std::string whole = SlipFile("UK Lotto");
    for (std::size_t bytes = 0; bytes < whole.find("60.25"); bytes += 7) {
        folder.Write("PTemplate.000", whole.substr(0, bytes));
        EXPECT_NE(FailureOf([&] { ReadSlipTemplate(folder, "PTemplate.000"); }), "no failure");
    }
}

TEST(SlipTemplateFiles, AreListedByTheirFirstLinesWhateverTheirEnding) {
    MemoryFolder folder;
    folder.Write("PTemplate.001", " Two \r\n");
    folder.Write("PTemplate.000", "One\r\n");
    folder.Write("PTemplate.bak", "Old\r\n");
    folder.Write("PTemplates.000", "None\r\n");
    std::vector<std::string> listed;
    for (const SlipTemplateFile& slip : ListSlipTemplates(folder)) {
        listed.push_back(slip.file + "=" + slip.name);
    }
    EXPECT_EQ(listed, (std::vector<std::string>{"PTemplate.000=One", "PTemplate.001= Two ",
                                                "PTemplate.bak=Old"}));
}

TEST(SlipTemplateFiles, WithoutAFirstLineEndTheRun) {
    MemoryFolder folder;
    folder.Write("PTemplate.000", "");
    EXPECT_EQ(FailureOf([&] { ListSlipTemplates(folder); }),
              "PTemplate.000, line 1: expected the name of the template, but the file ends there.");
}

TEST(CreateSlipTemplate, FillsTheGapThatADeletedOneLeft) {
    MemoryFolder folder;
    EXPECT_EQ(CreateSlipTemplate(folder, {}), "PTemplate.000");
    for (const char* file : {"ptemplate.001", "PTemplate.003", "PTemplate.bak"}) {
        folder.Write(file, "Slip\r\n");
    }
    EXPECT_EQ(CreateSlipTemplate(folder, {}), "PTemplate.002");
    EXPECT_EQ(folder.Read("PTemplate.002"), folder.Read("PTemplate.000"));
    EXPECT_EQ(folder.Read("ptemplate.001"), "Slip\r\n");
}

TEST(CreateSlipTemplate, LeavesOneThatSomebodyElseMakesMeanwhile) {
    MemoryFolder folder;
    TakenNames taken(folder, {"PTemplate.000"});
    EXPECT_EQ(CreateSlipTemplate(taken, {}), "PTemplate.001");
    EXPECT_EQ(folder.Read("PTemplate.000"), theirs);
}

}  // namespace

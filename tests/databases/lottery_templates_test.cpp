// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/lottery_templates.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <set>

#include "core/memory_folder.h"
#include "core/text.h"
#include "test_folders.h"
#include "tests/core/failures.h"

namespace {

constexpr auto file = "LotteryTemplates.txt";

class LotteryTemplates : public testing::Test {
  protected:
    void Load(const std::string& bytes) {
        folder.Write(file, bytes);
        LoadLotteryTemplates(state, folder);
    }

    std::string FailureOfLoading(const std::string& bytes) {
        return FailureOf([&] { Load(bytes); });
    }

    static std::string Definitions(int count) {
        std::string bytes;
        for (int i = 1; i <= count; ++i) {
            bytes += "Lottery " + std::to_string(i) + ",6,49,0,0,\r\n";
        }
        return bytes;
    }

    State state;
    MemoryFolder folder;
};

TEST_F(LotteryTemplates, FillsOneRowALineFromRowZero) {
    Load("Lotto,6,49,0,0,http://one.example\r\nThunder , 5 ,34,1,14,http://two.example\r\n");
    const std::vector<std::string> expected = {
        "Thunder", "5", "34", "1", "14", "http://two.example", ""};
    for (int column = 0; column <= 6; ++column) {
        EXPECT_EQ(state.Templates(1, column), expected.at(static_cast<std::size_t>(column)));
    }
    EXPECT_EQ(TemplateNames(state), (std::vector<std::string>{"Lotto", "Thunder"}));
}

TEST_F(LotteryTemplates, TheWebAddressMayHoldCommas) {
    Load("Lotto,6,49,0,0,http://one.example/a,b,c\r\n");
    EXPECT_EQ(state.Templates(0, 5), "http://one.example/a,b,c");
}

TEST_F(LotteryTemplates, TheWebAddressMayBeEmptyEvenInTheLastLineWithoutALineEnd) {
    Load("Lotto,6,49,0,0,");
    EXPECT_EQ(state.Templates(0, 4), "0");
    EXPECT_EQ(state.Templates(0, 5), "");
}

TEST_F(LotteryTemplates, ReadsLinesThatEndInALineFeed) {
    Load("Lotto,6,49,0,0,http://one.example\nThunder,5,34,1,14,\n");
    EXPECT_EQ(state.Templates(0, 5), "http://one.example");
    EXPECT_EQ(state.Templates(1, 0), "Thunder");
}

TEST_F(LotteryTemplates, AShorterFileLeavesTheRowsOfALongerOne) {
    Load("One,6,49,0,0,\r\nTwo,6,49,0,0,\r\nThree,6,49,0,0,\r\n");
    Load("New,5,35,0,0,\r\n");
    EXPECT_EQ(TemplateNames(state), (std::vector<std::string>{"New", "Two", "Three"}));
}

TEST_F(LotteryTemplates, AnEmptyNameEndsTheList) {
    Load("One,6,49,0,0,\r\n,6,49,0,0,\r\nThree,6,49,0,0,\r\n");
    EXPECT_EQ(TemplateNames(state), (std::vector<std::string>{"One"}));
    EXPECT_EQ(state.Templates(2, 0), "Three");
}

TEST_F(LotteryTemplates, AnEmptyFileLeavesAnEmptyList) {
    Load("");
    EXPECT_TRUE(TemplateNames(state).empty());
}

TEST_F(LotteryTemplates, AMissingFileEndsTheRun) {
    EXPECT_THROW(LoadLotteryTemplates(state, folder), Failure);
}

TEST_F(LotteryTemplates, ALineCutShortEndsTheRunAndTheReportNamesTheLine) {
    EXPECT_EQ(FailureOfLoading("One,6,49,0,0,\r\nTwo,6,49\r\n"),
              "LotteryTemplates.txt, line 3: expected whether there is an extra ball, but the "
              "file ends there.");
}

TEST_F(LotteryTemplates, ALineWithoutItsLastCommaAtTheEndOfTheFileEndsTheRun) {
    EXPECT_NE(FailureOfLoading("One,6,49,0,0\r\n").find("the web address of a lottery"),
              std::string::npos);
}

TEST_F(LotteryTemplates, AnEmptyLineAtTheEndEndsTheRun) {
    EXPECT_NE(FailureOfLoading("One,6,49,0,0,\r\n\r\n").find("how many numbers to pick"),
              std::string::npos);
}

TEST_F(LotteryTemplates, TwoHundredLotteriesAreListed) {
    Load(Definitions(200));
    EXPECT_EQ(TemplateNames(state).size(), 200U);
}

TEST_F(LotteryTemplates, TwoHundredAndOneAreReadButCannotBeListed) {
    Load(Definitions(201));
    EXPECT_EQ(state.Templates(200, 0), "Lottery 201");
    EXPECT_THROW(TemplateNames(state), Failure);
}

TEST_F(LotteryTemplates, TwoHundredAndTwoEndTheRunAtTheRead) {
    EXPECT_EQ(FailureOfLoading(Definitions(202)),
              "LotteryTemplates.txt, line 202: expected no more than 201 lotteries, but "
              "\"Lottery 202\" stands there.");
}

class SuppliedTemplates : public LotteryTemplates {
  protected:
    SuppliedTemplates() {
        std::ifstream stream(std::string(SUPPLIED_DATA "/") + file, std::ios::binary);
        bytes = {std::istreambuf_iterator<char>(stream), {}};
        Load(bytes);
        names = TemplateNames(state);
    }

    std::string bytes;
    std::vector<std::string> names;
};

TEST_F(SuppliedTemplates, AreOverAHundredAsTheWelcomeSaysAndFitTheList) {
    EXPECT_GT(names.size(), 100U);
    EXPECT_LE(names.size(), 200U);
}

TEST_F(SuppliedTemplates, AreEachALotteryThatTheFormCanTake) {
    for (int row = 0; row < std::ssize(names); ++row) {
        const auto number = [&](int column) {
            const std::string& text = state.Templates(row, column);
            EXPECT_EQ(text, PlainDigits(LeadingWhole(text)))
                << names[static_cast<std::size_t>(row)];
            return LeadingWhole(text);
        };
        const std::string& name = state.Templates(row, 0);
        EXPECT_GE(number(1), 4) << name;
        EXPECT_LE(number(1), 7) << name;
        EXPECT_GE(number(2), 25) << name;
        EXPECT_LE(number(2), 60) << name;
        const int extra = number(4);
        EXPECT_EQ(number(3), extra > 0 ? 1 : 0) << name;
        EXPECT_TRUE(extra == 0 || (extra >= 2 && extra <= 60)) << name;
    }
}

TEST_F(SuppliedTemplates, BearDifferentNamesInAlphabeticalOrder) {
    std::vector<std::string> lowered;
    for (const std::string& name : names) lowered.push_back(LowerCase(name));
    EXPECT_TRUE(std::is_sorted(lowered.begin(), lowered.end()));
    EXPECT_EQ(std::adjacent_find(lowered.begin(), lowered.end()), lowered.end());
}

TEST_F(SuppliedTemplates, PromiseNoAddressThatExists) {
    for (int row = 0; row < std::ssize(names); ++row) {
        const std::string& address = state.Templates(row, 5);
        EXPECT_EQ(address.rfind("http://www.", 0), 0U) << address;
        EXPECT_TRUE(address.ends_with(".example")) << address;
    }
}

TEST_F(SuppliedTemplates, HoldTheSevenLotteriesThatTheProgramKnows) {
    const std::map<std::string, std::string> known = {
        {"UK Lotto", "6,49,0,0"},           {"UK Thunderball", "5,34,1,14"},
        {"UK Daily Play", "7,27,0,0"},      {"UK Lotto Extra", "6,49,0,0"},
        {"UK Lotto Hot Picks", "4,49,0,0"}, {"US Mega Millions", "5,52,1,52"},
        {"US Powerball", "5,53,1,42"}};
    int found = 0;
    for (int row = 0; row < std::ssize(names); ++row) {
        const auto rules = known.find(state.Templates(row, 0));
        if (rules == known.end()) continue;
        ++found;
        EXPECT_EQ(state.Templates(row, 1) + "," + state.Templates(row, 2) + "," +
                      state.Templates(row, 3) + "," + state.Templates(row, 4),
                  rules->second);
    }
    EXPECT_EQ(found, 7);
}

TEST_F(SuppliedTemplates, EndTheirLinesInCarriageReturnAndLineFeed) {
    EXPECT_TRUE(bytes.ends_with("\r\n"));
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), std::ssize(names));
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r'), std::ssize(names));
}

}  // namespace

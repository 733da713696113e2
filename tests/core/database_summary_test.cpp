// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/database_summary.h"

#include <gtest/gtest.h>

#include "core/memory_folder.h"
#include "tests/core/failures.h"
#include "tests/support/sample_lotteries.h"

namespace {

using namespace std::chrono_literals;

const Date today = 2005y / 6 / 1;
const std::string heading = "Lotto\r\nhttp://one.example\r\n6,49,0,0,1\r\n";

class ASummary : public testing::Test {
  protected:
    DatabaseSummary Of(const std::string& file) const {
        return SummaryOf(folder_, file, {}, today);
    }

    MemoryFolder folder_;
};

TEST_F(ASummary, CountsTheDrawsAndTellsTheDatesOfTheFirstAndTheLast) {
    AddUkLotto(folder_);
    const DatabaseSummary summary = Of("dbase100.txt");
    EXPECT_EQ(summary.lottery, "UK Lotto");
    EXPECT_EQ(summary.draws, 2);
    EXPECT_EQ(summary.newest, 2005y / 5 / 28);
    EXPECT_EQ(summary.oldest, 2005y / 5 / 25);
}

TEST_F(ASummary, OfADatabaseWithoutDrawsHasNoDates) {
    AddDailyPlay(folder_);
    const DatabaseSummary summary = Of("dbase102.txt");
    EXPECT_EQ(summary.draws, 0);
    EXPECT_FALSE(summary.newest);
    EXPECT_FALSE(summary.oldest);
}

TEST_F(ASummary, OfADamagedFileTellsWhatCanBeRead) {
    folder_.Write("dbase1.txt", "Mine\r\n\r\n6,49,0,0,1\r\nsomeday,1,2\r\n25-May-2005");
    const DatabaseSummary summary = Of("dbase1.txt");
    EXPECT_EQ(summary.draws, 2);
    EXPECT_FALSE(summary.newest);
    EXPECT_EQ(summary.oldest, 2005y / 5 / 25);
    folder_.Write("dbase1.txt", "Mine");
    EXPECT_EQ(Of("dbase1.txt").lottery, "Mine");
    folder_.Write("dbase1.txt", "");
    EXPECT_EQ(Of("dbase1.txt").lottery, "");
    EXPECT_EQ(Of("dbase1.txt").draws, 0);
}

TEST_F(ASummary, OfAMissingFileIsAFailure) {
    EXPECT_NE(FailureOf([&] { Of("dbase1.txt"); }).find("dbase1.txt"), std::string::npos);
}

TEST(TheLinesOfADatabase, AreTheDrawsBelowItsHeading) {
    const std::string content = heading + "28 May 05,3,17,22,34,41,48,0,9\r\ncut";
    EXPECT_EQ(DrawLines(content),
              (std::vector<std::string_view>{"28 May 05,3,17,22,34,41,48,0,9", "cut"}));
    EXPECT_EQ(DrawLines("Lotto\r\n\r\n6,49,0\r\n0,1\r\nfirst\r\n"),
              std::vector<std::string_view>{"first"});
    EXPECT_TRUE(DrawLines(heading).empty());
    EXPECT_TRUE(DrawLines("Lotto").empty());
    EXPECT_TRUE(DrawLines("").empty());
}

TEST(TheLineOfADraw, BeginsWithItsDate) {
    EXPECT_EQ(DateOfLine("28 May 05,3,17", {}, today), 2005y / 5 / 28);
    EXPECT_EQ(DateOfLine("25-May-2005", {}, today), 2005y / 5 / 25);
    EXPECT_EQ(DateOfLine("someday,3,17", {}, today), std::nullopt);
    EXPECT_EQ(DateOfLine("", {}, today), std::nullopt);
}

}  // namespace

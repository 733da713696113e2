// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/database_summary.h"

#include <gtest/gtest.h>

#include "core/memory_folder.h"
#include "tests/core/failures.h"
#include "tests/support/sample_lotteries.h"

namespace {

using namespace std::chrono_literals;

class ASummary : public testing::Test {
  protected:
    DatabaseSummary Of(const std::string& file) const {
        return SummaryOf(folder_, file, {.region = {}, .today = 2005y / 6 / 1});
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
    folder_.Write("dbase1.txt", "Mine\r\n\r\n6,49\r\nsomeday,1,2\r\n25-May-2005");
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

}  // namespace

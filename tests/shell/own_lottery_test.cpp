// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/own_lottery.h"

#include <gtest/gtest.h>

#include "core/memory_folder.h"
#include "tests/core/regions.h"
#include "tests/support/sample_lotteries.h"

namespace {

using std::chrono::year;

class LotteriesOfFolder : public testing::Test {
  protected:
    LotteriesAtHand Look() const {
        return LookAtLotteries(folder, EnglishRegion(Region::Order::DayMonthYear), today);
    }

    const Date today = year(2025) / 6 / 12;
    MemoryFolder folder;
};

TEST_F(LotteriesOfFolder, AreNoneInAnEmptyFolder) {
    EXPECT_FALSE(Look().any);
    EXPECT_FALSE(Look().own.has_value());
}

TEST_F(LotteriesOfFolder, AreNobodysOwnWhileOnlySamplesAreThere) {
    AddLottery(folder, "dbasedemo1.txt", "Demo Lotto", "6,49,0,0,1", {"01 Jun 05,1,2,3,4,5,6,0,7"});
    EXPECT_TRUE(Look().any);
    EXPECT_FALSE(Look().own.has_value());
}

TEST_F(LotteriesOfFolder, TellTheFirstOwnOneWithItsPlaceAndNewestDraw) {
    AddLottery(folder, "dbasedemo1.txt", "Demo Lotto", "6,49,0,0,1");
    AddLottery(folder, "dbasemine.txt", "Village draw", "6,49,0,0,1",
               {"11 Jun 25,1,2,3,4,5,6,0,7", "07 Jun 25,1,2,3,4,5,6,0,7"});
    AddLottery(folder, "dbaseyours.txt", "Town draw", "6,49,0,0,1");
    const OwnLottery expected = {.index = 1, .name = "Village draw", .newest = year(2025) / 6 / 11};
    EXPECT_EQ(Look().own, expected);
}

TEST_F(LotteriesOfFolder, CountTheSamplesInWhateverLettersTheyAreNamed) {
    AddLottery(folder, "DbaseDemo1.TXT", "Demo Lotto", "6,49,0,0,1");
    EXPECT_FALSE(Look().own.has_value());
}

TEST_F(LotteriesOfFolder, TellNoDrawWhereThereIsNoneOrNoDate) {
    AddLottery(folder, "dbase1.txt", "New draw", "6,49,0,0,1");
    EXPECT_FALSE(Look().own->newest.has_value());
    AddLottery(folder, "dbase1.txt", "New draw", "6,49,0,0,1", {"yesterday,1,2,3,4,5,6,0,7"});
    EXPECT_FALSE(Look().own->newest.has_value());
}

TEST_F(LotteriesOfFolder, TakeTheHeaderFieldsFromLinesOfTheirOwnToo) {
    folder.Write("dbase1.txt", "Old form\r\n\r\n6\r\n49\r\n0\r\n0\r\n1\r\n11 Jun 25,1,2\r\n");
    EXPECT_EQ(Look().own->newest, year(2025) / 6 / 11);
}

TEST_F(LotteriesOfFolder, AreNoFailureWhereAFileIsCutShort) {
    for (const char* bytes :
         {"", "Name", "Name\r\n", "Name\r\n\r\n6,49", "Name\r\n\r\n6,49,0,0,1"}) {
        folder.Write("dbase1.txt", bytes);
        EXPECT_FALSE(Look().own->newest.has_value()) << bytes;
    }
    folder.Write("dbase1.txt", "");
    EXPECT_EQ(Look().own->name, "dbase1.txt") << "a nameless one is called after its file";
}

}  // namespace

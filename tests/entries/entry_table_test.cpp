// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/entry_table.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>

#include "core/memory_folder.h"
#include "core/text.h"
#include "tests/core/failures.h"
#include "tests/core/regions.h"

namespace {

const Date today = std::chrono::June / 1 / 2005;
const Region region = EnglishRegion();

class SavedTable : public testing::Test {
  protected:
    void Fill(const std::vector<std::array<std::string, 3>>& dateLotteryName) {
        int row = 0;
        for (const auto& [date, lottery, name] : dateLotteryName) {
            ++row;
            table(row, 0) = date;
            table(row, 1) = std::to_string(row);
            table(row, 9) = lottery;
            table(row, 10) = name;
            table(row, 11) = "dbase" + std::to_string(row) + ".txt";
        }
    }

    /// Column 1 of the rows before the end of the table, which bears each row's first place.
    std::string Order() const {
        std::string order;
        for (int row = 1; !table(row, 0).empty(); ++row) order += table(row, 1);
        return order;
    }

    void Load(const std::string& bytes) {
        folder.Write("MyLottery.txt", bytes);
        LoadMyDraws(table, folder);
    }

    const std::unique_ptr<EntryTable> ownTable = std::make_unique<EntryTable>("saved entries");
    EntryTable& table = *ownTable;
    MemoryFolder folder;
};

std::string Entries(int count) {
    std::string bytes;
    for (int entry = 1; entry <= count; ++entry) {
        bytes +=
            "28 May 05," + std::to_string(entry) + ",2,3,4,5,6,,,UK Lotto,Ann,dbase100.txt\r\n";
    }
    return bytes;
}

TEST_F(SavedTable, ReadsTwelveFieldsARow) {
    Load("28 May 05,3,14,15,26,35,44,,,UK Lotto,Ann,dbase100.txt\r\n");
    const SavedEntry expected = {"28 May 05", "3", "14", "15",       "26",  "35",
                                 "44",        "",  "",   "UK Lotto", "Ann", "dbase100.txt"};
    for (std::size_t column = 0; column < expected.size(); ++column) {
        EXPECT_EQ(table(1, static_cast<int>(column)), expected[column]) << column;
    }
    EXPECT_EQ(table(2, 0), "");
}

TEST_F(SavedTable, StaysEmptyWithoutAFile) {
    LoadMyDraws(table, folder);
    EXPECT_EQ(table(1, 0), "");
}

TEST_F(SavedTable, StaysEmptyOnAnEmptyFile) {
    Load("");
    EXPECT_EQ(table(1, 0), "");
}

TEST_F(SavedTable, HoldsTheFirst499OfSixHundredEntries) {
    Load(Entries(600));
    EXPECT_EQ(table(499, 1), "499");
    EXPECT_EQ(table(500, 0), "");
}

TEST_F(SavedTable, TellsHowManyLinesWereNotRead) {
    folder.Write("MyLottery.txt", Entries(600));
    EXPECT_EQ(LoadMyDraws(table, folder), 101);
    folder.Write("MyLottery.txt", Entries(499));
    EXPECT_EQ(LoadMyDraws(table, folder), 0);
    folder.Delete("MyLottery.txt");
    EXPECT_EQ(LoadMyDraws(table, folder), 0);
}

TEST_F(SavedTable, HalfARecordEndsTheRun) {
    EXPECT_EQ(FailureOf([&] { Load(Entries(1) + "28 May 05,1,2,3"); }),
              "MyLottery.txt, line 2: expected number 4 of an entry, but the file ends there.");
}

TEST_F(SavedTable, HalfARecordBehindThe499thIsNeverRead) {
    Load(Entries(499) + "28 May 05,1,2,3");
    EXPECT_EQ(table(499, 1), "499");
}

TEST_F(SavedTable, AnEmptyLineAtTheEndEndsTheRun) {
    EXPECT_EQ(FailureOf([&] { Load(Entries(1) + "\r\n"); }),
              "MyLottery.txt, line 3: expected number 1 of an entry, but the file ends there.");
}

TEST_F(SavedTable, ACommaInANameShiftsTheFieldsBehindItAndEndsTheRun) {
    EXPECT_EQ(
        FailureOf([&] { Load("28 May 05,3,14,15,26,35,44,,,UK Lotto,Ann, Bob,dbase100.txt\r\n"); }),
        "MyLottery.txt, line 2: expected number 1 of an entry, but the file ends there.");
    EXPECT_EQ(table(1, 11), "Bob");
    EXPECT_EQ(table(2, 0), "dbase100.txt");
}

TEST_F(SavedTable, ALockedFileEndsTheRun) {
    folder.Write("MyLottery.txt", Entries(1));
    folder.Lock("MyLottery.txt");
    EXPECT_THROW(LoadMyDraws(table, folder), Failure);
}

TEST_F(SavedTable, SortsByDateTheLatestFirst) {
    Fill({{"28 May 05", "", ""}, {"01-Jun-2005", "", ""}, {"02/05/2005", "", ""}});
    SortByDate(table, region, today);
    EXPECT_EQ(Order(), "213");
    EXPECT_EQ(table(1, 11), "dbase2.txt");
}

TEST_F(SavedTable, KeepsTheOrderOfEqualDates) {
    Fill({{"28 May 05", "", ""},
          {"28-May-2005", "", ""},
          {"29 May 05", "", ""},
          {"28 May 05", "", ""}});
    SortByDate(table, region, today);
    EXPECT_EQ(Order(), "3124");
}

TEST_F(SavedTable, SortsByNameWithoutRegardToCase) {
    Fill({{"28 May 05", "", "tom"},
          {"28 May 05", "", "Ann"},
          {"28 May 05", "", "ANN"},
          {"28 May 05", "", ""}});
    SortByName(table);
    EXPECT_EQ(Order(), "4231");
}

TEST_F(SavedTable, SortsByLotteryWithoutRegardToCase) {
    Fill({{"28 May 05", "UK lotto", ""},
          {"28 May 05", "la Primitiva", ""},
          {"28 May 05", "UK LOTTO", ""}});
    SortByLottery(table);
    EXPECT_EQ(Order(), "213");
}

TEST_F(SavedTable, SortsAsExchangesOfNeighboursWould) {
    std::mt19937 random(12);
    std::vector<std::string> names;
    for (int row = 1; row <= 60; ++row) {
        names.emplace_back(1, "aBcDAbCd"[random() % 8]);
        table(row, 0) = "28 May 05";
        table(row, 1) = std::to_string(row) + " ";
        table(row, 10) = names.back();
    }
    std::vector<std::pair<std::string, int>> rows;
    for (int row = 1; row <= 60; ++row) {
        rows.emplace_back(UpperCase(names[static_cast<std::size_t>(row - 1)]), row);
    }
    for (bool swapped = true; swapped;) {
        swapped = false;
        for (std::size_t i = 1; i < rows.size(); ++i) {
            if (!(rows[i].first < rows[i - 1].first)) continue;
            std::swap(rows[i], rows[i - 1]);
            swapped = true;
        }
    }
    std::string expected;
    for (const auto& [name, row] : rows) expected += std::to_string(row) + " ";
    SortByName(table);
    EXPECT_EQ(Order(), expected);
}

TEST_F(SavedTable, SortsNothingBehindItsEnd) {
    Fill({{"28 May 05", "", "b"}, {"", "", "a"}, {"29 May 05", "", "c"}});
    SortByName(table);
    EXPECT_EQ(table(1, 10), "b");
    EXPECT_EQ(table(3, 10), "c");
}

TEST_F(SavedTable, ADateThatCannotBeReadEndsTheRunInTheSortByDate) {
    Fill({{"28 May 05", "", ""}, {"someday", "", ""}});
    EXPECT_EQ(FailureOf([&] { SortByDate(table, region, today); }),
              "MyLottery.txt, row 2 as shown: expected a date such as \"19-Nov-1994\", but "
              "\"someday\" stands there.");
}

TEST_F(SavedTable, ASingleDateIsNotComparedAndNeedNotBeOne) {
    Fill({{"someday", "", ""}});
    SortByDate(table, region, today);
    EXPECT_EQ(Order(), "1");
}

TEST_F(SavedTable, MovesTheRowsBelowADeletedOneUp) {
    Fill({{"28 May 05", "", ""}, {"28 May 05", "", ""}, {"28 May 05", "", ""}});
    DeleteRow(table, 2);
    EXPECT_EQ(Order(), "13");
    EXPECT_EQ(table(2, 11), "dbase3.txt");
    EXPECT_EQ(table(3, 11), "");
}

TEST_F(SavedTable, DeletesItsLastRow) {
    Fill({{"28 May 05", "", ""}});
    DeleteRow(table, 1);
    EXPECT_EQ(Order(), "");
}

TEST_F(SavedTable, DeletesTheLastOf499) {
    Load(Entries(499));
    DeleteRow(table, 499);
    EXPECT_EQ(table(498, 1), "498");
    EXPECT_EQ(table(499, 0), "");
}

TEST_F(SavedTable, DeletingARowThatHasNoneBelowItEndsTheRun) {
    EXPECT_THROW(DeleteRow(table, 500), Failure);
}

TEST_F(SavedTable, DropsEntriesOfTwoDaysAgoAndKeepsThoseOfYesterday) {
    Fill({{"30 May 05", "", ""},
          {"31 May 05", "", ""},
          {"01 Jun 05", "", ""},
          {"28-May-1999", "", ""},
          {"02 Jun 05", "", ""}});
    DeleteOutOfDate(table, region, today);
    EXPECT_EQ(Order(), "235");
    EXPECT_EQ(table(4, 1), "");
    EXPECT_EQ(table(5, 1), "");
}

TEST_F(SavedTable, DropsWhatDeletingRowByRowWould) {
    Fill({{"30 May 05", "", ""}, {"01 Jun 05", "", ""}, {"29 May 05", "", ""}, {"", "kept", ""}});
    const auto other = std::make_unique<EntryTable>(table);
    DeleteRow(*other, 1);
    DeleteRow(*other, 2);
    DeleteOutOfDate(table, region, today);
    for (int row = 1; row <= 5; ++row) {
        for (int column = 0; column < 12; ++column) {
            EXPECT_EQ(table(row, column), (*other)(row, column)) << row << ' ' << column;
        }
    }
}

TEST_F(SavedTable, ADateThatCannotBeReadEndsTheRunWhenOldEntriesAreDropped) {
    Fill({{"someday", "", ""}});
    EXPECT_THROW(DeleteOutOfDate(table, region, today), Failure);
}

TEST_F(SavedTable, ChangesADateToMediumForm) {
    Fill({{"28 May 05", "", ""}, {"someday", "", ""}});
    EXPECT_TRUE(ChangeDate(table, 1, today, region, today));
    EXPECT_FALSE(ChangeDate(table, 2, today, region, today));
    EXPECT_FALSE(ChangeDate(table, 3, today, region, today));
    EXPECT_EQ(table(1, 0), "01-Jun-2005");
    EXPECT_EQ(table(2, 0), "someday");
    EXPECT_EQ(table(3, 0), "");
}

}  // namespace

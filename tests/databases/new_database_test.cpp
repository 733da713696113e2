// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/new_database.h"

#include <gtest/gtest.h>

#include "core/draw_database.h"
#include "core/failure.h"
#include "core/memory_folder.h"
#include "tests/core/failures.h"
#include "tests/core/taken_names.h"

namespace {

NewLottery SixOfFortyNine() {
    return {.name = "My lotto",
            .address = "http://",
            .picks = "6",
            .highest = "49",
            .highestExtra = "0",
            .hasBonus = true,
            .firstDraw = std::chrono::year(2005) / 6 / 1,
            .numbers = {"1", "2", "13", "24", "35", "49", "", "7"}};
}

TEST(CreateDatabaseFile, FillsTheGapThatADeletedOneLeft) {
    MemoryFolder folder;
    folder.Write("dbase1.txt", "");
    folder.Write("dbase3.txt", "");
    EXPECT_EQ(CreateDatabaseFile(folder, "new"), "dbase2.txt");
    EXPECT_EQ(folder.Read("dbase2.txt"), "new");
}

TEST(CreateDatabaseFile, TakesNamesInCapitalsForTheSame) {
    MemoryFolder folder;
    folder.Write("DBASE1.TXT", "");
    EXPECT_EQ(CreateDatabaseFile(folder, "new"), "dbase2.txt");
    EXPECT_EQ(folder.Read("DBASE1.TXT"), "");
}

TEST(CreateDatabaseFile, LeavesOneThatSomebodyElseMakesMeanwhile) {
    MemoryFolder folder;
    TakenNames taken(folder, {"dbase1.txt"});
    EXPECT_EQ(CreateDatabaseFile(taken, "new"), "dbase2.txt");
    EXPECT_EQ(folder.Read("dbase1.txt"), theirs);
}

TEST(CreateDatabase, WritesTheLotteryAndItsFirstDraw) {
    MemoryFolder folder;
    EXPECT_EQ(CreateDatabase(folder, SixOfFortyNine()), "dbase1.txt");
    EXPECT_EQ(folder.Read("dbase1.txt"),
              "My lotto\r\n"
              "http://\r\n"
              "6,49,1,0,1\r\n"
              "01 Jun 05,1,2,13,24,35,49,,7\r\n");
}

TEST(CreateDatabase, WritesWhatTheProgramLoads) {
    MemoryFolder folder;
    NewLottery lottery = SixOfFortyNine();
    lottery.picks = "5";
    lottery.highestExtra = "14";
    lottery.hasBonus = false;
    lottery.numbers = {"1", "2", "3", "4", "5", "", "", ""};
    CreateDatabase(folder, lottery);
    State state;
    EXPECT_EQ(ListDatabases(state, folder), std::vector<std::string>{"My lotto"});
    LoadDatabase(state, folder, 0);
    EXPECT_EQ(state.Picks, 5);
    EXPECT_EQ(state.MaxPball, 14);
    EXPECT_EQ(state.HasBonus, 0);
    EXPECT_EQ(state.Draws(1, 5), 5);
    EXPECT_EQ(state.Draws(1, 6), 0);
    EXPECT_EQ(state.Draws(1, 8), 0);
    EXPECT_EQ(state.Draws(2, 1), 0);
}

TEST(CreateDatabase, ADiskThatIsFullAtAnyByteLeavesNothingBehind) {
    for (std::size_t bytes = 0; bytes < 50; ++bytes) {
        MemoryFolder folder;
        folder.FailAfterBytes(bytes);
        EXPECT_THROW(CreateDatabase(folder, SixOfFortyNine()), Failure) << bytes;
        EXPECT_TRUE(folder.Snapshot().empty()) << bytes;
    }
}

TEST(CreateDatabase, WhatCannotBeWrittenIsRescued) {
    MemoryFolder folder;
    folder.OfferRescue();
    folder.FailAfterBytes(0);
    EXPECT_EQ(FailureOf([&] { CreateDatabase(folder, SixOfFortyNine()); }),
              "dbase1.txt: the disk is full. What was to be written is kept in "
              "elsewhere/dbase1.txt.");
    folder.FailAfterBytes({});
    CreateDatabase(folder, SixOfFortyNine());
    EXPECT_EQ(folder.Rescued().at("dbase1.txt"), folder.Read("dbase1.txt"));
}

TEST(LotteryNames, AreTheFirstLinesOfAllDatabasesEvenBeyondSeventySix) {
    MemoryFolder folder;
    folder.Write("dbase1.txt", "First\r\nx\r\n");
    EXPECT_EQ(LotteryNames(folder), std::vector<std::string>{"First"});
    for (int number = 1; number <= 80; ++number) {
        folder.Write("dbase" + std::to_string(number) + ".txt", "Some\r\n");
    }
    EXPECT_EQ(LotteryNames(folder).size(), 80U);
}

TEST(LotteryNames, OfAnEmptyDatabaseEndTheRun) {
    MemoryFolder folder;
    folder.Write("dbase1.txt", "");
    EXPECT_THROW(LotteryNames(folder), Failure);
}

}  // namespace

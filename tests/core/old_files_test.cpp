// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/old_files.h"

#include <gtest/gtest.h>

#include "core/memory_folder.h"
#include "tests/core/failures.h"

using Names = std::vector<std::string>;
using std::chrono::local_days;
using std::chrono::seconds;

namespace {

constexpr Moment morning = local_days(std::chrono::November / 22 / 2026) + seconds(34215);
const std::string notKept = "MyLottery.txt is left as it is, as no copy of it can be kept: ";
constexpr const char* firstCopy = "Backup/Undo/2026-11-22 093015 MyLottery.txt";

class OldFiles : public testing::Test {
  protected:
    OldFiles() {
        folder_.SetNow(morning);
        folder_.Write("MyLottery.txt", "old\r\n");
    }

    Names Copies() const { return folder_.Find("Backup/Undo/*"); }

    MemoryFolder folder_;
};

}  // namespace

TEST_F(OldFiles, AreKeptUnderTheMomentAndTheirName) {
    KeepOld(folder_, "MyLottery.txt");
    EXPECT_EQ(Copies(), Names{firstCopy});
    EXPECT_EQ(folder_.Read(firstCopy), "old\r\n");
    EXPECT_EQ(folder_.Read("MyLottery.txt"), "old\r\n");
    EXPECT_TRUE(folder_.Find("Backup/*").empty());
}

TEST_F(OldFiles, AreKeptInTheFolderThatIsThere) {
    folder_.MakeFolder("backup");
    folder_.MakeFolder("backup/undo");
    KeepOld(folder_, "MyLottery.txt");
    EXPECT_EQ(Copies(), Names{firstCopy});
}

TEST_F(OldFiles, NeedNoCopyWhereThereIsNone) {
    KeepOld(folder_, "Notes.txt");
    EXPECT_FALSE(folder_.FolderExists("Backup"));
}

TEST_F(OldFiles, OfOneSecondAreNumbered) {
    KeepOld(folder_, "MyLottery.txt");
    folder_.Write("MyLottery.txt", "newer\r\n");
    KeepOld(folder_, "MyLottery.txt");
    folder_.Write("Notes.txt", "note");
    KeepOld(folder_, "Notes.txt");
    EXPECT_EQ(Copies(), (Names{firstCopy, "Backup/Undo/2026-11-22 093015-002 MyLottery.txt",
                               "Backup/Undo/2026-11-22 093015-003 Notes.txt"}));
    EXPECT_EQ(folder_.Read(firstCopy), "old\r\n");
}

TEST_F(OldFiles, ThatHoldTheSameAsTheLastCopyTakeItsPlace) {
    KeepOld(folder_, "MyLottery.txt");
    folder_.SetNow(morning + seconds(60));
    KeepOld(folder_, "mylottery.TXT");
    EXPECT_EQ(Copies(), Names{"Backup/Undo/2026-11-22 093115 mylottery.TXT"});
    EXPECT_EQ(folder_.Read(Copies().front()), "old\r\n");
}

TEST_F(OldFiles, ThatHoldTheSameAsAnEarlierCopyAreKeptBesideIt) {
    for (const char* bytes : {"one", "two", "one"}) {
        folder_.Write("MyLottery.txt", bytes);
        KeepOld(folder_, "MyLottery.txt");
    }
    EXPECT_EQ(Copies().size(), 3U);
}

TEST_F(OldFiles, StayUpToTheNewestFifty) {
    for (int copy = 0; copy < 60; ++copy) {
        folder_.SetNow(morning + seconds(copy));
        folder_.Write("MyLottery.txt", std::to_string(copy));
        KeepOld(folder_, "MyLottery.txt");
    }
    const Names copies = Copies();
    ASSERT_EQ(copies.size(), 50U);
    EXPECT_EQ(folder_.Read(copies.front()), "10");
    EXPECT_EQ(folder_.Read(copies.back()), "59");
}

TEST_F(OldFiles, StayUpToTheNewestFiftyWithinASecond) {
    for (int copy = 0; copy < 120; ++copy) {
        folder_.Write("MyLottery.txt", std::to_string(copy));
        KeepOld(folder_, "MyLottery.txt");
    }
    const Names copies = Copies();
    ASSERT_EQ(copies.size(), 50U);
    EXPECT_EQ(folder_.Read(copies.front()), "70");
    EXPECT_EQ(folder_.Read(copies.back()), "119");
}

TEST_F(OldFiles, OfAClockThatWasWrongGoFirst) {
    folder_.SetNow(morning + std::chrono::years(10));
    folder_.Write("MyLottery.txt", "from the future");
    KeepOld(folder_, "MyLottery.txt");
    for (int copy = 0; copy < 50; ++copy) {
        folder_.SetNow(morning + seconds(copy));
        folder_.Write("MyLottery.txt", std::to_string(copy));
        KeepOld(folder_, "MyLottery.txt");
    }
    const Names copies = Copies();
    ASSERT_EQ(copies.size(), 50U);
    EXPECT_EQ(copies.front(), firstCopy);
    EXPECT_EQ(folder_.Read(copies.back()), "49");
}

TEST_F(OldFiles, LeaveWhatSomebodyElseHasPutThere) {
    folder_.MakeFolder("Backup");
    folder_.MakeFolder(undoFolder);
    const Names others = {"Backup/Undo/1999 entries.txt", "Backup/Undo/2000-01-01 12 a.txt",
                          "Backup/Undo/2000-01-01 120000-1 a.txt",
                          "Backup/Undo/2000-01-01 120000a.txt", "Backup/Undo/note.txt"};
    for (const std::string& other : others) folder_.Write(other, "mine");
    for (int copy = 0; copy < 60; ++copy) {
        folder_.Write("MyLottery.txt", std::to_string(copy));
        KeepOld(folder_, "MyLottery.txt");
    }
    for (const std::string& other : others) EXPECT_TRUE(folder_.Exists(other)) << other;
    EXPECT_EQ(Copies().size(), 50U + others.size());
}

TEST_F(OldFiles, WithNamesTooLongForACopyAreCut) {
    const std::string name = "dbase" + std::string(240, 'x') + ".txt";
    folder_.Write(name, "draws");
    KeepOld(folder_, name);
    ASSERT_EQ(Copies().size(), 1U);
    EXPECT_EQ(Copies().front().size(), std::string("Backup/Undo/2026-11-22 093015 ").size() + 180);
    KeepOld(folder_, name);
    EXPECT_EQ(Copies().size(), 1U);
}

TEST_F(OldFiles, AreDeletedOnceTheyAreKept) {
    DeleteKeepingOld(folder_, "MyLottery.txt");
    EXPECT_FALSE(folder_.Exists("MyLottery.txt"));
    EXPECT_EQ(folder_.Read(firstCopy), "old\r\n");
}

TEST_F(OldFiles, StayWhereNoCopyCanBeMade) {
    folder_.FailAfterBytes(0);
    EXPECT_EQ(FailureOf([&] { DeleteKeepingOld(folder_, "MyLottery.txt"); }),
              notKept + firstCopy + ": the disk is full.");
    EXPECT_TRUE(folder_.Exists("MyLottery.txt"));
}

TEST_F(OldFiles, AreRescuedWhereNoCopyCanBeMade) {
    folder_.OfferRescue();
    folder_.FailAfterBytes(0);
    DeleteKeepingOld(folder_, "MyLottery.txt");
    EXPECT_FALSE(folder_.Exists("MyLottery.txt"));
    EXPECT_EQ(folder_.Rescued().at("MyLottery.txt"), "old\r\n");
}

TEST_F(OldFiles, AreKeptThoughNoOlderOneCanBeRemoved) {
    KeepOld(folder_, "MyLottery.txt");
    folder_.Lock(firstCopy);
    folder_.SetNow(morning + seconds(1));
    DeleteKeepingOld(folder_, "MyLottery.txt");
    EXPECT_EQ(Copies().size(), 2U);
    EXPECT_TRUE(folder_.Rescued().empty());
}

TEST_F(OldFiles, AreKeptWhereALineOfThemIsGone) {
    WriteKeepingOld(folder_, "MyLottery.txt", "changed\r\n");
    EXPECT_EQ(folder_.Read("MyLottery.txt"), "changed\r\n");
    EXPECT_EQ(folder_.Read(firstCopy), "old\r\n");
}

TEST_F(OldFiles, AreNotKeptWhereAllTheirLinesStay) {
    folder_.Write("MyLottery.txt", "one\r\n\"\",\"\"\r\ntwo\r\n");
    WriteKeepingOld(folder_, "MyLottery.txt", "two\r\nthree\r\none");
    EXPECT_EQ(folder_.Read("MyLottery.txt"), "two\r\nthree\r\none");
    WriteKeepingOld(folder_, "MyLottery.txt", "two\r\nthree\r\none");
    WriteKeepingOld(folder_, "Notes.txt", "new");
    EXPECT_EQ(folder_.Read("Notes.txt"), "new");
    EXPECT_FALSE(folder_.FolderExists(undoFolder));
}

TEST_F(OldFiles, AreKeptWhereOneOfTwoEqualLinesIsGone) {
    folder_.Write("MyLottery.txt", "one\r\none\r\n");
    WriteKeepingOld(folder_, "MyLottery.txt", "one\r\n");
    EXPECT_EQ(Copies().size(), 1U);
}

TEST_F(OldFiles, AreRewrittenByNothingWhereNoCopyCanBeMade) {
    folder_.FailAfterBytes(1);
    EXPECT_EQ(FailureOf([&] { WriteKeepingOld(folder_, "MyLottery.txt", "x"); }),
              notKept + firstCopy + ": the disk is full.");
    EXPECT_EQ(folder_.Read("MyLottery.txt"), "old\r\n");
}

TEST_F(OldFiles, ThatCannotBeReadAreNotRewrittenAndTheNewOneIsRescued) {
    folder_.OfferRescue();
    folder_.Lock("MyLottery.txt");
    EXPECT_EQ(FailureOf([&] { WriteKeepingOld(folder_, "MyLottery.txt", "typed"); }),
              "MyLottery.txt: the file is locked. What was to be written is kept in "
              "elsewhere/MyLottery.txt.");
    EXPECT_EQ(folder_.Rescued().at("MyLottery.txt"), "typed");
}

TEST_F(OldFiles, AreLostAtNoFailure) {
    for (std::size_t operation = 0;; ++operation) {
        MemoryFolder folder;
        folder.Write("MyLottery.txt", "old");
        folder.FailAtOperation(operation);
        const bool done =
            FailureOf([&] { DeleteKeepingOld(folder, "MyLottery.txt"); }) == "no failure";
        folder.FailAtOperation({});
        const Names copies = folder.Find("Backup/Undo/*");
        EXPECT_TRUE(folder.Exists("MyLottery.txt") || folder.Read(copies.at(0)) == "old");
        EXPECT_EQ(folder.Exists("MyLottery.txt"), !done);
        if (done) break;
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "core/memory_folder.h"
#include "tests/core/failures.h"

using Names = std::vector<std::string>;
using Files = std::map<std::string, std::string>;

TEST(NameMatches, TakesAStarForAnyCharactersAndNone) {
    EXPECT_TRUE(NameMatches("dbase1.txt", "dbase*.txt"));
    EXPECT_TRUE(NameMatches("dbase.txt", "dbase*.txt"));
    EXPECT_TRUE(NameMatches("dbase.txt.txt", "dbase*.txt"));
    EXPECT_FALSE(NameMatches("dbase1.txt.bak", "dbase*.txt"));
    EXPECT_FALSE(NameMatches("mydbase1.txt", "dbase*.txt"));
    EXPECT_TRUE(NameMatches("", "*"));
    EXPECT_TRUE(NameMatches("abcabd", "*ab?"));
}

TEST(NameMatches, TakesAQuestionMarkForExactlyOneCharacter) {
    EXPECT_TRUE(NameMatches("SMembers.007", "SMembers.0??"));
    EXPECT_FALSE(NameMatches("SMembers.100", "SMembers.0??"));
    EXPECT_FALSE(NameMatches("SMembers.00", "SMembers.0??"));
}

TEST(NameMatches, DoesNotMindCase) {
    EXPECT_TRUE(NameMatches("DBASE1.TXT", "dbase*.txt"));
    EXPECT_TRUE(NameMatches("\xC4.txt", "\xE4.TXT"));
}

TEST(Appended, PutsRecordsBehindTheOldOnes) {
    EXPECT_EQ(Appended("", "new\r\n"), "new\r\n");
    EXPECT_EQ(Appended("old\r\n", "new\r\n"), "old\r\nnew\r\n");
    EXPECT_EQ(Appended("old\n", "new\r\n"), "old\nnew\r\n");
}

TEST(Appended, StartsRecordsOnALineOfTheirOwn) {
    EXPECT_EQ(Appended("old", "new\r\n"), "old\r\nnew\r\n");
}

TEST(MemoryFolder, GivesBackWhatWasWritten) {
    MemoryFolder folder;
    folder.Write("a.txt", "one");
    EXPECT_EQ(folder.Read("a.txt"), "one");
    folder.Write("a.txt", std::string("\0\xFF", 2));
    EXPECT_EQ(folder.Read("a.txt"), std::string("\0\xFF", 2));
}

TEST(MemoryFolder, MatchesNamesWithoutRegardToCaseAndKeepsTheFirstSpelling) {
    MemoryFolder folder;
    folder.Write("temp.txt", "one");
    folder.Write("Temp.txt", "two");
    EXPECT_EQ(folder.Snapshot(), (Files{{"temp.txt", "two"}}));
    EXPECT_TRUE(folder.Exists("TEMP.TXT"));
}

TEST(MemoryFolder, DatesAFileAsItIsTold) {
    MemoryFolder folder;
    constexpr Date day = std::chrono::June / 1 / 2005;
    folder.Write("a.txt", "one", std::chrono::sys_days(day) + std::chrono::hours(23));
    EXPECT_EQ(folder.Read("a.txt"), "one");
    EXPECT_EQ(folder.FileDate("a.txt"), day);
    EXPECT_EQ(folder.LastWritten("a.txt"), FileTime(std::chrono::sys_days(day)));
}

TEST(MemoryFolder, FailsForAFileThatIsNotThere) {
    MemoryFolder folder;
    EXPECT_EQ(FailureOf([&] { folder.Read("a.txt"); }), "a.txt: there is no such file.");
    EXPECT_EQ(FailureOf([&] { folder.Delete("a.txt"); }), "a.txt: there is no such file.");
    EXPECT_EQ(FailureOf([&] { folder.Copy("a.txt", "b.txt"); }), "a.txt: there is no such file.");
    EXPECT_EQ(FailureOf([&] { folder.FileDate("a.txt"); }), "a.txt: there is no such file.");
}

TEST(MemoryFolder, FindsNamesInTheOrderOfTheirLowerCasedCharacters) {
    MemoryFolder folder;
    for (const char* name :
         {"dbase2.txt", "DBASE10.txt", "dbase_.txt", "notes.txt", "dbaseA.txt"}) {
        folder.Write(name, "");
    }
    EXPECT_EQ(folder.Find("dbase*.txt"),
              (Names{"DBASE10.txt", "dbase2.txt", "dbase_.txt", "dbaseA.txt"}));
}

TEST(MemoryFolder, KeepsFilesOfAFolderApart) {
    MemoryFolder folder;
    EXPECT_FALSE(folder.FolderExists("Backup"));
    EXPECT_EQ(FailureOf([&] { folder.Write("Backup/a.txt", "x"); }),
              "Backup/a.txt: there is no such folder.");
    folder.MakeFolder("Backup");
    EXPECT_TRUE(folder.FolderExists("backup"));
    folder.Write("a.txt", "x");
    folder.Copy("a.txt", "Backup/a.txt");
    EXPECT_EQ(folder.Find("*.txt"), Names{"a.txt"});
    EXPECT_EQ(folder.Find("Backup/*.txt"), Names{"Backup/a.txt"});
}

TEST(MemoryFolder, CopiesTheDateToo) {
    MemoryFolder folder;
    folder.Write("a.txt", "x");
    EXPECT_EQ(folder.FileDate("a.txt"), std::chrono::January / 1 / 2000);
    folder.SetFileDate("a.txt", std::chrono::June / 1 / 2005);
    folder.Copy("a.txt", "b.txt");
    EXPECT_EQ(folder.FileDate("b.txt"), std::chrono::June / 1 / 2005);
}

TEST(MemoryFolder, MakesNoFolderTwice) {
    MemoryFolder folder;
    folder.MakeFolder("Backup");
    EXPECT_EQ(FailureOf([&] { folder.MakeFolder("backup"); }),
              "backup: there is such a folder already.");
}

TEST(MemoryFolder, WritesNoFileInPlaceOfAFolder) {
    MemoryFolder folder;
    folder.MakeFolder("Backup");
    EXPECT_EQ(FailureOf([&] { folder.Write("backup", "x"); }),
              "backup: there is a folder of that name.");
}

TEST(MemoryFolder, LeavesTheOldFileWhereTheDiskIsFull) {
    MemoryFolder folder;
    folder.Write("a.txt", "old");
    folder.FailAfterBytes(5);
    EXPECT_EQ(FailureOf([&] { folder.Append("a.txt", "x"); }), "a.txt: the disk is full.");
    EXPECT_EQ(folder.Snapshot(), (Files{{"a.txt", "old"}}));
    folder.FailAfterBytes(6);
    folder.Append("a.txt", "x");
    EXPECT_EQ(folder.Snapshot(), (Files{{"a.txt", "old\r\nx"}}));
}

TEST(MemoryFolder, FailsAtTheOperationItIsToldTo) {
    MemoryFolder folder;
    folder.FailAtOperation(1);
    folder.Write("a.txt", "x");
    EXPECT_EQ(FailureOf([&] { folder.Read("a.txt"); }), "a.txt: the folder was told to fail here.");
    folder.FailAtOperation({});
    EXPECT_EQ(folder.Read("a.txt"), "x");
}

TEST(MemoryFolder, ListsALockedFileButLetsNobodyReadOrChangeIt) {
    MemoryFolder folder;
    folder.Write("a.txt", "x");
    folder.Write("b.txt", "y");
    folder.Lock("a.txt");
    EXPECT_EQ(folder.Find("a*"), Names{"a.txt"});
    EXPECT_EQ(FailureOf([&] { folder.Read("a.txt"); }), "a.txt: the file is locked.");
    EXPECT_EQ(FailureOf([&] { folder.Write("a.txt", "z"); }), "a.txt: the file is locked.");
    EXPECT_EQ(FailureOf([&] { folder.Copy("b.txt", "a.txt"); }), "a.txt: the file is locked.");
    EXPECT_EQ(FailureOf([&] { folder.Delete("a.txt"); }), "a.txt: the file is locked.");
    EXPECT_EQ(folder.Snapshot(), (Files{{"a.txt", "x"}, {"b.txt", "y"}}));
}

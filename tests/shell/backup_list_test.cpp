// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/backup_list.h"

#include <gtest/gtest.h>

#include "core/memory_folder.h"
#include "core/text.h"
#include "shell/data_files.h"
#include "tests/core/failures.h"

namespace {

using Names = std::vector<std::string>;
constexpr Date someDay = std::chrono::June / 1 / 2005;

TEST(BackupEntry, FillsTheNameWithBlanksAndEndsWithTheDate) {
    EXPECT_EQ(BackupEntry("Notes.txt", someDay), "Notes.txt                  01-06-05");
    EXPECT_EQ(BackupEntry("a.txt", std::chrono::December / 31 / 1999),
              "a.txt                      31-12-99");
    EXPECT_EQ(BackupEntry("a.txt", std::chrono::January / 9 / 2100).substr(27), "09-01-00");
}

TEST(BackupEntry, CutsANameBehindTwentySevenCharacters) {
    EXPECT_EQ(BackupEntry("abcdefghijklmnopqrstuvw.txt", someDay),
              "abcdefghijklmnopqrstuvw.txt01-06-05");
    EXPECT_EQ(BackupEntry("abcdefghijklmnopqrstuvwx.txt", someDay),
              "abcdefghijklmnopqrstuvwx.tx01-06-05");
}

TEST(NameInEntry, EndsThreeCharactersBehindTheFirstDot) {
    for (const char* name : {"Notes.txt", "quillon.ini", "SMembers.012", ".txt", "Lottery Info.txt",
                             "abcdefghijklmnopqrstuvw.txt"}) {
        EXPECT_EQ(NameInEntry(BackupEntry(name, someDay)), name);
    }
}

TEST(NameInEntry, LosesWhatFollowsAnEarlierDot) {
    EXPECT_EQ(NameInEntry(BackupEntry("my.lottery.txt", someDay)), "my.lot");
    EXPECT_EQ(NameInEntry(BackupEntry("a.b.txt", someDay)), "a.b.t");
}

TEST(NameInEntry, TakesTheDateIntoTheExtensionOfANameThatIsCut) {
    EXPECT_EQ(NameInEntry(BackupEntry("abcdefghijklmnopqrstuvwx.txt", someDay)),
              "abcdefghijklmnopqrstuvwx.tx0");
}

TEST(NameInEntry, FailsWhereTheDotLiesBeyondTheCut) {
    const std::string entry = BackupEntry("abcdefghijklmnopqrstuvwxyzA.txt", someDay);
    EXPECT_EQ(FailureOf([&] { NameInEntry(entry); }),
              "The name of the file listed as \"abcdefghijklmnopqrstuvwxyzA01-06-05\" is too long "
              "to be copied: expected a dot in its first 27 characters.");
}

class TheBackupList : public testing::Test {
  protected:
    TheBackupList() { folder_.MakeFolder("Backup"); }

    /// The names that the list shows, without blanks and dates.
    static Names Shown(const BackupList& list) {
        Names names;
        for (std::size_t row = 0; row < list.Count(); ++row) {
            names.push_back(Trim(list.Entry(row).substr(0, 27)));
        }
        return names;
    }

    static Names Entries(const BackupList& list) {
        Names entries;
        for (std::size_t row = 0; row < list.Count(); ++row) entries.push_back(list.Entry(row));
        return entries;
    }

    /// Notes the copy of a file, and compares with a list that was read anew.
    void ExpectAsReadAnew(const std::string& name) {
        const Names before = Entries(backups_);
        folder_.Copy(name, "Backup/" + name);
        const auto change = backups_.Renew(folder_, name);
        BackupList anew(backupFolder);
        anew.Read(folder_);
        EXPECT_EQ(Entries(backups_), Entries(anew)) << name;
        if (change) {
            EXPECT_EQ(backups_.Count(), before.size() + (change->added ? 1 : 0));
            EXPECT_EQ(LowerCase(Shown(backups_).at(change->row)), LowerCase(name));
        } else {
            EXPECT_EQ(Entries(backups_), before);
        }
    }

    MemoryFolder folder_;
    BackupList data_{""};
    BackupList backups_{backupFolder};
};

TEST_F(TheBackupList, TellsTheFivePatternsInTheirOrder) {
    for (const char* name :
         {"SMembers.002", "SMembers.001", "Diary.000", "PTemplate.099", "quillon.ini", "Notes.txt",
          "dbase10.txt", "dbase2.txt", "A.INI", "MyLottery.txt", "smembers.003"}) {
        folder_.Write(name, "x");
    }
    data_.Read(folder_);
    EXPECT_EQ(Shown(data_), (Names{"dbase10.txt", "dbase2.txt", "MyLottery.txt", "Notes.txt",
                                   "A.INI", "quillon.ini", "PTemplate.099", "Diary.000",
                                   "SMembers.001", "SMembers.002", "smembers.003"}));
}

TEST_F(TheBackupList, MatchesAQuestionMarkWithExactlyOneCharacter) {
    for (const char* name : {"PTemplate.100", "Diary.100", "SMembers.100", "PTemplate.00",
                             "PTemplate.0000", "PTemplate.0", "xDiary.000", "Diary.000x", "a.tx",
                             "a.text", "atxt", "wheel49.dat", "help.html", "SkinMain.jpg"}) {
        folder_.Write(name, "x");
    }
    folder_.Write("Diary.0A_", "x");
    data_.Read(folder_);
    EXPECT_EQ(Shown(data_), Names{"Diary.0A_"});
}

TEST_F(TheBackupList, NeverTellsAFolder) {
    folder_.MakeFolder("Old.txt");
    folder_.MakeFolder("Diary.000");
    data_.Read(folder_);
    EXPECT_EQ(Shown(data_), Names{});
}

TEST_F(TheBackupList, KeepsTheTwoFoldersApart) {
    folder_.Write("Notes.txt", "x");
    folder_.Write("Backup/dbase1.txt", "x");
    data_.Read(folder_);
    backups_.Read(folder_);
    EXPECT_EQ(Shown(data_), Names{"Notes.txt"});
    EXPECT_EQ(Shown(backups_), Names{"dbase1.txt"});
    EXPECT_EQ(data_.PathOf("Notes.txt"), "Notes.txt");
    EXPECT_EQ(backups_.PathOf("Notes.txt"), "Backup/Notes.txt");
}

TEST_F(TheBackupList, TellsTheDayOfTheLastChange) {
    folder_.Write("Notes.txt", "x");
    folder_.SetFileDate("Notes.txt", someDay);
    data_.Read(folder_);
    EXPECT_EQ(data_.Entry(0), BackupEntry("Notes.txt", someDay));
}

TEST_F(TheBackupList, IsReadAnewFromNothing) {
    folder_.Write("Notes.txt", "x");
    data_.Read(folder_);
    folder_.Delete("Notes.txt");
    data_.Read(folder_);
    EXPECT_EQ(data_.Count(), 0U);
}

TEST_F(TheBackupList, NotesACopyAsIfItWereReadAnew) {
    for (const char* name : {"b.txt", "B1.txt", "a.txt", "z.txt", "quillon.ini", "a.ini",
                             "Diary.001", "PTemplate.001", "SMembers.000", "my.lot"}) {
        folder_.Write(name, name);
        folder_.SetFileDate(name, DaysAfter(someDay, static_cast<int>(std::string(name).size())));
    }
    backups_.Read(folder_);
    for (const char* name : {"quillon.ini", "b.txt", "SMembers.000", "z.txt", "a.txt", "Diary.001",
                             "B1.txt", "a.ini", "PTemplate.001", "my.lot", "b.txt"}) {
        ExpectAsReadAnew(name);
    }
    EXPECT_EQ(backups_.Count(), 9U) << "my.lot is no data file";
}

TEST_F(TheBackupList, NotesACopyOverAFileThatIsSpelledOtherwise) {
    folder_.Write("Notes.txt", "new");
    folder_.SetFileDate("Notes.txt", someDay);
    folder_.Write("Backup/NOTES.TXT", "old");
    folder_.Write("Backup/other.txt", "x");
    backups_.Read(folder_);
    ExpectAsReadAnew("Notes.txt");
    EXPECT_EQ(Shown(backups_), (Names{"NOTES.TXT", "other.txt"}));
    EXPECT_EQ(backups_.Entry(0), BackupEntry("NOTES.TXT", someDay));
}

TEST_F(TheBackupList, LooksUpOnlyTheFileThatWasCopied) {
    for (int file = 0; file < 50; ++file) {
        folder_.Write("dbase" + std::to_string(file) + ".txt", "x");
    }
    data_.Read(folder_);
    folder_.FailAtOperation(1);
    data_.Renew(folder_, "dbase7.txt");
    EXPECT_THROW(folder_.Read("dbase1.txt"), Failure) << "the second operation";
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
// Backup and restoration on a real disk.
#include <fcntl.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <filesystem>

#include "core/settings.h"
#include "platform/system/DiskFolder.h"
#include "platform/widgets/Lists.h"
#include "shell/Backup.h"
#include "tests/support/form_test.h"
#include "tests/support/real_histories.h"

namespace {

namespace fs = std::filesystem;

/// What tells one state of a file from another.
struct OnDisk {
    std::string bytes;
    fs::file_time_type written;
    bool operator==(const OnDisk&) const = default;
};
using Files = std::map<std::string, OnDisk>;

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class BackupOnDisk : public testing::Test {
  protected:
    void Put(const std::string& name, const std::string& bytes) {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
        // Each file has a day and a fraction of a second of its own.
        const std::chrono::hours age(30 * ++files_);
        fs::last_write_time(path_ / name, fs::file_time_type::clock::now() - age -
                                              std::chrono::nanoseconds(files_ * 1001));
    }

    /// One file of each kind that the program keeps, and of those that are no data files.
    void PutAllKinds() {
        for (const char* name :
             {"MyLottery.txt", "Notes.txt", "SNotes.txt", "temp.txt", "LotteryTemplates.txt",
              "quillon.ini", "PTemplate.000", "PTemplate.001", "Diary.000", "Diary.007",
              "SMembers.000", "SMembers.007"}) {
            Put(name, std::string("of ") + name + "\r\n" + std::string("\0\xFF\x80\n", 4));
        }
        Put("empty.txt", "");
        Put("L\xC3\xB6tto.txt", "an accent");
        for (const char* name : {"wheel49.dat", "help.html", "SkinMain.jpg", "PTemplate.100"}) {
            Put(name, "no data file");
        }
    }

    Files Snapshot(const fs::path& folder) const {
        Files files;
        for (const auto& entry : fs::directory_iterator(folder)) {
            if (!entry.is_regular_file()) continue;
            files[entry.path().filename()] = {BytesOf(entry), entry.last_write_time()};
        }
        return files;
    }

    /// Opens the form on the folder as it is now.
    void Open() {
        fs::create_directory(path_ / "Backup");
        disk_ = std::make_unique<DiskFolder>(QString::fromStdString(path_));
        program_ = std::make_unique<Program>(
            Program{.state = test_.state, .folder = *disk_, .services = test_.services});
        form_ = std::make_unique<Backup>(*program_, nullptr);
        form_->Load();
        form_->show();
        QApplication::processEvents();
    }

    void ExpectListsAsReadAnew() {
        Backup anew(*program_, nullptr);
        anew.Load();
        for (const char* name : {"List1", "List2"}) {
            const auto* list = Find<ListBox>(*form_, name);
            const auto* expected = Find<ListBox>(anew, name);
            ASSERT_EQ(list->count(), expected->count()) << name;
            for (int row = 0; row < list->count(); ++row) {
                EXPECT_EQ(list->item(row)->text(), expected->item(row)->text()) << name;
            }
        }
    }

    /// Data files and nothing else are in Backup, each as it is in the program's folder.
    void ExpectCopiesOfAllDataFiles() {
        Files expected = Snapshot(path_);
        for (const char* name : {"wheel49.dat", "help.html", "SkinMain.jpg", "PTemplate.100"}) {
            expected.erase(name);
        }
        EXPECT_EQ(Snapshot(path_ / "Backup"), expected);
    }

    QTemporaryDir place_;
    fs::path path_ = place_.path().toStdString();
    int files_ = 0;
    TestProgram test_;
    std::unique_ptr<DiskFolder> disk_;
    std::unique_ptr<Program> program_;
    std::unique_ptr<Backup> form_;
};

TEST_F(BackupOnDisk, BringsAWholeFolderBackByteForByteWithItsDates) {
    PutAllKinds();
    const Files before = Snapshot(path_);
    Open();
    Click(*form_, "Command4");
    ExpectCopiesOfAllDataFiles();
    ExpectListsAsReadAnew();
    for (const auto& [name, file] : before) {
        if (fs::exists(path_ / "Backup" / name)) fs::remove(path_ / name);
    }
    Put("Notes.txt", "started anew");
    Open();
    Click(*form_, "Command5");
    EXPECT_EQ(Snapshot(path_), before);
    ExpectListsAsReadAnew();
}

TEST_F(BackupOnDisk, BringsTheRealHistoriesBackByteForByte) {
    DiskFolder real(QString::fromStdString(path_));
    if (!AddRealHistories(real)) GTEST_SKIP() << "no real histories";
    const Files before = Snapshot(path_);
    ASSERT_FALSE(before.empty());
    Open();
    Click(*form_, "Command4");
    EXPECT_EQ(Snapshot(path_ / "Backup"), before);
    for (const auto& [name, file] : before) fs::remove(path_ / name);
    Open();
    Click(*form_, "Command5");
    EXPECT_EQ(Snapshot(path_), before);
}

TEST_F(BackupOnDisk, GoesThroughManyFiles) {
    for (int file = 0; file < 60; ++file) {
        Put("dbase" + std::to_string(file) + ".txt", std::to_string(file));
    }
    Open();
    Click(*form_, "Command4");
    ExpectCopiesOfAllDataFiles();
    ExpectListsAsReadAnew();
}

TEST_F(BackupOnDisk, BacksUpToAnotherFolderByALink) {
    const QTemporaryDir elsewhere;
    const fs::path target = elsewhere.path().toStdString();
    fs::create_directory_symlink(target, path_ / "Backup");
    Put("Notes.txt", "mine");
    Open();
    Click(*form_, "Command4");
    EXPECT_EQ(Snapshot(target), Snapshot(path_));
    EXPECT_TRUE(fs::is_symlink(path_ / "Backup"));
    Put("Notes.txt", "broken");
    Open();
    Click(*form_, "Command5");
    EXPECT_EQ(BytesOf(path_ / "Notes.txt"), "mine");
}

TEST_F(BackupOnDisk, ChangesNothingWhereALinkLeadsBackIntoTheFolder) {
    fs::create_directory_symlink(".", path_ / "Backup");
    PutAllKinds();
    const Files before = Snapshot(path_);
    Open();
    EXPECT_EQ(Find<ListBox>(*form_, "List1")->count(), Find<ListBox>(*form_, "List2")->count());
    Click(*form_, "Command4");
    EXPECT_EQ(Snapshot(path_), before);
    Click(*form_, "Command5");
    EXPECT_EQ(Snapshot(path_), before);
    ExpectListsAsReadAnew();
}

TEST_F(BackupOnDisk, ChangesNothingWhereABackupIsALinkToItsFile) {
    Put("Notes.txt", "mine");
    fs::create_directory(path_ / "Backup");
    fs::create_symlink("../Notes.txt", path_ / "Backup" / "Notes.txt");
    const Files before = Snapshot(path_);
    Open();
    Click(*form_, "Command4");
    Click(*form_, "Command5");
    EXPECT_EQ(Snapshot(path_), before);
    EXPECT_TRUE(fs::is_symlink(path_ / "Backup" / "Notes.txt"));
}

TEST_F(BackupOnDisk, LeavesOneFileWhereTheBackupIsSpelledOtherwise) {
    Put("Notes.txt", "new");
    fs::create_directory(path_ / "Backup");
    Put("Backup/NOTES.TXT", "old");
    Open();
    Click(*form_, "Command4");
    EXPECT_EQ(Snapshot(path_ / "Backup"), (Files{{"NOTES.TXT", Snapshot(path_).at("Notes.txt")}}));
    ExpectListsAsReadAnew();
}

TEST_F(BackupOnDisk, TakesTheBackupThatIsSpelledAsTheFileOfTwo) {
    fs::create_directory(path_ / "Backup");
    Put("Backup/Notes.txt", "other");
    Put("Backup/notes.txt", "old");
    Put("notes.txt", "new");
    const OnDisk other = Snapshot(path_ / "Backup").at("Notes.txt");
    Open();
    Click(*form_, "Command4");
    EXPECT_EQ(Snapshot(path_ / "Backup"),
              (Files{{"Notes.txt", other}, {"notes.txt", Snapshot(path_).at("notes.txt")}}));
    ExpectListsAsReadAnew();
}

TEST_F(BackupOnDisk, ListsNoFolderInBackup) {
    fs::create_directory(path_ / "Backup");
    fs::create_directory(path_ / "Backup" / "Undo");
    fs::create_directory(path_ / "Backup" / "Old.txt");
    Put("Backup/Undo/Notes.txt", "x");
    Open();
    EXPECT_EQ(Find<ListBox>(*form_, "List2")->count(), 0);
}

TEST_F(BackupOnDisk, EndsTheRunAtABackupThatIsAFolder) {
    Put("a.txt", "a");
    Put("b.txt", "b");
    fs::create_directory(path_ / "Backup");
    fs::create_directory(path_ / "Backup" / "b.txt");
    Open();
    Click(*form_, "Command4");
    EXPECT_NE(TakeFailure().value_or("").find("b.txt could not be written"), std::string::npos);
    EXPECT_EQ(BytesOf(path_ / "Backup" / "a.txt"), "a");
}

}  // namespace

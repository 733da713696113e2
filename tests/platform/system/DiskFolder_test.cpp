// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/DiskFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/fsuid.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>

#include "core/saved_entries.h"
#include "core/settings.h"
#include "platform/system/ProgramFolderPath.h"
#include "platform/system/TextConversion.h"
#include "shell/notes_file.h"
#include "tests/core/failures.h"

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;
using Files = std::map<std::string, std::string>;

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    return bytes.str();
}

void Put(const fs::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

// While it lives, no file can grow beyond so many bytes, as on a disk that is full there.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit = {bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
    void (*handler_)(int);
};

// While it lives, files are touched with the rights of a user that has none.
class OrdinaryUser {
  public:
    OrdinaryUser() { setfsuid(geteuid() == 0 ? 65534 : geteuid()); }
    ~OrdinaryUser() { setfsuid(geteuid()); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
};

class OnDisk : public testing::Test {
  protected:
    QTemporaryDir place_;
    fs::path path_ = place_.path().toStdString();
    DiskFolder folder_{place_.path()};

    // Every file below the folder, hidden ones included.
    Files Snapshot() const {
        Files files;
        for (const auto& entry : fs::recursive_directory_iterator(path_)) {
            if (entry.is_regular_file())
                files[entry.path().lexically_relative(path_)] = BytesOf(entry);
        }
        return files;
    }

    // The write fails on a disk that is full at any byte, and leaves all as it was; `size` is what
    // it needs.
    template <typename Write>
    void ExpectUntouchedAtEveryByte(std::size_t size, Write write) {
        const Files before = Snapshot();
        for (std::size_t bytes = 0; bytes < size; ++bytes) {
            std::string failure;
            {
                const FullDisk full(bytes);
                failure = FailureOf(write);
            }
            ASSERT_TRUE(failure.ends_with(" could not be written: File too large.")) << failure;
            ASSERT_EQ(Snapshot(), before) << bytes;
        }
        const FullDisk enough(size);
        EXPECT_EQ(FailureOf(write), "no failure");
    }
};

}  // namespace

TEST_F(OnDisk, GivesBackWhatWasWritten) {
    const std::string bytes("a\r\n\0\xFF", 5);
    folder_.Write("a.txt", bytes);
    EXPECT_EQ(folder_.Read("a.txt"), bytes);
    EXPECT_EQ(Snapshot(), (Files{{"a.txt", bytes}}));
    folder_.Write("a.txt", "");
    EXPECT_EQ(folder_.Read("a.txt"), "");
}

TEST_F(OnDisk, MatchesNamesWithoutRegardToCaseAndKeepsTheSpellingOnDisk) {
    folder_.Write("temp.txt", "one");
    folder_.Write("Temp.txt", "two");
    EXPECT_TRUE(folder_.Exists("TEMP.TXT"));
    EXPECT_EQ(Snapshot(), (Files{{"temp.txt", "two"}}));
}

TEST_F(OnDisk, PrefersTheSpellingThatWasAskedFor) {
    Put(path_ / "temp.txt", "small");
    Put(path_ / "Temp.txt", "large");
    EXPECT_EQ(folder_.Read("temp.txt"), "small");
    EXPECT_EQ(folder_.Read("Temp.txt"), "large");
    EXPECT_EQ(folder_.Find("TEMP.*"), (Names{"Temp.txt", "temp.txt"}));
}

TEST_F(OnDisk, MatchesAccentedNamesWithoutRegardToCase) {
    folder_.Write(
        "B\xFC"
        "cher.txt",
        "x");
    EXPECT_TRUE(
        folder_.Exists("B\xDC"
                       "CHER.TXT"));
    EXPECT_TRUE(fs::exists(path_ / "B\xC3\xBC"
                                   "cher.txt"));
}

TEST_F(OnDisk, AppendsOnALineOfItsOwn) {
    folder_.Append("MyLottery.txt", "one\r\n");
    folder_.Append("mylottery.txt", "two");
    folder_.Append("MyLottery.txt", "three\r\n");
    EXPECT_EQ(Snapshot(), (Files{{"MyLottery.txt", "one\r\ntwo\r\nthree\r\n"}}));
}

TEST_F(OnDisk, FindsNamesInTheOrderOfTheirLowerCasedCharacters) {
    for (const char* name :
         {"dbase2.txt", "DBASE10.TXT", "dbase_.txt", "Notes.txt", "dbaseA.txt"}) {
        Put(path_ / name, "");
    }
    fs::create_directory(path_ / "dbase3.txt");
    EXPECT_EQ(folder_.Find("dbase*.txt"),
              (Names{"DBASE10.TXT", "dbase2.txt", "dbase_.txt", "dbaseA.txt"}));
    EXPECT_TRUE(folder_.Find("SMembers.0??").empty());
}

TEST_F(OnDisk, PassesOverFilesWhoseNamesItCannotTell) {
    Put(path_ / "dbase\xE5\xBD\xA9.txt", "x");
    Put(path_ / "dbase\xFF.txt", "x");
    EXPECT_TRUE(folder_.Find("*").empty());
    EXPECT_FALSE(folder_.Exists("dbase?.txt"));
    fs::remove(path_ / "dbase\xFF.txt");  // QTemporaryDir cannot tell it either
}

TEST_F(OnDisk, KeepsFilesOfAFolderApart) {
    EXPECT_FALSE(folder_.FolderExists("Backup"));
    folder_.MakeFolder("Backup");
    EXPECT_TRUE(folder_.FolderExists("backup"));
    folder_.Write("a.txt", "x");
    folder_.Copy("a.txt", "backup/a.txt");
    EXPECT_EQ(folder_.Read("BACKUP/A.TXT"), "x");
    EXPECT_EQ(folder_.Find("*.txt"), Names{"a.txt"});
    EXPECT_EQ(folder_.Find("Backup/*.txt"), Names{"Backup/a.txt"});
    EXPECT_TRUE(folder_.Find("Nowhere/*.txt").empty());
}

TEST_F(OnDisk, MakesNoFolderTwice) {
    folder_.MakeFolder("Backup");
    EXPECT_EQ(FailureOf([&] { folder_.MakeFolder("backup"); }),
              "backup could not be made: File exists.");
}

TEST_F(OnDisk, CopiesOverAnotherFileWithTheDate) {
    folder_.Write("a.txt", "new");
    folder_.Write("b.txt", "old and longer");
    const auto before = fs::last_write_time(path_ / "a.txt") - std::chrono::hours(1000);
    fs::last_write_time(path_ / "a.txt", before);
    folder_.Copy("a.txt", "b.txt");
    EXPECT_EQ(folder_.Read("b.txt"), "new");
    EXPECT_EQ(fs::last_write_time(path_ / "b.txt"), before);
}

TEST_F(OnDisk, DatesAFileAsItIsTold) {
    const FileTime written(std::chrono::seconds(1117627200) + std::chrono::nanoseconds(123456789));
    folder_.Write("a.txt", "x", written);
    EXPECT_EQ(folder_.Read("a.txt"), "x");
    EXPECT_EQ(folder_.LastWritten("A.TXT"), written);
    const FileTime longAgo(-std::chrono::nanoseconds(1));
    folder_.Write("a.txt", "y", longAgo);
    EXPECT_EQ(folder_.LastWritten("a.txt"), longAgo);
    EXPECT_EQ(FailureOf([&] { folder_.LastWritten("b.txt"); }),
              "b.txt could not be looked at: No such file or directory.");
}

TEST_F(OnDisk, CopiesAFileOntoItselfWithoutTouchingIt) {
    Put(path_ / "a.txt", "x");
    fs::create_directory_symlink(".", path_ / "Backup");
    fs::create_symlink("a.txt", path_ / "b.txt");
    struct stat before {};
    ASSERT_EQ(stat((path_ / "a.txt").c_str(), &before), 0);
    folder_.Copy("a.txt", "Backup/a.txt");
    folder_.Copy("Backup/A.TXT", "a.txt");
    folder_.Copy("a.txt", "b.txt");
    struct stat after {};
    ASSERT_EQ(stat((path_ / "a.txt").c_str(), &after), 0);
    EXPECT_EQ(after.st_ino, before.st_ino);
    EXPECT_EQ(after.st_ctim.tv_nsec, before.st_ctim.tv_nsec);
    EXPECT_EQ(folder_.Read("a.txt"), "x");
    EXPECT_TRUE(fs::is_symlink(path_ / "b.txt"));
}

TEST_F(OnDisk, DeletesAFile) {
    folder_.Write("a.txt", "x");
    folder_.Delete("A.TXT");
    EXPECT_TRUE(Snapshot().empty());
    EXPECT_EQ(FailureOf([&] { folder_.Delete("a.txt"); }),
              "a.txt could not be deleted: No such file or directory.");
}

TEST_F(OnDisk, TellsTheCalendarDayOfAFileByTheLocalClock) {
    ASSERT_EQ(setenv("TZ", "Pacific/Chatham", 1), 0);
    tzset();
    folder_.Write("a.txt", "x");
    // 2005-06-01 12:00 UTC is in Chatham a quarter to one of the next day.
    const timespec times[2] = {{1117627200, 0}, {1117627200, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, (path_ / "a.txt").c_str(), times, 0), 0);
    EXPECT_EQ(folder_.FileDate("a.txt"), std::chrono::June / 2 / 2005);
}

TEST_F(OnDisk, KeepsThePermissionsOfAFile) {
    folder_.Write("a.txt", "x");
    ASSERT_EQ(chmod((path_ / "a.txt").c_str(), 0640), 0);
    folder_.Write("a.txt", "y");
    EXPECT_EQ(fs::status(path_ / "a.txt").permissions(), fs::perms(0640));
}

TEST_F(OnDisk, WritesThroughALink) {
    fs::create_directory(path_ / "elsewhere");
    Put(path_ / "elsewhere" / "real.txt", "old");
    fs::create_symlink("elsewhere/real.txt", path_ / "a.txt");
    folder_.Write("a.txt", "new");
    EXPECT_TRUE(fs::is_symlink(path_ / "a.txt"));
    EXPECT_EQ(folder_.Read("a.txt"), "new");
    EXPECT_EQ(Snapshot().at("elsewhere/real.txt"), "new");
    EXPECT_EQ(folder_.Find("*"), Names{"a.txt"});
}

TEST_F(OnDisk, MakesTheFileThatALinkPointsTo) {
    fs::create_symlink("real.txt", path_ / "a.txt");
    EXPECT_FALSE(folder_.Exists("a.txt"));
    folder_.Write("a.txt", "new");
    EXPECT_EQ(BytesOf(path_ / "real.txt"), "new");
}

TEST_F(OnDisk, FailsForALinkToItself) {
    fs::create_symlink("a.txt", path_ / "a.txt");
    EXPECT_EQ(FailureOf([&] { folder_.Write("a.txt", "x"); }),
              "a.txt could not be written: Too many levels of symbolic links.");
}

TEST_F(OnDisk, FailsForAFileThatIsNotThere) {
    EXPECT_FALSE(folder_.Exists("a.txt"));
    EXPECT_EQ(FailureOf([&] { folder_.Read("a.txt"); }),
              "a.txt could not be read: No such file or directory.");
    EXPECT_EQ(FailureOf([&] { folder_.Copy("a.txt", "b.txt"); }),
              "a.txt could not be read: No such file or directory.");
    EXPECT_EQ(FailureOf([&] { folder_.FileDate("a.txt"); }),
              "a.txt could not be looked at: No such file or directory.");
}

TEST_F(OnDisk, FailsForAFolderInPlaceOfAFile) {
    fs::create_directory(path_ / "quillon.ini");
    EXPECT_FALSE(folder_.Exists("quillon.ini"));
    EXPECT_EQ(FailureOf([&] { folder_.Read("quillon.ini"); }),
              "quillon.ini could not be read: Is a directory.");
    EXPECT_EQ(FailureOf([&] { folder_.Write("quillon.ini", "x"); }),
              "quillon.ini could not be written: Is a directory.");
    EXPECT_EQ(FailureOf([&] { folder_.Delete("quillon.ini"); }),
              "quillon.ini could not be deleted: Is a directory.");
}

TEST_F(OnDisk, FailsForWhatIsNoRegularFileWithoutWaiting) {
    ASSERT_EQ(mkfifo((path_ / "a.txt").c_str(), 0600), 0);
    EXPECT_EQ(FailureOf([&] { folder_.Read("a.txt"); }),
              "a.txt could not be read: Not a regular file.");
    EXPECT_EQ(FailureOf([&] { folder_.Write("a.txt", "x"); }),
              "a.txt could not be written: No such device or address.");
}

TEST_F(OnDisk, FailsForAFileLargerThanAnyOfTheProgram) {
    Put(path_ / "a.txt", "");
    fs::resize_file(path_ / "a.txt", 64 * 1024 * 1024 + 1);
    EXPECT_EQ(FailureOf([&] { folder_.Read("a.txt"); }),
              "a.txt could not be read: Larger than 64 MiB.");
}

TEST_F(OnDisk, FailsForANameOutsideTheFolder) {
    for (const char* name :
         {"", ".", "..", "../a.txt", "/etc/hostname", "a/../c.txt", "a//c.txt", "Backup/", "/a"}) {
        EXPECT_FALSE(folder_.Exists(name)) << name;
        EXPECT_FALSE(folder_.FolderExists(name)) << name;
        EXPECT_EQ(FailureOf([&] { folder_.Read(name); }),
                  '"' + std::string(name) + "\" is no name of a file in the program's folder.");
        EXPECT_THROW(folder_.Write(name, "x"), Failure) << name;
    }
}

TEST_F(OnDisk, FailsInAFolderThatMayNotBeWritten) {
    folder_.Write("quillon.ini", "old");
    const Files before = Snapshot();
    ASSERT_EQ(chmod((path_ / "quillon.ini").c_str(), 0666), 0);
    ASSERT_EQ(chmod(path_.c_str(), 0555), 0);
    {
        const OrdinaryUser user;
        EXPECT_EQ(FailureOf([&] { folder_.Write("quillon.ini", "new"); }),
                  "quillon.ini could not be written: Permission denied.");
        EXPECT_EQ(FailureOf([&] { folder_.Write("Notes.txt", "new"); }),
                  "Notes.txt could not be written: Permission denied.");
        EXPECT_EQ(FailureOf([&] { folder_.Delete("quillon.ini"); }),
                  "quillon.ini could not be deleted: Permission denied.");
        EXPECT_EQ(FailureOf([&] { folder_.MakeFolder("Backup"); }),
                  "Backup could not be made: Permission denied.");
        EXPECT_EQ(folder_.Read("quillon.ini"), "old");
    }
    ASSERT_EQ(chmod(path_.c_str(), 0755), 0);
    EXPECT_EQ(Snapshot(), before);
}

// What cannot be looked for may be there, and must not be written anew.
TEST_F(OnDisk, DoesNotTakeAFileThatCannotBeLookedForAsAbsent) {
    folder_.Write("MyLottery.txt", "old\r\n");
    folder_.MakeFolder("Backup");
    folder_.Write("Backup/MyLottery.txt", "older\r\n");
    const Files before = Snapshot();
    ASSERT_EQ(chmod(path_.c_str(), 0000), 0);
    {
        const OrdinaryUser user;
        const std::string denied = " could not be looked for: Permission denied.";
        EXPECT_EQ(FailureOf([&] { folder_.Exists("MyLottery.txt"); }), "MyLottery.txt" + denied);
        EXPECT_EQ(FailureOf([&] { folder_.FolderExists("Backup"); }), "Backup" + denied);
        EXPECT_EQ(FailureOf([&] { folder_.Find("dbase*.txt"); }), "dbase*.txt" + denied);
        EXPECT_EQ(FailureOf([&] { folder_.Find("Backup/*.txt"); }), "Backup/*.txt" + denied);
        EXPECT_THROW(folder_.Append("MyLottery.txt", "new\r\n"), Failure);
    }
    ASSERT_EQ(chmod(path_.c_str(), 0755), 0);
    EXPECT_EQ(Snapshot(), before);
}

TEST_F(OnDisk, DoesNotTakeALinkToItselfAsAbsent) {
    fs::create_symlink("dbase1.txt", path_ / "dbase1.txt");
    const std::string reason = " could not be looked for: Too many levels of symbolic links.";
    EXPECT_EQ(FailureOf([&] { folder_.Exists("dbase1.txt"); }), "dbase1.txt" + reason);
    EXPECT_EQ(FailureOf([&] { folder_.Find("dbase*.txt"); }), "dbase1.txt" + reason);
    EXPECT_EQ(folder_.Find("*.ini"), Names{});
}

TEST_F(OnDisk, FindsNothingInAFolderThatIsNotThere) {
    EXPECT_EQ(folder_.Find("Backup/*.txt"), Names{});
    folder_.Write("Backup", "a file");
    EXPECT_EQ(folder_.Find("Backup/*.txt"), Names{});
    EXPECT_FALSE(folder_.Exists("Backup/a.txt"));
}

TEST_F(OnDisk, DoesNotReplaceAFileThatMayNotBeWritten) {
    folder_.Write("a.txt", "old");
    ASSERT_EQ(chmod((path_ / "a.txt").c_str(), 0444), 0);
    ASSERT_EQ(chmod(path_.c_str(), 0777), 0);
    {
        const OrdinaryUser user;
        EXPECT_EQ(FailureOf([&] { folder_.Write("a.txt", "new"); }),
                  "a.txt could not be written: Permission denied.");
    }
    EXPECT_EQ(Snapshot(), (Files{{"a.txt", "old"}}));
}

TEST_F(OnDisk, FailsForAFileThatMayNotBeRead) {
    folder_.Write("dbase1.txt", "x");
    ASSERT_EQ(chmod((path_ / "dbase1.txt").c_str(), 0000), 0);
    ASSERT_EQ(chmod(path_.c_str(), 0755), 0);
    const OrdinaryUser user;
    EXPECT_EQ(folder_.Find("*"), Names{"dbase1.txt"});
    EXPECT_EQ(FailureOf([&] { folder_.Read("dbase1.txt"); }),
              "dbase1.txt could not be read: Permission denied.");
}

TEST_F(OnDisk, KeepsTheSettingsWhereTheDiskIsFullAtAnyByte) {
    const auto state = std::make_unique<State>();
    MakeDefaultSettings(*state, folder_);
    state->Settings(setting::PlayerName) = "Ann";
    const std::size_t size = folder_.Read("quillon.ini").size() + 3;
    ExpectUntouchedAtEveryByte(size, [&] { SaveSettings(*state, folder_); });
    EXPECT_EQ(folder_.Read("quillon.ini").size(), size);
}

TEST_F(OnDisk, KeepsTheNotesWhereTheDiskIsFullAtAnyByte) {
    Notes notes;
    notes.checklist[0] = {true, "Buy lottery tickets"};
    SaveNotes(folder_, notes);
    const std::size_t size = folder_.Read("Notes.txt").size() + 4;
    notes.note = "note";
    ExpectUntouchedAtEveryByte(size, [&] { SaveNotes(folder_, notes); });
    EXPECT_EQ(ReadNotes(folder_), notes);
}

TEST_F(OnDisk, KeepsTheEntriesWhereTheDiskIsFullAtAnyByte) {
    const std::string record = SavedEntryRecord({"25-Nov-2026", "3", "14", "15", "26", "35", "44",
                                                 "", "", "UK Lotto", "Ann", "dbase100.txt"});
    folder_.Append(savedEntriesFile, record);
    ExpectUntouchedAtEveryByte(2 * record.size(),
                               [&] { folder_.Append(savedEntriesFile, record); });
    EXPECT_EQ(folder_.Read(savedEntriesFile), record + record);
}

TEST_F(OnDisk, LeavesNothingWhereANewFileDoesNotFit) {
    const FullDisk full(2);
    EXPECT_THROW(folder_.Write("Notes.txt", "note"), Failure);
    EXPECT_TRUE(Snapshot().empty());
}

TEST_F(OnDisk, ClearsWhatAKilledRunLeftBehind) {
    Put(path_ / ".quillon-4711.tmp", "half");
    Put(path_ / "quillon.ini", "whole");
    const DiskFolder reopened(place_.path());
    EXPECT_EQ(Snapshot(), (Files{{"quillon.ini", "whole"}}));
}

TEST_F(OnDisk, LeavesWhatAnotherRunIsJustWriting) {
    Put(path_ / ".quillon-4711.tmp", "half");
    const int other = open((path_ / ".quillon-4711.tmp").c_str(), O_RDONLY);
    ASSERT_EQ(flock(other, LOCK_EX), 0);
    const DiskFolder reopened(place_.path());
    EXPECT_EQ(Snapshot().size(), 1U);
    EXPECT_TRUE(folder_.Find("*").empty());
    close(other);
}

TEST_F(OnDisk, SavesWhateverStandsWhereItWouldWrite) {
    const std::string start = ".quillon-" + std::to_string(getpid()) + "-";
    Put(path_ / (start + "0.tmp"), "half, and longer than the new");
    fs::create_symlink("victim.txt", path_ / (start + "1.tmp"));
    fs::create_directory(path_ / (start + "2.tmp"));
    folder_.Write("a.txt", "new");
    EXPECT_EQ(folder_.Read("a.txt"), "new");
    EXPECT_FALSE(fs::exists(path_ / "victim.txt"));
}

TEST_F(OnDisk, ClearsWhateverBearsTheNameOfAnUnfinishedFile) {
    fs::create_directories(path_ / "Backup" / "Undo");
    Put(path_ / ".quillon-1.tmp", "half");
    fs::create_symlink("a.txt", path_ / ".quillon-2.tmp");
    fs::create_symlink("nowhere", path_ / ".quillon-3.tmp");
    fs::create_directory(path_ / ".quillon-4.tmp");
    ASSERT_EQ(mkfifo((path_ / ".quillon-5.tmp").c_str(), 0600), 0);
    Put(path_ / "Backup" / ".quillon-6.tmp", "half");
    Put(path_ / "Backup" / "Undo" / ".quillon-7.tmp", "half");
    fs::create_directory(path_ / "help");
    Put(path_ / "help" / ".quillon-8.tmp", "half");
    Put(path_ / "a.txt", "x");
    const DiskFolder reopened(place_.path());
    EXPECT_EQ(Snapshot(), (Files{{"a.txt", "x"}}));
    EXPECT_EQ(std::distance(fs::directory_iterator(path_), {}), 3);
}

TEST_F(OnDisk, LeavesAFolderWithFilesThatBearsSuchAName) {
    fs::create_directory(path_ / ".quillon-1.tmp");
    Put(path_ / ".quillon-1.tmp" / "mine.txt", "x");
    const DiskFolder reopened(place_.path());
    EXPECT_EQ(Snapshot(), (Files{{".quillon-1.tmp/mine.txt", "x"}}));
}

TEST_F(OnDisk, KeepsWhatIsJustBeingWrittenToItselfAndAsPrivateAsTheFile) {
    folder_.Write("Notes.txt", "old");
    fs::permissions(path_ / "Notes.txt", fs::perms(0600));
    const pid_t writer = ::fork();
    if (writer == 0) {
        // The system stops the process at the write that would make a file too large.
        std::signal(SIGXFSZ, [](int) { ::raise(SIGSTOP); });
        const rlimit size{.rlim_cur = 10, .rlim_max = 10};
        ::setrlimit(RLIMIT_FSIZE, &size);
        folder_.Write("Notes.txt", std::string(100, 'x'));
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(writer, &status, WUNTRACED), writer);
    ASSERT_TRUE(WIFSTOPPED(status)) << "it wrote all";
    const auto unfinished = [this] {
        std::vector<fs::perms> found;
        for (const auto& entry : fs::directory_iterator(path_)) {
            if (entry.path().filename().string().starts_with(".quillon-"))
                found.push_back(entry.status().permissions());
        }
        return found;
    };
    { const DiskFolder otherRun(place_.path()); }
    EXPECT_EQ(unfinished(), std::vector{fs::perms(0600)});
    ::kill(writer, SIGKILL);
    ::waitpid(writer, &status, 0);
    { const DiskFolder nextRun(place_.path()); }
    EXPECT_TRUE(unfinished().empty());
    EXPECT_EQ(BytesOf(path_ / "Notes.txt"), "old");
}

TEST_F(OnDisk, MakesANewFile) {
    EXPECT_TRUE(folder_.Create("dbase1.txt", "new"));
    EXPECT_EQ(Snapshot(), (Files{{"dbase1.txt", "new"}}));
}

TEST_F(OnDisk, MakesNoNewFileInPlaceOfAnother) {
    Put(path_ / "DBASE1.TXT", "old");
    EXPECT_FALSE(folder_.Create("dbase1.txt", "new"));
    EXPECT_EQ(Snapshot(), (Files{{"DBASE1.TXT", "old"}}));
    fs::create_directory(path_ / "dbase2.txt");
    EXPECT_EQ(FailureOf([&] { static_cast<void>(folder_.Create("dbase2.txt", "new")); }),
              "dbase2.txt could not be written: Is a directory.");
    EXPECT_TRUE(fs::is_empty(path_ / "dbase2.txt"));
}

TEST_F(OnDisk, MakesNoNewFileThatDoesNotFitOnTheDisk) {
    const FullDisk full(2);
    EXPECT_EQ(FailureOf([&] { static_cast<void>(folder_.Create("dbase1.txt", "new")); }),
              "dbase1.txt could not be written: File too large.");
    EXPECT_TRUE(Snapshot().empty());
}

TEST_F(OnDisk, KeepsCopiesInAFolderWithinBackup) {
    folder_.MakeFolder("backup");
    folder_.MakeFolder("Backup/Undo");
    EXPECT_TRUE(folder_.FolderExists("BACKUP/UNDO"));
    EXPECT_TRUE(folder_.Create("Backup/Undo/a.txt", "x"));
    EXPECT_EQ(folder_.Find("Backup/Undo/*"), Names{"Backup/Undo/a.txt"});
    EXPECT_TRUE(folder_.Find("Backup/*").empty());
    EXPECT_EQ(Snapshot(), (Files{{"backup/Undo/a.txt", "x"}}));
    for (const char* outside : {"Backup/../../a.txt", "/a.txt", "Backup//a.txt", "Backup/"}) {
        EXPECT_FALSE(folder_.Exists(outside)) << outside;
        EXPECT_TRUE(FailureOf([&] { folder_.Write(outside, "x"); }).ends_with("folder."));
    }
}

TEST_F(OnDisk, SaysWhereTheProgramsFolderIsGone) {
    folder_.Write("MyLottery.txt", "x");
    const fs::path elsewhere = path_.string() + " moved";
    fs::rename(path_, elsewhere);
    const std::string reason = " could not be looked for: the program's folder " +
                               FromQString(place_.path()) + " is gone.";
    EXPECT_EQ(FailureOf([&] { folder_.Exists("MyLottery.txt"); }), "MyLottery.txt" + reason);
    EXPECT_EQ(FailureOf([&] { folder_.Find("dbase*.txt"); }), "dbase*.txt" + reason);
    EXPECT_EQ(FailureOf([&] { folder_.FolderExists("Backup"); }), "Backup" + reason);
    fs::rename(elsewhere, path_);
    EXPECT_TRUE(folder_.Exists("MyLottery.txt"));
}

TEST_F(OnDisk, SaysWhereTheProgramsFolderIsLocked) {
    folder_.Write("MyLottery.txt", "x");
    fs::permissions(path_, fs::perms::none);
    {
        const OrdinaryUser user;
        EXPECT_EQ(FailureOf([&] { folder_.Exists("MyLottery.txt"); }),
                  "MyLottery.txt could not be looked for: Permission denied.");
        EXPECT_EQ(FailureOf([&] { folder_.Find("dbase*.txt"); }),
                  "dbase*.txt could not be looked for: Permission denied.");
    }
    fs::permissions(path_, fs::perms::owner_all);
}

TEST_F(OnDisk, TakesAFolderThatCannotBeListedForNoEmptyOne) {
    folder_.Write("dbase1.txt", "x");
    fs::permissions(path_, fs::perms(0311));
    {
        const OrdinaryUser user;
        EXPECT_EQ(FailureOf([&] { folder_.Find("dbase*.txt"); }),
                  "dbase*.txt could not be looked for: Permission denied.");
    }
    fs::permissions(path_, fs::perms::owner_all);
}

namespace {

class Rescuing : public OnDisk {
  protected:
    fs::path first_ = path_ / "home" / "Rescued";
    fs::path second_ = path_ / "tmp";
    DiskFolder rescuing_{MakeProgramFolder(),
                         {.now =
                              [] {
                                  return std::chrono::local_days(std::chrono::June / 1 / 2005) +
                                         std::chrono::seconds(34215);
                              },
                          .rescuePlaces = {QString::fromStdString(first_) + QLatin1Char('/'),
                                           QString::fromStdString(second_ / "rescued ")}}};

    QString MakeProgramFolder() const {
        fs::create_directory(path_ / "program");
        return QString::fromStdString(path_ / "program");
    }

    void BarTheFile() { fs::create_directory(path_ / "program" / "a.txt"); }
};

}  // namespace

TEST_F(Rescuing, PutsWhatCouldNotBeWrittenIntoAnotherPlaceAndNamesIt) {
    BarTheFile();
    const std::string path = first_ / "2005-06-01 093015 a.txt";
    EXPECT_EQ(FailureOf([&] { rescuing_.Write("a.txt", "typed"); }),
              "a.txt could not be written: Is a directory. What was to be written is kept in " +
                  path + ".");
    EXPECT_EQ(BytesOf(path), "typed");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(Rescuing, NeverReplacesWhatWasRescuedBefore) {
    BarTheFile();
    FailureOf([&] { rescuing_.Write("a.txt", "first"); });
    FailureOf([&] { rescuing_.Write("a.txt", "second"); });
    EXPECT_EQ(BytesOf(first_ / "2005-06-01 093015 a.txt"), "first");
    EXPECT_EQ(BytesOf(first_ / "2005-06-01 093015-002 a.txt"), "second");
}

TEST_F(Rescuing, TakesTheNextPlaceWhereOneDoesNotTakeIt) {
    BarTheFile();
    Put(path_ / "home", "a file");
    EXPECT_TRUE(FailureOf([&] {
                    rescuing_.Append("a.txt", "typed");
                }).ends_with("/tmp/rescued 2005-06-01 093015 a.txt."));
    EXPECT_EQ(BytesOf(second_ / "rescued 2005-06-01 093015 a.txt"), "typed");
}

TEST_F(Rescuing, SaysNothingOfAPlaceWhereNoneTakesIt) {
    BarTheFile();
    Put(path_ / "home", "a file");
    Put(path_ / "tmp", "a file");
    EXPECT_EQ(FailureOf([&] { rescuing_.Write("a.txt", "typed"); }),
              "a.txt could not be written: Is a directory.");
}

TEST_F(Rescuing, RescuesTheWholeFileThatAnAppendWouldMake) {
    rescuing_.Write("b.txt", "old\r\n");
    fs::permissions(path_ / "program" / "b.txt", fs::perms(0666));
    fs::permissions(path_ / "program", fs::perms(0555));
    fs::create_directories(first_);
    fs::permissions(first_, fs::perms::all);
    fs::permissions(path_, fs::perms::all);
    fs::permissions(path_ / "home", fs::perms::all);
    {
        const OrdinaryUser user;
        FailureOf([&] { rescuing_.Append("b.txt", "new\r\n"); });
    }
    EXPECT_EQ(BytesOf(first_ / "2005-06-01 093015 b.txt"), "old\r\nnew\r\n");
    fs::permissions(path_ / "program", fs::perms::owner_all);
}

TEST(DiskFolderAt, FailsForAFolderThatIsNotThere) {
    EXPECT_EQ(FailureOf([] { DiskFolder(QStringLiteral("/nowhere/at/all")); }),
              "/nowhere/at/all could not be opened: No such file or directory.");
}

namespace {

class InstalledProgram : public testing::Test {
  protected:
    QTemporaryDir place_;
    fs::path path_ = place_.path().toStdString();
    QString executables_ = place_.path() + QStringLiteral("/bin");
    QString user_ = place_.path() + QStringLiteral("/home/data/quillon");

    void SetUp() override { fs::create_directories(path_ / "bin"); }

    void Install() {
        fs::create_directories(path_ / "share" / "quillon");
        Put(path_ / "share" / "quillon" / "dbase1.txt", "Demo\r\n");
        Put(path_ / "share" / "quillon" / "SkinMain.jpg", std::string("\xFF\xD8\0", 3));
    }
};

}  // namespace

TEST_F(InstalledProgram, KeepsItsFilesBesideItWhereItIsForOneUser) {
    EXPECT_EQ(ProgramFolderPath(executables_, user_), executables_);
    EXPECT_FALSE(fs::exists(user_.toStdString()));
}

TEST_F(InstalledProgram, FillsTheUsersFolderWhereItIsForAll) {
    Install();
    EXPECT_EQ(ProgramFolderPath(executables_, user_), user_);
    const fs::path own = user_.toStdString();
    EXPECT_EQ(BytesOf(own / "dbase1.txt"), "Demo\r\n");
    EXPECT_EQ(BytesOf(own / "SkinMain.jpg"), std::string("\xFF\xD8\0", 3));
}

TEST_F(InstalledProgram, LeavesTheUsersOwnFiles) {
    Install();
    const fs::path own = user_.toStdString();
    fs::create_directories(own);
    Put(own / "DBASE1.TXT", "mine");
    ProgramFolderPath(executables_, user_);
    EXPECT_EQ(BytesOf(own / "DBASE1.TXT"), "mine");
    EXPECT_FALSE(fs::exists(own / "dbase1.txt"));
    EXPECT_TRUE(fs::exists(own / "SkinMain.jpg"));
}

TEST_F(InstalledProgram, FillsTheFolderOfTheHelpPages) {
    Install();
    fs::create_directories(path_ / "share" / "quillon" / "help");
    Put(path_ / "share" / "quillon" / "help" / "help.css", "body {}");
    Put(path_ / "share" / "quillon" / "help" / "Quillon.png", "shared");
    const fs::path own = user_.toStdString();
    fs::create_directories(own / "help");
    Put(own / "help" / "Quillon.png", "mine");
    ProgramFolderPath(executables_, user_);
    EXPECT_EQ(BytesOf(own / "help" / "help.css"), "body {}");
    EXPECT_EQ(BytesOf(own / "help" / "Quillon.png"), "mine");
}

TEST_F(InstalledProgram, RenewsHelpPagesThatNobodyHasChanged) {
    Install();
    const fs::path shared = path_ / "share" / "quillon";
    const fs::path own = user_.toStdString();
    const auto start = [this](const char* version) {
        QCoreApplication::setApplicationVersion(QString::fromLatin1(version));
        ProgramFolderPath(executables_, user_);
        QCoreApplication::setApplicationVersion({});
    };
    fs::create_directories(shared / "help");
    for (const char* page : {"help.html", "helpplay.html", "help/help.css", "help/About.png"}) {
        Put(shared / page, "of the first version");
    }
    start("1");
    Put(own / "helpplay.html", "with a remark of mine");
    Put(own / "help" / "About.png", "a picture of mine");
    for (const char* page : {"help.html", "helpplay.html", "help/help.css", "help/About.png"}) {
        Put(shared / page, "of the second version");
    }
    Put(shared / "dbase1.txt", "Demo of the second version\r\n");
    start("1");
    EXPECT_EQ(BytesOf(own / "help.html"), "of the first version") << "it is the same program";
    for (const char* version : {"2", "3"}) {
        start(version);
        EXPECT_EQ(BytesOf(own / "help.html"), "of the second version");
        EXPECT_EQ(BytesOf(own / "help" / "help.css"), "of the second version");
        EXPECT_EQ(BytesOf(own / "helpplay.html"), "with a remark of mine");
        EXPECT_EQ(BytesOf(own / "help" / "About.png"), "a picture of mine");
        EXPECT_EQ(BytesOf(own / "dbase1.txt"), "Demo\r\n") << "that is no help page";
    }
}

TEST_F(InstalledProgram, LeavesHelpPagesOfWhichNothingIsRemembered) {
    Install();
    const fs::path own = user_.toStdString();
    fs::create_directories(path_ / "share" / "quillon" / "help");
    fs::create_directories(own / "help");
    Put(path_ / "share" / "quillon" / "help.html", "of the program");
    Put(own / "help.html", "of who knows whom");
    ProgramFolderPath(executables_, user_);
    EXPECT_EQ(BytesOf(own / "help.html"), "of who knows whom");
}

TEST_F(InstalledProgram, StartsWhereAHelpPageCannotBeRenewed) {
    Install();
    const fs::path own = user_.toStdString();
    fs::create_directories(path_ / "share" / "quillon" / "help");
    fs::create_directories(own / "help" / "supplied");
    EXPECT_EQ(ProgramFolderPath(executables_, user_), user_);
}

TEST_F(InstalledProgram, NamesTheFolderWhoseBytesAreNoText) {
    const std::string failure = FailureOf([&] { ProgramFolderPath({}, user_); });
    EXPECT_TRUE(failure.starts_with("The program's folder, /")) << failure;
    EXPECT_TRUE(failure.ends_with("has a name that is not written in UTF-8. Give it another one."));
}

TEST_F(InstalledProgram, IsNoneForOneUserBecauseItsFilesCannotBeLookedFor) {
    fs::create_directories(path_ / "share");
    fs::create_symlink("quillon", path_ / "share" / "quillon");
    EXPECT_EQ(FailureOf([&] { ProgramFolderPath(executables_, user_); }),
              (path_ / "share" / "quillon").string() +
                  " could not be looked for: Too many levels of symbolic links.");
    EXPECT_FALSE(fs::exists(user_.toStdString()));
}

TEST_F(InstalledProgram, FailsWhereTheUsersFolderCannotBeMade) {
    Install();
    Put(path_ / "home", "a file");
    EXPECT_EQ(FailureOf([&] { ProgramFolderPath(executables_, user_); }),
              FromQString(user_) + " could not be made; it is to hold your files.");
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/data_files.h"

#include <gtest/gtest.h>

#include "core/failure.h"
#include "core/memory_folder.h"

namespace {

using Files = std::map<std::string, std::string>;

class CopyingDataFiles : public testing::Test {
  protected:
    void Copy() {
        CopyDataFiles(here_, disk_, Replaced::Lost,
                      [this](int count) { counts_.push_back(count); });
    }

    MemoryFolder here_;
    MemoryFolder disk_;
    std::vector<int> counts_;
};

TEST_F(CopyingDataFiles, TakesTextsSettingsMembersTemplatesAndDiaries) {
    const Files files = {{"Notes.txt", "n"},     {"dbase1.txt", "d"},    {"quillon.ini", "i"},
                         {"SMembers.000", "s"},  {"PTemplate.000", "p"}, {"Diary.000", "y"},
                         {"PTemplate.100", "p"}, {"Diary.100", "y"}};
    for (const auto& [name, bytes] : files) here_.Write(name, bytes);
    for (const char* name : {"SMembers.100", "wheel49.dat", "help.html", "SkinMain.jpg",
                             "Diary.1000", "PTemplate.1"}) {
        here_.Write(name, "x");
    }
    Copy();
    EXPECT_EQ(disk_.Snapshot(), files);
    EXPECT_EQ(counts_, (std::vector{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(CopyingDataFiles, GoesByThePatternsInTheirOrder) {
    const std::vector<std::string> inOrder = {"b.txt",        "c.TXT",         "a.ini",
                                              "SMembers.001", "PTemplate.000", "Diary.000"};
    for (const std::string& name : inOrder) here_.Write(name, std::string(10, 'x'));
    for (std::size_t fitting = 0; fitting <= inOrder.size(); ++fitting) {
        MemoryFolder small;
        small.FailAfterBytes(10 * fitting);
        const auto copy = [&] { CopyDataFiles(here_, small, Replaced::Lost, [](int) {}); };
        if (fitting < inOrder.size()) {
            EXPECT_THROW(copy(), Failure);
        } else {
            copy();
        }
        EXPECT_EQ(small.Snapshot().size(), fitting);
        for (std::size_t i = 0; i < fitting; ++i) EXPECT_TRUE(small.Exists(inOrder.at(i)));
    }
}

TEST_F(CopyingDataFiles, KeepsTheirDates) {
    constexpr Date day = std::chrono::March / 4 / 2003;
    here_.Write("Notes.txt", "new");
    here_.SetFileDate("Notes.txt", day);
    disk_.Write("NOTES.TXT", "old");
    Copy();
    EXPECT_EQ(disk_.Snapshot(), (Files{{"NOTES.TXT", "new"}}));
    EXPECT_EQ(disk_.FileDate("Notes.txt"), day);
}

TEST_F(CopyingDataFiles, LeavesOtherFilesOfTheTargetAlone) {
    disk_.Write("holiday.jpg", "h");
    disk_.Write("old.txt", "o");
    here_.Write("Notes.txt", "n");
    Copy();
    EXPECT_EQ(disk_.Snapshot(),
              (Files{{"holiday.jpg", "h"}, {"old.txt", "o"}, {"Notes.txt", "n"}}));
}

TEST_F(CopyingDataFiles, HarmsNothingWhereBothAreTheSame) {
    here_.Write("Notes.txt", "n");
    here_.SetFileDate("Notes.txt", std::chrono::March / 4 / 2003);
    const Files before = here_.Snapshot();
    CopyDataFiles(here_, here_, Replaced::Kept, [](int) {});
    EXPECT_EQ(here_.Snapshot(), before);
    EXPECT_EQ(here_.FileDate("Notes.txt"), std::chrono::March / 4 / 2003);
}

TEST_F(CopyingDataFiles, KeepsWhatIsReplacedByAnotherWhereItIsToldTo) {
    here_.Write("Notes.txt", "mine");
    here_.Write("same.txt", "same");
    disk_.Write("Notes.txt", "other");
    disk_.Write("same.txt", "same");
    disk_.Write("new.txt", "new");
    CopyDataFiles(disk_, here_, Replaced::Kept, [](int) {});
    EXPECT_EQ(here_.Read("Notes.txt"), "other");
    const auto kept = here_.Find("Backup/Undo/*");
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_TRUE(kept.front().ends_with(" Notes.txt"));
    EXPECT_EQ(here_.Read(kept.front()), "mine");
}

TEST_F(CopyingDataFiles, KeepsNothingOfWhatTheDiskLoses) {
    here_.Write("Notes.txt", "mine");
    disk_.Write("Notes.txt", "other");
    Copy();
    EXPECT_EQ(disk_.Snapshot(), (Files{{"Notes.txt", "mine"}}));
}

TEST_F(CopyingDataFiles, StopsAtAFileThatCannotBeRead) {
    here_.Write("a.txt", "a");
    here_.Write("b.txt", "b");
    here_.Write("c.txt", "c");
    here_.Lock("b.txt");
    EXPECT_THROW(Copy(), Failure);
    EXPECT_EQ(disk_.Snapshot(), (Files{{"a.txt", "a"}}));
    EXPECT_EQ(counts_, std::vector{1});
}

}  // namespace

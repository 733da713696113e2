// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/saving.h"

#include <gtest/gtest.h>

#include "tests/core/failures.h"
#include "tests/core/taken_names.h"

namespace {

std::string NoteOf(int number) { return NumberedName("Note", number); }

TEST(SaveAll, DoesEachOfThemWhateverBecomesOfTheOthers) {
    MemoryFolder folder;
    folder.OfferRescue();
    const auto save = [&folder](const char* name) {
        return [&folder, name] { folder.Write(name, name); };
    };
    folder.MakeFolder("a");
    folder.MakeFolder("c");
    EXPECT_EQ(
        FailureOf([&] {
            SaveAll({save("a"), save("b"), save("c")});
        }),
        "a: there is a folder of that name. What was to be written is kept in elsewhere/a.\n\n"
        "c: there is a folder of that name. What was to be written is kept in elsewhere/c.");
    EXPECT_EQ(folder.Read("b"), "b");
    EXPECT_EQ(folder.Rescued().size(), 2U);
}

TEST(SaveAll, SaysNothingWhereAllIsSaved) {
    int saved = 0;
    const auto save = [&saved] { ++saved; };
    EXPECT_EQ(FailureOf([&] { SaveAll({save, save}); }), "no failure");
    EXPECT_EQ(saved, 2);
}

TEST(CreateNumbered, TakesTheFirstNameThatNeitherFileNorFolderBears) {
    MemoryFolder folder;
    folder.Write("note.003", "old");
    folder.MakeFolder("Note.004");
    EXPECT_EQ(CreateNumbered(folder, 3, NoteOf, "new"), "Note.005");
    EXPECT_EQ(folder.Read("Note.005"), "new");
    EXPECT_EQ(folder.Read("Note.003"), "old");
}

TEST(CreateNumbered, LeavesWhatSomebodyElseMakesMeanwhile) {
    MemoryFolder folder;
    TakenNames taken(folder, {"Note.000", "Note.001"});
    EXPECT_EQ(CreateNumbered(taken, 0, NoteOf, "new"), "Note.002");
    EXPECT_EQ(folder.Read("Note.000"), theirs);
    EXPECT_EQ(folder.Read("Note.001"), theirs);
    EXPECT_EQ(folder.Read("Note.002"), "new");
}

TEST(CreateNumbered, RescuesWhatCannotBeWritten) {
    MemoryFolder folder;
    folder.OfferRescue();
    folder.FailAtOperation(0);
    EXPECT_EQ(FailureOf([&] { CreateNumbered(folder, 7, NoteOf, "new"); }),
              "Note.007: the folder was told to fail here. What was to be written is kept in "
              "elsewhere/Note.007.");
    EXPECT_EQ(folder.Rescued().at("Note.007"), "new");
}

TEST(NumberedName, HasThreeDigitsOrMore) {
    EXPECT_EQ(NumberedName("Diary", 0), "Diary.000");
    EXPECT_EQ(NumberedName("Diary", 42), "Diary.042");
    EXPECT_EQ(NumberedName("Diary", 1000), "Diary.1000");
}

TEST(NewLines, AreNotRescuedUnderTheNameOfTheWholeFile) {
    MemoryFolder folder;
    folder.OfferRescue();
    folder.Write("MyLottery.txt", "old\r\n");
    folder.Lock("MyLottery.txt");
    EXPECT_EQ(FailureOf([&] { folder.Append("MyLottery.txt", "new\r\n"); }),
              "MyLottery.txt: the file is locked. What was to be written is kept in "
              "elsewhere/MyLottery.txt (new lines).");
    EXPECT_EQ(folder.Rescued().at("MyLottery.txt (new lines)"), "new\r\n");
}

}  // namespace

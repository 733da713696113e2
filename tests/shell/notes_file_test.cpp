// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/notes_file.h"

#include <gtest/gtest.h>

#include <random>

#include "core/memory_folder.h"
#include "tests/core/failures.h"

namespace {

Notes NotesAtFirst() {
    Notes notes;
    const char* captions[] = {"Analyse lottery draws", "Generate lottery entries",
                              "Fill in payslips",      "Buy lottery tickets",
                              "Check results",         "Collect winnings!"};
    for (std::size_t item = 0; item < 6; ++item) notes.checklist.at(item).caption = captions[item];
    return notes;
}

std::string Items(int count) {
    std::string items;
    for (int item = 0; item < count; ++item) items += " 1 ,item\r\n";
    return items;
}

Notes NotesIn(const std::string& content) {
    MemoryFolder folder;
    folder.Write("Notes.txt", content);
    return ReadNotes(folder);
}

Notes Restarted(const Notes& notes) {
    MemoryFolder folder;
    SaveNotes(folder, notes);
    return ReadNotes(folder);
}

}  // namespace

TEST(NotesFile, HasEightItemsAndTheNoteAsItStands) {
    MemoryFolder folder;
    Notes notes = NotesAtFirst();
    notes.checklist[1].ticked = true;
    notes.note = "first\r\nsecond";
    SaveNotes(folder, notes);
    EXPECT_EQ(
        folder.Read("Notes.txt"),
        " 0 ,Analyse lottery draws\r\n 1 ,Generate lottery entries\r\n 0 ,Fill in payslips\r\n"
        " 0 ,Buy lottery tickets\r\n 0 ,Check results\r\n 0 ,Collect winnings!\r\n 0 ,\r\n"
        " 0 ,\r\nfirst\r\nsecond");
}

TEST(NotesFile, KeepsTicksAndCaptionsOverARestart) {
    Notes notes = NotesAtFirst();
    notes.checklist[0].ticked = true;
    notes.checklist[7] = {true, "\"Lotto\" on Friday"};
    notes.checklist[3].caption.clear();
    notes.checklist[6] = {true, ""};
    EXPECT_EQ(Restarted(notes), notes);
}

TEST(NotesFile, KeepsTheNoteOverARestartWhateverLineEndsItHas) {
    Notes notes;
    for (const char* note :
         {"", "one line", "two\r\nlines", "\r\n\r\n", " blank, comma \"quote\" \r\n"}) {
        notes.note = note;
        EXPECT_EQ(Restarted(notes), notes);
    }
}

TEST(NotesFile, WithTheChecklistAloneHasAnEmptyNote) {
    EXPECT_EQ(NotesIn(Items(8)).note, "");
    EXPECT_EQ(NotesIn(Items(7) + " 0 ,last").note, "");
}

TEST(NotesFile, JoinsTheLinesOfTheNoteWithCarriageReturnAndLineFeed) {
    EXPECT_EQ(NotesIn(Items(8) + "a\nb\rc\r\nd\n\r").note, "a\r\nb\r\nc\r\nd\r\n\r\n");
}

TEST(NotesFile, ReadsBareLineFeeds) {
    EXPECT_EQ(NotesIn(" 1 ,a\n0,b\n0,\n0,\n0,\n0,\n0,\n0,h\nnote").checklist[1].caption, "b");
    EXPECT_EQ(NotesIn(" 1 ,a\n0,b\n0,\n0,\n0,\n0,\n0,\n0,h\nnote").note, "note");
}

TEST(NotesFile, CutsACaptionAtItsCommaAndTakesTheRestForTheNextItem) {
    Notes notes;
    for (ChecklistItem& item : notes.checklist) item = {true, "item"};
    notes.checklist[0].caption = "Buy, then check";
    const Notes read = Restarted(notes);
    EXPECT_EQ(read.checklist[0], (ChecklistItem{true, "Buy"}));
    EXPECT_EQ(read.checklist[1], (ChecklistItem{false, "1"}));
    EXPECT_EQ(read.checklist[2], (ChecklistItem{false, "1"}));
    EXPECT_EQ(read.note, "item\r\n");
}

TEST(NotesFile, TakesAValueThatIsNoNumberForNoTick) {
    EXPECT_FALSE(NotesIn("yes,item\r\n" + Items(7)).checklist[0].ticked);
}

TEST(NotesFile, FailsWithSevenItems) {
    MemoryFolder folder;
    folder.Write("Notes.txt", Items(7));
    const auto before = folder.Snapshot();
    EXPECT_EQ(
        FailureOf([&] { ReadNotes(folder); }),
        "Notes.txt, line 8: expected the tick of a checklist item (0 or 1), but the file ends "
        "there.");
    EXPECT_EQ(folder.Snapshot(), before);
}

TEST(NotesFile, FailsWithoutTheLastCaption) {
    EXPECT_EQ(
        FailureOf([] { NotesIn(Items(7) + " 1"); }),
        "Notes.txt, line 8: expected the caption of a checklist item, but the file ends there.");
}

TEST(NotesFile, FailsWhereItIsEmpty) { EXPECT_THROW(NotesIn(""), Failure); }

TEST(NotesFile, FailsWhereItIsMissing) { EXPECT_THROW(ReadNotes(MemoryFolder()), Failure); }

TEST(NotesFile, FailsOrReadsButNeverElse) {
    std::mt19937 random(3);
    for (int file = 0; file < 2000; ++file) {
        std::string content = Items(8) + "note";
        for (unsigned change = 0; change <= random() % 5; ++change) {
            content[random() % content.size()] = static_cast<char>(random());
        }
        content.resize(random() % (content.size() + 1));
        const std::string failure = FailureOf([&] { NotesIn(content); });
        EXPECT_TRUE(failure == "no failure" || failure.starts_with("Notes.txt, line ")) << failure;
    }
}

TEST(NotesFile, IsKeptBeforeALineOfItIsLost) {
    MemoryFolder folder;
    Notes notes = NotesAtFirst();
    notes.note = "one\r\ntwo";
    SaveNotes(folder, notes);
    const std::string before = folder.Read("Notes.txt");
    notes.note = "one\r\ntwo\r\nthree";
    SaveNotes(folder, notes);
    EXPECT_TRUE(folder.OldFiles().empty());
    SaveNotes(folder, NotesAtFirst());
    ASSERT_EQ(folder.OldFiles().size(), 1U);
    EXPECT_EQ(folder.OldFiles().begin()->second, before + "\r\nthree");
}

TEST(NotesFile, IsNotTouchedByAFailingWriteAtAnyByte) {
    MemoryFolder folder;
    SaveNotes(folder, NotesAtFirst());
    const auto before = folder.Snapshot();
    Notes notes = NotesAtFirst();
    notes.note = "new";
    for (std::size_t bytes = 0; bytes < before.at("Notes.txt").size() + 3; ++bytes) {
        folder.FailAfterBytes(bytes);
        ASSERT_THROW(SaveNotes(folder, notes), Failure) << bytes;
        ASSERT_EQ(folder.Snapshot(), before) << bytes;
    }
    folder.FailAfterBytes(before.at("Notes.txt").size() + 3);
    SaveNotes(folder, notes);
    EXPECT_EQ(ReadNotes(folder), notes);
}

TEST(NotesFile, IsNotTouchedByAFailureAtAnyOperation) {
    MemoryFolder folder;
    SaveNotes(folder, NotesAtFirst());
    const auto before = folder.Snapshot();
    folder.FailAtOperation(0);
    EXPECT_THROW(SaveNotes(folder, Notes()), Failure);
    EXPECT_EQ(folder.Snapshot(), before);
}

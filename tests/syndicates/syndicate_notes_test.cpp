// SPDX-License-Identifier: GPL-3.0-or-later
#include "syndicates/syndicate_notes.h"

#include <gtest/gtest.h>

#include "core/memory_folder.h"
#include "tests/core/failures.h"

namespace {

class SyndicateNotes : public testing::Test {
  protected:
    void Write(const std::string& note, const std::string& first = " 0 ,") {
        std::string content = first + "\r\n";
        for (int item = 1; item < 8; ++item) content += " 0 ,\r\n";
        folder_.Write(syndicateNotesFile, content + note);
    }

    Notes Read() { return ReadSyndicateNotes(folder_); }

    std::string File() { return folder_.Read(syndicateNotesFile); }

    MemoryFolder folder_;
};

TEST_F(SyndicateNotes, AreEightLinesAndTheNote) {
    Notes notes;
    notes.checklist[0] = {.ticked = true, .caption = "Buy tickets"};
    notes.note = "one\r\ntwo";
    SaveSyndicateNotes(folder_, notes);
    EXPECT_EQ(File(),
              " 1 ,Buy tickets\r\n 0 ,\r\n 0 ,\r\n 0 ,\r\n 0 ,\r\n 0 ,\r\n 0 ,\r\n 0 ,\r\n"
              "one\r\ntwo");
    EXPECT_EQ(Read(), notes);
}

TEST_F(SyndicateNotes, KeepCommasBlanksAndQuotesOfAnItem) {
    Write("", R"( 1 , a, "b" & c, )");
    EXPECT_EQ(Read().checklist[0].caption, R"( a, "b" & c, )");
    EXPECT_TRUE(Read().checklist[0].ticked);
    SaveSyndicateNotes(folder_, Read());
    EXPECT_TRUE(File().starts_with(" 1 , a, \"b\" & c, \r\n"));
}

TEST_F(SyndicateNotes, WithoutANoteAreEightLines) {
    Write("");
    EXPECT_EQ(Read().note, "");
    SaveSyndicateNotes(folder_, Notes());
    const std::string content = File();
    EXPECT_EQ(std::count(content.begin(), content.end(), '\n'), 8);
    EXPECT_TRUE(content.ends_with(" 0 ,\r\n"));
}

TEST_F(SyndicateNotes, KeepTheLineEndsOfTheNote) {
    for (const char* note : {"one\r\n\r\ntwo\r\n", "\r\n", "one, \"two\"", "\r\n\r\nlast"}) {
        Write(note);
        EXPECT_EQ(Read().note, note);
    }
    Write("one\ntwo\r");
    EXPECT_EQ(Read().note, "one\r\ntwo\r\n");
}

TEST_F(SyndicateNotes, CutShortAreAFailure) {
    folder_.Write(syndicateNotesFile, " 0 ,one\r\n 1 ,two\r\n");
    EXPECT_EQ(FailureOf([this] { Read(); }),
              "SNotes.txt, line 3: expected the tick of a checklist item (0 or 1), but the file "
              "ends there.");
}

}  // namespace

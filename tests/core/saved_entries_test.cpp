// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/saved_entries.h"

#include <gtest/gtest.h>

#include "core/failure.h"
#include "core/field_reader.h"
#include "core/memory_folder.h"

namespace {

const SavedEntry lottoEntry = {"25-Nov-2026", "3", "14", "15",       "26",  "35",
                               "44",          "",  "",   "UK Lotto", "Ann", "dbase100.txt"};

}  // namespace

TEST(SavedEntryRecord, HasTwelveFieldsAndALineEnd) {
    EXPECT_EQ(SavedEntryRecord(lottoEntry),
              "25-Nov-2026,3,14,15,26,35,44,,,UK Lotto,Ann,dbase100.txt\r\n");
    EXPECT_EQ(SavedEntryRecord({}), ",,,,,,,,,,,\r\n");
}

TEST(SavedEntryRecord, WritesACommaInANameAsItStands) {
    SavedEntry entry = lottoEntry;
    entry[10] = "Ann, Bob";
    EXPECT_EQ(SavedEntryRecord(entry),
              "25-Nov-2026,3,14,15,26,35,44,,,UK Lotto,Ann, Bob,dbase100.txt\r\n");
}

TEST(SavedEntriesFile, IsNotTouchedByAFailingWriteAtAnyByte) {
    MemoryFolder folder;
    const std::string record = SavedEntryRecord(lottoEntry);
    AppendEntries(folder, {lottoEntry});
    const auto before = folder.Snapshot();
    for (std::size_t bytes = 0; bytes < 2 * record.size(); ++bytes) {
        folder.FailAfterBytes(bytes);
        ASSERT_THROW(AppendEntries(folder, {lottoEntry}), Failure) << bytes;
        ASSERT_EQ(folder.Snapshot(), before) << bytes;
    }
    folder.FailAfterBytes(2 * record.size());
    AppendEntries(folder, {lottoEntry});
    EXPECT_EQ(folder.Read("MyLottery.txt"), record + record);
}

TEST(SavedEntriesFile, IsNotTouchedByAFailureAtAnyOperation) {
    MemoryFolder folder;
    AppendEntries(folder, {lottoEntry});
    const auto before = folder.Snapshot();
    folder.FailAtOperation(0);
    EXPECT_THROW(AppendEntries(folder, {lottoEntry}), Failure);
    EXPECT_THROW(WriteEntries(folder, {lottoEntry}), Failure);
    EXPECT_EQ(folder.Snapshot(), before);
}

TEST(SavedEntriesFile, GetsNewEntriesBehindTheOldOnes) {
    MemoryFolder folder;
    folder.Write("MyLottery.txt", "old\r\n");
    AppendEntries(folder, {lottoEntry, {}});
    EXPECT_EQ(folder.Read("MyLottery.txt"),
              "old\r\n" + SavedEntryRecord(lottoEntry) + ",,,,,,,,,,,\r\n");
}

TEST(SavedEntriesFile, ComesIntoBeingEvenForNoEntries) {
    MemoryFolder folder;
    AppendEntries(folder, {});
    EXPECT_EQ(folder.Read("MyLottery.txt"), "");
}

TEST(SavedEntriesFile, IsReplacedByTheEntriesThatAreWritten) {
    MemoryFolder folder;
    folder.Write("MyLottery.txt", "old\r\n");
    WriteEntries(folder, {lottoEntry});
    EXPECT_EQ(folder.Read("MyLottery.txt"), SavedEntryRecord(lottoEntry));
}

TEST(SavedEntriesFile, IsReadAsItWasWritten) {
    const std::string record = SavedEntryRecord(lottoEntry);
    FieldReader reader(record, "MyLottery.txt");
    SavedEntry read;
    ReadEntry(reader, read.data());
    EXPECT_EQ(read, lottoEntry);
    EXPECT_TRUE(reader.AtEnd());
}

TEST(SavedEntriesFile, IsReadAsFarAsAnEntryIsAskedFor) {
    const std::string record = SavedEntryRecord(lottoEntry);
    FieldReader reader(record, "MyLottery.txt");
    SavedEntry read;
    ReadEntry(reader, read.data(), 10);
    EXPECT_EQ(read[9], "UK Lotto");
    EXPECT_EQ(read[10], "");
    EXPECT_EQ(reader.ReadLine("the rest of an entry"), "Ann,dbase100.txt");
}

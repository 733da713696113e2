// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/saved_entries.h"

#include <gtest/gtest.h>

#include "core/failure.h"
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
    folder.Append("MyLottery.txt", record);
    const auto before = folder.Snapshot();
    for (std::size_t bytes = 0; bytes < 2 * record.size(); ++bytes) {
        folder.FailAfterBytes(bytes);
        ASSERT_THROW(folder.Append("MyLottery.txt", record), Failure) << bytes;
        ASSERT_EQ(folder.Snapshot(), before) << bytes;
    }
    folder.FailAfterBytes(2 * record.size());
    folder.Append("MyLottery.txt", record);
    EXPECT_EQ(folder.Read("MyLottery.txt"), record + record);
}

TEST(SavedEntriesFile, IsNotTouchedByAFailureAtAnyOperation) {
    MemoryFolder folder;
    folder.Append("MyLottery.txt", SavedEntryRecord(lottoEntry));
    const auto before = folder.Snapshot();
    folder.FailAtOperation(0);
    EXPECT_THROW(folder.Append("MyLottery.txt", SavedEntryRecord(lottoEntry)), Failure);
    EXPECT_EQ(folder.Snapshot(), before);
}

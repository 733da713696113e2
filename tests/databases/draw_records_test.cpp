// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/draw_records.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "core/memory_folder.h"
#include "tests/core/failures.h"
#include "tests/support/real_histories.h"

namespace {

using std::chrono::year;

const std::string heading = "Lotto\r\nhttp://one.example\r\n6,49,0,0,1\r\n";
const std::string may28 = "28 May 05,3,17,22,34,41,48,0,9\r\n";
const std::string may25 = "25-May-2005,1,2,13,24,35,46,0,7\r\n";
const std::string may21 = "21 May 05,8,9,10,11,12,13,,\r\n";
const std::string newNumbers = ",1,2,3,4,5,6,,7";

class DrawRecords : public testing::Test {
  protected:
    DrawRecords() {
        state.DbaseFile = "dbase1.txt";
        folder.Write("dbase1.txt", heading + may28 + may25 + may21);
    }

    static DrawRecord Draw(Date date) {
        return MakeDrawRecord(date, {"1", "2", "3", "4", "5", "6", "", "7"});
    }

    void Insert(Date date) { InsertDraw(state, folder, Draw(date), rules); }
    void Update(int draw, Date date) { UpdateDraw(state, folder, draw, Draw(date), rules); }

    std::string Database() const { return folder.Read("dbase1.txt"); }
    std::string Work() const { return folder.Read("temp.txt"); }

    /// Runs the edit with a disk that fails at each operation and at each byte: the database is
    /// always the old or the new one, and the other files are what they were.
    void ExpectNothingLost(const std::function<void()>& edit) {
        folder.Write("MyLottery.txt", "mine");
        const std::map<std::string, std::string> before = folder.Snapshot();
        edit();
        const std::string done = Database();
        bool failed = true;
        for (std::size_t at = 0; failed; ++at) {
            for (const bool bytes : {false, true}) {
                for (const auto& [name, text] : before) folder.Write(name, text);
                if (bytes) folder.FailAfterBytes(at);
                if (!bytes) folder.FailAtOperation(at);
                const bool thrown = FailureOf(edit) != "no failure";
                folder.FailAfterBytes({});
                folder.FailAtOperation({});
                if (bytes) failed = thrown;
                EXPECT_EQ(folder.Read("MyLottery.txt"), "mine");
                EXPECT_TRUE(Database() == before.at("dbase1.txt") || Database() == done) << at;
                EXPECT_TRUE(thrown || Database() == done) << at;
            }
        }
    }

    State state;
    MemoryFolder folder;
    DateRules rules{.region = {}, .today = year(2005) / 6 / 1};
};

TEST_F(DrawRecords, ARecordIsTheDateAndEightFieldsAsTheyStand) {
    const DrawRecord record =
        MakeDrawRecord(year(1994) / 11 / 19, {"30", " 3", "5", "44", "14", "22", "", ""});
    EXPECT_EQ(record.text, "19 Nov 94,30, 3,5,44,14,22,,");
}

TEST_F(DrawRecords, ADrawLaterThanAllBecomesTheFirst) {
    Insert(year(2005) / 6 / 1);
    EXPECT_EQ(Database(), heading + "01 Jun 05" + newNumbers + "\r\n" + may28 + may25 + may21);
}

TEST_F(DrawRecords, ADrawBetweenTwoGoesBetweenThem) {
    Insert(year(2005) / 5 / 26);
    EXPECT_EQ(Database(), heading + may28 + "26 May 05" + newNumbers + "\r\n" + may25 + may21);
}

TEST_F(DrawRecords, ADrawOfAStoredDateGoesJustInFrontOfIt) {
    Insert(year(2005) / 5 / 25);
    EXPECT_EQ(Database(), heading + may28 + "25 May 05" + newNumbers + "\r\n" + may25 + may21);
}

TEST_F(DrawRecords, ADrawOfTheOldestDateGoesJustInFrontOfIt) {
    Insert(year(2005) / 5 / 21);
    EXPECT_EQ(Database(), heading + may28 + may25 + "21 May 05" + newNumbers + "\r\n" + may21);
}

TEST_F(DrawRecords, ADrawEarlierThanAllBecomesTheLast) {
    Insert(year(2005) / 5 / 1);
    EXPECT_EQ(Database(), heading + may28 + may25 + may21 + "01 May 05" + newNumbers + "\r\n");
}

TEST_F(DrawRecords, ADatabaseOfOneDrawTakesDrawsOnBothSides) {
    folder.Write("dbase1.txt", heading + may25);
    Insert(year(2005) / 5 / 28);
    Insert(year(2005) / 5 / 21);
    EXPECT_EQ(Database(), heading + "28 May 05" + newNumbers + "\r\n" + may25 + "21 May 05" +
                              newNumbers + "\r\n");
}

TEST_F(DrawRecords, InsertingLeavesTheOldDatabaseAsTheWorkFile) {
    folder.Write("Temp.txt", "older work");
    const std::string before = Database();
    Insert(year(2005) / 6 / 1);
    EXPECT_EQ(Work(), before);
    EXPECT_EQ(folder.Snapshot().size(), 2U);
}

TEST_F(DrawRecords, TheOldDatabaseIsKeptBeforeADrawIsChangedOrDeletedAndNotBeforeOneIsAdded) {
    Insert(year(2005) / 6 / 1);
    EXPECT_TRUE(folder.OldFiles().empty());
    const std::string first = Database();
    DeleteDraw(state, folder, 1);
    const std::string second = Database();
    Update(1, year(2005) / 6 / 2);
    EXPECT_EQ(folder.OldFiles(), (std::map<std::string, std::string>{
                                     {"Backup/Undo/2000-01-01 000000 dbase1.txt", first},
                                     {"Backup/Undo/2000-01-01 000000-002 dbase1.txt", second}}));
}

TEST_F(DrawRecords, ADrawThatCannotBeStoredIsRescued) {
    const std::string line = "01 Jun 05" + newNumbers + "\r\n";
    for (const bool isNew : {true, false}) {
        for (std::size_t operation = 0;; ++operation) {
            SCOPED_TRACE(std::to_string(operation) + (isNew ? " of a new draw" : " of an old one"));
            MemoryFolder disk;
            disk.OfferRescue();
            disk.Write("dbase1.txt", Database());
            disk.FailAtOperation(operation);
            const std::string failure = FailureOf([&] {
                const DrawRecord draw = Draw(year(2005) / 6 / 1);
                if (isNew) InsertDraw(state, disk, draw, rules);
                if (!isNew) UpdateDraw(state, disk, 1, draw, rules);
            });
            if (failure == "no failure") break;
            const bool wholeFile = failure.ends_with("is kept in elsewhere/dbase1.txt.");
            const std::string name = wholeFile ? "dbase1.txt" : "dbase1.txt (new lines)";
            EXPECT_TRUE(failure.ends_with("is kept in elsewhere/" + name + ".")) << failure;
            ASSERT_EQ(disk.Rescued().count(name), 1U) << failure;
            const std::string& rescued = disk.Rescued().at(name);
            EXPECT_NE(rescued.find(line), std::string::npos) << failure;
            EXPECT_EQ(rescued == line, !wholeFile);
        }
    }
}

TEST_F(DrawRecords, ADrawIsRescuedWhereTheDatabaseHasADateThatCannotBeRead) {
    folder.OfferRescue();
    folder.Write("dbase1.txt", heading + may28 + "someday,1,2,3,4,5,6,0,7\r\n" + may21);
    FailureOf([&] { Insert(year(2005) / 5 / 1); });
    EXPECT_EQ(folder.Rescued().at("dbase1.txt (new lines)"), "01 May 05" + newNumbers + "\r\n");
}

TEST_F(DrawRecords, LinesThatEndInALineFeedAreWrittenWithBoth) {
    folder.Write("dbase1.txt", "Lotto\n\n6,49,0,0,1\n28 May 05,1,2,3,4,5,6,0,9\n21 May 05,x\n");
    Insert(year(2005) / 5 / 25);
    EXPECT_EQ(Database(), "Lotto\r\n\r\n6,49,0,0,1\r\n28 May 05,1,2,3,4,5,6,0,9\r\n25 May 05" +
                              newNumbers + "\r\n21 May 05,x\r\n");
}

TEST_F(DrawRecords, ADateThatCannotBeReadEndsTheRunWithTheDatabaseUntouched) {
    const std::string broken = heading + may28 + "someday,1,2,3,4,5,6,0,7\r\n" + may21;
    folder.Write("dbase1.txt", broken);
    EXPECT_EQ(FailureOf([&] { Insert(year(2005) / 5 / 1); }),
              "dbase1.txt, line 5: expected the date of a draw such as \"19 Nov 94\", but "
              "\"someday\" stands there.");
    EXPECT_EQ(Database(), broken);
    EXPECT_EQ(Work(), broken);
}

TEST_F(DrawRecords, ADateThatCannotBeReadDoesNoHarmBehindTheNewDraw) {
    const std::string rest = may28 + "someday,1,2,3,4,5,6,0,7\r\n";
    folder.Write("dbase1.txt", heading + rest);
    Insert(year(2005) / 6 / 1);
    EXPECT_EQ(Database(), heading + "01 Jun 05" + newNumbers + "\r\n" + rest);
}

TEST_F(DrawRecords, ADatabaseThatHasLostItsDrawsIsEmptiedAndEndsTheRun) {
    folder.Write("dbase1.txt", heading);
    EXPECT_EQ(FailureOf([&] { Insert(year(2005) / 6 / 1); }),
              "dbase1.txt, line 4: expected the date of a draw, but the file ends there.");
    EXPECT_EQ(Database(), "");
    EXPECT_EQ(Work(), heading);
}

TEST_F(DrawRecords, AFailingDiskLosesNoDrawWhileInserting) {
    ExpectNothingLost([this] { Insert(year(2005) / 5 / 26); });
}

TEST_F(DrawRecords, DeletingTakesTheLineOfThatNumberAway) {
    const std::string before = Database();
    DeleteDraw(state, folder, 2);
    EXPECT_EQ(Database(), heading + may28 + may21);
    EXPECT_EQ(Work(), before);
    DeleteDraw(state, folder, 1);
    EXPECT_EQ(Database(), heading + may21);
}

TEST_F(DrawRecords, AFailingDiskLosesNoDrawWhileDeleting) {
    ExpectNothingLost([this] { DeleteDraw(state, folder, 3); });
}

TEST_F(DrawRecords, AnUpdateOfTheNumbersKeepsThePlace) {
    Update(2, year(2005) / 5 / 25);
    EXPECT_EQ(Database(), heading + may28 + "25 May 05" + newNumbers + "\r\n" + may21);
    EXPECT_EQ(Work(), heading + may28 + may21);
}

TEST_F(DrawRecords, AnUpdateOfTheDateMovesTheDrawToItsPlace) {
    Update(3, year(2005) / 6 / 1);
    EXPECT_EQ(Database(), heading + "01 Jun 05" + newNumbers + "\r\n" + may28 + may25);
    Update(1, year(2005) / 5 / 1);
    EXPECT_EQ(Database(), heading + may28 + may25 + "01 May 05" + newNumbers + "\r\n");
}

TEST_F(DrawRecords, AnUpdateToAStoredDateGoesJustInFrontOfIt) {
    Update(1, year(2005) / 5 / 21);
    EXPECT_EQ(Database(), heading + may25 + "21 May 05" + newNumbers + "\r\n" + may21);
}

TEST_F(DrawRecords, TheOnlyDrawIsUpdatedInPlace) {
    folder.Write("dbase1.txt", heading + may25);
    Update(1, year(2005) / 6 / 1);
    EXPECT_EQ(Database(), heading + "01 Jun 05" + newNumbers + "\r\n");
    EXPECT_EQ(Work(), Database());
}

TEST_F(DrawRecords, AnUpdateThatMeetsAnUnreadableDateLeavesTheDatabaseUntouched) {
    const std::string broken = heading + may28 + may25 + "someday,1,2,3,4,5,6,0,7\r\n";
    folder.Write("dbase1.txt", broken);
    EXPECT_EQ(FailureOf([&] { Update(1, year(2005) / 5 / 1); }),
              "temp.txt, a copy of dbase1.txt, line 5: expected the date of a draw such as "
              "\"19 Nov 94\", but \"someday\" stands there.");
    EXPECT_EQ(Database(), broken);
}

TEST_F(DrawRecords, AFailingDiskLosesNoDrawWhileUpdating) {
    ExpectNothingLost([this] { Update(1, year(2005) / 5 / 1); });
    folder.Write("dbase1.txt", heading + may25);
    ExpectNothingLost([this] { Update(1, year(2005) / 5 / 1); });
}

TEST_F(DrawRecords, TheNewestDrawTellsItsDateAndWhichColumnsItFills) {
    const NewestDraw newest = ReadNewestDraw(state, folder);
    EXPECT_EQ(newest.date, "28 May 05");
    EXPECT_EQ(newest.filled,
              (std::array<bool, 8>{true, true, true, true, true, true, false, true}));
}

TEST_F(DrawRecords, ADatabaseWithoutDrawsHasNoNewestDraw) {
    folder.Write("dbase1.txt", heading);
    EXPECT_EQ(FailureOf([&] { ReadNewestDraw(state, folder); }),
              "dbase1.txt, line 4: expected the date of a draw, but the file ends there.");
}

TEST_F(DrawRecords, DatesAreToldAsStored) {
    EXPECT_EQ(StoredDates(state, folder),
              (std::vector<std::string>{"28 May 05", "25-May-2005", "21 May 05"}));
    folder.Write("dbase1.txt", heading);
    EXPECT_TRUE(StoredDates(state, folder).empty());
}

TEST(TheNumbersOfADraw, AreReadOutWithTheLastBehindItsTitle) {
    EXPECT_EQ(NumbersInWords("28 May 05,3,17,22,34,41,48,0,9", "Bonus"),
              "3, 17, 22, 34, 41, 48, Bonus 9");
    EXPECT_EQ(NumbersInWords("28 May 05,3,17,22,34,41,48,,9", ""), "3, 17, 22, 34, 41, 48");
    EXPECT_EQ(NumbersInWords("28 May 05,3,17,22,34,41,48,,", "Bonus"), "3, 17, 22, 34, 41, 48");
    EXPECT_EQ(NumbersInWords("28 May 05,007, 2", "Bonus"), "7, 2");
    EXPECT_EQ(NumbersInWords("", "Bonus"), "");
}

TEST_F(DrawRecords, RealHistoriesComeBackByteForByteWhenADrawHasGoneAndReturned) {
    if (!AddRealHistories(folder)) GTEST_SKIP() << "no real histories on this machine";
    rules.today = year(2026) / 8 / 1;
    for (const char* file : {"dbase100.txt", "dbase101.txt", "dbase2.txt"}) {
        state.DbaseFile = file;
        const std::string before = folder.Read(file);
        const std::vector<std::string> dates = StoredDates(state, folder);
        for (const int draw : {1, 2, 400, static_cast<int>(dates.size())}) {
            const auto stored =
                ReadDate(dates.at(static_cast<std::size_t>(draw - 1)), {}, rules.today);
            std::size_t start = 0;
            for (int line = 1; line < draw + 3; ++line) start = before.find('\n', start) + 1;
            const std::string record = before.substr(start, before.find('\r', start) - start);
            DeleteDraw(state, folder, draw);
            EXPECT_EQ(folder.Read(file).size(), before.size() - record.size() - 2);
            InsertDraw(state, folder, {.date = stored.value(), .text = record}, rules);
            EXPECT_TRUE(folder.Read(file) == before) << file << ", draw " << draw;
        }
    }
}

}  // namespace

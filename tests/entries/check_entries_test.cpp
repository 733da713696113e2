// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/check_entries.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <sstream>

#include "core/memory_folder.h"
#include "test_folders.h"
#include "tests/core/failures.h"
#include "tests/core/regions.h"
#include "tests/support/real_histories.h"
#include "tests/support/sample_lotteries.h"

namespace {

const Date today = std::chrono::June / 1 / 2005;
const Region region = EnglishRegion();

SavedEntry Entry(const std::string& date, const std::vector<int>& numbers, const std::string& file,
                 const std::string& extraBall = "") {
    SavedEntry entry;
    entry[0] = date;
    for (std::size_t i = 0; i < numbers.size(); ++i) entry[i + 1] = std::to_string(numbers[i]);
    entry[8] = extraBall;
    entry[9] = "a lottery";
    entry[11] = file;
    return entry;
}

/// Counts that are not 0, by index.
std::map<int, int> Filled(const MatchCounts& counts) {
    std::map<int, int> filled;
    for (int index = 0; index <= 20; ++index) {
        if (counts(index) != 0) filled[index] = counts(index);
    }
    return filled;
}

/// The marks of columns 1 to 8: "." none, "w" white, "y" yellow, "r" light red.
std::string Marks(const EntryMatch& match) {
    std::string text;
    for (std::size_t column = 1; column <= 8; ++column) {
        text += ".wyr"[static_cast<std::size_t>(match.marks[column])];
    }
    return text;
}

class CheckingEntries : public testing::Test {
  protected:
    using Counted = std::map<int, int>;

    CheckingEntries() {
        AddUkLotto(folder);
        AddThunderball(folder);
        AddLottery(folder, "dbase102.txt", "UK Daily Play", "7,27,0,0,0",
                   {"28 May 05,1,2,3,4,5,6,7,0"});
        AddLottery(folder, "dbase104.txt", "UK Lotto Hot Picks", "4,49,0,0,0",
                   {"28 May 05,3,17,22,34,41,48,0,9"});
    }

    std::optional<EntryMatch> Check(const SavedEntry& entry, int row = 1) {
        return check.Check(entry, row);
    }

    std::string FailureAt(const SavedEntry& entry, int row = 1) {
        return FailureOf([&] { Check(entry, row); });
    }

    const std::unique_ptr<State> ownState = std::make_unique<State>();
    State& state = *ownState;
    MemoryFolder folder;
    EntryCheck check{state, folder, region, today};
};

TEST_F(CheckingEntries, PaintsEachNumberOfTheDrawAndCountsThem) {
    const auto match = Check(Entry("28 May 05", {3, 18, 22, 35, 41, 49}, "dbase100.txt"));
    ASSERT_TRUE(match);
    EXPECT_EQ(Marks(*match), "ywywyw.w");
    EXPECT_EQ(Filled(check.Counts()), (Counted{{3, 1}}));
}

TEST_F(CheckingEntries, CountsABonusBallBesideTheMainNumbers) {
    AddLottery(folder, "dbase1.txt", "Bonus", "6,49,0,0,1", {"28 May 05,1,2,3,10,11,12,0,4"});
    const auto match = Check(Entry("28 May 05", {1, 2, 3, 4, 5, 6}, "dbase1.txt"));
    EXPECT_EQ(Marks(*match), "yyyrww.w");
    EXPECT_EQ(Filled(check.Counts()), (Counted{{13, 1}}));
}

TEST_F(CheckingEntries, TakesABonusBelowZeroForNone) {
    AddLottery(folder, "dbase1.txt", "None", "6,49,0,0,-1", {"28 May 05,1,2,3,10,11,12,0,4"});
    const auto match = Check(Entry("28 May 05", {1, 2, 3, 4, 5, 6}, "dbase1.txt"));
    EXPECT_EQ(Marks(*match), "yyywww.w");
    EXPECT_EQ(Filled(check.Counts()), (Counted{{3, 1}}));
}

TEST_F(CheckingEntries, CountsAnExtraBallOnItsOwn) {
    const auto match = Check(Entry("28 May 05", {1, 2, 3, 5, 6}, "dbase101.txt", "6"));
    EXPECT_EQ(Marks(*match), "wwwww..r");
    EXPECT_EQ(Filled(check.Counts()), (Counted{{10, 1}}));
}

TEST_F(CheckingEntries, TakesAnEmptyExtraBallForAMatchWhereNoneIsDrawn) {
    const auto match = Check(Entry("28 May 05", {1, 2, 3, 4, 15, 16, 17}, "dbase102.txt"));
    EXPECT_EQ(Marks(*match), "yyyywwwr");
    EXPECT_EQ(Filled(check.Counts()), (Counted{{14, 1}}));
}

TEST_F(CheckingEntries, ComparesFourOfTheSixNumbersInHotPicks) {
    const auto match = Check(Entry("28 May 05", {3, 34, 41, 48}, "dbase104.txt", "9"));
    EXPECT_EQ(Marks(*match), "yyww...r");
    EXPECT_EQ(Filled(check.Counts()), (Counted{{12, 1}}));
}

TEST_F(CheckingEntries, LeavesOutAnEntryWhoseDrawIsStillToCome) {
    EXPECT_FALSE(Check(Entry("01 Jun 05", {3, 17, 22, 34, 41, 48}, "dbase100.txt")));
    EXPECT_EQ(Filled(check.Counts()), Counted());
}

TEST_F(CheckingEntries, LeavesOutAnEntryOlderThanEveryDraw) {
    EXPECT_FALSE(Check(Entry("24 May 05", {3, 17, 22, 34, 41, 48}, "dbase100.txt")));
    EXPECT_EQ(Filled(check.Counts()), Counted());
}

TEST_F(CheckingEntries, ReadsDatesInEveryForm) {
    EXPECT_TRUE(Check(Entry("25-May-2005", {}, "dbase100.txt")));
    EXPECT_TRUE(Check(Entry("25/05/2005", {}, "dbase100.txt")));
}

TEST_F(CheckingEntries, StopsAtTheFirstOlderDrawThoughAMatchingOneStandsBehindIt) {
    AddLottery(
        folder, "dbase1.txt", "Disorder", "1,9,0,0,1",
        {"28 May 05,1,0,0,0,0,0,0,9", "01 May 05,2,0,0,0,0,0,0,9", "14 May 05,3,0,0,0,0,0,0,9"});
    EXPECT_FALSE(Check(Entry("14 May 05", {3}, "dbase1.txt")));
    EXPECT_TRUE(Check(Entry("01 May 05", {2}, "dbase1.txt")));
    EXPECT_FALSE(Check(Entry("14 May 05", {3}, "dbase1.txt")));
}

TEST_F(CheckingEntries, TakesTheFirstOfTwoDrawsOfOneDate) {
    AddLottery(folder, "dbase1.txt", "Twice", "1,9,0,0,1",
               {"28 May 05,1,0,0,0,0,0,0,9", "28 May 05,2,0,0,0,0,0,0,9"});
    EXPECT_EQ(Marks(*Check(Entry("28 May 05", {2}, "dbase1.txt"))), "w......w");
}

TEST_F(CheckingEntries, LeavesTheSharedVariablesWithTheLastEntry) {
    state.Draws(1, 1) = 33;
    Check(Entry("28 May 05", {1}, "dbase100.txt"));
    Check(Entry("30 May 05", {1}, "dbase101.txt"));
    EXPECT_EQ(state.DbaseFile, "dbase101.txt");
    EXPECT_EQ(state.LotteryName, "UK Thunderball");
    EXPECT_EQ(state.Picks, 5);
    EXPECT_EQ(state.MaxNum, 34);
    EXPECT_EQ(state.HasPball, 1);
    EXPECT_EQ(state.MaxPball, 14);
    EXPECT_EQ(state.HasBonus, 0);
    EXPECT_EQ(state.Draws(1, 1), 33);
    const std::vector<int> drawn = {3, 17, 22, 34, 41, 48, 0, 9};
    for (int ball = 1; ball <= 8; ++ball) {
        EXPECT_EQ(state.Pool(ball), drawn[static_cast<std::size_t>(ball - 1)]);
    }
}

TEST_F(CheckingEntries, TakesTheLeadingNumberOfACell) {
    SavedEntry entry = Entry("28 May 05", {1, 2, 3, 4, 5, 6}, "dbase100.txt");
    entry[1] = "17x";
    entry[2] = "3.5";
    EXPECT_EQ(Marks(*Check(entry)), "ywywww.w");
}

TEST_F(CheckingEntries, CountsTwoHitsOfTheBonusWithoutAMainNumberUnderTwenty) {
    AddLottery(folder, "dbase1.txt", "Bonus", "2,49,0,0,1", {"28 May 05,1,2,0,0,0,0,0,4"});
    Check(Entry("28 May 05", {4, 4}, "dbase1.txt"));
    EXPECT_EQ(Filled(check.Counts()), (Counted{{20, 1}}));
}

TEST_F(CheckingEntries, AMainNumberWithTwoHitsOfTheBonusEndsTheRun) {
    AddLottery(folder, "dbase1.txt", "Bonus", "3,49,0,0,1", {"28 May 05,1,2,3,0,0,0,0,4"});
    EXPECT_EQ(FailureAt(Entry("28 May 05", {4, 4, 1}, "dbase1.txt"), 3),
              "MyLottery.txt, row 3 as shown, checked against \"dbase1.txt\": The list of match "
              "counts was asked for entry 21; its last entry is 20.");
}

TEST_F(CheckingEntries, ALotteryOfTwelveNumbersEndsTheRun) {
    AddLottery(folder, "dbase1.txt", "Keno", "12,49,0,0,0", {"28 May 05,1,2,3,4,5,6,7,8"});
    EXPECT_EQ(FailureAt(Entry("28 May 05", {1}, "dbase1.txt")),
              "MyLottery.txt, row 1 as shown, checked against \"dbase1.txt\": dbase1.txt: an entry "
              "has 11 columns behind its date, but the lottery has 12 numbers "
              "in a line.");
}

TEST_F(CheckingEntries, AnEntryWhoseDatabaseIsGoneEndsTheRun) {
    EXPECT_EQ(FailureAt(Entry("28 May 05", {1}, "dbase7.txt")),
              "MyLottery.txt, row 1 as shown, checked against \"dbase7.txt\": dbase7.txt: there is "
              "no such file.");
}

TEST_F(CheckingEntries, AnEntryWithShiftedFieldsEndsTheRun) {
    SavedEntry entry = Entry("28 May 05", {1}, "Bob");
    entry[10] = "Ann";
    EXPECT_EQ(
        FailureAt(entry),
        "MyLottery.txt, row 1 as shown, checked against \"Bob\": Bob: there is no such file.");
}

TEST_F(CheckingEntries, AnEntryWithoutAReadableDateEndsTheRun) {
    EXPECT_EQ(FailureAt(Entry("soon", {1}, "dbase100.txt"), 7),
              "MyLottery.txt, row 7 as shown: expected a date such as \"19-Nov-1994\", but "
              "\"soon\" stands there.");
}

TEST_F(CheckingEntries, ADatabaseWithoutDrawsNeverLooksAtTheDate) {
    AddLottery(folder, "dbase1.txt", "Empty", "6,49,0,0,1");
    EXPECT_FALSE(Check(Entry("soon", {1}, "dbase1.txt")));
    EXPECT_EQ(state.LotteryName, "Empty");
}

TEST_F(CheckingEntries, AHeaderCutShortEndsTheRun) {
    folder.Write("dbase1.txt", "Short\r\n\r\n6,49\r\n");
    EXPECT_EQ(FailureAt(Entry("28 May 05", {1}, "dbase1.txt")),
              "dbase1.txt, line 4: expected whether there is an extra ball, but the file ends "
              "there.");
}

TEST_F(CheckingEntries, MeetsAnUnreadableDrawDateOnlyWhereItGetsThere) {
    AddLottery(folder, "dbase1.txt", "Bad", "1,9,0,0,1",
               {"28 May 05,1,0,0,0,0,0,0,9", "no date,2,0,0,0,0,0,0,9"});
    EXPECT_TRUE(Check(Entry("28 May 05", {1}, "dbase1.txt")));
    EXPECT_FALSE(Check(Entry("29 May 05", {1}, "dbase1.txt")));
    EXPECT_EQ(FailureAt(Entry("27 May 05", {1}, "dbase1.txt")),
              "dbase1.txt, line 5: expected a date such as \"19-Nov-1994\", but \"no date\" stands "
              "there.");
}

TEST_F(CheckingEntries, MeetsACutRecordOnlyWhereItsNumbersAreWanted) {
    folder.Write("dbase1.txt", "Cut\r\n\r\n1,9,0,0,1\r\n28 May 05,1,2,3");
    EXPECT_FALSE(Check(Entry("29 May 05", {1}, "dbase1.txt")));
    EXPECT_FALSE(Check(Entry("27 May 05", {1}, "dbase1.txt")));
    EXPECT_EQ(FailureAt(Entry("28 May 05", {1}, "dbase1.txt")),
              "dbase1.txt, line 4: expected the number in column 4 of a draw, but the file ends "
              "there.");
}

TEST_F(CheckingEntries, ADateAtTheVeryEndOfTheFileEndsTheRunForEveryEntryThatReachesIt) {
    folder.Write("dbase1.txt", "Cut\r\n\r\n1,9,0,0,1\r\n29 May 05,1,,,,,,,\r\n28 May 05");
    EXPECT_TRUE(Check(Entry("29 May 05", {1}, "dbase1.txt")));
    for (const char* date : {"28 May 05", "27 May 05"}) {
        EXPECT_NE(FailureAt(Entry(date, {1}, "dbase1.txt")).find("the file ends there"),
                  std::string::npos)
            << date;
    }
}

TEST_F(CheckingEntries, AnExtraEmptyLineEndsTheRunForAnEntryThatReachesIt) {
    folder.Write("dbase1.txt", "Line\r\n\r\n1,9,0,0,1\r\n28 May 05,1,,,,,,,\r\n\r\n");
    EXPECT_TRUE(Check(Entry("28 May 05", {1}, "dbase1.txt")));
    EXPECT_EQ(FailureAt(Entry("27 May 05", {1}, "dbase1.txt")),
              "dbase1.txt, line 5: expected a date such as \"19-Nov-1994\", but \"\" stands "
              "there.");
}

TEST_F(CheckingEntries, ReadsEachFileAgainAtEveryCheck) {
    EXPECT_FALSE(Check(Entry("01 Jun 05", {1}, "dbase102.txt")));
    AddLottery(folder, "dbase102.txt", "UK Daily Play", "7,27,0,0,0",
               {"01 Jun 05,1,2,3,4,5,6,7,0"});
    EXPECT_FALSE(Check(Entry("01 Jun 05", {1}, "dbase102.txt")));
    EntryCheck next(state, folder, region, today);
    EXPECT_TRUE(next.Check(Entry("01 Jun 05", {1}, "dbase102.txt"), 1));
}

TEST(CheckReport, TellsAllCountsByMatchClass) {
    MatchCounts counts("match counts");
    counts(0) = 120;
    counts(3) = 2;
    counts(13) = 1;
    EXPECT_EQ(CheckReport(counts, 4),
              " 7-match = 0 times\r\n 6-match = 0 times\r\n 5-match = 0 times\r\n"
              " 4-match = 0 times\r\n 3-match = 2 times\r\n 2-match = 0 times\r\n"
              " 1-match = 0 times\r\n 0-match = 120 times\r\n"
              "\r\n"
              " 4-match+bonus/pball = 0 times\r\n 3-match+bonus/pball = 1 times\r\n"
              " 2-match+bonus/pball = 0 times\r\n 1-match+bonus/pball = 0 times\r\n"
              " 0-match+bonus/pball = 0 times\r\n");
}

TEST(CheckReport, OfALotteryOfElevenNumbersEndsTheRun) {
    EXPECT_THROW(CheckReport(MatchCounts("match counts"), 11), Failure);
}

/// All that a check leaves behind.
std::string Picture(const State& state, const MatchCounts& counts) {
    std::ostringstream picture;
    picture << state.DbaseFile << '|' << state.LotteryName << '|' << state.LotteryURL << '|'
            << state.Picks << '|' << state.MaxNum << '|' << state.HasPball << '|' << state.MaxPball
            << '|' << state.HasBonus;
    for (int index = 0; index <= 120; ++index) picture << ' ' << state.Pool(index);
    for (int index = 0; index <= 20; ++index) picture << ' ' << counts(index);
    return picture.str();
}

/// A check of the same entries in both ways, each with its own shared variables.
struct BothWays {
    explicit BothWays(const MemoryFolder& files) : folder(files) {}

    void Compare(const std::vector<SavedEntry>& entries) {
        EntryCheck check(*fast, folder, region, today);
        int row = 0;
        for (const SavedEntry& entry : entries) {
            ++row;
            std::optional<EntryMatch> found;
            std::optional<EntryMatch> expected;
            const std::string failure = FailureOf([&] { found = check.Check(entry, row); });
            const std::string expectedFailure = FailureOf([&] {
                expected = plain::CheckEntry(*step, folder, region, today, entry, row, counts);
            });
            // The step-by-step scan does not say which entry led to a failure.
            ASSERT_TRUE(failure.ends_with(expectedFailure)) << failure << '\n' << expectedFailure;
            ASSERT_EQ(found, expected) << row;
            ASSERT_EQ(Picture(*fast, check.Counts()), Picture(*step, counts)) << row;
            if (failure != "no failure") return;
        }
    }

    const MemoryFolder& folder;
    std::unique_ptr<State> fast = std::make_unique<State>();
    std::unique_ptr<State> step = std::make_unique<State>();
    MatchCounts counts{"match counts"};
};

std::string AnyDate(std::mt19937& random) {
    if (random() % 40 == 0) return random() % 2 == 0 ? "" : "32 May 05";
    const Date date = DaysAfter(today, -static_cast<int>(random() % 30));
    return random() % 2 == 0 ? DrawDate(date) : MediumDate(date);
}

std::string AnyDatabase(std::mt19937& random) {
    std::string bytes = "Any\r\n\r\n" + std::to_string(random() % 8) + ",9,0," +
                        std::to_string(random() % 2) + "," + std::to_string(random() % 2) + "\r\n";
    const int draws = static_cast<int>(random() % 12);
    for (int draw = 0; draw < draws; ++draw) {
        // Mostly newest first, with a date out of order here and there.
        const Date inOrder = DaysAfter(today, -2 * draw);
        bytes += random() % 8 == 0 ? AnyDate(random) : DrawDate(inOrder);
        const int fields = random() % 20 == 0 ? static_cast<int>(random() % 10) : 8;
        for (int field = 0; field < fields; ++field) bytes += ',' + std::to_string(random() % 10);
        bytes += random() % 20 == 0 ? "\n" : "\r\n";
        if (random() % 40 == 0) bytes += "\r\n";
    }
    if (random() % 6 == 0) bytes.resize(random() % (bytes.size() + 1));
    return bytes;
}

TEST(CheckOfEntries, IsThatOfTheStepByStepScanOnEveryInput) {
    std::mt19937 random(49);
    for (int round = 0; round < 500; ++round) {
        MemoryFolder folder;
        folder.Write("dbase1.txt", AnyDatabase(random));
        folder.Write("dbase2.txt", AnyDatabase(random));
        std::vector<SavedEntry> entries;
        for (int row = 0; row < 12; ++row) {
            std::vector<int> numbers;
            for (int i = 0; i < 7; ++i) numbers.push_back(static_cast<int>(random() % 10));
            entries.push_back(Entry(AnyDate(random), numbers,
                                    random() % 2 == 0 ? "dbase1.txt" : "dbase2.txt",
                                    std::to_string(random() % 4)));
        }
        BothWays(folder).Compare(entries);
        if (testing::Test::HasFatalFailure()) FAIL() << "round " << round;
    }
}

/// A history read in the simplest way: a line a draw, dates as they stand.
struct History {
    int picks = 0;
    bool bonus = false;
    std::vector<std::string> dates;
    std::map<std::string, std::vector<int>> draws;
};

std::vector<std::string> Cut(const std::string& line) {
    std::vector<std::string> fields(1);
    for (const char character : line) {
        if (character == ',') {
            fields.emplace_back();
        } else {
            fields.back() += character;
        }
    }
    return fields;
}

History ReadHistory(const std::string& bytes) {
    History history;
    std::istringstream lines(bytes);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (line.ends_with('\r')) line.pop_back();
        const std::vector<std::string> fields = Cut(line);
        if (number == 3) {
            history.picks = std::stoi(fields[0]);
            history.bonus = std::stoi(fields[4]) > 0;
        }
        if (number < 4) continue;
        std::vector<int> numbers;
        for (std::size_t i = 1; i < fields.size(); ++i) {
            numbers.push_back(fields[i].empty() ? 0 : std::stoi(fields[i]));
        }
        history.dates.push_back(fields[0]);
        history.draws.emplace(fields[0], numbers);
    }
    return history;
}

/// Where an entry with these numbers is counted: main matches, and 10 for each of the others.
int CountedAt(const History& history, const std::vector<int>& draw, const std::vector<int>& numbers,
              int extraBall) {
    int index = 0;
    for (int i = 0; i < history.picks; ++i) {
        const int number = numbers[static_cast<std::size_t>(i)];
        for (int j = 0; j < history.picks; ++j) {
            if (draw[static_cast<std::size_t>(j)] == number) ++index;
        }
        if (history.bonus && draw[7] == number) index += 10;
    }
    return draw[7] == extraBall ? index + 10 : index;
}

TEST_F(CheckingEntries, SumsUpWhatWasCheckedAndWhatWaits) {
    AddLottery(folder, "dbase103.txt", "UK Daily Play", "7,27,0,0,0");
    Check(Entry("28 May 05", {3, 17, 22, 35, 40, 49}, "dbase100.txt"));
    Check(Entry("29 May 05", {3, 17, 22, 35, 40, 49}, "dbase100.txt"));
    Check(Entry("26 May 05", {3, 17, 22, 35, 40, 49}, "dbase100.txt"));
    Check(Entry("24 May 05", {3, 17, 22, 35, 40, 49}, "dbase100.txt"));
    Check(Entry("28 May 05", {1, 2, 3, 4, 5, 6, 7}, "dbase103.txt"));
    EXPECT_EQ(SummaryText(check.Summary()),
              "1 of 5 entries checked; 2 have no draw in their database yet (newest: 28 May 05); "
              "2 are of days without a draw. Best: 3 numbers.");
}

TEST_F(CheckingEntries, SumsUpTheBallThatMatched) {
    Check(Entry("28 May 05", {1, 2, 3, 5, 6}, "dbase101.txt", "6"));
    EXPECT_EQ(SummaryText(check.Summary()), "1 entry checked. Best: the extra ball.");
    Check(Entry("28 May 05", {9, 17, 1, 2, 5, 6}, "dbase100.txt"));
    EXPECT_EQ(SummaryText(check.Summary()),
              "All 2 entries checked. Best: 1 number and the bonus ball.");
}

TEST_F(CheckingEntries, SumsUpNoBallWhereTheLotteryHasNone) {
    const auto match = Check(Entry("28 May 05", {1, 2, 3, 11, 12, 13, 14}, "dbase102.txt"));
    EXPECT_EQ(match->extra, 10);
    EXPECT_EQ(SummaryText(check.Summary()), "1 entry checked. Best: 3 numbers.");
}

TEST(CheckOfEntries, FindsOnRealHistoriesWhatACountByHandFinds) {
    MemoryFolder folder;
    if (!AddRealHistories(folder)) GTEST_SKIP() << "no real histories at " << REAL_DRAWS;
    // Hot Picks has the draws of UK Lotto, and a line of four.
    std::string hotPicks = folder.Read("dbase100.txt");
    hotPicks.replace(hotPicks.find("6,49,0,0,1"), 10, "4,49,0,0,0");
    folder.Write("dbase104.txt", hotPicks);

    std::mt19937 random(6);
    const auto state = std::make_unique<State>();
    for (const std::string& file : folder.Find("dbase*.txt")) {
        const History history = ReadHistory(folder.Read(file));
        EntryCheck check(*state, folder, region, std::chrono::January / 1 / 2027);
        std::map<int, int> expected;
        for (int row = 1; row <= 499; ++row) {
            // Three of the numbers are those of the draw, so that much is matched.
            const std::string& date = history.dates[random() % history.dates.size()];
            const std::vector<int>& draw = history.draws.at(date);
            std::vector<int> numbers;
            for (int i = 0; i < history.picks; ++i) {
                const int guess = 1 + static_cast<int>((random() % 7) * 7) + i;
                numbers.push_back(random() % 2 == 0 ? draw[static_cast<std::size_t>(i)] : guess);
            }
            if (history.bonus && random() % 4 == 0) numbers[0] = draw[7];
            const int extraBall = random() % 3 == 0 ? draw[7] : 0;
            const int index = CountedAt(history, draw, numbers, extraBall);
            if (index > 20) continue;
            ++expected[index];
            const SavedEntry entry =
                Entry(date, numbers, file, extraBall == 0 ? "" : std::to_string(extraBall));
            ASSERT_TRUE(check.Check(entry, row)) << file << ' ' << date;
        }
        EXPECT_EQ(Filled(check.Counts()), expected) << file;
        EXPECT_GE(expected.size(), 5U) << file;
    }
}

TEST(CheckOfEntries, IsThatOfTheStepByStepScanOnRealHistories) {
    MemoryFolder folder;
    if (!AddRealHistories(folder)) GTEST_SKIP() << "no real histories at " << REAL_DRAWS;
    std::mt19937 random(7);
    std::vector<SavedEntry> entries;
    for (const std::string& file : folder.Find("dbase*.txt")) {
        for (int row = 0; row < 20; ++row) {
            std::vector<int> numbers;
            for (int i = 0; i < 7; ++i) numbers.push_back(static_cast<int>(1 + random() % 49));
            const Date date = DaysAfter(today, 500 - static_cast<int>(random() % 4000));
            entries.push_back(
                Entry(MediumDate(date), numbers, file, std::to_string(random() % 10)));
        }
    }
    std::shuffle(entries.begin(), entries.end(), random);
    BothWays(folder).Compare(entries);
}

}  // namespace

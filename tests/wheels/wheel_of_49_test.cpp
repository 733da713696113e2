// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/wheel_of_49.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "core/lines.h"
#include "core/memory_folder.h"
#include "play/pool.h"
#include "test_folders.h"
#include "tests/core/failures.h"
#include "tests/wheels/plain_wheels.h"
#include "tests/wheels/wheel_support.h"
#include "wheels/guarantee.h"

namespace {

using wheel49::Table;
using wheels::Outcome;

std::string SuppliedTable() {
    std::ifstream file(SUPPLIED_DATA "/wheel49.dat", std::ios::binary);
    EXPECT_TRUE(file);
    return {std::istreambuf_iterator<char>(file), {}};
}

Table TableOf(const std::string& bytes) {
    MemoryFolder folder;
    folder.Write("wheel49.dat", bytes);
    return wheel49::ReadTable(folder);
}

/// 1050 fields, all of them 7 but those that a test puts into it.
std::vector<std::string> Sevens() { return std::vector<std::string>(1050, "7"); }

std::string Joined(const std::vector<std::string>& fields) {
    std::string bytes;
    for (const std::string& field : fields) bytes += field + ",";
    return bytes;
}

std::string FailureOfReading(const std::string& bytes) {
    return FailureOf([&] { TableOf(bytes); });
}

/// Makes one try with the supplied table.
void Try(State& state, std::uint64_t seed) {
    Random random = RandomOf(seed);
    FillPool(state, 49);
    EXPECT_EQ(wheel49::DoWheel(state, random, TableOf(SuppliedTable())), Outcome::Done);
}

TEST(Wheel49Table, AsSuppliedHasAThreeMatchForEverySelectionOfSix) {
    const auto masks = wheel49::LineMasks(TableOf(SuppliedTable()));
    ASSERT_EQ(masks.size(), 175U);
    const wheels::Guarantee found = wheels::VerifyGuarantee(masks, 49, 6, 3);
    EXPECT_EQ(found.selections, 13983816);
    EXPECT_EQ(found.uncovered, 0);
}

TEST(Wheel49Table, AsSuppliedHoldsPlacesOnly) {
    for (const int place : TableOf(SuppliedTable())) EXPECT_TRUE(place >= 1 && place <= 49);
}

TEST(Wheel49Table, IsPartedByCommasAndLineEndsAlikeWithBlanksAround) {
    std::string bytes;
    for (int place = 1; place <= 1050; ++place) {
        bytes += " " + std::to_string(place % 49) + (place % 3 == 0 ? "\n" : " ,");
        if (place % 5 == 0) bytes.back() = '\r';
    }
    const Table table = TableOf(bytes);
    for (int place = 1; place <= 1050; ++place) {
        EXPECT_EQ(table[static_cast<std::size_t>(place - 1)], place % 49);
    }
}

TEST(Wheel49Table, EndsWithItsLastPlaceWhateverStandsBehind) {
    EXPECT_EQ(TableOf(Joined(Sevens()) + "what,\r\n\r\never"), TableOf(Joined(Sevens())));
    std::string bytes = Joined(Sevens());
    bytes.pop_back();
    EXPECT_EQ(TableOf(bytes), TableOf(Joined(Sevens()))) << "and no line end is needed";
}

TEST(Wheel49Table, TakesNumbersThatAreNoPlaces) {
    std::vector<std::string> fields = Sevens();
    fields[0] = "0";
    fields[1] = "-1";
    fields[2] = "+120";
    fields[3] = "32767";
    fields[4] = "-32768";
    const Table table = TableOf(Joined(fields));
    EXPECT_EQ(std::vector<int>(table.begin(), table.begin() + 6),
              (std::vector<int>{0, -1, 120, 32767, -32768, 7}));
    EXPECT_EQ(wheel49::LineMasks(table)[0], std::uint64_t{1} << 6U) << "only places count";
}

TEST(Wheel49Table, ThatIsMissingEndsTheRun) {
    const std::string failure = FailureOf([] { wheel49::ReadTable(MemoryFolder()); });
    EXPECT_NE(failure.find("wheel49.dat"), std::string::npos) << failure;
}

TEST(Wheel49Table, ThatIsShortTellsWhereItEnds) {
    EXPECT_EQ(FailureOfReading(""),
              "wheel49.dat, line 1: expected place 1 of line 1 of the wheel, but the file ends "
              "there.");
    const std::string supplied = SuppliedTable();
    const std::string withoutLast = supplied.substr(0, supplied.rfind(','));
    EXPECT_EQ(FailureOfReading(withoutLast + "\r\n"),
              "wheel49.dat, line 176: expected place 6 of line 175 of the wheel, but the file ends "
              "there.");
}

TEST(Wheel49Table, ThatIsDamagedTellsWhatStandsWhere) {
    for (const std::string wrong : {"", "abc", "12a", "3.5", "-", "1 2", "40000", "99999999999"}) {
        std::vector<std::string> fields = Sevens();
        fields[14] = wrong;
        EXPECT_EQ(FailureOfReading(Joined(fields)),
                  "wheel49.dat, line 1: expected place 3 of line 3 of the wheel (a whole number "
                  "from 1 to 49), but \"" +
                      wrong + "\" stands there.");
    }
}

TEST(Wheel49, SuitsLotteriesOfSixPicksAndFortyNineNumbersAtLeast) {
    EXPECT_TRUE(wheel49::Suits(*LotteryOf({.picks = 6, .maxNum = 49})));
    EXPECT_TRUE(wheel49::Suits(*LotteryOf({.picks = 6, .maxNum = 59})));
    EXPECT_TRUE(wheel49::Suits(*LotteryOf({.picks = 7, .maxNum = 49})));
    EXPECT_FALSE(wheel49::Suits(*LotteryOf({.picks = 6, .maxNum = 48})));
    EXPECT_FALSE(wheel49::Suits(*LotteryOf({.picks = 6, .maxNum = 45})));
    EXPECT_FALSE(wheel49::Suits(*LotteryOf({.picks = 5, .maxNum = 49})));
}

TEST(Wheel49, PlaysTheNumbersUpToFortyNineInOneHundredSeventyFiveSortedLines) {
    const auto state = LotteryOf({.picks = 6, .maxNum = 59});
    Try(*state, 1);
    const auto lines = LinesOf(*state, 6);
    EXPECT_EQ(lines.size(), 175U);
    EXPECT_EQ(state->Lines(176, 1), 0);
    for (const auto& line : lines) {
        EXPECT_TRUE(std::ranges::is_sorted(line));
        EXPECT_EQ(std::set<int>(line.begin(), line.end()).size(), 6U);
        EXPECT_TRUE(line.front() >= 1 && line.back() <= 49);
    }
}

TEST(Wheel49, EndsAnOlderLongerResult) {
    const auto state = LotteryOf({});
    state->Lines.Fill(9);
    state->Lines(180, 1) = 0;
    Try(*state, 1);
    EXPECT_EQ(LineCount(*state), 175);
}

TEST(Wheel49, KeepsItsPromiseWhateverNumberStandsAtWhichPlace) {
    const auto state = LotteryOf({});
    Try(*state, 7);
    std::vector<std::uint64_t> masks;
    for (const auto& line : LinesOf(*state, 6)) {
        std::uint64_t& mask = masks.emplace_back();
        for (const int number : line) mask |= std::uint64_t{1} << static_cast<unsigned>(number - 1);
    }
    EXPECT_EQ(wheels::VerifyGuarantee(masks, 49, 6, 3).uncovered, 0);
}

TEST(Wheel49, MixesOnFromTheOrderOfTheLastTry) {
    const auto state = LotteryOf({});
    Try(*state, 1);
    const auto first = LinesOf(*state, 6);
    PlainWheel plain;
    for (int i = 1; i <= 49; ++i) plain.pool[static_cast<std::size_t>(i)] = i;
    Random random = RandomOf(1);
    Random plainRandom = RandomOf(1);
    FillPool(*state, 49);
    const Table table = TableOf(SuppliedTable());
    const std::vector<int> places(table.begin(), table.end());
    for (int attempt = 1; attempt <= 3; ++attempt) {
        wheel49::DoWheel(*state, random, table);
        plain.Wheel49(plainRandom, places);
        std::vector<int> cells;
        for (const auto& line : plain.lines) cells.insert(cells.end(), line.begin(), line.end());
        EXPECT_EQ(AllCells(*state), cells) << attempt;
        EXPECT_EQ(LinesOf(*state, 6) == first, attempt == 1);
    }
}

TEST(Wheel49, IsMadeAsToldStepByStepForEveryLottery) {
    const Table table = TableOf(SuppliedTable());
    const std::vector<int> places(table.begin(), table.end());
    for (int picks = 4; picks <= 7; ++picks) {
        for (const int maxPball : {0, 14}) {
            const auto state = LotteryOf({.picks = picks, .maxNum = 53, .maxPball = maxPball});
            FillPool(*state, 49);
            PlainWheel plain{picks, 53, maxPball};
            for (int i = 1; i <= 49; ++i) plain.pool[static_cast<std::size_t>(i)] = i;
            Random random = RandomOf(5);
            Random plainRandom = RandomOf(5);
            EXPECT_EQ(wheel49::DoWheel(*state, random, table), Outcome::Done);
            plain.Wheel49(plainRandom, places);
            std::vector<int> cells;
            for (const auto& line : plain.lines) {
                cells.insert(cells.end(), line.begin(), line.end());
            }
            EXPECT_EQ(AllCells(*state), cells) << picks;
            EXPECT_EQ(random.Next(), plainRandom.Next());
        }
    }
}

TEST(Wheel49, ReadsPlacesFromFiftyToOneHundredTwentyWhereTheyStandInThePool) {
    const auto state = LotteryOf({});
    Random random = RandomOf(1);
    FillPool(*state, 49);
    state->Pool(50) = 500;
    state->Pool(120) = 1200;
    state->Pool(0) = 3;
    Table table{};
    table.fill(7);
    table[0] = 50;
    table[1] = 120;
    table[2] = 0;
    EXPECT_EQ(wheel49::DoWheel(*state, random, table), Outcome::Done);
    const auto line = LinesOf(*state, 6).front();
    EXPECT_EQ(line.back(), 1200);
    EXPECT_EQ(line[4], 500);
    EXPECT_EQ(std::ranges::count(line, 3), state->Pool(7) == 3 ? 4 : 1);
}

TEST(Wheel49, OfAPlaceOutsideThePoolEndsTheRun) {
    for (const int place : {-1, 121, 32767}) {
        const auto state = LotteryOf({});
        Random random = RandomOf(1);
        Table table{};
        table.fill(7);
        table[1049] = static_cast<std::int16_t>(place);
        EXPECT_NE(FailureOf([&] { wheel49::DoWheel(*state, random, table); }), "no failure");
    }
}

}  // namespace

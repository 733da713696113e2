// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/draw_database.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <random>
#include <sstream>

#include "core/memory_folder.h"
#include "test_folders.h"
#include "tests/core/failures.h"

namespace {

using Names = std::vector<std::string>;

const std::string ukHeader = "UK Lotto\r\nhttp://www.national-lottery.example\r\n6,49,0,0,1\r\n";

std::string Draws(int count) {
    std::string draws;
    for (int draw = 1; draw <= count; ++draw) draws += "19 Nov 94,1,2,3,4,5,6,0,7\r\n";
    return draws;
}

class DrawDatabase : public testing::Test {
  private:
    const std::unique_ptr<State> ownState_ = std::make_unique<State>();

  protected:
    State& state_ = *ownState_;
    MemoryFolder folder_;

    void Load(const std::string& content) {
        folder_.Write("dbase1.txt", content);
        state_.DbaseFiles(0) = "dbase1.txt";
        LoadDatabase(state_, folder_, 0);
    }

    // The failure of loading this file, which must leave the folder as it was.
    std::string FailureOfLoading(const std::string& content) {
        folder_.Write("dbase1.txt", content);
        state_.DbaseFiles(0) = "dbase1.txt";
        const auto before = folder_.Snapshot();
        const std::string failure = FailureOf([this] { LoadDatabase(state_, folder_, 0); });
        EXPECT_EQ(folder_.Snapshot(), before);
        return failure;
    }

    int Count() const {
        int draw = 1;
        while (draw <= 3000 && std::as_const(state_).Draws(draw, 1) != 0) ++draw;
        return draw - 1;
    }

    std::vector<int> DrawRow(int draw) const {
        const std::int16_t* row = std::as_const(state_).Draws.Row(draw);
        return {row, row + 9};
    }
};

using Row = std::vector<int>;

}  // namespace

TEST_F(DrawDatabase, GivesItsHeaderToTheSharedVariables) {
    Load(ukHeader);
    EXPECT_EQ(state_.DbaseFile, "dbase1.txt");
    EXPECT_EQ(state_.LotteryName, "UK Lotto");
    EXPECT_EQ(state_.LotteryURL, "http://www.national-lottery.example");
    EXPECT_EQ(state_.Picks, 6);
    EXPECT_EQ(state_.MaxNum, 49);
    EXPECT_EQ(state_.HasPball, 0);
    EXPECT_EQ(state_.MaxPball, 0);
    EXPECT_EQ(state_.HasBonus, 1);
}

TEST_F(DrawDatabase, TakesNameAndAddressAsTheyStand) {
    Load(" Lotto, old \r\n\r\n 5 , 34.5 ,1,14x, \r\n");
    EXPECT_EQ(state_.LotteryName, " Lotto, old ");
    EXPECT_EQ(state_.LotteryURL, "");
    EXPECT_EQ(state_.Picks, 5);
    EXPECT_EQ(state_.MaxNum, 34);
    EXPECT_EQ(state_.HasPball, 1);
    EXPECT_EQ(state_.MaxPball, 14);
    EXPECT_EQ(state_.HasBonus, 0);
}

TEST_F(DrawDatabase, WithAHeaderAloneHasNoDraws) {
    Load(ukHeader);
    EXPECT_EQ(Count(), 0);
}

TEST_F(DrawDatabase, GivesItsDrawsInTheOrderOfTheFile) {
    Load(ukHeader + "07 Oct 15,30,7,44,11,49,5,0,25\r\n03-Oct-2015,15,14,44,8,9,35,7,4\r\n");
    EXPECT_EQ(DrawRow(1), (Row{0, 30, 7, 44, 11, 49, 5, 0, 25}));
    EXPECT_EQ(DrawRow(2), (Row{0, 15, 14, 44, 8, 9, 35, 7, 4}));
    EXPECT_EQ(DrawRow(3), Row(9, 0));
}

TEST_F(DrawDatabase, ReadsEmptyFieldsAsZero) {
    Load(ukHeader + "19 Nov 94,1,2,3,4,5,6,,\r\n");
    EXPECT_EQ(DrawRow(1), (Row{0, 1, 2, 3, 4, 5, 6, 0, 0}));
}

TEST_F(DrawDatabase, ReadsTextThatIsNoNumberAsZero) {
    Load(ukHeader + "19 Nov 94,one,2x,-,4,5,6,&H7,\"8\"\r\n");
    EXPECT_EQ(DrawRow(1), (Row{0, 0, 2, 0, 4, 5, 6, 0, 0}));
}

TEST_F(DrawDatabase, EndsForEveryRoutineAtAZeroInColumnOne) {
    Load(ukHeader + Draws(2) + "19 Nov 94,none,2,3,4,5,6,0,7\r\n" + Draws(2));
    EXPECT_EQ(Count(), 2);
    EXPECT_EQ(DrawRow(5), (Row{0, 1, 2, 3, 4, 5, 6, 0, 7}));
}

TEST_F(DrawDatabase, RoundsFractionsHalfToEven) {
    Load(ukHeader + "19 Nov 94,1.5,2.5,3.4,-0.5,5.6,6,0,7\r\n");
    EXPECT_EQ(DrawRow(1), (Row{0, 2, 2, 3, 0, 6, 6, 0, 7}));
}

TEST_F(DrawDatabase, DoesNotLookAtTheDate) {
    Load(ukHeader + "whenever,1,2,3,4,5,6,0,7\r\n,1,2,3,4,5,6,0,7\r\n");
    EXPECT_EQ(Count(), 2);
}

TEST_F(DrawDatabase, KeepsColumnZeroAndRowZeroEmpty) {
    Load(ukHeader + Draws(50));
    EXPECT_EQ(DrawRow(0), Row(9, 0));
    for (int draw = 0; draw <= 3000; ++draw) EXPECT_EQ(DrawRow(draw)[0], 0);
}

TEST_F(DrawDatabase, TakesAMissingFieldFromTheFollowingLine) {
    Load(ukHeader + "19 Nov 94,1,2,3,4,5,6,0\r\n7\r\n26 Nov 94\r\n8,9,10,11\r\n12,13,14,15");
    EXPECT_EQ(DrawRow(1), (Row{0, 1, 2, 3, 4, 5, 6, 0, 7}));
    EXPECT_EQ(DrawRow(2), (Row{0, 8, 9, 10, 11, 12, 13, 14, 15}));
}

TEST_F(DrawDatabase, ReadsBareLineFeedsAndCarriageReturns) {
    Load("UK Lotto\n\n6,49,0,0,1\n19 Nov 94,1,2,3,4,5,6,0,7\r26 Nov 94,2,3,4,5,6,7,0,8");
    EXPECT_EQ(Count(), 2);
    EXPECT_EQ(DrawRow(2), (Row{0, 2, 3, 4, 5, 6, 7, 0, 8}));
}

TEST_F(DrawDatabase, EmptiesTheRowsThatALongerOneLeftBehind) {
    Load(ukHeader + Draws(1000));
    EXPECT_EQ(Count(), 1000);
    Load(ukHeader + Draws(10));
    for (int draw = 11; draw <= 3000; ++draw) EXPECT_EQ(DrawRow(draw), Row(9, 0));
    EXPECT_EQ(Count(), 10);
}

TEST_F(DrawDatabase, RestoresTheOrderThatASortingFormChanged) {
    Load(ukHeader + "07 Oct 15,30,7,44,11,49,5,0,25\r\n");
    state_.Draws(1, 1) = 5;
    LoadDatabase(state_, folder_, 0);
    EXPECT_EQ(DrawRow(1), (Row{0, 30, 7, 44, 11, 49, 5, 0, 25}));
}

TEST_F(DrawDatabase, LoadsWithTwoThousandNineHundredAndNinetyNineDraws) {
    Load(ukHeader + Draws(2999));
    EXPECT_EQ(Count(), 2999);
    EXPECT_EQ(DrawRow(3000), Row(9, 0));
}

TEST_F(DrawDatabase, LoadsWithThreeThousandDraws) {
    Load(ukHeader + Draws(3000));
    EXPECT_EQ(Count(), 3000);
}

TEST_F(DrawDatabase, EmptiesTheLastRowOfAFullTable) {
    Load(ukHeader + Draws(3000));
    Load(ukHeader + Draws(10));
    EXPECT_EQ(DrawRow(3000), Row(9, 0));
}

TEST_F(DrawDatabase, FailsAtDrawThreeThousandAndOne) {
    EXPECT_EQ(FailureOfLoading(ukHeader + Draws(3001)),
              "dbase1.txt, line 3004: expected no more than 3000 draws, but \"19 Nov 94\" stands "
              "there.");
}

TEST_F(DrawDatabase, FailsWithARecordThatTheEndCutsShort) {
    EXPECT_EQ(FailureOfLoading(ukHeader + "19 Nov 94,1,2,3"),
              "dbase1.txt, line 4: expected the number in column 4 of a draw, but the file ends "
              "there.");
}

TEST_F(DrawDatabase, FailsWithAnEmptyLineAtItsEnd) {
    EXPECT_EQ(FailureOfLoading(ukHeader + Draws(1) + "\r\n"),
              "dbase1.txt, line 6: expected the number in column 1 of a draw, but the file ends "
              "there.");
}

TEST_F(DrawDatabase, FailsWithoutAHeader) {
    EXPECT_EQ(FailureOfLoading("UK Lotto\r\nhttp://x.example\r\n"),
              "dbase1.txt, line 3: expected how many numbers a line has, but the file ends there.");
    EXPECT_EQ(FailureOfLoading("UK Lotto\r\n"),
              "dbase1.txt, line 2: expected the web address of the lottery, but the file ends "
              "there.");
    EXPECT_EQ(FailureOfLoading(""),
              "dbase1.txt, line 1: expected the name of the lottery, but the file ends there.");
}

TEST_F(DrawDatabase, FailsWithANumberBeyondSixteenBits) {
    EXPECT_EQ(
        FailureOfLoading(ukHeader + Draws(1) + "19 Nov 94,1,2,32768,4,5,6,0,7\r\n"),
        "dbase1.txt, line 5: expected the number in column 3 of a draw (-32768 to 32767), but "
        "\"32768\" stands there.");
    EXPECT_EQ(FailureOfLoading("x\r\n\r\n6,49,0,0,99999\r\n"),
              "dbase1.txt, line 3: expected whether there is a bonus ball (-32768 to 32767), but "
              "\"99999\" stands there.");
}

TEST_F(DrawDatabase, LoadsTheLeastAndTheLargestNumberOfSixteenBits) {
    Load(ukHeader + "19 Nov 94,32767,-32768,32767.4,-32768.5,0,0,0,0\r\n");
    EXPECT_EQ(DrawRow(1), (Row{0, 32767, -32768, 32767, -32768, 0, 0, 0, 0}));
}

TEST_F(DrawDatabase, FailsWhereItWasLockedBetweenListingAndLoading) {
    folder_.Write("dbase1.txt", ukHeader + Draws(1));
    ListDatabases(state_, folder_);
    folder_.Lock("dbase1.txt");
    const auto before = folder_.Snapshot();
    EXPECT_EQ(FailureOf([this] { LoadDatabase(state_, folder_, 0); }),
              "dbase1.txt: the file is locked.");
    EXPECT_EQ(folder_.Snapshot(), before);
}

TEST_F(DrawDatabase, FailsWhereItWasDeletedBetweenListingAndLoading) {
    folder_.Write("dbase1.txt", ukHeader);
    ListDatabases(state_, folder_);
    folder_.Delete("dbase1.txt");
    EXPECT_THROW(LoadDatabase(state_, folder_, 0), Failure);
}

TEST_F(DrawDatabase, FailsAtAPlaceOfTheListThatHoldsNone) {
    EXPECT_EQ(FailureOf([this] { LoadDatabase(state_, folder_, 0); }),
              "Expected draw database number 1 (a file dbase*.txt in the program's folder), but "
              "there is none.");
    EXPECT_THROW(LoadDatabase(state_, folder_, -1), Failure);
    EXPECT_THROW(LoadDatabase(state_, folder_, 76), Failure);
}

TEST_F(DrawDatabase, GivesItsHeaderAloneAndLeavesTheDraws) {
    Load(ukHeader + Draws(3));
    folder_.Write("dbase2.txt", "Other\r\n\r\n5,34,1,14,0\r\n1,2");
    state_.DbaseFiles(1) = "dbase2.txt";
    LoadDatabaseHeader(state_, folder_, 1);
    EXPECT_EQ(state_.DbaseFile, "dbase2.txt");
    EXPECT_EQ(state_.LotteryName, "Other");
    EXPECT_EQ(state_.MaxPball, 14);
    EXPECT_EQ(Count(), 3);
}

// What the format says, a step at a time, with nothing shared with the program's own reader.
namespace plain {

struct Loaded {
    std::array<std::string, 2> lines;
    std::array<long long, 5> header{};
    std::vector<std::array<int, 8>> draws;
};

class Text {
  public:
    // Line ends as line feeds, so that there is but one.
    explicit Text(const std::string& content) {
        for (std::size_t i = 0; i < content.size(); ++i) {
            const bool pair =
                content[i] == '\r' && i + 1 < content.size() && content[i + 1] == '\n';
            if (!pair) text_ += content[i] == '\r' ? '\n' : content[i];
        }
    }

    bool AtEnd() const { return text_.empty() && !emptyFieldLeft_; }

    std::optional<std::string> Line() { return Until("\n"); }

    std::optional<std::string> Field() {
        std::optional<std::string> field = Until(",\n");
        while (field && field->starts_with(' ')) field->erase(0, 1);
        while (field && field->ends_with(' ')) field->pop_back();
        return field;
    }

  private:
    std::optional<std::string> Until(const char* ends) {
        if (AtEnd()) return std::nullopt;
        emptyFieldLeft_ = false;
        const std::size_t end = text_.find_first_of(ends);
        const std::string found = text_.substr(0, end);
        if (end != std::string::npos)
            emptyFieldLeft_ = text_[end] == ',' && end + 1 == text_.size();
        text_.erase(0, end == std::string::npos ? end : end + 1);
        return found;
    }

    std::string text_;
    bool emptyFieldLeft_ = false;
};

// Blanks, a sign, digits, a point, digits; rounded half to even.
long double Number(const std::string& text) {
    std::size_t i = 0;
    while (i < text.size() && text[i] == ' ') ++i;
    const bool negative = i < text.size() && text[i] == '-';
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
    long double value = 0;
    long double place = 0;
    for (; i < text.size(); ++i) {
        if (text[i] == '.' && place == 0) {
            place = 1;
        } else if (text[i] >= '0' && text[i] <= '9') {
            value = value * 10 + (text[i] - '0');
            place *= 10;
        } else {
            break;
        }
    }
    if (place > 0) value /= place;
    return std::nearbyint(negative ? -value : value);
}

std::optional<int> Short(const std::optional<std::string>& field) {
    if (!field) return std::nullopt;
    const long double value = Number(*field);
    if (value < -32768 || value > 32767) return std::nullopt;
    return static_cast<int>(value);
}

std::optional<std::array<int, 8>> Draw(Text& text) {
    std::array<int, 8> draw{};
    if (!text.Field()) return std::nullopt;
    for (int& number : draw) {
        const auto read = Short(text.Field());
        if (!read) return std::nullopt;
        number = *read;
    }
    return draw;
}

std::optional<Loaded> Load(const std::string& content) {
    Text text(content);
    Loaded loaded;
    for (std::string& line : loaded.lines) {
        const auto read = text.Line();
        if (!read) return std::nullopt;
        line = *read;
    }
    for (int i = 0; i < 5; ++i) {
        const auto field = text.Field();
        if (!field || (i == 4 && !Short(field))) return std::nullopt;
        const long double most = 2147483647.0L;
        loaded.header.at(static_cast<std::size_t>(i)) =
            static_cast<long long>(std::min(most, std::max(-most - 1, Number(*field))));
    }
    while (!text.AtEnd()) {
        const auto draw = Draw(text);
        if (!draw || loaded.draws.size() == 3000) return std::nullopt;
        loaded.draws.push_back(*draw);
    }
    return loaded;
}

// The load with the program's reader, but of one field after the other, so that it fails in the
// same words.
void LoadFieldByField(State& state, const std::string& content) {
    FieldReader reader(content, "dbase1.txt");
    ReadDatabaseHeader(state, reader);
    int draw = 1;
    for (; !reader.AtEnd(); ++draw) {
        const std::string_view date = reader.ReadField("the date of a draw");
        if (draw > 3000) throw reader.Unexpected("no more than 3000 draws", date);
        ReadDraw(state.Draws.Row(draw), reader);
    }
    for (; draw <= 3000; ++draw) std::fill_n(state.Draws.Row(draw) + 1, 8, std::int16_t{0});
}

}  // namespace plain

namespace {

class AnyDrawDatabase : public DrawDatabase {
  protected:
    void ExpectLoadedAs(const plain::Loaded& expected) {
        EXPECT_EQ(state_.LotteryName, expected.lines[0]);
        EXPECT_EQ(state_.LotteryURL, expected.lines[1]);
        const std::array<long long, 5> header = {state_.Picks, state_.MaxNum, state_.HasPball,
                                                 state_.MaxPball, state_.HasBonus};
        EXPECT_EQ(header, expected.header);
        for (std::size_t i = 0; i < 3000; ++i) {
            const std::int16_t* row = std::as_const(state_).Draws.Row(static_cast<int>(i) + 1);
            const auto draw = i < expected.draws.size() ? expected.draws[i] : std::array<int, 8>{};
            ASSERT_TRUE(std::equal(draw.begin(), draw.end(), row + 1)) << "draw " << i + 1;
        }
    }

    // Loads like the plain reading, or fails where that fails.
    void Check(const std::string& content) {
        SCOPED_TRACE(content.substr(0, 300));
        const auto expected = plain::Load(content);
        const std::string failure = FailureOfLoading(content);
        if (expected) {
            EXPECT_EQ(failure, "no failure");
            ExpectLoadedAs(*expected);
        } else {
            EXPECT_EQ(failure.substr(0, 17), "dbase1.txt, line ");
        }
    }
};

}  // namespace

TEST_F(AnyDrawDatabase, CutAtAnyByteLoadsAsItReadsOrFails) {
    const std::string whole =
        ukHeader + "07 Oct 15,30,7,44,11,49,5,,25\r\n03 Oct 15,15,14,44,8,9,35,7,\r\n";
    for (std::size_t size = 0; size <= whole.size(); ++size) Check(whole.substr(0, size));
}

TEST_F(AnyDrawDatabase, LoadsAsItReadsWhateverItHolds) {
    std::mt19937 random(20261121);
    const Names pieces = {",",  ",",  ",",  "\r\n", "\n",  "\r",   " ",        "1",
                          "23", "-4", "+5", "6.5",  "7.5", ".",    "99999",    "32768.4",
                          "x",  "\"", "0",  "\t",   "1e3", "&H1F", "19 Nov 94"};
    for (int file = 0; file < 3000; ++file) {
        std::string content = file % 2 == 0 ? ukHeader : "";
        const auto length = random() % 60;
        for (unsigned i = 0; i < length; ++i) content += pieces[random() % pieces.size()];
        Check(content);
        if (HasFailure()) return;
    }
}

TEST_F(AnyDrawDatabase, LoadsAsItReadsWhereBytesWereChanged) {
    std::mt19937 random(7);
    for (int file = 0; file < 3000; ++file) {
        std::string content = ukHeader + Draws(5);
        for (unsigned change = 0; change <= random() % 4; ++change) {
            content[random() % content.size()] = static_cast<char>(random());
        }
        Check(content);
        if (HasFailure()) return;
    }
}

TEST_F(AnyDrawDatabase, LoadsAsItReadsForRandomBytes) {
    std::mt19937 random(11);
    for (int file = 0; file < 300; ++file) {
        std::string content(random() % 500, ' ');
        for (char& byte : content) byte = static_cast<char>(random());
        Check(content);
        if (HasFailure()) return;
    }
}

TEST_F(AnyDrawDatabase, LoadsAndFailsAsItReadsFieldByField) {
    std::mt19937 random(20261122);
    const auto any = [&random](const Names& pieces) { return pieces[random() % pieces.size()]; };
    const Names numbers = {"1",  "23",    "0",      "",   "049", "1234", "9999",
                           "10", "10000", "-32769", " 7", "8 ",  "x",    "\"5\""};
    const Names plainNumbers = {"1", "23", "49", "0", "", "07"};
    const Names dates = {"19 Nov 94", "", "19-Nov-1994", "\"19 Nov 94\"", " 1 ", "\""};
    const Names ends = {"\r\n", "\r\n", "\r\n", "\n", "\r", ",", "\r\n\r\n", "\r\n\n", ""};
    const auto fieldByField = std::make_unique<State>();
    int failures = 0;
    for (int file = 0; file < 3000; ++file) {
        std::string content = ukHeader;
        for (auto draw = random() % 6; draw > 0; --draw) {
            const bool odd = random() % 4 == 0;
            content += odd ? any(dates) : dates[0];
            const auto columns = odd ? 7 + random() % 3 : 8;
            for (unsigned column = 0; column < columns; ++column) {
                content += "," + any(odd ? numbers : plainNumbers);
            }
            content += odd ? any(ends) : ends[0];
        }
        fieldByField->Draws = state_.Draws;
        const std::string expected =
            FailureOf([&] { plain::LoadFieldByField(*fieldByField, content); });
        ASSERT_EQ(FailureOfLoading(content), expected) << content;
        for (int draw = 0; draw <= 3000; ++draw) {
            const std::int16_t* row = std::as_const(*fieldByField).Draws.Row(draw);
            ASSERT_TRUE(std::equal(row, row + 9, std::as_const(state_).Draws.Row(draw)))
                << "draw " << draw << " of " << content;
        }
        failures += expected == "no failure" ? 0 : 1;
    }
    EXPECT_GT(failures, 100);
    EXPECT_LT(failures, 2900);
}

TEST_F(DrawDatabase, IsListedByItsFirstLineInTheOrderOfTheFileNames) {
    folder_.Write("dbase2.txt", "Second\r\n");
    folder_.Write("DBASE100.TXT", "Hundredth");
    folder_.Write("dbase1.txt", " First, of all \r\n");
    folder_.Write("Notes.txt", "no database");
    EXPECT_EQ(ListDatabases(state_, folder_), (Names{" First, of all ", "Hundredth", "Second"}));
    EXPECT_EQ(state_.DbaseFiles(0), "dbase1.txt");
    EXPECT_EQ(state_.DbaseFiles(1), "DBASE100.TXT");
    EXPECT_EQ(state_.DbaseFiles(2), "dbase2.txt");
    EXPECT_EQ(state_.DbaseFiles(3), "");
}

TEST_F(DrawDatabase, IsNotListedInAnEmptyFolder) {
    EXPECT_TRUE(ListDatabases(state_, folder_).empty());
}

TEST_F(DrawDatabase, LeavesTheListWithItsFile) {
    folder_.Write("dbase1.txt", "First");
    ListDatabases(state_, folder_);
    folder_.Delete("dbase1.txt");
    ListDatabases(state_, folder_);
    EXPECT_EQ(state_.DbaseFiles(0), "");
}

TEST_F(DrawDatabase, IsListedWithAnEmptyName) {
    folder_.Write("dbase1.txt", "\r\n");
    EXPECT_EQ(ListDatabases(state_, folder_), Names{""});
}

TEST_F(DrawDatabase, FailsTheListWithoutAFirstLine) {
    folder_.Write("dbase1.txt", "");
    EXPECT_EQ(FailureOf([this] { ListDatabases(state_, folder_); }),
              "dbase1.txt, line 1: expected the name of the lottery, but the file ends there.");
}

TEST_F(DrawDatabase, IsListedSeventySixTimesAndFailsTheListAtTheNext) {
    for (int file = 100; file < 176; ++file) {
        folder_.Write("dbase" + std::to_string(file) + ".txt", ukHeader);
    }
    EXPECT_EQ(ListDatabases(state_, folder_).size(), 76U);
    EXPECT_EQ(state_.DbaseFiles(75), "dbase175.txt");
    folder_.Write("dbase176.txt", ukHeader);
    const auto before = folder_.Snapshot();
    EXPECT_EQ(
        FailureOf([this] { ListDatabases(state_, folder_); }),
        "Expected at most 76 draw databases (dbase*.txt) in the program's folder, but there are "
        "77; the first too many is \"dbase176.txt\".");
    EXPECT_EQ(folder_.Snapshot(), before);
}

namespace {

struct History {
    const char* file;
    const char* lottery;
    std::array<int, 5> header;
    int draws;
    Row newest;
    Row oldest;
};

const History histories[] = {{"dbase068.txt",
                              "US Mega Millions",
                              {5, 52, 1, 52, 0},
                              324,
                              {0, 9, 13, 40, 46, 50, 0, 0, 30},
                              {0, 15, 18, 25, 33, 47, 0, 0, 30}},
                             {"dbase069.txt",
                              "US Powerball",
                              {5, 53, 1, 42, 0},
                              302,
                              {0, 8, 39, 31, 44, 22, 0, 0, 11},
                              {0, 9, 38, 43, 10, 42, 0, 0, 5}},
                             {"dbase1.txt",
                              "La Primitiva",
                              {6, 49, 1, 0, 1},
                              573,
                              {0, 15, 28, 31, 32, 38, 49, 0, 12},
                              {0, 3, 15, 23, 26, 34, 38, 0, 16}},
                             {"dbase100.txt",
                              "UK Lotto",
                              {6, 49, 0, 0, 1},
                              2065,
                              {0, 30, 7, 44, 11, 49, 5, 0, 25},
                              {0, 30, 3, 5, 44, 14, 22, 0, 10}},
                             {"dbase101.txt",
                              "UK Thunderball",
                              {5, 34, 1, 14, 0},
                              964,
                              {0, 5, 6, 7, 8, 10, 0, 0, 13},
                              {0, 8, 26, 28, 31, 32, 0, 0, 6}},
                             {"dbase2.txt",
                              "Lotto 6aus49",
                              {6, 49, 1, 0, 0},
                              2999,
                              {0, 3, 5, 10, 14, 25, 49, 0, 0},
                              {0, 6, 7, 16, 23, 44, 47, 0, 0}},
                             {"dbase3.txt",
                              "New York Lotto",
                              {6, 59, 1, 0, 1},
                              2513,
                              {0, 3, 10, 28, 32, 37, 53, 0, 19},
                              {0, 8, 13, 26, 35, 45, 51, 0, 39}},
                             {"dbase4.txt",
                              "Oz Lotto",
                              {7, 47, 1, 0, 1},
                              1001,
                              {0, 31, 41, 16, 13, 26, 22, 10, 8},
                              {0, 39, 9, 12, 30, 33, 45, 5, 7}}};

std::string RealFile(const std::string& name) {
    std::ifstream file(std::filesystem::path(REAL_DRAWS) / name, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

}  // namespace

TEST_F(AnyDrawDatabase, LoadsTheRealHistories) {
    if (!std::filesystem::exists(REAL_DRAWS)) GTEST_SKIP() << "no real draw histories here";
    for (const History& history : histories) {
        SCOPED_TRACE(history.file);
        const std::string content = RealFile(history.file);
        Load(content);
        const std::array<int, 5> header = {state_.Picks, state_.MaxNum, state_.HasPball,
                                           state_.MaxPball, state_.HasBonus};
        EXPECT_EQ(state_.LotteryName, history.lottery);
        EXPECT_EQ(header, history.header);
        EXPECT_EQ(Count(), history.draws);
        EXPECT_EQ(DrawRow(1), history.newest);
        EXPECT_EQ(DrawRow(history.draws), history.oldest);
        ExpectLoadedAs(*plain::Load(content));
    }
}

TEST_F(DrawDatabase, ListsTheRealHistories) {
    if (!std::filesystem::exists(REAL_DRAWS)) GTEST_SKIP() << "no real draw histories here";
    for (const History& history : histories) folder_.Write(history.file, RealFile(history.file));
    Names lotteries;
    for (const History& history : histories) lotteries.emplace_back(history.lottery);
    EXPECT_EQ(ListDatabases(state_, folder_), lotteries);
}

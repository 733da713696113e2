// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_merge.h"

#include <gtest/gtest.h>

#include "databases/import_formats.h"
#include "tests/core/failures.h"
#include "tests/databases/made_draws.h"

namespace {

const std::string heading = "UK Lotto\r\nhttp://home\r\n6,49,0,0,1\r\n";

ImportedDraw Draw(int day, std::array<std::int16_t, 7> numbers, std::int16_t extra = 0) {
    return {.date = std::chrono::year(2024) / 1 / day, .numbers = numbers, .extra = extra};
}

MergedDatabase Merged(const std::string& database, const std::vector<ImportedDraw>& draws) {
    return MergeDraws(database, "dbase100.txt", draws, ImportRulesOfDates());
}

TEST(ImportMerge, MakesANewDatabase) {
    const ImportRules rules{.picks = 5, .highest = 50, .highestExtra = 12, .hasBonus = false};
    EXPECT_EQ(NewImportDatabase(" Euro\nJackpot ", "http://a", rules,
                                {Draw(9, {5, 4, 3, 2, 1}, 12), Draw(5, {1, 2, 3, 4, 50})},
                                ImportRulesOfDates().today),
              "Euro Jackpot\r\nhttp://a\r\n5,50,1,12,0\r\n09 Jan 24,5,4,3,2,1,0,0,12\r\n"
              "05 Jan 24,1,2,3,4,50,0,0,0\r\n");
    const ImportRules bonus{.picks = 6, .highest = 59, .highestExtra = 0, .hasBonus = true};
    EXPECT_EQ(NewImportDatabase("L", "", bonus, {}, ImportRulesOfDates().today),
              "L\r\n\r\n6,59,0,0,1\r\n");
}

TEST(ImportMerge, WritesYearsThatTwoDigitsCannotTellInFull) {
    ImportedDraw old = Draw(9, {1, 2, 3, 4, 5, 6});
    old.date = std::chrono::year(1930) / 1 / 9;
    const std::string bytes = NewImportDatabase("L", "", {}, {old}, ImportRulesOfDates().today);
    EXPECT_NE(bytes.find("\r\n09-Jan-1930,1,2,"), std::string::npos);
    EXPECT_EQ(Merged(bytes, {old}).there, 1);
}

TEST(ImportMerge, AddsOnlyWhatIsLackingAtTheirDates) {
    const std::string old =
        heading + "09-Jan-2024, 9,8,7,6,5,4,0,3 \r\n05 Jan 24,1,2,3,4,5,6,,7\r\n";
    const MergedDatabase merged =
        Merged(old, {Draw(10, {10, 2, 3, 4, 5, 6}, 7), Draw(9, {4, 5, 6, 7, 8, 9}, 3),
                     Draw(7, {11, 2, 3, 4, 5, 6}, 7), Draw(1, {12, 2, 3, 4, 5, 6}, 7)});
    EXPECT_EQ(merged.bytes, heading +
                                "10 Jan 24,10,2,3,4,5,6,0,7\r\n"
                                "09-Jan-2024, 9,8,7,6,5,4,0,3 \r\n"
                                "07 Jan 24,11,2,3,4,5,6,0,7\r\n"
                                "05 Jan 24,1,2,3,4,5,6,,7\r\n"
                                "01 Jan 24,12,2,3,4,5,6,0,7\r\n");
    EXPECT_EQ(merged.added, 3);
    EXPECT_EQ(merged.there, 1);
    EXPECT_TRUE(merged.conflicts.empty());
}

TEST(ImportMerge, AgainAddsNothingAndChangesNoByte) {
    const std::vector<ImportedDraw> draws = {Draw(10, {10, 2, 3, 4, 5, 6}, 7),
                                             Draw(7, {11, 2, 3, 4, 5, 6}, 7)};
    const MergedDatabase first = Merged(heading + "05 Jan 24,1,2,3,4,5,6,,7", draws);
    EXPECT_EQ(first.added, 2);
    const MergedDatabase second = Merged(first.bytes, draws);
    EXPECT_EQ(second.bytes, first.bytes);
    EXPECT_EQ(second.added, 0);
    EXPECT_EQ(second.there, 2);
    const std::string bare = heading + "05 Jan 24,1,2,3,4,5,6,,7";
    EXPECT_EQ(Merged(bare, {}).bytes, bare);
    EXPECT_EQ(Merged(bare, {Draw(5, {1, 2, 3, 4, 5, 6}, 7)}).bytes, bare);
}

TEST(ImportMerge, ListsAndLeavesADrawWithOtherNumbers) {
    const std::string old = heading + "05 Jan 24,1,2,3,4,5,6,0,7\r\n";
    const MergedDatabase merged = Merged(old, {Draw(5, {1, 2, 3, 4, 5, 8}, 7)});
    EXPECT_EQ(merged.bytes, old);
    ASSERT_EQ(merged.conflicts.size(), 1U);
    EXPECT_EQ(merged.conflicts[0].why, "The lottery has 1, 2, 3, 4, 5, 6 + 7 on 05 Jan 2024.");
    EXPECT_EQ(Merged(old, {Draw(5, {1, 2, 3, 4, 5, 6}, 8)}).conflicts.size(), 1U);
}

TEST(ImportMerge, KeepsToTheRulesOfTheLottery) {
    const std::string old = heading + "05 Jan 24,1,2,3,4,5,6,0,7\r\n";
    const auto why = [&old](const ImportedDraw& draw) {
        const MergedDatabase merged = Merged(old, {draw});
        EXPECT_EQ(merged.bytes, old);
        return merged.unfit.empty() ? std::string() : merged.unfit[0].why;
    };
    EXPECT_EQ(why(Draw(6, {1, 2, 3, 4, 5, 50}, 7)),
              "50 is above 49, the highest number by the lottery's rules.");
    EXPECT_EQ(why(Draw(6, {1, 2, 3, 4, 5, 6}, 50)),
              "50 is above 49, the highest number by the lottery's rules.");
    EXPECT_EQ(why(Draw(6, {1, 2, 3, 4, 5}, 7)), "The lottery's draws do not have 5 numbers.");
    EXPECT_EQ(why(Draw(6, {1, 2, 3, 4, 5, 6})), "It lacks the lottery's extra ball.");
    EXPECT_EQ(Merged(old, {Draw(6, {1, 2, 3, 4, 5, 49}, 7)}).added, 1);
}

TEST(ImportMerge, LeavesOutTheExtraBallOfALotteryWithoutOne) {
    const std::string old = "Hot Picks\r\n\r\n4,49,0,0,0\r\n05 Jan 24,1,2,3,4,5,6,0,0\r\n";
    const MergedDatabase merged =
        Merged(old, {Draw(6, {7, 2, 3, 4, 5, 6}, 9), Draw(5, {6, 5, 4, 3, 2, 1}, 9)});
    EXPECT_EQ(merged.there, 1);
    EXPECT_EQ(merged.bytes,
              "Hot Picks\r\n\r\n4,49,0,0,0\r\n06 Jan 24,7,2,3,4,5,6,0,0\r\n05 Jan "
              "24,1,2,3,4,5,6,0,0\r\n");
}

TEST(ImportMerge, WritesNumbersAscendingWhereAllStoredOnesAre) {
    std::string old = "L\r\n\r\n6,49,0,0,0\r\n";
    for (int day = 9; day >= 5; --day)
        old += "0" + std::to_string(day) + " Jan 24,1,2,3,4,5,6,0,0\r\n";
    EXPECT_NE(Merged(old, {Draw(20, {30, 20, 10, 5, 4, 3})})
                  .bytes.find("20 Jan 24,3,4,5,10,20,30,0,0\r\n"),
              std::string::npos);
}

TEST(ImportMerge, AddsTheOtherDrawOfADate) {
    const std::string old = "L\r\n\r\n6,49,0,0,0\r\n05 Jan 24,1,2,3,4,5,6,0,0\r\n";
    const ImportedDraw first = Draw(5, {1, 2, 3, 4, 5, 6});
    const ImportedDraw second = Draw(5, {7, 8, 9, 10, 11, 12});
    const MergedDatabase merged = Merged(old, {second, first});
    EXPECT_EQ(merged.added, 1);
    EXPECT_EQ(merged.there, 1);
    EXPECT_EQ(
        merged.bytes,
        "L\r\n\r\n6,49,0,0,0\r\n05 Jan 24,7,8,9,10,11,12,0,0\r\n05 Jan 24,1,2,3,4,5,6,0,0\r\n");
    EXPECT_EQ(Merged(merged.bytes, {second, first}).added, 0);
    EXPECT_EQ(Merged(old, {second}).conflicts.size(), 1U);
}

TEST(ImportMerge, FillsALotteryWithoutDrawsAndOneInAnyOrder) {
    EXPECT_EQ(Merged(heading, {Draw(5, {1, 2, 3, 4, 5, 6}, 7)}).bytes,
              heading + "05 Jan 24,1,2,3,4,5,6,0,7\r\n");
    const std::string odd = heading + "01 Jan 24,1,2,3,4,5,6,0,7\r\n09 Jan 24,1,2,3,4,5,9,0,7\r\n";
    EXPECT_EQ(Merged(odd, {Draw(5, {1, 2, 3, 4, 5, 8}, 7)}).bytes,
              heading +
                  "05 Jan 24,1,2,3,4,5,8,0,7\r\n01 Jan 24,1,2,3,4,5,6,0,7\r\n"
                  "09 Jan 24,1,2,3,4,5,9,0,7\r\n");
}

TEST(ImportMerge, StopsAtTheMostDrawsThatEverythingCanWalk) {
    std::vector<ImportedDraw> draws;
    Date date = std::chrono::year(2024) / 1 / 1;
    for (int i = 0; i < 3100; ++i) {
        draws.push_back(Draw(1, {1, 2, 3, 4, 5, 6}, 7));
        draws.back().date = date;
        date = DaysAfter(date, -1);
    }
    const MergedDatabase merged = Merged(heading + "05 Jan 24,1,2,3,4,5,6,0,7\r\n", draws);
    EXPECT_EQ(merged.added, 2998);
    EXPECT_EQ(merged.tooMany, 102);
    EXPECT_EQ(std::count(merged.bytes.begin(), merged.bytes.end(), '\n'), 3 + 2999);
}

TEST(ImportMerge, FailsWhereTheDatabaseCannotBeRead) {
    const auto failure = [](const std::string& bytes) {
        return FailureOf([&] { Merged(bytes, {}); });
    };
    EXPECT_EQ(
        failure("UK Lotto\r\n"),
        "dbase100.txt, line 2: expected the web address of the lottery, but the file ends there.");
    EXPECT_NE(failure(heading + "5 Foo,1,2,3,4,5,6,0,7\r\n").find("dbase100.txt, line 4"),
              std::string::npos);
    EXPECT_NE(failure(heading + "05 Jan 24,1,2,3,4,5,6,0,7\r\n\r\n").find("dbase100.txt, line 5"),
              std::string::npos);
}

ImportFormat SomeFormat() {
    ImportFormat format;
    format.source = "https://example.org/lotto.csv";
    format.database = "dbase1.txt";
    format.headings = {"Date", "Ball 1", "", "Set"};
    format.mapping.separator = ImportSeparator::WideBlanks;
    format.mapping.hasHeading = true;
    format.mapping.dateOrder = Region::Order::MonthDayYear;
    format.mapping.columns = {ColumnRole::Dated, ColumnRole::Numbers, ColumnRole::OtherExtra,
                              ColumnRole::Nothing};
    format.mapping.picks = 5;
    format.mapping.keptExtra = 2;
    format.mapping.extraFromSameDrum = true;
    format.mapping.sameDate = SameDate::KeepAll;
    format.mapping.drawNumberColumn = 3;
    format.mapping.productColumn = 2;
    format.mapping.product = "Lotto";
    return format;
}

TEST(ImportFormats, AreReadAsTheyWereWritten) {
    ImportFormats formats;
    formats.formats.push_back(SomeFormat());
    ImportFormat plain;
    plain.source = "clipboard";
    plain.mapping.columns = {ColumnRole::Dated, ColumnRole::Numbers};
    formats.formats.push_back(plain);
    const std::string text = ImportFormatsText(formats);
    const ImportFormats read = ReadImportFormats(text);
    EXPECT_EQ(read.formats, formats.formats);
    EXPECT_TRUE(read.problems.empty());
    EXPECT_EQ(ImportFormatsText(read), text);
    EXPECT_TRUE(text.starts_with("# How draws were imported"));
    EXPECT_NE(text.find("\r\n[https://example.org/lotto.csv]\r\nlottery = dbase1.txt\r\n"
                        "separator = two blanks\r\ndates = month day year\r\n"
                        "headings = Date | Ball 1 |  | Set\r\n"
                        "columns = date, numbers, other extra, -\r\nmain numbers = 5\r\n"
                        "extra ball = same numbers\r\nkept extra = 2\r\ndraws of one date = all\r\n"
                        "column of draw numbers = 4\r\ncolumn of games = 3\r\ngame = Lotto\r\n"),
              std::string::npos);
    EXPECT_TRUE(read.formats[0].IsAddress());
    EXPECT_FALSE(read.formats[1].IsAddress());
}

TEST(ImportFormats, AreReadHoweverTheyWereEdited) {
    const ImportFormats read = ReadImportFormats(
        "\n [ clipboard ] \n# mine\n  COLUMNS=Date,number,Number , number,number\rMain Numbers = "
        "4\n\n");
    ASSERT_TRUE(read.problems.empty()) << read.problems[0];
    ASSERT_EQ(read.formats.size(), 1U);
    EXPECT_EQ(read.formats[0].source, "clipboard");
    EXPECT_EQ(read.formats[0].mapping.picks, 4);
    EXPECT_EQ(read.formats[0].mapping.separator, ImportSeparator::Comma);
    EXPECT_TRUE(ReadImportFormats("").formats.empty());
}

TEST(ImportFormats, KeepABlockWithAMistakeAndTellIt) {
    const std::string good = "[good]\r\ncolumns = date, numbers\r\n";
    const std::string bad = "[bad]\r\nseparator = dots\r\ncolumns = date, numbers\r\n";
    const ImportFormats read = ReadImportFormats(bad + good);
    ASSERT_EQ(read.formats.size(), 1U);
    EXPECT_EQ(read.formats[0].source, "good");
    ASSERT_EQ(read.problems.size(), 1U);
    EXPECT_EQ(read.problems[0],
              "ImportFormats.txt, line 2: expected one of comma, semicolon, tab, bar, blanks, two "
              "blanks, "
              "web page, but \"separator = dots\" stands there.");
    EXPECT_EQ(read.unread, bad);
    const ImportFormats again = ReadImportFormats(ImportFormatsText(read));
    EXPECT_EQ(again.formats, read.formats);
    EXPECT_EQ(again.unread, read.unread);
}

TEST(ImportFormats, TellEachMistake) {
    const auto problem = [](const std::string& line) {
        const ImportFormats read =
            ReadImportFormats("[a]\r\ncolumns = date, numbers\r\n" + line + "\r\n");
        return read.problems.empty() ? std::string() : read.problems[0];
    };
    EXPECT_EQ(problem("main numbers = 8"),
              "ImportFormats.txt, line 3: expected a number from 4 to 7, but \"main numbers = 8\" "
              "stands there.");
    EXPECT_NE(problem("columns = date, foo").find("some of -, date, number"), std::string::npos);
    EXPECT_NE(problem("nonsense").find("a name, \"=\" and a value"), std::string::npos);
    EXPECT_NE(problem("colour = red").find("lottery, separator"), std::string::npos);
    EXPECT_NE(problem("column of games = 0").find("a number from 1 to 400"), std::string::npos);
    EXPECT_NE(problem("columns = date").find("line 1: the block below tells no draws."),
              std::string::npos);
    const ImportFormats stray =
        ReadImportFormats("separator = tab\r\n[a]\r\ncolumns = date, numbers\r\n");
    EXPECT_EQ(stray.formats.size(), 1U);
    EXPECT_EQ(stray.problems.size(), 1U);
    EXPECT_EQ(ReadImportFormats(ImportFormatsText(stray)).formats, stray.formats);
}

TEST(ImportFormats, AreFoundBySourceAndShape) {
    ImportFormats formats;
    ImportFormat format = SomeFormat();
    Remember(formats, format);
    const auto found = [&](std::string_view source, std::size_t columns,
                           const std::vector<std::string>& headings) {
        return FormatFor(formats, source, ImportSeparator::WideBlanks, columns, headings);
    };
    EXPECT_EQ(found(format.source, 4, format.headings), &formats.formats[0]);
    EXPECT_EQ(found("other.csv", 4, format.headings), &formats.formats[0]);
    EXPECT_EQ(found(format.source, 4, {"Date", "Other"}), nullptr);
    EXPECT_EQ(FormatFor(formats, format.source, ImportSeparator::Comma, 4, format.headings),
              nullptr);
    format.source = "bare.csv";
    format.headings.clear();
    Remember(formats, format);
    EXPECT_EQ(found("bare.csv", 4, {}), &formats.formats[0]);
    EXPECT_EQ(found("bare.csv", 5, {}), nullptr);
    EXPECT_EQ(found("other.csv", 4, {}), nullptr);
    EXPECT_EQ(FormatOfDatabase(formats, "dbase1.txt"), &formats.formats[0]);
    EXPECT_EQ(FormatOfDatabase(formats, ""), nullptr);
}

TEST(ImportFormats, AreRememberedOnceEachAndForgottenInTheEnd) {
    ImportFormats formats;
    for (int i = 0; i < 60; ++i) {
        ImportFormat format = SomeFormat();
        format.source = "file" + std::to_string(i);
        Remember(formats, format);
    }
    EXPECT_EQ(formats.formats.size(), ImportFormats::most);
    EXPECT_EQ(formats.formats[0].source, "file59");
    ImportFormat again = SomeFormat();
    again.source = "file30";
    again.database = "dbase7.txt";
    Remember(formats, again);
    EXPECT_EQ(formats.formats.size(), ImportFormats::most);
    EXPECT_EQ(formats.formats[0].database, "dbase7.txt");
}

}  // namespace

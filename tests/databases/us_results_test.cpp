// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/us_results.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/core/failures.h"
#include "tests/core/regions.h"
#include "tests/databases/real_pages.h"

namespace {

using namespace us_results;

UsDates Dates(Region region) {
    return UsDates(
        DateRules{.region = std::move(region), .today = std::chrono::year(2005) / 6 / 1});
}

const UsDates british = Dates(EnglishRegion());
const UsDates american = Dates(EnglishRegion(Region::Order::MonthDayYear));

const std::string megaHead = "US Mega Millions\r\nhttp://home\r\n5,52,1,52,0\r\n";
const std::string powerHead = "US Powerball\r\nhttp://home\r\n5,53,1,42,0\r\n";

std::string Records(const std::string& text, const std::string& head) {
    EXPECT_TRUE(text.starts_with(head)) << text;
    return text.substr(std::min(head.size(), text.size()));
}

std::string MegaMillions(std::string_view page, const UsDates& dates = british) {
    return Records(MegaMillionsDatabase(MegaMillionsWorkText(page), "http://home", dates,
                                        "Temp.txt (http://page)"),
                   megaHead);
}

std::string Powerball(std::string_view page, const UsDates& dates = british) {
    return Records(
        PowerballDatabase(PowerballWorkText(page), "http://home", dates, "Temp.txt (http://page)"),
        powerHead);
}

std::string MegaFailure(std::string_view page) {
    return FailureOf([&] { MegaMillions(page); });
}

std::string PowerFailure(std::string_view page) {
    return FailureOf([&] { Powerball(page); });
}

std::string DateIn(std::string_view text, const UsDates& dates) {
    const auto date = dates.GetDate(text);
    return date ? MediumDate(*date) : "none";
}

TEST(UsDates, HaveTheMonthFirstInEveryRegion) {
    const UsDates german = Dates(GermanRegion());
    for (const UsDates& dates : {british, american, german}) {
        EXPECT_EQ(DateIn("01/06/2005", dates), "06-Jan-2005");
        EXPECT_EQ(DateIn(" 07/26/2017 ", dates), "26-Jul-2017");
        EXPECT_EQ(DateIn("6/5/2005", dates), "05-Jun-2005");
        EXPECT_EQ(DateIn("06-21-2005", dates), "21-Jun-2005");
        EXPECT_EQ(DateIn("26/07/2017", dates), "none");
        EXPECT_EQ(DateIn("06/2005", dates), "none");
        EXPECT_EQ(DateIn("", dates), "none");
        EXPECT_EQ(DateIn("06/21/2005 10 59", dates), "none");
    }
}

TEST(UsDates, MayHaveBackslashesWhereTheRegionIsBritish) {
    EXPECT_EQ(DateIn("06\\21\\2005", british), "21-Jun-2005");
    EXPECT_EQ(DateIn("06\\21-2005", british), "21-Jun-2005");
    EXPECT_EQ(DateIn("06\\21\\2005", american), "none");
}

TEST(MegaMillions, LieInTheWorkFileFromTheLastLineToTheFirst) {
    EXPECT_EQ(MegaMillionsWorkText("a\rb\rc\r"), "\r\n\r\nc\r\nb\r\na\r\n");
    EXPECT_EQ(MegaMillionsWorkText("a\rb"), "\r\nb\r\na\r\n");
    EXPECT_EQ(MegaMillionsWorkText("a\r\nb\r\n"), "\r\n\n\r\n\nb\r\na\r\n");
    EXPECT_EQ(MegaMillionsWorkText("a\nb\n"), "\r\na\nb\n\r\n");
    EXPECT_EQ(MegaMillionsWorkText("a\r\rb"), "\r\nb\r\n\r\na\r\n");
    EXPECT_EQ(MegaMillionsWorkText("\ra"), "\r\na\r\n\r\n");
    EXPECT_EQ(MegaMillionsWorkText(""), "\r\n\r\n");
}

TEST(MegaMillions, LieInTheWorkFileCleaned) {
    EXPECT_EQ(MegaMillionsWorkText("\xEF\xBB\xBF"
                                   "1;2:Mega Ball3mega ball4MEGA BALL5Mega ball6"),
              "\r\n1,2 345Mega ball6\r\n");
    EXPECT_EQ(MegaMillionsWorkText("MegaMega Ball BallMEGA ball"), "\r\nMega BallMEGA ball\r\n");
}

TEST(MegaMillions, AreRecordsNewestFirst) {
    EXPECT_EQ(MegaMillions("Date;Balls;Mega\r\n"
                           "06/17/2005;1;2;3;4;5;Mega Ball: 6\r\n"
                           "06/21/2005;07;8;9;10;11;mega ball: 12\r\n"),
              "21-Jun-2005,07,8,9,10,11,0,0,12\r\n17-Jun-2005,1,2,3,4,5,0,0,6\r\n");
    EXPECT_EQ(MegaMillions("01/06/2005,x,02,,4,5,Mega ball 6\r\n"),
              "06-Jan-2005,x,02,,4,5,0,0,Mega ball 6\r\n");
}

TEST(MegaMillions, AreTheSameInBothOrdersOfDates) {
    const std::string page = "Date\r\n01/06/2005,1,2,3,4,5,6\r\n";
    EXPECT_EQ(MegaMillions(page, british), "06-Jan-2005,1,2,3,4,5,0,0,6\r\n");
    EXPECT_EQ(MegaMillions(page, american), "06-Jan-2005,1,2,3,4,5,0,0,6\r\n");
    EXPECT_EQ(MegaMillions("06\\21\\2005,1,2,3,4,5,6\r"), "21-Jun-2005,1,2,3,4,5,0,0,6\r\n");
}

TEST(MegaMillions, OfEveryLineEndAreRead) {
    const std::string newer = "21-Jun-2005,7,8,9,10,11,0,0,12\r\n";
    const std::string older = "17-Jun-2005,1,2,3,4,5,0,0,6\r\n";
    const std::string first = "06/17/2005,1,2,3,4,5,6";
    const std::string second = "06/21/2005,7,8,9,10,11,12";
    for (const std::string end : {"\r", "\r\n"}) {
        EXPECT_EQ(MegaMillions("Date" + end + first + end + second + end), newer + older);
        EXPECT_EQ(MegaMillions("Date" + end + first + end + second), newer + older);
        EXPECT_EQ(MegaMillions(first + end + second + end), newer + older);
    }
    EXPECT_EQ(MegaMillions("Date\n" + first + "\n" + second + "\n"), older + newer);
    EXPECT_EQ(MegaMillions("Date\n" + first + "\n" + second), older + newer);
}

TEST(MegaMillions, PassOverEmptyLinesOnlyWhereLinesEndInCrLf) {
    const std::string rows[] = {"06/17/2005,1,2,3,4,5,6", "06/21/2005,7,8,9,10,11,12"};
    const std::string newer = "21-Jun-2005,7,8,9,10,11,0,0,12\r\n";
    const std::string older = "17-Jun-2005,1,2,3,4,5,0,0,6\r\n";
    EXPECT_EQ(MegaMillions(rows[0] + "\r\n\r\n\r\n" + rows[1] + "\r\n\r\n"), newer + older);
    EXPECT_EQ(MegaMillions(rows[0] + "\r\r" + rows[1] + "\r"), newer);
    EXPECT_EQ(MegaMillions(rows[0] + "\n\n" + rows[1] + "\n"), older);
}

TEST(MegaMillions, EndAtTheFirstFieldThatIsNoDate) {
    EXPECT_EQ(MegaMillions("06/14/2005,1,2,3,4,5,6\r\nand so on\r\n06/21/2005,7,8,9,10,11,12\r\n"),
              "21-Jun-2005,7,8,9,10,11,0,0,12\r\n");
    EXPECT_EQ(MegaMillions("06/14/2005,1,2,3,4,5,6\r\n06/21/2005,7,8,9,10,11,12,13\r\n"),
              "21-Jun-2005,7,8,9,10,11,0,0,12\r\n");
}

TEST(MegaMillions, TakeWhatAShortRowLacksFromTheNextLine) {
    EXPECT_EQ(MegaMillions("06/14/2005,1,2,3,4,5,6\r\n06/21/2005,7,8,9,10,11\r\n"),
              "21-Jun-2005,7,8,9,10,11,0,0,06/14/2005\r\n");
    EXPECT_EQ(MegaMillions("06/10/2005,1,2,3,4,5,6\r\n06/14/2005,1,2,3,4,5,6\r\n"
                           "06/21/2005,7,8,9,10\r\n"),
              "21-Jun-2005,7,8,9,10,06/14/2005,0,0,1\r\n");
}

TEST(MegaMillions, MayLackAMegaBallButForTheLastRow) {
    EXPECT_EQ(MegaMillions("06/14/2005,1,2,3,4,5,6\r\n06/21/2005,7,8,9,10,11,\r\n"),
              "21-Jun-2005,7,8,9,10,11,0,0,\r\n14-Jun-2005,1,2,3,4,5,0,0,6\r\n");
    EXPECT_NE(MegaFailure("06/21/2005,7,8,9,10,11,\r\n"), "no failure");
}

TEST(MegaMillions, MayBeginWithALineFeed) {
    EXPECT_EQ(MegaMillions("\n\r\n06/14/2005,1,2,3,4,5,6\r\n"), "14-Jun-2005,1,2,3,4,5,0,0,6\r\n");
}

TEST(MegaMillions, KeepCommasBetweenQuotes) {
    EXPECT_EQ(MegaMillions("\"06/14/2005\",\"1,1\",2,3,4,5, \"6\" \r\n"),
              "14-Jun-2005,1,1,2,3,4,5,0,0,6\r\n");
}

TEST(MegaMillions, WithoutADateOrWithARowCutShortAreAFailure) {
    EXPECT_EQ(MegaFailure("<html>\r\nNot found\r\n"),
              "Temp.txt (http://page), line 7: expected the date of the newest draw, but the file "
              "ends there.");
    for (const std::string end : {"", "\r", "\r\n", "\n"}) {
        EXPECT_NE(MegaFailure("06/14/2005,1,2,3,4,5" + end), "no failure");
        EXPECT_NE(MegaFailure("06/14/2005,1,2,3,4" + end), "no failure");
        EXPECT_NE(MegaFailure("06/14/2005" + end), "no failure");
    }
    EXPECT_EQ(
        MegaFailure("06/14/2005,1,2,3\r\n"),
        "Temp.txt (http://page), line 5: expected ball 4 of a draw, but the file ends there.");
    EXPECT_NE(MegaFailure("06/14/2005 22:59,1,2,3,4,5,6\r\n"), "no failure");
}

TEST(MegaMillions, OfTheRealHistoryComeOutAsTheyWentIn) {
    std::ifstream file(REAL_DRAWS "/dbase068.txt", std::ios::binary);
    if (!file) GTEST_SKIP() << "no real draws here";
    std::vector<std::string> rows;
    std::string known;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        std::erase(line, '\r');
        if (number <= 3) continue;
        const auto date = ReadDate(line.substr(0, line.find(',')), EnglishRegion(),
                                   std::chrono::year(2005) / 6 / 1);
        ASSERT_TRUE(date) << line;
        const std::string balls = line.substr(line.find(','));
        const std::size_t zeros = balls.find(",0,0,");
        ASSERT_NE(zeros, std::string::npos) << line;
        known += MediumDate(*date) + balls + "\r\n";
        rows.push_back(std::to_string(static_cast<unsigned>(date->month())) + "/" +
                       std::to_string(static_cast<unsigned>(date->day())) + "/" +
                       std::to_string(static_cast<int>(date->year())) + balls.substr(0, zeros) +
                       ";Mega Ball: " + balls.substr(zeros + 5) + "\r\n");
    }
    std::string page = "Draw Date;Numbers\r\n";
    for (auto row = rows.rbegin(); row != rows.rend(); ++row) page += *row;
    EXPECT_EQ(rows.size(), 324U);
    EXPECT_EQ(MegaMillions(page, british), known);
    EXPECT_EQ(MegaMillions(page, american), known);
}

TEST(Powerball, LieInTheWorkFileUnchangedWithOneMoreLineEnd) {
    EXPECT_EQ(PowerballWorkText("a\n\rb\r\n"), "a\n\rb\r\n\r\n");
    EXPECT_EQ(PowerballWorkText("\xEF\xBB\xBF\xA3"), "\xA3\r\n");
}

TEST(Powerball, AreRecordsWithoutLeadingZeros) {
    const std::string page =
        "Draw Date   WB1 WB2 WB3 WB4 WB5 PB  PP\r\n"
        "08/12/2017  35  20  49  26  24  19  2\r\n"
        "01/06/2017  01  2   09  10  11  06  \r\n";
    const std::string records =
        "12-Aug-2017,35,20,49,26,24,0,0,19\r\n06-Jan-2017,1,2,9,10,11,0,0,6\r\n";
    EXPECT_EQ(Powerball(page, british), records);
    EXPECT_EQ(Powerball(page, american), records);
}

TEST(Powerball, TakeTwoCharactersOfEachColumn) {
    EXPECT_EQ(Powerball("08/12/2017 5 T5 123 x -1 42\r\n"), "12-Aug-2017,5,0,12,0,-1,0,0,42\r\n");
}

TEST(Powerball, AreReadOutOfQuotedLinesWithCommas) {
    EXPECT_EQ(Powerball("\"08/12/2017 1,2, 3,,4,5,6,7\"\r\n\"08/09/2017,1,2,3,4,5,6\"\r\n"),
              "12-Aug-2017,1,2,3,4,5,0,0,6\r\n09-Aug-2017,1,2,3,4,5,0,0,6\r\n");
}

TEST(Powerball, EndAtAnEmptyLine) {
    const std::string row = "08/12/2017 1 2 3 4 5 6\n";
    const std::string record = "12-Aug-2017,1,2,3,4,5,0,0,6\r\n";
    EXPECT_EQ(Powerball(row + "\n" + row), record);
    EXPECT_EQ(Powerball(row + "   \n" + row), record);
    EXPECT_EQ(Powerball(row + "\"   \"\n" + row), record);
    EXPECT_EQ(Powerball(row + row), record + record);
}

TEST(Powerball, LoseALastRowWithoutItsLineEnd) {
    EXPECT_EQ(Powerball("08/12/2017 1 2 3 4 5 6\r\n08/09/2017 1 2 3 4 5 6"),
              "12-Aug-2017,1,2,3,4,5,0,0,6\r\n");
    EXPECT_EQ(Powerball("08/12/2017 1 2 3 4 5 6"), "");
}

TEST(Powerball, BeginWithTheFirstLineThatBeginsWithADate) {
    EXPECT_EQ(Powerball("Draw 08/19/2017 1\n08/16/2017\n08/12/2017 1 2 3 4 5 6\n"),
              "12-Aug-2017,1,2,3,4,5,0,0,6\r\n");
}

TEST(Powerball, WithoutADateOrWithSomethingElseInARowAreAFailure) {
    const std::string row = "08/12/2017 1 2 3 4 5 6\r\n";
    EXPECT_EQ(PowerFailure("<html>\r\nNot found\r\n"),
              "Temp.txt (http://page), line 4: expected the date of the newest draw, but the file "
              "ends there.");
    EXPECT_EQ(PowerFailure(row + "</html>\r\n"),
              "Temp.txt (http://page), line 2: expected a row that begins with a date and a blank, "
              "but \"</html>\" stands there.");
    EXPECT_EQ(PowerFailure(row + "08/09/2017,1,2,3,4,5,6\r\n"),
              "Temp.txt (http://page), line 2: expected a row that begins with a date and a blank, "
              "but \"08/09/2017\" stands there.");
    EXPECT_EQ(PowerFailure(row + "08/09/2017 1 2 3 4 5\r\n"),
              "Temp.txt (http://page), line 2: expected a row with a date and six columns, but "
              "\"08/09/2017 1 2 3 4 5\" stands there.");
    EXPECT_NE(PowerFailure(row + "results of the lottery are given here for nothing\r\n"),
              "no failure");
}

TEST(Powerball, OfTheRealFileHoldTheDrawsThatAreKnown) {
    const std::string name = "us_powerball_operator_2017.txt";
    const std::string page = RealPage(name);
    if (page.empty()) GTEST_SKIP() << "no real results files here";
    const std::string known = KnownRecords(name, "0,0,");
    EXPECT_EQ(std::count(known.begin(), known.end(), '\n'), 2065);
    EXPECT_EQ(Powerball(page, british), known);
    EXPECT_EQ(Powerball(page, american), known);
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/uk_results.h"

#include <gtest/gtest.h>

#include "tests/core/failures.h"
#include "tests/core/regions.h"
#include "tests/databases/real_pages.h"

namespace {

using namespace uk_results;

const std::string head = "UK Lotto\r\nhttp://home\r\n";

std::string Converted(std::string_view page, int lottery = 0, Region region = EnglishRegion()) {
    const DateRules dates{.region = std::move(region), .today = std::chrono::year(2005) / 6 / 1};
    return DatabaseText(WorkText(page), LotteryAt(lottery), {"UK Lotto", "http://home"}, dates,
                        "Temp.txt (http://page)");
}

std::string Records(std::string_view page, int lottery = 0) {
    const std::string text = Converted(page, lottery);
    const std::string start = head + std::string(LotteryAt(lottery).rules) + "\r\n";
    EXPECT_TRUE(text.starts_with(start)) << text;
    return text.substr(std::min(start.size(), text.size()));
}

std::string FailureIn(std::string_view page) {
    return FailureOf([&] { Converted(page); });
}

TEST(UkResults, AreAHeadingAndARecordForEachRow) {
    EXPECT_EQ(Converted("DrawDate,Ball 1,Ball 2\r\n"
                        "04-Jun-2005,1,2,3,4,5,6,7,1,Arthur\r\n"
                        "01-Jun-2005,49,48,47,46,45,44,43,2,Merlin\r\n"),
              head +
                  "6,49,0,0,1\r\n"
                  "04-Jun-2005,1,2,3,4,5,6,0,7\r\n"
                  "01-Jun-2005,49,48,47,46,45,44,0,43\r\n");
}

TEST(UkResults, OfEachLotteryHaveItsRulesAndItsColumns) {
    const std::string page = "Date\r\n1 Jun 2005,1,2,3,4,5,6,7,8,9\r\n";
    EXPECT_EQ(Records(page, 0), "01-Jun-2005,1,2,3,4,5,6,0,7\r\n");
    EXPECT_EQ(Records(page, 1), "01-Jun-2005,1,2,3,4,5,0,0,6\r\n");
    EXPECT_EQ(Records(page, 2), "01-Jun-2005,1,2,3,4,5,6,7,0\r\n");
    EXPECT_EQ(Records(page, 3), "01-Jun-2005,1,2,3,4,5,6,0,0\r\n");
    EXPECT_EQ(Records(page, 4), "01-Jun-2005,1,2,3,4,5,6,0,0\r\n");
    EXPECT_EQ(LotteryAt(0).rules, "6,49,0,0,1");
    EXPECT_EQ(LotteryAt(1).rules, "5,34,1,14,0");
    EXPECT_EQ(LotteryAt(2).rules, "7,27,0,0,0");
    EXPECT_EQ(LotteryAt(3).rules, "6,49,0,0,0");
    EXPECT_EQ(LotteryAt(4).rules, "4,49,0,0,0");
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(LotteryAt(i).file, "dbase10" + std::to_string(i) + ".txt");
    }
    EXPECT_EQ(FailureOf([] { LotteryAt(5); }), "There is no UK download number 5.");
    EXPECT_EQ(FailureOf([] { LotteryAt(-1); }), "There is no UK download number -1.");
}

TEST(UkResults, LieInTheWorkFileWithCrLfAndOneMoreLineEnd) {
    EXPECT_EQ(WorkText("a\nb\r\nc\n"), "a\r\nb\r\nc\r\n\r\n");
    EXPECT_EQ(WorkText("a\rb"), "ab\r\n");
    EXPECT_EQ(WorkText(""), "\r\n");
    EXPECT_EQ(WorkText("a\n\r\nb\r\r\n"), "a\r\n\r\nb\r\n\r\n");
}

TEST(UkResults, KeepEveryByteButTheMarkAtTheHead) {
    EXPECT_EQ(WorkText("\xEF\xBB\xBFz\xEF\xBB\xBF\xA3\xFF"), "z\xEF\xBB\xBF\xA3\xFF\r\n");
    EXPECT_EQ(WorkText(std::string_view("a\0b", 3)), std::string("a\0b\r\n", 5));
    EXPECT_EQ(Records("\xEF\xBB\xBF"
                      "1-Jun-2005,1,2,3,4,5,6,7\r\n"),
              "01-Jun-2005,1,2,3,4,5,6,0,7\r\n");
}

TEST(UkResults, MayLackTheLineEndOfTheLastRow) {
    EXPECT_EQ(Records("Date\n1-Jun-2005,1,2,3,4,5,6,7,Arthur"), "01-Jun-2005,1,2,3,4,5,6,0,7\r\n");
    EXPECT_EQ(Records("Date\n1-Jun-2005,1,2,3,4,5,6,7"), "01-Jun-2005,1,2,3,4,5,6,0,7\r\n");
}

TEST(UkResults, LoseNoDrawWhereTheLastBallEndsItsRow) {
    EXPECT_EQ(Records("Date\n4-Jun-2005,1,2,3,4,5,6,7\n1-Jun-2005,8,9,10,11,12,13,14\n"),
              "04-Jun-2005,1,2,3,4,5,6,0,7\r\n01-Jun-2005,8,9,10,11,12,13,0,14\r\n");
}

TEST(UkResults, BeginWithTheFirstFieldThatIsADate) {
    EXPECT_EQ(Records("Results,of,4-Jun-2005,1,2,3,4,5,6,7,rest\n1-Jun-2005,1,2,3,4,5,6,9\n"),
              "04-Jun-2005,1,2,3,4,5,6,0,7\r\n01-Jun-2005,1,2,3,4,5,6,0,9\r\n");
}

TEST(UkResults, EndAtAnEmptyFieldInThePlaceOfADate) {
    const std::string row = "1-Jun-2005,1,2,3,4,5,6,7\n";
    const std::string record = "01-Jun-2005,1,2,3,4,5,6,0,7\r\n";
    EXPECT_EQ(Records(row + "\n" + row), record);
    EXPECT_EQ(Records(row + "   \n" + row), record);
    EXPECT_EQ(Records(row + ",2-Jun-2005\n" + row), record);
    EXPECT_EQ(Records(row + "\"\"\n" + row), record);
    EXPECT_EQ(Records(row + row), record + record);
}

TEST(UkResults, TakeWhatAShortRowLacksFromTheNextOne) {
    EXPECT_EQ(Records("4-Jun-2005,1,2,3,4,5\n1-Jun-2005,8,9,10,11\n28-May-2005,1,2,3,4,5,6,7\n"),
              "04-Jun-2005,1,2,3,4,5,1-Jun-2005,0,8\r\n28-May-2005,1,2,3,4,5,6,0,7\r\n");
}

TEST(UkResults, CopyBallsAsTheyStand) {
    EXPECT_EQ(Records("1-Jun-2005,07, x ,,99999,-1,\"3, 4\",7\n"),
              "01-Jun-2005,07,x,,99999,-1,3, 4,0,7\r\n");
}

TEST(UkResults, TakeQuotesOffFieldsAndNotOffTheRestOfALine) {
    EXPECT_EQ(Records("\"1-Jun-2005\",\"1\",2,3,4,5,6,7,\"A,B\n31-May-2005,\"1,2,3,4,5,6,7\n"),
              "01-Jun-2005,1,2,3,4,5,6,0,7\r\n31-May-2005,\"1,2,3,4,5,6,0,7\r\n");
}

TEST(UkResults, ReadDatesAsTheRegionDoes) {
    const std::string row = ",1,2,3,4,5,6,7\n";
    EXPECT_EQ(Records("05/06/2005" + row + "1 June 05" + row),
              "05-Jun-2005,1,2,3,4,5,6,0,7\r\n01-Jun-2005,1,2,3,4,5,6,0,7\r\n");
    EXPECT_EQ(Converted("12-Okt-2005" + row, 0, GermanRegion()),
              head + "6,49,0,0,1\r\n12-Oct-2005,1,2,3,4,5,6,0,7\r\n");
}

TEST(UkResults, WithoutADateAreAFailure) {
    EXPECT_EQ(FailureIn("<html>\nNot found\n</html>\n"),
              "Temp.txt (http://page), line 5: expected the date of the newest draw, but the file "
              "ends there.");
    EXPECT_NE(FailureIn("Date\n1-Jun-2005 20:00,1,2,3,4,5,6,7\n"), "no failure");
    EXPECT_NE(FailureIn("Date\n31-Jun-2005,1,2,3,4,5,6,7\n"), "no failure");
}

TEST(UkResults, WithSomethingElseInThePlaceOfADateAreAFailure) {
    EXPECT_EQ(FailureIn("Date\n1-Jun-2005,1,2,3,4,5,6,7\n</html>\n"),
              "Temp.txt (http://page), line 3: expected the date of a draw, or an empty line "
              "behind the last, but \"</html>\" stands there.");
    EXPECT_NE(FailureIn("1-Jun-2005,1,2,3,4,5,6,7\n1-Jun-2005 20:00,1,2,3,4,5,6,7\n"),
              "no failure");
}

TEST(UkResults, ThatEndWithinARowAreAFailure) {
    for (const std::string end : {"", "\n", "\r\n"}) {
        EXPECT_NE(FailureIn("Date\n1-Jun-2005,1,2,3,4,5,6" + end), "no failure");
        EXPECT_NE(FailureIn("Date\n1-Jun-2005,1,2,3,4,5" + end), "no failure");
        EXPECT_NE(FailureIn("Date\n1-Jun-2005" + end), "no failure");
    }
    EXPECT_EQ(
        FailureIn("Date\n1-Jun-2005,1,2,3,4\n"),
        "Temp.txt (http://page), line 4: expected ball 6 of a draw, but the file ends there.");
}

TEST(UkResults, OfAnOldMacAreOneLine) {
    EXPECT_NE(FailureIn("Date\r1-Jun-2005,1,2,3,4,5,6,7\r"), "no failure");
    EXPECT_EQ(Records("Date,\r1-Jun-2005,1,2,3,4,5,6,7\r,31-May-2005,1,2,3,4,5,6,7\r"),
              "01-Jun-2005,1,2,3,4,5,6,0,7\r\n");
}

TEST(UkResults, AreWrittenHoweverManyTheyAre) {
    std::string page;
    for (int i = 0; i < 3100; ++i) page += "1-Jun-2005,1,2,3,4,5,6,7\n";
    const std::string records = Records(page);
    EXPECT_EQ(std::count(records.begin(), records.end(), '\n'), 3100);
}

class RealUkResults
    : public testing::TestWithParam<std::tuple<const char*, int, const char*, int>> {};

TEST_P(RealUkResults, HoldTheDrawsThatAreKnown) {
    const auto& [name, lottery, filler, draws] = GetParam();
    const std::string page = RealPage(name);
    if (page.empty()) GTEST_SKIP() << "no real results files here";
    const std::string records = Records(page, lottery);
    EXPECT_EQ(records, KnownRecords(name, filler));
    EXPECT_EQ(std::count(records.begin(), records.end(), '\n'), draws);
    EXPECT_GE(page.size(), shortestPage);
}

INSTANTIATE_TEST_SUITE_P(Files, RealUkResults,
                         testing::Values(std::tuple("uk_lotto_operator_2014.csv", 0, "0,", 52),
                                         std::tuple("uk_lotto_operator_2021.csv", 0, "0,", 51),
                                         std::tuple("uk_thunderball_operator_2022.csv", 1, "0,0,",
                                                    103)));

TEST(RealUkPages, OfOtherShapesAreFailures) {
    for (const char* name : {"au_oz_lotto_operator_2024.csv", "us_mega_millions_texas_2019.csv",
                             "uk_lotto_archive_page_2025.html"}) {
        const std::string page = RealPage(name);
        if (page.empty()) GTEST_SKIP() << "no real results files here";
        EXPECT_NE(FailureIn(page), "no failure") << name;
    }
}

}  // namespace

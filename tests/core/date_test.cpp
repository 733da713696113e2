// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/date.h"

#include <gtest/gtest.h>

#include "tests/core/failures.h"
#include "tests/core/regions.h"

namespace {

using Order = Region::Order;
using std::chrono::year;

Date Day(int yearNumber, unsigned month, unsigned day) {
    return year(yearNumber) / static_cast<int>(month) / static_cast<int>(day);
}

const Date today = Day(2026, 11, 21);

std::optional<Date> Read(std::string_view text, Order order = Order::DayMonthYear) {
    return ReadDate(text, EnglishRegion(order), today);
}

}  // namespace

TEST(ReadDate, ReadsTheFormOfTheDrawFiles) {
    EXPECT_EQ(Read("19 Nov 94"), Day(1994, 11, 19));
    EXPECT_EQ(Read("07 Oct 15"), Day(2015, 10, 7));
}

TEST(ReadDate, ReadsTheMediumDateForm) { EXPECT_EQ(Read("19-Nov-1994"), Day(1994, 11, 19)); }

TEST(ReadDate, ReadsTheAmericanOrderWithAMonthName) {
    EXPECT_EQ(Read("November 19, 1994"), Day(1994, 11, 19));
    EXPECT_EQ(Read("Nov. 19, 1994"), Day(1994, 11, 19));
}

TEST(ReadDate, ReadsIsoInEveryRegion) {
    for (const Order order : {Order::DayMonthYear, Order::MonthDayYear, Order::YearMonthDay}) {
        EXPECT_EQ(Read("1994-11-19", order), Day(1994, 11, 19));
    }
}

TEST(ReadDate, ReadsNumbersInTheOrderOfTheRegion) {
    EXPECT_EQ(Read("02/01/2024", Order::DayMonthYear), Day(2024, 1, 2));
    EXPECT_EQ(Read("02/01/2024", Order::MonthDayYear), Day(2024, 2, 1));
    EXPECT_EQ(Read("24/02/01", Order::YearMonthDay), Day(2024, 2, 1));
}

TEST(ReadDate, ReadsAYearBehindMonthAndDayWhereTheRegionHasItInFront) {
    EXPECT_EQ(Read("02/01/2024", Order::YearMonthDay), Day(2024, 2, 1));
}

TEST(ReadDate, ReadsTheDefaultBirthDateInEveryRegion) {
    for (const Order order : {Order::DayMonthYear, Order::MonthDayYear, Order::YearMonthDay}) {
        EXPECT_EQ(Read("01/01/1970", order), Day(1970, 1, 1));
    }
}

TEST(ReadDate, TakesStrokeHyphenAndPointBetweenNumbers) {
    EXPECT_EQ(Read("19/11/1994"), Day(1994, 11, 19));
    EXPECT_EQ(Read("19-11-1994"), Day(1994, 11, 19));
    EXPECT_EQ(Read("19.11.1994"), Day(1994, 11, 19));
    EXPECT_EQ(Read("19. 11. 1994"), Day(1994, 11, 19));
}

TEST(ReadDate, NeverSwapsDayAndMonth) {
    EXPECT_EQ(Read("13/25/2004"), std::nullopt);
    EXPECT_EQ(Read("11/19/1994", Order::DayMonthYear), std::nullopt);
    EXPECT_EQ(Read("19/11/1994", Order::MonthDayYear), std::nullopt);
    EXPECT_EQ(Read("1994-19-11"), std::nullopt);
}

TEST(ReadDate, ReadsMonthNamesInAnyCase) {
    EXPECT_EQ(Read("19 NOV 94"), Day(1994, 11, 19));
    EXPECT_EQ(Read("19 november 1994"), Day(1994, 11, 19));
}

TEST(ReadDate, ReadsEveryEnglishMonthInFullAndAbbreviated) {
    const Region english = EnglishRegion();
    for (unsigned month = 1; month <= 12; ++month) {
        const std::string& name = english.monthNames[month - 1];
        EXPECT_EQ(ReadDate("5 " + name + " 2001", GermanRegion(), today), Day(2001, month, 5));
        EXPECT_EQ(ReadDate("5 " + name.substr(0, 3) + " 2001", GermanRegion(), today),
                  Day(2001, month, 5));
    }
}

TEST(ReadDate, ReadsTheMonthNamesOfTheRegion) {
    EXPECT_EQ(ReadDate("5. M\xE4rz 2001", GermanRegion(), today), Day(2001, 3, 5));
    EXPECT_EQ(ReadDate("5. M\xC4RZ 2001", GermanRegion(), today), Day(2001, 3, 5));
    EXPECT_EQ(ReadDate("05-Dez-01", GermanRegion(), today), Day(2001, 12, 5));
    EXPECT_EQ(ReadDate("05 Dez. 01", GermanRegion(), today), Day(2001, 12, 5));
    EXPECT_EQ(Read("05 Dez 01"), std::nullopt);
}

TEST(ReadDate, PutsTwoDigitYearsInTheHundredYearsThatEndTwentyYearsAfterToday) {
    EXPECT_EQ(Read("01 Jan 46"), Day(2046, 1, 1));
    EXPECT_EQ(Read("01 Jan 47"), Day(1947, 1, 1));
    EXPECT_EQ(Read("01 Jan 00"), Day(2000, 1, 1));
    EXPECT_EQ(Read("01/01/99"), Day(1999, 1, 1));
    EXPECT_EQ(ReadDate("01 Jan 47", EnglishRegion(), Day(2027, 1, 1)), Day(2047, 1, 1));
}

TEST(ReadDate, DoesNotMindBlanksAroundTheDate) {
    EXPECT_EQ(Read("  19 Nov 94 "), Day(1994, 11, 19));
}

TEST(ReadDate, RefusesADayThatNoCalendarHas) {
    EXPECT_EQ(Read("29 Feb 2023"), std::nullopt);
    EXPECT_EQ(Read("29 Feb 2024"), Day(2024, 2, 29));
    EXPECT_EQ(Read("31/04/2024"), std::nullopt);
    EXPECT_EQ(Read("0/1/2024"), std::nullopt);
    EXPECT_EQ(Read("1/0/2024"), std::nullopt);
}

TEST(ReadDate, RefusesWhatIsNoDate) {
    for (const char* text : {"",
                             " ",
                             "Nov",
                             "19",
                             "19 Nov",
                             "Nov 1994",
                             "19 Nov 94 12",
                             "19 Nox 94",
                             "19//11/1994",
                             "19/11-1994",
                             "19 11 1994",
                             "19,11,1994",
                             "19 Nov 994",
                             "19 Nov 0094",
                             "19 Nov 19940",
                             "190 Nov 1994",
                             "1/111/1994",
                             "Nov Nov 1994",
                             "Nov 19 Nov",
                             "19 Nov",
                             "-19 Nov 94",
                             "19 Nov 94-",
                             "today",
                             "99999999999999999999 Nov 1994"}) {
        EXPECT_EQ(Read(text), std::nullopt) << text;
    }
}

TEST(ReadDate, SurvivesMonthNamesThatTheRegionLacks) {
    Region region = EnglishRegion();
    region.monthNames.fill({});
    region.shortMonthNames.fill("?");
    EXPECT_EQ(ReadDate("5 Mai 2001", region, today), std::nullopt);
    EXPECT_EQ(ReadDate("5 May 2001", region, today), Day(2001, 5, 5));
}

TEST(DateFromText, GivesTheDate) {
    EXPECT_EQ(DateFromText("01/01/1970", EnglishRegion(), today, "here"), Day(1970, 1, 1));
}

TEST(DateFromText, SaysWhereAndWhatStandsThere) {
    EXPECT_EQ(
        FailureOf([&] { DateFromText("someday", EnglishRegion(), today, "quillon.ini, line 15"); }),
        "quillon.ini, line 15: expected a date such as \"19-Nov-1994\", but "
        "\"someday\" stands there.");
}

TEST(DateFromText, FailsForAnEmptyBirthDate) {
    EXPECT_THROW(DateFromText("", EnglishRegion(), today, "quillon.ini, line 15"), Failure);
}

TEST(MediumDate, HasTheEnglishMonthAndFourDigits) {
    EXPECT_EQ(MediumDate(Day(1994, 11, 19)), "19-Nov-1994");
    EXPECT_EQ(MediumDate(Day(2005, 6, 1)), "01-Jun-2005");
    EXPECT_EQ(MediumDate(Day(320, 6, 1)), "01-Jun-0320");
}

TEST(FullDate, HasTheEnglishMonthFourDigitsAndBlanks) {
    EXPECT_EQ(FullDate(Day(1985, 7, 23)), "23 Jul 1985");
    EXPECT_EQ(FullDate(Day(320, 6, 1)), "01 Jun 0320");
}

TEST(DrawDate, HasTheEnglishMonthAndTwoDigits) {
    EXPECT_EQ(DrawDate(Day(1994, 11, 19)), "19 Nov 94");
    EXPECT_EQ(DrawDate(Day(2005, 6, 1)), "01 Jun 05");
}

TEST(MediumDate, IsReadBackInEveryRegion) {
    for (int days = 0; days < 40000; days += 13) {
        const Date date = DaysAfter(Day(1930, 1, 1), days);
        EXPECT_EQ(ReadDate(MediumDate(date), GermanRegion(), today), date);
        EXPECT_EQ(Read(MediumDate(date), Order::YearMonthDay), date);
    }
}

TEST(WeekdayNumber, CountsFromSunday) {
    EXPECT_EQ(WeekdayNumber(Day(2026, 11, 22)), 1);
    EXPECT_EQ(WeekdayNumber(Day(2026, 11, 25)), 4);
    EXPECT_EQ(WeekdayNumber(Day(2026, 11, 21)), 7);
}

TEST(DaysBetween, IsNegativeWhereTheSecondDayLiesBefore) {
    EXPECT_EQ(DaysBetween(Day(2024, 2, 28), Day(2024, 3, 1)), 2);
    EXPECT_EQ(DaysBetween(Day(2024, 3, 1), Day(2024, 2, 28)), -2);
    EXPECT_EQ(DaysBetween(Day(1970, 1, 1), Day(2026, 11, 21)), 20778);
}

TEST(DaysAfter, CrossesMonthsAndYears) {
    EXPECT_EQ(DaysAfter(Day(2026, 12, 30), 3), Day(2027, 1, 2));
    EXPECT_EQ(DaysAfter(Day(2024, 3, 1), -1), Day(2024, 2, 29));
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/LocaleRegion.h"

#include <gtest/gtest.h>

#include <QDate>

namespace {

using Order = Region::Order;

Region In(QLocale::Language language, QLocale::Country country) {
    return RegionOf(QLocale(language, country));
}

const Date today = std::chrono::November / 21 / 2026;

}  // namespace

TEST(RegionOf, TellsTheOrderOfDayMonthAndYear) {
    EXPECT_EQ(In(QLocale::English, QLocale::UnitedKingdom).order, Order::DayMonthYear);
    EXPECT_EQ(In(QLocale::English, QLocale::UnitedStates).order, Order::MonthDayYear);
    EXPECT_EQ(In(QLocale::German, QLocale::Germany).order, Order::DayMonthYear);
    EXPECT_EQ(In(QLocale::Swedish, QLocale::Sweden).order, Order::YearMonthDay);
    EXPECT_EQ(In(QLocale::Japanese, QLocale::Japan).order, Order::YearMonthDay);
    EXPECT_EQ(RegionOf(QLocale::c()).order, Order::DayMonthYear);
}

TEST(RegionOf, TellsTheMonthNames) {
    const Region german = In(QLocale::German, QLocale::Germany);
    EXPECT_EQ(german.monthNames[2], "M\xE4rz");
    EXPECT_EQ(german.monthNames[11], "Dezember");
    EXPECT_EQ(ReadDate("24 Dezember 2026", german, today), std::chrono::December / 24 / 2026);
    EXPECT_EQ(ReadDate("24. Dez. 2026", german, today), std::chrono::December / 24 / 2026);
}

TEST(RegionOf, ReadsTheFilesOfOtherRegionsInEveryLocale) {
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        const Region region = RegionOf(locale);
        for (int month = 1; month <= 12; ++month) {
            const Date date = std::chrono::year(2004) / month / 5;
            EXPECT_EQ(ReadDate(MediumDate(date), region, today), date)
                << locale.name().toStdString();
            EXPECT_EQ(ReadDate(DrawDate(date), region, today), date) << locale.name().toStdString();
        }
        EXPECT_EQ(ReadDate("01/01/1970", region, today), std::chrono::January / 1 / 1970);
    }
}

TEST(QDates, AreDatesOfTheCore) {
    const Date date = std::chrono::November / 19 / 1994;
    EXPECT_EQ(ToQDate(date), QDate(1994, 11, 19));
    EXPECT_EQ(FromQDate(QDate(1994, 11, 19)), date);
}

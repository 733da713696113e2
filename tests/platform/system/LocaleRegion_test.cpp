// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/LocaleRegion.h"

#include <gtest/gtest.h>

#include <QDate>

#include "core/money.h"

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

TEST(RegionOf, TellsHowMoneyIsWritten) {
    const auto fiveLost = [](QLocale::Language language, QLocale::Country country) {
        return CurrencyText(Money::OfPennies(-123450), In(language, country).currency);
    };
    EXPECT_EQ(fiveLost(QLocale::English, QLocale::UnitedKingdom),
              "-\xA3"
              "1,234.50");
    EXPECT_EQ(fiveLost(QLocale::English, QLocale::UnitedStates), "-$1,234.50");
    EXPECT_EQ(fiveLost(QLocale::German, QLocale::Germany), "-1.234,50 \x80");
    EXPECT_EQ(fiveLost(QLocale::Swedish, QLocale::Sweden), "-1 234,50 kr");
    EXPECT_EQ(fiveLost(QLocale::French, QLocale::France), "-1 234,50 \x80");
    EXPECT_EQ(fiveLost(QLocale::Danish, QLocale::Denmark), "-1.234,50 kr");
    EXPECT_EQ(fiveLost(QLocale::Polish, QLocale::Poland), "-1 234,50 PLN");
}

TEST(RegionOf, WritesMoneyThatReadsBackInEveryLocale) {
    for (const QLocale& locale :
         QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry)) {
        const CurrencyForm form = RegionOf(locale).currency;
        EXPECT_NE(form.decimalPoint, form.groupSeparator) << locale.name().toStdString();
        for (const std::int64_t pennies : {0, 5, 1250, 99999, -5, -1250}) {
            const std::string text = CurrencyText(Money::OfPennies(pennies), form);
            EXPECT_EQ(MoneyInCell(text, form), Money::OfPennies(pennies))
                << locale.name().toStdString() << " " << text;
            EXPECT_EQ(text.find('?'), std::string::npos) << locale.name().toStdString();
            EXPECT_EQ(TypedMoney(WithoutSymbol(text, form), form), Money::OfPennies(pennies))
                << locale.name().toStdString() << " " << text;
        }
    }
}

TEST(QDates, AreDatesOfTheCore) {
    const Date date = std::chrono::November / 19 / 1994;
    EXPECT_EQ(ToQDate(date), QDate(1994, 11, 19));
    EXPECT_EQ(FromQDate(QDate(1994, 11, 19)), date);
}

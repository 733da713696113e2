// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/DatePicker.h"

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <memory>

#include "tests/support/form_test.h"

namespace {

constexpr Date Day(int year, unsigned month, unsigned day) {
    return {std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
}

struct ADatePicker : testing::Test {
    ADatePicker() {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        picker = std::make_unique<DatePicker>(QStringLiteral("dd MMM yy"), Day(2005, 6, 1));
        picker->show();
    }
    ~ADatePicker() override { QLocale::setDefault(QLocale::system()); }

    void TypeDate(const char* text) {
        QTest::keyClick(picker.get(), Qt::Key_Home);
        picker->setSelectedSection(QDateTimeEdit::DaySection);
        QTest::keyClicks(picker.get(), QString::fromLatin1(text));
    }

    std::unique_ptr<DatePicker> picker;
};

TEST_F(ADatePicker, StartsAtTodayInItsFormat) {
    EXPECT_EQ(picker->Value(), Day(2005, 6, 1));
    EXPECT_EQ(picker->text(), QStringLiteral("01 Jun 05"));
    EXPECT_TRUE(picker->calendarPopup());
}

TEST_F(ADatePicker, TakesADateFromCode) {
    picker->SetValue(Day(1994, 11, 19));
    EXPECT_EQ(picker->Value(), Day(1994, 11, 19));
    EXPECT_EQ(picker->text(), QStringLiteral("19 Nov 94"));
}

TEST_F(ADatePicker, ReadsAYearOfTheWindowsEnd) {
    TypeDate("15 Jun 24");
    EXPECT_EQ(picker->Value(), Day(2024, 6, 15));
}

TEST_F(ADatePicker, ReadsAYearOfTheLastCentury) {
    TypeDate("19 Nov 94");
    EXPECT_EQ(picker->Value(), Day(1994, 11, 19));
}

TEST_F(ADatePicker, ReadsTheWindowsFirstAndLastYear) {
    TypeDate("01 Jan 25");
    EXPECT_EQ(picker->Value(), Day(2025, 1, 1));
    TypeDate("01 Jan 26");
    EXPECT_EQ(picker->Value(), Day(1926, 1, 1));
}

TEST_F(ADatePicker, ReturnsToThisCenturyFromTheLast) {
    TypeDate("19 Nov 94");
    TypeDate("15 Jun 24");
    EXPECT_EQ(picker->Value(), Day(2024, 6, 15));
}

TEST_F(ADatePicker, ReadsALeapDayOfThisCenturyWhileAYearOfTheLastStandsThere) {
    picker->SetValue(Day(1994, 11, 19));
    TypeDate("29 Feb 00");
    EXPECT_EQ(picker->Value(), Day(2000, 2, 29));
}

TEST_F(ADatePicker, ReadsALeapDayWhileAnotherYearStandsThere) {
    TypeDate("29 Feb 04");
    EXPECT_EQ(picker->Value(), Day(2004, 2, 29));
}

TEST_F(ADatePicker, ReadsADateTypedWithoutBlanks) {
    TypeDate("19Nov94");
    EXPECT_EQ(picker->Value(), Day(1994, 11, 19));
}

TEST_F(ADatePicker, KeepsACenturyOutsideTheWindowThatCodeSet) {
    picker->SetValue(Day(1910, 5, 6));
    picker->interpretText();
    EXPECT_EQ(picker->Value(), Day(1910, 5, 6));
}

TEST_F(ADatePicker, StepsThroughTheTurnOfTheCentury) {
    picker->SetValue(Day(1999, 12, 31));
    picker->setSelectedSection(QDateTimeEdit::YearSection);
    QTest::keyClick(picker.get(), Qt::Key_Up);
    EXPECT_EQ(picker->Value(), Day(2000, 12, 31));
    QTest::keyClick(picker.get(), Qt::Key_Down);
    EXPECT_EQ(picker->Value(), Day(1999, 12, 31));
}

TEST_F(ADatePicker, StopsSteppingAtTheWindowsEnds) {
    picker->SetValue(Day(2025, 3, 1));
    picker->setSelectedSection(QDateTimeEdit::YearSection);
    QTest::keyClick(picker.get(), Qt::Key_Up);
    EXPECT_EQ(picker->Value(), Day(2025, 3, 1));
    picker->SetValue(Day(1926, 3, 1));
    QTest::keyClick(picker.get(), Qt::Key_Down);
    EXPECT_EQ(picker->Value(), Day(1926, 3, 1));
}

TEST_F(ADatePicker, TakesAnyDateFromItsCalendar) {
    picker->calendarWidget()->setSelectedDate(QDate(1912, 4, 15));
    Q_EMIT picker->calendarWidget()->clicked(QDate(1912, 4, 15));
    picker->setDate(picker->calendarWidget()->selectedDate());
    EXPECT_EQ(picker->Value(), Day(1912, 4, 15));
}

TEST_F(ADatePicker, TakesYearsOfFourDigitsAsTheyAreTyped) {
    DatePicker birth(QStringLiteral("ddd d MMM yyyy"), Day(2005, 6, 1));
    birth.SetValue(Day(1970, 1, 1));
    EXPECT_EQ(birth.text(), QStringLiteral("Thu 1 Jan 1970"));
    birth.show();
    birth.setSelectedSection(QDateTimeEdit::YearSection);
    QTest::keyClicks(&birth, QStringLiteral("1912"));
    EXPECT_EQ(birth.Value(), Day(1912, 1, 1));
}

}  // namespace

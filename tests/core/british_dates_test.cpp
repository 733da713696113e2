// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/british_dates.h"

#include <gtest/gtest.h>

namespace {

using Order = Region::Order;

Region With(Order order, const char* january, const char* june) {
    Region region;
    region.order = order;
    region.monthNames.at(0) = january;
    region.monthNames.at(5) = june;
    return region;
}

}  // namespace

TEST(BritishDates, AreTheEnglishOnesWithTheDayInFront) {
    EXPECT_TRUE(BritishDates(With(Order::DayMonthYear, "January", "June")));
}

TEST(BritishDates, AreNoneWhereTheFirstOfJuneIsTheSixthOfJanuary) {
    EXPECT_FALSE(BritishDates(With(Order::MonthDayYear, "January", "June")));
    EXPECT_FALSE(BritishDates(With(Order::YearMonthDay, "January", "June")));
}

TEST(BritishDates, AreNoneWhereTheMonthHasAnotherName) {
    for (const char* june : {"Juni", "juin", "junio", "Mehefin", "june", "Jun", ""}) {
        EXPECT_FALSE(BritishDates(With(Order::DayMonthYear, "Januar", june))) << june;
    }
}

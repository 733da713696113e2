// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/draw_days.h"

#include <gtest/gtest.h>

#include <memory>

#include "core/settings.h"
#include "tests/core/regions.h"

namespace {

// A Sunday; the days of its week are this one and the six that follow.
const Date sunday = std::chrono::November / 22 / 2026;

Date On(int weekday) { return DaysAfter(sunday, weekday - 1); }

class NextDraw : public testing::Test {
  private:
    const std::unique_ptr<State> ownState_ = std::make_unique<State>();

  protected:
    State& state_ = *ownState_;

    Date Proposed(const std::string& lottery, Date today) {
        state_.LotteryName = lottery;
        return NextDrawDate(state_, EnglishRegion(), today);
    }

    // The weekdays proposed on each day of a week, Sunday first, and never in the past.
    std::vector<int> ProposedWeekdays(const std::string& lottery) {
        std::vector<int> weekdays;
        for (int weekday = 1; weekday <= 7; ++weekday) {
            const Date date = Proposed(lottery, On(weekday));
            const int days = DaysBetween(On(weekday), date);
            EXPECT_TRUE(days >= 0 && days < 7) << days;
            weekdays.push_back(WeekdayNumber(date));
        }
        return weekdays;
    }
};

using Weekdays = std::vector<int>;

}  // namespace

TEST_F(NextDraw, IsWednesdayOrSaturdayForFiveLotteries) {
    for (const char* lottery :
         {"UK Lotto", "UK Thunderball", "UK Lotto Extra", "UK Lotto Hot Picks", "US Powerball"}) {
        EXPECT_EQ(ProposedWeekdays(lottery), (Weekdays{4, 4, 4, 4, 7, 7, 7})) << lottery;
    }
}

TEST_F(NextDraw, IsEveryDayButSundayForDailyPlay) {
    EXPECT_EQ(ProposedWeekdays("UK Daily Play"), (Weekdays{2, 2, 3, 4, 5, 6, 7}));
}

TEST_F(NextDraw, IsTuesdayOrFridayForMegaMillions) {
    EXPECT_EQ(ProposedWeekdays("US Mega Millions"), (Weekdays{3, 3, 3, 6, 6, 6, 3}));
}

TEST_F(NextDraw, IsTodayForOtherLotteries) {
    EXPECT_EQ(ProposedWeekdays("La Primitiva"), (Weekdays{1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(NextDraw, KnowsALotteryByItsTrimmedNameInAnyCase) {
    EXPECT_EQ(Proposed("  uk LOTTO ", On(5)), On(7));
    EXPECT_EQ(Proposed("UK Lotto 2", On(5)), On(5));
}

TEST_F(NextDraw, IsALaterDateChosenBeforeForOtherLotteries) {
    state_.Settings(setting::DrawDate) = "24-Dec-2026";
    EXPECT_EQ(Proposed("La Primitiva", On(3)), std::chrono::December / 24 / 2026);
}

TEST_F(NextDraw, IsALaterDateChosenBeforeOnlyOnTheDaysThatTheScheduleLeavesOpen) {
    state_.Settings(setting::DrawDate) = "24-Dec-2026";
    const Date chosen = std::chrono::December / 24 / 2026;
    const auto openDays = [&](const std::string& lottery) {
        Weekdays days;
        for (int weekday = 1; weekday <= 7; ++weekday) {
            if (Proposed(lottery, On(weekday)) == chosen) days.push_back(weekday);
        }
        return days;
    };
    for (const char* lottery :
         {"UK Lotto", "UK Thunderball", "UK Lotto Extra", "UK Lotto Hot Picks", "US Powerball"}) {
        EXPECT_EQ(openDays(lottery), Weekdays{4}) << lottery;
    }
    EXPECT_EQ(openDays("UK Daily Play"), (Weekdays{2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(openDays("US Mega Millions"), (Weekdays{3, 6}));
}

TEST_F(NextDraw, IsTodayWhereTheDateChosenBeforeIsNotLater) {
    for (const char* date :
         {"22-Nov-2026", "21-Nov-2026", "19-Nov-1994", "", "soon", "31-Nov-2026"}) {
        state_.Settings(setting::DrawDate) = date;
        EXPECT_EQ(Proposed("La Primitiva", sunday), sunday) << date;
    }
}

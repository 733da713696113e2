// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/draw_days.h"

#include <array>
#include <string_view>

#include "core/settings.h"
#include "core/text.h"

namespace {

// Days from today to the proposed draw for each weekday, Sunday first; `open` where today, or a
// later date chosen before, is proposed.
constexpr int open = -1;

struct DrawDays {
    std::string_view lottery;
    std::array<int, 7> daysFrom;
};

constexpr std::array<int, 7> wednesdayAndSaturday = {3, 2, 1, open, 2, 1, 0};
constexpr std::array<int, 7> daysButSunday = {1, open, open, open, open, open, open};
constexpr std::array<int, 7> tuesdayAndFriday = {2, 1, open, 2, 1, open, 3};

// Kept on purpose: the draw days are fixed, whatever the operators' schedules become.
constexpr DrawDays schedule[] = {
    {"UK LOTTO", wednesdayAndSaturday},       {"UK THUNDERBALL", wednesdayAndSaturday},
    {"UK LOTTO EXTRA", wednesdayAndSaturday}, {"UK LOTTO HOT PICKS", wednesdayAndSaturday},
    {"US POWERBALL", wednesdayAndSaturday},   {"UK DAILY PLAY", daysButSunday},
    {"US MEGA MILLIONS", tuesdayAndFriday}};

int DaysToDraw(std::string_view lottery, int weekday) {
    for (const DrawDays& days : schedule) {
        if (days.lottery == lottery) return days.daysFrom.at(static_cast<std::size_t>(weekday - 1));
    }
    return open;
}

}  // namespace

Date NextDrawDate(const State& state, const Region& region, Date today) {
    const int days = DaysToDraw(UpperCase(Trim(state.LotteryName)), WeekdayNumber(today));
    if (days != open) return DaysAfter(today, days);
    const auto chosen = ReadDate(state.Settings(setting::DrawDate), region, today);
    return chosen && *chosen > today ? *chosen : today;
}

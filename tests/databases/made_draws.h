// SPDX-License-Identifier: GPL-3.0-or-later
// Draws made by chance for tests of imports.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "tests/databases/imports.h"

/// By which rules draws are made.
struct MadeLottery {
    int picks = 6;
    int highest = 49;
    int lowestExtra = 1;
    int highestExtra = 0;  ///< Of a drum of its own.
    int extras = 0;        ///< How many extra balls there are.
    bool ascending = true;
    std::vector<int> weekdays = {4, 7};  ///< 1 Sunday to 7 Saturday.
    int draws = 120;
    Date last = std::chrono::year(2025) / 10 / 25;
};

/// One draw with all its extra balls.
struct MadeDraw {
    Date date;
    std::vector<int> numbers;
    std::vector<int> extras;
};

/// The same numbers for the same seed wherever the test runs.
class Chance {
  public:
    explicit Chance(std::uint32_t seed) : engine_(seed) {}
    int Below(int end) { return static_cast<int>(engine_() % static_cast<std::uint32_t>(end)); }
    int From(int first, int last) { return first + Below(last - first + 1); }
    template <typename Value>
    void Shuffle(std::vector<Value>& values) {
        for (std::size_t i = values.size(); i > 1; --i) {
            std::swap(values[i - 1], values[static_cast<std::size_t>(Below(static_cast<int>(i)))]);
        }
    }

  private:
    std::mt19937 engine_;
};

/// Draws, the newest first.
inline std::vector<MadeDraw> MakeDraws(const MadeLottery& lottery, std::uint32_t seed) {
    Chance chance(seed);
    std::vector<MadeDraw> draws;
    Date date = lottery.last;
    while (static_cast<int>(draws.size()) < lottery.draws) {
        const bool drawn = std::find(lottery.weekdays.begin(), lottery.weekdays.end(),
                                     WeekdayNumber(date)) != lottery.weekdays.end();
        if (drawn) {
            std::vector<int> drum;
            for (int number = 1; number <= lottery.highest; ++number) drum.push_back(number);
            chance.Shuffle(drum);
            MadeDraw draw{.date = date, .numbers = {}, .extras = {}};
            draw.numbers.assign(drum.begin(), drum.begin() + lottery.picks);
            if (lottery.ascending) std::sort(draw.numbers.begin(), draw.numbers.end());
            if (lottery.highestExtra == 0) {
                draw.extras.assign(drum.begin() + lottery.picks,
                                   drum.begin() + lottery.picks + lottery.extras);
            } else {
                std::vector<int> own;
                for (int ball = lottery.lowestExtra; ball <= lottery.highestExtra; ++ball) {
                    own.push_back(ball);
                }
                chance.Shuffle(own);
                draw.extras.assign(own.begin(), own.begin() + lottery.extras);
            }
            draws.push_back(draw);
        }
        date = DaysAfter(date, -1);
    }
    return draws;
}

/// The draws as `LinesOf` shows those imported.
inline std::vector<std::string> LinesOf(const std::vector<MadeDraw>& draws) {
    std::vector<std::string> lines;
    for (const MadeDraw& made : draws) {
        ImportedDraw draw{.date = made.date};
        for (std::size_t i = 0; i < made.numbers.size(); ++i) {
            draw.numbers.at(i) = static_cast<std::int16_t>(made.numbers[i]);
        }
        if (!made.extras.empty()) draw.extra = static_cast<std::int16_t>(made.extras.front());
        lines.push_back(LineOf(draw));
    }
    return lines;
}

inline std::string TwoDigits(int number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

/// The date by a pattern of d, m (one digit or two), D, M (always two), b (month by name), y, Y
/// (two digits, four), w (weekday); all else stands for itself.
inline std::string DateBy(const std::string& pattern, Date date) {
    constexpr std::array months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    constexpr std::array days = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    const int day = static_cast<int>(static_cast<unsigned>(date.day()));
    const int month = static_cast<int>(static_cast<unsigned>(date.month()));
    const int year = static_cast<int>(date.year());
    std::string text;
    for (const char sign : pattern) {
        switch (sign) {
            case 'd':
                text += std::to_string(day);
                break;
            case 'm':
                text += std::to_string(month);
                break;
            case 'D':
                text += TwoDigits(day);
                break;
            case 'M':
                text += TwoDigits(month);
                break;
            case 'b':
                text += months.at(static_cast<std::size_t>(month - 1));
                break;
            case 'y':
                text += TwoDigits(year % 100);
                break;
            case 'Y':
                text += std::to_string(year);
                break;
            case 'w':
                text += days.at(static_cast<std::size_t>(WeekdayNumber(date) - 1));
                break;
            default:
                text += sign;
        }
    }
    return text;
}

/// Numbers with `between` between; with two digits each where `padded`.
inline std::string Joined(const std::vector<int>& numbers, const std::string& between,
                          bool padded = false) {
    std::string text;
    for (const int number : numbers) {
        if (!text.empty()) text += between;
        text += padded ? TwoDigits(number) : std::to_string(number);
    }
    return text;
}

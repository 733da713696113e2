// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/date.h"

#include <algorithm>
#include <cstddef>

#include "core/failure.h"
#include "core/text.h"

namespace {

using namespace std::chrono;

constexpr std::array<std::string_view, 12> englishMonths = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};

constexpr std::size_t noSeparator = std::string_view::npos;

// A date text cut into its three pieces and the two separators between them.
struct Pieces {
    std::array<std::string_view, 3> piece;
    std::array<char, 2> separator;  // the sign between two pieces, or a blank
};

struct DayText {
    std::string_view year;
    unsigned month;
    std::string_view day;
};

bool IsNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// A run of blanks with at most one sign among them.
std::optional<char> SeparatorIn(std::string_view run) {
    const std::string signs = Trim(run);
    if (signs.size() > 1) return std::nullopt;
    return signs.empty() ? ' ' : signs.front();
}

std::optional<Pieces> Cut(std::string_view text) {
    constexpr std::string_view separators = " /-.,";
    Pieces pieces;
    for (std::size_t i = 0; i < 2; ++i) {
        const std::size_t end = text.find_first_of(separators);
        if (end == noSeparator) return std::nullopt;
        const std::size_t next = text.find_first_not_of(separators, end);
        if (next == noSeparator) return std::nullopt;
        const auto separator = SeparatorIn(text.substr(end, next - end));
        if (!separator) return std::nullopt;
        pieces.piece[i] = text.substr(0, end);
        pieces.separator[i] = *separator;
        text.remove_prefix(next);
    }
    pieces.piece[2] = text;
    return pieces;
}

// The number of the month of that name, or 0.
unsigned MonthNamed(std::string_view name, const Region& region) {
    const std::string wanted = LowerCase(name);
    const auto is = [&wanted](std::string_view other) {
        if (other.ends_with('.')) other.remove_suffix(1);  // some regions abbreviate with a point
        return !other.empty() && wanted == LowerCase(other);
    };
    for (unsigned month = 0; month < 12; ++month) {
        const std::string_view english = englishMonths[month];
        if (is(english) || is(english.substr(0, 3))) return month + 1;
    }
    for (unsigned month = 0; month < 12; ++month) {
        if (is(region.monthNames[month]) || is(region.shortMonthNames[month])) return month + 1;
    }
    return 0;
}

// "19 Nov 94", "November 19, 1994", "1994 Nov 19"
std::optional<DayText> NamedMonth(const Pieces& pieces, const Region& region) {
    const auto& [first, second, third] = pieces.piece;
    if (!IsNumber(third)) return std::nullopt;
    const bool monthFirst = !IsNumber(first);
    if (monthFirst && !IsNumber(second)) return std::nullopt;
    const unsigned month = MonthNamed(monthFirst ? first : second, region);
    if (month == 0) return std::nullopt;
    if (monthFirst) return DayText{third, month, second};
    if (first.size() == 4) return DayText{first, month, third};
    return DayText{third, month, first};
}

// "19/11/94" in the region's order; a year of four digits may also stand in front, as in ISO, or,
// where the region has it in front, behind the month and the day.
std::optional<DayText> Numeric(const Pieces& pieces, const Region& region) {
    const auto& [first, second, third] = pieces.piece;
    const char sign = pieces.separator[0];
    if (sign != pieces.separator[1] || sign == ' ' || sign == ',') return std::nullopt;
    const auto dated = [](std::string_view inYear, std::string_view inMonth,
                          std::string_view onDay) {
        return DayText{
            inYear, inMonth.size() > 2 ? 0 : static_cast<unsigned>(LeadingWhole(inMonth)), onDay};
    };
    const bool yearLast = third.size() == 4 && first.size() != 4;
    if (first.size() == 4) return dated(first, second, third);
    if (region.order == Region::Order::DayMonthYear) return dated(third, second, first);
    if (region.order == Region::Order::MonthDayYear || yearLast) return dated(third, first, second);
    return dated(first, second, third);
}

std::optional<int> YearIn(std::string_view digits, Date today) {
    const int number = LeadingWhole(digits);
    if (digits.size() == 4 && number >= 100) return number;
    if (digits.size() != 2) return std::nullopt;
    const int last = static_cast<int>(today.year()) + 20;
    return last - (last - number) % 100;
}

std::string TwoDigits(unsigned number) {
    const std::string digits = std::to_string(number);
    return digits.size() < 2 ? "0" + digits : digits;
}

std::string_view ShortMonth(Date date) {
    return englishMonths.at(static_cast<unsigned>(date.month()) - 1).substr(0, 3);
}

std::string YearDigits(Date date) {
    const std::string digits = std::to_string(static_cast<int>(date.year()));
    return digits.size() < 4 ? std::string(4 - digits.size(), '0') + digits : digits;
}

}  // namespace

std::optional<Date> ReadDate(std::string_view text, const Region& region, Date today) {
    const std::string trimmed = Trim(text);
    const auto pieces = Cut(trimmed);
    if (!pieces) return std::nullopt;
    const bool numeric = std::all_of(pieces->piece.begin(), pieces->piece.end(), IsNumber);
    const auto found = numeric ? Numeric(*pieces, region) : NamedMonth(*pieces, region);
    if (!found || found->day.size() > 2) return std::nullopt;
    const auto yearNumber = YearIn(found->year, today);
    if (!yearNumber) return std::nullopt;
    const Date date(year(*yearNumber), month(found->month),
                    day(static_cast<unsigned>(LeadingWhole(found->day))));
    return date.ok() ? std::optional(date) : std::nullopt;
}

Date DateFromText(std::string_view text, const Region& region, Date today, std::string_view where) {
    if (const auto date = ReadDate(text, region, today)) return *date;
    throw Failure(std::string(where) + ": expected a date such as \"19-Nov-1994\", but " +
                  Quoted(text) + " stands there.");
}

std::string MediumDate(Date date) {
    return TwoDigits(static_cast<unsigned>(date.day())) + "-" + std::string(ShortMonth(date)) +
           "-" + YearDigits(date);
}

std::string DrawDate(Date date) {
    return TwoDigits(static_cast<unsigned>(date.day())) + " " + std::string(ShortMonth(date)) +
           " " + YearDigits(date).substr(2);
}

std::string FullDate(Date date) {
    std::string text = MediumDate(date);
    std::replace(text.begin(), text.end(), '-', ' ');
    return text;
}

int WeekdayNumber(Date date) { return static_cast<int>(weekday(sys_days(date)).c_encoding()) + 1; }

int DaysBetween(Date from, Date to) {
    return static_cast<int>((sys_days(to) - sys_days(from)).count());
}

Date DaysAfter(Date date, int days) { return sys_days(date) + std::chrono::days(days); }

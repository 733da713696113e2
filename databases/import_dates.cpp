// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_dates.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>

#include "core/text.h"
#include "databases/import_characters.h"
#include "databases/import_date_words.h"

namespace {

using Form = WrittenDate::Form;

template <typename Action>
void ForEachName(std::string_view names, Action action) {
    for (int index = 0; !names.empty(); ++index) {
        const std::size_t end = std::min(names.find(' '), names.size());
        action(names.substr(0, end), index);
        names.remove_prefix(std::min(end + 1, names.size()));
    }
}

std::string_view DigitsAt(std::string_view text) {
    std::size_t end = 0;
    while (end < text.size() && IsDigitByte(text[end])) ++end;
    return text.substr(0, end);
}

// A time of day ends what is looked at, and so does the "T" of ISO in front of it.
std::string_view WithoutTime(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) return text;
    if (colon + 1 == text.size()) return text.substr(0, colon);  // "25/10/2025: 3 17 22"
    std::size_t end = colon;
    while (end > 0 && IsDigitByte(text[end - 1])) --end;
    return text.substr(0, end);
}

// The year before the first of one of Japan's eras, which are written "R7/10/23"; 0 for none.
int YearBeforeEra(char letter) {
    return letter == 'R' ? 2018 : letter == 'H' ? 1988 : letter == 'S' ? 1925 : 0;
}

// The date with a year of four digits where an era is written in front, also with "?" for the rest
// of its name. Its first year has no digit then.
std::string WithYearOfEra(std::string_view text) {
    const int before = text.empty() ? 0 : YearBeforeEra(text.front());
    std::size_t year = std::min<std::size_t>(1, text.size());
    while (year < text.size() && (text[year] == '?' || text[year] == ' ')) ++year;
    const std::string_view digits = DigitsAt(text.substr(year));
    const std::string_view rest = text.substr(year + digits.size());
    const bool follows = rest.starts_with('/') || rest.starts_with('.');
    const bool written = digits.empty() ? year > 1 : digits.size() <= 2;
    if (before == 0 || !follows || !written) return std::string(text);
    return PlainDigits(before + (digits.empty() ? 1 : LeadingWhole(digits))) + std::string(rest);
}

bool IsYear(int number) { return number >= 1900 && number <= 2100; }

}  // namespace

/// What stands in a date text.
struct DateReader::Pieces {
    struct Number {
        int value = 0;
        std::size_t digits = 0;
    };
    std::array<Number, 3> numbers;
    std::size_t count = 0;
    int month = 0;
    int weekday = 0;
    bool monthMayBeWeekday = false;
    bool signs = false;  // "/", "-" or "." between numbers
};

DateReader::DateReader(const DateRules& rules)
    : lastYear_(static_cast<int>(rules.today.year()) + 20) {
    ForEachName(import_words::monthNames, [this](std::string_view name, int index) {
        names_.push_back({std::string(name), {.month = index % 12 + 1, .weekday = 0}});
    });
    ForEachName(import_words::weekdayNames, [this](std::string_view name, int index) {
        names_.push_back({std::string(name), {.month = 0, .weekday = index % 7 + 1}});
    });
    for (std::size_t month = 0; month < 12; ++month) {
        for (const std::string* name :
             {&rules.region.monthNames[month], &rules.region.shortMonthNames[month]}) {
            std::string plain = PlainLetters(*name);
            if (plain.ends_with('.')) plain.pop_back();
            if (plain.empty() || !std::all_of(plain.begin(), plain.end(), IsLetterByte)) continue;
            names_.push_back(
                {std::move(plain), {.month = static_cast<int>(month) + 1, .weekday = 0}});
        }
    }
    std::sort(names_.begin(), names_.end(),
              [](const auto& one, const auto& other) { return one.first < other.first; });
}

// What a word or its beginning says; 8 as weekday where languages differ, months where they do are
// none.
DateReader::Word DateReader::Meaning(std::string_view word) const {
    Word found;
    if (word.size() < 2 || word.size() > 16) return found;
    const std::string plain = PlainLetters(word);
    auto name = std::lower_bound(
        names_.begin(), names_.end(), plain,
        [](const auto& entry, const std::string& wanted) { return entry.first < wanted; });
    bool exact = false;
    for (; name != names_.end() && name->first.starts_with(plain); ++name) {
        const bool whole = name->first.size() == plain.size();
        if (plain.size() == 2 && !whole) continue;
        const auto [month, weekday] = name->second;
        if (month > 0 && !(exact && !whole)) {
            found.month =
                found.month == 0 || (whole && !exact) || found.month == month ? month : 13;
            exact = exact || whole;
        }
        if (weekday > 0) {
            found.weekday = found.weekday == 0 || found.weekday == weekday ? weekday : 8;
        }
    }
    if (found.month == 13) found.month = 0;
    return found;
}

int DateReader::Weekday(std::string_view text) const {
    while (!text.empty() && !IsLetterByte(text.front())) text.remove_prefix(1);
    while (!text.empty() && !IsLetterByte(text.back())) text.remove_suffix(1);
    if (!std::all_of(text.begin(), text.end(), IsLetterByte)) return 0;
    return Meaning(text).weekday;
}

bool DateReader::TakeWord(Pieces& pieces, std::string_view word) const {
    if (import_words::fillers.find(" " + LowerCase(word) + " ") != std::string_view::npos)
        return true;
    const Word meaning = Meaning(word);
    if (meaning.month == 0 && meaning.weekday == 0) return false;
    // "mar. 12 mars 2024": of two words that may be a month the first is the day of the week.
    const bool replaces = pieces.month > 0 && pieces.monthMayBeWeekday && meaning.month > 0;
    if (meaning.month > 0 && (pieces.month == 0 || replaces)) {
        pieces.month = meaning.month;
        pieces.monthMayBeWeekday = meaning.weekday > 0;
        return true;
    }
    if (meaning.weekday == 0 || pieces.weekday > 0) return false;
    pieces.weekday = meaning.weekday;
    return true;
}

bool DateReader::Cut(std::string_view text, Pieces& pieces) const {
    constexpr std::string_view signs = "/-.";
    constexpr std::string_view passed = " ,()'?_\\\t\xBA\xAA\xB0";
    while (!text.empty()) {
        if (const std::string_view digits = DigitsAt(text); !digits.empty()) {
            if (pieces.count == 3 || digits.size() > 8) return false;
            pieces.numbers[pieces.count++] = {LeadingWhole(digits), digits.size()};
            text.remove_prefix(digits.size());
        } else if (IsLetterByte(text.front())) {
            std::size_t end = 0;
            while (end < text.size() && IsLetterByte(text[end])) ++end;
            if (!TakeWord(pieces, text.substr(0, end))) return false;
            text.remove_prefix(end);
        } else if (text.starts_with("??") && pieces.count > 0 && pieces.count < 3 &&
                   text.find_first_of("0123456789") != std::string_view::npos) {
            return false;  // a month in letters that cannot be read
        } else {
            const bool sign = signs.find(text.front()) != std::string_view::npos;
            if (!sign && passed.find(text.front()) == std::string_view::npos) return false;
            pieces.signs = pieces.signs || (sign && pieces.count > 0);
            text.remove_prefix(1);
        }
    }
    return true;
}

std::optional<WrittenDate> DateReader::Named(const Pieces& pieces) {
    if (pieces.count != 2) return std::nullopt;
    auto [day, year] = std::pair(pieces.numbers[0], pieces.numbers[1]);
    if (day.digits == 4) std::swap(day, year);
    const bool readable = day.digits <= 2 && (year.digits == 2 || year.digits == 4);
    if (!readable || (year.digits == 4 && !IsYear(year.value))) return std::nullopt;
    WrittenDate date{.first = day.value, .second = pieces.month, .year = year.value};
    date.weekday = pieces.weekday;
    return date;
}

// "20241014", else "14102024" in either order.
std::optional<WrittenDate> DateReader::EightDigits(const Pieces& pieces) {
    const int digits = pieces.numbers[0].value;
    const WrittenDate yearFirst{.first = digits % 100,
                                .second = digits / 100 % 100,
                                .year = digits / 10000,
                                .weekday = pieces.weekday};
    const WrittenDate yearLast{.form = Form::YearKnown,
                               .first = digits / 1000000,
                               .second = digits / 10000 % 100,
                               .year = digits % 10000,
                               .weekday = pieces.weekday};
    if (IsYear(yearFirst.year) && yearFirst.second <= 12) return yearFirst;
    return IsYear(yearLast.year) ? std::optional(yearLast) : std::nullopt;
}

std::optional<WrittenDate> DateReader::Numeric(const Pieces& pieces) {
    const auto& [first, second, third] = pieces.numbers;
    if (pieces.count == 1 && first.digits == 8) return EightDigits(pieces);
    if (pieces.count != 3) return std::nullopt;
    if (first.digits == 3 && first.value >= 80 && second.digits <= 2 && third.digits <= 2) {
        constexpr int republic = 1911;  // Taiwan counts years from then: "114/10/25"
        return WrittenDate{.first = third.value,
                           .second = second.value,
                           .year = first.value + republic,
                           .weekday = pieces.weekday};
    }
    std::size_t years = 0;
    for (const auto& number : pieces.numbers) {
        if (number.digits == 3 || number.digits > 4) return std::nullopt;
        if (number.digits == 4) ++years;
    }
    WrittenDate date{.form = Form::YearKnown, .weekday = pieces.weekday};
    if (years == 0) {
        if (!pieces.signs) return std::nullopt;
        date.form = Form::NoYear;
        std::tie(date.first, date.second, date.year) =
            std::tuple(first.value, second.value, third.value);
        return date;
    }
    if (first.digits == 4) {
        date.form = Form::Sure;
        std::tie(date.year, date.second, date.first) =
            std::tuple(first.value, second.value, third.value);
    } else if (second.digits == 4) {
        std::tie(date.first, date.year, date.second) =
            std::tuple(first.value, second.value, third.value);
    } else {
        std::tie(date.first, date.second, date.year) =
            std::tuple(first.value, second.value, third.value);
    }
    return years == 1 && IsYear(date.year) ? std::optional(date) : std::nullopt;
}

std::optional<WrittenDate> DateReader::Read(std::string_view text) const {
    if (text.size() < 6 || text.size() > 60) return std::nullopt;
    Pieces pieces;
    if (!Cut(WithYearOfEra(WithoutTime(text)), pieces)) return std::nullopt;
    return pieces.month > 0 ? Named(pieces) : Numeric(pieces);
}

std::optional<Date> DateReader::DateOf(const WrittenDate& written, Region::Order order) const {
    int day = written.first;
    int month = written.second;
    int year = written.year;
    if (written.form == Form::YearKnown && order != Region::Order::DayMonthYear) {
        std::swap(day, month);
    } else if (written.form == Form::NoYear && order == Region::Order::MonthDayYear) {
        std::swap(day, month);
    } else if (written.form == Form::NoYear && order == Region::Order::YearMonthDay) {
        std::swap(day, year);
    }
    if (year < 100) year = lastYear_ - (lastYear_ - year) % 100;
    const Date date(std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                    std::chrono::day(static_cast<unsigned>(day)));
    return date.ok() ? std::optional(date) : std::nullopt;
}

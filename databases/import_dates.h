// SPDX-License-Identifier: GPL-3.0-or-later
// Dates as results files write them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "databases/draw_records.h"

/// The pieces of a date, before anybody knows which of them is the day.
struct WrittenDate {
    enum class Form : std::uint8_t {
        Sure,  ///< `first` day, `second` month, `year`: the month has a name or the year leads.
        YearKnown,  ///< `first` and `second` are day and month in some order.
        NoYear,     ///< `first`, `second` and `year` are two digits each, in some order.
    };
    Form form = Form::Sure;
    int first = 0;
    int second = 0;
    int year = 0;
    int weekday = 0;  ///< 1 Sunday to 7 Saturday where one is named; else 0.
};

/// Reads dates: "2024-10-14", "14/10/2024", "Tue. Mar 27, 2012", "13 de octubre de 2024",
/// "20241014", "2024-01-03T00:00:00"; a time behind the date is passed over.
///
/// Month names are English, the region's, and those of the countries with large lotteries, from
/// three letters on. Weekdays in the same languages are passed over; where their names leave no
/// doubt they are told.
class DateReader {
  public:
    explicit DateReader(const DateRules& rules);

    /// The pieces of the text, or nothing where it is no date in any order.
    std::optional<WrittenDate> Read(std::string_view text) const;

    /// The date in that order, or nothing where no calendar has it.
    std::optional<Date> DateOf(const WrittenDate& written, Region::Order order) const;

    /// The day of the week where the text names nothing else, 1 to 7; 8 where the name leaves it
    /// open; else 0.
    int Weekday(std::string_view text) const;

  private:
    struct Word {
        int month = 0;
        int weekday = 0;
    };
    struct Pieces;
    Word Meaning(std::string_view word) const;
    bool TakeWord(Pieces& pieces, std::string_view word) const;
    bool Cut(std::string_view text, Pieces& pieces) const;
    static std::optional<WrittenDate> EightDigits(const Pieces& pieces);
    static std::optional<WrittenDate> Numeric(const Pieces& pieces);
    static std::optional<WrittenDate> Named(const Pieces& pieces);

    std::vector<std::pair<std::string, Word>> names_;  // sorted
    int lastYear_;                                     // of two digits
};

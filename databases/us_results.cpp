// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/us_results.h"

#include <algorithm>

#include "core/british_dates.h"
#include "core/field_reader.h"
#include "core/text.h"
#include "databases/results_page.h"

namespace {

using us_results::UsDates;

constexpr std::size_t none = std::string_view::npos;

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == none) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Heading(std::string_view name, std::string_view homePage, std::string_view rules) {
    return std::string(name) + "\r\n" + std::string(homePage) + "\r\n" + std::string(rules) +
           "\r\n";
}

// The fields of the Mega Millions work file, whose lines may begin with the line feed of a CR LF.
std::string_view NextField(FieldReader& reader, std::string_view expected) {
    reader.PassStrayLineFeeds();
    return reader.ReadField(expected);
}

Date FirstMegaMillionsDate(FieldReader& reader, const UsDates& dates) {
    for (;;) {
        if (const auto date = dates.GetDate(NextField(reader, firstDate))) return *date;
    }
}

std::string MegaMillionsBalls(FieldReader& reader) {
    std::string balls;
    for (int ball = 1; ball <= 5; ++ball) {
        balls += NextField(reader, "ball " + std::to_string(ball) + " of a draw");
        balls += ',';
    }
    balls += "0,0,";
    const std::string_view megaBall = NextField(reader, "the Mega Ball of a draw");
    reader.PassStrayLineFeeds();
    // At the very end only a row cut short leaves it empty.
    if (megaBall.empty() && reader.AtEnd()) {
        throw reader.Unexpected("the Mega Ball of a draw", megaBall);
    }
    balls += megaBall;
    return balls + "\r\n";
}

// The text before the first blank, where there is one.
std::string_view DatePiece(std::string_view row) {
    const std::size_t blank = row.find(' ');
    return blank == none ? std::string_view() : row.substr(0, blank);
}

std::string_view FirstPowerballRow(FieldReader& reader, const UsDates& dates) {
    for (;;) {
        const std::string_view row = reader.ReadField(firstDate);
        if (dates.GetDate(DatePiece(row))) return row;
    }
}

// Cuts the text up to and with its first blank and gives the number in the next two characters.
std::string NextColumn(std::string_view& row, const FieldReader& reader, std::string_view whole) {
    const std::size_t blank = row.find(' ');
    if (blank == none) throw reader.Unexpected("a row with a date and six columns", whole);
    row = Trimmed(row.substr(blank + 1));
    return PlainDigits(LeadingWhole(row.substr(0, 2)));
}

std::string PowerballRecord(std::string_view field, const UsDates& dates,
                            const FieldReader& reader) {
    std::string text(field);
    std::replace(text.begin(), text.end(), ',', ' ');
    std::string_view row = text;
    const auto date = dates.GetDate(DatePiece(row));
    if (!date) throw reader.Unexpected("a row that begins with a date and a blank", field);
    std::string record = MediumDate(*date) + ",";
    for (int ball = 1; ball <= 5; ++ball) record += NextColumn(row, reader, field) + ",";
    return record + "0,0," + NextColumn(row, reader, field) + "\r\n";
}

}  // namespace

us_results::UsDates::UsDates(const DateRules& rules)
    : rules_(rules), british_(BritishDates(rules.region)) {
    if (!british_) rules_.region.order = Region::Order::MonthDayYear;
}

std::optional<Date> us_results::UsDates::GetDate(std::string_view text) const {
    text = Trimmed(text);
    if (!british_) return ReadDate(text, rules_.region, rules_.today);
    constexpr std::string_view separators = "/-\\";
    const std::size_t first = text.find_first_of(separators);
    if (first == none) return std::nullopt;
    const std::size_t second = text.find_first_of(separators, first + 1);
    if (second == none) return std::nullopt;
    const std::string turned = std::string(text.substr(first + 1, second - first - 1)) + "/" +
                               std::string(text.substr(0, first)) + "/" +
                               std::string(text.substr(second + 1));
    return ReadDate(turned, rules_.region, rules_.today);
}

std::string us_results::MegaMillionsWorkText(std::string_view page) {
    std::string text(WithoutMark(page));
    std::replace(text.begin(), text.end(), ';', ',');
    std::replace(text.begin(), text.end(), ':', ' ');
    for (const std::string_view name : {"Mega Ball", "mega ball", "MEGA BALL"}) {
        text = Replaced(text, name, "");
    }
    text = "\r" + text + "\r\r";
    std::string reversed;
    reversed.reserve(text.size() * 2);
    for (std::size_t lineEnd = text.size() - 1; lineEnd > 0;) {
        const std::size_t before = text.rfind('\r', lineEnd - 1);
        reversed += std::string_view(text).substr(before + 1, lineEnd - before - 1);
        reversed += "\r\n";
        lineEnd = before;
    }
    return reversed;
}

std::string us_results::PowerballWorkText(std::string_view page) {
    return std::string(WithoutMark(page)) + "\r\n";
}

std::string us_results::MegaMillionsDatabase(const std::string& workText, std::string_view homePage,
                                             const UsDates& dates, std::string_view source) {
    FieldReader reader(workText, std::string(source), FieldReader::Quotes::Removed);
    std::string database = Heading("US Mega Millions", homePage, "5,52,1,52,0");
    std::optional<Date> date = FirstMegaMillionsDate(reader, dates);
    while (date) {
        database += MediumDate(*date) + ",";
        database += MegaMillionsBalls(reader);
        date.reset();
        if (!reader.AtEnd()) date = dates.GetDate(NextField(reader, "the date of a draw"));
    }
    return database;
}

std::string us_results::PowerballDatabase(const std::string& workText, std::string_view homePage,
                                          const UsDates& dates, std::string_view source) {
    FieldReader reader(workText, std::string(source), FieldReader::Quotes::Removed);
    std::string database = Heading("US Powerball", homePage, "5,53,1,42,0");
    std::string_view row = FirstPowerballRow(reader, dates);
    // Kept on purpose: a row that is the very last thing of the file is not written.
    while (!Trimmed(row).empty() && !reader.AtEnd()) {
        database += PowerballRecord(row, dates, reader);
        row = reader.ReadField("a row, or an empty line behind the last");
    }
    return database;
}

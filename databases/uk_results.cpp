// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/uk_results.h"

#include <algorithm>
#include <array>

#include "core/failure.h"
#include "core/field_reader.h"
#include "databases/results_page.h"

namespace {

using uk_results::Lottery;

constexpr auto lotteries = std::to_array<Lottery>({
    {"dbase100.txt", "6,49,0,0,1", 6, "0,", true},
    {"dbase101.txt", "5,34,1,14,0", 5, "0,0,", true},
    {"dbase102.txt", "7,27,0,0,0", 7, "0", false},
    {"dbase103.txt", "6,49,0,0,0", 6, "0,0", false},
    // Kept on purpose: six balls are drawn of which an entry names four.
    {"dbase104.txt", "4,49,0,0,0", 6, "0,0", false},
});

Date FirstDate(FieldReader& reader, const DateRules& dates) {
    for (;;) {
        const auto date = ReadDate(reader.ReadField(firstDate), dates.region, dates.today);
        if (date) return *date;
    }
}

// The date in front of the next row, or nothing behind the last one.
std::optional<Date> NextDate(FieldReader& reader, const DateRules& dates) {
    constexpr std::string_view expected = "the date of a draw, or an empty line behind the last";
    const std::string_view field = reader.ReadField(expected);
    if (field.empty()) return std::nullopt;
    const auto date = ReadDate(field, dates.region, dates.today);
    if (!date) throw reader.Unexpected(expected, field);
    return date;
}

void CopyBalls(FieldReader& reader, const Lottery& lottery, std::string& database) {
    for (int ball = 1; ball <= lottery.balls; ++ball) {
        database += reader.ReadField("ball " + std::to_string(ball) + " of a draw");
        database += ',';
    }
    database += lottery.filler;
    if (lottery.extraBall) database += reader.ReadField("the last ball of a draw");
    database += "\r\n";
}

}  // namespace

const Lottery& uk_results::LotteryAt(int index) {
    if (index < 0 || index >= std::ssize(lotteries)) {
        throw Failure("There is no UK download number " + std::to_string(index) + ".");
    }
    return lotteries.at(static_cast<std::size_t>(index));
}

std::string uk_results::WorkText(std::string_view page) {
    std::string text(WithoutMark(page));
    std::erase(text, '\r');
    return Replaced(text, "\n", "\r\n") + "\r\n";
}

// The end of the page ends its last line, so that the line behind it is there in any case.
std::string uk_results::DatabaseText(const std::string& workText, const Lottery& lottery,
                                     const Heading& heading, const DateRules& dates,
                                     std::string_view source) {
    const bool whole = workText.ends_with("\r\n\r\n");
    const std::string ended = whole ? std::string() : workText + "\r\n";
    FieldReader reader(whole ? workText : ended, std::string(source), FieldReader::Quotes::Removed);
    std::string database = std::string(heading.name) + "\r\n" + std::string(heading.address) +
                           "\r\n" + std::string(lottery.rules) + "\r\n";
    std::optional<Date> date = FirstDate(reader, dates);
    while (date) {
        database += MediumDate(*date) + ",";
        CopyBalls(reader, lottery, database);
        reader.PassRestOfLine();
        date = NextDate(reader, dates);
    }
    return database;
}

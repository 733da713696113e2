// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_row_reader.h"

#include <algorithm>

#include "core/text.h"
#include "databases/import_characters.h"
#include "databases/import_headings.h"
#include "databases/import_numbers.h"

namespace {

using Reason = LeftOutReason;

std::optional<Reason> NumberTwice(const ImportedDraw& draw) {
    const int count = draw.Count();
    for (int i = 0; i < count; ++i) {
        for (int j = 0; j < i; ++j) {
            const auto number = draw.numbers.at(static_cast<std::size_t>(i));
            if (number != draw.numbers.at(static_cast<std::size_t>(j))) continue;
            return Reason{LeftOut::NumberTwice, PlainDigits(number) + " stands there twice."};
        }
    }
    return std::nullopt;
}

}  // namespace

RowReader::RowReader(const ImportTable& table, const ImportMapping& mapping, const DateRules& dates)
    : table_(table),
      mapping_(mapping),
      dates_(dates),
      dateColumns_(ColumnsOf(mapping, ColumnRole::Dated)),
      numberColumns_(ColumnsOf(mapping, ColumnRole::Number)),
      listColumns_(ColumnsOf(mapping, ColumnRole::Numbers)),
      extraColumns_(ColumnsOf(mapping, ColumnRole::Extra)) {}

std::optional<Reason> RowReader::Read(std::size_t row, ImportedDraw& draw) const {
    draw.row = row;
    draw.line = table_.Line(row);
    if (auto reason = ReadDate(row, draw)) return reason;
    if (auto reason = OtherProduct(row)) return reason;
    if (auto reason = ReadNumbers(row, draw)) return reason;
    return NumberTwice(draw);
}

std::optional<Reason> RowReader::ReadDate(std::size_t row, ImportedDraw& draw) const {
    std::string joined;
    for (const std::size_t column : dateColumns_) {
        if (!joined.empty()) joined += ' ';
        joined += table_.Cell(row, column);
    }
    if (const auto written = dates_.Read(joined)) {
        if (const auto date = dates_.DateOf(*written, mapping_.dateOrder)) {
            draw.date = *date;
            return std::nullopt;
        }
    }
    return NoDraw(row, joined);
}

// What a row without a date is.
Reason RowReader::NoDraw(std::size_t row, const std::string& instead) const {
    if (KnownHeadings(table_, row) >= 3) return {LeftOut::Heading, "A heading."};
    const std::string text = table_.RowText(row);
    const bool digits = std::any_of(text.begin(), text.end(), IsDigitByte);
    const bool letters = std::any_of(text.begin(), text.end(), IsLetterByte);
    if (!digits && !letters) return {LeftOut::Rule, "A line between the draws."};
    if (table_.Cells(row) < 3 || !digits) return {LeftOut::Text, "A text between the draws."};
    const std::string date = Trim(instead);
    if (date.empty()) return {LeftOut::NoDate, "There is no date."};
    return {LeftOut::NoDate, Quoted(date) + " is no date."};
}

std::optional<Reason> RowReader::OtherProduct(std::size_t row) const {
    if (mapping_.productColumn < 0) return std::nullopt;
    const std::string_view product =
        table_.Cell(row, static_cast<std::size_t>(mapping_.productColumn));
    if (product == mapping_.product) return std::nullopt;
    return Reason{LeftOut::OtherProduct, "A draw of " + Quoted(product) + "."};
}

std::optional<Reason> RowReader::ReadNumbers(std::size_t row, ImportedDraw& draw) const {
    std::size_t count = 0;
    for (const std::size_t column : numberColumns_) {
        const std::string_view cell = table_.Cell(row, column);
        const int number = BallNumber(cell);
        if (number == noNumber) {
            return Reason{LeftOut::OutOfRange, Quoted(cell) + " is no number from 1 to 99."};
        }
        if (number <= 0 || count == draw.numbers.size()) continue;
        draw.numbers.at(count++) = static_cast<std::int16_t>(number);
    }
    for (const std::size_t column : listColumns_) {
        if (auto reason = ReadList(table_.Cell(row, column), count, draw)) return reason;
    }
    return ReadExtra(row, draw);
}

// Numbers beyond the main ones are extra balls.
std::optional<Reason> RowReader::ReadList(std::string_view cell, std::size_t& count,
                                          ImportedDraw& draw) const {
    BallList list = ReadBallList(cell);
    if (list.count == 0) list = ReadGluedBalls(cell);
    const auto most = static_cast<std::size_t>(std::clamp(mapping_.picks, 1, 7));
    int surplus = 0;
    for (std::size_t i = 0; i < list.count; ++i) {
        const std::int16_t number = list.numbers.at(i);
        if (count >= most) {
            if (++surplus == mapping_.keptExtra) draw.extra = number;
        } else if (number == 0) {
            return Reason{LeftOut::OutOfRange, "0 is no number from 1 to 99."};
        } else {
            draw.numbers.at(count++) = number;
        }
    }
    return std::nullopt;
}

std::optional<Reason> RowReader::ReadExtra(std::size_t row, ImportedDraw& draw) const {
    for (const std::size_t column : extraColumns_) {
        const std::string_view cell = table_.Cell(row, column);
        int number = BallNumber(cell);
        if (number == noNumber) {
            const BallList list = ReadBallList(cell);
            const auto kept = static_cast<std::size_t>(std::max(mapping_.keptExtra, 1));
            if (list.count < kept) {
                return Reason{LeftOut::OutOfRange, Quoted(cell) + " is no extra ball."};
            }
            number = list.numbers.at(kept - 1);
        }
        draw.extra = static_cast<std::int16_t>(std::max(number, 0));
        if (draw.extra > 0) break;
    }
    return std::nullopt;
}

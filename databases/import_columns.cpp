// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_columns.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "databases/import_characters.h"
#include "databases/import_numbers.h"

namespace {

constexpr std::size_t mostColumns = 120;

void Describe(BallColumn& column) {
    std::array<std::size_t, 100> counts{};
    std::size_t pairs = 0;
    std::size_t same = 0;
    std::size_t near = 0;
    int before = -1;
    for (const int number : column.numbers) {
        if (number < 0) continue;
        ++counts.at(static_cast<std::size_t>(number));
        ++column.filled;
        column.lowest = std::min(column.lowest, number);
        column.highest = std::max(column.highest, number);
        if (before >= 0) {
            ++pairs;
            if (number == before) ++same;
            if (std::abs(number - before) <= 1) ++near;
        }
        before = number;
    }
    column.distinct = static_cast<int>(
        std::count_if(counts.begin(), counts.end(), [](std::size_t count) { return count > 0; }));
    if (column.filled == 0) return;
    const auto share = [](std::size_t part, std::size_t whole) {
        return whole == 0 ? 0.0 : static_cast<double>(part) / static_cast<double>(whole);
    };
    column.commonest = share(*std::max_element(counts.begin(), counts.end()), column.filled);
    column.repeated = share(same, pairs);
    column.steady = share(near, pairs);
}

// A number of draws or weeks, a constant, or a part of the date.
bool IsCounter(const BallColumn& column, const std::vector<SampleRow>& rows) {
    if (column.filled < 4) return false;
    if (column.distinct == 1 || column.steady >= 0.8) return true;
    std::array<std::size_t, 3> parts{};
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int number = column.numbers[i];
        const Date date = rows[i].date;
        if (number == static_cast<int>(static_cast<unsigned>(date.day()))) ++parts[0];
        if (number == static_cast<int>(static_cast<unsigned>(date.month()))) ++parts[1];
        if (number == static_cast<int>(date.year()) % 100) ++parts[2];
    }
    return *std::max_element(parts.begin(), parts.end()) * 10 >= column.filled * 9;
}

using ReadList = BallList (*)(std::string_view cell);

// How many numbers most of the cells hold; 0 where they are no lists.
std::size_t PlacesOf(const ImportTable& table, const std::vector<SampleRow>& rows,
                     std::size_t column, ReadList read) {
    std::array<std::size_t, BallList::most + 1> counts{};
    std::size_t filled = 0;
    for (const SampleRow& row : rows) {
        const std::string_view cell = table.Cell(row.row, column);
        if (cell.empty()) continue;
        ++filled;
        ++counts.at(read(cell).count);
    }
    const auto* const most = std::max_element(counts.begin() + 2, counts.end());
    std::size_t lists = 0;
    for (std::size_t count = 2; count < counts.size(); ++count) lists += counts.at(count);
    if (filled == 0 || lists * 10 < filled * 8) return 0;
    // Where the count changed with the rules the larger one holds for both.
    std::size_t places = static_cast<std::size_t>(most - counts.begin());
    for (std::size_t count = places + 1; count < counts.size(); ++count) {
        if (counts.at(count) * 20 >= filled) places = count;
    }
    return places;
}

void AddPlaces(const ImportTable& table, const std::vector<SampleRow>& rows, std::size_t column,
               ReadList read, std::vector<BallColumn>& columns) {
    const std::size_t places = PlacesOf(table, rows, column, read);
    if (places < 2) return;
    const std::size_t first = columns.size();
    for (std::size_t place = 1; place <= places; ++place) {
        columns.push_back({.column = column, .part = static_cast<int>(place), .numbers = {}});
        columns.back().glued = read == ReadGluedBalls;
        columns.back().numbers.reserve(rows.size());
    }
    for (const SampleRow& row : rows) {
        const BallList list = read(table.Cell(row.row, column));
        for (std::size_t place = 0; place < places; ++place) {
            columns[first + place].numbers.push_back(place < list.count ? list.numbers.at(place)
                                                                        : std::int8_t{-1});
        }
    }
    for (std::size_t place = first; place < columns.size(); ++place) Describe(columns[place]);
}

// The number in a cell, also behind a word for an extra ball: "PB: 7".
int NumberIn(std::string_view cell) {
    const int number = BallNumber(cell);
    if (number != noNumber || cell.empty() || !IsLetterByte(cell.front())) return number;
    const BallList list = ReadBallList(cell);
    const std::string_view word =
        cell.substr(0, std::min(cell.find_first_of("0123456789"), cell.size()));
    // "C(12)" and "R(7)" are what Spanish lists call the complementary and the refund.
    const bool told = ReadHeading(word).kind == HeadingKind::Extra || word == "C(" || word == "R(";
    return told && list.count == 1 ? list.numbers.front() : noNumber;
}

// The column where nearly all cells hold one number each; else nothing of it is filled.
BallColumn SingleNumbers(const ImportTable& table, const std::vector<SampleRow>& rows,
                         std::size_t column) {
    BallColumn single{.column = column, .part = 0, .numbers = {}};
    single.numbers.reserve(rows.size());
    std::size_t wrong = 0;
    for (const SampleRow& row : rows) {
        const int number = NumberIn(table.Cell(row.row, column));
        if (number == noNumber && ++wrong * 20 > rows.size()) break;
        single.numbers.push_back(static_cast<std::int8_t>(number));
    }
    single.numbers.resize(rows.size(), noNumber);
    Describe(single);
    if (wrong * 20 > std::max<std::size_t>(single.filled, 1)) single.filled = 0;
    return single;
}

// Whether nearly all rows have the same word for an extra ball, or "+", in that column.
bool HoldsWordForExtra(const ImportTable& table, const std::vector<SampleRow>& rows,
                       std::size_t column) {
    if (rows.empty()) return false;
    const std::string_view word = table.Cell(rows.front().row, column);
    if (word != "+" && ReadHeading(word).kind != HeadingKind::Extra) return false;
    const auto same = std::count_if(rows.begin(), rows.end(), [&](const SampleRow& row) {
        return table.Cell(row.row, column) == word;
    });
    return static_cast<std::size_t>(same) * 20 >= rows.size() * 19;
}

// "1 + 2 + 3 + 4 + 5 + 6 + 7": where signs stand between all numbers they tell nothing.
void BelieveWords(std::vector<BallColumn>& columns) {
    const auto words = std::count_if(columns.begin(), columns.end(),
                                     [](const BallColumn& column) { return column.behindWord; });
    for (BallColumn& column : columns) column.told = column.behindWord && words <= 3;
}

std::vector<BallColumn> BallColumnsBy(ReadList read, const ImportTable& table,
                                      const std::vector<SampleRow>& rows,
                                      const std::vector<std::size_t>& dateColumns,
                                      const std::vector<ColumnHeading>& headings) {
    std::vector<BallColumn> found;
    const std::size_t last = std::min(table.Columns(), mostColumns);
    for (std::size_t column = 0; column < last; ++column) {
        const bool date =
            std::find(dateColumns.begin(), dateColumns.end(), column) != dateColumns.end();
        const HeadingKind kind =
            column < headings.size() ? headings[column].kind : HeadingKind::Unknown;
        if (date || kind == HeadingKind::Other || kind == HeadingKind::DrawNumber) continue;
        BallColumn single = SingleNumbers(table, rows, column);
        const bool told = kind == HeadingKind::Main || kind == HeadingKind::Extra;
        const bool enough = single.filled > 0 && single.filled * 20 >= rows.size();
        if (enough && single.highest > 0 && (told || !IsCounter(single, rows))) {
            single.behindWord = column > 0 && HoldsWordForExtra(table, rows, column - 1);
            found.push_back(std::move(single));
        } else if (single.filled == 0) {
            AddPlaces(table, rows, column, read, found);
        }
    }
    BelieveWords(found);
    return found;
}

}  // namespace

std::vector<BallColumn> FindBallColumns(const ImportTable& table,
                                        const std::vector<SampleRow>& rows,
                                        const std::vector<std::size_t>& dateColumns,
                                        const std::vector<ColumnHeading>& headings) {
    constexpr std::size_t fewest = 4;
    std::vector<BallColumn> found = BallColumnsBy(ReadBallList, table, rows, dateColumns, headings);
    if (found.size() >= fewest) return found;
    std::vector<BallColumn> glued =
        BallColumnsBy(ReadGluedBalls, table, rows, dateColumns, headings);
    return glued.size() >= fewest ? glued : found;
}

bool CouldBeDrawn(const BallColumn& column) {
    if (column.filled < 8) return true;
    const double fair = 1.0 / std::max(column.distinct, 1);
    const double rows = static_cast<double>(column.filled);
    if (column.filled >= 24 && column.lowest != 1 && column.distinct <= 6) return false;
    if (column.repeated > 3 * fair + 4 / rows && column.repeated > 0.2) return false;
    return column.commonest <= 3 * fair + 4 / rows;
}

double EqualShare(const BallColumn& one, const BallColumn& other) {
    std::size_t both = 0;
    std::size_t equal = 0;
    for (std::size_t i = 0; i < one.numbers.size(); ++i) {
        if (one.numbers[i] < 0 || other.numbers[i] < 0) continue;
        ++both;
        if (one.numbers[i] == other.numbers[i]) ++equal;
    }
    return both == 0 ? 0 : static_cast<double>(equal) / static_cast<double>(both);
}

double AscendingShare(const BallColumn& one, const BallColumn& other) {
    std::size_t both = 0;
    std::size_t ascending = 0;
    for (std::size_t i = 0; i < one.numbers.size(); ++i) {
        if (one.numbers[i] < 0 || other.numbers[i] < 0) continue;
        ++both;
        if (one.numbers[i] < other.numbers[i]) ++ascending;
    }
    return both == 0 ? 0 : static_cast<double>(ascending) / static_cast<double>(both);
}

double SlipsAllowed(const BallColumn& column) {
    return column.filled >= 100 ? std::max(0.005, 1.5 / static_cast<double>(column.filled)) : 0;
}

double ChanceOfNothingAbove(int highest, int drum, std::size_t balls) {
    if (highest >= drum) return 1;
    return std::pow(static_cast<double>(highest) / drum, static_cast<double>(balls));
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/number_stats.h"

#include <algorithm>
#include <functional>

#include "core/failure.h"
#include "core/frequency.h"
#include "core/text.h"

namespace {

using number_stats::NumberFigures;

constexpr int highestNumber = static_cast<int>(Counts::Count()) - 1;
constexpr int rulesLine = 3;  // of a draw database
constexpr std::int16_t notSeen = -1;

void RequireCountable(const State& state) {
    if (state.MaxNum <= highestNumber) return;
    throw FailureInFile(state.DbaseFile, rulesLine,
                        "expected " + PlainDigits(highestNumber) +
                            " or less as the highest number, but " + PlainDigits(state.MaxNum) +
                            " stands there");
}

// An empty field is counted as number 0, whose row nobody has taken back.
void SeeNumber(State& state, Counts& timesDrawn, int row, int column) {
    CountNumberAt(timesDrawn, state, row, column);
    const int number = View(state).Draws(row, column);
    std::int16_t& lastSeen = state.Pool(number);
    const bool firstEmpty = number == 0 && timesDrawn(0) == 1;
    if (lastSeen < 0 || firstEmpty) lastSeen = static_cast<std::int16_t>(row);
}

std::string LastDrawnText(const NumberFigures& figures) {
    return figures.lastDrawn == 0 ? "Never" : PlainDigits(figures.lastDrawn) + " draws ago";
}

// In hundredths, as a whole number, so that halves are halves.
std::string AverageText(const NumberFigures& figures, int total) {
    if (figures.timesDrawn < 1) return "Never";
    const int hundredths = (200 * total + figures.timesDrawn) / (2 * figures.timesDrawn);
    const std::string places = PlainDigits(100 + hundredths % 100).substr(1);
    return PlainDigits(hundredths / 100) + "." + places + " draws";
}

}  // namespace

number_stats::Statistics number_stats::Analyse(State& state) {
    RequireCountable(state);
    Counts timesDrawn("times drawn");
    for (int number = 1; number <= state.MaxNum; ++number) state.Pool(number) = notSeen;
    int row = 1;
    do {
        for (int column = 1; column <= state.Picks; ++column) {
            SeeNumber(state, timesDrawn, row, column);
        }
        ++row;
    } while (View(state).Draws(row, 1) != 0);
    Statistics statistics{.total = row - 1, .numbers = {}};
    for (int number = 1; number <= state.MaxNum; ++number) {
        const int lastDrawn = std::max<int>(state.Pool(number), 0);
        statistics.numbers.push_back({.lastDrawn = lastDrawn, .timesDrawn = timesDrawn(number)});
    }
    return statistics;
}

std::vector<number_stats::TableRow> number_stats::TableOf(const Statistics& statistics) {
    std::vector<TableRow> rows;
    int number = 0;
    for (const NumberFigures& figures : statistics.numbers) {
        rows.push_back(
            {PlainDigits(++number), LastDrawnText(figures),
             PlainDigits(figures.timesDrawn) + " /" + NumberText(statistics.total) + " draws",
             AverageText(figures, statistics.total)});
    }
    return rows;
}

void number_stats::SortRows(std::vector<TableRow>& rows, int column, Order order) {
    const auto key = [column](const TableRow& row) {
        return LeadingWhole(row.at(static_cast<std::size_t>(column)));
    };
    if (order == Order::HighestFirst) {
        std::ranges::stable_sort(rows, std::greater<>(), key);
    } else {
        std::ranges::stable_sort(rows, std::less<>(), key);
    }
}

std::string number_stats::FirstTen(const std::vector<TableRow>& rows) {
    constexpr std::size_t shown = 10;
    std::string text;
    for (std::size_t place = 0; place < shown; ++place) {
        if (place > 0) text += ',';
        text += ' ';
        if (place < rows.size()) text += rows[place].front();
    }
    return text;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/grid_reports.h"

#include "core/text.h"

namespace {

constexpr double bodyDown = 50;
constexpr double entriesBodyDown = 36;  // they have no subtitle

/// What differs between the reports of grids.
struct Columns {
    const char* separator;  ///< Before each number.
    int firstNumber;        ///< The columns that print as numbers; those before as texts.
    int last;
    bool colon;       ///< Whether column 0 is followed by one.
    double start;     ///< Where column 0 of the numbers would stand, from the left margin.
    double distance;  ///< Between columns; the text size is added to it.
};

constexpr Columns linesColumns = {
    .separator = " ", .firstNumber = 0, .last = 8, .colon = true, .start = 0, .distance = 12};
constexpr Columns drawsColumns = {
    .separator = " ", .firstNumber = 1, .last = 8, .colon = true, .start = 10, .distance = 14};
constexpr Columns statsColumns = {
    .separator = "  ", .firstNumber = 0, .last = 3, .colon = false, .start = 0, .distance = 28};
constexpr Columns entriesColumns = {
    .separator = "  ", .firstNumber = 1, .last = 9, .colon = true, .start = 10, .distance = 12};

constexpr int nameColumn = 10;
constexpr double nameStart = 15;
constexpr double nameDistance = 14;

std::string CellText(const ReportTable& table, int row, int column, const Columns& columns) {
    const std::string_view cell = CellOf(table, row, column);
    std::string text =
        column < columns.firstNumber ? std::string(cell) : NumberCell(cell, columns.separator);
    if (column == 0 && columns.colon) text += ':';
    return text;
}

void PrintRow(ReportSetter& setter, const ReportTable& table, int row, const Columns& columns) {
    for (int column = 0; column <= columns.last; ++column) {
        const double place =
            column == 0 ? 0 : columns.start + (setter.TextSize() + columns.distance) * column;
        setter.PrintAt(place, CellText(table, row, column, columns));
    }
}

Document GridReport(const ReportTable& table, std::string_view title, const std::string& subtitle,
                    const Columns& columns, const ReportChoice& choice, const SheetRoom& room) {
    ReportSetter setter(choice, room);
    setter.PrintTitle(title);
    setter.PrintSubtitle(subtitle);
    setter.BeginBody(bodyDown);
    ForEachReportRow(table, choice, [&](int row) {
        PrintRow(setter, table, row, columns);
        setter.EndLine();
    });
    return std::move(setter).Take();
}

}  // namespace

std::string NumberCell(std::string_view cell, std::string_view separator) {
    const double number = LeadingNumber(cell);
    if (number <= 0) return std::string(cell);
    const std::string digits = FixedText(number, 0);
    return std::string(separator) + (digits.size() < 2 ? "0" : "") + digits;
}

Document LinesReport(const ReportTable& table, std::string_view lotteryName,
                     const ReportChoice& choice, const SheetRoom& room) {
    return GridReport(table, "        Lottery Quillon                            ",
                      "Lottery: " + std::string(lotteryName), linesColumns, choice, room);
}

Document DrawsReport(const ReportTable& table, std::string_view lotteryName,
                     const ReportChoice& choice, const SheetRoom& room) {
    return GridReport(table, "        Lottery Draw Results                        ",
                      "Lottery database: " + std::string(lotteryName), drawsColumns, choice, room);
}

Document StatsReport(const ReportTable& table, std::string_view lotteryName,
                     const ReportChoice& choice, const SheetRoom& room) {
    return GridReport(table, "     Lottery Number Statistics               ",
                      "Lottery: " + std::string(lotteryName), statsColumns, choice, room);
}

Document EntriesReport(const ReportTable& table, const ReportChoice& choice,
                       const SheetRoom& room) {
    ReportSetter setter(choice, room);
    setter.PrintTitle("     Lottery Entries               ");
    setter.BeginBody(entriesBodyDown);
    ForEachReportRow(table, choice, [&](int row) {
        PrintRow(setter, table, row, entriesColumns);
        setter.PrintAt(nameStart + (setter.TextSize() + nameDistance) * nameColumn,
                       CellOf(table, row, nameColumn));
        setter.EndLine();
    });
    return std::move(setter).Take();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/syndicate_reports.h"

#include "core/syndicate.h"

namespace {

constexpr double bodyDown = 50;
constexpr double diaryDown = 35;  // its head stands in the place of a subtitle
constexpr int memberDashes = 100;
constexpr int paymentDashes = 110;
constexpr int diaryDashes = 120;

constexpr const char* usualTitle = "        Lottery Quillon                        ";

/// A column's distance from the left margin: some millimetres, and some more for each step of the
/// text size.
struct Place {
    double distance;
    double forTextSize;
};

constexpr std::array<Place, 4> paymentPlaces = {{{0, 0}, {45, 5}, {75, 7}, {100, 10}}};
constexpr std::array<Place, 6> diaryPlaces = {
    {{0, 0}, {30, 4}, {50, 5}, {70, 5}, {90, 5}, {115, 6}}};
constexpr Place firstHeadPlace = {100, 2};
constexpr Place headPlace = {105, 2};

void PrintAt(ReportSetter& setter, const Place& place, std::string_view text) {
    setter.PrintAt(place.distance + setter.TextSize() * place.forTextSize, text);
}

/// A line with its name in bold.
void PrintNamed(ReportSetter& setter, std::string_view name, std::string_view text) {
    setter.SetBold(true);
    setter.PrintAt(0, name);
    setter.SetBold(false);
    setter.Print(text);
    setter.EndLine();
}

void PrintMember(ReportSetter& setter, const State& state, int row) {
    const auto& members = state.Members;
    std::string address = members(row, 1);
    for (int line = 2; line <= 4; ++line) address += ", " + members(row, line);
    PrintNamed(setter, "    Name: ", members(row, 0) + (row == 0 ? "  (Manager)" : ""));
    PrintNamed(setter, "Address: ", address);
    PrintNamed(setter, "    Phone: ", members(row, 5));
    PrintNamed(setter, "     Email: ", members(row, 6));
    PrintNamed(setter, "   Pay by: ", members(row, 7));
    setter.PrintDashes(memberDashes);
}

bool IsOverdue(std::string_view cell, const PrintDay& day) {
    const auto date = ReadDate(cell, day.region, day.date);
    return date && *date < day.date;
}

void PrintDiaryHead(ReportSetter& setter, const DiaryHead& head) {
    const std::string blanks(12, ' ');
    const std::array<std::string, 4> left = {"Syndicate name: " + head.syndicate,
                                             "Manager name: " + head.manager,
                                             "Phone: " + head.phone, "Email: " + head.email};
    for (std::size_t line = 0; line < left.size(); ++line) {
        setter.PrintAt(0, left.at(line));
        PrintAt(setter, line == 0 ? firstHeadPlace : headPlace,
                (line == 0 ? "Address: " : blanks) + head.address.at(line));
        setter.EndLine();
    }
    setter.EndLine();
    setter.EndLine();
}

}  // namespace

Document MembersReport(const State& state, const ReportChoice& choice, const SheetRoom& room) {
    ReportSetter setter(choice, room);
    setter.PrintTitle(usualTitle);
    setter.PrintSubtitle("Members of the " + state.Members(0, 10) + " syndicate");
    setter.BeginBody(bodyDown);
    int row = 0;
    do {
        PrintMember(setter, state, row);
        ++row;
    } while (row <= choice.lines && !state.Members(row, 0).empty());
    return std::move(setter).Take();
}

Document PaymentsReport(const ReportTable& table, const PrintDay& day, const ReportChoice& choice,
                        const SheetRoom& room) {
    ReportSetter setter(choice, room);
    setter.PrintTitle(usualTitle, 2);
    setter.PrintSubtitle("Syndicate member payments, " + day.shown);
    setter.BeginBody(bodyDown);
    ForEachReportRow(table, choice, [&](int row) {
        int column = 0;
        for (const Place& place : paymentPlaces) {
            const std::string_view cell = CellOf(table, row, column);
            const bool isDate = ++column == static_cast<int>(paymentPlaces.size());
            setter.SetBold(isDate && IsOverdue(cell, day));
            PrintAt(setter, place, cell);
        }
        setter.SetBold(false);
        setter.EndLine();
        if (row == 0) setter.PrintDashes(paymentDashes);
    });
    return std::move(setter).Take();
}

Document DiaryReport(const ReportTable& table, const DiaryHead& head, const ReportChoice& choice,
                     const SheetRoom& room) {
    ReportSetter setter(choice, room);
    setter.PrintTitle("Lottery Quillon Syndicate Manger     ");
    setter.BeginBody(diaryDown);
    PrintDiaryHead(setter, head);
    ForEachReportRow(table, choice, [&](int row) {
        setter.SetBold(row == 0);
        int column = 0;
        for (const Place& place : diaryPlaces) PrintAt(setter, place, CellOf(table, row, column++));
        setter.EndLine();
        setter.SetBold(false);
        if (row == 0) setter.PrintDashes(diaryDashes);
    });
    setter.EndLine();
    setter.SetBold(true);
    setter.PrintAt(0, "Total = " + head.total);
    return std::move(setter).Take();
}

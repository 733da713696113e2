// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/report_frame.h"

#include <utility>

namespace {

constexpr int titlePoints = 16;
constexpr int subtitlePoints = 12;
constexpr int bodyPoints = 10;
constexpr double titleDown = 18;
constexpr double subtitleDown = 36;

}  // namespace

std::string_view CellOf(const ReportTable& table, int row, int column) {
    const auto r = static_cast<std::size_t>(row);
    const auto c = static_cast<std::size_t>(column);
    if (r >= table.size() || c >= table[r].size()) return {};
    return table[r][c];
}

int ReportLineCount(const ReportTable& table) {
    int count = 0;
    while (!CellOf(table, count + 1, 1).empty()) ++count;
    return count;
}

bool ReportGoesOn(const ReportTable& table, const ReportChoice& choice, int row) {
    return row <= choice.lines && !CellOf(table, row, 1).empty();
}

ReportSetter::ReportSetter(const ReportChoice& choice, SheetRoom room)
    : choice_(choice), setter_(std::move(room)) {}

void ReportSetter::PrintTitle(std::string_view title, int lines) {
    setter_.SetLook({.points = choice_.textSize + titlePoints, .bold = true, .underlined = true});
    setter_.MoveTo(choice_.leftMargin, choice_.textSize + titleDown);
    for (int line = 0; line < lines; ++line) {
        PrintAt(0, title);
        EndLine();
    }
}

void ReportSetter::PrintSubtitle(std::string_view subtitle) {
    setter_.SetLook(
        {.points = choice_.textSize + subtitlePoints, .bold = false, .underlined = false});
    setter_.MoveTo(choice_.leftMargin, choice_.textSize + subtitleDown);
    Print(subtitle);
}

void ReportSetter::BeginBody(double down) {
    SetBold(false);
    setter_.MoveTo(choice_.leftMargin, choice_.textSize + down);
}

void ReportSetter::PrintAt(double fromMargin, std::string_view text) {
    setter_.MoveAcross(choice_.leftMargin + fromMargin);
    Print(text);
}

void ReportSetter::SetBold(bool bold) {
    setter_.SetLook({.points = choice_.textSize + bodyPoints, .bold = bold, .underlined = false});
}

void ReportSetter::PrintDashes(int length) {
    PrintAt(0, std::string(static_cast<std::size_t>(length), '-'));
    EndLine();
}

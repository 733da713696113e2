// SPDX-License-Identifier: GPL-3.0-or-later
// What all reports have in common: a title, a body below it, and rows as far as the user wants
// them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "printing/page.h"

/// A table as a form shows it, row 0 the headings; texts in Windows-1252. Cells that a row does not
/// have are empty.
using ReportTable = std::vector<std::vector<std::string>>;

/// What the user has chosen for a report.
struct ReportChoice {
    double lines = 0;        ///< The last row that is printed.
    double leftMargin = 10;  ///< In millimetres.
    int textSize = 0;        ///< What is added to all sizes, from -4 to 4; it also moves things.
};

/// The cell; empty where the table has none.
std::string_view CellOf(const ReportTable& table, int row, int column);

/// How many rows from row 1 on have something in column 1, up to the first that has not.
int ReportLineCount(const ReportTable& table);

/// Whether the report goes on with `row`, which is not the heading row.
bool ReportGoesOn(const ReportTable& table, const ReportChoice& choice, int row);

/// Calls `printRow` for the heading row and then for each row that the report goes on with.
template <typename PrintRow>
void ForEachReportRow(const ReportTable& table, const ReportChoice& choice, PrintRow printRow) {
    int row = 0;
    do {
        printRow(row);
        ++row;
    } while (ReportGoesOn(table, choice, row));
}

/// Sets a report: what is told of places holds for its margin and text size.
class ReportSetter {
  public:
    ReportSetter(const ReportChoice& choice, SheetRoom room);

    /// The title `lines` times, one below the other, at the top.
    void PrintTitle(std::string_view title, int lines = 1);

    void PrintSubtitle(std::string_view subtitle);

    /// Goes to the left margin at this height, in the size of a report's body; the text size moves
    /// it down.
    void BeginBody(double down);

    /// Sets a text in a column, told by its distance from the left margin.
    void PrintAt(double fromMargin, std::string_view text);

    /// Sets a text behind the last one.
    void Print(std::string_view text) { setter_.Print(text); }

    /// Bold or not from here on, in the size of the body.
    void SetBold(bool bold);

    void EndLine() { setter_.EndLine(); }

    /// A line of its own of `length` dashes, at the left margin.
    void PrintDashes(int length);

    double TextSize() const { return choice_.textSize; }

    Document Take() && { return std::move(setter_).Take(); }

  private:
    ReportChoice choice_;
    Typesetter setter_;
};

// SPDX-License-Identifier: GPL-3.0-or-later
// The check of ShowMyDrawsW: colours, colour key and report.
#include <QAccessible>
#include <QCoreApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "entries/EntryGrid.h"
#include "entries/MatchLooks.h"
#include "entries/ShowMyDrawsW.h"
#include "platform/forms/Hourglass.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Grid.h"

namespace {

constexpr int rowsAbove = 6;
constexpr double frameSeconds = 1.0 / 60;

Match MatchOf(Mark mark) {
    switch (mark) {
        case Mark::Main:
            return Match::Main;
        case Mark::Extra:
            return Match::Extra;
        default:
            return Match::None;
    }
}

}  // namespace

void ShowMyDrawsW::Check() {
    const Hourglass hourglass;
    ToggleButtons();
    colourKey_->show();
    EntryCheck check(state(), folder(), services().region, services().today());
    CheckEntries(check);
    report_->setPlainText(ToQString(CheckReport(check.Counts(), state().Picks)));
    TellCheck(ToQString(SummaryText(check.Summary())));
    GoToFirstCell();
    ToggleButtons();
}

// The entries are those of the grid, saved or not.
void ShowMyDrawsW::CheckEntries(EntryCheck& check) {
    nextMessages_ = services().seconds();
    const int count = EntryCount(*grid_);
    for (int row = 1; row <= count; ++row) {
        const auto match = check.Check(EntryInGrid(*grid_, row), row);
        if (match) Paint(row, *match);
        LetMessagesRun(row);
    }
}

void ShowMyDrawsW::Paint(int row, const EntryMatch& match) {
    for (int column = 0; column < grid_->ColumnCount(); ++column) {
        const Mark mark = match.marks[static_cast<std::size_t>(column)];
        if (mark == Mark::None) continue;
        grid_->SetCellBackground(row, column, MatchColour(MatchOf(mark)));
        // The empty cell of a lottery without a ball beside its numbers takes the colour, but no
        // number of it matched.
        const bool isNumber = !grid_->Cell(row, column).isEmpty();
        grid_->SetCellMatch(row, column, isNumber ? MatchOf(mark) : Match::None);
    }
}

void ShowMyDrawsW::TellCheck(const QString& text) {
    checkSummary_->setText(text);
    QAccessibleEvent alert(checkSummary_, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

// As often as a screen can show it; most checks are over before.
void ShowMyDrawsW::LetMessagesRun(int row) {
    const double now = services().seconds();
    if (now < nextMessages_) return;
    nextMessages_ = now + frameSeconds;
    if (row > rowsAbove) grid_->SetTopRow(row - rowsAbove);
    QCoreApplication::processEvents();
}

// SPDX-License-Identifier: GPL-3.0-or-later
// The check of ShowMyDrawsW: colours, colour key and report.
#include <QCoreApplication>
#include <QPlainTextEdit>
#include <QPushButton>

#include "entries/EntryGrid.h"
#include "entries/MatchColours.h"
#include "entries/ShowMyDrawsW.h"
#include "platform/forms/Hourglass.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Grid.h"

namespace {

constexpr int rowsAbove = 6;
constexpr double frameSeconds = 1.0 / 60;

QColor ColourOf(Mark mark) {
    switch (mark) {
        case Mark::Main:
            return MainMatchColour();
        case Mark::Extra:
            return ExtraMatchColour();
        default:
            return NoMatchColour();
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
    GoToFirstCell();
    ToggleButtons();
}

// The entries are those of the grid, saved or not.
void ShowMyDrawsW::CheckEntries(EntryCheck& check) {
    nextMessages_ = services().seconds();
    for (int row = 1; !grid_->Cell(row, 0).isEmpty(); ++row) {
        const auto match = check.Check(EntryInGrid(*grid_, row), row);
        if (match) Paint(row, *match);
        LetMessagesRun(row);
    }
}

void ShowMyDrawsW::Paint(int row, const EntryMatch& match) {
    for (int column = 0; column < grid_->ColumnCount(); ++column) {
        const Mark mark = match.marks[static_cast<std::size_t>(column)];
        if (mark != Mark::None) grid_->SetCellBackground(row, column, ColourOf(mark));
    }
}

// As often as a screen can show it; most checks are over before.
void ShowMyDrawsW::LetMessagesRun(int row) {
    const double now = services().seconds();
    if (now < nextMessages_) return;
    nextMessages_ = now + frameSeconds;
    if (row > rowsAbove) grid_->SetTopRow(row - rowsAbove);
    QCoreApplication::processEvents();
}

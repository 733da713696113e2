// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/WhatIf.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QPlainTextEdit>
#include <algorithm>
#include <string>

#include "analysis/what_if.h"
#include "core/failure.h"
#include "core/lines.h"
#include "core/saved_entries.h"
#include "core/text.h"
#include "platform/forms/Hourglass.h"
#include "platform/forms/LinesGrid.h"
#include "platform/forms/LotteryList.h"
#include "platform/forms/ShowTip.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/GridRows.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/NumberColours.h"

namespace {

constexpr int parkingRow = 99;
constexpr int extraBallColumn = 8;
constexpr int lastColumn = 9;

QString LoadedInWords(int entries, const QString& lottery) {
    if (entries == 0) return WhatIf::tr("There are no saved entries of %1").arg(lottery);
    if (entries == 1) return WhatIf::tr("1 saved entry of %1 loaded").arg(lottery);
    return WhatIf::tr("%1 saved entries of %2 loaded").arg(entries).arg(lottery);
}

}  // namespace

void WhatIf::Load() {
    Prepare();
    InitGrid();
    ListDatabases(program(), Lotteries());
    ShowEntriesInUse();
    state().Busy = 0;
}

void WhatIf::InitGrid() {
    SetLinesHeadings(*grid_);
    grid_->SetCurrentCell(parkingRow, 0);
}

// Before a lottery is chosen nobody knows which columns it has.
void WhatIf::ShowEntriesInUse() {
    if (Lotteries().Index() >= 0) {
        ShowUse(state(), *grid_);
    } else {
        grid_->SetRowsInUse(FirstFreeRow() - 1);
    }
}

// The row that the current one is parked in may hold an entry, which can be chosen like any other.
void WhatIf::GoToRow(int row) {
    const QAbstractItemModel& model = *grid_->model();
    const QModelIndex last = model.index(row - 1, lastColumn);
    QItemSelectionModel& selection = *grid_->selectionModel();
    selection.setCurrentIndex(last, QItemSelectionModel::NoUpdate);
    selection.select({model.index(row - 1, 1), last}, QItemSelectionModel::ClearAndSelect);
}

int WhatIf::FirstFreeRow() const {
    int row = 1;
    while (!grid_->Cell(row, 0).isEmpty()) ++row;
    return row;
}

void WhatIf::ChooseLottery() {
    if (state().Busy != 0) return;
    state().Busy = -1;
    InitGrid();
    ShowResult({}, {});
    AnalysisForm::ChooseLottery();
    state().Busy = 0;
    OfferSavedEntries();
}

void WhatIf::LotteryChosen() {
    OfferEntryBoxes(state(), boxes_, *extraBallTitle_);
    for (NumberBox* box : boxes_) box->clear();
    ShowEntriesInUse();
}

void WhatIf::OfferSavedEntries() {
    if (!folder().Exists(savedEntriesFile)) return;
    const Answer answer =
        services().messages.Show(this, {.title = tr("What if?"),
                                        .text = tr("Load saved draws?    "),
                                        .sign = Sign::Question,
                                        .buttons = Buttons::YesNo,
                                        .discards = !grid_->Cell(1, 0).isEmpty()});
    if (answer != Answer::No) LoadSavedEntries();
}

void WhatIf::LoadSavedEntries() {
    const Hourglass hourglass;
    state().Busy = -1;
    const QString lottery = Lotteries().item(Lotteries().Index())->text();
    const int lines = what_if::LoadEntries(state(), folder(), FromQString(lottery));
    if (lines > 0) ShowLines(state(), *grid_);
    grid_->SetCurrentCell(parkingRow, 0);
    state().Busy = 0;
    Say(LoadedInWords(lines, lottery));
}

// Kept on purpose: the numbers behind the fourth and the extra ball are never looked at, and the
// highest number is 60 in every lottery.
NumberBox* WhatIf::FirstWrongBox() const {
    constexpr int tested = 4;
    constexpr int highest = 60;
    const auto* const end = boxes_.begin() + tested;
    const auto* const wrong = std::find_if(boxes_.begin(), end, [](const NumberBox* box) {
        return box->Value() < 1 || box->Value() > highest;
    });
    return wrong == end ? nullptr : *wrong;
}

void WhatIf::Add() {
    if (state().Busy != 0) return;
    if (NumberBox* wrong = FirstWrongBox()) {
        ShowTip(services(), this, 6);
        wrong->setFocus();
        wrong->selectAll();
        return;
    }
    const int row = FirstFreeRow();
    grid_->SetCell(row, 0, QString::number(row));
    int column = 0;
    for (NumberBox* box : boxes_) {
        grid_->SetCell(row, ++column, box->text());
        box->clear();
    }
    grid_->SetCellColour(row, extraBallColumn, ExtraBallColour());
    ShowEntriesInUse();
    grid_->ScrollToRow(row);
    GoToRow(row);
    boxes_.front()->setFocus();
}

// Kept on purpose: row 1 becomes current even where no entry was, and the numbers of the rows are
// not written anew.
void WhatIf::DeleteEntry() {
    if (state().Busy != 0) return;
    const int row = grid_->CurrentRow();
    const bool chosen = grid_->currentIndex().isValid();
    if (chosen && !grid_->Cell(row, 0).isEmpty()) DeleteGridRow(*grid_, row, lastColumn);
    ShowEntriesInUse();
    grid_->ScrollToTop();
    GoToRow(1);
}

void WhatIf::Check() {
    if (state().Busy != 0) return;
    if (LeadingNumber(FromQString(grid_->Cell(1, 1))) == 0) return;
    if (Lotteries().Index() < 0) {
        services().messages.Show(this, {.title = tr("Error!"),
                                        .text = tr("Select a lottery first!    "),
                                        .sign = Sign::Exclamation});
        return;
    }
    CheckEntries();
}

void WhatIf::CheckEntries() {
    constexpr int counts = 20;
    const Hourglass hourglass;
    state().Busy = -1;
    ShowResult({}, {});
    ClearLines(state());
    // Kept on purpose: the count of no matches goes on from check to check.
    for (int index = 1; index <= counts; ++index) state().Pool(index) = 0;
    CopyEntriesToLines();
    what_if::CheckIt(state());
    ShowResult(ToQString(what_if::Report(state())), ToQString(what_if::ByChance(state())));
    state().Busy = 0;
}

void WhatIf::CopyEntriesToLines() {
    int row = 1;
    for (; !grid_->Cell(row, 1).isEmpty(); ++row) {
        for (int column = extraBallColumn; column >= 1; --column) {
            const std::string text = FromQString(grid_->Cell(row, column));
            const auto number = LeadingInt16(text);
            if (!number) {
                throw Failure("What if, entry in row " + std::to_string(row) +
                              ": expected numbers up to 32767, but " + Quoted(text) +
                              " stands there.");
            }
            state().Lines(row, column) = *number;
        }
    }
    state().Lines(row, 1) = 0;
}

// A tip is no longer than a line of the report.
void WhatIf::ShowResult(const QString& report, const QString& byChance) {
    result_->setPlainText(report);
    result_->setAccessibleDescription(byChance);
    QString tip = byChance;
    result_->setToolTip(tip.replace(QStringLiteral(", "), QStringLiteral(",\n")));
}

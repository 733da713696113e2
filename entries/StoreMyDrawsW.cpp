// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/StoreMyDrawsW.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <utility>

#include "core/draw_database.h"
#include "entries/EntryGrid.h"
#include "platform/forms/Hourglass.h"
#include "platform/forms/LotteryList.h"
#include "platform/forms/ShowTip.h"
#include "platform/forms/TakeBack.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/GridRows.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/NumberColours.h"

namespace {

constexpr int extraBallBox = 8;

// Kept on purpose: rows move without their database file: a moved row takes the file name of its
// new place.
constexpr int lastMovedColumn = entry_column::player;

}  // namespace

void StoreMyDrawsW::Load() {
    Skinning(QStringLiteral("SkinDatabases.jpg"),
             {.title = {QStringLiteral("Label5")},
              .body = {QStringLiteral("Label1")},
              .small = {QStringLiteral("Label7"), QStringLiteral("Label8"),
                        QStringLiteral("LabelPName")},
              .status = {}});
    date_->SetValue(services().today());
    ListDatabases(program(), *lotteries_);
    if (lotteries_->count() == 0) {
        services().messages.Show(this, {.title = tr("Error!"),
                                        .text = tr("No lotteries to display!    "),
                                        .sign = Sign::Exclamation});
        return;
    }
    ChooseFirstLottery(*lotteries_);
}

void StoreMyDrawsW::ChooseLottery() {
    const Hourglass hourglass;
    LoadDatabaseHeader(state(), folder(), static_cast<std::int16_t>(lotteries_->Index()));
    OfferEntryBoxes(state(), boxes_, *extraBallTitle_);
    GoToRow(parkingRow);
    add_->setEnabled(true);
}

bool StoreMyDrawsW::NumbersAreValid() const {
    const auto valid = [this](int index) {
        const int value = Box(index)->Value();
        return value >= 1 && value <= state().MaxNum;
    };
    for (int index = 1; index <= state().Picks; ++index) {
        if (!valid(index)) return false;
    }
    // Kept on purpose: the extra ball is held against the highest main number too.
    return state().MaxPball <= 0 || valid(extraBallBox);
}

void StoreMyDrawsW::Add() {
    if (!NumbersAreValid()) {
        ShowTip(services(), this, 6);
        return;
    }
    const int row = EntryCount(*grid_) + 1;
    RememberEntries(tr("entry added"));
    grid_->ScrollToRow(row);
    WriteEntry(row);
    GoToRow(row);
    // A box that was emptied by `clear` would take Ctrl+Z for its own.
    for (NumberBox* box : boxes_) box->setText({});
    Box(1)->setFocus();
}

void StoreMyDrawsW::WriteEntry(int row) {
    grid_->SetCell(row, entry_column::date, ToQString(DrawDate(date_->Value())));
    for (int column = 1; column <= state().Picks; ++column) {
        grid_->SetCell(row, column, Box(column)->text());
    }
    if (state().MaxPball > 0) {
        grid_->SetCell(row, entry_column::extraBall, Box(extraBallBox)->text());
        grid_->SetCellColour(row, entry_column::extraBall, ExtraBallColour());
    }
    grid_->SetCell(row, entry_column::lottery, ToQString(state().LotteryName));
    grid_->SetCell(row, entry_column::player, player_->text());
    grid_->SetCell(row, entry_column::database, ToQString(state().DbaseFile));
}

void StoreMyDrawsW::Save() {
    AppendEntries(folder(), EntriesInGrid(*grid_));
    services().messages.Show(this, {.title = tr("Lottery Quillon World"),
                                    .text = tr("Your entries have been saved.  "),
                                    .sign = Sign::Information});
    Unload();
}

bool StoreMyDrawsW::EntryIsChosen() const {
    const int row = grid_->CurrentRow();
    return row != parkingRow && !grid_->Cell(row, entry_column::date).isEmpty();
}

bool StoreMyDrawsW::RowCanMoveUp() const {
    const int row = grid_->CurrentRow();
    return row != 1 && !grid_->Cell(row, entry_column::date).isEmpty();
}

bool StoreMyDrawsW::RowCanMoveDown() const {
    const int row = grid_->CurrentRow();
    return row < parkingRow - 1 && !grid_->Cell(row + 1, 1).isEmpty();
}

void StoreMyDrawsW::GoToRow(int row) {
    grid_->MarkRow(row);
    grid_->SetRowsInUse(EntryCount(*grid_));
    OfferRowCommands();
}

void StoreMyDrawsW::OfferRowCommands() {
    Offer(*deleteRow_, EntryIsChosen());
    Offer(*moveUp_, RowCanMoveUp());
    Offer(*moveDown_, RowCanMoveDown());
}

// Who has just pressed the button would press the next one without meaning it.
void StoreMyDrawsW::Offer(QPushButton& command, bool possible) {
    if (!possible && focusWidget() == &command) grid_->setFocus();
    command.setEnabled(possible);
}

void StoreMyDrawsW::RememberEntries(const QString& command) {
    std::vector<QStringList> before;
    // The parking row too: the 99th entry stands there.
    for (int row = 1; row <= parkingRow; ++row) {
        QStringList& cells = before.emplace_back();
        for (int column = 0; column <= entry_column::last; ++column) {
            cells << grid_->Cell(row, column);
        }
    }
    takeBack_->Remember(command, [this, before = std::move(before), current = grid_->CurrentRow()] {
        int row = 0;
        for (const QStringList& cells : before) {
            ++row;
            for (int column = 0; column <= entry_column::last; ++column) {
                grid_->SetCell(row, column, cells.at(column));
            }
        }
        GoToRow(current);
        return true;
    });
}

void StoreMyDrawsW::DeleteRow() {
    const int row = grid_->CurrentRow();
    RememberEntries(tr("row deleted"));
    DeleteGridRow(*grid_, row, lastMovedColumn);
    GoToRow(row);
}

void StoreMyDrawsW::MoveRowUp() {
    const int row = grid_->CurrentRow();
    RememberEntries(tr("row moved"));
    SwapGridRows(*grid_, row, row - 1, lastMovedColumn);
    GoToRow(row - 1);
}

void StoreMyDrawsW::MoveRowDown() {
    const int row = grid_->CurrentRow();
    RememberEntries(tr("row moved"));
    SwapGridRows(*grid_, row, row + 1, lastMovedColumn);
    GoToRow(row + 1);
}

void StoreMyDrawsW::Close() {
    if (!grid_->Cell(1, 0).isEmpty()) {
        const QString crlf = ToQString(state().Crlf);
        const Answer answer = services().messages.Show(
            this, {.title = tr("Warning!"),
                   .text = tr("If you have made changes you should    ") % crlf %
                           tr("click Save to save them. If you        ") % crlf %
                           tr("continue, any changes will be lost.    "),
                   .sign = Sign::Exclamation,
                   .buttons = Buttons::OkCancel,
                   .discards = true});
        if (answer == Answer::Cancel) return;
    }
    Unload();
}

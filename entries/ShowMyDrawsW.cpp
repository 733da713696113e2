// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/ShowMyDrawsW.h"

#include <QItemSelectionModel>
#include <QLineEdit>
#include <QPushButton>

#include "core/text.h"
#include "entries/EntryGrid.h"
#include "platform/forms/Hourglass.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/NumberColours.h"

namespace {

constexpr int lastRow = 500;

// Kept on purpose: the same for every lottery.
constexpr double highestNumber = 60;

}  // namespace

void ShowMyDrawsW::Load() {
    entriesChanged_ = 0;
    Skinning(
        QStringLiteral("SkinDatabases.jpg"),
        {.title = {QStringLiteral("Label8")},
         .body = {QStringLiteral("Label9"), QStringLiteral("Label10")},
         .small = {QStringLiteral("Label1"), QStringLiteral("Label2"), QStringLiteral("Label4"),
                   QStringLiteral("Label5"), QStringLiteral("Label6"), QStringLiteral("Label14"),
                   QStringLiteral("DeleteLabel"), QStringLiteral("SortLabel")},
         .status = {}});
    date_->SetValue(services().today());
    LoadMyDraws(entryTable_, folder());
    DisplayMyDraws();
}

void ShowMyDrawsW::DisplayMyDraws() {
    for (int row = 1; row <= lastRow; ++row) {
        for (int column = 0; column <= entry_column::last; ++column) {
            grid_->SetCell(row, column, ToQString(entryTable_(row, column)));
        }
        grid_->SetCellColour(row, entry_column::extraBall, ExtraBallColour());
    }
    GoToFirstCell();
}

void ShowMyDrawsW::GoToFirstCell() {
    grid_->SetCurrentCell(1, 1);
    grid_->ScrollToTop();
    EditCurrentCell();
}

void ShowMyDrawsW::ShowCurrentCell() {
    item_->setText(grid_->currentIndex().data().toString());
    item_->selectAll();
}

void ShowMyDrawsW::EditCurrentCell() {
    ShowCurrentCell();
    item_->setFocus();
}

void ShowMyDrawsW::ToggleButtons() {
    for (QPushButton* command : commands_) command->setEnabled(!command->isEnabled());
}

bool ShowMyDrawsW::Confirmed(const QString& text) {
    const Answer answer = services().messages.Show(this, {.title = tr("Please confirm..."),
                                                          .text = text,
                                                          .sign = Sign::Exclamation,
                                                          .buttons = Buttons::OkCancel,
                                                          .discards = true});
    return answer != Answer::Cancel;
}

void ShowMyDrawsW::ChangeItem() {
    const int row = grid_->CurrentRow();
    const int column = grid_->currentIndex().column();
    const auto refuse = [this](const QString& text) {
        services().messages.Show(this,
                                 {.title = tr("Error"), .text = text, .sign = Sign::Exclamation});
    };
    if (column == entry_column::lottery) return refuse(tr("Can't change lotteries!  "));
    if (grid_->Cell(row, column).isEmpty()) return;
    const std::string text = FromQString(item_->text());
    const double number = LeadingNumber(text);
    const bool isNumber = column >= 1 && column <= entry_column::extraBall;
    if (isNumber && (number < 1 || number > highestNumber)) {
        return refuse(tr("Number out of range!  "));
    }
    entryTable_(row, column) = Trim(text);
    grid_->SetCell(row, column, ToQString(Trim(text)));
    entriesChanged_ = -1;
}

void ShowMyDrawsW::ChangeDateOfRow() {
    const int row = grid_->CurrentRow();
    ChangeDate(entryTable_, row, date_->Value(), services().region, services().today());
    grid_->SetCell(row, 0, ToQString(entryTable_(row, 0)));
    entriesChanged_ = -1;
}

void ShowMyDrawsW::ChangeAllDates() {
    for (int row = 1;
         ChangeDate(entryTable_, row, date_->Value(), services().region, services().today());
         ++row) {
        grid_->SetCell(row, 0, ToQString(entryTable_(row, 0)));
    }
    entriesChanged_ = -1;
}

template <typename Sort>
void ShowMyDrawsW::SortEntries(Sort sort) {
    const Hourglass hourglass;
    ToggleButtons();
    sort();
    DisplayMyDraws();
    ToggleButtons();
    entriesChanged_ = -1;
}

void ShowMyDrawsW::SortRowsByDate() {
    SortEntries([this] { SortByDate(entryTable_, services().region, services().today()); });
}

void ShowMyDrawsW::SortRowsByName() {
    SortEntries([this] { SortByName(entryTable_); });
}

void ShowMyDrawsW::SortRowsByLottery() {
    SortEntries([this] { SortByLottery(entryTable_); });
}

void ShowMyDrawsW::DeleteThisRow() {
    const int row = grid_->CurrentRow();
    // The current cell stays where it is, as the edit box shows it.
    grid_->selectionModel()->select(
        grid_->currentIndex(), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (!Confirmed(tr("Delete this lottery entry?   "))) return;
    DeleteRow(entryTable_, static_cast<std::int16_t>(row));
    DisplayMyDraws();
    entriesChanged_ = -1;
}

void ShowMyDrawsW::DeleteOldRows() {
    const QString text = tr("Delete all lottery entries    ") % ToQString(state().Crlf) %
                         tr("that are older than today?    ");
    if (!Confirmed(text)) return;
    const Hourglass hourglass;
    // Kept on purpose: entries of yesterday stay, whatever the question says.
    DeleteOutOfDate(entryTable_, services().region, services().today());
    DisplayMyDraws();
    entriesChanged_ = -1;
}

void ShowMyDrawsW::DeleteAllRows() {
    const QString text = tr("Are you sure you want to delete    ") % ToQString(state().Crlf) %
                         tr("all of the lottery entries?    ");
    if (!Confirmed(text)) return;
    grid_->ClearCells();
    if (folder().Exists(savedEntriesFile)) folder().Delete(savedEntriesFile);
    services().messages.Show(this, {.title = tr("Help"),
                                    .text = tr("All entries deleted. Nothing to show!  "),
                                    .sign = Sign::Information});
    Unload();
}

void ShowMyDrawsW::Save() {
    const std::vector<SavedEntry> entries = EntriesInGrid(*grid_);
    if (!entries.empty()) {
        WriteEntries(folder(), entries);
    } else if (folder().Exists(savedEntriesFile)) {
        folder().Delete(savedEntriesFile);
    }
    grid_->SetCurrentCell(1, 1);
    EditCurrentCell();
    // Kept on purpose: an empty table is not counted as saved.
    if (!entries.empty()) entriesChanged_ = 0;
}

void ShowMyDrawsW::Close() {
    if (entriesChanged_ != 0) {
        const Answer answer =
            services().messages.Show(this, {.title = tr("Close window"),
                                            .text = tr("Close without saving changes?    "),
                                            .sign = Sign::Question,
                                            .buttons = Buttons::YesNo,
                                            .discards = true});
        if (answer == Answer::No) return;
    }
    Unload();
}

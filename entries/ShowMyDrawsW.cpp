// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/ShowMyDrawsW.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QPushButton>
#include <memory>
#include <utility>

#include "core/old_files.h"
#include "core/text.h"
#include "entries/EntryGrid.h"
#include "platform/forms/GridEditor.h"
#include "platform/forms/Hourglass.h"
#include "platform/forms/TakeBack.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/FilteredBox.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/NumberColours.h"

namespace {

constexpr int lastRow = 500;

// Kept on purpose: the same for every lottery.
constexpr double highestNumber = 60;

QString Counted(int count, const QString& none, const QString& one, const QString& several) {
    if (count == 0) return none;
    return count == 1 ? one : several.arg(count);
}

QString NotSavedYet(int changes) {
    return changes > 0 ? ShowMyDrawsW::tr(", not saved yet") : QString();
}

}  // namespace

void ShowMyDrawsW::Load() {
    entriesChanged_.Clear();
    Skinning(
        QStringLiteral("SkinDatabases.jpg"),
        {.title = {QStringLiteral("Label8")},
         .body = {QStringLiteral("Label9"), QStringLiteral("Label10")},
         .small = {QStringLiteral("Label1"), QStringLiteral("Label2"), QStringLiteral("Label4"),
                   QStringLiteral("Label5"), QStringLiteral("Label6"), QStringLiteral("Label14"),
                   QStringLiteral("DeleteLabel"), QStringLiteral("SortLabel")},
         .status = {QStringLiteral("CheckSummary")}});
    date_->SetValue(services().today());
    ReadEntries();
}

void ShowMyDrawsW::ReadEntries() {
    shown_ = {.name = savedEntriesFile, .bytes = {}};
    if (folder().Exists(savedEntriesFile)) shown_.bytes = folder().Read(savedEntriesFile);
    TellUnread(LoadMyDraws(entryTable_, folder()));
    DisplayMyDraws();
}

void ShowMyDrawsW::TellUnread(int entries) {
    unread_->setText(tr("MyLottery.txt holds %1 entries more than are shown here. They are neither "
                        "checked nor kept when you save.")
                         .arg(entries));
    unread_->setVisible(entries > 0);
}

void ShowMyDrawsW::DisplayMyDraws() {
    for (int row = 1; row <= lastRow; ++row) {
        for (int column = 0; column <= entry_column::last; ++column) {
            grid_->SetCell(row, column, ToQString(entryTable_(row, column)));
        }
        grid_->SetCellColour(row, entry_column::extraBall, ExtraBallColour());
    }
    ShowRowsInUse();
    GoToFirstCell();
}

void ShowMyDrawsW::ShowRowsInUse() { grid_->SetRowsInUse(EntryCount(*grid_)); }

void ShowMyDrawsW::GoToFirstCell() {
    editor_->GoTo(1, 1);
    grid_->ScrollToTop();
    editor_->EditCell();
}

void ShowMyDrawsW::ToggleButtons() {
    for (QPushButton* command : commands_) command->setEnabled(!command->isEnabled());
    takeBack_->SetEnabled(commands_.front()->isEnabled());
}

void ShowMyDrawsW::RememberEntries(const QString& command) {
    auto before = std::make_shared<EntryTable>(entryTable_);
    takeBack_->Remember(command, [this, before = std::move(before), changed = entriesChanged_,
                                  row = editor_->Row(), column = editor_->Column()] {
        entryTable_ = *before;
        DisplayMyDraws();
        MarkChanged();
        entriesChanged_ = changed;
        editor_->GoTo(row, column);
        editor_->EditCell();
        return true;
    });
}

void ShowMyDrawsW::MarkChanged() {
    entriesChanged_.Set();
    if (!checkSummary_->text().isEmpty()) TellCheck(tr("Changed since the check"));
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
    if (grid_->Cell(row, column).isEmpty()) return Say(tr("An empty item cannot be changed"));
    const std::string text = FromQString(item_->text());
    const double number = LeadingNumber(text);
    const bool isNumber = column >= 1 && column <= entry_column::extraBall;
    if (isNumber && (number < 1 || number > highestNumber)) {
        return refuse(tr("Number out of range!  "));
    }
    RememberEntries(tr("item changed"));
    entryTable_(row, column) = Trim(text);
    grid_->SetCell(row, column, ToQString(Trim(text)));
    ShowRowsInUse();
    MarkChanged();
}

void ShowMyDrawsW::ChangeDateOfRow() {
    const int row = grid_->CurrentRow();
    RememberEntries(tr("date changed"));
    if (!ChangeDateOf(row)) Say(tr("There is no date in this row"));
    MarkChanged();
}

void ShowMyDrawsW::ChangeAllDates() {
    RememberEntries(tr("all dates changed"));
    int row = 1;
    while (ChangeDateOf(row)) ++row;
    MarkChanged();
    Say(Counted(row - 1, tr("No dates changed"), tr("1 date changed"), tr("%1 dates changed")) %
        NotSavedYet(row - 1));
}

bool ShowMyDrawsW::ChangeDateOf(int row) {
    const Region& region = services().region;
    if (!ChangeDate(entryTable_, row, date_->Value(), region, services().today())) return false;
    grid_->SetCell(row, entry_column::date, ToQString(entryTable_(row, entry_column::date)));
    return true;
}

template <typename Sort>
void ShowMyDrawsW::SortEntries(Sort sort) {
    const Hourglass hourglass;
    RememberEntries(tr("entries sorted"));
    ToggleButtons();
    sort();
    DisplayMyDraws();
    ToggleButtons();
    MarkChanged();
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
    const int before = EntryCount(*grid_);
    RememberEntries(tr("entry deleted"));
    DeleteRow(entryTable_, static_cast<std::int16_t>(row));
    DisplayMyDraws();
    MarkChanged();
    SayDeleted(before - EntryCount(*grid_));
}

void ShowMyDrawsW::DeleteOldRows() {
    const QString text = tr("Delete all lottery entries    ") % ToQString(state().Crlf) %
                         tr("that are older than today?    ");
    if (!Confirmed(text)) return;
    const Hourglass hourglass;
    // Kept on purpose: entries of yesterday stay, whatever the question says.
    const int before = EntryCount(*grid_);
    RememberEntries(tr("old entries deleted"));
    DeleteOutOfDate(entryTable_, services().region, services().today());
    DisplayMyDraws();
    MarkChanged();
    SayDeleted(before - EntryCount(*grid_));
}

void ShowMyDrawsW::SayDeleted(int deleted) {
    Say(Counted(deleted, tr("No entries deleted"), tr("1 entry deleted"),
                tr("%1 entries deleted")) %
        tr(", %1 left").arg(EntryCount(*grid_)) % NotSavedYet(deleted));
}

void ShowMyDrawsW::DeleteAllRows() {
    const QString text = tr("Are you sure you want to delete    ") % ToQString(state().Crlf) %
                         tr("all of the lottery entries?    ");
    if (!Confirmed(text)) return;
    grid_->ClearCells();
    if (folder().Exists(savedEntriesFile)) DeleteKeepingOld(folder(), savedEntriesFile);
    services().messages.Show(this, {.title = tr("Help"),
                                    .text = tr("All entries deleted. Nothing to show!  "),
                                    .sign = Sign::Information});
    Unload();
}

void ShowMyDrawsW::Save() {
    const std::vector<SavedEntry> entries = EntriesInGrid(*grid_);
    const std::string records = SavedEntryRecords(entries);
    if (ChangedOutside(program(), this, shown_, records)) {
        entryTable_.Fill({});
        ReadEntries();
        takeBack_->Forget();
        MarkChanged();
        return entriesChanged_.Clear();
    }
    shown_.bytes = records;
    if (!entries.empty()) {
        WriteEntries(folder(), entries);
        TellUnread(0);
    } else if (folder().Exists(savedEntriesFile)) {
        DeleteKeepingOld(folder(), savedEntriesFile);
    }
    editor_->GoTo(1, 1);
    editor_->EditCell();
    // Kept on purpose: an empty table is not counted as saved.
    if (!entries.empty()) entriesChanged_.Clear();
    takeBack_->Forget();
    Say(Counted(EntryCount(*grid_), tr("There are no entries left to save"), tr("1 entry saved"),
                tr("%1 entries saved")));
}

void ShowMyDrawsW::Print() {
    services().printEntries(this, *grid_);
    GoToFirstCell();
}

void ShowMyDrawsW::Close() {
    const Message question{.title = tr("Close window"),
                           .text = tr("Close without saving changes?    "),
                           .sign = Sign::Question,
                           .buttons = Buttons::YesNo,
                           .discards = true};
    if (entriesChanged_.MayClose(services().messages, this, question)) Unload();
}

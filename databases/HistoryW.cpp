// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/HistoryW.h"

#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTimer>
#include <algorithm>

#include "core/draw_database.h"
#include "core/old_files.h"
#include "databases/draw_records.h"
#include "platform/forms/Hourglass.h"
#include "platform/forms/LotteryList.h"
#include "platform/forms/TakeBack.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"
#include "platform/widgets/NumberColours.h"
#include "platform/widgets/Readable.h"

void HistoryW::Load() {
    Skinning(QStringLiteral("SkinDatabases.jpg"), {.title = {QStringLiteral("Label2")},
                                                   .body = {QStringLiteral("Label4")},
                                                   .small = {QStringLiteral("Label3")},
                                                   .status = {}});
    ListDatabases(program(), *lotteries_);
    if (lotteries_->count() > 0) {
        ChooseFirstLottery(*lotteries_);
        return;
    }
    services().messages.Show(this, {.title = tr("Error!"),
                                    .text = tr("No lotteries to display!    "),
                                    .sign = Sign::Exclamation});
    closing_->start();
}

void HistoryW::CloseIfEmpty() {
    closing_->stop();
    if (lotteries_->count() == 0) Unload();
}

void HistoryW::ChooseLottery() {
    const Hourglass hourglass;
    LoadDatabase(state(), folder(), static_cast<std::int16_t>(lotteries_->Index()));
    if (shown_.name != state().DbaseFile) takeBack_->Forget();
    shown_ = {.name = state().DbaseFile, .bytes = folder().Read(state().DbaseFile)};
    lotteryName_->setText(Readable(ToQString(state().LotteryName)));
    grid_->ClearCells();
    ShowHeadings();
    ShowDraws();
    OfferBoxes();
    sortedView_ = 0;
    drawOrder_->setChecked(true);
    SelectRow(1);
    grid_->ScrollToTop();
    editPanel_->setEnabled(true);
}

// A column is headed by the newest draw, whatever older draws hold in it.
void HistoryW::ShowHeadings() {
    grid_->SetCell(0, 0, tr("Date"));
    for (int column = 1; column <= 7; ++column) {
        const bool filled = view().Draws(1, column) > 0;
        grid_->SetCell(0, column, filled ? tr("Num%1").arg(column) : QString());
    }
    grid_->SetCellColour(0, 8, ExtraBallColour());
    grid_->SetCell(0, 8, QString());
    if (state().HasBonus == 1) grid_->SetCell(0, 8, tr("Bonus"));
    if (state().MaxPball > 0) grid_->SetCell(0, 8, tr("Pball"));
}

void HistoryW::ShowDraws() {
    const bool extra = HasExtraColumn();
    int row = 0;
    for (const std::string& date : StoredDates(view(), folder())) {
        grid_->SetCell(++row, 0, ToQString(date));
        for (int column = 1; column <= (extra ? 8 : 7); ++column) {
            const int number = view().Draws(row, column);
            if (number > 0) grid_->SetCell(row, column, QString::number(number));
        }
        if (extra) grid_->SetCellColour(row, 8, ExtraBallColour());
    }
}

bool HistoryW::HasExtraColumn() const { return state().HasBonus == 1 || state().MaxPball > 0; }

void HistoryW::OfferBoxes() {
    for (int index = 1; index <= 8; ++index) {
        const bool filled = view().Draws(1, index) >= 1;
        Box(index)->setVisible(filled);
        if (!filled) Box(index)->clear();
    }
}

void HistoryW::SelectRow(int row) {
    grid_->SetCurrentCell(row, 0);
    FollowRow();
}

void HistoryW::FollowRow() {
    int row = grid_->CurrentRow();
    while (grid_->Cell(row, 0).isEmpty()) --row;
    date_->SetValue(DateOfRow(row));
    for (int index = 1; index <= 8; ++index) Box(index)->setText(grid_->Cell(row, index));
    grid_->ScrollToRow(row);
    grid_->MarkRow(row);
}

Date HistoryW::DateOfRow(int row) const {
    const std::string where = state().DbaseFile + ", line " + std::to_string(std::max(row, 1) + 3);
    return DateFromText(FromQString(grid_->Cell(row, 0)), services().region, services().today(),
                        where);
}

void HistoryW::ShowAscending() {
    if (sortedView_ == -1) return;
    const Hourglass hourglass;
    editPanel_->setEnabled(false);
    std::vector<int> numbers;
    for (int row = 1; view().Draws(row, 1) != 0; ++row) {
        numbers.clear();
        for (int column = 1; column <= view().Picks; ++column) {
            numbers.push_back(view().Draws(row, column));
        }
        std::sort(numbers.begin(), numbers.end());
        int column = 0;
        for (const int number : numbers) grid_->SetCell(row, ++column, QString::number(number));
    }
    sortedView_ = -1;
}

void HistoryW::ShowInDrawOrder() {
    if (sortedView_ == 0) return;
    const Hourglass hourglass;
    for (int row = 1; view().Draws(row, 1) != 0; ++row) {
        for (int column = 1; column <= 8; ++column) {
            const int number = view().Draws(row, column);
            if (number > 0) grid_->SetCell(row, column, QString::number(number));
        }
    }
    SelectRow(1);
    sortedView_ = 0;
    editPanel_->setEnabled(true);
}

// A draw is changed by its row, which must still be that of the draw that is shown.
bool HistoryW::ReadAnewIfChanged() {
    if (!ChangedOutside(program(), this, shown_)) return false;
    takeBack_->Forget();
    ChooseLottery();
    return true;
}

// Draws are written at once, so what is taken back is the file.
void HistoryW::RememberDraws(const QString& command, int row) {
    takeBack_->Remember(command, [this, before = shown_, row] {
        if (ReadAnewIfChanged()) return false;
        WriteKeepingOld(folder(), before.name, before.bytes);
        ChooseLottery();
        SelectRow(row);
        return true;
    });
}

void HistoryW::UpdateChosenDraw() {
    if (ReadAnewIfChanged()) return;
    const Hourglass hourglass;
    const DrawRecord draw = MakeDrawRecord(date_->Value(), TextsOf(boxes_));
    RememberDraws(tr("draw updated"), grid_->CurrentRow());
    UpdateDraw(state(), folder(), grid_->CurrentRow(), draw,
               {.region = services().region, .today = services().today()});
    ChooseLottery();
    Say(tr("Draw of %1 updated").arg(ToQString(DrawDate(draw.date))));
}

void HistoryW::DeleteChosenDraw() {
    const int row = grid_->CurrentRow();
    grid_->SetCurrentCell(2, 0);
    if (grid_->Cell(2, 0).isEmpty()) {
        services().messages.Show(this, {.title = tr("Warning"),
                                        .text = tr("Can't delete last line!    "),
                                        .sign = Sign::Exclamation});
        FollowRow();
        return;
    }
    if (ReadAnewIfChanged()) return;
    const Hourglass hourglass;
    const Date date = DateOfRow(row);
    RememberDraws(tr("draw deleted"), row);
    DeleteDraw(state(), folder(), row);
    ChooseLottery();
    Say(tr("Draw of %1 deleted").arg(ToQString(DrawDate(date))));
}

void HistoryW::Print() {
    services().printDraws(this, *grid_);
    SelectRow(1);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DbaseUpdateW.h"

#include <QLabel>
#include <algorithm>

#include "core/draw_database.h"
#include "core/failure.h"
#include "databases/draw_records.h"
#include "platform/forms/LotteryList.h"
#include "platform/forms/ShowTip.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"

void DbaseUpdateW::Load() {
    Skinning(QStringLiteral("SkinDatabases.jpg"),
             {.title = {QStringLiteral("Label5")},
              .body = {QStringLiteral("Label11")},
              .small = {QStringLiteral("Label8"), QStringLiteral("Label4"),
                        QStringLiteral("Label6"), QStringLiteral("Label7")},
              .status = {QStringLiteral("Label13")}});
    dtPicker1_->SetValue(services().today());
    ListDatabases(program(), *list1_);
    ChooseFirstLottery(*list1_);
}

void DbaseUpdateW::List1_Click() {
    LoadDatabaseHeader(state(), folder(), static_cast<std::int16_t>(list1_->Index()));
    const NewestDraw newest = ReadNewestDraw(state(), folder());
    label13_->setText(tr("Last update was") % ToQString(state().Crlf) % ToQString(newest.date));
    for (std::size_t i = 0; i < text1_.size(); ++i) {
        text1_[i]->clear();
        text1_[i]->setVisible(newest.filled[i]);
    }
    label7_->clear();
    if (state().HasBonus > 0) label7_->setText(tr("Bonus"));
    if (state().MaxPball > 0) label7_->setText(tr("Powerball"));
}

bool DbaseUpdateW::NumbersAreValid() const {
    const int picks = std::max(state().Picks, 0);
    if (picks > std::ssize(text1_)) {
        throw FailureInFile(state().DbaseFile, 3,
                            "expected at most " + std::to_string(text1_.size()) +
                                " numbers to pick, but " + std::to_string(picks) +
                                " stands there.");
    }
    return NumbersAreWithin(text1_, picks, state().MaxNum);
}

void DbaseUpdateW::Command1_Click() {
    if (!NumbersAreValid()) {
        ShowTip(services(), this, 6);
        return;
    }
    const DrawRecord draw = MakeDrawRecord(dtPicker1_->Value(), TextsOf(text1_));
    InsertDraw(state(), folder(), draw, {.region = services().region, .today = services().today()});
    for (NumberBox* box : text1_) box->clear();
    label13_->setText(ToQString(DrawDate(draw.date)));
}

void DbaseUpdateW::Command2_Click() { services().openPage(ToQString(state().LotteryURL)); }

// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/CreateDbase.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScrollBar>

#include "core/failure.h"
#include "core/text.h"
#include "databases/lottery_templates.h"
#include "databases/new_database.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"

namespace {

/// Moves the bar to the number of a template; a number beyond its ends is a `Failure`.
void SetBar(QScrollBar& bar, const State& state, int row, int column) {
    const int number = LeadingWhole(state.Templates(row, column));
    if (number < bar.minimum() || number > bar.maximum()) {
        throw FailureInFile(lotteryTemplatesFile, row + 1,
                            "expected a number from " + std::to_string(bar.minimum()) + " to " +
                                std::to_string(bar.maximum()) + " in field " +
                                std::to_string(column + 1) + ", but " +
                                Quoted(state.Templates(row, column)) + " stands there.");
    }
    bar.setValue(number);
}

}  // namespace

void CreateDbase::Load() {
    Skinning(
        QStringLiteral("SkinDatabases.jpg"),
        {.title = {QStringLiteral("Label17")},
         .body = {QStringLiteral("Label16"), QStringLiteral("Label18"), QStringLiteral("Label13")},
         .small = {QStringLiteral("Label3"), QStringLiteral("Label15"), QStringLiteral("Label1"),
                   QStringLiteral("Label4"), QStringLiteral("Label9"), QStringLiteral("Label10"),
                   QStringLiteral("Label11"), QStringLiteral("Label5"), QStringLiteral("Label7"),
                   QStringLiteral("Label12")},
         .status = {}});
    dtPicker1_->SetValue(services().today());
    LoadLotteryTemplates(state(), folder());
    for (const std::string& name : TemplateNames(state())) list1_->addItem(ToQString(name));
    for (const std::string& name : LotteryNames(folder())) list2_->addItem(ToQString(name));
}

void CreateDbase::ShowNumberCount() {
    label_[7]->setText(tr("Enter%1 numbers").arg(ToQString(NumberText(hScroll1_->value()))));
}

void CreateDbase::HScroll1_Change() {
    label_[2]->setText(QString::number(hScroll1_->value()));
    ShowNumberCount();
    for (int i = 0; i <= 6; ++i) {
        text1_[static_cast<std::size_t>(i)]->setVisible(i < hScroll1_->value());
    }
}

void CreateDbase::HScroll2_Change() {
    label_[6]->setText(QString::number(hScroll2_->value()));
    ShowNumberCount();
}

void CreateDbase::HScroll3_Change() {
    label_[8]->setText(QString::number(hScroll3_->value()));
    ShowNumberCount();
}

void CreateDbase::Option1_Click(int index) {
    const bool extraBall = index == 1;
    label_[11]->setVisible(extraBall);
    label_[8]->setVisible(extraBall);
    hScroll3_->setVisible(extraBall);
    label_[12]->setText(extraBall ? tr("Powerball") : tr("Bonus"));
}

void CreateDbase::List1_Click() {
    const int row = list1_->Index();
    const auto text = [&](int column) { return ToQString(view().Templates(row, column)); };
    text2_->setText(text(5));
    text3_->setText(text(0));
    SetBar(*hScroll1_, view(), row, 1);
    label_[2]->setText(text(1));
    SetBar(*hScroll2_, view(), row, 2);
    label_[6]->setText(text(2));
    const bool extraBall = LeadingNumber(view().Templates(row, 4)) != 0;
    if (extraBall) {
        SetBar(*hScroll3_, view(), row, 4);
        label_[8]->setText(text(4));
    }
    option1_[extraBall ? 1 : 0]->setChecked(true);
    for (NumberBox* box : text1_) box->clear();
}

void CreateDbase::Command2_Click() { services().openPage(text2_->text()); }

void CreateDbase::Command1_Click() {
    if (!NumbersAreWithin(text1_, hScroll1_->value(), hScroll2_->value())) {
        services().messages.Show(this, {.title = tr("Oops!"),
                                        .text = tr("Incorrect draw result...    "),
                                        .sign = Sign::Exclamation});
        return;
    }
    NewLottery lottery{.name = FromQString(text3_->text()),
                       .address = FromQString(text2_->text()),
                       .picks = FromQString(label_[2]->text()),
                       .highest = FromQString(label_[6]->text()),
                       .highestExtra = option1_[1]->isChecked() ? FromQString(label_[8]->text())
                                                                : std::string("0"),
                       .hasBonus = option1_[0]->isChecked() && text1_[7]->Value() > 0,
                       .firstDraw = dtPicker1_->Value(),
                       .numbers = {}};
    for (std::size_t i = 0; i < text1_.size(); ++i) {
        // What a hidden box still holds belongs to no number of this lottery.
        const bool shown = i == 7 || static_cast<int>(i) < hScroll1_->value();
        if (shown) lottery.numbers[i] = Trim(FromQString(text1_[i]->text()));
    }
    CreateDatabase(folder(), lottery);
    Unload();
}

void CreateDbase::CancelButton_Click() {
    const Answer answer = services().messages.Show(this, {.title = tr("Are you sure?"),
                                                          .text = tr("Close and discard data?    "),
                                                          .sign = Sign::Question,
                                                          .buttons = Buttons::YesNo});
    if (answer == Answer::Yes) Unload();
}

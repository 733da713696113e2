// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/CreateDbase.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include "core/failure.h"
#include "core/text.h"
#include "databases/lottery_templates.h"
#include "databases/new_database.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/BarInput.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/NumberBox.h"

namespace {

/// Moves the bar to the number of a template; a number beyond its ends is a `Failure`.
void SetBar(BarInput& bar, const State& state, int row, int column) {
    const int number = LeadingWhole(state.Templates(row, column));
    if (number < bar.Lowest() || number > bar.Highest()) {
        throw FailureInFile(lotteryTemplatesFile, row + 1,
                            "expected a number from " + std::to_string(bar.Lowest()) + " to " +
                                std::to_string(bar.Highest()) + " in field " +
                                std::to_string(column + 1) + ", but " +
                                Quoted(state.Templates(row, column)) + " stands there.");
    }
    bar.SetValue(number);
}

}  // namespace

void CreateDbase::Load() {
    Skinning(
        QStringLiteral("SkinDatabases.jpg"),
        {.title = {QStringLiteral("Label17")},
         .body = {QStringLiteral("Label16"), QStringLiteral("Label18"), QStringLiteral("Label13"),
                  QStringLiteral("BonusHint")},
         .small = {QStringLiteral("Label3"), QStringLiteral("Label15"), QStringLiteral("Label1"),
                   QStringLiteral("Label4"), QStringLiteral("Label9"), QStringLiteral("Label10"),
                   QStringLiteral("Label11"), QStringLiteral("Label5"), QStringLiteral("Label7"),
                   QStringLiteral("Label12")},
         .status = {}});
    date_->SetValue(services().today());
    LoadLotteryTemplates(state(), folder());
    for (const std::string& name : TemplateNames(state())) templates_->addItem(ToQString(name));
    for (const std::string& name : LotteryNames(folder())) databases_->addItem(ToQString(name));
}

void CreateDbase::ChooseTemplate() {
    const int row = templates_->Index();
    const auto text = [&](int column) { return ToQString(view().Templates(row, column)); };
    address_->setText(text(5));
    name_->setText(text(0));
    SetBar(*picks_, view(), row, 1);
    picks_->SetShownText(text(1));
    SetBar(*highest_, view(), row, 2);
    highest_->SetShownText(text(2));
    const bool extraBall = LeadingNumber(view().Templates(row, 4)) != 0;
    if (extraBall) {
        SetBar(*highestExtra_, view(), row, 4);
        highestExtra_->SetShownText(text(4));
    }
    (extraBall ? powerballType_ : standardType_)->setChecked(true);
    for (NumberBox* box : boxes_) box->clear();
}

void CreateDbase::WordDrawTitle() {
    drawTitle_->setText(tr("Enter%1 numbers").arg(ToQString(NumberText(picks_->Value()))));
}

void CreateDbase::OfferBoxes() {
    for (int i = 0; i <= 6; ++i) {
        boxes_[static_cast<std::size_t>(i)]->setVisible(i < picks_->Value());
    }
}

void CreateDbase::OfferExtraBall(bool extraBall) {
    for (QWidget* control : extraBallRow_) control->setVisible(extraBall);
    lastBoxTitle_->setText(extraBall ? tr("Powerball") : tr("Bonus"));
    ExplainLastBox();
}

// Nothing else tells that the first draw decides about all to come.
void CreateDbase::ExplainLastBox() {
    lastBoxHint_->setText(
        powerballType_->isChecked()
            ? tr("Powerball may stay empty: the type of the lottery already says that it has one")
            : tr("Fill in Bonus if this lottery has one: it decides whether the database has a "
                 "bonus ball"));
    boxes_[7]->setAccessibleDescription(lastBoxHint_->text());
}

void CreateDbase::Save() {
    NumberBox* wrong = FirstOutside(boxes_, picks_->Value(), highest_->Value());
    if (wrong != nullptr) {
        services().messages.Show(this, {.title = tr("Oops!"),
                                        .text = tr("Incorrect draw result...    "),
                                        .sign = Sign::Exclamation});
        LeadTo(*wrong);
        return;
    }
    CreateDatabase(folder(), EnteredLottery());
    Unload();
}

NewLottery CreateDbase::EnteredLottery() const {
    const bool extraBall = powerballType_->isChecked();
    NewLottery lottery{
        .name = FromQString(name_->text()),
        .address = FromQString(address_->text()),
        .picks = FromQString(picks_->ShownText()),
        .highest = FromQString(highest_->ShownText()),
        .highestExtra = extraBall ? FromQString(highestExtra_->ShownText()) : std::string("0"),
        .hasBonus = !extraBall && boxes_[7]->Value() > 0,
        .firstDraw = date_->Value(),
        .numbers = {}};
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        // What a hidden box still holds belongs to no number of this lottery.
        const bool shown = i == 7 || static_cast<int>(i) < picks_->Value();
        if (shown) lottery.numbers[i] = Trim(FromQString(boxes_[i]->text()));
    }
    return lottery;
}

void CreateDbase::AskAndClose() {
    const Answer answer = services().messages.Show(this, {.title = tr("Are you sure?"),
                                                          .text = tr("Close and discard data?    "),
                                                          .sign = Sign::Question,
                                                          .buttons = Buttons::YesNo,
                                                          .discards = true});
    if (answer == Answer::Yes) Unload();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/Wheel49.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "platform/system/MessageBoxes.h"
#include "play/pool.h"
#include "wheels/ToldProof.h"
#include "wheels/WheelFrame.h"
#include "wheels/proof.h"

namespace {

constexpr int drawn = 6;
constexpr int matched = 3;

PlayFormText Words() {
    return {.name = QStringLiteral("Wheel49"),
            .caption = Wheel49::tr("Wheel 49"),
            .heading = Wheel49::tr("Wheel 49"),
            .body = Wheel49::tr(
                "The aim is to wheel the numbers 1 to 49 in such a way as to guarantee one or more "
                "3-matches. It is specifically designed for pick-6 lotteries with a minimum of 49 "
                "numbers in the draw."),
            .conditions = Wheel49::tr("Do not allow lottery entries with...")};
}

PlayControlNames Names() {
    PlayControlNames names;
    names.explain = QString();
    return names;
}

}  // namespace

Wheel49::Wheel49(Program& program, QWidget* parent)
    : RetryingForm(program, Words(), Names(), wheel49::lineCount, parent),
      proof_(new ToldProof(Body(), View(state()))) {
    SetBusyRules(wheels::RulesOf("Wheel49").busy);
    ConditionsHeading().addWidget(MakeHelpButton(QStringLiteral("Command3"), tr(" Help ")));
}

SkinLabels Wheel49::SkinnedLabels() const { return WheelSkinLabels(objectName()); }

void Wheel49::Load() {
    RetryingForm::Load();
    wheel49Data_ = wheel49::ReadTable(folder());
    found_ = wheels::CheckedText({.lines = wheel49::LineMasks(wheel49Data_),
                                  .numbers = wheel49::numberCount,
                                  .drawn = drawn,
                                  .matched = matched});
    ShowProof();
}

void Wheel49::DatabaseLoaded() { ShowProof(); }

void Wheel49::ShowProof() {
    if (found_.empty()) return;
    proof_->TellWheel(found_ + (state().Picks == 7 ? wheels::PicksRemark(7) : std::string()));
}

bool Wheel49::MayGenerate() {
    if (wheel49::Suits(state())) return true;
    // Kept on purpose: two blanks at the end, where the like messages have four.
    services().messages.Show(this, {.title = tr("Sorry!"),
                                    .text = tr("This method is not suitable for this lottery.  "),
                                    .sign = Sign::Exclamation});
    return false;
}

void Wheel49::MakeLines() {
    FillPool(state(), wheel49::numberCount);
    RetryingForm::MakeLines();
    proof_->LinesMade({.numbers = wheels::PoolNumbers(view(), 1, wheel49::numberCount),
                       .drawn = drawn,
                       .matched = matched});
}

void Wheel49::LinesTakenOut() { proof_->LinesTakenOut(); }

void Wheel49::PlayLotto() { wheel49::DoWheel(state(), services().random, wheel49Data_); }

GeneratorStyle Wheel49::Style() const { return {.timeDecimals = 3, .paintTries = false}; }

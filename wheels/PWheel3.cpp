// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PWheel3.h"

#include <QLabel>
#include <QVBoxLayout>

#include "platform/system/TextConversion.h"
#include "platform/widgets/Widgets.h"
#include "wheels/pairs_triplets.h"

namespace {

constexpr int mostLines = 28;
constexpr BoxGrouping grouping = {.boxesInGroup = 3, .groupsInRow = 2, .letters = true};

PlayFormText Words() {
    return {.name = QStringLiteral("PWheel3"),
            .caption = PWheel3::tr("Wheeling triplets"),
            .heading = PWheel3::tr("Wheeling triplets"),
            .body = PWheel3::tr(
                "This method of selecting Lotto entries tries to increase your chance of winning "
                "the smaller prizes by placing numbers into groups of three. Each group is played "
                "with every other group. Pick up to 8 groups of three numbers.")};
}

}  // namespace

PWheel3::PWheel3(Program& program, QWidget* parent)
    : WheelFrame(program, Words(), WheelControlNames(QStringLiteral("Command3")), grouping,
                 mostLines, parent),
      advice_(MakeLabel(QStringLiteral("Label4"), QString())) {
    AddSizes(SizeCaptions(triplets::optionCount, triplets::OptionCaption));
    Foot().addWidget(advice_);
}

void PWheel3::SizeChosen() {
    UseBoxes(triplets::NumberCount(Size()));
    SetPrompt(triplets::Prompt(Size()));
}

void PWheel3::ShowLottery() {
    const auto advice = triplets::Advice(state().Picks);
    if (advice) advice_->setText(ToQString(*advice));
}

wheels::Outcome PWheel3::MakeWheel(wheels::Boxes& boxes) {
    return triplets::Generate(state(), services().random, Size(), boxes);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PWheel2.h"

#include "wheels/pairs_triplets.h"

namespace {

constexpr int mostLines = 36;
constexpr BoxGrouping grouping = {.boxesInGroup = 2, .groupsInRow = 3, .letters = true};

PlayFormText Words() {
    return {.name = QStringLiteral("PWheel2"),
            .caption = PWheel2::tr("Wheeling pairs"),
            .heading = PWheel2::tr("Wheeling pairs"),
            .body = PWheel2::tr(
                "This method of selecting Lotto entries tries to increase your chance of winning "
                "the smaller prizes by placing numbers into pairs. Each pair is played with every "
                "other pair. Pick up to 9 pairs of numbers.")};
}

QStringList Captions(int picks) {
    return SizeCaptions(pairs::optionCount,
                        [picks](int option) { return pairs::OptionCaption(option, picks); });
}

}  // namespace

PWheel2::PWheel2(Program& program, QWidget* parent)
    : WheelFrame(program, Words(), WheelControlNames(QStringLiteral("Command3")), grouping,
                 mostLines, parent) {
    AddSizes(Captions(6));
}

void PWheel2::SizeChosen() {
    UseBoxes(pairs::NumberCount(Size()));
    SetPrompt(pairs::Prompt(Size()));
}

void PWheel2::ShowLottery() { SetSizeCaptions(Captions(state().Picks)); }

wheels::Outcome PWheel2::MakeWheel(wheels::Boxes& boxes) {
    return pairs::Generate(state(), services().random, Size(), boxes);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PBudgetWheel.h"

#include <QPushButton>

#include "core/filters.h"
#include "platform/forms/Hourglass.h"
#include "platform/system/MessageBoxes.h"
#include "wheels/budget_wheels.h"

namespace {

constexpr int mostLines = 8;
constexpr BoxGrouping grouping = {.boxesInGroup = 3, .groupsInRow = 2};

PlayFormText Words() {
    return {.name = QStringLiteral("PBudgetWheel"),
            .caption = PBudgetWheel::tr("Budget Wheels"),
            .heading = PBudgetWheel::tr("Budget wheels"),
            .body = PBudgetWheel::tr(
                "These wheels don't cover every possible combination of numbers, but they aim to "
                "cut costs while still offering a good chance of winning a prize if any of the "
                "draw numbers are in your selection.")};
}

}  // namespace

PBudgetWheel::PBudgetWheel(Program& program, QWidget* parent)
    : WheelFrame(program, Words(), WheelControlNames(QStringLiteral("Command4")), grouping,
                 mostLines, parent) {
    AddSizes(SizeCaptions(budget_wheels::optionCount, budget_wheels::OptionCaption));
    RandomSelection().setToolTip(tr(" Pick some numbers for me "));
    RandomOrder().setToolTip(tr(" Mix up the order of the numbers "));
}

void PBudgetWheel::SizeChosen() { UseBoxes(budget_wheels::NumberCount(Size())); }

wheels::Outcome PBudgetWheel::MakeWheel(wheels::Boxes& boxes) {
    if (!budget_wheels::Prepare(state(), boxes)) return wheels::Outcome::CheckInput;
    state().Busy = -1;
    const wheels::Outcome outcome = Play(boxes);
    state().Busy = 0;
    return outcome;
}

wheels::Outcome PBudgetWheel::Play(const wheels::Boxes& boxes) {
    if (budget_wheels::HasTooFewPicks(state())) {
        services().messages.Show(this, {.title = tr("Sorry!"),
                                        .text = tr("Not available with this lottery.    "),
                                        .sign = Sign::Exclamation});
        return wheels::Outcome::Refused;
    }
    const Hourglass hourglass;
    const auto outcome = budget_wheels::Generate(state(), services().random, Size(), boxes);
    if (outcome != wheels::Outcome::Done) return outcome;
    ShowResult();
    return wheels::Outcome::Shown;
}

// Of the filters only the one that looks at all draws shows the hourglass.
void PBudgetWheel::Prune(void (*prune)(State&)) {
    if (prune != &PruneHistory) return WheelFrame::Prune(prune);
    const Hourglass hourglass;
    WheelFrame::Prune(prune);
}

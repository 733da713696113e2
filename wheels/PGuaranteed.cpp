// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PGuaranteed.h"

#include <QCoreApplication>
#include <QLabel>

#include "platform/forms/Hourglass.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "wheels/GuaranteedPanels.h"
#include "wheels/NumberBoard.h"
#include "wheels/ToldProof.h"
#include "wheels/WheelFrame.h"
#include "wheels/proof.h"

using guaranteed_wheels::Refusal;

void PGuaranteed::Load() {
    RetryingForm::Load();
    for (const Panel& panel : panels_) panel.wheels->SetIndex(0);
}

SkinLabels PGuaranteed::SkinnedLabels() const { return WheelSkinLabels(objectName()); }

void PGuaranteed::DatabaseLoaded() {
    board_->ShowUpTo(state().MaxNum);
    for (std::size_t panel = 0; panel < panels_.size(); ++panel) ShowProof(panel);
}

std::string PGuaranteed::ItemText(std::size_t panel) const {
    return FromQString(panels_.at(panel).wheels->currentText());
}

void PGuaranteed::ChooseWheel(std::size_t panel) {
    const std::string text = ItemText(panel);
    panels_.at(panel).pick->setText(ToQString(guaranteed_wheels::PickText(text)));
    panels_.at(panel).uses->setText(ToQString(guaranteed_wheels::UsesText(text)));
    ShowProof(panel);
}

void PGuaranteed::ShowProof(std::size_t panel) {
    const int item = panels_.at(panel).wheels->Index();
    if (item < 0) return;
    panels_.at(panel).proof->TellWheel(
        wheels::CheckedText(guaranteedPanels.at(panel).list, item, state().Picks));
}

void PGuaranteed::ShowCount() {
    const int count = board_->SelectedCount();
    count_->setText(count == 1 ? tr("1 number clicked") : tr("%1 numbers clicked").arg(count));
}

void PGuaranteed::ClearSelection() {
    for (int number = 1; number <= guaranteed_wheels::boardNumbers; ++number) {
        board_->Select(number, false);
    }
    EmptyGrid();
}

guaranteed_wheels::Selection PGuaranteed::Selected() const {
    guaranteed_wheels::Selection selection{};
    for (int number = 1; number <= guaranteed_wheels::boardNumbers; ++number) {
        selection[static_cast<std::size_t>(number)] = board_->IsSelected(number);
    }
    return selection;
}

void PGuaranteed::SelectAtRandom(std::size_t panel) {
    if (state().Busy != 0) return;
    {
        const Hourglass hourglass;
        state().Busy = -1;
        services().random.SeedFromClock();
        ClearSelection();
        const int numbers = guaranteed_wheels::NumberCount(ItemText(panel));
        const auto selection =
            guaranteed_wheels::SelectAtRandom(state(), services().random, numbers);
        for (int number = 1; number <= guaranteed_wheels::boardNumbers; ++number) {
            board_->Select(number, selection[static_cast<std::size_t>(number)]);
        }
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
    state().Busy = 0;
    GenerateFrom(panel);
}

void PGuaranteed::GenerateFrom(std::size_t panel) {
    if (state().Busy != 0) return;
    panel_ = panel;
    Generate();
}

void PGuaranteed::Refuse(const QString& title, const QString& text) {
    services().messages.Show(this, {.title = title, .text = text, .sign = Sign::Exclamation});
}

bool PGuaranteed::MayGenerate() {
    numbers_ = guaranteed_wheels::NumberCount(ItemText(panel_));
    const int chosen = guaranteed_wheels::TakeSelection(state(), Selected());
    switch (guaranteed_wheels::Check(state(), chosen, numbers_)) {
        case Refusal::WrongCount:
            Refuse(tr("Error"), ToQString(guaranteed_wheels::CountMessage(chosen, numbers_)));
            return false;
        case Refusal::TooManyNumbers:
            Refuse(tr("Sorry!"), tr("Too many numbers for this lottery.    "));
            return false;
        case Refusal::TooFewPicks:
            Refuse(tr("Sorry!"), tr("This method is not suitable for this lottery.    "));
            return false;
        case Refusal::None:
            break;
    }
    return true;
}

// An index outside the list leaves the pattern that stood there.
void PGuaranteed::MakeLines() {
    const int item = panels_.at(panel_).wheels->Index();
    if (item >= 0) wheelPattern_ = wheels::WheelAt(guaranteedPanels.at(panel_).list, item).pattern;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    RetryingForm::MakeLines();
    TellLinesMade();
}

void PGuaranteed::TellLinesMade() {
    for (const Panel& panel : panels_) panel.proof->LinesGone();
    const Panel& panel = panels_.at(panel_);
    const int item = panel.wheels->Index();
    if (item < 0) return;
    const wheels::Promise promise =
        wheels::PromiseOf(guaranteedPanels.at(panel_).list, item, state().Picks);
    panel.proof->LinesMade({.numbers = wheels::PoolNumbers(view(), 1, numbers_),
                            .drawn = promise.drawn,
                            .matched = promise.matched});
}

void PGuaranteed::LinesTakenOut() {
    for (const Panel& panel : panels_) panel.proof->LinesTakenOut();
}

void PGuaranteed::PlayLotto() {
    guaranteed_wheels::PlayLotto(state(), services().random, wheelPattern_, numbers_);
}

GeneratorStyle PGuaranteed::Style() const { return {.sortLines = true}; }

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PThreeMatch.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/OptionGroup.h"
#include "platform/widgets/Widgets.h"
#include "wheels/ToldProof.h"
#include "wheels/match_wheels.h"
#include "wheels/proof.h"

using wheels::WheelList;

namespace {

constexpr int mostLines = 20;
constexpr BoxGrouping grouping = {.boxesInGroup = 1, .groupsInRow = 10};

PlayFormText Words() {
    return {.name = QStringLiteral("PThreeMatch"),
            .caption = PThreeMatch::tr("Three-match wheels"),
            .heading = PThreeMatch::tr("Guaranteed 3-match wheels"),
            .body = {}};
}

PlayControlNames Names() {
    PlayControlNames names = WheelControlNames(QStringLiteral("Command3"));
    names.lotteries = QStringLiteral("Label1(1)");
    return names;
}

}  // namespace

PThreeMatch::PThreeMatch(Program& program, QWidget* parent)
    : WheelFrame(program, Words(), Names(), grouping, mostLines, parent),
      modes_(new OptionGroup(this)),
      threeMatch_(BuildList(QStringLiteral("Combo1"), WheelList::ThreeMatch)),
      fourMatch_(BuildList(QStringLiteral("Combo2"), WheelList::FourMatch)),
      proof_(new ToldProof(Body(), View(state()))),
      list_(WheelList::ThreeMatch) {
    BesideList().addLayout(BuildLists());
    RandomSelection().setToolTip(tr(" Enter a random selection of numbers "));
    // Kept on purpose: "Nix".
    RandomOrder().setToolTip(tr(" Nix up the order of the numbers "));
    connect(modes_, &OptionGroup::clicked, this, [this] { ChooseMode(); });
}

QLayout* PThreeMatch::BuildLists() {
    auto* column = new QVBoxLayout;
    column->addWidget(MakeLabel(QStringLiteral("Label5"), tr("Matches guaranteed:")));
    column->addWidget(modes_->Add(QStringLiteral("Option1(0)"), tr("3-match wheels")));
    column->addWidget(modes_->Add(QStringLiteral("Option1(1)"), tr("4-match wheels")));
    column->addSpacing(8);
    QLabel* title = MakeLabel(QStringLiteral("Label1"), tr("Pick your wheel:"));
    for (ComboList* list : {fourMatch_, threeMatch_}) list->setAccessibleName(title->text());
    column->addWidget(title);
    column->addWidget(threeMatch_);
    column->addWidget(fourMatch_);
    column->addSpacing(8);
    column->addWidget(MakeLabel(QStringLiteral("Label3"), tr("Designed for pick-6 lotteries")));
    column->addStretch(1);
    fourMatch_->hide();
    return column;
}

ComboList* PThreeMatch::BuildList(const QString& name, WheelList list) {
    auto* combo = Named(new ComboList(this), name);
    const int count = static_cast<int>(wheels::FamilyOf(list).items.size());
    for (int item = 0; item < count; ++item) {
        combo->addItem(ToQString(match_wheels::ItemText(list, item)));
    }
    combo->setMaxVisibleItems(count);
    connect(combo, &ComboList::clicked, this, [this, list] { ChooseWheel(list); });
    return combo;
}

ComboList& PThreeMatch::ListOf(WheelList list) {
    return list == WheelList::ThreeMatch ? *threeMatch_ : *fourMatch_;
}

void PThreeMatch::Load() {
    WheelFrame::Load();
    fourMatch_->SetIndex(0);
    threeMatch_->SetIndex(0);
}

void PThreeMatch::ChooseMode() {
    const bool four = modes_->Index() != 0;
    threeMatch_->setVisible(!four);
    fourMatch_->setVisible(four);
    Heading().setText(four ? tr("Guaranteed 4-match wheels") : tr("Guaranteed 3-match wheels"));
    setWindowTitle(four ? tr("Four-match wheels") : tr("Three-match wheels"));
    ChooseWheel(four ? WheelList::FourMatch : WheelList::ThreeMatch);
}

void PThreeMatch::ChooseWheel(WheelList list) {
    list_ = list;
    const int item = ListOf(list).Index();
    if (item >= 0) {
        wheelPattern_ = wheels::WheelAt(list, item).pattern;
        numbersToPick_ = wheels::WheelAt(list, item).numbers;
    }
    Body().setText(ToQString(match_wheels::Sentence(list, item, wheelPattern_)));
    SetPrompt(match_wheels::Prompt(numbersToPick_));
    UseBoxes(numbersToPick_);
    EmptyGrid();
    ShowProof();
}

void PThreeMatch::ShowProof() {
    const int item = ListOf(list_).Index();
    proof_->TellWheel(item < 0 ? std::string() : wheels::CheckedText(list_, item, state().Picks));
}

void PThreeMatch::ShowLottery() { ShowProof(); }

bool PThreeMatch::MayGenerate() {
    if (match_wheels::Suits(state())) return true;
    services().messages.Show(this, {.title = tr("Sorry!"),
                                    .text = tr("This method is not suitable for this lottery.    "),
                                    .sign = Sign::Exclamation});
    return false;
}

wheels::Outcome PThreeMatch::MakeWheel(wheels::Boxes& boxes) {
    const wheels::Outcome outcome =
        match_wheels::Generate(state(), services().random, wheelPattern_, boxes);
    const int item = ListOf(list_).Index();
    if (outcome != wheels::Outcome::Done || item < 0) return outcome;
    const wheels::Promise promise = wheels::PromiseOf(list_, item, state().Picks);
    proof_->LinesMade({.numbers = wheels::PoolNumbers(view(), 0, numbersToPick_),
                       .drawn = promise.drawn,
                       .matched = promise.matched});
    return outcome;
}

void PThreeMatch::LinesTakenOut() { proof_->LinesTakenOut(); }

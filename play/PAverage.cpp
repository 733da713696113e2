// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PAverage.h"

#include <QHBoxLayout>
#include <QLabel>

#include "core/draws.h"
#include "platform/widgets/BarInput.h"
#include "platform/widgets/Widgets.h"
#include "play/averages.h"

namespace {

constexpr int mostLines = 30;

PlayFormText Words() {
    return {.name = QStringLiteral("PAverage"),
            .caption = PAverage::tr("Average Numbers"),
            .heading = PAverage::tr("Average numbers"),
            .body = PAverage::tr(
                "The average value of each draw number is calculated (1st number, 2nd, 3rd and so "
                "on). Lottery entries are picked that have numbers the same as or very close to "
                "the average. Most lottery draw results are close to the average, so you might "
                "have a better chance of winning.")};
}

}  // namespace

PAverage::PAverage(Program& program, QWidget* parent)
    : RetryingForm(program, Words(), PlayControlNames::FromCommand8(), mostLines, parent) {
    QLabel* title = MakeLabel(QStringLiteral("Label9"), tr("Lines:"));
    lineCount_ = new BarInput(QStringLiteral("HScroll1"), QStringLiteral("Label8"), title->text(),
                              {.lowest = 1, .highest = mostLines, .value = 5, .largeChange = 1});
    auto* row = new QHBoxLayout;
    row->addWidget(title, 0, Qt::AlignTop);
    row->addWidget(lineCount_, 1);
    Inputs().addLayout(row);
}

void PAverage::ResetInputs() { ClearConditions(); }

void PAverage::DatabaseLoaded() {
    SortDraws(state(), state().Picks);
    averages::Analyse(state());
}

void PAverage::MakeLines() {
    EmptyGrid();
    RetryingForm::MakeLines();
}

void PAverage::PlayLotto() { averages::PlayLotto(state(), services().random, lineCount_->Value()); }

bool PAverage::FurtherCondition() {
    return averages::CheckDuplicate(view(), lineCount_->Value()) != 0;
}

GeneratorStyle PAverage::Style() const { return {.sortLines = true, .pruneDuplicates = true}; }

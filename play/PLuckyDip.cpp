// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PLuckyDip.h"

#include <QHBoxLayout>
#include <QLabel>

#include "platform/widgets/BarInput.h"
#include "platform/widgets/Widgets.h"
#include "play/lucky_dip.h"

namespace {

constexpr int mostLines = 30;

PlayFormText Words() {
    return {.name = QStringLiteral("PLuckyDip"),
            .caption = PLuckyDip::tr("Lucky Dip"),
            .heading = PLuckyDip::tr("Lucky dip"),
            .body = PLuckyDip::tr(
                "Don't accept any old ticket the lottery terminal prints out. It might be biased! "
                "If you have not had any wins and want a completely random selection of lottery "
                "numbers, try these below. They may just bring you luck.")};
}

}  // namespace

PLuckyDip::PLuckyDip(Program& program, QWidget* parent)
    : RetryingForm(program, Words(), {}, mostLines, parent) {
    QLabel* title = MakeLabel(QStringLiteral("Label8"), tr("Lines to generate"));
    lineCount_ = new BarInput(QStringLiteral("HScroll1"), QStringLiteral("Label4"), title->text(),
                              {.lowest = 1, .highest = mostLines, .value = 5});
    auto* row = new QHBoxLayout;
    row->addWidget(title, 0, Qt::AlignTop);
    row->addWidget(lineCount_, 1);
    Inputs().addLayout(row);
}

void PLuckyDip::PlayLotto() {
    lucky_dip::PlayLotto(state(), services().random, lineCount_->Value());
}

GeneratorStyle PLuckyDip::Style() const { return {.timeDecimals = 3, .pruneDuplicates = true}; }

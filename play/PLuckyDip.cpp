// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PLuckyDip.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "platform/forms/ShowTip.h"
#include "platform/widgets/Widgets.h"
#include "play/lucky_dip.h"

namespace {

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

PLuckyDip::PLuckyDip(Program& program, QWidget* parent) : PlayForm(program, Words(), parent) {
    QPushButton* explain = MakeButton(QStringLiteral("Command3"), tr("?"));
    explain->setAccessibleName(tr("What these conditions do"));
    explain->setFixedWidth(explain->minimumHeight());
    ConditionsHeading().addWidget(explain);
    connect(explain, &QPushButton::clicked, this, [this] { ShowTip(services(), this, 1); });
}

void PLuckyDip::PlayLotto() { lucky_dip::PlayLotto(state(), services().random, LinesWanted()); }

GeneratorStyle PLuckyDip::Style() const { return {.timeDecimals = 3, .pruneDuplicates = true}; }

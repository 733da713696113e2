// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PLuckyDip.h"

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

PLuckyDip::PLuckyDip(Program& program, QWidget* parent) : PlayForm(program, Words(), parent) {}

void PLuckyDip::PlayLotto() { lucky_dip::PlayLotto(state(), services().random, LinesWanted()); }

GeneratorStyle PLuckyDip::Style() const { return {.timeDecimals = 3, .pruneDuplicates = true}; }

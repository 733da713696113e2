// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Contrast.h"

#include <gtest/gtest.h>

namespace {

TEST(TheContrast, IsTwentyOneOfBlackAndWhiteAndOneOfTheSame) {
    EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(Contrast(Qt::white, Qt::black), 21, 0.01);
    EXPECT_NEAR(Contrast(Qt::red, Qt::red), 1, 0.01);
    EXPECT_NEAR(Contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
}

TEST(AColourThatStandsOut, StaysWhereItDoesAlready) {
    EXPECT_EQ(StandingOut(Qt::darkBlue, Qt::white, 4.5), QColor(Qt::darkBlue));
}

TEST(AColourThatStandsOut, IsMadeDarkerOnWhiteAndLighterOnBlack) {
    const QColor onWhite = StandingOut(Qt::yellow, Qt::white, 4.5);
    const QColor onBlack = StandingOut(Qt::darkBlue, Qt::black, 4.5);
    EXPECT_GE(Contrast(onWhite, Qt::white), 4.5);
    EXPECT_GE(Contrast(onBlack, Qt::black), 4.5);
    EXPECT_LT(onWhite.lightnessF(), QColor(Qt::yellow).lightnessF());
    EXPECT_GT(onBlack.lightnessF(), QColor(Qt::darkBlue).lightnessF());
}

TEST(AColourThatStandsOut, GoesAsFarAsItCanWhereTheContrastCannotBeHad) {
    const QColor middle(0x80, 0x80, 0x80);
    EXPECT_EQ(StandingOut(middle, middle, 21), QColor(Qt::black));
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/ShowTip.h"

#include <gtest/gtest.h>

#include "tests/support/form_test.h"

namespace {

struct TheTip : testing::Test {
    void Expect(int number, const QString& title, const QString& text) {
        test.messages.Expect(
            {.title = title, .text = text, .sign = Sign::Information, .buttons = Buttons::Ok});
        ShowTip(test.services, nullptr, number);
        EXPECT_EQ(test.messages.Shown(), 1);
    }

    TestProgram test;
};

TEST_F(TheTip, One) {
    Expect(1, QStringLiteral("Did you know..."),
           QStringLiteral(" It is rare for a lottery draw to have     \r\n"
                          " numbers that are all odd or all even. Most     \r\n"
                          " draws have a mixture of odd and even     \r\n"
                          " numbers. Setting this option ensures your     \r\n"
                          " lottery entries have the right mix.     \r\n"));
}

TEST_F(TheTip, Two) {
    Expect(2, QStringLiteral("Did you know..."),
           QStringLiteral(" It is rare for a lottery draw to have     \r\n"
                          " numbers that are all very high or all very     \r\n"
                          " low. Most draws have a mixture of low and     \r\n"
                          " high numbers. Setting this option ensures     \r\n"
                          " your lottery entries have the right mix.     \r\n"));
}

TEST_F(TheTip, Three) {
    Expect(3, QStringLiteral("Did you know..."),
           QStringLiteral(" Lightning never strikes the same place twice,     \r\n"
                          " at least not in lotteries. The same draw     \r\n"
                          " numbers have never come up twice, so you don't     \r\n"
                          " want to pick a set of numbers that have come     \r\n"
                          " up before. This option checks all previous     \r\n"
                          " draws to make sure this doesn't happen.     \r\n"));
}

TEST_F(TheTip, Four) {
    Expect(4, QStringLiteral("Feeling lucky?"),
           QStringLiteral("      \r\n"
                          " This method of selecting numbers is     \r\n"
                          " not suitable for Hot Picks. Here are     \r\n"
                          " some lucky dips you can try instead.     \r\n"));
}

TEST_F(TheTip, Five) {
    Expect(5, QStringLiteral("Top tip"),
           QStringLiteral(" If you enter a name here, these lottery  \r\n"
                          " entries will be associated with that person  \r\n"
                          " when they are saved. This is useful if  \r\n"
                          " different people play different lotteries,  \r\n"
                          " or people in a syndicate have specific  \r\n"
                          " entries. Leave it blank if you are the only  \r\n"
                          " person that uses this program.  \r\n"));
}

TEST_F(TheTip, Six) {
    Expect(6, QStringLiteral("Error"),
           QStringLiteral(" There was a problem with the input.  \r\n"
                          " Please check it and try again.  \r\n"));
}

TEST_F(TheTip, OfAnotherNumberShowsNothing) {
    for (const int number : {-1, 0, 7, 100}) ShowTip(test.services, nullptr, number);
    EXPECT_EQ(test.messages.Shown(), 0);
}

}  // namespace

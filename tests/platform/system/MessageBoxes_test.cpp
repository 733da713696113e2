// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "platform/Hourglass.h"
#include "platform/MessageBoxes.h"
#include "platform/ShowTip.h"
#include "tests/support/form_test.h"

namespace {

Answer AnswerTo(const Message& message, const std::function<void(QMessageBox&)>& drive) {
    Answer answer = Answer::Ok;
    InDialog([&] { answer = DesktopMessageBoxes().Show(nullptr, message); },
             [&](QDialog& dialog) {
                 auto* box = qobject_cast<QMessageBox*>(&dialog);
                 ASSERT_NE(box, nullptr);
                 drive(*box);
             });
    return answer;
}

void Press(QMessageBox& box, QMessageBox::StandardButton button) {
    ASSERT_NE(box.button(button), nullptr);
    QWidget* pressed = box.button(button);
    QTest::mouseClick(pressed, Qt::LeftButton);
}

Message Asked(Buttons buttons) {
    return {.title = QStringLiteral("Warning!"),
            .text = QStringLiteral(" Are you sure?    \r\n"),
            .sign = Sign::Question,
            .buttons = buttons};
}

TEST(AMessageBox, HasExactlyTheTitleTheTextTheSignAndTheButtons) {
    AnswerTo(Asked(Buttons::YesNo), [](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Warning!"));
        EXPECT_EQ(box.text(), QStringLiteral(" Are you sure?    \r\n"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        EXPECT_TRUE(box.informativeText().isEmpty());
    });
}

TEST(AMessageBox, ShowsTextThatLooksLikeMarkupAsItStands) {
    AnswerTo({.title = {}, .text = QStringLiteral("<b>1 & 2</b>")}, [](QMessageBox& box) {
        EXPECT_EQ(box.text(), QStringLiteral("<b>1 & 2</b>"));
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
    });
}

TEST(AMessageBox, HasTheSignOfItsKind) {
    Message message = Asked(Buttons::Ok);
    for (const auto& [sign, icon] : {std::pair(Sign::Information, QMessageBox::Information),
                                     std::pair(Sign::Exclamation, QMessageBox::Warning),
                                     std::pair(Sign::Question, QMessageBox::Question)}) {
        message.sign = sign;
        QMessageBox::Icon shown = QMessageBox::NoIcon;
        AnswerTo(message, [&shown](QMessageBox& box) { shown = box.icon(); });
        EXPECT_EQ(shown, icon);
    }
}

TEST(AMessageBox, AnswersWithTheButtonPressed) {
    const auto pressed = [](Buttons buttons, QMessageBox::StandardButton button) {
        return AnswerTo(Asked(buttons), [button](QMessageBox& box) { Press(box, button); });
    };
    EXPECT_EQ(pressed(Buttons::Ok, QMessageBox::Ok), Answer::Ok);
    EXPECT_EQ(pressed(Buttons::OkCancel, QMessageBox::Ok), Answer::Ok);
    EXPECT_EQ(pressed(Buttons::OkCancel, QMessageBox::Cancel), Answer::Cancel);
    EXPECT_EQ(pressed(Buttons::YesNo, QMessageBox::Yes), Answer::Yes);
    EXPECT_EQ(pressed(Buttons::YesNo, QMessageBox::No), Answer::No);
}

TEST(AMessageBox, TakesEscapeAsCancelNoOrOk) {
    const auto escaped = [](Buttons buttons) {
        return AnswerTo(Asked(buttons),
                        [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    };
    EXPECT_EQ(escaped(Buttons::Ok), Answer::Ok);
    EXPECT_EQ(escaped(Buttons::OkCancel), Answer::Cancel);
    EXPECT_EQ(escaped(Buttons::YesNo), Answer::No);
}

TEST(AMessageBox, TakesTheTitleBarsCrossAsCancelNoOrOk) {
    const auto closed = [](Buttons buttons) {
        return AnswerTo(Asked(buttons), [](QMessageBox& box) { box.close(); });
    };
    EXPECT_EQ(closed(Buttons::Ok), Answer::Ok);
    EXPECT_EQ(closed(Buttons::OkCancel), Answer::Cancel);
    EXPECT_EQ(closed(Buttons::YesNo), Answer::No);
}

TEST(AMessageBox, TakesEnterAsItsFirstButton) {
    const auto entered = [](Buttons buttons) {
        return AnswerTo(Asked(buttons),
                        [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    };
    EXPECT_EQ(entered(Buttons::OkCancel), Answer::Ok);
    EXPECT_EQ(entered(Buttons::YesNo), Answer::Yes);
}

TEST(AMessageBox, LeavesTheHourglassBehindItself) {
    const Hourglass hourglass;
    AnswerTo(Asked(Buttons::Ok),
             [](QMessageBox& box) { EXPECT_EQ(box.cursor().shape(), Qt::ArrowCursor); });
}

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

TEST(TheHourglass, ShowsWhileItLives) {
    {
        const Hourglass hourglass;
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

}  // namespace

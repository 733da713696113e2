// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/MessageBoxes.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "platform/forms/Hourglass.h"
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

TEST(AMessageBox, HasRoomForItsTitleBesideTheButtonsOfTheTitleBar) {
    Message message = Asked(Buttons::Ok);
    message.title = QStringLiteral("There is nothing to print or save in this list of entries");
    message.text = QStringLiteral("Oops!");
    AnswerTo(message, [&message](QMessageBox& box) {
        EXPECT_GE(box.width(), QFontMetrics(box.font()).horizontalAdvance(message.title) + 100);
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

TEST(AMessageBox, TakesEnterAsNoOrCancelWhereItDiscardsSomething) {
    const auto entered = [](Buttons buttons) {
        Message message = Asked(buttons);
        message.discards = true;
        return AnswerTo(message, [](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    };
    EXPECT_EQ(entered(Buttons::Ok), Answer::Ok);
    EXPECT_EQ(entered(Buttons::OkCancel), Answer::Cancel);
    EXPECT_EQ(entered(Buttons::YesNo), Answer::No);
}

TEST(AMessageBox, LeavesTheHourglassBehindItself) {
    const Hourglass hourglass;
    AnswerTo(Asked(Buttons::Ok),
             [](QMessageBox& box) { EXPECT_EQ(box.cursor().shape(), Qt::ArrowCursor); });
}

Message Deletion() {
    return {.title = QStringLiteral("Delete database"),
            .text = QStringLiteral("  Are you sure?    "),
            .sign = Sign::Question,
            .buttons = Buttons::YesNo};
}

TEST(TheMessagesOfATest, InsistThatAQuestionOfDeletingIsMarkedAsOne) {
    FakeMessages messages;
    Message asked = Deletion();
    messages.Expect(asked, Answer::No);
    EXPECT_NONFATAL_FAILURE(messages.Show(nullptr, asked), "is to be marked so");
    asked.discards = true;
    messages.Expect(asked, Answer::No);
    EXPECT_EQ(messages.Show(nullptr, asked), Answer::No);
}

TEST(TheMessagesOfATest, TakeAMarkThatTheyDoNotExpectButMissOneThatTheyDo) {
    FakeMessages messages;
    Message asked = Deletion();
    messages.Expect(asked, Answer::No);
    asked.discards = true;
    messages.Show(nullptr, asked);
    asked.title.clear();
    messages.Expect(asked, Answer::No);
    asked.discards = false;
    testing::TestPartResultArray failures;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(&failures);
        messages.Show(nullptr, asked);
    }
    EXPECT_EQ(failures.size(), 2) << "what was expected, and what came";
}

}  // namespace

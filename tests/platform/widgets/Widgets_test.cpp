// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/Widgets.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include "tests/support/form_test.h"

namespace {

TEST(AName, OfAnArrayMemberHasItsIndexInParentheses) {
    EXPECT_EQ(Member(QStringLiteral("Text1"), 3), QStringLiteral("Text1(3)"));
}

TEST(ACaption, ShowsItsAmpersand) {
    EXPECT_EQ(ShownCaption(QStringLiteral("Cut & paste")), QStringLiteral("Cut && paste"));
}

TEST(AButton, HasItsNameAndCaptionAndDoesNotTakeEnter) {
    const std::unique_ptr<QPushButton> button(
        MakeButton(QStringLiteral("Command8"), QStringLiteral(" Help ")));
    EXPECT_EQ(button->objectName(), QStringLiteral("Command8"));
    EXPECT_EQ(button->text(), QStringLiteral(" Help "));
    EXPECT_FALSE(button->autoDefault());
}

TEST(AnIconButton, HasItsToolTipToTheLetterAndAnAccessibleName) {
    const std::unique_ptr<QPushButton> button(MakeIconButton(
        QStringLiteral("Command1"), QStringLiteral("dialog-close"), QStringLiteral(" Close ")));
    EXPECT_EQ(button->toolTip(), QStringLiteral(" Close "));
    EXPECT_EQ(button->accessibleName(), QStringLiteral("Close"));
    EXPECT_EQ(button->text(), QString());
    EXPECT_FALSE(button->icon().isNull());
    EXPECT_EQ(button->focusPolicy(), Qt::StrongFocus);
}

TEST(ALabel, ShowsItsTextAsItStands) {
    const std::unique_ptr<QLabel> label(
        MakeLabel(QStringLiteral("Label7"), QStringLiteral("   <b>Biochart</b>:")));
    EXPECT_EQ(label->text(), QStringLiteral("   <b>Biochart</b>:"));
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_FALSE(label->autoFillBackground());
}

TEST(ALabel, IsLargeAsATitleAndWrapsAsABody) {
    const std::unique_ptr<QLabel> title(
        MakeTitle(QStringLiteral("Label7"), QStringLiteral("Lucky dip")));
    const std::unique_ptr<QLabel> body(MakeBody(QStringLiteral("Label2"), QStringLiteral("words")));
    EXPECT_TRUE(title->font().bold());
    EXPECT_GT(title->font().pointSizeF(), body->font().pointSizeF());
    EXPECT_TRUE(body->wordWrap());
}

}  // namespace

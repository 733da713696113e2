// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/LinkLabel.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSignalSpy>

#include "tests/support/form_test.h"

namespace {

class ALinkLabel : public testing::Test {
  protected:
    void SetUp() override {
        label_.resize(200, 30);
        label_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&label_));
    }

    LinkLabel label_{QStringLiteral("Label3"), QStringLiteral("<b>www.lotto.example</b>")};
    QSignalSpy clicks_{&label_, &LinkLabel::clicked};
};

TEST_F(ALinkLabel, ShowsItsAddressAsItStands) {
    EXPECT_EQ(label_.objectName(), QStringLiteral("Label3"));
    EXPECT_EQ(label_.text(), QStringLiteral("<b>www.lotto.example</b>"));
    EXPECT_EQ(label_.textFormat(), Qt::PlainText);
}

TEST_F(ALinkLabel, IsClicked) {
    QTest::mouseClick(&label_, Qt::LeftButton);
    EXPECT_EQ(clicks_.count(), 1);
}

TEST_F(ALinkLabel, TakesEnterAndSpaceForClicks) {
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_A}) {
        QTest::keyClick(&label_, key);
    }
    EXPECT_EQ(clicks_.count(), 3);
}

TEST_F(ALinkLabel, ShowsWhetherItHasTheFocus) {
    label_.clearFocus();
    const QImage without = label_.grab().toImage();
    label_.setFocus();
    EXPECT_NE(label_.grab().toImage(), without);
    label_.clearFocus();
    EXPECT_EQ(label_.grab().toImage(), without);
}

TEST_F(ALinkLabel, IsALinkForAScreenReader) {
    QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&label_);
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->role(), QAccessible::Link);
    EXPECT_EQ(spoken->text(QAccessible::Name), label_.text());
    label_.setAccessibleName(QStringLiteral("Web: www.lotto.example"));
    EXPECT_EQ(spoken->text(QAccessible::Name), QStringLiteral("Web: www.lotto.example"));
    spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks_.count(), 1);
}

}  // namespace

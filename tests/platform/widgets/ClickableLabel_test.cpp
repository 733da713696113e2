// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/ClickableLabel.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "tests/support/form_test.h"

namespace {

TEST(AClickableLabel, TellsOfALeftClick) {
    ClickableLabel label;
    label.resize(100, 30);
    label.show();
    QSignalSpy clicks(&label, &ClickableLabel::clicked);
    QTest::mouseClick(&label, Qt::LeftButton);
    EXPECT_EQ(clicks.count(), 1);
    QTest::mouseClick(&label, Qt::RightButton);
    EXPECT_EQ(clicks.count(), 1);
}

TEST(AClickableLabel, IgnoresAButtonLetGoOutside) {
    ClickableLabel label;
    label.resize(100, 30);
    label.show();
    QSignalSpy clicks(&label, &ClickableLabel::clicked);
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, Qt::NoModifier, QPoint(150, 10));
    EXPECT_EQ(clicks.count(), 0);
}

}  // namespace

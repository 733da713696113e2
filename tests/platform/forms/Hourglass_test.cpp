// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/forms/Hourglass.h"

#include <gtest/gtest.h>

#include <QCursor>
#include <QGuiApplication>

namespace {

TEST(TheHourglass, ShowsWhileItLives) {
    {
        const Hourglass hourglass;
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

}  // namespace

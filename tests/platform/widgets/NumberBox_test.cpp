// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/NumberBox.h"

#include <gtest/gtest.h>

#include <QClipboard>

#include "tests/support/form_test.h"

namespace {

struct ANumberBox : testing::Test {
    ANumberBox() { box.show(); }
    NumberBox box;
};

TEST_F(ANumberBox, TakesDigitsOnly) {
    QTest::keyClicks(&box, QStringLiteral("1a-2 .3,e"));
    EXPECT_EQ(box.text(), QStringLiteral("123"));
    EXPECT_EQ(box.Value(), 123);
}

TEST_F(ANumberBox, TakesBackspaceAndDelete) {
    QTest::keyClicks(&box, QStringLiteral("123"));
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), QStringLiteral("12"));
    QTest::keyClick(&box, Qt::Key_Home);
    QTest::keyClick(&box, Qt::Key_Delete);
    EXPECT_EQ(box.text(), QStringLiteral("2"));
}

TEST_F(ANumberBox, KeepsWhatIsMarkedWhenAKeyIsDropped) {
    box.setText(QStringLiteral("42"));
    box.selectAll();
    QTest::keyClicks(&box, QStringLiteral("x"));
    EXPECT_EQ(box.text(), QStringLiteral("42"));
    EXPECT_EQ(box.selectedText(), QStringLiteral("42"));
}

TEST_F(ANumberBox, DropsWhatIsNoDigitWhenPasting) {
    QGuiApplication::clipboard()->setText(QStringLiteral("a1 b2\n"));
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.text(), QStringLiteral("12"));
}

TEST_F(ANumberBox, TakesDigitsOfTheLatinScriptOnly) {
    box.insert(QString(QChar(0x0663)) + QStringLiteral("5"));
    EXPECT_EQ(box.text(), QStringLiteral("5"));
}

TEST_F(ANumberBox, IsZeroWhileEmpty) { EXPECT_EQ(box.Value(), 0); }

TEST_F(ANumberBox, HoldsTheLargestWholeNumber) {
    box.setText(QStringLiteral("99999999999999999999"));
    EXPECT_EQ(box.Value(), std::numeric_limits<int>::max());
}

}  // namespace

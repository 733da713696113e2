// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/FilteredBox.h"

#include <gtest/gtest.h>

#include "tests/support/form_test.h"

namespace {

class AFilteredBox : public testing::Test {
  protected:
    AFilteredBox() {
        box_.SetTaken(QStringLiteral("0123456789.-"));
        box_.SetReplaced(QLatin1Char('"'), QLatin1Char('\''));
        box_.show();
    }

    std::string Text() { return box_.text().toStdString(); }

    FilteredBox box_;
};

TEST_F(AFilteredBox, TakesItsCharactersOnly) {
    QTest::keyClicks(&box_, QStringLiteral("-1a2,.5\""));
    EXPECT_EQ(Text(), "-12.5");
    QTest::keyClick(&box_, Qt::Key_Backspace);
    EXPECT_EQ(Text(), "-12.");
}

TEST_F(AFilteredBox, DropsTheOthersOutOfWhatIsPasted) {
    box_.setText(QStringLiteral("12"));
    box_.setCursorPosition(1);
    Paste(box_, QStringLiteral("x3\"y4\n"));
    EXPECT_EQ(Text(), "1342");
    EXPECT_EQ(box_.cursorPosition(), 3);
}

TEST_F(AFilteredBox, LeavesAMarkedTextWhenAKeyIsDropped) {
    box_.setText(QStringLiteral("12"));
    box_.selectAll();
    QTest::keyClicks(&box_, QStringLiteral("x"));
    EXPECT_EQ(box_.selectedText(), QStringLiteral("12"));
}

TEST_F(AFilteredBox, ReplacesACharacterBeforeItLooksAtIt) {
    box_.SetTaken(QString());
    QTest::keyClicks(&box_, QStringLiteral("a \"b\", c"));
    EXPECT_EQ(Text(), "a 'b', c");
    box_.selectAll();
    Paste(box_, QStringLiteral("\"d\"\r\ne\n"));
    EXPECT_EQ(Text(), "'d' e");
}

TEST_F(AFilteredBox, HoldsNoTextOfTheProgramToItsRule) {
    box_.setText(QStringLiteral(" 7 x"));
    EXPECT_EQ(Text(), " 7 x");
    QTest::keyClicks(&box_, QStringLiteral("8y"));
    EXPECT_EQ(Text(), " 7 x8");
    QTest::keyClick(&box_, Qt::Key_Backspace);
    EXPECT_EQ(Text(), " 7 x");
    Paste(box_, QStringLiteral("z9"));
    EXPECT_EQ(Text(), " 7 x9");
}

TEST_F(AFilteredBox, KeepsWhatItWasToldToShow) {
    box_.Show(QStringLiteral("12,50"));
    EXPECT_EQ(Text(), "12,50");
    QTest::keyClicks(&box_, QStringLiteral("3,"));
    EXPECT_EQ(Text(), "12,503");
    box_.undo();
    EXPECT_EQ(Text(), "12,50");
    box_.selectAll();
    QTest::keyClicks(&box_, QStringLiteral("7"));
    EXPECT_EQ(Text(), "7");
}

}  // namespace

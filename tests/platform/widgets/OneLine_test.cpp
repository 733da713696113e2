// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/OneLine.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QLineEdit>
#include <QValidator>

#include "platform/widgets/NumberBox.h"
#include "tests/support/form_test.h"

namespace {

struct ATextBoxOfOneLine : testing::Test {
    ATextBoxOfOneLine() { KeepTextBoxesToOneLine(form); }

    void Paste(const char* text) {
        QApplication::clipboard()->setText(QString::fromLatin1(text));
        box.paste();
    }

    QWidget form;
    QLineEdit box{&form};
};

TEST_F(ATextBoxOfOneLine, TurnsThePastedLineEndsIntoBlanks) {
    Paste("one\r\ntwo\nthree\r\n\r\nfour");
    EXPECT_EQ(box.text(), QStringLiteral("one two three four"));
}

TEST_F(ATextBoxOfOneLine, HasNoBlankForALineEndAtEitherEnd) {
    Paste("\r\nAnn\r\n");
    EXPECT_EQ(box.text(), QStringLiteral("Ann"));
}

TEST_F(ATextBoxOfOneLine, PutsTheCursorBehindWhatWasPasted) {
    box.setText(QStringLiteral("xy"));
    box.setCursorPosition(1);
    Paste("a\r\nb");
    EXPECT_EQ(box.text(), QStringLiteral("xa by"));
    EXPECT_EQ(box.cursorPosition(), 4);
}

TEST_F(ATextBoxOfOneLine, KeepsEveryOtherCharacter) {
    const QString text = QStringLiteral("  a, \"b\" & c\t.  ");
    Paste(text.toLatin1().constData());
    EXPECT_EQ(box.text(), text);
    QTest::keyClicks(&box, QStringLiteral("1 "));
    EXPECT_EQ(box.text(), text + QStringLiteral("1 "));
}

TEST_F(ATextBoxOfOneLine, LeavesABoxAloneThatChecksItsText) {
    NumberBox number(&form);
    const QValidator* before = number.validator();
    KeepTextBoxesToOneLine(form);
    EXPECT_EQ(number.validator(), before);
}

}  // namespace

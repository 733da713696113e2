// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/widgets/NotesControls.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGridLayout>
#include <QPlainTextEdit>

#include "platform/widgets/Readable.h"
#include "tests/support/form_test.h"

namespace {

TEST(ReadableText, IsAllOf500Characters) {
    const QString readable(500, QLatin1Char('x'));
    EXPECT_EQ(Readable(readable), readable);
    EXPECT_EQ(Readable(readable + QLatin1Char('y')), readable + QChar(0x2026));
    EXPECT_EQ(Readable({}), QString());
}

TEST(PlainTips, ShowMarkupAsItStands) {
    EXPECT_EQ(PlainTip(QStringLiteral("Lotto & more\nsecond line")),
              QStringLiteral("Lotto & more\nsecond line"));
    EXPECT_EQ(PlainTip(QStringLiteral("<img src='x'/>")),
              QStringLiteral("<p style=\"white-space: pre\">&lt;img src='x'/&gt;</p>"));
}

TEST(Note, IsShownAndGivenBackWithItsLineEndsAndHardBlanks) {
    QPlainTextEdit box;
    ShowNote(box, "one\xA0two\r\n\r\nthree");
    EXPECT_FALSE(box.isReadOnly());
    EXPECT_EQ(box.toolTip(), QString());
    EXPECT_EQ(NoteIn(box), "one\xA0two\r\n\r\nthree");
}

TEST(Note, OfFiveMillionCommasIsShownCutAndKeptWhole) {
    QPlainTextEdit box;
    const std::string note = "first\r\n" + std::string(5'000'000, ',') + "\r\nlast";
    ShowNote(box, note);
    EXPECT_LT(box.toPlainText().size(), 600);
    EXPECT_TRUE(box.toPlainText().endsWith(QStringLiteral("last")));
    EXPECT_TRUE(box.isReadOnly());
    EXPECT_NE(box.toolTip(), QString());
    EXPECT_EQ(NoteIn(box), note);
}

TEST(Note, ThatFollowsACutOneCanBeTypedInAgain) {
    QPlainTextEdit box;
    ShowNote(box, std::string(20'001, ','));
    ShowNote(box, std::string(20'000, '.'));
    EXPECT_FALSE(box.isReadOnly());
    EXPECT_EQ(box.toolTip(), QString());
    box.setPlainText(QStringLiteral("new"));
    EXPECT_EQ(NoteIn(box), "new");
}

TEST(ChecklistItems, OfMegabytesAreShownCutAndKeptWhole) {
    QWidget window;
    QGridLayout layout(&window);
    Checklist checklist(&window, layout, 0);
    Checklist::Items items;
    items.front().caption = std::string(5'000'000, 'x');
    checklist.Show(items);
    EXPECT_LT(Find<QCheckBox>(window, "Check1(0)")->text().size(), 600);
    EXPECT_EQ(checklist.Shown().front().caption, items.front().caption);
}

}  // namespace

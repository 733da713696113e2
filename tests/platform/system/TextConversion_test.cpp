// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/TextConversion.h"

#include <gtest/gtest.h>

TEST(Text, ComesBackWhateverItsBytes) {
    std::string all;
    for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
    EXPECT_EQ(ToQString(all).size(), 256);
    EXPECT_EQ(FromQString(ToQString(all)), all);
}

TEST(Text, HasTheCharactersOfWindows1252) {
    EXPECT_EQ(ToQString("\x80 \x8A \x9F \xE9"), QStringLiteral(u"\u20AC \u0160 \u0178 \u00E9"));
    EXPECT_EQ(FromQString(QStringLiteral(u"\u201EZ\u00FCrich\u201C \u2013 5 \u20AC")),
              "\x84Z\xFCrich\x93 \x96 5 \x80");
}

TEST(Text, GivesTheOpenBytesTheControlCharactersOfTheirNumber) {
    EXPECT_EQ(ToQString("\x81\x8D\x8F\x90\x9D"), QStringLiteral(u"\u0081\u008D\u008F\u0090\u009D"));
}

TEST(Text, ShowsUnknownCharactersAsQuestionMarks) {
    EXPECT_EQ(FromQString(QStringLiteral(u"\u5F69 \u03B1 \u0080")), "? ? ?");
    EXPECT_EQ(FromQString(QStringLiteral(u"\U0001F340!")), "?!");
    EXPECT_EQ(FromQString(QString(QChar(0xD800)) + QLatin1Char('x')), "?x");
}

TEST(Text, PutsAnAccentAndItsLetterTogether) {
    EXPECT_EQ(FromQString(QStringLiteral(u"Cafe\u0301")), "Caf\xE9");
}

TEST(Text, KeepsLineEndsAsTheyAre) {
    EXPECT_EQ(FromQString(QStringLiteral("a\nb\r\nc")), "a\nb\r\nc");
    EXPECT_EQ(ToQString("a\r\nb"), QStringLiteral("a\r\nb"));
}

TEST(Text, MayBeEmpty) {
    EXPECT_EQ(ToQString(""), QString());
    EXPECT_EQ(FromQString(QString()), "");
}

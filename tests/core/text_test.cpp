// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/text.h"

#include <gtest/gtest.h>

#include <limits>

TEST(LeadingNumber, TakesTheDigitsAndStopsAtTheFirstOtherCharacter) {
    EXPECT_EQ(LeadingNumber("2 Odd/Even filter"), 2);
    EXPECT_EQ(LeadingNumber("2"), 2);
    EXPECT_EQ(LeadingNumber("12,5"), 12);
    EXPECT_EQ(LeadingNumber("49x7"), 49);
}

TEST(LeadingNumber, PassesBlanksBeforeTheNumber) { EXPECT_EQ(LeadingNumber("   7"), 7); }

TEST(LeadingNumber, ReadsASign) {
    EXPECT_EQ(LeadingNumber("-3"), -3);
    EXPECT_EQ(LeadingNumber("+3"), 3);
    EXPECT_EQ(LeadingNumber("--3"), 0);
}

TEST(LeadingNumber, ReadsADecimalPoint) {
    EXPECT_EQ(LeadingNumber("2.75 mm"), 2.75);
    EXPECT_EQ(LeadingNumber(".5"), 0.5);
    EXPECT_EQ(LeadingNumber("5."), 5);
    EXPECT_EQ(LeadingNumber("1.2.3"), 1.2);
}

TEST(LeadingNumber, IsZeroWhereNothingWasRead) {
    for (const char* text : {"", "   ", "x", "-", ".", "abc 5", "&H10", "e5", "inf", "nan"}) {
        EXPECT_EQ(LeadingNumber(text), 0) << text;
    }
}

TEST(LeadingNumber, KnowsNoExponent) { EXPECT_EQ(LeadingNumber("1e5"), 1); }

TEST(LeadingNumber, StaysANumberForTextsOfAnyLength) {
    EXPECT_EQ(LeadingNumber(std::string(400, '9')), std::numeric_limits<double>::max());
    EXPECT_EQ(LeadingNumber("0." + std::string(400, '0') + "1"), 0);
}

TEST(LeadingWhole, RoundsHalfToEven) {
    EXPECT_EQ(LeadingWhole("2.5"), 2);
    EXPECT_EQ(LeadingWhole("3.5"), 4);
    EXPECT_EQ(LeadingWhole("-0.5"), 0);
    EXPECT_EQ(LeadingWhole("2.51"), 3);
}

TEST(LeadingWhole, IsHeldWithinInt) {
    EXPECT_EQ(LeadingWhole("99999999999999999999999"), std::numeric_limits<int>::max());
    EXPECT_EQ(LeadingWhole("-99999999999999999999999"), std::numeric_limits<int>::min());
}

TEST(LeadingWhole, ReadsPlainDigitsAsAnyOtherNumber) {
    for (const char* text : {"0", "7", "007", "-0", "-12", "2147483647", "-2147483648"}) {
        EXPECT_EQ(LeadingWhole(text), LeadingWhole(std::string(text) + " ")) << text;
    }
    EXPECT_EQ(LeadingWhole("007"), 7);
    EXPECT_EQ(LeadingWhole("2147483648"), std::numeric_limits<int>::max());
    EXPECT_EQ(LeadingWhole(""), 0);
}

TEST(LeadingInt16, IsTheWholeNumberOrNothing) {
    EXPECT_EQ(LeadingInt16("12.5 x"), std::int16_t{12});
    EXPECT_EQ(LeadingInt16("x"), std::int16_t{0});
    EXPECT_EQ(LeadingInt16("32767"), std::int16_t{32767});
    EXPECT_EQ(LeadingInt16("-32768"), std::int16_t{-32768});
    EXPECT_EQ(LeadingInt16("32767.5"), std::nullopt);
    EXPECT_EQ(LeadingInt16("-32769"), std::nullopt);
}

TEST(RoundHalfToEven, GoesToTheNearestWholeNumberAndFromAHalfToTheEvenOne) {
    EXPECT_EQ(RoundHalfToEven(0.5), 0);
    EXPECT_EQ(RoundHalfToEven(1.5), 2);
    EXPECT_EQ(RoundHalfToEven(-1.5), -2);
    EXPECT_EQ(RoundHalfToEven(-2.5), -2);
    EXPECT_EQ(RoundHalfToEven(2.4), 2);
}

TEST(NumberText, HasABlankInThePlaceOfTheSign) {
    EXPECT_EQ(NumberText(5), " 5");
    EXPECT_EQ(NumberText(0), " 0");
    EXPECT_EQ(NumberText(-5), "-5");
}

TEST(PlainDigits, HasNoBlank) {
    EXPECT_EQ(PlainDigits(5), "5");
    EXPECT_EQ(PlainDigits(-5), "-5");
}

TEST(GroupedDigits, PutsACommaBeforeEveryThreeDigits) {
    EXPECT_EQ(GroupedDigits(1), "1");
    EXPECT_EQ(GroupedDigits(999), "999");
    EXPECT_EQ(GroupedDigits(1000), "1,000");
    EXPECT_EQ(GroupedDigits(12345678), "12,345,678");
    EXPECT_EQ(GroupedDigits(-123456), "-123,456");
}

TEST(GroupedDigits, IsEmptyForZero) { EXPECT_EQ(GroupedDigits(0), ""); }

TEST(FixedText, HasExactlyThePlacesAskedFor) {
    EXPECT_EQ(FixedText(0, 3), "0.000");
    EXPECT_EQ(FixedText(1.5, 2), "1.50");
    EXPECT_EQ(FixedText(10.0004, 3), "10.000");
    EXPECT_EQ(FixedText(3.6, 0), "4");
}

TEST(FixedText, RoundsHalvesAwayFromZero) {
    EXPECT_EQ(FixedText(0.125, 2), "0.13");
    EXPECT_EQ(FixedText(-0.125, 2), "-0.13");
    EXPECT_EQ(FixedText(1.005, 2), "1.01");
    EXPECT_EQ(FixedText(0.0005, 3), "0.001");
}

TEST(FixedText, ShowsNoSignBeforeZero) { EXPECT_EQ(FixedText(-0.001, 2), "0.00"); }

TEST(Trim, TakesBlanksFromBothEndsOnly) {
    EXPECT_EQ(Trim("  UK Lotto  "), "UK Lotto");
    EXPECT_EQ(Trim("   "), "");
    EXPECT_EQ(Trim("\ta "), "\ta");
}

TEST(Quoted, ShowsWhatStandsInAFile) { EXPECT_EQ(Quoted("abc"), "\"abc\""); }

TEST(Quoted, ShortensLongTextsAndHidesControlCharacters) {
    EXPECT_EQ(Quoted(std::string(41, 'a')), '"' + std::string(40, 'a') + "...\"");
    EXPECT_EQ(Quoted(std::string("a\0\r\x7F", 4)), "\"a???\"");
}

TEST(UpperCase, KnowsTheLettersOfWindows1252) {
    EXPECT_EQ(UpperCase("uk Lotto 6aus49"), "UK LOTTO 6AUS49");
    EXPECT_EQ(UpperCase("\xE0\xFE\x9A\x9C\x9E\xFF"), "\xC0\xDE\x8A\x8C\x8E\x9F");
    EXPECT_EQ(UpperCase("\xF7\xDF\xB5"), "\xF7\xDF\xB5");
}

TEST(LowerCase, KnowsTheLettersOfWindows1252) {
    EXPECT_EQ(LowerCase("MyLottery.TXT"), "mylottery.txt");
    EXPECT_EQ(LowerCase("\xC0\xDE\x8A\x8C\x8E\x9F"), "\xE0\xFE\x9A\x9C\x9E\xFF");
    EXPECT_EQ(LowerCase("\xD7\xDF"), "\xD7\xDF");
}

TEST(LowerCase, TakesBackEveryUpperCaseLetter) {
    for (int code = 0; code < 256; ++code) {
        const std::string lower = LowerCase(std::string(1, static_cast<char>(code)));
        const std::string upper = UpperCase(lower);
        EXPECT_EQ(LowerCase(upper), lower) << code;
    }
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/colour.h"

#include <gtest/gtest.h>

#include "tests/core/failures.h"

TEST(ColourFromText, ReadsHexadecimalDigitsBehindTheSign) {
    EXPECT_EQ(ColourFromText("&H800000", "here"), 0x800000U);
    EXPECT_EQ(ColourFromText("&H000080", "here"), 0x80U);
    EXPECT_EQ(ColourFromText("&hff", "here"), 0xFFU);
    EXPECT_EQ(ColourFromText(" &H0 ", "here"), 0U);
}

TEST(ColourFromText, KeepsTheHighBitOfASystemColour) {
    EXPECT_EQ(ColourFromText("&H8000000F", "here"), systemColourBit | 15U);
}

TEST(ColourFromText, TakesPlainDigitsAsANumber) { EXPECT_EQ(ColourFromText("160", "here"), 160U); }

TEST(ColourFromText, FailsForATextThatIsNoNumber) {
    for (const char* text :
         {"", "&H", "red", "&HXYZ", "&H12 34", "-1", "&H123456789", "4294967296"}) {
        EXPECT_THROW(ColourFromText(text, "here"), Failure) << text;
    }
}

TEST(ColourFromText, SaysWhereAndWhatStandsThere) {
    EXPECT_EQ(FailureOf([&] { ColourFromText("red", "quillon.ini, line 5"); }),
              "quillon.ini, line 5: expected a colour such as \"&H800000\", but \"red\" "
              "stands there.");
}

TEST(ColourText, GivesUpperCaseDigitsWithoutLeadingZeros) {
    EXPECT_EQ(ColourText(0), "&H0");
    EXPECT_EQ(ColourText(0xFF00), "&HFF00");
    EXPECT_EQ(ColourText(systemColourBit | 15U), "&H8000000F");
}

TEST(ColourText, IsReadBackAsTheSameColour) {
    for (const Colour colour : {0U, 1U, 160U, 0xC0FFFFU, 0xFFFFFFU, 0x8000000FU, 0xFFFFFFFFU}) {
        EXPECT_EQ(ColourFromText(ColourText(colour), "here"), colour);
    }
}

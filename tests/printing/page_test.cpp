// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/page.h"

#include <gtest/gtest.h>

#include "tests/support/plain_room.h"

namespace {

// Lines of 10 points are 4 mm high, and a letter is 2 mm wide.

TEST(Typesetter, TextsStandBehindEachOtherAndLinesBelowEachOther) {
    Typesetter setter(PlainRoom());
    setter.MoveTo(10, 50);
    setter.Print("Name: ");
    setter.Print("Anna");
    setter.EndLine();
    setter.Print("next");
    const Document document = std::move(setter).Take();
    ASSERT_EQ(document.sheets.size(), 1U);
    const auto& texts = document.sheets[0].texts;
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_DOUBLE_EQ(texts[0].across, 10);
    EXPECT_DOUBLE_EQ(texts[1].across, 22);
    EXPECT_DOUBLE_EQ(texts[1].down, 50);
    EXPECT_DOUBLE_EQ(texts[2].across, 0);
    EXPECT_DOUBLE_EQ(texts[2].down, 54);
}

TEST(Typesetter, ALookHoldsForTheTextsBehindIt) {
    Typesetter setter(PlainRoom());
    setter.SetLook({.points = 16, .bold = true, .underlined = true});
    setter.Print("title");
    setter.EndLine();
    setter.SetLook({.points = 12, .bold = false, .underlined = false});
    setter.Print("below");
    const auto texts = std::move(setter).Take().sheets.at(0).texts;
    EXPECT_EQ(texts[0].look, (TextLook{.points = 16, .bold = true, .underlined = true}));
    EXPECT_EQ(texts[1].look, (TextLook{.points = 12, .bold = false, .underlined = false}));
    EXPECT_DOUBLE_EQ(texts[1].down, 6.4);
}

TEST(Typesetter, ALineThatDoesNotFitWholeBeginsTheNextSheetInTheSameColumns) {
    Typesetter setter(PlainRoom(210, 57.9));
    setter.MoveTo(0, 50);
    for (const char* row : {"1", "2", "3"}) {
        setter.MoveAcross(30);
        setter.Print(row);
        setter.MoveAcross(60);
        setter.Print(row);
        setter.EndLine();
    }
    const Document document = std::move(setter).Take();
    ASSERT_EQ(document.sheets.size(), 2U);
    EXPECT_EQ(document.sheets[0].texts.size(), 2U);
    const auto& texts = document.sheets[1].texts;
    ASSERT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[0].text, "2");
    EXPECT_DOUBLE_EQ(texts[0].across, 30);
    EXPECT_DOUBLE_EQ(texts[1].across, 60);
    EXPECT_DOUBLE_EQ(texts[1].down, 0);
    EXPECT_DOUBLE_EQ(texts[2].down, 4);
}

TEST(Typesetter, ALineThatJustFitsStaysOnTheSheet) {
    Typesetter setter(PlainRoom(210, 54));
    setter.MoveTo(0, 50);
    setter.Print("last");
    EXPECT_EQ(std::move(setter).Take().sheets.size(), 1U);
}

TEST(Typesetter, ASheetLowerThanALineTakesOneLineEach) {
    Typesetter setter(PlainRoom(210, 1));
    for (const char* row : {"1", "2"}) {
        setter.Print(row);
        setter.EndLine();
    }
    const Document document = std::move(setter).Take();
    ASSERT_EQ(document.sheets.size(), 2U);
    EXPECT_EQ(document.sheets[1].texts.at(0).text, "2");
}

TEST(Typesetter, NothingSetIsNoSheet) {
    Typesetter setter(PlainRoom());
    setter.MoveTo(10, 1000);
    setter.Print("");
    setter.EndLine();
    EXPECT_TRUE(std::move(setter).Take().sheets.empty());
}

TEST(Corrected, PlacesAreScaledAndThenMovedAndMarksKeepTheirSize) {
    Document document;
    document.sheets.push_back(
        {.texts = {{.across = 100, .down = 200, .text = "7", .look = {}}},
         .rectangles = {{.across = 10, .down = 20, .width = 3, .height = 2}}});
    const Document corrected = Corrected(
        document, {.moveAcross = 1.5, .moveDown = -2, .scaleAcross = 101, .scaleDown = 99});
    const Sheet& sheet = corrected.sheets.at(0);
    EXPECT_DOUBLE_EQ(sheet.texts[0].across, 102.5);
    EXPECT_DOUBLE_EQ(sheet.texts[0].down, 196);
    EXPECT_DOUBLE_EQ(sheet.rectangles[0].across, 11.6);
    EXPECT_DOUBLE_EQ(sheet.rectangles[0].down, 17.8);
    EXPECT_DOUBLE_EQ(sheet.rectangles[0].width, 3);
    EXPECT_DOUBLE_EQ(sheet.rectangles[0].height, 2);
}

TEST(Corrected, WithoutACorrectionEveryFigureIsExact) {
    Document document;
    document.sheets.push_back(
        {.texts = {}, .rectangles = {{.across = 0.1, .down = 71.53, .width = 3, .height = 2}}});
    const Sheet sheet = Corrected(document, {}).sheets.at(0);
    EXPECT_EQ(sheet.rectangles[0].across, 0.1);
    EXPECT_EQ(sheet.rectangles[0].down, 71.53);
}

}  // namespace

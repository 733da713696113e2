// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/PrintTask.h"

#include <gtest/gtest.h>

#include "platform/system/PageDrawing.h"
#include "printing/grid_reports.h"
#include "tests/support/pdf_reading.h"

namespace {

constexpr double exact = 0.1;  // millimetres

PrintJob JobOf(std::function<void(Typesetter&)> set, const PrintOptions& options = {}) {
    return {.title = "Test", .options = options, .compose = [set](const SheetRoom& room) {
                Typesetter setter(room);
                set(setter);
                return std::move(setter).Take();
            }};
}

PrintJob RectanglesAt(const std::vector<FilledRectangle>& rectangles) {
    return {.title = "Test", .options = {}, .compose = [rectangles](const SheetRoom&) {
                return Document{{Sheet{.texts = {}, .rectangles = rectangles}}};
            }};
}

void SetWord(Typesetter& setter) {
    setter.MoveTo(10, 50);
    setter.Print("Word");
}

TEST(Pdf, ATextStandsWithTheTopLeftCornerOfItsLineAtItsPlace) {
    const auto sheets = ReadPdfWords(PdfOf(TaskOf(JobOf(SetWord)), {}));
    ASSERT_EQ(sheets.size(), 1U);
    const QRectF word = sheets[0].Word(QStringLiteral("Word"));
    EXPECT_NEAR(word.left(), 10, exact);
    EXPECT_NEAR(word.top(), 50, exact);
}

TEST(Pdf, PlacesAreExactInTheFarCornerToo) {
    const auto job = JobOf([](Typesetter& setter) {
        setter.SetLook({.points = 20, .bold = true, .underlined = false});
        setter.MoveTo(180, 285);
        setter.Print("Far");
    });
    const QRectF word = ReadPdfWords(PdfOf(TaskOf(job), {})).at(0).Word(QStringLiteral("Far"));
    EXPECT_NEAR(word.left(), 180, exact);
    EXPECT_NEAR(word.top(), 285, exact);
}

TEST(Pdf, WhatTheRoomSaysOfALineAndATextHoldsOnTheSheet) {
    double lineHeight = 0;
    double width = 0;
    const PrintJob job{.title = "Test", .options = {}, .compose = [&](const SheetRoom& room) {
                           const TextLook look{.points = 14, .bold = true, .underlined = false};
                           lineHeight = room.lineHeight(look);
                           width = room.textWidth("Phone: ", look);
                           Typesetter setter(room);
                           setter.SetLook(look);
                           setter.MoveTo(20, 30);
                           setter.Print("Phone: ");
                           setter.Print("Behind");
                           setter.EndLine();
                           setter.Print("Below");
                           return std::move(setter).Take();
                       }};
    const auto sheets = ReadPdfWords(PdfOf(TaskOf(job), {}));
    EXPECT_NEAR(sheets.at(0).Word(QStringLiteral("Behind")).left(), 20 + width, exact);
    EXPECT_NEAR(sheets.at(0).Word(QStringLiteral("Below")).top(), 30 + lineHeight, exact);
    EXPECT_NEAR(lineHeight, 14 * 1.15 * 25.4 / 72, 0.05);
}

TEST(Pdf, MarksAreFilledRectanglesAtTheirPlaces) {
    const auto job = RectanglesAt({{38.2, 71.53, 3, 2}, {199.99, 290.01, 1.5, 4.25}});
    const auto rectangles = ReadPdfRectangles(PdfOf(TaskOf(job), {}));
    ASSERT_EQ(rectangles.size(), 2U);
    EXPECT_NEAR(rectangles[0].left(), 38.2, exact);
    EXPECT_NEAR(rectangles[0].top(), 71.53, exact);
    EXPECT_NEAR(rectangles[0].width(), 3, exact);
    EXPECT_NEAR(rectangles[0].height(), 2, exact);
    EXPECT_NEAR(rectangles[1].left(), 199.99, exact);
    EXPECT_NEAR(rectangles[1].top(), 290.01, exact);
    EXPECT_NEAR(rectangles[1].width(), 1.5, exact);
    EXPECT_NEAR(rectangles[1].height(), 4.25, exact);
}

TEST(Pdf, ACorrectionAppliesOnlyWhereTheJobWantsIt) {
    const PageCorrection correction = {
        .moveAcross = 1, .moveDown = -2, .scaleAcross = 101, .scaleDown = 99};
    PrintJob job = RectanglesAt({{100, 200, 3, 2}});
    EXPECT_NEAR(ReadPdfRectangles(PdfOf(TaskOf(job), correction)).at(0).left(), 100, exact);
    job.corrected = true;
    const QRectF mark = ReadPdfRectangles(PdfOf(TaskOf(job), correction)).at(0);
    EXPECT_NEAR(mark.left(), 102, exact);
    EXPECT_NEAR(mark.top(), 196, exact);
    EXPECT_NEAR(mark.width(), 3, exact);
}

TEST(Pdf, TheSheetIsThePaperAskedForWithoutAnEdge) {
    const auto sizeOf = [](const PrintOptions& options) {
        return ReadPdfWords(PdfOf(TaskOf(JobOf(SetWord, options)), {})).at(0).size;
    };
    const auto expectSize = [](const QSizeF& size, double width, double height) {
        EXPECT_NEAR(size.width(), width, 0.2);
        EXPECT_NEAR(size.height(), height, 0.2);
    };
    expectSize(sizeOf({}), 210, 297);
    expectSize(sizeOf({.quality = {}, .orientation = {}, .paper = PaperSize::A3}), 297, 420);
    expectSize(sizeOf({.quality = {}, .orientation = {}, .paper = PaperSize::Letter}), 215.9,
               279.4);
    expectSize(
        sizeOf({.quality = {}, .orientation = Orientation::Landscape, .paper = PaperSize::Legal}),
        355.6, 215.9);
}

TEST(Pdf, RoomIsTheWholeSheetInItsOrientation) {
    QSizeF room;
    const PrintJob job{
        .title = "Test",
        .options = {.quality = {}, .orientation = Orientation::Landscape, .paper = PaperSize::A4},
        .compose = [&room](const SheetRoom& given) {
            room = {given.width, given.height};
            return Document{};
        }};
    PdfOf(TaskOf(job), {});
    EXPECT_NEAR(room.width(), 297, 0.2);
    EXPECT_NEAR(room.height(), 210, 0.2);
}

TEST(Pdf, TextsAreTextsInTheReportsFontAndAccentsAreKept) {
    const auto job = JobOf([](Typesetter& setter) {
        setter.Print(
            "\xA3"
            "5 Zo\xEB");
    });
    const QByteArray pdf = PdfOf(TaskOf(job), {});
    const PdfSheet sheet = ReadPdfWords(pdf).at(0);
    EXPECT_EQ(sheet.words.at(0).text, QStringLiteral("£5"));
    EXPECT_EQ(sheet.words.at(1).text, QStringLiteral("Zoë"));
    EXPECT_TRUE(ReadPdfFonts(pdf).contains("LiberationSans") || ReadPdfFonts(pdf).contains("Arial"))
        << "packages: fonts-liberation";
}

TEST(Pdf, ALongReportRunsOverSheetsInTheSameColumns) {
    ReportTable table = {{"Line", "Num1", "Num2"}};
    for (int line = 1; line <= 150; ++line) table.push_back({std::to_string(line), "8", "15"});
    const PrintJob job{.title = "Lines", .options = {}, .compose = [&](const SheetRoom& room) {
                           return LinesReport(table, "UK Lotto",
                                              {.lines = 150, .leftMargin = 10, .textSize = 0},
                                              room);
                       }};
    const auto sheets = ReadPdfWords(PdfOf(TaskOf(job), {}));
    ASSERT_EQ(sheets.size(), 3U);
    // Blanks stand before the numbers of column 0, so those of both sheets are compared.
    EXPECT_NEAR(sheets[0].Word(QStringLiteral("Num2")).left(), 34, exact);
    EXPECT_NEAR(sheets[1].words.at(0).box.top(), 0, exact);
    EXPECT_NEAR(sheets[1].words.at(0).box.left(), sheets[0].Word(QStringLiteral("01:")).left(),
                exact);
    for (const PdfWord& word : sheets[0].words) EXPECT_LT(word.box.bottom(), 297);
}

TEST(Options, PapersAreTheirOwnSizes) {
    EXPECT_EQ(PageSizeOf(PaperSize::A4), QPageSize::A4);
    EXPECT_EQ(PageSizeOf(PaperSize::A3), QPageSize::A3);
    EXPECT_EQ(PageSizeOf(PaperSize::Letter), QPageSize::Letter);
    EXPECT_EQ(PageSizeOf(PaperSize::Legal), QPageSize::Legal);
}

}  // namespace

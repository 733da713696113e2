// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/grid_reports.h"

#include <algorithm>

#include "tests/printing/printed_texts.h"
#include "tests/support/plain_room.h"

namespace {

// On a plain room a line of s points is 0.4 s mm high.

using Words = std::vector<std::string>;

ReportTable Lines(int count) {
    ReportTable table = {
        {"Line", "Num1", "Num2", "Num3", "Num4", "Num5", "Num6", "Num7", "Pball", "x"}};
    for (int line = 1; line <= count; ++line) {
        table.push_back({std::to_string(line), "3", "14", "", "0", "40", "41", "", "7", "x"});
    }
    table.push_back({"", "", ""});
    return table;
}

ReportChoice All() { return {.lines = 999, .leftMargin = 10, .textSize = 0}; }

Document Printed(const ReportTable& table, const ReportChoice& choice) {
    return LinesReport(table, "UK Lotto", choice, PlainRoom());
}

TEST(LinesReport, TitleAndSubtitleStandAtTheLeftMargin) {
    const Document document = Printed(Lines(1), All());
    const PlacedText title =
        OnlyText(document, "        Lottery Quillon                            ");
    ExpectAt(title, 10, 18);
    EXPECT_EQ(title.look, (TextLook{.points = 16, .bold = true, .underlined = true}));
    const PlacedText subtitle = OnlyText(document, "Lottery: UK Lotto");
    ExpectAt(subtitle, 10, 36);
    EXPECT_EQ(subtitle.look, (TextLook{.points = 12, .bold = false, .underlined = false}));
}

TEST(LinesReport, EachColumnStandsTwelveMillimetresFurther) {
    const Document document = Printed(Lines(1), All());
    ExpectAt(OnlyText(document, "Line:"), 10, 50);
    for (int column = 1; column <= 7; ++column) {
        ExpectAt(OnlyText(document, "Num" + std::to_string(column)), 10 + 12 * column, 50);
    }
    ExpectAt(OnlyText(document, "Pball"), 10 + 12 * 8, 50);
    ExpectAt(OnlyText(document, " 01:"), 10, 54);
    ExpectAt(OnlyText(document, " 03"), 22, 54);
    ExpectAt(OnlyText(document, " 07"), 10 + 12 * 8, 54);
    EXPECT_EQ(OnlyText(document, " 03").look,
              (TextLook{.points = 10, .bold = false, .underlined = false}));
}

TEST(LinesReport, ANumberHasTwoDigitsAndAnythingElseStandsAsItIs) {
    const Words row = {" 01:", " 03", " 14", "0", " 40", " 41", " 07"};
    const Words texts = Texts(Printed(Lines(1), All()));
    ASSERT_GE(texts.size(), row.size());
    EXPECT_EQ(Words(texts.end() - static_cast<long>(row.size()), texts.end()), row);
}

TEST(LinesReport, TheLimitCountsRowsBehindTheHeading) {
    const Words texts = Texts(Printed(Lines(20), {.lines = 5, .leftMargin = 10, .textSize = 0}));
    EXPECT_EQ(std::count(texts.begin(), texts.end(), " 05:"), 1);
    EXPECT_EQ(std::count(texts.begin(), texts.end(), " 06:"), 0);
}

TEST(LinesReport, ALimitAboveTheNumberOfLinesStopsAtTheFirstEmptyRow) {
    ReportTable table = Lines(3);
    table.push_back({"5", "1"});
    const Words texts = Texts(Printed(table, All()));
    EXPECT_EQ(texts.back(), " 07");
    EXPECT_EQ(std::count(texts.begin(), texts.end(), " 05:"), 0);
}

TEST(LinesReport, WithoutLinesTheHeadingRowIsPrintedAlone) {
    const Words texts = Texts(Printed(Lines(0), {.lines = 1, .leftMargin = 10, .textSize = 0}));
    EXPECT_EQ(texts.size(), 2U + 9U);
}

TEST(LinesReport, SmallTextShrinksAndMovesEverything) {
    const Document document = Printed(Lines(1), {.lines = 9, .leftMargin = 0, .textSize = -4});
    const PlacedText title =
        OnlyText(document, "        Lottery Quillon                            ");
    ExpectAt(title, 0, 14);
    EXPECT_EQ(title.look.points, 12);
    const PlacedText subtitle = OnlyText(document, "Lottery: UK Lotto");
    ExpectAt(subtitle, 0, 32);
    EXPECT_EQ(subtitle.look.points, 8);
    ExpectAt(OnlyText(document, "Num2"), 2 * 8, 46);
    EXPECT_EQ(OnlyText(document, "Num2").look.points, 6);
}

TEST(LinesReport, LargeTextMovesColumnsApart) {
    const Document document = Printed(Lines(1), {.lines = 9, .leftMargin = 12.5, .textSize = 4});
    ExpectAt(OnlyText(document, "Pball"), 12.5 + 16 * 8, 54);
    ExpectAt(OnlyText(document, " 07"), 12.5 + 16 * 8, 54 + 5.6);
}

TEST(LinesReport, RowsRunOnToTheNextSheetWithoutATitle) {
    // From 50 mm down 61 rows of 4 mm fit on 297 mm, the headings and 60 lines.
    const Document document = Printed(Lines(100), All());
    ASSERT_EQ(document.sheets.size(), 2U);
    const PlacedText& first = document.sheets[1].texts.at(0);
    EXPECT_EQ(first.text, " 61:");
    ExpectAt(first, 10, 0);
    ExpectAt(document.sheets[1].texts.at(1), 22, 0);
}

TEST(LinesReport, ATableThatIsFullEndsTheReport) {
    ReportTable table = Lines(3);
    table.pop_back();
    EXPECT_EQ(ReportLineCount(table), 3);
    EXPECT_EQ(Texts(Printed(table, All())).back(), " 07");
}

TEST(DrawsReport, DatesStandAtTheMarginAndNumbersTenMillimetresFurther) {
    const ReportTable table = {{"Date", "Num1", "Num2", "", "", "", "", "", "Bonus"},
                               {"07 Dec 24", "3", "44", "", "", "", "", "", "9"}};
    const Document document = DrawsReport(table, "UK Lotto", All(), PlainRoom());
    ExpectAt(OnlyText(document, "        Lottery Draw Results                        "), 10, 18);
    ExpectAt(OnlyText(document, "Lottery database: UK Lotto"), 10, 36);
    ExpectAt(OnlyText(document, "Date:"), 10, 50);
    ExpectAt(OnlyText(document, "Bonus"), 20 + 14 * 8, 50);
    // A date begins with a number and stays a text.
    ExpectAt(OnlyText(document, "07 Dec 24:"), 10, 54);
    ExpectAt(OnlyText(document, " 03"), 34, 54);
    ExpectAt(OnlyText(document, " 44"), 48, 54);
    ExpectAt(OnlyText(document, " 09"), 20 + 14 * 8, 54);
}

TEST(DrawsReport, TheTextSizeMovesColumns) {
    const ReportTable table = {{"Date", "Num1", "Num2"}, {"07 Dec 24", "3", "44"}};
    const Document document =
        DrawsReport(table, "UK Lotto", {.lines = 9, .leftMargin = 10, .textSize = 2}, PlainRoom());
    ExpectAt(OnlyText(document, " 44"), 20 + 16 * 2, 52 + 4.8);
}

TEST(StatsReport, OnlyTheNumberAtTheHeadOfACellIsPrinted) {
    const ReportTable table = {{"Num", "Last drawn", "Times Drawn", "Average"},
                               {"5", "12 draws ago", "30 / 257 draws", "8.57 draws"},
                               {"6", "Never", "0 / 257 draws", "Never"}};
    const Document document = StatsReport(table, "UK Lotto", All(), PlainRoom());
    ExpectAt(OnlyText(document, "     Lottery Number Statistics               "), 10, 18);
    ExpectAt(OnlyText(document, "Lottery: UK Lotto"), 10, 36);
    ExpectAt(OnlyText(document, "Num"), 10, 50);
    ExpectAt(OnlyText(document, "Average"), 10 + 28 * 3, 50);
    const Words row = {"  05", "  12", "  30", "  09", "  06", "Never", "0 / 257 draws", "Never"};
    const Words texts = Texts(document);
    EXPECT_EQ(Words(texts.end() - 8, texts.end()), row);
    ExpectAt(OnlyText(document, "  12"), 38, 54);
}

TEST(EntriesReport, HasNoSubtitleAndItsBodyStandsInItsPlace) {
    const ReportTable table = {
        {"Date", "Num1", "Num2", "Num3", "Num4", "Num5", "Num6", "Num7", "Pball", "Lottery", "Name",
         "File"},
        {"28-Dec-2024", "7", "14", "", "", "", "", "", "", "49s Game", "7 Dwarfs", "dbase1.txt"},
        {"28-Dec-2024", "8", "15", "", "", "", "", "", "", "UK Lotto", "Anna", "dbase2.txt"}};
    const Document document = EntriesReport(table, All(), PlainRoom());
    ExpectAt(OnlyText(document, "     Lottery Entries               "), 10, 18);
    ExpectAt(OnlyText(document, "Date:"), 10, 36);
    ExpectAt(OnlyText(document, "Lottery"), 20 + 12 * 9, 36);
    ExpectAt(OnlyText(document, "Name"), 25 + 14 * 10, 36);
    ExpectAt(OnlyText(document, "  07"), 32, 40);
    // A lottery's name is a cell of numbers, a player's is not.
    ExpectAt(OnlyText(document, "  49"), 20 + 12 * 9, 40);
    ExpectAt(OnlyText(document, "7 Dwarfs"), 25 + 14 * 10, 40);
    ExpectAt(OnlyText(document, "UK Lotto"), 20 + 12 * 9, 44);
    const Words texts = Texts(document);
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "dbase1.txt"), 0);
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "File"), 0);
}

TEST(EntriesReport, TheTextSizeMovesEverything) {
    const ReportTable table = {{"Date", "Num1", "", "", "", "", "", "", "", "", "Name"}};
    const Document document =
        EntriesReport(table, {.lines = 9, .leftMargin = 0, .textSize = 1}, PlainRoom());
    ExpectAt(OnlyText(document, "Date:"), 0, 37);
    EXPECT_EQ(OnlyText(document, "Date:").look.points, 11);
    ExpectAt(OnlyText(document, "Num1"), 10 + 13, 37);
    ExpectAt(OnlyText(document, "Name"), 15 + 15 * 10, 37);
}

TEST(NumberCell, RoundsTheNumberAtTheHead) {
    EXPECT_EQ(NumberCell("8.57 draws", " "), " 09");
    EXPECT_EQ(NumberCell("8.5", " "), " 09");
    EXPECT_EQ(NumberCell("123", "  "), "  123");
    EXPECT_EQ(NumberCell("0.4", " "), " 00");
    EXPECT_EQ(NumberCell("0", " "), "0");
    EXPECT_EQ(NumberCell("-4", " "), "-4");
    EXPECT_EQ(NumberCell("", " "), "");
}

}  // namespace

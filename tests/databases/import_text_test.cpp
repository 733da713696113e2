// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_text.h"

#include <gtest/gtest.h>

#include "databases/import_html.h"
#include "databases/import_table.h"

namespace {

using Cells = std::vector<std::string>;

std::string Decoded(std::string_view bytes) {
    const ImportText text = DecodeImport(bytes);
    EXPECT_EQ(text.refusal, "");
    return text.text;
}

std::string Refusal(std::string_view bytes) {
    const ImportText text = DecodeImport(bytes);
    EXPECT_EQ(text.text, "");
    return text.refusal;
}

TEST(ImportText, IsReadInEachEncoding) {
    using enum ImportEncoding;
    EXPECT_EQ(DecodeImport("1,2").encoding, Utf8);
    EXPECT_EQ(Decoded("\xEF\xBB\xBF"
                      "d\xC3\xA9"
                      "c 1"),
              "d\xE9"
              "c 1");
    EXPECT_EQ(DecodeImport("d\xE9"
                           "c 1")
                  .encoding,
              Windows1252);
    EXPECT_EQ(Decoded("d\xE9"
                      "c\xA0"
                      "1"),
              "d\xE9"
              "c 1");
    const std::string_view little(
        "\xFF\xFE"
        "1\0,\0\xE9\0",
        8);
    EXPECT_EQ(Decoded(little), "1,\xE9");
    EXPECT_EQ(DecodeImport(little).encoding, Utf16LittleEndian);
    const std::string_view big(
        "\xFE\xFF\0"
        "1\0,",
        6);
    EXPECT_EQ(Decoded(big), "1,");
    EXPECT_EQ(DecodeImport(big).encoding, Utf16BigEndian);
    EXPECT_EQ(Decoded(std::string_view("1\0,\0"
                                       "2\0\n\0",
                                       8)),
              "1,2\n");
    EXPECT_EQ(Decoded(std::string_view("\0"
                                       "1\0,\0"
                                       "2\0\n",
                                       8)),
              "1,2\n");
}

TEST(ImportText, TellsItsEncoding) {
    using enum ImportEncoding;
    EXPECT_EQ(EncodingInWords(Utf8), "UTF-8");
    EXPECT_EQ(EncodingInWords(Utf16BigEndian), "UTF-16");
    EXPECT_EQ(EncodingInWords(Windows1252), "Windows-1252");
}

TEST(ImportText, HasPlainSignsForThoseOfTheWorld) {
    EXPECT_EQ(Decoded("３，１７"), "3,17");
    EXPECT_EQ(Decoded("1 – 2\xC2\xA0"
                      "3−4"),
              "1 - 2 3-4");
    EXPECT_EQ(Decoded("2024年10月14日"), "2024/10/14 ");
    EXPECT_EQ(Decoded("Číslo żółty € “a”"),
              "C\xED"
              "slo z\xF3lty \x80 \"a\"");
    EXPECT_EQ(Decoded("日付 1"), " ? 1");
}

TEST(ImportText, HasLatinLettersForCyrillicAndGreekOnes) {
    EXPECT_EQ(Decoded("Тираж 7, Щёлк, объём"), "Tirazh 7, Shchyolk, obyom");
    EXPECT_EQ(Decoded("АЯ ая Її"), "AYa aya Yiyi");
    EXPECT_EQ(Decoded("Κλήρωση 7, Ψωμί ς"), "Klirosi 7, Psomi s");
    EXPECT_EQ(Decoded("ΑΩ αω ϋ"), "AO ao y");
}

TEST(ImportText, IsRefusedWithAWordOnWhatToDo) {
    EXPECT_EQ(Refusal(""), "There is nothing in it.");
    EXPECT_EQ(Refusal(" \r\n\t"), "There is nothing in it.");
    EXPECT_NE(Refusal("\x89PNG\r\n").find("This is a picture."), std::string::npos);
    EXPECT_NE(Refusal("\xFF\xD8\xFF\xE0").find("This is a picture."), std::string::npos);
    EXPECT_NE(Refusal("%PDF-1.7").find("This is a PDF."), std::string::npos);
    EXPECT_NE(Refusal("PK\x03\x04 xl/workbook.xml").find("save it as CSV"), std::string::npos);
    EXPECT_NE(Refusal("PK\x03\x04mimetypeapplication/vnd.oasis.opendocument.spreadsheet")
                  .find("save it as CSV"),
              std::string::npos);
    EXPECT_NE(Refusal("PK\x03\x04 word/document.xml").find("word processor"), std::string::npos);
    EXPECT_NE(Refusal("PK\x03\x04 draws.csv").find("Unpack it"), std::string::npos);
    EXPECT_NE(Refusal("\xD0\xCF\x11\xE0\xA1\xB1").find("save it as CSV"), std::string::npos);
    EXPECT_NE(Refusal("{\\rtf1 a}").find("word processor"), std::string::npos);
    EXPECT_NE(Refusal(std::string_view("ab\0\x01"
                                       "cd",
                                       6))
                  .find("no text"),
              std::string::npos);
    EXPECT_NE(Refusal("\x93\xFA\x95t,\x96{\x90\x94\x8E\x9A,\x83{\x81[\x83i\x83X").find("Shift-JIS"),
              std::string::npos);
    EXPECT_EQ(Refusal(std::string(largestImport + 1, '1')), TooLargeToImport());
    EXPECT_NE(TooLargeToImport().find("16 MB"), std::string::npos);
}

TEST(ImportText, InWindows1252IsNotTakenForJapanese) {
    EXPECT_EQ(DecodeImport("\x93"
                           "Gl\xFC"
                           "ck\x94 \x96 \x80 5")
                  .refusal,
              "");
    EXPECT_EQ(DecodeImport("f\xE9vrier, ao\xFBt, d\xE9"
                           "cembre, M\xE4rz")
                  .refusal,
              "");
}

std::vector<Cells> RowsOf(std::string_view text, ImportSeparator separator) {
    const ImportTable table(text, separator);
    std::vector<Cells> rows;
    for (std::size_t row = 0; row < table.Rows(); ++row) {
        rows.emplace_back();
        for (std::size_t column = 0; column < table.Cells(row); ++column) {
            rows.back().emplace_back(table.Cell(row, column));
        }
    }
    return rows;
}

TEST(ImportTable, FallsIntoRowsAndCells) {
    using enum ImportSeparator;
    EXPECT_EQ(RowsOf("a, b ,c\r\n\r\nd,,e", Comma),
              (std::vector<Cells>{{"a", "b", "c"}, {"d", "", "e"}}));
    EXPECT_EQ(RowsOf("a;b\rc;d\n", Semicolon), (std::vector<Cells>{{"a", "b"}, {"c", "d"}}));
    EXPECT_EQ(RowsOf("a\t\tb", Tab), (std::vector<Cells>{{"a", "", "b"}}));
    EXPECT_EQ(RowsOf("|a|b|", Bar), (std::vector<Cells>{{"", "a", "b", ""}}));
    EXPECT_EQ(RowsOf("  a b\t c ", Blanks), (std::vector<Cells>{{"a", "b", "c"}}));
    EXPECT_EQ(RowsOf("a b  c\td e  ", WideBlanks), (std::vector<Cells>{{"a b", "c", "d e"}}));
    EXPECT_EQ(RowsOf("\n\n", Comma), std::vector<Cells>{});
}

TEST(ImportTable, SaysWhetherTheTextGoesOnBehindItsLastRow) {
    std::string text;
    for (std::size_t row = 0; row < ImportTable::mostRows; ++row) text += "1\n";
    EXPECT_FALSE(ImportTable(text + " \n\n", ImportSeparator::Comma).IsCut());
    const ImportTable cut(text + "2\n", ImportSeparator::Comma);
    EXPECT_TRUE(cut.IsCut());
    EXPECT_EQ(cut.Rows(), ImportTable::mostRows);
}

TEST(ImportTable, TakesQuotesOff) {
    using enum ImportSeparator;
    EXPECT_EQ(RowsOf("\"a,b\",c", Comma), (std::vector<Cells>{{"a,b", "c"}}));
    EXPECT_EQ(RowsOf("\"a \"\"b\"\"\" ,c", Comma), (std::vector<Cells>{{"a \"b\"", "c"}}));
    EXPECT_EQ(RowsOf("\"a\nb\",c\nd", Comma), (std::vector<Cells>{{"a\nb", "c"}, {"d"}}));
    EXPECT_EQ(RowsOf("=\"03\",'04'", Comma), (std::vector<Cells>{{"03", "04"}}));
    EXPECT_EQ(RowsOf("\"\",\" x \"", Comma), (std::vector<Cells>{{"", "x"}}));
}

TEST(ImportTable, KeepsAQuoteThatNothingCloses) {
    EXPECT_EQ(RowsOf("\"a,b\nc,d", ImportSeparator::Comma),
              (std::vector<Cells>{{"\"a", "b"}, {"c", "d"}}));
    const std::string many(200000, '"');
    EXPECT_EQ(ImportTable(many + ",a", ImportSeparator::Comma).Rows(), 1U);
    std::string open;
    for (int i = 0; i < 50000; ++i) open += "\"a,";
    EXPECT_EQ(ImportTable(open, ImportSeparator::Comma).Rows(), 1U);
}

TEST(ImportTable, CountsLines) {
    const ImportTable table("a\n\n\"b\nc\"\nd", ImportSeparator::Comma);
    ASSERT_EQ(table.Rows(), 3U);
    EXPECT_EQ(table.Line(0), 1);
    EXPECT_EQ(table.Line(1), 3);
    EXPECT_EQ(table.Line(2), 5);
    EXPECT_EQ(table.Cell(0, 7), "");
}

TEST(ImportTable, ShowsARowInAShortText) {
    const ImportTable table("a,b\n" + std::string(100, 'x') + ",y", ImportSeparator::Comma);
    EXPECT_EQ(table.RowText(0), "a, b");
    EXPECT_EQ(table.RowText(1), std::string(57, 'x') + "...");
}

TEST(ImportTable, HasLimits) {
    const std::string wide(1000, ',');
    EXPECT_EQ(ImportTable("a" + wide, ImportSeparator::Comma).Cells(0), ImportTable::mostColumns);
    std::string tall;
    for (std::size_t i = 0; i < ImportTable::mostRows + 5; ++i) tall += "a\n";
    EXPECT_EQ(ImportTable(tall, ImportSeparator::Comma).Rows(), ImportTable::mostRows);
}

TEST(ImportHtml, GivesTheCellsOfTables) {
    EXPECT_TRUE(IsHtml("<!DOCTYPE html><p>"));
    EXPECT_TRUE(IsHtml("<meta><TABLE border=1>"));
    EXPECT_FALSE(IsHtml("1 < 2, 3 > 2"));
    const std::string page =
        "<html><table><tr><th colspan=2>Date</th><th>N</th></tr>"
        "<tr><td>5&nbsp;Oct</td><td><b>1</b><b>2</b></td><td>&pound;3\n&#52;<!-- <td> --></td></tr>"
        "</table><script>\"<tr><td>x</td></tr>\"</script>";
    EXPECT_EQ(RowsOf(page, ImportSeparator::HtmlCells), (std::vector<Cells>{{"Date", "", "N"},
                                                                            {"5 Oct", "1  2",
                                                                             "\xA3"
                                                                             "3 4"}}));
}

TEST(ImportHtml, GivesTheLinesOfPreformattedText) {
    const std::string page = "<html>\n<body><p>one\ntwo</p><pre>3,4\n5,6<hr>7</pre>";
    const ImportTable table(page, ImportSeparator::Comma);
    ASSERT_EQ(table.Rows(), 4U);
    EXPECT_EQ(table.RowText(0), "one two");
    EXPECT_EQ(table.RowText(1), "3, 4");
    EXPECT_EQ(table.Line(1), 3);
    EXPECT_EQ(table.RowText(2), "5, 6");
    EXPECT_EQ(table.Line(2), 4);
    EXPECT_EQ(table.RowText(3), "7");
    EXPECT_EQ(table.Line(3), 4);
}

TEST(ImportHtml, TellsThePagesTitle) {
    EXPECT_EQ(TitleOfHtml("<html><head><title> UK &amp; Lotto\n</title>"), "UK & Lotto");
    EXPECT_EQ(TitleOfHtml("<p>no"), "");
}

TEST(ImportHtml, IsReadHoweverItIsCut) {
    const std::string page =
        "<html><table><tr><td>1</td><td>&amp;</td></tr><!-- x --><script>a</script>";
    for (std::size_t end = 0; end <= page.size(); ++end) {
        LinesOfHtml(page.substr(0, end));
        CellsOfHtml(page.substr(0, end));
    }
    EXPECT_EQ(CellsOfHtml("<table><tr><td>a<td>b<tr><td>c"),
              "a\x1F"
              "b\nc\n");
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/field_reader.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <vector>

#include "core/text.h"
#include "tests/core/failures.h"

namespace {

using Quotes = FieldReader::Quotes;

std::vector<std::string> Fields(std::string_view content, Quotes quotes = Quotes::Kept) {
    FieldReader reader(content, "test.txt", quotes);
    std::vector<std::string> fields;
    while (!reader.AtEnd()) fields.emplace_back(reader.ReadField("a field"));
    return fields;
}

using Texts = std::vector<std::string>;

std::string Repeated(const std::string& text, int times) {
    std::string result;
    for (int time = 0; time < times; ++time) result += text;
    return result;
}

// The first field of a text where quotes are removed, looked for character by character; the text
// is left without it and its comma or line feed.
std::string TakeQuotedField(std::string& text) {
    text.erase(0, text.find_first_not_of(' '));
    for (std::size_t i = 1; text.starts_with('"') && i < text.size() && text[i] != '\n'; ++i) {
        const std::size_t next = std::min(text.find_first_not_of(' ', i + 1), text.size());
        if (text[i] != '"' || (next < text.size() && text[next] != ',' && text[next] != '\n')) {
            continue;
        }
        const std::string field = text.substr(1, i - 1);
        text.erase(0, next + 1);
        return field;
    }
    const std::size_t end = std::min(text.find_first_of(",\n"), text.size());
    const std::string field = text.substr(0, end);
    text.erase(0, end + 1);
    return field.substr(0, field.find_last_not_of(' ') + 1);
}

}  // namespace

TEST(FieldReader, EndsAFieldAtACommaOrALineEnd) {
    EXPECT_EQ(Fields("a,b\r\nc,d\r\n"), (Texts{"a", "b", "c", "d"}));
}

TEST(FieldReader, TakesCarriageReturnLineFeedAndBothAsLineEnds) {
    EXPECT_EQ(Fields("a\nb\rc\r\nd"), (Texts{"a", "b", "c", "d"}));
    EXPECT_EQ(Fields("a\n\rb"), (Texts{"a", "", "b"}));
}

TEST(FieldReader, TakesNoAccountOfBlanksAroundAField) {
    EXPECT_EQ(Fields("  a b  ,   c\r\n  d  "), (Texts{"a b", "c", "d"}));
    EXPECT_EQ(Fields("   ,  \r\nx"), (Texts{"", "", "x"}));
}

TEST(FieldReader, ReadsEmptyFields) { EXPECT_EQ(Fields("a,,b\r\n"), (Texts{"a", "", "b"})); }

TEST(FieldReader, ReadsAnEmptyLineAsAnEmptyField) {
    EXPECT_EQ(Fields("a\r\n\r\n"), (Texts{"a", ""}));
}

TEST(FieldReader, FindsOneMoreEmptyFieldBehindACommaAtTheVeryEnd) {
    EXPECT_EQ(Fields("a,"), (Texts{"a", ""}));
    EXPECT_EQ(Fields(","), (Texts{"", ""}));
    EXPECT_EQ(Fields("a,\r\n"), (Texts{"a", ""}));
}

TEST(FieldReader, IsAtTheEndOnlyWhenNothingAtAllIsLeft) {
    EXPECT_TRUE(FieldReader("", "test.txt").AtEnd());
    EXPECT_FALSE(FieldReader(" ", "test.txt").AtEnd());
    EXPECT_FALSE(FieldReader("\r\n", "test.txt").AtEnd());
}

TEST(FieldReader, KeepsQuotesWhereTheFileQuotesNothing) {
    EXPECT_EQ(Fields("\"a,b\""), (Texts{"\"a", "b\""}));
}

TEST(FieldReader, RemovesQuotesAroundAField) {
    EXPECT_EQ(Fields("\"a\",\"\", \"b\" \r\nc", Quotes::Removed), (Texts{"a", "", "b", "c"}));
}

TEST(FieldReader, KeepsCommasAndBlanksBetweenQuotes) {
    EXPECT_EQ(Fields("\" 1, High Street \",x", Quotes::Removed), (Texts{" 1, High Street ", "x"}));
}

TEST(FieldReader, KeepsAQuoteThatItsLineDoesNotClose) {
    EXPECT_EQ(Fields("\"a\r\nb\"", Quotes::Removed), (Texts{"\"a", "b\""}));
    EXPECT_EQ(Fields("\"", Quotes::Removed), (Texts{"\""}));
}

TEST(FieldReader, KeepsQuotesWithinAField) {
    EXPECT_EQ(Fields("\"Joe \"Boss\" Smith\",5\"", Quotes::Removed),
              (Texts{"Joe \"Boss\" Smith", "5\""}));
}

// A search for the end of the field behind each quote, or to the end of the line for each field,
// would take minutes here.
TEST(FieldReader, FindsTheQuoteThatClosesBehindVeryManyThatDoNot) {
    const std::string quotes = Repeated("x\"", 200000);
    const Texts expected = {quotes.substr(0, quotes.size() - 1), "5"};
    EXPECT_TRUE(Fields("\"" + quotes + ",5", Quotes::Removed) == expected);
}

TEST(FieldReader, KeepsVeryManyQuotesThatTheirLineDoesNotClose) {
    Texts expected(200000, "\"x");
    expected.insert(expected.end(), {"y", "z"});
    EXPECT_TRUE(Fields(Repeated("\"x,", 200000) + "y\n\"z\"", Quotes::Removed) == expected);
}

TEST(FieldReader, ReadsQuotesWhereverTheyStand) {
    std::mt19937 random(1);
    for (int time = 0; time < 20000; ++time) {
        std::string text(1 + random() % 12, ' ');
        for (char& character : text) character = std::string_view("\"\"\", a\n")[random() % 7];
        const Texts fields = Fields(text, Quotes::Removed);
        std::string left = text;
        for (const std::string& field : fields) ASSERT_EQ(field, TakeQuotedField(left)) << text;
        ASSERT_EQ(left, "") << text;
    }
}

TEST(FieldReader, ReadsALineWithItsCommasAndBlanks) {
    FieldReader reader(" Lotto, the old one \r\nhttp://x.example\nend", "test.txt");
    EXPECT_EQ(reader.ReadLine("a line"), " Lotto, the old one ");
    EXPECT_EQ(reader.ReadLine("a line"), "http://x.example");
    EXPECT_EQ(reader.ReadLine("a line"), "end");
    EXPECT_TRUE(reader.AtEnd());
}

TEST(FieldReader, ReadsTheRestOfALineBehindAField) {
    FieldReader reader("a,b,c\r\nd", "test.txt");
    reader.ReadField("a field");
    EXPECT_EQ(reader.ReadLine("a line"), "b,c");
    EXPECT_EQ(reader.ReadField("a field"), "d");
}

TEST(FieldReader, ReadsAnEmptyLineBehindACommaAtTheVeryEnd) {
    FieldReader reader("a,", "test.txt");
    reader.ReadField("a field");
    EXPECT_EQ(reader.ReadLine("a line"), "");
    EXPECT_TRUE(reader.AtEnd());
}

TEST(FieldReader, ReadsAShortNumberRightUpToItsEnd) {
    FieldReader reader("7,2000\r\n0\n49,", "a.txt");
    EXPECT_EQ(reader.ReadShortNumber(), 7);
    EXPECT_EQ(reader.ReadShortNumber(), 2000);
    EXPECT_EQ(reader.Line(), 1);
    EXPECT_EQ(reader.ReadShortNumber(), 0);
    EXPECT_EQ(reader.Line(), 2);
    EXPECT_EQ(reader.ReadShortNumber(), 49);
    EXPECT_EQ(reader.ReadShortNumber(), std::nullopt);
    EXPECT_EQ(reader.ReadField("more"), "");
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_EQ(reader.Line(), 3);
}

TEST(FieldReader, LeavesWhatIsNoShortNumberToBeRead) {
    for (const char* const field : {"12345", " 7", "7 ", "-7", "7.5", "7x", "", "\"7\"", "7"}) {
        const std::string content = field == std::string("7") ? "7" : field + std::string(",8\r\n");
        FieldReader reader(content, "a.txt");
        EXPECT_EQ(reader.ReadShortNumber(), std::nullopt) << content;
        EXPECT_EQ(reader.ReadField("it"), Trim(field)) << content;
    }
}

TEST(FieldReader, ReadsAPlainRecordAtOnce) {
    std::array<std::int16_t, 3> numbers{};
    FieldReader reader(" any, 1\r\n01 Jun 05,1,,9999\r\n,00,2,3\n\"x,4,5,6\r\n", "a.txt");
    reader.ReadLine("a line");
    EXPECT_TRUE(reader.ReadPlainRecord(numbers));
    EXPECT_EQ(numbers, (std::array<std::int16_t, 3>{1, 0, 9999}));
    EXPECT_EQ(reader.Line(), 2);
    EXPECT_TRUE(reader.ReadPlainRecord(numbers));
    EXPECT_EQ(numbers, (std::array<std::int16_t, 3>{0, 2, 3}));
    EXPECT_EQ(reader.Line(), 3);
    EXPECT_TRUE(reader.ReadPlainRecord(numbers));
    EXPECT_EQ(numbers, (std::array<std::int16_t, 3>{4, 5, 6}));
    EXPECT_EQ(reader.Line(), 4);
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_FALSE(reader.ReadPlainRecord(numbers));
}

TEST(FieldReader, LeavesWhatIsNoPlainRecordToBeRead) {
    for (const char* const content :
         {"d,1,2", "d,1,2,", "d,1,2,3,4\r\n", "d,1,2\r\n3\r\n", "\r\n1,2,3\r\n", "d,1,2,3",
          "d,1,2,3\r", "d,1,2,3\rx", "d,12345,2,3\r\n", "d,1, 2,3\r\n", "d,1,2,3 \r\n",
          "d,-1,2,3\r\n", "d,1,2.5,3\r\n", "d,1,\"2\",3\r\n", "d,1,2,x\r\n", "d", "", ","}) {
        std::array<std::int16_t, 3> numbers{7, 8, 9};
        FieldReader reader(content, "a.txt");
        EXPECT_FALSE(reader.ReadPlainRecord(numbers)) << content;
        EXPECT_EQ(numbers, (std::array<std::int16_t, 3>{7, 8, 9})) << content;
        EXPECT_EQ(reader.Rest(), content);
    }
}

TEST(FieldReader, LeavesRecordsOfWhichQuotesAreRemovedToBeRead) {
    std::array<std::int16_t, 1> numbers{};
    FieldReader reader("d,1\r\n", "a.txt", Quotes::Removed);
    EXPECT_FALSE(reader.ReadPlainRecord(numbers));
    EXPECT_EQ(reader.ReadField("a field"), "d");
}

TEST(FieldReader, LeavesRecordsOfTooManyNumbersToBeRead) {
    std::array<std::int16_t, 9> numbers{};
    FieldReader reader("d,1,2,3,4,5,6,7,8,9\r\n", "a.txt");
    EXPECT_FALSE(reader.ReadPlainRecord(numbers));
}

TEST(FieldReader, LeavesTheEmptyFieldBehindTheLastCommaToBeRead) {
    std::array<std::int16_t, 0> none{};
    FieldReader reader("a,", "a.txt");
    reader.ReadField("a field");
    EXPECT_FALSE(reader.ReadPlainRecord(none));
    EXPECT_EQ(reader.ReadField("a field"), "");
    EXPECT_TRUE(reader.AtEnd());
}

TEST(FieldReader, PassesOverTheRestOfTheLineOfAField) {
    FieldReader reader("a,b,c\r\nd\r\ne,\"f", "test.txt", Quotes::Removed);
    EXPECT_EQ(reader.ReadField("a field"), "a");
    reader.PassRestOfLine();
    EXPECT_EQ(reader.ReadField("a field"), "d");
    reader.PassRestOfLine();
    EXPECT_EQ(reader.ReadField("a field"), "e");
    reader.PassRestOfLine();
    EXPECT_TRUE(reader.AtEnd());
    reader.PassRestOfLine();
    EXPECT_TRUE(reader.AtEnd());
}

TEST(FieldReader, PassesOverTheEmptyRestBehindACommaAtTheVeryEnd) {
    FieldReader reader("a,", "test.txt");
    reader.ReadField("a field");
    reader.PassRestOfLine();
    EXPECT_TRUE(reader.AtEnd());
}

TEST(FieldReader, PassesOverLineFeedsAtTheHeadOfLines) {
    FieldReader reader("\r\n\n\r\n\na\r\n\n\nb\nc\n\nd\r\n", "test.txt");
    std::vector<std::string> fields;
    std::vector<int> lines;
    for (reader.PassStrayLineFeeds(); !reader.AtEnd(); reader.PassStrayLineFeeds()) {
        fields.emplace_back(reader.ReadField("a field"));
        lines.push_back(reader.Line());
    }
    EXPECT_EQ(fields, (Texts{"", "a", "", "b", "c", "", "d"}));
    EXPECT_EQ(lines, (std::vector{1, 5, 7, 8, 9, 10, 11}));
}

TEST(FieldReader, GivesAllThatIsLeftAsItStands) {
    FieldReader reader("a\r\n b, c\r\n\r\n", "test.txt");
    reader.ReadField("a field");
    EXPECT_EQ(reader.Rest(), " b, c\r\n\r\n");
    EXPECT_TRUE(reader.AtEnd());
    EXPECT_EQ(reader.Rest(), "");
}

TEST(FieldReader, CountsTheLinesInWhichFieldsBegin) {
    FieldReader reader("a,b\r\nc\n\rd", "test.txt");
    EXPECT_EQ(reader.Line(), 1);
    const std::vector<int> lines = {1, 1, 2, 3, 4};
    for (const int line : lines) {
        reader.ReadField("a field");
        EXPECT_EQ(reader.Line(), line);
    }
}

TEST(FieldReader, SaysWhichFieldTheEndOfTheFileCutOff) {
    FieldReader reader("a,b\r\n", "dbase1.txt");
    reader.ReadField("x");
    reader.ReadField("x");
    const std::string expected =
        "dbase1.txt, line 2: expected the number in column 3 of a draw, but the file ends there.";
    EXPECT_EQ(FailureOf([&] { reader.ReadField("the number in column 3 of a draw"); }), expected);
    EXPECT_EQ(FailureOf([&] { reader.ReadLine("the number in column 3 of a draw"); }), expected);
}

TEST(FieldReader, SaysWhatStandsInPlaceOfWhatWasExpected) {
    FieldReader reader("a\r\nb", "dbase1.txt");
    reader.ReadField("x");
    reader.ReadField("x");
    EXPECT_STREQ(reader.Unexpected("a number", "b").what(),
                 "dbase1.txt, line 2: expected a number, but \"b\" stands there.");
}

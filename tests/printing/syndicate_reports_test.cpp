// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/syndicate_reports.h"

#include <algorithm>
#include <memory>

#include "core/syndicate.h"
#include "tests/core/regions.h"
#include "tests/printing/printed_texts.h"
#include "tests/support/plain_room.h"

namespace {

using Words = std::vector<std::string>;

constexpr const char* title = "        Lottery Quillon                        ";

ReportChoice All() { return {.lines = 999, .leftMargin = 10, .textSize = 0}; }

/// A syndicate of a manager and two members.
struct MembersReportTest : testing::Test {
    MembersReportTest() {
        Fill(0, {"Anna", "1 High St", "", "Leeds", "LS1", "0113", "a@b.uk", "Cash"});
        state->Members(0, 10) = "Lucky Seven";
        Fill(1, {"Bert", "", "", "", "", "", "", "Cheque"});
        Fill(2, {"Cleo", "", "", "", "", "", "", "Cash"});
    }

    void Fill(int row, const Words& cells) {
        int column = 0;
        for (const std::string& cell : cells) state->Members(row, column++) = cell;
    }

    std::unique_ptr<State> state = std::make_unique<State>();
};

TEST_F(MembersReportTest, TellsOfEachPersonInFiveLines) {
    const Words expected = {title,
                            "Members of the Lucky Seven syndicate",
                            "    Name: ",
                            "Anna  (Manager)",
                            "Address: ",
                            "1 High St, , Leeds, LS1",
                            "    Phone: ",
                            "0113",
                            "     Email: ",
                            "a@b.uk",
                            "   Pay by: ",
                            "Cash",
                            std::string(100, '-')};
    const Words texts =
        Texts(MembersReport(*state, {.lines = 0, .leftMargin = 10, .textSize = 0}, PlainRoom()));
    EXPECT_EQ(texts, expected);
}

TEST_F(MembersReportTest, NamesAreBoldAndTextsStandBehindThem) {
    const Document document =
        MembersReport(*state, {.lines = 0, .leftMargin = 10, .textSize = 0}, PlainRoom());
    ExpectAt(OnlyText(document, title), 10, 18);
    ExpectAt(OnlyText(document, "Members of the Lucky Seven syndicate"), 10, 36);
    ExpectAt(OnlyText(document, "    Name: "), 10, 50);
    EXPECT_TRUE(OnlyText(document, "    Name: ").look.bold);
    ExpectAt(OnlyText(document, "Anna  (Manager)"), 10 + 10 * 2, 50);
    EXPECT_FALSE(OnlyText(document, "Anna  (Manager)").look.bold);
    ExpectAt(OnlyText(document, "Address: "), 10, 54);
    ExpectAt(OnlyText(document, "   Pay by: "), 10, 66);
    ExpectAt(OnlyText(document, std::string(100, '-')), 10, 70);
}

TEST_F(MembersReportTest, EveryoneIsPrintedUntilAnEmptyName) {
    Fill(4, {"Nobody"});
    const Words texts = Texts(MembersReport(*state, All(), PlainRoom()));
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "    Name: "), 3);
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "Nobody"), 0);
}

TEST_F(MembersReportTest, TheLimitCountsMembersBehindTheManager) {
    EXPECT_EQ(MemberCount(*state), 2);
    const Words texts =
        Texts(MembersReport(*state, {.lines = 1, .leftMargin = 10, .textSize = 0}, PlainRoom()));
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "Bert"), 1);
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "Cleo"), 0);
}

TEST_F(MembersReportTest, AFullSyndicateIsPrintedToItsLastMember) {
    for (int row = 1; row <= 100; ++row) Fill(row, {"M" + std::to_string(row)});
    EXPECT_EQ(MemberCount(*state), 100);
    const Words texts = Texts(MembersReport(*state, All(), PlainRoom()));
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "M100"), 1);
}

PrintDay FirstOfJune() {
    return {.date = Date(std::chrono::year(2005), std::chrono::June, std::chrono::day(1)),
            .region = EnglishRegion(),
            .shown = "Wed 1 Jun 2005"};
}

ReportTable Payments() {
    return {{"Name", "Pay by", "Amount paid", "Paid up to date"},
            {"Anna", "(Manager)",
             "\xA3"
             "5.00",
             "31-May-2005"},
            {"Bert", "Cash",
             "\xA3"
             "6.00",
             "01-Jun-2005"},
            {"Cleo", "Cheque", "", ""}};
}

TEST(PaymentsReport, TheTitleStandsOnTwoLines) {
    const Document document = PaymentsReport(Payments(), FirstOfJune(), All(), PlainRoom());
    const auto& texts = document.sheets.at(0).texts;
    for (int line = 0; line < 2; ++line) {
        EXPECT_EQ(texts.at(static_cast<std::size_t>(line)).text, title);
        ExpectAt(texts.at(static_cast<std::size_t>(line)), 10, 18 + 6.4 * line);
        EXPECT_EQ(texts.at(static_cast<std::size_t>(line)).look,
                  (TextLook{.points = 16, .bold = true, .underlined = true}));
    }
    ExpectAt(OnlyText(document, "Syndicate member payments, Wed 1 Jun 2005"), 10, 36);
}

TEST(PaymentsReport, HeadingsADashedLineAndRowsInFourColumns) {
    const Document document = PaymentsReport(Payments(), FirstOfJune(), All(), PlainRoom());
    ExpectAt(OnlyText(document, "Name"), 10, 50);
    ExpectAt(OnlyText(document, "Pay by"), 55, 50);
    ExpectAt(OnlyText(document, "Amount paid"), 85, 50);
    ExpectAt(OnlyText(document, "Paid up to date"), 110, 50);
    ExpectAt(OnlyText(document, std::string(110, '-')), 10, 54);
    ExpectAt(OnlyText(document, "Anna"), 10, 58);
    ExpectAt(OnlyText(document, "Bert"), 10, 62);
    ExpectAt(OnlyText(document, "Cleo"), 10, 66);
}

TEST(PaymentsReport, OnlyADateBeforeTodayIsBold) {
    const Document document = PaymentsReport(Payments(), FirstOfJune(), All(), PlainRoom());
    EXPECT_TRUE(OnlyText(document, "31-May-2005").look.bold);
    EXPECT_FALSE(OnlyText(document, "01-Jun-2005").look.bold);
    EXPECT_FALSE(OnlyText(document, "Paid up to date").look.bold);
    EXPECT_FALSE(OnlyText(document, "Bert").look.bold);
}

TEST(PaymentsReport, ADateInAnotherColumnIsNeverBold) {
    ReportTable table = Payments();
    table[2] = {"28-May-2005", "29-May-2005", "30-May-2005", ""};
    const Document document = PaymentsReport(table, FirstOfJune(), All(), PlainRoom());
    for (const char* date : {"28-May-2005", "29-May-2005", "30-May-2005"}) {
        EXPECT_FALSE(OnlyText(document, date).look.bold) << date;
    }
}

TEST(PaymentsReport, TheTextSizeMovesEachColumnByItsOwnMeasure) {
    const Document document = PaymentsReport(
        Payments(), FirstOfJune(), {.lines = 9, .leftMargin = 0, .textSize = 2}, PlainRoom());
    ExpectAt(OnlyText(document, "Pay by"), 45 + 10, 52);
    ExpectAt(OnlyText(document, "Amount paid"), 75 + 14, 52);
    ExpectAt(OnlyText(document, "Paid up to date"), 100 + 20, 52);
}

TEST(PaymentsReport, ARowWithoutAWayOfPayingEndsTheReport) {
    ReportTable table = Payments();
    table[2][1].clear();
    EXPECT_EQ(ReportLineCount(table), 1);
    const Words texts = Texts(PaymentsReport(table, FirstOfJune(), All(), PlainRoom()));
    EXPECT_EQ(std::count(texts.begin(), texts.end(), "Bert"), 0);
}

DiaryHead Head() {
    return {.syndicate = "Lucky Seven",
            .manager = "Anna",
            .address = {"1 High St", "Upper Floor", "Leeds", "LS1"},
            .phone = "0113",
            .email = "a@b.uk",
            .total =
                "\xA3"
                "12.00"};
}

ReportTable Diary() {
    return {{"Date", "Tickets", "Cost", "Won", "Balance", "Notes"},
            {"01-Jun-2005", "5",
             "\xA3"
             "5.00",
             "\xA3"
             "17.00",
             "\xA3"
             "12.00",
             "three numbers"},
            {"08-Jun-2005", "", "", "", "", "no tickets"}};
}

TEST(DiaryReport, TheHeadStandsInTwoColumnsOfFourLines) {
    const Document document = DiaryReport(Diary(), Head(), All(), PlainRoom());
    ExpectAt(OnlyText(document, "Lottery Quillon Syndicate Manger     "), 10, 18);
    ExpectAt(OnlyText(document, "Syndicate name: Lucky Seven"), 10, 35);
    ExpectAt(OnlyText(document, "Address: 1 High St"), 110, 35);
    ExpectAt(OnlyText(document, "Manager name: Anna"), 10, 39);
    ExpectAt(OnlyText(document, "            Upper Floor"), 115, 39);
    ExpectAt(OnlyText(document, "Phone: 0113"), 10, 43);
    ExpectAt(OnlyText(document, "            Leeds"), 115, 43);
    ExpectAt(OnlyText(document, "Email: a@b.uk"), 10, 47);
    ExpectAt(OnlyText(document, "            LS1"), 115, 47);
    EXPECT_EQ(OnlyText(document, "Phone: 0113").look,
              (TextLook{.points = 10, .bold = false, .underlined = false}));
}

TEST(DiaryReport, RowsFollowTwoEmptyLinesBehindTheHead) {
    const Document document = DiaryReport(Diary(), Head(), All(), PlainRoom());
    const std::vector<std::pair<const char*, double>> headings = {
        {"Date", 10}, {"Tickets", 40}, {"Cost", 60}, {"Won", 80}, {"Balance", 100}, {"Notes", 125}};
    for (const auto& [heading, across] : headings) {
        ExpectAt(OnlyText(document, heading), across, 59);
        EXPECT_TRUE(OnlyText(document, heading).look.bold);
    }
    ExpectAt(OnlyText(document, std::string(120, '-')), 10, 63);
    EXPECT_FALSE(OnlyText(document, std::string(120, '-')).look.bold);
    ExpectAt(OnlyText(document, "5"), 40, 67);
    EXPECT_FALSE(OnlyText(document, "5").look.bold);
}

TEST(DiaryReport, TheTotalStandsBelowAnEmptyLine) {
    const Document document = DiaryReport(Diary(), Head(), All(), PlainRoom());
    const PlacedText total = OnlyText(document,
                                      "Total = \xA3"
                                      "12.00");
    // The record without tickets ends the rows.
    ExpectAt(total, 10, 75);
    EXPECT_TRUE(total.look.bold);
    EXPECT_EQ(ReportLineCount(Diary()), 1);
}

TEST(DiaryReport, TheTextSizeMovesEachColumnByItsOwnMeasure) {
    const Document document =
        DiaryReport(Diary(), Head(), {.lines = 9, .leftMargin = 0, .textSize = -2}, PlainRoom());
    ExpectAt(OnlyText(document, "Address: 1 High St"), 100 - 4, 33);
    ExpectAt(OnlyText(document, "            LS1"), 105 - 4, 33 + 3 * 3.2);
    const std::vector<std::pair<const char*, double>> headings = {
        {"Date", 0},      {"Tickets", 30 - 8},  {"Cost", 50 - 10},
        {"Won", 70 - 10}, {"Balance", 90 - 10}, {"Notes", 115 - 12}};
    for (const auto& [heading, across] : headings) {
        ExpectAt(OnlyText(document, heading), across, 33 + 6 * 3.2);
    }
}

}  // namespace

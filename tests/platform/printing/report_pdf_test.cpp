// SPDX-License-Identifier: GPL-3.0-or-later
// The reports as they stand in a PDF, read back and compared to a tenth of a millimetre.
#include <gtest/gtest.h>

#include <memory>

#include "platform/system/PrintTask.h"
#include "printing/grid_reports.h"
#include "printing/syndicate_reports.h"
#include "tests/core/regions.h"
#include "tests/support/pdf_reading.h"

namespace {

constexpr double exact = 0.1;  // millimetres
constexpr double blank = 10 * 0.278 * 25.4 / 72;
constexpr double bodyLine = 10 * 1.15 * 25.4 / 72;

const ReportChoice usual = {.lines = 99, .leftMargin = 10, .textSize = 0};

using Report = std::function<Document(const ReportChoice& choice, const SheetRoom& room)>;

PdfSheet Printed(const Report& report, const ReportChoice& choice = usual) {
    const PrintJob job = {.title = "Report", .options = {}, .compose = [&](const SheetRoom& room) {
                              return report(choice, room);
                          }};
    return ReadPdfWords(PdfOf(TaskOf(job), {})).at(0);
}

void ExpectAt(const PdfSheet& sheet, const char* word, double across, double down) {
    const QRectF box = sheet.Word(QString::fromLatin1(word));
    EXPECT_NEAR(box.left(), across, exact) << word;
    EXPECT_NEAR(box.top(), down, exact) << word;
}

TEST(ReportInPdf, DrawsStandInTheirColumns) {
    const ReportTable table = {{"Date", "Num1", "Num2", "", "", "", "", "", "Bonus"},
                               {"07-Dec-24", "3", "44", "", "", "", "", "", "9"}};
    const PdfSheet sheet = Printed([&](const ReportChoice& choice, const SheetRoom& room) {
        return DrawsReport(table, "Demo", choice, room);
    });
    ExpectAt(sheet, "Date:", 10, 50);
    ExpectAt(sheet, "Num2", 20 + 14 * 2, 50);
    ExpectAt(sheet, "Bonus", 20 + 14 * 8, 50);
    ExpectAt(sheet, "07-Dec-24:", 10, 50 + bodyLine);
    ExpectAt(sheet, "44", 20 + 14 * 2 + blank, 50 + bodyLine);
    ExpectAt(sheet, "09", 20 + 14 * 8 + blank, 50 + bodyLine);
}

TEST(ReportInPdf, SmallTextMovesDrawsUpAndTogether) {
    const ReportTable table = {{"Date", "Num1", "Num2"}, {"07-Dec-24", "3", "44"}};
    const PdfSheet sheet =
        Printed([&](const ReportChoice& choice,
                    const SheetRoom& room) { return DrawsReport(table, "Demo", choice, room); },
                {.lines = 99, .leftMargin = 5, .textSize = -4});
    ExpectAt(sheet, "Date:", 5, 46);
    ExpectAt(sheet, "Num2", 15 + 10 * 2, 46);
    EXPECT_NEAR(sheet.Word(QStringLiteral("Draw")).top(), 14, exact);
}

TEST(ReportInPdf, StatisticsStandInFourColumns) {
    const ReportTable table = {{"Num", "Last", "Times", "Average"},
                               {"5", "12 draws ago", "30 / 257 draws", "8.57 draws"}};
    const PdfSheet sheet = Printed([&](const ReportChoice& choice, const SheetRoom& room) {
        return StatsReport(table, "Demo", choice, room);
    });
    ExpectAt(sheet, "Average", 10 + 28 * 3, 50);
    ExpectAt(sheet, "05", 10 + 2 * blank, 50 + bodyLine);
    ExpectAt(sheet, "12", 38 + 2 * blank, 50 + bodyLine);
    ExpectAt(sheet, "09", 10 + 28 * 3 + 2 * blank, 50 + bodyLine);
}

TEST(ReportInPdf, EntriesHaveTheirNamesAtTheEnd) {
    const ReportTable table = {{"Date", "Num1", "", "", "", "", "", "", "", "Lottery", "Name"},
                               {"28-Dec-2024", "7", "", "", "", "", "", "", "", "Demo", "Anna"}};
    const PdfSheet sheet = Printed([&](const ReportChoice& choice, const SheetRoom& room) {
        return EntriesReport(table, choice, room);
    });
    ExpectAt(sheet, "Date:", 10, 36);
    ExpectAt(sheet, "Demo", 20 + 12 * 9, 36 + bodyLine);
    ExpectAt(sheet, "Name", 25 + 14 * 10, 36);
    ExpectAt(sheet, "07", 32 + 2 * blank, 36 + bodyLine);
    ExpectAt(sheet, "Anna", 25 + 14 * 10, 36 + bodyLine);
}

TEST(ReportInPdf, MembersStandAtTheLeftMarginWithTheirTextsBehindTheNames) {
    const auto state = std::make_unique<State>();
    state->Members(0, 0) = "Anna";
    state->Members(0, 7) = "Cash";
    const PdfSheet sheet = Printed([&](const ReportChoice& choice, const SheetRoom& room) {
        return MembersReport(*state, choice, room);
    });
    ExpectAt(sheet, "Name:", 10 + 4 * blank, 50);
    ExpectAt(sheet, "Address:", 10, 50 + bodyLine);
    EXPECT_NEAR(sheet.Word(QStringLiteral("Anna")).left(),
                sheet.Word(QStringLiteral("Name:")).right() + blank, exact);
    EXPECT_NEAR(sheet.Word(QStringLiteral("Cash")).top(), 50 + 4 * bodyLine, exact);
    ExpectAt(sheet, std::string(100, '-').c_str(), 10, 50 + 5 * bodyLine);
}

TEST(ReportInPdf, PaymentsHaveADashedLineBelowTheirHeadings) {
    const ReportTable table = {{"Name", "Pay", "Amount", "Paid"},
                               {"Anna", "Cash", "5.00", "31-May-2005"}};
    const PrintDay day = {
        .date = Date(std::chrono::year(2005), std::chrono::June, std::chrono::day(1)),
        .region = EnglishRegion(),
        .shown = "Wed 1 Jun 2005"};
    const PdfSheet sheet = Printed([&](const ReportChoice& choice, const SheetRoom& room) {
        return PaymentsReport(table, day, choice, room);
    });
    ExpectAt(sheet, "Pay", 55, 50);
    ExpectAt(sheet, "Amount", 85, 50);
    ExpectAt(sheet, "Paid", 110, 50);
    ExpectAt(sheet, std::string(110, '-').c_str(), 10, 50 + bodyLine);
    ExpectAt(sheet, "31-May-2005", 110, 50 + 2 * bodyLine);
}

TEST(ReportInPdf, TheDiaryHasItsHeadAboveAndItsTotalBelow) {
    const ReportTable table = {{"Date", "Tickets", "Cost", "Won", "Balance", "Notes"},
                               {"01-Jun-2005", "5", "5.00", "17.00", "12.00", "three"}};
    const DiaryHead head = {.syndicate = "Seven",
                            .manager = "Anna",
                            .address = {"Street", "Floor", "Leeds", "LS1"},
                            .phone = "0113",
                            .email = "a@b.uk",
                            .total = "12.34"};
    const PdfSheet sheet = Printed([&](const ReportChoice& choice, const SheetRoom& room) {
        return DiaryReport(table, head, choice, room);
    });
    ExpectAt(sheet, "Address:", 110, 35);
    ExpectAt(sheet, "Floor", 115 + 12 * blank, 35 + bodyLine);
    ExpectAt(sheet, "Email:", 10, 35 + 3 * bodyLine);
    ExpectAt(sheet, "Tickets", 40, 35 + 6 * bodyLine);
    ExpectAt(sheet, "Notes", 125, 35 + 6 * bodyLine);
    ExpectAt(sheet, std::string(120, '-').c_str(), 10, 35 + 7 * bodyLine);
    ExpectAt(sheet, "17.00", 80, 35 + 8 * bodyLine);
    ExpectAt(sheet, "Total", 10, 35 + 10 * bodyLine);
}

}  // namespace

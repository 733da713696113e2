// SPDX-License-Identifier: GPL-3.0-or-later
// Where the marks of a slip stand on paper, read back from the PDF that our own printer makes.
#include <QPushButton>

#include "platform/system/PrintTask.h"
#include "platform/widgets/Grid.h"
#include "printing/PrintSetup.h"
#include "printing/PrintSlips.h"
#include "tests/printing/slips.h"
#include "tests/support/form_test.h"
#include "tests/support/pdf_reading.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr double exact = 0.1;  // millimetres

class SlipsOnPaper : public testing::Test {
  protected:
    SlipsOnPaper() {
        AddThunderball(test_.folder);
        test_.state.LotteryName = "UK Thunderball";
        // Far enough down for all of its marks to be on the sheet.
        slip_ = SlipWith({{Measure::BoardsDown, "2"},
                          {Measure::BoardStepY, "101.3"},
                          {Measure::FirstNumberY, "84.25"},
                          {Measure::FirstExtraY, "120.5"}});
        slip_.lottery = "UK Thunderball";
        GeneratePositions(slip_, 34, 14);
        WriteSlipTemplate(test_.folder, "PTemplate.000", slip_);
    }

    QByteArray PrintedPdf(const PageCorrection& correction = {}) {
        return PdfOf(TaskOf(test_.printers.printed.at(0).job), correction);
    }

    double Number(Measure measure) { return std::stod(slip_[measure]); }
    double Position(int number, PositionColumn column) {
        return std::stod(slip_.positions(number, column));
    }

    /// The mark of a number on a board, by the formula of the slip.
    QRectF Mark(int across, int down, int number, PositionColumn x, PositionColumn y) {
        return {
            across * Number(Measure::BoardStepX) + Position(number, x) - Number(Measure::MarginX),
            down * Number(Measure::BoardStepY) + Position(number, y) - Number(Measure::MarginY),
            Number(Measure::MarkWidth), Number(Measure::MarkHeight)};
    }

    static void ExpectNear(const QRectF& printed, const QRectF& told) {
        EXPECT_NEAR(printed.left(), told.left(), exact);
        EXPECT_NEAR(printed.top(), told.top(), exact);
        EXPECT_NEAR(printed.width(), told.width(), exact);
        EXPECT_NEAR(printed.height(), told.height(), exact);
    }

    TestProgram test_;
    SlipTemplate slip_;
};

TEST_F(SlipsOnPaper, TheTestPrintHasAMarkOnEveryNumberOfEveryBoard) {
    PrintSetup form(test_.program, nullptr);
    form.Load();
    form.show();
    Click(form, "Command6");
    const std::vector<QRectF> marks = ReadPdfRectangles(PrintedPdf());
    ASSERT_EQ(marks.size(), 5U * 2U * (34U + 14U));
    std::size_t i = 0;
    for (int across = 0; across < 5; ++across) {
        for (int down = 0; down < 2; ++down) {
            for (int number = 1; number <= 34; ++number) {
                ExpectNear(marks[i++], Mark(across, down, number, numberX, numberY));
                if (number > 14) continue;
                ExpectNear(marks[i++], Mark(across, down, number, extraX, extraY));
            }
        }
    }
}

TEST_F(SlipsOnPaper, LinesGoAcrossThenDownThenToTheNextSheet) {
    Grid grid(31, 9);
    for (int row = 1; row <= 11; ++row) {
        grid.SetCell(row, 1, QString::number(row));
        grid.SetCell(row, 8, QString::number(row));
    }
    InDialog([&] { PrintSlips(test_.program, nullptr, grid, 11); },
             [](QDialog& dialog) { Click(dialog, "Command6"); });
    const QByteArray pdf = PrintedPdf();
    const std::vector<QRectF> first = ReadPdfRectangles(pdf, 1);
    const std::vector<QRectF> second = ReadPdfRectangles(pdf, 2);
    constexpr std::size_t marksOfALine = 8;  // one number, and the extra ball seven times
    ASSERT_EQ(first.size(), 10 * marksOfALine);
    ASSERT_EQ(second.size(), marksOfALine);
    for (int row = 1; row <= 10; ++row) {
        const int board = row - 1;
        const auto line = static_cast<std::size_t>(board) * marksOfALine;
        ExpectNear(first[line], Mark(board % 5, board / 5, row, numberX, numberY));
        for (std::size_t copy = 1; copy < marksOfALine; ++copy) {
            ExpectNear(first[line + copy], Mark(board % 5, board / 5, row, extraX, extraY));
        }
    }
    ExpectNear(second[0], Mark(0, 0, 11, numberX, numberY));
    ExpectNear(second[7], Mark(0, 0, 11, extraX, extraY));
}

TEST_F(SlipsOnPaper, ACorrectionOfThePrinterMovesTheMarks) {
    Grid grid(3, 9);
    grid.SetCell(1, 1, QStringLiteral("30"));
    InDialog([&] { PrintSlips(test_.program, nullptr, grid, 1); },
             [](QDialog& dialog) { Click(dialog, "Command6"); });
    const QRectF told = Mark(0, 0, 30, numberX, numberY);
    const QRectF printed =
        ReadPdfRectangles(
            PrintedPdf({.moveAcross = 1.5, .moveDown = -0.7, .scaleAcross = 101, .scaleDown = 99}))
            .at(0);
    ExpectNear(printed,
               {told.left() * 1.01 + 1.5, told.top() * 0.99 - 0.7, told.width(), told.height()});
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrintRoutines.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/forms/LinesGrid.h"
#include "platform/system/PrintTask.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "tests/printing/printed_texts.h"
#include "tests/printing/slips.h"
#include "tests/support/form_test.h"
#include "tests/support/pdf_reading.h"

namespace {

using Words = std::vector<std::string>;

constexpr auto printButton = "Command6";
constexpr auto cancelButton = "Command1";
constexpr auto marginBox = "Text1";
constexpr auto linesBox = "Text2";

const Message noLines = {.title = QStringLiteral("Error"),
                         .text = QStringLiteral("Please set number of lines to print.    "),
                         .sign = Sign::Question};

/// A form that shows a grid.
class GridForm final : public Form {
  public:
    explicit GridForm(Program& program)
        : Form(program, QStringLiteral("GridForm"), QStringLiteral("Lines"), nullptr),
          grid(new Grid(40, 12)) {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(grid);
    }

    Grid* grid;
};

class Printing : public testing::Test {
  protected:
    Printing() : form_(test_.program), routines_(test_.program) {
        test_.state.LotteryName = "UK Lotto";
        routines_.Offer();
        form_.show();
    }

    void Fill(const std::vector<QStringList>& rows) {
        int row = 0;
        for (const QStringList& cells : rows) {
            int column = 0;
            for (const QString& cell : cells) form_.grid->SetCell(row, column++, cell);
            ++row;
        }
    }

    void FillLines(int count) {
        SetLinesHeadings(*form_.grid);
        for (int row = 1; row <= count; ++row) {
            form_.grid->SetCell(row, 0, QString::number(row));
            for (int column = 1; column <= 6; ++column) {
                form_.grid->SetCell(row, column, QString::number(column * 5));
            }
        }
    }

    /// Runs a print routine and drives its one dialog.
    void InReport(const std::function<void()>& print,
                  const std::function<void(QDialog&)>& drive = PressPrint) {
        InDialog(print, [&](QDialog& dialog) {
            EXPECT_EQ(dialog.objectName(), QStringLiteral("PrintFrm"));
            drive(dialog);
        });
    }

    static void PressPrint(QDialog& dialog) { Click(dialog, printButton); }

    /// Prints lines: answers the question for the medium, and then drives the dialog of reports.
    void InLines(const std::function<void(QDialog&)>& drive = PressPrint) {
        InDialog([this] { test_.services.printLines(&form_, *form_.grid); },
                 [&](QDialog& selection) {
                     EXPECT_EQ(selection.objectName(), QStringLiteral("PrintSelection"));
                     QTimer::singleShot(0, &form_, [&] {
                         auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                         ASSERT_NE(dialog, nullptr);
                         EXPECT_EQ(dialog->objectName(), QStringLiteral("PrintFrm"));
                         drive(*dialog);
                     });
                     Click(selection, printButton);
                 });
    }

    const Document& Printed() { return test_.printers.printed.back().document; }
    std::size_t Count() { return test_.printers.printed.size(); }

    TestProgram test_;
    GridForm form_;
    PrintRoutines routines_;
};

TEST_F(Printing, AnEmptyGridOfLinesIsAMessageBeforeAnyWindow) {
    FillLines(0);
    test_.messages.Expect({.title = QStringLiteral("Error!"),
                           .text = QStringLiteral("Nothing to print!    "),
                           .sign = Sign::Exclamation});
    test_.services.printLines(&form_, *form_.grid);
    EXPECT_EQ(Count(), 0U);
}

TEST_F(Printing, LinesArePrintedOnPaperAfterTwoDialogs) {
    FillLines(3);
    InLines([](QDialog& dialog) {
        EXPECT_EQ(Find<QLineEdit>(dialog, linesBox)->text(), QStringLiteral("3"));
        Click(dialog, printButton);
    });
    ASSERT_EQ(Count(), 1U);
    ExpectAt(OnlyText(Printed(), "Lottery: UK Lotto"), 10, 36);
    ExpectAt(OnlyText(Printed(), "Line:"), 10, 50);
    ExpectAt(OnlyText(Printed(), " 03:"), 10, 62);
    EXPECT_EQ(test_.printers.printed[0].printer, QStringLiteral("Office"));
}

TEST_F(Printing, FiveOfTwentyLinesStopBehindTheFifth) {
    FillLines(20);
    InLines([](QDialog& dialog) {
        Type(dialog, linesBox, QStringLiteral("5"));
        Click(dialog, printButton);
    });
    const Words texts = Texts(Printed());
    EXPECT_EQ(std::count(texts.begin(), texts.end(), " 05:"), 1);
    EXPECT_EQ(std::count(texts.begin(), texts.end(), " 06:"), 0);
}

TEST_F(Printing, StandardPaperIsChosenAndTheSelectionIsLoadedAnewEachTime) {
    FillLines(1);
    for (int time = 1; time <= 2; ++time) {
        InDialog([this] { test_.services.printLines(&form_, *form_.grid); },
                 [](QDialog& selection) {
                     EXPECT_EQ(selection.windowTitle(), QStringLiteral("Print media selection"));
                     EXPECT_TRUE(Find<QRadioButton>(selection, "Option2")->isChecked());
                     EXPECT_EQ(Find<QRadioButton>(selection, "Option1")->text(),
                               QStringLiteral("Lottery forms"));
                     EXPECT_EQ(Find<QRadioButton>(selection, "Option2")->text(),
                               QStringLiteral("Standard paper"));
                     EXPECT_EQ(Find<QLabel>(selection, "Label1")->text(),
                               QStringLiteral("Print on standard paper (eg A4), or on lottery "
                                              "forms/entry slips? Printing on lottery forms "
                                              "requires a template."));
                     EXPECT_EQ(Find<QPushButton>(selection, printButton)->toolTip(),
                               QStringLiteral("Print out the lottery entries"));
                     Find<QRadioButton>(selection, "Option1")->click();
                     QTest::keyClick(&selection, Qt::Key_Escape);
                 });
    }
    EXPECT_EQ(Count(), 0U);
}

TEST_F(Printing, LotteryFormsLeadToSlipsWithTheSelectionGone) {
    FillLines(1);
    test_.messages.Expect(
        {.title = QStringLiteral("Error!"),
         .text = QStringLiteral("No lottery templates found.    \r\nPlease make one..."),
         .sign = Sign::Exclamation});
    InDialog([this] { test_.services.printLines(&form_, *form_.grid); },
             [](QDialog& selection) {
                 Find<QRadioButton>(selection, "Option1")->click();
                 Click(selection, printButton);
             });
    EXPECT_EQ(form_.findChild<QDialog*>(QStringLiteral("PrintSelection")), nullptr);
    EXPECT_EQ(Count(), 0U);
}

TEST_F(Printing, LotteryFormsAskForTicketsWithTheSelectionGoneAndPrintSlips) {
    FillLines(3);
    test_.folder.Write("PTemplate.000", SlipFile("UK Lotto"));
    InDialog([this] { test_.services.printLines(&form_, *form_.grid); },
             [this](QDialog& selection) {
                 QTimer::singleShot(0, &form_, [this] {
                     auto* tickets = qobject_cast<QDialog*>(QApplication::activeModalWidget());
                     ASSERT_NE(tickets, nullptr);
                     EXPECT_EQ(tickets->objectName(), QStringLiteral("PrintTickets"));
                     EXPECT_EQ(form_.findChild<QDialog*>(QStringLiteral("PrintSelection")),
                               nullptr);
                     EXPECT_EQ(Find<QLineEdit>(*tickets, linesBox)->text(), QStringLiteral("3"));
                     Click(*tickets, printButton);
                 });
                 Find<QRadioButton>(selection, "Option1")->click();
                 Click(selection, printButton);
             });
    ASSERT_EQ(Count(), 1U);
    EXPECT_EQ(Printed().sheets.at(0).rectangles.size(), 18U);
    EXPECT_TRUE(Printed().sheets.at(0).texts.empty());
}

TEST_F(Printing, CancelPrintsNothing) {
    FillLines(2);
    InLines([](QDialog& dialog) { Click(dialog, cancelButton); });
    InReport([this] { test_.services.printDraws(&form_, *form_.grid); },
             [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(Count(), 0U);
    EXPECT_TRUE(form_.isVisible());
}

TEST_F(Printing, OtherReportsShowTheDialogForAnEmptyListToo) {
    Fill({{QStringLiteral("Date"), QStringLiteral("Num1")}});
    InReport([this] { test_.services.printDraws(&form_, *form_.grid); },
             [this](QDialog& dialog) {
                 EXPECT_EQ(Find<QLineEdit>(dialog, linesBox)->text(), QStringLiteral("0"));
                 test_.messages.Expect(noLines);
                 Click(dialog, printButton);
                 EXPECT_TRUE(dialog.isVisible());
                 Type(dialog, linesBox, QStringLiteral("1"));
                 Click(dialog, printButton);
             });
    const Words expected = {"        Lottery Draw Results                        ",
                            "Lottery database: UK Lotto", "Date:", "Num1"};
    EXPECT_EQ(Texts(Printed()), expected);
}

TEST_F(Printing, TheDialogIsLoadedOnceAndItsChoicesStand) {
    FillLines(1);
    EXPECT_EQ(test_.printers.asked, 0);
    InLines([](QDialog& dialog) {
        Type(dialog, marginBox, QStringLiteral("30"));
        Find<ComboList>(dialog, "Combo4")->SetIndex(0);
        Find<QRadioButton>(dialog, "Option1(1)")->click();
        Click(dialog, printButton);
    });
    InReport([this] { test_.services.printStats(&form_, *form_.grid); });
    ExpectAt(OnlyText(Printed(), "     Lottery Number Statistics               "), 30, 14);
    EXPECT_EQ(test_.printers.printed.back().job.options.orientation, Orientation::Landscape);
    EXPECT_EQ(test_.printers.asked, 1);
}

TEST_F(Printing, OnlyTheReportOfEntriesPutsTheMarginBack) {
    FillLines(1);
    InReport([this] { test_.services.printDraws(&form_, *form_.grid); },
             [](QDialog& dialog) {
                 Type(dialog, marginBox, QStringLiteral("30"));
                 Find<ComboList>(dialog, "Combo3")->SetIndex(2);
                 Find<ComboList>(dialog, "Combo4")->SetIndex(8);
                 Click(dialog, printButton);
             });
    InReport([this] { test_.services.printDraws(&form_, *form_.grid); });
    ExpectAt(OnlyText(Printed(), "Lottery database: UK Lotto"), 30, 40);
    InReport([this] { test_.services.printEntries(&form_, *form_.grid); });
    ExpectAt(OnlyText(Printed(), "     Lottery Entries               "), 10, 22);
    EXPECT_EQ(test_.printers.printed.back().job.options.paper, PaperSize::Letter);
}

TEST_F(Printing, TheChoicesReachThePrinter) {
    FillLines(1);
    InReport([this] { test_.services.printDraws(&form_, *form_.grid); },
             [](QDialog& dialog) {
                 Find<ComboList>(dialog, "Combo1")->SetIndex(1);
                 Find<ComboList>(dialog, "Combo2")->SetIndex(3);
                 Click(dialog, printButton);
             });
    const auto& printed = test_.printers.printed.back();
    EXPECT_EQ(printed.printer, QStringLiteral("Preview and PDF"));
    EXPECT_EQ(printed.job.options.quality, PrintQuality::High);
    // The entry that reads A4 asks for A3.
    EXPECT_EQ(printed.job.options.paper, PaperSize::A3);
    EXPECT_FALSE(printed.job.corrected);
}

TEST_F(Printing, TheDialogOutlivesTheFormThatItWasShownOver) {
    FillLines(1);
    {
        GridForm other(test_.program);
        other.show();
        InReport([&] { test_.services.printDraws(&other, *form_.grid); });
    }
    InReport([this] { test_.services.printDraws(&form_, *form_.grid); });
    EXPECT_EQ(Count(), 2U);
}

TEST_F(Printing, AFullGridIsPrintedToItsLastRow) {
    FillLines(39);
    InReport([this] { test_.services.printDraws(&form_, *form_.grid); },
             [](QDialog& dialog) {
                 EXPECT_EQ(Find<QLineEdit>(dialog, linesBox)->text(), QStringLiteral("39"));
                 Click(dialog, printButton);
             });
    EXPECT_EQ(OnlyText(Printed(), "39:").text, "39:");
}

TEST_F(Printing, MembersComeFromTheSyndicate) {
    test_.state.Members(0, 0) = "Anna";
    test_.state.Members(0, 10) = "Lucky Seven";
    test_.state.Members(1, 0) = "Bert";
    InReport([this] { test_.services.printMembers(&form_); },
             [](QDialog& dialog) {
                 EXPECT_EQ(Find<QLineEdit>(dialog, linesBox)->text(), QStringLiteral("1"));
                 Click(dialog, printButton);
             });
    OnlyText(Printed(), "Members of the Lucky Seven syndicate");
    OnlyText(Printed(), "Anna  (Manager)");
    OnlyText(Printed(), "Bert");
}

TEST_F(Printing, PaymentsAreOfToday) {
    Fill({{QStringLiteral("Name"), QStringLiteral("Pay by"), QStringLiteral("Amount paid"),
           QStringLiteral("Paid up to date")},
          {QStringLiteral("Anna"), QStringLiteral("(Manager)"), QStringLiteral("£5.00"),
           QStringLiteral("31-May-2005")},
          {QStringLiteral("Bert"), QStringLiteral("Cash"), QStringLiteral("£5.00"),
           QStringLiteral("01-Jun-2005")}});
    InReport([this] { test_.services.printPayments(&form_, *form_.grid); });
    OnlyText(Printed(), "Syndicate member payments, Wed 1 Jun 2005");
    EXPECT_TRUE(OnlyText(Printed(), "31-May-2005").look.bold);
    EXPECT_FALSE(OnlyText(Printed(), "01-Jun-2005").look.bold);
}

TEST_F(Printing, TheDiaryHasItsFrame) {
    Fill({{QStringLiteral("Date"), QStringLiteral("Tickets")},
          {QStringLiteral("01-Jun-2005"), QStringLiteral("5")}});
    const DiaryFrame frame = {.syndicate = QStringLiteral("Lucky Seven"),
                              .manager = QStringLiteral("Zoë"),
                              .address = {QStringLiteral("a1"), QStringLiteral("a2"),
                                          QStringLiteral("a3"), QStringLiteral("a4")},
                              .phone = QStringLiteral("0113"),
                              .email = QStringLiteral("z@b.uk"),
                              .total = QStringLiteral("£12.00")};
    InReport([&] { test_.services.printDiary(&form_, *form_.grid, frame); });
    for (const char* text :
         {"Syndicate name: Lucky Seven", "Address: a1", "            a2", "            a3",
          "            a4", "Phone: 0113", "Email: z@b.uk", "Manager name: Zo\xEB",
          "Total = \xA3"
          "12.00"}) {
        OnlyText(Printed(), text);
    }
    // The address stands in the order of its boxes, line below line.
    for (const auto& [above, below] : {std::pair("Address: a1", "            a2"),
                                       {"            a2", "            a3"},
                                       {"            a3", "            a4"}}) {
        EXPECT_LT(OnlyText(Printed(), above).down, OnlyText(Printed(), below).down);
    }
}

TEST_F(Printing, AFormIsPrintedAtOnceAsItStands) {
    test_.services.printForm(form_);
    ASSERT_EQ(test_.printers.pictures.size(), 1U);
    EXPECT_EQ(test_.printers.pictures[0].job.title, QStringLiteral("Lines"));
    EXPECT_EQ(test_.printers.pictures[0].job.options.orientation, Orientation::Landscape);
}

TEST_F(Printing, TheLinesStandInThePdfWhereTheyBelong) {
    FillLines(2);
    InLines();
    PrintJob job = test_.printers.printed.back().job;
    job.options.paper = PaperSize::A4;
    const PdfSheet sheet = ReadPdfWords(PdfOf(TaskOf(job), {})).at(0);
    const double blank = 10 * 0.278 * 25.4 / 72;
    EXPECT_NEAR(sheet.Word(QStringLiteral("Quillon")).top(), 18, 0.1);
    EXPECT_NEAR(sheet.Word(QStringLiteral("Lottery:")).left(), 10, 0.1);
    EXPECT_NEAR(sheet.Word(QStringLiteral("Lottery:")).top(), 36, 0.1);
    EXPECT_NEAR(sheet.Word(QStringLiteral("Line:")).left(), 10, 0.1);
    EXPECT_NEAR(sheet.Word(QStringLiteral("Line:")).top(), 50, 0.1);
    EXPECT_NEAR(sheet.Word(QStringLiteral("Num6")).left(), 10 + 12 * 6, 0.1);
    EXPECT_NEAR(sheet.Word(QStringLiteral("01:")).left(), 10 + blank, 0.1);
    EXPECT_NEAR(sheet.Word(QStringLiteral("Pball")).left(), 10 + 12 * 8, 0.1);
}

}  // namespace

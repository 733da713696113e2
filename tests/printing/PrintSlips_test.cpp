// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrintSlips.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <optional>

#include "core/failure.h"
#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "printing/PrintTickets.h"
#include "tests/printing/slips.h"
#include "tests/support/form_test.h"

namespace {

constexpr const char* printerList = "Combo1";
constexpr const char* qualityList = "Combo2";
constexpr const char* templateList = "List3";
constexpr const char* linesBox = "Text2";
constexpr const char* answerLabel = "Label7";
constexpr const char* printButton = "Command6";
constexpr const char* cancelButton = "Command1";
constexpr const char* helpButton = "Command2";

Message Refusal(const char* title, const char* text) {
    return {.title = QString::fromLatin1(title),
            .text = QString::fromLatin1(text),
            .sign = Sign::Exclamation};
}

class PrintingSlips : public testing::Test {
  protected:
    PrintingSlips() { test_.state.LotteryName = "UK Lotto"; }

    void AddTemplate(const std::string& file, const std::string& lottery) {
        test_.folder.Write(file, SlipFile(lottery));
    }

    void FillLines(int count) {
        for (int row = 1; row <= count; ++row) {
            grid_.SetCell(row, 0, QString::number(row));
            for (int column = 1; column <= 6; ++column) {
                grid_.SetCell(row, column, QString::number(row + column));
            }
        }
    }

    void Run(int count = 3) { PrintSlips(test_.program, nullptr, grid_, count); }

    void RunAnd(const std::function<void(QDialog&)>& drive, int count = 3) {
        InDialog([&] { Run(count); }, drive);
    }

    const std::vector<Sheet>& Sheets() { return test_.printers.printed.at(0).document.sheets; }

    TestProgram test_;
    Grid grid_{31, 9};
};

class AskingForTickets : public PrintingSlips {
  protected:
    void Open() {
        form_ = std::make_unique<PrintTickets>(test_.program, nullptr);
        form_->Load();
        form_->show();
    }
    std::unique_ptr<PrintTickets> form_;
};

TEST_F(AskingForTickets, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Print tickets"));
    const std::vector<std::pair<const char*, const char*>> labels = {{"Label2", "Printer:"},
                                                                     {"Label5", "Print quality:"},
                                                                     {"Label6", "Template:"},
                                                                     {"Label4", "Lines to print:"},
                                                                     {answerLabel, "OK"}};
    for (const auto& [name, text] : labels) {
        EXPECT_EQ(Find<QLabel>(*form_, name)->text(), QString::fromLatin1(text)) << name;
    }
    EXPECT_TRUE(Find<QLabel>(*form_, answerLabel)->isHidden());
    EXPECT_TRUE(Find<ListBox>(*form_, "List2")->isHidden());
    EXPECT_EQ(Find<QPushButton>(*form_, printButton)->text(), QStringLiteral(" Print "));
    EXPECT_EQ(Find<QPushButton>(*form_, cancelButton)->text(), QStringLiteral(" Cancel "));
    EXPECT_EQ(Find<QPushButton>(*form_, helpButton)->text(), QStringLiteral(" Get help "));
    const auto* quality = Find<QComboBox>(*form_, qualityList);
    EXPECT_EQ(quality->toolTip(), QStringLiteral(" Not supported by all printers "));
    const QStringList qualities = {QStringLiteral("Draft"), QStringLiteral("Standard"),
                                   QStringLiteral("Better"), QStringLiteral("Best")};
    for (int i = 0; i < 4; ++i) EXPECT_EQ(quality->itemText(i), qualities[i]);
    EXPECT_EQ(quality->count(), 4);
    EXPECT_EQ(quality->currentIndex(), 1);
}

TEST_F(AskingForTickets, ListsThePrintersAndChoosesTheCurrentOne) {
    test_.printers.current = QStringLiteral("Preview and PDF");
    Open();
    const auto* printers = Find<QComboBox>(*form_, printerList);
    EXPECT_EQ(printers->count(), 2);
    EXPECT_EQ(printers->currentText(), QStringLiteral("Preview and PDF"));
    EXPECT_EQ(test_.printers.asked, 1);
}

TEST_F(AskingForTickets, ListsTheTemplatesByTheirFirstLinesAndChoosesTheFirst) {
    test_.folder.Write("PTemplate.000", " One \r\nx\r\n");
    test_.folder.Write("PTemplate.bak", "Two\r\nx\r\n");
    Open();
    const auto* templates = Find<ListBox>(*form_, templateList);
    EXPECT_EQ(templates->count(), 2);
    EXPECT_EQ(templates->item(0)->text(), QStringLiteral(" One "));
    EXPECT_EQ(templates->Index(), 0);
    EXPECT_EQ(Find<ListBox>(*form_, "List2")->item(1)->text(), QStringLiteral("PTemplate.bak"));
    EXPECT_EQ(form_->TemplateFile(), "PTemplate.000");
}

TEST_F(AskingForTickets, StaysOpenWithoutALineToPrint) {
    AddTemplate("PTemplate.000", "UK Lotto");
    Open();
    Find<ComboList>(*form_, printerList)->SetIndex(1);
    for (const char* lines : {"0", "", "x", "-3", "0.9"}) {
        Find<QLineEdit>(*form_, linesBox)->setText(QString::fromLatin1(lines));
        test_.messages.Expect(Refusal("Error", "Please set number of lines to print.    "));
        Click(*form_, printButton);
        EXPECT_TRUE(form_->isVisible()) << lines;
        EXPECT_TRUE(form_->IsOk()) << lines;
    }
    EXPECT_EQ(test_.printers.current, QStringLiteral("Office"));
}

TEST_F(AskingForTickets, WithoutATemplateTheAnswerIsCancel) {
    Open();
    form_->SetLines(3);
    Find<ComboList>(*form_, printerList)->SetIndex(1);
    test_.messages.Expect(Refusal("Error!", "No lottery slip templates!    "));
    Click(*form_, printButton);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(Find<QLabel>(*form_, answerLabel)->text(), QStringLiteral("Cancel"));
    EXPECT_EQ(test_.printers.current, QStringLiteral("Preview and PDF"));
}

TEST_F(AskingForTickets, LetsEventsRunBetweenTheChoiceOfThePrinterAndTheAnswer) {
    AddTemplate("PTemplate.000", "UK Lotto");
    Open();
    form_->SetLines(3);
    Find<ComboList>(*form_, printerList)->SetIndex(1);
    QString chosen;
    bool open = false;
    QTimer::singleShot(0, form_.get(), [&] {
        chosen = test_.printers.current;
        open = form_->isVisible();
    });
    Click(*form_, printButton);
    EXPECT_EQ(chosen, QStringLiteral("Preview and PDF"));
    EXPECT_TRUE(open);
}

TEST_F(AskingForTickets, CancelAndEscAreTheSame) {
    Open();
    Click(*form_, cancelButton);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_FALSE(form_->IsOk());
    Open();
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_FALSE(form_->IsOk());
}

TEST_F(AskingForTickets, HelpOpensThePageOfPrinting) {
    Open();
    Click(*form_, helpButton);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("helpprint.html")});
}

TEST_F(AskingForTickets, AdjustsThePrinterThatIsChosenInTheList) {
    Open();
    Find<ComboList>(*form_, printerList)->SetIndex(1);
    InDialog([this] { Click(*form_, "AdjustPrinter"); },
             [](QDialog& dialog) {
                 Find<QLineEdit>(dialog, "ScaleAcross")->setText(QStringLiteral("99.5"));
                 Click(dialog, "OKButton");
             });
    EXPECT_EQ(test_.printers.corrections[QStringLiteral("Preview and PDF")],
              (PageCorrection{.scaleAcross = 99.5}));
    EXPECT_EQ(test_.printers.current, QStringLiteral("Office"));
}

TEST_F(PrintingSlips, WithoutAnyTemplateSaysSo) {
    FillLines(3);
    test_.messages.Expect(
        Refusal("Error!", "No lottery templates found.    \r\nPlease make one..."));
    Run();
    EXPECT_TRUE(test_.printers.printed.empty());
}

TEST_F(PrintingSlips, WithoutATemplateOfTheLotterySaysSo) {
    AddTemplate("PTemplate.000", "uk lotto");
    test_.messages.Expect(Refusal("Error!", "Couldn't find a template for this lottery.    "));
    Run();
    EXPECT_TRUE(test_.printers.printed.empty());
}

TEST_F(PrintingSlips, ProposeTheLastTemplateOfTheLotteryAndAllLines) {
    AddTemplate("PTemplate.000", "UK Lotto");
    AddTemplate("PTemplate.001", " UK Lotto ");
    AddTemplate("PTemplate.002", "UK Thunderball");
    FillLines(3);
    RunAnd([](QDialog& dialog) {
        EXPECT_EQ(Find<ListBox>(dialog, templateList)->Index(), 1);
        EXPECT_EQ(Find<QLineEdit>(dialog, linesBox)->text(), QStringLiteral("3"));
        Click(dialog, cancelButton);
    });
    EXPECT_TRUE(test_.printers.printed.empty());
}

TEST_F(PrintingSlips, MarkTheLinesOfTheGrid) {
    AddTemplate("PTemplate.000", "UK Lotto");
    FillLines(3);
    grid_.SetCell(2, 8, QStringLiteral("9"));
    RunAnd([](QDialog& dialog) { Click(dialog, printButton); });
    ASSERT_EQ(Sheets().size(), 1U);
    const auto& marks = Sheets()[0].rectangles;
    ASSERT_EQ(marks.size(), 6U + 13U + 6U);
    EXPECT_NEAR(marks[0].across, 2.25 - 3.0, 1e-9);
    EXPECT_NEAR(marks[0].down, 2.50 - 5.5, 1e-9);
    EXPECT_NEAR(marks[7].across, 28.1 + 19 - 3.0, 1e-9);
    EXPECT_NEAR(marks.back().across, 2 * 28.1 + 9.25 - 3.0, 1e-9);
    EXPECT_EQ(marks[0].width, 3);
    EXPECT_EQ(marks[0].height, 2);
}

TEST_F(PrintingSlips, TakePrinterAndQualityFromTheForm) {
    AddTemplate("PTemplate.000", "UK Lotto");
    FillLines(1);
    const std::vector<PrintQuality> qualities = {PrintQuality::Draft, PrintQuality::Low,
                                                 PrintQuality::Medium, PrintQuality::High};
    for (int i = 0; i < 4; ++i) {
        RunAnd([i](QDialog& dialog) {
            Find<ComboList>(dialog, printerList)->SetIndex(1);
            Find<ComboList>(dialog, qualityList)->SetIndex(i);
            Click(dialog, printButton);
        });
        const auto& printed = test_.printers.printed.back();
        EXPECT_EQ(printed.printer, QStringLiteral("Preview and PDF"));
        EXPECT_EQ(printed.job.options.quality, qualities[static_cast<std::size_t>(i)]);
        EXPECT_FALSE(printed.job.options.orientation);
        EXPECT_FALSE(printed.job.options.paper);
        EXPECT_TRUE(printed.job.corrected);
    }
}

TEST_F(PrintingSlips, TheUserMayTakeAnotherTemplateWhateverItsLottery) {
    AddTemplate("PTemplate.000", "UK Lotto");
    AddTemplate("PTemplate.001", "UK Thunderball");
    std::string bytes = SlipFile("UK Thunderball");
    bytes.replace(bytes.find("3,2\r\n"), 3, "8,7");
    test_.folder.Write("PTemplate.001", bytes);
    FillLines(1);
    RunAnd([](QDialog& dialog) {
        Find<ListBox>(dialog, templateList)->SetIndex(1);
        Click(dialog, printButton);
    });
    EXPECT_EQ(Sheets().at(0).rectangles.at(0).width, 8);
}

TEST_F(PrintingSlips, ReadTheTemplateOnlyAfterPrintWasPressed) {
    AddTemplate("PTemplate.000", "UK Lotto");
    FillLines(1);
    RunAnd([this](QDialog& dialog) {
        std::string bytes = SlipFile("UK Lotto");
        bytes.replace(bytes.find("3,2\r\n"), 3, "8,7");
        test_.folder.Write("PTemplate.000", bytes);
        Click(dialog, printButton);
    });
    EXPECT_EQ(Sheets().at(0).rectangles.at(0).width, 8);
}

TEST_F(PrintingSlips, LetEventsRunOnceTheFormIsGone) {
    AddTemplate("PTemplate.000", "UK Lotto");
    FillLines(1);
    QObject guard;
    std::optional<std::size_t> printed;
    RunAnd([&](QDialog& dialog) {
        QObject::connect(&dialog, &QObject::destroyed, &guard, [&] {
            QTimer::singleShot(0, &guard, [&] { printed = test_.printers.printed.size(); });
        });
        Click(dialog, printButton);
    });
    EXPECT_EQ(printed, 0U);
    EXPECT_EQ(test_.printers.printed.size(), 1U);
}

TEST_F(PrintingSlips, StopAtTheNumberOfLinesToPrint) {
    AddTemplate("PTemplate.000", "UK Lotto");
    FillLines(10);
    RunAnd([](QDialog& dialog) {
        Type(dialog, linesBox, QStringLiteral("7"));
        Click(dialog, printButton);
    });
    ASSERT_EQ(Sheets().size(), 2U);
    EXPECT_EQ(Sheets()[1].rectangles.size(), 12U);
}

TEST_F(PrintingSlips, StopAtTheFirstEmptyLine) {
    AddTemplate("PTemplate.000", "UK Lotto");
    FillLines(10);
    grid_.SetCell(4, 1, QString());
    RunAnd(
        [](QDialog& dialog) {
            Type(dialog, linesBox, QStringLiteral("500"));
            Click(dialog, printButton);
        },
        10);
    EXPECT_EQ(Sheets().at(0).rectangles.size(), 18U);
}

TEST_F(PrintingSlips, MarkNothingForATextAZeroOrAnEmptyCell) {
    AddTemplate("PTemplate.000", "UK Lotto");
    grid_.SetCell(1, 1, QStringLiteral("x"));
    grid_.SetCell(1, 2, QStringLiteral("0"));
    grid_.SetCell(1, 4, QStringLiteral("7"));
    RunAnd([](QDialog& dialog) { Click(dialog, printButton); }, 1);
    EXPECT_EQ(Sheets().at(0).rectangles.size(), 1U);
}

TEST_F(PrintingSlips, UseTheWholeGridWhateverTheLotteryAndItsLines) {
    AddTemplate("PTemplate.000", "UK Lotto");
    test_.state.Picks = 5;
    test_.state.MaxNum = 10;
    FillLines(1);
    grid_.SetCell(1, 7, QStringLiteral("60"));
    RunAnd([](QDialog& dialog) { Click(dialog, printButton); }, 1);
    EXPECT_EQ(Sheets().at(0).rectangles.size(), 7U);
}

TEST_F(PrintingSlips, ANumberAboveSixtyEndsTheRunAndNothingIsPrinted) {
    AddTemplate("PTemplate.000", "UK Lotto");
    FillLines(3);
    grid_.SetCell(3, 2, QStringLiteral("61"));
    EXPECT_THROW(RunAnd([](QDialog& dialog) { Click(dialog, printButton); }), Failure);
    EXPECT_TRUE(test_.printers.printed.empty());
}

TEST_F(PrintingSlips, ATemplateCutShortEndsTheRun) {
    test_.folder.Write("PTemplate.000", SlipFile("UK Lotto", 59));
    FillLines(1);
    EXPECT_THROW(RunAnd([](QDialog& dialog) { Click(dialog, printButton); }), Failure);
    EXPECT_TRUE(test_.printers.printed.empty());
}

TEST(LinesInGrid, MayFillItToItsLastRow) {
    Grid grid(3, 9);
    grid.SetCell(1, 1, QStringLiteral("5"));
    grid.SetCell(2, 1, QStringLiteral("6"));
    EXPECT_EQ(LinesInGrid(grid, 2).size(), 2U);
    EXPECT_THROW(LinesInGrid(grid, 3), Failure);
}

}  // namespace

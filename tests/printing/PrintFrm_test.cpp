// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrintFrm.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "platform/widgets/Lists.h"
#include "tests/support/form_test.h"

namespace {

constexpr auto printerList = "Combo1";
constexpr auto qualityList = "Combo2";
constexpr auto paperList = "Combo3";
constexpr auto textSizeList = "Combo4";
constexpr auto marginBox = "Text1";
constexpr auto linesBox = "Text2";
constexpr auto printButton = "Command6";
constexpr auto cancelButton = "Command1";

class PrintFrmTest : public testing::Test {
  protected:
    PrintFrmTest() : form_(test_.program, nullptr) { form_.Load(); }

    /// Shows the dialog for so many lines and does something in it; whether it is to be printed.
    bool Ask(int lines, const std::function<void()>& drive) {
        bool print = false;
        InDialog([&] { print = form_.Ask(nullptr, lines); }, [&](QDialog&) { drive(); });
        return print;
    }

    QStringList Entries(const char* list) {
        auto* combo = Find<ComboList>(form_, list);
        QStringList entries;
        for (int i = 0; i < combo->count(); ++i) entries << combo->itemText(i);
        return entries;
    }

    QString Chosen(const char* list) { return Find<ComboList>(form_, list)->currentText(); }
    QString Text(const char* box) { return Find<QLineEdit>(form_, box)->text(); }
    void Choose(const char* list, int index) { Find<ComboList>(form_, list)->SetIndex(index); }

    TestProgram test_;
    PrintFrm form_;
};

TEST_F(PrintFrmTest, HasItsWords) {
    EXPECT_EQ(form_.windowTitle(), QStringLiteral("Print"));
    const std::vector<std::pair<const char*, const char*>> labels = {
        {"Label2", "Printer:"},       {"Label5", "Print quality:"}, {"Label6", "Paper:"},
        {"Label8", "Text size:"},     {"Label1", "Left margin:"},   {"Label3", "mm"},
        {"Label4", "Lines to print:"}};
    for (const auto& [name, text] : labels) {
        EXPECT_EQ(Find<QLabel>(form_, name)->text(), QString::fromLatin1(text));
    }
    EXPECT_EQ(Find<QPushButton>(form_, printButton)->text(), QStringLiteral(" Print "));
    EXPECT_EQ(Find<QPushButton>(form_, cancelButton)->text(), QStringLiteral(" Cancel "));
    EXPECT_EQ(Find<QRadioButton>(form_, "Option1(0)")->text(), QStringLiteral("Portrait"));
    EXPECT_EQ(Find<QRadioButton>(form_, "Option1(1)")->text(), QStringLiteral("Landscape"));
    EXPECT_EQ(form_.findChild<QGroupBox*>()->title(), QStringLiteral(" Orientation "));
    EXPECT_TRUE(Find<QLabel>(form_, "Label7")->isHidden());
}

TEST_F(PrintFrmTest, LoadsWithTheUsualChoices) {
    EXPECT_EQ(Entries(printerList), test_.printers.names);
    EXPECT_EQ(Chosen(printerList), QStringLiteral("Office"));
    EXPECT_EQ(Entries(qualityList),
              QStringList({QStringLiteral("Draft"), QStringLiteral("Standard"),
                           QStringLiteral("Better"), QStringLiteral("Best")}));
    EXPECT_EQ(Chosen(qualityList), QStringLiteral("Standard"));
    EXPECT_EQ(Entries(paperList),
              QStringList({QStringLiteral("A4 (210 x 297 mm)"), QStringLiteral("A3 (297 x 420 mm)"),
                           QStringLiteral("Letter (8 1/2 x 11 in)"),
                           QStringLiteral("Legal (8 1/2 x 14 in)")}));
    EXPECT_EQ(Find<ComboList>(form_, paperList)->Index(), 0);
    EXPECT_EQ(Entries(textSizeList), QStringLiteral("-4,-3,-2,-1,Normal,+1,+2,+3,+4").split(u','));
    EXPECT_EQ(Chosen(textSizeList), QStringLiteral("Normal"));
    EXPECT_EQ(Text(marginBox), QStringLiteral("10"));
    EXPECT_TRUE(Find<QRadioButton>(form_, "Option1(0)")->isChecked());
}

TEST_F(PrintFrmTest, SaysWhatPrintersMayNotHeed) {
    for (const char* list : {qualityList, paperList, textSizeList}) {
        EXPECT_EQ(Find<ComboList>(form_, list)->toolTip(),
                  QStringLiteral(" Not supported by all printers "));
    }
    EXPECT_EQ(Find<ComboList>(form_, printerList)->toolTip(), QString());
}

TEST_F(PrintFrmTest, ChoosesTheCurrentPrinterAmongSeveral) {
    test_.printers.names = {QStringLiteral("Office"), QStringLiteral("Cellar"),
                            QStringLiteral("Preview and PDF")};
    test_.printers.current = QStringLiteral("Cellar");
    PrintFrm form(test_.program, nullptr);
    form.Load();
    EXPECT_EQ(Find<ComboList>(form, printerList)->Index(), 1);
}

TEST_F(PrintFrmTest, PrintsWhatIsProposed) {
    EXPECT_TRUE(Ask(20, [this] {
        EXPECT_EQ(Text(linesBox), QStringLiteral("20"));
        Click(form_, printButton);
    }));
    EXPECT_EQ(form_.Choice().lines, 20);
    EXPECT_EQ(form_.Choice().leftMargin, 10);
    EXPECT_EQ(form_.Choice().textSize, 0);
}

TEST_F(PrintFrmTest, BelowOneLineThereIsAMessageAndTheDialogStays) {
    const Message message = {.title = QStringLiteral("Error"),
                             .text = QStringLiteral("Please set number of lines to print.    "),
                             .sign = Sign::Question};
    EXPECT_FALSE(Ask(0, [&] {
        Choose(printerList, 1);
        for (const char* few : {"0", "-3", "0.9", "many", ""}) {
            Type(form_, linesBox, QString::fromLatin1(few));
            test_.messages.Expect(message);
            Click(form_, printButton);
            EXPECT_TRUE(form_.isVisible()) << few;
        }
        EXPECT_EQ(test_.messages.Shown(), 5);
        EXPECT_EQ(test_.printers.current, QStringLiteral("Office"));
        Click(form_, cancelButton);
    }));
}

TEST_F(PrintFrmTest, TheMarginIsForcedOnlyBehindTheTestOfLines) {
    EXPECT_TRUE(Ask(0, [&] {
        Type(form_, marginBox, QStringLiteral("150"));
        test_.messages.Expect({.title = QStringLiteral("Error"),
                               .text = QStringLiteral("Please set number of lines to print.    "),
                               .sign = Sign::Question});
        Click(form_, printButton);
        EXPECT_EQ(Text(marginBox), QStringLiteral("150"));
        Type(form_, linesBox, QStringLiteral("1"));
        Click(form_, printButton);
    }));
    EXPECT_EQ(Text(marginBox), QStringLiteral("100"));
    EXPECT_EQ(form_.Choice().leftMargin, 100);
}

TEST_F(PrintFrmTest, MarginsBelowZeroAreZeroAndOthersStayAsTyped) {
    const std::vector<std::tuple<const char*, const char*, double>> margins = {
        {"-5", "0", 0}, {"100", "100", 100},    {"100.5", "100", 100},
        {"0", "0", 0},  {"12.5", "12.5", 12.5}, {"wide", "wide", 0}};
    for (const auto& [typed, shown, margin] : margins) {
        Ask(1, [&] {
            Type(form_, marginBox, QString::fromLatin1(typed));
            Click(form_, printButton);
        });
        EXPECT_EQ(Text(marginBox), QString::fromLatin1(shown)) << typed;
        EXPECT_EQ(form_.Choice().leftMargin, margin) << typed;
    }
}

TEST_F(PrintFrmTest, TheFirstTwoPapersAreCrossedOver) {
    const std::vector<PaperSize> papers = {PaperSize::A3, PaperSize::A4, PaperSize::Letter,
                                           PaperSize::Legal};
    for (int entry = 0; entry < 4; ++entry) {
        Choose(paperList, entry);
        EXPECT_EQ(form_.Options().paper, papers.at(static_cast<std::size_t>(entry))) << entry;
    }
}

TEST_F(PrintFrmTest, QualityOrientationAndTextSizeAreTakenFromTheirInputs) {
    const std::vector<PrintQuality> qualities = {PrintQuality::Draft, PrintQuality::Low,
                                                 PrintQuality::Medium, PrintQuality::High};
    for (int entry = 0; entry < 4; ++entry) {
        Choose(qualityList, entry);
        EXPECT_EQ(form_.Options().quality, qualities.at(static_cast<std::size_t>(entry)));
    }
    for (int entry = 0; entry < 9; ++entry) {
        Choose(textSizeList, entry);
        EXPECT_EQ(form_.Choice().textSize, entry - 4);
    }
    EXPECT_EQ(form_.Options().orientation, Orientation::Portrait);
    Find<QRadioButton>(form_, "Option1(1)")->click();
    EXPECT_EQ(form_.Options().orientation, Orientation::Landscape);
}

TEST_F(PrintFrmTest, ThePrinterBecomesTheCurrentOneOnlyByPrinting) {
    Ask(1, [&] {
        Choose(printerList, 1);
        Click(form_, cancelButton);
    });
    EXPECT_EQ(test_.printers.current, QStringLiteral("Office"));
    Ask(1, [&] { Click(form_, printButton); });
    EXPECT_EQ(test_.printers.current, QStringLiteral("Preview and PDF"));
}

TEST_F(PrintFrmTest, EventsRunBetweenTheChoiceOfThePrinterAndTheAnswer) {
    QString chosen;
    bool open = false;
    Ask(1, [&] {
        Choose(printerList, 1);
        QTimer::singleShot(0, &form_, [&] {
            chosen = test_.printers.current;
            open = form_.isVisible();
        });
        Click(form_, printButton);
    });
    EXPECT_EQ(chosen, QStringLiteral("Preview and PDF"));
    EXPECT_TRUE(open);
}

TEST_F(PrintFrmTest, EscAndTheCrossAreCancel) {
    EXPECT_FALSE(Ask(1, [&] { QTest::keyClick(&form_, Qt::Key_Escape); }));
    EXPECT_EQ(Find<QLabel>(form_, "Label7")->text(), QStringLiteral("Cancel"));
    EXPECT_FALSE(Ask(1, [&] { form_.close(); }));
    EXPECT_TRUE(Ask(1, [&] {
        EXPECT_EQ(Find<QLabel>(form_, "Label7")->text(), QStringLiteral("OK"));
        QTest::keyClick(Find<QLineEdit>(form_, linesBox), Qt::Key_Return);
    }));
}

TEST_F(PrintFrmTest, WhatWasChosenStandsTheNextTime) {
    Ask(5, [&] {
        Choose(paperList, 2);
        Choose(textSizeList, 8);
        Type(form_, marginBox, QStringLiteral("25"));
        Click(form_, printButton);
    });
    Ask(7, [&] {
        EXPECT_EQ(Find<ComboList>(form_, paperList)->Index(), 2);
        EXPECT_EQ(Chosen(textSizeList), QStringLiteral("+4"));
        EXPECT_EQ(Text(marginBox), QStringLiteral("25"));
        EXPECT_EQ(Text(linesBox), QStringLiteral("7"));
        Click(form_, cancelButton);
    });
    EXPECT_EQ(test_.printers.asked, 1);
}

}  // namespace

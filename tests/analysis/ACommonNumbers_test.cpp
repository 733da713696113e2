// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/ACommonNumbers.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <numeric>

#include "core/failure.h"
#include "core/settings.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/Lists.h"
#include "tests/core/failures.h"
#include "tests/support/form_test.h"
#include "tests/support/hot_cold.h"
#include "tests/support/hourglass_watch.h"
#include "tests/support/real_histories.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr const char* headingLabel = "Label4";
constexpr const char* explanationLabel = "Label5";
constexpr const char* lotteryPrompt = "Label1";
constexpr const char* lotteryList = "List1";
constexpr const char* modePrompt = "Label6";
constexpr const char* mainChart = "MSChart1";
constexpr const char* extraChart = "MSChart2";
constexpr const char* tenNumbersHeading = "Label2";
constexpr const char* tenNumbers = "Label3";
constexpr const char* printButton = "Command6";
constexpr const char* closeButton = "Command1";

class CommonNumbersForm : public testing::Test {
  protected:
    CommonNumbersForm() {
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
        AddDailyPlay(test_.folder);
    }

    void Open() {
        form_ = std::make_unique<ACommonNumbers>(test_.program, nullptr);
        form_->Load();
        form_->show();
        QApplication::processEvents();
    }

    void Choose(int index) {
        Find<ListBox>(*form_, lotteryList)->SetIndex(index);
        QApplication::processEvents();
    }

    QLabel& Label(const char* name) { return *Find<QLabel>(*form_, name); }
    QString Text(const char* name) { return Label(name).text(); }
    Chart& MainChart() { return *Find<Chart>(*form_, mainChart); }
    Chart& ExtraChart() { return *Find<Chart>(*form_, extraChart); }

    static std::vector<int> Figures(const Chart& chart) {
        std::vector<int> figures;
        for (int row = 1; row <= chart.rowCount(); ++row) {
            EXPECT_EQ(chart.rowLabel(row), QString::number(row));
            figures.push_back(static_cast<int>(chart.value(row, 1)));
        }
        return figures;
    }

    /// Times of each number in the draws, counted column by column; reversed in cold mode.
    std::vector<int> Counted(int firstColumn, int lastColumn, int highest, bool cold) {
        std::vector<int> times(static_cast<std::size_t>(highest), 0);
        const State& state = test_.state;
        for (int row = 1; state.Draws(row, 1) != 0; ++row) {
            for (int column = firstColumn; column <= lastColumn; ++column) {
                const int number = state.Draws(row, column);
                if (number >= 1 && number <= highest) ++times[static_cast<std::size_t>(number) - 1];
            }
        }
        const int most = *std::ranges::max_element(times);
        if (cold) {
            for (int& time : times) time = most - time;
        }
        return times;
    }

    TestProgram test_;
    std::unique_ptr<ACommonNumbers> form_;
};

TEST_F(CommonNumbersForm, OpensWithTheWordsOfItsDesign) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("ACommonNumbers"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Most Common Numbers"));
    EXPECT_EQ(Text(lotteryPrompt), QStringLiteral("Select a lottery:"));
    EXPECT_EQ(Text(modePrompt), QStringLiteral("Pick hot or cold:"));
    EXPECT_EQ(Text(tenNumbersHeading), QStringLiteral("Hot numbers"));
    EXPECT_EQ(Text(headingLabel), QStringLiteral("Hot Numbers"));
    EXPECT_EQ(MainChart().title(), QStringLiteral("Number frequency"));
    EXPECT_EQ(Find<QRadioButton>(*form_, hotOption)->text(), QStringLiteral("Hot numbers"));
    EXPECT_EQ(Find<QRadioButton>(*form_, coldOption)->text(), QStringLiteral("Cold numbers"));
}

TEST_F(CommonNumbersForm, OpensHotOnTheFirstLottery) {
    Open();
    EXPECT_EQ(Find<ListBox>(*form_, lotteryList)->Index(), 0);
    EXPECT_TRUE(Find<QRadioButton>(*form_, hotOption)->isChecked());
    EXPECT_EQ(MainChart().rowCount(), 49);
    EXPECT_EQ(MainChart().value(17, 1), 1);
    EXPECT_EQ(MainChart().value(18, 1), 0);
    EXPECT_EQ(MainChart().patternColour(), QColor(255, 0, 0));
    EXPECT_EQ(MainChart().fillColour(), QColor(128, 0, 0));
    EXPECT_EQ(Text(tenNumbers), QStringLiteral("1, 2, 3, 13, 17, 22, 24, 34, 35, 41"));
}

TEST_F(CommonNumbersForm, ShowsTheColdTextsColoursAndFigures) {
    Open();
    Click(*form_, coldOption);
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Cold numbers"));
    EXPECT_EQ(Text(headingLabel), QStringLiteral("Cold numbers"));
    EXPECT_EQ(Text(tenNumbersHeading), QStringLiteral("Cold numbers"));
    EXPECT_EQ(Label(tenNumbersHeading).palette().color(QPalette::Window), blue);
    EXPECT_EQ(Label(tenNumbers).palette().color(QPalette::WindowText), blue);
    EXPECT_EQ(MainChart().title(), QStringLiteral(" Least common (cold) numbers "));
    EXPECT_EQ(MainChart().patternColour(), QColor(0, 0, 255));
    EXPECT_EQ(MainChart().fillColour(), QColor(0, 0, 128));
    EXPECT_EQ(Text(explanationLabel),
              QStringLiteral("These charts show which numbers appear the least often. If a lottery "
                             "is random, all numbers should appear an equal number of times. The "
                             "coldest numbers (the ones with the tallest bars in the charts below "
                             ") are therefore overdue. Maybe you should pick them!"));
    EXPECT_EQ(Text(tenNumbers), QStringLiteral("4, 5, 6, 7, 8, 9, 10, 11, 12, 14"));
}

TEST_F(CommonNumbersForm, ShowsTheHotTextsAndColoursOnTheWayBack) {
    Open();
    Click(*form_, coldOption);
    Click(*form_, hotOption);
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Hot numbers"));
    EXPECT_EQ(Text(headingLabel), QStringLiteral("Hot numbers"));
    EXPECT_EQ(Text(tenNumbersHeading), QStringLiteral("Hot numbers"));
    EXPECT_EQ(Label(tenNumbersHeading).palette().color(QPalette::Window), red);
    EXPECT_EQ(Label(tenNumbers).palette().color(QPalette::WindowText), red);
    EXPECT_EQ(MainChart().title(), QStringLiteral(" Most common (hot) numbers "));
    EXPECT_EQ(MainChart().patternColour(), QColor(255, 0, 0));
    EXPECT_EQ(Text(explanationLabel),
              QStringLiteral("These charts show how many times each number has appeared in the "
                             "lottery draw result. Is there a reason why some numbers come up more "
                             "often than others? Are the balls bigger or heavier? Whatever the "
                             "reason, these numbers are HOT!"));
}

TEST_F(CommonNumbersForm, MarksTheTenRankedBarsAndTheAverage) {
    Open();
    const std::vector<int> figures = Figures(MainChart());
    const double sum = std::accumulate(figures.begin(), figures.end(), 0.0);
    ASSERT_TRUE(MainChart().Average().has_value());
    EXPECT_DOUBLE_EQ(*MainChart().Average(), sum / static_cast<double>(figures.size()));
    QStringList ranked;
    for (const int row : MainChart().RankedRows()) ranked += QString::number(row);
    EXPECT_EQ(ranked.join(QStringLiteral(", ")), Text(tenNumbers));
    ASSERT_EQ(ranked.size(), 10);
}

TEST_F(CommonNumbersForm, GivesAHottestNumberABarOfHeightZeroInColdMode) {
    Open();
    ASSERT_EQ(MainChart().value(17, 1), 1);
    ASSERT_EQ(MainChart().value(18, 1), 0);
    Click(*form_, coldOption);
    EXPECT_EQ(MainChart().value(17, 1), 0);
    EXPECT_EQ(MainChart().value(18, 1), 1);
}

TEST_F(CommonNumbersForm, ChartsTheBonusOfABonusLottery) {
    Open();
    EXPECT_EQ(ExtraChart().title(), QStringLiteral(" Bonus frequency (hot nums) "));
    EXPECT_EQ(ExtraChart().rowCount(), 49);
    EXPECT_EQ(ExtraChart().value(9, 1), 1);
    Click(*form_, coldOption);
    EXPECT_EQ(ExtraChart().title(), QStringLiteral(" Bonus frequency (cold nums) "));
    EXPECT_EQ(ExtraChart().value(9, 1), 0);
    EXPECT_EQ(ExtraChart().value(10, 1), 1);
}

TEST_F(CommonNumbersForm, ChartsTheExtraBall) {
    Open();
    Choose(1);
    EXPECT_EQ(ExtraChart().title(), QStringLiteral(" Powerball frequency (hot nums) "));
    EXPECT_EQ(ExtraChart().rowCount(), 14);
    EXPECT_EQ(ExtraChart().value(6, 1), 1);
    Click(*form_, coldOption);
    EXPECT_EQ(ExtraChart().title(), QStringLiteral(" Powerball frequency (cold nums) "));
    EXPECT_EQ(ExtraChart().value(6, 1), 0);
}

TEST_F(CommonNumbersForm, ChartsTheExtraBallOfALotteryThatHasBoth) {
    AddLottery(test_.folder, "dbase103.txt", "Both", "2,9,1,4,1", {"28 May 05,1,2,0,0,0,0,0,3"});
    Open();
    Choose(3);
    EXPECT_EQ(ExtraChart().title(), QStringLiteral(" Powerball frequency (hot nums) "));
    EXPECT_EQ(ExtraChart().rowCount(), 4);
    EXPECT_EQ(ExtraChart().value(3, 1), 1);
}

TEST_F(CommonNumbersForm, LeavesTheSecondChartAsItIsWhereAFieldBelowZeroTellsOfABall) {
    AddLottery(test_.folder, "dbase103.txt", "Odd", "2,9,1,-1,0", {"28 May 05,1,2,0,0,0,0,0,3"});
    Open();
    Choose(3);
    EXPECT_EQ(MainChart().rowCount(), 9);
    EXPECT_TRUE(ExtraChart().isVisible());
    EXPECT_EQ(ExtraChart().title(), QStringLiteral(" Bonus frequency (hot nums) "));
    EXPECT_EQ(ExtraChart().rowCount(), 49);
}

TEST_F(CommonNumbersForm, NamesTheSecondChartForTheBonusUntilALotteryFillsIt) {
    for (const std::string& file : test_.folder.Find("dbase*.txt")) test_.folder.Delete(file);
    AddDailyPlay(test_.folder);
    Open();
    EXPECT_FALSE(ExtraChart().isVisible());
    EXPECT_EQ(ExtraChart().title(), QStringLiteral("Bonus number frequency"));
    EXPECT_EQ(ExtraChart().rowCount(), 0);
}

TEST_F(CommonNumbersForm, ShowsOneWideChartForALotteryWithNeither) {
    Open();
    const int beside = MainChart().width();
    EXPECT_TRUE(ExtraChart().isVisible());
    Choose(2);
    EXPECT_FALSE(ExtraChart().isVisible());
    EXPECT_GT(MainChart().width(), beside * 3 / 2);
    EXPECT_EQ(MainChart().width(), form_->width() - 32);
    Choose(0);
    EXPECT_TRUE(ExtraChart().isVisible());
    EXPECT_EQ(MainChart().width(), beside);
}

TEST_F(CommonNumbersForm, ShowsBarsOfZeroAndTenOnesForALotteryWithoutDraws) {
    Open();
    for (const char* option : {hotOption, coldOption}) {
        Click(*form_, option);
        Choose(2);
        EXPECT_EQ(Figures(MainChart()), std::vector<int>(27, 0));
        EXPECT_EQ(Text(tenNumbers), QStringLiteral("1, 1, 1, 1, 1, 1, 1, 1, 1, 1"));
    }
}

TEST_F(CommonNumbersForm, RepeatsANumberInTheTextOfALotteryOfFewerThanTen) {
    AddLottery(test_.folder, "dbase103.txt", "Small", "2,5,0,0,0", {"28 May 05,3,5,0,0,0,0,0,0"});
    Open();
    Choose(3);
    EXPECT_EQ(Text(tenNumbers), QStringLiteral("3, 5, 1, 1, 1, 1, 1, 1, 1, 1"));
    EXPECT_EQ(Figures(MainChart()), (std::vector<int>{0, 0, 1, 0, 1}));
}

TEST_F(CommonNumbersForm, PutsTheLowerOfTwoThatTieFirstInBothModes) {
    AddLottery(
        test_.folder, "dbase103.txt", "Small", "2,5,0,0,0",
        {"28 May 05,2,4,0,0,0,0,0,0", "27 May 05,2,4,0,0,0,0,0,0", "26 May 05,1,3,0,0,0,0,0,0"});
    Open();
    Choose(3);
    EXPECT_TRUE(Text(tenNumbers).startsWith(QStringLiteral("2, 4, 1, 3, 5")));
    Click(*form_, coldOption);
    EXPECT_TRUE(Text(tenNumbers).startsWith(QStringLiteral("5, 1, 3, 2")));
}

TEST_F(CommonNumbersForm, ReadsTheDatabaseAgainOnAChangeOfMode) {
    Open();
    AddLottery(test_.folder, "dbase100.txt", "UK Lotto", "6,49,0,0,1",
               {"01 Jun 05,40,41,42,43,44,45,0,9"});
    Click(*form_, hotOption);
    EXPECT_EQ(Text(tenNumbers), QStringLiteral("40, 41, 42, 43, 44, 45, 1, 1, 1, 1"));
}

TEST_F(CommonNumbersForm, ShowsTheHourglassWhileALotteryIsLoadedAndCharted) {
    Open();
    const HourglassWatch watch(ExtraChart(), QEvent::HideToParent);
    Find<ListBox>(*form_, lotteryList)->SetIndex(2);
    EXPECT_EQ(watch.UnderHourglass(), 1);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(CommonNumbersForm, LeavesNoFiguresOfTheLotteryBefore) {
    Open();
    Choose(1);
    EXPECT_EQ(MainChart().rowCount(), 34);
    EXPECT_EQ(Figures(MainChart()), Counted(1, 5, 34, false));
}

TEST_F(CommonNumbersForm, TakesTheSkinsColours) {
    test_.state.Settings(setting::SkinBits) = "2";
    test_.state.Settings(setting::TitleColour) = "&H000001";
    test_.state.Settings(setting::BodyColour) = "&H000002";
    test_.state.Settings(setting::SmallLabelColour) = "&H000003";
    test_.state.Settings(setting::BackgroundColour) = "&H00FFEEDD";
    Open();
    EXPECT_EQ(Label(headingLabel).palette().color(QPalette::WindowText), QColor(1, 0, 0));
    EXPECT_EQ(Label(explanationLabel).palette().color(QPalette::WindowText), QColor(2, 0, 0));
    EXPECT_EQ(Label(lotteryPrompt).palette().color(QPalette::WindowText), QColor(3, 0, 0));
    EXPECT_EQ(Label(modePrompt).palette().color(QPalette::WindowText), QColor(3, 0, 0));
    EXPECT_EQ(form_->palette().color(QPalette::Window), QColor(0xdd, 0xee, 0xff));
    EXPECT_EQ(Label(tenNumbers).palette().color(QPalette::WindowText), red);
}

TEST_F(CommonNumbersForm, PrintsItselfWherePrintingIsThere) {
    Open();
    EXPECT_FALSE(Find<QPushButton>(*form_, printButton)->isEnabled());
    const QWidget* printed = nullptr;
    test_.services.printForm = [&](QWidget& form) { printed = &form; };
    Open();
    Click(*form_, printButton);
    EXPECT_EQ(printed, form_.get());
}

TEST_F(CommonNumbersForm, ClosesByItsButtonAndByEsc) {
    Open();
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
    Open();
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(CommonNumbersForm, LeadsTheTabKeyInReadingOrderFromTheFirstControl) {
    Open();
    QStringList reached;
    for (QWidget* widget = form_->nextInFocusChain(); widget != form_.get();
         widget = widget->nextInFocusChain()) {
        if ((widget->focusPolicy() & Qt::TabFocus) != 0) reached << widget->objectName();
    }
    EXPECT_EQ(reached.join(QLatin1Char(' ')),
              QStringLiteral("List1 Option1(0) Option1(1) MSChart1 MSChart2 Command6 Command1"));
}

TEST_F(CommonNumbersForm, EndsInTheReportOnANumberAboveSeventyAndOnAFullTable) {
    AddLottery(test_.folder, "dbase103.txt", "Big", "1,49,0,0,0", {"28 May 05,71,,,,,,,"});
    AddLottery(test_.folder, "dbase104.txt", "Full", "1,49,0,0,0",
               std::vector<std::string>(3000, "28 May 05,7,,,,,,,"));
    Open();
    EXPECT_THROW(Choose(3), Failure);
    EXPECT_THROW(Choose(4), Failure);
}

TEST_F(CommonNumbersForm, EndsInTheReportWithoutALottery) {
    MemoryFolder empty;
    Program program{test_.state, empty, test_.services};
    ACommonNumbers form(program, nullptr);
    EXPECT_THROW(form.Load(), Failure);
}

TEST_F(CommonNumbersForm, ChartsWhatAPlainCountGivesOnRealHistoriesInBothModes) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    auto* list = Find<ListBox>(*form_, lotteryList);
    ASSERT_EQ(list->count(), 8);
    for (const bool cold : {false, true}) {
        Click(*form_, cold ? coldOption : hotOption);
        for (int index = 0; index < 8; ++index) {
            Choose(index);
            const State& state = test_.state;
            EXPECT_EQ(Figures(MainChart()), Counted(1, state.Picks, state.MaxNum, cold));
            const int balls = state.MaxPball > 0 ? state.MaxPball : state.MaxNum;
            const bool second = state.MaxPball > 0 || state.HasBonus > 0;
            EXPECT_EQ(ExtraChart().isVisible(), second) << state.LotteryName;
            if (second) {
                EXPECT_EQ(Figures(ExtraChart()), Counted(8, 8, balls, cold));
            }
            EXPECT_EQ(Text(tenNumbers).split(QStringLiteral(", ")).size(), 10);
        }
    }
}

TEST_F(CommonNumbersForm, AThousandMillionNumbersEndTheRunBeforeTheChartIsMade) {
    AddLottery(test_.folder, "dbase000.txt", "Huge", "6,1000000000,0,0,0",
               {"28 May 05,1,2,3,4,5,6,0,0"});
    form_ = std::make_unique<ACommonNumbers>(test_.program, nullptr);
    EXPECT_EQ(
        FailureOf([&] { form_->Load(); }),
        "The list of counts of main numbers was asked for entry 1000000000; its last entry is "
        "70.");
    EXPECT_EQ(MainChart().rowCount(), 0);
}

}  // namespace

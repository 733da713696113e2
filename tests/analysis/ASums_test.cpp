// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/ASums.h"

#include "analysis/draw_sums.h"
#include "tests/analysis/analysis_form.h"

namespace {

class SumsForm : public AnalysisFormTest<ASums> {
  protected:
    SumsForm() : AnalysisFormTest({"28 May 05,1,2,3,4,5,6,7,0"}) {}
};

TEST_F(SumsForm, HasTheWordsOfItsDesign) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("ASums"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Analyse sums"));
    EXPECT_EQ(Text("Label4"), QStringLiteral("Sums"));
    EXPECT_EQ(Text("Label1"), QStringLiteral("Select a lottery:"));
    EXPECT_EQ(
        Text("Label5"),
        QStringLiteral("To calculate the sum of a lottery draw result, just add all the numbers "
                       "together. Few sums are very small and few are very large. In theory, the "
                       "sum of the draw numbers could be under 30, but it never is. Perhaps you "
                       "should check the sums of your lottery entries to make sure that they are "
                       "close to the average!"));
    EXPECT_EQ(
        Text("Label11"),
        QStringLiteral("<--- A lottery draw result could contain all low numbers or all high "
                       "numbers, but this rarely happens. This chart shows the ratio of low "
                       "numbers to high numbers. It shows that the most common draw result has an "
                       "even mixture of low and high numbers."));
    EXPECT_EQ(Label("Label11").textFormat(), Qt::PlainText);
    EXPECT_EQ(Text("Label12"), QStringLiteral("High/Low numbers"));
    EXPECT_EQ(Text("Label20"), QStringLiteral("Last 4 draws     "));
    EXPECT_EQ(Text("Label6"), QStringLiteral("Smallest sum:"));
    EXPECT_EQ(Text("Label7"), QStringLiteral("Largest sum:"));
    EXPECT_EQ(Text("Label8"), QStringLiteral("Average sum:"));
    EXPECT_EQ(ChartOf("MSChart1").title(), QStringLiteral(" Sums of most recent lottery draws "));
    EXPECT_EQ(ChartOf("MSChart3").title(), QStringLiteral(" Low:High ratio in draw results "));
}

TEST_F(SumsForm, OpensOnTheSumsOfTheFirstLottery) {
    Open();
    EXPECT_EQ(Find<ListBox>(*form_, "List1")->Index(), 0);
    EXPECT_EQ(Values("MSChart1"), WithZeros({165, 121}, 50));
    EXPECT_EQ(Text("Label2"), QStringLiteral("121"));
    EXPECT_EQ(Text("Label9"), QStringLiteral("165"));
    EXPECT_EQ(Text("Label10"), QStringLiteral("143"));
    ASSERT_TRUE(ChartOf("MSChart1").Average().has_value());
    EXPECT_EQ(*ChartOf("MSChart1").Average(), 143);
}

TEST_F(SumsForm, SaysWhichDrawABarIs) {
    Open();
    const QStringList hovers = Hovers("MSChart1");
    EXPECT_EQ(hovers[0], QStringLiteral("draw 1, the newest: 165"));
    EXPECT_EQ(hovers[1], QStringLiteral("draw 2: 121"));
    EXPECT_EQ(hovers[2], QStringLiteral("behind the last draw: 0"));
    EXPECT_EQ(ChartOf("MSChart1").rowLabel(50), QStringLiteral("50"));
}

TEST_F(SumsForm, ChartsTheRatiosOfSixNumbers) {
    Open();
    EXPECT_EQ(Values("MSChart3"), (std::vector<int>{0, 0, 0, 1, 1, 0, 0, 0}));
    EXPECT_EQ(Labels("MSChart3"), QStringLiteral("0:6 1:5 2:4 3:3 4:2 5:1 6:0 "));
    EXPECT_EQ(Hovers("MSChart3")[4], QStringLiteral("4 low, 2 high: 1"));
    EXPECT_EQ(ChartOf("MSChart3").RankedRows(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(SumsForm, FillsAllEightRowsWithSevenNumbersAndLeavesTwoEmptyWithFive) {
    Open();
    Choose(2);
    EXPECT_EQ(Labels("MSChart3"), QStringLiteral("0:7 1:6 2:5 3:4 4:3 5:2 6:1 7:0"));
    EXPECT_EQ(ChartOf("MSChart3").value(8, 1), 1);
    Choose(1);
    EXPECT_EQ(Labels("MSChart3"), QStringLiteral("0:5 1:4 2:3 3:2 4:1 5:0  "));
    EXPECT_EQ(Values("MSChart3"), (std::vector<int>{0, 0, 0, 1, 0, 0, 0, 0}));
    EXPECT_EQ(Hovers("MSChart3")[7], QStringLiteral("0"));
}

TEST_F(SumsForm, WritesTheLastFourDrawsBesideTheirRatios) {
    OpenOn("6,49,0,0,1", {"05 Jun 05,30,7,44,11,49,5,0,2", "04 Jun 05,24,23,25,26,27,28,0,2",
                          "03 Jun 05,1,2,3,4,5,6,0,2", "02 Jun 05,44,45,46,47,48,49,0,2",
                          "01 Jun 05,9,9,9,9,9,9,0,9"});
    EXPECT_EQ(Text("Label19"), QStringLiteral(" 30, 7, 44, 11, 49, 5"));
    EXPECT_EQ(Text("Label17"), QStringLiteral("3:3"));
    EXPECT_EQ(Text("Label18"), QStringLiteral(" 24, 23, 25, 26, 27, 28"));
    EXPECT_EQ(Text("Label16"), QStringLiteral("1:5")) << "24 of 49 is high here";
    EXPECT_EQ(ChartOf("MSChart3").value(3, 1), 1) << "and low in the chart";
    EXPECT_EQ(Text("Label3"), QStringLiteral(" 1, 2, 3, 4, 5, 6"));
    EXPECT_EQ(Text("Label15"), QStringLiteral("6:0"));
    EXPECT_EQ(Text("Label13"), QStringLiteral(" 44, 45, 46, 47, 48, 49"));
    EXPECT_EQ(Text("Label14"), QStringLiteral("0:6"));
}

TEST_F(SumsForm, ShowsZerosForDrawsThatAreNotThere) {
    Open();
    EXPECT_EQ(Text("Label3"), QStringLiteral(" 0, 0, 0, 0, 0, 0"));
    EXPECT_EQ(Text("Label15"), QStringLiteral("6:0"));
    EXPECT_EQ(Text("Label14"), QStringLiteral("6:0"));
}

TEST_F(SumsForm, TakesFourOfTheSixNumbersOfHotPicks) {
    OpenOn("4,49,0,0,0", {"05 Jun 05,1,2,3,4,40,41,0,0"});
    EXPECT_EQ(Text("Label10"), QStringLiteral("10"));
    EXPECT_EQ(Text("Label19"), QStringLiteral(" 1, 2, 3, 4"));
    EXPECT_EQ(Text("Label17"), QStringLiteral("4:0"));
}

TEST_F(SumsForm, ReadsTheDatabaseAgainWhenTheSameLotteryIsChosen) {
    Open();
    AddLottery(test_.folder, "dbase100.txt", "UK Lotto", "6,49,0,0,1",
               {"01 Jun 05,40,41,42,43,44,45,0,9"});
    ClickLottery(0);
    EXPECT_EQ(Values("MSChart1"), WithZeros({255}, 50));
    EXPECT_EQ(Text("Label19"), QStringLiteral(" 40, 41, 42, 43, 44, 45"));
}

TEST_F(SumsForm, EndsTheRunWithoutDrawsAndWithoutALottery) {
    AddDailyPlay(test_.folder);
    Open();
    EXPECT_THROW(Choose(2), Failure);
    EXPECT_THROW(OpenOn("6,49,0,0,1", {}), Failure);
    ExpectFailsWithoutALottery();
}

TEST_F(SumsForm, TakesTheSkinsColours) {
    ChooseSkinColours();
    Open();
    EXPECT_EQ(ColourOf("Label4"), QColor(1, 0, 0));
    for (const char* text : {"Label5", "Label11"}) EXPECT_EQ(ColourOf(text), QColor(2, 0, 0));
    for (const char* prompt : {"Label1", "Label6", "Label7", "Label8", "Label12", "Label20"}) {
        EXPECT_EQ(ColourOf(prompt), QColor(3, 0, 0)) << prompt;
    }
}

TEST_F(SumsForm, PrintsItselfAndCloses) { ExpectPrintsItself(); }

TEST_F(SumsForm, LeadsTheTabKeyDownTheForm) {
    Open();
    EXPECT_EQ(TabOrder(), QStringLiteral("List1 MSChart1 MSChart3 Command6 Command1"));
}

TEST_F(SumsForm, ShowsTheFiguresOfRealHistories) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    for (int index = 0; index < Find<ListBox>(*form_, "List1")->count(); ++index) {
        Choose(index);
        const auto figures = draw_sums::Analyse(View(test_.state));
        EXPECT_EQ(Values("MSChart1"), (std::vector<int>{figures.sums.begin(), figures.sums.end()}));
        EXPECT_EQ(Text("Label10"), QString::number(figures.average));
        for (int low = 0; low <= test_.state.Picks; ++low) {
            EXPECT_EQ(ChartOf("MSChart3").value(low + 1, 1), figures.RatioCount(low));
        }
    }
}

}  // namespace

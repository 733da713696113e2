// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/ARange.h"

#include "analysis/draw_ranges.h"
#include "tests/analysis/analysis_form.h"

namespace {

using RangeForm = AnalysisFormTest<ARange>;

TEST_F(RangeForm, HasTheWordsOfItsDesign) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("ARange"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Analyse Number Range"));
    EXPECT_EQ(Text("Label4"), QStringLiteral("Number ranges"));
    EXPECT_EQ(Text("Label1"), QStringLiteral("Select a lottery:"));
    EXPECT_EQ(
        Text("Label5"),
        QStringLiteral("A lottery draw's range is calculated by subtracting the lowest draw number "
                       "from the highest. So if the highest is 35 and the lowest is 3, the range "
                       "would be 32. The chart below plots the range of recent lottery draws."));
    EXPECT_EQ(Text("Label2"),
              QStringLiteral("The charts show that it is rare for lottery numbers to be bunched "
                             "close together (a small range). Therefore you should spread out your "
                             "numbers and ensure there is an adequate gap between the smallest and "
                             "largest."));
    EXPECT_EQ(ChartOf("MSChart1").title(), QStringLiteral(" Range of numbers - last 50 draws "));
    EXPECT_EQ(ChartOf("MSChart2").title(),
              QStringLiteral(" Number of times a range has occurred "));
}

TEST_F(RangeForm, OpensOnTheRangesOfTheFirstLottery) {
    Open();
    EXPECT_EQ(Values("MSChart1"), WithZeros({45, 45}, 50));
    EXPECT_EQ(Text("Label3"), QStringLiteral("Average range is 30")) << "90 divided by 3";
    EXPECT_EQ(*ChartOf("MSChart1").Average(), 30);
    EXPECT_EQ(ChartOf("MSChart2").rowCount(), 49);
    EXPECT_EQ(ChartOf("MSChart2").rowLabel(45), QStringLiteral("45"));
    EXPECT_EQ(ChartOf("MSChart2").value(45, 1), 2);
    EXPECT_EQ(ChartOf("MSChart2").value(1, 1), 0) << "rows behind the draws have range 0";
}

TEST_F(RangeForm, SaysWhichDrawABarIs) {
    Open();
    EXPECT_EQ(Hovers("MSChart1")[0], QStringLiteral("draw 1, the newest: 45"));
    EXPECT_EQ(Hovers("MSChart1")[49], QStringLiteral("behind the last draw: 0"));
}

TEST_F(RangeForm, DrawsBothChartsAnew) {
    Open();
    EXPECT_EQ(Hovers("MSChart2").value(44), QStringLiteral("45: 2"));
    Choose(1);
    EXPECT_EQ(Hovers("MSChart1").value(0), QStringLiteral("draw 1, the newest: 26"));
    EXPECT_EQ(Hovers("MSChart2").size(), 34);
    EXPECT_EQ(Hovers("MSChart2").value(25), QStringLiteral("26: 1"));
}

TEST_F(RangeForm, SortsTheDrawsFirst) {
    OpenOn("3,20,0,0,0", {"05 Jun 05,7,19,2,,,,,1", "04 Jun 05,5,1,8,,,,,20"});
    EXPECT_EQ(Values("MSChart1"), WithZeros({17, 7}, 50));
    EXPECT_EQ(Text("Label3"), QStringLiteral("Average range is 8"));
}

TEST_F(RangeForm, HalvesTheRangeOfASingleDraw) {
    Open();
    Choose(1);
    EXPECT_EQ(Values("MSChart1"), WithZeros({26}, 50));
    EXPECT_EQ(Text("Label3"), QStringLiteral("Average range is 13"));
    EXPECT_EQ(ChartOf("MSChart2").rowCount(), 34);
}

TEST_F(RangeForm, AveragesToZeroWithoutDraws) {
    Open();
    Choose(2);
    EXPECT_EQ(Text("Label3"), QStringLiteral("Average range is 0"));
    EXPECT_EQ(Values("MSChart1"), std::vector<int>(50, 0));
    EXPECT_EQ(Values("MSChart2"), std::vector<int>(27, 0));
}

TEST_F(RangeForm, CountsAfreshForEachLottery) {
    Open();
    ClickLottery(0);
    EXPECT_EQ(ChartOf("MSChart2").value(45, 1), 2);
}

TEST_F(RangeForm, EndsTheRunAtARangeThatCannotBeCounted) {
    EXPECT_THROW(OpenOn("2,49,0,0,0", {"05 Jun 05,1,102,,,,,,"}), Failure);
    EXPECT_THROW(
        OpenOn("2,49,0,0,0", {"05 Jun 05,1,2,,,,,,", "04 Jun 05,0,2,,,,,,", "03 Jun 05,7,2,,,,,,"}),
        Failure)
        << "the row behind the end mark is not in order";
    ExpectFailsWithoutALottery();
}

TEST_F(RangeForm, TakesTheSkinsColours) {
    ChooseSkinColours();
    Open();
    EXPECT_EQ(ColourOf("Label4"), QColor(1, 0, 0));
    for (const char* text : {"Label5", "Label2"}) {
        EXPECT_EQ(ColourOf(text), QColor(2, 0, 0)) << text;
    }
    EXPECT_EQ(ColourOf("Label1"), QColor(3, 0, 0));
}

TEST_F(RangeForm, PrintsItselfAndCloses) { ExpectPrintsItself(); }

TEST_F(RangeForm, LeadsTheTabKeyDownTheForm) {
    Open();
    EXPECT_EQ(TabOrder(), QStringLiteral("List1 MSChart1 MSChart2 Command6 Command1"));
}

TEST_F(RangeForm, ShowsTheFiguresOfRealHistories) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    for (int index = 0; index < Find<ListBox>(*form_, "List1")->count(); ++index) {
        Choose(index);
        const auto figures = draw_ranges::AnalyseRange(View(test_.state));
        EXPECT_EQ(Values("MSChart1"),
                  (std::vector<int>{figures.recent.begin(), figures.recent.end()}));
        EXPECT_EQ(Text("Label3"), QStringLiteral("Average range is %1").arg(figures.average));
        for (int range = 1; range <= test_.state.MaxNum; ++range) {
            EXPECT_EQ(ChartOf("MSChart2").value(range, 1), figures.RangeCount(range));
        }
    }
}

}  // namespace

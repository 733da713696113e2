// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/AOddEven.h"

#include "analysis/odd_even.h"
#include "platform/widgets/NumberColours.h"
#include "tests/analysis/analysis_form.h"

namespace {

class OddEvenForm : public AnalysisFormTest<AOddEven> {
  protected:
    /// Bars of both colours stand in the picture of the chart.
    void ExpectBothColours(const char* chart) {
        const QImage image = ChartOf(chart).grab().toImage();
        int odd = 0;
        int even = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                odd += image.pixelColor(x, y) == OddColour();
                even += image.pixelColor(x, y) == EvenColours().bars;
            }
        }
        EXPECT_GT(odd, 1000);
        EXPECT_GT(even, 1000);
    }
};

TEST_F(OddEvenForm, HasTheWordsOfItsDesign) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("AOddEven"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Analyse Odd/Even"));
    EXPECT_EQ(Text("Label4"), QStringLiteral("Odd:Even ratios"));
    EXPECT_EQ(Text("Label1"), QStringLiteral("Select a lottery:"));
    EXPECT_EQ(
        Text("Label5"),
        QStringLiteral("These charts examine the ratio of odd to even numbers in lottery draws. "
                       "Although it is possible for the draw result to contain all odd numbers or "
                       "all even numbers, this rarely happens. It is best for your lottery entries "
                       "to have roughly equal numbers of odd and even numbers."));
    EXPECT_EQ(Text("Label7"),
              QStringLiteral("<---- This shows the total number of odd and even numbers in the "
                             "lottery draw results. They are roughtly equal, showing no bias."));
    EXPECT_EQ(
        Text("Label8"),
        QStringLiteral("This shows the ratio of odd to even numbers in each draw. It is rare for "
                       "all odd or all even numbers to be drawn. The most common result is when "
                       "roughtly half the numbers are odd and half are even ---->"));
    EXPECT_EQ(Text("Label6"), QStringLiteral("Last 4 draws     "));
    EXPECT_EQ(ChartOf("MSChart1").title(),
              QStringLiteral("  Odd (blue):Even (green) numbers in recent draws  "));
    EXPECT_EQ(ChartOf("MSChart2").title(), QStringLiteral(" Totals"));
    EXPECT_EQ(ChartOf("MSChart3").title(), QStringLiteral(" Ratio of odd:even numbers "));
}

TEST_F(OddEvenForm, ChartsOddAndEvenNumbersOfRecentDraws) {
    Open();
    EXPECT_EQ(ChartOf("MSChart1").rowCount(), 50);
    EXPECT_EQ(ChartOf("MSChart1").columnLabel(1), QStringLiteral("Odd"));
    EXPECT_EQ(ChartOf("MSChart1").columnLabel(2), QStringLiteral("Even"));
    EXPECT_EQ(Values("MSChart1", 1), WithZeros({3, 3}, 50));
    EXPECT_EQ(Values("MSChart1", 2), WithZeros({3, 3}, 50));
    EXPECT_EQ(Hovers("MSChart1")[0], QStringLiteral("draw 1, the newest: Odd 3, Even 3"));
    EXPECT_EQ(Hovers("MSChart1")[2], QStringLiteral("behind the last draw: Odd 0, Even 0"));
}

TEST_F(OddEvenForm, ClearsWhatALongerHistoryLeft) {
    AddLottery(test_.folder, "dbase103.txt", "Long", "2,9,0,0,0",
               Repeated(60, "28 May 05,1,2,0,0,0,0,0,0"));
    Open();
    Choose(3);
    EXPECT_EQ(Values("MSChart1", 2), std::vector<int>(50, 1));
    EXPECT_EQ(Values("MSChart2"), (std::vector<int>{60, 60}));
    Choose(0);
    EXPECT_EQ(Values("MSChart1", 1), WithZeros({3, 3}, 50));
    EXPECT_EQ(Values("MSChart1", 2), WithZeros({3, 3}, 50));
    EXPECT_EQ(Values("MSChart3"), (std::vector<int>{0, 0, 0, 2, 0, 0, 0, 0}));
}

TEST_F(OddEvenForm, ChartsTheTotalsInTheColoursOfTheirSeries) {
    Open();
    EXPECT_EQ(Values("MSChart2"), (std::vector<int>{6, 6}));
    EXPECT_EQ(Labels("MSChart2"), QStringLiteral("Odd Even"));
    EXPECT_EQ(ChartOf("MSChart1").fillColour(), OddColour());
    ExpectBothColours("MSChart2");
}

TEST_F(OddEvenForm, ChartsOddNumbersInBlueAndEvenOnesInGreen) {
    OpenOn("2,9,0,0,0", Repeated(60, "28 May 05,1,2,0,0,0,0,0,0"));
    ExpectBothColours("MSChart1");
}

TEST_F(OddEvenForm, DrawsItsTotalsAnew) {
    Open();
    EXPECT_EQ(Hovers("MSChart2"),
              (QStringList{QStringLiteral("Odd: 6"), QStringLiteral("Even: 6")}))
        << Hovers("MSChart2").join(QLatin1Char('|')).toStdString();
    Choose(1);
    EXPECT_NE(Hovers("MSChart2").value(0), QStringLiteral("Odd: 6"));
}

TEST(TheColoursOfOddAndEven, AreBlueAndGreenAndStayApartWithoutTheirHues) {
    const QColor odd = OddColour();
    const QColor even = EvenColours().bars;
    EXPECT_GT(odd.blue(), odd.green());
    EXPECT_GT(odd.blue(), odd.red());
    EXPECT_GT(even.green(), even.blue());
    EXPECT_GT(even.green(), even.red());
    EXPECT_GT(qGray(even.rgb()) - qGray(odd.rgb()), 60);
}

TEST_F(OddEvenForm, CountsEvenNumbersUnderATitleThatSaysOddFirst) {
    OpenOn("6,49,0,0,1", {"05 Jun 05,30,7,44,11,49,5,0,2", "04 Jun 05,2,4,6,8,10,12,0,1"});
    EXPECT_EQ(Labels("MSChart3"), QStringLiteral("0:6 1:5 2:4 3:3 4:2 5:1 6:0 "));
    EXPECT_EQ(Values("MSChart3"), (std::vector<int>{0, 0, 1, 0, 0, 0, 1, 0}));
    EXPECT_EQ(Hovers("MSChart3")[2], QStringLiteral("2 even, 4 odd: 1"));
    EXPECT_EQ(Text("Label2"), QStringLiteral(" 30, 7, 44, 11, 49, 5"));
    EXPECT_EQ(Text("Label9"), QStringLiteral("4:2"));
}

TEST_F(OddEvenForm, WritesTheLastFourDrawsBesideTheirRatios) {
    OpenOn("2,9,0,0,0", {"05 Jun 05,1,3,,,,,,", "04 Jun 05,2,4,,,,,,", "03 Jun 05,5,6,,,,,,",
                         "02 Jun 05,7,9,,,,,,", "01 Jun 05,8,8,,,,,,"});
    EXPECT_EQ(Text("Label2") + Text("Label9"), QStringLiteral(" 1, 32:0"));
    EXPECT_EQ(Text("Label3") + Text("Label10"), QStringLiteral(" 2, 40:2"));
    EXPECT_EQ(Text("Label12") + Text("Label11"), QStringLiteral(" 5, 61:1"));
    EXPECT_EQ(Text("Label13") + Text("Label14"), QStringLiteral(" 7, 92:0"));
}

TEST_F(OddEvenForm, CountsADrawOfEvenNumbersWhereThereIsNone) {
    Open();
    Choose(2);
    EXPECT_EQ(Values("MSChart1", 1), std::vector<int>(50, 0));
    EXPECT_EQ(Values("MSChart1", 2), WithZeros({7}, 50));
    EXPECT_EQ(Values("MSChart2"), (std::vector<int>{0, 7}));
    EXPECT_EQ(Values("MSChart3"), (std::vector<int>{0, 0, 0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(Labels("MSChart3"), QStringLiteral("0:7 1:6 2:5 3:4 4:3 5:2 6:1 7:0"));
    EXPECT_EQ(Text("Label2"), QStringLiteral(" 0, 0, 0, 0, 0, 0, 0"));
    EXPECT_EQ(Text("Label14"), QStringLiteral("0:7"));
}

TEST_F(OddEvenForm, LeavesTheLastRowsEmptyWithFiveNumbers) {
    Open();
    Choose(2);
    Choose(1);
    EXPECT_EQ(Labels("MSChart3"), QStringLiteral("0:5 1:4 2:3 3:2 4:1 5:0  "));
    EXPECT_EQ(Values("MSChart3"), (std::vector<int>{0, 0, 1, 0, 0, 0, 0, 0}));
}

TEST_F(OddEvenForm, EndsTheRunOnEightNumbersAndWithoutALottery) {
    EXPECT_THROW(OpenOn("8,49,0,0,0", {"05 Jun 05,1,2,3,4,5,6,7,8"}), Failure);
    ExpectFailsWithoutALottery();
}

TEST_F(OddEvenForm, TakesTheSkinsColours) {
    ChooseSkinColours();
    Open();
    EXPECT_EQ(ColourOf("Label4"), QColor(1, 0, 0));
    for (const char* text : {"Label5", "Label7", "Label8"}) {
        EXPECT_EQ(ColourOf(text), QColor(2, 0, 0)) << text;
    }
    for (const char* prompt : {"Label1", "Label6"}) {
        EXPECT_EQ(ColourOf(prompt), QColor(3, 0, 0)) << prompt;
    }
}

TEST_F(OddEvenForm, PrintsItselfAndCloses) { ExpectPrintsItself(); }

TEST_F(OddEvenForm, LeadsTheTabKeyDownTheForm) {
    Open();
    EXPECT_EQ(TabOrder(), QStringLiteral("List1 MSChart1 MSChart2 MSChart3 Command6 Command1"));
}

TEST_F(OddEvenForm, ShowsTheFiguresOfRealHistories) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    for (int index = 0; index < Find<ListBox>(*form_, "List1")->count(); ++index) {
        Choose(index);
        const auto figures = odd_even::Analyse(View(test_.state));
        for (int row = 1; row <= 50; ++row) {
            const auto& draw = figures.recent[static_cast<std::size_t>(row - 1)];
            EXPECT_EQ(ChartOf("MSChart1").value(row, 1), draw.odd);
            EXPECT_EQ(ChartOf("MSChart1").value(row, 2), draw.even);
        }
        EXPECT_EQ(Values("MSChart2"), (std::vector<int>{figures.total.odd, figures.total.even}));
        for (int even = 0; even <= test_.state.Picks; ++even) {
            EXPECT_EQ(ChartOf("MSChart3").value(even + 1, 1), figures.EvenCount(even));
        }
    }
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/AAverages.h"

#include <QRadioButton>

#include "analysis/position_averages.h"
#include "tests/analysis/analysis_form.h"

namespace {

class AveragesForm : public AnalysisFormTest<AAverages> {
  protected:
    QRadioButton& Option(int index) {
        return *Find<QRadioButton>(*form_, qPrintable(QStringLiteral("Option3(%1)").arg(index)));
    }

    void Pick(int position) {
        Click(*form_, qPrintable(QStringLiteral("Option3(%1)").arg(position - 1)));
        QApplication::processEvents();
    }

    QString Title() { return ChartOf("MSChart1").title(); }
};

TEST_F(AveragesForm, HasTheWordsOfItsDesign) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("AAverages"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Number Averages"));
    EXPECT_EQ(Text("Label4"), QStringLiteral("Number Averages"));
    EXPECT_EQ(Text("Label1"), QStringLiteral("Select a lottery:"));
    EXPECT_EQ(Text("Label2"), QStringLiteral("Average value:"));
    EXPECT_EQ(Text("Label7"), QStringLiteral("Pick draw number"));
    EXPECT_EQ(
        Text("Label5"),
        QStringLiteral("The top chart plots the value of the selected draw lottery number (sorted, "
                       "not draw order) over the past 100 draws. The average value is displayed. "
                       "There may be benefits to choosing lottery numbers close to the average."));
    EXPECT_EQ(
        Text("Label6"),
        QStringLiteral("The bottom chart plots the number of times each number occurs for the "
                       "selected draw number. For example, select 1st number and you can see which "
                       "numbers have occured in this position and how many times."));
    EXPECT_EQ(ChartOf("MSChart2").title(),
              QStringLiteral(" How many times a number has appeared "));
    const QStringList captions = {QStringLiteral("1st number"), QStringLiteral("2nd number"),
                                  QStringLiteral("3rd number"), QStringLiteral("4th number"),
                                  QStringLiteral("5th number"), QStringLiteral("6th number"),
                                  QStringLiteral("7th number")};
    for (int index = 0; index < 7; ++index) EXPECT_EQ(Option(index).text(), captions[index]);
}

TEST_F(AveragesForm, OpensOnTheFirstPositionOfTheSortedDraws) {
    OpenOn("3,9,0,0,0", {"05 Jun 05,7,9,2,,,,,", "04 Jun 05,5,1,8,,,,,"});
    EXPECT_TRUE(Option(0).isChecked());
    EXPECT_EQ(Text("Label3"), QStringLiteral(" 1"));
    EXPECT_EQ(Values("MSChart1"), (std::vector<int>{2, 1, 0}));
    EXPECT_EQ(Labels("MSChart1"), QStringLiteral("  "));
    EXPECT_EQ(Title(), QStringLiteral(" Value of 1st number over last 3 draws"));
    EXPECT_EQ(Values("MSChart2"), (std::vector<int>{1, 1, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Labels("MSChart2"), QStringLiteral("1 2 3 4 5 6 7 8 9"));
}

TEST_F(AveragesForm, SaysWhichDrawABarIs) {
    Open();
    EXPECT_EQ(Hovers("MSChart1")[0], QStringLiteral("draw 1, the newest: 3"));
    EXPECT_EQ(Hovers("MSChart1")[1], QStringLiteral("draw 2: 1"));
    EXPECT_EQ(Hovers("MSChart1")[2], QStringLiteral("behind the last draw: 0"));
}

TEST_F(AveragesForm, ShowsThePositionPicked) {
    Open();
    const QStringList words = {QStringLiteral("1st"), QStringLiteral("2nd"), QStringLiteral("3rd"),
                               QStringLiteral("4th"), QStringLiteral("5th"), QStringLiteral("6th")};
    const std::vector<int> averages = {2, 9, 17, 29, 38, 47};
    for (int position = 1; position <= 6; ++position) {
        Pick(position);
        EXPECT_EQ(Title(),
                  QStringLiteral(" Value of %1 number over last 3 draws").arg(words[position - 1]));
        const int average = averages[static_cast<std::size_t>(position - 1)];
        EXPECT_EQ(Text("Label3"), QStringLiteral(" %1").arg(average)) << position;
        EXPECT_EQ(*ChartOf("MSChart1").Average(), average);
    }
    EXPECT_EQ(Values("MSChart1"), (std::vector<int>{48, 46, 0}));
    EXPECT_EQ(ChartOf("MSChart2").value(48, 1), 1);
    EXPECT_EQ(ChartOf("MSChart2").value(3, 1), 0);
    Choose(2);
    Pick(7);
    EXPECT_EQ(Title(), QStringLiteral(" Value of 7th number over last 2 draws"));
}

TEST_F(AveragesForm, DrawsBothChartsAnew) {
    Open();
    EXPECT_EQ(Hovers("MSChart2").value(2), QStringLiteral("3: 1"));
    Pick(6);
    EXPECT_EQ(Hovers("MSChart1").value(0), QStringLiteral("draw 1, the newest: 48"));
    EXPECT_EQ(Hovers("MSChart2").value(2), QStringLiteral("3: 0"));
    EXPECT_EQ(Hovers("MSChart2").value(47), QStringLiteral("48: 1"));
}

TEST_F(AveragesForm, OffersOnlyThePositionsThatTheLotteryHas) {
    Open();
    EXPECT_TRUE(Option(5).isEnabled());
    EXPECT_FALSE(Option(6).isEnabled());
    Choose(1);
    EXPECT_TRUE(Option(4).isEnabled());
    EXPECT_FALSE(Option(5).isEnabled());
    Pick(6);
    EXPECT_TRUE(Option(0).isChecked()) << "it is grey";
    Choose(2);
    EXPECT_TRUE(Option(6).isEnabled());
}

TEST_F(AveragesForm, SkipsUnavailablePositionsOnTheKeyboard) {
    Open();
    Choose(1);
    Pick(5);
    Option(4).setFocus();
    QTest::keyClick(&Option(4), Qt::Key_Down);
    EXPECT_FALSE(Option(5).isChecked());
    EXPECT_FALSE(Option(6).isChecked());
    Pick(1);
    Option(0).setFocus();
    QTest::keyClick(&Option(0), Qt::Key_Down);
    EXPECT_TRUE(Option(1).isChecked());
    EXPECT_TRUE(Title().startsWith(QStringLiteral(" Value of 2nd number")));
}

TEST_F(AveragesForm, ReturnsToTheFirstPositionWithEachChoiceOfALottery) {
    Open();
    Pick(6);
    Choose(1);
    EXPECT_TRUE(Option(0).isChecked());
    EXPECT_EQ(Title(), QStringLiteral(" Value of 1st number over last 2 draws"));
    Choose(0);
    Pick(6);
    ClickLottery(0);
    EXPECT_TRUE(Option(0).isChecked()) << "the same lottery too";
    EXPECT_EQ(Text("Label3"), QStringLiteral(" 2"));
}

TEST_F(AveragesForm, AnalysesAgainAtAClickOnThePositionPicked) {
    Open();
    test_.state.Draws(1, 1) = 9;
    Pick(1);
    EXPECT_EQ(ChartOf("MSChart1").value(1, 1), 9);
}

TEST_F(AveragesForm, ShowsTwoRowsOfZeroWithoutDraws) {
    Open();
    Choose(2);
    EXPECT_EQ(Text("Label3"), QStringLiteral(" 0"));
    EXPECT_EQ(Values("MSChart1"), (std::vector<int>{0, 0}));
    EXPECT_EQ(Values("MSChart2"), std::vector<int>(27, 0));
    EXPECT_EQ(Hovers("MSChart1")[0], QStringLiteral("behind the last draw: 0"));
}

TEST_F(AveragesForm, HasARowMoreThanDrawsUpToNinetyNine) {
    const std::string draw = "28 May 05,3,4,,,,,,";
    OpenOn("2,9,0,0,0", Repeated(10, draw));
    EXPECT_EQ(ChartOf("MSChart1").rowCount(), 11);
    EXPECT_EQ(Title(), QStringLiteral(" Value of 1st number over last 11 draws"));
    OpenOn("2,9,0,0,0", Repeated(99, draw));
    EXPECT_EQ(Values("MSChart1").back(), 0);
    EXPECT_EQ(Title(), QStringLiteral(" Value of 1st number over last 100 draws"));
    OpenOn("2,9,0,0,0", Repeated(150, draw));
    EXPECT_EQ(ChartOf("MSChart1").rowCount(), 100);
    EXPECT_EQ(Values("MSChart1").back(), 3);
    EXPECT_EQ(Title(), QStringLiteral(" Value of 1st number over last 100 draws"));
    EXPECT_EQ(ChartOf("MSChart2").value(3, 1), 150) << "all draws count";
}

TEST_F(AveragesForm, EndsTheHistoryAtADrawWithAnEmptyField) {
    OpenOn("2,9,0,0,0", {"05 Jun 05,3,4,,,,,,", "04 Jun 05,6,,,,,,,", "03 Jun 05,7,8,,,,,,"});
    EXPECT_EQ(Text("Label3"), QStringLiteral(" 3"));
    EXPECT_EQ(Values("MSChart1"), (std::vector<int>{3, 0}));
    Pick(2);
    EXPECT_EQ(Values("MSChart1"), (std::vector<int>{4, 6})) << "that row's number of the position";
}

TEST_F(AveragesForm, EndsTheRunAtANumberAboveAHundredOnceItsPositionIsPicked) {
    OpenOn("2,49,0,0,0", {"05 Jun 05,101,4,,,,,,"});
    EXPECT_EQ(Text("Label3"), QStringLiteral(" 4"));
    Pick(2);
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(*failure, "dbase1.txt, line 4: expected numbers from 0 to 100, but found 101");
}

TEST_F(AveragesForm, EndsTheRunOnEightNumbersAndWithoutALottery) {
    EXPECT_THROW(OpenOn("8,49,0,0,0", {"05 Jun 05,1,2,3,4,5,6,7,8"}), Failure);
    ExpectFailsWithoutALottery();
}

TEST_F(AveragesForm, TakesTheSkinsColours) {
    ChooseSkinColours();
    Open();
    EXPECT_EQ(ColourOf("Label4"), QColor(1, 0, 0));
    for (const char* text : {"Label5", "Label6"}) {
        EXPECT_EQ(ColourOf(text), QColor(2, 0, 0)) << text;
    }
    for (const char* prompt : {"Label1", "Label2", "Label7"}) {
        EXPECT_EQ(ColourOf(prompt), QColor(3, 0, 0)) << prompt;
    }
}

TEST_F(AveragesForm, PrintsItselfAndCloses) { ExpectPrintsItself(); }

TEST_F(AveragesForm, LeadsTheTabKeyDownTheForm) {
    Open();
    EXPECT_EQ(TabOrder(), QStringLiteral("List1 Option3(0) Option3(1) Option3(2) Option3(3) "
                                         "Option3(4) Option3(5) Option3(6) MSChart1 MSChart2 "
                                         "Command6 Command1"));
}

TEST_F(AveragesForm, ShowsTheFiguresOfRealHistoriesAtEachPosition) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    for (int index = 0; index < Find<ListBox>(*form_, "List1")->count(); ++index) {
        Choose(index);
        for (int position = 1; position <= test_.state.Picks; ++position) {
            Pick(position);
            const auto figures = position_averages::Analyse(View(test_.state), position);
            EXPECT_EQ(Values("MSChart1"), figures.recent);
            EXPECT_EQ(Text("Label3"), QStringLiteral(" %1").arg(figures.average));
            for (int number = 1; number <= test_.state.MaxNum; ++number) {
                EXPECT_EQ(ChartOf("MSChart2").value(number, 1), figures.PositionCount(number));
            }
        }
    }
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PAverage.h"

#include <QLabel>
#include <QScrollBar>
#include <algorithm>
#include <array>
#include <set>

#include "platform/widgets/Lists.h"
#include "tests/play/retrying_forms.h"
#include "tests/support/real_histories.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr const char* lineCountBar = "HScroll1";
constexpr const char* shownLineCount = "Label8";
constexpr std::array conditionBoxes = {oddEvenBox, highLowBox, previousDrawsBox};

class AveragesForm : public TryingFormTest {
  protected:
    void Open() { ShowForm(std::make_unique<PAverage>(test_.program, nullptr)); }

    void SetLineCount(int count) { Find<QScrollBar>(*form_, lineCountBar)->setValue(count); }

    /// Whether column c of each line is at most 1 off the c-th of these numbers.
    void ExpectLinesCloseTo(const std::vector<int>& averages) {
        EXPECT_GT(ShownLines(), 0);
        for (const std::vector<int>& line : Rows(static_cast<int>(averages.size()))) {
            for (std::size_t i = 0; i < averages.size(); ++i) {
                EXPECT_NEAR(line[i], averages[i], 1);
            }
        }
    }
};

TEST_F(AveragesForm, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("PAverage"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Average Numbers"));
    ExpectLabels({{headingLabel, "Average numbers"},
                  {bodyLabel,
                   "The average value of each draw number is calculated (1st number, 2nd, 3rd and "
                   "so on). Lottery entries are picked that have numbers the same as or very close "
                   "to the average. Most lottery draw results are close to the average, so you "
                   "might have a better chance of winning."},
                  {"Label9", "Lines:"},
                  {shownLineCount, "5"}});
    ExpectTryingWords(filtersFromEight);
}

TEST_F(AveragesForm, OpensWithFiveLinesCloseToTheAverageDraw) {
    Open();
    EXPECT_EQ(Find<ListBox>(*form_, lotteryList)->Index(), 0);
    // 3 17 22 34 41 48 and 1 2 13 24 35 46
    ExpectLinesCloseTo({2, 9, 17, 29, 38, 47});
    EXPECT_EQ(ShownLines(), 5);
    EXPECT_EQ(Status(), QStringLiteral("Tries: 1   Time: 0.00 sec"));
}

TEST_F(AveragesForm, SortsTheDrawsBeforeItTakesTheAverages) {
    AddFirstLottery("Unsorted", "4,40,0,0,0",
                    {"28 May 05,40,10,30,20,0,0,0,0", "25 May 05,20,30,10,40,0,0,0,0"});
    Open();
    ExpectLinesCloseTo({10, 20, 30, 40});
    EXPECT_EQ(test_.state.Draws(1, 1), 10);
}

TEST_F(AveragesForm, TheBarChangesItsLabelAtOnceAndTheLinesOnlyWithGenerate) {
    Open();
    auto* bar = Find<QScrollBar>(*form_, lineCountBar);
    EXPECT_EQ(bar->minimum(), 1);
    EXPECT_EQ(bar->maximum(), 30);
    EXPECT_EQ(bar->singleStep(), 1);
    EXPECT_EQ(bar->pageStep(), 1);
    const QStringList before = Texts();
    bar->setValue(2);
    EXPECT_EQ(Text(shownLineCount), QStringLiteral("2"));
    EXPECT_EQ(Texts(), before);
    Click(*form_, generateButton);
    EXPECT_EQ(ShownLines(), 2);
}

TEST_F(AveragesForm, ChoosingALotteryAlsoTheSameUnsetsTheConditionsAndKeepsTheNumberOfLines) {
    Open();
    SetLineCount(7);
    for (const int index : {1, 1, 0}) {
        for (const char* box : conditionBoxes) SetCondition(box, true);
        ClickLottery(index);
        for (const char* box : conditionBoxes) EXPECT_FALSE(IsSet(box)) << box;
        EXPECT_EQ(Text(shownLineCount), QStringLiteral("7"));
        EXPECT_EQ(Status().left(8), QStringLiteral("Tries: 1"));
    }
}

TEST_F(AveragesForm, GenerateKeepsToTheAveragesOfTheLastChoiceOfALottery) {
    Open();
    for (int column = 1; column <= 6; ++column) {
        test_.state.Draws(1, column) = static_cast<std::int16_t>(column);
    }
    Click(*form_, generateButton);
    ExpectLinesCloseTo({2, 9, 17, 29, 38, 47});
}

TEST_F(AveragesForm, WithoutDrawsTriesTenSecondsAndShowsOneLineOfOnes) {
    AddFirstLottery("No draws", "5,34,0,0,0");
    test_.tick = 0.5;
    Open();
    EXPECT_TRUE(SaysLinesFail()) << Status().toStdString();
    EXPECT_EQ(Rows(5), (std::vector<std::vector<int>>{{1, 1, 1, 1, 1}}));
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(AveragesForm, TriesUntilNoLineHasEqualNeighboursWithoutAnyBoxSet) {
    AddFirstLottery("Narrow", "5,40,0,0,0", {"28 May 05,20,21,22,23,24,0,0,0"});
    int severalTries = 0;
    for (test_.seed = 1; test_.seed <= 10; ++test_.seed) {
        Open();
        EXPECT_FALSE(SaysLinesFail());
        if (!Status().startsWith(QStringLiteral("Tries: 1 "))) ++severalTries;
    }
    EXPECT_GE(severalTries, 8);
}

TEST_F(AveragesForm, KeepsNumbersThatOnlySortingMakesNeighbours) {
    AddFirstLottery("Alike", "3,40,0,0,0", {"28 May 05,20,20,20,0,0,0,0,0"});
    bool kept = false;
    for (test_.seed = 1; test_.seed <= 20; ++test_.seed) {
        Open();
        for (const std::vector<int>& line : Rows(3)) {
            kept = kept || line[0] == line[1] || line[1] == line[2];
        }
    }
    EXPECT_TRUE(kept);
}

TEST_F(AveragesForm, LosesEqualLines) {
    AddFirstLottery("Two", "2,40,0,0,0", {"28 May 05,10,30,0,0,0,0,0,0"});
    Open();
    SetLineCount(30);
    Click(*form_, generateButton);
    EXPECT_LE(ShownLines(), 9);
    const auto rows = Rows(2);
    EXPECT_EQ(std::set(rows.begin(), rows.end()).size(), rows.size());
}

TEST_F(AveragesForm, EndsTheHistoryAtADrawWithAnEmptyField) {
    AddFirstLottery("Gap", "4,40,0,0,0",
                    {"28 May 05,4,10,20,30,0,0,0,0", "25 May 05,9,8,,6,0,0,0,0",
                     "21 May 05,30,31,32,33,0,0,0,0"});
    Open();
    ExpectLinesCloseTo({4, 10, 20, 30});
    MakeOnlyLine({30, 31, 32, 33});
    Click(*form_, filtersFromEight.previousDraws);
    EXPECT_EQ(ShownLines(), 1) << "the filter sees the sorted draws";
}

TEST_F(AveragesForm, EveryLineGetsAnExtraBallOfItsOwn) {
    Open();
    EXPECT_EQ(Column(8), std::vector<int>(5, 0));
    ChooseLottery(1);
    SetLineCount(30);
    Click(*form_, generateButton);
    const std::vector<int> balls = Column(8);
    EXPECT_GT(std::set<int>(balls.begin(), balls.end()).size(), 3U);
    EXPECT_GE(std::ranges::min(balls), 1);
    EXPECT_LE(std::ranges::max(balls), 14);
}

TEST_F(AveragesForm, StaysWithinTheLotteryAtItsEnds) {
    AddFirstLottery("Ends", "4,40,0,0,0", {"28 May 05,1,10,30,40,0,0,0,0"});
    Open();
    SetLineCount(30);
    Click(*form_, generateButton);
    const std::vector<int> numbers = AllNumbers();
    EXPECT_EQ(std::ranges::min(numbers), 1);
    EXPECT_EQ(std::ranges::max(numbers), 40);
}

TEST_F(AveragesForm, ConditionsThatNoLineMeetsEndAfterTenSeconds) {
    Open();
    for (const char* box : conditionBoxes) {
        AskTheImpossible(box);
        Click(*form_, generateButton);
        EXPECT_TRUE(SaysLinesFail()) << box;
        EXPECT_GE(ShownLines(), 1);
        SetCondition(box, false);
    }
}

TEST_F(AveragesForm, ThreeThousandDrawsEndTheRunWithBoxesAndGridReset) {
    Open();
    for (const char* box : conditionBoxes) SetCondition(box, true);
    AddLottery(test_.folder, "dbase101.txt", "Full", "6,49,0,0,1",
               std::vector<std::string>(3000, "28 May 05,3,17,22,34,41,48,0,9"));
    const std::string bytes = test_.folder.Read("dbase101.txt");
    EXPECT_THROW(ChooseLottery(1), std::runtime_error);
    for (const char* box : conditionBoxes) EXPECT_FALSE(IsSet(box)) << box;
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(test_.folder.Read("dbase101.txt"), bytes);
}

TEST_F(AveragesForm, OneDrawLessWorks) {
    LeaveOnlyLotto(std::vector<std::string>(2999, "28 May 05,3,17,22,34,41,48,0,9"));
    Open();
    ExpectLinesCloseTo({3, 17, 22, 34, 41, 48});
}

TEST_F(AveragesForm, AnyHighestNumberWorks) {
    AddFirstLottery("Huge", "4,30000,0,0,0", {"28 May 05,7000,14000,21000,28000,0,0,0,0"});
    Open();
    ExpectLinesCloseTo({7000, 14000, 21000, 28000});
}

TEST_F(AveragesForm, EachFilterButtonHasItsFilterAndLeavesTheStatus) {
    Open();
    const QString status = Status();
    ExpectFiltersTakeLinesOut(filtersFromEight);
    EXPECT_EQ(Status(), status);
}

TEST_F(AveragesForm, IsBusyUnderTheHourglassWhileItGenerates) {
    Open();
    ExpectBusyOverEmptyGridWhileGenerating();
}

TEST_F(AveragesForm, DoesNothingWhileBusy) {
    Open();
    ExpectNoActionWhileBusy(filtersFromEight);
}

TEST_F(AveragesForm, ShowsTheTipAndTheHelp) {
    Open();
    ExpectTipAndHelp();
}

TEST_F(AveragesForm, SavesAndCloses) {
    Open();
    ExpectSaveAndClose();
}

TEST_F(AveragesForm, GeneratesOnEnter) {
    Open();
    ExpectEnterGenerates({lotteryList, lineCountBar, oddEvenBox, linesGrid});
}

TEST_F(AveragesForm, ReachesItsControlsByTabInReadingOrder) {
    Open();
    ExpectTabOrder({lotteryList, lineCountBar, explainButton, oddEvenBox, highLowBox,
                    previousDrawsBox, generateButton, filtersFromEight.oddEven,
                    filtersFromEight.highLow, filtersFromEight.longRuns,
                    filtersFromEight.previousDraws, linesGrid, saveButton, helpButton,
                    closeButton});
}

TEST_F(AveragesForm, StaysCloseToTheAverageOfEachRealHistory) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    auto* list = Find<ListBox>(*form_, lotteryList);
    ASSERT_EQ(list->count(), 8);
    SetLineCount(30);
    for (int index = 0; index < 8; ++index) {
        list->SetIndex(index);
        Click(*form_, generateButton);
        EXPECT_FALSE(SaysLinesFail()) << test_.state.LotteryName;
        EXPECT_GE(ShownLines(), 20) << test_.state.LotteryName;
        std::vector<int> averages;
        for (int pick = 1; pick <= test_.state.Picks; ++pick) {
            averages.push_back(test_.state.Pool(pick));
        }
        ExpectLinesCloseTo(averages);
    }
}

}  // namespace

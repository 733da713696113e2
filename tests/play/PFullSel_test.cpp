// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PFullSel.h"

#include <QCheckBox>
#include <QLabel>
#include <algorithm>
#include <set>

#include "platform/widgets/Lists.h"
#include "tests/play/retrying_forms.h"
#include "tests/support/real_histories.h"

namespace {

constexpr const char* includeAllBox = "Check4";
constexpr const char* unusedNote = "Label4";
const QString allUsed = QStringLiteral("  All numbers used");

class FullSelectionForm : public TryingFormTest {
  protected:
    void Open() { ShowForm(std::make_unique<PFullSel>(test_.program, nullptr)); }
};

TEST_F(FullSelectionForm, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("PFullSel"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Full Selection"));
    ExpectLabels(
        {{headingLabel, "Full selection"},
         {bodyLabel,
          "Every lottery number is played and you are guaranteed to match every number in the draw "
          "result, but you can choose to ignore numbers that don't fit an exact number of lines, "
          "eg 6/49 is 8 lines of 6 with 1 number unused."}});
    ExpectCaptions({{includeAllBox, "Include all numbers"}});
    ExpectTryingWords(usualFilters);
}

TEST_F(FullSelectionForm, HasNoNumberOfLines) {
    Open();
    EXPECT_EQ(form_->findChild<QObject*>(QStringLiteral("HScroll1")), nullptr);
}

TEST_F(FullSelectionForm, OpensWithAllNumbersOfTheFirstLotteryAtTheFirstTry) {
    Open();
    EXPECT_EQ(Find<ListBox>(*form_, lotteryList)->Index(), 0);
    EXPECT_TRUE(IsSet(includeAllBox));
    EXPECT_EQ(ShownLines(), 9);
    EXPECT_EQ(Text(unusedNote), allUsed);
    EXPECT_EQ(Status(), QStringLiteral("Tries: 1   Time: 0.00 sec"));
    const std::vector<int> numbers = AllNumbers();
    EXPECT_EQ(std::set<int>(numbers.begin(), numbers.end()).size(), 49U);
    for (const std::vector<int>& line : Rows(6)) {
        EXPECT_TRUE(std::is_sorted(line.begin(), line.end()));
    }
}

TEST_F(FullSelectionForm, AChangeOfTheBoxMakesANewSelectionAtOnce) {
    Open();
    ++test_.seed;
    Click(*form_, includeAllBox);
    EXPECT_EQ(ShownLines(), 8);
    EXPECT_EQ(Text(unusedNote), QStringLiteral("  1 numbers unused"));
    const std::vector<int> numbers = AllNumbers();
    EXPECT_EQ(std::set<int>(numbers.begin(), numbers.end()).size(), 48U);
    ++test_.seed;
    Click(*form_, includeAllBox);
    EXPECT_EQ(ShownLines(), 9);
    EXPECT_EQ(Text(unusedNote), allUsed);
}

TEST_F(FullSelectionForm, AChangeOfTheBoxByCodeMakesANewSelectionToo) {
    Open();
    Find<QCheckBox>(*form_, includeAllBox)->setChecked(false);
    EXPECT_EQ(ShownLines(), 8);
    EXPECT_EQ(Text(unusedNote), QStringLiteral("  1 numbers unused"));
}

TEST_F(FullSelectionForm, SevenLinesOf5From35InBothStatesOfTheBox) {
    AddFirstLottery("Thirty five", "5,35,0,0,0");
    Open();
    EXPECT_EQ(ShownLines(), 7);
    EXPECT_EQ(Text(unusedNote), allUsed);
    Click(*form_, includeAllBox);
    EXPECT_EQ(ShownLines(), 7);
    EXPECT_EQ(Text(unusedNote), QStringLiteral("  0 numbers unused"));
}

TEST_F(FullSelectionForm, ChoosingALotteryKeepsAllBoxes) {
    Open();
    Click(*form_, includeAllBox);
    for (const char* box : {oddEvenBox, highLowBox, previousDrawsBox}) SetCondition(box, true);
    ChooseLottery(1);
    EXPECT_EQ(test_.state.LotteryName, "UK Thunderball");
    EXPECT_FALSE(IsSet(includeAllBox));
    for (const char* box : {oddEvenBox, highLowBox, previousDrawsBox}) {
        EXPECT_TRUE(IsSet(box)) << box;
    }
    EXPECT_EQ(ShownLines(), 6);
    EXPECT_EQ(Text(unusedNote), QStringLiteral("  4 numbers unused"));
}

TEST_F(FullSelectionForm, ShowsAnExtraBallForEachLineWhereTheLotteryHasOne) {
    Open();
    EXPECT_EQ(Column(8), std::vector<int>(9, 0));
    ChooseLottery(1);
    for (const int ball : Column(8)) {
        EXPECT_GE(ball, 1);
        EXPECT_LE(ball, 14);
    }
}

TEST_F(FullSelectionForm, AFilterLeavesNoteAndStatusAsTheyAre) {
    Open();
    const QString status = Status();
    test_.state.Lines.Fill(0);
    Click(*form_, usualFilters.oddEven);
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(Text(unusedNote), allUsed);
    EXPECT_EQ(Status(), status);
}

TEST_F(FullSelectionForm, EachFilterButtonHasItsFilter) {
    Open();
    ExpectFiltersTakeLinesOut(usualFilters);
}

TEST_F(FullSelectionForm, TriesUntilAllLinesComply) {
    Open();
    for (const char* box : {oddEvenBox, highLowBox, previousDrawsBox}) SetCondition(box, true);
    Click(*form_, generateButton);
    EXPECT_FALSE(SaysLinesFail());
    for (const std::vector<int>& line : Rows(6)) {
        const auto odd = std::count_if(line.begin(), line.end(), [](int n) { return n % 2 == 1; });
        const auto low = std::count_if(line.begin(), line.end(), [](int n) { return n <= 24; });
        EXPECT_TRUE(odd >= 1 && odd <= 5 && low >= 1 && low <= 5);
    }
}

TEST_F(FullSelectionForm, ATightLimitEndsAfterTenSecondsWithTheLastAttemptShown) {
    for (const char* box : {oddEvenBox, highLowBox}) {
        Open();
        AskTheImpossible(box);
        Click(*form_, generateButton);
        EXPECT_TRUE(SaysLinesFail()) << Status().toStdString();
        EXPECT_EQ(ShownLines(), 9);
        EXPECT_EQ(test_.state.Busy, 0);
        test_.tick = 0;
    }
}

TEST_F(FullSelectionForm, MorePicksThanNumbersWithoutTheRestLeaveTheGridBlank) {
    AddFirstLottery("Tiny", "7,5,0,0,0");
    Open();
    EXPECT_EQ(ShownLines(), 1);
    Click(*form_, includeAllBox);
    EXPECT_EQ(Texts().join(QString()), QString());
    EXPECT_EQ(Text(unusedNote), QStringLiteral("  5 numbers unused"));
}

TEST_F(FullSelectionForm, ATinyLotteryRepeatsNumbersWithinItsLastLine) {
    AddFirstLottery("Tiny", "7,10,0,0,0");
    Open();
    ASSERT_EQ(ShownLines(), 2);
    const std::vector<int> last = Rows(7).back();
    EXPECT_LT(std::set<int>(last.begin(), last.end()).size(), 7U);
}

TEST_F(FullSelectionForm, ShowsAHundredAndTenLinesOfOneNumber) {
    AddFirstLottery("Singles", "1,110,0,0,0");
    Open();
    EXPECT_EQ(ShownLines(), 110);
}

TEST_F(FullSelectionForm, AHundredAndElevenNumbersEndTheRun) {
    AddFirstLottery("Huge", "6,111,0,0,0");
    PFullSel form(test_.program, nullptr);
    EXPECT_THROW(form.Load(), std::runtime_error);
}

TEST_F(FullSelectionForm, OpensALotteryOfThreeThousandDraws) {
    LeaveOnlyLotto(std::vector<std::string>(3000, "28 May 05,3,17,22,34,41,48,0,9"));
    Open();
    EXPECT_EQ(ShownLines(), 9);
}

TEST_F(FullSelectionForm, IsBusyUnderTheHourglassWhileItGenerates) {
    Open();
    ExpectBusyOverEmptyGridWhileGenerating();
}

TEST_F(FullSelectionForm, DoesNothingWhileBusy) {
    Open();
    ExpectNoActionWhileBusy(usualFilters);
    const QStringList before = Texts();
    test_.state.Busy = -1;
    Click(*form_, includeAllBox);
    EXPECT_EQ(Texts(), before);
    EXPECT_EQ(Text(unusedNote), allUsed);
    test_.state.Busy = 0;
}

TEST_F(FullSelectionForm, ShowsTheTipAndTheHelp) {
    Open();
    ExpectTipAndHelp();
}

TEST_F(FullSelectionForm, SavesAndCloses) {
    Open();
    ExpectSaveAndClose();
}

TEST_F(FullSelectionForm, GeneratesOnEnter) {
    Open();
    ExpectEnterGenerates({lotteryList, includeAllBox, oddEvenBox, linesGrid});
}

TEST_F(FullSelectionForm, ReachesItsControlsByTabInReadingOrder) {
    Open();
    ExpectTabOrder({lotteryList, includeAllBox, explainButton, oddEvenBox, highLowBox,
                    previousDrawsBox, generateButton, usualFilters.oddEven, usualFilters.highLow,
                    usualFilters.longRuns, usualFilters.previousDraws, linesGrid, saveButton,
                    helpButton, closeButton});
}

TEST_F(FullSelectionForm, TakesColoursOneToFourOfTheSkin) {
    TakeSkinColours("&HFFFFFF");
    Open();
    const std::vector<std::pair<const char*, int>> reds = {
        {headingLabel, 1}, {bodyLabel, 2}, {lotteryPrompt, 3}, {statusLine, 4}};
    for (const auto& [name, red] : reds) EXPECT_EQ(TextColour(name), QColor(red, 0, 0)) << name;
}

TEST_F(FullSelectionForm, PlaysEveryNumberOfEachRealLottery) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    auto* list = Find<ListBox>(*form_, lotteryList);
    ASSERT_EQ(list->count(), 8);
    for (int index = 0; index < 8; ++index) {
        list->SetIndex(index);
        const std::vector<int> numbers = AllNumbers();
        const std::set<int> played(numbers.begin(), numbers.end());
        EXPECT_EQ(static_cast<int>(played.size()), test_.state.MaxNum) << test_.state.LotteryName;
        EXPECT_EQ(*played.rbegin(), test_.state.MaxNum) << test_.state.LotteryName;
    }
}

}  // namespace

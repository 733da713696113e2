// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/KeyNumbersForm.h"

#include <QLabel>
#include <QRegularExpression>
#include <QScrollBar>
#include <algorithm>
#include <array>
#include <set>

#include "platform/widgets/Lists.h"
#include "tests/play/retrying_forms.h"
#include "tests/support/real_histories.h"
#include "tests/support/sample_lotteries.h"

namespace {

using Numbers = std::vector<int>;

constexpr std::array barNames = {"HScroll1", "HScroll2", "HScroll3"};
constexpr std::array valueLabels = {"Label8", "Label9", "Label13"};
constexpr std::array conditionBoxes = {oddEvenBox, highLowBox, previousDrawsBox};

const Message needsFourPicks{.title = QStringLiteral("Sorry!"),
                             .text = QStringLiteral("Must be a pick-4/5/6/7 lottery.    "),
                             .sign = Sign::Exclamation};
const Message needsFivePicks{.title = QStringLiteral("Sorry!"),
                             .text = QStringLiteral("Must be a pick-5/6/7 lottery.    "),
                             .sign = Sign::Exclamation};

class KeyForm : public TryingFormTest {
  protected:
    void Open(int keys) {
        if (keys == 1) ShowForm(std::make_unique<P1Key>(test_.program, nullptr));
        if (keys == 2) ShowForm(std::make_unique<P2KeyNum>(test_.program, nullptr));
        if (keys == 3) ShowForm(std::make_unique<P3KeyNum>(test_.program, nullptr));
        keys_ = static_cast<std::size_t>(keys);
    }

    QScrollBar& Bar(std::size_t bar) { return *Find<QScrollBar>(*form_, barNames.at(bar - 1)); }
    void Move(std::size_t bar, int value) { Bar(bar).setValue(value); }

    /// Brings the bars there. Each leaves its place for a free one first, so that none meets
    /// another on its way.
    void MoveAll(const Numbers& values) {
        for (int round = 0; round < 3; ++round) {
            for (std::size_t bar = keys_; bar >= 1; --bar) Move(bar, values[bar - 1]);
        }
        EXPECT_EQ(Keys(), values);
    }

    /// The values of the bars, of which their labels tell the same.
    Numbers Keys() {
        Numbers keys;
        for (std::size_t bar = 1; bar <= keys_; ++bar) {
            keys.push_back(Bar(bar).value());
            EXPECT_EQ(Text(valueLabels.at(bar - 1)), QString::number(Bar(bar).value()));
        }
        return keys;
    }

    Numbers Highest() {
        Numbers highest;
        for (std::size_t bar = 1; bar <= keys_; ++bar) highest.push_back(Bar(bar).maximum());
        return highest;
    }

    /// Whether every line holds every key, and every number of the lottery is in some line.
    void ExpectKeysInEveryLineAndAllNumbersPlayed() {
        const Numbers keys = Keys();
        const std::string& lottery = test_.state.LotteryName;
        for (const Numbers& line : Rows(test_.state.Picks)) {
            for (const int key : keys) {
                EXPECT_EQ(std::ranges::count(line, key), std::ranges::count(keys, key)) << lottery;
            }
        }
        const Numbers numbers = AllNumbers();
        const std::set<int> played(numbers.begin(), numbers.end());
        EXPECT_EQ(static_cast<int>(played.size()), test_.state.MaxNum) << lottery;
        EXPECT_EQ(*played.rbegin(), test_.state.MaxNum) << lottery;
    }

    std::size_t keys_ = 0;
};

TEST_F(KeyForm, OneKeyBearsItsWords) {
    Open(1);
    EXPECT_EQ(form_->objectName(), QStringLiteral("P1Key"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("One key number"));
    ExpectLabels(
        {{headingLabel, "One key number"},
         {bodyLabel,
          "Select your favourite or lucky number on the right. It is played against every other "
          "lottery number, so you are guaranteed to get three or more 2-matches if it is in the "
          "lottery draw result."}});
    ExpectTryingWords(filtersFromEight);
}

TEST_F(KeyForm, TwoKeysBearTheirWords) {
    Open(2);
    EXPECT_EQ(form_->objectName(), QStringLiteral("P2KeyNum"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Two Key Numbers"));
    ExpectLabels(
        {{headingLabel, "Two key numbers"},
         {bodyLabel,
          "Select your two favourite or lucky numbers on the right. They are played against every "
          "other number, so if they appear in the draw result, you are guaranteed two or more "
          "3-matches."}});
    ExpectTryingWords(filtersFromEight);
}

TEST_F(KeyForm, ThreeKeysBearTheirWords) {
    Open(3);
    EXPECT_EQ(form_->objectName(), QStringLiteral("P3KeyNum"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Three Key Numbers"));
    ExpectLabels({{headingLabel, "Three key numbers"},
                  {bodyLabel,
                   "Select your three favourite or lucky numbers on the right. If they appear in "
                   "the draw result, you are guaranteed at least a 4-match."}});
    ExpectTryingWords(filtersFromEight);
}

TEST_F(KeyForm, HasABarForEachKeyAndNoMore) {
    const std::array<Numbers, 3> start = {{{1}, {1, 2}, {1, 2, 3}}};
    const std::array<Numbers, 3> highest = {{{49}, {48, 49}, {47, 48, 49}}};
    for (const int keys : {1, 2, 3}) {
        Open(keys);
        EXPECT_EQ(Keys(), start.at(keys_ - 1));
        EXPECT_EQ(Highest(), highest.at(keys_ - 1));
        EXPECT_EQ(
            form_->findChildren<QScrollBar*>(QRegularExpression(QStringLiteral("^HScroll[1-3]$")))
                .size(),
            keys);
        for (std::size_t bar = 1; bar <= keys_; ++bar) {
            EXPECT_EQ(Bar(bar).minimum(), static_cast<int>(bar));
            EXPECT_EQ(Bar(bar).singleStep(), 1);
            EXPECT_EQ(Bar(bar).pageStep(), 5);
        }
    }
}

TEST_F(KeyForm, IsDesignedFor50NumbersAndOneKeyFor49) {
    const std::array<Numbers, 3> highest = {{{49}, {49, 50}, {48, 49, 50}}};
    const std::array<std::unique_ptr<Form>, 3> forms = {
        std::make_unique<P1Key>(test_.program, nullptr),
        std::make_unique<P2KeyNum>(test_.program, nullptr),
        std::make_unique<P3KeyNum>(test_.program, nullptr)};
    for (std::size_t i = 0; i < forms.size(); ++i) {
        for (std::size_t bar = 0; bar <= i; ++bar) {
            EXPECT_EQ(Find<QScrollBar>(*forms.at(i), barNames.at(bar))->maximum(),
                      highest.at(i).at(bar));
        }
    }
}

TEST_F(KeyForm, Makes10And12And16LinesOf6From49) {
    const std::array<int, 3> lines = {10, 12, 16};
    for (const int keys : {1, 2, 3}) {
        // Keys at the last places of a shuffle make a line more, which is so for some seeds.
        std::set<int> counts;
        for (test_.seed = 1; test_.seed <= 10; ++test_.seed) {
            Open(keys);
            counts.insert(ShownLines());
            ExpectKeysInEveryLineAndAllNumbersPlayed();
        }
        EXPECT_EQ(*counts.begin(), lines.at(keys_ - 1));
        EXPECT_EQ(Status(), QStringLiteral("Tries: 1   Time: 0.00 sec"));
    }
}

TEST_F(KeyForm, ShowsSortedLines) {
    Open(3);
    MoveAll({40, 23, 7});
    Click(*form_, generateButton);
    ExpectKeysInEveryLineAndAllNumbersPlayed();
    for (const Numbers& line : Rows(6)) EXPECT_TRUE(std::ranges::is_sorted(line));
}

TEST_F(KeyForm, AMovedBarLeavesTheLinesUntilGenerate) {
    Open(2);
    const QStringList before = Texts();
    Move(1, 33);
    EXPECT_EQ(Text(valueLabels[0]), QStringLiteral("33"));
    EXPECT_EQ(Texts(), before);
    Click(*form_, generateButton);
    for (const Numbers& line : Rows(6)) EXPECT_EQ(std::ranges::count(line, 33), 1);
}

TEST_F(KeyForm, BarsOfTwoKeysPushEachOther) {
    Open(2);
    MoveAll({10, 20});
    Move(1, 20);
    EXPECT_EQ(Keys(), (Numbers{20, 21}));
    Move(2, 20);
    EXPECT_EQ(Keys(), (Numbers{19, 20}));
}

TEST_F(KeyForm, BarsOfThreeKeysPushEachOtherInTurn) {
    Open(3);
    MoveAll({10, 20, 21});
    Move(1, 20);
    EXPECT_EQ(Keys(), (Numbers{20, 21, 22}));
    Move(3, 21);
    EXPECT_EQ(Keys(), (Numbers{19, 20, 21}));
    MoveAll({15, 20, 15});
    Move(2, 15);
    EXPECT_EQ(Keys(), (Numbers{14, 15, 16}));
}

TEST_F(KeyForm, TheKeyboardMovesTheBarsByOneAndByFive) {
    Open(3);
    MoveAll({10, 11, 30});
    QTest::keyClick(&Bar(1), Qt::Key_Right);
    EXPECT_EQ(Keys(), (Numbers{11, 12, 30}));
    QTest::keyClick(&Bar(1), Qt::Key_PageUp);
    const int moved = Bar(1).value() - 11;
    EXPECT_EQ(std::abs(moved), 5) << "over its neighbour, which stays";
    EXPECT_EQ(Bar(2).value(), 12);
}

TEST_F(KeyForm, TypedDigitsMoveTheBarsToo) {
    Open(2);
    MoveAll({10, 20});
    Bar(1).setFocus();
    QTest::keyClicks(&Bar(1), QStringLiteral("20"));
    EXPECT_EQ(Keys(), (Numbers{20, 21}));
}

TEST_F(KeyForm, BarsOneAndThreeMayMeetAndThenEachLineHoldsTheNumberTwice) {
    Open(3);
    MoveAll({30, 20, 30});
    Click(*form_, generateButton);
    ExpectKeysInEveryLineAndAllNumbersPlayed();
    EXPECT_EQ(std::ranges::count(Rows(6).front(), 30), 2);
}

TEST_F(KeyForm, LimitsFollowTheLotteryAndValuesStay) {
    AddFirstLottery("Fifty nine", "6,59,0,0,0");
    const std::array<Numbers, 3> highest = {{{59}, {58, 59}, {57, 58, 59}}};
    for (const int keys : {1, 2, 3}) {
        Open(keys);
        EXPECT_EQ(Highest(), highest.at(keys_ - 1));
        ChooseLottery(2);
        EXPECT_EQ(test_.state.MaxNum, 34);
        EXPECT_EQ(Highest().back(), 34);
        EXPECT_EQ(Keys().front(), 1);
    }
}

TEST_F(KeyForm, ASmallerLotteryBringsBarsAtTheTopToItsTop) {
    AddFirstLottery("Fifty", "5,50,0,0,0");
    AddLottery(test_.folder, "dbase200.txt", "Ten", "5,10,0,0,0");
    const std::array<Numbers, 3> top = {{{50}, {49, 50}, {48, 49, 50}}};
    const std::array<Numbers, 3> ends = {{{10}, {9, 10}, {8, 9, 10}}};
    for (const int keys : {1, 2, 3}) {
        Open(keys);
        MoveAll(top.at(keys_ - 1));
        ChooseLottery(4);
        EXPECT_EQ(test_.state.MaxNum, 10);
        EXPECT_EQ(Keys(), ends.at(keys_ - 1));
        EXPECT_EQ(Highest(), ends.at(keys_ - 1));
        ExpectKeysInEveryLineAndAllNumbersPlayed();
    }
}

TEST_F(KeyForm, AFirstBarAboveItsLimitMovesTheSecondAlsoFromBelow) {
    AddFirstLottery("Fifty", "5,50,0,0,0");
    AddLottery(test_.folder, "dbase200.txt", "Ten", "5,10,0,0,0");
    Open(3);
    MoveAll({48, 5, 50});
    ChooseLottery(4);
    EXPECT_EQ(Keys(), (Numbers{8, 9, 10}));
}

TEST_F(KeyForm, ChoosingALotteryAlsoTheSameUnsetsTheConditions) {
    Open(2);
    for (const int index : {1, 1, 0}) {
        for (const char* box : conditionBoxes) SetCondition(box, true);
        ClickLottery(index);
        for (const char* box : conditionBoxes) EXPECT_FALSE(IsSet(box)) << box;
        EXPECT_GT(ShownLines(), 0);
    }
}

TEST_F(KeyForm, RefusesALotteryOfTooFewNumbersALine) {
    AddLottery(test_.folder, "dbase200.txt", "Three", "3,20,0,0,0");
    AddLottery(test_.folder, "dbase201.txt", "Four", "4,20,0,0,0");
    for (const int keys : {1, 2, 3}) {
        Open(keys);
        const int shown = test_.messages.Shown();
        test_.messages.Expect(keys < 3 ? needsFourPicks : needsFivePicks);
        ChooseLottery(3);
        EXPECT_EQ(test_.messages.Shown(), shown + 1);
        EXPECT_EQ(ShownLines(), 0);
        if (keys == 3) test_.messages.Expect(needsFivePicks);
        ChooseLottery(4);
        EXPECT_EQ(ShownLines() > 0, keys < 3);
    }
}

TEST_F(KeyForm, RefusesALotteryAlsoWhileItOpens) {
    AddFirstLottery("Three", "3,20,0,0,0");
    test_.messages.Expect(needsFourPicks);
    Open(1);
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(Status(), QString());
    EXPECT_EQ(Highest(), (Numbers{20}));
}

TEST_F(KeyForm, ARefusedGenerateChangesNothing) {
    AddLottery(test_.folder, "dbase200.txt", "Three", "3,20,0,0,0");
    Open(1);
    Move(1, 44);
    SetCondition(oddEvenBox, true);
    const QString status = Status();
    const int first = test_.state.Lines(1, 1);
    test_.messages.Expect(needsFourPicks);
    ChooseLottery(3);
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_FALSE(IsSet(oddEvenBox));
    EXPECT_EQ(Keys(), (Numbers{20}));
    EXPECT_EQ(Status(), status);
    EXPECT_EQ(test_.state.Lines(1, 1), first);

    SetCondition(highLowBox, true);
    test_.messages.Expect(needsFourPicks);
    Click(*form_, generateButton);
    EXPECT_TRUE(IsSet(highLowBox));
    EXPECT_EQ(Status(), status);
    EXPECT_EQ(test_.state.Lines(1, 1), first);
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(KeyForm, AFilterAfterARefusalShowsTheOldLines) {
    AddLottery(test_.folder, "dbase200.txt", "Three", "3,20,0,0,0");
    Open(1);
    test_.messages.Expect(needsFourPicks);
    ChooseLottery(3);
    Click(*form_, filtersFromEight.previousDraws);
    EXPECT_GE(ShownLines(), 10);
}

TEST_F(KeyForm, AFilterAfterARefusalShowsTheLinesOfALongerFormToo) {
    AddFirstLottery("Three", "3,20,0,0,0");
    for (int row = 1; row <= 179; ++row) {
        for (int column = 1; column <= 6; ++column) {
            test_.state.Lines(row, column) = static_cast<std::int16_t>(column * 7);
        }
    }
    test_.messages.Expect(needsFourPicks);
    Open(1);
    Click(*form_, filtersFromEight.longRuns);
    EXPECT_EQ(ShownLines(), 179);
}

TEST_F(KeyForm, IsNotRefusedWhileBusy) {
    AddLottery(test_.folder, "dbase200.txt", "Three", "3,20,0,0,0");
    Open(1);
    test_.state.Picks = 3;
    test_.state.Busy = -1;
    Click(*form_, generateButton);
    EXPECT_EQ(test_.messages.Shown(), 0);
    test_.state.Busy = 0;
}

TEST_F(KeyForm, KeepsALineDealtAgain) {
    // 7 numbers, 4 a line, one key: two lines hold all others, a key at the last place makes a
    // third, the first again.
    AddFirstLottery("Seven", "4,7,0,0,0");
    bool again = false;
    for (test_.seed = 1; test_.seed <= 60 && !again; ++test_.seed) {
        Open(1);
        const auto rows = Rows(4);
        again = rows.size() == 3;
        if (again) {
            EXPECT_EQ(rows[2], rows[0]);
        }
    }
    EXPECT_TRUE(again);
}

TEST_F(KeyForm, ExtraBallsDifferUntilAllAreDealt) {
    Open(1);
    EXPECT_EQ(Column(8), Numbers(static_cast<std::size_t>(ShownLines()), 0));
    for (test_.seed = 1; test_.seed <= 5; ++test_.seed) {
        ChooseLottery(1);
        const Numbers balls = Column(8);
        EXPECT_EQ(std::set<int>(balls.begin(), balls.end()).size(), balls.size());
        ChooseLottery(0);
    }
}

TEST_F(KeyForm, ExtraBallsComeInTheSameOrderAgain) {
    AddFirstLottery("Three extra", "4,20,1,3,0");
    Open(1);
    const Numbers balls = Column(8);
    ASSERT_GE(balls.size(), 6U);
    for (std::size_t i = 3; i < balls.size(); ++i) EXPECT_EQ(balls[i], balls[i - 3]);
}

TEST_F(KeyForm, TriesUntilAllLinesComply) {
    Open(1);
    for (const char* box : conditionBoxes) SetCondition(box, true);
    Click(*form_, generateButton);
    EXPECT_FALSE(SaysLinesFail());
    for (const Numbers& line : Rows(6)) {
        const auto odd = std::ranges::count_if(line, [](int number) { return number % 2 == 1; });
        EXPECT_TRUE(odd >= 1 && odd <= 5);
    }
}

TEST_F(KeyForm, ConditionsThatNoLineMeetsEndAfterTenSeconds) {
    for (const int keys : {1, 2, 3}) {
        Open(keys);
        AskTheImpossible(conditionBoxes.at(keys_ - 1));
        Click(*form_, generateButton);
        EXPECT_TRUE(SaysLinesFail()) << Status().toStdString();
        EXPECT_GE(ShownLines(), 10);
        test_.tick = 0;
    }
}

TEST_F(KeyForm, AHundredNumbersWorkAndOneMoreEndsTheRun) {
    AddFirstLottery("Hundred", "5,100,1,100,0");
    AddLottery(test_.folder, "dbase200.txt", "Too many", "5,101,0,0,0");
    AddLottery(test_.folder, "dbase201.txt", "Too many extra", "5,50,1,101,0");
    for (const int keys : {1, 2, 3}) {
        Open(keys);
        ExpectKeysInEveryLineAndAllNumbersPlayed();
        EXPECT_THROW(ChooseLottery(4), std::runtime_error);
        test_.state.Busy = 0;
        EXPECT_THROW(ChooseLottery(5), std::runtime_error);
        test_.state.Busy = 0;
    }
}

TEST_F(KeyForm, OpensALotteryOfThreeThousandDraws) {
    LeaveOnlyLotto(std::vector<std::string>(3000, "28 May 05,3,17,22,34,41,48,0,9"));
    Open(3);
    EXPECT_GE(ShownLines(), 16);
}

TEST_F(KeyForm, EachFilterButtonHasItsFilterAndLeavesTheStatus) {
    Open(2);
    const QString status = Status();
    ExpectFiltersTakeLinesOut(filtersFromEight);
    EXPECT_EQ(Status(), status);
}

TEST_F(KeyForm, IsBusyUnderTheHourglassWhileItGenerates) {
    Open(2);
    ExpectBusyOverEmptyGridWhileGenerating();
}

TEST_F(KeyForm, DoesNothingWhileBusy) {
    Open(3);
    ExpectNoActionWhileBusy(filtersFromEight);
}

TEST_F(KeyForm, ShowsTheTipAndTheHelp) {
    Open(1);
    ExpectTipAndHelp();
}

TEST_F(KeyForm, SavesAndCloses) {
    Open(3);
    ExpectSaveAndClose();
}

TEST_F(KeyForm, GeneratesOnEnter) {
    Open(3);
    ExpectEnterGenerates({lotteryList, barNames[0], barNames[2], oddEvenBox, linesGrid});
}

TEST_F(KeyForm, ReachesItsControlsByTabInReadingOrder) {
    Open(3);
    ExpectTabOrder({lotteryList, barNames[0], barNames[1], barNames[2], explainButton, oddEvenBox,
                    highLowBox, previousDrawsBox, generateButton, filtersFromEight.oddEven,
                    filtersFromEight.highLow, filtersFromEight.longRuns,
                    filtersFromEight.previousDraws, linesGrid, saveButton, helpButton,
                    closeButton});
}

TEST_F(KeyForm, PlaysEveryNumberOfEachRealLotteryWithItsKeys) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    for (const int keys : {1, 2, 3}) {
        Open(keys);
        auto* list = Find<ListBox>(*form_, lotteryList);
        ASSERT_EQ(list->count(), 8);
        MoveAll(keys == 3 ? Numbers{7, 21, 33} : keys == 2 ? Numbers{7, 33} : Numbers{33});
        for (int index = 0; index < 8; ++index) {
            list->SetIndex(index);
            Click(*form_, generateButton);
            ExpectKeysInEveryLineAndAllNumbersPlayed();
        }
    }
}

}  // namespace

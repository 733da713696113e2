// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PWheel2.h"

#include <QPushButton>
#include <algorithm>
#include <array>
#include <set>

#include "tests/support/real_histories.h"
#include "tests/wheels/wheel_form.h"

namespace {

constexpr int boxCount = 18;

class WheelingPairs : public WheelFormTest {
  protected:
    void Open() { ShowForm(std::make_unique<PWheel2>(test_.program, nullptr)); }

    QStringList Captions() {
        QStringList captions;
        for (int option = 0; option < 6; ++option) {
            const std::string name = "Option1(" + std::to_string(option) + ")";
            captions << Find<QRadioButton>(*form_, name.c_str())->text();
        }
        return captions;
    }
};

TEST_F(WheelingPairs, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Wheeling pairs"));
    ExpectLabels(
        {{"Label7", "Wheeling pairs"},
         {"Label2",
          "This method of selecting Lotto entries tries to increase your chance of winning the "
          "smaller prizes by placing numbers into pairs. Each pair is played with every other "
          "pair. Pick up to 9 pairs of numbers."},
         {"Label8", "   Enter 8 different pairs of numbers, starting with A:"}});
    ExpectGroupWords(9);
}

TEST_F(WheelingPairs, GivesNoAdvice) {
    Open();
    EXPECT_EQ(form_->findChild<QObject*>(QStringLiteral("Label4")), nullptr);
}

TEST_F(WheelingPairs, OpensWithEightEmptyWhiteBoxesAndMakesNothing) {
    Open();
    ExpectEmptyForm(8, boxCount);
}

TEST_F(WheelingPairs, TellsTheLinesOfEachSizeForTheLotteryChosen) {
    const QStringList fewPicks = {QStringLiteral("Wheel 8 numbers in 6 lines"),
                                  QStringLiteral("Wheel 10 numbers in 10 lines"),
                                  QStringLiteral("Wheel 12 numbers in 15 lines"),
                                  QStringLiteral("Wheel 14 numbers in 21 lines"),
                                  QStringLiteral("Wheel 16 numbers in 28 lines"),
                                  QStringLiteral("Wheel 18 numbers in 36 lines")};
    const QStringList manyPicks = {QStringLiteral("Wheel 8 numbers in 3 lines"),
                                   QStringLiteral("Wheel 10 numbers in 6 lines"),
                                   QStringLiteral("Wheel 12 numbers in 10 lines"),
                                   QStringLiteral("Wheel 14 numbers in 15 lines"),
                                   QStringLiteral("Wheel 16 numbers in 21 lines"),
                                   QStringLiteral("Wheel 18 numbers in 28 lines")};
    Open();
    EXPECT_EQ(Captions(), manyPicks);
    for (const auto& [lottery, captions] :
         {std::pair(Five, fewPicks), {Four, fewPicks}, {Seven, manyPicks}, {Lotto, manyPicks}}) {
        ChooseLottery(lottery);
        EXPECT_EQ(Captions(), captions) << test_.state.LotteryName;
    }
}

TEST_F(WheelingPairs, PutsTheChosenSizeToUseAndEmptiesTheRest) {
    Open();
    for (const int option : {5, 3, 0, 4}) {
        ChooseSize(5);
        for (int index = 0; index < boxCount; ++index) TypeBox(index, QStringLiteral("7"));
        ChooseSize(option);
        const int count = 2 * option + 8;
        EXPECT_EQ(Text(promptLabel),
                  QStringLiteral("   Enter %1 different pairs of numbers, starting "
                                 "with A:")
                      .arg(count));
        for (int index = 0; index < boxCount; ++index) {
            const bool inUse = index < count;
            EXPECT_EQ(Background(index), inUse ? white : grey) << index;
            EXPECT_EQ(Box(index).text(), inUse ? QStringLiteral("7") : QString()) << index;
            EXPECT_TRUE(Box(index).isEnabled()) << index;
        }
    }
}

TEST_F(WheelingPairs, EmptiesTheRestAgainOnAClickOnTheSizeChosenAlready) {
    Open();
    TypeBox(7, QStringLiteral("7"));
    TypeBox(8, QStringLiteral("8"));
    ChooseSize(0);
    EXPECT_EQ(Box(7).text(), QStringLiteral("7"));
    EXPECT_EQ(Box(8).text(), QString());
}

TEST_F(WheelingPairs, TakesASizeChosenInCode) {
    Open();
    Find<QRadioButton>(*form_, "Option1(4)")->setChecked(true);
    EXPECT_EQ(Background(15), white);
    EXPECT_EQ(Background(16), grey);
}

TEST_F(WheelingPairs, MakesThreeLinesOfSixFromEightNumbers) {
    Open();
    TypeCounting(8);
    Click(*form_, generateButton);
    EXPECT_EQ(Rows(8),
              (std::vector<std::vector<int>>{
                  {1, 2, 3, 4, 7, 8, 0, 0}, {1, 2, 5, 6, 7, 8, 0, 0}, {3, 4, 5, 6, 7, 8, 0, 0}}));
    EXPECT_EQ(Lines().Cell(3, 0), QStringLiteral("3"));
    EXPECT_EQ(Lines().Cell(1, 7), QString()) << "empty, never 0";
    EXPECT_EQ(test_.state.Busy, 0);
}

const std::vector<std::vector<int>> sixLines = {{1, 2, 3, 4}, {1, 2, 5, 6}, {1, 2, 7, 8},
                                                {3, 4, 5, 6}, {3, 4, 7, 8}, {5, 6, 7, 8}};

TEST_F(WheelingPairs, MakesSixLinesOfFourFromEightNumbers) {
    Open();
    ChooseLottery(Four);
    TypeCounting(8);
    Click(*form_, generateButton);
    EXPECT_EQ(Rows(4), sixLines);
    for (int row = 1; row <= 6; ++row) {
        for (int column = 5; column <= 8; ++column) EXPECT_EQ(Lines().Cell(row, column), QString());
    }
}

TEST_F(WheelingPairs, AddsARandomFifthNumberToEachOfThem) {
    Open();
    for (const int lottery : {Five, FivePlain}) {
        ChooseLottery(lottery);
        TypeCounting(8);
        for (test_.seed = 1; test_.seed <= 20; ++test_.seed) {
            Click(*form_, generateButton);
            const auto rows = Rows(8);
            ASSERT_EQ(rows.size(), sixLines.size());
            for (std::size_t i = 0; i < rows.size(); ++i) {
                const std::set<int> five(rows[i].begin(), rows[i].begin() + 5);
                EXPECT_EQ(five.size(), 5U);
                EXPECT_TRUE(std::ranges::includes(five, sixLines[i]));
                EXPECT_TRUE(*five.begin() >= 1 && *five.rbegin() <= 34);
                EXPECT_TRUE(std::ranges::is_sorted(rows[i].begin(), rows[i].begin() + 5));
                const int extra = rows[i][7];
                EXPECT_TRUE(lottery == Five ? extra >= 1 && extra <= 14 : extra == 0) << extra;
            }
        }
    }
}

TEST_F(WheelingPairs, AddsARandomSeventhNumberToLinesOfSix) {
    Open();
    ChooseLottery(Seven);
    TypeCounting(8);
    Click(*form_, generateButton);
    const auto rows = Rows(8);
    ASSERT_EQ(rows.size(), 3U);
    for (const auto& row : rows) {
        EXPECT_EQ(std::set<int>(row.begin(), row.begin() + 7).size(), 7U);
        EXPECT_TRUE(row[7] >= 1 && row[7] <= 9) << row[7];
    }
}

TEST_F(WheelingPairs, MakesAsManyLinesAsEachCaptionSays) {
    Open();
    for (const int lottery : {Lotto, Five, Four, Seven}) {
        ChooseLottery(lottery);
        for (int option = 0; option < 6; ++option) {
            ChooseSize(option);
            Click(*form_, randomSelectionButton);
            Click(*form_, generateButton);
            EXPECT_TRUE(
                Captions()[option].endsWith(QStringLiteral(" in %1 lines").arg(ShownLines())))
                << Captions()[option].toStdString() << " but " << ShownLines();
        }
    }
}

TEST_F(WheelingPairs, PlaysANumberTypedTwiceTwice) {
    Open();
    ChooseLottery(Four);
    TypeCounting(8);
    TypeBox(1, QStringLiteral("1"));
    Click(*form_, generateButton);
    EXPECT_EQ(Rows(4)[0], (std::vector<int>{1, 1, 3, 4}));
    EXPECT_EQ(ShownLines(), 6);
}

TEST_F(WheelingPairs, WritesFourColumnsForThreePicksAndSortsThree) {
    AddLottery(test_.folder, "dbase0.txt", "Three", "3,49,0,0,0");
    Open();
    TypeCounting(8);
    for (int index = 0; index < 8; ++index) TypeBox(index, QString::number(40 - index));
    Click(*form_, generateButton);
    EXPECT_EQ(Rows(5)[0], (std::vector<int>{38, 39, 40, 37, 0}));
    EXPECT_EQ(ShownLines(), 6);
}

TEST_F(WheelingPairs, AnswersANumberThatCannotBeFoundWithTheTip) {
    AddLottery(test_.folder, "dbase0.txt", "Tiny", "5,4,0,0,0");
    Open();
    for (int index = 0; index < 8; ++index) TypeBox(index, QString::number(index % 4 + 1));
    ExpectInputTip();
    Click(*form_, generateButton);
    EXPECT_EQ(test_.messages.Shown(), 1);
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(WheelingPairs, FillsBoxesBeyondASmallFieldWithWhatThePoolHeld) {
    AddLottery(test_.folder, "dbase0.txt", "Small", "5,16,0,0,0");
    Open();
    ChooseSize(5);
    test_.state.Pool(17) = 77;
    test_.state.Pool(18) = 0;
    Click(*form_, randomSelectionButton);
    EXPECT_EQ(Box(16).text(), QStringLiteral("77"));
    EXPECT_EQ(Box(17).text(), QStringLiteral("0"));
    QStringList shuffled = BoxTexts(16);
    EXPECT_EQ(QSet<QString>(shuffled.begin(), shuffled.end()).size(), 16);
}

TEST_F(WheelingPairs, TakesColoursOneAndTwoOfTheSkinOnly) {
    TakeSkinColours("&H202020");
    Open();
    EXPECT_EQ(TextColour(headingLabel), QColor(1, 0, 0));
    EXPECT_EQ(TextColour(bodyLabel), QColor(2, 0, 0));
    EXPECT_EQ(TextColour(lotteryPrompt), form_->palette().color(QPalette::WindowText));
    EXPECT_EQ(Background(0), white);
    EXPECT_EQ(Background(17), grey);
    EXPECT_EQ(Box(0).palette().color(QPalette::Text), QColor(Qt::black));
}

TEST_F(WheelingPairs, WheelsTheNumbersOfRealLotteries) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    ExpectWheelsOfRealLotteries([this] { return test_.state.Picks < 6 ? 36 : 28; });
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PWheel3.h"

#include <QPushButton>
#include <algorithm>
#include <array>
#include <set>

#include "tests/support/real_histories.h"
#include "tests/wheels/wheel_form.h"

namespace {

constexpr int boxCount = 24;
constexpr const char* adviceLabel = "Label4";

class WheelingTriplets : public WheelFormTest {
  protected:
    void Open() { ShowForm(std::make_unique<PWheel3>(test_.program, nullptr)); }
};

TEST_F(WheelingTriplets, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Wheeling triplets"));
    ExpectLabels(
        {{"Label7", "Wheeling triplets"},
         {"Label2",
          "This method of selecting Lotto entries tries to increase your chance of winning the "
          "smaller prizes by placing numbers into groups of three. Each group is played with every "
          "other group. Pick up to 8 groups of three numbers."},
         {"Label8", "   Enter 9 different numbers in groups of three, starting with group A:"}});
    ExpectGroupWords(8);
}

TEST_F(WheelingTriplets, TellsTheSameLinesOfEachSizeForEveryLottery) {
    Open();
    for (const int lottery : {Lotto, Five}) {
        ChooseLottery(lottery);
        ExpectCaptions({{"Option1(0)", "Wheel   9 numbers in   3 lines"},
                        {"Option1(1)", "Wheel 12 numbers in   6 lines"},
                        {"Option1(2)", "Wheel 15 numbers in 10 lines"},
                        {"Option1(3)", "Wheel 18 numbers in 15 lines"},
                        {"Option1(4)", "Wheel 21 numbers in 21 lines"},
                        {"Option1(5)", "Wheel 24 numbers in 28 lines"}});
    }
}

TEST_F(WheelingTriplets, OpensWithNineEmptyWhiteBoxesAndMakesNothing) {
    Open();
    ExpectEmptyForm(9, boxCount);
}

TEST_F(WheelingTriplets, SaysWhichLotteriesTheMethodSuits) {
    AddLottery(test_.folder, "dbase7.txt", "Three", "3,49,0,0,0");
    Open();
    constexpr int three = 6;
    const std::vector<std::pair<int, const char*>> advice = {
        {Four, "4-pick lotteries are not ideal for this method."},
        {Five, "5-pick lotteries are not ideal for this method."},
        {Lotto, "6-pick lotteries are OK with Wheeling Triplets."},
        {Seven, "7-pick lotteries are not ideal for this method."},
        {three, "7-pick lotteries are not ideal for this method."}};
    EXPECT_EQ(Text(adviceLabel), QStringLiteral("6-pick lotteries are OK with Wheeling Triplets."));
    for (const auto& [lottery, text] : advice) {
        ChooseLottery(lottery);
        EXPECT_EQ(Text(adviceLabel), QString::fromLatin1(text)) << test_.state.LotteryName;
    }
}

TEST_F(WheelingTriplets, KeepsTheTextsOfBoxesThatASmallerSizePutsOutOfUse) {
    Open();
    ChooseSize(5);
    for (int index = 0; index < boxCount; ++index) TypeBox(index, QStringLiteral("7"));
    for (int option = 5; option >= 0; --option) {
        ChooseSize(option);
        const int count = 3 * option + 9;
        EXPECT_EQ(Text(promptLabel),
                  QStringLiteral("   Enter %1 different numbers in groups of three,"
                                 " starting with group A:")
                      .arg(count));
        for (int index = 0; index < boxCount; ++index) {
            EXPECT_EQ(Background(index), index < count ? white : grey) << index;
            EXPECT_EQ(Box(index).text(), QStringLiteral("7")) << index;
            EXPECT_TRUE(Box(index).isEnabled()) << index;
        }
    }
    Click(*form_, generateButton);
    for (int index = 0; index < boxCount; ++index) {
        EXPECT_EQ(Box(index).text(), index < 9 ? QStringLiteral("7") : QString()) << index;
    }
}

TEST_F(WheelingTriplets, MixesNumbersLeftInGreyBoxesIn) {
    Open();
    ChooseSize(1);
    TypeCounting(12);
    ChooseSize(0);
    bool mixedIn = false;
    for (int time = 0; time < 20 && !mixedIn; ++time) {
        Click(*form_, randomOrderButton);
        QStringList texts = BoxTexts(12);
        EXPECT_EQ(QSet<QString>(texts.begin(), texts.end()).size(), 12);
        const QStringList inUse = texts.mid(0, 9);
        mixedIn = inUse.contains(QStringLiteral("10")) || inUse.contains(QStringLiteral("11"));
    }
    EXPECT_TRUE(mixedIn);
    Click(*form_, generateButton);
    EXPECT_EQ(BoxTexts(12).mid(9), QStringList(3));
    EXPECT_EQ(ShownLines(), 3);
}

TEST_F(WheelingTriplets, PlaysAWholeGroupWithTheFirstOfTheOtherForFourPicks) {
    Open();
    ChooseLottery(Four);
    TypeCounting(9);
    Click(*form_, generateButton);
    EXPECT_EQ(Rows(8),
              (std::vector<std::vector<int>>{
                  {1, 2, 3, 4, 0, 0, 0, 0}, {1, 2, 3, 7, 0, 0, 0, 0}, {4, 5, 6, 7, 0, 0, 0, 0}}));
}

TEST_F(WheelingTriplets, PlaysTheFirstTwoOfTheOtherForFivePicksWithTheExtraBall) {
    Open();
    ChooseLottery(Five);
    TypeCounting(9);
    Click(*form_, generateButton);
    EXPECT_EQ(Rows(5),
              (std::vector<std::vector<int>>{{1, 2, 3, 4, 5}, {1, 2, 3, 7, 8}, {4, 5, 6, 7, 8}}));
    for (const auto& row : Rows(8)) EXPECT_TRUE(row[7] >= 1 && row[7] <= 14) << row[7];
}

TEST_F(WheelingTriplets, PlaysBothGroupsForSixPicks) {
    Open();
    TypeCounting(9);
    Click(*form_, generateButton);
    EXPECT_EQ(Rows(8),
              (std::vector<std::vector<int>>{
                  {1, 2, 3, 4, 5, 6, 0, 0}, {1, 2, 3, 7, 8, 9, 0, 0}, {4, 5, 6, 7, 8, 9, 0, 0}}));
}

TEST_F(WheelingTriplets, AddsARandomNumberToBothGroupsForSevenPicks) {
    Open();
    ChooseLottery(Seven);
    TypeCounting(9);
    for (test_.seed = 1; test_.seed <= 20; ++test_.seed) {
        Click(*form_, generateButton);
        const auto rows = Rows(8);
        ASSERT_EQ(rows.size(), 3U);
        for (const auto& row : rows) {
            EXPECT_EQ(std::set<int>(row.begin(), row.begin() + 7).size(), 7U);
            EXPECT_TRUE(std::ranges::is_sorted(row.begin(), row.begin() + 7));
            EXPECT_TRUE(row[7] >= 1 && row[7] <= 9) << row[7];
        }
        EXPECT_TRUE(std::ranges::includes(rows[0], std::array{1, 2, 3, 4, 5, 6}));
    }
}

TEST_F(WheelingTriplets, MakesAsManyLinesAsEachCaptionSays) {
    Open();
    for (const int lottery : {Lotto, Five, Four, Seven}) {
        ChooseLottery(lottery);
        for (int option = 0; option < 6; ++option) {
            ChooseSize(option);
            Click(*form_, randomSelectionButton);
            Click(*form_, generateButton);
            const std::array lines = {3, 6, 10, 15, 21, 28};
            EXPECT_EQ(ShownLines(), lines[static_cast<std::size_t>(option)]);
        }
    }
}

TEST_F(WheelingTriplets, AnswersANumberThatCannotBeFoundWithTheTip) {
    AddLottery(test_.folder, "dbase0.txt", "Tiny", "7,6,0,0,0");
    Open();
    for (int index = 0; index < 9; ++index) TypeBox(index, QString::number(index % 6 + 1));
    ExpectInputTip();
    Click(*form_, generateButton);
    EXPECT_EQ(test_.messages.Shown(), 1);
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(test_.state.Lines(1, 1), 0);
}

TEST_F(WheelingTriplets, GivesColourFourOfTheSkinToTheAdvice) {
    TakeSkinColours("&H202020");
    Open();
    EXPECT_EQ(TextColour(headingLabel), QColor(1, 0, 0));
    EXPECT_EQ(TextColour(bodyLabel), QColor(2, 0, 0));
    EXPECT_EQ(TextColour(adviceLabel), QColor(4, 0, 0));
    EXPECT_EQ(TextColour(lotteryPrompt), form_->palette().color(QPalette::WindowText));
}

TEST_F(WheelingTriplets, WheelsTheNumbersOfRealLotteries) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    ExpectWheelsOfRealLotteries([] { return 28; });
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PDIYWheels.h"

#include <QPushButton>
#include <algorithm>

#include "core/failure.h"
#include "tests/support/real_histories.h"
#include "tests/wheels/wheel_form.h"

namespace {

constexpr int boxCount = 20;
constexpr const char* numbersList = "Combo1";
constexpr const char* intervalList = "Combo2";
constexpr const char* helpButton = "Command4";

class CreateAWheel : public WheelFormTest {
  protected:
    void Open() { ShowForm(std::make_unique<PDIYWheels>(test_.program, nullptr)); }

    /// Chooses in the lists: how many numbers, at what interval.
    void ChooseRing(int numbers, int interval) {
        Combo(numbersList).SetIndex(numbers - 8);
        Combo(intervalList).SetIndex(interval - 1);
    }

    void ExpectInUse(int count) {
        for (int index = 0; index < boxCount; ++index) {
            EXPECT_EQ(Background(index), index < count ? white : grey) << index;
            EXPECT_EQ(Box(index).isEnabled(), index < count) << index;
        }
    }
};

TEST_F(CreateAWheel, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("PDIYWheels"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Create-a-Wheel"));
    ExpectLabels(
        {{"Label7", "Create-a-wheel"},
         {"Label2",
          "Create your own wheels by selecting how many numbers to wheel and then by choosing the "
          "wheel interval. Click the 'Random selection' button if you want the program to pick "
          "your numbers. Click 'Random input order to place the numbers you enter in a random "
          "order."},
         {"Label9", "Numbers to wheel:"},
         {"Label5", "Interval:"},
         {"Label6", "Filters"}});
    ExpectCaptions(
        {{randomSelectionButton, "Random selection"}, {randomOrderButton, "Random order"}});
    ExpectFrameWords(usualFilters, helpButton);
    EXPECT_EQ(Find<QWidget>(*form_, randomSelectionButton)->toolTip(),
              QStringLiteral(" Pick some numbers for me "));
    EXPECT_EQ(Find<QWidget>(*form_, randomOrderButton)->toolTip(),
              QStringLiteral(" Mix up the order of the numbers "));
}

TEST_F(CreateAWheel, OffersEightToTwentyNumbersAtIntervalsOfOneToFive) {
    Open();
    QStringList numbers;
    for (int number = 8; number <= 20; ++number) numbers << QString::number(number);
    EXPECT_EQ(Items(numbersList), numbers);
    EXPECT_EQ(Items(intervalList),
              (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                           QStringLiteral("4"), QStringLiteral("5")}));
    EXPECT_EQ(Combo(numbersList).accessibleName(), QStringLiteral("Numbers to wheel:"));
    EXPECT_EQ(Combo(intervalList).accessibleName(), QStringLiteral("Interval:"));
}

TEST_F(CreateAWheel, HasNoPromptNoConditionsAndNoLineCount) {
    Open();
    EXPECT_FALSE(Find<QLabel>(*form_, promptLabel)->isVisible());
    for (const char* name :
         {"HScroll1", "Check1", "Check2", "Check3", "Label6(0)", "Option1(0)", "Text1(20)"}) {
        EXPECT_EQ(form_->findChild<QObject*>(QString::fromLatin1(name)), nullptr) << name;
    }
}

TEST_F(CreateAWheel, OpensWithEightEmptyWhiteBoxesAndMakesNothing) {
    test_.state.Busy = -1;
    Open();
    EXPECT_EQ(test_.state.Busy, 0);
    EXPECT_EQ(test_.state.LotteryName, "Lotto");
    EXPECT_EQ(Combo(numbersList).Index(), 0);
    EXPECT_EQ(Combo(intervalList).Index(), 0);
    ExpectInUse(8);
    EXPECT_EQ(BoxTexts(boxCount), QStringList(boxCount));
    EXPECT_EQ(ShownLines(), 0);
}

TEST_F(CreateAWheel, PutsTheChosenNumberOfBoxesToUseAndEmptiesTheRest) {
    Open();
    for (const int count : {20, 8, 13, 9}) {
        ChooseRing(20, 1);
        for (int index = 0; index < boxCount; ++index) TypeBox(index, QStringLiteral("7"));
        ChooseRing(count, 1);
        ExpectInUse(count);
        for (int index = 0; index < boxCount; ++index) {
            EXPECT_EQ(Box(index).text(), index < count ? QStringLiteral("7") : QString()) << index;
        }
    }
}

TEST_F(CreateAWheel, TakesTheNumberFromTheArrowKeysToo) {
    Open();
    QTest::keyClick(&Combo(numbersList), Qt::Key_Down);
    ExpectInUse(9);
}

TEST_F(CreateAWheel, EmptiesTheRestAgainOnAChoiceOfTheNumberChosenAlready) {
    Open();
    Box(8).setText(QStringLiteral("9"));
    ChooseFromPopup(numbersList, 0);
    EXPECT_EQ(Box(8).text(), QString());
    ExpectInUse(8);
}

TEST_F(CreateAWheel, LeavesGridAndLinesAloneOnAChoice) {
    Open();
    TypeCounting(8);
    Click(*form_, generateButton);
    const QStringList before = Texts();
    ChooseRing(12, 4);
    EXPECT_EQ(Texts(), before);
    EXPECT_EQ(test_.state.Lines(8, 1), 1);
}

TEST_F(CreateAWheel, MakesTwoLinesOfEightNumbersAtIntervalFive) {
    Open();
    ChooseRing(8, 5);
    TypeCounting(8);
    Click(*form_, generateButton);
    EXPECT_EQ(Rows(8),
              (std::vector<std::vector<int>>{{1, 2, 3, 4, 5, 6, 0, 0}, {1, 2, 3, 6, 7, 8, 0, 0}}));
}

TEST_F(CreateAWheel, MakesEightLinesOfEightNumbersAtIntervalOne) {
    Open();
    TypeCounting(8);
    Click(*form_, generateButton);
    EXPECT_EQ(ShownLines(), 8);
    Combo(intervalList).SetIndex(4);
    EXPECT_EQ(ShownLines(), 8) << "another interval waits for the button";
    Click(*form_, generateButton);
    EXPECT_EQ(ShownLines(), 2);
}

TEST_F(CreateAWheel, MakesFourLinesOfSevenOfTwentyNumbersAtIntervalFive) {
    Open();
    ChooseLottery(Seven);
    ChooseRing(20, 5);
    TypeCounting(20);
    Click(*form_, generateButton);
    EXPECT_EQ(Rows(7), (std::vector<std::vector<int>>{{1, 2, 3, 4, 5, 6, 7},
                                                      {6, 7, 8, 9, 10, 11, 12},
                                                      {11, 12, 13, 14, 15, 16, 17},
                                                      {1, 2, 16, 17, 18, 19, 20}}));
    for (const auto& row : Rows(8)) EXPECT_TRUE(row[7] >= 1 && row[7] <= 9) << row[7];
}

TEST_F(CreateAWheel, NeverSeedsTheRandomNumbers) {
    int seedings = 0;
    test_.services.random = Random([&seedings] {
        ++seedings;
        return std::uint64_t{1};
    });
    Open();
    ChooseLottery(Five);
    Click(*form_, randomSelectionButton);
    Click(*form_, randomOrderButton);
    Click(*form_, generateButton);
    EXPECT_EQ(ShownLines(), 8);
    EXPECT_EQ(seedings, 0);
}

TEST_F(CreateAWheel, RefusesAnEmptyBoxOrANoughtAndKeepsTheLines) {
    Open();
    TypeCounting(8);
    Click(*form_, generateButton);
    const QStringList before = Texts();
    for (const char* wrong : {"", "0", "000"}) {
        TypeBox(5, QString::fromLatin1(wrong));
        ExpectInputTip();
        const int shown = test_.messages.Shown();
        Click(*form_, generateButton);
        EXPECT_EQ(test_.messages.Shown(), shown + 1);
        EXPECT_EQ(Texts(), before);
        EXPECT_EQ(test_.state.Lines(8, 1), 1) << "the lines stay too";
        EXPECT_EQ(form_->focusWidget(), &Box(5)) << "where the input has to be mended";
    }
    Click(*form_, usualFilters.oddEven);
    EXPECT_GT(ShownLines(), 0) << "a filter works on what is there";
}

TEST_F(CreateAWheel, PlaysANumberAboveTheLotterys) {
    Open();
    TypeCounting(8);
    TypeBox(0, QStringLiteral("999"));
    Click(*form_, generateButton);
    EXPECT_EQ(Rows(6)[0], (std::vector<int>{2, 3, 4, 5, 6, 999}));
}

TEST_F(CreateAWheel, TakesThreeDigitsIntoABoxAndNothingElse) {
    Open();
    TypeBox(0, QStringLiteral("-1a .2x3e4"));
    EXPECT_EQ(Box(0).text(), QStringLiteral("123"));
    EXPECT_EQ(Box(0).alignment(), Qt::AlignCenter);
}

TEST_F(CreateAWheel, LeadsEnterOnThroughTheBoxesInUse) {
    Open();
    TypeCounting(8);
    Box(0).setFocus();
    for (int index = 1; index < 8; ++index) {
        QTest::keyClick(form_->focusWidget(), Qt::Key_Return);
        EXPECT_EQ(form_->focusWidget(), &Box(index));
    }
    QTest::keyClick(&Box(7), Qt::Key_Enter);
    EXPECT_EQ(form_->focusWidget(), &Box(7)) << "the next one is out of use";
    EXPECT_EQ(ShownLines(), 0) << "Enter never generates";
}

TEST_F(CreateAWheel, SelectsDifferentNumbersForTheBoxesInUse) {
    Open();
    ChooseRing(12, 1);
    Click(*form_, randomSelectionButton);
    const QStringList texts = BoxTexts(12);
    EXPECT_EQ(QSet<QString>(texts.begin(), texts.end()).size(), 12);
    for (const QString& text : texts) EXPECT_TRUE(text.toInt() >= 1 && text.toInt() <= 49);
    EXPECT_EQ(Box(12).text(), QString());
}

TEST_F(CreateAWheel, MixesTheNumbersAndWritesThemPlain) {
    Open();
    TypeCounting(8);
    TypeBox(4, QStringLiteral("005"));
    QStringList before = BoxTexts(8);
    Click(*form_, randomOrderButton);
    QStringList after = BoxTexts(8);
    EXPECT_NE(after, before);
    before[4] = QStringLiteral("5");
    std::ranges::sort(before);
    std::ranges::sort(after);
    EXPECT_EQ(after, before);
}

TEST_F(CreateAWheel, WritesEveryBoxWhenItMixesAndEmptiesNoughts) {
    Open();
    TypeBox(0, QStringLiteral("0"));
    TypeBox(1, QStringLiteral("9"));
    TypeBox(5, QStringLiteral("000"));
    Click(*form_, randomOrderButton);
    QStringList expected(boxCount);
    expected[0] = QStringLiteral("9");
    EXPECT_EQ(BoxTexts(boxCount), expected);
}

TEST_F(CreateAWheel, SelectsAndMixesWhileBusyToo) {
    Open();
    ExpectRandomButtonsWorkWhileBusy(8);
}

TEST_F(CreateAWheel, EmptiesInvalidBoxesAndTheGridOnAChangeOfLottery) {
    Open();
    TypeCounting(8);
    TypeBox(0, QStringLiteral("41"));
    Click(*form_, generateButton);
    ChooseLottery(Six40);
    EXPECT_EQ(Box(0).text(), QString());
    EXPECT_EQ(Box(1).text(), QStringLiteral("2"));
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(test_.state.Lines(2, 1), 2) << "the lines stay";
    Click(*form_, usualFilters.previousDraws);
    EXPECT_EQ(ShownLines(), 8) << "and a filter shows what is left of them";
}

TEST_F(CreateAWheel, LooksAtBusyOnlyBeforeItLoadsALottery) {
    int prints = 0;
    test_.services.printLines = [&prints](QWidget*, Grid&) { ++prints; };
    Open();
    TypeCounting(8);
    test_.state.Busy = -1;
    ChooseLottery(Four);
    EXPECT_EQ(test_.state.LotteryName, "Lotto");
    Click(*form_, generateButton);
    EXPECT_EQ(ShownLines(), 8);
    EXPECT_EQ(test_.state.Busy, -1) << "generate leaves it alone";
    Click(*form_, printButton);
    Click(*form_, saveButton);
    EXPECT_EQ(prints + saves_, 2);
    MakeOnlyLine({1, 2, 3, 4, 30, 40});
    Click(*form_, usualFilters.longRuns);
    EXPECT_EQ(ShownLines(), 0);
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(CreateAWheel, FiltersTheLinesShown) {
    Open();
    ExpectFiltersTakeLinesOut(usualFilters);
}

TEST_F(CreateAWheel, TakesColoursOneToThreeOfTheSkin) {
    TakeSkinColours("&H202020");
    Open();
    EXPECT_EQ(TextColour(headingLabel), QColor(1, 0, 0));
    EXPECT_EQ(TextColour(bodyLabel), QColor(2, 0, 0));
    for (const char* label : {lotteryPrompt, "Label9", "Label10", "Label5"}) {
        EXPECT_EQ(TextColour(label), QColor(3, 0, 0)) << label;
    }
}

TEST_F(CreateAWheel, OpensTheHelpPage) {
    Open();
    Click(*form_, helpButton);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("helpplay.html")});
}

TEST_F(CreateAWheel, ReachesItsControlsByTabInReadingOrder) {
    Open();
    ExpectTabOrder({lotteryList, numbersList, intervalList, "Text1(0)", "Text1(1)"});
    ExpectTabOrder({"Text1(7)", randomSelectionButton, randomOrderButton, generateButton,
                    usualFilters.oddEven, usualFilters.highLow, usualFilters.longRuns,
                    usualFilters.previousDraws, linesGrid, saveButton, helpButton, closeButton});
}

TEST_F(CreateAWheel, EndsInTheReportWithoutALottery) {
    test_.folder = MemoryFolder();
    EXPECT_THROW(Open(), Failure);
}

TEST_F(CreateAWheel, WheelsTheNumbersOfRealLotteries) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    ChooseRing(20, 3);
    for (int index = 0; index < Find<ListBox>(*form_, lotteryList)->count(); ++index) {
        ChooseLottery(index);
        Click(*form_, randomSelectionButton);
        Click(*form_, generateButton);
        ExpectWholeLines(7);
    }
}

}  // namespace

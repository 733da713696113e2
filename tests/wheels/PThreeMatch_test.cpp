// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PThreeMatch.h"

#include <QPushButton>
#include <algorithm>
#include <set>

#include "core/failure.h"
#include "platform/widgets/Lists.h"
#include "tests/support/real_histories.h"
#include "tests/wheels/wheel_form.h"
#include "wheels/patterns.h"

namespace {

constexpr int boxCount = 20;
constexpr const char* sentenceLabel = "Label2";
constexpr const char* threeMatchList = "Combo1";
constexpr const char* fourMatchList = "Combo2";

class MatchWheelsForm : public WheelFormTest {
  protected:
    void Open() {
        ShowForm(std::make_unique<PThreeMatch>(test_.program, nullptr));
        QApplication::processEvents();
    }

    ComboList& List(const char* name) { return *Find<ComboList>(*form_, name); }

    void Generate() { Click(*form_, generateButton); }

    void ExpectNotSuitable() {
        test_.messages.Expect(
            {.title = QStringLiteral("Sorry!"),
             .text = QStringLiteral("This method is not suitable for this lottery.    "),
             .sign = Sign::Exclamation});
    }

    void ExpectInUse(int count) {
        for (int index = 0; index < boxCount; ++index) {
            EXPECT_EQ(Background(index), index < count ? white : grey) << index;
            EXPECT_EQ(Box(index).isEnabled(), index < count) << index;
        }
    }

    void ExpectProof(const char* text) {
        EXPECT_EQ(Label(sentenceLabel).toolTip(), QString::fromLatin1(text));
        EXPECT_EQ(Label(sentenceLabel).accessibleDescription(), QString::fromLatin1(text));
    }
};

TEST_F(MatchWheelsForm, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Three-match wheels"));
    ExpectLabels({{"Label7", "Guaranteed 3-match wheels"},
                  {"Label1", "Pick your wheel:"},
                  {"Label1(1)", "Select a lottery:"},
                  {"Label3", "Designed for pick-6 lotteries"},
                  {"Label6", "Filters"},
                  {"Label8", "   Pick 20 numbers:"},
                  {"Label2",
                   "If your numbers contain 6 numbers in the lottery draw result you will match at "
                   "least 3 in one or more lines. This wheel requires 10 lottery entries."}});
    ExpectCaptions({{"Option1(0)", "3-match wheels"},
                    {"Option1(1)", "4-match wheels"},
                    {"Command12", "Random selection"},
                    {"Command8", "Random order"},
                    {"Command3", " Help "},
                    {"Command13", "Odd/even"},
                    {"Command14", "High/low"},
                    {"Command15", "Long runs"},
                    {"Command9", "Previous draws"}});
    EXPECT_EQ(Find<QWidget>(*form_, "Command12")->toolTip(),
              QStringLiteral(" Enter a random selection of numbers "));
    EXPECT_EQ(Find<QWidget>(*form_, "Command8")->toolTip(),
              QStringLiteral(" Nix up the order of the numbers "));
    EXPECT_EQ(Find<QWidget>(*form_, generateButton)->toolTip(),
              QStringLiteral("Generate another selection of lottery entries"));
}

TEST_F(MatchWheelsForm, OpensWithTheWheelOfTwentyInThreeMatchModeAndMakesNothing) {
    Open();
    EXPECT_TRUE(Find<QRadioButton>(*form_, "Option1(0)")->isChecked());
    EXPECT_TRUE(List(threeMatchList).isVisible());
    EXPECT_FALSE(List(fourMatchList).isVisible());
    EXPECT_EQ(List(threeMatchList).currentText(), QStringLiteral(" 6 from 20"));
    EXPECT_EQ(List(fourMatchList).currentText(), QStringLiteral(" 4 from 7"));
    EXPECT_EQ(List(threeMatchList).count(), 13);
    EXPECT_EQ(List(fourMatchList).count(), 14);
    ExpectInUse(20);
    EXPECT_EQ(BoxTexts(boxCount).join(QString()), QString());
    EXPECT_EQ(ShownLines(), 0);
}

TEST_F(MatchWheelsForm, TakesItsSecondModeBeforeItIsShown) {
    form_ = std::make_unique<PThreeMatch>(test_.program, nullptr);
    form_->Load();
    Find<QRadioButton>(*form_, "Option1(1)")->click();
    form_->show();
    EXPECT_TRUE(List(fourMatchList).isVisible());
    EXPECT_FALSE(List(threeMatchList).isVisible());
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Four-match wheels"));
    ExpectInUse(7);
}

TEST_F(MatchWheelsForm, ChangesItsWordsAndListWithTheModeAndTakesTheWheelLastChosenThere) {
    Open();
    List(threeMatchList).SetIndex(10);
    ChooseSize(1);
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Four-match wheels"));
    EXPECT_EQ(Text("Label7"), QStringLiteral("Guaranteed 4-match wheels"));
    EXPECT_FALSE(List(threeMatchList).isVisible());
    EXPECT_TRUE(List(fourMatchList).isVisible());
    EXPECT_EQ(Text(promptLabel), QStringLiteral("   Pick 7 numbers:"));
    EXPECT_EQ(Text(sentenceLabel),
              QStringLiteral("If your numbers contain 4 of the 6 numbers in the lottery draw "
                             "result,  you will match at least 4 in one or more lines. This wheel "
                             "requires 5 lottery entries."));
    ExpectInUse(7);
    List(fourMatchList).SetIndex(8);
    ChooseSize(0);
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Three-match wheels"));
    EXPECT_EQ(Text("Label7"), QStringLiteral("Guaranteed 3-match wheels"));
    EXPECT_EQ(Text(promptLabel), QStringLiteral("   Pick 12 numbers:"));
    ExpectInUse(12);
    ChooseSize(1);
    EXPECT_EQ(Text(promptLabel), QStringLiteral("   Pick 10 numbers:"));
}

TEST_F(MatchWheelsForm, PutsAsManyBoxesToUseAsEachWheelTakes) {
    Open();
    for (const auto& [name, list] : {std::pair(threeMatchList, wheels::WheelList::ThreeMatch),
                                     std::pair(fourMatchList, wheels::WheelList::FourMatch)}) {
        ChooseSize(list == wheels::WheelList::ThreeMatch ? 0 : 1);
        for (int item = List(name).count() - 1; item >= 0; --item) {
            List(name).SetIndex(item);
            const int numbers = wheels::WheelAt(list, item).numbers;
            EXPECT_EQ(Text(promptLabel), QStringLiteral("   Pick %1 numbers:").arg(numbers));
            ExpectInUse(numbers);
        }
    }
}

TEST_F(MatchWheelsForm, TakesAWheelFromTheKeyboard) {
    Open();
    List(threeMatchList).setFocus();
    QTest::keyClick(&List(threeMatchList), Qt::Key_Down);
    EXPECT_EQ(Text(promptLabel), QStringLiteral("   Pick 19 numbers:"));
}

TEST_F(MatchWheelsForm, KeepsTheNumbersOfBoxesThatStayInUseAndDropsTheOthers) {
    Open();
    TypeCounting(20);
    List(threeMatchList).SetIndex(6);
    EXPECT_EQ(BoxTexts(11).join(QLatin1Char(',')), QStringLiteral("1,2,3,4,5,6,7,8,9,10,"));
    List(threeMatchList).SetIndex(0);
    EXPECT_EQ(BoxTexts(20).mid(10).join(QString()), QString());
    EXPECT_EQ(Box(9).text(), QStringLiteral("10"));
}

TEST_F(MatchWheelsForm, EmptiesTheGridOnAChoiceAndKeepsTheLines) {
    Open();
    List(threeMatchList).SetIndex(10);
    TypeCounting(12);
    Generate();
    EXPECT_EQ(Rows(7),
              (std::vector<std::vector<int>>{{1, 2, 3, 4, 5, 6, 0}, {7, 8, 9, 10, 11, 12, 0}}));
    List(threeMatchList).SetIndex(11);
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(test_.state.Lines(2, 6), 12);
    Click(*form_, usualFilters.previousDraws);
    EXPECT_EQ(ShownLines(), 2) << "a filter shows what is left of them";
}

TEST_F(MatchWheelsForm, RunsItsHandlerAgainForTheEntryAlreadyChosen) {
    Open();
    Click(*form_, randomSelectionButton);
    Generate();
    EXPECT_EQ(ShownLines(), 10);
    ChooseSize(0);
    EXPECT_EQ(ShownLines(), 0) << "the mode that is chosen already";
    Generate();
    List(threeMatchList).showPopup();
    QTest::keyClick(List(threeMatchList).view(), Qt::Key_Return);
    EXPECT_EQ(ShownLines(), 0) << "the wheel that is chosen already";
}

TEST_F(MatchWheelsForm, MakesEveryWheelWithAsManyLinesAsItSays) {
    Open();
    for (const int lottery : {Lotto, Five, Seven, FivePlain}) {
        ChooseLottery(lottery);
        for (const auto& [mode, name, list] :
             {std::tuple(0, threeMatchList, wheels::WheelList::ThreeMatch),
              std::tuple(1, fourMatchList, wheels::WheelList::FourMatch)}) {
            ChooseSize(mode);
            for (int item = 0; item < List(name).count(); ++item) {
                List(name).SetIndex(item);
                Click(*form_, randomSelectionButton);
                Generate();
                EXPECT_EQ(ShownLines(), wheels::WheelAt(list, item).lines);
                for (const auto& row : Rows(8)) {
                    const std::set<int> numbers(row.begin(), row.begin() + test_.state.Picks);
                    EXPECT_EQ(static_cast<int>(numbers.size()), test_.state.Picks);
                    EXPECT_EQ(row[7] > 0, test_.state.MaxPball > 0);
                }
            }
        }
    }
}

TEST_F(MatchWheelsForm, LosesTheSixthNumberOfEachLineForFivePicksAndKeepsItsSentence) {
    Open();
    ChooseSize(1);
    List(fourMatchList).SetIndex(8);
    const QString sentence = Text(sentenceLabel);
    ChooseLottery(FivePlain);
    TypeCounting(10);
    Generate();
    EXPECT_EQ(Rows(6), (std::vector<std::vector<int>>{
                           {1, 3, 5, 6, 7, 0}, {2, 3, 4, 7, 8, 0}, {1, 2, 4, 5, 6, 0}}));
    EXPECT_EQ(Lines().Cell(1, 6), QString());
    EXPECT_EQ(Text(sentenceLabel), sentence);
}

TEST_F(MatchWheelsForm, RefusesFourPicksBeforeItLooksAtTheBoxes) {
    Open();
    List(threeMatchList).SetIndex(10);
    TypeCounting(12);
    Generate();
    ChooseLottery(Four);
    for (int time = 0; time < 2; ++time) {
        ExpectNotSuitable();
        Generate();
        TypeBox(0, QString());
    }
    EXPECT_EQ(test_.messages.Shown(), 2);
    EXPECT_EQ(test_.state.Lines(1, 1), 1) << "the lines stay";
}

TEST_F(MatchWheelsForm, LeavesLinesAndGridAloneWhereABoxIsWrong) {
    Open();
    List(threeMatchList).SetIndex(10);
    TypeCounting(12);
    Generate();
    const QStringList before = Texts();
    for (const char* wrong : {"", "0", "50", "999"}) {
        TypeBox(11, QString::fromLatin1(wrong));
        ExpectInputTip();
        Generate();
        EXPECT_EQ(Texts(), before);
        EXPECT_EQ(test_.state.Lines(1, 1), 1);
        EXPECT_EQ(form_->focusWidget(), &Box(11));
    }
}

TEST_F(MatchWheelsForm, NeitherSeedsNorTouchesBusy) {
    Open();
    List(threeMatchList).SetIndex(10);
    test_.state.Busy = -1;
    test_.random.Reset(5);
    Random same([] { return std::uint64_t{0}; });
    same.Reset(5);
    TypeCounting(12);
    Generate();
    EXPECT_EQ(test_.random.Next(), same.Next());
    EXPECT_EQ(test_.state.Busy, -1);
    EXPECT_EQ(ShownLines(), 2);
    for (const char* button : {saveButton, closeButton}) Click(*form_, button);
    EXPECT_EQ(saves_, 1);
    EXPECT_FALSE(form_->isVisible()) << "it closes at once";
    test_.state.Busy = 0;
}

TEST_F(MatchWheelsForm, LeadsEnterFromBoxToBoxAndNeverGenerates) {
    Open();
    List(threeMatchList).SetIndex(6);
    TypeCounting(10);
    Box(8).setFocus();
    QTest::keyClick(&Box(8), Qt::Key_Return);
    EXPECT_EQ(form_->focusWidget(), &Box(9));
    QTest::keyClick(&Box(9), Qt::Key_Return);
    EXPECT_EQ(form_->focusWidget(), &Box(9)) << "the next one is disabled";
    EXPECT_EQ(BoxTexts(11).join(QLatin1Char(',')), QStringLiteral("1,2,3,4,5,6,7,8,9,10,"));
    EXPECT_EQ(ShownLines(), 0);
}

TEST_F(MatchWheelsForm, EmptiesTheBoxesThatTheNextLotteryHasNoNumberFor) {
    Open();
    TypeBox(0, QStringLiteral("40"));
    TypeBox(1, QStringLiteral("41"));
    ChooseLottery(Six40);
    EXPECT_EQ(BoxTexts(2), (QStringList{QStringLiteral("40"), QString()}));
    EXPECT_EQ(Text(promptLabel), QStringLiteral("   Pick 20 numbers:"));
}

TEST_F(MatchWheelsForm, FiltersTheShownLines) {
    Open();
    ExpectFiltersTakeLinesOut(usualFilters);
}

TEST_F(MatchWheelsForm, TellsWhatTheVerifierFoundBesideItsSentence) {
    Open();
    ExpectProof("Checked: all 38,760 selections of 6 from 20 numbers have a 3-match.");
    List(threeMatchList).SetIndex(10);
    ExpectProof("Checked: all 792 selections of 5 from 12 numbers have a 3-match.");
    ChooseSize(1);
    ExpectProof("Checked: all 35 selections of 4 from 7 numbers have a 4-match.");
    ChooseLottery(Seven);
    ExpectProof(
        "Checked: all 35 selections of 4 from 7 numbers have a 4-match. This counts the six "
        "numbers that the wheel gives each line, not the random ones.");
    ChooseLottery(Five);
    EXPECT_TRUE(Label(sentenceLabel)
                    .toolTip()
                    .startsWith(QStringLiteral(
                        "Checked: 14 of 35 selections of 4 from 7 numbers have a 4-match; 21 have "
                        "none, such as numbers ")));
}

TEST_F(MatchWheelsForm, TellsWhatHoldsForTheLinesThatAFilterHasLeft) {
    Open();
    List(threeMatchList).SetIndex(10);
    TypeCounting(12);
    const char* all = "Checked: all 792 selections of 5 from 12 numbers have a 3-match.";
    Generate();
    Click(*form_, usualFilters.oddEven);
    ExpectProof(all);
    Click(*form_, usualFilters.longRuns);
    ASSERT_EQ(ShownLines(), 0);
    ExpectProof(
        "Checked: all 792 selections of 5 from 12 numbers have a 3-match. This is the whole wheel, "
        "not the lines left.");
    QApplication::processEvents();
    ExpectProof(
        "Checked: 0 of 792 selections of 5 from 12 numbers have a 3-match in the 0 lines left; 792 "
        "have none, such as 1, 2, 3, 4 and 5.");
    Generate();
    ExpectProof(all);
    Click(*form_, usualFilters.longRuns);
    Generate();
    QApplication::processEvents();
    ExpectProof(all);
    Click(*form_, usualFilters.longRuns);
    List(threeMatchList).SetIndex(11);
    QApplication::processEvents();
    EXPECT_TRUE(Label(sentenceLabel).toolTip().contains(QStringLiteral("2,002 selections")))
        << "another wheel";
    Click(*form_, usualFilters.oddEven);
    QApplication::processEvents();
    EXPECT_FALSE(Label(sentenceLabel).toolTip().contains(QStringLiteral("left")));
}

TEST_F(MatchWheelsForm, CountsTheLinesLeftForFiveNumbersDrawnWhereTheLotteryDrawsFive) {
    Open();
    ChooseLottery(FivePlain);
    List(threeMatchList).SetIndex(5);
    for (int index = 0; index < 15; ++index) TypeBox(index, QString::number(2 * index + 2));
    Generate();
    Click(*form_, usualFilters.oddEven);
    QApplication::processEvents();
    ExpectProof(
        "Checked: 0 of 3,003 selections of 5 from 15 numbers have a 3-match in the 0 lines left; "
        "3,003 have none, such as 2, 4, 6, 8 and 10.");
}

TEST_F(MatchWheelsForm, SaysLessOnceNoWheelIsChosen) {
    Open();
    List(fourMatchList).SetIndex(-1);
    ChooseSize(1);
    EXPECT_EQ(Text(sentenceLabel),
              QStringLiteral(" numbers in the lottery draw result,  you will match at least 4 in "
                             "one or more lines. This wheel requires 10 lottery entries."));
    EXPECT_EQ(Text(promptLabel), QStringLiteral("   Pick 20 numbers:")) << "pattern and count stay";
    ExpectProof("");
}

TEST_F(MatchWheelsForm, GivesColoursOfTheSkinToItsLabels) {
    TakeSkinColours("&H202020");
    Open();
    EXPECT_EQ(TextColour(headingLabel), QColor(1, 0, 0));
    EXPECT_EQ(TextColour(sentenceLabel), QColor(2, 0, 0));
    for (const char* label : {"Label1", "Label5"}) EXPECT_EQ(TextColour(label), QColor(3, 0, 0));
}

TEST_F(MatchWheelsForm, OpensTheHelpPage) {
    Open();
    Click(*form_, "Command3");
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("helpplay.html")});
}

TEST_F(MatchWheelsForm, EndsInTheReportWithoutALottery) {
    test_.folder = MemoryFolder();
    EXPECT_THROW(Open(), Failure);
}

TEST_F(MatchWheelsForm, WheelsTheNumbersOfRealLotteries) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    for (int index = 0; index < Find<ListBox>(*form_, lotteryList)->count(); ++index) {
        ChooseLottery(index);
        Click(*form_, randomSelectionButton);
        Generate();
        EXPECT_EQ(ShownLines(), 10) << test_.state.LotteryName;
    }
}

}  // namespace

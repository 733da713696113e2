// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PLuckyNumbers.h"

#include <QLineEdit>

#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Lists.h"
#include "tests/play/short_wheel_forms.h"
#include "tests/support/real_histories.h"

namespace {

constexpr const char* fullName = "Text1";
constexpr const char* birthDate = "DTPicker2";

class NumerologyForm : public ShortWheelFormTest {
  protected:
    void Open() { ShowForm(std::make_unique<PLuckyNumbers>(test_.program, nullptr)); }

    void EnterName(const char* name) { Type(*form_, fullName, QString::fromLatin1(name)); }

    void ExpectInputTip() {
        test_.messages.Expect({.title = QStringLiteral("Error"),
                               .text = QStringLiteral(" There was a problem with the input.  \r\n"
                                                      " Please check it and try again.  \r\n")});
    }
};

TEST_F(NumerologyForm, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("PLuckyNumbers"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Numerology"));
    ExpectLabels(
        {{headingLabel, "Numerology"},
         {bodyLabel,
          "Numerology is used to discover a set of numbers that is unique to you. Each letter in "
          "your name has a value and the digits are combined with those in your birth date to "
          "caculate a series of numbers. These are your lucky numbers and they are placed in a "
          "short wheel to maximise their effectiveness."},
         {"Label6", "Your full name:"},
         {"Label8", "Date you were born:"}});
    EXPECT_EQ(Find<QLineEdit>(*form_, fullName)->toolTip(),
              QStringLiteral(" Full name on birth certificate "));
    ExpectShortWheelWords("Label3");
    ExpectNothingOfTheTryingForms();
}

TEST_F(NumerologyForm, OpensWithTheSecondWheelTodayAndNoLines) {
    Open();
    EXPECT_TRUE(Find<QRadioButton>(*form_, wheelType2)->isChecked());
    EXPECT_EQ(Find<DatePicker>(*form_, birthDate)->Value(), test_.today);
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(NumerologyForm, MakesAsManyLinesAsTheWheelHasStarts) {
    Open();
    EnterName("Ann");
    Generate();
    EXPECT_EQ(ShownLines(), 5);
    Click(*form_, wheelType1);
    EXPECT_EQ(ShownLines(), 5) << "another wheel waits for the button";
    Generate();
    EXPECT_EQ(ShownLines(), 9);
    Click(*form_, wheelType3);
    Generate();
    EXPECT_EQ(ShownLines(), 3);
}

TEST_F(NumerologyForm, GivesTheNumbersOfItsNameAndDate) {
    Open();
    EnterName(" a b");
    Find<DatePicker>(*form_, birthDate)->SetValue(std::chrono::year(1985) / 7 / 23);
    Generate();
    EXPECT_EQ(ShownNumbers(), NumbersOf(2 * ('A' + 'B' + 23 + 7 + 1985) + 1));
}

TEST_F(NumerologyForm, ShowsFifteenNumbersWhateverTheLottery) {
    Open();
    EnterName("Ann");
    Generate();
    const QStringList numbers = ShownNumbers();
    EXPECT_EQ(numbers.size(), 15);
    for (const QString& number : numbers) EXPECT_TRUE(number.startsWith(QLatin1Char(' ')));
    ChooseLottery(1);
    Generate();
    EXPECT_EQ(ShownNumbers(), numbers);
}

TEST_F(NumerologyForm, GivesANameInAnyCaseAndWithAnyBlanksTheSameLines) {
    Open();
    EnterName("Ann Other");
    Generate();
    const QStringList lines = Texts();
    const QStringList numbers = ShownNumbers();
    EnterName("  aNNo ther ");
    Generate();
    EXPECT_EQ(Texts(), lines);
    EXPECT_EQ(ShownNumbers(), numbers);
    EnterName("Ann Othes");
    Generate();
    EXPECT_NE(ShownNumbers(), numbers);
}

TEST_F(NumerologyForm, GivesTheSameExtraBallsWhateverTheWheel) {
    Open();
    ChooseLottery(1);
    EnterName("Ann");
    Generate();
    const std::vector<std::vector<int>> five = Rows(8);
    Click(*form_, wheelType3);
    Generate();
    const std::vector<std::vector<int>> three = Rows(8);
    ASSERT_EQ(three.size(), 3U);
    for (std::size_t line = 0; line < three.size(); ++line) {
        EXPECT_GE(three[line][7], 1);
        EXPECT_EQ(three[line][7], five[line][7]) << line;
    }
}

TEST_F(NumerologyForm, RefusesAnEmptyNameAndChangesNothing) {
    Open();
    EnterName("Ann");
    Generate();
    const QStringList lines = Texts();
    const QString shown = Text(luckyNumbers);
    for (const char* name : {"", "   "}) {
        EnterName(name);
        ExpectInputTip();
        Generate();
        EXPECT_EQ(Texts(), lines);
        EXPECT_EQ(Text(luckyNumbers), shown);
    }
    EXPECT_EQ(test_.messages.Shown(), 2);
}

TEST_F(NumerologyForm, EmptiesTheGridForAnotherLotteryAndKeepsItsInputs) {
    Open();
    EnterName("Ann");
    Click(*form_, wheelType3);
    Generate();
    const QString shown = Text(luckyNumbers);
    ChooseLottery(2);
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_GT(test_.state.Lines(1, 1), 0) << "the table keeps its lines";
    EXPECT_EQ(Text(luckyNumbers), shown);
    EXPECT_EQ(Find<QLineEdit>(*form_, fullName)->text(), QStringLiteral("Ann"));
    EXPECT_TRUE(Find<QRadioButton>(*form_, wheelType3)->isChecked());
    Generate();
    EXPECT_EQ(ShownLines(), 3);
}

TEST_F(NumerologyForm, GeneratesByEnterInTheName) {
    Open();
    EnterName("Ann");
    QTest::keyClick(Find<QLineEdit>(*form_, fullName), Qt::Key_Return);
    EXPECT_EQ(ShownLines(), 5);
}

TEST_F(NumerologyForm, GeneratesWhileBusyIsSetAndLeavesItSo) {
    Open();
    EnterName("Ann");
    test_.state.Busy = -1;
    Generate();
    EXPECT_EQ(ShownLines(), 5);
    EXPECT_EQ(test_.state.Busy, -1);
    test_.state.Busy = 0;
}

TEST_F(NumerologyForm, EndsTheShownLinesAtANumberThatIsMissing) {
    AddLottery(test_.folder, "dbase103.txt", "Tiny", "6,12,0,0,0");
    Open();
    ChooseLottery(3);
    EnterName("Ann");
    for (const auto& [type, lines] : std::vector<std::pair<const char*, int>>{
             {wheelType1, 8}, {wheelType2, 4}, {wheelType3, 3}}) {
        Click(*form_, type);
        Generate();
        EXPECT_EQ(ShownLines(), lines) << type;
    }
}

TEST_F(NumerologyForm, SavesItsLines) {
    Open();
    EnterName("Ann");
    Generate();
    Click(*form_, saveButton);
    EXPECT_EQ(saves_, 1);
}

TEST_F(NumerologyForm, OpensTheHelpPageByF1AndCloses) {
    Open();
    QTest::keyClick(form_.get(), Qt::Key_F1);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("helpplay.html#PLuckyNumbers")});
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(NumerologyForm, TakesTheSkinsColours) {
    TakeSkinColours("&HFFFFFF");
    Open();
    EXPECT_EQ(TextColour(headingLabel), QColor(1, 0, 0));
    EXPECT_EQ(TextColour(bodyLabel), QColor(2, 0, 0));
    EXPECT_EQ(TextColour(lotteryPrompt), QColor(3, 0, 0));
}

TEST_F(NumerologyForm, MakesLinesOnAllRealHistories) {
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no real histories here";
    Open();
    EnterName("Ann Other");
    ExpectProperLinesOfEveryLottery();
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PStarSign.h"

#include "core/settings.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Lists.h"
#include "tests/play/short_wheel_forms.h"
#include "tests/support/real_histories.h"

namespace {

constexpr const char* starSign = "Combo1";
constexpr const char* birthDay = "Combo2";
constexpr const char* drawDate = "DTPicker1";

constexpr Date Day(int year, unsigned month, unsigned day) {
    return {std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)};
}

class AstrologyForm : public ShortWheelFormTest {
  protected:
    void Open() { ShowForm(std::make_unique<PStarSign>(test_.program, nullptr)); }

    ComboList& Sign() { return *Find<ComboList>(*form_, starSign); }
    ComboList& BirthDay() { return *Find<ComboList>(*form_, birthDay); }
    DatePicker& DrawDate() { return *Find<DatePicker>(*form_, drawDate); }
};

TEST_F(AstrologyForm, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("PStarSign"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Star Signs"));
    ExpectLabels(
        {{headingLabel, "Star sign"},
         {bodyLabel,
          "Things do not happen by chance and everything is mapped out from the day you were born "
          "according to your star sign. Borrowing techniques from astrology, your star sign and "
          "day you were born are used to caculate your lucky numbers for a specific lottery draw "
          "date. The numbers are placed in a short wheel to maximise their effectiveness."},
         {"Label6", "Star sign:"},
         {"Label8", "Birth day:"},
         {"Label3", "Draw date:"}});
    ExpectShortWheelWords("Label10");
    ExpectNothingOfTheTryingForms();
}

TEST_F(AstrologyForm, OffersTwelveSignsAndThirtyOneDays) {
    Open();
    const QStringList signs = {
        QStringLiteral("Aries"),     QStringLiteral("Taurus"),   QStringLiteral("Gemini"),
        QStringLiteral("Cancer"),    QStringLiteral("Leo"),      QStringLiteral("Virgo"),
        QStringLiteral("Libra"),     QStringLiteral("Scorpio"),  QStringLiteral("Saggitarius"),
        QStringLiteral("Capricorn"), QStringLiteral("Aquarius"), QStringLiteral("Pisces")};
    ASSERT_EQ(Sign().count(), 12);
    for (int sign = 0; sign < 12; ++sign) EXPECT_EQ(Sign().itemText(sign), signs[sign]);
    ASSERT_EQ(BirthDay().count(), 31);
    EXPECT_EQ(BirthDay().itemText(0), QStringLiteral(" 1"));
    EXPECT_EQ(BirthDay().itemText(30), QStringLiteral(" 31"));
    EXPECT_EQ(Sign().Index(), 0);
    EXPECT_EQ(BirthDay().Index(), 0);
}

TEST_F(AstrologyForm, OpensWithTheNextDrawDayTheSecondWheelAndNoLines) {
    test_.today = Day(2005, 6, 3);
    Open();
    EXPECT_EQ(DrawDate().Value(), Day(2005, 6, 4)) << "UK Lotto: Friday leads to Saturday";
    EXPECT_EQ(DrawDate().text(), QStringLiteral("Sat 4 Jun 2005"));
    EXPECT_TRUE(Find<QRadioButton>(*form_, wheelType2)->isChecked());
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(AstrologyForm, SetsTheDrawDateAnewAtEachClickOnTheList) {
    AddLottery(test_.folder, "dbase103.txt", "My lottery", "6,49,0,0,0");
    Open();
    DrawDate().SetValue(Day(2005, 12, 24));
    ChooseLottery(3);
    EXPECT_EQ(DrawDate().Value(), test_.today) << "a lottery of one's own: today";
    test_.state.Settings(setting::DrawDate) = "11-Jun-2005";
    ChooseLottery(0);
    ChooseLottery(3);
    EXPECT_EQ(DrawDate().Value(), Day(2005, 6, 11)) << "the date last chosen for saved entries";
}

TEST_F(AstrologyForm, KeepsItsInputsForAnotherLotteryAndEmptiesTheGrid) {
    Open();
    Sign().SetIndex(4);
    BirthDay().SetIndex(9);
    Click(*form_, wheelType1);
    Generate();
    const QString shown = Text(luckyNumbers);
    EXPECT_EQ(ShownLines(), 9);
    ChooseLottery(1);
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(Sign().Index(), 4);
    EXPECT_EQ(BirthDay().Index(), 9);
    EXPECT_EQ(Text(luckyNumbers), shown);
    EXPECT_TRUE(Find<QRadioButton>(*form_, wheelType1)->isChecked());
}

TEST_F(AstrologyForm, GivesTheSameLinesForTheSameSignDayAndDate) {
    Open();
    ChooseLottery(1);
    Sign().SetIndex(2);
    Generate();
    const QStringList lines = Texts();
    const QStringList numbers = ShownNumbers();
    ASSERT_EQ(numbers.size(), 15);
    Sign().SetIndex(3);
    Generate();
    EXPECT_NE(ShownNumbers(), numbers);
    Sign().SetIndex(2);
    Generate();
    EXPECT_EQ(Texts(), lines);
    EXPECT_EQ(ShownNumbers(), numbers);
}

TEST_F(AstrologyForm, GivesTheNumbersOfItsSignDayAndDate) {
    Open();
    Sign().SetIndex(2);
    BirthDay().SetIndex(5);
    DrawDate().SetValue(Day(2005, 7, 9));
    Generate();
    EXPECT_EQ(ShownNumbers(), NumbersOf(2 * (2 * 19 + 5 * 13 + 9 + 7 + 2005) + 1));
}

TEST_F(AstrologyForm, GivesOtherNumbersForAnotherDate) {
    Open();
    Generate();
    const QStringList numbers = ShownNumbers();
    DrawDate().SetValue(Day(2005, 6, 2));
    Generate();
    EXPECT_NE(ShownNumbers(), numbers);
    DrawDate().SetValue(Day(2005, 5, 2));
    Generate();
    EXPECT_EQ(ShownNumbers(), numbers) << "the same sum of day, month and year";
}

TEST_F(AstrologyForm, KeepsTheNumbersOfALargerLotteryBehindThoseOfASmallOne) {
    AddLottery(test_.folder, "dbase103.txt", "Tiny", "6,5,0,0,0");
    Open();
    Generate();
    ChooseLottery(3);
    Generate();
    EXPECT_EQ(ShownLines(), 5) << "what the larger lottery left fills the wheel";
    int highest = 0;
    for (const std::vector<int>& line : Rows(6)) highest = std::max(highest, line.back());
    EXPECT_GT(highest, 5);
    Open();
    ChooseLottery(3);
    Generate();
    EXPECT_EQ(ShownLines(), 0) << "a new form has nothing behind them";
}

TEST_F(AstrologyForm, NeedsNeitherBusyNorAMessage) {
    Open();
    test_.state.Busy = -1;
    Generate();
    EXPECT_EQ(ShownLines(), 5);
    EXPECT_EQ(test_.state.Busy, -1);
    test_.state.Busy = 0;
    EXPECT_EQ(test_.messages.Shown(), 0);
}

TEST_F(AstrologyForm, SavesItsLinesAndOpensTheHelpPageByF1) {
    Open();
    Generate();
    Click(*form_, saveButton);
    EXPECT_EQ(saves_, 1);
    QTest::keyClick(form_.get(), Qt::Key_F1);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("helpplay.html#PStarSign")});
}

TEST_F(AstrologyForm, MakesLinesOnAllRealHistories) {
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no real histories here";
    Open();
    ExpectProperLinesOfEveryLottery();
}

}  // namespace

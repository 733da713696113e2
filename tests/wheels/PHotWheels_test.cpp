// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PHotWheels.h"

#include <QGuiApplication>
#include <QPushButton>

#include "core/failure.h"
#include "tests/support/hot_cold.h"
#include "tests/support/real_histories.h"
#include "tests/wheels/wheel_form.h"

namespace {

constexpr const char* numbersList = "Combo1";
constexpr const char* intervalList = "Combo2";
constexpr const char* lineCount = "Label6(0)";
constexpr const char* tenNumbersHeading = "Label8";
constexpr const char* tenNumbers = "Label3";
constexpr const char* helpButton = "Command4";
constexpr FilterNames filters = {.oddEven = "Command8",
                                 .highLow = "Command9",
                                 .longRuns = "Command10",
                                 .previousDraws = "Command11"};

const QString designText = QStringLiteral(
    "Hot numbers occur more than others in lottery draws. Playing them in a wheel might improve "
    "your chances of a win. These entries wheel the hottest numbers.");
const QString hotText = QStringLiteral(
    "Hot numbers occur more than others in lottery draws. Using them might improve your chances of "
    "a win. These entries wheel the hottest numbers.");
const QString coldText = QStringLiteral(
    "Some draw numbers have not come up for a long time. They are overdue and might come up soon. "
    "These entries wheel the coldest numbers.");

class HotWheelsForm : public WheelFormTest {
  protected:
    /// Places in the list of lotteries.
    enum { Uk, Thunderball, DailyPlay, FourPicks };

    HotWheelsForm() {
        test_.folder = MemoryFolder();
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
        AddDailyPlay(test_.folder);
        AddLottery(test_.folder, "dbase103.txt", "Four", "4,35,0,0,0",
                   {"28 May 05,3,17,22,34,0,0,0,0"});
    }

    void Open() { ShowForm(std::make_unique<PHotWheels>(test_.program, nullptr)); }

    void ExpectHot(const QString& body) {
        EXPECT_EQ(form_->windowTitle(), QStringLiteral("Hot wheels"));
        ExpectLabels({{headingLabel, "Hot wheels"}, {tenNumbersHeading, "Hot numbers"}});
        EXPECT_EQ(Text(bodyLabel), body);
        EXPECT_EQ(Label(tenNumbersHeading).palette().color(QPalette::Window), red);
        EXPECT_EQ(TextColour(tenNumbers), red);
    }

    void ExpectCold() {
        EXPECT_EQ(form_->windowTitle(), QStringLiteral("Cold wheels"));
        ExpectLabels({{headingLabel, "Cold wheels"}, {tenNumbersHeading, "Cold numbers"}});
        EXPECT_EQ(Text(bodyLabel), coldText);
        EXPECT_EQ(Label(tenNumbersHeading).palette().color(QPalette::Window), blue);
        EXPECT_EQ(TextColour(tenNumbers), blue);
    }
};

TEST_F(HotWheelsForm, OpensWithTheWordsOfItsDesign) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("PHotWheels"));
    ExpectHot(designText);
    ExpectLabels({{"Label9", "Numbers:"},
                  {"Label5", "Interval:"},
                  {"Label4", "Lines:"},
                  {"Label6(1)", "Filters"}});
    ExpectCaptions({{hotOption, "Hot numbers"}, {coldOption, "Cold numbers"}});
    ExpectFrameWords(filters, helpButton);
}

TEST_F(HotWheelsForm, HasNoBoxesNoConditionsAndNoTries) {
    Open();
    for (const char* name :
         {"HScroll1", "Check1", "Check2", "Check3", "Text1(0)", "Command12", "Command13"}) {
        EXPECT_EQ(form_->findChild<QObject*>(QString::fromLatin1(name)), nullptr) << name;
    }
}

TEST_F(HotWheelsForm, OffersEightToTwentyNumbersAtIntervalsOfOneToFive) {
    Open();
    QStringList numbers;
    for (int number = 8; number <= 20; ++number) numbers << QString::number(number);
    EXPECT_EQ(Items(numbersList), numbers);
    EXPECT_EQ(Items(intervalList),
              (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                           QStringLiteral("4"), QStringLiteral("5")}));
    EXPECT_EQ(Combo(numbersList).Index(), 0);
    EXPECT_EQ(Combo(intervalList).Index(), 0);
    EXPECT_EQ(Combo(numbersList).accessibleName(), QStringLiteral("Numbers:"));
    EXPECT_EQ(Combo(intervalList).accessibleName(), QStringLiteral("Interval:"));
}

TEST_F(HotWheelsForm, OpensOnAWheelOfTheHotNumbersOfTheFirstLottery) {
    test_.state.Busy = -1;
    Open();
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
    EXPECT_TRUE(Find<QRadioButton>(*form_, hotOption)->isChecked());
    EXPECT_EQ(Text(tenNumbers), QStringLiteral("1, 2, 3, 13, 17, 22, 24, 34, 35, 41"));
    EXPECT_EQ(Text(lineCount), QStringLiteral(" 7"));
    EXPECT_EQ(Rows(8), (std::vector<std::vector<int>>{{1, 2, 3, 13, 17, 22, 0, 0},
                                                      {1, 2, 3, 13, 17, 24, 0, 0},
                                                      {1, 2, 3, 13, 24, 34, 0, 0},
                                                      {1, 2, 3, 22, 24, 34, 0, 0},
                                                      {1, 2, 17, 22, 24, 34, 0, 0},
                                                      {1, 13, 17, 22, 24, 34, 0, 0},
                                                      {3, 13, 17, 22, 24, 34, 0, 0}}));
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(HotWheelsForm, ShowsTheColdWordsColoursAndNumbers) {
    Open();
    Click(*form_, coldOption);
    ExpectCold();
    EXPECT_EQ(Text(tenNumbers), QStringLiteral("4, 5, 6, 7, 8, 9, 10, 11, 12, 14"));
    EXPECT_EQ(Rows(6)[0], (std::vector<int>{4, 5, 6, 7, 8, 9}));
}

TEST_F(HotWheelsForm, ShowsOtherHotWordsOnTheWayBackThanAtFirst) {
    Open();
    Click(*form_, coldOption);
    Click(*form_, hotOption);
    ExpectHot(hotText);
}

TEST_F(HotWheelsForm, KeepsTheWordsOfItsDesignOnAClickThatChangesNoMode) {
    Open();
    AddLottery(test_.folder, "dbase100.txt", "UK Lotto", "6,49,0,0,1",
               {"01 Jun 05,40,41,42,43,44,45,0,9"});
    Click(*form_, hotOption);
    ExpectHot(designText);
    EXPECT_EQ(test_.state.Draws(1, 1), 40) << "but the lottery is loaded anew";
    ChooseLottery(Thunderball);
    ExpectHot(designText);
}

TEST_F(HotWheelsForm, ReloadsTheDatabaseAndMakesNewLinesOnAChangeOfMode) {
    Open();
    const QStringList before = Texts();
    AddLottery(test_.folder, "dbase100.txt", "UK Lotto", "6,49,0,0,1",
               {"01 Jun 05,40,41,42,43,44,45,0,9"});
    Click(*form_, coldOption);
    EXPECT_EQ(test_.state.Draws(1, 1), 40);
    EXPECT_NE(Texts(), before);
    EXPECT_EQ(ShownLines(), 7);
}

TEST_F(HotWheelsForm, CountsTheLinesOfAChoiceAndEmptiesTheGrid) {
    Open();
    Combo(intervalList).SetIndex(4);
    EXPECT_EQ(Text(lineCount), QStringLiteral(" 2"));
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(Lines().Cell(0, 1), QStringLiteral("Num1"));
    EXPECT_EQ(test_.state.Lines(7, 1), 3) << "the lines stay";
    Click(*form_, filters.previousDraws);
    EXPECT_EQ(ShownLines(), 7) << "and a filter shows what is left of them";
    Combo(numbersList).SetIndex(12);
    EXPECT_EQ(Text(lineCount), QStringLiteral(" 4"));
    EXPECT_EQ(ShownLines(), 0);
    Click(*form_, generateButton);
    EXPECT_EQ(ShownLines(), 4);
    EXPECT_EQ(Text(lineCount), QStringLiteral(" 4"));
}

TEST_F(HotWheelsForm, CountsAgainOnAChoiceOfTheEntryChosenAlready) {
    Open();
    for (const char* list : {numbersList, intervalList}) {
        Click(*form_, generateButton);
        EXPECT_EQ(ShownLines(), 7);
        ChooseFromPopup(list, 0);
        EXPECT_EQ(ShownLines(), 0) << list;
    }
}

TEST_F(HotWheelsForm, CountsWithTheArrowKeysToo) {
    Open();
    QTest::keyClick(&Combo(numbersList), Qt::Key_Down);
    EXPECT_EQ(Text(lineCount), QStringLiteral(" 8"));
    EXPECT_EQ(ShownLines(), 0);
}

TEST_F(HotWheelsForm, KeepsBothListsOnAChangeOfLotteryOrMode) {
    Open();
    Combo(numbersList).SetIndex(12);
    Combo(intervalList).SetIndex(4);
    ChooseLottery(Thunderball);
    EXPECT_EQ(ShownLines(), 4);
    Click(*form_, coldOption);
    EXPECT_EQ(Combo(numbersList).Index(), 12);
    EXPECT_EQ(Combo(intervalList).Index(), 4);
    EXPECT_EQ(ShownLines(), 4);
}

TEST_F(HotWheelsForm, ShowsAsManyLinesAsItCounts) {
    Open();
    for (const int lottery : {Uk, Thunderball, DailyPlay, FourPicks}) {
        ChooseLottery(lottery);
        for (const int numbers : {0, 12}) {
            for (const int interval : {0, 4}) {
                Combo(numbersList).SetIndex(numbers);
                Combo(intervalList).SetIndex(interval);
                Click(*form_, generateButton);
                EXPECT_EQ(Text(lineCount), QStringLiteral(" %1").arg(ShownLines()));
            }
        }
    }
}

TEST_F(HotWheelsForm, MakesTwentyOneLinesOfFourPicksAtMost) {
    Open();
    ChooseLottery(FourPicks);
    EXPECT_EQ(Text(lineCount), QStringLiteral(" 9"));
    const int rows = Lines().RowCount();
    Combo(numbersList).SetIndex(12);
    Click(*form_, generateButton);
    EXPECT_EQ(ShownLines(), 21);
    EXPECT_EQ(Lines().RowCount(), rows) << "the grid has room for them";
}

TEST_F(HotWheelsForm, LeavesTheCountForALotteryWithoutPicks) {
    AddLottery(test_.folder, "dbase104.txt", "None", "0,49,0,0,0");
    Open();
    ChooseLottery(4);
    EXPECT_EQ(Text(lineCount), QStringLiteral(" 7"));
    EXPECT_EQ(ShownLines(), 0);
}

TEST_F(HotWheelsForm, PlaysTheNumberOneThroughoutWithoutDraws) {
    Open();
    ChooseLottery(DailyPlay);
    EXPECT_EQ(Text(tenNumbers), QStringLiteral("1, 1, 1, 1, 1, 1, 1, 1, 1, 1"));
    EXPECT_EQ(Rows(7), std::vector<std::vector<int>>(6, std::vector<int>(7, 1)));
}

TEST_F(HotWheelsForm, GivesTheFirstTenLinesAnExtraBallByRank) {
    Open();
    ChooseLottery(Thunderball);
    Combo(numbersList).SetIndex(12);
    Click(*form_, generateButton);
    ASSERT_EQ(ShownLines(), 20);
    EXPECT_EQ(Lines().Cell(1, 8), QStringLiteral("6"));
    EXPECT_EQ(Lines().Cell(2, 8), QStringLiteral("1"));
    EXPECT_EQ(Lines().Cell(10, 8), QStringLiteral("1"));
    EXPECT_EQ(Lines().Cell(11, 8), QString());
    Click(*form_, coldOption);
    EXPECT_EQ(Lines().Cell(1, 8), QStringLiteral("1"));
    EXPECT_EQ(Lines().Cell(6, 8), QStringLiteral("7"));
}

TEST_F(HotWheelsForm, LeavesTheExtraBallEmptyForABonusLottery) {
    Open();
    for (int row = 1; row <= ShownLines(); ++row) EXPECT_EQ(Lines().Cell(row, 8), QString());
}

TEST_F(HotWheelsForm, IsBusyUnderTheHourglassWhileItGeneratesAndSeedsOnce) {
    Open();
    int generations = 0;
    test_.services.random = Random([&] {
        ++generations;
        EXPECT_EQ(test_.state.Busy, -1);
        EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(ShownLines(), 0) << "the count has emptied the grid";
        return std::uint64_t{1};
    });
    Click(*form_, generateButton);
    EXPECT_EQ(generations, 1);
    EXPECT_EQ(ShownLines(), 7);
    EXPECT_EQ(test_.state.Busy, 0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(HotWheelsForm, DoesNothingWhileBusyAndClosesAfterwards) {
    int prints = 0;
    test_.services.printLines = [&prints](QWidget*, Grid&) { ++prints; };
    Open();
    const QStringList before = Texts();
    MakeOnlyLine({2, 4, 6, 30, 40, 42});
    test_.state.Busy = -1;
    for (const char* name :
         {generateButton, printButton, saveButton, filters.oddEven, filters.highLow,
          filters.longRuns, filters.previousDraws, coldOption}) {
        Click(*form_, name);
    }
    ChooseLottery(Thunderball);
    EXPECT_EQ(Texts(), before);
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
    EXPECT_EQ(saves_ + prints, 0);
    ExpectCold();
    Click(*form_, closeButton);
    EXPECT_TRUE(form_->isVisible());
    test_.state.Busy = 0;
    Click(*form_, generateButton);
    EXPECT_FALSE(form_->isVisible()) << "the close waited";
    EXPECT_EQ(Text(tenNumbers), QStringLiteral("4, 5, 6, 7, 8, 9, 10, 11, 12, 14"))
        << "the mode was taken";
}

TEST_F(HotWheelsForm, FiltersTheLinesShown) {
    Open();
    ExpectFiltersTakeLinesOut(filters);
}

TEST_F(HotWheelsForm, SavesHelpsAndCloses) {
    Open();
    Click(*form_, saveButton);
    EXPECT_EQ(saves_, 1);
    Click(*form_, helpButton);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("helpplay.html")});
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(HotWheelsForm, TakesColoursOneToThreeOfTheSkinAndKeepsThoseOfTheMode) {
    TakeSkinColours("&H8000000F");
    Open();
    EXPECT_EQ(TextColour(headingLabel), QColor(1, 0, 0));
    EXPECT_EQ(TextColour(bodyLabel), QColor(2, 0, 0));
    for (const char* label : {lotteryPrompt, "Label9", "Label5", "Label4"}) {
        EXPECT_EQ(TextColour(label), QColor(3, 0, 0)) << label;
    }
    EXPECT_EQ(TextColour(tenNumbers), red);
    EXPECT_EQ(Label(tenNumbersHeading).palette().color(QPalette::Window), red);
}

TEST_F(HotWheelsForm, ReachesItsControlsByTabInReadingOrder) {
    Open();
    ExpectTabOrder({lotteryList, numbersList, intervalList, hotOption, coldOption, generateButton,
                    filters.oddEven, filters.highLow, filters.longRuns, filters.previousDraws,
                    linesGrid, saveButton, helpButton, closeButton});
}

TEST_F(HotWheelsForm, EndsInTheReportOnANumberAboveSeventy) {
    AddLottery(test_.folder, "dbase104.txt", "Big numbers", "1,49,0,0,0",
               {"28 May 05,71,0,0,0,0,0,0,0"});
    Open();
    EXPECT_THROW(ChooseLottery(4), Failure);
}

TEST_F(HotWheelsForm, EndsInTheReportWithoutALottery) {
    test_.folder = MemoryFolder();
    EXPECT_THROW(Open(), Failure);
}

TEST_F(HotWheelsForm, WheelsTheRankingOfRealLotteriesInBothModes) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    for (const char* option : {hotOption, coldOption}) {
        Click(*form_, option);
        for (int index = 0; index < Find<ListBox>(*form_, lotteryList)->count(); ++index) {
            ChooseLottery(index);
            EXPECT_EQ(ShownLines(), 13 - test_.state.Picks) << test_.state.LotteryName;
            const QStringList ten = Text(tenNumbers).split(QStringLiteral(", "));
            EXPECT_EQ(ten.size(), 10);
            for (int row = 1; row <= ShownLines(); ++row) {
                for (int pick = 1; pick <= test_.state.Picks; ++pick) {
                    EXPECT_TRUE(ten.mid(0, 9).contains(Lines().Cell(row, pick)))
                        << test_.state.LotteryName;
                }
                EXPECT_EQ(Lines().Cell(row, 8).isEmpty(), test_.state.MaxPball == 0);
            }
        }
    }
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PHotNumbers.h"

#include <QGuiApplication>
#include <QLabel>
#include <QRadioButton>

#include "core/settings.h"
#include "core/text.h"
#include "platform/widgets/Lists.h"
#include "tests/support/hot_cold.h"
#include "tests/support/lines_form.h"
#include "tests/support/real_histories.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr const char* tenNumbersHeading = "Label8";
constexpr const char* tenNumbers = "Label5";
constexpr const char* helpButton = "Command4";
constexpr FilterNames filters = {.oddEven = "Command8",
                                 .highLow = "Command9",
                                 .longRuns = "Command10",
                                 .previousDraws = "Command11"};

class HotNumbersForm : public LinesFormTest {
  protected:
    HotNumbersForm() {
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
        AddDailyPlay(test_.folder);
        for (int slot = setting::OddEvenStrength; slot <= setting::LongRunStrength; ++slot)
            test_.state.Settings(slot) = "2";
    }

    void Open() { ShowForm(std::make_unique<PHotNumbers>(test_.program, nullptr)); }

    int prints_ = 0;
};

TEST_F(HotNumbersForm, OpensWithTheWordsOfItsDesign) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("PHotNumbers"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Hot Numbers"));
    EXPECT_EQ(Text(bodyLabel),
              QStringLiteral("Some numbers occur more than others in lottery draws results. "
                             "Picking them might improve your chances of a win. All these entries "
                             "include all the most common (hot) numbers.."));
    ExpectLabels({{"Label7", "Hot numbers"}, {"Label8", "Hot numbers"}, {"Label6", "Filters"}});
    ExpectCaptions({{"Option1(0)", "Hot numbers"}, {"Option1(1)", "Cold numbers"}});
    ExpectFrameWords(filters, helpButton);
}

TEST_F(HotNumbersForm, HasNoLineCountNoConditionsAndNoTries) {
    Open();
    for (const char* name : {"HScroll1", "Check1", "Check2", "Check3"}) {
        EXPECT_EQ(form_->findChild<QObject*>(QString::fromLatin1(name)), nullptr) << name;
    }
}

TEST_F(HotNumbersForm, OpensOnTheHotNumbersOfTheFirstLotteryWithLines) {
    Open();
    EXPECT_EQ(Find<ListBox>(*form_, lotteryList)->Index(), 0);
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
    EXPECT_TRUE(Find<QRadioButton>(*form_, hotOption)->isChecked());
    EXPECT_EQ(Text(tenNumbers), QStringLiteral("1, 2, 3, 13, 17, 22, 24, 34, 35, 41"));
    EXPECT_EQ(TextColour(tenNumbers), red);
    EXPECT_EQ(Label(tenNumbersHeading).palette().color(QPalette::Window), red);
    EXPECT_GE(ShownLines(), 1);
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(HotNumbersForm, ShowsTheColdTextsAndColours) {
    Open();
    Click(*form_, coldOption);
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Cold numbers"));
    EXPECT_EQ(Text(headingLabel), QStringLiteral("Cold numbers"));
    EXPECT_EQ(Text(tenNumbersHeading), QStringLiteral("Cold numbers"));
    EXPECT_EQ(Text(bodyLabel),
              QStringLiteral("Some draw numbers have not come up for a long time. They are overdue "
                             "and might come up soon. These entries pick random cold numbers."));
    EXPECT_EQ(Label(tenNumbersHeading).palette().color(QPalette::Window), blue);
    EXPECT_EQ(TextColour(tenNumbers), blue);
    EXPECT_EQ(Text(tenNumbers), QStringLiteral("4, 5, 6, 7, 8, 9, 10, 11, 12, 14"));
}

TEST_F(HotNumbersForm, ShowsTheHotTextsAndColoursOnTheWayBack) {
    Open();
    Click(*form_, coldOption);
    Click(*form_, hotOption);
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Hot numbers"));
    EXPECT_EQ(Text(headingLabel), QStringLiteral("Hot numbers"));
    EXPECT_EQ(Text(tenNumbersHeading), QStringLiteral("Hot numbers"));
    EXPECT_EQ(Text(bodyLabel),
              QStringLiteral("Hot numbers occur more than others in lottery draws. Using them "
                             "might improve your chances of a win. These entries pick random hot "
                             "numbers."));
    EXPECT_EQ(Label(tenNumbersHeading).palette().color(QPalette::Window), red);
    EXPECT_EQ(TextColour(tenNumbers), red);
}

TEST_F(HotNumbersForm, ReloadsTheDatabaseAndMakesNewLinesOnAChangeOfMode) {
    Open();
    const QStringList before = Texts();
    AddLottery(test_.folder, "dbase100.txt", "UK Lotto", "6,49,0,0,1",
               {"01 Jun 05,40,41,42,43,44,45,0,9"});
    test_.seed = 2;
    Click(*form_, coldOption);
    EXPECT_EQ(test_.state.Draws(1, 1), 40);
    EXPECT_NE(Texts(), before);
}

TEST_F(HotNumbersForm, ShowsOneLineOfOnesForALotteryWithoutDraws) {
    Open();
    ChooseLottery(2);
    EXPECT_EQ(Text(tenNumbers), QStringLiteral("1, 1, 1, 1, 1, 1, 1, 1, 1, 1"));
    EXPECT_EQ(ShownLines(), 1);
    for (int column = 1; column <= 7; ++column) {
        EXPECT_EQ(Lines().Cell(1, column), QStringLiteral("1"));
    }
    Click(*form_, coldOption);
    EXPECT_EQ(Text(tenNumbers), QStringLiteral("1, 1, 1, 1, 1, 1, 1, 1, 1, 1"));
}

TEST_F(HotNumbersForm, LeavesTheExtraBallEmptyForABonusLottery) {
    Open();
    for (int row = 1; row <= ShownLines(); ++row) EXPECT_EQ(Lines().Cell(row, 8), QString());
}

TEST_F(HotNumbersForm, ShowsTheExtraBallOfRankOneInTheFirstLine) {
    Open();
    ChooseLottery(1);
    EXPECT_EQ(Lines().Cell(1, 8), QStringLiteral("6"));
    Click(*form_, coldOption);
    EXPECT_EQ(Lines().Cell(1, 8), QStringLiteral("1"));
}

TEST_F(HotNumbersForm, GeneratesAnewWithTheSeedOfTheClock) {
    Open();
    const QStringList before = Texts();
    Click(*form_, generateButton);
    EXPECT_EQ(Texts(), before);
    test_.seed = 3;
    Click(*form_, generateButton);
    EXPECT_NE(Texts(), before);
}

TEST_F(HotNumbersForm, IsBusyUnderTheHourglassWhileItGenerates) {
    Open();
    int generations = 0;
    test_.services.random = Random([&] {
        ++generations;
        EXPECT_EQ(test_.state.Busy, -1);
        EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
        return std::uint64_t{1};
    });
    Click(*form_, generateButton);
    EXPECT_EQ(generations, 1);
    EXPECT_EQ(test_.state.Busy, 0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(HotNumbersForm, DoesNothingWhileBusy) {
    test_.services.printLines = [this](QWidget*, Grid&) { ++prints_; };
    Open();
    const QStringList before = Texts();
    test_.seed = 3;
    test_.state.Busy = -1;
    for (const char* name :
         {generateButton, printButton, saveButton, filters.oddEven, filters.highLow,
          filters.longRuns, filters.previousDraws, coldOption}) {
        Click(*form_, name);
    }
    ChooseLottery(1);
    EXPECT_EQ(Texts(), before);
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
    EXPECT_EQ(saves_ + prints_, 0);
    test_.state.Busy = 0;
    Click(*form_, printButton);
    EXPECT_EQ(prints_, 1);
}

TEST_F(HotNumbersForm, FiltersTheLinesShown) {
    Open();
    ExpectFiltersTakeLinesOut(filters);
}

TEST_F(HotNumbersForm, SavesHelpsAndCloses) {
    Open();
    Click(*form_, saveButton);
    EXPECT_EQ(saves_, 1);
    Click(*form_, helpButton);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("helpplay.html")});
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(HotNumbersForm, TakesTheSkinsColoursAtLoadAndTheModesOnAChangeOfMode) {
    TakeSkinColours("&H8000000F");
    Open();
    EXPECT_EQ(TextColour(headingLabel), QColor(1, 0, 0));
    EXPECT_EQ(TextColour(bodyLabel), QColor(2, 0, 0));
    EXPECT_EQ(TextColour(lotteryPrompt), QColor(3, 0, 0));
    EXPECT_EQ(TextColour(tenNumbers), QColor(4, 0, 0));
    Click(*form_, coldOption);
    EXPECT_EQ(TextColour(tenNumbers), blue);
}

TEST_F(HotNumbersForm, ReachesItsControlsByTabInReadingOrder) {
    Open();
    ExpectTabOrder({lotteryList, hotOption, coldOption, generateButton, filters.oddEven,
                    filters.highLow, filters.longRuns, filters.previousDraws, linesGrid, saveButton,
                    helpButton, closeButton});
}

TEST_F(HotNumbersForm, EndsInTheReportOnANumberAboveSeventy) {
    AddLottery(test_.folder, "dbase200.txt", "Big numbers", "1,49,0,0,0",
               {"28 May 05,71,0,0,0,0,0,0,0"});
    Open();
    auto* list = Find<ListBox>(*form_, lotteryList);
    EXPECT_THROW(list->SetIndex(3), std::runtime_error);
}

TEST_F(HotNumbersForm, EndsInTheReportWithoutALottery) {
    MemoryFolder empty;
    Program program{test_.state, empty, test_.services};
    PHotNumbers form(program, nullptr);
    EXPECT_THROW(form.Load(), std::runtime_error);
}

TEST_F(HotNumbersForm, ShowsLinesOfTheTenNumbersOnRealHistoriesInBothModes) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    auto* list = Find<ListBox>(*form_, lotteryList);
    ASSERT_EQ(list->count(), 8);
    for (const char* option : {hotOption, coldOption}) {
        Click(*form_, option);
        for (int index = 0; index < 8; ++index) {
            list->SetIndex(index);
            const QStringList ten = Text(tenNumbers).split(QStringLiteral(", "));
            EXPECT_EQ(ten.size(), 10);
            EXPECT_GE(ShownLines(), 5) << test_.state.LotteryName;
            for (int row = 1; row <= ShownLines(); ++row) {
                for (int pick = 1; pick <= test_.state.Picks; ++pick) {
                    EXPECT_TRUE(ten.contains(Lines().Cell(row, pick))) << test_.state.LotteryName;
                }
                EXPECT_EQ(Lines().Cell(row, 8).isEmpty(), test_.state.MaxPball == 0);
            }
        }
    }
}

}  // namespace

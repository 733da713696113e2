// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PHotNumbers.h"

#include <QGuiApplication>
#include <QLabel>
#include <QRadioButton>

#include "core/text.h"
#include "platform/widgets/Lists.h"
#include "tests/support/lines_form.h"
#include "tests/support/real_histories.h"
#include "tests/support/sample_lotteries.h"

namespace {

const QColor red(192, 0, 0);
const QColor blue(0, 0, 192);

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
        for (int slot = 11; slot <= 14; ++slot) test_.state.Settings(slot) = "2";
    }

    void Open() { ShowForm(std::make_unique<PHotNumbers>(test_.program, nullptr)); }

    int prints_ = 0;
};

TEST_F(HotNumbersForm, OpensWithTheWordsOfItsDesign) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("PHotNumbers"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Hot Numbers"));
    EXPECT_EQ(Text("Label2"),
              QStringLiteral("Some numbers occur more than others in lottery draws results. "
                             "Picking them might improve your chances of a win. All these entries "
                             "include all the most common (hot) numbers.."));
    ExpectLabels({{"Label7", "Hot numbers"}, {"Label8", "Hot numbers"}, {"Label6", "Filters"}});
    ExpectCaptions({{"Option1(0)", "Hot numbers"}, {"Option1(1)", "Cold numbers"}});
    ExpectFrameWords(filters, "Command4");
}

TEST_F(HotNumbersForm, HasNoLineCountNoConditionsAndNoTries) {
    Open();
    for (const char* name : {"HScroll1", "Check1", "Check2", "Check3"}) {
        EXPECT_EQ(form_->findChild<QObject*>(QString::fromLatin1(name)), nullptr) << name;
    }
}

TEST_F(HotNumbersForm, OpensOnTheHotNumbersOfTheFirstLotteryWithLines) {
    Open();
    EXPECT_EQ(Find<ListBox>(*form_, "List1")->Index(), 0);
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
    EXPECT_TRUE(Find<QRadioButton>(*form_, "Option1(0)")->isChecked());
    EXPECT_EQ(Text("Label5"), QStringLiteral("1, 2, 3, 13, 17, 22, 24, 34, 35, 41"));
    EXPECT_EQ(TextColour("Label5"), red);
    EXPECT_EQ(Label("Label8").palette().color(QPalette::Window), red);
    EXPECT_GE(ShownLines(), 1);
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(HotNumbersForm, ShowsTheColdTextsAndColours) {
    Open();
    Click(*form_, "Option1(1)");
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Cold numbers"));
    EXPECT_EQ(Text("Label7"), QStringLiteral("Cold numbers"));
    EXPECT_EQ(Text("Label8"), QStringLiteral("Cold numbers"));
    EXPECT_EQ(Text("Label2"),
              QStringLiteral("Some draw numbers have not come up for a long time. They are overdue "
                             "and might come up soon. These entries pick random cold numbers."));
    EXPECT_EQ(Label("Label8").palette().color(QPalette::Window), blue);
    EXPECT_EQ(TextColour("Label5"), blue);
    EXPECT_EQ(Text("Label5"), QStringLiteral("4, 5, 6, 7, 8, 9, 10, 11, 12, 14"));
}

TEST_F(HotNumbersForm, ShowsTheHotTextsAndColoursOnTheWayBack) {
    Open();
    Click(*form_, "Option1(1)");
    Click(*form_, "Option1(0)");
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Hot numbers"));
    EXPECT_EQ(Text("Label7"), QStringLiteral("Hot numbers"));
    EXPECT_EQ(Text("Label8"), QStringLiteral("Hot numbers"));
    EXPECT_EQ(Text("Label2"),
              QStringLiteral("Hot numbers occur more than others in lottery draws. Using them "
                             "might improve your chances of a win. These entries pick random hot "
                             "numbers."));
    EXPECT_EQ(Label("Label8").palette().color(QPalette::Window), red);
    EXPECT_EQ(TextColour("Label5"), red);
}

TEST_F(HotNumbersForm, ReloadsTheDatabaseAndMakesNewLinesOnAChangeOfMode) {
    Open();
    const QStringList before = Texts();
    AddLottery(test_.folder, "dbase100.txt", "UK Lotto", "6,49,0,0,1",
               {"01 Jun 05,40,41,42,43,44,45,0,9"});
    test_.seed = 2;
    Click(*form_, "Option1(1)");
    EXPECT_EQ(test_.state.Draws(1, 1), 40);
    EXPECT_NE(Texts(), before);
}

TEST_F(HotNumbersForm, ShowsOneLineOfOnesForALotteryWithoutDraws) {
    Open();
    Find<ListBox>(*form_, "List1")->SetIndex(2);
    EXPECT_EQ(Text("Label5"), QStringLiteral("1, 1, 1, 1, 1, 1, 1, 1, 1, 1"));
    EXPECT_EQ(ShownLines(), 1);
    for (int column = 1; column <= 7; ++column) {
        EXPECT_EQ(Lines().Cell(1, column), QStringLiteral("1"));
    }
    Click(*form_, "Option1(1)");
    EXPECT_EQ(Text("Label5"), QStringLiteral("1, 1, 1, 1, 1, 1, 1, 1, 1, 1"));
}

TEST_F(HotNumbersForm, LeavesTheExtraBallEmptyForABonusLottery) {
    Open();
    for (int row = 1; row <= ShownLines(); ++row) EXPECT_EQ(Lines().Cell(row, 8), QString());
}

TEST_F(HotNumbersForm, ShowsTheExtraBallOfRankOneInTheFirstLine) {
    Open();
    Find<ListBox>(*form_, "List1")->SetIndex(1);
    EXPECT_EQ(Lines().Cell(1, 8), QStringLiteral("6"));
    Click(*form_, "Option1(1)");
    EXPECT_EQ(Lines().Cell(1, 8), QStringLiteral("1"));
}

TEST_F(HotNumbersForm, GeneratesAnewWithTheSeedOfTheClock) {
    Open();
    const QStringList before = Texts();
    Click(*form_, "Command2");
    EXPECT_EQ(Texts(), before);
    test_.seed = 3;
    Click(*form_, "Command2");
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
    Click(*form_, "Command2");
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
    for (const char* name : {"Command2", "Command6", "Command7", "Command8", "Command9",
                             "Command10", "Command11", "Option1(1)"}) {
        Click(*form_, name);
    }
    Find<ListBox>(*form_, "List1")->SetIndex(1);
    EXPECT_EQ(Texts(), before);
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
    EXPECT_EQ(saves_ + prints_, 0);
    test_.state.Busy = 0;
    Click(*form_, "Command6");
    EXPECT_EQ(prints_, 1);
}

TEST_F(HotNumbersForm, FiltersTheLinesShown) {
    Open();
    ExpectFiltersTakeLinesOut(filters);
}

TEST_F(HotNumbersForm, SavesHelpsAndCloses) {
    Open();
    Click(*form_, "Command7");
    EXPECT_EQ(saves_, 1);
    Click(*form_, "Command4");
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("helpplay.html")});
    Click(*form_, "Command1");
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(HotNumbersForm, TakesTheSkinsColoursAtLoadAndTheModesOnAChangeOfMode) {
    TakeSkinColours("&H8000000F");
    Open();
    EXPECT_EQ(TextColour("Label7"), QColor(1, 0, 0));
    EXPECT_EQ(TextColour("Label2"), QColor(2, 0, 0));
    EXPECT_EQ(TextColour("Label1"), QColor(3, 0, 0));
    EXPECT_EQ(TextColour("Label5"), QColor(4, 0, 0));
    Click(*form_, "Option1(1)");
    EXPECT_EQ(TextColour("Label5"), blue);
}

TEST_F(HotNumbersForm, ReachesItsControlsByTabInReadingOrder) {
    Open();
    ExpectTabOrder({"List1", "Option1(0)", "Option1(1)", "Command8", "Command9", "Command10",
                    "Command11", "MSFlexGrid1", "Command2", "Command7", "Command4", "Command1"});
}

TEST_F(HotNumbersForm, EndsInTheReportOnANumberAboveSeventy) {
    AddLottery(test_.folder, "dbase200.txt", "Big numbers", "1,49,0,0,0",
               {"28 May 05,71,0,0,0,0,0,0,0"});
    Open();
    auto* list = Find<ListBox>(*form_, "List1");
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
    auto* list = Find<ListBox>(*form_, "List1");
    ASSERT_EQ(list->count(), 8);
    for (const char* option : {"Option1(0)", "Option1(1)"}) {
        Click(*form_, option);
        for (int index = 0; index < 8; ++index) {
            list->SetIndex(index);
            const QStringList ten = Text("Label5").split(QStringLiteral(", "));
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

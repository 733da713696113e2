// SPDX-License-Identifier: GPL-3.0-or-later
#include "play/PLuckyDip.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

#include "core/settings.h"
#include "platform/widgets/Lists.h"
#include "tests/support/hourglass_watch.h"
#include "tests/support/lines_form.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr const char* lineCountBar = "HScroll1";
constexpr const char* shownLineCount = "Label4";
constexpr const char* statusLine = "Label5";
constexpr const char* explainButton = "Command3";
constexpr const char* helpButton = "Command8";

class LuckyDipForm : public LinesFormTest {
  protected:
    LuckyDipForm() {
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
        AddDailyPlay(test_.folder);
        test_.state.Settings(setting::OddEvenStrength) = "1 Odd/Even filter";
        test_.state.Settings(setting::HighLowStrength) = "1 High/Low filter";
        test_.state.Settings(setting::HistoryStrength) = "1 History  filter";
        test_.state.Settings(setting::LongRunStrength) = "3 Long Run filter";
    }

    void Open() { ShowForm(std::make_unique<PLuckyDip>(test_.program, nullptr)); }

    QString Status() { return Text(statusLine); }
};

TEST_F(LuckyDipForm, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Lucky Dip"));
    ExpectLabels(
        {{"Label7", "Lucky dip"},
         {"Label2",
          "Don't accept any old ticket the lottery terminal prints out. It might be biased! If you "
          "have not had any wins and want a completely random selection of lottery numbers, try "
          "these below. They may just bring you luck."},
         {"Label8", "Lines to generate"},
         {"Label4", "5"},
         {"Label6", "Do not pick lottery entries with..."},
         {"Label6(1)", "Filters"}});
    ExpectCaptions({{"Check1", "Too many odd or even numbers"},
                    {"Check2", "Too many low or high numbers"},
                    {"Check3", "Same numbers as a previous draw"},
                    {"Command3", "?"}});
    ExpectFrameWords(usualFilters, helpButton);
}

TEST_F(LuckyDipForm, OpeningYieldsFiveLinesOfTheFirstLotteryAtTheFirstTry) {
    Open();
    EXPECT_EQ(Find<ListBox>(*form_, lotteryList)->Index(), 0);
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
    EXPECT_EQ(ShownLines(), 5);
    EXPECT_EQ(Status(), QStringLiteral("Tries: 1   Time: 0.000 sec"));
    EXPECT_EQ(test_.state.Busy, 0);
    for (const char* box : {oddEvenBox, highLowBox, previousDrawsBox}) {
        EXPECT_FALSE(Find<QCheckBox>(*form_, box)->isChecked()) << box;
    }
}

TEST_F(LuckyDipForm, HeadsTheGridAndLeavesTheExtraBallEmptyWithoutOne) {
    Open();
    const QStringList headings = {
        QStringLiteral("Line"), QStringLiteral("Num1"), QStringLiteral("Num2"),
        QStringLiteral("Num3"), QStringLiteral("Num4"), QStringLiteral("Num5"),
        QStringLiteral("Num6"), QStringLiteral("Num7"), QStringLiteral("Pball")};
    for (int column = 0; column < 9; ++column) {
        EXPECT_EQ(Lines().Cell(0, column), headings[column]);
    }
    EXPECT_EQ(Lines().Cell(1, 0), QStringLiteral("1"));
    EXPECT_FALSE(Lines().Cell(1, 6).isEmpty());
    EXPECT_EQ(Lines().Cell(1, 7), QString());
    EXPECT_EQ(Lines().Cell(1, 8), QString());
    EXPECT_EQ(Lines().CellColour(1, 8), QColor(160, 0, 0));
}

TEST_F(LuckyDipForm, ChoosingALotteryMakesFreshLinesAndKeepsTheNumberOfLines) {
    Open();
    Find<QScrollBar>(*form_, lineCountBar)->setValue(7);
    Find<QCheckBox>(*form_, oddEvenBox)->setChecked(true);
    ChooseLottery(1);
    EXPECT_EQ(test_.state.LotteryName, "UK Thunderball");
    EXPECT_EQ(ShownLines(), 7);
    EXPECT_TRUE(Find<QCheckBox>(*form_, oddEvenBox)->isChecked());
    EXPECT_FALSE(Lines().Cell(7, 8).isEmpty());
    EXPECT_EQ(Lines().Cell(1, 6), QString());
}

TEST_F(LuckyDipForm, AClickOnTheLotteryAlreadyChosenMakesFreshLines) {
    Open();
    const QStringList before = Texts();
    test_.seed = 2;
    auto* list = Find<ListBox>(*form_, lotteryList);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(0)).center());
    EXPECT_NE(Texts(), before);
    EXPECT_EQ(ShownLines(), 5);
}

TEST_F(LuckyDipForm, TheScrollBarChangesItsLabelAtOnceAndTheLinesOnlyWithGenerate) {
    Open();
    auto* scroll = Find<QScrollBar>(*form_, lineCountBar);
    EXPECT_EQ(scroll->minimum(), 1);
    EXPECT_EQ(scroll->maximum(), 30);
    scroll->setValue(30);
    EXPECT_EQ(Text(shownLineCount), QStringLiteral("30"));
    EXPECT_EQ(ShownLines(), 5);
    Click(*form_, generateButton);
    EXPECT_EQ(ShownLines(), 30);
}

TEST_F(LuckyDipForm, FiveLinesAfterThirtyLeaveTheOtherRowsBlank) {
    Open();
    Find<QScrollBar>(*form_, lineCountBar)->setValue(30);
    Click(*form_, generateButton);
    Find<QScrollBar>(*form_, lineCountBar)->setValue(5);
    Click(*form_, generateButton);
    for (int row = 6; row < Lines().RowCount(); ++row) {
        for (int column = 0; column < 9; ++column) EXPECT_EQ(Lines().Cell(row, column), QString());
    }
}

TEST_F(LuckyDipForm, ASmallFieldLosesItsDuplicatesAndDoesNotTell) {
    AddLottery(test_.folder, "dbase.txt", "Tiny", "2,3,0,0,0");
    Open();
    Find<QScrollBar>(*form_, lineCountBar)->setValue(30);
    Click(*form_, generateButton);
    EXPECT_LE(ShownLines(), 3);
    EXPECT_EQ(Status(), QStringLiteral("Tries: 1   Time: 0.000 sec"));
}

TEST_F(LuckyDipForm, ConditionsThatNoLineMeetsEndAfterTenSecondsAndSaySo) {
    AddLottery(test_.folder, "dbase.txt", "Tiny", "2,9,0,0,0");
    test_.state.Settings(setting::OddEvenStrength) = "2 Odd/Even filter";
    Open();
    Find<QCheckBox>(*form_, oddEvenBox)->setChecked(true);
    test_.tick = 0.25;
    Click(*form_, generateButton);
    EXPECT_TRUE(
        Status().endsWith(QStringLiteral(" sec (Some lines do not comply with conditions)")))
        << Status().toStdString();
    EXPECT_GE(ShownLines(), 1);
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(LuckyDipForm, EachConditionBoxAsksForItsOwnCondition) {
    AddLottery(test_.folder, "dbase.txt", "Tiny", "2,9,0,0,0", {"28 May 05,1,2,0,0,0,0,0,0"});
    Open();
    test_.tick = 2;
    const std::vector<std::pair<const char*, int>> boxes = {
        {oddEvenBox, setting::OddEvenStrength},
        {highLowBox, setting::HighLowStrength},
        {previousDrawsBox, setting::HistoryStrength}};
    for (const auto& [box, slot] : boxes) {
        Find<QCheckBox>(*form_, box)->setChecked(true);
        for (int unmeetable = setting::OddEvenStrength; unmeetable <= setting::HistoryStrength;
             ++unmeetable) {
            for (int other = setting::OddEvenStrength; other <= setting::HistoryStrength; ++other)
                test_.state.Settings(other) = "0";
            test_.state.Settings(unmeetable) = "3";
            Click(*form_, generateButton);
            EXPECT_EQ(Status().endsWith(QStringLiteral("conditions)")), slot == unmeetable)
                << box << ", strength " << unmeetable << ": " << Status().toStdString();
        }
        Find<QCheckBox>(*form_, box)->setChecked(false);
    }
}

TEST_F(LuckyDipForm, TheStatusLineIsPaintedWhileTheGeneratorRuns) {
    Open();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(form_.get()));
    const HourglassWatch watch(*Find<QLabel>(*form_, statusLine), QEvent::Paint);
    Click(*form_, generateButton);
    EXPECT_GE(watch.UnderHourglass(), 1);
}

TEST_F(LuckyDipForm, AFilterButtonRemovesWhatFailsAndRenumbersTheRest) {
    Open();
    const QString status = Status();
    test_.state.Lines(1, 1) = 2;
    test_.state.Lines(1, 2) = 4;
    test_.state.Lines(1, 3) = 6;
    test_.state.Lines(1, 4) = 8;
    test_.state.Lines(1, 5) = 10;
    test_.state.Lines(1, 6) = 48;
    Click(*form_, usualFilters.oddEven);
    EXPECT_LE(ShownLines(), 4);
    EXPECT_EQ(Lines().Cell(1, 0), QStringLiteral("1"));
    for (int row = 1; row <= ShownLines(); ++row) {
        EXPECT_NE(Lines().Cell(row, 2), QStringLiteral("4"));
    }
    EXPECT_EQ(Status(), status);
}

TEST_F(LuckyDipForm, EachFilterButtonHasItsFilter) {
    Open();
    ExpectFiltersTakeLinesOut(usualFilters);
}

TEST_F(LuckyDipForm, TakesColoursOneToFourOfTheSkin) {
    TakeSkinColours("&HFFFFFF");
    Open();
    const std::vector<std::pair<const char*, int>> reds = {
        {headingLabel, 1}, {bodyLabel, 2}, {lotteryPrompt, 3}, {statusLine, 4}};
    for (const auto& [name, red] : reds) EXPECT_EQ(TextColour(name), QColor(red, 0, 0)) << name;
}

TEST_F(LuckyDipForm, NothingButTheScrollBarReactsWhileBusy) {
    int prints = 0;
    test_.services.printLines = [&](QWidget*, Grid&) { ++prints; };
    Open();
    const QStringList before = Texts();
    test_.state.Busy = -1;
    test_.seed = 2;
    for (const char* name : {generateButton, usualFilters.oddEven, usualFilters.highLow,
                             usualFilters.longRuns, usualFilters.previousDraws}) {
        Click(*form_, name);
    }
    Click(*form_, printButton);
    Click(*form_, saveButton);
    ChooseLottery(2);
    EXPECT_EQ(Texts(), before);
    EXPECT_EQ(saves_ + prints, 0);
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
    test_.state.Busy = 0;
}

TEST_F(LuckyDipForm, LoadingTheFormEndsBusy) {
    test_.state.Busy = -1;
    Open();
    EXPECT_EQ(test_.state.Busy, 0);
    EXPECT_EQ(ShownLines(), 5);
}

TEST_F(LuckyDipForm, SaveGoesToTheSavedEntries) {
    Open();
    Click(*form_, saveButton);
    EXPECT_EQ(saves_, 1);
}

TEST_F(LuckyDipForm, PrintWaitsForAPrinter) {
    Open();
    EXPECT_FALSE(Find<QPushButton>(*form_, printButton)->isEnabled());
    int prints = 0;
    test_.services.printLines = [&](QWidget*, Grid&) { ++prints; };
    Open();
    Click(*form_, printButton);
    EXPECT_EQ(prints, 1);
}

TEST_F(LuckyDipForm, TheQuestionMarkShowsTheFirstTip) {
    Open();
    test_.messages.Expect(
        {.title = QStringLiteral("Did you know..."),
         .text = QStringLiteral(" It is rare for a lottery draw to have     \r\n"
                                " numbers that are all odd or all even. Most     \r\n"
                                " draws have a mixture of odd and even     \r\n"
                                " numbers. Setting this option ensures your     \r\n"
                                " lottery entries have the right mix.     \r\n"),
         .sign = Sign::Information});
    Click(*form_, explainButton);
}

TEST_F(LuckyDipForm, HelpOpensThePlayHelpAndF1ItsPlaceThere) {
    Open();
    Click(*form_, helpButton);
    QTest::keyClick(form_.get(), Qt::Key_F1);
    EXPECT_EQ(test_.pages, (std::vector<QString>{QStringLiteral("helpplay.html"),
                                                 QStringLiteral("helpplay.html#PLuckyDip")}));
}

TEST_F(LuckyDipForm, CloseAndEscCloseTheForm) {
    Open();
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
    Open();
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(LuckyDipForm, CloseDuringAGenerationClosesTheFormAfterIt) {
    AddLottery(test_.folder, "dbase.txt", "Tiny", "2,9,0,0,0");
    test_.state.Settings(setting::OddEvenStrength) = "2";
    Open();
    Find<QCheckBox>(*form_, oddEvenBox)->setChecked(true);
    test_.tick = 0.25;
    auto* close = Find<QPushButton>(*form_, closeButton);
    QMetaObject::invokeMethod(close, "click", Qt::QueuedConnection);
    bool generated = false;
    QMetaObject::invokeMethod(
        form_.get(),
        [&] {
            generated = true;
            EXPECT_TRUE(form_->isVisible()) << "the form waits for the generation to end";
        },
        Qt::QueuedConnection);
    Find<QPushButton>(*form_, generateButton)->click();
    EXPECT_TRUE(generated) << "the waiting click was handled inside the generation";
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(LuckyDipForm, ClicksMadeDuringAGenerationDoNotStartAnother) {
    AddLottery(test_.folder, "dbase.txt", "Tiny", "2,9,0,0,0");
    test_.state.Settings(setting::OddEvenStrength) = "2";
    Open();
    Find<QCheckBox>(*form_, oddEvenBox)->setChecked(true);
    test_.tick = 0.25;
    auto* generate = Find<QPushButton>(*form_, generateButton);
    const QPointF place = generate->rect().center();
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QCoreApplication::postEvent(
            generate,
            new QMouseEvent(type, place, generate->mapToGlobal(place), Qt::LeftButton,
                            type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                            Qt::NoModifier));
    }
    int generations = 0;
    test_.services.random = Random([&] {
        ++generations;
        return std::uint64_t{1};
    });
    generate->click();
    QCoreApplication::processEvents();
    EXPECT_EQ(generations, 1);
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(LuckyDipForm, WithoutALotteryTheRunEndsWithAReport) {
    for (const std::string& file : test_.folder.Find("dbase*.txt")) test_.folder.Delete(file);
    PLuckyDip form(test_.program, nullptr);
    EXPECT_THROW(form.Load(), std::runtime_error);
}

TEST_F(LuckyDipForm, AFieldBeyondThePoolEndsTheRun) {
    AddLottery(test_.folder, "dbase.txt", "Huge", "6,121,0,0,0");
    PLuckyDip form(test_.program, nullptr);
    EXPECT_THROW(form.Load(), std::runtime_error);
}

TEST_F(LuckyDipForm, OpeningAgainShowsTheFirstLottery) {
    Open();
    ChooseLottery(2);
    EXPECT_EQ(test_.state.LotteryName, "UK Daily Play");
    Click(*form_, closeButton);
    Open();
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/ANumberStats.h"

#include <QScrollBar>

#include "platform/widgets/Grid.h"
#include "tests/analysis/analysis_form.h"
#include "tests/support/hourglass_watch.h"

namespace {

constexpr auto headingLabel = "Label1";
constexpr auto explanationLabel = "Label6";
constexpr auto reportLabel = "Label4";
constexpr auto lotteryList = "List1";
constexpr auto overdueButton = "Command1";
constexpr auto commonButton = "Command2";
constexpr auto expectedButton = "Command4";
constexpr auto printButton = "Command6";
constexpr auto closeButton = "Command3";

/// Watches how often a button was made unable and able.
class EnablingWatch final : public QObject {
  public:
    explicit EnablingWatch(QWidget& button) : button_(button) { button.installEventFilter(this); }

    std::vector<bool> Changes() const { return changes_; }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::EnabledChange) changes_.push_back(button_.isEnabled());
        return false;
    }

  private:
    QWidget& button_;
    std::vector<bool> changes_;
};

class NumberStatsForm : public AnalysisFormTest<ANumberStats> {
  protected:
    Grid& Table() { return *Find<Grid>(*form_, "MSFlexGrid1"); }

    std::string Row(int row) {
        QStringList cells;
        for (int column = 0; column < 4; ++column) cells << Table().Cell(row, column);
        return cells.join(QLatin1Char('|')).toStdString();
    }

    std::string Numbers(int rows) {
        QStringList numbers;
        for (int row = 1; row <= rows; ++row) numbers << Table().Cell(row, 0);
        return numbers.join(QLatin1Char(' ')).toStdString();
    }
};

TEST_F(NumberStatsForm, OpensWithTheWordsOfItsDesign) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Number statistics"));
    EXPECT_EQ(Text(headingLabel), QStringLiteral("Number statistics"));
    EXPECT_EQ(Text("LotteryPrompt"), QStringLiteral("Select a lottery:"));
    EXPECT_EQ(
        Text(reportLabel),
        QStringLiteral("Use the sort buttons to see overdue, most common, and expected numbers"));
    EXPECT_EQ(Text(explanationLabel),
              QStringLiteral("The Last Drawn column shows the number of draws since the number was "
                             "last seen. The Times Drawn column shows the number of times this "
                             "number has appeared. The Average is the average number of draws "
                             "between appearances."));
    const std::vector<std::pair<const char*, const char*>> toolTips = {
        {overdueButton, " Place overdue numbers at the top "},
        {commonButton, " Place most common numbers at the top "},
        {expectedButton, " Place expected numbers at the top "},
        {printButton, " Print out table "}};
    for (const auto& [name, text] : toolTips) {
        EXPECT_EQ(Find<QPushButton>(*form_, name)->toolTip(), QString::fromLatin1(text)) << name;
    }
    for (const char* name : {overdueButton, commonButton, expectedButton}) {
        EXPECT_EQ(Find<QPushButton>(*form_, name)->text(), QStringLiteral("Sort"));
    }
}

TEST_F(NumberStatsForm, ShowsARowForEachNumberOfTheFirstLottery) {
    Open();
    EXPECT_EQ(Find<ListBox>(*form_, lotteryList)->Index(), 0);
    EXPECT_EQ(Row(0), "Num|Last drawn|Times Drawn|Average");
    EXPECT_EQ(Row(1), "1|2 draws ago|1 / 2 draws|2.00 draws");
    EXPECT_EQ(Row(3), "3|1 draws ago|1 / 2 draws|2.00 draws");
    EXPECT_EQ(Row(49), "49|Never|0 / 2 draws|Never");
    EXPECT_EQ(Row(50), "|||");
    EXPECT_EQ(Table().RowCount(), 72);
    EXPECT_EQ(Table().CurrentRow(), 1);
}

TEST_F(NumberStatsForm, ShowsNeverWithoutDraws) {
    Open();
    Choose(2);
    EXPECT_EQ(Row(1), "1|Never|0 / 1 draws|Never");
    EXPECT_EQ(Row(27), "27|Never|0 / 1 draws|Never");
    EXPECT_EQ(Row(28), "|||");
}

TEST_F(NumberStatsForm, PutsOverdueNumbersAtTheTopAndNeverAtTheBottom) {
    Open();
    Click(*form_, overdueButton);
    EXPECT_EQ(Numbers(12), "1 2 13 24 35 46 3 17 22 34 41 48");
    EXPECT_EQ(Row(49), "49|Never|0 / 2 draws|Never");
    EXPECT_EQ(Text(reportLabel),
              QStringLiteral("These numbers haven't appeared for a long time and are overdue: "
                             "1, 2, 13, 24, 35, 46, 3, 17, 22, 34"));
}

TEST_F(NumberStatsForm, PutsMostCommonNumbersAtTheTop) {
    AddLottery(test_.folder, "dbase100.txt", "Small", "2,12,0,0,0",
               {"28 May 05,12,7,0,0,0,0,0,0", "25 May 05,7,3,0,0,0,0,0,0"});
    Open();
    Click(*form_, commonButton);
    EXPECT_EQ(Text(reportLabel),
              QStringLiteral("For some reason, these numbers appear more often than others: "
                             "7, 3, 12, 1, 2, 4, 5, 6, 8, 9"));
    Click(*form_, expectedButton);
    EXPECT_EQ(Text(reportLabel),
              QStringLiteral("These numbers are expected soon to improve their average: "
                             "1, 2, 4, 5, 6, 8, 9, 10, 11, 3"));
}

TEST_F(NumberStatsForm, ChainsItsSorts) {
    Open();
    Click(*form_, commonButton);
    Click(*form_, overdueButton);
    const std::string once = Numbers(49);
    Click(*form_, overdueButton);
    EXPECT_EQ(Numbers(49), once);
    Click(*form_, expectedButton);
    EXPECT_EQ(Numbers(3), "4 5 6");
    Click(*form_, overdueButton);
    EXPECT_EQ(Numbers(49), once);
}

TEST_F(NumberStatsForm, KeepsTheTextAndRestoresTheOrderWhenAnotherLotteryIsChosen) {
    Open();
    Click(*form_, overdueButton);
    const QString text = Text(reportLabel);
    Choose(1);
    EXPECT_EQ(Text(reportLabel), text);
    EXPECT_EQ(Numbers(34).substr(0, 7), "1 2 3 4");
    EXPECT_EQ(Row(35), "|||");
    Choose(0);
    EXPECT_EQ(Numbers(49).substr(0, 7), "1 2 3 4");
}

TEST_F(NumberStatsForm, LeavesAPlaceForEachNumberThatIsMissingOfTen) {
    AddLottery(test_.folder, "dbase100.txt", "Small", "2,8,0,0,0", {"28 May 05,1,2,,,,,,"});
    Open();
    Click(*form_, expectedButton);
    EXPECT_EQ(Text(reportLabel),
              QStringLiteral("These numbers are expected soon to improve their average: "
                             "3, 4, 5, 6, 7, 8, 1, 2, , "));
}

TEST_F(NumberStatsForm, DisablesItsButtonsDuringASort) {
    test_.services.printStats = [](Form*, Grid&) {};
    Open();
    for (const char* name :
         {overdueButton, commonButton, expectedButton, printButton, closeButton}) {
        const EnablingWatch watch(*Find<QPushButton>(*form_, name));
        Click(*form_, commonButton);
        EXPECT_EQ(watch.Changes(), (std::vector<bool>{false, true})) << name;
    }
}

TEST_F(NumberStatsForm, KeepsTheFocusOnTheButtonThatSorts) {
    Open();
    form_->activateWindow();
    auto* button = Find<QPushButton>(*form_, expectedButton);
    button->setFocus();
    Click(*form_, expectedButton);
    EXPECT_EQ(form_->focusWidget(), button);
}

TEST_F(NumberStatsForm, ShowsTheHourglassDuringASort) {
    Open();
    const HourglassWatch watch(*Find<QPushButton>(*form_, closeButton), QEvent::EnabledChange);
    Click(*form_, overdueButton);
    EXPECT_EQ(watch.Events(), 2);
    EXPECT_EQ(watch.UnderHourglass(), 2);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(NumberStatsForm, GoesBackToTheFirstRowAfterASort) {
    Open();
    Table().SetCurrentCell(30, 2);
    Click(*form_, overdueButton);
    EXPECT_EQ(Table().CurrentRow(), 1);
}

TEST_F(NumberStatsForm, ShowsTheFirstRowAfterASortAndAChoice) {
    Open();
    const auto scrolled = [this] {
        Table().ScrollToRow(49);
        return Table().verticalScrollBar()->value();
    };
    ASSERT_GT(scrolled(), 0);
    Click(*form_, overdueButton);
    EXPECT_EQ(Table().verticalScrollBar()->value(), 0);
    ASSERT_GT(scrolled(), 0);
    Choose(1);
    EXPECT_EQ(Table().verticalScrollBar()->value(), 0);
}

TEST_F(NumberStatsForm, ReadsTheDatabaseAgainWhenItsEntryIsChosenAgain) {
    Open();
    AddLottery(test_.folder, "dbase100.txt", "UK Lotto", "6,49,0,0,1",
               {"01 Jun 05,40,41,42,43,44,45,0,9"});
    ClickLottery(0);
    EXPECT_EQ(Row(40), "40|1 draws ago|1 / 1 draws|1.00 draws");
}

TEST_F(NumberStatsForm, TakesTheSkinsColours) {
    ChooseSkinColours();
    Open();
    EXPECT_EQ(ColourOf(headingLabel), QColor(1, 0, 0));
    EXPECT_EQ(ColourOf(explanationLabel), QColor(2, 0, 0));
    EXPECT_EQ(ColourOf(reportLabel), QColor(2, 0, 0));
    EXPECT_EQ(ColourOf("LotteryPrompt"), QColor(3, 0, 0));
}

TEST_F(NumberStatsForm, PrintsItsTableWherePrintingIsThere) {
    Open();
    EXPECT_FALSE(Find<QPushButton>(*form_, printButton)->isEnabled());
    const Grid* printed = nullptr;
    test_.services.printStats = [&](Form*, Grid& grid) { printed = &grid; };
    Open();
    Click(*form_, printButton);
    EXPECT_EQ(printed, &Table());
}

TEST_F(NumberStatsForm, ClosesByItsButton) {
    Open();
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(NumberStatsForm, EndsInTheReportAboveSeventy) {
    AddLottery(test_.folder, "dbase103.txt", "Big", "1,71,0,0,0", {"28 May 05,7,,,,,,,"});
    AddLottery(test_.folder, "dbase104.txt", "Drawn", "1,70,0,0,0", {"28 May 05,71,,,,,,,"});
    AddLottery(test_.folder, "dbase105.txt", "Seventy", "1,70,0,0,0", {"28 May 05,70,,,,,,,"});
    Open();
    EXPECT_THROW(Choose(3), Failure);
    EXPECT_THROW(Choose(4), Failure);
    Choose(5);
    EXPECT_EQ(Row(70), "70|1 draws ago|1 / 1 draws|1.00 draws");
    EXPECT_EQ(Row(71), "|||");
}

TEST_F(NumberStatsForm, EndsInTheReportWithoutALottery) { ExpectFailsWithoutALottery(); }

TEST_F(NumberStatsForm, ShowsTheTableOfEveryRealHistory) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    const int count = Find<ListBox>(*form_, lotteryList)->count();
    ASSERT_EQ(count, 8);
    for (int index = 0; index < count; ++index) {
        Choose(index);
        const auto rows = number_stats::TableOf(number_stats::Analyse(test_.state));
        for (std::size_t row = 0; row < rows.size(); ++row) {
            const auto& texts = rows[row];
            ASSERT_EQ(Row(static_cast<int>(row) + 1),
                      texts[0] + "|" + texts[1] + "|" + texts[2] + "|" + texts[3]);
        }
    }
}

}  // namespace

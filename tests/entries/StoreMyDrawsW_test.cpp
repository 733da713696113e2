// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/StoreMyDrawsW.h"

#include <QAction>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "platform/widgets/Grid.h"
#include "platform/widgets/Lists.h"
#include "tests/core/failures.h"
#include "tests/support/form_test.h"
#include "tests/support/hourglass_watch.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr auto grid = "MSFlexGrid1";
constexpr auto lotteryList = "List1";
constexpr auto nameBox = "TextPName";
constexpr auto datePicker = "DTPicker1";
constexpr auto extraBallTitle = "Label2";
constexpr auto addButton = "Command2";
constexpr auto deleteRowButton = "Command4";
constexpr auto upButton = "Command5";
constexpr auto downButton = "Command6";
constexpr auto saveButton = "Command3";
constexpr auto closeButton = "Command1";

const Message problemWithTheInput{
    .title = QStringLiteral("Error"),
    .text = QStringLiteral(
        " There was a problem with the input.  \r\n Please check it and try again.  \r\n"),
    .sign = Sign::Information};

const Message noLotteries{.title = QStringLiteral("Error!"),
                          .text = QStringLiteral("No lotteries to display!    "),
                          .sign = Sign::Exclamation};

const Message entriesSaved{.title = QStringLiteral("Lottery Quillon World"),
                           .text = QStringLiteral("Your entries have been saved.  "),
                           .sign = Sign::Information};

const Message unsavedChanges{.title = QStringLiteral("Warning!"),
                             .text = QStringLiteral("If you have made changes you should    \r\n"
                                                    "click Save to save them. If you        \r\n"
                                                    "continue, any changes will be lost.    "),
                             .sign = Sign::Exclamation,
                             .buttons = Buttons::OkCancel};

class StoringEntries : public testing::Test {
  protected:
    StoringEntries() {
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
        AddDailyPlay(test_.folder);
    }

    void Open() {
        form_ = std::make_unique<StoreMyDrawsW>(test_.program, nullptr);
        form_->Load();
        form_->show();
    }

    Grid& Entries() { return *Find<Grid>(*form_, grid); }

    void ChooseLottery(int index) { Find<ListBox>(*form_, lotteryList)->SetIndex(index); }

    QLineEdit& Box(int index) {
        return *Find<QLineEdit>(*form_, ("Text1(" + std::to_string(index) + ")").c_str());
    }

    void Add(const std::vector<int>& numbers, int extraBall = 0) {
        int index = 1;
        for (const int number : numbers) Box(index++).setText(QString::number(number));
        if (extraBall > 0) Box(8).setText(QString::number(extraBall));
        Click(*form_, addButton);
    }

    /// Row of the grid as one text, fields joined by a comma.
    std::string Row(int row) {
        QStringList fields;
        for (int column = 0; column < 12; ++column) fields << Entries().Cell(row, column);
        return fields.join(QLatin1Char(',')).toStdString();
    }

    void ClickRow(int row) {
        Entries().ScrollToRow(row);
        const QModelIndex index = Entries().model()->index(row - 1, 3);
        QTest::mouseClick(Entries().viewport(), Qt::LeftButton, Qt::NoModifier,
                          Entries().visualRect(index).center());
    }

    TestProgram test_;
    std::unique_ptr<StoreMyDrawsW> form_;
};

TEST_F(StoringEntries, TheNameBoxWarnsAsLongAsACommaStandsInIt) {
    Open();
    auto& name = *Find<QLineEdit>(*form_, nameBox);
    const auto* mark = name.findChild<QAction*>(QStringLiteral("CommaWarning"));
    ASSERT_NE(mark, nullptr);
    EXPECT_FALSE(mark->isVisible());
    name.setText(QStringLiteral("Smith, Ann"));
    EXPECT_TRUE(mark->isVisible());
    EXPECT_FALSE(mark->icon().isNull());
    EXPECT_TRUE(name.toolTip().startsWith(QStringLiteral("A comma divides the fields")));
    EXPECT_EQ(name.accessibleDescription(), name.toolTip());
    name.setText(QStringLiteral("Smith Ann"));
    EXPECT_FALSE(mark->isVisible());
    EXPECT_EQ(name.toolTip(), QStringLiteral(" Enter the player's name or syndicate name "));
}

TEST_F(StoringEntries, CtrlZTakesBackAddedMovedAndDeletedRows) {
    Open();
    QApplication::processEvents();  // The window becomes the active one.
    Add({1, 2, 3, 4, 5, 6});
    Add({7, 8, 9, 10, 11, 12});
    const std::string two = Row(1) + Row(2);
    Click(*form_, upButton);
    const std::string moved = Row(1) + Row(2);
    EXPECT_NE(moved, two);
    Click(*form_, deleteRowButton);
    EXPECT_EQ(Row(2).substr(0, 2), ",,");

    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Row(1) + Row(2), moved);
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Row(1) + Row(2), two);
    EXPECT_EQ(Find<QLabel>(*form_, "Said")->text(), QStringLiteral("Taken back: row moved"));
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Row(2).substr(0, 2), ",,");
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Row(1).substr(0, 2), ",,");
    EXPECT_FALSE(Find<QPushButton>(*form_, deleteRowButton)->isEnabled());
}

TEST_F(StoringEntries, CtrlZTakesBackARowThatWasMovedDown) {
    Open();
    QApplication::processEvents();  // The window becomes the active one.
    Add({1, 2, 3, 4, 5, 6});
    Add({7, 8, 9, 10, 11, 12});
    const std::string two = Row(1) + Row(2);
    Click(*form_, upButton);
    Click(*form_, downButton);
    EXPECT_EQ(Row(1) + Row(2), two);
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(Row(1) + Row(2), two);
    EXPECT_EQ(Find<QLabel>(*form_, "Said")->text(), QStringLiteral("Taken back: row moved"));
}

TEST_F(StoringEntries, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Store Draws Entries"));
    const std::vector<std::pair<const char*, const char*>> labels = {
        {"Label5", "Store lottery draw entries"}, {"Label8", "Select the lottery:"},
        {"Label1", "Enter your numbers:"},        {extraBallTitle, " Pball"},
        {"LabelPName", "Player/syndicate:"},      {"Label7", "Draw date:"}};
    for (const auto& [name, text] : labels) {
        EXPECT_EQ(Find<QLabel>(*form_, name)->text(), QString::fromLatin1(text)) << name;
    }
    const std::vector<std::pair<const char*, const char*>> toolTips = {
        {nameBox, " Enter the player's name or syndicate name "},
        {addButton, " Add this entry to the grid "},
        {deleteRowButton, " Delete current row "},
        {upButton, " Move current row up "},
        {downButton, " Move current row down "},
        {saveButton, " Save all lottery entries in the grid "},
        {closeButton, " Close the window "}};
    for (const auto& [name, text] : toolTips) {
        EXPECT_EQ(Find<QWidget>(*form_, name)->toolTip(), QString::fromLatin1(text)) << name;
    }
    EXPECT_EQ(Find<QPushButton>(*form_, addButton)->text(), QStringLiteral("Add"));
    EXPECT_EQ(Find<QDateEdit>(*form_, datePicker)->displayFormat(), QStringLiteral("dd MMM yy"));
    EXPECT_EQ(Find<QDateEdit>(*form_, datePicker)->date(), QDate(2005, 6, 1));
    const QStringList headings = {
        QStringLiteral("Date"),    QStringLiteral("Num1"), QStringLiteral("Num2"),
        QStringLiteral("Num3"),    QStringLiteral("Num4"), QStringLiteral("Num5"),
        QStringLiteral("Num6"),    QStringLiteral("Num7"), QStringLiteral("Pball"),
        QStringLiteral("Lottery"), QStringLiteral("Name")};
    for (int column = 0; column < headings.size(); ++column) {
        EXPECT_EQ(Entries().Cell(0, column), headings[column]);
    }
}

TEST_F(StoringEntries, WithoutALotterySaysSoAndStaysOpen) {
    for (const std::string& file : test_.folder.Find("dbase*.txt")) test_.folder.Delete(file);
    test_.messages.Expect(noLotteries);
    Open();
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(Find<ListBox>(*form_, lotteryList)->count(), 0);
}

TEST_F(StoringEntries, AddsNothingUntilALotteryIsChosen) {
    for (const std::string& file : test_.folder.Find("dbase*.txt")) test_.folder.Delete(file);
    test_.messages.Expect(noLotteries);
    Open();
    EXPECT_FALSE(Find<QPushButton>(*form_, addButton)->isEnabled());
    Add({});
    QTest::keyClick(&Box(1), Qt::Key_Return);
    EXPECT_EQ(Entries().Cell(1, 0), QString());
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(StoringEntries, AddsOnceALotteryIsChosen) {
    Open();
    EXPECT_TRUE(Find<QPushButton>(*form_, addButton)->isEnabled());
}

TEST_F(StoringEntries, ShowsTheBoxesThatTheLotteryFills) {
    Open();
    const auto visible = [this] {
        std::vector<int> boxes;
        for (int index = 1; index <= 8; ++index) {
            if (!Box(index).isHidden()) boxes.push_back(index);
        }
        return boxes;
    };
    EXPECT_EQ(visible(), (std::vector<int>{1, 2, 3, 4, 5, 6}));
    EXPECT_TRUE(Find<QLabel>(*form_, extraBallTitle)->isHidden());
    ChooseLottery(1);
    EXPECT_EQ(visible(), (std::vector<int>{1, 2, 3, 4, 5, 8}));
    EXPECT_FALSE(Find<QLabel>(*form_, extraBallTitle)->isHidden());
    ChooseLottery(2);
    EXPECT_EQ(visible(), (std::vector<int>{1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(StoringEntries, TheEighthBoxTakesTheEighthNumberOfALotteryOfEight) {
    AddLottery(test_.folder, "dbase103.txt", "Eight", "8,20,0,0,0");
    Open();
    ChooseLottery(3);
    EXPECT_FALSE(Box(8).isHidden());
    EXPECT_TRUE(Find<QLabel>(*form_, extraBallTitle)->isHidden());
    Add({1, 2, 3, 4, 5, 6, 7, 8});
    EXPECT_EQ(Row(1), "01 Jun 05,1,2,3,4,5,6,7,8,Eight,,dbase103.txt");
    ChooseLottery(0);
    EXPECT_TRUE(Box(8).isHidden());
}

TEST_F(StoringEntries, ALotteryOfNineNumbersEndsTheRun) {
    AddLottery(test_.folder, "dbase103.txt", "Nine", "9,20,0,0,0");
    Open();
    EXPECT_EQ(FailureOf([this] { ChooseLottery(3); }),
              "dbase103.txt: an entry has 8 boxes for its numbers, but the lottery has 9 numbers "
              "in a line.");
}

TEST_F(StoringEntries, EachBoxStandsAboveItsColumnAndApartFromItsNeighbour) {
    Open();
    for (const int lottery : {2, 1}) {
        ChooseLottery(lottery);
        QApplication::processEvents();
        int lastRight = 0;
        for (int index = 1; index <= 8; ++index) {
            if (Box(index).isHidden()) continue;
            const QRect box(Box(index).mapTo(form_.get(), QPoint()), Box(index).size());
            const QPoint column(
                Entries().columnViewportPosition(index) + Entries().columnWidth(index) / 2, 0);
            const int middle = Entries().viewport()->mapTo(form_.get(), column).x();
            EXPECT_NEAR(box.center().x(), middle, 2) << index;
            EXPECT_GT(box.left(), lastRight + 2) << index;
            lastRight = box.right();
        }
    }
}

TEST_F(StoringEntries, ChoosingALotteryReadsItsHeaderOnly) {
    test_.state.Draws(1, 1) = 33;
    Open();
    ChooseLottery(1);
    EXPECT_EQ(test_.state.LotteryName, "UK Thunderball");
    EXPECT_EQ(test_.state.MaxPball, 14);
    EXPECT_EQ(test_.state.Draws(1, 1), 33);
}

TEST_F(StoringEntries, ChoosingALotteryShowsTheHourglass) {
    Open();
    const HourglassWatch watch(*Find<QLabel>(*form_, extraBallTitle), QEvent::ShowToParent);
    ChooseLottery(1);
    EXPECT_EQ(watch.UnderHourglass(), 1);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(StoringEntries, BoxesDropEveryKeyButDigitsAndBackspace) {
    Open();
    QTest::keyClicks(&Box(1), QStringLiteral("1a-4.x,"));
    EXPECT_EQ(Box(1).text(), QStringLiteral("14"));
    QTest::keyClick(&Box(1), Qt::Key_Backspace);
    EXPECT_EQ(Box(1).text(), QStringLiteral("1"));
}

TEST_F(StoringEntries, AddWritesTheEntryMarksItAndEmptiesTheBoxes) {
    Open();
    Type(*form_, nameBox, QStringLiteral(" Ann "));
    auto* date = Find<QDateEdit>(*form_, "DTPicker1");
    date->setDate(QDate(2005, 6, 4));
    Add({3, 17, 22, 34, 41, 48});
    EXPECT_EQ(Row(1), "04 Jun 05,3,17,22,34,41,48,,,UK Lotto, Ann ,dbase100.txt");
    EXPECT_EQ(date->date(), QDate(2005, 6, 4));
    EXPECT_EQ(Entries().CurrentRow(), 1);
    EXPECT_TRUE(Entries().selectionModel()->isRowSelected(0));
    for (int index = 1; index <= 8; ++index) EXPECT_EQ(Box(index).text(), QString());
    EXPECT_EQ(Find<QLineEdit>(*form_, nameBox)->text(), QStringLiteral(" Ann "));
}

TEST_F(StoringEntries, EntriesOfDifferentLotteriesStandInOneGrid) {
    Open();
    Add({3, 17, 22, 34, 41, 48});
    ChooseLottery(1);
    Add({1, 2, 3, 4, 5}, 14);
    EXPECT_EQ(Row(2), "01 Jun 05,1,2,3,4,5,,,14,UK Thunderball,,dbase101.txt");
    EXPECT_EQ(Entries().CellColour(2, 8), QColor(160, 0, 0));
}

TEST_F(StoringEntries, TheExtraBallIsHeldAgainstTheHighestMainNumber) {
    Open();
    ChooseLottery(1);
    Add({1, 2, 3, 4, 5}, 20);
    EXPECT_EQ(Entries().Cell(1, 8), QStringLiteral("20"));
    test_.messages.Expect(problemWithTheInput);
    Add({1, 2, 3, 4, 5}, 35);
    EXPECT_EQ(Entries().Cell(2, 0), QString());
}

TEST_F(StoringEntries, ANumberOutsideTheFieldIsRefusedAndNothingIsLost) {
    Open();
    for (const char* bad : {"0", "50", ""}) {
        for (int index = 1; index <= 6; ++index) Box(index).setText(QString::number(index));
        Box(6).setText(QString::fromLatin1(bad));
        test_.messages.Expect(problemWithTheInput);
        Click(*form_, addButton);
        EXPECT_EQ(Entries().Cell(1, 0), QString()) << bad;
        EXPECT_EQ(Box(1).text(), QStringLiteral("1"));
    }
}

TEST_F(StoringEntries, DealsPastedNumbersToTheBoxesOfTheLottery) {
    Open();
    ChooseLottery(1);
    Paste(Box(1), QStringLiteral("7 14 21 28 30 3"));
    Click(*form_, addButton);
    EXPECT_NE(Row(1).find(",7,14,21,28,30,,,3,"), std::string::npos) << Row(1);
}

TEST_F(StoringEntries, EnterInANumberBoxAddsAndGoesBackToTheFirstBox) {
    Open();
    for (int index = 1; index <= 6; ++index) Box(index).setText(QString::number(index));
    QTest::keyClick(&Box(6), Qt::Key_Return);
    EXPECT_EQ(Row(1), "01 Jun 05,1,2,3,4,5,6,,,UK Lotto,,dbase100.txt");
    EXPECT_EQ(form_->focusWidget(), &Box(1));
}

TEST_F(StoringEntries, RepeatsWithinAnEntryAreTaken) {
    Open();
    Add({7, 7, 7, 7, 7, 7});
    EXPECT_EQ(Row(1), "01 Jun 05,7,7,7,7,7,7,,,UK Lotto,,dbase100.txt");
}

TEST_F(StoringEntries, SaveAppendsTheGridAndClosesWithoutAQuestion) {
    test_.folder.Write("MyLottery.txt", "old\r\n");
    Open();
    Add({3, 17, 22, 34, 41, 48});
    ChooseLottery(1);
    Add({1, 2, 3, 4, 5}, 14);
    test_.messages.Expect(entriesSaved);
    Click(*form_, saveButton);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(test_.folder.Read("MyLottery.txt"),
              "old\r\n"
              "01 Jun 05,3,17,22,34,41,48,,,UK Lotto,,dbase100.txt\r\n"
              "01 Jun 05,1,2,3,4,5,,,14,UK Thunderball,,dbase101.txt\r\n");
}

TEST_F(StoringEntries, SavingAnEmptyGridMakesAnEmptyFile) {
    Open();
    test_.messages.Expect(entriesSaved);
    Click(*form_, saveButton);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(test_.folder.Read("MyLottery.txt"), "");
}

TEST_F(StoringEntries, NothingReachesTheFileBeforeSave) {
    Open();
    Add({3, 17, 22, 34, 41, 48});
    EXPECT_FALSE(test_.folder.Exists("MyLottery.txt"));
}

TEST_F(StoringEntries, ClosingAsksWhileTheGridHasRows) {
    Open();
    Add({3, 17, 22, 34, 41, 48});
    test_.messages.Expect(unsavedChanges, Answer::Cancel);
    Click(*form_, closeButton);
    EXPECT_TRUE(form_->isVisible());
    test_.messages.Expect(unsavedChanges, Answer::Cancel);
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_TRUE(form_->isVisible());
    test_.messages.Expect(unsavedChanges, Answer::Cancel);
    form_->close();
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(Entries().Cell(1, 1), QStringLiteral("3"));
    test_.messages.Expect(unsavedChanges, Answer::Ok);
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_FALSE(test_.folder.Exists("MyLottery.txt"));
}

TEST_F(StoringEntries, ClosingAnEmptyGridAsksNothing) {
    Open();
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(StoringEntries, AClickMarksTheWholeRow) {
    Open();
    Add({1, 2, 3, 4, 5, 6});
    Add({7, 8, 9, 10, 11, 12});
    ClickRow(1);
    EXPECT_EQ(Entries().CurrentRow(), 1);
    EXPECT_EQ(Entries().currentIndex().column(), 11);
    EXPECT_TRUE(Entries().selectionModel()->isRowSelected(0));
}

TEST_F(StoringEntries, DeletingMovesTheRowsUpWithoutTheirDatabaseFile) {
    Open();
    Add({1, 2, 3, 4, 5, 6});
    ChooseLottery(1);
    Add({7, 8, 9, 10, 11}, 3);
    ClickRow(1);
    Click(*form_, deleteRowButton);
    EXPECT_EQ(Row(1), "01 Jun 05,7,8,9,10,11,,,3,UK Thunderball,,dbase100.txt");
    EXPECT_EQ(Row(2), ",,,,,,,,,,,dbase101.txt");
    EXPECT_EQ(Entries().CurrentRow(), 1);
}

TEST_F(StoringEntries, DeletingTheLastRowEmptiesItAndItRemainsCurrent) {
    Open();
    Add({1, 2, 3, 4, 5, 6});
    Click(*form_, deleteRowButton);
    EXPECT_EQ(Row(1), ",,,,,,,,,,,dbase100.txt");
    EXPECT_EQ(Entries().CurrentRow(), 1);
}

TEST_F(StoringEntries, MovingSwapsRowsWithoutTheirDatabaseFile) {
    Open();
    Add({1, 2, 3, 4, 5, 6});
    ChooseLottery(1);
    Add({7, 8, 9, 10, 11}, 3);
    Click(*form_, upButton);
    EXPECT_EQ(Row(1), "01 Jun 05,7,8,9,10,11,,,3,UK Thunderball,,dbase100.txt");
    EXPECT_EQ(Row(2), "01 Jun 05,1,2,3,4,5,6,,,UK Lotto,,dbase101.txt");
    EXPECT_EQ(Entries().CurrentRow(), 1);
    Click(*form_, downButton);
    EXPECT_EQ(Row(1), "01 Jun 05,1,2,3,4,5,6,,,UK Lotto,,dbase100.txt");
    EXPECT_EQ(Entries().CurrentRow(), 2);
}

TEST_F(StoringEntries, TheFirstRowDoesNotMoveUpNorTheLastDown) {
    Open();
    Add({1, 2, 3, 4, 5, 6});
    Click(*form_, upButton);
    Click(*form_, downButton);
    EXPECT_EQ(Row(1), "01 Jun 05,1,2,3,4,5,6,,,UK Lotto,,dbase100.txt");
    EXPECT_EQ(Entries().CurrentRow(), 1);
}

TEST_F(StoringEntries, ARowMovesDownOnlyOverOneThatHasAFirstNumber) {
    AddLottery(test_.folder, "dbase103.txt", "None", "0,20,0,0,0");
    Open();
    Add({1, 2, 3, 4, 5, 6});
    ChooseLottery(3);
    Add({});
    EXPECT_EQ(Row(2), "01 Jun 05,,,,,,,,,None,,dbase103.txt");
    ClickRow(1);
    Click(*form_, downButton);
    EXPECT_EQ(Entries().CurrentRow(), 1);
    EXPECT_EQ(Entries().Cell(1, 1), QStringLiteral("1"));
    ClickRow(2);
    Click(*form_, upButton);
    EXPECT_EQ(Entries().Cell(2, 1), QStringLiteral("1"));
}

TEST_F(StoringEntries, RowCommandsDoNothingWhileNoRowIsChosen) {
    Open();
    Add({1, 2, 3, 4, 5, 6});
    ChooseLottery(1);
    EXPECT_EQ(Entries().CurrentRow(), 99);
    EXPECT_FALSE(Entries().currentIndex().isValid());
    for (const char* command : {deleteRowButton, upButton, downButton}) Click(*form_, command);
    EXPECT_EQ(Row(1), "01 Jun 05,1,2,3,4,5,6,,,UK Lotto,,dbase100.txt");
}

TEST_F(StoringEntries, OffersRowCommandsWhereTheyDoSomething) {
    Open();
    const auto offered = [this] {
        std::string commands;
        for (const char* command : {deleteRowButton, upButton, downButton}) {
            commands += Find<QPushButton>(*form_, command)->isEnabled() ? "x" : "-";
        }
        return commands;
    };
    EXPECT_EQ(offered(), "---");
    Add({1, 2, 3, 4, 5, 6});
    EXPECT_EQ(offered(), "x--");
    Add({7, 8, 9, 10, 11, 12});
    EXPECT_EQ(offered(), "xx-");
    ClickRow(1);
    EXPECT_EQ(offered(), "x-x");
    ClickRow(5);
    EXPECT_EQ(offered(), "---");
    ClickRow(1);
    Click(*form_, downButton);
    EXPECT_EQ(offered(), "xx-");
    Click(*form_, deleteRowButton);
    EXPECT_EQ(offered(), "---") << "the row is empty now";
    ClickRow(1);
    ChooseLottery(1);
    EXPECT_EQ(offered(), "---") << "no row is chosen";
}

TEST_F(StoringEntries, MovingARowLeavesTheFocusOnItsButton) {
    Open();
    QApplication::processEvents();  // The window becomes the active one.
    for (int first = 1; first <= 4; ++first) Add({first, 12, 13, 14, 15, 16});
    ClickRow(1);
    auto* down = Find<QPushButton>(*form_, downButton);
    down->setFocus();
    QTest::keyClick(down, Qt::Key_Space);
    EXPECT_TRUE(down->hasFocus());
    QTest::keyClick(down, Qt::Key_Space);
    EXPECT_EQ(Entries().CurrentRow(), 3);
    EXPECT_EQ(Entries().Cell(3, 1), QStringLiteral("1"));
}

TEST_F(StoringEntries, OffersRowCommandsForARowThatNobodyClicked) {
    Open();
    Add({1, 2, 3, 4, 5, 6});
    Add({7, 8, 9, 10, 11, 12});
    const QAbstractItemModel& cells = *Entries().model();
    Entries().setCurrentIndex(cells.index(0, 3));
    EXPECT_FALSE(Find<QPushButton>(*form_, upButton)->isEnabled());
    Click(*form_, downButton);
    EXPECT_EQ(Entries().Cell(1, 1), QStringLiteral("7"));
    EXPECT_EQ(Entries().CurrentRow(), 2);
    Entries().setCurrentIndex(cells.index(5, 3));
    EXPECT_FALSE(Find<QPushButton>(*form_, deleteRowButton)->isEnabled());
}

TEST_F(StoringEntries, OffersRowCommandsAsTheKeysMoveOn) {
    Open();
    Add({1, 2, 3, 4, 5, 6});
    Add({7, 8, 9, 10, 11, 12});
    QTest::keyClick(&Entries(), Qt::Key_Up);
    EXPECT_FALSE(Find<QPushButton>(*form_, upButton)->isEnabled());
    EXPECT_TRUE(Find<QPushButton>(*form_, downButton)->isEnabled());
}

TEST_F(StoringEntries, TheNextPressOfAKeyDoesNothingElse) {
    Open();
    Add({1, 2, 3, 4, 5, 6});
    Add({7, 8, 9, 10, 11, 12});
    auto* up = Find<QPushButton>(*form_, upButton);
    up->setFocus();
    QTest::keyClick(up, Qt::Key_Space);
    EXPECT_FALSE(up->isEnabled());
    EXPECT_EQ(form_->focusWidget(), &Entries());
}

TEST_F(StoringEntries, RowsBehindTheLastEntryAreNotInUse) {
    Open();
    EXPECT_FALSE(Entries().InUse(1, 0));
    Add({1, 2, 3, 4, 5, 6});
    EXPECT_TRUE(Entries().InUse(1, 0));
    EXPECT_FALSE(Entries().InUse(2, 0));
    Click(*form_, deleteRowButton);
    EXPECT_FALSE(Entries().InUse(1, 0));
}

TEST_F(StoringEntries, AFullGridIsSaved) {
    Open();
    for (int entry = 1; entry <= 99; ++entry) Add({1, 2, 3, 4, 5, 6});
    test_.messages.Expect(entriesSaved);
    Click(*form_, saveButton);
    const std::string saved = test_.folder.Read("MyLottery.txt");
    EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), 99);
}

TEST_F(StoringEntries, AFullGridRunsIntoTheParkingRowAndThenEndsTheRun) {
    Open();
    for (int entry = 1; entry <= 99; ++entry) Add({1, 2, 3, 4, 5, 6});
    EXPECT_EQ(Entries().Cell(99, 1), QStringLiteral("1"));
    const QRect added = Entries().visualRect(Entries().model()->index(98, 1));
    EXPECT_TRUE(Entries().viewport()->rect().contains(added));
    EXPECT_FALSE(TakeFailure());
    Add({1, 2, 3, 4, 5, 6});
    EXPECT_TRUE(TakeFailure());
}

TEST_F(StoringEntries, CtrlZTakesBackAnEntryThatWasTyped) {
    Open();
    QApplication::processEvents();  // The window becomes the active one.
    for (int index = 1; index <= 6; ++index) QTest::keyClicks(&Box(index), QString::number(index));
    QTest::keyClick(&Box(6), Qt::Key_Return);
    EXPECT_EQ(Entries().Cell(1, 6), QStringLiteral("6"));
    QTest::keyClick(&Box(1), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Entries().Cell(1, 6), QString());
    EXPECT_EQ(Box(1).text(), QString());
}

TEST_F(StoringEntries, CtrlZTakesBackTheEntryInTheParkingRow) {
    Open();
    QApplication::processEvents();  // The window becomes the active one.
    for (int entry = 1; entry <= 99; ++entry) Add({1, 2, 3, 4, 5, 6});
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Row(99), ",,,,,,,,,,,");
    EXPECT_EQ(Entries().Cell(98, 1), QStringLiteral("1"));
}

TEST_F(StoringEntries, RowsMoveDownAsFarAsRow98) {
    Open();
    for (int entry = 1; entry <= 99; ++entry) {
        Type(*form_, nameBox, QString::number(entry));
        Add({1, 2, 3, 4, 5, 6});
    }
    ClickRow(97);
    Click(*form_, downButton);
    EXPECT_EQ(Entries().CurrentRow(), 98);
    EXPECT_EQ(Entries().Cell(98, 10), QStringLiteral("97"));
    Click(*form_, downButton);
    EXPECT_EQ(Entries().CurrentRow(), 98);
    EXPECT_EQ(Entries().Cell(98, 10), QStringLiteral("97"));
    EXPECT_EQ(Entries().Cell(99, 10), QStringLiteral("99"));
}

TEST_F(StoringEntries, ALockedDatabaseEndsTheRunAndNothingIsWritten) {
    const auto before = test_.folder.Snapshot();
    Open();
    test_.folder.Lock("dbase101.txt");
    auto* list = Find<ListBox>(*form_, lotteryList);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->visualItemRect(list->item(1)).center());
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->find("dbase101.txt"), std::string::npos);
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(StoringEntries, AFullDiskEndsTheRunAndLeavesTheFileAsItWas) {
    test_.folder.Write("MyLottery.txt", "old\r\n");
    const auto before = test_.folder.Snapshot();
    Open();
    Add({1, 2, 3, 4, 5, 6});
    test_.folder.FailAfterBytes(20);
    Click(*form_, saveButton);
    EXPECT_TRUE(TakeFailure());
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

}  // namespace

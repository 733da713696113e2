// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/ShowMyDrawsW.h"

#include <QClipboard>
#include <QDateEdit>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

#include "core/failure.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Grid.h"
#include "tests/support/form_test.h"
#include "tests/support/hourglass_watch.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr auto grid = "MSFlexGrid1";
constexpr auto itemBox = "Text1";
constexpr auto reportBox = "Text2";
constexpr auto datePicker = "DTPicker1";
constexpr auto enterButton = "Command10";
constexpr auto dateThisRow = "Command8";
constexpr auto dateAllRows = "Command12";
constexpr auto deleteThisRow = "Command7";
constexpr auto deleteOldRows = "Command4";
constexpr auto deleteAllRows = "Command9";
constexpr auto sortByDate = "Command11";
constexpr auto sortByName = "Command3";
constexpr auto sortByLottery = "Command6";
constexpr auto checkButton = "Command2";
constexpr auto saveButton = "Command13";
constexpr auto printButton = "Command5";
constexpr auto closeButton = "Command1";
constexpr auto mainKeyTitle = "Label4";
constexpr auto mainKey = "Label3";
constexpr auto extraKeyTitle = "Label6";
constexpr auto extraKey = "Label7";

const QColor white(255, 255, 255);
const QColor yellow(255, 255, 0);
const QColor lightRed(255, 192, 192);

const Message lotteryIsFixed{.title = QStringLiteral("Error"),
                             .text = QStringLiteral("Can't change lotteries!  "),
                             .sign = Sign::Exclamation};

const Message outOfRange{.title = QStringLiteral("Error"),
                         .text = QStringLiteral("Number out of range!  "),
                         .sign = Sign::Exclamation};

const Message closing{.title = QStringLiteral("Close window"),
                      .text = QStringLiteral("Close without saving changes?    "),
                      .sign = Sign::Question,
                      .buttons = Buttons::YesNo};

const Message allDeleted{.title = QStringLiteral("Help"),
                         .text = QStringLiteral("All entries deleted. Nothing to show!  "),
                         .sign = Sign::Information};

Message Confirming(const char* text) {
    return {.title = QStringLiteral("Please confirm..."),
            .text = QString::fromLatin1(text),
            .sign = Sign::Exclamation,
            .buttons = Buttons::OkCancel};
}

const Message deleteThis = Confirming("Delete this lottery entry?   ");
const Message deleteOld =
    Confirming("Delete all lottery entries    \r\nthat are older than today?    ");
const Message deleteAll =
    Confirming("Are you sure you want to delete    \r\nall of the lottery entries?    ");

const char* const threeEntries =
    "28-May-2005,3,17,22,9,41,40,,,UK Lotto,Tom,dbase100.txt\r\n"
    "01-Jun-2005,4,9,15,27,30,,,6,UK Thunderball,Ann,dbase101.txt\r\n"
    "28 May 05,4,9,1,2,3,,,6,UK Thunderball,Bea,dbase101.txt\r\n";

class ShowingEntries : public testing::Test {
  protected:
    ShowingEntries() {
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
        AddDailyPlay(test_.folder);
    }

    void Open(const std::string& entries = threeEntries) {
        test_.folder.Write("MyLottery.txt", entries);
        form_ = std::make_unique<ShowMyDrawsW>(test_.program, nullptr);
        form_->Load();
        form_->show();
        QApplication::processEvents();
    }

    Grid& Entries() { return *Find<Grid>(*form_, grid); }
    QLineEdit& Item() { return *Find<QLineEdit>(*form_, itemBox); }
    std::string File() { return test_.folder.Read("MyLottery.txt"); }
    void Run(const char* command) { Click(*form_, command); }

    QString CheckSummary() { return Find<QLabel>(*form_, "CheckSummary")->text(); }
    QString Said() { return Find<QLabel>(*form_, "Said")->text(); }

    QString Report() { return Find<QPlainTextEdit>(*form_, reportBox)->toPlainText(); }

    std::string Row(int row) {
        QStringList fields;
        for (int column = 0; column < 12; ++column) fields << Entries().Cell(row, column);
        return fields.join(QLatin1Char(',')).toStdString();
    }

    /// Column 10, the players, of the first rows.
    std::string Players() {
        std::string players;
        for (int row = 1; !Entries().Cell(row, 0).isEmpty(); ++row) {
            players += Entries().Cell(row, 10).toStdString() + " ";
        }
        return players;
    }

    void ClickCell(int row, int column) {
        Entries().ScrollToRow(row);
        const QModelIndex index = Entries().model()->index(row - 1, column);
        QTest::mouseClick(Entries().viewport(), Qt::LeftButton, Qt::NoModifier,
                          Entries().visualRect(index).center());
    }

    void Enter(int row, int column, const char* text) {
        ClickCell(row, column);
        Item().setText(QString::fromLatin1(text));
        Run(enterButton);
    }

    /// A closing that asks nothing: there are no changes.
    void ExpectNoChanges() {
        Run(closeButton);
        EXPECT_FALSE(form_->isVisible());
    }

    /// A closing that asks whether changes are to be lost.
    void ExpectChanges() {
        test_.messages.Expect(closing, Answer::Yes);
        Run(closeButton);
        EXPECT_FALSE(form_->isVisible());
    }

    /// Every command that changes the entries.
    std::vector<std::function<void()>> Edits() {
        const auto confirmed = [this](const Message& question, const char* command) {
            return [this, &question, command] {
                test_.messages.Expect(question);
                Run(command);
            };
        };
        return {[this] { Enter(1, 1, "33"); },       [this] { Run(dateThisRow); },
                [this] { Run(dateAllRows); },        [this] { Run(sortByDate); },
                [this] { Run(sortByName); },         [this] { Run(sortByLottery); },
                confirmed(deleteOld, deleteOldRows), confirmed(deleteThis, deleteThisRow)};
    }

    TestProgram test_;
    std::unique_ptr<ShowMyDrawsW> form_;
};

std::string ManyEntries(int count) {
    std::string bytes;
    for (int entry = 0; entry < count; ++entry) {
        bytes += "28 May 05," + std::to_string(entry % 49 + 1) +
                 ",2,3,4,5,6,,,UK Lotto,Ann,dbase100.txt\r\n";
    }
    return bytes;
}

TEST_F(ShowingEntries, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Show/Check Lottery Entries"));
    const std::vector<std::pair<const char*, const char*>> labels = {
        {"Label8", "Stored lottery entries"},
        {"Label5", "   Your lottery entries"},
        {"Label2", "Item:"},
        {"Label1", "Date:"},
        {"Label14", "Check report:"},
        {mainKeyTitle, "Match main draw number:"},
        {extraKeyTitle, "Match Bonus/Powerball:"},
        {"Label10",
         "To play the same lottery entry in future draw, select the row and update the draw date "
         "below. Numbers and names can be changed too. Click any item and use the edit box below."},
        {"Label9",
         "The Check button tells you if you have won anything. Each lottery entry is checked with "
         "the lottery draw result on the date specified. Any numbers matched are highlighted."}};
    for (const auto& [name, text] : labels) {
        EXPECT_EQ(Find<QLabel>(*form_, name)->text(), QString::fromLatin1(text)) << name;
    }
    const QStringList headings = {
        QStringLiteral("Date"),    QStringLiteral("Num1"), QStringLiteral("Num2"),
        QStringLiteral("Num3"),    QStringLiteral("Num4"), QStringLiteral("Num5"),
        QStringLiteral("Num6"),    QStringLiteral("Num7"), QStringLiteral("Pball"),
        QStringLiteral("Lottery"), QStringLiteral("Name")};
    for (int column = 0; column < headings.size(); ++column) {
        EXPECT_EQ(Entries().Cell(0, column), headings[column]);
    }
}

TEST_F(ShowingEntries, BearsTheCaptionsAndToolTipsOfItsCommands) {
    Open();
    const std::vector<std::array<const char*, 3>> commands = {
        {enterButton, "Enter", " Change cell value "},
        {dateThisRow, "This row", " Change date of current row "},
        {dateAllRows, "All rows", " Change date of all rows "},
        {deleteThisRow, "This row", " Delete the current lottery entry "},
        {deleteAllRows, "All rows", " Delete all lottery entries "},
        {deleteOldRows, "Out of date", " Delete lottery entries older than today "},
        {sortByDate, "By date", " Sort lottery entries by date "},
        {sortByName, "By name", " Sort lottery entries by player name "},
        {sortByLottery, "By lottery", " Sort lottery entries by lottery name "},
        {checkButton, "Check", " See if you have won! "},
        {saveButton, "Save", " Save the lottery entries "},
        {printButton, "Print", " Print out lottery entries "},
        {closeButton, "Close", " Close "}};
    for (const auto& [name, caption, toolTip] : commands) {
        const auto* button = Find<QPushButton>(*form_, name);
        EXPECT_EQ(button->text(), QString::fromLatin1(caption)) << name;
        EXPECT_EQ(button->toolTip(), QString::fromLatin1(toolTip)) << name;
    }
}

TEST_F(ShowingEntries, ShowsTheFileAndStandsInItsFirstNumber) {
    Open();
    EXPECT_EQ(Row(1), "28-May-2005,3,17,22,9,41,40,,,UK Lotto,Tom,dbase100.txt");
    EXPECT_EQ(Row(3), "28 May 05,4,9,1,2,3,,,6,UK Thunderball,Bea,dbase101.txt");
    EXPECT_EQ(Row(4), ",,,,,,,,,,,");
    EXPECT_EQ(Entries().CellColour(2, 8), QColor(160, 0, 0));
    EXPECT_EQ(Entries().CurrentRow(), 1);
    EXPECT_EQ(Entries().currentIndex().column(), 1);
    EXPECT_EQ(Item().text(), QStringLiteral("3"));
    EXPECT_EQ(Item().selectedText(), QStringLiteral("3"));
    EXPECT_EQ(form_->focusWidget(), &Item());
    const auto* date = Find<QDateEdit>(*form_, datePicker);
    EXPECT_EQ(date->displayFormat(), QStringLiteral("dd MMM yy"));
    EXPECT_EQ(date->date(), QDate(2005, 6, 1));
}

TEST_F(ShowingEntries, MakesItsColumnsAsWideAsTheTextsTheyAreMeantFor) {
    Open();
    const auto widthOf = [this](const char* text) {
        return Entries().fontMetrics().horizontalAdvance(QString::fromLatin1(text));
    };
    EXPECT_EQ(Entries().columnWidth(0), widthOf("------DATE--------"));
    for (int column = 1; column <= 8; ++column) {
        EXPECT_EQ(Entries().columnWidth(column), widthOf("---NUM----")) << column;
    }
    EXPECT_EQ(Entries().columnWidth(9), widthOf("--------LOTTERY NAME---------"));
    EXPECT_EQ(Entries().columnWidth(10), widthOf("-----PLAYER NAME---------"));
}

TEST_F(ShowingEntries, HalfARecordEndsTheRunAndTheFileStays) {
    test_.folder.Write("MyLottery.txt", "28 May 05,3,17\r\n");
    form_ = std::make_unique<ShowMyDrawsW>(test_.program, nullptr);
    EXPECT_THROW(form_->Load(), Failure);
    EXPECT_EQ(File(), "28 May 05,3,17\r\n");
}

TEST_F(ShowingEntries, ACommaInANameEndsTheRunAndTheFileStays) {
    const std::string entry = "28 May 05,3,17,22,9,41,40,,,UK Lotto,Ann, Bob,dbase100.txt\r\n";
    test_.folder.Write("MyLottery.txt", entry);
    form_ = std::make_unique<ShowMyDrawsW>(test_.program, nullptr);
    EXPECT_THROW(form_->Load(), Failure);
    EXPECT_EQ(File(), entry);
}

TEST_F(ShowingEntries, OfSixHundredTheFirst499AreShownAndSaved) {
    Open(ManyEntries(600));
    EXPECT_FALSE(Entries().Cell(499, 0).isEmpty());
    EXPECT_TRUE(Entries().Cell(500, 0).isEmpty());
    Run(saveButton);
    EXPECT_EQ(File(), ManyEntries(499));
}

TEST_F(ShowingEntries, EntriesThatAreNotShownAreToldAsLongAsTheFileHoldsThem) {
    Open(ManyEntries(600));
    const auto* unread = Find<QLabel>(*form_, "UnreadEntries");
    EXPECT_TRUE(unread->isVisible());
    EXPECT_TRUE(unread->text().startsWith(QStringLiteral("MyLottery.txt holds 101 entries more")));
    Run(saveButton);
    EXPECT_FALSE(unread->isVisible());
}

TEST_F(ShowingEntries, NothingIsToldOf499Entries) {
    Open(ManyEntries(499));
    EXPECT_FALSE(Find<QLabel>(*form_, "UnreadEntries")->isVisible());
}

TEST_F(ShowingEntries, CtrlZTakesBackAllCommandsTheLastOneFirst) {
    Open();
    const std::string before = Row(1) + Row(2) + Row(3);
    Enter(1, 10, "Zoe");
    Run(sortByDate);
    const std::string sorted = Row(1) + Row(2) + Row(3);
    test_.messages.Expect(deleteThis, Answer::Ok);
    Run(deleteThisRow);
    EXPECT_EQ(Row(3).substr(0, 2), ",,");

    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Row(1) + Row(2) + Row(3), sorted);
    EXPECT_EQ(Said(), QStringLiteral("Taken back: entry deleted"));
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Players(), "Zoe Ann Bea ");
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Row(1) + Row(2) + Row(3), before);
    EXPECT_EQ(Said(), QStringLiteral("Taken back: item changed"));
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Said(), QStringLiteral("There is nothing to take back"));
    // Nothing is unsaved any more, so closing asks nothing.
    Run(closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(ShowingEntries, CtrlZTakesBackEachCommandByItself) {
    const std::vector<std::function<void()>> commands = Edits();
    // None of its commands leaves these as they are.
    const std::string entries =
        "31 May 05,3,17,22,9,41,40,,,UK Thunderball,Tom,dbase101.txt\r\n"
        "28 May 05,4,9,15,27,30,1,,,UK Lotto,Bea,dbase100.txt\r\n"
        "30 May 05,4,9,1,2,3,,,6,UK Lotto,Ann,dbase101.txt\r\n";
    Open(entries);
    const std::string before = Row(1) + Row(2) + Row(3);
    for (std::size_t i = 0; i < commands.size(); ++i) {
        commands[i]();
        EXPECT_NE(Row(1) + Row(2) + Row(3), before) << i;
        QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Row(1) + Row(2) + Row(3), before) << i;
    }
}

TEST_F(ShowingEntries, CtrlZInTheEditBoxTakesBackWhatWasTypedFirst) {
    Open();
    Enter(1, 1, "5");
    ClickCell(2, 1);
    QTest::keyClicks(&Item(), QStringLiteral("77"));
    QTest::keyClick(&Item(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Entries().Cell(1, 1), QStringLiteral("5"));
    EXPECT_NE(Item().text(), QStringLiteral("77"));
    ClickCell(1, 1);
    QTest::keyClick(&Item(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Entries().Cell(1, 1), QStringLiteral("3"));
}

TEST_F(ShowingEntries, WhatIsSavedIsNotTakenBack) {
    Open();
    Enter(1, 1, "5");
    Run(saveButton);
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Entries().Cell(1, 1), QStringLiteral("5"));
    EXPECT_EQ(Said(), QStringLiteral("There is nothing to take back"));
}

TEST_F(ShowingEntries, AClickOnACellFillsTheEditBox) {
    Open();
    ClickCell(2, 10);
    EXPECT_EQ(Item().text(), QStringLiteral("Ann"));
    EXPECT_EQ(Item().selectedText(), QStringLiteral("Ann"));
    EXPECT_EQ(form_->focusWidget(), &Item());
}

TEST_F(ShowingEntries, ArrowKeysFillTheEditBoxAndEnterLeadsIntoIt) {
    Open();
    Entries().setFocus();
    QTest::keyClick(&Entries(), Qt::Key_Down);
    EXPECT_EQ(Item().text(), QStringLiteral("4"));
    EXPECT_EQ(form_->focusWidget(), &Entries());
    QTest::keyClick(&Entries(), Qt::Key_Return);
    EXPECT_EQ(form_->focusWidget(), &Item());
}

TEST_F(ShowingEntries, EditsTheCurrentCell) {
    Open();
    Enter(1, 1, " 33 ");
    EXPECT_EQ(Entries().Cell(1, 1), QStringLiteral("33"));
    EXPECT_EQ(File(), threeEntries);
    ExpectChanges();
}

TEST_F(ShowingEntries, EnterInTheBoxEditsTheCell) {
    Open();
    Item().setText(QStringLiteral("60"));
    QTest::keyClick(&Item(), Qt::Key_Return);
    EXPECT_EQ(Entries().Cell(1, 1), QStringLiteral("60"));
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(ShowingEntries, EditsOutliveASort) {
    Open();
    Enter(1, 10, "Zoe");
    Run(sortByName);
    EXPECT_EQ(Players(), "Ann Bea Zoe ");
}

TEST_F(ShowingEntries, RefusesNumbersOutsideOneToSixtyInEveryLottery) {
    Open();
    for (const char* bad : {"0", "61", "x", "", "-1", "0.5", "60.5"}) {
        test_.messages.Expect(outOfRange);
        Enter(2, 8, bad);
        EXPECT_EQ(Entries().Cell(2, 8), QStringLiteral("6")) << bad;
    }
    Enter(2, 8, "60");
    EXPECT_EQ(Entries().Cell(2, 8), QStringLiteral("60"));
}

TEST_F(ShowingEntries, ARefusedNumberIsNoChange) {
    Open();
    test_.messages.Expect(outOfRange);
    Enter(1, 1, "61");
    ExpectNoChanges();
}

TEST_F(ShowingEntries, StoresALeadingNumberAsTyped) {
    Open();
    Enter(1, 1, "7x");
    EXPECT_EQ(Entries().Cell(1, 1), QStringLiteral("7x"));
}

TEST_F(ShowingEntries, NeverChangesALottery) {
    Open();
    test_.messages.Expect(lotteryIsFixed);
    Enter(1, 9, "Other");
    EXPECT_EQ(Entries().Cell(1, 9), QStringLiteral("UK Lotto"));
    test_.messages.Expect(lotteryIsFixed);
    Enter(5, 9, "Other");
    EXPECT_EQ(Entries().Cell(5, 9), QString());
    ExpectNoChanges();
}

TEST_F(ShowingEntries, LeavesAnEmptyCellEmpty) {
    Open();
    Enter(1, 7, "12");
    Enter(1, 7, "99");
    Enter(4, 0, "28 May 05");
    EXPECT_EQ(Row(1), "28-May-2005,3,17,22,9,41,40,,,UK Lotto,Tom,dbase100.txt");
    EXPECT_EQ(Row(4), ",,,,,,,,,,,");
    ExpectNoChanges();
}

TEST_F(ShowingEntries, TakesAnyTextForADateANameAndAFile) {
    Open();
    Enter(1, 0, "someday");
    Enter(1, 10, "");
    Enter(1, 11, "gone.txt");
    EXPECT_EQ(Row(1), "someday,3,17,22,9,41,40,,,UK Lotto,,gone.txt");
}

TEST_F(ShowingEntries, ChangesTheDateOfTheCurrentRow) {
    Open();
    ClickCell(2, 4);
    Find<DatePicker>(*form_, datePicker)->setDate(QDate(2005, 6, 11));
    Run(dateThisRow);
    EXPECT_EQ(Entries().Cell(1, 0), QStringLiteral("28-May-2005"));
    EXPECT_EQ(Entries().Cell(2, 0), QStringLiteral("11-Jun-2005"));
    ExpectChanges();
}

TEST_F(ShowingEntries, ChangesNoTextThatIsNoDate) {
    Open();
    Enter(2, 0, "someday");
    Run(dateThisRow);
    EXPECT_EQ(Entries().Cell(2, 0), QStringLiteral("someday"));
    ClickCell(5, 0);
    Run(dateThisRow);
    EXPECT_EQ(Row(5), ",,,,,,,,,,,");
}

TEST_F(ShowingEntries, ChangesTheDatesOfAllRowsAsFarAsDatesStandThere) {
    Open();
    Enter(3, 0, "someday");
    Run(dateAllRows);
    EXPECT_EQ(Entries().Cell(1, 0), QStringLiteral("01-Jun-2005"));
    EXPECT_EQ(Entries().Cell(2, 0), QStringLiteral("01-Jun-2005"));
    EXPECT_EQ(Entries().Cell(3, 0), QStringLiteral("someday"));
    Run(saveButton);
    EXPECT_EQ(File().substr(0, 12), "01-Jun-2005,");
}

TEST_F(ShowingEntries, NewDatesForAllRowsAreAChange) {
    Open();
    Run(dateAllRows);
    ExpectChanges();
}

TEST_F(ShowingEntries, TheCommandsRestUnderTheHourglassWhileASortRuns) {
    Open();
    for (const char* command : {sortByDate, sortByName, sortByLottery}) {
        const HourglassWatch watch(*Find<QPushButton>(*form_, checkButton), QEvent::EnabledChange);
        Run(command);
        EXPECT_EQ(watch.Events(), 2) << command;
        EXPECT_EQ(watch.UnderHourglass(), 2) << command;
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    }
}

TEST_F(ShowingEntries, SortsByDateNameAndLottery) {
    Open();
    Run(sortByDate);
    EXPECT_EQ(Players(), "Ann Tom Bea ");
    Run(sortByName);
    EXPECT_EQ(Players(), "Ann Bea Tom ");
    Run(sortByLottery);
    EXPECT_EQ(Players(), "Tom Ann Bea ");
    EXPECT_TRUE(Find<QPushButton>(*form_, checkButton)->isEnabled());
    ExpectChanges();
}

TEST_F(ShowingEntries, AnUnreadableDateEndsTheRunInTheSortByDate) {
    Open();
    Enter(3, 0, "someday");
    Run(sortByDate);
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->find("MyLottery.txt, row 3 as shown"), std::string::npos) << *failure;
    EXPECT_EQ(File(), threeEntries);
}

TEST_F(ShowingEntries, DeletesTheCurrentRowAfterMarkingIt) {
    Open();
    ClickCell(2, 4);
    test_.messages.Expect(deleteThis, Answer::Cancel);
    Run(deleteThisRow);
    EXPECT_EQ(Players(), "Tom Ann Bea ");
    EXPECT_TRUE(Entries().selectionModel()->isRowSelected(1));
    test_.messages.Expect(deleteThis);
    Run(deleteThisRow);
    EXPECT_EQ(Players(), "Tom Bea ");
    EXPECT_EQ(Row(3), ",,,,,,,,,,,");
    EXPECT_EQ(Entries().CurrentRow(), 1);
    EXPECT_EQ(Item().text(), QStringLiteral("3"));
    EXPECT_EQ(File(), threeEntries);
    ExpectChanges();
}

TEST_F(ShowingEntries, ACancelledDeletionIsNoChange) {
    Open();
    test_.messages.Expect(deleteThis, Answer::Cancel);
    Run(deleteThisRow);
    ExpectNoChanges();
}

TEST_F(ShowingEntries, ACancelledDeletionLeavesTheCurrentCellInTheEditBox) {
    Open();
    ClickCell(2, 4);
    test_.messages.Expect(deleteThis, Answer::Cancel);
    Run(deleteThisRow);
    EXPECT_EQ(Entries().CurrentRow(), 2);
    EXPECT_EQ(Entries().currentIndex().data().toString(), Item().text());
    Item().setText(QStringLiteral("33"));
    Run(enterButton);
    EXPECT_EQ(Row(2), "01-Jun-2005,4,9,15,33,30,,,6,UK Thunderball,Ann,dbase101.txt");
}

TEST_F(ShowingEntries, DeletesEntriesOfBeforeYesterday) {
    Open(
        "30 May 05,1,2,3,4,5,6,,,UK Lotto,Old,dbase100.txt\r\n"
        "31 May 05,1,2,3,4,5,6,,,UK Lotto,Yesterday,dbase100.txt\r\n"
        "28-May-2005,1,2,3,4,5,6,,,UK Lotto,Older,dbase100.txt\r\n"
        "01 Jun 05,1,2,3,4,5,6,,,UK Lotto,Today,dbase100.txt\r\n");
    test_.messages.Expect(deleteOld, Answer::Cancel);
    Run(deleteOldRows);
    EXPECT_EQ(Players(), "Old Yesterday Older Today ");
    test_.messages.Expect(deleteOld);
    Run(deleteOldRows);
    EXPECT_EQ(Players(), "Yesterday Today ");
    ExpectChanges();
}

TEST_F(ShowingEntries, DeletesAllAtOnceAndClosesWithoutAQuestion) {
    Open();
    Enter(1, 1, "33");
    test_.messages.Expect(deleteAll, Answer::Cancel);
    Run(deleteAllRows);
    EXPECT_EQ(File(), threeEntries);
    test_.messages.Expect(deleteAll);
    test_.messages.Expect(allDeleted);
    Run(deleteAllRows);
    EXPECT_FALSE(test_.folder.Exists("MyLottery.txt"));
    EXPECT_EQ(Entries().Cell(1, 0), QString());
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(ShowingEntries, DeletingAllIsContentWithAFileThatIsGone) {
    Open();
    test_.folder.Delete("MyLottery.txt");
    test_.messages.Expect(deleteAll);
    test_.messages.Expect(allDeleted);
    Run(deleteAllRows);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(ShowingEntries, SavesCellsAsTheyStand) {
    Open();
    Enter(3, 1, "33");
    Run(saveButton);
    EXPECT_EQ(File(),
              "28-May-2005,3,17,22,9,41,40,,,UK Lotto,Tom,dbase100.txt\r\n"
              "01-Jun-2005,4,9,15,27,30,,,6,UK Thunderball,Ann,dbase101.txt\r\n"
              "28 May 05,33,9,1,2,3,,,6,UK Thunderball,Bea,dbase101.txt\r\n");
    EXPECT_EQ(Entries().CurrentRow(), 1);
    EXPECT_EQ(Item().text(), QStringLiteral("3"));
    ExpectNoChanges();
}

TEST_F(ShowingEntries, WhatIsSavedIsShownAgain) {
    Open();
    Enter(1, 10, "J\xF6rg");
    Run(sortByName);
    Run(saveButton);
    const std::string saved = File();
    Open(saved);
    EXPECT_EQ(Entries().Cell(3, 10), QStringLiteral(u"J\u00F6rg"));
    Run(saveButton);
    EXPECT_EQ(File(), saved);
}

TEST_F(ShowingEntries, SavingAnEmptyTableDeletesTheFileAndStillAsks) {
    Open("28 May 05,1,2,3,4,5,6,,,UK Lotto,Ann,dbase100.txt\r\n");
    test_.messages.Expect(deleteThis);
    Run(deleteThisRow);
    Run(saveButton);
    EXPECT_FALSE(test_.folder.Exists("MyLottery.txt"));
    Run(saveButton);
    ExpectChanges();
}

TEST_F(ShowingEntries, AnEmptiedDateEndsTheTable) {
    Open();
    Enter(2, 0, " ");
    Run(saveButton);
    EXPECT_EQ(File(), "28-May-2005,3,17,22,9,41,40,,,UK Lotto,Tom,dbase100.txt\r\n");
    EXPECT_EQ(Entries().Cell(3, 10), QStringLiteral("Bea"));
    Enter(1, 0, "");
    Run(saveButton);
    EXPECT_FALSE(test_.folder.Exists("MyLottery.txt"));
    ExpectChanges();
}

TEST_F(ShowingEntries, ClosingAsksWhileChangesAreNotSaved) {
    Open();
    Enter(1, 1, "33");
    test_.messages.Expect(closing, Answer::No);
    Run(closeButton);
    EXPECT_TRUE(form_->isVisible());
    test_.messages.Expect(closing, Answer::No);
    QTest::keyClick(form_.get(), Qt::Key_Escape);
    EXPECT_TRUE(form_->isVisible());
    ExpectChanges();
    EXPECT_EQ(File(), threeEntries);
}

TEST_F(ShowingEntries, ClosingAsksNothingWithoutChanges) {
    Open();
    ExpectNoChanges();
}

TEST_F(ShowingEntries, TheColourKeyIsHiddenUntilACheck) {
    Open();
    for (const char* label : {mainKeyTitle, mainKey, extraKeyTitle, extraKey}) {
        EXPECT_FALSE(Find<QLabel>(*form_, label)->isVisible()) << label;
    }
    Run(checkButton);
    for (const char* label : {mainKeyTitle, mainKey, extraKeyTitle, extraKey}) {
        EXPECT_TRUE(Find<QLabel>(*form_, label)->isVisible()) << label;
    }
    EXPECT_EQ(Find<QLabel>(*form_, mainKey)->palette().color(QPalette::Window), yellow);
    EXPECT_EQ(Find<QLabel>(*form_, extraKey)->palette().color(QPalette::Window), lightRed);
}

TEST_F(ShowingEntries, TheCheckPaintsWhatMatches) {
    Open();
    Run(checkButton);
    const std::vector<QColor> lotto = {yellow, yellow, yellow, lightRed, yellow, white};
    for (int column = 1; column <= 6; ++column) {
        EXPECT_EQ(Entries().CellBackground(1, column), lotto[static_cast<std::size_t>(column - 1)])
            << column;
    }
    EXPECT_FALSE(Entries().CellBackground(1, 7).isValid());
    EXPECT_EQ(Entries().CellBackground(1, 8), white);
    // The draw of the second entry is still to come.
    for (int column = 0; column < 12; ++column) {
        EXPECT_FALSE(Entries().CellBackground(2, column).isValid()) << column;
    }
    EXPECT_EQ(Entries().CellBackground(3, 8), lightRed);
    EXPECT_EQ(Entries().CellColour(3, 8), QColor(160, 0, 0));
}

TEST_F(ShowingEntries, TheKeysThatGenerateElsewhereCheckHere) {
    Open();
    QTest::keyClick(&Item(), Qt::Key_F5);
    EXPECT_EQ(Entries().CellBackground(1, 1), yellow);
}

TEST_F(ShowingEntries, MatchesAreToldWithoutColoursToo) {
    Open();
    Run(checkButton);
    const std::vector<Match> lotto = {Match::Main,  Match::Main, Match::Main,
                                      Match::Extra, Match::Main, Match::None};
    for (int column = 1; column <= 6; ++column) {
        EXPECT_EQ(Entries().CellMatch(1, column), lotto[static_cast<std::size_t>(column - 1)])
            << column;
    }
    EXPECT_EQ(Entries().CellMatch(3, 8), Match::Extra);
    const auto spoken = [this](int row, int column) {
        return Entries().model()->index(row - 1, column).data(Qt::AccessibleTextRole).toString();
    };
    EXPECT_EQ(spoken(1, 1), QStringLiteral("3, matched"));
    EXPECT_EQ(spoken(3, 8), QStringLiteral("6, matched the bonus or extra ball"));
}

TEST_F(ShowingEntries, NumbersThatMatchNoLongerAreNotToldSo) {
    Open("28 May 05,3,17,22,34,41,48,,,UK Lotto,Ann,dbase100.txt\r\n");
    Run(checkButton);
    EXPECT_EQ(Entries().CellMatch(1, 1), Match::Main);
    Enter(1, 1, "4");
    Run(checkButton);
    EXPECT_EQ(Entries().CellMatch(1, 1), Match::None);
}

TEST_F(ShowingEntries, AnEmptyCellIsColouredButMatchesNothing) {
    AddLottery(test_.folder, "dbase102.txt", "UK Daily Play", "7,27,0,0,0",
               {"28 May 05,1,2,3,4,5,6,7,0"});
    Open("28 May 05,1,12,13,14,15,16,17,,UK Daily Play,Ann,dbase102.txt\r\n");
    Run(checkButton);
    EXPECT_EQ(Entries().CellBackground(1, 8), lightRed);
    EXPECT_EQ(Entries().CellMatch(1, 8), Match::None);
    EXPECT_EQ(CheckSummary(), QStringLiteral("1 entry checked. Best: 1 number."));
}

TEST_F(ShowingEntries, TheColourKeyTellsItsLooksInWordsAndInBold) {
    Open();
    EXPECT_EQ(Find<QLabel>(*form_, mainKey)->accessibleName(), QStringLiteral("yellow, bold"));
    EXPECT_EQ(Find<QLabel>(*form_, extraKey)->accessibleName(),
              QStringLiteral("light red, bold, with a ring"));
    for (const char* key : {mainKey, extraKey}) {
        EXPECT_TRUE(Find<QLabel>(*form_, key)->font().bold()) << key;
    }
}

TEST_F(ShowingEntries, OnlyTheSampleOfTheBonusHasARing) {
    Open();
    Run(checkButton);
    const auto inked = [this](const char* key) {
        const QImage image = Find<QLabel>(*form_, key)->grab().toImage();
        int dark = 0;
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, image.height() / 2)) < 100) ++dark;
        }
        return dark;
    };
    EXPECT_GT(inked(extraKey), inked(mainKey));
}

TEST_F(ShowingEntries, TheCheckSumsUpWhatItDidNotCheck) {
    Open();
    EXPECT_EQ(CheckSummary(), QString());
    Run(checkButton);
    EXPECT_EQ(CheckSummary(),
              QStringLiteral("2 of 3 entries checked; 1 has no draw in its database yet (newest: "
                             "28 May 05). Best: 4 numbers and the bonus ball."));
}

TEST_F(ShowingEntries, EveryEditOutdatesTheCheck) {
    Open();
    for (const auto& edit : Edits()) {
        Run(checkButton);
        EXPECT_NE(CheckSummary(), QStringLiteral("Changed since the check"));
        edit();
        EXPECT_EQ(CheckSummary(), QStringLiteral("Changed since the check"));
    }
}

TEST_F(ShowingEntries, AnEditBeforeAnyCheckSaysNothingOfOne) {
    Open();
    Enter(1, 1, "33");
    EXPECT_EQ(CheckSummary(), QString());
}

TEST_F(ShowingEntries, SavingDoesNotOutdateTheCheck) {
    Open();
    Run(checkButton);
    const QString summary = CheckSummary();
    Run(saveButton);
    EXPECT_EQ(CheckSummary(), summary);
}

TEST_F(ShowingEntries, SaysHowManyItSaved) {
    Open();
    Run(saveButton);
    EXPECT_EQ(Said(), QStringLiteral("3 entries saved"));
    Enter(2, 0, "");
    Run(saveButton);
    EXPECT_EQ(Said(), QStringLiteral("1 entry saved"));
    Enter(1, 0, "");
    Run(saveButton);
    EXPECT_EQ(Said(), QStringLiteral("There are no entries left to save"));
}

TEST_F(ShowingEntries, SaysHowManyItDeletedAndThatNothingIsSaved) {
    Open();
    test_.messages.Expect(deleteOld);
    Run(deleteOldRows);
    EXPECT_EQ(Said(), QStringLiteral("2 entries deleted, 1 left, not saved yet"));
    test_.messages.Expect(deleteOld);
    Run(deleteOldRows);
    EXPECT_EQ(Said(), QStringLiteral("No entries deleted, 1 left"));
    test_.messages.Expect(deleteThis);
    Run(deleteThisRow);
    EXPECT_EQ(Said(), QStringLiteral("1 entry deleted, 0 left, not saved yet"));
}

TEST_F(ShowingEntries, SaysHowManyDatesItChanged) {
    Open();
    Run(dateAllRows);
    EXPECT_EQ(Said(), QStringLiteral("3 dates changed, not saved yet"));
    Enter(1, 0, "someday");
    Run(dateThisRow);
    EXPECT_EQ(Said(), QStringLiteral("There is no date in this row"));
    Run(dateAllRows);
    EXPECT_EQ(Said(), QStringLiteral("No dates changed"));
}

TEST_F(ShowingEntries, SaysThatAnEmptyItemStaysEmpty) {
    Open();
    ClickCell(1, 7);
    Item().setText(QStringLiteral("12"));
    QTest::keyClick(&Item(), Qt::Key_Return);
    EXPECT_EQ(Said(), QStringLiteral("An empty item cannot be changed"));
}

TEST_F(ShowingEntries, ShowsWhichCellIsEditedAndWhichRowsAreInUse) {
    Open();
    EXPECT_TRUE(Entries().ShowsEditedCell());
    EXPECT_TRUE(Entries().InUse(3, 1));
    EXPECT_FALSE(Entries().InUse(4, 1));
    Enter(3, 0, "");
    EXPECT_FALSE(Entries().InUse(3, 1));
}

TEST_F(ShowingEntries, OpensWithMoreThanTenRows) {
    Open(ManyEntries(50));
    EXPECT_GE(Entries().rowAt(Entries().viewport()->height() - 1), 11);
}

TEST_F(ShowingEntries, GetsAlongWithASmallScreenAndWithLargeLetters) {
    const QFont usual = QApplication::font();
    for (const auto& [points, height] : {std::pair(9, 512), std::pair(11, 570)}) {
        QFont font = usual;
        font.setPointSize(points);
        QApplication::setFont(font);
        Open();
        EXPECT_LE(form_->minimumSizeHint().height(), height) << points;
    }
    form_.reset();
    QApplication::setFont(usual);
}

TEST_F(ShowingEntries, WhatDeletesBearsTheIconAndStandsApartFromAllElse) {
    Open();
    const auto place = [this](const char* name) {
        const auto* button = Find<QPushButton>(*form_, name);
        return QRect(button->mapTo(form_.get(), QPoint()), button->size());
    };
    const std::vector<const char*> deleting = {deleteOldRows, deleteThisRow, deleteAllRows};
    for (const char* name : deleting) {
        EXPECT_FALSE(Find<QPushButton>(*form_, name)->icon().isNull()) << name;
        for (const QPushButton* other : form_->findChildren<QPushButton*>()) {
            const std::string otherName = other->objectName().toStdString();
            if (otherName == name) continue;
            const QRect around = place(name).adjusted(-24, -16, 24, 0);
            EXPECT_FALSE(around.intersects(place(otherName.c_str()))) << name << otherName;
        }
    }
}

TEST_F(ShowingEntries, TheReportHasRoomInAHighWindow) {
    Open();
    Run(checkButton);
    form_->resize(form_->width(), 1000);
    QApplication::processEvents();
    const auto* report = Find<QPlainTextEdit>(*form_, reportBox);
    EXPECT_FALSE(report->verticalScrollBar()->isVisible());
}

TEST_F(ShowingEntries, TheReportCountsByMatchClass) {
    Open();
    Run(checkButton);
    EXPECT_EQ(Report(), QStringLiteral(" 7-match = 0 times\n 6-match = 0 times\n"
                                       " 5-match = 0 times\n 4-match = 0 times\n"
                                       " 3-match = 0 times\n 2-match = 0 times\n"
                                       " 1-match = 0 times\n 0-match = 0 times\n"
                                       "\n"
                                       " 5-match+bonus/pball = 0 times\n"
                                       " 4-match+bonus/pball = 1 times\n"
                                       " 3-match+bonus/pball = 0 times\n"
                                       " 2-match+bonus/pball = 1 times\n"
                                       " 1-match+bonus/pball = 0 times\n"
                                       " 0-match+bonus/pball = 0 times\n"));
    EXPECT_EQ(Entries().CurrentRow(), 1);
    EXPECT_EQ(form_->focusWidget(), &Item());
}

TEST_F(ShowingEntries, WithoutAnyResultTheReportIsAllZeros) {
    Open("02 Jun 05,3,17,22,34,41,48,,,UK Lotto,Ann,dbase100.txt\r\n");
    Run(checkButton);
    EXPECT_TRUE(Report().startsWith(QStringLiteral(" 7-match = 0 times\n")));
    EXPECT_FALSE(Report().contains(QStringLiteral("= 1 times")));
}

TEST_F(ShowingEntries, TheCheckSeesWhatIsNotSavedAndChangesNothing) {
    Open("28 May 05,1,17,22,34,41,48,,,UK Lotto,Ann,dbase100.txt\r\n");
    Enter(1, 1, "3");
    Run(saveButton);
    Run(checkButton);
    EXPECT_TRUE(Report().contains(QStringLiteral(" 6-match = 1 times\n")));
    Enter(1, 1, "2");
    Run(checkButton);
    EXPECT_TRUE(Report().contains(QStringLiteral(" 5-match = 1 times\n")));
    EXPECT_EQ(Entries().CellBackground(1, 1), white);
    EXPECT_EQ(File(), "28 May 05,3,17,22,34,41,48,,,UK Lotto,Ann,dbase100.txt\r\n");
    ExpectChanges();
}

TEST_F(ShowingEntries, ACheckIsNoChange) {
    Open();
    Run(checkButton);
    ExpectNoChanges();
}

TEST_F(ShowingEntries, ColoursStayAtTheirCellsThroughASort) {
    Open();
    Run(checkButton);
    Run(sortByName);
    EXPECT_EQ(Players(), "Ann Bea Tom ");
    EXPECT_EQ(Entries().CellBackground(1, 1), yellow);
    EXPECT_FALSE(Entries().CellBackground(2, 1).isValid());
}

TEST_F(ShowingEntries, CheckingTwiceCountsAfresh) {
    Open();
    Run(checkButton);
    const QString report = Report();
    Run(checkButton);
    EXPECT_EQ(Report(), report);
}

TEST_F(ShowingEntries, TheCheckReadsTheDatabaseAgain) {
    Open();
    Run(checkButton);
    AddLottery(test_.folder, "dbase101.txt", "UK Thunderball", "5,34,1,14,0",
               {"01 Jun 05,4,9,15,27,30,0,0,6"});
    Run(checkButton);
    EXPECT_EQ(Entries().CellBackground(2, 1), yellow);
}

TEST_F(ShowingEntries, TheCheckOfAnEmptyTableReportsForTheLastLottery) {
    Open("");
    test_.state.Picks = 2;
    Run(checkButton);
    EXPECT_TRUE(
        Report().endsWith(QStringLiteral("\n\n 2-match+bonus/pball = 0 times\n"
                                         " 1-match+bonus/pball = 0 times\n"
                                         " 0-match+bonus/pball = 0 times\n")));
}

TEST_F(ShowingEntries, TheCommandsRestWhileTheCheckRuns) {
    Open();
    bool looked = false;
    QTimer::singleShot(0, form_.get(), [&] {
        looked = true;
        for (const char* command :
             {closeButton, checkButton, sortByName, deleteOldRows, sortByLottery, deleteThisRow,
              dateThisRow, deleteAllRows, enterButton, sortByDate, dateAllRows, saveButton}) {
            EXPECT_FALSE(Find<QPushButton>(*form_, command)->isEnabled()) << command;
        }
        QTest::keyClick(form_.get(), Qt::Key_Escape);
        EXPECT_TRUE(form_->isVisible());
        EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    });
    Find<QPushButton>(*form_, checkButton)->click();
    EXPECT_TRUE(looked);
    EXPECT_TRUE(Find<QPushButton>(*form_, checkButton)->isEnabled());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ShowingEntries, NothingIsTakenBackUnderARunningCheck) {
    Open();
    Enter(1, 1, "5");
    bool pressed = false;
    QTimer::singleShot(0, form_.get(), [&] {
        pressed = true;
        QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(Entries().Cell(1, 1), QStringLiteral("5"));
    });
    Find<QPushButton>(*form_, checkButton)->click();
    EXPECT_TRUE(pressed);
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Entries().Cell(1, 1), QStringLiteral("3"));
}

TEST_F(ShowingEntries, PrintingLeadsBackToTheFirstNumber) {
    const Grid* printed = nullptr;
    test_.services.printEntries = [&](Form* form, Grid& entries) {
        EXPECT_EQ(form, form_.get());
        printed = &entries;
    };
    Open(ManyEntries(300));
    Entries().SetCurrentCell(200, 3);
    Entries().ScrollToRow(200);
    Run(printButton);
    EXPECT_EQ(printed, &Entries());
    EXPECT_EQ(Entries().currentIndex().row(), 0);
    EXPECT_EQ(Entries().currentIndex().column(), 1);
    EXPECT_EQ(Entries().rowAt(0), 0);
    EXPECT_EQ(Item().text(), Entries().Cell(1, 1));
}

TEST_F(ShowingEntries, PrintingRestsWithTheOtherCommandsDuringACheck) {
    test_.services.printEntries = [](Form*, Grid&) {};
    Open(ManyEntries(300));
    test_.tick = 1;
    bool looked = false;
    QTimer::singleShot(0, form_.get(), [&] {
        looked = true;
        EXPECT_FALSE(Find<QPushButton>(*form_, printButton)->isEnabled());
    });
    Find<QPushButton>(*form_, checkButton)->click();
    EXPECT_TRUE(looked);
    EXPECT_TRUE(Find<QPushButton>(*form_, printButton)->isEnabled());
}

TEST_F(ShowingEntries, WithoutPrintingItsButtonIsDisabled) {
    Open();
    EXPECT_FALSE(Find<QPushButton>(*form_, printButton)->isEnabled());
    Run(sortByName);
    EXPECT_FALSE(Find<QPushButton>(*form_, printButton)->isEnabled());
}

TEST_F(ShowingEntries, ALongCheckScrollsAlong) {
    Open(ManyEntries(300));
    test_.tick = 1;
    int furthest = 0;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, form_.get(),
                     [&] { furthest = std::max(furthest, Entries().rowAt(0) + 1); });
    watch.start(0);
    Find<QPushButton>(*form_, checkButton)->click();
    EXPECT_EQ(furthest, 300 - 6);
    EXPECT_EQ(Entries().rowAt(0), 0);
}

TEST_F(ShowingEntries, AMissingDatabaseEndsTheRun) {
    Open();
    test_.folder.Delete("dbase101.txt");
    Run(checkButton);
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->find("dbase101.txt"), std::string::npos) << *failure;
    EXPECT_EQ(File(), threeEntries);
}

TEST_F(ShowingEntries, AnUnreadableDateEndsTheRunInTheCheck) {
    Open();
    Enter(2, 0, "someday");
    Run(checkButton);
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(*failure,
              "MyLottery.txt, row 2 as shown: expected a date such as \"19-Nov-1994\", but "
              "\"someday\" stands there.");
}

TEST_F(ShowingEntries, AFullDiskEndsTheRunAtEveryByteAndTheFileStays) {
    Open();
    Enter(1, 1, "33");
    const auto before = test_.folder.Snapshot();
    const std::size_t size = before.at("MyLottery.txt").size();
    for (std::size_t bytes = 0; bytes <= size; bytes += 7) {
        test_.folder.FailAfterBytes(bytes);
        form_->show();
        Run(saveButton);
        EXPECT_TRUE(TakeFailure()) << bytes;
        ASSERT_EQ(test_.folder.Snapshot(), before) << bytes;
    }
}

TEST_F(ShowingEntries, AReadOnlyFolderEndsTheRunWhereverItWrites) {
    for (const char* command : {saveButton, deleteAllRows}) {
        test_.folder.FailAtOperation({});
        Open();
        const auto before = test_.folder.Snapshot();
        test_.folder.FailAtOperation(0);
        if (std::string(command) == deleteAllRows) test_.messages.Expect(deleteAll);
        Run(command);
        EXPECT_TRUE(TakeFailure()) << command;
        EXPECT_EQ(test_.folder.Snapshot(), before) << command;
    }
}

TEST_F(ShowingEntries, AReadOnlyFolderEndsTheRunWhereAnEmptyTableIsSaved) {
    Open("28 May 05,1,2,3,4,5,6,,,UK Lotto,Ann,dbase100.txt\r\n");
    test_.messages.Expect(deleteThis);
    Run(deleteThisRow);
    const auto before = test_.folder.Snapshot();
    test_.folder.FailAtOperation(0);
    Run(saveButton);
    EXPECT_TRUE(TakeFailure());
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(ShowingEntries, CopiesMarkedRowsWithTheirHeadings) {
    Open();
    test_.messages.Expect(deleteThis, Answer::Cancel);
    Run(deleteThisRow);
    QTest::keyClick(&Entries(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text().section(QLatin1Char('\n'), 1, 1),
              QStringLiteral("28-May-2005\t3\t17\t22\t9\t41\t40\t\t\tUK Lotto\tTom\tdbase100.txt"));
}

TEST_F(ShowingEntries, DeletingTheRowBelowAllOthersEndsTheRun) {
    Open();
    Entries().SetCurrentCell(500, 1);
    test_.messages.Expect(deleteThis);
    Run(deleteThisRow);
    EXPECT_TRUE(TakeFailure());
}

TEST_F(ShowingEntries, DeletingAnEmptyRowChangesNoEntry) {
    Open();
    Entries().SetCurrentCell(40, 1);
    test_.messages.Expect(deleteThis);
    Run(deleteThisRow);
    EXPECT_EQ(Players(), "Tom Ann Bea ");
}

TEST_F(ShowingEntries, AreKeptBeforeTheyAreDeletedOrChanged) {
    for (const char* command : {saveButton, deleteAllRows}) {
        Open();
        test_.folder.SetNow(test_.folder.Now() + std::chrono::seconds(1));
        Enter(1, 1, "33");
        if (std::string(command) == deleteAllRows) {
            test_.messages.Expect(deleteAll);
            test_.messages.Expect(allDeleted);
        }
        Run(command);
        ASSERT_FALSE(test_.folder.OldFiles().empty()) << command;
        EXPECT_EQ(test_.folder.OldFiles().rbegin()->first,
                  command == saveButton ? "Backup/Undo/2000-01-01 000001 MyLottery.txt"
                                        : "Backup/Undo/2000-01-01 000002 MyLottery.txt");
        EXPECT_EQ(test_.folder.OldFiles().rbegin()->second, threeEntries) << command;
    }
}

TEST_F(ShowingEntries, NeedNoCopyWhereTheyAreOnlySorted) {
    Open();
    Run(sortByName);
    Run(saveButton);
    EXPECT_NE(File(), threeEntries);
    EXPECT_TRUE(test_.folder.OldFiles().empty());
}

TEST_F(ShowingEntries, CountAsChangedByADateCommandThatFoundNoDate) {
    Open();
    ClickCell(4, 1);
    Run(dateThisRow);
    test_.messages.Expect(closing, Answer::No);
    Run(closeButton);
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(Row(4), ",,,,,,,,,,,");
}

TEST_F(ShowingEntries, ThatWereChangedOutsideAreReadAnewAndWhatWasTypedIsKept) {
    Open();
    Enter(1, 1, "33");
    const std::string outside = "28 May 05,4,9,1,2,3,,,6,UK Thunderball,Zoe,dbase101.txt\r\n";
    test_.folder.Write("MyLottery.txt", outside);
    test_.messages.Expect(
        {.title = QStringLiteral("Lottery Quillon World"),
         .text = QStringLiteral("MyLottery.txt has been changed by another program since it "
                                "was\r\nshown here. Nothing is saved now; the file is read "
                                "anew.\r\nWhat you had here is kept in Backup/Undo."),
         .sign = Sign::Exclamation});
    Run(saveButton);
    EXPECT_EQ(File(), outside);
    EXPECT_EQ(Players(), "Zoe ");
    ASSERT_EQ(test_.folder.OldFiles().size(), 1U);
    EXPECT_TRUE(test_.folder.OldFiles().begin()->second.starts_with("28-May-2005,33,17,"));
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Said(), QStringLiteral("There is nothing to take back"));
    EXPECT_EQ(Players(), "Zoe ");
    Run(saveButton);
    EXPECT_EQ(File(), outside);
    ExpectNoChanges();
}

TEST_F(ShowingEntries, ThatWereDeletedOutsideAreSavedAgain) {
    Open();
    Enter(1, 1, "33");
    test_.folder.Delete("MyLottery.txt");
    Run(saveButton);
    EXPECT_TRUE(File().starts_with("28-May-2005,33,17,"));
}

TEST_F(ShowingEntries, AreRescuedWhereTheyCannotBeSaved) {
    Open();
    Enter(1, 1, "33");
    test_.folder.OfferRescue();
    test_.folder.FailAfterBytes(0);
    Run(saveButton);
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->ends_with("What was to be written is kept in elsewhere/MyLottery.txt."));
    EXPECT_TRUE(test_.folder.Rescued().at("MyLottery.txt").starts_with("28-May-2005,33,17,"));
}

}  // namespace

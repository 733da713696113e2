// SPDX-License-Identifier: GPL-3.0-or-later
// Correcting and deleting draws.
#include <QPushButton>

#include "tests/databases/history_form.h"

namespace {

using DrawsHistoryEdit = HistoryForm;

const Message cannotDeleteLastLine{.title = QStringLiteral("Warning"),
                                   .text = QStringLiteral("Can't delete last line!    "),
                                   .sign = Sign::Exclamation};

TEST_F(DrawsHistoryEdit, AnEditTakesTheDrawOnWhichADragEnded) {
    Open();
    Drag(1, 3);
    ExpectMarked(3);
    EXPECT_EQ(Box(1).text(), QStringLiteral("8"));
    Click(*form_, updateButton);
    EXPECT_EQ(Row(1), "28 May 05,34,17,22,3,48,41,,9");
    EXPECT_EQ(Row(3), "21 May 05,8,9,10,11,12,13,,14");
}

TEST_F(DrawsHistoryEdit, AnEditTakesTheDrawThatTheRightButtonChose) {
    Open();
    ClickRow(3, Qt::RightButton);
    ExpectMarked(3);
    EXPECT_EQ(Box(1).text(), QStringLiteral("8"));
}

TEST_F(DrawsHistoryEdit, DeleteRemovesTheSelectedDrawWithoutAQuestion) {
    Open();
    const std::string before = Database();
    ClickRow(2);
    Click(*form_, deleteButton);
    EXPECT_EQ(Database(),
              "UK Lotto\r\n\r\n6,49,0,0,1\r\n"
              "28 May 05,34,17,22,3,48,41,0,9\r\n"
              "21 May 05,8,9,10,11,12,13,0,14\r\n");
    EXPECT_EQ(Database("temp.txt"), before);
    EXPECT_EQ(Row(2), "21 May 05,8,9,10,11,12,13,,14");
    EXPECT_EQ(Row(3), ",,,,,,,,");
    EXPECT_EQ(test_.state.Draws(2, 1), 8);
    ExpectMarked(1);
}

TEST_F(DrawsHistoryEdit, SaysWhichDrawWasDeletedUntilTheNextAction) {
    Open();
    ClickRow(2);
    Find<QDateEdit>(*form_, datePicker)->setDate(QDate(2005, 6, 1));
    Click(*form_, deleteButton);
    EXPECT_EQ(Said(), QStringLiteral("Draw of 25 May 05 deleted"));
    ClickRow(1);
    EXPECT_EQ(Said(), QString());
}

TEST_F(DrawsHistoryEdit, SaysWhichDrawWasUpdated) {
    Open();
    ClickRow(2);
    Update(QDate(2005, 5, 1));
    EXPECT_EQ(Said(), QStringLiteral("Draw of 01 May 05 updated"));
    QTest::keyClick(&Box(1), Qt::Key_Return);
    EXPECT_EQ(Said(), QStringLiteral("Draw of 28 May 05 updated"));
}

TEST_F(DrawsHistoryEdit, TheLastDrawIsNotDeleted) {
    Open();
    ChooseLottery(1);
    const auto before = test_.folder.Snapshot();
    test_.messages.Expect(cannotDeleteLastLine);
    Click(*form_, deleteButton);
    EXPECT_EQ(Said(), QString());
    EXPECT_EQ(test_.folder.Snapshot(), before);
    ExpectMarked(1);
}

TEST_F(DrawsHistoryEdit, AnUpdateOfNumbersKeepsThePlaceAndReturnsToTheFirstRow) {
    Open();
    ClickRow(2);
    Box(1).setText(QStringLiteral("45"));
    Click(*form_, updateButton);
    EXPECT_EQ(Database(),
              "UK Lotto\r\n\r\n6,49,0,0,1\r\n"
              "28 May 05,34,17,22,3,48,41,0,9\r\n"
              "25 May 05,45,2,13,24,35,1,,7\r\n"
              "21 May 05,8,9,10,11,12,13,0,14\r\n");
    EXPECT_EQ(test_.state.Draws(2, 1), 45);
    ExpectMarked(1);
}

TEST_F(DrawsHistoryEdit, APastedDrawReplacesTheNumbersFromItsBoxOn) {
    Open();
    Paste(Box(5), QStringLiteral("11\t12\t13"));
    Click(*form_, updateButton);
    EXPECT_EQ(Row(1), "28 May 05,34,17,22,3,11,12,,13");
}

TEST_F(DrawsHistoryEdit, AnUpdateOfTheDateMovesTheDraw) {
    Open();
    ClickRow(3);
    Update(QDate(2005, 6, 1));
    EXPECT_EQ(Row(1), "01 Jun 05,8,9,10,11,12,13,,14");
    Update(QDate(2005, 5, 1));
    EXPECT_EQ(Row(3), "01 May 05,8,9,10,11,12,13,,14");
}

TEST_F(DrawsHistoryEdit, AnUpdateToTheDateOfAnotherDrawGoesInFrontOfIt) {
    Open();
    Update(QDate(2005, 5, 21));
    EXPECT_EQ(Row(2), "21 May 05,34,17,22,3,48,41,,9");
    EXPECT_EQ(Row(3), "21 May 05,8,9,10,11,12,13,,14");
}

TEST_F(DrawsHistoryEdit, TheOnlyDrawCanBeUpdated) {
    Open();
    ChooseLottery(1);
    Box(8).setText(QStringLiteral("14"));
    Update(QDate(2005, 6, 1));
    EXPECT_EQ(Database("dbase101.txt"),
              "UK Thunderball\r\n\r\n5,34,1,14,0\r\n01 Jun 05,4,9,15,27,30,,,14\r\n");
    EXPECT_EQ(Database("temp.txt"), Database("dbase101.txt"));
}

TEST_F(DrawsHistoryEdit, AnUpdateChecksNoNumbers) {
    Open();
    Box(1).setText(QStringLiteral("99"));
    Box(2).clear();
    Click(*form_, updateButton);
    EXPECT_EQ(Row(1), "28 May 05,99,,22,3,48,41,,9");
}

TEST_F(DrawsHistoryEdit, AnUpdateKeepsTheNumberOfAHiddenBox) {
    OpenOn("6,49,1,0,0", {"28 May 05,1,2,3,4,5,6,0,0", "25 May 05,1,2,3,4,5,6,7,0"});
    ClickRow(2);
    EXPECT_TRUE(Box(7).isHidden());
    Box(1).setText(QStringLiteral("9"));
    Click(*form_, updateButton);
    EXPECT_EQ(Database("dbase1.txt"),
              "Mine\r\n\r\n6,49,1,0,0\r\n"
              "28 May 05,1,2,3,4,5,6,0,0\r\n25 May 05,9,2,3,4,5,6,7,\r\n");
}

TEST_F(DrawsHistoryEdit, EnterInABoxUpdatesAndElsewhereChangesNothing) {
    Open();
    const auto before = test_.folder.Snapshot();
    QTest::keyClick(&Draws(), Qt::Key_Return);
    EXPECT_EQ(test_.folder.Snapshot(), before);
    Box(1).setText(QStringLiteral("45"));
    QTest::keyClick(&Box(1), Qt::Key_Return);
    EXPECT_EQ(test_.state.Draws(1, 1), 45);
}

TEST_F(DrawsHistoryEdit, AFullDiskEndsTheRunAndLosesNoDraw) {
    Open();
    const std::string before = Database();
    for (const char* command : {deleteButton, updateButton}) {
        for (const std::size_t room : {std::size_t{0}, before.size(), before.size() + 20}) {
            test_.folder.FailAfterBytes(room);
            ClickRow(1);
            Click(*form_, command);
            EXPECT_TRUE(TakeFailure()) << command << room;
            EXPECT_EQ(Database(), before) << command << room;
        }
    }
}

Message ChangedOutsideMessage() {
    return {.title = QStringLiteral("Lottery Quillon World"),
            .text = QStringLiteral("dbase100.txt has been changed by another program since it "
                                   "was\r\nshown here. Nothing is saved now; the file is read "
                                   "anew."),
            .sign = Sign::Exclamation};
}

TEST_F(DrawsHistoryEdit, ADatabaseThatWasChangedOutsideIsReadAnewAndNotChanged) {
    for (const char* command : {deleteButton, updateButton}) {
        Open();
        ClickRow(2);
        const std::string outside =
            "UK Lotto\r\n\r\n6,49,0,0,1\r\n01 Jun 05,1,2,3,4,5,6,0,7\r\n"
            "28 May 05,34,17,22,3,48,41,0,9\r\n";
        test_.folder.Write("dbase100.txt", outside);
        test_.messages.Expect(ChangedOutsideMessage());
        Click(*form_, command);
        EXPECT_EQ(Database(), outside);
        EXPECT_EQ(Row(1), "01 Jun 05,1,2,3,4,5,6,,7");
        EXPECT_EQ(Row(3), ",,,,,,,,");
        Click(*form_, command);
        EXPECT_NE(Database(), outside) << "what is shown now is what is in the file";
        AddUkLotto(test_.folder);
    }
}

TEST_F(DrawsHistoryEdit, TheDatabaseAsItWasIsKept) {
    for (const char* command : {deleteButton, updateButton}) {
        Open();
        const std::string before = Database();
        test_.folder.SetNow(test_.folder.Now() + std::chrono::seconds(1));
        ClickRow(2);
        Click(*form_, command);
        EXPECT_EQ(test_.folder.OldFiles().rbegin()->second, before) << command;
        EXPECT_TRUE(test_.folder.OldFiles().rbegin()->first.ends_with(" dbase100.txt"));
    }
}

TEST_F(DrawsHistoryEdit, CtrlZBringsDeletedAndUpdatedDrawsBack) {
    Open();
    const std::string before = test_.folder.Read("dbase100.txt");
    ClickRow(3);
    Box(1).setText(QStringLiteral("13"));
    Click(*form_, updateButton);
    const std::string updated = test_.folder.Read("dbase100.txt");
    EXPECT_NE(updated, before);
    ClickRow(2);
    Click(*form_, deleteButton);
    EXPECT_NE(test_.folder.Read("dbase100.txt"), updated);

    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(test_.folder.Read("dbase100.txt"), updated);
    ExpectMarked(2);
    EXPECT_EQ(Find<QLabel>(*form_, "Said")->text(), QStringLiteral("Taken back: draw deleted"));
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(test_.folder.Read("dbase100.txt"), before);
    ExpectMarked(3);
}

TEST_F(DrawsHistoryEdit, CtrlZLeavesADatabaseAloneThatWasChangedOutside) {
    Open();
    ClickRow(2);
    Click(*form_, deleteButton);
    const std::string outside = test_.folder.Read("dbase100.txt") + "14 May 05,1,2,3,4,5,6,0,7\r\n";
    test_.folder.Write("dbase100.txt", outside);
    test_.messages.Expect(ChangedOutsideMessage());
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(test_.folder.Read("dbase100.txt"), outside);
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Find<QLabel>(*form_, "Said")->text(),
              QStringLiteral("There is nothing to take back"));
}

TEST_F(DrawsHistoryEdit, CtrlZKnowsNothingOfWhatCameBeforeAChangeFromOutside) {
    Open();
    ClickRow(2);
    Click(*form_, deleteButton);
    const std::string outside = test_.folder.Read("dbase100.txt") + "14 May 05,1,2,3,4,5,6,0,7\r\n";
    test_.folder.Write("dbase100.txt", outside);
    test_.messages.Expect(ChangedOutsideMessage());
    ClickRow(2);
    Click(*form_, deleteButton);
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(test_.folder.Read("dbase100.txt"), outside);
    EXPECT_EQ(Find<QLabel>(*form_, "Said")->text(),
              QStringLiteral("There is nothing to take back"));
}

TEST_F(DrawsHistoryEdit, CtrlZKnowsNothingOfTheLotteryBefore) {
    Open();
    ClickRow(2);
    Click(*form_, deleteButton);
    const std::string deleted = test_.folder.Read("dbase100.txt");
    ChooseLottery(1);
    QTest::keyClick(form_.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(test_.folder.Read("dbase100.txt"), deleted);
    EXPECT_EQ(Find<QLabel>(*form_, "Said")->text(),
              QStringLiteral("There is nothing to take back"));
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
// The two small forms that act on a whole draw database.
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QToolTip>

#include "databases/DeleteDbaseW.h"
#include "databases/OpenDbase.h"
#include "databases/new_database.h"
#include "platform/widgets/Lists.h"
#include "tests/support/form_test.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr const char* openButton = "Command2";
constexpr const char* deleteButton = "Command2";
constexpr const char* closeButton = "Command1";

const Message areYouSure{.title = QStringLiteral("Delete database"),
                         .text = QStringLiteral("  Are you sure?    \r\n"),
                         .sign = Sign::Question,
                         .buttons = Buttons::YesNo};

/// UK Lotto from 19 Nov 94 to 07 Oct 15.
std::string ManyDraws(int count) {
    std::string bytes = "UK Lotto\r\n\r\n6,49,0,0,1\r\n07 Oct 15,1,2,3,4,5,6,0,7\r\n";
    for (int draw = 3; draw <= count; ++draw) bytes += "28 May 05,1,2,3,4,5,6,0,7\r\n";
    return bytes + "19 Nov 94,1,2,3,4,5,6,0,7\r\n";
}

template <typename FormType>
class WholeFiles : public testing::Test {
  protected:
    WholeFiles() {
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
        test_.state.DbaseFile = "before.txt";
        Open();
    }

    void Open() {
        form_ = std::make_unique<FormType>(test_.program, nullptr);
        form_->Load();
        form_->show();
    }

    ListBox& Lotteries() { return *Find<ListBox>(*form_, "List1"); }

    void DoubleClick(int index) {
        const QPoint place = Lotteries().visualItemRect(Lotteries().item(index)).center();
        QTest::mouseClick(Lotteries().viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QTest::mouseDClick(Lotteries().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }

    QString Contents() { return Find<QLabel>(*form_, "ChosenDatabase")->text(); }

    TestProgram test_;
    std::unique_ptr<FormType> form_;
};

using OpeningADatabase = WholeFiles<OpenDbase>;
using DeletingADatabase = WholeFiles<DeleteDbaseW>;

TEST_F(OpeningADatabase, BearsItsWordsAndListsTheLotteriesWithNoneChosen) {
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Open lottery database"));
    EXPECT_EQ(Find<QLabel>(*form_, "Label3")->text(), QStringLiteral("Select a lottery:"));
    EXPECT_EQ(Find<QPushButton>(*form_, openButton)->text(), QStringLiteral(" Open database "));
    EXPECT_EQ(Find<QPushButton>(*form_, closeButton)->text(), QStringLiteral(" Cancel "));
    ASSERT_EQ(Lotteries().count(), 2);
    EXPECT_EQ(Lotteries().item(1)->text(), QStringLiteral("UK Thunderball"));
    EXPECT_EQ(Lotteries().Index(), -1);
}

TEST_F(OpeningADatabase, OpensTheFileInTheEditorAndCloses) {
    Lotteries().SetIndex(1);
    Click(*form_, openButton);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("dbase101.txt")});
    EXPECT_EQ(test_.state.DbaseFile, "dbase101.txt");
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(OpeningADatabase, ADoubleClickOpensAtOnce) {
    DoubleClick(0);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("dbase100.txt")});
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(OpeningADatabase, EnterOpens) {
    QTest::keyClick(&Lotteries(), Qt::Key_Down);
    QTest::keyClick(&Lotteries(), Qt::Key_Return);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("dbase100.txt")});
}

TEST_F(OpeningADatabase, LeavesTheDrawsInMemory) {
    test_.state.Draws(1, 1) = 33;
    Lotteries().SetIndex(0);
    Click(*form_, openButton);
    EXPECT_EQ(test_.state.Draws(1, 1), 33);
}

TEST_F(OpeningADatabase, WithoutASelectionEndsTheRun) {
    Click(*form_, openButton);
    EXPECT_EQ(TakeFailure(), "No lottery was chosen in the list.");
    EXPECT_TRUE(test_.pages.empty());
}

TEST_F(OpeningADatabase, EnterOpensNothingBeforeALotteryIsChosen) {
    QTest::keyClick(&Lotteries(), Qt::Key_Return);
    EXPECT_TRUE(form_->isVisible());
    EXPECT_TRUE(test_.pages.empty());
    EXPECT_FALSE(Find<QPushButton>(*form_, openButton)->isDefault());
    Lotteries().SetIndex(1);
    EXPECT_TRUE(Find<QPushButton>(*form_, openButton)->isDefault());
}

TEST_F(OpeningADatabase, TellsOfEachFileInATip) {
    const QPoint place = Lotteries().visualItemRect(Lotteries().item(1)).center();
    QHelpEvent help(QEvent::ToolTip, place, Lotteries().viewport()->mapToGlobal(place));
    QApplication::sendEvent(Lotteries().viewport(), &help);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("UK Thunderball, dbase101.txt, 1 draw, 28 May 05"));
    test_.folder.Delete("dbase101.txt");
    QApplication::sendEvent(Lotteries().viewport(), &help);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("dbase101.txt"));
}

TEST_F(OpeningADatabase, SaysWhatTheChosenFileHolds) {
    EXPECT_EQ(Contents(), QString());
    Lotteries().SetIndex(0);
    EXPECT_EQ(Contents(),
              QStringLiteral("UK Lotto, dbase100.txt, 2 draws, 25 May 05 to 28 May 05"));
    Lotteries().SetIndex(-1);
    EXPECT_EQ(Contents(), QString());
}

TEST_F(OpeningADatabase, CancelOpensNothing) {
    Lotteries().SetIndex(0);
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_TRUE(test_.pages.empty());
    EXPECT_EQ(test_.state.DbaseFile, "before.txt");
}

TEST_F(DeletingADatabase, BearsItsWordsAndListsTheLotteriesWithNoneChosen) {
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Delete lottery database"));
    EXPECT_EQ(Find<QLabel>(*form_, "Label3")->text(), QStringLiteral("Select a lottery:"));
    EXPECT_EQ(Find<QPushButton>(*form_, deleteButton)->toolTip(),
              QStringLiteral(" Delete database "));
    EXPECT_EQ(Find<QPushButton>(*form_, closeButton)->text(), QStringLiteral(" Close "));
    EXPECT_EQ(Lotteries().count(), 2);
    EXPECT_EQ(Lotteries().Index(), -1);
}

TEST_F(DeletingADatabase, WithoutASelectionDoesNothing) {
    Click(*form_, deleteButton);
    EXPECT_TRUE(form_->isVisible());
    EXPECT_EQ(test_.messages.Shown(), 0);
}

TEST_F(DeletingADatabase, SaysWhatWouldGo) {
    test_.folder.Write("dbase100.txt", ManyDraws(2065));
    AddDailyPlay(test_.folder);
    Open();
    Lotteries().SetIndex(0);
    EXPECT_EQ(Contents(),
              QStringLiteral("UK Lotto, dbase100.txt, 2,065 draws, 19 Nov 94 to 07 Oct 15"));
    Lotteries().SetIndex(1);
    EXPECT_EQ(Contents(), QStringLiteral("UK Thunderball, dbase101.txt, 1 draw, 28 May 05"));
    Lotteries().SetIndex(2);
    EXPECT_EQ(Contents(), QStringLiteral("UK Daily Play, dbase102.txt, no draws"));
}

TEST_F(DeletingADatabase, ADatabaseOfWhichLittleCanBeReadIsDeletedToo) {
    test_.folder.Write("dbase100.txt", "UK Lotto\r\n\r\n6,49,0,0,1\r\nsomeday,1\r\n");
    Lotteries().SetIndex(0);
    EXPECT_EQ(Contents(), QStringLiteral("UK Lotto, dbase100.txt, 1 draw"));
    test_.messages.Expect(areYouSure, Answer::Yes);
    Click(*form_, deleteButton);
    EXPECT_FALSE(test_.folder.Exists("dbase100.txt"));
}

TEST_F(DeletingADatabase, OfAFileThatCannotBeReadSaysItsName) {
    test_.folder.Lock("dbase100.txt");
    Lotteries().SetIndex(0);
    EXPECT_EQ(Contents(), QStringLiteral("dbase100.txt"));
}

TEST_F(DeletingADatabase, EnterOnAChosenLotteryDeletesNothing) {
    QTest::keyClick(&Lotteries(), Qt::Key_Down);
    QTest::keyClick(&Lotteries(), Qt::Key_Return);
    EXPECT_EQ(Lotteries().Index(), 0);
    EXPECT_EQ(test_.messages.Shown(), 0);
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(DeletingADatabase, DeletesTheFileAfterAQuestionAndCloses) {
    Lotteries().SetIndex(1);
    test_.messages.Expect(areYouSure, Answer::Yes);
    Click(*form_, deleteButton);
    EXPECT_FALSE(test_.folder.Exists("dbase101.txt"));
    EXPECT_TRUE(test_.folder.Exists("dbase100.txt"));
    EXPECT_EQ(test_.state.DbaseFile, "dbase101.txt");
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(DeletingADatabase, KeepsTheFileOnNo) {
    Lotteries().SetIndex(1);
    test_.messages.Expect(areYouSure, Answer::No);
    Click(*form_, deleteButton);
    EXPECT_TRUE(test_.folder.Exists("dbase101.txt"));
    EXPECT_EQ(test_.state.DbaseFile, "before.txt");
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(DeletingADatabase, ADoubleClickAsksTheSameQuestion) {
    test_.messages.Expect(areYouSure, Answer::Yes);
    DoubleClick(0);
    EXPECT_FALSE(test_.folder.Exists("dbase100.txt"));
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(DeletingADatabase, FreesItsNumberForTheNextNewOne) {
    test_.folder.Write("dbase1.txt", "First\r\n\r\n6,49,0,0,0\r\n");
    EXPECT_EQ(CreateDatabaseFile(test_.folder, "Second\r\n"), "dbase2.txt");
    test_.folder.Delete("dbase1.txt");
    EXPECT_EQ(CreateDatabaseFile(test_.folder, "Third\r\n"), "dbase1.txt");
}

TEST_F(DeletingADatabase, AFileThatCannotBeDeletedEndsTheRunAndStays) {
    Lotteries().SetIndex(0);
    const auto before = test_.folder.Snapshot();
    test_.folder.Lock("dbase100.txt");
    test_.messages.Expect(areYouSure, Answer::Yes);
    Click(*form_, deleteButton);
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->find("dbase100.txt"), std::string::npos);
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(DeletingADatabase, CloseDeletesNothing) {
    const auto before = test_.folder.Snapshot();
    Lotteries().SetIndex(0);
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(DeletingADatabase, TheDatabaseIsKept) {
    const std::string before = test_.folder.Read("dbase101.txt");
    Lotteries().SetIndex(1);
    test_.messages.Expect(areYouSure, Answer::Yes);
    Click(*form_, deleteButton);
    EXPECT_FALSE(test_.folder.Exists("dbase101.txt"));
    EXPECT_EQ(test_.folder.OldFiles(),
              (std::map<std::string, std::string>{
                  {"Backup/Undo/2000-01-01 000000 dbase101.txt", before}}));
}

}  // namespace

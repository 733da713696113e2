// SPDX-License-Identifier: GPL-3.0-or-later
// Showing draws, in draw order and ascending.
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <algorithm>

#include "tests/databases/history_form.h"
#include "tests/support/real_histories.h"

namespace {

using DrawsHistory = HistoryForm;

std::vector<std::string> ManyDraws(int count) {
    return std::vector<std::string>(static_cast<std::size_t>(count), "28 May 05,1,2,3,4,5,6,0,7");
}

TEST_F(DrawsHistory, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Lottery Draws History"));
    const std::vector<std::pair<const char*, const char*>> labels = {
        {"Label2", "Lottery draw results"},
        {"Label3", "Select a lottery:"},
        {lotteryName, "UK Lotto"},
        {"Label4",
         "Select a lottery in the list on the right to view all the draw results. The numbers can "
         "be viewed in the order they were drawn or in ascending order."}};
    for (const auto& [name, text] : labels) {
        EXPECT_EQ(Find<QLabel>(*form_, name)->text(), QString::fromLatin1(text)) << name;
    }
    const std::vector<std::pair<const char*, const char*>> captions = {
        {drawOrder, "Draw order"},     {ascendingOrder, "Ascending order"},
        {updateButton, "Update Draw"}, {deleteButton, "Delete Draw"},
        {printButton, " Print "},      {closeButton, " Close "}};
    for (const auto& [name, text] : captions) {
        EXPECT_EQ(Find<QAbstractButton>(*form_, name)->text(), QString::fromLatin1(text)) << name;
    }
    EXPECT_EQ(Find<QWidget>(*form_, updateButton)->toolTip(),
              QStringLiteral(" Update selected draw "));
    EXPECT_EQ(Find<QWidget>(*form_, deleteButton)->toolTip(),
              QStringLiteral(" Delete selected draw "));
    EXPECT_EQ(Find<QDateEdit>(*form_, datePicker)->displayFormat(), QStringLiteral("dd MMM yy"));
    EXPECT_EQ(Draws().RowCount(), 3000);
    EXPECT_EQ(Draws().ColumnCount(), 10);
}

TEST_F(DrawsHistory, ShowsTheFirstLotteryInDrawOrder) {
    Open();
    EXPECT_EQ(Row(0), "Date,Num1,Num2,Num3,Num4,Num5,Num6,,Bonus");
    EXPECT_EQ(Row(1), "28 May 05,34,17,22,3,48,41,,9");
    EXPECT_EQ(Row(2), "25-May-2005,46,2,13,24,35,1,,7");
    EXPECT_EQ(Row(4), ",,,,,,,,");
    EXPECT_EQ(Draws().CellColour(0, 8), QColor(160, 0, 0));
    EXPECT_EQ(Draws().CellColour(3, 8), QColor(160, 0, 0));
    EXPECT_TRUE(Find<QRadioButton>(*form_, drawOrder)->isChecked());
    EXPECT_TRUE(CanEdit());
    ExpectMarked(1);
}

TEST_F(DrawsHistory, ChoosingAnotherLotteryShowsItsDrawsAlone) {
    Open();
    ChooseLottery(1);
    EXPECT_EQ(Find<QLabel>(*form_, lotteryName)->text(), QStringLiteral("UK Thunderball"));
    EXPECT_EQ(Row(0), "Date,Num1,Num2,Num3,Num4,Num5,,,Pball");
    EXPECT_EQ(Row(1), "28 May 05,4,9,15,27,30,,,6");
    EXPECT_EQ(Row(2), ",,,,,,,,");
    EXPECT_FALSE(Draws().CellColour(2, 8).isValid());
    EXPECT_EQ(test_.state.Draws(1, 1), 4);
}

TEST_F(DrawsHistory, HeadsTheLastColumnPballWhereThereIsABonusBallToo) {
    OpenOn("5,34,1,14,1", {"28 May 05,1,2,3,4,5,0,0,6"});
    EXPECT_EQ(Draws().Cell(0, 8), QStringLiteral("Pball"));
}

TEST_F(DrawsHistory, WithoutBonusAndExtraBallTheLastColumnStaysEmpty) {
    OpenOn("6,49,1,0,0", {"28 May 05,1,2,3,4,5,6,0,7"});
    EXPECT_EQ(Row(0), "Date,Num1,Num2,Num3,Num4,Num5,Num6,,");
    EXPECT_EQ(Row(1), "28 May 05,1,2,3,4,5,6,,");
}

TEST_F(DrawsHistory, OnlyAOneInTheRulesMakesABonusColumn) {
    OpenOn("6,49,1,0,2", {"28 May 05,1,2,3,4,5,6,0,7"});
    EXPECT_EQ(Draws().Cell(0, 8), QString());
    EXPECT_EQ(Draws().Cell(1, 8), QString());
}

TEST_F(DrawsHistory, TheNewestDrawHeadsTheColumns) {
    OpenOn("6,49,0,0,0", {"28 May 05,1,2,3,4,5,6,0,0", "25 May 05,1,2,3,4,5,6,7,0"});
    EXPECT_EQ(Draws().Cell(0, 7), QString());
    EXPECT_EQ(Draws().Cell(2, 7), QStringLiteral("7"));
    EXPECT_TRUE(Box(7).isHidden());
}

TEST_F(DrawsHistory, AClickTakesTheDrawIntoTheBoxes) {
    Open();
    ClickRow(2);
    ExpectMarked(2);
    EXPECT_EQ(PickedDate(), QDate(2005, 5, 25));
    EXPECT_EQ(Box(1).text(), QStringLiteral("46"));
    EXPECT_EQ(Box(7).text(), QString());
    EXPECT_EQ(Box(8).text(), QStringLiteral("7"));
}

TEST_F(DrawsHistory, AClickBelowTheDrawsSelectsTheLastOne) {
    Open();
    ClickRow(9);
    ExpectMarked(3);
    EXPECT_EQ(PickedDate(), QDate(2005, 5, 21));
}

TEST_F(DrawsHistory, AClickFarBelowTheDrawsBringsTheLastOneToTheTop) {
    Open();
    ClickRow(2000);
    ExpectMarked(3);
    EXPECT_EQ(TopRow(), 3);
}

TEST_F(DrawsHistory, AClickOnADrawInViewDoesNotScroll) {
    OpenOn("6,49,0,0,1", ManyDraws(300));
    Draws().SetTopRow(100);
    ClickRow(105);
    ExpectMarked(105);
    EXPECT_EQ(TopRow(), 100);
}

TEST_F(DrawsHistory, AChoiceOfALotteryScrollsToTheNewestDraw) {
    OpenOn("6,49,0,0,1", ManyDraws(300));
    Draws().SetTopRow(100);
    ChooseLottery(1);
    EXPECT_EQ(TopRow(), 1);
}

TEST_F(DrawsHistory, TheArrowKeysMoveFromDrawToDraw) {
    Open();
    QTest::keyClick(&Draws(), Qt::Key_Down);
    ExpectMarked(2);
    EXPECT_EQ(Box(1).text(), QStringLiteral("46"));
    QTest::keyClick(&Draws(), Qt::Key_Down);
    QTest::keyClick(&Draws(), Qt::Key_Down);
    ExpectMarked(3);
    QTest::keyClick(&Draws(), Qt::Key_Up);
    ExpectMarked(2);
}

TEST_F(DrawsHistory, OffersTheBoxesThatTheNewestDrawFills) {
    Open();
    std::vector<int> boxes;
    for (int index = 1; index <= 8; ++index) {
        if (!Box(index).isHidden()) boxes.push_back(index);
    }
    EXPECT_EQ(boxes, (std::vector<int>{1, 2, 3, 4, 5, 6, 8}));
}

TEST_F(DrawsHistory, EachBoxStandsInTheMiddleUnderItsColumn) {
    Open();
    for (const int column : {1, 6, 8}) {
        const QPoint corner(Draws().columnViewportPosition(column), 0);
        const int left = Draws().viewport()->mapTo(form_.get(), corner).x();
        const int right = left + Draws().columnWidth(column);
        const int boxLeft = Box(column).mapTo(form_.get(), QPoint()).x();
        EXPECT_GT(boxLeft, left) << column;
        EXPECT_EQ(boxLeft - left, right - (boxLeft + Box(column).width())) << column;
    }
}

TEST_F(DrawsHistory, ItsColumnsHoldNineZerosAndTheDateFourteen) {
    Open();
    const QFontMetrics metrics = Draws().fontMetrics();
    int columns = 0;
    for (int column = 0; column <= 8; ++column) {
        const int zeros = column == 0 ? 14 : 9;
        EXPECT_EQ(Draws().columnWidth(column),
                  metrics.horizontalAdvance(QString(zeros, QLatin1Char('0'))));
        columns += Draws().columnWidth(column);
    }
    const int scrollBar = Draws().style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    EXPECT_EQ(Draws().width(), columns + scrollBar + 6);
}

TEST_F(DrawsHistory, ALongNameOfALotteryDoesNotPushTheListAway) {
    Open();
    const int width = form_->sizeHint().width();
    AddLottery(test_.folder, "dbase1.txt", std::string(200, 'W'), "6,49,0,0,0",
               {"28 May 05,1,2,3,4,5,6,0,0"});
    Open();
    EXPECT_EQ(Find<QLabel>(*form_, lotteryName)->text().size(), 200);
    EXPECT_EQ(form_->sizeHint().width(), width);
    EXPECT_LE(form_->minimumSizeHint().width(), width);
}

TEST_F(DrawsHistory, BoxesDropEveryKeyButDigitsAndBackspace) {
    Open();
    Box(1).clear();
    QTest::keyClicks(&Box(1), QStringLiteral("1a-4.x,"));
    EXPECT_EQ(Box(1).text(), QStringLiteral("14"));
}

TEST_F(DrawsHistory, AscendingOrderSortsTheMainNumbersAndBarsEdits) {
    Open();
    ShowAscending();
    EXPECT_EQ(Row(1), "28 May 05,3,17,22,34,41,48,,9");
    EXPECT_EQ(Row(2), "25-May-2005,1,2,13,24,35,46,,7");
    EXPECT_FALSE(CanEdit());
    EXPECT_EQ(test_.state.Draws(1, 1), 34);
}

TEST_F(DrawsHistory, AscendingOrderTwiceInARowDoesNothingTheSecondTime) {
    Open();
    ShowAscending();
    Draws().SetCell(1, 1, QStringLiteral("mark"));
    ShowAscending();
    EXPECT_EQ(Draws().Cell(1, 1), QStringLiteral("mark"));
}

TEST_F(DrawsHistory, AscendingOrderOfHotPicksLeavesTheFifthAndSixthBall) {
    OpenOn("4,49,0,0,0", {"28 May 05,40,30,20,10,5,3,0,0"});
    ShowAscending();
    EXPECT_EQ(Row(1), "28 May 05,10,20,30,40,5,3,,");
}

TEST_F(DrawsHistory, DrawOrderComesBackWithTheFirstDrawSelected) {
    Open();
    ShowAscending();
    ClickRow(3);
    ShowInDrawOrder();
    EXPECT_EQ(Row(1), "28 May 05,34,17,22,3,48,41,,9");
    EXPECT_EQ(Row(2), "25-May-2005,46,2,13,24,35,1,,7");
    EXPECT_TRUE(CanEdit());
    ExpectMarked(1);
    EXPECT_EQ(Box(1).text(), QStringLiteral("34"));
}

TEST_F(DrawsHistory, AscendingOrderComesBackAfterDrawOrder) {
    Open();
    ShowAscending();
    ShowInDrawOrder();
    ShowAscending();
    EXPECT_EQ(Row(1), "28 May 05,3,17,22,34,41,48,,9");
    EXPECT_FALSE(CanEdit());
}

TEST_F(DrawsHistory, DrawOrderShowsTheEighthNumberEvenWhereTheLotteryHasNone) {
    OpenOn("6,49,1,0,0", {"28 May 05,6,5,4,3,2,1,0,7"});
    ShowAscending();
    ShowInDrawOrder();
    EXPECT_EQ(Row(1), "28 May 05,6,5,4,3,2,1,,7");
    EXPECT_FALSE(Draws().CellColour(1, 8).isValid());
}

TEST_F(DrawsHistory, DrawOrderWritesNothingWhereADrawHasNoNumber) {
    OpenOn("6,49,1,0,0", {"28 May 05,9,8,7,6,5,0,0,0"});
    ShowAscending();
    EXPECT_EQ(Row(1), "28 May 05,0,5,6,7,8,9,,");
    ShowInDrawOrder();
    EXPECT_EQ(Row(1), "28 May 05,9,8,7,6,5,9,,");
}

TEST_F(DrawsHistory, EveryChoiceOfALotteryReturnsToDrawOrder) {
    Open();
    ShowAscending();
    ChooseLottery(1);
    EXPECT_TRUE(Find<QRadioButton>(*form_, drawOrder)->isChecked());
    EXPECT_FALSE(Find<QRadioButton>(*form_, ascendingOrder)->isChecked());
    EXPECT_TRUE(CanEdit());
}

TEST_F(DrawsHistory, AChoiceInAscendingOrderShowsTheColumnsOfTheNewLottery) {
    OpenOn("6,49,1,0,0", {"28 May 05,6,5,4,3,2,1,0,7"});
    ChooseLottery(1);
    ShowAscending();
    ChooseLottery(0);
    EXPECT_EQ(Row(0), "Date,Num1,Num2,Num3,Num4,Num5,Num6,,");
    EXPECT_EQ(Row(1), "28 May 05,6,5,4,3,2,1,,");
}

TEST_F(DrawsHistory, PrintIsDisabledUntilThereIsPrinting) {
    Open();
    EXPECT_FALSE(Find<QPushButton>(*form_, printButton)->isEnabled());
}

TEST_F(DrawsHistory, PrintTakesTheGridAndReturnsToTheFirstRow) {
    const Grid* printed = nullptr;
    test_.services.printDraws = [&](QWidget*, Grid& grid) { printed = &grid; };
    Open();
    ClickRow(3);
    Click(*form_, printButton);
    EXPECT_EQ(printed, &Draws());
    ExpectMarked(1);
}

TEST_F(DrawsHistory, WithoutALotterySaysSoAndClosesWhenTheTimerTicks) {
    for (const std::string& file : test_.folder.Find("dbase*.txt")) test_.folder.Delete(file);
    test_.messages.Expect({.title = QStringLiteral("Error!"),
                           .text = QStringLiteral("No lotteries to display!    "),
                           .sign = Sign::Exclamation});
    Open();
    EXPECT_TRUE(form_->isVisible());
    auto* timer = form_->findChild<QTimer*>(QLatin1String(closingTimer));
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 1000);
    QTimerEvent tick(timer->timerId());
    QApplication::sendEvent(timer, &tick);
    EXPECT_FALSE(timer->isActive());
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(DrawsHistory, WithLotteriesTheTimerRests) {
    Open();
    EXPECT_FALSE(form_->findChild<QTimer*>(QLatin1String(closingTimer))->isActive());
}

TEST_F(DrawsHistory, ADatabaseWithoutDrawsEndsTheRun) {
    AddDailyPlay(test_.folder);
    Open();
    const auto before = test_.folder.Snapshot();
    QTest::keyClick(Find<ListBox>(*form_, lotteryList), Qt::Key_End);
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->find("dbase102.txt, line 4"), std::string::npos) << *failure;
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(DrawsHistory, ADateThatCannotBeReadEndsTheRunWhenItsDrawIsChosen) {
    OpenOn("5,49,0,0,0", {"28 May 05,1,2,3,4,5,,,", "someday,1,2,3,4,5,,,"});
    ClickRow(2);
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->find("dbase1.txt, line 5"), std::string::npos) << *failure;
    EXPECT_NE(failure->find("someday"), std::string::npos);
}

TEST_F(DrawsHistory, ShowsAsManyDrawsAsEveryRoutineCanWalk) {
    OpenOn("6,49,0,0,1", ManyDraws(2999));
    EXPECT_EQ(Row(2999), "28 May 05,1,2,3,4,5,6,,7");
    ShowAscending();
    ClickRow(2999);
    ExpectMarked(2999);
}

TEST_F(DrawsHistory, OneDrawMoreEndsTheRun) {
    AddLottery(test_.folder, "dbase999.txt", "Full", "6,49,0,0,1", ManyDraws(3000));
    Open();
    QTest::keyClick(Find<ListBox>(*form_, lotteryList), Qt::Key_End);
    EXPECT_TRUE(TakeFailure());
}

TEST_F(DrawsHistory, ALockedDatabaseEndsTheRun) {
    Open();
    test_.folder.Lock("dbase101.txt");
    QTest::keyClick(Find<ListBox>(*form_, lotteryList), Qt::Key_Down);
    EXPECT_TRUE(TakeFailure());
}

TEST_F(DrawsHistory, RealHistoriesStandInTheGridAsInTheirFiles) {
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no real histories on this machine";
    test_.today = std::chrono::year(2026) / 8 / 1;
    Open();
    const auto* lotteries = Find<ListBox>(*form_, lotteryList);
    for (int lottery = 0; lottery < lotteries->count(); ++lottery) {
        ChooseLottery(lottery);
        const std::string bytes = Database(test_.state.DbaseFile.c_str());
        int row = 1;
        while (row < 3000 && !Draws().Cell(row, 0).isEmpty()) ++row;
        EXPECT_EQ(row - 1, std::count(bytes.begin(), bytes.end(), '\n') - 3) << lottery;
        EXPECT_EQ(test_.state.Draws(row - 1, 1), Draws().Cell(row - 1, 1).toInt());
    }
}

TEST_F(DrawsHistory, SetsTheDeletingButtonApart) {
    Open();
    const auto* update = Find<QPushButton>(*form_, updateButton);
    const auto* deleteDraw = Find<QPushButton>(*form_, deleteButton);
    EXPECT_FALSE(deleteDraw->icon().isNull());
    EXPECT_GE(deleteDraw->x() - update->geometry().right(), 24);
}

}  // namespace

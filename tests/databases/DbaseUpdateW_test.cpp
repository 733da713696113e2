// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/DbaseUpdateW.h"

#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/failure.h"
#include "platform/widgets/Lists.h"
#include "tests/support/form_test.h"
#include "tests/support/sample_lotteries.h"

namespace {

constexpr const char* lotteryList = "List1";
constexpr const char* datePicker = "DTPicker1";
constexpr const char* lastUpdate = "Label13";
constexpr const char* lastBoxTitle = "Label7";
constexpr const char* saveButton = "Command1";
constexpr const char* webSiteButton = "Command2";
constexpr const char* closeButton = "CancelButton";

const Message problemWithTheInput{
    .title = QStringLiteral("Error"),
    .text = QStringLiteral(
        " There was a problem with the input.  \r\n Please check it and try again.  \r\n"),
    .sign = Sign::Information};

class UpdatingADatabase : public testing::Test {
  protected:
    UpdatingADatabase() {
        AddUkLotto(test_.folder);
        AddThunderball(test_.folder);
    }

    void Open() {
        form_ = std::make_unique<DbaseUpdateW>(test_.program, nullptr);
        form_->Load();
        form_->show();
    }

    QString Text(const char* label) { return Find<QLabel>(*form_, label)->text(); }

    QLineEdit& Box(int index) {
        return *Find<QLineEdit>(*form_, ("Text1(" + std::to_string(index) + ")").c_str());
    }

    std::vector<int> VisibleBoxes() {
        std::vector<int> boxes;
        for (int index = 0; index <= 7; ++index) {
            if (!Box(index).isHidden()) boxes.push_back(index);
        }
        return boxes;
    }

    void ChooseLottery(int index) { Find<ListBox>(*form_, lotteryList)->SetIndex(index); }

    void Save(const std::vector<QString>& numbers, const QDate& date) {
        int index = 0;
        for (const QString& number : numbers) Box(index++).setText(number);
        Find<QDateEdit>(*form_, datePicker)->setDate(date);
        Click(*form_, saveButton);
    }

    static std::vector<QString> OneToSix() {
        return {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"),
                QStringLiteral("4"), QStringLiteral("5"), QStringLiteral("6")};
    }

    TestProgram test_;
    std::unique_ptr<DbaseUpdateW> form_;
};

TEST_F(UpdatingADatabase, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Update lottery databases"));
    EXPECT_EQ(Text("Label5"), QStringLiteral("Update lottery draws"));
    EXPECT_EQ(Text("Label11"),
              QStringLiteral("Draw results are stored by date and it is very important to set it "
                             "correctly. You can enter a draw for any date and it will be "
                             "inserted in the right place."));
    EXPECT_EQ(Text("Label8"), QStringLiteral("Select Lottery:"));
    EXPECT_EQ(Text("Label4"), QStringLiteral("Select Date:"));
    EXPECT_EQ(Text("Label6"), QStringLiteral("Enter lottery draw result:"));
    EXPECT_EQ(Find<QPushButton>(*form_, saveButton)->text(),
              QStringLiteral(" Save lottery draw result "));
    EXPECT_EQ(Find<QPushButton>(*form_, webSiteButton)->text(), QStringLiteral("Go to website"));
    EXPECT_EQ(Find<QPushButton>(*form_, webSiteButton)->toolTip(),
              QStringLiteral(" Start Intenet Explorer "));
    EXPECT_EQ(Find<QPushButton>(*form_, closeButton)->text(), QStringLiteral(" Close "));
    EXPECT_EQ(Find<QDateEdit>(*form_, datePicker)->displayFormat(),
              QStringLiteral("ddd d MMM yyyy"));
    EXPECT_EQ(Find<QDateEdit>(*form_, datePicker)->date(), QDate(2005, 6, 1));
}

TEST_F(UpdatingADatabase, OpensOnTheFirstLotteryAndItsNewestDraw) {
    Open();
    EXPECT_EQ(test_.state.LotteryName, "UK Lotto");
    EXPECT_EQ(Text(lastUpdate), QStringLiteral("Last update was\r\n28 May 05"));
    EXPECT_EQ(Text(lastBoxTitle), QStringLiteral("Bonus"));
    EXPECT_EQ(VisibleBoxes(), (std::vector<int>{0, 1, 2, 3, 4, 5, 7}));
}

TEST_F(UpdatingADatabase, OffersTheBoxesThatTheNewestDrawFills) {
    Open();
    Box(0).setText(QStringLiteral("9"));
    ChooseLottery(1);
    EXPECT_EQ(VisibleBoxes(), (std::vector<int>{0, 1, 2, 3, 4, 7}));
    EXPECT_EQ(Box(0).text(), QString());
    EXPECT_EQ(Text(lastBoxTitle), QStringLiteral("Powerball"));
}

TEST_F(UpdatingADatabase, ShowsPowerballWhereALotteryHasABonusBallToo) {
    AddLottery(test_.folder, "dbase1.txt", "Both", "5,49,0,14,1", {"28 May 05,1,2,3,4,5,,,6"});
    Open();
    EXPECT_EQ(Text(lastBoxTitle), QStringLiteral("Powerball"));
}

TEST_F(UpdatingADatabase, TitlesNothingWithoutBonusAndExtraBall) {
    AddLottery(test_.folder, "dbase1.txt", "Plain", "5,49,1,0,0", {"28-May-2005,1,2,3,4,5,,,"});
    Open();
    ChooseLottery(1);
    EXPECT_EQ(Text(lastBoxTitle), QStringLiteral("Bonus"));
    ChooseLottery(0);
    EXPECT_EQ(Text(lastBoxTitle), QString());
    EXPECT_EQ(Text(lastUpdate), QStringLiteral("Last update was\r\n28-May-2005"));
    EXPECT_EQ(VisibleBoxes(), (std::vector<int>{0, 1, 2, 3, 4}));
}

TEST_F(UpdatingADatabase, LeavesTheDrawsInMemoryAtChoosingAndSaving) {
    test_.state.Draws(1, 1) = 33;
    Open();
    Save(OneToSix(), QDate(2005, 6, 1));
    ChooseLottery(1);
    EXPECT_EQ(test_.state.MaxPball, 14);
    EXPECT_EQ(test_.state.Draws(1, 1), 33);
}

TEST_F(UpdatingADatabase, BoxesDropEveryKeyButDigitsAndBackspace) {
    Open();
    QTest::keyClicks(&Box(7), QStringLiteral("1a-4.x,"));
    QTest::keyClick(&Box(7), Qt::Key_Backspace);
    EXPECT_EQ(Box(7).text(), QStringLiteral("1"));
}

TEST_F(UpdatingADatabase, DealsAPastedDrawToTheBoxesOfTheLottery) {
    Open();
    Paste(Box(0), QStringLiteral("7, 14, 21, 28, 35, 42, 3"));
    EXPECT_EQ(Box(5).text(), QStringLiteral("42"));
    EXPECT_EQ(Box(6).text(), QString());
    EXPECT_EQ(Box(7).text(), QStringLiteral("3"));
}

TEST_F(UpdatingADatabase, SavesTheNewestDrawInFrontOfTheOthers) {
    Open();
    const std::string before = test_.folder.Read("dbase100.txt");
    Box(7).setText(QStringLiteral("7"));
    Save(OneToSix(), QDate(2005, 6, 1));
    EXPECT_EQ(test_.folder.Read("dbase100.txt"),
              "UK Lotto\r\n\r\n6,49,0,0,1\r\n"
              "01 Jun 05,1,2,3,4,5,6,,7\r\n"
              "28 May 05,3,17,22,34,41,48,0,9\r\n"
              "25 May 05,1,2,13,24,35,46,0,7\r\n");
    EXPECT_EQ(test_.folder.Read("temp.txt"), before);
}

TEST_F(UpdatingADatabase, SavesADrawOfAnyDateAtItsPlace) {
    Open();
    Save(OneToSix(), QDate(2005, 5, 26));
    Save(OneToSix(), QDate(2005, 5, 25));
    Save(OneToSix(), QDate(2005, 5, 1));
    EXPECT_EQ(test_.folder.Read("dbase100.txt"),
              "UK Lotto\r\n\r\n6,49,0,0,1\r\n"
              "28 May 05,3,17,22,34,41,48,0,9\r\n"
              "26 May 05,1,2,3,4,5,6,,\r\n"
              "25 May 05,1,2,3,4,5,6,,\r\n"
              "25 May 05,1,2,13,24,35,46,0,7\r\n"
              "01 May 05,1,2,3,4,5,6,,\r\n");
}

TEST_F(UpdatingADatabase, AfterASaveShowsTheDateAloneWithEmptyBoxesAndStaysOpen) {
    Open();
    Box(7).setText(QStringLiteral("7"));
    Save(OneToSix(), QDate(2005, 5, 26));
    EXPECT_EQ(Text(lastUpdate), QStringLiteral("26 May 05"));
    EXPECT_EQ(Find<QDateEdit>(*form_, datePicker)->date(), QDate(2005, 5, 26));
    for (int index = 0; index <= 7; ++index) EXPECT_EQ(Box(index).text(), QString());
    EXPECT_EQ(Find<ListBox>(*form_, lotteryList)->Index(), 0);
    EXPECT_TRUE(form_->isVisible());
}

TEST_F(UpdatingADatabase, SaysWhatASaveStored) {
    Open();
    Box(7).setText(QStringLiteral("7"));
    Save(OneToSix(), QDate(2005, 5, 26));
    EXPECT_EQ(Text("Said"), QStringLiteral("Draw of 26 May 05 saved: 1, 2, 3, 4, 5, 6, Bonus 7"));
    QTest::keyClicks(&Box(0), QStringLiteral("1"));
    EXPECT_EQ(Text("Said"), QString());
}

TEST_F(UpdatingADatabase, SaysAfterEnterInABoxToo) {
    Open();
    for (int index = 0; index <= 5; ++index) Box(index).setText(QStringLiteral("8"));
    Box(5).setFocus();
    QTest::keyClick(&Box(5), Qt::Key_Return);
    EXPECT_EQ(Text("Said"), QStringLiteral("Draw of 01 Jun 05 saved: 8, 8, 8, 8, 8, 8"));
}

TEST_F(UpdatingADatabase, ASaveLeadsBackToTheFirstBoxAndMovesNone) {
    Open();
    QApplication::processEvents();
    const QPoint before = Box(0).mapTo(form_.get(), QPoint());
    Box(5).setFocus();
    Save(OneToSix(), QDate(2005, 5, 26));
    QApplication::processEvents();
    EXPECT_EQ(form_->focusWidget(), &Box(0));
    EXPECT_EQ(Box(0).mapTo(form_.get(), QPoint()), before);
}

TEST_F(UpdatingADatabase, ShowsTheThreeNewestDraws) {
    Open();
    EXPECT_EQ(Text("NewestDraws"),
              QStringLiteral("Newest draws:\n28 May 05:  3, 17, 22, 34, 41, 48, Bonus 9\n"
                             "25 May 05:  1, 2, 13, 24, 35, 46, Bonus 7"));
    for (const int day : {1, 2}) Save(OneToSix(), QDate(2005, 6, day));
    EXPECT_EQ(Text("NewestDraws"), QStringLiteral("Newest draws:\n02 Jun 05:  1, 2, 3, 4, 5, 6\n"
                                                  "01 Jun 05:  1, 2, 3, 4, 5, 6\n"
                                                  "28 May 05:  3, 17, 22, 34, 41, 48, Bonus 9"));
    ChooseLottery(1);
    EXPECT_EQ(Text("NewestDraws"),
              QStringLiteral("Newest draws:\n28 May 05:  4, 9, 15, 27, 30, Powerball 6"));
}

TEST_F(UpdatingADatabase, SaysThatADateIsTakenAndSavesAllTheSame) {
    const auto pick = [this](const QDate& date) {
        Find<QDateEdit>(*form_, datePicker)->setDate(date);
        return Text("TakenDate");
    };
    Open();
    const QString taken = QStringLiteral("There is a draw of this date already");
    EXPECT_EQ(Text("TakenDate"), QString());
    EXPECT_EQ(pick(QDate(2005, 5, 25)), taken);
    ChooseLottery(1);
    EXPECT_EQ(Text("TakenDate"), QString()) << "the other lottery has no draw of that date";
    ChooseLottery(0);
    EXPECT_EQ(Text("TakenDate"), taken);
    Save(OneToSix(), QDate(2005, 5, 25));
    EXPECT_EQ(Text(lastUpdate), QStringLiteral("25 May 05"));
    EXPECT_EQ(pick(QDate(2005, 5, 26)), QString());
}

TEST_F(UpdatingADatabase, ALongDateTextMakesTheFormNoWider) {
    Open();
    const int width = form_->sizeHint().width();
    AddLottery(test_.folder, "dbase1.txt", "Odd", "5,49,0,0,0",
               {std::string(300, '5') + ",1,2,3,4,5,,,"});
    Open();
    EXPECT_EQ(Text(lastUpdate).size(), 317);
    EXPECT_LE(form_->sizeHint().width(), width);
    EXPECT_LE(form_->minimumSizeHint().width(), width);
}

TEST_F(UpdatingADatabase, ARefusalLeadsToTheFirstWrongBox) {
    Open();
    auto numbers = OneToSix();
    numbers[2] = QStringLiteral("50");
    test_.messages.Expect(problemWithTheInput);
    Save(numbers, QDate(2005, 6, 1));
    EXPECT_EQ(form_->focusWidget(), &Box(2));
}

TEST_F(UpdatingADatabase, RefusesANumberOutsideTheFieldAndWritesNothing) {
    Open();
    const auto before = test_.folder.Snapshot();
    for (const char* bad : {"0", "50", ""}) {
        auto numbers = OneToSix();
        numbers.back() = QString::fromLatin1(bad);
        test_.messages.Expect(problemWithTheInput);
        Save(numbers, QDate(2005, 6, 1));
        EXPECT_EQ(Box(0).text(), QStringLiteral("1"));
        EXPECT_EQ(test_.folder.Snapshot(), before);
    }
}

TEST_F(UpdatingADatabase, TakesTheHighestNumberRepeatsAndAnyBonus) {
    Open();
    Box(7).setText(QStringLiteral("99"));
    Save(std::vector<QString>(6, QStringLiteral("49")), QDate(2005, 6, 1));
    EXPECT_NE(test_.folder.Read("dbase100.txt").find("01 Jun 05,49,49,49,49,49,49,,99\r\n"),
              std::string::npos);
}

TEST_F(UpdatingADatabase, EnterSaves) {
    Open();
    for (int index = 0; index <= 5; ++index) Box(index).setText(QStringLiteral("8"));
    QTest::keyClick(&Box(5), Qt::Key_Return);
    EXPECT_EQ(Text(lastUpdate), QStringLiteral("01 Jun 05"));
}

TEST_F(UpdatingADatabase, WritesTheTextsAsTheyStand) {
    Open();
    Save({QStringLiteral("007"), QStringLiteral(" 2 "), QStringLiteral("3"), QStringLiteral("4"),
          QStringLiteral("5"), QStringLiteral("06")},
         QDate(2005, 6, 1));
    EXPECT_NE(test_.folder.Read("dbase100.txt").find("01 Jun 05,007, 2 ,3,4,5,06,,\r\n"),
              std::string::npos);
}

TEST_F(UpdatingADatabase, ChecksOnlyFourNumbersOfHotPicks) {
    AddLottery(test_.folder, "dbase1.txt", "Hot Picks", "4,49,0,0,0",
               {"28 May 05,1,2,3,4,5,6,0,0"});
    Open();
    auto numbers = OneToSix();
    numbers[4] = QStringLiteral("88");
    numbers[5].clear();
    Save(numbers, QDate(2005, 6, 1));
    EXPECT_NE(test_.folder.Read("dbase1.txt").find("01 Jun 05,1,2,3,4,88,,,\r\n"),
              std::string::npos);
}

TEST_F(UpdatingADatabase, OpensTheWebsiteOfTheLottery) {
    Open();
    test_.state.LotteryURL = "http://www.lotto.example";
    Click(*form_, webSiteButton);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("http://www.lotto.example")});
}

TEST_F(UpdatingADatabase, TheButtonOfTheWebsiteShowsWhereItLeads) {
    AddLottery(test_.folder, "dbase1.txt", "Homeless", "6,49,0,0,0", {"28 May 05,1,2,3,4,5,6,0,0"});
    test_.folder.Write("dbase100.txt",
                       "UK Lotto\r\nhttp://www.lotto.example\r\n6,49,0,0,1\r\n"
                       "28 May 05,1,2,3,4,5,6,0,7\r\n");
    Open();
    const auto* button = Find<QPushButton>(*form_, webSiteButton);
    EXPECT_EQ(button->accessibleDescription(), QStringLiteral("Start Intenet Explorer"));
    Find<ListBox>(*form_, "List1")->SetIndex(1);
    EXPECT_EQ(button->accessibleDescription(),
              QStringLiteral("Start Intenet Explorer http://www.lotto.example"));
    EXPECT_EQ(button->toolTip(), QStringLiteral(" Start Intenet Explorer "));
}

TEST_F(UpdatingADatabase, CloseAsksNothing) {
    Open();
    Box(0).setText(QStringLiteral("1"));
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(UpdatingADatabase, WithoutAnyLotteryEndsTheRun) {
    for (const std::string& file : test_.folder.Find("dbase*.txt")) test_.folder.Delete(file);
    EXPECT_THROW(Open(), Failure);
}

TEST_F(UpdatingADatabase, ADatabaseWithoutDrawsEndsTheRunWhenChosenAndStaysAsItWas) {
    AddDailyPlay(test_.folder);
    Open();
    const auto before = test_.folder.Snapshot();
    QTest::keyClick(Find<ListBox>(*form_, lotteryList), Qt::Key_End);
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->find("dbase102.txt, line 4"), std::string::npos);
    EXPECT_EQ(test_.folder.Snapshot(), before);
}

TEST_F(UpdatingADatabase, AnUnreadableDateEndsTheRunWithTheDatabaseUntouched) {
    AddLottery(test_.folder, "dbase1.txt", "Odd", "5,49,0,0,0", {"someday,1,2,3,4,5,,,"});
    Open();
    const std::string before = test_.folder.Read("dbase1.txt");
    Save(OneToSix(), QDate(2005, 6, 1));
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->find("dbase1.txt, line 4"), std::string::npos);
    EXPECT_NE(failure->find("someday"), std::string::npos);
    EXPECT_EQ(test_.folder.Read("dbase1.txt"), before);
}

TEST_F(UpdatingADatabase, MoreNumbersThanADrawHasEndTheRun) {
    AddLottery(test_.folder, "dbase1.txt", "Nine", "9,49,0,0,0", {"28 May 05,1,2,3,4,5,6,7,8"});
    Open();
    Click(*form_, saveButton);
    EXPECT_TRUE(TakeFailure());
}

TEST_F(UpdatingADatabase, AFullDiskEndsTheRunAndLosesNoDraw) {
    Open();
    const std::string before = test_.folder.Read("dbase100.txt");
    for (const std::size_t room : {std::size_t{0}, before.size(), 2 * before.size()}) {
        test_.folder.FailAfterBytes(room);
        Save(OneToSix(), QDate(2005, 6, 1));
        EXPECT_TRUE(TakeFailure()) << room;
        EXPECT_EQ(test_.folder.Read("dbase100.txt"), before) << room;
    }
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/WhatIf.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "platform/widgets/Grid.h"
#include "tests/analysis/analysis_form.h"
#include "tests/support/hourglass_watch.h"

namespace {

constexpr auto lotteryList = "List1";
constexpr auto extraBallTitle = "Label2";
constexpr auto addButton = "Command2";
constexpr auto deleteButton = "Command4";
constexpr auto checkButton = "Command3";
constexpr auto closeButton = "Command1";

const Message loadQuestion{.title = QStringLiteral("What if?"),
                           .text = QStringLiteral("Load saved draws?    "),
                           .sign = Sign::Question,
                           .buttons = Buttons::YesNo};

const Message problemWithTheInput{
    .title = QStringLiteral("Error"),
    .text = QStringLiteral(
        " There was a problem with the input.  \r\n Please check it and try again.  \r\n"),
    .sign = Sign::Information};

const Message selectALottery{.title = QStringLiteral("Error!"),
                             .text = QStringLiteral("Select a lottery first!    "),
                             .sign = Sign::Exclamation};

constexpr auto savedEntries =
    "01-Jun-2005,3,17,22,34,41,48,,,UK Lotto,Ann,dbase100.txt\r\n"
    "01-Jun-2005,4,9,15,27,30,,,6,UK Thunderball,Ann,dbase101.txt\r\n"
    "04-Jun-2005,1,2,13,24,35,9,,,UK Lotto,,dbase100.txt\r\n";

/// Answers No to every question, and looks round while it is asked.
class AskedMessages final : public MessageBoxes {
  public:
    explicit AskedMessages(std::function<void(const Message&)> look) : look_(std::move(look)) {}

    Answer Show(QWidget*, const Message& message) override {
        look_(message);
        return Answer::No;
    }

  private:
    std::function<void(const Message&)> look_;
};

class WhatIfForm : public AnalysisFormTest<WhatIf> {
  protected:
    /// Opens the form with saved entries, and with message boxes of the test's own.
    void OpenAsking(MessageBoxes& messages) {
        test_.folder.Write("MyLottery.txt", savedEntries);
        services_ = std::make_unique<Services>(Services{.seconds = test_.services.seconds,
                                                        .today = test_.services.today,
                                                        .random = test_.random,
                                                        .region = test_.services.region,
                                                        .messages = messages,
                                                        .openPage = test_.services.openPage,
                                                        .saveLines = {},
                                                        .printLines = {}});
        program_ = std::make_unique<Program>(Program{test_.state, test_.folder, *services_});
        form_ = std::make_unique<WhatIf>(*program_, nullptr);
        form_->Load();
        form_->show();
    }

    /// Whether the form is at work, as the pointer and the flag say.
    bool IsAtWork() const {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        const bool hourglass = cursor != nullptr && cursor->shape() == Qt::WaitCursor;
        EXPECT_EQ(hourglass, test_.state.Busy == -1);
        return hourglass;
    }

    void ChooseAnswering(int index, Answer answer) {
        test_.messages.Expect(loadQuestion, answer);
        Choose(index);
    }

    QLineEdit& Box(int index) {
        return *Find<QLineEdit>(*form_, ("Text1(" + std::to_string(index) + ")").c_str());
    }

    void Enter(const std::vector<const char*>& numbers, const char* extraBall = "") {
        int index = 0;
        for (const char* number : numbers) Box(++index).setText(QString::fromLatin1(number));
        Box(8).setText(QString::fromLatin1(extraBall));
        Click(*form_, addButton);
    }

    Grid& Entries() { return *Find<Grid>(*form_, "MSFlexGrid1"); }

    std::string Row(int row) {
        QStringList cells;
        for (int column = 0; column < 10; ++column) cells << Entries().Cell(row, column);
        return cells.join(QLatin1Char(',')).toStdString();
    }

    QPlainTextEdit& Result() { return *Find<QPlainTextEdit>(*form_, "Text2"); }
    std::string ResultText() { return Result().toPlainText().toStdString(); }

    std::string Check() {
        Click(*form_, checkButton);
        return ResultText();
    }

    bool RowIsMarked(int row) {
        const auto& selection = *Entries().selectionModel();
        for (int column = 0; column < 10; ++column) {
            const bool marked = selection.isSelected(Entries().model()->index(row - 1, column));
            if (marked != (column >= 1)) return false;
        }
        return Entries().CurrentRow() == row && Entries().currentIndex().column() == 9;
    }

    void ClickRow(int row) {
        Entries().ScrollToRow(row);
        QTest::mouseClick(Entries().viewport(), Qt::LeftButton, Qt::NoModifier,
                          Entries().visualRect(Entries().model()->index(row - 1, 3)).center());
    }

  private:
    std::unique_ptr<Services> services_;
    std::unique_ptr<Program> program_;
};

TEST_F(WhatIfForm, OpensWithTheWordsOfItsDesign) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("What if...?"));
    const std::vector<std::pair<const char*, const char*>> labels = {
        {"Label5", "What if...?"},
        {"Label8", "1. Select lottery:"},
        {"Label1", "2. Enter numbers:"},
        {extraBallTitle, "Pball:"},
        {"Label3", "3. Check numbers:"},
        {"Label9",
         "What if you had played the same lottery numbers each week since the lottery started. "
         "Would you have won the jackpot? What if you had bought 10 tickets each week. Of course, "
         "it would be expensive, but if you would have won, it would have been worth it. What "
         "if..."},
        {"Label4",
         "You can load lottery entries that have been saved to disk or type them in directly. Tip: "
         "Choose one of the methods of picking lottery entries, such as Full Selection, save the "
         "entries, then load them here to see how good that method is."}};
    for (const auto& [name, text] : labels) {
        EXPECT_EQ(Text(name), QString::fromLatin1(text)) << name;
    }
    const std::vector<std::pair<const char*, const char*>> toolTips = {
        {addButton, " Add this lottery entry "},
        {deleteButton, " Delete selected lottery entry "},
        {checkButton, " See if you have won! "},
        {closeButton, " Close the window "}};
    for (const auto& [name, text] : toolTips) {
        EXPECT_EQ(Find<QPushButton>(*form_, name)->toolTip(), QString::fromLatin1(text)) << name;
    }
    EXPECT_EQ(Find<QPushButton>(*form_, addButton)->text(), QStringLiteral("Add"));
    EXPECT_EQ(Find<QPushButton>(*form_, checkButton)->text(), QStringLiteral("Check"));
}

TEST_F(WhatIfForm, OpensWithoutALotteryAndWithAllBoxes) {
    test_.state.Busy = -1;
    Open();
    EXPECT_EQ(Find<ListBox>(*form_, lotteryList)->Index(), -1);
    EXPECT_EQ(Find<ListBox>(*form_, lotteryList)->count(), 3);
    for (int index = 1; index <= 8; ++index) {
        EXPECT_TRUE(Box(index).isVisible());
        EXPECT_EQ(Box(index).text(), QString());
    }
    EXPECT_TRUE(Find<QLabel>(*form_, extraBallTitle)->isVisible());
    EXPECT_EQ(ResultText(), "");
    EXPECT_EQ(Row(0), "Line,Num1,Num2,Num3,Num4,Num5,Num6,Num7,Pball,");
    EXPECT_EQ(Entries().CurrentRow(), 99);
    EXPECT_EQ(Entries().RowCount(), 181);
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(WhatIfForm, OpensWithAnEmptyListWithoutADatabase) {
    test_.folder = MemoryFolder();
    Open();
    EXPECT_EQ(Find<ListBox>(*form_, lotteryList)->count(), 0);
}

TEST_F(WhatIfForm, OffersAndEmptiesTheBoxesOfTheLottery) {
    Open();
    for (int index = 1; index <= 8; ++index) Box(index).setText(QStringLiteral("5"));
    Choose(0);
    for (int index = 1; index <= 8; ++index) {
        EXPECT_EQ(Box(index).isVisible(), index <= 6) << index;
        EXPECT_EQ(Box(index).text(), QString()) << index;
    }
    EXPECT_FALSE(Find<QLabel>(*form_, extraBallTitle)->isVisible());
    Choose(1);
    EXPECT_TRUE(Box(5).isVisible());
    EXPECT_FALSE(Box(6).isVisible());
    EXPECT_TRUE(Box(8).isVisible());
    EXPECT_TRUE(Find<QLabel>(*form_, extraBallTitle)->isVisible());
}

TEST_F(WhatIfForm, TakesDigitsOnly) {
    Open();
    QTest::keyClicks(&Box(1), QStringLiteral("1a-2."));
    EXPECT_EQ(Box(1).text(), QStringLiteral("12"));
    QTest::keyClick(&Box(1), Qt::Key_Backspace);
    EXPECT_EQ(Box(1).text(), QStringLiteral("1"));
}

TEST_F(WhatIfForm, AddsAnEntryAsItWasTyped) {
    Open();
    Enter({"07", "8", "9", "10", "11", "12", "13"}, "3");
    EXPECT_EQ(Row(1), "1,07,8,9,10,11,12,13,3,");
    EXPECT_EQ(Entries().CellColour(1, 8), QColor(160, 0, 0));
    for (int index = 1; index <= 8; ++index) EXPECT_EQ(Box(index).text(), QString());
    EXPECT_TRUE(RowIsMarked(1));
    Enter({"1", "2", "3", "4"});
    EXPECT_EQ(Row(2), "2,1,2,3,4,,,,,");
    EXPECT_TRUE(RowIsMarked(2));
}

TEST_F(WhatIfForm, TestsTheFirstFourNumbersAgainstSixtyAndNoOthers) {
    Open();
    Choose(0);
    for (const auto& numbers : std::vector<std::vector<const char*>>{
             {"", "2", "3", "4"}, {"1", "0", "3", "4"}, {"1", "2", "61", "4"}, {"1", "2", "3"}}) {
        for (int index = 1; index <= 8; ++index) Box(index).clear();
        test_.messages.Expect(problemWithTheInput);
        Enter(numbers);
        EXPECT_EQ(Row(1), ",,,,,,,,,");
    }
    Enter({"60", "60", "3", "4", "99", "0"});
    EXPECT_EQ(Row(1), "1,60,60,3,4,99,0,,,");
    EXPECT_EQ(test_.messages.Shown(), 4);
}

TEST_F(WhatIfForm, LeadsToTheBoxThatIsWrong) {
    Open();
    form_->activateWindow();
    test_.messages.Expect(problemWithTheInput);
    Enter({"1", "2", "77", "4"});
    EXPECT_EQ(form_->focusWidget(), &Box(3));
    EXPECT_EQ(Box(3).selectedText(), QStringLiteral("77"));
}

TEST_F(WhatIfForm, AddsByTheEnterKey) {
    Open();
    for (int index = 1; index <= 4; ++index) Box(index).setText(QString::number(index));
    QTest::keyClick(&Box(4), Qt::Key_Return);
    EXPECT_EQ(Row(1), "1,1,2,3,4,,,,,");
}

TEST_F(WhatIfForm, KeepsEntriesWhenALotteryIsChosen) {
    Open();
    Enter({"1", "2", "3", "4"});
    Choose(0);
    EXPECT_EQ(Row(1), "1,1,2,3,4,,,,,");
    EXPECT_EQ(Entries().CurrentRow(), 99);
    Choose(1);
    EXPECT_EQ(Row(1), "1,1,2,3,4,,,,,");
}

TEST_F(WhatIfForm, DeletesTheCurrentEntryAndKeepsTheNumbersOfTheRows) {
    Open();
    Enter({"1", "2", "3", "4"});
    Enter({"5", "6", "7", "8"});
    Enter({"9", "10", "11", "12"});
    ClickRow(1);
    EXPECT_TRUE(RowIsMarked(1));
    Click(*form_, deleteButton);
    EXPECT_EQ(Row(1), "2,5,6,7,8,,,,,");
    EXPECT_EQ(Row(2), "3,9,10,11,12,,,,,");
    EXPECT_EQ(Row(3), ",,,,,,,,,");
    EXPECT_TRUE(RowIsMarked(1));
    Enter({"13", "14", "15", "16"});
    EXPECT_EQ(Row(3), "3,13,14,15,16,,,,,");
}

TEST_F(WhatIfForm, DeletesTheExtraBallWithItsEntry) {
    Open();
    Enter({"1", "2", "3", "4", "5", "6", "7"}, "8");
    Enter({"9", "10", "11", "12"});
    ClickRow(1);
    Click(*form_, deleteButton);
    EXPECT_EQ(Row(1), "2,9,10,11,12,,,,,");
}

TEST_F(WhatIfForm, DeletesNothingInARowWithoutAnEntry) {
    Open();
    Enter({"1", "2", "3", "4"});
    for (const int row : {2, 100, 180}) {
        ClickRow(row);
        EXPECT_TRUE(RowIsMarked(row));
        Click(*form_, deleteButton);
        EXPECT_FALSE(TakeFailure().has_value()) << row;
        EXPECT_EQ(Row(1), "1,1,2,3,4,,,,,");
        EXPECT_TRUE(RowIsMarked(1));
    }
}

TEST_F(WhatIfForm, DimsTheColumnsThatTheLotteryDoesNotHave) {
    Open();
    const auto headings = [this] { return Entries().horizontalHeader()->grab().toImage(); };
    const QImage all = headings();
    Choose(0);
    const QImage six = headings();
    EXPECT_NE(six, all);
    Choose(1);
    EXPECT_NE(headings(), six);
    Choose(0);
    EXPECT_EQ(headings(), six);
}

TEST_F(WhatIfForm, MakesTheFirstRowCurrentEvenWhereItIsEmpty) {
    Open();
    Enter({"1", "2", "3", "4"});
    Click(*form_, deleteButton);
    EXPECT_EQ(Row(1), ",,,,,,,,,");
    EXPECT_TRUE(RowIsMarked(1));
}

TEST_F(WhatIfForm, DeletesNothingWhileNoRowIsCurrent) {
    Open();
    Enter({"1", "2", "3", "4"});
    Choose(0);
    Click(*form_, deleteButton);
    EXPECT_EQ(Row(1), "1,1,2,3,4,,,,,");
    EXPECT_TRUE(RowIsMarked(1));
}

TEST_F(WhatIfForm, DeletesTheEntryOfTheParkingRowOnlyWhereItWasChosen) {
    std::string content;
    for (int entry = 1; entry <= 120; ++entry) {
        content += "x," + std::to_string(entry) + ",2,3,4,5,6,,,UK Lotto,,\r\n";
    }
    test_.folder.Write("MyLottery.txt", content);
    Open();
    ChooseAnswering(0, Answer::Yes);
    Click(*form_, deleteButton);
    EXPECT_EQ(Row(99), "99,99,2,3,4,5,6,,,");
    EXPECT_EQ(Row(120), "120,120,2,3,4,5,6,,,");
    ClickRow(99);
    Click(*form_, deleteButton);
    EXPECT_EQ(Row(99), "100,100,2,3,4,5,6,,,");
    EXPECT_EQ(Row(120), ",,,,,,,,,");
}

TEST_F(WhatIfForm, AsksForSavedEntriesOnlyWhereThereAreAny) {
    Open();
    Choose(0);
    EXPECT_EQ(test_.messages.Shown(), 0);
    test_.folder.Write("MyLottery.txt", savedEntries);
    ChooseAnswering(1, Answer::No);
    EXPECT_EQ(Row(1), ",,,,,,,,,");
    EXPECT_EQ(test_.messages.Shown(), 1);
}

TEST_F(WhatIfForm, AsksOnAClickOnTheEntryAlreadyChosenToo) {
    Open();
    Choose(0);
    Box(1).setText(QStringLiteral("5"));
    test_.folder.Write("MyLottery.txt", savedEntries);
    test_.messages.Expect(loadQuestion, Answer::No);
    ClickLottery(0);
    EXPECT_EQ(test_.messages.Shown(), 1);
    EXPECT_EQ(Box(1).text(), QString());
}

TEST_F(WhatIfForm, LoadsTheSavedEntriesOfTheLottery) {
    test_.folder.Write("MyLottery.txt", savedEntries);
    Open();
    ChooseAnswering(0, Answer::Yes);
    EXPECT_EQ(Row(1), "1,3,17,22,34,41,48,,,");
    EXPECT_EQ(Row(2), "2,1,2,13,24,35,9,,,");
    EXPECT_EQ(Row(3), ",,,,,,,,,");
    EXPECT_EQ(Entries().CurrentRow(), 99);
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(WhatIfForm, LoadsTheSavedEntriesOfALotteryWithAnAccent) {
    AddLottery(test_.folder, "dbase100.txt",
               "Loter\xED"
               "a",
               "6,49,0,0,0");
    test_.folder.Write("MyLottery.txt",
                       "x,1,2,3,4,5,6,,,Loteria,,\r\nx,07,2,3,4,5,60,0,,Loter\xED"
                       "a,,\r\n");
    Open();
    ChooseAnswering(0, Answer::Yes);
    EXPECT_EQ(Row(1), "1,7,2,3,4,5,60,,,");
    EXPECT_EQ(Row(2), ",,,,,,,,,");
}

TEST_F(WhatIfForm, SaysHowManyEntriesItLoaded) {
    test_.folder.Write("MyLottery.txt", savedEntries);
    Open();
    ChooseAnswering(0, Answer::Yes);
    EXPECT_EQ(Text("Said"), QStringLiteral("2 saved entries of UK Lotto loaded"));
    ChooseAnswering(1, Answer::Yes);
    EXPECT_EQ(Text("Said"), QStringLiteral("1 saved entry of UK Thunderball loaded"));
    ChooseAnswering(2, Answer::Yes);
    EXPECT_EQ(Text("Said"), QStringLiteral("There are no saved entries of UK Daily Play"));
}

TEST_F(WhatIfForm, WipesWhatIsLeftBelowTheEntriesItLoads) {
    test_.folder.Write("MyLottery.txt", savedEntries);
    Open();
    for (int entry = 1; entry <= 4; ++entry) Enter({"1", "2", "3", "4"});
    ChooseAnswering(1, Answer::Yes);
    EXPECT_EQ(Row(1), "1,4,9,15,27,30,,,6,");
    EXPECT_EQ(Row(2), ",,,,,,,,,");
    EXPECT_EQ(Row(4), ",,,,,,,,,");
}

TEST_F(WhatIfForm, KeepsTheGridWhereTheLotteryHasNoSavedEntries) {
    test_.folder.Write("MyLottery.txt", savedEntries);
    Open();
    Enter({"1", "2", "3", "4"});
    ChooseAnswering(2, Answer::Yes);
    EXPECT_EQ(Row(1), "1,1,2,3,4,,,,,");
}

TEST_F(WhatIfForm, ShowsEntriesUpToOneWithoutAFirstNumber) {
    test_.folder.Write("MyLottery.txt",
                       std::string("x,,2,3,4,5,6,,,UK Lotto,,\r\n") + savedEntries);
    Open();
    Enter({"1", "2", "3", "4"});
    ChooseAnswering(0, Answer::Yes);
    EXPECT_EQ(Row(1), ",,,,,,,,,");
}

TEST_F(WhatIfForm, MarksTheQuestionAsDiscardingWhereEntriesStandInTheGrid) {
    std::vector<bool> discards;
    AskedMessages messages([&](const Message& message) { discards.push_back(message.discards); });
    OpenAsking(messages);
    Choose(0);
    Enter({"1", "2", "3", "4"});
    Choose(1);
    EXPECT_EQ(discards, (std::vector<bool>{false, true}));
}

TEST_F(WhatIfForm, AsksOnceTheFormStandsAndItsWorkIsDone) {
    std::vector<int> boxes;
    AskedMessages messages([&](const Message&) {
        EXPECT_FALSE(IsAtWork());
        EXPECT_EQ(ResultText(), "");
        int offered = 0;
        for (int index = 1; index <= 8; ++index) {
            EXPECT_EQ(Box(index).text(), QString());
            if (Box(index).isVisible()) ++offered;
        }
        EXPECT_EQ(Label(extraBallTitle).isVisible(), Box(8).isVisible());
        boxes.push_back(offered);
    });
    OpenAsking(messages);
    Choose(0);
    Enter({"1", "2", "3", "4", "5", "6"});
    EXPECT_NE(Check(), "");
    Box(6).setText(QStringLiteral("6"));
    Choose(1);
    Choose(2);
    EXPECT_EQ(boxes, (std::vector<int>{6, 6, 7}));
}

TEST_F(WhatIfForm, IsAtWorkWhileItLoadsAndChecks) {
    test_.folder.Write("MyLottery.txt", savedEntries);
    Open();
    std::vector<bool> loading;
    std::vector<bool> showing;
    std::vector<bool> checking;
    const QObject watch;
    Box(1).setText(QStringLiteral("5"));
    QObject::connect(&Box(1), &QLineEdit::textChanged, &watch,
                     [&] { loading.push_back(IsAtWork()); });
    Entries().ScrollToRow(150);
    QObject::connect(Entries().verticalScrollBar(), &QScrollBar::valueChanged, &watch,
                     [&] { showing.push_back(IsAtWork()); });
    ChooseAnswering(0, Answer::Yes);
    QObject::connect(&Result(), &QPlainTextEdit::textChanged, &watch,
                     [&] { checking.push_back(IsAtWork()); });
    Check();
    EXPECT_EQ(loading, std::vector<bool>{true});
    EXPECT_EQ(showing, std::vector<bool>{true});
    EXPECT_EQ(checking, std::vector<bool>(checking.size(), true));
    EXPECT_FALSE(checking.empty());
    EXPECT_FALSE(IsAtWork());
}

TEST_F(WhatIfForm, ChecksNothingWithoutEntries) {
    Open();
    EXPECT_EQ(Check(), "");
    Choose(0);
    EXPECT_EQ(Check(), "");
}

TEST_F(WhatIfForm, AsksForALotteryBeforeItChecks) {
    Open();
    Enter({"1", "2", "3", "4"});
    test_.messages.Expect(selectALottery);
    EXPECT_EQ(Check(), "");
}

TEST_F(WhatIfForm, ChecksTheEntriesAgainstAllDraws) {
    Open();
    Choose(0);
    Enter({"3", "17", "22", "34", "41", "48"});
    Enter({"1", "2", "13", "24", "35", "7"});
    EXPECT_EQ(Check(),
              "Your lottery entries were checked against 2 draw results:\n\n"
              " 6 - match = 1 times\n 5 - match = 0 times\n 4 - match = 0 times\n"
              " 3 - match = 0 times\n 2 - match = 0 times\n 1 - match = 0 times\n"
              " 0 - match = 2 times\n\n"
              " 6 - match + bonus = 0 times\n 5 - match + bonus = 1 times\n"
              " 4 - match + bonus = 0 times\n 3 - match + bonus = 0 times\n"
              " 2 - match + bonus = 0 times\n 1 - match + bonus = 0 times\n"
              " 0 - match + bonus = 0 times\n");
}

TEST_F(WhatIfForm, ChecksAnExtraBall) {
    Open();
    Choose(1);
    Enter({"4", "9", "1", "2", "3"}, "6");
    EXPECT_EQ(Check(),
              "Your lottery entries were checked against 1 draw results:\n\n"
              " 5 - match = 0 times\n 4 - match = 0 times\n 3 - match = 0 times\n"
              " 2 - match = 0 times\n 1 - match = 0 times\n 0 - match = 0 times\n\n"
              " 5 - match + powerball = 0 times\n 4 - match + powerball = 0 times\n"
              " 3 - match + powerball = 0 times\n 2 - match + powerball = 1 times\n"
              " 1 - match + powerball = 0 times\n 0 - match + powerball = 0 times\n");
}

TEST_F(WhatIfForm, CountsNothingWithoutDraws) {
    Open();
    Choose(2);
    Enter({"1", "2", "3", "4"});
    const std::string report = Check();
    EXPECT_TRUE(report.starts_with("Your lottery entries were checked against 0 draw results:"));
    EXPECT_EQ(report.find(" 1 times"), std::string::npos);
    EXPECT_EQ(Result().toolTip(), QString());
}

TEST_F(WhatIfForm, GoesOnCountingNoMatchesFromCheckToCheck) {
    Open();
    Choose(1);
    Enter({"1", "2", "3", "5", "6"}, "1");
    EXPECT_NE(Check().find(" 0 - match = 1 times"), std::string::npos);
    const std::string second = Check();
    EXPECT_NE(second.find(" 0 - match = 2 times"), std::string::npos);
    EXPECT_NE(second.find(" 1 - match = 0 times"), std::string::npos);
    Open();
    Choose(1);
    Enter({"1", "2", "3", "5", "6"}, "1");
    EXPECT_NE(Check().find(" 0 - match = 3 times"), std::string::npos);
}

TEST_F(WhatIfForm, BeginsAllOtherCountsAnew) {
    Open();
    Choose(0);
    Enter({"1", "2", "3", "4", "5", "6"});
    for (int index = 1; index <= 20; ++index) test_.state.Pool(index) = 700;
    test_.state.Pool(21) = 700;
    EXPECT_EQ(Check().find(" 70"), std::string::npos);
    EXPECT_EQ(test_.state.Pool(20), 0);
    EXPECT_EQ(test_.state.Pool(21), 700);
}

TEST_F(WhatIfForm, TakesTheEntriesOfTheGridForTheLines) {
    Open();
    Choose(1);
    Enter({"4", "9", "1", "2", "3"}, "6");
    Enter({"07", "8", "9", "10"});
    test_.state.Lines(2, 9) = 5;
    test_.state.Lines(40, 3) = 5;
    Check();
    const std::vector<std::vector<int>> lines = {{4, 9, 1, 2, 3, 0, 0, 6, 0},
                                                 {7, 8, 9, 10, 0, 0, 0, 0, 0}};
    for (int row = 1; row <= 2; ++row) {
        for (int column = 1; column <= 9; ++column) {
            EXPECT_EQ(
                test_.state.Lines(row, column),
                lines[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column - 1)])
                << row << ", " << column;
        }
    }
    EXPECT_EQ(test_.state.Lines(3, 1), 0);
    EXPECT_EQ(test_.state.Lines(40, 3), 0) << "all lines are cleared first";
}

TEST_F(WhatIfForm, EndsInTheReportWhereACountOverflows) {
    AddLottery(test_.folder, "dbase100.txt", "Long", "4,49,0,0,0",
               std::vector<std::string>(2999, "28 May 05,7,8,9,10,0,0,0,0"));
    Open();
    Choose(0);
    for (int entry = 1; entry <= 10; ++entry) Enter({"1", "2", "3", "4"});
    EXPECT_NE(Check().find(" 0 - match = 29990 times"), std::string::npos);
    Click(*form_, checkButton);
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure.has_value());
    EXPECT_NE(failure->find("59980"), std::string::npos) << *failure;
}

TEST_F(WhatIfForm, EndsInTheReportOnANumberBeyondTheTable) {
    Open();
    Choose(0);
    Enter({"1", "2", "3", "4", "70000"});
    Click(*form_, checkButton);
    const auto failure = TakeFailure();
    ASSERT_TRUE(failure.has_value());
    EXPECT_NE(failure->find("\"70000\""), std::string::npos) << *failure;
}

TEST_F(WhatIfForm, TellsWhatChanceWouldHaveGiven) {
    Open();
    Choose(0);
    Enter({"3", "17", "22", "34", "41", "48"});
    Check();
    const QString told = Result().accessibleDescription();
    EXPECT_TRUE(told.startsWith(QStringLiteral("By chance: 6 - match 0.00000014 times, ")))
        << told.toStdString();
    EXPECT_TRUE(told.contains(QStringLiteral(", 0 - match + bonus 0.12 times")))
        << told.toStdString();
    EXPECT_EQ(Result().toolTip().replace(QLatin1Char('\n'), QLatin1Char(' ')), told);
    Choose(1);
    EXPECT_EQ(Result().accessibleDescription(), QString());
    EXPECT_EQ(Result().toolTip(), QString());
    EXPECT_EQ(ResultText(), "");
}

TEST_F(WhatIfForm, TellsNoChanceForEntriesThatRepeatANumber) {
    Open();
    Choose(0);
    Enter({"3", "3", "22", "34", "41", "48"});
    EXPECT_NE(Check(), "");
    EXPECT_EQ(Result().toolTip(), QString());
    EXPECT_EQ(Result().accessibleDescription(), QString());
}

TEST_F(WhatIfForm, DoesNothingWhileBusy) {
    Open();
    Enter({"1", "2", "3", "4"});
    test_.state.Busy = -1;
    Choose(0);
    EXPECT_TRUE(Box(8).isVisible());
    Enter({"5", "6", "7", "8"});
    EXPECT_EQ(Row(2), ",,,,,,,,,");
    Click(*form_, deleteButton);
    EXPECT_EQ(Row(1), "1,1,2,3,4,,,,,");
    EXPECT_EQ(Check(), "");
    EXPECT_EQ(test_.messages.Shown(), 0);
}

TEST_F(WhatIfForm, ShowsTheHourglassDuringACheck) {
    Open();
    Choose(0);
    Enter({"1", "2", "3", "4", "5", "6"});
    const HourglassWatch watch(Result(), QEvent::ToolTipChange);
    Check();
    EXPECT_GT(watch.Events(), 0);
    EXPECT_EQ(watch.UnderHourglass(), watch.Events());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(WhatIfForm, HoldsAHundredAndSeventyNineEntries) {
    std::string content;
    for (int entry = 1; entry <= 179; ++entry) {
        content += "01-Jun-2005,3,17,22,34,41,48,,,UK Lotto,Ann,dbase100.txt\r\n";
    }
    test_.folder.Write("MyLottery.txt", content);
    Open();
    ChooseAnswering(0, Answer::Yes);
    EXPECT_EQ(Row(179), "179,3,17,22,34,41,48,,,");
    EXPECT_NE(Check().find(" 6 - match = 179 times"), std::string::npos);
}

TEST_F(WhatIfForm, ReadsNineNumbersOfNoLottery) {
    AddLottery(test_.folder, "dbase100.txt", "Nine", "9,49,0,0,0");
    Open();
    EXPECT_THROW(Choose(0), Failure);
}

TEST_F(WhatIfForm, TakesTheSkinsColours) {
    ChooseSkinColours();
    Open();
    EXPECT_EQ(ColourOf("Label5"), QColor(1, 0, 0));
    for (const char* name : {"Label4", "Label9"})
        EXPECT_EQ(ColourOf(name), QColor(2, 0, 0)) << name;
    for (const char* name : {"Label1", "Label2", "Label3", "Label8"}) {
        EXPECT_EQ(ColourOf(name), QColor(3, 0, 0)) << name;
    }
}

TEST_F(WhatIfForm, ClosesByItsButton) {
    Open();
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(WhatIfForm, ChecksEveryRealHistory) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    Enter({"3", "8", "19", "22", "25", "26", "27"}, "5");
    for (int index = 0; index < 8; ++index) {
        Choose(index);
        test_.state.Pool(0) = 0;
        const std::string report = Check();
        int sum = 0;
        for (std::size_t at = report.find(" = "); at != std::string::npos;
             at = report.find(" = ", at + 1)) {
            sum += std::stoi(report.substr(at + 3));
        }
        const std::string checked = "against " + std::to_string(sum) + " draw results:";
        EXPECT_NE(report.find(checked), std::string::npos) << report;
    }
}

}  // namespace

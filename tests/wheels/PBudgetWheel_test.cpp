// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PBudgetWheel.h"

#include <QGuiApplication>
#include <QPushButton>
#include <algorithm>

#include "core/failure.h"
#include "tests/support/real_histories.h"
#include "tests/wheels/wheel_form.h"

namespace {

constexpr int boxCount = 18;
constexpr const char* helpButton = "Command4";

bool UnderHourglass() {
    const QCursor* pointer = QGuiApplication::overrideCursor();
    return pointer != nullptr && pointer->shape() == Qt::WaitCursor;
}

class BudgetWheelsForm : public WheelFormTest {
  protected:
    void Open() { ShowForm(std::make_unique<PBudgetWheel>(test_.program, nullptr)); }

    /// Opens the form with three lines of nine numbers.
    void OpenWithLines() {
        Open();
        TypeCounting(9);
        Click(*form_, generateButton);
    }

    void ExpectRefusal() {
        ExpectInputTip();
        const int before = test_.messages.Shown();
        Click(*form_, generateButton);
        EXPECT_EQ(test_.messages.Shown(), before + 1);
        EXPECT_EQ(test_.state.Busy, 0);
    }

    void MakeMoreLinesThanTheGridHas() {
        MakeOnlyLine({2, 9, 16, 29, 33, 44});
        for (int row = 2; row <= Lines().RowCount(); ++row) {
            for (int column = 1; column <= 6; ++column) {
                test_.state.Lines(row, column) = View(test_.state).Lines(1, column);
            }
        }
    }

    void ExpectNotAvailable() {
        test_.messages.Expect({.title = QStringLiteral("Sorry!"),
                               .text = QStringLiteral("Not available with this lottery.    "),
                               .sign = Sign::Exclamation});
    }
};

TEST_F(BudgetWheelsForm, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("PBudgetWheel"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Budget Wheels"));
    ExpectLabels(
        {{"Label7", "Budget wheels"},
         {"Label2",
          "These wheels don't cover every possible combination of numbers, but they aim to cut "
          "costs while still offering a good chance of winning a prize if any of the draw numbers "
          "are in your selection."},
         {"Label6", "Filters"}});
    ExpectCaptions({{"Option1(0)", "Wheel   9 numbers in 3 lines"},
                    {"Option1(1)", "Wheel 12 numbers in 4 lines"},
                    {"Option1(2)", "Wheel 15 numbers in 5 lines"},
                    {"Option1(3)", "Wheel 18 numbers in 8 lines"},
                    {randomSelectionButton, "Random selection"},
                    {randomOrderButton, "Random order"}});
    ExpectFrameWords(usualFilters, helpButton);
    EXPECT_EQ(Find<QWidget>(*form_, randomSelectionButton)->toolTip(),
              QStringLiteral(" Pick some numbers for me "));
    EXPECT_EQ(Find<QWidget>(*form_, randomOrderButton)->toolTip(),
              QStringLiteral(" Mix up the order of the numbers "));
}

TEST_F(BudgetWheelsForm, HasNoPromptNoConditionsAndNoLetters) {
    Open();
    EXPECT_FALSE(Find<QLabel>(*form_, promptLabel)->isVisible());
    for (const char* name : {"HScroll1", "Check1", "Check2", "Check3", "Label5", "Label1(1)",
                             "Option1(4)", "Text1(18)"}) {
        EXPECT_EQ(form_->findChild<QObject*>(QString::fromLatin1(name)), nullptr) << name;
    }
}

TEST_F(BudgetWheelsForm, OpensWithNineEmptyWhiteBoxesAndMakesNothing) {
    test_.state.Busy = -1;
    Open();
    EXPECT_EQ(test_.state.Busy, 0);
    EXPECT_EQ(test_.state.LotteryName, "Lotto");
    EXPECT_TRUE(Find<QRadioButton>(*form_, "Option1(0)")->isChecked());
    for (int index = 0; index < boxCount; ++index) {
        EXPECT_EQ(Background(index), index < 9 ? white : grey) << index;
        EXPECT_EQ(Box(index).isEnabled(), index < 9) << index;
        EXPECT_EQ(Box(index).text(), QString()) << index;
    }
    EXPECT_EQ(ShownLines(), 0);
}

TEST_F(BudgetWheelsForm, PutsTheChosenSizeToUseAndEmptiesTheRest) {
    Open();
    for (const int option : {3, 1, 2, 0}) {
        ChooseSize(3);
        for (int index = 0; index < boxCount; ++index) TypeBox(index, QStringLiteral("7"));
        ChooseSize(option);
        const int count = 3 * option + 9;
        for (int index = 0; index < boxCount; ++index) {
            const bool inUse = index < count;
            EXPECT_EQ(Background(index), inUse ? white : grey) << index;
            EXPECT_EQ(Box(index).isEnabled(), inUse) << index;
            EXPECT_EQ(Box(index).text(), inUse ? QStringLiteral("7") : QString()) << index;
        }
    }
}

TEST_F(BudgetWheelsForm, LeavesTheGridAloneWhenASizeIsChosen) {
    OpenWithLines();
    const QStringList before = Texts();
    ChooseSize(2);
    EXPECT_EQ(Texts(), before);
    EXPECT_EQ(test_.state.Lines(3, 1), 1);
}

TEST_F(BudgetWheelsForm, MakesThreeLinesOfSixFromNineNumbers) {
    OpenWithLines();
    EXPECT_EQ(Rows(8),
              (std::vector<std::vector<int>>{
                  {1, 2, 3, 4, 5, 6, 0, 0}, {4, 5, 6, 7, 8, 9, 0, 0}, {1, 2, 3, 7, 8, 9, 0, 0}}));
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(BudgetWheelsForm, MakesAsManyLinesAsEachCaptionSays) {
    Open();
    for (const int lottery : {Lotto, Five, Seven}) {
        ChooseLottery(lottery);
        for (const auto& [option, lines] : {std::pair(0, 3), {1, 4}, {2, 5}, {3, 8}}) {
            ChooseSize(option);
            Click(*form_, randomSelectionButton);
            Click(*form_, generateButton);
            ExpectWholeLines(lines);
        }
    }
}

TEST_F(BudgetWheelsForm, AddsOnlyChosenNumbersForSevenPicks) {
    Open();
    ChooseLottery(Seven);
    TypeCounting(9);
    for (int time = 0; time < 20; ++time) {
        Click(*form_, generateButton);
        for (const auto& row : Rows(7)) {
            EXPECT_EQ(std::set<int>(row.begin(), row.end()).size(), 7U);
            EXPECT_LE(row[6], 9);
        }
    }
}

TEST_F(BudgetWheelsForm, NeverSeedsTheRandomNumbers) {
    int seedings = 0;
    test_.services.random = Random([&seedings] {
        ++seedings;
        return std::uint64_t{1};
    });
    Open();
    ChooseLottery(Seven);
    Click(*form_, randomSelectionButton);
    Click(*form_, randomOrderButton);
    Click(*form_, generateButton);
    EXPECT_EQ(ShownLines(), 3);
    EXPECT_EQ(seedings, 0);
}

/// Notes what `Busy` is while a message stands.
class BusyWatch final : public MessageBoxes {
  public:
    explicit BusyWatch(const State& state) : state_(state) {}
    Answer Show(QWidget*, const Message& message) override {
        seen_.emplace_back(message.title.toStdString(), state_.Busy);
        return Answer::Ok;
    }
    const std::vector<std::pair<std::string, int>>& Seen() const { return seen_; }

  private:
    const State& state_;
    std::vector<std::pair<std::string, int>> seen_;
};

TEST_F(BudgetWheelsForm, IsBusyFromWhereTheNumbersHavePassed) {
    BusyWatch messages(test_.state);
    Services services{.seconds = test_.services.seconds,
                      .today = test_.services.today,
                      .random = test_.random,
                      .region = test_.services.region,
                      .messages = messages,
                      .openPage = test_.services.openPage,
                      .saveLines = test_.services.saveLines,
                      .printLines = {}};
    Program program{test_.state, test_.folder, services};
    ShowForm(std::make_unique<PBudgetWheel>(program, nullptr));
    ChooseLottery(Four);
    Click(*form_, generateButton);
    TypeCounting(9);
    Click(*form_, generateButton);
    EXPECT_EQ(messages.Seen(),
              (std::vector<std::pair<std::string, int>>{{"Error", 0}, {"Sorry!", -1}}));
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(BudgetWheelsForm, ShowsTheLinesWhileItIsBusyUnderTheHourglass) {
    Open();
    TypeCounting(9);
    Lines().SetRowCount(2);
    std::set<std::pair<int, bool>> seen;
    QObject context;
    QObject::connect(Lines().model(), &QAbstractItemModel::modelReset, &context,
                     [&] { seen.emplace(test_.state.Busy, UnderHourglass()); });
    Click(*form_, generateButton);
    EXPECT_EQ(seen, (std::set<std::pair<int, bool>>{{-1, true}})) << "as the grid grows";
    EXPECT_EQ(ShownLines(), 3);
}

TEST_F(BudgetWheelsForm, GeneratesNothingWhileBusy) {
    Open();
    ChooseLottery(Seven);
    TypeCounting(9);
    test_.state.Busy = -1;
    Click(*form_, generateButton);
    EXPECT_EQ(ShownLines(), 0);
    test_.state.Busy = 0;
    Click(*form_, generateButton);
    EXPECT_EQ(ShownLines(), 3);
    EXPECT_EQ(test_.state.Busy, 0);
    EXPECT_FALSE(UnderHourglass());
}

TEST_F(BudgetWheelsForm, TakesUpToThreeCharactersOfAnyTextIntoABox) {
    Open();
    TypeBox(0, QStringLiteral("1a.-"));
    EXPECT_EQ(Box(0).text(), QStringLiteral("1a."));
    TypeBox(1, QStringLiteral("- 5"));
    EXPECT_EQ(Box(1).text(), QStringLiteral("- 5"));
    EXPECT_EQ(Box(17).maxLength(), 3);
    EXPECT_EQ(Box(17).alignment(), Qt::AlignCenter);
}

TEST_F(BudgetWheelsForm, RefusesABoxWithoutANumberAndEmptiesTheLines) {
    OpenWithLines();
    const QStringList before = Texts();
    for (const char* wrong : {"", "0", "abc", "-"}) {
        TypeBox(3, QString::fromLatin1(wrong));
        test_.state.Lines(1, 1) = 7;
        ExpectRefusal();
        EXPECT_EQ(Texts(), before) << "the grid keeps what it showed";
        EXPECT_EQ(test_.state.Lines(1, 1), 0);
        EXPECT_EQ(form_->focusWidget(), &Box(3)) << "where the input has to be mended";
        EXPECT_EQ(Box(3).text(), QString::fromLatin1(wrong));
    }
    Click(*form_, usualFilters.oddEven);
    EXPECT_EQ(ShownLines(), 0) << "a filter shows that there are none";
}

TEST_F(BudgetWheelsForm, PlaysNumbersAboveTheLotterysAndDigitsBeforeALetter) {
    Open();
    TypeCounting(9);
    TypeBox(0, QStringLiteral("999"));
    TypeBox(1, QStringLiteral("12a"));
    Box(2).setText(QStringLiteral("3\u0416"));
    Click(*form_, generateButton);
    EXPECT_EQ(Rows(6)[0], (std::vector<int>{3, 4, 5, 6, 12, 999}));
    EXPECT_EQ(Box(0).text(), QStringLiteral("999"));
    EXPECT_EQ(Box(1).text(), QStringLiteral("12a")) << "a generate leaves the boxes alone";
    EXPECT_EQ(Box(2).text(), QStringLiteral("3\u0416")) << "letters of any alphabet too";
}

TEST_F(BudgetWheelsForm, EndsTheGridBeforeALineWithANegativeNumber) {
    Open();
    TypeCounting(9);
    TypeBox(7, QStringLiteral("-8"));
    Click(*form_, generateButton);
    EXPECT_EQ(ShownLines(), 1);
    EXPECT_EQ(test_.state.Lines(2, 1), -8);
}

TEST_F(BudgetWheelsForm, AnswersASeventhNumberThatCannotBeFoundWithTheTip) {
    Open();
    ChooseLottery(Seven);
    TypeCounting(9);
    Click(*form_, generateButton);
    const QStringList before = Texts();
    for (int index = 0; index < 9; ++index) TypeBox(index, QStringLiteral("5"));
    Box(8).setFocus();
    ExpectInputTip();
    QTest::keyClick(Find<QPushButton>(*form_, generateButton), Qt::Key_Space);
    EXPECT_EQ(test_.messages.Shown(), 1);
    EXPECT_EQ(Texts(), before) << "the grid keeps what it showed";
    EXPECT_EQ(test_.state.Busy, 0);
    EXPECT_FALSE(UnderHourglass());
    EXPECT_EQ(form_->focusWidget(), &Box(8)) << "no single box is to blame";
}

TEST_F(BudgetWheelsForm, SaysThatALotteryOfFourPicksIsNotForThem) {
    OpenWithLines();
    ChooseLottery(Four);
    ExpectNotAvailable();
    Click(*form_, generateButton);
    EXPECT_EQ(test_.messages.Shown(), 1);
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(test_.state.Lines(1, 1), 0) << "the lines are gone";
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(BudgetWheelsForm, RefusesBadInputBeforeTheLottery) {
    Open();
    ChooseLottery(Four);
    ExpectRefusal();
}

TEST_F(BudgetWheelsForm, DoesNothingForMoreThanSevenPicks) {
    AddLottery(test_.folder, "dbase7.txt", "Eight", "8,49,0,0,0");
    Open();
    TypeCounting(9);
    Click(*form_, generateButton);
    const QStringList before = Texts();
    test_.state.Picks = 8;
    Click(*form_, generateButton);
    EXPECT_EQ(test_.messages.Shown(), 0);
    EXPECT_EQ(Texts(), before) << "the grid keeps what it showed";
    EXPECT_EQ(test_.state.Lines(1, 1), 0);
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(BudgetWheelsForm, SelectsDifferentNumbersForTheBoxesInUse) {
    Open();
    ChooseSize(1);
    Click(*form_, randomSelectionButton);
    const QStringList texts = BoxTexts(12);
    EXPECT_EQ(QSet<QString>(texts.begin(), texts.end()).size(), 12);
    EXPECT_EQ(Box(12).text(), QString());
    for (int index = 0; index < 12; ++index) {
        EXPECT_EQ(Box(index).text().toInt(), test_.state.Pool(index));
    }
}

TEST_F(BudgetWheelsForm, SelectsAndMixesWhileBusyToo) {
    Open();
    ExpectRandomButtonsWorkWhileBusy(9);
}

TEST_F(BudgetWheelsForm, MixesTheBoxesUpToTheLastNumber) {
    Open();
    TypeBox(0, QStringLiteral("12a"));
    TypeBox(1, QStringLiteral("x"));
    TypeBox(3, QStringLiteral("7"));
    TypeBox(4, QStringLiteral("abc"));
    Click(*form_, randomOrderButton);
    QStringList texts = BoxTexts(4);
    std::ranges::sort(texts);
    EXPECT_EQ(texts, (QStringList{QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("12"),
                                  QStringLiteral("7")}));
    EXPECT_EQ(Box(4).text(), QStringLiteral("abc")) << "what stands behind the last number stays";
    EXPECT_EQ(Box(5).text(), QString());
}

TEST_F(BudgetWheelsForm, WritesANoughtIntoTheFirstOfEmptyBoxesWhenItMixes) {
    Open();
    Click(*form_, randomOrderButton);
    EXPECT_EQ(Box(0).text(), QStringLiteral("0"));
    EXPECT_EQ(BoxTexts(boxCount).mid(1), QStringList(boxCount - 1));
}

TEST_F(BudgetWheelsForm, EmptiesInvalidBoxesAndTheGridOnAChangeOfLottery) {
    OpenWithLines();
    TypeBox(0, QStringLiteral("999"));
    TypeBox(1, QStringLiteral("-2"));
    TypeBox(2, QStringLiteral("03"));
    ChooseLottery(Six40);
    EXPECT_EQ(BoxTexts(4),
              (QStringList{QString(), QString(), QStringLiteral("03"), QStringLiteral("4")}));
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(test_.state.Lines(1, 1), 1) << "the lines stay";
    Click(*form_, usualFilters.previousDraws);
    EXPECT_EQ(ShownLines(), 3) << "and a filter shows what is left of them";
}

TEST_F(BudgetWheelsForm, FiltersWhileBusyAndIgnoresItsClose) {
    OpenWithLines();
    test_.state.Busy = -1;
    Click(*form_, closeButton);
    EXPECT_TRUE(form_->isVisible());
    MakeOnlyLine({1, 2, 3, 4, 30, 40});
    Click(*form_, usualFilters.longRuns);
    EXPECT_EQ(ShownLines(), 0);
    Click(*form_, saveButton);
    EXPECT_EQ(saves_, 0);
    test_.state.Busy = 0;
    Click(*form_, saveButton);
    EXPECT_EQ(saves_, 1);
    EXPECT_TRUE(form_->isVisible()) << "the ignored click is not made up for";
    Click(*form_, closeButton);
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(BudgetWheelsForm, FiltersTheLinesShown) {
    OpenWithLines();
    ExpectFiltersTakeLinesOut(usualFilters);
}

TEST_F(BudgetWheelsForm, ShowsTheHourglassForTheFilterOfPreviousDrawsAlone) {
    OpenWithLines();
    const std::vector<std::pair<const char*, bool>> filters = {{usualFilters.oddEven, false},
                                                               {usualFilters.highLow, false},
                                                               {usualFilters.longRuns, false},
                                                               {usualFilters.previousDraws, true}};
    for (const auto& [filter, expected] : filters) {
        std::set<bool> seen;
        QObject context;
        QObject::connect(Lines().model(), &QAbstractItemModel::modelReset, &context,
                         [&seen] { seen.insert(UnderHourglass()); });
        MakeMoreLinesThanTheGridHas();
        Click(*form_, filter);
        EXPECT_EQ(seen, std::set<bool>{expected}) << filter << ", as the grid grows";
        EXPECT_FALSE(UnderHourglass());
    }
}

TEST_F(BudgetWheelsForm, MakesNothingOnEnterInABox) {
    Open();
    TypeCounting(9);
    Box(2).setFocus();
    QTest::keyClick(&Box(2), Qt::Key_Return);
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(form_->focusWidget(), &Box(2));
}

TEST_F(BudgetWheelsForm, TakesColoursOneToThreeOfTheSkin) {
    TakeSkinColours("&H202020");
    Open();
    EXPECT_EQ(TextColour(headingLabel), QColor(1, 0, 0));
    EXPECT_EQ(TextColour(bodyLabel), QColor(2, 0, 0));
    EXPECT_EQ(TextColour(lotteryPrompt), QColor(3, 0, 0));
    EXPECT_EQ(Background(0), white);
    EXPECT_EQ(Background(17), grey);
}

TEST_F(BudgetWheelsForm, OpensTheHelpPage) {
    Open();
    Click(*form_, helpButton);
    EXPECT_EQ(test_.pages, std::vector<QString>{QStringLiteral("helpplay.html")});
}

TEST_F(BudgetWheelsForm, ReachesItsControlsByTabInReadingOrder) {
    Open();
    ExpectTabOrder({lotteryList, "Option1(0)", "Option1(1)", "Option1(2)", "Option1(3)", "Text1(0)",
                    "Text1(1)"});
    ExpectTabOrder({"Text1(8)", randomSelectionButton, randomOrderButton, generateButton,
                    usualFilters.oddEven, usualFilters.highLow, usualFilters.longRuns,
                    usualFilters.previousDraws, linesGrid, saveButton, helpButton, closeButton});
}

TEST_F(BudgetWheelsForm, EndsInTheReportWithoutALottery) {
    test_.folder = MemoryFolder();
    EXPECT_THROW(Open(), Failure);
}

TEST_F(BudgetWheelsForm, WheelsTheNumbersOfRealLotteries) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    Open();
    ChooseSize(3);
    for (int index = 0; index < Find<ListBox>(*form_, lotteryList)->count(); ++index) {
        ChooseLottery(index);
        Click(*form_, randomSelectionButton);
        const bool suited = test_.state.Picks >= 5;
        if (!suited) ExpectNotAvailable();
        Click(*form_, generateButton);
        ExpectWholeLines(suited ? 8 : 0);
    }
}

}  // namespace

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/PGuaranteed.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <algorithm>
#include <set>

#include "core/failure.h"
#include "platform/widgets/Lists.h"
#include "tests/support/hourglass_watch.h"
#include "tests/support/real_histories.h"
#include "tests/wheels/wheel_form.h"
#include "wheels/NumberBoard.h"

namespace {

constexpr const char* statusLine = "Label10";
constexpr const char* clearButton = "Command16";

/// What bears which name in the three panels.
struct PanelNames {
    const char* combo;
    const char* generate;
    const char* select;
    const char* promise;
    const char* pick;
    const char* uses;
};
constexpr PanelNames panels[] = {
    {"Combo1", "Command2", "Command12(0)", "Label13", "Label8", "Label11"},
    {"Combo2", "Command3", "Command12(1)", "Label3", "Label14", "Label15"},
    {"Combo3", "Command4", "Command12(2)", "Label4", "Label16", "Label17"}};

class GuaranteedWheelsForm : public WheelFormTest {
  protected:
    enum { Six60 = 6, Six45, Six90, Six9 };

    GuaranteedWheelsForm() {
        AddLottery(test_.folder, "dbase7.txt", "Six of 60", "6,60,0,0,0");
        AddLottery(test_.folder, "dbase8.txt", "Six of 45", "6,45,0,0,0");
        AddLottery(test_.folder, "dbase9.txt", "Six of 90", "6,90,0,0,0");
        AddLottery(test_.folder, "dbase91.txt", "Six of 9", "6,9,0,0,0");
    }

    void Open() { ShowForm(std::make_unique<PGuaranteed>(test_.program, nullptr)); }

    static std::string NumberName(int number) { return "Label1(" + std::to_string(number) + ")"; }

    QLabel& Number(int number) { return Label(NumberName(number).c_str()); }

    bool IsSelected(int number) {
        return Number(number).palette().color(QPalette::Window) == QColor(Qt::black);
    }

    std::vector<int> Selected() {
        std::vector<int> numbers;
        for (int number = 1; number <= 60; ++number) {
            if (IsSelected(number)) numbers.push_back(number);
        }
        return numbers;
    }

    void ClickNumbers(int from, int to) {
        for (int number = from; number <= to; ++number) Click(*form_, NumberName(number).c_str());
    }

    ComboList& List(int panel) { return *Find<ComboList>(*form_, panels[panel].combo); }

    void ExpectMessage(const char* title, const char* text) {
        test_.messages.Expect({.title = QString::fromLatin1(title),
                               .text = QString::fromLatin1(text),
                               .sign = Sign::Exclamation});
    }

    void ExpectAsToldByPicks(const std::vector<int>& chosen) {
        const std::set<int> mine(chosen.begin(), chosen.end());
        for (const auto& row : Rows(8)) {
            const auto outside = std::count_if(row.begin(), row.begin() + test_.state.Picks,
                                               [&](int number) { return !mine.contains(number); });
            EXPECT_LE(outside, test_.state.Picks == 7 ? 1 : 0);
            EXPECT_TRUE(std::ranges::is_sorted(row.begin(), row.begin() + test_.state.Picks));
            EXPECT_EQ(row[7] > 0, test_.state.MaxPball > 0);
        }
    }

    std::string Tip(int panel) { return Label(panels[panel].promise).toolTip().toStdString(); }
};

TEST_F(GuaranteedWheelsForm, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Guaranteed win wheels"));
    ExpectLabels(
        {{"Label7", "Guaranteed win wheels"},
         {"Label2",
          "Many of these wheels are big and expensive, but they maximise your chance of one or "
          "more 3-matches or 5-matches in your lottery entries. Either pick your own numbers or "
          "use the Random Selection buttons. The wheels are designed for pick-6 lotteries."},
         {"Label19", "Designed for pick-6 lotteries"},
         {"Label9", "   Click your numbers:"},
         {"Label5", "Select a lottery:"},
         {"Label6", "Filters"},
         {"Label12", "Do not pick lottery entries with..."},
         {"Label13",
          "If the 6 numbers in the draw result are in your selection, you will get one or more "
          "3-matches."},
         {"Label3",
          "If any 3 of the 6 draw numbers are in your selection, you will get one or more "
          "3-matches."},
         {"Label4",
          "If the 6 numbers in the draw result are in your selection, you will get one or more "
          "5-matches."}});
    ExpectCaptions({{"Check1", "Too many odd or even numbers"},
                    {"Check2", "Too many low or high numbers"},
                    {"Check3", "Same numbers as a previous draw"},
                    {"Command10", " Help "},
                    {"Command11", " Help "},
                    {"Command16", "Clear"},
                    {"Command13", "Odd/even"},
                    {"Command14", "High/low"},
                    {"Command15", "Long runs"},
                    {"Command9", "Previous draws"}});
    QStringList titles;
    for (const QGroupBox* box : form_->findChildren<QGroupBox*>()) titles << box->title();
    EXPECT_EQ(titles.join(QLatin1Char(',')),
              QStringLiteral("3-Match for 6,3-Match for 3,5-Match for 6"));
    EXPECT_EQ(Find<QWidget>(*form_, clearButton)->toolTip(),
              QStringLiteral(" Clear the number selection "));
    for (const PanelNames& panel : panels) {
        ExpectCaptions({{panel.select, "Random selection"}, {panel.generate, "Generate"}});
        EXPECT_EQ(Find<QWidget>(*form_, panel.select)->toolTip(),
                  QStringLiteral(" Random selection of numbers "));
        EXPECT_EQ(Find<QWidget>(*form_, panel.generate)->toolTip(),
                  QStringLiteral("Generate another selection of lottery entries"));
    }
}

TEST_F(GuaranteedWheelsForm, OpensWithTheFirstWheelOfEachListAndNothingSelected) {
    Open();
    ExpectLabels({{"Label8", "Pick 21 numbers."},
                  {"Label11", "Uses 15 lines."},
                  {"Label14", "Pick 8 numbers."},
                  {"Label15", "Uses 4 lines."},
                  {"Label16", "Pick 12 numbers."},
                  {"Label17", "Uses 68 lines."},
                  {statusLine, ""}});
    EXPECT_EQ(List(0).count(), 20);
    EXPECT_EQ(List(1).count(), 10);
    EXPECT_EQ(List(2).count(), 2);
    EXPECT_EQ(List(0).itemText(19), QStringLiteral("48 numbers / 165 lines"));
    EXPECT_EQ(Selected(), std::vector<int>());
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_TRUE(Number(49).isVisible());
    EXPECT_FALSE(Number(50).isVisible());
}

TEST_F(GuaranteedWheelsForm, TellsTheNumbersAndLinesOfTheWheelChosenAndLeavesTheRestAlone) {
    Open();
    Click(*form_, panels[1].select);
    const QStringList before = Texts();
    const std::vector<int> selected = Selected();
    const QString status = Text(statusLine);
    List(0).SetIndex(19);
    List(2).setFocus();
    QTest::keyClick(&List(2), Qt::Key_Down);
    ExpectLabels({{"Label8", "Pick 48 numbers."},
                  {"Label11", "Uses 165 lines."},
                  {"Label14", "Pick 8 numbers."},
                  {"Label16", "Pick 13 numbers."},
                  {"Label17", "Uses 116 lines."}});
    EXPECT_EQ(Texts(), before);
    EXPECT_EQ(Selected(), selected);
    EXPECT_EQ(Text(statusLine), status);
}

TEST_F(GuaranteedWheelsForm, MapsTheClickedNumbersOntoTheWheelOfEachPanel) {
    Open();
    const int lines[] = {15, 4, 68};
    const int numbers[] = {21, 8, 12};
    for (int panel = 0; panel < 3; ++panel) {
        Click(*form_, clearButton);
        EXPECT_EQ(ShownLines(), 0);
        ClickNumbers(11, 10 + numbers[panel]);
        Click(*form_, panels[panel].generate);
        EXPECT_EQ(ShownLines(), lines[panel]);
        EXPECT_EQ(Text(statusLine), QStringLiteral("Tries: 1   Time: 0.00 sec"));
        std::vector<int> chosen = Selected();
        EXPECT_EQ(static_cast<int>(chosen.size()), numbers[panel]);
        ExpectAsToldByPicks(chosen);
    }
}

TEST_F(GuaranteedWheelsForm, SaysHowManyNumbersWereClickedAndHowManyTheWheelNeeds) {
    Open();
    ClickNumbers(1, 20);
    test_.state.Lines(1, 1) = 7;
    ExpectMessage("Error", " 20 numbers picked. You need 21 for this wheel.    ");
    Click(*form_, "Command2");
    ExpectMessage("Error", " 20 numbers picked. You need 8 for this wheel.    ");
    Click(*form_, "Command3");
    EXPECT_EQ(test_.state.Lines(1, 1), 7) << "the lines stay";
    EXPECT_EQ(Text(statusLine), QString());
    EXPECT_EQ(Text("Clicked"), QStringLiteral("20 numbers clicked"));
    Click(*form_, clearButton);
    EXPECT_EQ(Text("Clicked"), QStringLiteral("0 numbers clicked"));
    ClickNumbers(5, 5);
    EXPECT_EQ(Text("Clicked"), QStringLiteral("1 number clicked"));
}

TEST_F(GuaranteedWheelsForm, RefusesAtTheCountWhatTheBoardCannotReach) {
    Open();
    ChooseLottery(Six45);
    List(0).SetIndex(19);
    ClickNumbers(1, 45);
    ExpectMessage("Error", " 45 numbers picked. You need 48 for this wheel.    ");
    Click(*form_, "Command2");
}

TEST_F(GuaranteedWheelsForm, RefusesFourPicksAtTheEnd) {
    Open();
    ChooseLottery(Four);
    ExpectMessage("Error", " 0 numbers picked. You need 21 for this wheel.    ");
    Click(*form_, "Command2");
    ClickNumbers(1, 21);
    test_.state.Lines(1, 1) = 7;
    ExpectMessage("Sorry!", "This method is not suitable for this lottery.    ");
    Click(*form_, "Command2");
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(test_.state.Lines(1, 1), 7) << "the lines stay";
}

TEST_F(GuaranteedWheelsForm, SelectsAtRandomFromTheLotteryAndGenerates) {
    Open();
    ClickNumbers(1, 3);
    for (int panel = 0; panel < 3; ++panel) {
        const int numbers[] = {21, 8, 12};
        ++test_.seed;
        Click(*form_, panels[panel].select);
        const std::vector<int> chosen = Selected();
        EXPECT_EQ(static_cast<int>(chosen.size()), numbers[panel]);
        EXPECT_LE(chosen.back(), 49);
        EXPECT_GT(ShownLines(), 0);
        ExpectAsToldByPicks(chosen);
    }
}

TEST_F(GuaranteedWheelsForm, SelectsTheSameForTheSameSeed) {
    Open();
    Click(*form_, panels[0].select);
    const std::vector<int> first = Selected();
    Click(*form_, panels[0].select);
    EXPECT_EQ(Selected(), first);
}

TEST_F(GuaranteedWheelsForm, KeepsTheSelectionOfARefusedRandomSelectionOverAnEmptyGrid) {
    Open();
    Click(*form_, panels[0].select);
    ChooseLottery(Four);
    ExpectMessage("Sorry!", "This method is not suitable for this lottery.    ");
    Click(*form_, panels[0].select);
    EXPECT_EQ(Selected().size(), 21U);
    EXPECT_EQ(ShownLines(), 0);
}

TEST_F(GuaranteedWheelsForm, SelectsHiddenNumbersWhereTheWheelTakesMoreThanTheLotteryHas) {
    Open();
    ChooseLottery(Six9);
    for (int place = 0; place <= 120; ++place) test_.state.Pool(place) = 0;
    test_.state.Pool(10) = 33;
    ExpectMessage("Error", " 10 numbers picked. You need 12 for this wheel.    ");
    Click(*form_, panels[2].select);
    EXPECT_FALSE(Number(33).isVisible());
    test_.state.Pool(10) = 33;
    test_.state.Pool(11) = 34;
    test_.state.Pool(12) = 35;
    test_.state.Lines(1, 1) = 7;
    ExpectMessage("Sorry!", "Too many numbers for this lottery.    ");
    Click(*form_, panels[2].select);
    EXPECT_EQ(test_.state.Lines(1, 1), 7) << "the lines stay";
    EXPECT_TRUE(IsSelected(35));
    EXPECT_EQ(Selected().size(), 12U);
    ChooseLottery(Six40);
    EXPECT_TRUE(Number(33).isVisible());
    EXPECT_TRUE(IsSelected(33)) << "it is seen once a lottery has it";
}

TEST_F(GuaranteedWheelsForm, KeepsTheSelectionUpToTheNextLotterysNumbersAndTheStatus) {
    Open();
    ChooseLottery(Six60);
    ClickNumbers(38, 45);
    Click(*form_, "Command3");
    const QString status = Text(statusLine);
    EXPECT_EQ(ShownLines(), 4);
    const int first = test_.state.Lines(1, 1);
    ChooseLottery(Six40);
    EXPECT_EQ(Selected(), (std::vector<int>{38, 39, 40}));
    EXPECT_EQ(ShownLines(), 0) << "the grid is empty";
    EXPECT_EQ(test_.state.Lines(1, 1), first) << "the lines stay";
    EXPECT_EQ(Text(statusLine), status);
    ChooseLottery(Six60);
    EXPECT_EQ(Selected(), (std::vector<int>{38, 39, 40})) << "hiding took the others back";
}

TEST_F(GuaranteedWheelsForm, ShowsAllSixtyLabelsOfALargerLottery) {
    Open();
    ChooseLottery(Six90);
    for (int number = 1; number <= 60; ++number) EXPECT_TRUE(Number(number).isVisible());
    ClickNumbers(53, 60);
    Click(*form_, "Command3");
    EXPECT_EQ(ShownLines(), 4);
}

TEST_F(GuaranteedWheelsForm, ClearsSelectionAndGridButNotTheLines) {
    Open();
    Click(*form_, panels[1].select);
    const QString status = Text(statusLine);
    Click(*form_, clearButton);
    EXPECT_EQ(Selected(), std::vector<int>());
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(Lines().Cell(0, 1), QStringLiteral("Num1"));
    EXPECT_EQ(Text(statusLine), status);
    Click(*form_, saveButton);
    Click(*form_, usualFilters.previousDraws);
    EXPECT_GT(ShownLines(), 0) << "a filter shows the lines again";
}

TEST_F(GuaranteedWheelsForm, DropsTheSixthOrAddsASeventhNumberByTheLotterysPicks) {
    Open();
    for (const int lottery : {Five, FivePlain, Seven}) {
        ChooseLottery(lottery);
        for (int panel = 0; panel < 3; ++panel) {
            Click(*form_, panels[panel].select);
            ExpectAsToldByPicks(Selected());
            EXPECT_EQ(Lines().Cell(1, 6).isEmpty(), lottery != Seven);
            EXPECT_EQ(Lines().Cell(1, 7).isEmpty(), lottery != Seven);
        }
    }
}

TEST_F(GuaranteedWheelsForm, MakesEveryWheelWithAsManyLinesAsItSays) {
    Open();
    ChooseLottery(Six60);
    for (int panel = 0; panel < 3; ++panel) {
        for (int item = 0; item < List(panel).count(); ++item) {
            List(panel).SetIndex(item);
            Click(*form_, panels[panel].select);
            EXPECT_EQ(QStringLiteral("Uses %1 lines.").arg(ShownLines()), Text(panels[panel].uses));
            EXPECT_EQ(QStringLiteral("Pick %1 numbers.").arg(Selected().size()),
                      Text(panels[panel].pick));
        }
    }
}

TEST_F(GuaranteedWheelsForm, TriesUntilItsLinesComply) {
    Open();
    ClickNumbers(1, 8);
    Find<QCheckBox>(*form_, oddEvenBox)->click();
    test_.state.Settings(setting::OddEvenStrength) = "2";
    test_.tick = 0.0001;
    Click(*form_, "Command3");
    for (const auto& row : Rows(6)) {
        const auto odd = std::ranges::count_if(row, [](int number) { return number % 2 != 0; });
        EXPECT_TRUE(odd >= 2 && odd <= 4);
    }
}

TEST_F(GuaranteedWheelsForm, SaysAfterTenSecondsThatSomeLinesFailAndKeepsThem) {
    Open();
    for (int number = 2; number <= 16; number += 2) ClickNumbers(number, number);
    Find<QCheckBox>(*form_, oddEvenBox)->click();
    test_.tick = 0.5;
    HourglassWatch watch(Label(statusLine), QEvent::Paint);
    Click(*form_, "Command3");
    EXPECT_TRUE(Text(statusLine)
                    .endsWith(QStringLiteral(" sec (Some lines do not comply with conditions)")));
    EXPECT_GT(watch.Events(), 3) << "the tries are told while they go on";
    EXPECT_EQ(ShownLines(), 4);
}

TEST_F(GuaranteedWheelsForm, LeavesEverythingButTheBoardAloneWhileBusy) {
    Open();
    ClickNumbers(1, 8);
    Click(*form_, "Command3");
    const QStringList before = Texts();
    test_.state.Busy = -1;
    for (const char* button : {"Command2", "Command3", "Command4", "Command12(0)", saveButton,
                               usualFilters.oddEven, usualFilters.highLow}) {
        Click(*form_, button);
    }
    ChooseLottery(Four);
    EXPECT_EQ(Texts(), before);
    EXPECT_EQ(Selected().size(), 8U);
    EXPECT_EQ(test_.state.LotteryName, "Lotto");
    EXPECT_EQ(saves_, 0);
    Click(*form_, clearButton);
    EXPECT_EQ(Selected(), std::vector<int>()) << "the board does not wait";
    EXPECT_EQ(ShownLines(), 0);
    ClickNumbers(1, 8);
    Click(*form_, closeButton);
    EXPECT_TRUE(form_->isVisible());
    test_.state.Busy = 0;
    Click(*form_, "Command3");
    EXPECT_FALSE(form_->isVisible()) << "the click on close is made up for";
}

TEST_F(GuaranteedWheelsForm, IsBusyUnderTheHourglassWhileItSelectsAndGenerates) {
    Open();
    std::set<int> busy;
    QObject::connect(Find<NumberBoard>(*form_, "Board"), &NumberBoard::changed, form_.get(),
                     [&] { busy.insert(test_.state.Busy); });
    Click(*form_, panels[0].select);
    EXPECT_EQ(busy, std::set<int>{-1});
    EXPECT_EQ(test_.state.Busy, 0);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(GuaranteedWheelsForm, GeneratesTheFirstPanelByTheKeysOfGenerate) {
    Open();
    ClickNumbers(1, 21);
    form_->activateWindow();
    QApplication::processEvents();
    QTest::keyClick(form_.get(), Qt::Key_F5);
    EXPECT_EQ(ShownLines(), 15);
    ExpectMessage("Error", " 21 numbers picked. You need 8 for this wheel.    ");
    Click(*form_, "Command3");
    QTest::keyClick(form_.get(), Qt::Key_F5);
    EXPECT_EQ(test_.messages.Shown(), 1) << "whichever panel was used before";
}

TEST_F(GuaranteedWheelsForm, FiltersTheShownLines) {
    Open();
    ExpectFiltersTakeLinesOut(usualFilters);
}

TEST_F(GuaranteedWheelsForm, TellsWhatTheVerifierFoundForTheWheelOfEachPanel) {
    Open();
    EXPECT_EQ(Tip(0), "Checked: all 54,264 selections of 6 from 21 numbers have a 3-match.");
    EXPECT_EQ(Tip(1), "Checked: all 56 selections of 3 from 8 numbers have a 3-match.");
    EXPECT_EQ(Tip(2), "Checked: all 924 selections of 6 from 12 numbers have a 5-match.");
    List(0).SetIndex(8);
    EXPECT_EQ(Tip(0).substr(0, Tip(0).find(", such as")),
              "Checked: 1,341,880 of 1,344,904 selections of 6 from 34 numbers have a 3-match; "
              "3,024 have none");
    for (const PanelNames& panel : panels) {
        EXPECT_EQ(Label(panel.promise).accessibleDescription(), Label(panel.promise).toolTip());
    }
    ChooseLottery(Five);
    EXPECT_NE(Tip(1).find("as a pick-5 lottery plays it"), std::string::npos);
    ChooseLottery(Seven);
    EXPECT_NE(Tip(2).find("not the random ones"), std::string::npos);
}

TEST_F(GuaranteedWheelsForm, TellsWhatHoldsForTheLinesThatAFilterHasLeftInTheirPanelOnly) {
    Open();
    const std::string first = Tip(0);
    ClickNumbers(1, 8);
    Click(*form_, "Command3");
    Click(*form_, usualFilters.longRuns);
    QApplication::processEvents();
    ASSERT_LT(ShownLines(), 4);
    EXPECT_EQ(Tip(0), first);
    EXPECT_NE(Tip(1).find(" lines left; "), std::string::npos) << Tip(1);
    Click(*form_, panels[0].select);
    EXPECT_EQ(Tip(1), "Checked: all 56 selections of 3 from 8 numbers have a 3-match.");
    List(0).SetIndex(1);
    test_.state.Lines(15, 1) = 1;
    for (int column = 1; column <= 6; ++column) {
        test_.state.Lines(15, column) = static_cast<std::int16_t>(column);
    }
    Click(*form_, usualFilters.longRuns);
    QApplication::processEvents();
    EXPECT_NE(Tip(0).find("22 numbers have a 3-match."), std::string::npos)
        << "the lines are of another wheel";
}

TEST_F(GuaranteedWheelsForm, CountsTheLinesLeftForItsOwnNumbersAndTheLotterysPicks) {
    Open();
    for (const auto& [lottery, left] :
         {std::pair(Lotto,
                    "Checked: 0 of 924 selections of 6 from 12 numbers have a 5-match in the 0 "
                    "lines left; 924 have none, such as 2, 4, 6, 8, 10 and 12."),
          std::pair(FivePlain,
                    "Checked: 0 of 792 selections of 5 from 12 numbers have a 5-match in the 0 "
                    "lines left; 792 have none, such as 2, 4, 6, 8 and 10.")}) {
        ChooseLottery(lottery);
        Click(*form_, clearButton);
        for (int number = 2; number <= 24; number += 2) ClickNumbers(number, number);
        Click(*form_, "Command4");
        Click(*form_, usualFilters.oddEven);
        QApplication::processEvents();
        EXPECT_EQ(Tip(2), left);
    }
}

TEST_F(GuaranteedWheelsForm, GivesColoursOfTheSkinToItsLabels) {
    TakeSkinColours("&HFFFFFF");
    Open();
    EXPECT_EQ(TextColour("Label5"), QColor(3, 0, 0));
    EXPECT_EQ(TextColour(statusLine), QColor(4, 0, 0));
    EXPECT_EQ(TextColour("Label1(1)"), QColor(Qt::black)) << "the board has its own";
}

TEST_F(GuaranteedWheelsForm, OpensTheHelpPageFromBothButtons) {
    Open();
    for (const char* help : {"Command10", "Command11"}) Click(*form_, help);
    EXPECT_EQ(test_.pages, std::vector<QString>(2, QStringLiteral("helpplay.html")));
}

TEST_F(GuaranteedWheelsForm, EndsInTheReportWithoutALottery) {
    test_.folder = MemoryFolder();
    EXPECT_THROW(Open(), Failure);
}

TEST_F(GuaranteedWheelsForm, WheelsTheNumbersOfRealLotteries) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    test_.state.Settings(setting::HistoryStrength) = "1";
    test_.tick = 0.01;
    Open();
    Find<QCheckBox>(*form_, previousDrawsBox)->click();
    for (int index = 0; index < Find<ListBox>(*form_, lotteryList)->count(); ++index) {
        ChooseLottery(index);
        for (int panel = 0; panel < 3; ++panel) {
            Click(*form_, panels[panel].select);
            EXPECT_EQ(QStringLiteral("Uses %1 lines.").arg(ShownLines()), Text(panels[panel].uses));
            ExpectAsToldByPicks(Selected());
        }
    }
}

}  // namespace

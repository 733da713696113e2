// SPDX-License-Identifier: GPL-3.0-or-later
#include "wheels/Wheel49.h"

#include <QCheckBox>
#include <QPushButton>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>

#include "core/failure.h"
#include "platform/widgets/Lists.h"
#include "test_folders.h"
#include "tests/support/hourglass_watch.h"
#include "tests/support/real_histories.h"
#include "tests/wheels/wheel_form.h"

namespace {

constexpr const char* statusLine = "Label5";

std::string SuppliedTable() {
    std::ifstream file(SUPPLIED_DATA "/wheel49.dat", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The lotteries of the wheel forms, and more that the wheel of 49 suits or not.
class WheelOf49Form : public WheelFormTest {
  protected:
    enum { Six59 = 6, SevenOf49, Six48 };

    WheelOf49Form() {
        AddLottery(test_.folder, "dbase7.txt", "Six of 59", "6,59,0,0,0");
        AddLottery(test_.folder, "dbase8.txt", "Seven of 49", "7,49,0,0,0");
        AddLottery(test_.folder, "dbase9.txt", "Six of 48", "6,48,0,0,0");
        test_.folder.Write("wheel49.dat", SuppliedTable());
    }

    void Open() { ShowForm(std::make_unique<Wheel49>(test_.program, nullptr)); }

    void Generate() { Click(*form_, generateButton); }

    void ExpectRefusal() {
        test_.messages.Expect(
            {.title = QStringLiteral("Sorry!"),
             .text = QStringLiteral("This method is not suitable for this lottery.  "),
             .sign = Sign::Exclamation});
        const int before = test_.messages.Shown();
        Generate();
        EXPECT_EQ(test_.messages.Shown(), before + 1);
        EXPECT_EQ(test_.state.Busy, 0);
    }

    void ExpectProof(const QString& text) {
        EXPECT_EQ(Label(bodyLabel).toolTip(), text);
        EXPECT_EQ(Label(bodyLabel).accessibleDescription(), text);
    }
};

TEST_F(WheelOf49Form, BearsItsWords) {
    Open();
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Wheel 49"));
    ExpectLabels({{"Label7", "Wheel 49"},
                  {"Label2",
                   "The aim is to wheel the numbers 1 to 49 in such a way as to guarantee one or "
                   "more 3-matches. It is specifically designed for pick-6 lotteries with a "
                   "minimum of 49 numbers in the draw."},
                  {"Label6", "Do not allow lottery entries with..."},
                  {"Label6(1)", "Filters"}});
    ExpectCaptions({{"Check1", "Too many odd or even numbers"},
                    {"Check2", "Too many low or high numbers"},
                    {"Check3", "Same numbers as a previous draw"},
                    {"Command3", " Help "}});
    ExpectFrameWords(usualFilters, "Command8");
    EXPECT_EQ(form_->findChild<QObject*>(QStringLiteral("HScroll1")), nullptr);
}

TEST_F(WheelOf49Form, OpensWithAnEmptyGridAndNoStatus) {
    Open();
    EXPECT_EQ(test_.state.LotteryName, "Lotto");
    EXPECT_EQ(ShownLines(), 0);
    EXPECT_EQ(Text(statusLine), QString());
    for (const char* box : {oddEvenBox, highLowBox, previousDrawsBox}) {
        EXPECT_FALSE(Find<QCheckBox>(*form_, box)->isChecked());
    }
}

TEST_F(WheelOf49Form, MakesOneHundredSeventyFiveLinesAtTheFirstTry) {
    Open();
    Generate();
    EXPECT_EQ(ShownLines(), 175);
    EXPECT_EQ(Text(statusLine), QStringLiteral("Tries: 1   Time: 0.000 sec"));
    std::set<int> seen;
    for (const auto& row : Rows(6)) {
        EXPECT_TRUE(std::ranges::is_sorted(row));
        EXPECT_EQ(std::set<int>(row.begin(), row.end()).size(), 6U);
        seen.insert(row.begin(), row.end());
    }
    EXPECT_EQ(seen.size(), 49U);
    EXPECT_EQ(*seen.rbegin(), 49);
}

TEST_F(WheelOf49Form, MakesOtherLinesOfTheSameShapeNextTime) {
    Open();
    Generate();
    const auto first = Rows(6);
    ++test_.seed;
    Generate();
    EXPECT_NE(Rows(6), first);
    EXPECT_EQ(ShownLines(), 175);
}

TEST_F(WheelOf49Form, PlaysTheSameLinesForTheSameSeed) {
    Open();
    Generate();
    const auto first = Rows(6);
    Generate();
    EXPECT_EQ(Rows(6), first) << "each generate begins with the numbers in their order";
}

TEST_F(WheelOf49Form, PlaysNoNumberAboveFortyNine) {
    Open();
    ChooseLottery(Six59);
    test_.state.Pool(50) = 77;
    Generate();
    EXPECT_EQ(test_.state.Pool(50), 77) << "the pool behind them is not touched";
    for (const auto& row : Rows(6)) EXPECT_LE(row.back(), 49);
    EXPECT_EQ(ShownLines(), 175);
}

TEST_F(WheelOf49Form, AddsARandomSeventhNumber) {
    Open();
    ChooseLottery(SevenOf49);
    Generate();
    for (const auto& row : Rows(7)) EXPECT_EQ(std::set<int>(row.begin(), row.end()).size(), 7U);
    EXPECT_EQ(ShownLines(), 175);
}

TEST_F(WheelOf49Form, RefusesFewerPicksOrNumbersAndKeepsGridLinesAndStatus) {
    Open();
    Generate();
    const QString status = Text(statusLine);
    const int first = test_.state.Lines(1, 1);
    for (const int lottery : std::vector<int>{Five, Four, Six40, Six48, Seven}) {
        ChooseLottery(lottery);
        EXPECT_EQ(ShownLines(), 0) << "a change of lottery empties the grid";
        ExpectRefusal();
        EXPECT_EQ(Text(statusLine), status);
        EXPECT_EQ(test_.state.Lines(1, 1), first);
    }
}

TEST_F(WheelOf49Form, WritesItsStatusOnceAtTheEndOfItsTries) {
    Open();
    Find<QCheckBox>(*form_, oddEvenBox)->click();
    test_.tick = 0.5;
    HourglassWatch watch(Label(statusLine), QEvent::Paint);
    Generate();
    EXPECT_LE(watch.Events(), 1);
    EXPECT_TRUE(Text(statusLine)
                    .endsWith(QStringLiteral(" sec (Some lines do not comply with conditions)")))
        << Text(statusLine).toStdString();
    EXPECT_EQ(ShownLines(), 175) << "the last try stands";
}

TEST_F(WheelOf49Form, TriesUntilThePreviousDrawsAreKeptFree) {
    Open();
    for (const char* box : {highLowBox, previousDrawsBox}) Find<QCheckBox>(*form_, box)->click();
    test_.state.Settings(setting::HighLowStrength) = "1";
    test_.state.Settings(setting::HistoryStrength) = "1";
    test_.tick = 0.00001;
    Generate();
    EXPECT_EQ(ShownLines(), 175);
    for (const auto& row : Rows(6)) {
        EXPECT_NE(row, (std::vector<int>{3, 17, 22, 34, 41, 48}));
    }
}

TEST_F(WheelOf49Form, IsBusyWhileItMakesItsLines) {
    Open();
    std::set<int> busy;
    test_.services.seconds = [&] {
        busy.insert(test_.state.Busy);
        return 0.0;
    };
    Generate();
    EXPECT_EQ(busy, std::set<int>{-1});
    EXPECT_EQ(test_.state.Busy, 0);
}

TEST_F(WheelOf49Form, LeavesEverythingAloneWhileBusy) {
    Open();
    Generate();
    const QStringList before = Texts();
    test_.state.Busy = -1;
    for (const char* button : {generateButton, saveButton, usualFilters.oddEven}) {
        Click(*form_, button);
    }
    ChooseLottery(Four);
    EXPECT_EQ(Texts(), before);
    EXPECT_EQ(test_.state.LotteryName, "Lotto");
    EXPECT_EQ(saves_, 0);
    Click(*form_, closeButton);
    EXPECT_TRUE(form_->isVisible());
    test_.state.Busy = 0;
}

TEST_F(WheelOf49Form, FiltersTheShownLines) {
    Open();
    ExpectFiltersTakeLinesOut(usualFilters);
}

TEST_F(WheelOf49Form, OpensTheHelpPageFromBothButtons) {
    Open();
    for (const char* help : {"Command3", "Command8"}) Click(*form_, help);
    EXPECT_EQ(test_.pages, std::vector<QString>(2, QStringLiteral("helpplay.html")));
}

TEST_F(WheelOf49Form, GivesColoursOfTheSkinToItsLabels) {
    TakeSkinColours("&HFFFFFF");
    Open();
    EXPECT_EQ(TextColour(lotteryPrompt), QColor(3, 0, 0));
    EXPECT_EQ(TextColour(statusLine), QColor(4, 0, 0));
}

TEST_F(WheelOf49Form, TellsWhatTheVerifierFoundForItsTable) {
    const QString all =
        QStringLiteral("Checked: all 13,983,816 selections of 6 from 49 numbers have a 3-match.");
    Open();
    ExpectProof(all);
    ChooseLottery(Six59);
    ExpectProof(all);
    ChooseLottery(SevenOf49);
    ExpectProof(all % QStringLiteral(" This counts the six numbers that the wheel gives each line, "
                                     "not the random ones."));
    ChooseLottery(Four);
    ExpectProof(all);
}

TEST_F(WheelOf49Form, TellsWhatHoldsForTheLinesThatAFilterHasLeft) {
    Open();
    Generate();
    Click(*form_, usualFilters.oddEven);
    const int left = ShownLines();
    ASSERT_LT(left, 175);
    EXPECT_TRUE(Label(bodyLabel).toolTip().endsWith(QStringLiteral("not the lines left.")));
    QApplication::processEvents();
    EXPECT_TRUE(Label(bodyLabel).toolTip().contains(
        QStringLiteral(" of 13,983,816 selections of 6 from 49 numbers have a 3-match in the %1 "
                       "lines left; ")
            .arg(left)))
        << Label(bodyLabel).toolTip().toStdString();
    Generate();
    EXPECT_TRUE(Label(bodyLabel).toolTip().startsWith(QStringLiteral("Checked: all 13,983,816")));
    MakeOnlyLine({2, 4, 6, 8, 10, 12});
    Click(*form_, usualFilters.oddEven);
    QApplication::processEvents();
    EXPECT_TRUE(Label(bodyLabel).toolTip().endsWith(
        QStringLiteral("13,983,816 have none, such as 1, 2, 3, 4, 5 and 6.")))
        << Label(bodyLabel).toolTip().toStdString();
}

TEST_F(WheelOf49Form, TellsWhatATableOfTheUsersOwnLeavesOut) {
    std::string table = SuppliedTable();
    table.replace(0, 12, "1,5,6,7,9,12");
    ASSERT_EQ(table.substr(0, 14), "1,5,6,7,9,12\r\n");
    test_.folder.Write("wheel49.dat", table);
    Open();
    EXPECT_TRUE(Label(bodyLabel).toolTip().contains(QStringLiteral(" have none, such as numbers ")))
        << Label(bodyLabel).toolTip().toStdString();
}

TEST_F(WheelOf49Form, EndsInTheReportWithoutItsTableOrWithADamagedOne) {
    test_.folder.Delete("wheel49.dat");
    EXPECT_THROW(Open(), Failure);
    test_.folder.Write("wheel49.dat", "1,2,3\r\n");
    EXPECT_THROW(Open(), Failure);
    test_.folder.Write("wheel49.dat", SuppliedTable());
    Open();
    test_.folder.Delete("wheel49.dat");
    Generate();
    EXPECT_EQ(ShownLines(), 175) << "it is read once, when the form opens";
}

TEST_F(WheelOf49Form, EndsInTheReportAtAPlaceOutsideThePool) {
    std::string table = SuppliedTable();
    table.replace(0, 1, "121");
    test_.folder.Write("wheel49.dat", table);
    Open();
    EXPECT_FALSE(TakeFailure().has_value());
    Generate();
    EXPECT_TRUE(TakeFailure().has_value());
    test_.state.Busy = 0;
}

TEST_F(WheelOf49Form, WheelsRealLotteriesThatItSuits) {
    test_.folder = MemoryFolder();
    if (!AddRealHistories(test_.folder)) GTEST_SKIP() << "no folder of real histories";
    test_.folder.Write("wheel49.dat", SuppliedTable());
    Open();
    int suited = 0;
    for (int index = 0; index < Find<ListBox>(*form_, lotteryList)->count(); ++index) {
        ChooseLottery(index);
        if (!wheel49::Suits(test_.state)) {
            ExpectRefusal();
            continue;
        }
        ++suited;
        Generate();
        EXPECT_EQ(ShownLines(), 175) << test_.state.LotteryName;
    }
    EXPECT_GT(suited, 0);
}

}  // namespace

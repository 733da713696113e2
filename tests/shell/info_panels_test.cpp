// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <cmath>

#include "core/settings.h"
#include "platform/forms/ScrollingBody.h"
#include "platform/widgets/Chart.h"
#include "platform/widgets/DatePicker.h"
#include "platform/widgets/Lists.h"
#include "tests/shell/letters.h"
#include "tests/shell/main_window.h"
#include "tests/shell/telling_form.h"

namespace {

constexpr int itemCount = 8;

/// Every control of the panels.
std::vector<std::string> PanelControls() {
    std::vector<std::string> controls = {
        biochartHeading, birthDateLabel,   birthDatePicker, updateButton,     moreButton,
        todayOption,     tomorrowOption,   biochart,        checklistHeading, newItemBox,
        addItemButton,   databasesHeading, databasesList,   syndicateHeading, syndicateName,
        managerHeading,  managerName,      notesHeading,    notesKeys,        notePad};
    for (int i = 0; i < itemCount; ++i) {
        controls.push_back(ItemBox(i));
        controls.push_back(ClearButton(i));
    }
    return controls;
}

class InfoPanelsOfWindow : public MainWindow {
  protected:
    void StartShown() {
        MakeDefaultSettings(program.state, program.folder);
        program.state.Settings(setting::InfoPanels) = "1";
        SaveSettings(program.state, program.folder);
        Start();
    }

    void Quit() { Choose("FileExit"); }

    QString TextOf(const char* name) {
        return Find<QWidget>(*window, name)->property("text").toString();
    }

    QCheckBox* Item(int index) { return Find<QCheckBox>(*window, ItemBox(index).c_str()); }

    double Value(int column) { return Find<Chart>(*window, biochart)->value(1, column); }

    std::string NotesFile() { return program.folder.Read("Notes.txt"); }
};

const std::string sevenUntouchedItems =
    " 0 ,Analyse lottery draws\r\n 0 ,Generate lottery entries\r\n 0 ,Fill in payslips\r\n"
    " 0 ,Buy lottery tickets\r\n 0 ,Check results\r\n 0 ,Collect winnings!\r\n 0 ,\r\n";

TEST_F(InfoPanelsOfWindow, HaveTheCaptionsOfTheirControls) {
    StartShown();
    const std::vector<std::pair<const char*, const char*>> captions = {
        {biochartHeading, "   Biochart:"},
        {birthDateLabel, "Birth date:"},
        {updateButton, "Update"},
        {moreButton, "More"},
        {todayOption, "Today"},
        {tomorrowOption, "Tomorrow"},
        {checklistHeading, "  Checklist:"},
        {addItemButton, "Add"},
        {databasesHeading, "  Databases:"},
        {syndicateHeading, "Syndicate:"},
        {managerHeading, "Manager:"},
        {notesHeading, "  Notes:"},
        {notesKeys, "(Ctr+C=Copy / Ctrl+X=Cut / Ctrl+V=Paste)"}};
    for (const auto& [name, caption] : captions) {
        EXPECT_EQ(TextOf(name).toStdString(), caption) << name;
    }
    const std::array<const char*, itemCount> items = {"Analyse lottery draws",
                                                      "Generate lottery entries",
                                                      "Fill in payslips",
                                                      "Buy lottery tickets",
                                                      "Check results",
                                                      "Collect winnings!",
                                                      "",
                                                      ""};
    for (int i = 0; i < itemCount; ++i) {
        EXPECT_EQ(Item(i)->text().toStdString(), items.at(static_cast<std::size_t>(i)));
        const std::string name = ClearButton(i);
        EXPECT_EQ(TextOf(name.c_str()), QStringLiteral("Clear"));
        EXPECT_EQ(Find<QWidget>(*window, name.c_str())->toolTip(),
                  QStringLiteral("Clear this item"));
    }
    EXPECT_EQ(Find<QWidget>(*window, newItemBox)->toolTip(),
              QStringLiteral("Type in an item and click Add"));
    EXPECT_EQ(Find<QWidget>(*window, addItemButton)->toolTip(),
              QStringLiteral("Type in a checkist item and click Add"));
}

TEST_F(InfoPanelsOfWindow, StartHidden) {
    Start();
    for (const std::string& name : PanelControls()) {
        EXPECT_FALSE(Find<QWidget>(*window, name.c_str())->isVisible()) << name;
        EXPECT_TRUE(Find<QWidget>(*window, name.c_str())->isHidden()) << name;
    }
    EXPECT_EQ(Setting(setting::InfoPanels), "0");
}

TEST_F(InfoPanelsOfWindow, AreShownAndHiddenAllTogetherAndTheSettingFollows) {
    Start();
    Choose("FileNotes");
    for (const std::string& name : PanelControls()) {
        EXPECT_TRUE(Find<QWidget>(*window, name.c_str())->isVisible()) << name;
    }
    EXPECT_TRUE(Find<QWidget>(*window, toolbarBackground)->isVisible());
    EXPECT_EQ(Setting(setting::InfoPanels), "1");
    Choose("FileNotes");
    EXPECT_FALSE(Find<QWidget>(*window, biochartHeading)->isVisible());
    EXPECT_FALSE(Find<QWidget>(*window, notePad)->isVisible());
    EXPECT_TRUE(Find<QWidget>(*window, toolbarBackground)->isVisible()) << "the toolbar stays";
    EXPECT_EQ(Setting(setting::InfoPanels), "0");
}

TEST_F(InfoPanelsOfWindow, GiveTheFocusToTheNotePad) {
    Start();
    Choose("FileNotes");
    EXPECT_EQ(window->focusWidget(), Find<QWidget>(*window, notePad));
}

TEST_F(InfoPanelsOfWindow, AreShownAfterARestartWhereTheyWereShown) {
    Start();
    Choose("FileNotes");
    Quit();
    Start();
    EXPECT_TRUE(Find<QWidget>(*window, biochartHeading)->isVisible());
    EXPECT_EQ(Setting(setting::InfoPanels), "1");
}

TEST_F(InfoPanelsOfWindow, StayHiddenForAnySettingButOne) {
    WriteSettings(setting::InfoPanels, "10");
    Start();
    EXPECT_TRUE(Find<QWidget>(*window, biochartHeading)->isHidden());
}

TEST_F(InfoPanelsOfWindow, HideTheWelcomeWhileTheyAreShown) {
    Start();
    EXPECT_TRUE(Find<QWidget>(*window, "WelcomeTitle")->isVisible());
    Choose("FileNotes");
    EXPECT_FALSE(Find<QWidget>(*window, "WelcomeTitle")->isVisible());
}

TEST_F(InfoPanelsOfWindow, TheChecklistIsWrittenWithBlanksRoundTheNumberAndNoLineEndAfterTheNote) {
    StartShown();
    Item(1)->setChecked(true);
    Type(*window, notePad, QStringLiteral("Buy a ticket"));
    Quit();
    EXPECT_EQ(
        NotesFile(),
        " 0 ,Analyse lottery draws\r\n 1 ,Generate lottery entries\r\n 0 ,Fill in payslips\r\n"
        " 0 ,Buy lottery tickets\r\n 0 ,Check results\r\n 0 ,Collect winnings!\r\n"
        " 0 ,\r\n 0 ,\r\nBuy a ticket");
}

TEST_F(InfoPanelsOfWindow, ATickAndACaptionSurviveARestart) {
    StartShown();
    Type(*window, newItemBox, QStringLiteral("Phone the others"));
    Click(*window, addItemButton);
    Item(6)->setChecked(true);
    Quit();
    Start();
    EXPECT_EQ(Item(6)->text(), QStringLiteral("Phone the others"));
    EXPECT_TRUE(Item(6)->isChecked());
    EXPECT_FALSE(Item(5)->isChecked());
}

TEST_F(InfoPanelsOfWindow, AnItemWithAnEmptyCaptionSurvivesARestart) {
    StartShown();
    Click(*window, ClearButton(2).c_str());
    Quit();
    Start();
    EXPECT_EQ(Item(2)->text(), QString());
    EXPECT_EQ(Item(1)->text(), QStringLiteral("Generate lottery entries"));
    EXPECT_EQ(Item(3)->text(), QStringLiteral("Buy lottery tickets"));
}

TEST_F(InfoPanelsOfWindow, ACommaCutsACaptionAndTheRestTakesTheNextPlace) {
    program.folder.Write("Notes.txt", " 0 ,Buy, pay\r\n" + sevenUntouchedItems);
    StartShown();
    EXPECT_EQ(Item(0)->text(), QStringLiteral("Buy"));
    EXPECT_EQ(Item(1)->text(), QStringLiteral("0")) << "the next line's number became a caption";
}

TEST_F(InfoPanelsOfWindow, NotesWithTheChecklistAloneYieldAnEmptyNote) {
    program.folder.Write("Notes.txt", sevenUntouchedItems + " 1 ,Rest\r\n");
    StartShown();
    EXPECT_EQ(Find<QPlainTextEdit>(*window, notePad)->toPlainText(), QString());
    EXPECT_TRUE(Item(7)->isChecked());
    EXPECT_EQ(Item(7)->text(), QStringLiteral("Rest"));
}

TEST_F(InfoPanelsOfWindow, ANoteOfSeveralLinesComesBackByteForByte) {
    const std::string file = sevenUntouchedItems +
                             " 0 ,\r\nOne\r\n\r\nthree \xA3"
                             "5\xA0per week, \"all\"\r\n";
    program.folder.Write("Notes.txt", file);
    StartShown();
    Quit();
    EXPECT_EQ(NotesFile(), file);
}

TEST_F(InfoPanelsOfWindow, WhatWindows1252DoesNotKnowBecomesAQuestionMark) {
    StartShown();
    Find<QPlainTextEdit>(*window, notePad)->setPlainText(QString(QChar(0x4e2d)) + QChar(0x20ac));
    Quit();
    EXPECT_TRUE(NotesFile().ends_with("\r\n?\x80"));
}

TEST_F(InfoPanelsOfWindow, AddTakesTheFirstFreeItemAndKeepsTheBox) {
    StartShown();
    Click(*window, ClearButton(3).c_str());
    Type(*window, newItemBox, QStringLiteral("Meet at six"));
    Click(*window, addItemButton);
    EXPECT_EQ(Item(3)->text(), QStringLiteral("Meet at six"));
    EXPECT_EQ(Item(6)->text(), QString());
    EXPECT_EQ(TextOf(newItemBox), QStringLiteral("Meet at six"));
}

TEST_F(InfoPanelsOfWindow, AnItemKeepsTheBlanksAroundIt) {
    StartShown();
    Type(*window, newItemBox, QStringLiteral("  Meet at six "));
    Click(*window, addItemButton);
    EXPECT_EQ(Item(6)->text(), QStringLiteral("  Meet at six "));
    Quit();
    EXPECT_NE(NotesFile().find("\r\n 0 ,  Meet at six \r\n"), std::string::npos);
}

TEST_F(InfoPanelsOfWindow, AnItemOfTwoPastedLinesStaysOneLineOfTheFile) {
    StartShown();
    QApplication::clipboard()->setText(QStringLiteral("Phone Ann\r\nand Tom\r\n"));
    Find<QLineEdit>(*window, newItemBox)->paste();
    Click(*window, addItemButton);
    Quit();
    EXPECT_NE(NotesFile().find("\r\n 0 ,Phone Ann and Tom\r\n 0 ,\r\n"), std::string::npos);
}

TEST_F(InfoPanelsOfWindow, AddDoesNothingWhereEveryItemIsTaken) {
    StartShown();
    Type(*window, newItemBox, QStringLiteral("Extra"));
    for (int i = 0; i < 3; ++i) Click(*window, addItemButton);
    EXPECT_EQ(Item(0)->text(), QStringLiteral("Analyse lottery draws"));
    EXPECT_EQ(Item(6)->text(), QStringLiteral("Extra"));
    EXPECT_EQ(Item(7)->text(), QStringLiteral("Extra"));
}

TEST_F(InfoPanelsOfWindow, AnItemShowsItsAmpersandAndKeepsItOnce) {
    StartShown();
    Type(*window, newItemBox, QStringLiteral("Pay & collect"));
    Click(*window, addItemButton);
    EXPECT_EQ(Item(6)->text(), QStringLiteral("Pay && collect"));
    Quit();
    EXPECT_NE(NotesFile().find(" 0 ,Pay & collect\r\n"), std::string::npos);
}

TEST_F(InfoPanelsOfWindow, ClearTakesCaptionAndTick) {
    StartShown();
    Item(4)->setChecked(true);
    Click(*window, ClearButton(4).c_str());
    EXPECT_EQ(Item(4)->text(), QString());
    EXPECT_FALSE(Item(4)->isChecked());
}

TEST_F(InfoPanelsOfWindow, ChecklistAndNotesAreWrittenAtQuitOnly) {
    StartShown();
    Item(0)->setChecked(true);
    Choose("FileNotes");
    EXPECT_FALSE(program.folder.Exists("Notes.txt"));
}

TEST_F(InfoPanelsOfWindow, TheBirthDateOfTheSettingsIsShownInItsForm) {
    StartShown();
    auto* picker = Find<DatePicker>(*window, birthDatePicker);
    EXPECT_EQ(picker->displayFormat(), QStringLiteral("ddd d MMM yyyy"));
    EXPECT_EQ(MediumDate(picker->Value()), "01-Jan-1970");
    EXPECT_EQ(Setting(setting::BirthDate), "01-Jan-1970")
        << "drawing the chart writes the date back";
}

TEST_F(InfoPanelsOfWindow, TheChartIsOneRowOfFourSeries) {
    StartShown();
    auto* chart = Find<Chart>(*window, biochart);
    EXPECT_EQ(chart->rowCount(), 1);
    ASSERT_EQ(chart->columnCount(), 4);
    EXPECT_EQ(chart->columnLabel(1), QStringLiteral("Intellectual"));
    EXPECT_EQ(chart->columnLabel(2), QStringLiteral("Emotional"));
    EXPECT_EQ(chart->columnLabel(3), QStringLiteral("Intuition"));
    EXPECT_EQ(chart->columnLabel(4), QStringLiteral("Luck"));
}

double Wave(int days, int period) {
    return 10 * std::sin(3.142 * (days % period) * 360.0 / period / 180);
}

TEST_F(InfoPanelsOfWindow, TheChartShowsTheThreeWavesAndTheirAverage) {
    StartShown();
    const int days = 12935;  // from 1 January 1970 to 1 June 2005
    EXPECT_NEAR(Value(1), Wave(days, 33), 1e-9);
    EXPECT_NEAR(Value(2), Wave(days, 28), 1e-9);
    EXPECT_NEAR(Value(3), Wave(days, 38), 1e-9);
    EXPECT_NEAR(Value(4), (Wave(days, 33) + Wave(days, 28) + Wave(days, 38)) / 3, 1e-9);
}

TEST_F(InfoPanelsOfWindow, TomorrowAddsADayAtOnce) {
    StartShown();
    EXPECT_TRUE(Find<QRadioButton>(*window, todayOption)->isChecked());
    Click(*window, tomorrowOption);
    EXPECT_NEAR(Value(1), Wave(12936, 33), 1e-9);
    Click(*window, todayOption);
    EXPECT_NEAR(Value(1), Wave(12935, 33), 1e-9);
}

TEST_F(InfoPanelsOfWindow, TheDayIsAddedTooWhereTheDateLiesAfterToday) {
    StartShown();
    Find<DatePicker>(*window, birthDatePicker)->SetValue(DaysAfter(program.today, 5));
    Click(*window, tomorrowOption);
    EXPECT_NEAR(Value(1), Wave(-4, 33), 1e-9);
}

TEST_F(InfoPanelsOfWindow, EachDrawingKeepsTheBirthDateInTheSettings) {
    StartShown();
    auto* picker = Find<DatePicker>(*window, birthDatePicker);
    picker->SetValue(std::chrono::year(1985) / 7 / 23);
    EXPECT_EQ(Setting(setting::BirthDate), "01-Jan-1970");
    Click(*window, tomorrowOption);
    EXPECT_EQ(Setting(setting::BirthDate), "23-Jul-1985");
    picker->SetValue(std::chrono::year(1990) / 2 / 3);
    Click(*window, todayOption);
    EXPECT_EQ(Setting(setting::BirthDate), "03-Feb-1990");
}

TEST_F(InfoPanelsOfWindow, ADayThatIsSetByCodeIsDrawnTooAndAClickOnTheSameDayDrawsAgain) {
    StartShown();
    Find<QRadioButton>(*window, tomorrowOption)->setChecked(true);
    EXPECT_NEAR(Value(1), Wave(12936, 33), 1e-9);
    Find<DatePicker>(*window, birthDatePicker)->SetValue(program.today);
    Click(*window, tomorrowOption);
    EXPECT_NEAR(Value(1), Wave(1, 33), 1e-9);
}

TEST_F(InfoPanelsOfWindow, OnTheDayOfBirthAllFourValuesAreZero) {
    StartShown();
    Find<DatePicker>(*window, birthDatePicker)->SetValue(program.today);
    Click(*window, updateButton);
    for (int column = 1; column <= 4; ++column) EXPECT_EQ(Value(column), 0);
    EXPECT_EQ(Setting(setting::BirthDate), "01-Jun-2005");
}

TEST_F(InfoPanelsOfWindow, ADateAfterTodayDrawsANegativeWave) {
    StartShown();
    Find<DatePicker>(*window, birthDatePicker)->SetValue(DaysAfter(program.today, 5));
    Click(*window, updateButton);
    EXPECT_NEAR(Value(1), Wave(-5, 33), 1e-9);
    EXPECT_LT(Value(1), 0);
}

TEST_F(InfoPanelsOfWindow, QuittingKeepsTheBirthDateOfTheLastDrawing) {
    StartShown();
    Find<DatePicker>(*window, birthDatePicker)->SetValue(program.today);
    Quit();
    EXPECT_EQ(Setting(setting::BirthDate), "01-Jan-1970");
}

TEST_F(InfoPanelsOfWindow, MoreOpensTheBiorhythmsWhichReadTheSettingsAndLeaveThePanelAsItIs) {
    StartShown();
    auto* picker = Find<DatePicker>(*window, birthDatePicker);
    picker->SetValue(program.today);
    InDialog([this] { Click(*window, moreButton); },
             [](QDialog& form) {
                 EXPECT_EQ(form.objectName(), QStringLiteral("Biorhythm"));
                 auto* ownPicker = Find<DatePicker>(form, birthDatePicker);
                 EXPECT_EQ(MediumDate(ownPicker->Value()), "01-Jan-1970");
                 ownPicker->SetValue(std::chrono::year(1985) / 7 / 23);
                 Click(form, "Command1");
             });
    EXPECT_EQ(Setting(setting::BirthDate), "23 Jul 1985");
    EXPECT_EQ(picker->Value(), program.today);
    EXPECT_NEAR(Value(1), Wave(12935, 33), 1e-9);
}

TEST_F(InfoPanelsOfWindow, ListTheDatabasesWithNoneChosen) {
    program.folder.Write("dbase2.txt", "Second\r\n\r\n6\r\n49\r\n0\r\n0\r\n0\r\n");
    program.folder.Write("dbase1.txt", "First\r\n\r\n6\r\n49\r\n0\r\n0\r\n0\r\n");
    StartShown();
    auto* list = Find<ListBox>(*window, databasesList);
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(0)->text(), QStringLiteral("First"));
    EXPECT_EQ(list->item(1)->text(), QStringLiteral("Second"));
    EXPECT_EQ(list->Index(), -1);
}

TEST_F(InfoPanelsOfWindow, AClickOnADatabaseLoadsNothing) {
    program.folder.Write("dbase1.txt", "First\r\n\r\n6\r\n49\r\n0\r\n0\r\n0\r\n");
    StartShown();
    Find<ListBox>(*window, databasesList)->SetIndex(0);
    EXPECT_EQ(program.state.LotteryName, "");
    EXPECT_EQ(program.state.Picks, 0);
}

std::string SyndicateFile(const std::string& name, const std::string& manager) {
    std::string file;
    for (int row = 0; row <= 100; ++row) {
        for (int column = 0; column <= 10; ++column) {
            const std::string field = row > 0        ? ""
                                      : column == 0  ? manager
                                      : column == 10 ? name
                                                     : "";
            file += (column > 0 ? ",\"" : "\"") + field + "\"";
        }
        file += "\r\n";
    }
    return file;
}

TEST_F(InfoPanelsOfWindow, ShowTheSyndicateOfTheSettings) {
    MakeDefaultSettings(program.state, program.folder);
    program.state.Settings(setting::SyndicateFile) = "SMembers.000";
    SaveSettings(program.state, program.folder);
    program.folder.Write("SMembers.000", SyndicateFile("The <b>Wednesday</b> Club", "Ann"));
    Start();
    EXPECT_EQ(TextOf(syndicateName), QStringLiteral("The <b>Wednesday</b> Club"));
    EXPECT_EQ(TextOf(managerName), QStringLiteral("Ann"));
    EXPECT_EQ(Find<QLabel>(*window, syndicateName)->textFormat(), Qt::PlainText);
}

TEST_F(InfoPanelsOfWindow, WithoutASyndicateTheDesignTextGivesWayToEmptyTexts) {
    Start();
    EXPECT_EQ(TextOf(syndicateName), QString());
    EXPECT_EQ(TextOf(managerName), QString());
    EXPECT_FALSE(Entry("SyndicateManager")->isEnabled());
}

TEST_F(InfoPanelsOfWindow, ASyndicateEnablesItsEntries) {
    MakeDefaultSettings(program.state, program.folder);
    program.state.Settings(setting::SyndicateFile) = "SMembers.000";
    SaveSettings(program.state, program.folder);
    program.folder.Write("SMembers.000", SyndicateFile("Club", "Ann"));
    Start();
    for (const char* entry :
         {"SyndicateMembers", "SyndicatePayments", "SyndicatesNotes", "SyndicateManager"}) {
        EXPECT_TRUE(Entry(entry)->isEnabled()) << entry;
    }
}

TEST_F(InfoPanelsOfWindow, ASyndicateWithoutNameOrManagerEnablesNothing) {
    MakeDefaultSettings(program.state, program.folder);
    program.state.Settings(setting::SyndicateFile) = "SMembers.000";
    SaveSettings(program.state, program.folder);
    for (const auto& [name, manager] :
         {std::pair("Club", ""), std::pair("", "Ann"), std::pair("", "")}) {
        program.folder.Write("SMembers.000", SyndicateFile(name, manager));
        Start();
        EXPECT_EQ(TextOf(syndicateName), QString::fromLatin1(name));
        EXPECT_EQ(TextOf(managerName), QString::fromLatin1(manager));
        for (const char* entry :
             {"SyndicateMembers", "SyndicatePayments", "SyndicatesNotes", "SyndicateManager"}) {
            EXPECT_FALSE(Entry(entry)->isEnabled()) << entry << " of " << name << manager;
        }
    }
}

TEST_F(InfoPanelsOfWindow, ShowAnotherSyndicateOnceTheFormThatOpenedItHasClosed) {
    program.folder.Write("SMembers.003", SyndicateFile("Club", "Ann"));
    Start();
    TellingForm::whileOpen = [](Program& opened) {
        opened.state.Settings(setting::SyndicateFile) = "SMembers.003";
    };
    CatalogueEntry entry{.menuEntry = "", .form = "TellingForm", .make = MakeTellingForm};
    window->Open(entry);
    EXPECT_EQ(TextOf(syndicateName), QString()) << "no form that changes the syndicate";
    entry.changesSyndicate = true;
    window->Open(entry);
    TellingForm::whileOpen = {};
    EXPECT_EQ(TextOf(syndicateName), QStringLiteral("Club"));
    EXPECT_EQ(TextOf(managerName), QStringLiteral("Ann"));
}

TEST_F(InfoPanelsOfWindow, ASyndicateWhoseFileIsGoneIsForgotten) {
    MakeDefaultSettings(program.state, program.folder);
    program.state.Settings(setting::SyndicateFile) = "SMembers.007";
    SaveSettings(program.state, program.folder);
    Start();
    EXPECT_EQ(Setting(setting::SyndicateFile), "");
    EXPECT_EQ(TextOf(syndicateName), QString());
}

TEST_F(InfoPanelsOfWindow, FitASmallScreenAtOneAndAHalfScale) {
    StartShown();
    const auto* body = window->findChild<ScrollingBody*>();
    const QSize smallest = window->size() - body->size() + body->Content().minimumSizeHint();
    EXPECT_LE(smallest.width(), 910);
    EXPECT_LE(smallest.height(), 480);
    EXPECT_LE(window->width(), 1366);
    EXPECT_LE(window->height(), 768);
}

TEST_F(InfoPanelsOfWindow, TheSuppliedItemsAreReadWholeInLargeLetters) {
    const Letters letters(12);
    StartShown();
    window->resize(window->minimumSizeHint());
    QApplication::processEvents();
    for (int i = 0; i < itemCount; ++i) EXPECT_GE(Item(i)->width(), Item(i)->sizeHint().width());
}

TEST_F(InfoPanelsOfWindow, ALongItemOrNameDoesNotWidenTheWindow) {
    StartShown();
    const QWidget& panels = window->findChild<ScrollingBody*>()->Content();
    const int width = panels.minimumSizeHint().width();
    Type(*window, newItemBox, QString(200, QLatin1Char('w')));
    Click(*window, addItemButton);
    EXPECT_EQ(panels.minimumSizeHint().width(), width);
}

TEST_F(InfoPanelsOfWindow, TheKeyboardGoesThroughThemInReadingOrder) {
    StartShown();
    const std::vector<std::string> order = {
        birthDatePicker, updateButton,   moreButton, todayOption,    tomorrowOption,
        ItemBox(0),      ClearButton(0), ItemBox(1), ClearButton(7), newItemBox,
        addItemButton,   databasesList,  notePad};
    std::vector<QString> walked;
    QWidget* start = Find<QWidget>(*window, ToolbarButton(0).c_str());
    for (QWidget* next = start->nextInFocusChain(); next != start;
         next = next->nextInFocusChain()) {
        walked.push_back(next->objectName());
    }
    qsizetype last = -1;
    for (const std::string& name : order) {
        const auto found = std::ranges::find(walked, QString::fromStdString(name));
        ASSERT_NE(found, walked.end()) << name;
        EXPECT_GT(found - walked.begin(), last) << name;
        last = found - walked.begin();
    }
}

}  // namespace

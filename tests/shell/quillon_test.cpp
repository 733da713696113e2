// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTemporaryDir>

#include "core/failure.h"
#include "core/saved_entries.h"
#include "core/settings.h"
#include "platform/forms/RoomOnScreen.h"
#include "platform/system/WindowStates.h"
#include "platform/widgets/Lists.h"
#include "tests/shell/letters.h"
#include "tests/shell/main_window.h"
#include "tests/shell/telling_form.h"

namespace {

/// The list of every form that works on a lottery.
constexpr const char* lotteryList = "List1";

class QuillonForm : public MainWindow {
  protected:
    /// The failure that start-up ends with; empty where it does not fail.
    std::string FailureOfStart() {
        try {
            Start();
        } catch (const std::exception& failure) {
            return failure.what();
        }
        return {};
    }
};

std::string Database(const std::string& name) {
    return name + "\r\n\r\n6\r\n49\r\n0\r\n0\r\n0\r\n";
}

void SelectOption(Form& form) {
    form.findChild<QAbstractButton*>(QString::fromLatin1(tellingOption))->click();
}

TEST_F(QuillonForm, HasItsNameAndTitle) {
    Start();
    EXPECT_EQ(window->objectName(), QStringLiteral("Quillon"));
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Lottery Quillon World"));
}

TEST_F(QuillonForm, OpensNoLargerThanTheScreen) {
    Start();
    const QSize screen = window->screen()->availableSize();
    EXPECT_LT(window->width(), screen.width());
    EXPECT_LT(window->height(), screen.height());
}

// Runs on a small screen too.
TEST_F(QuillonForm, FitsTheScreenInLettersOfEverySize) {
    program.folder.Write("dbase1.txt", Database("First"));
    program.folder.Write(savedEntriesFile, "01 Jun 05,1,2,3,4,5,6,0,0,Lotto,Ann,dbase1.txt\r\n");
    for (const int points : letterSizes) {
        const Letters letters(points);
        Start();
        const QSize room = RoomOnScreen(*window);
        for (const char* shown : {"the welcome", "the panels"}) {
            EXPECT_LE(window->width(), room.width()) << shown << ", " << points << " pt";
            EXPECT_LE(window->height(), room.height()) << shown << ", " << points << " pt";
            const QWidget* focus = window->focusWidget();
            EXPECT_EQ(focus->visibleRegion().boundingRect(), focus->rect())
                << shown << ", " << points << " pt";
            Choose("FileNotes");
            QApplication::processEvents();
        }
        Choose("FileNotes");
        Choose("FileExit");
    }
}

TEST_F(QuillonForm, OpensAsLargeAsItWasLeft) {
    const QTemporaryDir folder;
    WindowStates windows(folder.filePath(QStringLiteral("windows.ini")));
    program.services.windows = &windows;
    Start();
    const QSize left = window->size() - QSize(50, 40);
    window->resize(left);
    Choose("FileExit");
    Start();
    EXPECT_EQ(window->size(), left);
}

TEST_F(QuillonForm, TheFirstRunInAnEmptyFolderMakesBackupAndSettingsWithoutAMessage) {
    Start();
    EXPECT_TRUE(program.folder.FolderExists("Backup"));
    EXPECT_TRUE(program.folder.Exists("quillon.ini"));
    EXPECT_FALSE(program.folder.Exists("Notes.txt"));
    EXPECT_EQ(Find<ListBox>(*window, databasesList)->count(), 0);
    EXPECT_FALSE(Find<QLabel>(*window, biochartHeading)->isVisible());
    EXPECT_EQ(program.messages.Shown(), 0);
}

TEST_F(QuillonForm, StartUpSetsTheLineBreak) {
    program.state.Crlf.clear();
    Start();
    EXPECT_EQ(program.state.Crlf, "\r\n");
}

TEST_F(QuillonForm, StartUpLoadsNoLottery) {
    program.folder.Write("dbase1.txt", Database("First"));
    Start();
    EXPECT_EQ(program.state.DbaseFiles(0), "dbase1.txt");
    EXPECT_EQ(program.state.DbaseFile, "");
    EXPECT_EQ(program.state.Picks, 0);
    EXPECT_EQ(program.state.MaxNum, 0);
}

TEST_F(QuillonForm, StartUpLeavesTheBirthDateOnDiskUntilTheFirstQuit) {
    Start();
    EXPECT_NE(program.folder.Read("quillon.ini").find("\r\n01/01/1970\r\n"), std::string::npos);
    Choose("FileExit");
    EXPECT_NE(program.folder.Read("quillon.ini").find("\r\n01-Jan-1970\r\n"), std::string::npos);
}

TEST_F(QuillonForm, AMalformedBirthDateFailsTheStart) {
    WriteSettings(setting::BirthDate, "the first of May");
    const auto before = program.folder.Snapshot();
    const std::string failure = FailureOfStart();
    EXPECT_NE(failure.find("quillon.ini, line 15"), std::string::npos) << failure;
    EXPECT_NE(failure.find("the first of May"), std::string::npos) << failure;
    EXPECT_EQ(program.folder.Snapshot(), before);
}

TEST_F(QuillonForm, AnEmptyBirthDateFailsTheStart) {
    WriteSettings(setting::BirthDate, "");
    EXPECT_NE(FailureOfStart().find("quillon.ini, line 15"), std::string::npos);
}

TEST_F(QuillonForm, ThePanelsAreReadBeforeTheBirthDateFails) {
    WriteSettings(setting::BirthDate, "x");
    program.folder.Write("Notes.txt", " 0 ,a\r\n 0 ,b\r\n");
    EXPECT_NE(FailureOfStart().find("Notes.txt"), std::string::npos) << "notes come first";
}

TEST_F(QuillonForm, BackupIsMadeBeforeTheSettings) {
    program.folder.FailAfterBytes(0);
    EXPECT_NE(FailureOfStart(), "");
    EXPECT_TRUE(program.folder.FolderExists("Backup"));
    EXPECT_FALSE(program.folder.Exists("quillon.ini"));
}

TEST_F(QuillonForm, EachStepOfTheStartComesInItsTurn) {
    WriteSettings(setting::BackgroundColour, "no colour");
    WriteSettings(setting::SkinBits, "2");
    WriteSettings(setting::BirthDate, "no date");
    WriteSettings(setting::SyndicateFile, "SMembers.000");
    const std::string settings = program.folder.Read("quillon.ini");
    program.folder.Write("quillon.ini", settings + "line 101\r\n");
    program.folder.Write("Notes.txt", "");
    program.folder.Write("SMembers.000", "");
    for (int i = 10; i < 87; ++i) {
        program.folder.Write("dbase" + std::to_string(i) + ".txt", Database("Lottery"));
    }
    EXPECT_NE(FailureOfStart().find("quillon.ini, line 101"), std::string::npos);
    program.folder.Write("quillon.ini", settings);
    EXPECT_NE(FailureOfStart().find("quillon.ini, line 5"), std::string::npos);
    WriteSettings(setting::SkinBits, "0");
    WriteSettings(setting::InfoPanels, "1");
    EXPECT_NE(FailureOfStart().find("Notes.txt"), std::string::npos);
    EXPECT_FALSE(Find<QLabel>(*window, biochartHeading)->isHidden())
        << "panels come before the notes";
    program.folder.Delete("Notes.txt");
    EXPECT_NE(FailureOfStart().find("quillon.ini, line 15"), std::string::npos);
    WriteSettings(setting::BirthDate, "01/01/1970");
    EXPECT_NE(FailureOfStart().find("SMembers.000"), std::string::npos);
    WriteSettings(setting::SyndicateFile, "");
    EXPECT_NE(FailureOfStart(), "") << "there are 77 databases";
    program.folder.Delete("dbase10.txt");
    EXPECT_EQ(FailureOfStart(), "");
}

TEST_F(QuillonForm, ASeventySeventhDatabaseFailsTheStart) {
    for (int i = 10; i < 87; ++i) {
        program.folder.Write("dbase" + std::to_string(i) + ".txt", Database("Lottery"));
    }
    program.folder.MakeFolder("Backup");
    WriteSettings(setting::PlayerName, "");
    const auto before = program.folder.Snapshot();
    EXPECT_NE(FailureOfStart(), "");
    EXPECT_EQ(program.folder.Snapshot(), before);
}

TEST_F(QuillonForm, AFailingStartKeepsWhatItHasMade) {
    for (int i = 10; i < 87; ++i) {
        program.folder.Write("dbase" + std::to_string(i) + ".txt", Database("Lottery"));
    }
    EXPECT_NE(FailureOfStart(), "");
    EXPECT_TRUE(program.folder.FolderExists("Backup"));
    EXPECT_TRUE(program.folder.Exists("quillon.ini"));
    EXPECT_FALSE(program.folder.Exists("Notes.txt"));
}

TEST_F(QuillonForm, AReadOnlyFolderFailsTheStart) {
    program.folder.FailAfterBytes(0);
    EXPECT_NE(FailureOfStart(), "");
}

TEST_F(QuillonForm, ASettingsFileOf101LinesFailsTheStart) {
    program.folder.Write("quillon.ini", [] {
        std::string lines;
        for (int i = 0; i < 101; ++i) lines += "\r\n";
        return lines;
    }());
    const auto before = program.folder.Snapshot();
    EXPECT_NE(FailureOfStart().find("quillon.ini"), std::string::npos);
    EXPECT_EQ(program.folder.Snapshot(), before);
}

TEST_F(QuillonForm, AColourThatIsNoNumberFailsTheStartWhereColoursAreSwitchedOn) {
    WriteSettings(setting::BackgroundColour, "blue");
    EXPECT_EQ(FailureOfStart(), "") << "colours are off";
    WriteSettings(setting::BackgroundColour, "blue");
    program.state.Settings(setting::SkinBits) = "3";
    SaveSettings(program.state, program.folder);
    EXPECT_NE(FailureOfStart().find("blue"), std::string::npos);
}

TEST_F(QuillonForm, ReadsTheSettingsAndLinksAfreshAfterPreferences) {
    Start();
    TellingForm::whileOpen = [](Program& opened) {
        opened.state.Settings(setting::LinkCaptions + 2) = "Our club";
        SaveSettings(opened.state, opened.folder);
        opened.state.Settings(setting::LinkCaptions + 1) = "never saved";
    };
    window->Open(SettingsForm());
    TellingForm::whileOpen = {};
    EXPECT_EQ(Setting(setting::LinkCaptions + 1), "UK National Lottery");
    EXPECT_EQ(Entry("LinksLink(2)")->text(), QStringLiteral("Our club"));
}

TEST_F(QuillonForm, AFormIsLoadedAndThenShown) {
    Start();
    window->Open({.menuEntry = "", .form = "TellingForm", .make = MakeTellingForm});
    EXPECT_EQ(TellingForm::steps, (std::vector<std::string>{"load", "exec"}));
}

TEST_F(QuillonForm, AnOptionIsSetAfterMessagesHaveRunAndBeforeTheFormIsShown) {
    Start();
    window->Open(
        {.menuEntry = "", .form = "TellingForm", .make = MakeTellingForm, .prepare = SelectOption});
    EXPECT_EQ(TellingForm::steps, (std::vector<std::string>{"load", "messages", "option", "exec"}));
}

TEST_F(QuillonForm, MessagesRunFiveTimesBeforeAnOptionIsSet) {
    Start();
    int runs = 0;
    QTimer everyRun;
    QObject::connect(&everyRun, &QTimer::timeout, &everyRun, [&runs] { ++runs; });
    everyRun.start(0);
    window->Open(
        {.menuEntry = "", .form = "TellingForm", .make = MakeTellingForm, .prepare = SelectOption});
    EXPECT_EQ(runs, 5);
}

TEST_F(QuillonForm, TheFourMatchWheelsSetTheirOptionWithoutMessages) {
    const CatalogueEntry* entry = FindCatalogueEntry(QStringLiteral("PlayGuarantee4"));
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->messageRuns, 0);
    Start();
    window->Open({.menuEntry = "",
                  .form = "TellingForm",
                  .make = MakeTellingForm,
                  .prepare = SelectOption,
                  .messageRuns = entry->messageRuns});
    EXPECT_EQ(TellingForm::steps, (std::vector<std::string>{"load", "option", "exec"}));
}

TEST_F(QuillonForm, TheDatabasesPanelIsFilledAfreshAfterAFormThatChangesThem) {
    program.folder.Write("dbase1.txt", Database("First"));
    Start();
    TellingForm::whileOpen = [](Program& opened) {
        opened.folder.Write("dbase2.txt", Database("Second"));
    };
    window->Open({.menuEntry = "",
                  .form = "TellingForm",
                  .make = MakeTellingForm,
                  .changesDatabases = true});
    TellingForm::whileOpen = {};
    auto* list = Find<ListBox>(*window, databasesList);
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(1)->text(), QStringLiteral("Second"));
    EXPECT_EQ(list->Index(), -1);
}

TEST_F(QuillonForm, AFormThatNeedsALotterySaysWhereToMakeOne) {
    Start();
    try {
        window->Open(*FindCatalogueEntry(QStringLiteral("PlayLuckyDip")));
        ADD_FAILURE() << "there is no lottery to open";
    } catch (const Failure& failure) {
        EXPECT_NE(std::string(failure.what()).find("Databases, Create lottery database"),
                  std::string::npos)
            << failure.what();
    }
}

TEST_F(QuillonForm, CheckingWithoutStoredEntriesSaysSo) {
    Start();
    program.messages.Expect({.title = QStringLiteral("Oops!  "),
                             .text = QStringLiteral("You do not have any stored lottery entries!"),
                             .sign = Sign::Exclamation});
    TellingForm::steps.clear();
    window->Open({.menuEntry = "DatabaseCheck",
                  .form = "ShowMyDrawsW",
                  .make = MakeTellingForm,
                  .needsSavedEntries = true});
    EXPECT_TRUE(TellingForm::steps.empty());
}

TEST_F(QuillonForm, CheckingWithStoredEntriesOpensTheForm) {
    program.folder.Write(savedEntriesFile, "01 Jun 05,1,2,3,4,5,6,0,0,Lotto,Ann,dbase1.txt\r\n");
    Start();
    window->Open({.menuEntry = "DatabaseCheck",
                  .form = "ShowMyDrawsW",
                  .make = MakeTellingForm,
                  .needsSavedEntries = true});
    EXPECT_EQ(TellingForm::steps.back(), "exec");
}

TEST_F(QuillonForm, DeletingSavedEntriesWithoutAnySaysSo) {
    Start();
    program.messages.Expect({.title = QStringLiteral("Error!"),
                             .text = QStringLiteral("No lottery entries saved!    "),
                             .sign = Sign::Exclamation});
    Choose("FileDeleteSaved");
}

const Message deleteQuestion = {.title = QStringLiteral("Warning!"),
                                .text = QStringLiteral(" Are you sure you want to delete     \r\n"
                                                       " all your saved lottery entries?    \r\n"),
                                .sign = Sign::Question,
                                .buttons = Buttons::YesNo};

TEST_F(QuillonForm, SavedEntriesAreDeletedOnYes) {
    program.folder.Write(savedEntriesFile, "x\r\n");
    Start();
    program.messages.Expect(deleteQuestion, Answer::Yes);
    Choose("FileDeleteSaved");
    EXPECT_FALSE(program.folder.Exists(savedEntriesFile));
    EXPECT_EQ(program.folder.Read("Backup/Undo/2000-01-01 000000 MyLottery.txt"), "x\r\n");
}

TEST_F(QuillonForm, SavedEntriesStayOnNo) {
    program.folder.Write(savedEntriesFile, "x\r\n");
    Start();
    program.messages.Expect(deleteQuestion, Answer::No);
    Choose("FileDeleteSaved");
    EXPECT_EQ(program.folder.Read(savedEntriesFile), "x\r\n");
}

TEST_F(QuillonForm, ExitSavesNotesAndSettingsAndEndsTheRunOnce) {
    Start();
    Choose("FileExit");
    EXPECT_EQ(timesEnded, 1);
    EXPECT_TRUE(program.folder.Exists("Notes.txt"));
    EXPECT_NE(program.folder.Read("quillon.ini").find("01-Jan-1970"), std::string::npos);
}

TEST_F(QuillonForm, ExitLetsMessagesRunOnce) {
    Start();
    int runs = 0;
    QTimer everyRun;
    QObject::connect(&everyRun, &QTimer::timeout, &everyRun, [&runs] { ++runs; });
    everyRun.start(0);
    Choose("FileExit");
    EXPECT_EQ(runs, 1);
}

TEST_F(QuillonForm, ExitLetsMessagesRunBeforeItSaves) {
    Start();
    QMetaObject::invokeMethod(
        window.get(), [this] { program.state.Settings(setting::PlayerName) = "Ann"; },
        Qt::QueuedConnection);
    Choose("FileExit");
    EXPECT_NE(program.folder.Read("quillon.ini").find("\r\nAnn\r\n"), std::string::npos);
}

TEST_F(QuillonForm, ClosingTheWindowIsTheSameEnd) {
    Start();
    window->close();
    EXPECT_EQ(timesEnded, 1);
    EXPECT_TRUE(program.folder.Exists("Notes.txt"));
}

TEST_F(QuillonForm, WhatAFormChangedInTheSettingsReachesTheDiskAtQuit) {
    Start();
    program.state.Settings(setting::PlayerName) = "Ann";
    Choose("FileExit");
    EXPECT_NE(program.folder.Read("quillon.ini").find("\r\nAnn\r\n"), std::string::npos);
}

TEST_F(QuillonForm, NotesAndSettingsThatCannotBeWrittenFailTheEndAndAreBothRescued) {
    Start();
    program.state.Settings(setting::PlayerName) = "Ann";
    Find<QPlainTextEdit>(*window, notePad)->setPlainText(QStringLiteral("typed"));
    const auto before = program.folder.Snapshot();
    program.folder.OfferRescue();
    program.folder.FailAfterBytes(3);
    window->close();
    const std::string failure = TakeFailure().value_or("");
    EXPECT_EQ(timesEnded, 0);
    EXPECT_EQ(program.folder.Snapshot(), before);
    for (const char* file : {"Notes.txt", "quillon.ini"}) {
        EXPECT_NE(failure.find(std::string("is kept in elsewhere/") + file), std::string::npos)
            << failure;
    }
    EXPECT_TRUE(program.folder.Rescued().at("Notes.txt").ends_with("typed"));
    EXPECT_NE(program.folder.Rescued().at("quillon.ini").find("\r\nAnn\r\n"), std::string::npos);
}

TEST_F(QuillonForm, NotesThatCannotBeWrittenLetTheSettingsBeSaved) {
    Start();
    program.state.Settings(setting::PlayerName) = "Ann";
    program.folder.MakeFolder("Notes.txt");
    window->close();
    EXPECT_NE(TakeFailure().value_or("").find("Notes.txt"), std::string::npos);
    EXPECT_EQ(timesEnded, 0);
    EXPECT_NE(program.folder.Read("quillon.ini").find("\r\nAnn\r\n"), std::string::npos);
}

TEST_F(QuillonForm, SettingsThatCannotBeWrittenFailTheEndAfterTheNotes) {
    Start();
    program.folder.Lock("quillon.ini");
    window->close();
    EXPECT_TRUE(TakeFailure().has_value());
    EXPECT_EQ(timesEnded, 0);
    EXPECT_TRUE(program.folder.Exists("Notes.txt"));
}

TEST_F(QuillonForm, ReopenedFormsStartOnTheFirstLotteryAgain) {
    for (const char* name : {"dbase1.txt", "dbase2.txt", "dbase3.txt"}) {
        program.folder.Write(name, Database(name));
    }
    Start();
    InDialog([this] { Choose("PlayLuckyDip"); },
             [this](QDialog& form) {
                 Find<ListBox>(form, lotteryList)->SetIndex(2);
                 EXPECT_EQ(program.state.DbaseFile, "dbase3.txt");
             });
    InDialog([this] { Choose("DatabaseStoreDrawsW"); },
             [this](QDialog& form) {
                 EXPECT_EQ(Find<ListBox>(form, lotteryList)->Index(), 0);
                 EXPECT_EQ(program.state.DbaseFile, "dbase1.txt");
             });
}

}  // namespace

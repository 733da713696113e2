// SPDX-License-Identifier: GPL-3.0-or-later
#include <QMenu>
#include <QMenuBar>
#include <set>

#include "core/settings.h"
#include "core/syndicate.h"
#include "shell/MainMenu.h"
#include "shell/Toolbar.h"
#include "shell/form_catalogue.h"
#include "tests/shell/main_window.h"

namespace {

struct EntryOfTable {
    const char* name;
    const char* caption;
    bool works;             // without a form behind it
    const char* form = "";  // the form that it opens, if it opens one
};

struct MenuOfTable {
    const char* name;
    const char* caption;
    std::vector<EntryOfTable> entries;
};

const std::vector<MenuOfTable>& Table() {
    static const std::vector<MenuOfTable> table = {
        {"FileMenu",
         " &File",
         {{"FileCopyToA", "Copy data files to floppy", true},
          {"FileCopyFromA", "Copy data files from floppy", true},
          {"FileBackup", "Backup and Restore data", false, "Backup"},
          {"FileDelete", "Delete lottery database", false, "DeleteDbaseW"},
          {"FileDeleteSaved", "Delete saved lottery entries", true},
          {"FileNotes", "Show/Hide info panels", true},
          {"FileOpen", "Open lottery data in Notepad", false, "OpenDbase"},
          {"FilePreferences", "Preferences", false, "Preferences"},
          {"FilePrintSetup", "Print setup", false, "PrintSetup"},
          {"FileExit", "Exit", true}}},
        {"wDatabase",
         " &Databases",
         {{"DatabasesCreate", "Create  lottery database", false, "CreateDbase"},
          {"wUpdateDbase", "Update lottery database", false, "DbaseUpdateW"},
          {"wDatabaseView", "View lottery databases", false, "HistoryW"},
          {"DatabaseUS", "Download US lottery results", false, "DbaseUpdateUS"},
          {"DatabaseUpdate", "Download UK lottery results", false, "DbaseUpdate"},
          {"DatabaseCheck", "Check my lottery entries", false, "ShowMyDrawsW"},
          {"DatabaseViewCheck", "Show my lottery entries", false, "ShowMyDrawsW"},
          {"DatabaseStoreDrawsW", "Store my lottery entries", false, "StoreMyDrawsW"},
          {"DatabaseImport", "Import draws...", false, "ImportDraws"}}},
        {"AnalysisMenu",
         " &Analyse",
         {{"AnalysisCommon", "Hot numbers", false, "ACommonNumbers"},
          {"AnalyseColdNums", "Cold numbers", false, "ACommonNumbers"},
          {"AnalysisSums", "Draw sums", false, "ASums"},
          {"AnalyseLowHigh", "High/low numbers", false, "ASums"},
          {"AnalysisAverages", "Number averages", false, "AAverages"},
          {"AnalyseRange", "Number range", false, "ARange"},
          {"AnalyseNumStats", "Number statistics", false, "ANumberStats"},
          {"AnalyseOddEven", "Odd/Even ratio", false, "AOddEven"},
          {"AnalyseBiorhythms", "Biorhythms", false, "Biorhythm"},
          {"AnalyseWhatIf", "What if...?", false, "WhatIf"}}},
        {"PlayMenu",
         " &Play",
         {{"PlayAverages", "Averages", false, "PAverage"},
          {"PlayFullSel", "Full selection", false, "PFullSel"},
          {"PlayColdNums", "Cold Numbers", false, "PHotNumbers"},
          {"PlayHot", "Hot numbers", false, "PHotNumbers"},
          {"PlayLuckyDip", "Lucky dip", false, "PLuckyDip"},
          {"Play1Key", "One key number", false, "P1Key"},
          {"Play2Key", "Two key numbers", false, "P2KeyNum"},
          {"Play3Key", "Three key numbers", false, "P3KeyNum"},
          {"PlayBudgetWheels", "Budget wheels", false, "PBudgetWheel"},
          {"PlayColdWheels", "ColdWheels", false, "PHotWheels"},
          {"PlayDIYWheels", "Create-a-wheel", false, "PDIYWheels"},
          {"PlayGuarantee3", "Guaranteed 3-match", false, "PThreeMatch"},
          {"PlayGuarantee4", "Guaranteed 4-match", false, "PThreeMatch"},
          {"PlayGuaranteed", "Guaranteed win wheels", false, "PGuaranteed"},
          {"PlayHotWheels", "Hot wheels", false, "PHotWheels"},
          {"PlayWheel49", "Wheel 49", false, "Wheel49"},
          {"PlayWheel2", "Wheeling pairs", false, "PWheel2"},
          {"PlayWheel3", "Wheeling triplets", false, "PWheel3"},
          {"PlayStarSign", "Astrology", false, "PStarSign"},
          {"PlayLucky", "Numerology", false, "PLuckyNumbers"}}},
        {"SyndicatesMenu",
         " &Syndicates",
         {{"SyndicateNew", "New syndicate", false, "NewSyndicate"},
          {"SyndicateOpen", "Open syndicate", false, "OpenSyndicate"},
          {"SyndicatesDelete", "Delete syndicate", false, "DeleteSyndicate"},
          {"SyndicateManager", "View manager", false, "SManager"},
          {"SyndicateMembers", "View members", false, "SMembers"},
          {"SyndicatePayments", "View payments", false, "SPayments"},
          {"SyndicatesNotes", "Notes and checklist", false, "SNotes"}}},
        {"LinksMenu",
         " &WebLinks",
         {{"LinksLink(0)", "Lottery Quillon", true},
          {"LinksLink(1)", "UK National Lottery", true},
          {"LinksLink(2)", "Camelot (UK Lottery)", true},
          {"LinksLink(3)", "US Powerball", true},
          {"LinksLink(4)", "US Mega Millions", true},
          {"LinksLink(5)", "Link", false},
          {"LinksLink(6)", "Link", false},
          {"LinksLink(7)", "Link", false},
          {"LinksLink(8)", "Link", false},
          {"LinksLink(9)", "Link", false},
          {"LinksLink(10)", "Link", true}}},
        {"HelpMenu",
         " &Help",
         {{"HelpNewVersion", "Check for new version", true},
          {"HelpHelp", "Help and tips", true},
          {"HelpLotteryInfo", "Lottery information", false, "LotteryInfo"},
          {"HelpWebSite", "Lottery Quillon website", true},
          {"HelpBackupSite", "Alternative website", true},
          {"HelpEmail", "Email technical support", true},
          {"HelpAbout", "About...", false, "About"}}},
    };
    return table;
}

class MainMenuOfWindow : public MainWindow {
  protected:
    void StartWithASyndicate() {
        WriteSettings(setting::SyndicateFile, "SMembers.000");
        program.state.Members(0, member_column::Name) = "Ann";
        program.state.Members(0, member_column::SyndicateName) = "Winners";
        SaveSyndicate(program.state, program.folder);
        Start();
    }
};

TEST_F(MainMenuOfWindow, HasTheSevenMenusInOrder) {
    Start();
    const auto menus = window->menuBar()->actions();
    ASSERT_EQ(menus.size(), static_cast<qsizetype>(Table().size()));
    for (qsizetype i = 0; i < menus.size(); ++i) {
        const MenuOfTable& expected = Table().at(static_cast<std::size_t>(i));
        EXPECT_EQ(menus[i]->text().toStdString(), expected.caption);
        EXPECT_EQ(menus[i]->menu()->objectName().toStdString(), expected.name);
    }
}

TEST_F(MainMenuOfWindow, HasEveryEntryUnderItsNameAndCaptionInOrder) {
    Start();
    for (const MenuOfTable& expected : Table()) {
        auto entries = Find<QMenu>(*window, expected.name)->actions();
        entries.removeIf([](const QAction* entry) { return entry->isSeparator(); });
        ASSERT_EQ(entries.size(), static_cast<qsizetype>(expected.entries.size())) << expected.name;
        for (qsizetype i = 0; i < entries.size(); ++i) {
            const EntryOfTable& entry = expected.entries.at(static_cast<std::size_t>(i));
            EXPECT_EQ(entries[i]->objectName().toStdString(), entry.name);
            EXPECT_EQ(entries[i]->text().toStdString(), entry.caption) << entry.name;
        }
    }
}

TEST_F(MainMenuOfWindow, PartsTheImportFromTheEntriesAboveItAndNothingElse) {
    Start();
    for (const MenuOfTable& menu : Table()) {
        const auto entries = Find<QMenu>(*window, menu.name)->actions();
        for (qsizetype i = 0; i + 1 < entries.size(); ++i) {
            const bool aboveImport =
                entries[i + 1]->objectName() == QLatin1String("DatabaseImport");
            EXPECT_EQ(entries[i]->isSeparator(), aboveImport) << menu.name << ", entry " << i;
        }
    }
}

TEST_F(MainMenuOfWindow, DisablesExactlyTheEntriesThatCannotBeAnsweredYet) {
    StartWithASyndicate();
    for (const MenuOfTable& menu : Table()) {
        for (const EntryOfTable& entry : menu.entries) {
            const CatalogueEntry* form = FindCatalogueEntry(QString::fromLatin1(entry.name));
            const bool answered = entry.works || (form != nullptr && form->make != nullptr);
            EXPECT_EQ(Entry(entry.name)->isEnabled(), answered) << entry.name;
        }
    }
}

TEST_F(MainMenuOfWindow, OpensTheFormOfEachEntry) {
    for (const MenuOfTable& menu : Table()) {
        for (const EntryOfTable& entry : menu.entries) {
            const CatalogueEntry* form = FindCatalogueEntry(QString::fromLatin1(entry.name));
            EXPECT_STREQ(form == nullptr ? "" : form->form, entry.form) << entry.name;
        }
    }
}

TEST_F(MainMenuOfWindow, FourEntriesOpenTheirFormWithItsSecondOption) {
    const std::set<std::string> second = {"AnalyseColdNums", "PlayColdNums", "PlayColdWheels",
                                          "PlayGuarantee4"};
    for (const CatalogueEntry& entry : FormCatalogue()) {
        EXPECT_EQ(entry.prepare != nullptr, second.contains(entry.menuEntry)) << entry.menuEntry;
        const bool withoutMessages = std::string(entry.menuEntry) == "PlayGuarantee4";
        EXPECT_EQ(entry.messageRuns, withoutMessages ? 0 : 5) << entry.menuEntry;
    }
}

TEST_F(MainMenuOfWindow, WhatFollowsTheClosingOfAFormDependsOnItsEntry) {
    const std::set<std::string> syndicate = {"SyndicateNew", "SyndicateOpen", "SyndicatesDelete",
                                             "SyndicateManager"};
    const std::set<std::string> entries = {"DatabaseCheck", "DatabaseViewCheck"};
    for (const CatalogueEntry& entry : FormCatalogue()) {
        const std::string name = entry.menuEntry;
        EXPECT_EQ(entry.changesSyndicate, syndicate.contains(name)) << name;
        EXPECT_EQ(entry.needsSavedEntries, entries.contains(name)) << name;
        EXPECT_EQ(entry.changesSettings, name == "FilePreferences") << name;
    }
}

TEST_F(MainMenuOfWindow, EveryFormOfTheCatalogueHasItsMenuEntry) {
    StartWithASyndicate();
    std::set<std::string> seen;
    for (const CatalogueEntry& form : FormCatalogue()) {
        if (std::string(form.menuEntry).empty()) continue;
        EXPECT_TRUE(seen.insert(form.menuEntry).second) << form.menuEntry << " stands twice";
        EXPECT_EQ(Entry(form.menuEntry)->isEnabled(), form.make != nullptr) << form.menuEntry;
    }
    EXPECT_EQ(seen.size(), 53U);
}

TEST_F(MainMenuOfWindow, ShowsTheLinksThatTheSettingsName) {
    Start();
    for (int i = 0; i <= 10; ++i) {
        const std::string name = "LinksLink(" + std::to_string(i) + ")";
        EXPECT_EQ(Entry(name.c_str())->isVisible(), i < 5 || i == 10) << name;
    }
}

TEST_F(MainMenuOfWindow, AnEmptiedLinkLeavesAGapInTheMenu) {
    MakeDefaultSettings(program.state, program.folder);
    program.state.Settings(setting::LinkCaptions + 3).clear();
    SaveSettings(program.state, program.folder);
    Start();
    EXPECT_FALSE(Entry("LinksLink(3)")->isVisible());
    EXPECT_TRUE(Entry("LinksLink(4)")->isVisible());
    EXPECT_EQ(Entry("LinksLink(4)")->text(), QStringLiteral("US Mega Millions"));
}

TEST_F(MainMenuOfWindow, ShowsTheDoubledAmpersandOfALinksNameOnce) {
    MakeDefaultSettings(program.state, program.folder);
    program.state.Settings(setting::LinkCaptions + 1) = "Draws && dates";
    SaveSettings(program.state, program.folder);
    Start();
    EXPECT_EQ(Entry("LinksLink(1)")->text(), QStringLiteral("Draws && dates"));
}

TEST_F(MainMenuOfWindow, ALinkOpensItsAddress) {
    Start();
    Choose("LinksLink(3)");
    EXPECT_EQ(program.pages,
              std::vector<QString>{QString::fromStdString(Setting(setting::LinkAddresses + 3))});
}

TEST_F(MainMenuOfWindow, TheLastLinkOpensTheNameOfTheFirstDownload) {
    Start();
    Choose("LinksLink(10)");
    EXPECT_EQ(program.pages, std::vector<QString>{QStringLiteral("UK Lotto")});
    EXPECT_EQ(program.messages.Shown(), 0);
}

TEST_F(MainMenuOfWindow, TheWebsiteIsTheAddressOfLinkZero) {
    Start();
    Choose("HelpWebSite");
    EXPECT_EQ(program.pages,
              std::vector<QString>{QString::fromStdString(Setting(setting::LinkAddresses))});
}

TEST_F(MainMenuOfWindow, SaysInASentenceWhatEachEntryIsFor) {
    Start();
    for (const MenuOfTable& menu : Table()) {
        EXPECT_TRUE(Find<QMenu>(*window, menu.name)->toolTipsVisible()) << menu.name;
        if (std::string(menu.name) == "LinksMenu") continue;
        for (const EntryOfTable& entry : menu.entries) {
            const QString sentence = Entry(entry.name)->toolTip().section(QLatin1Char('\n'), 0, 0);
            EXPECT_GT(sentence.size(), 15) << entry.name;
            EXPECT_TRUE(sentence.endsWith(QLatin1Char('.'))) << entry.name;
        }
    }
}

TEST_F(MainMenuOfWindow, SaysWhyAnEntryIsGrey) {
    Start();
    for (const MenuOfTable& menu : Table()) {
        for (const EntryOfTable& entry : menu.entries) {
            if (!Entry(entry.name)->isVisible()) continue;
            EXPECT_EQ(Entry(entry.name)->toolTip().contains(QLatin1Char('\n')),
                      !Entry(entry.name)->isEnabled())
                << entry.name;
        }
    }
}

TEST_F(MainMenuOfWindow, TakesTheReasonAwayOnceAnEntryIsAllowed) {
    MainMenu menu;
    const QString name = QStringLiteral("SyndicateMembers");
    menu.Allow(name, QStringLiteral("No syndicate is open."));
    EXPECT_FALSE(menu.Entry(name)->isEnabled());
    EXPECT_TRUE(menu.Entry(name)->toolTip().endsWith(QStringLiteral(".\nNo syndicate is open.")));
    menu.Allow(name);
    EXPECT_TRUE(menu.Entry(name)->isEnabled());
    EXPECT_FALSE(menu.Entry(name)->toolTip().contains(QLatin1Char('\n')));
}

TEST_F(MainMenuOfWindow, TellsTheAddressesOfTheLinks) {
    Start();
    EXPECT_EQ(Entry("LinksLink(3)")->toolTip(), QString::fromStdString(Setting(33)));
}

TEST_F(MainMenuOfWindow, ShowsTheToolbarsPicturesOnTheirEntries) {
    Start();
    std::set<std::string> pictured;
    for (int i = 0; i < Toolbar::pictureCount; ++i) {
        pictured.insert(Find<Toolbar>(*window, toolbarBackground)->EntryOf(i).toStdString());
    }
    for (const MenuOfTable& menu : Table()) {
        for (const EntryOfTable& entry : menu.entries) {
            EXPECT_EQ(!Entry(entry.name)->icon().isNull(), pictured.contains(entry.name))
                << entry.name;
        }
    }
}

TEST_F(MainMenuOfWindow, ShowsTheKeysThatItAnswers) {
    Start();
    EXPECT_EQ(Entry("FileExit")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
    EXPECT_EQ(Entry("HelpHelp")->shortcut(), QKeySequence(Qt::Key_F1));
}

TEST_F(MainMenuOfWindow, CtrlQQuits) {
    Start();
    QTest::keyClick(window.get(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_EQ(timesEnded, 1);
    EXPECT_TRUE(program.folder.Exists("Notes.txt"));
}

TEST_F(MainMenuOfWindow, F1OpensTheHelpPage) {
    Start();
    QTest::keyClick(window.get(), Qt::Key_F1);
    EXPECT_EQ(program.pages, std::vector<QString>{QStringLiteral("help.html")});
}

}  // namespace

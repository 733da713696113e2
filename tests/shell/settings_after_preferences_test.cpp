// SPDX-License-Identifier: GPL-3.0-or-later
// What the main window does once Preferences and Backup have closed.
#include <QAbstractButton>
#include <QCheckBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>

#include "core/syndicate.h"
#include "platform/widgets/Lists.h"
#include "tests/shell/main_window.h"

namespace {

class AfterPreferences : public MainWindow {
  protected:
    void InPreferences(const std::function<void(QDialog&)>& drive) {
        InDialog([this] { Choose("FilePreferences"); }, drive);
    }

    void ResetAll() {
        program.messages.Expect({.title = QStringLiteral("Reset everything!"),
                                 .text = QStringLiteral(" Are you sure?    "),
                                 .sign = Sign::Question,
                                 .buttons = Buttons::YesNo},
                                Answer::Yes);
        InPreferences([](QDialog& form) { Click(form, "Command12"); });
    }
};

TEST_F(AfterPreferences, APickedColourThatWasNotSavedIsGone) {
    Start();
    program.dialogs.colours.emplace_back(QColor(Qt::red));
    InPreferences([this](QDialog& form) {
        Click(form, "Label5");
        EXPECT_EQ(Setting(setting::TitleColour), "&HFF");
        Click(form, "Command1");
    });
    EXPECT_EQ(Setting(setting::TitleColour), "&H000000");
}

TEST_F(AfterPreferences, APickedColourStaysWhereTheFileIsCutShort) {
    Start();
    program.folder.Write("quillon.ini", "&H000000\r\n");
    program.dialogs.colours.emplace_back(QColor(Qt::red));
    InPreferences([](QDialog& form) {
        Click(form, "Label6");
        Click(form, "Command1");
    });
    EXPECT_EQ(Setting(setting::BodyColour), "&HFF");
}

TEST_F(AfterPreferences, SavedColoursColourTheWindow) {
    Start();
    program.dialogs.colours.emplace_back(QColor(0xC0, 0xFF, 0xC0));
    InPreferences([](QDialog& form) {
        Click(form, "Label8");
        Click(form, "Check1");
        Click(form, "Command7");
    });
    EXPECT_EQ(window->palette().color(QPalette::Window), QColor(0xC0, 0xFF, 0xC0));
    EXPECT_EQ(Setting(setting::SkinBits), "3");
}

TEST_F(AfterPreferences, SavedLinksStandOnTheMenuAsTheyWereTyped) {
    Start();
    InPreferences([](QDialog& form) {
        Type(form, "Text1(4)", QStringLiteral("Bread & Butter"));
        Type(form, "Text2(4)", QStringLiteral("www.bread.example"));
        Click(form, "Command7");
    });
    EXPECT_TRUE(Entry("LinksLink(5)")->isVisible());
    // A menu draws one ampersand for the two.
    EXPECT_EQ(Entry("LinksLink(5)")->text(), QStringLiteral("Bread && Butter"));
    Choose("LinksLink(5)");
    EXPECT_EQ(program.pages, std::vector{QStringLiteral("http://www.bread.example")});
}

TEST_F(AfterPreferences, ALinkWhoseCaptionIsEmptiedStaysOnTheMenu) {
    Start();
    InPreferences([](QDialog& form) {
        Type(form, "Text1(2)", {});
        Click(form, "Command7");
    });
    EXPECT_TRUE(Entry("LinksLink(3)")->isVisible());
    EXPECT_EQ(Entry("LinksLink(3)")->text(), QStringLiteral("US Powerball"));
}

TEST_F(AfterPreferences, AResetTakesALinkThatWasAddedOffTheMenu) {
    WriteSettings(setting::LinkCaptions + 9, "Added");
    Start();
    EXPECT_TRUE(Entry("LinksLink(9)")->isVisible());
    ResetAll();
    EXPECT_FALSE(Entry("LinksLink(9)")->isVisible());
    EXPECT_EQ(Entry("LinksLink(10)")->text(), QStringLiteral("Link"));
    EXPECT_TRUE(Entry("LinksLink(10)")->isVisible());
}

TEST_F(AfterPreferences, AResetWritesTheDefaultsAndLeavesTheScreenAsItIs) {
    program.folder.Write("MyLottery.txt", "mine");
    WriteSettings(setting::BirthDate, "04-May-1980");
    WriteSettings(setting::InfoPanels, "1");
    WriteSettings(setting::LinkCaptions + 3, "Changed");
    Start();
    ResetAll();
    EXPECT_EQ(Setting(setting::BirthDate), "01/01/1970");
    EXPECT_EQ(Setting(setting::InfoPanels), "0");
    EXPECT_EQ(Setting(setting::SyndicateFile), "");
    EXPECT_EQ(Entry("LinksLink(3)")->text(), QStringLiteral("US Powerball"));
    EXPECT_EQ(program.folder.Read("MyLottery.txt"), "mine");
    EXPECT_TRUE(Find<QLabel>(*window, biochartHeading)->isVisible());
    EXPECT_EQ(Find<QDateEdit>(*window, birthDatePicker)->date(), QDate(1980, 5, 4));
}

TEST_F(AfterPreferences, QuittingAfterAResetWritesTheDefaults) {
    WriteSettings(setting::InfoPanels, "1");
    Start();
    ResetAll();
    const std::string defaults = program.folder.Read("quillon.ini");
    window->close();
    EXPECT_EQ(program.folder.Read("quillon.ini"), defaults);
}

TEST_F(AfterPreferences, TheSyndicatesLinesStayAfterAReset) {
    program.state.Members(0, 0) = "Mary";
    program.state.Members(0, 10) = "Office";
    program.state.Settings(setting::SyndicateFile) = "SMembers.000";
    SaveSyndicate(program.state, program.folder);
    WriteSettings(setting::SyndicateFile, "SMembers.000");
    Start();
    ASSERT_EQ(Find<QLabel>(*window, syndicateName)->text(), QStringLiteral("Office"));
    ResetAll();
    EXPECT_EQ(Find<QLabel>(*window, syndicateName)->text(), QStringLiteral("Office"));
    EXPECT_TRUE(Entry("SyndicateManager")->isEnabled());
}

TEST_F(AfterPreferences, BackupListsTheDatabasesAnewWhenItCloses) {
    Start();
    program.folder.Write("Backup/dbase1.txt", "Restored\r\n\r\n6,49,0,0,1\r\n");
    InDialog([this] { Choose("FileBackup"); },
             [](QDialog& form) {
                 Click(form, "Command5");
                 Click(form, "Command3");
             });
    EXPECT_EQ(Find<ListBox>(*window, databasesList)->item(0)->text(), QStringLiteral("Restored"));
}

TEST_F(AfterPreferences, AFileThatIsNoDatabaseDoesNotEndTheRunWhenBackupCloses) {
    program.folder.Write("dbase2.txt", "Mine\r\n\r\n6,49,0,0,1\r\n");
    Start();
    program.folder.Write("Backup/dbase1.txt", "");
    InDialog([this] { Choose("FileBackup"); },
             [](QDialog& form) {
                 Click(form, "Command5");
                 Click(form, "Command3");
             });
    EXPECT_TRUE(program.folder.Exists("dbase1.txt"));
    const auto* list = Find<ListBox>(*window, databasesList);
    ASSERT_EQ(list->count(), 1);
    EXPECT_EQ(list->item(0)->text(), QStringLiteral("Mine"));
    window->close();
    EXPECT_EQ(timesEnded, 1);
}

TEST_F(AfterPreferences, ALockedDatabaseDoesNotEndTheRunForTheWelcome) {
    program.folder.Write("dbase2.txt", "Mine\r\n\r\n6,49,0,0,1\r\n");
    Start();
    program.folder.Lock("dbase2.txt");
    InPreferences([](QDialog& form) { Click(form, "Command1"); });
    window->close();
    EXPECT_EQ(timesEnded, 1);
}

TEST_F(AfterPreferences, FilesThatBackupRestoresAreWrittenOverAtTheNextQuit) {
    Start();
    program.folder.Write("Backup/quillon.ini", "&HFF\r\n");
    program.folder.Write("Backup/Notes.txt", "restored");
    InDialog([this] { Choose("FileBackup"); },
             [](QDialog& form) {
                 Click(form, "Command5");
                 Click(form, "Command3");
             });
    EXPECT_EQ(program.folder.Read("quillon.ini"), "&HFF\r\n");
    window->close();
    EXPECT_TRUE(program.folder.Read("quillon.ini").starts_with("&H000000\r\n"));
    EXPECT_NE(program.folder.Read("Notes.txt"), "restored");
}

}  // namespace

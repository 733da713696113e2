// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Backup.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QLineEdit>

#include "core/failure.h"
#include "core/settings.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "tests/support/form_test.h"

namespace {

using Entries = std::vector<std::string>;
using Names = std::vector<std::string>;
using Files = std::map<std::string, std::string>;
constexpr Date someDay = std::chrono::June / 1 / 2005;

class BackupForm : public testing::Test {
  protected:
    BackupForm() {
        MakeDefaultSettings(test_.state, test_.folder);
        test_.folder.Delete("quillon.ini");
        test_.folder.MakeFolder("Backup");
    }

    void Put(const std::string& name, const std::string& bytes, Date date = someDay) {
        test_.folder.Write(name, bytes);
        test_.folder.SetFileDate(name, date);
    }

    void Open() {
        form_ = std::make_unique<Backup>(test_.program, nullptr);
        form_->Load();
        form_->show();
        QApplication::processEvents();
    }

    ListBox& List(const char* name) { return *Find<ListBox>(*form_, name); }

    Entries EntriesOf(const char* name) {
        Entries entries;
        for (int row = 0; row < List(name).count(); ++row) {
            entries.push_back(FromQString(List(name).item(row)->text()));
        }
        return entries;
    }

    void Choose(const char* list, const std::string& name) {
        const Entries entries = EntriesOf(list);
        for (std::size_t row = 0; row < entries.size(); ++row) {
            if (entries[row].starts_with(name)) List(list).SetIndex(static_cast<int>(row));
        }
        ASSERT_GE(List(list).Index(), 0) << name;
    }

    void BackUp(const std::string& name) {
        Choose("List1", name);
        Click(*form_, "Command1");
    }

    void Restore(const std::string& name) {
        Choose("List2", name);
        Click(*form_, "Command2");
    }

    void ExpectNothingChosen() {
        EXPECT_EQ(List("List1").Index(), -1);
        EXPECT_EQ(List("List2").Index(), -1);
        EXPECT_TRUE(List("List1").selectedItems().empty());
        EXPECT_TRUE(List("List2").selectedItems().empty());
    }

    /// The lists stand as a form shows them that is opened now.
    void ExpectListsAsReadAnew() {
        Backup anew(test_.program, nullptr);
        anew.Load();
        for (const char* name : {"List1", "List2"}) {
            const auto* list = Find<ListBox>(anew, name);
            Entries entries;
            for (int row = 0; row < list->count(); ++row) {
                entries.push_back(FromQString(list->item(row)->text()));
            }
            EXPECT_EQ(EntriesOf(name), entries) << name;
        }
    }

    QString Text(const char* name) { return Find<QLabel>(*form_, name)->text(); }
    QString ToolTip(const char* name) { return Find<QWidget>(*form_, name)->toolTip(); }

    TestProgram test_;
    std::unique_ptr<Backup> form_;
};

TEST_F(BackupForm, HasItsWords) {
    Open();
    EXPECT_EQ(form_->objectName(), QStringLiteral("Backup"));
    EXPECT_EQ(form_->windowTitle(), QStringLiteral("Backup and Restore"));
    EXPECT_EQ(Text("Label4"), QStringLiteral("Backup / Restore"));
    EXPECT_EQ(Text("Label1"), QStringLiteral(" Data files:"));
    EXPECT_EQ(Text("Label2"), QStringLiteral(" Backups:"));
    EXPECT_EQ(Text("Label3"),
              QStringLiteral("Make backups of data files, such as the lottery draw databases and "
                             "syndicate information. If there is a problem, restoring a backup "
                             "might cure it."));
    EXPECT_EQ(Text("Label5"),
              QStringLiteral("Backups are not removed when the program is uninstalled. You can "
                             "re-install the program and then restore the backups to cure a disk "
                             "problem."));
    EXPECT_EQ(ToolTip("Command1"), QStringLiteral(" Copy the currently selected file "));
    EXPECT_EQ(ToolTip("Command2"), QStringLiteral(" Copy the currently selected file "));
    EXPECT_EQ(Find<QAbstractButton>(*form_, "Command4")->text(), QStringLiteral("Back up all"));
    EXPECT_EQ(ToolTip("Command4"), QStringLiteral(" Copy all files to backup folder "));
    EXPECT_EQ(Find<QAbstractButton>(*form_, "Command5")->text(), QStringLiteral("Restore all"));
    EXPECT_EQ(ToolTip("Command5"), QStringLiteral(" Copy all backup files to program folder "));
    EXPECT_EQ(ToolTip("Command3"), QStringLiteral(" Close "));
}

TEST_F(BackupForm, ShowsTheTwoPathsReadOnly) {
    Open();
    EXPECT_EQ(Find<QLineEdit>(*form_, "Text1")->text(), QStringLiteral("/home/anna/lottery"));
    EXPECT_EQ(Find<QLineEdit>(*form_, "Text2")->text(),
              QStringLiteral("/home/anna/lottery") + QDir::separator() + QStringLiteral("Backup"));
    EXPECT_TRUE(Find<QLineEdit>(*form_, "Text1")->isReadOnly());
    EXPECT_TRUE(Find<QLineEdit>(*form_, "Text2")->isReadOnly());
}

TEST_F(BackupForm, DoublesNoSeparatorAtTheEndOfThePath) {
    test_.services.folderPath = QDir::rootPath();
    Open();
    EXPECT_EQ(Find<QLineEdit>(*form_, "Text2")->text(),
              QDir::rootPath() + QStringLiteral("Backup"));
}

TEST_F(BackupForm, ListsBothFoldersInTheOrderOfThePatterns) {
    for (const char* name : {"SMembers.000", "Diary.000", "PTemplate.000", "quillon.ini",
                             "Notes.txt", "dbase1.txt", "wheel49.dat", "Diary.100"}) {
        Put(name, "x");
    }
    Put("Backup/old.txt", "x", std::chrono::December / 31 / 1999);
    Open();
    EXPECT_EQ(
        EntriesOf("List1"),
        (Entries{"dbase1.txt                 01-06-05", "Notes.txt                  01-06-05",
                 "quillon.ini                01-06-05", "PTemplate.000              01-06-05",
                 "Diary.000                  01-06-05", "SMembers.000               01-06-05"}));
    EXPECT_EQ(EntriesOf("List2"), Entries{"old.txt                    31-12-99"});
    ExpectNothingChosen();
}

TEST_F(BackupForm, CopiesTheChosenFileWithItsDate) {
    Put("Notes.txt", "new");
    Put("dbase1.txt", "draws");
    Open();
    BackUp("Notes.txt");
    EXPECT_EQ(test_.folder.Snapshot(),
              (Files{{"Notes.txt", "new"}, {"dbase1.txt", "draws"}, {"Backup/Notes.txt", "new"}}));
    EXPECT_EQ(EntriesOf("List2"), Entries{EntriesOf("List1")[1]});
    ExpectNothingChosen();
    ExpectListsAsReadAnew();
}

TEST_F(BackupForm, ReplacesTheBackupOfBefore) {
    Put("Notes.txt", "new");
    Put("Backup/Notes.txt", "old", std::chrono::May / 1 / 2001);
    Open();
    BackUp("Notes.txt");
    BackUp("Notes.txt");
    EXPECT_EQ(test_.folder.Snapshot(), (Files{{"Notes.txt", "new"}, {"Backup/Notes.txt", "new"}}));
    EXPECT_EQ(EntriesOf("List2"), Entries{"Notes.txt                  01-06-05"});
}

TEST_F(BackupForm, ShowsAFileThatHasChangedMeanwhileAlikeOnBothSides) {
    Put("Notes.txt", "old");
    Open();
    Put("Notes.txt", "new", std::chrono::July / 2 / 2006);
    BackUp("Notes.txt");
    EXPECT_EQ(EntriesOf("List1"), Entries{"Notes.txt                  02-07-06"});
    EXPECT_EQ(EntriesOf("List2"), EntriesOf("List1"));
    ExpectNothingChosen();
}

TEST_F(BackupForm, EndsTheRunAtAFileThatCannotBeRead) {
    Put("Notes.txt", "new");
    Put("Backup/Notes.txt", "old");
    Open();
    test_.folder.Lock("Notes.txt");
    BackUp("Notes.txt");
    EXPECT_NE(TakeFailure().value_or("").find("Notes.txt"), std::string::npos);
    EXPECT_EQ(test_.folder.Read("Backup/Notes.txt"), "old");
}

TEST_F(BackupForm, LeavesTheDataFileWholeWhereARestorationFails) {
    Put("Backup/Notes.txt", "1234567890");
    Put("Notes.txt", "mine");
    Open();
    test_.folder.FailAfterBytes(8);
    Restore("Notes.txt");
    EXPECT_TRUE(TakeFailure().has_value());
    EXPECT_EQ(test_.folder.Read("Notes.txt"), "mine");
}

TEST_F(BackupForm, ReplacesABackupThatIsSpelledOtherwise) {
    Put("Notes.txt", "new");
    Put("Backup/NOTES.TXT", "old", std::chrono::May / 1 / 2001);
    Open();
    BackUp("Notes.txt");
    EXPECT_EQ(test_.folder.Snapshot(), (Files{{"Notes.txt", "new"}, {"Backup/NOTES.TXT", "new"}}));
    ExpectListsAsReadAnew();
}

TEST_F(BackupForm, RestoresTheChosenFile) {
    Put("Backup/Notes.txt", "old", std::chrono::May / 1 / 2001);
    Put("Notes.txt", "broken");
    Open();
    Restore("Notes.txt");
    EXPECT_EQ(test_.folder.Read("Notes.txt"), "old");
    EXPECT_EQ(EntriesOf("List1"), Entries{"Notes.txt                  01-05-01"});
    EXPECT_EQ(EntriesOf("List1"), EntriesOf("List2"));
    ExpectNothingChosen();
}

TEST_F(BackupForm, KeepsWhatARestoredFileReplaces) {
    Put("Backup/Notes.txt", "old");
    Put("Notes.txt", "newer");
    Open();
    Restore("Notes.txt");
    Restore("Notes.txt");
    const auto kept = test_.folder.Find("Backup/Undo/*");
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(test_.folder.Read(kept.front()), "newer");
    EXPECT_EQ(EntriesOf("List2").size(), 1U);
}

TEST_F(BackupForm, KeepsNoBackupThatIsReplaced) {
    Put("Backup/Notes.txt", "old");
    Put("Notes.txt", "newer");
    Open();
    BackUp("Notes.txt");
    EXPECT_TRUE(test_.folder.Find("Backup/Undo/*").empty());
}

TEST_F(BackupForm, SaysWhichFileItCopied) {
    Put("Lottery Info.txt", "x");
    Open();
    BackUp("Lottery Info.txt");
    EXPECT_EQ(Text("Said"), QStringLiteral("Copied: Lottery Info.txt"));
}

TEST_F(BackupForm, DoesNothingWithoutASelection) {
    Put("Notes.txt", "new");
    Put("Backup/dbase1.txt", "old");
    Open();
    const Files before = test_.folder.Snapshot();
    Click(*form_, "Command1");
    Click(*form_, "Command2");
    EXPECT_EQ(test_.folder.Snapshot(), before);
    EXPECT_EQ(test_.messages.Shown(), 0);
    Choose("List2", "dbase1.txt");
    Click(*form_, "Command1");
    EXPECT_EQ(test_.folder.Snapshot(), before) << "each button looks at its own list";
}

TEST_F(BackupForm, BacksUpAllWithoutAWord) {
    const Names names = {"a.txt",         "b.txt",     "quillon.ini",
                         "PTemplate.000", "Diary.000", "SMembers.000"};
    for (const std::string& name : names) Put(name, "of " + name);
    Put("Backup/c.txt", "older");
    Open();
    Click(*form_, "Command4");
    for (const std::string& name : names) {
        EXPECT_EQ(test_.folder.Read("Backup/" + name), "of " + name);
    }
    EXPECT_EQ(test_.folder.Read("Backup/c.txt"), "older");
    EXPECT_FALSE(test_.folder.Exists("c.txt"));
    EXPECT_EQ(Text("Said"), QString());
    ExpectNothingChosen();
    ExpectListsAsReadAnew();
}

TEST_F(BackupForm, RestoresAllWhileTheOtherListGrows) {
    for (const char* name : {"a.txt", "c.txt", "quillon.ini", "Diary.000", "SMembers.000"}) {
        Put("Backup/" + std::string(name), "of " + std::string(name));
    }
    Put("b.txt", "stays");
    Put("c.txt", "goes");
    Open();
    Click(*form_, "Command5");
    EXPECT_EQ(test_.folder.Read("b.txt"), "stays");
    for (const char* name : {"a.txt", "c.txt", "quillon.ini", "Diary.000", "SMembers.000"}) {
        EXPECT_EQ(test_.folder.Read(name), "of " + std::string(name));
    }
    EXPECT_EQ(List("List1").count(), 6);
    EXPECT_EQ(List("List2").count(), 5);
    ExpectNothingChosen();
    ExpectListsAsReadAnew();
}

TEST_F(BackupForm, RestoresNothingFromAnEmptyFolder) {
    Put("Notes.txt", "x");
    Open();
    EXPECT_EQ(EntriesOf("List2"), Entries{});
    Click(*form_, "Command5");
    EXPECT_EQ(test_.folder.Snapshot(), (Files{{"Notes.txt", "x"}}));
    EXPECT_EQ(test_.messages.Shown(), 0);
}

TEST_F(BackupForm, BacksUpNothingOfAnEmptyFolder) {
    Open();
    Click(*form_, "Command4");
    EXPECT_EQ(test_.folder.Snapshot(), Files{});
}

TEST_F(BackupForm, CopiesANameOfTwentySevenCharacters) {
    const std::string name = "abcdefghijklmnopqrstuvw.txt";
    Put(name, "x");
    Open();
    BackUp(name);
    EXPECT_TRUE(test_.folder.Exists("Backup/" + name));
}

TEST_F(BackupForm, EndsTheRunAtANameOfTwentyEight) {
    Put("abcdefghijklmnopqrstuvwx.txt", "x");
    Open();
    EXPECT_EQ(EntriesOf("List1"), Entries{"abcdefghijklmnopqrstuvwx.tx01-06-05"});
    BackUp("abcdefghijklmnopqrstuvwx");
    EXPECT_NE(TakeFailure().value_or("").find("abcdefghijklmnopqrstuvwx.tx0"), std::string::npos);
}

TEST_F(BackupForm, EndsTheRunAtANameWhoseDotIsCutOff) {
    Put("abcdefghijklmnopqrstuvwxyzABC.txt", "x");
    Open();
    BackUp("abc");
    EXPECT_NE(TakeFailure().value_or("").find("too long"), std::string::npos);
}

TEST_F(BackupForm, CutsANameWithAnotherDot) {
    Put("my.lottery.txt", "mine");
    Put("my.lot", "other");
    Open();
    EXPECT_EQ(EntriesOf("List1"), Entries{"my.lottery.txt             01-06-05"});
    BackUp("my.lottery.txt");
    EXPECT_EQ(test_.folder.Snapshot(),
              (Files{{"my.lottery.txt", "mine"}, {"my.lot", "other"}, {"Backup/my.lot", "other"}}));
    ExpectListsAsReadAnew();
}

TEST_F(BackupForm, EndsTheRunWhereTheCutNameIsNoFile) {
    Put("my.lottery.txt", "mine");
    Open();
    BackUp("my.lottery.txt");
    EXPECT_NE(TakeFailure().value_or("").find("my.lot"), std::string::npos);
}

TEST_F(BackupForm, EndsTheRunAtAFileThatHasGone) {
    Put("a.txt", "a");
    Put("b.txt", "b");
    Put("c.txt", "c");
    Open();
    test_.folder.Delete("b.txt");
    Click(*form_, "Command4");
    EXPECT_NE(TakeFailure().value_or("").find("b.txt"), std::string::npos);
    EXPECT_TRUE(test_.folder.Exists("Backup/a.txt")) << "copies made before it stay";
    EXPECT_FALSE(test_.folder.Exists("Backup/c.txt"));
}

TEST_F(BackupForm, LeavesTheOldBackupWholeWhereACopyFails) {
    Put("a.txt", "1234567890");
    Put("b.txt", "1234567890");
    Put("Backup/b.txt", "old");
    Open();
    test_.folder.FailAfterBytes(15);
    Click(*form_, "Command4");
    EXPECT_TRUE(TakeFailure().has_value());
    EXPECT_EQ(test_.folder.Snapshot().at("Backup/a.txt"), "1234567890");
    EXPECT_EQ(test_.folder.Snapshot().at("Backup/b.txt"), "old");
}

TEST_F(BackupForm, EndsTheRunAtAFolderInThePlaceOfABackup) {
    Put("Notes.txt", "x");
    test_.folder.MakeFolder("Backup/Notes.txt");
    Open();
    EXPECT_EQ(EntriesOf("List2"), Entries{});
    BackUp("Notes.txt");
    EXPECT_TRUE(TakeFailure().has_value());
}

TEST_F(BackupForm, EndsTheRunWhereThereIsNoBackupFolder) {
    TestProgram bare;
    MakeDefaultSettings(bare.state, bare.folder);
    Backup form(bare.program, nullptr);
    EXPECT_THROW(form.Load(), Failure);
}

TEST_F(BackupForm, ReadsNothingThatItRestoresIntoMemory) {
    Put("Backup/quillon.ini", "&HFF\r\n");
    Open();
    Restore("quillon.ini");
    EXPECT_EQ(test_.folder.Read("quillon.ini"), "&HFF\r\n");
    EXPECT_EQ(test_.state.Settings(1), "&H000000");
}

TEST_F(BackupForm, TakesTheColoursOfTheSettings) {
    test_.state.Settings(10) = "2";
    for (int slot = 1; slot <= 4; ++slot) {
        test_.state.Settings(slot) = "&H" + std::string(6, static_cast<char>('0' + slot));
    }
    Open();
    const std::map<const char*, int> digits = {
        {"Label4", 0x11}, {"Label3", 0x22}, {"Label1", 0x33}, {"Label2", 0x33}, {"Label5", 0x44}};
    for (const auto& [name, digit] : digits) {
        EXPECT_EQ(Find<QLabel>(*form_, name)->palette().color(QPalette::WindowText),
                  QColor(digit, digit, digit))
            << name;
    }
}

TEST_F(BackupForm, StartsInTheListOfDataFiles) {
    Put("Notes.txt", "x");
    Open();
    EXPECT_EQ(form_->focusWidget(), &List("List1"));
    ExpectNothingChosen();
}

TEST_F(BackupForm, ClosesByItsButton) {
    Open();
    Click(*form_, "Command3");
    EXPECT_FALSE(form_->isVisible());
}

TEST_F(BackupForm, TellsItsTwoCopyButtonsApartToAScreenReader) {
    Open();
    EXPECT_NE(Find<QWidget>(*form_, "Command1")->accessibleName(),
              Find<QWidget>(*form_, "Command2")->accessibleName());
}

}  // namespace

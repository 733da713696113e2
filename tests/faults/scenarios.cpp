// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/faults/scenarios.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <array>

#include "core/settings.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "tests/faults/used_folder.h"

namespace {

void FillBoxes(QWidget& form, int first, std::initializer_list<const char*> numbers) {
    for (const char* number : numbers) {
        const std::string box = "Text1(" + std::to_string(first++) + ")";
        Session::Fill(form, box.c_str(), number);
    }
}

void Nothing(Session&) {}

void Quit(Session& session) {
    session.Window()
        .findChild<QPlainTextEdit*>(QStringLiteral("Text1"))
        ->setPlainText(QStringLiteral("three"));
    session.state.Settings(setting::PlayerName) = "Zoe";
    session.Window().close();
}

void StoreEntries(Session& session) {
    session.InForm("DatabaseStoreDrawsW", "StoreMyDrawsW", [&](QDialog& form) {
        FillBoxes(form, 1, {"1", "2", "3", "4", "5", "6"});
        session.Press(form, "Command2");
        session.Press(form, "Command3");
    });
}

void SaveGeneratedLines(Session& session) {
    session.InForm("PlayLuckyDip", "PLuckyDip", [&](QDialog& form) {
        const auto save = [&] { session.Press(form, "Command7"); };
        session.InForm(save, "SaveEntries",
                       [&](QDialog& dialog) { session.Press(dialog, "Command7"); });
        session.Press(form, "Command1");
    });
}

void EditEntries(Session& session) {
    session.InForm("DatabaseCheck", "ShowMyDrawsW", [&](QDialog& form) {
        Session::ChooseCell(form, 1, 10);
        Session::Fill(form, "Text1", "Zoe");
        session.Press(form, "Command10");
        session.Press(form, "Command13");
        if (form.isVisible()) session.Press(form, "Command1");
    });
}

void SaveNoEntries(Session& session) {
    session.InForm("DatabaseCheck", "ShowMyDrawsW", [&](QDialog& form) {
        session.Press(form, "Command9");
        if (form.isVisible()) session.Press(form, "Command13");
        if (form.isVisible()) session.Press(form, "Command1");
    });
}

void CheckEntries(Session& session) {
    session.InForm("DatabaseCheck", "ShowMyDrawsW", [&](QDialog& form) {
        session.Press(form, "Command2");
        session.Press(form, "Command1");
    });
}

void DeleteEntries(Session& session) { session.Choose("FileDeleteSaved"); }

void CreateADatabase(Session& session) {
    session.InForm("DatabasesCreate", "CreateDbase", [&](QDialog& form) {
        Session::ChooseLine(form, "List1", 0);
        FillBoxes(form, 0, {"1", "2", "3", "4", "5", "6"});
        session.Press(form, "Command1");
    });
}

void UpdateADatabase(Session& session) {
    session.InForm("wUpdateDbase", "DbaseUpdateW", [&](QDialog& form) {
        FillBoxes(form, 0, {"1", "2", "3", "4", "5", "6"});
        session.Press(form, "Command1");
        session.Press(form, "CancelButton");
    });
}

void EditADraw(Session& session) {
    session.InForm("wDatabaseView", "HistoryW", [&](QDialog& form) {
        Session::ChooseCell(form, 2, 3);
        Session::Fill(form, "Text1(1)", "49");
        session.Press(form, "Command3");
        session.Press(form, "Command1");
    });
}

void MoveADraw(Session& session) {
    session.InForm("wDatabaseView", "HistoryW", [&](QDialog& form) {
        Session::ChooseCell(form, 2, 3);
        form.findChild<QDateEdit*>(QStringLiteral("DTPicker1"))->setDate(QDate(2005, 6, 1));
        session.Press(form, "Command3");
        session.Press(form, "Command1");
    });
}

void DeleteADraw(Session& session) {
    session.InForm("wDatabaseView", "HistoryW", [&](QDialog& form) {
        Session::ChooseCell(form, 1, 3);
        session.Press(form, "Command2");
        session.Press(form, "Command1");
    });
}

void DeleteADatabase(Session& session) {
    session.InForm("FileDelete", "DeleteDbaseW", [&](QDialog& form) {
        Session::ChooseLine(form, "List1", 0);
        session.Press(form, "Command2");
    });
}

// Without the time, which is real.
void SayProgress(Session& session, QDialog& form) {
    const auto* progress = form.findChild<ListBox*>(QStringLiteral("List2"));
    for (int line = 0; line < progress->count(); ++line) {
        static const QRegularExpression time(QStringLiteral("\\d+\\.\\d sec$"));
        session.Said(progress->item(line)->text().remove(time));
    }
}

std::string Filled(std::string page, std::size_t size) {
    page.resize(size, ' ');
    return page;
}

void Download(Session& session, const char* entry, const char* name) {
    session.InForm(entry, name, [&](QDialog& form) {
        session.Press(form, "OKButton");
        SayProgress(session, form);
        session.Press(form, "CancelButton");
    });
}

void DownloadUk(Session& session) {
    for (int lottery = 0; lottery < setting::ukDownloads; ++lottery) {
        const QString address =
            ToQString(session.state.Settings(setting::UkDownloadAddresses + lottery));
        session.pages[address] =
            Filled("DrawDate,Balls\r\n04-Jun-2005,1,2,3,4,5,6,7,8\r\n\r\n", 2000);
    }
    Download(session, "DatabaseUpdate", "DbaseUpdate");
}

void DownloadUs(Session& session) {
    const auto page = [&](int slot) -> std::string& {
        return session.pages[ToQString(session.state.Settings(slot))];
    };
    page(setting::MegaMillionsAddress) =
        Filled("06/17/2005,1,2,3,4,5,6\r\n06/21/2005,7,8,9,10,11,12\r\n", 1000);
    page(setting::PowerballAddress) =
        Filled("Draw Date\r\n06/18/2005  01  2  03  04  05  06  2\r\n\r\n", 1000);
    Download(session, "DatabaseUS", "DbaseUpdateUS");
}

void SaveAddresses(Session& session) {
    session.InForm("DatabaseUS", "DbaseUpdateUS", [&](QDialog& form) {
        Session::Fill(form, "Text1", "http://other.example");
        session.Press(form, "Command7");
        session.Press(form, "CancelButton");
    });
}

void CreateASyndicate(Session& session) {
    session.InForm("SyndicateNew", "NewSyndicate", [&](QDialog& form) {
        Session::Fill(form, "Text1(7)", "Club");
        Session::Fill(form, "Text1(0)", "Eve");
        session.Press(form, "Command1");
    });
}

void ManageASyndicate(Session& session) {
    session.InForm("SyndicateManager", "SManager", [&](QDialog& form) {
        Session::Fill(form, "Text1(5)", "555");
        Session::ChooseCell(form, 2, 5);
        Session::Fill(form, "Text2", "second");
        session.Press(form, "Command2");
        session.Press(form, "Command1");
    });
}

void AddAMember(Session& session) {
    session.InForm("SyndicateMembers", "SMembers", [&](QDialog& form) {
        Session::Fill(form, "Text1(0)", "Bob");
        session.Press(form, "Command1");
        session.Press(form, "Command4");
        if (form.isVisible()) session.Press(form, "Command3");
    });
}

void EnterAPayment(Session& session) {
    session.InForm("SyndicatePayments", "SPayments", [&](QDialog& form) {
        Session::ChooseCell(form, 1, 2);
        Session::Fill(form, "Text1", "5.00");
        session.Press(form, "Command10");
        session.Press(form, "Command1");
        if (form.isVisible()) session.Press(form, "Command2");
    });
}

void SaveSyndicateNotes(Session& session) {
    session.InForm("SyndicatesNotes", "SNotes", [&](QDialog& form) {
        form.findChild<QCheckBox*>(QStringLiteral("Check1(1)"))->click();
        session.Press(form, "Command1");
        session.Press(form, "Command2");
    });
}

void ResetSyndicateNotes(Session& session) {
    session.InForm("SyndicatesNotes", "SNotes",
                   [&](QDialog& form) { session.Press(form, "Command5"); });
}

void DeleteASyndicate(Session& session) {
    session.InForm("SyndicatesDelete", "DeleteSyndicate", [&](QDialog& form) {
        Session::ChooseLine(form, "List1", 0);
        session.Press(form, "Command2");
    });
}

void SaveATemplate(Session& session) {
    session.InForm("FilePrintSetup", "PrintSetup", [&](QDialog& form) {
        Session::Fill(form, "Text3", "My slip");
        Session::Fill(form, "Text9", "10");
        session.Press(form, "Command4");
        session.Press(form, "CancelButton");
    });
}

void DeleteATemplate(Session& session) {
    session.InForm("FilePrintSetup", "PrintSetup", [&](QDialog& form) {
        session.Press(form, "Command3");
        session.Press(form, "CancelButton");
    });
}

void SavePreferences(Session& session) {
    session.InForm("FilePreferences", "Preferences", [&](QDialog& form) {
        Session::Fill(form, "Text1(4)", "Bread");
        session.Press(form, "Command7");
    });
}

void ResetPreferences(Session& session) {
    session.InForm("FilePreferences", "Preferences",
                   [&](QDialog& form) { session.Press(form, "Command12"); });
}

void InBackup(Session& session, const char* command) {
    session.InForm("FileBackup", "Backup", [&](QDialog& form) {
        Session::ChooseLine(form, "List1", 0);
        Session::ChooseLine(form, "List2", 0);
        session.Press(form, command);
        session.Press(form, "Command3");
    });
}

void BackUpOne(Session& session) { InBackup(session, "Command1"); }
void BackUpAll(Session& session) { InBackup(session, "Command4"); }
void RestoreOne(Session& session) { InBackup(session, "Command2"); }
void RestoreAll(Session& session) { InBackup(session, "Command5"); }

// With a floppy disk that holds older files.
void UsedFolderAndFloppy(Session& session) {
    UsedFolder(session);
    const std::string other = OtherFolderOf(session.folder.Path().toStdString());
    PutFiles(other, {{"MyLottery.txt", "01-May-2005,1,2,3,4,5,6,,,UK Lotto,Tom,dbase100.txt\r\n"},
                     {"Diary.000", ""},
                     {"Notes.txt", session.folder.Read("Notes.txt")}});
}

void CopyFromFloppy(Session& session) {
    session.chosenPath = QString::fromStdString(OtherFolderOf(session.folder.Path().toStdString()));
    session.Choose("FileCopyFromA");
}

// To try a save under every fault, add its line here.
const auto scenarios = std::to_array<Scenario>({
    {.name = "FirstStart", .act = Nothing, .starts = true},
    {.name = "Start", .prepare = UsedFolder, .act = Nothing, .starts = true},
    {.name = "QuitSavesNotesAndSettings", .prepare = UsedFolder, .act = Quit},
    {.name = "StoreEntries", .prepare = UsedFolder, .act = StoreEntries},
    {.name = "SaveGeneratedLines", .prepare = UsedFolder, .act = SaveGeneratedLines},
    {.name = "EditEntries", .prepare = UsedFolder, .act = EditEntries},
    {.name = "SaveNoEntries", .prepare = UsedFolder, .act = SaveNoEntries},
    {.name = "CheckEntries", .prepare = UsedFolder, .act = CheckEntries},
    {.name = "DeleteEntries", .prepare = UsedFolder, .act = DeleteEntries},
    {.name = "CreateADatabase", .prepare = UsedFolder, .act = CreateADatabase},
    {.name = "UpdateADatabase", .prepare = UsedFolder, .act = UpdateADatabase},
    {.name = "EditADraw", .prepare = UsedFolder, .act = EditADraw},
    {.name = "MoveADraw", .prepare = UsedFolder, .act = MoveADraw},
    {.name = "DeleteADraw", .prepare = UsedFolder, .act = DeleteADraw},
    {.name = "DeleteADatabase", .prepare = UsedFolder, .act = DeleteADatabase},
    {.name = "DownloadUk", .prepare = UsedFolder, .act = DownloadUk},
    {.name = "DownloadUs", .prepare = UsedFolder, .act = DownloadUs},
    {.name = "SaveAddresses", .prepare = UsedFolder, .act = SaveAddresses},
    {.name = "CreateASyndicate", .prepare = UsedFolder, .act = CreateASyndicate},
    {.name = "ManageASyndicate", .prepare = UsedFolder, .act = ManageASyndicate},
    {.name = "AddAMember", .prepare = UsedFolder, .act = AddAMember},
    {.name = "EnterAPayment", .prepare = UsedFolder, .act = EnterAPayment},
    {.name = "SaveSyndicateNotes", .prepare = UsedFolder, .act = SaveSyndicateNotes},
    {.name = "ResetSyndicateNotes", .prepare = UsedFolder, .act = ResetSyndicateNotes},
    {.name = "DeleteASyndicate", .prepare = UsedFolder, .act = DeleteASyndicate},
    {.name = "SaveATemplate", .prepare = UsedFolder, .act = SaveATemplate},
    {.name = "UpdateATemplate", .prepare = UsedFolderWithTemplate, .act = SaveATemplate},
    {.name = "DeleteATemplate", .prepare = UsedFolderWithTemplate, .act = DeleteATemplate},
    {.name = "SavePreferences", .prepare = UsedFolder, .act = SavePreferences},
    {.name = "ResetPreferences", .prepare = UsedFolder, .act = ResetPreferences},
    {.name = "BackUpOne", .prepare = UsedFolder, .act = BackUpOne},
    {.name = "BackUpAll", .prepare = UsedFolder, .act = BackUpAll},
    {.name = "RestoreOne", .prepare = UsedFolder, .act = RestoreOne},
    {.name = "RestoreAll", .prepare = UsedFolder, .act = RestoreAll},
    {.name = "CopyFromFloppy",
     .prepare = UsedFolderAndFloppy,
     .act = CopyFromFloppy,
     .silent = true},
});

}  // namespace

std::span<const Scenario> Scenarios() { return scenarios; }

// SPDX-License-Identifier: GPL-3.0-or-later
// Start and end of the program, and everything that writes settings, slip templates and documents
// or copies files.
#include <QPlainTextEdit>
#include <utility>

#include "core/settings.h"
#include "platform/forms/PrintPreview.h"
#include "platform/system/FileDialogs.h"
#include "platform/system/HelpPages.h"
#include "platform/system/ProgramFolderPath.h"
#include "platform/system/TextConversion.h"
#include "shell/version_check.h"
#include "tests/faults/scenario_families.h"
#include "tests/faults/used_folder.h"

namespace {

void Nothing(Session&) {}

void Quit(Session& session) {
    session.Window()
        .findChild<QPlainTextEdit*>(QStringLiteral("Text1"))
        ->setPlainText(QStringLiteral("three"));
    session.state.Settings(setting::PlayerName) = "Zoe";
    session.Window().close();
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
    session.chosenPath = QString::fromStdString(session.OtherFolder());
    PutFiles(session.OtherFolder(),
             {{"MyLottery.txt", "01-May-2005,1,2,3,4,5,6,,,UK Lotto,Tom,dbase100.txt\r\n"},
              {"Diary.000", ""}});
}

void CopyFromFloppy(Session& session) { session.Choose("FileCopyFromA"); }

void CopyToFloppy(Session& session) { session.Choose("FileCopyToA"); }

void CheckForNewVersion(Session& session) {
    const QString site = ToQString(session.state.Settings(setting::LinkAddresses));
    session.pages[site % QLatin1String(versionPath)] = "TVX9.9.9\r\n";
    session.Choose("HelpNewVersion");
}

PrintedSheets OneEmptySheet(const QSizeF&, const PageCorrection&) {
    return {.count = 1, .paint = [](QPainter&, int) {}};
}

// The bytes of a document tell the time at which it was made, so others are written.
void SaveADocument(Session& session) {
    const PrintTask task{.title = QStringLiteral("Draws"), .options = {}, .layOut = OneEmptySheet};
    const QString path = QString::fromStdString(session.OtherFolder() + "/Draws.pdf");
    PreviewExits exits{
        .print = {},
        .askForPdf = [path](QWidget*, const QString&) { return path; },
        .write = [](const QString& file,
                    const QByteArray&) { return WriteUserFile(file, "a new document"); }};
    PrintPreview preview(session.Given(), task, std::move(exits), &session.Window());
    preview.Load();
    preview.show();
    session.Press(preview, "SaveAsPdf");
    session.Press(preview, "Close");
}

void UsedFolderAndDocument(Session& session) {
    UsedFolder(session);
    PutFiles(session.OtherFolder(), {{"Draws.pdf", "the document of before"}});
}

// With what a newer version of the program brings.
void UsedFolderAndSupplied(Session& session) {
    UsedFolder(session);
    PutFiles(session.OtherFolder(), {{"bin/", ""},
                                     {"share/quillon/Lottery Info.txt", "News\r\n"},
                                     {"share/quillon/MyLottery.txt", ""}});
}

// With help pages of before, which nobody has changed since.
void UsedFolderAndHelpPages(Session& session) {
    UsedFolder(session);
    const QString shared = QString::fromStdString(session.OtherFolder() + "/share/quillon");
    const std::string older = "<html>older</html>";
    PutFiles(
        session.OtherFolder(),
        {{"bin/", ""}, {"share/quillon/help.html", older}, {"share/quillon/help/one.png", older}});
    session.folder.Write("help.html", older);
    session.folder.MakeFolder("help");
    session.folder.Write("help/one.png", older);
    RenewHelpPages(shared, session.folder.Path(), QStringLiteral("1"));
    PutFiles(session.OtherFolder(), {{"bin/", ""},
                                     {"share/quillon/help.html", "<html>newer</html>"},
                                     {"share/quillon/help/one.png", "a newer picture"},
                                     {"share/quillon/help/two.png", "another picture"}});
}

void TakeWhatIsSupplied(Session& session) {
    ProgramFolderPath(QString::fromStdString(session.OtherFolder() + "/bin"),
                      session.folder.Path());
}

}  // namespace

// To try a save under every fault, add its line here.
std::vector<Scenario> FileScenarios() {
    return {
        {.name = "FirstStart", .act = Nothing, .starts = true},
        {.name = "Start", .prepare = UsedFolder, .act = Nothing, .starts = true},
        {.name = "TakeWhatIsSupplied", .prepare = UsedFolderAndSupplied, .act = TakeWhatIsSupplied},
        {.name = "TakeNewHelpPages",
         .prepare = UsedFolderAndHelpPages,
         .act = TakeWhatIsSupplied,
         .silent = true},
        {.name = "QuitSavesNotesAndSettings", .prepare = UsedFolder, .act = Quit},
        {.name = "SaveATemplate", .prepare = UsedFolder, .act = SaveATemplate},
        {.name = "UpdateATemplate", .prepare = UsedFolderWithTemplate, .act = SaveATemplate},
        {.name = "DeleteATemplate", .prepare = UsedFolderWithTemplate, .act = DeleteATemplate},
        {.name = "SavePreferences", .prepare = UsedFolder, .act = SavePreferences},
        {.name = "ResetPreferences", .prepare = UsedFolder, .act = ResetPreferences},
        {.name = "CheckForNewVersion", .prepare = UsedFolder, .act = CheckForNewVersion},
        {.name = "SaveADocument", .prepare = UsedFolderAndDocument, .act = SaveADocument},
        {.name = "BackUpOne", .prepare = UsedFolder, .act = BackUpOne},
        {.name = "BackUpAll", .prepare = UsedFolder, .act = BackUpAll},
        {.name = "RestoreOne", .prepare = UsedFolder, .act = RestoreOne},
        {.name = "RestoreAll", .prepare = UsedFolder, .act = RestoreAll},
        {.name = "CopyToFloppy",
         .prepare = UsedFolderAndFloppy,
         .act = CopyToFloppy,
         .silent = true},
        {.name = "CopyFromFloppy",
         .prepare = UsedFolderAndFloppy,
         .act = CopyFromFloppy,
         .silent = true},
    };
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that writes draw databases, but for imports.
#include <QDateEdit>
#include <QRegularExpression>

#include "core/settings.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "tests/faults/scenario_families.h"
#include "tests/faults/used_folder.h"

namespace {

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

// Each line as it is added, without the time, which is real.
void SayProgress(Session& session, QDialog& form) {
    const auto* progress = form.findChild<ListBox*>(QStringLiteral("List2"));
    QObject::connect(progress->model(), &QAbstractItemModel::rowsInserted, &form,
                     [&session, progress](const QModelIndex&, int row) {
                         static const QRegularExpression time(QStringLiteral("\\d+\\.\\d sec$"));
                         session.Said(progress->item(row)->text().remove(time));
                     });
}

std::string Filled(std::string page, std::size_t size) {
    page.resize(size, ' ');
    return page;
}

void Download(Session& session, const char* entry, const char* name) {
    session.InForm(entry, name, [&](QDialog& form) {
        SayProgress(session, form);
        session.Press(form, "OKButton");
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

void TakeBackAnUpdate(Session& session) {
    session.InForm("wDatabaseView", "HistoryW", [&](QDialog& form) {
        Session::ChooseCell(form, 2, 3);
        Session::Fill(form, "Text1(1)", "49");
        session.Press(form, "Command3");
        session.TakeBack(form);
        session.Press(form, "Command1");
    });
}

void TakeBackADelete(Session& session) {
    session.InForm("wDatabaseView", "HistoryW", [&](QDialog& form) {
        Session::ChooseCell(form, 1, 3);
        session.Press(form, "Command2");
        session.TakeBack(form);
        session.Press(form, "Command1");
    });
}

}  // namespace

// To try a save under every fault, add its line here.
std::vector<Scenario> DatabaseScenarios() {
    return {
        {.name = "CreateADatabase", .prepare = UsedFolder, .act = CreateADatabase},
        {.name = "UpdateADatabase", .prepare = UsedFolder, .act = UpdateADatabase},
        {.name = "EditADraw", .prepare = UsedFolder, .act = EditADraw},
        {.name = "TakeBackAnUpdate", .prepare = UsedFolder, .act = TakeBackAnUpdate},
        {.name = "MoveADraw", .prepare = UsedFolder, .act = MoveADraw},
        {.name = "DeleteADraw", .prepare = UsedFolder, .act = DeleteADraw},
        {.name = "TakeBackADelete", .prepare = UsedFolder, .act = TakeBackADelete},
        {.name = "DeleteADatabase", .prepare = UsedFolder, .act = DeleteADatabase},
        {.name = "DownloadUk", .prepare = UsedFolder, .act = DownloadUk},
        {.name = "DownloadUs", .prepare = UsedFolder, .act = DownloadUs},
        {.name = "SaveAddresses", .prepare = UsedFolder, .act = SaveAddresses},
    };
}

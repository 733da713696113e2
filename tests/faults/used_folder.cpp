// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/faults/used_folder.h"

#include "core/settings.h"
#include "shell/notes_file.h"
#include "syndicates/syndicate_files.h"
#include "syndicates/syndicate_notes.h"
#include "tests/support/sample_lotteries.h"

namespace {

Notes SomeNotes() {
    Notes notes;
    notes.checklist[0] = {true, "Buy lottery tickets"};
    notes.note = "one\r\ntwo\r\n";
    return notes;
}

}  // namespace

void UsedFolder(Session& session) {
    DiskFolder& folder = session.folder;
    MakeDefaultSettings(session.state, folder);
    AddUkLotto(folder);
    AddThunderball(folder);
    folder.Write("LotteryTemplates.txt", "UK Lotto,6,49,0,0,http://one.example\r\n");
    folder.Write("MyLottery.txt",
                 "28-May-2005,3,17,22,9,41,40,,,UK Lotto,Tom,dbase100.txt\r\n"
                 "01-Jun-2005,4,9,15,27,30,,,6,UK Thunderball,Ann,dbase101.txt\r\n");
    SaveNotes(folder, SomeNotes());
    SaveSyndicateNotes(folder, SomeNotes());
    StartSyndicate(session.state, folder, {.syndicate = "Winners", .manager = {"Ann"}});
    folder.Write("Diary.000", "\"01-Jun-2005\",\"5\",\"\",\"\",\"\",\"first\"\r\n");
    SaveSettings(session.state, folder);
    folder.MakeFolder("Backup");
    folder.Write("Backup/MyLottery.txt", "28-May-2005,1,2,3,4,5,6,,,UK Lotto,Tom,dbase100.txt\r\n");
}

void UsedFolderWithTemplate(Session& session) {
    UsedFolder(session);
    std::string slip = "My slip\r\nUK Lotto\r\n 1 \r\n3,2\r\n5,1\r\n12,4\r\n38.2,71.5\r\n";
    slip += "42.1,27.3\r\n3.8,6.39\r\n3.8,6.39\r\n28.1,0\r\n3.0,5.5\r\n";
    for (int number = 1; number <= 60; ++number) slip += ",,,\r\n";
    session.folder.Write("PTemplate.000", slip);
}

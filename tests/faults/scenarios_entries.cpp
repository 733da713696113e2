// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that writes the saved entries.
#include "tests/faults/scenario_families.h"
#include "tests/faults/used_folder.h"

namespace {

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

void DeleteShownEntries(Session& session) {
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

// The second change is taken back and the first one saved.
void SaveAfterTakingBack(Session& session) {
    session.InForm("DatabaseCheck", "ShowMyDrawsW", [&](QDialog& form) {
        Session::ChooseCell(form, 1, 10);
        Session::Fill(form, "Text1", "Zoe");
        session.Press(form, "Command10");
        session.Press(form, "Command7");
        session.TakeBack(form);
        session.Press(form, "Command13");
        if (form.isVisible()) session.Press(form, "Command1");
    });
}

void StoreAfterTakingBack(Session& session) {
    session.InForm("DatabaseStoreDrawsW", "StoreMyDrawsW", [&](QDialog& form) {
        FillBoxes(form, 1, {"1", "2", "3", "4", "5", "6"});
        session.Press(form, "Command2");
        FillBoxes(form, 1, {"7", "8", "9", "10", "11", "12"});
        session.Press(form, "Command2");
        session.TakeBack(form);
        session.Press(form, "Command3");
    });
}

void SaveAnEmptyTable(Session& session) {
    session.InForm("DatabaseCheck", "ShowMyDrawsW", [&](QDialog& form) {
        Session::ChooseCell(form, 1, 3);
        for (const char* button : {"Command7", "Command7", "Command13", "Command1"}) {
            if (form.isVisible()) session.Press(form, button);
        }
    });
}

}  // namespace

// To try a save under every fault, add its line here.
std::vector<Scenario> EntryScenarios() {
    return {
        {.name = "StoreEntries", .prepare = UsedFolder, .act = StoreEntries},
        {.name = "StoreAfterTakingBack", .prepare = UsedFolder, .act = StoreAfterTakingBack},
        {.name = "SaveGeneratedLines", .prepare = UsedFolder, .act = SaveGeneratedLines},
        {.name = "EditEntries", .prepare = UsedFolder, .act = EditEntries},
        {.name = "SaveAfterTakingBack", .prepare = UsedFolder, .act = SaveAfterTakingBack},
        {.name = "DeleteShownEntries", .prepare = UsedFolder, .act = DeleteShownEntries},
        {.name = "CheckEntries", .prepare = UsedFolder, .act = CheckEntries},
        {.name = "SaveAnEmptyTable", .prepare = UsedFolder, .act = SaveAnEmptyTable},
        {.name = "DeleteEntries", .prepare = UsedFolder, .act = DeleteEntries},
    };
}

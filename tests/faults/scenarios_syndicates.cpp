// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that writes the files of syndicates.
#include <QCheckBox>

#include "tests/faults/scenario_families.h"
#include "tests/faults/used_folder.h"

namespace {

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

// The second change is taken back and the first one saved.
void SaveDiaryAfterTakingBack(Session& session) {
    session.InForm("SyndicateManager", "SManager", [&](QDialog& form) {
        Session::ChooseCell(form, 2, 5);
        Session::Fill(form, "Text2", "second");
        session.Press(form, "Command2");
        Session::ChooseCell(form, 1, 5);
        session.Press(form, "Command4");
        session.TakeBack(form);
        session.Press(form, "Command1");
    });
}

}  // namespace

// To try a save under every fault, add its line here.
std::vector<Scenario> SyndicateScenarios() {
    return {
        {.name = "CreateASyndicate", .prepare = UsedFolder, .act = CreateASyndicate},
        {.name = "ManageASyndicate", .prepare = UsedFolder, .act = ManageASyndicate},
        {.name = "SaveDiaryAfterTakingBack",
         .prepare = UsedFolder,
         .act = SaveDiaryAfterTakingBack},
        {.name = "AddAMember", .prepare = UsedFolder, .act = AddAMember},
        {.name = "EnterAPayment", .prepare = UsedFolder, .act = EnterAPayment},
        {.name = "SaveSyndicateNotes", .prepare = UsedFolder, .act = SaveSyndicateNotes},
        {.name = "ResetSyndicateNotes", .prepare = UsedFolder, .act = ResetSyndicateNotes},
        {.name = "DeleteASyndicate", .prepare = UsedFolder, .act = DeleteASyndicate},
    };
}

// SPDX-License-Identifier: GPL-3.0-or-later
// Everything that the form writes that imports draws.
#include <QLabel>
#include <QPushButton>
#include <utility>
#include <vector>

#include "tests/faults/scenario_families.h"
#include "tests/faults/used_folder.h"
#include "tests/support/results_text.h"

namespace {

constexpr const char* address = "https://results.example/village.csv";

// The newest of 30 is that of 28 May 2005.
std::vector<PublishedDraw> AllDraws() { return PublishedDraws(30, 49, 1083); }

// Without the last two.
std::vector<PublishedDraw> OlderDraws() {
    const auto draws = AllDraws();
    return {draws.begin() + 2, draws.end()};
}

void PutResults(Session& session, const std::vector<PublishedDraw>& draws) {
    const std::string other = session.OtherFolder();
    PutFiles(other, {{"village.csv", ResultsCsv(draws)}});
    session.chosenPath = QString::fromStdString(other + "/village.csv");
}

// With a results file of the user's elsewhere.
void UsedFolderAndResults(Session& session) {
    UsedFolder(session);
    PutResults(session, AllDraws());
}

// Of the lottery of that file two draws are not there yet and one has other numbers.
void UsedFolderAndLottery(Session& session) {
    UsedFolderAndResults(session);
    auto draws = OlderDraws();
    std::swap(draws[3].balls[0], draws[3].balls[6]);
    session.folder.Write("dbase1.txt", DatabaseText("Village", 49, draws));
}

// A button that is not offered is not pressed; the form says in its middle why.
void PressIfOffered(Session& session, QDialog& form, const char* name) {
    const auto* button = form.findChild<QPushButton*>(QString::fromLatin1(name));
    if (button->isEnabled() && button->isVisible()) return session.Press(form, name);
    session.Said(form.findChild<QLabel*>(QStringLiteral("Hint"))->text());
}

void ImportAFile(Session& session) {
    session.InForm("DatabaseImport", "ImportDraws", [&](QDialog& form) {
        session.Press(form, "ChooseFile");
        PressIfOffered(session, form, "Import");
        session.Press(form, "Close");
    });
}

// Two draws have come since it was fetched first.
void ImportFromTheWeb(Session& session) {
    std::string& page = session.pages[QString::fromLatin1(address)];
    page = ResultsCsv(OlderDraws());
    session.InForm("DatabaseImport", "ImportDraws", [&](QDialog& form) {
        Session::Fill(form, "Address", address);
        session.Press(form, "Fetch");
        PressIfOffered(session, form, "Import");
        page = ResultsCsv(AllDraws());
        PressIfOffered(session, form, "Update");
        session.Press(form, "Close");
    });
}

}  // namespace

// To try a save under every fault, add its line here.
std::vector<Scenario> ImportScenarios() {
    return {
        {.name = "ImportANewLottery", .prepare = UsedFolderAndResults, .act = ImportAFile},
        {.name = "ImportIntoALottery",
         .prepare = UsedFolderAndLottery,
         .act = ImportAFile,
         .keeps = "dbase1.txt"},
        {.name = "ImportFromTheWeb",
         .prepare = UsedFolder,
         .act = ImportFromTheWeb,
         .keeps = "dbase1.txt"},
    };
}

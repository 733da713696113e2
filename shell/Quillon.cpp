// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Quillon.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDragEnterEvent>

#include "core/draw_database.h"
#include "core/failure.h"
#include "core/old_files.h"
#include "core/saved_entries.h"
#include "core/saving.h"
#include "core/settings.h"
#include "core/syndicate.h"
#include "databases/ImportDraws.h"
#include "platform/forms/DroppedFile.h"
#include "platform/forms/RoomOnScreen.h"
#include "platform/forms/Skin.h"
#include "platform/forms/WindowSize.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Lists.h"
#include "platform/widgets/OneLine.h"
#include "platform/widgets/Widgets.h"
#include "shell/BiochartPanel.h"
#include "shell/FloppyCopy.h"
#include "shell/HelpCommands.h"
#include "shell/InfoPanels.h"
#include "shell/MainArea.h"
#include "shell/MainMenu.h"
#include "shell/Toolbar.h"
#include "shell/backup_list.h"
#include "shell/form_catalogue.h"

namespace {

constexpr const char* internetEntry = "LinksLink(0)";

}  // namespace

Quillon::Quillon(Program& program, QWidget* parent)
    : QMainWindow(parent),
      program_(program),
      menu_(new MainMenu(this)),
      area_(new MainArea(program, this)),
      help_(new HelpCommands(program, this)) {
    setObjectName(QStringLiteral("Quillon"));
    setWindowTitle(QStringLiteral("Lottery Quillon World"));
    setMenuBar(menu_);
    setCentralWidget(area_);
    KeepTextBoxesToOneLine(*this);
    resize(QSize(1000, 660).boundedTo(RoomOnScreen(*this)));
    RememberSize(*this, program.services.windows);
    TakeDroppedFiles(*this);
    AnswerMenu();
    AnswerForms();
    AnswerArea();
}

void Quillon::AnswerMenu() {
    menu_->Answer(QStringLiteral("FileCopyToA"),
                  [this] { FloppyCopy(program_, *this, area_->Pictures()).CopyToFloppy(); });
    menu_->Answer(QStringLiteral("FileCopyFromA"), [this] {
        FloppyCopy(program_, *this, area_->Pictures()).CopyFromFloppy();
        RenewDatabases();
        area_->RenewWelcome();
    });
    menu_->Answer(QStringLiteral("FileNotes"), [this] { ShowPanels(); });
    menu_->Answer(QStringLiteral("FileDeleteSaved"), [this] { DeleteSavedEntries(); });
    menu_->Answer(QStringLiteral("FileExit"), [this] { Quit(); });
    menu_->Answer(QStringLiteral("HelpHelp"), [this] { help_->OpenHelp(); });
    menu_->Answer(QStringLiteral("HelpNewVersion"), [this] { help_->CheckForNewVersion(); });
    menu_->Answer(QStringLiteral("HelpWebSite"), [this] { help_->OpenWebSite(); });
    menu_->Answer(QStringLiteral("HelpBackupSite"), [this] { help_->OpenAlternativeSite(); });
    menu_->Answer(QStringLiteral("HelpEmail"), [this] { help_->WriteToSupport(); });
    for (int i = 0; i < MainMenu::linkCount; ++i) {
        menu_->Answer(Member(QStringLiteral("LinksLink"), i), [this, i] { LinksLink(i); });
    }
}

void Quillon::AnswerForms() {
    for (const CatalogueEntry& entry : FormCatalogue()) {
        const QString name = QString::fromLatin1(entry.menuEntry);
        if (name.isEmpty() || entry.make == nullptr) continue;
        menu_->Answer(name, [this, &entry] { Open(entry); });
    }
}

void Quillon::AnswerArea() {
    connect(area_, &MainArea::stepChosen, this, &Quillon::Choose);
    connect(area_, &MainArea::drawWanted, this, [this](int lottery) {
        Open(*FindCatalogueEntry(QStringLiteral("wUpdateDbase")), lottery);
    });
    connect(&area_->Pictures(), &Toolbar::chosen, this, &Quillon::Choose);
    area_->Pictures().DimPictures(*menu_);
    connect(area_, &MainArea::completed, this,
            [this] { area_->Pictures().GivePicturesTo(*menu_); });
    QAction* biorhythms = menu_->Entry(QStringLiteral("AnalyseBiorhythms"));
    BiochartPanel& biochart = area_->Panels().Biochart();
    biochart.SetMoreAvailable(biorhythms->isEnabled());
    connect(&biochart, &BiochartPanel::moreWanted, biorhythms, &QAction::trigger);
}

void Quillon::Load() {
    program_.state.Crlf = "\r\n";
    if (!program_.folder.FolderExists(backupFolder)) program_.folder.MakeFolder(backupFolder);
    LoadSettings();
    Skinning();
    if (program_.state.Settings(setting::InfoPanels) == "1") ShowPanels();
    if (program_.folder.Exists(notesFile)) area_->Panels().ShowNotes(ReadNotes(program_.folder));
    knownNotes_ = NotesText(area_->Panels().CurrentNotes());
    area_->Panels().Biochart().ShowBirthDate();
    area_->Panels().Biochart().DoBiorhythm();
    LoadSyndicate(program_.state, program_.folder);
    UpdateSyndicate();
    ListDatabases();
}

void Quillon::LoadSettings() {
    ::LoadSettings(program_.state, program_.folder);
    menu_->ShowLinks(program_.state);
}

void Quillon::Skinning() {
    ApplySkinColours(program_.state, *this, {});
    area_->TakePicture();
}

void Quillon::ListDatabases() {
    const std::vector<std::string> names = ::ListDatabases(program_.state, program_.folder);
    area_->Panels().ShowDatabases(names);
}

void Quillon::RenewDatabases() {
    try {
        ListDatabases();
    } catch (const Failure&) {
        // The panel shows those of before.
    }
}

void Quillon::UpdateSyndicate() {
    LoadSyndicate(program_.state, program_.folder);
    const std::string& name = View(program_.state).Members(0, 10);
    const std::string& manager = View(program_.state).Members(0, 0);
    area_->Panels().ShowSyndicate(name, manager);
    const QString whyNot =
        !name.empty() && !manager.empty()
            ? QString()
            : tr("No syndicate is open: choose New syndicate or Open syndicate first.");
    const std::initializer_list<const char*> entries = {"SyndicateMembers", "SyndicatePayments",
                                                        "SyndicatesNotes", "SyndicateManager"};
    for (const char* entry : entries) {
        const QString entryName = QString::fromLatin1(entry);
        const CatalogueEntry* form = FindCatalogueEntry(entryName);
        if (form != nullptr && form->make != nullptr) menu_->Allow(entryName, whyNot);
    }
}

void Quillon::ShowPanels() {
    const bool shown = !area_->Panels().Shown();
    area_->ShowPanels(shown);
    program_.state.Settings(setting::InfoPanels).assign(1, shown ? '1' : '0');
}

void Quillon::SaveNotes() {
    const Notes notes = area_->Panels().CurrentNotes();
    knownNotes_ = NotesText(notes);
    ::SaveNotes(program_.folder, notes);
}

std::string Quillon::UnsavedNotes() const {
    std::string notes = NotesText(area_->Panels().CurrentNotes());
    return notes == knownNotes_ ? std::string() : notes;
}

void Quillon::Open(const CatalogueEntry& entry, int lottery) {
    if (entry.needsSavedEntries && !program_.folder.Exists(savedEntriesFile)) {
        program_.services.messages.Show(this,
                                        {.title = tr("Oops!  "),
                                         .text = tr("You do not have any stored lottery entries!"),
                                         .sign = Sign::Exclamation});
        return;
    }
    const std::unique_ptr<Form> form = entry.make(program_, this);
    form->Load();
    if (lottery > 0) form->findChild<ListBox*>(QStringLiteral("List1"))->SetIndex(lottery);
    if (entry.prepare != nullptr) {
        for (int i = 0; i < entry.messageRuns; ++i) QCoreApplication::processEvents();
        entry.prepare(*form);
    }
    Show(*form, entry);
}

void Quillon::Import(const QString& path) {
    const CatalogueEntry& entry = *FindCatalogueEntry(QStringLiteral("DatabaseImport"));
    ImportDraws form(program_, this);
    form.Load();
    form.TakeFile(path);
    Show(form, entry);
}

void Quillon::Show(Form& form, const CatalogueEntry& entry) {
    form.exec();
    if (entry.changesDatabases) RenewDatabases();
    if (entry.changesSyndicate) UpdateSyndicate();
    if (entry.changesSettings) {
        LoadSettings();
        Skinning();
    }
    area_->RenewWelcome();
}

void Quillon::LinksLink(int index) {
    // Kept on purpose: the last link has no address of its own and opens what stands behind those
    // of the others, the name of the first UK download.
    static_assert(setting::LinkAddresses + setting::links == setting::UkDownloadNames);
    program_.services.openPage(ToQString(program_.state.Settings(setting::LinkAddresses + index)));
}

void Quillon::DeleteSavedEntries() {
    MessageBoxes& messages = program_.services.messages;
    if (!program_.folder.Exists(savedEntriesFile)) {
        messages.Show(this, {.title = tr("Error!"),
                             .text = tr("No lottery entries saved!    "),
                             .sign = Sign::Exclamation});
        return;
    }
    const QString lineEnd = ToQString(program_.state.Crlf);
    const QString question = tr(" Are you sure you want to delete     ") + lineEnd +
                             tr(" all your saved lottery entries?    ") + lineEnd;
    const Answer answer = messages.Show(this, {.title = tr("Warning!"),
                                               .text = question,
                                               .sign = Sign::Question,
                                               .buttons = Buttons::YesNo,
                                               .discards = true});
    if (answer != Answer::Yes) return;
    DeleteKeepingOld(program_.folder, savedEntriesFile);
    area_->RenewWelcome();
}

void Quillon::Quit() {
    QCoreApplication::processEvents();
    close();
}

void Quillon::Choose(const QString& menuEntry) {
    // The internet is browsed even where its entry has lost its caption and is hidden.
    if (menuEntry == QLatin1String(internetEntry)) {
        LinksLink(0);
    } else {
        menu_->Entry(menuEntry)->trigger();
    }
}

void Quillon::dragEnterEvent(QDragEnterEvent* event) {
    if (!DroppedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

// The form opens once the drop is done: whoever dragged the file waits for that.
void Quillon::dropEvent(QDropEvent* event) {
    const QString file = DroppedFile(*event->mimeData());
    if (file.isEmpty()) return;
    event->acceptProposedAction();
    QMetaObject::invokeMethod(
        this, [this, file] { Import(file); }, Qt::QueuedConnection);
}

void Quillon::closeEvent(QCloseEvent* event) {
    SaveAll({[this] { SaveNotes(); }, [this] { SaveSettings(program_.state, program_.folder); }});
    event->accept();
    Q_EMIT ended();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Quillon.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QPainter>
#include <QVBoxLayout>
#include <array>

#include "core/british_dates.h"
#include "core/draw_database.h"
#include "core/settings.h"
#include "core/syndicate.h"
#include "entries/saved_entries.h"
#include "platform/forms/RoomOnScreen.h"
#include "platform/forms/Skin.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/OneLine.h"
#include "platform/widgets/Widgets.h"
#include "shell/BiochartPanel.h"
#include "shell/InfoPanels.h"
#include "shell/MainMenu.h"
#include "shell/Toolbar.h"
#include "shell/Welcome.h"
#include "shell/form_catalogue.h"

namespace {

constexpr const char* backupFolder = "Backup";
constexpr const char* pictureFile = "SkinMain.jpg";
constexpr int internetPicture = 12;
constexpr int downloadPicture = 1;

/// The menu entry behind each toolbar picture. The picture of a lucky dip opens the numerology form
/// and stays so; the download depends on the region, and the internet needs no visible entry.
constexpr std::array<const char*, Toolbar::pictureCount> pictureEntries = {
    "FileNotes",           "DatabaseUpdate",  "wDatabaseView",   "DatabaseCheck",
    "DatabaseStoreDrawsW", "AnalysisCommon",  "AnalyseNumStats", "AnalyseOddEven",
    "PlayFullSel",         "PlayHot",         "PlayLucky",       "PlayDIYWheels",
    "LinksLink(0)",        "HelpLotteryInfo", "HelpHelp",        "FileExit"};

}  // namespace

Quillon::Quillon(Program& program, QWidget* parent)
    : QMainWindow(parent),
      program_(program),
      menu_(new MainMenu(this)),
      toolbar_(new Toolbar),
      panels_(new InfoPanels(program, nullptr)) {
    setObjectName(QStringLiteral("Quillon"));
    setWindowTitle(QStringLiteral("Lottery Quillon World"));
    Build();
    AnswerMenu();
    AnswerForms();
    DimPictures();
}

void Quillon::Build() {
    auto* centre = new QWidget(this);
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(toolbar_, 0, Qt::AlignTop);
    layout->addWidget(panels_, 1);
    setMenuBar(menu_);
    setCentralWidget(centre);
    KeepTextBoxesToOneLine(*this);
    // Wherever the mouse moves but on a picture, the pictures lose their border.
    centre->setMouseTracking(true);
    setMouseTracking(true);
    resize(QSize(1000, 660).boundedTo(RoomOnScreen(*this)));
    connect(toolbar_, &Toolbar::clicked, this, &Quillon::Image1_Click);
}

void Quillon::AnswerMenu() {
    menu_->Answer(QStringLiteral("FileNotes"), [this] { ShowPanels(); });
    menu_->Answer(QStringLiteral("FileDeleteSaved"), [this] { FileDeleteSaved_Click(); });
    menu_->Answer(QStringLiteral("FileExit"), [this] { FileExit_Click(); });
    menu_->Answer(QStringLiteral("HelpHelp"),
                  [this] { program_.services.openPage(QStringLiteral("help.html")); });
    menu_->Answer(QStringLiteral("HelpWebSite"), [this] {
        program_.services.openPage(ToQString(program_.state.Settings(setting::LinkAddresses)));
    });
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
    const QString biorhythms = QStringLiteral("AnalyseBiorhythms");
    panels_->Biochart().SetMoreAvailable(menu_->Entry(biorhythms)->isEnabled());
    connect(&panels_->Biochart(), &BiochartPanel::moreWanted, menu_->Entry(biorhythms),
            &QAction::trigger);
}

void Quillon::Load() {
    program_.state.Crlf = "\r\n";
    if (!program_.folder.FolderExists(backupFolder)) program_.folder.MakeFolder(backupFolder);
    LoadSettings();
    Skinning();
    if (program_.state.Settings(setting::InfoPanels) == "1") ShowPanels();
    if (program_.folder.Exists(notesFile)) panels_->ShowNotes(ReadNotes(program_.folder));
    panels_->Biochart().ShowBirthDate();
    panels_->Biochart().DoBiorhythm();
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
    if (painted_) SkinPicture();
}

void Quillon::SkinPicture() {
    // Where pictures are chosen and this one is missing, the window stays as it is.
    if (!SkinChoiceOf(program_.state).pictures) {
        picture_ = {};
    } else if (const QString file = QString::fromLatin1(pictureFile);
               program_.folder.Exists(pictureFile)) {
        picture_ = ::SkinPicture(program_.state, program_.folder, file);
    }
    update();
}

void Quillon::CompletePainting() {
    toolbar_->LoadPictures();
    SkinPicture();
    ShowWelcome(!panels_->Shown());
}

void Quillon::ShowWelcome(bool shown) {
    if (shown && welcome_ == nullptr) {
        welcome_ = new Welcome(centralWidget());
        connect(welcome_, &Welcome::stepChosen, this,
                [this](const QString& entry) { menu_->Entry(entry)->trigger(); });
        auto* layout = qobject_cast<QVBoxLayout*>(centralWidget()->layout());
        layout->insertWidget(1, welcome_, 1, Qt::AlignCenter);
    }
    if (welcome_ == nullptr) return;
    welcome_->SuitLotteries(anyLottery_);
    welcome_->setVisible(shown);
}

void Quillon::ListDatabases() {
    const std::vector<std::string> names = ::ListDatabases(program_.state, program_.folder);
    panels_->ShowDatabases(names);
    anyLottery_ = !names.empty();
    if (welcome_ != nullptr) welcome_->SuitLotteries(anyLottery_);
}

void Quillon::UpdateSyndicate() {
    LoadSyndicate(program_.state, program_.folder);
    const std::string& name = View(program_.state).Members(0, 10);
    const std::string& manager = View(program_.state).Members(0, 0);
    panels_->ShowSyndicate(name, manager);
    const bool open = !name.empty() && !manager.empty();
    const std::initializer_list<const char*> entries = {"SyndicateMembers", "SyndicatePayments",
                                                        "SyndicatesNotes", "SyndicateManager"};
    for (const char* entry : entries) {
        const QString entryName = QString::fromLatin1(entry);
        const CatalogueEntry* form = FindCatalogueEntry(entryName);
        const bool exists = form != nullptr && form->make != nullptr;
        menu_->Entry(entryName)->setEnabled(open && exists);
    }
}

void Quillon::ShowPanels() {
    const bool shown = !panels_->Shown();
    if (painted_) ShowWelcome(!shown);
    panels_->SetShown(shown);
    program_.state.Settings(setting::InfoPanels).assign(1, shown ? '1' : '0');
}

void Quillon::SaveNotes() { ::SaveNotes(program_.folder, panels_->CurrentNotes()); }

void Quillon::Open(const CatalogueEntry& entry) {
    if (entry.needsSavedEntries && !program_.folder.Exists(savedEntriesFile)) {
        program_.services.messages.Show(this,
                                        {.title = tr("Oops!  "),
                                         .text = tr("You do not have any stored lottery entries!"),
                                         .sign = Sign::Exclamation});
        return;
    }
    const std::unique_ptr<Form> form = entry.make(program_, this);
    form->Load();
    if (entry.prepare != nullptr) {
        for (int i = 0; i < entry.messageRuns; ++i) QCoreApplication::processEvents();
        entry.prepare(*form);
    }
    form->exec();
    if (entry.changesDatabases) ListDatabases();
    if (entry.changesSyndicate) UpdateSyndicate();
    if (entry.changesSettings) {
        LoadSettings();
        Skinning();
    }
}

void Quillon::LinksLink(int index) {
    // Kept on purpose: the last link has no address of its own and opens what stands behind those
    // of the others, the name of the first UK download.
    static_assert(setting::LinkAddresses + setting::links == setting::UkDownloadNames);
    program_.services.openPage(ToQString(program_.state.Settings(setting::LinkAddresses + index)));
}

void Quillon::FileDeleteSaved_Click() {
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
                                               .buttons = Buttons::YesNo});
    if (answer == Answer::Yes) program_.folder.Delete(savedEntriesFile);
}

void Quillon::FileExit_Click() {
    QCoreApplication::processEvents();
    close();
}

QString Quillon::DownloadEntry() const {
    return BritishDates(program_.services.region) ? QStringLiteral("DatabaseUpdate")
                                                  : QStringLiteral("DatabaseUS");
}

void Quillon::Image1_Click(int index) {
    if (index == internetPicture) {
        LinksLink(0);
    } else if (index == downloadPicture) {
        menu_->Entry(DownloadEntry())->trigger();
    } else {
        const auto place = static_cast<std::size_t>(index);
        menu_->Entry(QString::fromLatin1(pictureEntries.at(place)))->trigger();
    }
}

void Quillon::DimPictures() {
    for (int i = 0; i < Toolbar::pictureCount; ++i) {
        const QString entry =
            i == downloadPicture
                ? DownloadEntry()
                : QString::fromLatin1(pictureEntries.at(static_cast<std::size_t>(i)));
        toolbar_->Picture(i)->SetDimmed(!menu_->Entry(entry)->isEnabled());
    }
}

void Quillon::closeEvent(QCloseEvent* event) {
    SaveNotes();
    SaveSettings(program_.state, program_.folder);
    event->accept();
    Q_EMIT ended();
}

void Quillon::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) {
        menu_->Entry(QStringLiteral("HelpHelp"))->trigger();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void Quillon::mouseMoveEvent(QMouseEvent* event) {
    QMainWindow::mouseMoveEvent(event);
    toolbar_->ClearBorders();
}

void Quillon::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    if (!painted_) {
        // The frame is there at once; the pictures and the welcome follow it.
        painted_ = true;
        QMetaObject::invokeMethod(this, &Quillon::CompletePainting, Qt::QueuedConnection);
    }
    if (picture_.isNull()) return;
    QPainter painter(this);
    PaintSkin(painter, centralWidget()->geometry(), picture_, palette());
}

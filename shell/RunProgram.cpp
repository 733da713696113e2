// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/RunProgram.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QPointer>
#include <QStandardPaths>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "core/database_summary.h"
#include "entries/AppendShownLines.h"
#include "platform/forms/Form.h"
#include "platform/forms/PrintPreview.h"
#include "platform/system/Clock.h"
#include "platform/system/ColourDialog.h"
#include "platform/system/DesktopPrinters.h"
#include "platform/system/DiskFolder.h"
#include "platform/system/FetchURL.h"
#include "platform/system/FileDialogs.h"
#include "platform/system/LocaleRegion.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/OneRun.h"
#include "platform/system/OpenPage.h"
#include "platform/system/RescuedFiles.h"
#include "platform/system/TextConversion.h"
#include "platform/system/WindowStates.h"
#include "printing/PrintRoutines.h"
#include "shell/Application.h"
#include "shell/Quillon.h"
#include "shell/RescueNotice.h"
#include "shell/notes_file.h"
#include "shell/own_addresses.h"

namespace {

void OfferDialogs(Services& services) {
    services.chooseColour = ChooseColour;
    services.chooseFolder = ChooseFolder;
    services.chooseFile = ChooseFile;
    services.openFolder = [](const QString& path) { return std::make_shared<DiskFolder>(path); };
}

QString ConfigFile(const QString& name) {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) % QLatin1Char('/') %
           name;
}

void OfferPreview(Program& program, DesktopPrinters& printers) {
    printers.PreviewBy([&](QWidget* parent, const PrintTask& task) {
        PrintPreview preview(program, task, DesktopExits(printers), parent);
        preview.Load();
        preview.exec();
    });
}

OwnPages PagesIn(const DiskFolder& folder) {
    return {.folder = folder.Path(),
            .letters = {QString::fromLatin1(supportMail), QString::fromLatin1(generalMail)},
            .signposts = QStandardPaths::writableLocation(QStandardPaths::CacheLocation)};
}

// The run that has the folder shows itself, or is named.
int EndSecondStart(const OneRun& run, const QString& folderPath, MessageBoxes& messages) {
    const QString holder = run.Holder();
    if (run.CallHolder()) {
        std::fputs("Lottery Quillon World is open already, and comes to the front.\n", stderr);
        return EXIT_SUCCESS;
    }
    const QString lineEnd = QStringLiteral("\r\n");
    QString text = QCoreApplication::translate(
                       "RunProgram", "Another Lottery Quillon World works in this folder:") %
                   lineEnd % QDir::toNativeSeparators(folderPath) % lineEnd;
    if (!holder.isEmpty()) text += QLatin1Char('(') % holder % QLatin1Char(')') % lineEnd;
    text += QCoreApplication::translate("RunProgram", "Close that one before you start this one.");
    messages.Show(nullptr, {.title = QStringLiteral("Lottery Quillon World"),
                            .text = text,
                            .sign = Sign::Exclamation});
    return EXIT_FAILURE;
}

void BringToFront(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    QWidget* const modal = QApplication::activeModalWidget();
    QWidget& front = modal == nullptr ? window : *modal;
    front.raise();
    front.activateWindow();
    QApplication::alert(&front);
}

QString RescueRecord() { return ConfigFile(QStringLiteral("rescued.ini")); }

DiskFolder::Surroundings SurroundingsOf(const QString& folderPath) {
    return {.now = LocalNow, .rescuePlaces = RescuePlaces(), .rescued = [folderPath](auto& file) {
                NoteOrigin(file, folderPath, RescueRecord());
            }};
}

void TellOfRescues(const Services& services, QWidget& window) {
    const QString record = RescueRecord();
    const QStringList ours = FromFolder(RescuedFiles(RescuePlaces()), services.folderPath, record);
    TellOfRescuedFiles(services.messages, &window, FirstTold(ours, record));
}

QString RescueNotes(const Quillon& window, ProgramFolder& folder) {
    const std::string notes = window.UnsavedNotes();
    const std::string path = notes.empty() ? notes : folder.Rescue(notesFile, notes);
    if (path.empty()) return {};
    return QStringLiteral("\n\n") %
           QCoreApplication::translate("RunProgram",
                                       "Your notes, which were not saved yet, are kept in %1.")
               .arg(ToQString(path));
}

int ShowWindow(Program& program, OneRun& run) {
    Quillon window(program);
    QObject::connect(&window, &Quillon::ended, &window, [] { Application::End(EXIT_SUCCESS); });
    run.AnswerBy([&window] { BringToFront(window); });
    window.Load();
    static_cast<Application*>(qApp)->RescueBeforeTheEnd(
        [open = QPointer<Quillon>(&window), &program] {
            return open ? RescueNotes(*open, program.folder) : QString();
        });
    window.show();
    QTimer::singleShot(0, &window, [&] { TellOfRescues(program.services, window); });
    return QApplication::exec();
}

}  // namespace

int RunProgram(const QString& folderPath) {
    DesktopMessageBoxes messages;
    OneRun run(folderPath);
    if (!run.HoldsFolder()) return EndSecondStart(run, folderPath, messages);
    const auto state = std::make_shared<State>();
    static_cast<Application*>(qApp)->TellWhatWasInUse(
        [state] { return ToQString(LotteryInUse(*state)); });
    DiskFolder folder(folderPath, SurroundingsOf(folderPath));
    Random random(SeedOfTheMoment);
    DesktopPrinters printers;
    WindowStates windows(ConfigFile(QStringLiteral("windows.ini")));
    const OwnPages own = PagesIn(folder);
    const WebAccess web{.desktopProxy = ProxyOfDesktop};
    Services services{.seconds = MonotonicSeconds,
                      .today = Today,
                      .random = random,
                      .region = RegionOf(QLocale::system()),
                      .messages = messages,
                      .openPage = [&own](const QString& page) { OpenPage(page, own); },
                      .saveLines = {},
                      .printLines = {},
                      .fetchURL = [&web](const QString& address) { return FetchURL(address, web); },
                      .fetchPage =
                          [&web](const QString& address, const FetchProgress& progress) {
                              return FetchPage(address, web, progress);
                          },
                      .folderPath = QDir::toNativeSeparators(folder.Path()),
                      .printers = &printers,
                      .windows = &windows};
    OfferDialogs(services);
    Program program{.state = *state, .folder = folder, .services = services};
    services.saveLines = [&program](Form* form, Grid& grid) { SaveLines(program, form, grid); };
    OfferPreview(program, printers);
    PrintRoutines printing(program);
    printing.Offer();
    return ShowWindow(program, run);
}

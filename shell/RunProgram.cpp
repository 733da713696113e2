// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/RunProgram.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>
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
#include "platform/system/OpenPage.h"
#include "platform/system/TextConversion.h"
#include "platform/system/WindowStates.h"
#include "printing/PrintRoutines.h"
#include "shell/Application.h"
#include "shell/Quillon.h"
#include "shell/own_addresses.h"

namespace {

void OfferDialogs(Services& services) {
    services.chooseColour = ChooseColour;
    services.chooseFolder = ChooseFolder;
    services.chooseFile = ChooseFile;
    services.openFolder = [](const QString& path) { return std::make_shared<DiskFolder>(path); };
}

}  // namespace

int RunProgram(const QString& folderPath) {
    const auto state = std::make_shared<State>();
    static_cast<Application*>(qApp)->TellWhatWasInUse(
        [state] { return ToQString(LotteryInUse(*state)); });
    DiskFolder folder(folderPath);
    Random random(SeedOfTheMoment);
    DesktopMessageBoxes messages;
    DesktopPrinters printers;
    WindowStates windows(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) %
                         QStringLiteral("/windows.ini"));
    const OwnPages own{
        .folder = folder.Path(),
        .letters = {QString::fromLatin1(supportMail), QString::fromLatin1(generalMail)},
        .signposts = QStandardPaths::writableLocation(QStandardPaths::CacheLocation)};
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
    printers.PreviewBy([&](QWidget* parent, const PrintTask& task) {
        PrintPreview preview(program, task, DesktopExits(printers), parent);
        preview.Load();
        preview.exec();
    });
    PrintRoutines printing(program);
    printing.Offer();

    Quillon window(program);
    QObject::connect(&window, &Quillon::ended, &window, [] { Application::End(EXIT_SUCCESS); });
    window.Load();
    window.show();
    return QApplication::exec();
}

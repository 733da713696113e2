// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/HelpCommands.h"

#include <QScopedValueRollback>
#include <QUrl>

#include "core/settings.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/OpenPage.h"
#include "platform/system/TextConversion.h"
#include "shell/own_addresses.h"
#include "shell/program_version.h"
#include "shell/version_check.h"

HelpCommands::HelpCommands(Program& program, QWidget* window)
    : QObject(window), program_(program), window_(window) {}

void HelpCommands::OpenHelp() { program_.services.openPage(QStringLiteral("help.html")); }

void HelpCommands::OpenWebSite() {
    program_.services.openPage(ToQString(program_.state.Settings(setting::LinkAddresses)));
}

void HelpCommands::OpenAlternativeSite() {
    const QString lineEnd = ToQString(program_.state.Crlf);
    program_.services.messages.Show(window_,
                                    {.title = tr("Warning"),
                                     .text = tr("This site is not as up to date") % lineEnd %
                                             tr("or functional as the main site.    ") % lineEnd,
                                     .sign = Sign::Exclamation});
    program_.services.openPage(QString::fromLatin1(alternativeSite));
}

void HelpCommands::WriteToSupport() {
    program_.services.openPage(LetterTo(QString::fromLatin1(supportMail)));
}

void HelpCommands::CheckForNewVersion() {
    if (checking_) return;
    const QScopedValueRollback<bool> once(checking_, true);
    const auto latest = LatestVersion(program_.folder, FetchVersionFile());
    if (latest) {
        Compare(*latest);
    } else {
        SayThatItFailed();
    }
}

std::string HelpCommands::FetchVersionFile() {
    const QUrl site = WebAddress(ToQString(program_.state.Settings(setting::LinkAddresses)));
    if (!site.isValid()) return {};
    QUrl file;
    file.setScheme(site.scheme());
    file.setHost(site.host());
    file.setPort(site.port());
    file.setPath(QString::fromLatin1(versionPath));
    return program_.services.fetchURL(file.toString());
}

void HelpCommands::SayThatItFailed() {
    const QString lineEnd = ToQString(program_.state.Crlf);
    program_.services.messages.Show(
        window_, {.title = tr("TVX update error"),
                  .text = tr("An error occured checking for the latest    ") % lineEnd %
                          tr("program version. No Internet connection     ") % lineEnd %
                          tr("or website not available."),
                  .sign = Sign::Exclamation});
}

void HelpCommands::Compare(const std::string& latest) {
    const QString title = tr("TVX update check");
    MessageBoxes& messages = program_.services.messages;
    if (latest == ProgramVersion()) {
        messages.Show(window_, {.title = title,
                                .text = tr("You have the latest version of the program.    ")});
        return;
    }
    const QString lineEnd = ToQString(program_.state.Crlf);
    const QString question = tr("  A new version of the program is available.      ") % lineEnd %
                             lineEnd % tr("  Current version: ") % ToQString(ProgramVersion()) %
                             lineEnd % tr("  Latest version: ") % ToQString(latest) % lineEnd %
                             lineEnd % tr("  Go to website to download it?      ");
    const Answer answer =
        messages.Show(window_, {.title = title, .text = question, .buttons = Buttons::YesNo});
    if (answer == Answer::Yes) OpenWebSite();
}

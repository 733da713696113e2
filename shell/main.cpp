// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCommandLineParser>
#include <QStandardPaths>
#include <algorithm>
#include <array>
#include <string_view>

#include "platform/system/DesktopColours.h"
#include "platform/system/ProgramFolderPath.h"
#include "shell/Application.h"
#include "shell/RunProgram.h"

namespace {

/// Whether words on the terminal are all that is asked for, which needs no display.
bool AsksForWords(int argumentCount, char** arguments) {
    constexpr auto options =
        std::to_array<std::string_view>({"-h", "--help", "--help-all", "-v", "--version"});
    return std::any_of(arguments, arguments + argumentCount, [&](std::string_view argument) {
        return std::ranges::find(options, argument) != options.end();
    });
}

void KnowOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        Application::tr("Analyses lottery draws, makes entries and checks them."));
    parser.addHelpOption();
    parser.addVersionOption();
}

// Options of Qt's windows are not understood here; with such the words come a little later.
void AnswerWithoutDisplay(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    Application::TellNames();
    QCommandLineParser parser;
    KnowOptions(parser);
    if (parser.parse(QCoreApplication::arguments())) parser.process(application);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (AsksForWords(argumentCount, arguments)) AnswerWithoutDisplay(argumentCount, arguments);
    Application application(argumentCount, arguments);
    QCommandLineParser parser;
    KnowOptions(parser);
    parser.process(application);
    DesktopColours colours;
    colours.Follow();
    return application.Run([] {
        const QString userDataFolder =
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        return RunProgram(
            ProgramFolderPath(QCoreApplication::applicationDirPath(), userDataFolder));
    });
}

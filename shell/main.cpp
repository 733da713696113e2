// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCommandLineParser>
#include <QStandardPaths>

#include "platform/system/DesktopColours.h"
#include "platform/system/ProgramFolderPath.h"
#include "shell/Application.h"
#include "shell/RunProgram.h"

int main(int argumentCount, char** arguments) {
    Application application(argumentCount, arguments);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        Application::tr("Analyses lottery draws, makes entries and checks them."));
    parser.addHelpOption();
    parser.addVersionOption();
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include <QStandardPaths>

#include "platform/system/ProgramFolderPath.h"
#include "shell/Application.h"
#include "shell/RunProgram.h"

int main(int argumentCount, char** arguments) {
    Application application(argumentCount, arguments);
    return application.Run([] {
        const QString userDataFolder =
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        return RunProgram(
            ProgramFolderPath(QCoreApplication::applicationDirPath(), userDataFolder));
    });
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The program's folder: the one that holds the executable, or, where the program is installed for
/// all users (`../share/quillon` stands beside the executable's folder), the user's own data
/// folder, which is made and filled with what it lacks of `share/quillon`. Help pages that nobody
/// has changed there follow the program's version.
QString ProgramFolderPath(const QString& executableFolder, const QString& userDataFolder);

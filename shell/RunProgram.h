// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Runs the program on the folder of that path: makes the run state and the services, loads and
/// shows the main window, and hands over to the event loop. Quitting from the main window ends the
/// process with exit code 0.
int RunProgram(const QString& folderPath);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Runs the program on the folder of that path, unless another run has it: that one is brought to
/// the front, or named, and 0 or 1 is the exit code. Makes the run state and the services, loads
/// and shows the main window, and hands over to the event loop. Quitting from the main window ends
/// the process with exit code 0.
int RunProgram(const QString& folderPath);

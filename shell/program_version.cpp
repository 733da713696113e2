// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program_version.h"

std::string ProgramVersion() { return QUILLON_VERSION; }

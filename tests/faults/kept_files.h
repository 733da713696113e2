// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "tests/faults/record.h"

/// The name of a file of the user's that has lost something between two moments which no copy in
/// `Backup/Undo` or among the rescued files holds; empty where there is none. Of the file `always`
/// a copy is wanted whenever it changes.
std::string NotKept(const Files& before, const Files& after, const Files& rescued,
                    std::string_view always);

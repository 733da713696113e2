// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

/// A database of made-up draws, for a first look at the program.
struct DemoDatabase {
    std::string file;
    std::string bytes;
};

/// The supplied sample databases; the same bytes at each call.
std::vector<DemoDatabase> DemoDatabases();

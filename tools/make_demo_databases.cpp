// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the supplied sample databases: `make_demo_databases FOLDER`.
#include <filesystem>
#include <fstream>
#include <iostream>

#include "tools/demo_databases.h"

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: make_demo_databases FOLDER\n";
        return 2;
    }
    for (const DemoDatabase& database : DemoDatabases()) {
        const std::filesystem::path path = std::filesystem::path(arguments[1]) / database.file;
        std::ofstream file(path, std::ios::binary);
        if (file << database.bytes << std::flush) continue;
        std::cerr << path.string() << " could not be written\n";
        return 1;
    }
    return 0;
}

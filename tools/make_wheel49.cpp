// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the supplied wheel of 49: `make_wheel49 FOLDER`.
#include <filesystem>
#include <fstream>
#include <iostream>

#include "tools/wheel49_lines.h"

int main(int argumentCount, char** arguments) {
    if (argumentCount != 2) {
        std::cerr << "usage: make_wheel49 FOLDER\n";
        return 2;
    }
    const std::filesystem::path path = std::filesystem::path(arguments[1]) / "wheel49.dat";
    std::ofstream file(path, std::ios::binary);
    if (file << Wheel49File() << std::flush) return 0;
    std::cerr << path.string() << " could not be written\n";
    return 1;
}

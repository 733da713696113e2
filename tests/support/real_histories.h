// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "core/program_folder.h"
#include "test_folders.h"

/// Copies the draw databases of the folder of real histories into `folder`; false where there is
/// no such folder, which a test answers by skipping itself.
inline bool AddRealHistories(ProgramFolder& folder) {
    if (!std::filesystem::exists(REAL_DRAWS)) return false;
    for (const auto& entry : std::filesystem::directory_iterator(REAL_DRAWS)) {
        if (entry.path().extension() != ".txt") continue;
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        folder.Write(entry.path().filename().string(), bytes);
    }
    return true;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/faults/kept_files.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace {

// Help pages are the program's, the work file is nobody's, copies are not copied again, and of
// settings only the last state counts, as long as there is one.
bool IsKept(const std::string& name, bool there) {
    if (name == "temp.txt" || name == "Temp.txt" || name.ends_with(".html")) return false;
    if (name.find('/') != std::string::npos) return false;
    return !there || name != "quillon.ini";
}

std::vector<std::string> TellingLines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (line.find_first_not_of(" \t\r\",") != std::string::npos) lines.push_back(line);
    }
    std::ranges::sort(lines);
    return lines;
}

bool Holds(const Files& files, std::string_view start, const std::string& bytes) {
    return std::ranges::any_of(files, [&](const auto& file) {
        return file.first.starts_with(start) && file.second == bytes;
    });
}

}  // namespace

std::string NotKept(const Files& before, const Files& after, const Files& rescued,
                    std::string_view always) {
    for (const auto& [name, bytes] : before) {
        const auto now = after.find(name);
        const bool there = now != after.end();
        if ((there && now->second == bytes) || !IsKept(name, there)) continue;
        const bool loses = !there || name == always ||
                           !std::ranges::includes(TellingLines(now->second), TellingLines(bytes));
        if (!loses || Holds(after, "Backup/Undo/", bytes) || Holds(rescued, "", bytes)) continue;
        return name;
    }
    return {};
}

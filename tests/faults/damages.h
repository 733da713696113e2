// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

/// One way to damage a file.
struct Damage {
    std::string name;
    std::function<void(const std::filesystem::path& file)> make;
};

/// Not a file, or one that is no text.
std::vector<Damage> Replacements();

/// The file with a line that is far too long, which may be a name, a number or a million fields.
/// `bytes` is what it holds, and must last.
std::vector<Damage> LargeLines(const std::string& bytes);

/// So many bytes of the file, of all sizes as many as are to be tried.
std::vector<Damage> Truncations(const std::string& bytes, bool everything);

std::string BytesOf(const std::filesystem::path& path);

void Put(const std::filesystem::path& path, const std::string& bytes);

// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/faults/damages.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <fstream>

namespace fs = std::filesystem;

namespace {

Damage Holding(const std::string& name, const std::string& bytes) {
    return {name, [bytes](const fs::path& file) { Put(file, bytes); }};
}

std::string Garbage(std::size_t size) {
    std::string bytes(size, '\0');
    std::uint32_t state = 20050601;
    for (char& byte : bytes) {
        state = state * 1664525U + 1013904223U;
        byte = static_cast<char>(state >> 24U);
    }
    return bytes;
}

std::string Repeated(const std::string& piece, std::size_t size) {
    std::string bytes;
    while (bytes.size() < size) bytes += piece;
    return bytes;
}

}  // namespace

std::string BytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Put(const fs::path& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

std::vector<Damage> Replacements() {
    return {
        Holding("empty", ""),
        Holding("garbage", Garbage(4096)),
        Holding("one long line", std::string(100'000, 'x')),
        Holding("commas", std::string(20'000, ',')),
        Holding("line ends", std::string(5'000, '\n')),
        Holding("huge numbers", Repeated("99999999999999999999,", 5'000)),
        Holding("numbers beyond every table", Repeated("32767,", 5'000)),
        {"folder", [](const fs::path& file) { fs::create_directory(file); }},
        {"endless device", [](const fs::path& file) { fs::create_symlink("/dev/zero", file); }},
        {"link to itself", [](const fs::path& file) { fs::create_symlink(file, file); }},
        {"pipe", [](const fs::path& file) { ::mkfifo(file.c_str(), 0600); }},
        {"200 MB",
         [](const fs::path& file) {
             Put(file, "");
             fs::resize_file(file, std::uintmax_t{200} * 1024 * 1024);
         }},
    };
}

std::vector<Damage> LargeLines(const std::string& bytes) {
    constexpr std::size_t megabyte = std::size_t{1024} * 1024;
    const std::size_t secondLine = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
    const std::size_t half = bytes.find('\n', bytes.size() / 2);
    const std::size_t middle = half == std::string::npos ? bytes.size() : half + 1;
    const auto with = [&bytes](const char* name, std::size_t place, char character,
                               std::size_t count) {
        return Damage{name, [=, &bytes](const fs::path& file) {
                          Put(file, bytes.substr(0, place) + std::string(count, character) +
                                        "\r\n" + bytes.substr(place));
                      }};
    };
    return {
        {"a first line of 10 MB",
         [&bytes, secondLine](const fs::path& file) {
             Put(file, std::string(10 * megabyte, 'x') + "\r\n" + bytes.substr(secondLine));
         }},
        with("a line of 10 MB in the middle", middle, 'x', 10 * megabyte),
        with("5 MB of commas in the middle", middle, ',', 5 * megabyte),
        with("5 MB of commas at the end", bytes.size(), ',', 5 * megabyte),
        with("a number of 5 MB", middle, '9', 5 * megabyte),
        with("5 MB of quotes", middle, '"', 5 * megabyte),
    };
}

std::vector<Damage> Truncations(const std::string& bytes, bool everything) {
    const std::size_t most = everything ? 250 : 8;
    const std::size_t step = bytes.size() / most + 1;
    std::vector<Damage> damages;
    for (std::size_t size = bytes.size(); size-- > 0;) {
        const bool nearEnd = everything && bytes.size() - size <= 40;
        if (size % step != 0 && !nearEnd) continue;
        damages.push_back(
            Holding("the first " + std::to_string(size) + " bytes", bytes.substr(0, size)));
    }
    return damages;
}

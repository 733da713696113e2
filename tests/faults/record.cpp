// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/faults/record.h"

#include <sys/mman.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <new>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t recordSize = std::size_t{32} * 1024 * 1024;
constexpr std::string_view undoFolder = "Backup/Undo/";

bool IsUnfinished(const std::string& path) {
    const std::string name = fs::path(path).filename();
    return name.starts_with(".quillon-") && name.ends_with(".tmp");
}

fs::path PathOf(const std::string& folder, const std::string& name) {
    if (!name.starts_with(otherMark)) return folder + '/' + name;
    return OtherFolderOf(folder) + '/' + name.substr(otherMark.size());
}

std::string BytesOf(const fs::path& path) {
    std::string bytes(fs::file_size(path), '\0');
    std::ifstream(path, std::ios::binary).read(bytes.data(), std::ssize(bytes));
    return bytes;
}

}  // namespace

std::string RescueFolderOf(const std::string& folder) { return folder + "-rescued"; }

std::string OtherFolderOf(const std::string& folder) { return folder + "-other"; }

Files FilesIn(const std::string& folder) {
    Files files;
    if (!fs::exists(folder)) return files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder);
        if (entry.is_directory()) files[name + '/'];
        if (entry.is_regular_file()) files[name] = BytesOf(entry.path());
    }
    return files;
}

Files TouchedFilesIn(const std::string& folder) {
    Files files = FilesIn(folder);
    for (auto& [name, bytes] : FilesIn(OtherFolderOf(folder))) {
        files[std::string(otherMark) + name] = bytes;
    }
    return files;
}

std::string TouchedName(const std::string& folder, const std::string& path) {
    const std::string other = OtherFolderOf(folder);
    if (path == folder) return ".";
    if (path.starts_with(other + '/'))
        return std::string(otherMark) + path.substr(other.size() + 1);
    return path.starts_with(folder + '/') ? path.substr(folder.size() + 1) : path;
}

void PutFiles(const std::string& folder, const Files& files) {
    fs::remove_all(RescueFolderOf(folder));
    const Files present = TouchedFilesIn(folder);
    for (const auto& [name, bytes] : present) {
        if (files.count(name) == 0) fs::remove_all(PathOf(folder, name));
    }
    for (const auto& [name, bytes] : files) {
        const auto found = present.find(name);
        if (found != present.end() && found->second == bytes) continue;
        const fs::path path = PathOf(folder, name);
        fs::create_directories(path.parent_path());
        if (!name.ends_with('/')) std::ofstream(path, std::ios::binary) << bytes;
    }
}

Files ComparableFilesIn(const std::string& folder) {
    Files result;
    std::vector<std::string> copies;
    for (const auto& [name, bytes] : TouchedFilesIn(folder)) {
        if (IsUnfinished(name) || name == undoFolder) continue;
        if (name.starts_with(undoFolder)) {
            copies.push_back(bytes);
        } else {
            result[name] = bytes;
        }
    }
    for (const auto& [name, bytes] : FilesIn(RescueFolderOf(folder))) copies.push_back(bytes);
    std::sort(copies.begin(), copies.end());
    copies.erase(std::unique(copies.begin(), copies.end()), copies.end());
    for (std::size_t i = 0; i < copies.size(); ++i) {
        result[std::string(undoFolder) + std::to_string(i)] = copies[i];
    }
    return result;
}

std::string StateOf(const std::string& folder) {
    std::string state;
    for (const auto& [name, bytes] : ComparableFilesIn(folder)) {
        state += name + '\n' + std::to_string(bytes.size()) + '\n' + bytes + '\n';
    }
    return state;
}

struct Record::Memory {
    std::size_t used;
    char bytes[recordSize];
};

Record::Record() {
    void* const place = ::mmap(nullptr, sizeof(Memory), PROT_READ | PROT_WRITE,
                               MAP_SHARED | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (place == MAP_FAILED) throw std::bad_alloc();
    memory_ = static_cast<Memory*>(place);
}

Record::~Record() { ::munmap(memory_, sizeof(Memory)); }

void Record::Clear() { memory_->used = 0; }

void Record::Add(Kind kind, std::string_view name, std::string_view text) {
    const std::size_t sizes[2] = {name.size(), text.size()};
    const std::size_t needed = 1 + sizeof(sizes) + name.size() + text.size();
    if (memory_->used + needed > recordSize) return;
    char* end = memory_->bytes + memory_->used;
    *end++ = static_cast<char>(kind);
    std::memcpy(end, sizes, sizeof(sizes));
    end += sizeof(sizes);
    end = std::copy(name.begin(), name.end(), end);
    std::copy(text.begin(), text.end(), end);
    memory_->used += needed;
}

std::vector<Record::Entry> Record::Entries(Kind kind) const {
    std::vector<Entry> entries = Entries();
    std::erase_if(entries, [kind](const Entry& entry) { return entry.kind != kind; });
    return entries;
}

std::vector<Record::Entry> Record::Entries() const {
    std::vector<Entry> entries;
    for (std::size_t at = 0; at < memory_->used;) {
        const char* const start = memory_->bytes + at;
        std::size_t sizes[2];
        std::memcpy(sizes, start + 1, sizeof(sizes));
        const char* const name = start + 1 + sizeof(sizes);
        entries.push_back(
            {static_cast<Kind>(*start), {name, sizes[0]}, {name + sizes[0], sizes[1]}});
        at += 1 + sizeof(sizes) + sizes[0] + sizes[1];
    }
    return entries;
}

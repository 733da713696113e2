// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/memory_folder.h"

#include <utility>

#include "core/failure.h"
#include "core/old_files.h"
#include "core/saving.h"
#include "core/text.h"

namespace {

constexpr Date undated = std::chrono::January / 1 / 2000;

Failure Refused(std::string_view name, std::string_view what) {
    return Failure(std::string(name) + ": " + std::string(what));
}

std::string FolderOf(std::string_view name) {
    const std::size_t slash = name.rfind('/');
    return slash == std::string_view::npos ? std::string() : LowerCase(name.substr(0, slash));
}

}  // namespace

bool MemoryFolder::Exists(std::string_view name) const { return files_.count(LowerCase(name)) > 0; }

std::string MemoryFolder::Read(std::string_view name) const {
    Count(name);
    return Stored(name).bytes;
}

bool MemoryFolder::Create(std::string_view name, std::string_view bytes) {
    Count(name);
    if (Exists(name)) return false;
    Store(name, std::string(bytes));
    return true;
}

void MemoryFolder::Write(std::string_view name, std::string_view bytes) try {
    Count(name);
    Store(name, std::string(bytes));
} catch (const Failure& failure) {
    throw AfterRescue(*this, name, bytes, failure);
}

void MemoryFolder::Write(std::string_view name, std::string_view bytes, FileTime written) {
    Write(name, bytes);
    SetFileDate(name, std::chrono::floor<std::chrono::days>(written));
}

void MemoryFolder::Append(std::string_view name, std::string_view records) try {
    Count(name);
    Store(name, Appended(Exists(name) ? Stored(name).bytes : std::string(), records));
} catch (const Failure& failure) {
    throw AfterRescue(*this, NewLinesOf(name), records, failure);
}

std::vector<std::string> MemoryFolder::Find(std::string_view pattern) const {
    Count(pattern);
    std::vector<std::string> names;
    for (const auto& [key, file] : files_) {
        if (FolderOf(key) == FolderOf(pattern) && NameMatches(key, pattern))
            names.push_back(file.name);
    }
    return names;
}

void MemoryFolder::Copy(std::string_view from, std::string_view to) {
    Count(from);
    const File source = Stored(from);
    Store(to, source.bytes);
    SetFileDate(to, source.date);
}

void MemoryFolder::Delete(std::string_view name) {
    Count(name);
    Stored(name);
    files_.erase(LowerCase(name));
}

Date MemoryFolder::FileDate(std::string_view name) const {
    Count(name);
    const auto found = files_.find(LowerCase(name));
    if (found == files_.end()) throw Refused(name, "there is no such file.");
    return found->second.date;
}

FileTime MemoryFolder::LastWritten(std::string_view name) const {
    return std::chrono::sys_days(FileDate(name));
}

bool MemoryFolder::FolderExists(std::string_view name) const {
    return folders_.count(LowerCase(name)) > 0;
}

void MemoryFolder::MakeFolder(std::string_view name) {
    Count(name);
    const std::string outer = FolderOf(name);
    if (!outer.empty() && !FolderExists(outer)) throw Refused(name, "there is no such folder.");
    if (!folders_.insert(LowerCase(name)).second)
        throw Refused(name, "there is such a folder already.");
}

std::string MemoryFolder::Rescue(std::string_view name, std::string_view bytes) {
    if (!rescueOffered_) return {};
    rescued_[std::string(name)] = bytes;
    return "elsewhere/" + std::string(name);
}

void MemoryFolder::Lock(std::string_view name) {
    Stored(name);
    files_[LowerCase(name)].locked = true;
}

void MemoryFolder::SetFileDate(std::string_view name, Date date) {
    Stored(name);
    files_[LowerCase(name)].date = date;
}

std::map<std::string, std::string> MemoryFolder::Snapshot() const {
    std::map<std::string, std::string> picture;
    for (const auto& [key, file] : files_) {
        if (FolderOf(key) != LowerCase(undoFolder)) picture[file.name] = file.bytes;
    }
    return picture;
}

std::map<std::string, std::string> MemoryFolder::OldFiles() const {
    std::map<std::string, std::string> copies;
    for (const auto& [key, file] : files_) {
        if (FolderOf(key) == LowerCase(undoFolder)) copies[file.name] = file.bytes;
    }
    return copies;
}

void MemoryFolder::Count(std::string_view name) const {
    if (!operationsLeft_) return;
    if (*operationsLeft_ == 0) throw Refused(name, "the folder was told to fail here.");
    --*operationsLeft_;
}

const MemoryFolder::File& MemoryFolder::Stored(std::string_view name) const {
    const auto found = files_.find(LowerCase(name));
    if (found == files_.end()) throw Refused(name, "there is no such file.");
    if (found->second.locked) throw Refused(name, "the file is locked.");
    return found->second;
}

void MemoryFolder::Store(std::string_view name, std::string bytes) {
    const std::string folder = FolderOf(name);
    if (!folder.empty() && !FolderExists(folder)) throw Refused(name, "there is no such folder.");
    if (FolderExists(name)) throw Refused(name, "there is a folder of that name.");
    if (Exists(name)) Stored(name);
    if (bytesLeft_ && bytes.size() > *bytesLeft_) {
        bytesLeft_ = 0;
        throw Refused(name, "the disk is full.");
    }
    if (bytesLeft_) *bytesLeft_ -= bytes.size();
    File& file =
        files_.try_emplace(LowerCase(name), File{std::string(name), {}, undated}).first->second;
    file.bytes = std::move(bytes);
}

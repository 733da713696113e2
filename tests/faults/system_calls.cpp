// SPDX-License-Identifier: GPL-3.0-or-later
// The counting of calls, and what the last ones have left unflushed.
#include "tests/faults/system_calls.h"

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include "tests/faults/watched_calls.h"

namespace {

using system_calls::Fault;
using watched_calls::Verdict;

constexpr std::size_t mostFiles = 1024;
constexpr std::size_t longestPath = 512;

using Trace = void (*)(const char* call, const char* path);
using Action = void (*)();

/// A text that needs no constructor.
struct Path {
    std::array<char, longestPath> bytes{};

    const char* Text() const { return bytes.data(); }
    std::size_t Length() const { return std::strlen(bytes.data()); }
    bool Is(const char* text) const { return std::strcmp(bytes.data(), text) == 0; }
    void Set(const char* text, std::size_t length) {
        bytes = {};
        std::copy_n(text, std::min(length, longestPath - 1), bytes.begin());
    }
    // Without the line at its end, so that all spellings of a folder are the same.
    void SetFolder(const char* text, std::size_t length) {
        Set(text, length > 1 && text[length - 1] == '/' ? length - 1 : length);
    }
};

struct OpenFile {
    bool watched = false;
    bool folder = false;
    bool unflushed = false;
    Path path{};
};

constinit bool armed = false;
constinit std::array<Path, 2> watchedFolders{};
constinit Fault fault{};
constinit long long calls = 0;
constinit Trace traceCall = nullptr;
constinit Action whenChanged = nullptr;
constinit std::array<OpenFile, mostFiles> openFiles{};
constinit std::array<Path, 16> unflushedFolders{};
constinit bool closedUnflushed = false;
constinit bool bytesUnflushed = false;

bool IsIn(const Path& folder, const char* path) {
    const std::size_t length = folder.Length();
    if (length == 0 || std::strncmp(path, folder.Text(), length) != 0) return false;
    return path[length] == '/' || path[length] == '\0';
}

OpenFile& FileOf(int file) { return openFiles.at(static_cast<std::size_t>(file)); }

bool IsUnfinished(const char* path) { return std::strstr(path, "/.quillon-") != nullptr; }

void ForgetFolder(const char* folder) {
    for (Path& unflushed : unflushedFolders) {
        if (unflushed.Is(folder)) unflushed = {};
    }
}

void RememberFolderOf(const char* path) {
    const char* const slash = std::strrchr(path, '/');
    if (slash == nullptr) return;
    Path folder;
    folder.SetFolder(path, static_cast<std::size_t>(slash - path));
    ForgetFolder(folder.Text());
    auto* const free = std::ranges::find_if(
        unflushedFolders, [](const Path& unflushed) { return unflushed.Length() == 0; });
    *(free == unflushedFolders.end() ? unflushedFolders.begin() : free) = folder;
}

}  // namespace

namespace watched_calls {

bool Counts(const char* path) {
    return armed && path != nullptr &&
           std::ranges::any_of(watchedFolders,
                               [path](const Path& folder) { return IsIn(folder, path); });
}

bool IsWatched(int file) {
    return file >= 0 && file < static_cast<int>(mostFiles) && FileOf(file).watched;
}

bool Counts(int file) { return armed && IsWatched(file); }

Verdict Next(const char* call, const char* path) {
    const long long number = calls++;
    if (traceCall != nullptr) traceCall(call, path);
    const bool lasting = fault.kind == Fault::Kind::Lasting && number >= fault.call;
    if (number != fault.call && !lasting) return Verdict::GoOn;
    switch (fault.kind) {
        case Fault::Kind::None:
            return Verdict::GoOn;
        case Fault::Kind::Kill:
            ::_exit(system_calls::killed);
        case Fault::Kind::Short:
        case Fault::Kind::KillWithin:
            return Verdict::Half;
        default:
            break;
    }
    errno = fault.error;
    return Verdict::Fail;
}

Verdict Next(const char* call, int file) { return Next(call, FileOf(file).path.Text()); }

void EndWithin() {
    if (fault.kind == Fault::Kind::KillWithin) ::_exit(system_calls::killed);
}

void Opened(int file, const char* path, bool folder) {
    if (file < 0 || file >= static_cast<int>(mostFiles)) return;
    OpenFile& opened = FileOf(file);
    opened = {.watched = true, .folder = folder};
    opened.path.SetFolder(path, std::strlen(path));
}

void Written(int file) {
    if (IsWatched(file)) FileOf(file).unflushed = true;
}

void Flushed(int file) {
    if (!IsWatched(file)) return;
    FileOf(file).unflushed = false;
    if (FileOf(file).folder) ForgetFolder(FileOf(file).path.Text());
}

// An unfinished file may still be given up; any other one has its name already.
void Closed(int file) {
    if (!IsWatched(file)) return;
    if (FileOf(file).unflushed && IsUnfinished(FileOf(file).path.Text())) {
        closedUnflushed = true;
    } else if (FileOf(file).unflushed) {
        bytesUnflushed = true;
    }
    FileOf(file) = {};
}

void Renaming() {
    const bool open = std::ranges::any_of(
        openFiles, [](const OpenFile& file) { return file.watched && file.unflushed; });
    bytesUnflushed = bytesUnflushed || closedUnflushed || open;
}

void Removing(const char* path) {
    closedUnflushed = false;
    for (OpenFile& file : openFiles) {
        if (file.watched && file.path.Is(path)) file.unflushed = false;
    }
}

void Changed(const char* path) {
    // That an unfinished file is gone need not last.
    if (!IsUnfinished(path)) RememberFolderOf(path);
    if (whenChanged == nullptr) return;
    const system_calls::Pause pause;
    whenChanged();
}

}  // namespace watched_calls

namespace system_calls {

void Arm(const std::vector<std::string>& folders, const Fault& wanted,
         void (*trace)(const char* call, const char* path), void (*changed)()) {
    watchedFolders = {};
    for (std::size_t i = 0; i < folders.size(); ++i) {
        watchedFolders.at(i).Set(folders[i].c_str(), folders[i].size());
    }
    fault = wanted;
    calls = 0;
    traceCall = trace;
    whenChanged = changed;
    openFiles = {};
    unflushedFolders = {};
    closedUnflushed = bytesUnflushed = false;
    armed = true;
}

bool Armed() { return armed; }

Pause::Pause() : armed_(armed) { armed = false; }

Pause::~Pause() { armed = armed_; }

bool LeavesUnflushed() {
    return bytesUnflushed || std::ranges::any_of(unflushedFolders, [](const Path& folder) {
               return folder.Length() > 0;
           });
}

CallKind KindOf(const std::string& call) {
    if (call == "read") return CallKind::Read;
    const bool writes =
        call == "write" || call == "writev" || call == "sendfile" || call == "copy_file_range";
    return writes ? CallKind::Write : CallKind::Other;
}

}  // namespace system_calls

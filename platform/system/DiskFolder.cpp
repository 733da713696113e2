// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/DiskFolder.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

#include "core/failure.h"
#include "core/old_files.h"
#include "core/saving.h"
#include "core/text.h"
#include "platform/system/LocaleRegion.h"
#include "platform/system/TextConversion.h"
#include "platform/system/file_io.h"

namespace {

// A name as the core gives it: bare, or with folders in front.
struct NameParts {
    std::string_view folder;
    std::string_view file;
};

NameParts PartsOf(std::string_view name) {
    const std::size_t slash = name.rfind('/');
    if (slash == std::string_view::npos) return {{}, name};
    return {name.substr(0, slash), name.substr(slash + 1)};
}

bool IsPlain(std::string_view name) {
    constexpr std::string_view separators("/\0", 2);
    return !name.empty() && name != "." && name != ".." &&
           name.find_first_of(separators) == std::string_view::npos;
}

// Whether the name stays within the program's folder.
bool IsWithin(std::string_view name) {
    for (std::size_t slash = name.find('/'); slash != std::string_view::npos;
         slash = name.find('/')) {
        if (!IsPlain(name.substr(0, slash))) return false;
        name.remove_prefix(slash + 1);
    }
    return IsPlain(name);
}

// Does what is told, and says of which file it could not be done and why.
template <typename Action>
auto Try(std::string_view name, const char* done, Action action) {
    try {
        return action();
    } catch (const FileError& error) {
        throw Failure(std::string(name) + " could not be " + done + ": " + error.reason + ".");
    }
}

// The names in a folder that the core can tell, each with its bytes on disk.
std::vector<std::array<std::string, 2>> TellableNames(const std::string& folder) {
    std::vector<std::array<std::string, 2>> names;
    for (const std::string& onDisk : NamesIn(folder)) {
        const QString decoded = QFile::decodeName(onDisk.c_str());
        const std::string name = FromQString(decoded);
        if (ToQString(name) == decoded) names.push_back({name, onDisk});
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string BytesOnDisk(const QString& name) { return QFile::encodeName(name).toStdString(); }

bool IsDirectory(const std::string& path) { return EntryAt(path) == Entry::Folder; }

// The path of an entry as it is spelled, or of one that differs from it in case only.
std::string EntryPath(const std::string& folder, std::string_view name) {
    const std::string spelled = folder + '/' + BytesOnDisk(ToQString(name));
    if (HasEntry(spelled) || !IsDirectory(folder)) return spelled;
    const std::string wanted = LowerCase(name);
    for (const auto& [told, onDisk] : TellableNames(folder)) {
        if (LowerCase(told) == wanted) return folder + '/' + onDisk;
    }
    return spelled;
}

// The path of what lies below a folder, be it in folders of its own.
std::string PathBelow(const std::string& root, std::string_view name) {
    if (name.empty()) return root;
    const NameParts parts = PartsOf(name);
    return EntryPath(PathBelow(root, parts.folder), parts.file);
}

std::vector<std::string> FilesLike(const std::string& root, std::string_view pattern) {
    const NameParts parts = PartsOf(pattern);
    const std::string folder = PathBelow(root, parts.folder);
    std::vector<std::string> found;
    if (!IsDirectory(folder)) return found;
    for (const auto& [name, onDisk] : TellableNames(folder)) {
        if (!NameMatches(name, parts.file) || IsUnfinishedFile(name)) continue;
        const std::string path = folder + '/' + onDisk;
        const std::string file =
            (parts.folder.empty() ? "" : std::string(parts.folder) + '/') + name;
        if (Try(file, "looked for", [&path] { return EntryAt(path); }) != Entry::File) continue;
        found.push_back(file);
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const std::string& one, const std::string& other) {
                         return LowerCase(one) < LowerCase(other);
                     });
    return found;
}

FileTime ToFileTime(const timespec& time) {
    return FileTime(std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec));
}

timespec ToTimespec(FileTime time) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(time);
    return {.tv_sec = seconds.time_since_epoch().count(), .tv_nsec = (time - seconds).count()};
}

void ClearUnfinishedFiles(const std::string& folder) {
    if (!IsDirectory(folder)) return;
    for (const std::string& name : NamesIn(folder)) {
        if (IsUnfinishedFile(name)) RemoveUnfinishedFile(folder + '/' + name);
    }
}

}  // namespace

DiskFolder::DiskFolder(const QString& path, Surroundings surroundings)
    : path_(path), surroundings_(std::move(surroundings)) {
    const std::string root = BytesOnDisk(path);
    Try(FromQString(path), "opened", [&root] { NamesIn(root); });
    for (const char* folder : {"", "help", "Backup", "Backup/Undo"}) {
        Try(FromQString(path) + '/' + folder, "opened",
            [&] { ClearUnfinishedFiles(PathBelow(root, folder)); });
    }
}

std::string DiskFolder::PathOf(std::string_view name) const {
    if (!IsWithin(name))
        throw Failure(Quoted(name) + " is no name of a file in the program's folder.");
    return PathBelow(BytesOnDisk(path_), name);
}

void DiskFolder::RequireFolder() const {
    if (!IsDirectory(BytesOnDisk(path_)))
        throw FileError{"the program's folder " + FromQString(path_) + " is gone"};
}

bool DiskFolder::Exists(std::string_view name) const {
    if (!IsWithin(name)) return false;
    return Try(name, "looked for", [&] {
        const Entry entry = EntryAt(PathOf(name));
        if (entry == Entry::None) RequireFolder();
        return entry != Entry::None && entry != Entry::Folder;
    });
}

std::string DiskFolder::Read(std::string_view name) const {
    return Try(name, "read", [&] { return ReadWholeFile(PathOf(name)); });
}

bool DiskFolder::Create(std::string_view name, std::string_view bytes) {
    return Try(name, "written", [&] { return CreateFileSafely(PathOf(name), bytes); });
}

void DiskFolder::Write(std::string_view name, std::string_view bytes) try {
    Try(name, "written", [&] { WriteFileSafely(PathOf(name), bytes); });
} catch (const Failure& failure) {
    throw AfterRescue(*this, name, bytes, failure);
}

void DiskFolder::Write(std::string_view name, std::string_view bytes, FileTime written) {
    Try(name, "written", [&] { WriteFileSafely(PathOf(name), bytes, ToTimespec(written)); });
}

void DiskFolder::Append(std::string_view name, std::string_view records) {
    std::string bytes;
    try {
        bytes = Appended(Exists(name) ? Read(name) : std::string(), records);
    } catch (const Failure& failure) {
        throw AfterRescue(*this, NewLinesOf(name), records, failure);
    }
    Write(name, bytes);
}

std::vector<std::string> DiskFolder::Find(std::string_view pattern) const {
    return Try(pattern, "looked for", [&] {
        RequireFolder();
        return FilesLike(BytesOnDisk(path_), pattern);
    });
}

void DiskFolder::Copy(std::string_view from, std::string_view to) {
    const std::string bytes = Read(from);
    const timespec modified = Try(from, "read", [&] { return ModifiedTime(PathOf(from)); });
    Try(to, "written", [&] {
        const std::string target = PathOf(to);
        std::error_code noTarget;
        const bool same = std::filesystem::equivalent(PathOf(from), target, noTarget);
        if (!same) WriteFileSafely(target, bytes, modified);
    });
}

void DiskFolder::Delete(std::string_view name) {
    Try(name, "deleted", [&] { DeleteFile(PathOf(name)); });
}

Date DiskFolder::FileDate(std::string_view name) const {
    const timespec modified = Try(name, "looked at", [&] { return ModifiedTime(PathOf(name)); });
    return FromQDate(QDateTime::fromSecsSinceEpoch(modified.tv_sec).date());
}

FileTime DiskFolder::LastWritten(std::string_view name) const {
    return ToFileTime(Try(name, "looked at", [&] { return ModifiedTime(PathOf(name)); }));
}

bool DiskFolder::FolderExists(std::string_view name) const {
    if (!IsWithin(name)) return false;
    return Try(name, "looked for", [&] {
        RequireFolder();
        return IsDirectory(PathOf(name));
    });
}

void DiskFolder::MakeFolder(std::string_view name) {
    Try(name, "made", [&] { MakeDirectory(PathOf(name)); });
}

std::string DiskFolder::Rescue(std::string_view name, std::string_view bytes) {
    constexpr mode_t ownersAlone = 0600;
    const std::string_view bare = PartsOf(name).file;
    for (const QString& place : surroundings_.rescuePlaces) {
        try {
            QDir().mkpath(place.left(place.lastIndexOf(QLatin1Char('/'))));
            for (int count = 1;; ++count) {
                const QString path = place + ToQString(StampedName(Now(), count, bare));
                if (!CreateFileSafely(BytesOnDisk(path), bytes, ownersAlone)) continue;
                surroundings_.rescued(path);
                return FromQString(path);
            }
        } catch (const FileError&) {
            // The next place is tried.
        }
    }
    return {};
}

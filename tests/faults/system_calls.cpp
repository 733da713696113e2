// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/faults/system_calls.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>

namespace {

using system_calls::Fault;

constexpr int mostFiles = 1024;

struct OpenFile {
    bool watched = false;
    bool folder = false;
    bool unflushed = false;
    std::array<char, 256> name{};
};

bool armed = false;
std::array<char, 4096> watchedFolder{};
std::size_t watchedLength = 0;
Fault fault;
long long calls = 0;
void (*traceCall)(const char*, const char*) = nullptr;
void (*whenChanged)() = nullptr;
std::array<OpenFile, mostFiles> openFiles;
bool closedUnflushed = false;
bool renamedUnflushed = false;
bool folderUnflushed = false;

enum class Verdict { GoOn, Fail, Half };

bool IsWatched(const char* path) {
    if (watchedLength == 0 || std::strncmp(path, watchedFolder.data(), watchedLength) != 0)
        return false;
    return path[watchedLength] == '/' || path[watchedLength] == '\0';
}

bool IsWatched(int file) {
    return file >= 0 && file < mostFiles && openFiles[static_cast<std::size_t>(file)].watched;
}

OpenFile& FileOf(int file) { return openFiles[static_cast<std::size_t>(file)]; }

const char* NameIn(const char* path) {
    return path[watchedLength] == '/' ? path + watchedLength + 1 : ".";
}

// Counts a call and says what becomes of it.
Verdict Next(const char* call, const char* file) {
    const long long number = calls++;
    if (traceCall != nullptr) traceCall(call, file);
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

void EndWhereToldTo() {
    if (fault.kind == Fault::Kind::KillWithin) ::_exit(system_calls::killed);
}

void Changed(const char* path) {
    // That an unfinished file is gone need not last.
    folderUnflushed = folderUnflushed || std::strstr(path, "/.quillon-") == nullptr;
    if (whenChanged == nullptr) return;
    const system_calls::Pause pause;
    whenChanged();
}

void Opened(int file, const char* path, int flags) {
    if (file < 0 || file >= mostFiles) return;
    OpenFile& opened = FileOf(file);
    opened = {};
    opened.watched = true;
    opened.folder = (flags & O_DIRECTORY) != 0;
    std::strncpy(opened.name.data(), NameIn(path), opened.name.size() - 1);
}

// The C library's own function of that name.
template <typename Function>
Function* Real(Function*, const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

#define REAL(name) static const auto real = Real(static_cast<decltype(&::name)>(&::name), #name)

// A call on a path or an open file that only fails or goes on.
template <typename Call>
auto On(const char* name, const char* path, Call call) -> decltype(call()) {
    if (!armed || !IsWatched(path)) return call();
    if (Next(name, NameIn(path)) == Verdict::Fail) return static_cast<decltype(call())>(-1);
    return call();
}

template <typename Call>
auto On(const char* name, int file, Call call) -> decltype(call()) {
    if (!armed || !IsWatched(file)) return call();
    if (Next(name, FileOf(file).name.data()) == Verdict::Fail)
        return static_cast<decltype(call())>(-1);
    return call();
}

// The same for what changes the names in the folder.
template <typename Call>
int Changing(const char* name, const char* path, Call call) {
    const bool counts = armed && IsWatched(path);
    const int result = On(name, path, call);
    if (counts && result == 0) Changed(path);
    return result;
}

template <typename Real>
int Open(const char* name, const char* path, int flags, mode_t mode, Real real) {
    if (!armed || !IsWatched(path)) return real(path, flags, mode);
    if (Next(name, NameIn(path)) == Verdict::Fail) return -1;
    const int file = real(path, flags, mode);
    Opened(file, path, flags);
    return file;
}

mode_t ModeOf(int flags, va_list arguments) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

void Flushed(int file) {
    if (!IsWatched(file)) return;
    FileOf(file).unflushed = false;
    if (FileOf(file).folder) folderUnflushed = false;
}

void Renaming() {
    for (const OpenFile& file : openFiles) {
        if (file.watched && file.unflushed) renamedUnflushed = true;
    }
    if (closedUnflushed) renamedUnflushed = true;
}

// What is removed need not be flushed.
void Forget(const char* path) {
    closedUnflushed = false;
    for (OpenFile& file : openFiles) {
        if (file.watched && std::strcmp(file.name.data(), NameIn(path)) == 0) {
            file.unflushed = false;
        }
    }
}

}  // namespace

namespace system_calls {

void Arm(const std::string& folder, const Fault& wanted,
         void (*trace)(const char* call, const char* file), void (*changed)()) {
    std::strncpy(watchedFolder.data(), folder.c_str(), watchedFolder.size() - 1);
    watchedLength = folder.size();
    fault = wanted;
    calls = 0;
    traceCall = trace;
    whenChanged = changed;
    openFiles = {};
    closedUnflushed = renamedUnflushed = folderUnflushed = false;
    armed = true;
}

Pause::Pause() : armed_(armed) { armed = false; }

Pause::~Pause() { armed = armed_; }

long long Calls() { return calls; }

bool LeavesUnflushed() { return renamedUnflushed || folderUnflushed; }

CallKind KindOf(const std::string& call) {
    if (call == "read" || call == "pread64") return CallKind::Read;
    return call == "write" || call == "pwrite64" ? CallKind::Write : CallKind::Other;
}

}  // namespace system_calls

extern "C" {

int open(const char* path, int flags, ...) {
    REAL(open);
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open("open", path, flags, mode, real);
}

int open64(const char* path, int flags, ...) {
    REAL(open64);
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open("open", path, flags, mode, real);
}

int openat(int folder, const char* path, int flags, ...) {
    REAL(openat);
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open("open", path, flags, mode, [&](const char* name, int with, mode_t as) {
        return real(folder, name, with, as);
    });
}

FILE* fopen(const char* path, const char* mode) {
    REAL(fopen);
    if (armed && IsWatched(path) && Next("fopen", NameIn(path)) == Verdict::Fail) return nullptr;
    return real(path, mode);
}

FILE* fopen64(const char* path, const char* mode) {
    REAL(fopen64);
    if (armed && IsWatched(path) && Next("fopen", NameIn(path)) == Verdict::Fail) return nullptr;
    return real(path, mode);
}

int close(int file) {
    REAL(close);
    if (!IsWatched(file)) return real(file);
    const bool fails = armed && Next("close", FileOf(file).name.data()) == Verdict::Fail;
    const int error = errno;
    closedUnflushed = closedUnflushed || FileOf(file).unflushed;
    FileOf(file) = {};
    const int result = real(file);
    if (!fails) return result;
    errno = error;
    return -1;
}

ssize_t read(int file, void* bytes, size_t count) {
    REAL(read);
    if (!armed || !IsWatched(file)) return real(file, bytes, count);
    const Verdict verdict = Next("read", FileOf(file).name.data());
    if (verdict == Verdict::Fail) return -1;
    return real(file, bytes, verdict == Verdict::Half ? (count + 1) / 2 : count);
}

ssize_t write(int file, const void* bytes, size_t count) {
    REAL(write);
    if (!armed || !IsWatched(file)) return real(file, bytes, count);
    const Verdict verdict = Next("write", FileOf(file).name.data());
    if (verdict == Verdict::Fail) return -1;
    FileOf(file).unflushed = true;
    if (verdict == Verdict::GoOn) return real(file, bytes, count);
    const ssize_t written = real(file, bytes, (count + 1) / 2);
    EndWhereToldTo();
    return written;
}

int fsync(int file) {
    REAL(fsync);
    const int result = On("fsync", file, [&] {
        // Nothing is cut off in a test, and waiting for a disk takes long.
        return IsWatched(file) ? 0 : real(file);
    });
    if (result == 0) Flushed(file);
    return result;
}

int fdatasync(int file) {
    REAL(fdatasync);
    const int result = On("fdatasync", file, [&] { return IsWatched(file) ? 0 : real(file); });
    if (result == 0) Flushed(file);
    return result;
}

int fstat(int file, struct stat* status) noexcept {
    REAL(fstat);
    return On("fstat", file, [&] { return real(file, status); });
}

int fstat64(int file, struct stat64* status) noexcept {
    REAL(fstat64);
    return On("fstat", file, [&] { return real(file, status); });
}

int fchmod(int file, mode_t mode) noexcept {
    REAL(fchmod);
    return On("fchmod", file, [&] { return real(file, mode); });
}

int futimens(int file, const timespec* times) noexcept {
    REAL(futimens);
    return On("futimens", file, [&] { return real(file, times); });
}

int ftruncate(int file, off_t size) noexcept {
    REAL(ftruncate);
    return On("ftruncate", file, [&] { return real(file, size); });
}

int ftruncate64(int file, off64_t size) noexcept {
    REAL(ftruncate64);
    return On("ftruncate", file, [&] { return real(file, size); });
}

int flock(int file, int operation) noexcept {
    REAL(flock);
    return On("flock", file, [&] { return real(file, operation); });
}

int stat(const char* path, struct stat* status) noexcept {
    REAL(stat);
    return On("stat", path, [&] { return real(path, status); });
}

int stat64(const char* path, struct stat64* status) noexcept {
    REAL(stat64);
    return On("stat", path, [&] { return real(path, status); });
}

int lstat(const char* path, struct stat* status) noexcept {
    REAL(lstat);
    return On("lstat", path, [&] { return real(path, status); });
}

int lstat64(const char* path, struct stat64* status) noexcept {
    REAL(lstat64);
    return On("lstat", path, [&] { return real(path, status); });
}

int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) noexcept {
    REAL(statx);
    return On("statx", path, [&] { return real(folder, path, flags, mask, status); });
}

int access(const char* path, int mode) noexcept {
    REAL(access);
    return On("access", path, [&] { return real(path, mode); });
}

int euidaccess(const char* path, int mode) noexcept {
    REAL(euidaccess);
    return On("access", path, [&] { return real(path, mode); });
}

ssize_t readlink(const char* path, char* target, size_t size) noexcept {
    REAL(readlink);
    return On("readlink", path, [&] { return real(path, target, size); });
}

DIR* opendir(const char* path) {
    REAL(opendir);
    if (armed && IsWatched(path) && Next("opendir", NameIn(path)) == Verdict::Fail) return nullptr;
    DIR* const folder = real(path);
    if (folder != nullptr && armed && IsWatched(path)) {
        Opened(::dirfd(folder), path, O_DIRECTORY);
    }
    return folder;
}

int closedir(DIR* folder) {
    REAL(closedir);
    const int file = ::dirfd(folder);
    if (IsWatched(file)) FileOf(file) = {};
    return real(folder);
}

struct dirent* readdir(DIR* folder) {
    REAL(readdir);
    const int file = ::dirfd(folder);
    const bool counts = armed && IsWatched(file);
    if (counts && Next("readdir", FileOf(file).name.data()) == Verdict::Fail) return nullptr;
    return real(folder);
}

struct dirent64* readdir64(DIR* folder) {
    REAL(readdir64);
    const int file = ::dirfd(folder);
    const bool counts = armed && IsWatched(file);
    if (counts && Next("readdir", FileOf(file).name.data()) == Verdict::Fail) return nullptr;
    return real(folder);
}

int rename(const char* from, const char* to) noexcept {
    REAL(rename);
    return Changing("rename", to, [&] {
        Renaming();
        return real(from, to);
    });
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
    REAL(renameat2);
    return Changing("rename", to, [&] {
        Renaming();
        return real(fromFolder, from, toFolder, to, flags);
    });
}

int link(const char* from, const char* to) noexcept {
    REAL(link);
    return Changing("link", to, [&] {
        Renaming();
        return real(from, to);
    });
}

int unlink(const char* path) noexcept {
    REAL(unlink);
    return Changing("unlink", path, [&] {
        Forget(path);
        return real(path);
    });
}

int mkdir(const char* path, mode_t mode) noexcept {
    REAL(mkdir);
    return Changing("mkdir", path, [&] { return real(path, mode); });
}

}  // extern "C"

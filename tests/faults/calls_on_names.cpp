// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own versions of the C library's functions that look at names and change them.
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

#include "tests/faults/watched_calls.h"

using watched_calls::Counts;
using watched_calls::Next;
using watched_calls::Verdict;
using watched_calls::Whole;

namespace {

// A call that changes the names in a folder.
template <typename Call>
int Changing(const char* name, const char* path, Call call) {
    const bool counts = Counts(path);
    const int result = Whole(name, path, call);
    if (counts && result == 0) watched_calls::Changed(path);
    return result;
}

template <typename Call>
int Renaming(const char* name, const char* to, Call call) {
    return Changing(name, to, [&] {
        watched_calls::Renaming();
        return call();
    });
}

template <typename Call>
int Removing(const char* path, Call call) {
    return Changing("unlink", path, [&] {
        watched_calls::Removing(path);
        return call();
    });
}

template <typename Real>
auto ReadFolder(DIR* folder, Real real) -> decltype(real(folder)) {
    const int file = ::dirfd(folder);
    if (Counts(file) && Next("readdir", file) == Verdict::Fail) return nullptr;
    return real(folder);
}

}  // namespace

extern "C" {

int stat(const char* path, struct stat* status) noexcept {
    REAL(stat);
    return Whole("stat", path, [&] { return real(path, status); });
}

int stat64(const char* path, struct stat64* status) noexcept {
    REAL(stat64);
    return Whole("stat", path, [&] { return real(path, status); });
}

int lstat(const char* path, struct stat* status) noexcept {
    REAL(lstat);
    return Whole("lstat", path, [&] { return real(path, status); });
}

int lstat64(const char* path, struct stat64* status) noexcept {
    REAL(lstat64);
    return Whole("lstat", path, [&] { return real(path, status); });
}

int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) noexcept {
    REAL(statx);
    return Whole("statx", path, [&] { return real(folder, path, flags, mask, status); });
}

int access(const char* path, int mode) noexcept {
    REAL(access);
    return Whole("access", path, [&] { return real(path, mode); });
}

int euidaccess(const char* path, int mode) noexcept {
    REAL(euidaccess);
    return Whole("access", path, [&] { return real(path, mode); });
}

ssize_t readlink(const char* path, char* target, size_t size) noexcept {
    REAL(readlink);
    return Whole("readlink", path, [&] { return real(path, target, size); });
}

DIR* opendir(const char* path) {
    REAL(opendir);
    const bool counts = Counts(path);
    if (counts && Next("opendir", path) == Verdict::Fail) return nullptr;
    DIR* const folder = real(path);
    if (folder != nullptr && counts) watched_calls::Opened(::dirfd(folder), path, true);
    return folder;
}

int closedir(DIR* folder) {
    REAL(closedir);
    watched_calls::Closed(::dirfd(folder));
    return real(folder);
}

struct dirent* readdir(DIR* folder) {
    REAL(readdir);
    return ReadFolder(folder, real);
}

struct dirent64* readdir64(DIR* folder) {
    REAL(readdir64);
    return ReadFolder(folder, real);
}

int rename(const char* from, const char* to) noexcept {
    REAL(rename);
    return Renaming("rename", to, [&] { return real(from, to); });
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
    REAL(renameat2);
    return Renaming("rename", to, [&] { return real(fromFolder, from, toFolder, to, flags); });
}

int link(const char* from, const char* to) noexcept {
    REAL(link);
    return Renaming("link", to, [&] { return real(from, to); });
}

int unlink(const char* path) noexcept {
    REAL(unlink);
    return Removing(path, [&] { return real(path); });
}

int remove(const char* path) noexcept {
    REAL(remove);
    return Removing(path, [&] { return real(path); });
}

int rmdir(const char* path) noexcept {
    REAL(rmdir);
    return Changing("rmdir", path, [&] { return real(path); });
}

int mkdir(const char* path, mode_t mode) noexcept {
    REAL(mkdir);
    return Changing("mkdir", path, [&] { return real(path, mode); });
}

int truncate(const char* path, off_t size) noexcept {
    REAL(truncate);
    return Changing("truncate", path, [&] { return real(path, size); });
}

}  // extern "C"

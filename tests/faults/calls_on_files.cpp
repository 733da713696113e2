// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own versions of the C library's functions that open files and work on open ones.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "tests/faults/watched_calls.h"

using watched_calls::Counts;
using watched_calls::Next;
using watched_calls::Verdict;
using watched_calls::Whole;

namespace {

mode_t ModeOf(int flags, va_list arguments) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

template <typename Real>
int Open(const char* path, int flags, Real real) {
    if (!Counts(path)) return real();
    if (Next("open", path) == Verdict::Fail) return -1;
    const int file = real();
    watched_calls::Opened(file, path, (flags & O_DIRECTORY) != 0);
    if (file >= 0 && (flags & O_TRUNC) != 0) watched_calls::Written(file);
    return file;
}

template <typename Real>
FILE* OpenStream(const char* path, const char* mode, Real real) {
    if (!Counts(path)) return real(path, mode);
    if (Next("fopen", path) == Verdict::Fail) return nullptr;
    FILE* const stream = real(path, mode);
    if (stream == nullptr) return nullptr;
    watched_calls::Opened(::fileno(stream), path, false);
    // What goes through the stream's own buffer is not seen.
    if (std::strpbrk(mode, "wa+") != nullptr) watched_calls::Written(::fileno(stream));
    return stream;
}

// A call that writes; `real` writes so many bytes.
template <typename Real>
ssize_t Write(const char* name, int file, size_t count, Real real) {
    if (!Counts(file)) return real(count);
    const Verdict verdict = Next(name, file);
    if (verdict == Verdict::Fail) return -1;
    watched_calls::Written(file);
    if (verdict == Verdict::GoOn) return real(count);
    const ssize_t written = real((count + 1) / 2);
    watched_calls::EndWithin();
    return written;
}

// Nothing is cut off in a test, and waiting for a disk takes long.
template <typename Real>
int Flush(const char* name, int file, Real real) {
    const int result =
        Whole(name, file, [&] { return watched_calls::IsWatched(file) ? 0 : real(file); });
    if (result == 0) watched_calls::Flushed(file);
    return result;
}

// A file is closed even where that fails.
template <typename Real>
int Close(const char* name, int file, Real real) {
    if (!watched_calls::IsWatched(file)) return real();
    const bool fails = Counts(file) && Next(name, file) == Verdict::Fail;
    const int error = errno;
    watched_calls::Closed(file);
    const int result = real();
    if (!fails) return result;
    errno = error;
    return -1;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    REAL(open);
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open(path, flags, [&] { return real(path, flags, mode); });
}

int open64(const char* path, int flags, ...) {
    REAL(open64);
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open(path, flags, [&] { return real(path, flags, mode); });
}

int openat(int folder, const char* path, int flags, ...) {
    REAL(openat);
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open(path, flags, [&] { return real(folder, path, flags, mode); });
}

FILE* fopen(const char* path, const char* mode) {
    REAL(fopen);
    return OpenStream(path, mode, real);
}

FILE* fopen64(const char* path, const char* mode) {
    REAL(fopen64);
    return OpenStream(path, mode, real);
}

int close(int file) {
    REAL(close);
    return Close("close", file, [&] { return real(file); });
}

int fclose(FILE* stream) {
    REAL(fclose);
    return Close("fclose", ::fileno(stream), [&] { return real(stream); });
}

ssize_t read(int file, void* bytes, size_t count) {
    REAL(read);
    if (!Counts(file)) return real(file, bytes, count);
    const Verdict verdict = Next("read", file);
    if (verdict == Verdict::Fail) return -1;
    return real(file, bytes, verdict == Verdict::Half ? (count + 1) / 2 : count);
}

ssize_t write(int file, const void* bytes, size_t count) {
    REAL(write);
    return Write("write", file, count, [&](size_t size) { return real(file, bytes, size); });
}

ssize_t writev(int file, const struct iovec* parts, int count) {
    REAL(writev);
    const auto whole = static_cast<size_t>(count);
    return Write("writev", file, whole,
                 [&](size_t size) { return real(file, parts, static_cast<int>(size)); });
}

ssize_t sendfile(int to, int from, off_t* offset, size_t count) noexcept {
    REAL(sendfile);
    return Write("sendfile", to, count, [&](size_t size) { return real(to, from, offset, size); });
}

ssize_t copy_file_range(int from, off64_t* fromOffset, int to, off64_t* toOffset, size_t count,
                        unsigned flags) {
    REAL(copy_file_range);
    return Write("copy_file_range", to, count,
                 [&](size_t size) { return real(from, fromOffset, to, toOffset, size, flags); });
}

int fsync(int file) {
    REAL(fsync);
    return Flush("fsync", file, real);
}

int fdatasync(int file) {
    REAL(fdatasync);
    return Flush("fsync", file, real);
}

int fstat(int file, struct stat* status) noexcept {
    REAL(fstat);
    return Whole("fstat", file, [&] { return real(file, status); });
}

int fstat64(int file, struct stat64* status) noexcept {
    REAL(fstat64);
    return Whole("fstat", file, [&] { return real(file, status); });
}

int fchmod(int file, mode_t mode) noexcept {
    REAL(fchmod);
    return Whole("fchmod", file, [&] { return real(file, mode); });
}

int futimens(int file, const timespec* times) noexcept {
    REAL(futimens);
    return Whole("futimens", file, [&] { return real(file, times); });
}

int ftruncate(int file, off_t size) noexcept {
    REAL(ftruncate);
    return Whole("ftruncate", file, [&] { return real(file, size); });
}

int ftruncate64(int file, off64_t size) noexcept {
    REAL(ftruncate64);
    return Whole("ftruncate", file, [&] { return real(file, size); });
}

int flock(int file, int operation) noexcept {
    REAL(flock);
    return Whole("flock", file, [&] { return real(file, operation); });
}

}  // extern "C"

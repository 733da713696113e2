// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <dlfcn.h>

/// What the program's own versions of the C library's functions ask and tell: whether a call
/// counts, what is to become of it, and what it has changed.
///
/// All of it works before the first constructor of the program has run, as the functions do.
namespace watched_calls {

enum class Verdict { GoOn, Fail, Half };

/// Whether calls on this path or this open file are counted now.
bool Counts(const char* path);
bool Counts(int file);

/// Whether the file was opened by a call that counted; also while none counts.
bool IsWatched(int file);

/// Counts a call and says what becomes of it. Where it is to fail, `errno` is set.
Verdict Next(const char* call, const char* path);
Verdict Next(const char* call, int file);

/// Ends the process where it is to be killed within a call that is done by half.
void EndWithin();

/// What has become of an open file.
void Opened(int file, const char* path, bool folder);
void Written(int file);
void Flushed(int file);
void Closed(int file);

/// Before a file takes another name, which it may only with all its bytes on the disk.
void Renaming();

/// Before a file is removed, which need not be flushed any more.
void Removing(const char* path);

/// After names in the folder of the path have changed.
void Changed(const char* path);

/// The C library's own function of that name.
template <typename Function>
Function* Real(Function*, const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

/// A call on a path or an open file that fails or goes on, but is never done by half.
template <typename On, typename Call>
auto Whole(const char* name, On on, Call call) -> decltype(call()) {
    if (Counts(on) && Next(name, on) == Verdict::Fail) return static_cast<decltype(call())>(-1);
    return call();
}

}  // namespace watched_calls

/// The C library's own function, found once.
#define REAL(name) \
    static const auto real = watched_calls::Real(static_cast<decltype(&::name)>(&::name), #name)

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sys/types.h>

#include <ctime>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What these functions throw: the system's reason in English, such as "No space left on device".
struct FileError {
    std::string reason;
};

/// What a path leads to, links followed.
enum class Entry { None, File, Folder, Other };

/// What is at a path. `None` is only what the system knows not to be there; where it cannot tell,
/// as on a disk that does not answer, it fails.
Entry EntryAt(const std::string& path);

/// Whether there is anything of that name, be it a link that leads nowhere; fails like `EntryAt`.
bool HasEntry(const std::string& path);

/// The bytes of a regular file of at most 64 MiB.
std::string ReadWholeFile(const std::string& path);

/// Replaces or creates a file such that, whatever happens, the whole new file or the untouched old
/// one is on disk; on return the new one is.
///
/// A symbolic link is followed. An existing file keeps its permissions, and must be one that the
/// user may write. `modified`, where given, becomes the time of the last change.
void WriteFileSafely(const std::string& path, std::string_view bytes,
                     std::optional<timespec> modified = {});

/// Makes a file that is not there yet, as safely. Where there is a file of that name, be it for the
/// shortest time, it stays and the answer is no; a folder of that name is a failure. A link that
/// leads nowhere is followed.
bool CreateFileSafely(const std::string& path, std::string_view bytes, mode_t permissions = 0666);

/// The names of all that lies in a folder, in no particular order.
std::vector<std::string> NamesIn(const std::string& folder);

/// When the file was last written.
timespec ModifiedTime(const std::string& path);

void DeleteFile(const std::string& path);

void MakeDirectory(const std::string& path);

/// Whether a file of that name is one of `WriteFileSafely` that was never finished.
bool IsUnfinishedFile(std::string_view fileName);

/// Removes what bears the name of an unfinished file, unless another run of the program is just
/// writing it: a file, a link, an empty folder. What cannot be removed stays, and bars nothing.
void RemoveUnfinishedFile(const std::string& path);

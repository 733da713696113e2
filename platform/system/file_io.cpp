// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/system/file_io.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <memory>
#include <utility>

namespace {

constexpr off_t largestFile = off_t{64} * 1024 * 1024;
constexpr const char* unfinishedPrefix = ".quillon-";
constexpr const char* unfinishedSuffix = ".tmp";

[[noreturn]] void Fail(int error) {
    const char* const reason = strerrordesc_np(error);
    throw FileError{reason == nullptr ? "error " + std::to_string(error) : reason};
}

void Check(int result) {
    if (result == -1) Fail(errno);
}

using Look = int (*)(const char* path, struct stat* status);

// Nothing where nothing is. Any other failure to look leaves open whether there is something, and
// must never count as absence: what is not there gets written anew.
std::optional<mode_t> ModeAt(const std::string& path, Look look) {
    struct stat status {};
    if (look(path.c_str(), &status) == 0) return status.st_mode;
    if (errno != ENOENT && errno != ENOTDIR) Fail(errno);
    return std::nullopt;
}

// An open file, closed at the latest when it goes.
class Descriptor {
  public:
    Descriptor() = default;
    Descriptor(const std::string& path, int flags) { Open(path, flags); }
    ~Descriptor() {
        if (IsOpen()) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    void Open(const std::string& path, int flags, mode_t mode = 0) {
        number_ = ::open(path.c_str(), flags | O_CLOEXEC, mode);
    }
    bool IsOpen() const { return number_ != -1; }
    int Number() const { return number_; }
    void Close() { Check(::close(std::exchange(number_, -1))); }

    struct stat Status() const {
        struct stat status {};
        Check(::fstat(number_, &status));
        return status;
    }

  private:
    int number_ = -1;
};

std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

// The file that a chain of symbolic links leads to, whether there is one or not.
std::string LinkTarget(std::string path) {
    constexpr int longestChain = 40;
    for (int link = 0; link < longestChain; ++link) {
        std::array<char, PATH_MAX> target{};
        const ssize_t length = ::readlink(path.c_str(), target.data(), target.size());
        if (length == -1 && errno != EINVAL && errno != ENOENT) Fail(errno);
        if (length == -1) return path;
        const std::string next(target.data(), static_cast<std::size_t>(length));
        path = next.starts_with('/') ? next : FolderOf(path) + next;
    }
    Fail(ELOOP);
}

// The permissions of the file that is to be replaced, if there is one; fails where it is no file or
// may not be written.
std::optional<mode_t> PermissionsToKeep(const std::string& path) {
    const Descriptor old(path, O_WRONLY | O_NONBLOCK);
    if (!old.IsOpen() && errno == ENOENT) return std::nullopt;
    if (!old.IsOpen()) Fail(errno);
    const struct stat status = old.Status();
    if (!S_ISREG(status.st_mode)) throw FileError{"Not a regular file"};
    return status.st_mode & 0777U;
}

void WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written == -1 && errno == EINTR) continue;
        if (written <= 0) Fail(written == 0 ? ENOSPC : errno);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void Flush(const Descriptor& folder) {
    // Some network file systems cannot flush a folder and need not.
    if (::fsync(folder.Number()) == -1 && errno != EINVAL) Fail(errno);
}

// The folder of a file, opened before anything is changed in it.
class Folder : public Descriptor {
  public:
    explicit Folder(const std::string& path) : Descriptor(FolderOf(path), O_RDONLY | O_DIRECTORY) {
        if (!IsOpen()) Fail(errno);
    }
};

// What a disk answers to what it does not know how to do.
bool IsUnknown(int error) {
    return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM;
}

// Moves a file to a name that must be free, in one step where the disk knows how: either it renames
// so, or it gives the file a second name.
bool MoveToFreeName(const std::string& from, const std::string& to) {
    const int renamed = ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
    if (renamed == 0) return true;
    if (errno == EEXIST) return false;
    if (!IsUnknown(errno)) Fail(errno);
    if (::link(from.c_str(), to.c_str()) == 0) {
        ::unlink(from.c_str());
        return true;
    }
    if (errno == EEXIST) return false;
    if (!IsUnknown(errno)) Fail(errno);
    if (HasEntry(to)) return false;
    Check(::rename(from.c_str(), to.c_str()));
    return true;
}

// A new file beside another, removed unless it takes its place. Its name is one that nothing bears
// yet, so what an earlier run or somebody else has put there is not in the way.
class UnfinishedFile {
  public:
    explicit UnfinishedFile(const std::string& target, mode_t permissions = 0666) {
        const std::string start =
            FolderOf(target) + unfinishedPrefix + std::to_string(::getpid()) + '-';
        for (int number = 0; !file_.IsOpen(); ++number) {
            path_ = start + std::to_string(number) + unfinishedSuffix;
            file_.Open(path_, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, permissions);
            if (!file_.IsOpen() && errno != EEXIST) Fail(errno);
        }
        // Held while the file is written, so that no other run of the program clears it away.
        ::flock(file_.Number(), LOCK_EX | LOCK_NB);
    }
    ~UnfinishedFile() {
        if (!finished_) ::unlink(path_.c_str());
    }
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    int Number() const { return file_.Number(); }

    void TakePlaceOf(const std::string& target) {
        Complete();
        Check(::rename(path_.c_str(), target.c_str()));
        finished_ = true;
    }

    // Whether nothing was there of that name.
    bool TakeFreePlace(const std::string& target) {
        Complete();
        return finished_ = MoveToFreeName(path_, target);
    }

  private:
    void Complete() {
        Check(::fsync(file_.Number()));
        file_.Close();
    }

    std::string path_;
    Descriptor file_;
    bool finished_ = false;
};

}  // namespace

Entry EntryAt(const std::string& path) {
    const std::optional<mode_t> mode = ModeAt(path, ::stat);
    if (!mode) return Entry::None;
    if (S_ISDIR(*mode)) return Entry::Folder;
    return S_ISREG(*mode) ? Entry::File : Entry::Other;
}

bool HasEntry(const std::string& path) { return ModeAt(path, ::lstat).has_value(); }

std::string ReadWholeFile(const std::string& path) {
    const Descriptor file(path, O_RDONLY | O_NONBLOCK);
    if (!file.IsOpen()) Fail(errno);
    const struct stat status = file.Status();
    if (S_ISDIR(status.st_mode)) Fail(EISDIR);
    if (!S_ISREG(status.st_mode)) throw FileError{"Not a regular file"};
    if (status.st_size > largestFile) throw FileError{"Larger than 64 MiB"};
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count = ::read(file.Number(), bytes.data() + filled, bytes.size() - filled);
        if (count == -1 && errno == EINTR) continue;
        if (count == -1) Fail(errno);
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
    return bytes;
}

void WriteFileSafely(const std::string& path, std::string_view bytes,
                     std::optional<timespec> modified) {
    const std::string target = LinkTarget(path);
    const std::optional<mode_t> permissions = PermissionsToKeep(target);
    const Folder folder(target);
    UnfinishedFile file(target, permissions.value_or(0666));
    WriteAll(file.Number(), bytes);
    if (permissions) Check(::fchmod(file.Number(), *permissions));
    if (modified) {
        const std::array<timespec, 2> times = {*modified, *modified};
        Check(::futimens(file.Number(), times.data()));
    }
    file.TakePlaceOf(target);
    Flush(folder);
}

bool CreateFileSafely(const std::string& path, std::string_view bytes, mode_t permissions) {
    const std::string target = LinkTarget(path);
    const Folder folder(target);
    UnfinishedFile file(target, permissions);
    WriteAll(file.Number(), bytes);
    if (!file.TakeFreePlace(target)) {
        if (EntryAt(target) == Entry::Folder) Fail(EISDIR);
        return false;
    }
    Flush(folder);
    return true;
}

std::vector<std::string> NamesIn(const std::string& folder) {
    const auto close = [](DIR* opened) { ::closedir(opened); };
    const std::unique_ptr<DIR, decltype(close)> directory(::opendir(folder.c_str()), close);
    if (!directory) Fail(errno);
    std::vector<std::string> names;
    for (;;) {
        errno = 0;  // the end and an error both give nothing
        const dirent* const entry = ::readdir(directory.get());
        if (entry == nullptr && errno != 0) Fail(errno);
        if (entry == nullptr) return names;
        names.emplace_back(static_cast<const char*>(entry->d_name));
    }
}

timespec ModifiedTime(const std::string& path) {
    struct stat status {};
    Check(::stat(path.c_str(), &status));
    return status.st_mtim;
}

void DeleteFile(const std::string& path) {
    const Folder folder(path);
    Check(::unlink(path.c_str()));
    Flush(folder);
}

void MakeDirectory(const std::string& path) {
    const Folder folder(path);
    Check(::mkdir(path.c_str(), 0777));
    Flush(folder);
}

bool IsUnfinishedFile(std::string_view fileName) {
    return fileName.starts_with(unfinishedPrefix) && fileName.ends_with(unfinishedSuffix);
}

void RemoveUnfinishedFile(const std::string& path) {
    const Descriptor file(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    const bool beingWritten = file.IsOpen() && ::flock(file.Number(), LOCK_EX | LOCK_NB) == -1;
    if (beingWritten && errno == EWOULDBLOCK) return;
    if (::unlink(path.c_str()) == -1 && errno == EISDIR) ::rmdir(path.c_str());
}

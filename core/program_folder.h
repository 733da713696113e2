// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

#include "core/date.h"
#include "core/failure.h"

/// A moment on the disk's clock.
using FileTime = std::chrono::sys_time<std::chrono::nanoseconds>;

/// The program's folder: the only way to files.
///
/// Files are named bare, or with folders in front ("Backup/quillon.ini"). Names match without
/// regard to case. Contents are bytes. A write either leaves the whole new file on disk or the old
/// one untouched. What cannot be done throws a `Failure` that names the file and the reason.
///
/// Before something of the user's in a file is lost, call `KeepOld` (`core/old_files.h`), or write
/// and delete by the functions beside it.
class ProgramFolder {
  public:
    virtual ~ProgramFolder() = default;

    /// Whether there is a file of that name; a folder is none. Fails where that cannot be told, as
    /// what is taken for absent gets written anew.
    virtual bool Exists(std::string_view name) const = 0;

    /// The whole file. Fails where there is none, or where the name is no regular file of at most
    /// 64 MiB.
    virtual std::string Read(std::string_view name) const = 0;

    /// Makes a new file. Where there is a file of that name already it stays as it is, whoever has
    /// made it and when, and the answer is no.
    [[nodiscard]] virtual bool Create(std::string_view name, std::string_view bytes) = 0;

    /// Replaces or creates the file. What could not be written is rescued.
    virtual void Write(std::string_view name, std::string_view bytes) = 0;

    /// The same for a file that counts as last written at that moment.
    virtual void Write(std::string_view name, std::string_view bytes, FileTime written) = 0;

    /// Adds whole records to the end of the file, or creates it. Where the file does not end with a
    /// line end, one is put before the records, so that they start on a line of their own. What
    /// could not be written is rescued.
    virtual void Append(std::string_view name, std::string_view records) = 0;

    /// Names of the files that match the pattern of "*" and "?", in the order of their lower-cased
    /// characters. A pattern with a folder in front ("Backup/*.txt") gives names with that folder
    /// in front.
    virtual std::vector<std::string> Find(std::string_view pattern) const = 0;

    /// Copies a file over another or to a new one; the copy keeps the file's date. Where both are
    /// the same file, nothing changes.
    virtual void Copy(std::string_view from, std::string_view to) = 0;

    virtual void Delete(std::string_view name) = 0;

    /// The day on which the file was last written.
    virtual Date FileDate(std::string_view name) const = 0;

    /// The moment at which it was, as exact as the disk tells it.
    virtual FileTime LastWritten(std::string_view name) const = 0;

    virtual bool FolderExists(std::string_view name) const = 0;

    virtual void MakeFolder(std::string_view name) = 0;

    /// Puts what could not be written to a file into a new one outside the folder, and gives its
    /// path; an empty one where no other place took it either. Never fails.
    virtual std::string Rescue(std::string_view name, std::string_view bytes) = 0;

    /// What the clock shows, for the names of copies.
    virtual Moment Now() const = 0;
};

/// Whether the name matches the pattern of "*" and "?", without regard to case.
bool NameMatches(std::string_view name, std::string_view pattern);

/// The same failure, telling too where the bytes that were to go into the file have been rescued.
Failure AfterRescue(ProgramFolder& folder, std::string_view name, std::string_view bytes,
                    const Failure& failure);

/// What an append writes: the old bytes, a line end where they lack one, the new records.
std::string Appended(std::string_view oldBytes, std::string_view records);

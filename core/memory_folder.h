// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "core/program_folder.h"

/// A program folder in memory, which can be told to fail.
class MemoryFolder final : public ProgramFolder {
  public:
    bool Exists(std::string_view name) const override;
    std::string Read(std::string_view name) const override;
    bool Create(std::string_view name, std::string_view bytes) override;
    void Write(std::string_view name, std::string_view bytes) override;
    void Write(std::string_view name, std::string_view bytes, FileTime written) override;
    void Append(std::string_view name, std::string_view records) override;
    std::vector<std::string> Find(std::string_view pattern) const override;
    void Copy(std::string_view from, std::string_view to) override;
    void Delete(std::string_view name) override;
    Date FileDate(std::string_view name) const override;
    FileTime LastWritten(std::string_view name) const override;
    bool FolderExists(std::string_view name) const override;
    void MakeFolder(std::string_view name) override;
    std::string Rescue(std::string_view name, std::string_view bytes) override;
    Moment Now() const override { return now_; }

    /// Writing fails once this many more bytes have been written; nothing: it never fails. An
    /// append writes the old bytes too.
    void FailAfterBytes(std::optional<std::size_t> bytes) { bytesLeft_ = bytes; }

    /// The operation number `count` from now on, counting from 0, fails whatever it is. The
    /// questions `Exists` and `FolderExists` do not count, as they cannot fail.
    void FailAtOperation(std::optional<std::size_t> count) { operationsLeft_ = count; }

    /// The file stays listed but can no longer be read or written.
    void Lock(std::string_view name);

    /// Files that nobody dated are of 1 January 2000.
    void SetFileDate(std::string_view name, Date date);

    /// What the clock shows; midnight before 1 January 2000 where nobody sets it.
    void SetNow(Moment now) { now_ = now; }

    /// From now on what could not be written is rescued, to "elsewhere/" and its name.
    void OfferRescue() { rescueOffered_ = true; }

    /// What has been rescued, by the name of its file.
    const std::map<std::string, std::string>& Rescued() const { return rescued_; }

    /// Every file with its bytes, by name, as a picture to compare with a later one; without the
    /// copies of old files.
    std::map<std::string, std::string> Snapshot() const;

    /// The copies of old files, the oldest first.
    std::map<std::string, std::string> OldFiles() const;

  private:
    struct File {
        std::string name;
        std::string bytes;
        Date date;
        bool locked = false;
    };

    void Count(std::string_view name) const;
    const File& Stored(std::string_view name) const;
    void Store(std::string_view name, std::string bytes);

    std::map<std::string, File> files_;  // by lower-cased name
    std::set<std::string> folders_;      // lower-cased
    std::map<std::string, std::string> rescued_;
    bool rescueOffered_ = false;
    Moment now_ = std::chrono::local_days(std::chrono::January / 1 / 2000);
    std::optional<std::size_t> bytesLeft_;
    mutable std::optional<std::size_t> operationsLeft_;
};

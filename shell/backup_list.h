// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/program_folder.h"

/// The folder of the backups, in the program's folder.
inline constexpr std::string_view backupFolder = "Backup";

/// How a file is listed: its name in 27 characters, filled with blanks or cut, and its date in the
/// form "dd-mm-yy".
std::string BackupEntry(std::string_view name, Date date);

/// The name of the file behind an entry: all up to the third character behind its first dot. An
/// entry without a dot tells no name and is a `Failure`.
std::string NameInEntry(std::string_view entry);

/// The data files of a folder as the user sees them listed.
class BackupList {
  public:
    /// `folder` is empty for the program's own folder, or the name of one in it.
    explicit BackupList(std::string_view folder);

    /// Lists the data files anew.
    void Read(const ProgramFolder& folder);

    /// What became of the list: the entry at `row` is new, or has changed.
    struct Change {
        std::size_t row;
        bool added;
    };

    /// Takes note of a file that was just copied to this folder or from it, so that the list is as
    /// it would be read anew. Nothing where files of that name are not listed.
    std::optional<Change> Renew(const ProgramFolder& folder, std::string_view name);

    std::size_t Count() const { return files_.size(); }
    std::string Entry(std::size_t row) const;

    /// The name as the program's folder takes it, with the list's folder in front.
    std::string PathOf(std::string_view name) const { return prefix_ + std::string(name); }

  private:
    struct File {
        std::string name;
        Date date;
        std::size_t group;  // the pattern that it matches, by its place
    };
    static bool Before(const File& one, const File& other);
    std::vector<File>::iterator Known(std::string_view name);

    std::string prefix_;
    std::vector<File> files_;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "core/program_folder.h"

/// The program's folder on disk.
///
/// A file is written beside the old one, flushed to the disk, and renamed over it; then the folder
/// is flushed, so a crash or a full disk leaves the old file or the new one. Left-over temporary
/// files are cleared when the folder is opened. Where several files differ in case only, a name
/// means the one that is spelled so. Files whose names Windows-1252 cannot tell are passed over.
class DiskFolder final : public ProgramFolder {
  public:
    /// `path` is the absolute path of an existing folder.
    explicit DiskFolder(const QString& path);

    const QString& Path() const { return path_; }

    bool Exists(std::string_view name) const override;
    std::string Read(std::string_view name) const override;
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

  private:
    /// Where the file is, or would be made.
    std::string PathOf(std::string_view name) const;

    QString path_;
};

/// The program's folder: the one that holds the executable, or, where the program is installed for
/// all users (`../share/quillon` stands beside the executable's folder), the user's own data
/// folder, which is made and filled with what it lacks of `share/quillon`.
QString ProgramFolderPath(const QString& executableFolder, const QString& userDataFolder);

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "core/program_folder.h"
#include "platform/system/Clock.h"

/// The program's folder on disk.
///
/// A file is written beside the old one, flushed to the disk, and renamed over it; then the folder
/// is flushed, so a crash or a full disk leaves the old file or the new one. Left-over temporary
/// files are cleared when the folder is opened, also in `Backup` and `Backup/Undo`. Where several
/// files differ in case only, a name means the one that is spelled so. Files whose names
/// Windows-1252 cannot tell are passed over.
class DiskFolder final : public ProgramFolder {
  public:
    /// What there is besides the folder.
    struct Surroundings {
        /// The clock on the wall.
        std::function<Moment()> now = LocalNow;
        /// How the paths of what is rescued start ("/home/ann/Rescued/", "/tmp/rescued "), the best
        /// place first. None: nothing is rescued.
        std::vector<QString> rescuePlaces = {};
        /// Is told the path of each file that is rescued.
        std::function<void(const QString& path)> rescued = [](const QString&) {};
    };

    /// `path` is the absolute path of an existing folder.
    explicit DiskFolder(const QString& path) : DiskFolder(path, Surroundings()) {}
    DiskFolder(const QString& path, Surroundings surroundings);

    const QString& Path() const { return path_; }

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
    Moment Now() const override { return surroundings_.now(); }

  private:
    /// Where the file is, or would be made.
    std::string PathOf(std::string_view name) const;

    /// Fails where the program's folder itself is gone: then nothing is absent, all is unknown.
    void RequireFolder() const;

    QString path_;
    Surroundings surroundings_;
};

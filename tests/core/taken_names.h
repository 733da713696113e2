// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>
#include <string>
#include <utility>

#include "core/memory_folder.h"

/// What the files hold that somebody else makes.
inline const std::string theirs = "theirs";

/// A folder in which somebody else makes certain files just before the program does, behind its
/// look whether there are any.
class TakenNames final : public ProgramFolder {
  public:
    TakenNames(MemoryFolder& folder, std::set<std::string> names)
        : folder_(folder), names_(std::move(names)) {}

    bool Exists(std::string_view name) const override { return folder_.Exists(name); }
    std::string Read(std::string_view name) const override { return folder_.Read(name); }
    bool Create(std::string_view name, std::string_view bytes) override {
        MakeTheirs(name);
        return folder_.Create(name, bytes);
    }
    void Write(std::string_view name, std::string_view bytes) override {
        MakeTheirs(name);
        folder_.Write(name, bytes);
    }
    void Write(std::string_view name, std::string_view bytes, FileTime written) override {
        folder_.Write(name, bytes, written);
    }
    void Append(std::string_view name, std::string_view records) override {
        folder_.Append(name, records);
    }
    std::vector<std::string> Find(std::string_view pattern) const override {
        return folder_.Find(pattern);
    }
    void Copy(std::string_view from, std::string_view to) override { folder_.Copy(from, to); }
    void Delete(std::string_view name) override { folder_.Delete(name); }
    Date FileDate(std::string_view name) const override { return folder_.FileDate(name); }
    FileTime LastWritten(std::string_view name) const override { return folder_.LastWritten(name); }
    bool FolderExists(std::string_view name) const override { return folder_.FolderExists(name); }
    void MakeFolder(std::string_view name) override { folder_.MakeFolder(name); }
    std::string Rescue(std::string_view name, std::string_view bytes) override {
        return folder_.Rescue(name, bytes);
    }
    Moment Now() const override { return folder_.Now(); }

  private:
    void MakeTheirs(std::string_view name) {
        if (names_.erase(std::string(name)) > 0) folder_.Write(name, theirs);
    }

    MemoryFolder& folder_;
    std::set<std::string> names_;
};

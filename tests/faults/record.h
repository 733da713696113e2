// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// Every file below a folder with its bytes, by its path from there, and every folder, whose name
/// ends with "/".
using Files = std::map<std::string, std::string>;

Files FilesIn(const std::string& folder);

/// Where a session in that folder rescues what it cannot write.
std::string RescueFolderOf(const std::string& folder);

/// Another folder for a session to read from or write to.
std::string OtherFolderOf(const std::string& folder);

/// The files of both that folder and the other one, whose names begin with `otherMark`.
inline constexpr std::string_view otherMark = "(other)/";
Files TouchedFilesIn(const std::string& folder);

/// The name of a file in the folder or the other one, from its path.
std::string TouchedName(const std::string& folder, const std::string& path);

/// Makes the folder and the other one hold these files and folders and nothing else, and the rescue
/// folder nothing.
void PutFiles(const std::string& folder, const Files& files);

/// The files of both but for unfinished ones. Copies to go back to stand in the order of
/// their contents, those among them that had to be put into the rescue folder.
Files ComparableFilesIn(const std::string& folder);

/// The same in one text.
std::string StateOf(const std::string& folder);

/// What a run of the program tells about itself, in memory that outlives the process.
///
/// The run is a forked child, which may end at any moment; the parent reads what it has written.
class Record {
  public:
    enum class Kind : char {
        Call = 'c',     ///< A call to the system, with the file.
        Said = 's',     ///< A message or a line that the user sees, with the state of the files.
        Step = 'u',     ///< Something that the user does, with the state of the files before it.
        Report = 'r',   ///< The report that ended the run.
        Content = 'f',  ///< What a file holds after something was renamed or removed.
        Names = 'n',    ///< All files at that moment, each name between line ends.
        Problem = 'p'   ///< What only a broken test can do.
    };

    struct Entry {
        Kind kind;
        std::string name;
        std::string text;
        bool operator==(const Entry&) const = default;
    };

    Record();
    ~Record();
    Record(const Record&) = delete;
    Record& operator=(const Record&) = delete;

    void Clear();
    void Add(Kind kind, std::string_view name, std::string_view text = {});

    std::vector<Entry> Entries(Kind kind) const;

    /// All of them in their order.
    std::vector<Entry> Entries() const;

  private:
    struct Memory;
    Memory* memory_;
};

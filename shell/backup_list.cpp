// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/backup_list.h"

#include <algorithm>
#include <tuple>

#include "core/failure.h"
#include "core/text.h"
#include "shell/data_files.h"

namespace {

constexpr std::size_t nameWidth = 27;
constexpr std::size_t extension = 3;

std::string TwoDigits(unsigned value) {
    const std::string digits = PlainDigits(value);
    return digits.size() < 2 ? "0" + digits : digits;
}

/// The place of the first pattern that the name matches; nothing where it is no data file.
std::optional<std::size_t> GroupOf(std::string_view name) {
    for (std::size_t group = 0; group < backupPatterns.size(); ++group) {
        if (NameMatches(name, backupPatterns.at(group))) return group;
    }
    return std::nullopt;
}

}  // namespace

std::string BackupEntry(std::string_view name, Date date) {
    std::string entry(name.substr(0, nameWidth));
    entry.resize(nameWidth, ' ');
    const auto year = static_cast<unsigned>(static_cast<int>(date.year()) % 100);
    return entry + TwoDigits(static_cast<unsigned>(date.day())) + '-' +
           TwoDigits(static_cast<unsigned>(date.month())) + '-' + TwoDigits(year);
}

std::string NameInEntry(std::string_view entry) {
    const std::size_t dot = entry.find('.');
    if (dot == std::string_view::npos) {
        throw Failure("The name of the file listed as " + Quoted(entry) +
                      " is too long to be copied: expected a dot in its first 27 characters.");
    }
    // Kept on purpose: of a name with another dot before its extension the rest is lost.
    return std::string(entry.substr(0, dot + 1 + extension));
}

BackupList::BackupList(std::string_view folder)
    : prefix_(folder.empty() ? std::string() : std::string(folder) + '/') {}

void BackupList::Read(const ProgramFolder& folder) {
    files_.clear();
    for (std::size_t group = 0; group < backupPatterns.size(); ++group) {
        for (const std::string& path : folder.Find(PathOf(backupPatterns.at(group)))) {
            files_.push_back({path.substr(prefix_.size()), folder.FileDate(path), group});
        }
    }
}

std::optional<BackupList::Change> BackupList::Renew(const ProgramFolder& folder,
                                                    std::string_view name) {
    const std::optional<std::size_t> group = GroupOf(name);
    if (!group) return std::nullopt;
    const Date date = folder.FileDate(PathOf(name));
    auto file = Known(name);
    const bool added = file == files_.end();
    if (added) {
        const File listed = {std::string(name), date, *group};
        file = files_.insert(std::ranges::upper_bound(files_, listed, Before), listed);
    }
    file->date = date;
    return Change{static_cast<std::size_t>(file - files_.begin()), added};
}

std::string BackupList::Entry(std::size_t row) const {
    return BackupEntry(files_.at(row).name, files_.at(row).date);
}

/// The order of `Read`; names that differ in case only stand in the order of their characters.
bool BackupList::Before(const File& one, const File& other) {
    return std::make_tuple(one.group, LowerCase(one.name), one.name) <
           std::make_tuple(other.group, LowerCase(other.name), other.name);
}

/// The file that the name means: the one that is spelled so, or one that differs in case.
std::vector<BackupList::File>::iterator BackupList::Known(std::string_view name) {
    const auto spelled = std::ranges::find(files_, name, &File::name);
    if (spelled != files_.end()) return spelled;
    return std::ranges::find(files_, LowerCase(name),
                             [](const File& file) { return LowerCase(file.name); });
}

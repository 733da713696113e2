// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/old_files.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <tuple>
#include <vector>

#include "core/text.h"

namespace {

constexpr std::string_view stampForm = "0000-00-00 000000";
constexpr std::string_view countForm = "-000";

// Where a name is cut, so that the copy's is not too long for any disk.
constexpr std::size_t longestName = 180;

bool HasForm(std::string_view text, std::string_view form) {
    return std::ranges::equal(text, form, [](char character, char formed) {
        return formed == '0' ? character >= '0' && character <= '9' : character == formed;
    });
}

std::string_view WithoutFolders(std::string_view name) { return name.substr(name.rfind('/') + 1); }

struct UndoCopy {
    std::string path;
    std::string stamp;
    int count = 1;
    std::string original;
};

// Files that somebody else has put there are none.
std::optional<UndoCopy> CopyOf(const std::string& path) {
    std::string_view name = WithoutFolders(path);
    UndoCopy copy{
        .path = path, .stamp = std::string(name.substr(0, stampForm.size())), .original = {}};
    if (!HasForm(copy.stamp, stampForm)) return std::nullopt;
    name.remove_prefix(stampForm.size());
    if (HasForm(name.substr(0, countForm.size()), countForm)) {
        copy.count = LeadingWhole(name.substr(1));
        name.remove_prefix(countForm.size());
    }
    if (!name.starts_with(' ')) return std::nullopt;
    copy.original = name.substr(1);
    return copy;
}

// The oldest first. What bears a moment to come was made while the clock was wrong; nobody knows
// how old it is, so it counts as the oldest.
std::vector<UndoCopy> CopiesIn(const ProgramFolder& folder, const std::string& stamp) {
    std::vector<UndoCopy> copies;
    for (const std::string& path : folder.Find(std::string(undoFolder) + "/*")) {
        if (auto copy = CopyOf(path)) copies.push_back(*std::move(copy));
    }
    std::ranges::sort(copies, {}, [&stamp](const UndoCopy& copy) {
        return std::tuple(copy.stamp <= stamp, std::string_view(copy.stamp), copy.count);
    });
    return copies;
}

std::string Padded(long number, std::size_t digits) {
    std::string text = std::to_string(number);
    if (text.size() < digits) text.insert(0, digits - text.size(), '0');
    return text;
}

std::string Stamp(Moment moment) {
    const auto day = std::chrono::floor<std::chrono::days>(moment);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss time(moment - day);
    return Padded(static_cast<int>(date.year()), 4) + '-' +
           Padded(static_cast<unsigned>(date.month()), 2) + '-' +
           Padded(static_cast<unsigned>(date.day()), 2) + ' ' + Padded(time.hours().count(), 2) +
           Padded(time.minutes().count(), 2) + Padded(time.seconds().count(), 2);
}

// Removes what the new copy makes needless: the last copy of the same file where it holds the same,
// and the oldest of all. `copies` are those that were there before.
void Tidy(ProgramFolder& folder, std::vector<UndoCopy> copies, std::string_view name,
          std::string_view bytes) {
    const std::string original = LowerCase(name.substr(0, longestName));
    const auto last = std::find_if(copies.rbegin(), copies.rend(), [&](const UndoCopy& copy) {
        return LowerCase(copy.original) == original;
    });
    if (last != copies.rend() && folder.Read(last->path) == bytes) {
        folder.Delete(last->path);
        copies.erase(std::next(last).base());
    }
    for (std::size_t i = 0; copies.size() - i >= undoCopies; ++i) folder.Delete(copies[i].path);
}

void PutCopy(ProgramFolder& folder, std::string_view name, std::string_view bytes) {
    for (const char* needed : {"Backup", undoFolder}) {
        if (!folder.FolderExists(needed)) folder.MakeFolder(needed);
    }
    const Moment now = folder.Now();
    const std::string stamp = Stamp(now);
    std::vector<UndoCopy> copies = CopiesIn(folder, stamp);
    const bool sameSecond = !copies.empty() && copies.back().stamp == stamp;
    int count = sameSecond ? copies.back().count + 1 : 1;
    const std::string start = std::string(undoFolder) + '/';
    while (!folder.Create(start + StampedName(now, count, name), bytes)) ++count;
    try {
        Tidy(folder, std::move(copies), name, bytes);
    } catch (const Failure&) {
        // The copy is there; one too many is no reason to give up what is to be done.
    }
}

void Keep(ProgramFolder& folder, std::string_view name, std::string_view bytes) {
    const std::string_view bare = WithoutFolders(name);
    try {
        PutCopy(folder, bare, bytes);
    } catch (const Failure& failure) {
        if (!folder.Rescue(bare, bytes).empty()) return;
        throw Failure(std::string(name) +
                      " is left as it is, as no copy of it can be kept: " + failure.what());
    }
}

// The lines that say something, in order of their characters.
std::vector<std::string_view> SortedLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
        if (line.find_first_not_of(" \t\",") != std::string_view::npos) lines.push_back(line);
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    std::ranges::sort(lines);
    return lines;
}

bool LosesLines(std::string_view oldBytes, std::string_view newBytes) {
    return !std::ranges::includes(SortedLines(newBytes), SortedLines(oldBytes));
}

}  // namespace

void KeepOld(ProgramFolder& folder, std::string_view name) {
    if (folder.Exists(name)) Keep(folder, name, folder.Read(name));
}

void DeleteKeepingOld(ProgramFolder& folder, std::string_view name) {
    KeepOld(folder, name);
    folder.Delete(name);
}

void WriteKeepingOld(ProgramFolder& folder, std::string_view name, std::string_view bytes) {
    try {
        if (folder.Exists(name)) {
            const std::string old = folder.Read(name);
            if (LosesLines(old, bytes)) Keep(folder, name, old);
        }
    } catch (const Failure& failure) {
        throw AfterRescue(folder, name, bytes, failure);
    }
    folder.Write(name, bytes);
}

void KeepUnsaved(ProgramFolder& folder, std::string_view name, std::string_view bytes) {
    Keep(folder, name, bytes);
}

bool HoldsAnother(const ProgramFolder& folder, std::string_view name, std::string_view bytes) {
    return folder.Exists(name) && folder.Read(name) != bytes;
}

std::string StampedName(Moment moment, int count, std::string_view name) {
    const std::string number = count > 1 ? '-' + Padded(count, 3) : std::string();
    return Stamp(moment) + number + ' ' + std::string(name.substr(0, longestName));
}

// SPDX-License-Identifier: GPL-3.0-or-later
// What is to be so behind each run.
#include <algorithm>
#include <array>
#include <exception>
#include <filesystem>

#include "tests/faults/fault_loop.h"

using system_calls::Fault;

namespace {

bool IsUnfinished(const std::string& name) { return name.find(".quillon-") != std::string::npos; }

std::string Shortened(const std::string& text) {
    constexpr std::size_t most = 120;
    return text.size() <= most ? text : text.substr(0, most) + "...";
}

// A text of the program's own that something could not be done, and why.
bool TellsReason(const Record::Entry& said) {
    return said.name.find(" could not be ") != std::string::npos ||
           said.name.find(" cannot be ") != std::string::npos;
}

bool SoundsSaved(const std::string& text) {
    constexpr std::array<const char*, 11> words = {"saved",   "Saved",      "created",    "updated",
                                                   "Updated", "deleted",    "stored",     "Copied",
                                                   "added",   "Taken back", "New lottery"};
    if (text.starts_with("? ") || text.find("not saved") != std::string::npos) return false;
    return std::ranges::any_of(
        words, [&text](const char* word) { return text.find(word) != std::string::npos; });
}

// One of the lines that count files while they are copied.
bool CountsFiles(const Record::Entry& entry) {
    return entry.kind == Record::Kind::Said && entry.name.starts_with("Copied\r\n");
}

// The files that a report says could not be written, each in a paragraph of its own.
std::vector<std::string> UnwrittenFiles(const std::string& report) {
    constexpr std::string_view unwritten = " could not be written";
    constexpr std::string_view paragraph = "\n\n";
    std::vector<std::string> files;
    for (std::size_t start = 0; start < report.size();) {
        const std::size_t end = std::min(report.find(paragraph, start), report.size());
        const std::string text = report.substr(start, end - start);
        if (const std::size_t at = text.find(unwritten); at != std::string::npos)
            files.push_back(text.substr(0, at));
        start = end + paragraph.size();
    }
    return files;
}

// Where a report says that something was rescued to.
std::vector<std::string> RescuePathsIn(std::string report) {
    constexpr std::string_view kept = " What was to be written is kept in ";
    std::vector<std::string> paths;
    for (std::size_t at = report.find(kept); at != std::string::npos; at = report.find(kept)) {
        report.erase(0, at + kept.size());
        const std::size_t end = std::min(report.find(kept), report.find("\n\n"));
        paths.push_back(report.substr(0, report.rfind('.', end)));
    }
    return paths;
}

}  // namespace

// When it says that something is saved nothing of that is still to be done: until it says something
// else or the user does something the files stay as they are. Of counted files each next one is.
std::string FaultLoop::WhatIsSaidTooEarly() const {
    std::vector<Record::Entry> entries = record_.Entries();
    std::erase_if(entries, [](const Record::Entry& entry) {
        return entry.kind != Record::Kind::Said && entry.kind != Record::Kind::Step;
    });
    entries.push_back({Record::Kind::Step, {}, StateOf(path_)});
    for (auto entry = entries.begin(); std::next(entry) != entries.end(); ++entry) {
        if (entry->kind != Record::Kind::Said || !SoundsSaved(entry->name)) continue;
        const bool counts = CountsFiles(*entry) && CountsFiles(*std::next(entry));
        const bool stays = entry->text == std::next(entry)->text;
        if (stays == counts) return "it said \"" + entry->name + "\" before it was so";
    }
    return {};
}

// Every file is the old one or one of those that the sound run made, whole.
std::string FaultLoop::WhatIsLost() const {
    const Files left = TouchedFilesIn(path_);
    for (const auto& [name, contents] : contents_) {
        const bool there = left.count(name) > 0;
        const bool comesAndGoes =
            removed_.count(name) > 0 || IsUnfinished(name) || name.starts_with("Backup/Undo/");
        if (!there && !comesAndGoes) return name + " is gone";
    }
    for (const auto& [name, bytes] : left) {
        if (IsUnfinished(name)) continue;
        const bool undo = name.starts_with("Backup/Undo/") && name != "Backup/Undo/";
        bool whole = false;
        for (const auto& [known, contents] : contents_) {
            if ((undo || known == name) && contents.count(bytes) > 0) whole = true;
        }
        if (!whole) return name + " holds " + Shortened(bytes);
    }
    return {};
}

// What could not be written is in the rescue folder, in whole or what was to be appended of it, or
// stands in another file, of which it was to be a copy.
std::string FaultLoop::WhatIsNotRescued() const {
    std::set<std::string> kept;
    for (const std::string& folder : {path_, RescueFolderOf(path_), OtherFolderOf(path_)}) {
        for (const auto& [name, bytes] : FilesIn(folder)) kept.insert(bytes);
    }
    for (const Record::Entry& report : record_.Entries(Record::Kind::Report)) {
        for (const std::string& path : RescuePathsIn(report.name)) {
            if (!std::filesystem::is_regular_file(path) || std::filesystem::is_empty(path))
                return "there is no " + path;
        }
        for (const std::string& file : UnwrittenFiles(report.name)) {
            if (file == "temp.txt") continue;  // the copy of a file that is still there
            if (contents_.count(file) == 0) return "it reported on " + file;
            if (!IsRescued(file, kept)) return "it did not rescue " + file + ": " + report.name;
        }
    }
    return {};
}

// Where the write was to change nothing, there is nothing to rescue.
bool FaultLoop::IsRescued(const std::string& file, const std::set<std::string>& kept) const {
    std::set<std::string> wanted = contents_.at(file);
    const auto before = before_.find(file);
    const auto after = after_.find(file);
    // What is taken back is written as it was before.
    const bool comesBack = before != before_.end() && after != after_.end() &&
                           before->second == after->second && wanted.size() > 1;
    if (before != before_.end() && !comesBack) wanted.erase(before->second);
    return wanted.empty() || std::ranges::any_of(wanted, [&kept](const std::string& content) {
               return std::ranges::any_of(kept, [&content](const std::string& bytes) {
                   return !bytes.empty() && content.ends_with(bytes);
               });
           });
}

// What the user has been told is what the sound run tells at the same state of the files.
std::string FaultLoop::WhatIsFalselySaid() const {
    std::size_t place = 0;
    for (const Record::Entry& entry : record_.Entries(Record::Kind::Said)) {
        if (place < said_.size() && said_[place] == entry) {
            ++place;
            continue;
        }
        if (TellsReason(entry)) return {};
        const bool sameWords = place < said_.size() && said_[place].name == entry.name;
        if (sameWords || SoundsSaved(entry.name)) return "it said \"" + entry.name + "\"";
        return "it said \"" + entry.name + "\" in place of the reason";
    }
    return {};
}

// A run that does not come to its end tells why; one that does has done all it was to do.
std::string FaultLoop::WhatIsUntold(RunEnd end) const {
    for (const Record::Entry& problem : record_.Entries(Record::Kind::Problem))
        return problem.name + ": " + problem.text;
    if (end == RunEnd::Died) return "it died";
    const auto reports = record_.Entries(Record::Kind::Report);
    if (end == RunEnd::Reported && reports.empty()) return "it ended without a report";
    const auto said = record_.Entries(Record::Kind::Said);
    const bool told = std::any_of(said.begin(), said.end(), TellsReason);
    if (end != RunEnd::Finished || told || scenario_.silent) return {};
    if (ComparableFilesIn(path_) != after_) return "it says nothing and has not done its work";
    if (said.size() != said_.size()) return "it said too little";
    return {};
}

// An unfinished file is removed where the run goes on or tells of a failure, if it can be.
std::string FaultLoop::WhatIsLeft(const Fault& fault) const {
    const auto removal = [](const Record::Entry& call) { return call.name == "unlink"; };
    const bool refused = fault.kind == Fault::Kind::Lasting ||
                         removal(calls_.at(static_cast<std::size_t>(fault.call)));
    if (refused) return {};
    for (const auto& [name, bytes] : TouchedFilesIn(path_)) {
        if (IsUnfinished(name)) return name + " is left";
    }
    return {};
}

// The program starts and opens the other folder, and has cleared what an unfinished write had left.
std::string FaultLoop::StartAgain() {
    const Files left = TouchedFilesIn(path_);
    if (startedFrom_.count(left) > 0) return {};
    Record record;
    try {
        Session again(QString::fromStdString(path_), record);
        again.Start();
        const std::string other = again.OtherFolder();
        if (std::filesystem::exists(other)) const DiskFolder opened(QString::fromStdString(other));
    } catch (const std::exception& failure) {
        return std::string("it does not start again: ") + failure.what();
    }
    for (const auto& [name, bytes] : TouchedFilesIn(path_)) {
        if (IsUnfinished(name)) return name + " is left";
    }
    startedFrom_.insert(left);
    return {};
}

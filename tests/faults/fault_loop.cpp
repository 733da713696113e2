// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/faults/fault_loop.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <exception>
#include <filesystem>

using system_calls::CallKind;
using system_calls::Fault;

namespace {

// What the functions that are called behind a call to the system work on.
Record* watchingRecord = nullptr;
std::string watchedPath;

void RecordCall(const char* call, const char* file) {
    watchingRecord->Add(Record::Kind::Call, call, file);
}

void RecordContents() {
    std::string names = "\n";
    for (const auto& [name, bytes] : FilesIn(watchedPath)) {
        watchingRecord->Add(Record::Kind::Content, name, bytes);
        names += name + '\n';
    }
    watchingRecord->Add(Record::Kind::Names, names);
}

bool IsUnfinished(const std::string& name) { return name.find(".quillon-") != std::string::npos; }

std::string Shortened(const std::string& text) {
    constexpr std::size_t most = 120;
    return text.size() <= most ? text : text.substr(0, most) + "...";
}

// A message of the program's own that something could not be done, and why.
bool TellsReason(const Record::Entry& said) {
    return said.name.find(" could not be ") != std::string::npos;
}

bool SoundsSaved(const std::string& text) {
    constexpr std::array<const char*, 8> words = {"saved",   "Saved",   "created", "updated",
                                                  "Updated", "deleted", "stored",  "Copied"};
    if (text.starts_with("? ") || text.find("not saved") != std::string::npos) return false;
    return std::ranges::any_of(
        words, [&text](const char* word) { return text.find(word) != std::string::npos; });
}

}  // namespace

FaultLoop::FaultLoop(const Scenario& scenario, const std::string& path)
    : scenario_(scenario), path_(path) {
    watchingRecord = &record_;
    watchedPath = path_;
}

FaultLoop::~FaultLoop() {
    std::filesystem::remove_all(RescueFolderOf(path_));
    std::filesystem::remove_all(OtherFolderOf(path_));
}

void FaultLoop::Act(const Fault& fault) {
    system_calls::Arm(path_, fault, RecordCall, RecordContents);
    if (scenario_.starts) {
        session_ = std::make_unique<Session>(QString::fromStdString(path_), record_);
        session_->Start();
    }
    scenario_.act(*session_);
}

RunEnd FaultLoop::RunWith(const Fault& fault) {
    const auto run = [&] {
        Act(fault);
        // What could not be flushed is not flushed.
        const bool flushes =
            fault.call < 0 || calls_.at(static_cast<std::size_t>(fault.call)).name != "fsync";
        if (flushes && system_calls::LeavesUnflushed())
            record_.Add(Record::Kind::Problem, "a power cut could lose it", "not flushed");
    };
    return RunForked(record_, run).end;
}

std::string FaultLoop::RunSound() {
    if (!scenario_.starts) {
        session_ = std::make_unique<Session>(QString::fromStdString(path_), record_);
        if (scenario_.prepare != nullptr) scenario_.prepare(*session_);
        session_->Start();
    } else if (scenario_.prepare != nullptr) {
        Session preparing(QString::fromStdString(path_), record_);
        scenario_.prepare(preparing);
    }
    before_ = FilesIn(path_);
    const RunEnd end = RunWith({});
    after_ = ComparableFilesIn(path_);
    calls_ = record_.Entries(Record::Kind::Call);
    said_ = record_.Entries(Record::Kind::Said);
    for (const auto& [name, bytes] : before_) contents_[name].insert(bytes);
    for (const Record::Entry& entry : record_.Entries(Record::Kind::Content)) {
        contents_[entry.name].insert(entry.text);
    }
    std::vector<Record::Entry> moments = record_.Entries(Record::Kind::Names);
    for (const auto& [name, bytes] : contents_) {
        const bool throughout =
            before_.count(name) > 0 && std::ranges::all_of(moments, [&](const auto& moment) {
                return moment.name.find('\n' + name + '\n') != std::string::npos;
            });
        if (!throughout) removed_.insert(name);
    }
    for (const Record::Entry& problem : record_.Entries(Record::Kind::Problem))
        return problem.name + ": " + problem.text;
    for (const Record::Entry& report : record_.Entries(Record::Kind::Report)) return report.name;
    if (end != RunEnd::Finished) return "it does not come to its end";
    for (const Record::Entry& said : said_) {
        if (SoundsSaved(said.name) && said.text != StateOf(path_))
            return "it said \"" + said.name + "\" before it was so";
    }
    return StartAgain();
}

std::vector<Fault> FaultLoop::Faults() const {
    std::vector<Fault> faults;
    for (std::size_t i = 0; i < calls_.size(); ++i) {
        const auto call = static_cast<long long>(i);
        for (const int error : {EIO, ENOSPC, EACCES, ESTALE, EINTR}) {
            faults.push_back({Fault::Kind::Error, call, error});
        }
        faults.push_back({Fault::Kind::Lasting, call, EIO});
        faults.push_back({Fault::Kind::Kill, call, 0});
        const CallKind kind = system_calls::KindOf(calls_[i].name);
        if (kind != CallKind::Other) faults.push_back({Fault::Kind::Short, call, 0});
        if (kind == CallKind::Write) faults.push_back({Fault::Kind::KillWithin, call, 0});
    }
    return faults;
}

std::string FaultLoop::Run(const Fault& fault, Tally& tally) {
    PutFiles(path_, before_);
    const RunEnd end = RunWith(fault);
    ++tally.faults;
    tally.kills += end == RunEnd::Killed ? 1 : 0;
    tally.reported += end == RunEnd::Reported ? 1 : 0;
    tally.tolerated += end == RunEnd::Finished ? 1 : 0;
    if (end == RunEnd::Hung) {
        ++tally.hangs;
        return "it hangs";
    }
    for (const std::string& lost : {WhatIsLost(), WhatIsNotRescued()}) {
        if (lost.empty()) continue;
        ++tally.lost;
        return lost;
    }
    if (const std::string said = WhatIsFalselySaid(); !said.empty()) {
        ++tally.falselySaid;
        return said;
    }
    std::string wrong = WhatIsUntold(end);
    if (wrong.empty() && end != RunEnd::Killed) wrong = WhatIsLeft(fault);
    if (wrong.empty()) wrong = StartAgain();
    tally.other += wrong.empty() ? 0 : 1;
    return wrong;
}

// Every file is the old one or one of those that the sound run made, whole.
std::string FaultLoop::WhatIsLost() const {
    const Files left = FilesIn(path_);
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
    constexpr std::string_view unwritten = " could not be written";
    std::vector<std::string> kept;
    for (const std::string& folder : {path_, RescueFolderOf(path_), OtherFolderOf(path_)}) {
        for (const auto& [name, bytes] : FilesIn(folder)) kept.push_back(bytes);
    }
    for (const Record::Entry& report : record_.Entries(Record::Kind::Report)) {
        const std::size_t end = report.name.find(unwritten);
        if (end == std::string::npos) continue;
        const std::string file = report.name.substr(0, end);
        if (file == "temp.txt") continue;  // the copy of a file that is still there
        if (contents_.count(file) == 0) return "it reported on " + file;
        std::set<std::string> wanted = contents_.at(file);
        if (const auto before = before_.find(file); before != before_.end()) {
            wanted.erase(before->second);
        }
        // Where the write was to change nothing, there is nothing to rescue.
        const bool rescued =
            wanted.empty() || std::ranges::any_of(wanted, [&kept](const std::string& content) {
                return std::ranges::any_of(kept, [&content](const std::string& bytes) {
                    return !bytes.empty() && content.ends_with(bytes);
                });
            });
        if (!rescued) return "it did not rescue " + file + ": " + report.name;
    }
    return {};
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
    for (const auto& [name, bytes] : FilesIn(path_)) {
        if (IsUnfinished(name)) return name + " is left";
    }
    return {};
}

// The program starts, and has cleared what an unfinished write had left.
std::string FaultLoop::StartAgain() {
    const Files left = FilesIn(path_);
    if (startedFrom_.count(left) > 0) return {};
    Record record;
    try {
        Session again(QString::fromStdString(path_), record);
        again.Start();
    } catch (const std::exception& failure) {
        return std::string("it does not start again: ") + failure.what();
    }
    for (const auto& [name, bytes] : FilesIn(path_)) {
        if (IsUnfinished(name)) return name + " is left";
    }
    startedFrom_.insert(left);
    return {};
}

std::string FaultLoop::InWords(const Fault& fault) const {
    std::string words;
    switch (fault.kind) {
        case Fault::Kind::None:
            return "no fault";
        case Fault::Kind::Error:
            words = ::strerrorname_np(fault.error);
            break;
        case Fault::Kind::Lasting:
            words = std::string(::strerrorname_np(fault.error)) + " from then on";
            break;
        case Fault::Kind::Short:
            words = "half done";
            break;
        case Fault::Kind::Kill:
            words = "killed";
            break;
        case Fault::Kind::KillWithin:
            words = "killed within";
            break;
    }
    const Record::Entry& call = calls_.at(static_cast<std::size_t>(fault.call));
    return words + " at call " + std::to_string(fault.call) + ", " + call.name + ' ' + call.text;
}

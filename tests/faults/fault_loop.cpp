// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/faults/fault_loop.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>

#include "tests/faults/kept_files.h"

using system_calls::CallKind;
using system_calls::Fault;

namespace {

// What the functions that are called behind a call to the system work on.
struct Watch {
    Record* record = nullptr;
    std::string path;
    std::string keeps;
    Files last;
} watch;

void RecordCall(const char* call, const char* path) {
    const int error = errno;
    Session::Hear();
    errno = error;
    watch.record->Add(Record::Kind::Call, call, TouchedName(watch.path, path));
}

void RecordContents() {
    std::string names = "\n";
    const Files files = TouchedFilesIn(watch.path);
    for (const auto& [name, bytes] : files) {
        watch.record->Add(Record::Kind::Content, name, bytes);
        names += name + '\n';
    }
    watch.record->Add(Record::Kind::Names, names);
    const Files rescued = FilesIn(RescueFolderOf(watch.path));
    const std::string lost = NotKept(watch.last, files, rescued, watch.keeps);
    if (!lost.empty()) watch.record->Add(Record::Kind::Problem, "no copy of what it was", lost);
    watch.last = files;
}

}  // namespace

FaultLoop::FaultLoop(const Scenario& scenario, const std::string& path)
    : scenario_(scenario), path_(path) {
    watch = {.record = &record_, .path = path_, .keeps = scenario_.keeps, .last = {}};
}

FaultLoop::~FaultLoop() {
    std::filesystem::remove_all(RescueFolderOf(path_));
    std::filesystem::remove_all(OtherFolderOf(path_));
}

void FaultLoop::Act(const Fault& fault) {
    watch.last = before_;
    system_calls::Arm({path_, OtherFolderOf(path_)}, fault, RecordCall, RecordContents);
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
    before_ = TouchedFilesIn(path_);
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
    const std::string early = WhatIsSaidTooEarly();
    return early.empty() ? StartAgain() : early;
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

std::string FaultLoop::CallOf(const Fault& fault) const {
    return calls_.at(static_cast<std::size_t>(fault.call)).name;
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

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "tests/faults/forked_run.h"
#include "tests/faults/session.h"
#include "tests/faults/system_calls.h"

/// Something that a user does that writes to the disk.
struct Scenario {
    const char* name;
    /// What the folder holds before, beside what the start of the program makes.
    void (*prepare)(Session&) = nullptr;
    /// What the user does; the main window is open, but where `starts` says that this opens it.
    void (*act)(Session&);
    bool starts = false;
    bool silent = false;  ///< Whether a failure ends it without a word, as it is told to.
    /// A file of which a copy is to be kept whenever it changes, beside those that lose a line.
    const char* keeps = "";
};

/// What came of all faults of some scenarios.
struct Tally {
    long long faults = 0;
    long long kills = 0;
    long long reported = 0;   ///< Runs that ended with the report.
    long long tolerated = 0;  ///< Runs that did what they were to do all the same.
    long long lost = 0;       ///< A file is neither the old one nor the new one, whole.
    long long falselySaid = 0;
    long long hangs = 0;
    long long other = 0;  ///< Signals, silent losses, starts that fail.

    long long Wrong() const { return lost + falselySaid + hangs + other; }
};

/// Runs one scenario again and again, each time with another fault, and looks at what it leaves.
class FaultLoop {
  public:
    /// `path` is an empty folder for the program.
    FaultLoop(const Scenario& scenario, const std::string& path);
    ~FaultLoop();
    FaultLoop(const FaultLoop&) = delete;
    FaultLoop& operator=(const FaultLoop&) = delete;

    /// The run without a fault. Returns what is wrong with it, nothing where it is sound.
    std::string RunSound();

    /// How many calls it makes.
    std::size_t CallCount() const { return calls_.size(); }

    /// Every fault of every call.
    std::vector<system_calls::Fault> Faults() const;

    /// The name of the call at which it happens, such as "write".
    std::string CallOf(const system_calls::Fault& fault) const;

    /// Runs with that fault, counts what came of it, and returns what is wrong; nothing where all
    /// is as it is to be.
    std::string Run(const system_calls::Fault& fault, Tally& tally);

    /// The fault in words: "EIO at call 12, rename MyLottery.txt". Files that are not in the
    /// program's folder have "(other)/" before their names.
    std::string InWords(const system_calls::Fault& fault) const;

  private:
    RunEnd RunWith(const system_calls::Fault& fault);
    void Act(const system_calls::Fault& fault);
    std::string WhatIsSaidTooEarly() const;
    std::string WhatIsLost() const;
    std::string WhatIsNotRescued() const;
    bool IsRescued(const std::string& file, const std::set<std::string>& kept) const;
    std::string WhatIsFalselySaid() const;
    std::string WhatIsUntold(RunEnd end) const;
    std::string WhatIsLeft(const system_calls::Fault& fault) const;
    std::string StartAgain();

    const Scenario& scenario_;
    std::string path_;
    Record record_;
    std::unique_ptr<Session> session_;
    Files before_;
    Files after_;
    std::map<std::string, std::set<std::string>> contents_;  ///< Of each file, through the run.
    std::set<std::string> removed_;  ///< Files that are not there throughout.
    std::vector<Record::Entry> calls_;
    std::vector<Record::Entry> said_;
    std::set<Files> startedFrom_;  ///< Folders on which the program is known to start.
};

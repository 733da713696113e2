// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "tests/faults/record.h"

/// How a run of the program ended that was forked off this process.
enum class RunEnd {
    Finished,  ///< It did all it was to do.
    Reported,  ///< It ended with the report of a failure.
    Killed,    ///< By a fault of `system_calls`.
    Hung,      ///< It was stopped after two minutes.
    Died       ///< By a signal or in a way that is none of the program's.
};

struct ForkedRun {
    RunEnd end = RunEnd::Died;
    long peakMemory = 0;  ///< What it took at most, in KiB, what it had at the fork included.
    double seconds = 0;   ///< What it took of a processor, however busy the computer is.
};

/// Runs `run` in a child of this process, under the guard of the real application. The report of a
/// failure is put into the record and closed; the record is emptied before.
ForkedRun RunForked(Record& record, const std::function<void()>& run);

/// What this process takes now, in KiB.
long MemoryNow();

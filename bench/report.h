// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

/// Prints the usual table, and below it how many times as fast each routine is as the plain one of
/// the same name in the same run.
class RatioReporter final : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    /// The same as a page: on what was measured, how to repeat it, plain against fast, all other
    /// times.
    void WritePage(std::ostream& page) const;

  private:
    /// A routine beside the plain one of the same name, times in nanoseconds.
    struct Pair {
        std::string title;
        double plain;
        double fast;
    };

    std::vector<Pair> Pairs() const;

    std::map<std::string, double> nanoseconds_;
};

// SPDX-License-Identifier: GPL-3.0-or-later
// The check of 499 entries against three histories of 2,999 draws.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <random>
#include <vector>

#include "core/memory_folder.h"
#include "entries/check_entries.h"

namespace {

constexpr int entryCount = 499;
constexpr int drawCount = 2999;
const Date today = std::chrono::November / 21 / 2026;

Region English() {
    Region region;
    region.monthNames = {"January", "February", "March",     "April",   "May",      "June",
                         "July",    "August",   "September", "October", "November", "December"};
    for (std::size_t month = 0; month < 12; ++month) {
        region.shortMonthNames[month] = region.monthNames[month].substr(0, 3);
    }
    return region;
}

std::string FileName(std::uint32_t lottery) {
    return "dbase" + std::to_string(lottery + 1) + ".txt";
}

Date DateOf(int draw) { return DaysAfter(today, -3 * draw); }

void WriteHistory(MemoryFolder& folder, std::uint32_t lottery, std::mt19937& random) {
    std::string bytes = "Lottery\r\n\r\n6,49,0,0,1\r\n";
    for (int draw = 1; draw <= drawCount; ++draw) {
        bytes += DrawDate(DateOf(draw));
        for (int column = 1; column <= 8; ++column) {
            bytes += ',' + std::to_string(column == 7 ? 0 : 1 + random() % 49);
        }
        bytes += "\r\n";
    }
    folder.Write(FileName(lottery), bytes);
}

/// Entries of all three lotteries, their dates spread over the newest `reach` draws.
struct Desk {
    explicit Desk(int reach) {
        std::mt19937 random(49);
        for (std::uint32_t lottery = 0; lottery < 3; ++lottery)
            WriteHistory(folder, lottery, random);
        for (int row = 0; row < entryCount; ++row) {
            SavedEntry entry;
            const auto draw = 1 + random() % static_cast<unsigned>(reach);
            entry[0] = MediumDate(DateOf(static_cast<int>(draw)));
            // Every number of an entry differs, so that at most one hits the bonus ball.
            for (unsigned i = 1; i <= 6; ++i) entry[i] = std::to_string(8 * i - random() % 8 + 1);
            entry[11] = FileName(static_cast<std::uint32_t>(random() % 3));
            entries.push_back(entry);
        }
    }

    MemoryFolder folder;
    std::vector<SavedEntry> entries;
    Region region = English();
    std::unique_ptr<State> state = std::make_unique<State>();
};

void CheckPlain(benchmark::State& run) {
    Desk desk(static_cast<int>(run.range(0)));
    for (auto _ : run) {
        MatchCounts counts("match counts");
        int row = 0;
        for (const SavedEntry& entry : desk.entries) {
            benchmark::DoNotOptimize(plain::CheckEntry(*desk.state, desk.folder, desk.region, today,
                                                       entry, ++row, counts));
        }
    }
}

void CheckFast(benchmark::State& run) {
    Desk desk(static_cast<int>(run.range(0)));
    for (auto _ : run) {
        EntryCheck check(*desk.state, desk.folder, desk.region, today);
        int row = 0;
        for (const SavedEntry& entry : desk.entries) {
            benchmark::DoNotOptimize(check.Check(entry, ++row));
        }
    }
}

}  // namespace

// Named by how many of the newest draws the entries are of.
BENCHMARK(CheckPlain)->Name("CheckEntries/plain")->Arg(2999)->Arg(100);
BENCHMARK(CheckFast)->Name("CheckEntries/fast")->Arg(2999)->Arg(100);

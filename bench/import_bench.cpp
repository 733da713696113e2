// SPDX-License-Identifier: GPL-3.0-or-later
// A results file of ten thousand rows, understood and read.
#include <benchmark/benchmark.h>

#include <random>
#include <string>

#include "databases/import_eras.h"
#include "databases/import_guess.h"

namespace {

constexpr int rowsOfFile = 10000;

const DateRules rules{.region = {}, .today = std::chrono::year(2025) / 6 / 1};

std::string ResultsFile() {
    std::mt19937 chance(1);
    std::string file =
        "DrawDate,Ball 1,Ball 2,Ball 3,Ball 4,Ball 5,Ball 6,Bonus Ball,Ball "
        "Set,Machine,DrawNumber\n";
    for (int row = 0; row < rowsOfFile; ++row) {
        file += MediumDate(DaysAfter(rules.today, -row));
        for (int ball = 0; ball < 7; ++ball) {
            // One of seven ranges each, so that no number stands twice in a row.
            file += "," + std::to_string(ball * 8 + static_cast<int>(chance() % 8) + 1);
        }
        file += "," + std::to_string(chance() % 8 + 1) + ",Arthur," + std::to_string(20000 - row) +
                "\n";
    }
    return file;
}

void Understand(benchmark::State& run) {
    const std::string file = ResultsFile();
    for (auto _ : run) benchmark::DoNotOptimize(ProposeImport(DecodeImport(file).text, rules));
}

void Read(benchmark::State& run) {
    const std::string file = ResultsFile();
    const ImportProposal proposal = ProposeImport(file, rules);
    for (auto _ : run) {
        const ImportTable table(file, proposal.mapping.separator);
        const ImportedDraws imported = ReadDraws(table, proposal.mapping, rules);
        benchmark::DoNotOptimize(FindEras(imported.draws, proposal.mapping.extraFromSameDrum));
    }
}

}  // namespace

BENCHMARK(Understand)->Name("Import/Understand/10000_rows")->Unit(benchmark::kMillisecond);
BENCHMARK(Read)->Name("Import/Read/10000_rows")->Unit(benchmark::kMillisecond);

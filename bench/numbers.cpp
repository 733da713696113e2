// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <chrono>
#include <ctime>
#include <string>

#include "bench/history.h"
#include "core/draw_database.h"
#include "core/filters.h"
#include "core/generator.h"
#include "core/lines.h"
#include "core/memory_folder.h"
#include "play/lucky_dip.h"

namespace {

using benchmark::State;
using Test = std::int16_t (*)(::State& state, bool boxSet);
using Prune = void (*)(::State& state);

std::int16_t PlainHistoryOK(::State& state, bool) { return plain::HistoryPasses(state) ? -1 : 0; }

// Thirty lines that pass, so that every draw is compared.
void TestHistory(State& run, Test test) {
    const auto state = StateWithHistory(static_cast<int>(run.range(0)));
    FillWithPassingLines(*state, 30);
    for (auto _ : run) benchmark::DoNotOptimize(test(*state, true));
}

void PruneLines(State& run, Prune prune, int lineCount, int repeats) {
    const auto state = StateWithHistory(1);
    FillWithPassingLines(*state, lineCount);
    for (int row = 1; row <= repeats; ++row) {
        for (int column = 1; column <= 7; ++column) {
            state->Lines(lineCount + 1 - row, column) = state->Lines(row, column);
        }
    }
    const auto lines = state->Lines;
    for (auto _ : run) {
        prune(*state);
        benchmark::DoNotOptimize(state->Lines(1, 1));
        if (repeats > 0) state->Lines = lines;
    }
}

void BuildIndex(State& run) {
    const auto state = StateWithHistory(1);
    for (auto _ : run) {
        DrawIndex index;
        index.Update(*state);
        benchmark::DoNotOptimize(index.Usable());
    }
}

void LoadHistory(State& run) {
    MemoryFolder folder;
    folder.Write("dbase2.txt", DatabaseBytes());
    const auto state = std::make_unique<::State>();
    ListDatabases(*state, folder);
    for (auto _ : run) LoadDatabase(*state, folder, 0);
}

double Seconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

double ProcessorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

// Strength 2 in every condition is so strict that hardly any of a million sets of lines passes. The
// second rate is what a machine with nothing else to do would reach by the clock on the wall.
void RetryLuckyDip(State& run) {
    const auto state = StateWithHistory(2);
    Random random([seed = std::uint64_t{0}]() mutable { return ++seed; });
    double tries = 0;
    std::string status;
    GeneratorSteps steps;
    steps.playLotto = [&] {
        lucky_dip::PlayLotto(*state, random, 30);
        ++tries;
    };
    steps.paintStatus = [&](const std::string& text) { status = text; };
    steps.showLines = [] {};
    steps.seconds = Seconds;
    const double start = Seconds();
    const double processorStart = ProcessorSeconds();
    for (auto _ : run) {
        GenerateLines(*state, random, {true, true, true},
                      {.timeDecimals = 3, .pruneDuplicates = true}, steps);
    }
    run.counters["tries_in_10_s"] = tries / (Seconds() - start) * 10;
    run.counters["tries_in_10_s_of_processor"] = tries / (ProcessorSeconds() - processorStart) * 10;
    run.SetLabel(status);
}

void FillLines(State& run) {
    const auto state = StateWithHistory(1);
    Random random([] { return std::uint64_t{1}; });
    for (auto _ : run) lucky_dip::PlayLotto(*state, random, 30);
}

}  // namespace

BENCHMARK_CAPTURE(TestHistory, plain, PlainHistoryOK)->Name("HistoryOK/plain")->Arg(1)->Arg(2);
BENCHMARK_CAPTURE(TestHistory, bits, HistoryOK)->Name("HistoryOK/bits")->Arg(1)->Arg(2);
BENCHMARK_CAPTURE(PruneLines, plain, plain::PruneHistory, 30, 0)->Name("PruneHistory/plain");
BENCHMARK_CAPTURE(PruneLines, bits, PruneHistory, 30, 0)->Name("PruneHistory/bits");
BENCHMARK_CAPTURE(PruneLines, plain, plain::PruneDuplicates, 30, 0)
    ->Name("PruneDuplicates/plain/30_distinct");
BENCHMARK_CAPTURE(PruneLines, hash, PruneDuplicates, 30, 0)
    ->Name("PruneDuplicates/hash/30_distinct");
BENCHMARK_CAPTURE(PruneLines, plain, plain::PruneDuplicates, 179, 20)
    ->Name("PruneDuplicates/plain/179_with_20_repeats");
BENCHMARK_CAPTURE(PruneLines, hash, PruneDuplicates, 179, 20)
    ->Name("PruneDuplicates/hash/179_with_20_repeats");
BENCHMARK(BuildIndex)->Name("DrawIndex/build")->Unit(benchmark::kMicrosecond);
BENCHMARK(LoadHistory)->Name("LoadDatabase/2999")->Unit(benchmark::kMicrosecond);
BENCHMARK(FillLines)->Name("LuckyDip/30_lines");
BENCHMARK(RetryLuckyDip)->Name("LuckyDipRetry")->MinTime(9)->Unit(benchmark::kSecond);

// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include "bench/history.h"
#include "bench/retry.h"
#include "core/draw_database.h"
#include "core/filters.h"
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

void LoadFieldByField(::State& state, const ProgramFolder& folder, std::int16_t index) {
    const std::string content = folder.Read(state.DbaseFiles(index));
    FieldReader reader(content, state.DbaseFiles(index));
    ReadDatabaseHeader(state, reader);
    for (int draw = 1; !reader.AtEnd(); ++draw) {
        reader.ReadField("the date of a draw");
        ReadDraw(state.Draws.Row(draw), reader);
    }
}

using Load = void (*)(::State& state, const ProgramFolder& folder, std::int16_t index);

void LoadHistory(State& run, Load load) {
    MemoryFolder folder;
    folder.Write("dbase2.txt", DatabaseBytes());
    const auto state = std::make_unique<::State>();
    ListDatabases(*state, folder);
    for (auto _ : run) load(*state, folder, 0);
}

void RetryLuckyDip(State& run) {
    RetryAtStrengthTwo(
        run, {.timeDecimals = 3, .pruneDuplicates = true},
        [](::State& state, Random& random) { lucky_dip::PlayLotto(state, random, 30); });
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
BENCHMARK_CAPTURE(LoadHistory, plain, LoadFieldByField)
    ->Name("LoadDatabase/plain/2999")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(LoadHistory, fast, LoadDatabase)
    ->Name("LoadDatabase/fast/2999")
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(FillLines)->Name("LuckyDip/30_lines");
BENCHMARK(RetryLuckyDip)->Name("LuckyDipRetry")->MinTime(9)->Unit(benchmark::kSecond);

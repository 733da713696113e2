// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include "bench/history.h"
#include "core/frequency.h"

namespace {

using Count = void (*)(const State& state, NumberCounts& counts);
using Rank = void (*)(Counts& counts, int highest, List<std::int16_t, 121>& pool);

void CountAndRank(benchmark::State& run, Count count, Rank rank) {
    const auto state = StateWithHistory(1);
    NumberCounts counts;
    for (auto _ : run) {
        count(*state, counts);
        rank(counts.MainCount, state->MaxNum, state->Pool);
        benchmark::DoNotOptimize(state->Pool(1));
    }
}

void RankOnly(benchmark::State& run, Rank rank) {
    const auto state = StateWithHistory(1);
    NumberCounts counts;
    CountNumbers(*state, counts);
    for (auto _ : run) {
        Counts fresh = counts.MainCount;
        rank(fresh, state->MaxNum, state->Pool);
        benchmark::DoNotOptimize(state->Pool(1));
    }
}

}  // namespace

BENCHMARK_CAPTURE(CountAndRank, plain, plain::CountNumbers, plain::GetHotNumbers)
    ->Name("CountAndRank/plain/2999_draws");
BENCHMARK_CAPTURE(CountAndRank, fast, CountNumbers, GetHotNumbers)
    ->Name("CountAndRank/fast/2999_draws");
BENCHMARK_CAPTURE(RankOnly, plain, plain::GetHotNumbers)->Name("GetHotNumbers/plain");
BENCHMARK_CAPTURE(RankOnly, fast, GetHotNumbers)->Name("GetHotNumbers/fast");

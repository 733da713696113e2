// SPDX-License-Identifier: GPL-3.0-or-later
// The figures of the analysis forms over 2,999 draws, as a choice of the lottery asks for them.
#include <benchmark/benchmark.h>

#include "analysis/draw_ranges.h"
#include "analysis/draw_sums.h"
#include "analysis/odd_even.h"
#include "analysis/position_averages.h"
#include "bench/history.h"
#include "core/draws.h"

namespace {

void DrawSums(benchmark::State& run) {
    const auto state = StateWithHistory(1);
    for (auto _ : run) benchmark::DoNotOptimize(draw_sums::Analyse(View(*state)));
}

void OddAndEven(benchmark::State& run) {
    const auto state = StateWithHistory(1);
    for (auto _ : run) benchmark::DoNotOptimize(odd_even::Analyse(View(*state)));
}

// The draws are sorted anew each time, as a load leaves them in the order of the draw.
template <typename Analyse>
void SortAndAnalyse(benchmark::State& run, Analyse analyse) {
    const auto state = StateWithHistory(1);
    const auto draws = state->Draws;
    for (auto _ : run) {
        state->Draws = draws;
        SortDraws(*state, state->Picks);
        benchmark::DoNotOptimize(analyse(View(*state)));
    }
}

void PositionAverages(benchmark::State& run) {
    SortAndAnalyse(run, [](const State& state) { return position_averages::Analyse(state, 1); });
}

void DrawRanges(benchmark::State& run) {
    SortAndAnalyse(run, [](const State& state) { return draw_ranges::AnalyseRange(state); });
}

}  // namespace

BENCHMARK(DrawSums)->Name("DrawSums/2999_draws")->Unit(benchmark::kMicrosecond);
BENCHMARK(OddAndEven)->Name("OddAndEven/2999_draws")->Unit(benchmark::kMicrosecond);
BENCHMARK(PositionAverages)->Name("PositionAverages/2999_draws")->Unit(benchmark::kMicrosecond);
BENCHMARK(DrawRanges)->Name("DrawRanges/2999_draws")->Unit(benchmark::kMicrosecond);

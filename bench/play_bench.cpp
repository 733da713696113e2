// SPDX-License-Identifier: GPL-3.0-or-later
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <memory>
#include <random>
#include <vector>

#include "bench/history.h"
#include "bench/retry.h"
#include "core/draws.h"
#include "core/filters.h"
#include "play/averages.h"
#include "play/full_selection.h"
#include "play/key_numbers.h"
#include "tests/play/step_by_step.h"

namespace {

using Attempt = void (*)(State& state, Random& random);
using HistoryTest = std::int16_t (*)(State& state, bool boxSet);
using Sort = void (*)(State& state, int count);

void FullSelection(State& state, Random& random) { full_selection::PlayLotto(state, random, true); }

void PlainFullSelection(State& state, Random& random) {
    step_by_step::PlayFullSelection(state, random, true);
}

void ThreeKeys(State& state, Random& random) {
    constexpr std::array keys{7, 23, 40};
    key_numbers::PlayLotto(state, random, keys);
}

void PlainThreeKeys(State& state, Random& random) {
    static const std::vector<int> keys{7, 23, 40};
    step_by_step::PlayKeyNumbers(state, random, keys);
}

void OneAttempt(benchmark::State& run, Attempt attempt) {
    const auto state = StateWithHistory(2);
    Random random([] { return std::uint64_t{1}; });
    for (auto _ : run) attempt(*state, random);
}

std::int16_t PlainHistoryOK(State& state, bool) { return plain::HistoryPasses(state) ? -1 : 0; }

// An attempt and its tests, as the retry loop runs them.
void OneTry(benchmark::State& run, Attempt attempt, HistoryTest history) {
    const auto state = StateWithHistory(2);
    Random random([] { return std::uint64_t{1}; });
    for (auto _ : run) {
        attempt(*state, random);
        benchmark::DoNotOptimize(history(*state, true));
        benchmark::DoNotOptimize(HighLowOK(*state, true));
        benchmark::DoNotOptimize(OddEvenOK(*state, true));
    }
}

// At strength 2 one of some hundred tries complies, so a second has room for many runs of the loop.
void Retry(benchmark::State& run, Attempt attempt) {
    RetryAtStrengthTwo(run, {.sortLines = true}, attempt);
}

// The balls of each draw in random order, as a machine yields them; many files hold them sorted.
void MixDraws(State& state) {
    std::mt19937 engine(49);
    for (int row = 1; View(state).Draws(row, 1) != 0; ++row) {
        std::int16_t* numbers = state.Draws.Row(row) + 1;
        std::shuffle(numbers, numbers + state.Picks, engine);
    }
}

// Each round has the mixed draws again; the copy belongs to neither sort.
void SortAndAverage(benchmark::State& run, Sort sort) {
    const auto state = StateWithHistory(1);
    MixDraws(*state);
    const auto mixed = std::make_unique<State>(*state);
    for (auto _ : run) {
        run.PauseTiming();
        state->Draws = mixed->Draws;
        run.ResumeTiming();
        sort(*state, state->Picks);
        averages::Analyse(*state);
        benchmark::DoNotOptimize(state->Pool(1));
    }
}

}  // namespace

BENCHMARK_CAPTURE(OneAttempt, plain, PlainFullSelection)->Name("FullSelection/plain");
BENCHMARK_CAPTURE(OneAttempt, fast, FullSelection)->Name("FullSelection/fast");
BENCHMARK_CAPTURE(OneAttempt, plain, PlainThreeKeys)->Name("ThreeKeys/plain");
BENCHMARK_CAPTURE(OneAttempt, fast, ThreeKeys)->Name("ThreeKeys/fast");
BENCHMARK_CAPTURE(OneTry, plain, PlainFullSelection, PlainHistoryOK)
    ->Name("FullSelectionTry/plain");
BENCHMARK_CAPTURE(OneTry, fast, FullSelection, HistoryOK)->Name("FullSelectionTry/fast");
BENCHMARK_CAPTURE(OneTry, plain, PlainThreeKeys, PlainHistoryOK)->Name("ThreeKeysTry/plain");
BENCHMARK_CAPTURE(OneTry, fast, ThreeKeys, HistoryOK)->Name("ThreeKeysTry/fast");
BENCHMARK_CAPTURE(SortAndAverage, plain, plain::SortDraws)->Name("SortDrawsAndAverages/plain");
BENCHMARK_CAPTURE(SortAndAverage, fast, SortDraws)->Name("SortDrawsAndAverages/fast");
BENCHMARK_CAPTURE(Retry, fast, FullSelection)->Name("FullSelectionRetry")->MinTime(9);
BENCHMARK_CAPTURE(Retry, fast, ThreeKeys)->Name("ThreeKeysRetry")->MinTime(9);

// SPDX-License-Identifier: GPL-3.0-or-later
// The check of 179 entries against 2,999 draws, and the statistics of numbers.
#include <benchmark/benchmark.h>

#include "analysis/number_stats.h"
#include "analysis/what_if.h"
#include "bench/history.h"
#include "core/lines.h"
#include "play/lucky_dip.h"

namespace {

constexpr int entryCount = 179;

/// The history as a lottery with those rules, and 179 random entries.
std::unique_ptr<State> StateWithEntries(int maxPball, std::int16_t hasBonus) {
    auto state = StateWithHistory(1);
    state->MaxPball = maxPball;
    state->HasBonus = hasBonus;
    Random random([] { return std::uint64_t{49}; });
    random.Reset(49);
    lucky_dip::PlayLotto(*state, random, entryCount);
    return state;
}

template <typename Count>
void CheckEntries(benchmark::State& run, Count count, int maxPball, std::int16_t hasBonus) {
    const auto state = StateWithEntries(maxPball, hasBonus);
    for (auto _ : run) benchmark::DoNotOptimize(count(*state));
}

void AnalyseNumbers(benchmark::State& run) {
    const auto state = StateWithHistory(1);
    for (auto _ : run) {
        const auto rows = number_stats::TableOf(number_stats::Analyse(*state));
        benchmark::DoNotOptimize(rows.data());
    }
}

}  // namespace

BENCHMARK_CAPTURE(CheckEntries, plain, what_if::plain::CountMatches, 0, 0)
    ->Name("WhatIf/plain/179_entries");
BENCHMARK_CAPTURE(CheckEntries, fast, what_if::CountMatches, 0, 0)->Name("WhatIf/fast/179_entries");
BENCHMARK_CAPTURE(CheckEntries, plain_bonus, what_if::plain::CountMatches, 0, 1)
    ->Name("WhatIf/plain/179_entries_bonus");
BENCHMARK_CAPTURE(CheckEntries, fast_bonus, what_if::CountMatches, 0, 1)
    ->Name("WhatIf/fast/179_entries_bonus");
BENCHMARK_CAPTURE(CheckEntries, plain_ball, what_if::plain::CountMatches, 14, 0)
    ->Name("WhatIf/plain/179_entries_extra_ball");
BENCHMARK_CAPTURE(CheckEntries, fast_ball, what_if::CountMatches, 14, 0)
    ->Name("WhatIf/fast/179_entries_extra_ball");
BENCHMARK(AnalyseNumbers)->Name("AnalyseNumbers/2999_draws");

// SPDX-License-Identifier: GPL-3.0-or-later
// Tries of the two largest wheels with all conditions at strength 2 over 2,999 draws, and the proof
// of the wheel of 49.
#include <benchmark/benchmark.h>

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

#include "bench/history.h"
#include "bench/retry.h"
#include "core/filters.h"
#include "core/memory_folder.h"
#include "play/pool.h"
#include "wheels/guarantee.h"
#include "wheels/guaranteed_wheels.h"
#include "wheels/wheel_of_49.h"

namespace {

using Attempt = void (*)(State& state, Random& random);
using HistoryTest = std::int16_t (*)(State& state, bool boxSet);

const wheel49::Table& Table49() {
    static const wheel49::Table table = [] {
        std::ifstream file(SUPPLIED_DATA "/wheel49.dat", std::ios::binary);
        MemoryFolder folder;
        folder.Write(wheel49::tableFile, std::string{std::istreambuf_iterator<char>(file), {}});
        return wheel49::ReadTable(folder);
    }();
    return table;
}

// 48 numbers in 165 lines.
void Guaranteed48(State& state, Random& random) {
    const wheels::Wheel& wheel = wheels::WheelAt(wheels::WheelList::ThreeForSix, 19);
    guaranteed_wheels::PlayLotto(state, random, wheel.pattern, wheel.numbers);
}

void Wheel49(State& state, Random& random) { wheel49::DoWheel(state, random, Table49()); }

std::int16_t PlainHistoryOK(State& state, bool) { return plain::HistoryPasses(state) ? -1 : 0; }

// A try as the retry loop runs it: the wheel and the three tests. Plain is the test of previous
// draws as it is told, number by number.
void WheelTry(benchmark::State& run, Attempt attempt, HistoryTest history) {
    const auto state = StateWithHistory(2);
    Random random([] { return std::uint64_t{1}; });
    FillPool(*state, 49);
    for (auto _ : run) {
        attempt(*state, random);
        benchmark::DoNotOptimize(history(*state, true));
        benchmark::DoNotOptimize(HighLowOK(*state, true));
        benchmark::DoNotOptimize(OddEvenOK(*state, true));
    }
    run.counters["tries_in_10_s"] =
        benchmark::Counter(10 * static_cast<double>(run.iterations()), benchmark::Counter::kIsRate);
}

void AttemptAlone(benchmark::State& run, Attempt attempt) {
    const auto state = StateWithHistory(2);
    Random random([] { return std::uint64_t{1}; });
    FillPool(*state, 49);
    for (auto _ : run) attempt(*state, random);
}

// The whole loop with its ten seconds, as the forms run it.
void Retry(benchmark::State& run, const GeneratorStyle& style, Attempt attempt) {
    RetryAtStrengthTwo(run, style, [attempt, filled = false](State& state, Random& random) mutable {
        if (!std::exchange(filled, true)) FillPool(state, 49);
        attempt(state, random);
    });
}

// 49 numbers in 175 lines: 13,983,816 selections.
void VerifyWheel49(benchmark::State& run) {
    const auto lines = wheel49::LineMasks(Table49());
    for (auto _ : run) {
        const wheels::Guarantee found = wheels::VerifyGuarantee(lines, 49, 6, 3);
        if (found.selections != 13983816 || found.uncovered != 0) throw std::logic_error("wheel");
    }
}

}  // namespace

BENCHMARK_CAPTURE(WheelTry, plain, Guaranteed48, PlainHistoryOK)->Name("Wheel48Try/plain");
BENCHMARK_CAPTURE(WheelTry, fast, Guaranteed48, HistoryOK)->Name("Wheel48Try/fast");
BENCHMARK_CAPTURE(WheelTry, plain, Wheel49, PlainHistoryOK)->Name("Wheel49Try/plain");
BENCHMARK_CAPTURE(WheelTry, fast, Wheel49, HistoryOK)->Name("Wheel49Try/fast");
BENCHMARK_CAPTURE(AttemptAlone, wheel48, Guaranteed48)->Name("Wheel48Attempt");
BENCHMARK_CAPTURE(AttemptAlone, wheel49, Wheel49)->Name("Wheel49Attempt");
BENCHMARK_CAPTURE(Retry, wheel48, GeneratorStyle{.sortLines = true}, Guaranteed48)
    ->Name("Wheel48Retry")
    ->Iterations(1);
BENCHMARK_CAPTURE(Retry, wheel49, (GeneratorStyle{.timeDecimals = 3, .paintTries = false}), Wheel49)
    ->Name("Wheel49Retry")
    ->Iterations(1);
BENCHMARK(VerifyWheel49)->Name("VerifyWheel49")->Unit(benchmark::kMillisecond);
